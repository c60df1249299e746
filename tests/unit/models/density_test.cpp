// Density of full stands and of others at the same height.
#include "models/density.h"

#include <cmath>
#include <gtest/gtest.h>

namespace growth {
namespace {

FullStand RedSpruce(double height) {
    const Species& species = *FindSpecies(Wood::Softwood, "RS");
    return DensityLaw(species.density, species.fullStocking[5]).At(height);
}

TEST(DensityLaw, HasTheWorkedValues) {
    const FullStand full = RedSpruce(17.36989);
    EXPECT_NEAR(full.diameter, 16.80177, 6e-6);
    EXPECT_NEAR(full.lineStems, 2310.643, 2e-3);
    EXPECT_NEAR(full.naturalStems, 2305.170, 2e-3);
    EXPECT_NEAR(full.lineInverseCube * std::pow(full.lineStems, 3), 1.0, 1e-12);
}

TEST(DensityLaw, HasTheIndexStemsWhereTheDiameterIsTenInches) {
    const Species& species = *FindSpecies(Wood::Softwood, "WS");
    const DensityLaw law(species.density, 1.0);
    const double height = 1.3 + std::pow(25.4 / 0.97, 1.0 / 1.05);
    EXPECT_NEAR(law.At(height).diameter, 25.4, 1e-9);
    EXPECT_NEAR(law.At(height).lineStems, 412 / 0.40468564224, 1e-6);
    EXPECT_NEAR(DensityLaw(species.density, 0.5).At(height).lineStems, 206 / 0.40468564224, 1e-6);
}

TEST(DensityLaw, ThinsItselfWithReinekesExponent) {
    const FullStand low = RedSpruce(12.0);
    const FullStand high = RedSpruce(20.0);
    EXPECT_NEAR(std::log(low.lineStems / high.lineStems) / std::log(high.diameter / low.diameter),
                1.605, 1e-9);
}

TEST(StemsLeft, IsASmoothMinimumOfStartAndLine) {
    const FullStand full = RedSpruce(17.0);
    EXPECT_NEAR(full.StemsLeft(full.lineStems), full.lineStems / std::cbrt(2.0), 1e-6);
    EXPECT_NEAR(full.StemsLeft(1.0), 1.0, 1e-9);
    EXPECT_LT(full.StemsLeft(1e5), full.lineStems);
    EXPECT_GT(full.StemsLeft(1e5), 0.9999 * full.lineStems);
}

TEST(StartFor, IsTheInverseOfStemsLeft) {
    const FullStand full = RedSpruce(17.0);
    for (const double stems : {1.0, 300.0, 1500.0, 0.99 * full.lineStems})
        EXPECT_NEAR(full.StemsLeft(full.StartFor(stems)), stems, 1e-6 * stems);
}

TEST(StartFor, StaysFiniteOnAndAboveTheLine) {
    const FullStand full = RedSpruce(17.0);
    EXPECT_NEAR(full.StartFor(full.lineStems), 1e10, 1.0);
    EXPECT_NEAR(full.StartFor(2.0 * full.lineStems), 1e10, 1.0);
}

TEST(DiameterFor, GrowsWithTheRoomThatAStemHas) {
    const FullStand full = RedSpruce(17.0);
    EXPECT_DOUBLE_EQ(full.DiameterFor(full.naturalStems), full.diameter);
    EXPECT_NEAR(full.DiameterFor(full.naturalStems / 2.0), full.diameter * 1.25701337, 1e-6);
    EXPECT_NEAR(full.DiameterFor(full.naturalStems * 2.0), full.diameter / 1.25701337, 1e-6);
}

TEST(DiameterFor, LiesWithin70And220PercentOfTheNaturalStands) {
    const FullStand full = RedSpruce(17.0);
    EXPECT_DOUBLE_EQ(full.DiameterFor(1.0), 2.20 * full.diameter);
    EXPECT_DOUBLE_EQ(full.DiameterFor(1e9), 0.70 * full.diameter);
}

}  // namespace
}  // namespace growth
