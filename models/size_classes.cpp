// Classes of a stand, integrated over its distribution of diameters.
#include "models/size_classes.h"

#include "models/height.h"

#include <algorithm>
#include <cmath>

namespace growth {

namespace {

constexpr double kMetricStump = 0.15;  // m
constexpr double kImperialStump = 0.5 * kMPerFoot;

// A class with fewer stems per hectare counts as empty.
constexpr double kFewestStems = 0.5;

constexpr ClassLimits Metric(double threshold, double top) {
    return {threshold, {top, kMetricStump}};
}

constexpr ClassLimits Imperial(double threshold, double top) {
    return {threshold * kCmPerInch, {top * kCmPerInch, kImperialStump}};
}

}  // namespace

ClassLimits LimitsOf(SizeClass sizeClass, Wood wood, Units units) {
    const bool metric = units == Units::Metric;
    if (sizeClass == kMerchantableClass) return metric ? Metric(9.0, 7.6) : Imperial(3.5, 3.0);
    if (wood == Wood::Softwood) return metric ? Metric(14.0, 10.0) : Imperial(5.5, 4.0);
    return metric ? Metric(25.0, 20.0) : Imperial(10.0, 8.0);
}

SizeClassifier::SizeClassifier(const Species& species, bool planted, Units unitsGiven)
    : wood(species.wood),
      units(unitsGiven),
      volume(species.volume),
      merchantable(LimitsOf(kMerchantableClass, species.wood, unitsGiven)),
      sawlog(LimitsOf(kSawlogClass, species.wood, unitsGiven)),
      diameters(RelativeDiameters::Of(species.wood, planted)) {}

AllClasses SizeClassifier::Classes(StemsAndDiameter stand, double dominantHeight) const {
    AllClasses classes;
    classes[kTotalClass] =
        Above(0.0, stand, dominantHeight, [&](double d, double h) { return volume.Total(d, h); });
    classes[kMerchantableClass] =
        Above(merchantable.threshold, stand, dominantHeight, [&](double d, double h) {
            return volume.Total(d, h) * volume.LogShare(d, h, merchantable.logs);
        });
    classes[kSawlogClass] = Above(sawlog.threshold, stand, dominantHeight,
                                  [&](double d, double h) { return SawlogVolume(d, h); });
    return classes;
}

double SizeClassifier::SawlogVolume(double d, double h) const {
    // The fitted share of aspens first rises a little with the top diameter.
    const double share =
        std::min(volume.LogShare(d, h, sawlog.logs), volume.LogShare(d, h, merchantable.logs));
    const double cubic = volume.Total(d, h) * share;
    if (units == Units::Metric) return cubic;
    return cubic / kCubicMPerCubicFoot * BoardFeetPerCubicFoot(wood, d);
}

template <typename VolumeOfTree>
ClassValues SizeClassifier::Above(double threshold, const StemsAndDiameter& stand,
                                  double dominantHeight, VolumeOfTree volumeOfTree) const {
    const double cut = diameters.Cut(threshold / stand.diameter);
    const double stems = stand.stems * std::exp(-cut);
    if (threshold > 0.0 && stems < kFewestStems) return {};
    const SampleTrees trees = diameters.TreesAbove(cut);
    const double rise = dominantHeight - kBreastHeight;
    double meanSquare = 0.0;
    double treeVolume = 0.0;
    for (std::size_t i = 0; i < kTrees; ++i) {
        const double x = trees.relativeDiameter[i];
        const double height = kBreastHeight + rise * trees.heightShare[i];
        meanSquare += kTreeShares[i] * x * x;
        treeVolume += kTreeShares[i] * volumeOfTree(stand.diameter * x, height);
    }
    const double mean = std::sqrt(meanSquare);
    const double diameter = stand.diameter * mean;
    return {diameter, kBasalAreaPerSquareCm * diameter * diameter * stems, stems,
            kBreastHeight + rise * HeightShare(mean), treeVolume * stems};
}

}  // namespace growth
