// What the pages draw comes from the growth models, and agrees with the program's tables.
#include "generator/growth.h"

#include "generator/template.h"
#include "run_definition/land_capability.h"

#include <gtest/gtest.h>

namespace arbolith::help {
namespace {

TEST(GrowthTest, TheCurveOfAClassPassesItsSiteIndexAtFifty) {
    for (const char* word : {"softwood", "hardwood"}) {
        const auto wood = WoodNamed(word);
        for (const auto& species : wood.species)
            for (int lc = 1; lc <= species.classes; ++lc)
                EXPECT_NEAR(DominantHeight(wood, species, lc, 50),
                            SiteIndexFromLc(species.name, lc, true), 0.005)
                    << species.name << " " << lc;
    }
}

TEST(GrowthTest, ABetterClassIsTallerAtEveryAge) {
    const auto wood = WoodNamed("softwood");
    for (const auto& species : wood.species)
        for (int lc = 2; lc <= species.classes; ++lc)
            for (int age = 10; age <= 120; age += 10)
                EXPECT_GT(DominantHeight(wood, species, lc, age),
                          DominantHeight(wood, species, lc - 1, age))
                    << species.name << " " << lc << " " << age;
}

TEST(GrowthTest, APlantationGrowsToItsLastAge) {
    const auto ages = GrowPlantation("NS", 9);
    ASSERT_FALSE(ages.empty());
    EXPECT_EQ(ages.front().age, 5);
    EXPECT_EQ(ages.back().age, 80);
    EXPECT_GT(ages.back().merchantable, ages[7].merchantable);
    EXPECT_NEAR(ages.back().increment * 80, ages.back().merchantable, 0.01);
    EXPECT_THROW(GrowPlantation("SM", 3), BadPage);
}

TEST(GrowthTest, NorwaySpruceIsComparedFourClassesUp) {
    const auto plantations = ComparedPlantations();
    ASSERT_EQ(plantations.size(), 2U);
    EXPECT_EQ(plantations[0].code, "NS");
    EXPECT_EQ(plantations[0].landClass, plantations[1].landClass + 4);
}

}  // namespace
}  // namespace arbolith::help
