// Phases of a stand's density, and what thinnings leave.
#include "models/stocking.h"

#include <cmath>
#include <gtest/gtest.h>

namespace growth {
namespace {

FullStand FirAt(double height) {
    const Species& species = *FindSpecies(Wood::Softwood, "BF");
    return DensityLaw(species.density, species.fullStocking[6]).At(height);
}

TEST(Stocking, FollowsItsStartWhileUnthinned) {
    const FullStand full = FirAt(14.0);
    const StemsAndDiameter now = Stocking(2500).At(full, 40);
    EXPECT_DOUBLE_EQ(now.stems, full.StemsLeft(2500));
    EXPECT_DOUBLE_EQ(now.diameter, full.DiameterFor(now.stems));
}

TEST(Stocking, HoldsExactlyWhatACommercialThinningLeft) {
    const FullStand full = FirAt(14.0);
    Stocking stocking(12000);
    const StemsAndDiameter before = stocking.At(full, 40);
    const StemsAndDiameter after = Reduced(0.3, before);
    stocking.Thin(full, 40, before, after);
    const StemsAndDiameter now = stocking.At(full, 40);
    EXPECT_NEAR(now.stems, 0.7 * before.stems, 1e-6);
    EXPECT_NEAR(now.diameter, before.diameter, 1e-9);
}

TEST(Stocking, HoldsExactlyWhatASpacingLeft) {
    const FullStand full = FirAt(6.0);
    Stocking stocking(12000);
    const StemsAndDiameter before = stocking.At(full, 20);
    const StemsAndDiameter after = SpacedTo(2.0, before);
    stocking.Thin(full, 20, before, after);
    const StemsAndDiameter now = stocking.At(full, 20);
    EXPECT_NEAR(now.stems, 2500.0, 1e-6);
    EXPECT_NEAR(now.diameter, after.diameter, 1e-9);
}

TEST(Stocking, GoesTheWayToTheNewDiameterIn12Years) {
    const FullStand full = FirAt(14.0);
    Stocking stocking(12000);
    const StemsAndDiameter before = stocking.At(full, 40);
    const StemsAndDiameter after = Reduced(0.5, before);
    stocking.Thin(full, 40, before, after);
    const double target = full.DiameterFor(after.stems);
    const double way =
        (stocking.At(full, 52).diameter - before.diameter) / (target - before.diameter);
    EXPECT_NEAR(way, 1.0 - std::exp(-1.0), 1e-9);
    EXPECT_NEAR(stocking.At(full, 400).diameter, target, 1e-6 * target);
}

TEST(Stocking, StartsAtTheNewDiameterWhenThatIsNotLarger) {
    const FullStand full = FirAt(14.0);
    Stocking stocking(12000);
    const StemsAndDiameter before{1000.0, 30.0};  // larger than a stand of 900 stems tends to
    stocking.Thin(full, 40, before, {900.0, 30.0});
    EXPECT_DOUBLE_EQ(stocking.At(full, 40).diameter,
                     full.DiameterFor(full.StemsLeft(full.StartFor(900.0))));
}

TEST(Stocking, PassesThroughEveryPhaseInOrder) {
    const FullStand full = FirAt(14.0);
    Stocking stocking(12000);
    const StemsAndDiameter first = stocking.At(full, 40);
    stocking.Thin(full, 40, first, Reduced(0.3, first));
    const StemsAndDiameter second = stocking.At(full, 46);
    stocking.Thin(full, 46, second, Reduced(0.2, second));
    const StemsAndDiameter now = stocking.At(full, 58);
    const double afterFirst =
        first.diameter +
        (1 - std::exp(-18.0 / 12)) * (full.DiameterFor(0.7 * first.stems) - first.diameter);
    const double afterSecond =
        afterFirst + (1 - std::exp(-1.0)) * (full.DiameterFor(0.56 * first.stems) - afterFirst);
    EXPECT_NEAR(now.stems, 0.56 * first.stems, 1e-6);
    EXPECT_NEAR(now.diameter, afterSecond, 1e-6);
}

TEST(SpacedTo, LeavesASquareForEachStemAndTheBetterTrees) {
    const StemsAndDiameter left = SpacedTo(2.0, {10000.0, 5.0});
    EXPECT_DOUBLE_EQ(left.stems, 2500.0);
    EXPECT_NEAR(left.diameter, 5.0 * 1.148698355, 1e-8);  // 4^0.10
}

TEST(SpacedTo, ChangesNothingInAStandThatIsWideEnough) {
    const StemsAndDiameter left = SpacedTo(2.0, {2500.0, 9.0});
    EXPECT_EQ(left.stems, 2500.0);
    EXPECT_EQ(left.diameter, 9.0);
}

TEST(SpacedTo, LimitsTheSpacing) {
    EXPECT_NEAR(SpacedTo(1000.0, {2500.0, 9.0}).stems, 10000.0 / 900.0, 1e-9);
    EXPECT_NEAR(SpacedTo(0.001, {2e6, 1.0}).stems, 1e6, 1e-6);
}

}  // namespace
}  // namespace growth
