// Height of the dominant trees over age: a Chapman-Richards curve through 1.3 m at breast-height
// age 0 and through the site index at 50.
#pragma once

#include "models/species.h"

namespace growth {

/// Height above ground at which trees are measured, m.
inline constexpr double kBreastHeight = 1.3;

/// Breast-height age at which the dominant height is the site index, years.
inline constexpr double kSiteIndexAge = 50.0;

/// The dominant height curve of one species on one site.
///
/// A curve on breast-height age: H = 1.3 + (SI - 1.3) * (g(A) / g(50))^e with g(A) = 1 - exp(-bA).
/// A curve on total age: H = SI * (g(A + A0) / g(50 + A0))^e, A0 being the total age at which it
/// passes breast height. Only the shape (b and e) is the source's (see HeightShape); tying both
/// ends to breast-height age is assumed but for BF, BS and WS, and so is the floor of 1 under the
/// exponent.
class HeightCurve {
public:
    /// A curve for a site index in m, above 1.3.
    HeightCurve(const HeightShape& shape, double siteIndex);

    /// Dominant height in m at a breast-height age in years, from 0.
    double At(double breastHeightAge) const;

    /// The exponent e, at least 1.
    double Exponent() const { return exponent; }

    /// The total age A0 at breast height, years; 0 for a curve on breast-height age.
    double AgeAtBreastHeight() const { return ageShift; }

private:
    double Growth(double breastHeightAge) const;

    double rate;
    double exponent;
    double foot;
    double ageShift;
    double span;
};

}  // namespace growth
