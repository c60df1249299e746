// The help texts, whole, for every case that has one of its own.
#include "run_definition/guidance.h"

#include "run_definition/apply_steps.h"
#include "unit/run_definition/run_testing.h"

#include <gtest/gtest.h>

namespace arbolith {
namespace {

constexpr const char* kSite =
    "Enter the Site Index or Land Capability (LC) based on the Softwood Land Capability curves "
    "found in the Halvorn Forestry Field Handbook (1993; pg1,2).";

class Guidance : public testing::Test {
protected:
    BareRun bare;
    RunDefinition& run = bare.run;
    MainForm& form = bare.form;

    std::string Step2() {
        GuideStep2(run);
        return form.Help2.Caption();
    }
    std::string Step4(const char* woodType, const char* units, const char* species) {
        bare.Choose(woodType, units);
        bare.SelectSpecies(species);
        form.choose_Land.SetValue(false);
        form.choose_Site.SetValue(true);
        GuideStep4(run);
        return form.Help4.Caption();
    }
    std::string Step6(bool byAge) {
        form.Step6_opt1.SetValue(byAge);
        form.Step6_opt2.SetValue(!byAge);
        GuideStep6(run);
        return form.Help6.Caption();
    }
    std::string Step7() {
        GuideStep7(run);
        return form.Help7.Caption();
    }
};

TEST_F(Guidance, Step2OfANaturalSoftwoodIsEmpty) {
    form.Help2.SetCaption("old");
    EXPECT_EQ(Step2(), "");
}

TEST_F(Guidance, Step2OfAHardwoodSaysThatThereAreNoPlantations) {
    bare.Choose("Hardwood", "Metric");
    EXPECT_EQ(Step2(), "Plantation option not enabled for hardwood model.");
}

TEST_F(Guidance, Step2OfAPlantationNamesTheSpacings) {
    bare.Plant("", "");
    EXPECT_EQ(Step2(),
              "Please enter X and Y dimension spacings of minimum lengths: 1.2 m x 1.2 m (6729/ha) "
              "and of maximum lengths: 3.0 m x 3.0 m (1077/ha).\nAs well, the ratio between the "
              "two dimensions must not exceed 2:1.");
    bare.Choose("Softwood", "Imperial");
    EXPECT_EQ(Step2(),
              "Please enter X and Y dimension spacings of minimum lengths: 4 ft x 4 ft (2723/ac) "
              "and of maximum lengths: 10 ft x 10 ft (436/ac).\nAs well, the ratio between the two "
              "dimensions must not exceed 2:1 for either dimension.");
}

TEST_F(Guidance, Step3TellsOfNorwaySpruceAndOffersALink) {
    bare.SelectSpecies("Norway Spruce");
    form.NSpruceHelp.SetVisible(false);
    GuideStep3(run);
    EXPECT_EQ(form.Help3.Caption(),
              "Select the species which is the most dominant in your stand.\nNorway Spruce will "
              "normally achieve four (4) LC classes higher than other (native) species.");
    EXPECT_TRUE(form.NSpruceHelp.Visible());
    bare.SelectSpecies("White Spruce");
    GuideStep3(run);
    EXPECT_EQ(form.Help3.Caption(), "Select the species which is the most dominant in your stand.");
    EXPECT_FALSE(form.NSpruceHelp.Visible());
}

TEST_F(Guidance, Step4StandsAloneForALandCapability) {
    GuideStep4(run);
    EXPECT_EQ(form.Help4.Caption(), kSite);
    bare.Choose("Hardwood", "Imperial");
    GuideStep4(run);
    EXPECT_EQ(form.Help4.Caption(), kSite);
}

TEST_F(Guidance, Step4OfASoftwoodDropsTheBaseTextForASiteIndex) {
    EXPECT_EQ(Step4("Softwood", "Metric", "White Pine"),
              "\nThe Site Index can range from 6 m to 30 m. This corresponds to Land Capabilities "
              "ranging from 1-13 cubic meters per hectare year.");
    EXPECT_EQ(Step4("Softwood", "Imperial", "White Pine"),
              "\nThe Site Index can range from 19.7 ft to 98.4 ft. This corresponds to Land "
              "Capabilities ranging from 1-13 cubic meters per hectare year.");
}

TEST_F(Guidance, Step4OfAHardwoodGoesByTheSpecies) {
    for (const char* species : {"White Birch", "Red Maple"}) {
        EXPECT_EQ(Step4("Hardwood", "Metric", species),
                  std::string(kSite) +
                      "\nThe Site Index can range from 8 m to 20 m. This corresponds to Land "
                      "Capabilities ranging from 1-3 cubic meters per hectare year.");
        EXPECT_EQ(Step4("Hardwood", "Imperial", species),
                  std::string(kSite) +
                      "\nThe Site Index can range from 26.2 ft to 65.6 ft. This corresponds to "
                      "Land Capabilities ranging from 1-3 cubic meters per hectare year.");
    }
    for (const char* species : {"Trembling Aspen", "Largetooth Aspen"}) {
        EXPECT_EQ(Step4("Hardwood", "Metric", species),
                  std::string(kSite) +
                      "\nThe Site Index can range from 8 m to 24 m. This corresponds to Land "
                      "Capabilities ranging from 1-5 cubic meters per hectare year.");
        EXPECT_EQ(Step4("Hardwood", "Imperial", species),
                  std::string(kSite) +
                      "\nThe Site Index can range from 26.2 ft to 78.7 ft. This corresponds to "
                      "Land Capabilities ranging from 1-5 cubic meters per hectare year.");
    }
    for (const char* species :
         {"Red Oak", "Sugar Maple", "Yellow Birch", "American Beech", "White Ash"}) {
        EXPECT_EQ(Step4("Hardwood", "Metric", species),
                  std::string(kSite) +
                      "\nThe Site Index can range from 8 m to 24 m. This corresponds to Land "
                      "Capabilities ranging from 1-4 cubic meters per hectare year.");
        EXPECT_EQ(Step4("Hardwood", "Imperial", species),
                  std::string(kSite) +
                      "\nThe Site Index can range from 26.2 ft to 78.7 ft. This corresponds to "
                      "Land Capabilities ranging from 1-4 cubic meters per hectare year.");
    }
}

TEST_F(Guidance, Step6OfASoftwoodGoesByTheKindOfRotation) {
    const std::string base =
        "Enter the length of the simulation as either the ending stump age (Rotation Age) or "
        "average diameter at breast height (Rotation DBH). \n";
    EXPECT_EQ(Step6(true), base + "Rotation Age: Minimum = 20 years, Maximum = 120 years");
    EXPECT_EQ(Step6(false), base + "Rotation DBH: Minimum = 10 cm, Maximum = 50 cm");
    form.choose_Metric.SetValue(false);
    EXPECT_EQ(Step6(false), base + "Rotation DBH: Minimum = 4 in, Maximum = 20 in");
}

TEST_F(Guidance, Step6OfAHardwoodKnowsTheAgeAlone) {
    form.Choose_Swd.SetValue(false);
    for (const bool byAge : {true, false})
        EXPECT_EQ(Step6(byAge),
                  "Enter the length of the simulation as a Rotation Age.\nRotation Age: Minimum = "
                  "20 years, Maximum = 120 years");
}

TEST_F(Guidance, Step7NamesTheLimitsOfTheUnitSystem) {
    run.SoftwoodT2Allowed = false;
    EXPECT_EQ(Step7(),
              "Enter the age or diameter at which a precommerical or commercial thinning is to be "
              "simulated.  Specify precommercial thinning (performed before stand is 9 m tall) in "
              "spacing.  Specified spacing must be between 1.2 m and 3.0 m for softwood and 1.8 m "
              "and 3.0 m for hardwood.  Specify commercial thinning (performed after stand "
              "averages 14 cm in diameter) as a percentage basal area reduction.  Basal area "
              "reductions must be between 10 and 60 percent.");
    bare.Choose("Softwood", "Imperial");
    EXPECT_EQ(Step7(),
              "Enter the age or diameter at which a precommerical or commercial thinning is to be "
              "simulated.  Specify precommercial thinning (performed before stand is 30 ft tall) "
              "in spacing.  Specified spacing must be between 4 ft and 10 ft for softwood and 6 "
              "and 10 ft for hardwood.  Specify commercial thinning (performed after stand "
              "averages 5.5 inches in diameter) as a percentage basal area reduction.  Basal area "
              "reductions must be between 10 and 60 percent.");
}

TEST_F(Guidance, Step7NotesASecondTreatmentWhereThereIsOne) {
    run.SoftwoodT2Allowed = false;
    const auto plain = Step7();
    const auto noted = plain + "\nNote: Treatment 2 can only be a commercial thinning.";
    run.SoftwoodT2Allowed = true;
    EXPECT_EQ(Step7(), noted);
    run.SoftwoodT2Allowed = false;
    form.Adv_Mode.SetChecked(true);
    EXPECT_EQ(Step7(), noted);
    form.Adv_Mode.SetChecked(false);
    run.record.WDTYPE = "Hardwood";
    EXPECT_EQ(Step7(), noted);
}

TEST_F(Guidance, AFreshFormHasItsOwnTexts) {
    for (Label* help : {&form.Help1, &form.Help2, &form.Help4}) help->SetCaption("old");
    GuideFreshForm(run);
    EXPECT_EQ(form.Help1.Caption(), "");
    EXPECT_EQ(form.Help2.Caption(), "");
    EXPECT_EQ(form.Help3.Caption(), "Select the species which is the most dominant in your stand.");
    EXPECT_EQ(form.Help4.Caption(), "");
    EXPECT_EQ(form.Help5.Caption(),
              "Enter expected stocking at rotation as a percentage from 1% to 100% (inclusive). "
              "This is the proportion of the stand area without openings. All full stocking "
              "yields(100% stocking) are multiplied by this percentage to give actual yields.");
    EXPECT_EQ(form.Help7.Caption(),
              "Enter the age or diameter at which a precommerical or commercial thinning is to be "
              "simulated. Specify precommercial thinning (performed before stand is 9 m tall) in "
              "spacing. Specified spacing must be between 1.2 m and 3.0 m for softwood & 1.8 m and "
              "3.0 m for hardwood. Specify commercial thinning (performed after stand averages 14 "
              "cm in diameter) as a percentage basal area reduction. Basal area reductions must be "
              "between 10 and 60 percent.");
}

}  // namespace
}  // namespace arbolith
