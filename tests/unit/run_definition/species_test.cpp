// The species tables and their lookup.
#include "run_definition/species.h"

#include <gtest/gtest.h>

namespace arbolith {
namespace {

using Texts = std::vector<std::string>;

SpeciesTables Loaded(const std::string& woodType, bool shortHardwoodList = false) {
    SpeciesTables tables;
    LoadSpeciesTables(tables, woodType, shortHardwoodList);
    return tables;
}

TEST(SpeciesTables, HoldTheSoftwoods) {
    const auto tables = Loaded("Softwood");
    EXPECT_EQ(tables.SpeciesNames,
              (Texts{"White Pine", "Red Pine", "Black Spruce", "Red Spruce", "White Spruce",
                     "Norway Spruce", "Balsam Fir", "E. Hemlock"}));
    EXPECT_EQ(tables.SpeciesCodes, (Texts{"WP", "RP", "BS", "RS", "WS", "NS", "BF", "EH"}));
}

TEST(SpeciesTables, HoldTheHardwoods) {
    const auto tables = Loaded("Hardwood");
    EXPECT_EQ(tables.SpeciesNames,
              (Texts{"Red Oak", "Red Maple", "Sugar Maple", "Yellow Birch", "White Birch",
                     "American Beech", "Largetooth Aspen", "Trembling Aspen", "White Ash"}));
    EXPECT_EQ(tables.SpeciesCodes, (Texts{"RO", "RM", "SM", "YB", "WB", "AB", "LA", "TA", "WA"}));
}

TEST(SpeciesTables, HoldSixHardwoodsInTheShortList) {
    const auto tables = Loaded("Hardwood", true);
    EXPECT_EQ(tables.SpeciesNames, (Texts{"Red Oak", "Red Maple", "Sugar Maple", "Yellow Birch",
                                          "White Birch", "American Beech"}));
    EXPECT_EQ(tables.SpeciesCodes, (Texts{"RO", "RM", "SM", "YB", "WB", "AB"}));
}

TEST(SpeciesTables, TheShortListLeavesTheSoftwoodsAlone) {
    EXPECT_EQ(Loaded("Softwood", true).SpeciesNames, Loaded("Softwood").SpeciesNames);
}

TEST(SpeciesTables, AnotherWordChangesNothing) {
    auto tables = Loaded("Hardwood");
    for (const char* word : {"", "softwood", "Conifer"}) {
        LoadSpeciesTables(tables, word, false);
        EXPECT_EQ(tables.SpeciesCodes, Loaded("Hardwood").SpeciesCodes) << word;
    }
}

TEST(Species, TurnsEveryNameIntoItsCodeAndBack) {
    for (const char* woodType : {"Softwood", "Hardwood"}) {
        const auto tables = Loaded(woodType);
        for (std::size_t i = 0; i < tables.SpeciesNames.size(); ++i) {
            EXPECT_EQ(tables.Species(tables.SpeciesNames[i]), tables.SpeciesCodes[i]);
            EXPECT_EQ(tables.Species(tables.SpeciesCodes[i]), tables.SpeciesNames[i]);
        }
    }
}

TEST(Species, DoesNotLookAtTheCase) {
    const auto tables = Loaded("Softwood");
    EXPECT_EQ(tables.Species("ws"), "White Spruce");
    EXPECT_EQ(tables.Species("white spruce"), "WS");
    EXPECT_EQ(tables.Species("e. HEMLOCK"), "EH");
}

TEST(Species, KnowsOnlyTheLoadedWoodType) {
    EXPECT_EQ(Loaded("Softwood").Species("RO"), "");
    EXPECT_EQ(Loaded("Softwood").Species("Red Oak"), "");
    EXPECT_EQ(Loaded("Hardwood").Species("WP"), "");
}

TEST(Species, IsEmptyForAnythingElse) {
    const auto tables = Loaded("Softwood");
    for (const char* text : {"", " WP", "WP ", "White", "XX"}) EXPECT_EQ(tables.Species(text), "");
}

TEST(Species, TheLastMatchWinsAndACodeBeatsAName) {
    const SpeciesTables tables{{"AA", "BB", "BB"}, {"C1", "AA", "C3"}};
    EXPECT_EQ(tables.Species("BB"), "C3");
    EXPECT_EQ(tables.Species("aa"), "BB");
}

}  // namespace
}  // namespace arbolith
