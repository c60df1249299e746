// The species table: which species there are, and spot values of every row's equations, worked out
// apart from the program.
#include "models/species.h"

#include "models/density.h"
#include "models/height.h"
#include "models/site.h"
#include "models/tree_volume.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <set>
#include <string>

namespace growth {
namespace {

// One species on the site of its class 2: the curve's constants and heights at 25 and 100 years of
// breast-height age, years to breast height; the full stand of 15 m; then a tree of 20 cm and 16 m
// (volume, share up to 7.6 cm) and one of 30 cm and 18 m (share up to 20 cm), with a stump of 0.15
// m.
struct SpotValues {
    const char* code;
    double fullStocking, exponent, ageAtBreastHeight, height25, height100, yearsToBreastHeight;
    double diameter, lineStems, volume, share8, share20;
};

constexpr SpotValues kSpots[] = {
    {"WP", 1.007000, 3.32019, 20.81051, 6.04436, 13.72851, 13.10000, 13.8978, 3464.944, 0.2267418,
     0.9225328, 0.7135291},
    {"RP", 1.130000, 1.87760, 11.29329, 6.39290, 13.34990, 13.10000, 13.5855, 3849.669, 0.2314845,
     0.9384412, 0.7323478},
    {"BS", 0.776000, 1.59447, 0.00000, 5.28932, 16.74035, 13.10000, 13.1170, 2769.143, 0.2179978,
     0.9228886, 0.7398423},
    {"RS", 0.802000, 1.23687, 0.00000, 6.09704, 14.80472, 13.10000, 14.2101, 2547.097, 0.2388415,
     0.9329233, 0.7607200},
    {"WS", 0.823000, 1.95431, 0.00000, 4.85246, 17.26701, 13.10000, 15.1471, 1920.925, 0.2172247,
     0.9098457, 0.7084557},
    {"NS", 1.216000, 2.84423, 19.19069, 5.95522, 14.24083, 13.10000, 14.0540, 3200.763, 0.2172247,
     0.9098457, 0.7084557},
    {"BF", 0.521000, 1.47243, 0.00000, 5.31405, 17.41221, 13.10000, 14.3663, 2104.658, 0.2197074,
     0.9115909, 0.7492238},
    {"EH", 0.720000, 1.40466, 9.25650, 6.12632, 14.98071, 13.10000, 17.4894, 1651.542, 0.2225816,
     0.9232811, 0.7271321},
    {"RO", 0.669000, 1.53889, 7.54954, 8.04180, 18.22565, 3.30000, 13.7417, 1834.483, 0.2188056,
     0.8769991, 0.7010383},
    {"RM", 0.642000, 1.09125, 4.47326, 8.45785, 20.65825, 3.10000, 12.8047, 2005.062, 0.2073383,
     0.8769991, 0.7010383},
    {"SM", 0.800000, 1.36285, 6.67812, 7.94453, 19.03906, 3.30000, 13.1170, 2118.252, 0.2073383,
     0.8769991, 0.7010383},
    {"YB", 0.785000, 1.40704, 6.75620, 8.04252, 18.53496, 3.30000, 14.0540, 1850.627, 0.2155547,
     0.8305018, 0.6589744},
    {"WB", 0.572000, 1.02404, 3.60048, 8.83894, 19.46057, 3.10000, 13.4294, 1831.867, 0.2176165,
     0.8523796, 0.6641551},
    {"AB", 0.647000, 1.29063, 7.04137, 7.54987, 21.17047, 3.30000, 12.9609, 1713.434, 0.2362505,
     0.8769991, 0.7010383},
    {"LA", 0.790000, 2.02872, 10.54917, 7.35459, 14.78101, 3.70000, 13.1170, 2931.866, 0.2168440,
     0.9242790, 0.7402913},
    {"TA", 0.762000, 2.11269, 11.83604, 7.11377, 15.39122, 3.70000, 12.1801, 3442.401, 0.2168440,
     0.9242790, 0.7402913},
    {"WA", 0.786000, 1.62747, 7.82872, 8.14698, 17.70755, 3.30000, 12.8047, 2378.995, 0.2073383,
     0.8769991, 0.7010383},
};

class SpeciesSpots : public ::testing::TestWithParam<SpotValues> {
protected:
    const SpotValues& spot = GetParam();
    const Species& species = Found();

private:
    static const Species& Found() {
        const Species* soft = FindSpecies(Wood::Softwood, GetParam().code);
        return soft != nullptr ? *soft : *FindSpecies(Wood::Hardwood, GetParam().code);
    }
};

TEST_P(SpeciesSpots, HeightCurve) {
    const double siteIndex = ClassSiteIndex(species.siteGroup, 2);
    const HeightCurve curve(species.height, siteIndex);
    EXPECT_NEAR(curve.Exponent(), spot.exponent, 6e-6);
    EXPECT_NEAR(curve.AgeAtBreastHeight(), spot.ageAtBreastHeight, 6e-6);
    EXPECT_NEAR(curve.At(25), spot.height25, 6e-6);
    EXPECT_NEAR(curve.At(100), spot.height100, 6e-6);
    EXPECT_NEAR(YearsToBreastHeight(species.wood, siteIndex, false), spot.yearsToBreastHeight,
                1e-9);
}

TEST_P(SpeciesSpots, FullStand) {
    const double k = FullStocking(species, ClassSiteIndex(species.siteGroup, 2));
    EXPECT_NEAR(k, spot.fullStocking, 1e-12);
    const FullStand full = DensityLaw(species.density, k).At(15.0);
    EXPECT_NEAR(full.diameter, spot.diameter, 6e-5);
    EXPECT_NEAR(full.lineStems, spot.lineStems, 6e-4);
}

TEST_P(SpeciesSpots, TreeVolume) {
    const TreeVolume volume(species.volume);
    EXPECT_NEAR(volume.Total(20, 16), spot.volume, 6e-8);
    EXPECT_NEAR(volume.LogShare(20, 16, {7.6, 0.15}), spot.share8, 6e-8);
    EXPECT_NEAR(volume.LogShare(30, 18, {20, 0.15}), spot.share20, 6e-8);
}

INSTANTIATE_TEST_SUITE_P(All, SpeciesSpots, ::testing::ValuesIn(kSpots),
                         [](const auto& test) { return std::string(test.param.code); });

TEST(SpeciesTable, HoldsEightSoftwoodsAndNineHardwoods) {
    std::set<std::string_view> soft;
    std::set<std::string_view> hard;
    for (const Species& species : AllSpecies())
        (species.wood == Wood::Softwood ? soft : hard).insert(species.code);
    EXPECT_EQ(soft, (std::set<std::string_view>{"WP", "RP", "BS", "RS", "WS", "NS", "BF", "EH"}));
    EXPECT_EQ(hard,
              (std::set<std::string_view>{"RO", "RM", "SM", "YB", "WB", "AB", "LA", "TA", "WA"}));
    EXPECT_EQ(AllSpecies().size(), 17U);
}

TEST(SpeciesTable, StartsNaturalStandsWithTenOrTwelveThousandStems) {
    const std::set<std::string_view> twelve = {"BS", "RS", "WS", "NS", "BF", "EH", "LA", "TA"};
    for (const Species& species : AllSpecies())
        EXPECT_EQ(species.density.naturalStart, twelve.contains(species.code) ? 12000 : 10000)
            << species.code;
}

TEST(SpeciesTable, HasAFullStockingFactorForEachClassAndNoMore) {
    for (const Species& species : AllSpecies()) {
        const std::size_t classes = SiteClasses(species.siteGroup).size();
        for (std::size_t i = 0; i < kMostClasses; ++i)
            EXPECT_EQ(species.fullStocking[i] > 0.0, i < classes) << species.code << ' ' << i + 1;
    }
}

TEST(FindSpecies, KnowsOnlyTheSpeciesOfItsWood) {
    EXPECT_NE(FindSpecies(Wood::Softwood, "BF"), nullptr);
    EXPECT_EQ(FindSpecies(Wood::Hardwood, "BF"), nullptr);
    EXPECT_EQ(FindSpecies(Wood::Softwood, "SM"), nullptr);
    EXPECT_EQ(FindSpecies(Wood::Softwood, ""), nullptr);
    EXPECT_EQ(FindSpecies(Wood::Softwood, "bf"), nullptr);
}

}  // namespace
}  // namespace growth
