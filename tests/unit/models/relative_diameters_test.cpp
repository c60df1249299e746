// The distribution of diameters about the mean.
#include "models/relative_diameters.h"

#include <cmath>
#include <gtest/gtest.h>
#include <numeric>

namespace growth {
namespace {

constexpr double kE = 2.718281828459045;

TEST(RelativeDiameters, HasTheScalesOfTheFourKindsOfStand) {
    EXPECT_NEAR(RelativeDiameters::Of(Wood::Softwood, false).Scale(), 0.7327674476, 6e-11);
    EXPECT_NEAR(RelativeDiameters::Of(Wood::Hardwood, false).Scale(), 0.7708253136, 6e-11);
    EXPECT_NEAR(RelativeDiameters::Of(Wood::Softwood, true).Scale(), 0.6445884041, 6e-11);
    EXPECT_NEAR(RelativeDiameters::Of(Wood::Hardwood, true).Scale(), 0.6445884041, 6e-11);
}

TEST(RelativeDiameters, HasAMeanSquareOfOne) {
    for (const Wood wood : {Wood::Softwood, Wood::Hardwood}) {
        for (const bool planted : {false, true}) {
            const SampleTrees trees = RelativeDiameters::Of(wood, planted).TreesAbove(0.0);
            double meanSquare = 0.0;
            for (std::size_t i = 0; i < kTrees; ++i)
                meanSquare += kTreeShares[i] * std::pow(trees.relativeDiameter[i], 2);
            EXPECT_NEAR(meanSquare, 1.0, 1e-12);
        }
    }
}

// The quadrature is exact for polynomials: of the exponential distribution the n-th moment is n!.
TEST(RelativeDiameters, HasTheNodesAndWeightsOfGaussAndLaguerre) {
    EXPECT_NEAR(std::accumulate(kTreeShares.begin(), kTreeShares.end(), 0.0), 1.0, 1e-12);
    const RelativeDiameters exponential(1.0, 0.0);  // its x is proportional to z
    const SampleTrees trees = exponential.TreesAbove(0.0);
    double factorial = 1.0;
    for (int power = 1; power <= 15; ++power) {
        factorial *= power;
        double moment = 0.0;
        for (std::size_t i = 0; i < kTrees; ++i)
            moment +=
                kTreeShares[i] * std::pow(trees.relativeDiameter[i] / exponential.Scale(), power);
        EXPECT_NEAR(moment / factorial, 1.0, 1e-10) << power;
    }
}

TEST(RelativeDiameters, CutsNothingBelowItsSmallestTree) {
    const RelativeDiameters& natural = RelativeDiameters::Of(Wood::Softwood, false);
    EXPECT_EQ(natural.Cut(0.0), 0.0);
    EXPECT_EQ(natural.Cut(0.30), 0.0);
    EXPECT_GT(natural.Cut(0.31), 0.0);
    EXPECT_EQ(RelativeDiameters::Of(Wood::Softwood, true).Cut(0.40), 0.0);
    EXPECT_EQ(RelativeDiameters::Of(Wood::Hardwood, false).Cut(0.25), 0.0);
}

TEST(RelativeDiameters, CutsByTheWeibullLaw) {
    EXPECT_NEAR(RelativeDiameters::Of(Wood::Softwood, false).Cut(0.30 + 0.7327674476), 1.0, 1e-8);
    EXPECT_NEAR(RelativeDiameters::Of(Wood::Hardwood, false).Cut(0.25 + 2 * 0.7708253136), 4.0,
                1e-8);
    EXPECT_NEAR(RelativeDiameters::Of(Wood::Softwood, true).Cut(0.40 + 2 * 0.6445884041), 8.0,
                1e-8);
}

TEST(RelativeDiameters, StandsForTreesAboveTheCutOnly) {
    const RelativeDiameters& natural = RelativeDiameters::Of(Wood::Softwood, false);
    const double x = 1.2;
    const SampleTrees trees = natural.TreesAbove(natural.Cut(x));
    double last = x;
    for (const double tree : trees.relativeDiameter) {
        EXPECT_GT(tree, last);
        last = tree;
    }
    EXPECT_NEAR(trees.relativeDiameter[0],
                0.30 + 0.7327674476 * std::pow(natural.Cut(x) + 0.170279632305101, 1 / 2.2), 1e-9);
}

TEST(HeightShare, Is92PercentForTheMeanTreeAndAllAtOnePointSix) {
    EXPECT_NEAR(HeightShare(1.0), (1 - std::pow(kE, -2.25)) / (1 - std::pow(kE, -3.6)), 1e-12);
    EXPECT_NEAR(HeightShare(1.0), 0.92, 0.001);
    EXPECT_NEAR(HeightShare(1.6), 1.0, 1e-12);
    EXPECT_NEAR(1.3 + 18.7 * HeightShare(0.5), 14.2837636137, 1e-9);
    EXPECT_EQ(HeightShare(0.0), 0.0);
}

}  // namespace
}  // namespace growth
