// Site classes, full-stocking factors and years to breast height.
#include "models/site.h"

#include <gtest/gtest.h>
#include <vector>

namespace growth {
namespace {

const Species& Soft(const char* code) {
    return *FindSpecies(Wood::Softwood, code);
}
const Species& Hard(const char* code) {
    return *FindSpecies(Wood::Hardwood, code);
}

TEST(SiteClasses, AreThoseOfTheApplication) {
    const auto listed = [](SiteGroup group) {
        const auto classes = SiteClasses(group);
        return std::vector<double>(classes.begin(), classes.end());
    };
    EXPECT_EQ(listed(SiteGroup::S),
              (std::vector<double>{8.29, 10.14, 11.85, 13.6, 15.38, 17.06, 18.65, 20.41, 22.04,
                                   23.57, 25.16, 26.64, 28.06}));
    EXPECT_EQ(listed(SiteGroup::T), (std::vector<double>{9.3, 13.2, 17.2, 21.8, 28.3}));
    EXPECT_EQ(listed(SiteGroup::A), (std::vector<double>{8.6, 11.6, 14.6, 17.5, 20.5, 23.8}));
    EXPECT_EQ(listed(SiteGroup::B), (std::vector<double>{9.5, 13.9, 18.8, 25.9}));
}

TEST(ClassSiteIndex, TakesTheClassOfTheGroup) {
    EXPECT_EQ(ClassSiteIndex(SiteGroup::S, 1), 8.29);
    EXPECT_EQ(ClassSiteIndex(SiteGroup::S, 13), 28.06);
    EXPECT_EQ(ClassSiteIndex(SiteGroup::T, 3), 17.2);
    EXPECT_EQ(ClassSiteIndex(SiteGroup::A, 6), 23.8);
    EXPECT_EQ(ClassSiteIndex(SiteGroup::B, 4), 25.9);
}

TEST(ClassSiteIndex, GoesOnWithTheLastStep) {
    EXPECT_NEAR(ClassSiteIndex(SiteGroup::S, 15), 30.90, 1e-9);
    EXPECT_NEAR(ClassSiteIndex(SiteGroup::T, 7), 41.3, 1e-9);
    EXPECT_NEAR(ClassSiteIndex(SiteGroup::A, 8), 30.4, 1e-9);
    EXPECT_NEAR(ClassSiteIndex(SiteGroup::B, 6), 40.1, 1e-9);
    EXPECT_GT(ClassSiteIndex(SiteGroup::B, 1e9), 1e9);
}

TEST(SpeciesSites, BelongToTheirGroups) {
    for (const Species& species : AllSpecies()) {
        if (species.wood == Wood::Softwood) {
            EXPECT_EQ(species.siteGroup, SiteGroup::S) << species.code;
        }
    }
    for (const char* code : {"RO", "SM", "YB", "AB", "WA"})
        EXPECT_EQ(Hard(code).siteGroup, SiteGroup::T);
    for (const char* code : {"LA", "TA"}) EXPECT_EQ(Hard(code).siteGroup, SiteGroup::A);
    for (const char* code : {"RM", "WB"}) EXPECT_EQ(Hard(code).siteGroup, SiteGroup::B);
}

TEST(FullStocking, IsTheTableValueAtEachClass) {
    for (const Species& species : AllSpecies()) {
        const auto classes = SiteClasses(species.siteGroup);
        for (std::size_t i = 0; i < classes.size(); ++i)
            EXPECT_NEAR(FullStocking(species, classes[i]), species.fullStocking[i], 1e-12);
    }
}

TEST(FullStocking, IsLinearBetweenClassesAndConstantOutside) {
    EXPECT_NEAR(FullStocking(Soft("RS"), 11.0), 0.840725146, 1e-9);
    EXPECT_NEAR(FullStocking(Hard("TA"), 11.0), 0.815, 1e-9);
    EXPECT_EQ(FullStocking(Soft("RS"), 2.0), 0.656);
    EXPECT_EQ(FullStocking(Soft("RS"), 40.0), 1.028);
    EXPECT_EQ(FullStocking(Hard("RM"), 40.0), 0.486);
}

// Site indexes at which a hundredth of a year more or less would be rounded to another decimal.
TEST(YearsToBreastHeight, FollowsTheLineOfTheWoodRoundedToOneDecimal) {
    const auto years = [](Wood wood, double siteIndex) {
        return YearsToBreastHeight(wood, siteIndex, false);
    };
    EXPECT_DOUBLE_EQ(years(Wood::Softwood, 4.0), 29.9);   // 29.850
    EXPECT_DOUBLE_EQ(years(Wood::Softwood, 15.0), 9.5);   // 9.544
    EXPECT_DOUBLE_EQ(years(Wood::Softwood, 30.0), 5.9);   // 5.852
    EXPECT_DOUBLE_EQ(years(Wood::Softwood, 17.06), 8.7);  // 8.652
    EXPECT_DOUBLE_EQ(years(Wood::Hardwood, 5.0), 8.0);    // 8.042
    EXPECT_DOUBLE_EQ(years(Wood::Hardwood, 8.0), 5.2);    // 5.150
    EXPECT_DOUBLE_EQ(years(Wood::Hardwood, 16.0), 2.7);   // 2.740
    EXPECT_DOUBLE_EQ(years(Wood::Hardwood, 20.0), 2.3);   // 2.258
}

TEST(YearsToBreastHeight, IsAQuarterShorterForPlantedStands) {
    const auto years = [](Wood wood, double siteIndex) {
        return YearsToBreastHeight(wood, siteIndex, true);
    };
    EXPECT_DOUBLE_EQ(years(Wood::Softwood, 12.0), 8.5);  // 8.5425
    EXPECT_DOUBLE_EQ(years(Wood::Softwood, 18.0), 6.2);  // 6.235
    EXPECT_DOUBLE_EQ(years(Wood::Softwood, 14.0), 7.6);  // 7.5536
    EXPECT_DOUBLE_EQ(years(Wood::Hardwood, 17.0), 1.9);  // 1.9487
    EXPECT_DOUBLE_EQ(years(Wood::Hardwood, 16.0), 2.1);  // 2.055
}

}  // namespace
}  // namespace growth
