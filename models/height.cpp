// The dominant height curve, its constants computed once for a stand.
#include "models/height.h"

#include "models/units.h"

#include <algorithm>
#include <cmath>

namespace growth {

namespace {

double ExponentAt(const HeightShape& shape, double siteIndex) {
    const double inItsUnit = shape.siteInFeet ? siteIndex / kMPerFoot : siteIndex;
    return std::max(1.0, shape.c * std::pow(inItsUnit, shape.d));
}

double TotalAgeAtBreastHeight(double rate, double exponent, double siteIndex) {
    const double share = std::pow(kBreastHeight / siteIndex, 1.0 / exponent);
    return -std::log((1.0 - share) / (1.0 - share * std::exp(-kSiteIndexAge * rate))) / rate;
}

}  // namespace

HeightCurve::HeightCurve(const HeightShape& shape, double siteIndex)
    : rate(shape.b), exponent(ExponentAt(shape, siteIndex)) {
    const bool onTotalAge = shape.form == HeightForm::TotalAge;
    foot = onTotalAge ? 0.0 : kBreastHeight;
    ageShift = onTotalAge ? TotalAgeAtBreastHeight(rate, exponent, siteIndex) : 0.0;
    span = (siteIndex - foot) / std::pow(Growth(kSiteIndexAge), exponent);
}

double HeightCurve::Growth(double breastHeightAge) const {
    return 1.0 - std::exp(-rate * (breastHeightAge + ageShift));
}

double HeightCurve::At(double breastHeightAge) const {
    return foot + span * std::pow(Growth(breastHeightAge), exponent);
}

}  // namespace growth
