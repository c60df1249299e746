// Volume of single trees.
#include "models/tree_volume.h"

#include <gtest/gtest.h>

namespace growth {
namespace {

const VolumeShape& Shape(const char* code) {
    const Species* soft = FindSpecies(Wood::Softwood, code);
    return (soft != nullptr ? soft : FindSpecies(Wood::Hardwood, code))->volume;
}

TEST(TreeVolume, HasTheWorkedValues) {
    const TreeVolume fir(Shape("BF"));
    EXPECT_NEAR(fir.Total(20, 16), 0.21971, 6e-6);
    EXPECT_NEAR(fir.LogShare(20, 16, {7.6, 0.15}), 0.91159, 6e-6);
    EXPECT_NEAR(fir.LogShare(20, 16, {10.0, 0.15}), 0.87182, 6e-6);
}

TEST(TreeVolume, RisesWithTheSquareOfTheDiameter) {
    const TreeVolume maple(Shape("SM"));
    EXPECT_NEAR(maple.Total(30, 18), 9.0 * maple.Total(10, 18), 1e-12);
}

TEST(LogShare, FallsWithALargerTopAndAHigherStump) {
    const TreeVolume pine(Shape("WP"));
    const double share = pine.LogShare(25, 18, {7.6, 0.15});
    EXPECT_LT(pine.LogShare(25, 18, {10.0, 0.15}), share);
    EXPECT_LT(pine.LogShare(25, 18, {7.6, 0.30}), share);
}

TEST(LogShare, IsLimitedToZeroAndOne) {
    const TreeVolume pine(Shape("WP"));
    EXPECT_EQ(pine.LogShare(5, 6, {20.0, 0.15}), 0.0);
    VolumeShape swollen = Shape("WP");
    swollen.r1 = 1.5;
    EXPECT_EQ(TreeVolume(swollen).LogShare(40, 25, {7.6, 0.15}), 1.0);
}

TEST(TreeVolume, SubstitutesSpeciesThatTheSourceLacks) {
    const auto same = [](const char* one, const char* other) {
        const TreeVolume a(Shape(one));
        const TreeVolume b(Shape(other));
        return a.Total(22, 17) == b.Total(22, 17) &&
               a.LogShare(22, 17, {9, 0.15}) == b.LogShare(22, 17, {9, 0.15});
    };
    EXPECT_TRUE(same("NS", "WS"));
    EXPECT_TRUE(same("LA", "TA"));
    EXPECT_TRUE(same("WA", "SM"));
    EXPECT_TRUE(same("RM", "SM"));
    EXPECT_FALSE(same("RO", "SM"));
}

TEST(BoardFeet, FollowTheInternationalRuleForSoftwood) {
    EXPECT_NEAR(BoardFeetPerCubicFoot(Wood::Softwood, 20), 4.1568, 6e-5);
    EXPECT_NEAR(BoardFeetPerCubicFoot(Wood::Softwood, 40), 6.3716, 6e-5);
}

TEST(BoardFeet, TakeALogTopOfAtLeastFourInches) {
    EXPECT_NEAR(BoardFeetPerCubicFoot(Wood::Softwood, 10), 2.75441434, 1e-8);
    EXPECT_EQ(BoardFeetPerCubicFoot(Wood::Softwood, 14.5),
              BoardFeetPerCubicFoot(Wood::Softwood, 10));
    EXPECT_GT(BoardFeetPerCubicFoot(Wood::Softwood, 14.6),
              BoardFeetPerCubicFoot(Wood::Softwood, 10));
}

TEST(BoardFeet, AreSixPerCubicFootOfHardwood) {
    EXPECT_EQ(BoardFeetPerCubicFoot(Wood::Hardwood, 26), 6.0);
    EXPECT_EQ(BoardFeetPerCubicFoot(Wood::Hardwood, 60), 6.0);
}

}  // namespace
}  // namespace growth
