// The classes that a species is offered, and the site index behind each.
#include "run_definition/land_capability.h"

#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace arbolith {
namespace {

struct SiteIndexTable {
    std::vector<std::string> species;
    int firstClass;
    std::vector<double> feet;
    std::vector<double> metres;
};

const std::vector<SiteIndexTable>& SiteIndexTables() {
    static const std::vector<SiteIndexTable> tables = {
        {{"American Beech", "Red Oak", "White Ash", "Yellow Birch", "Sugar Maple"},
         1,
         {30.5, 43.3, 56.4, 71.5, 92.8},
         {9.3, 13.2, 17.2, 21.8, 28.3}},
        {{"Trembling Aspen", "Largetooth Aspen"},
         1,
         {28.2, 38.1, 47.9, 57.4, 67.3, 78.1},
         {8.6, 11.6, 14.6, 17.5, 20.5, 23.8}},
        {{"White Birch", "Red Maple"}, 1, {31.2, 45.6, 61.7, 85}, {9.5, 13.9, 18.8, 25.9}},
        {{"White Pine", "Red Pine", "Black Spruce", "Red Spruce", "White Spruce", "Norway Spruce",
          "Balsam Fir", "E. Hemlock"},
         0,
         {12, 27.19, 33.28, 38.98, 44.61, 50.45, 55.97, 61.19, 66.95, 72.3, 77.34, 82.53, 87.4,
          92.06},
         {3.66, 8.29, 10.14, 11.85, 13.6, 15.38, 17.06, 18.65, 20.41, 22.04, 23.57, 25.16, 26.64,
          28.06}},
    };
    return tables;
}

TEST(SiteIndexFromLc, GivesEveryRowOfEverySpeciesInBothUnits) {
    for (const auto& table : SiteIndexTables())
        for (const auto& species : table.species)
            for (std::size_t row = 0; row < table.feet.size(); ++row) {
                const int landCapability = table.firstClass + static_cast<int>(row);
                SCOPED_TRACE(species + " class " + std::to_string(landCapability));
                EXPECT_DOUBLE_EQ(SiteIndexFromLc(species, landCapability, false), table.feet[row]);
                EXPECT_DOUBLE_EQ(SiteIndexFromLc(species, landCapability, true), table.metres[row]);
            }
}

TEST(SiteIndexFromLc, IsZeroOutsideTheTable) {
    for (const auto& table : SiteIndexTables())
        for (const auto& species : table.species)
            for (const int landCapability :
                 {-1, table.firstClass - 1, table.firstClass + static_cast<int>(table.feet.size())})
                for (const bool metric : {false, true})
                    EXPECT_EQ(SiteIndexFromLc(species, landCapability, metric), 0)
                        << species << " class " << landCapability;
}

TEST(SiteIndexFromLc, TakesTheSoftwoodTableForAnyOtherText) {
    EXPECT_DOUBLE_EQ(SiteIndexFromLc("", 1, true), 8.29);
    EXPECT_DOUBLE_EQ(SiteIndexFromLc("red maple", 13, false), 92.06);
}

TEST(LandCapabilityClasses, AreThirteenForSoftwoodAndFiveForHardwood) {
    EXPECT_EQ(LandCapabilityClasses("Softwood"), 13);
    EXPECT_EQ(LandCapabilityClasses("Hardwood"), 5);
}

TEST(LandCapabilityClasses, DependOnTheHardwoodSpecies) {
    for (const char* species : {"White Birch", "Red Maple"})
        EXPECT_EQ(LandCapabilityClassesOf(species), 3) << species;
    for (const char* species : {"Trembling Aspen", "Largetooth Aspen"})
        EXPECT_EQ(LandCapabilityClassesOf(species), 5) << species;
    for (const char* species :
         {"Red Oak", "Sugar Maple", "Yellow Birch", "American Beech", "White Ash", ""})
        EXPECT_EQ(LandCapabilityClassesOf(species), 4) << species;
}

}  // namespace
}  // namespace arbolith
