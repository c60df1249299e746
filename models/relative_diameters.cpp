// The Weibull distribution of relative diameters and its quadrature.
#include "models/relative_diameters.h"

#include <cmath>

namespace growth {

namespace {

constexpr std::array<double, kTrees> kNodes = {
    0.170279632305101, 0.903701776799380,  2.251086629866131,  4.266700170287659,
    7.045905402393466, 10.758516010180995, 15.740678641278005, 22.863131736889264};

constexpr double kHeightRise = 2.25;
constexpr double kFullRise = 0.97267627755270751;  // 1 - exp(-3.6)

// Positive root of sum of w_i (location + scale * u_i)² = 1 over the nodes' u_i.
double ScaleFor(double shape, double location) {
    double square = 0.0;
    double half = 0.0;
    double rest = -1.0;
    for (std::size_t i = 0; i < kTrees; ++i) {
        const double u = std::pow(kNodes[i], 1.0 / shape);
        square += kTreeShares[i] * u * u;
        half += kTreeShares[i] * location * u;
        rest += kTreeShares[i] * location * location;
    }
    return (-half + std::sqrt(half * half - square * rest)) / square;
}

}  // namespace

const std::array<double, kTrees> kTreeShares = {
    0.369188589341638,   0.418786780814343,    0.175794986637172,    0.033343492261216,
    0.00279453623522567, 9.07650877335821e-05, 8.48574671625273e-07, 1.04800117487151e-09};

double HeightShare(double relativeDiameter) {
    return (1.0 - std::exp(-kHeightRise * relativeDiameter)) / kFullRise;
}

RelativeDiameters::RelativeDiameters(double shapeGiven, double locationGiven)
    : shape(shapeGiven),
      location(locationGiven),
      scale(ScaleFor(shapeGiven, locationGiven)),
      wholeStand(Sample(0.0)) {}

const RelativeDiameters& RelativeDiameters::Of(Wood wood, bool planted) {
    static const RelativeDiameters plantedStand(3.0, 0.40);
    static const RelativeDiameters naturalSoftwood(2.2, 0.30);
    static const RelativeDiameters naturalHardwood(2.0, 0.25);
    if (planted) return plantedStand;
    return wood == Wood::Softwood ? naturalSoftwood : naturalHardwood;
}

double RelativeDiameters::Cut(double x) const {
    return x > location ? std::pow((x - location) / scale, shape) : 0.0;
}

SampleTrees RelativeDiameters::TreesAbove(double cut) const {
    return cut > 0.0 ? Sample(cut) : wholeStand;
}

SampleTrees RelativeDiameters::Sample(double cut) const {
    SampleTrees trees;
    for (std::size_t i = 0; i < kTrees; ++i) {
        trees.relativeDiameter[i] = location + scale * std::pow(cut + kNodes[i], 1.0 / shape);
        trees.heightShare[i] = HeightShare(trees.relativeDiameter[i]);
    }
    return trees;
}

}  // namespace growth
