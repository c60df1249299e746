// The checks of steps 1 to 6: what passes, what fails, and with which message.
#include "run_definition/step_checks.h"

#include "unit/run_definition/run_testing.h"

#include <gtest/gtest.h>

namespace arbolith {
namespace {

constexpr const char* kValid = "";

class StepChecks : public testing::Test {
protected:
    BareRun bare;
    RunDefinition& run = bare.run;
    MainForm& form = bare.form;

    using Check = void (*)(RunDefinition&);

    // The message that a check leaves, empty for a valid step.
    std::string Message(Check check, int step) {
        run.StepErrorFlag = true;
        run.StepErrorText = "stale";
        run.StepErrorStep = 99;
        check(run);
        EXPECT_EQ(run.StepErrorFlag, !run.StepErrorText.empty());
        EXPECT_EQ(run.StepErrorStep, run.StepErrorFlag ? step : 99) << "written on failure only";
        return run.StepErrorText;
    }
    std::string Step1() { return Message(CheckStep1, 1); }
    std::string Step2() { return Message(CheckStep2, 2); }
    std::string Step3() { return Message(CheckStep3, 3); }
    std::string Step4() { return Message(CheckStep4, 4); }
    std::string Step5() { return Message(CheckStep5, 5); }
    std::string Step6() { return Message(CheckStep6, 6); }

    std::string Planted(const std::string& x, const std::string& y) {
        bare.Plant(x, y);
        return Step2();
    }
    std::string WithSite(const std::string& text) {
        form.choose_Land.SetValue(false);
        form.choose_Site.SetValue(true);
        form.Site.SetText(text);
        return Step4();
    }
    std::string WithStocking(const std::string& text) {
        form.Stocking_Index.SetText(text);
        return Step5();
    }
    std::string WithRotationAge(const std::string& text) {
        form.txtRotAge.SetText(text);
        return Step6();
    }
    std::string WithRotationDbh(const std::string& text) {
        form.Step6_opt1.SetValue(false);
        form.Step6_opt2.SetValue(true);
        form.txtRotDBH.SetText(text);
        return Step6();
    }
};

TEST_F(StepChecks, Step1NeedsOneWoodType) {
    EXPECT_EQ(Step1(), kValid);
    const std::string fault = "Please select exactly one wood type to model";
    form.Choose_Hwd.SetValue(true);
    EXPECT_EQ(Step1(), fault);
    form.Choose_Swd.SetValue(false);
    EXPECT_EQ(Step1(), kValid);
    form.Choose_Hwd.SetValue(false);
    EXPECT_EQ(Step1(), fault);
}

TEST_F(StepChecks, Step1NeedsOneMeasurementSystem) {
    const std::string fault = "Please select exactly one measurement system";
    form.choose_Imperial.SetValue(true);
    EXPECT_EQ(Step1(), fault);
    form.choose_Metric.SetValue(false);
    EXPECT_EQ(Step1(), kValid);
    form.choose_Imperial.SetValue(false);
    EXPECT_EQ(Step1(), fault);
    form.Choose_Swd.SetValue(false);
    EXPECT_EQ(Step1(), "Please select exactly one wood type to model") << "the wood type first";
}

TEST_F(StepChecks, Step2NeedsOneRegenerationKind) {
    EXPECT_EQ(Step2(), kValid);
    const std::string fault = "Please select select either Plantation or Natural Regeneration";
    form.chkPlant.SetValue(true);
    EXPECT_EQ(Step2(), fault);
    form.chkPlant.SetValue(false);
    form.chkNat.SetValue(false);
    EXPECT_EQ(Step2(), fault);
}

TEST_F(StepChecks, Step2NeedsBothSpacingsOfAPlantation) {
    const std::string fault = "Please enter a spacing value for both dimensions";
    EXPECT_EQ(Planted("", ""), fault);
    EXPECT_EQ(Planted("2", ""), fault);
    EXPECT_EQ(Planted("", "2"), fault);
    EXPECT_EQ(Planted("2", "2"), kValid);
}

TEST_F(StepChecks, Step2OfANaturalStandLooksAtNoSpacing) {
    form.spac1.SetText("99");
    form.spac2.SetText("");
    EXPECT_EQ(Step2(), kValid);
}

TEST_F(StepChecks, Step2LimitsMetricSpacings) {
    const std::string fault =
        "Please ensure that both plantation spacing dimensions are within 1.2 to 3.0 meters";
    EXPECT_EQ(Planted("1.2", "1.2"), kValid);
    EXPECT_EQ(Planted("3.0", "3.0"), kValid);
    EXPECT_EQ(Planted("1.19", "1.2"), fault);
    EXPECT_EQ(Planted("1.2", "1.19"), fault);
    EXPECT_EQ(Planted("3.01", "3.0"), fault);
    EXPECT_EQ(Planted("3.0", "3.01"), fault);
    EXPECT_EQ(Planted(".", "2"), fault);
    EXPECT_EQ(Planted("-2", "2"), fault);
    EXPECT_EQ(Planted("3.1", "1.2"), fault) << "the limits before the ratio";
}

TEST_F(StepChecks, Step2LimitsImperialSpacings) {
    bare.Choose("Softwood", "Imperial");
    const std::string fault =
        "Please ensure that both plantation spacing dimensions are within 4 to 10 feet";
    EXPECT_EQ(Planted("4", "4"), kValid);
    EXPECT_EQ(Planted("10", "10"), kValid);
    EXPECT_EQ(Planted("3.99", "4"), fault);
    EXPECT_EQ(Planted("4", "3.99"), fault);
    EXPECT_EQ(Planted("10.1", "10"), fault);
    EXPECT_EQ(Planted("10", "10.1"), fault);
}

TEST_F(StepChecks, Step2LimitsTheRatio) {
    const std::string tooWide =
        "The plantation X spacing is more than twice the size of the Y spacing: Please decrease X "
        "spacing or increase Y spacing";
    const std::string tooDeep =
        "The plantation Y spacing is more than twice the size of the X spacing: Please decrease Y "
        "spacing or increase X spacing";
    EXPECT_EQ(Planted("3.0", "1.5"), kValid);
    EXPECT_EQ(Planted("3.0", "1.4"), tooWide);
    EXPECT_EQ(Planted("1.5", "3.0"), kValid);
    EXPECT_EQ(Planted("1.4", "3.0"), tooDeep);
    EXPECT_EQ(Planted("2.4", "1.2"), kValid);
    bare.Choose("Softwood", "Imperial");
    EXPECT_EQ(Planted("8", "4"), kValid);
    EXPECT_EQ(Planted("8.1", "4"), tooWide);
    EXPECT_EQ(Planted("4", "10"), tooDeep);
}

TEST_F(StepChecks, Step2TakesTheUnitsAsCommitted) {
    bare.Plant("5", "5");
    form.choose_Metric.SetValue(false);
    form.choose_Imperial.SetValue(true);
    EXPECT_EQ(Step2(),
              "Please ensure that both plantation spacing dimensions are within 1.2 to 3.0 meters");
}

TEST_F(StepChecks, Step2SetsAHardwoodStandRight) {
    bare.Choose("Hardwood", "Metric");
    bare.Plant("9", "1");
    EXPECT_EQ(Step2(), kValid);
    EXPECT_TRUE(form.chkNat.Value());
    EXPECT_FALSE(form.chkPlant.Value());
    EXPECT_EQ(form.spac1.Text(), "");
    EXPECT_EQ(form.spac2.Text(), "");
    form.chkNat.SetValue(false);
    EXPECT_EQ(Step2(), kValid);
    EXPECT_TRUE(form.chkNat.Value());
}

TEST_F(StepChecks, Step3NeedsASpecies) {
    EXPECT_EQ(Step3(), "Please select a tree species to model");
    bare.SelectSpecies("White Pine");
    EXPECT_EQ(Step3(), kValid);
}

TEST_F(StepChecks, Step4NeedsOneKindOfSiteQuality) {
    const std::string fault = "Please select a Land Capability Index or enter a Site Index";
    form.choose_Site.SetValue(true);
    EXPECT_EQ(Step4(), fault);
    form.choose_Site.SetValue(false);
    form.choose_Land.SetValue(false);
    EXPECT_EQ(Step4(), fault);
}

TEST_F(StepChecks, Step4NeedsAClass) {
    form.Site.SetText("99");
    EXPECT_EQ(Step4(), "Please select a Land Capability Index");
    bare.SelectClass(1);
    EXPECT_EQ(Step4(), kValid);
}

TEST_F(StepChecks, Step4NeedsASiteIndex) {
    bare.SelectClass(1);
    EXPECT_EQ(WithSite(""), "Please enter a Site Index");
}

TEST_F(StepChecks, Step4LimitsTheSiteIndexOfASoftwood) {
    const std::string metric = "Please enter a site index between 6 meters and 30 meters";
    EXPECT_EQ(WithSite("6"), kValid);
    EXPECT_EQ(WithSite("30"), kValid);
    EXPECT_EQ(WithSite("5.99"), metric);
    EXPECT_EQ(WithSite("30.1"), metric);
    EXPECT_EQ(WithSite("."), metric);
    bare.Choose("Softwood", "Imperial");
    const std::string imperial = "Please enter a site index between 19.7 feet and 98.4 feet";
    EXPECT_EQ(WithSite("19.7"), kValid);
    EXPECT_EQ(WithSite("98.4"), kValid);
    EXPECT_EQ(WithSite("19.6"), imperial);
    EXPECT_EQ(WithSite("98.5"), imperial);
}

TEST_F(StepChecks, Step4NamesLowerLimitsForBirchAndMapleThanItTests) {
    for (const char* species : {"White Birch", "Red Maple"}) {
        SCOPED_TRACE(species);
        bare.Choose("Hardwood", "Metric");
        bare.SelectSpecies(species);
        const std::string metric = "Please enter a site index between 8 meters and 18 meters";
        EXPECT_EQ(WithSite("8"), kValid);
        EXPECT_EQ(WithSite("19"), kValid);
        EXPECT_EQ(WithSite("20"), kValid);
        EXPECT_EQ(WithSite("7.99"), metric);
        EXPECT_EQ(WithSite("20.1"), metric);
        EXPECT_EQ(WithSite("21"), metric);
        bare.Choose("Hardwood", "Imperial");
        const std::string imperial = "Please enter a site index between 26.2 feet and 59.0 feet";
        EXPECT_EQ(WithSite("26.2"), kValid);
        EXPECT_EQ(WithSite("60"), kValid);
        EXPECT_EQ(WithSite("65.6"), kValid);
        EXPECT_EQ(WithSite("26.1"), imperial);
        EXPECT_EQ(WithSite("65.7"), imperial);
        EXPECT_EQ(WithSite("66"), imperial);
    }
}

TEST_F(StepChecks, Step4LimitsTheSiteIndexOfOtherHardwoods) {
    for (const char* species : {"Red Oak", "Sugar Maple", "Yellow Birch", "American Beech",
                                "Largetooth Aspen", "Trembling Aspen", "White Ash"}) {
        SCOPED_TRACE(species);
        bare.Choose("Hardwood", "Metric");
        bare.SelectSpecies(species);
        const std::string metric = "Please enter a site index between 8 meters and 24 meters";
        EXPECT_EQ(WithSite("8"), kValid);
        EXPECT_EQ(WithSite("24"), kValid);
        EXPECT_EQ(WithSite("7.9"), metric);
        EXPECT_EQ(WithSite("24.1"), metric);
        bare.Choose("Hardwood", "Imperial");
        const std::string imperial = "Please enter a site index between 26.2 feet and 78.7 feet";
        EXPECT_EQ(WithSite("26.2"), kValid);
        EXPECT_EQ(WithSite("78.7"), kValid);
        EXPECT_EQ(WithSite("26.1"), imperial);
        EXPECT_EQ(WithSite("78.8"), imperial);
    }
}

TEST_F(StepChecks, Step4GoesByTheSummaryForTheSpecies) {
    bare.Choose("Hardwood", "Metric");
    bare.SelectSpecies("Red Oak");
    form.Step3_Spec.SetCaption("Red Maple");
    EXPECT_EQ(WithSite("22"), "Please enter a site index between 8 meters and 18 meters");
}

TEST_F(StepChecks, Step5LimitsTheStocking) {
    EXPECT_EQ(WithStocking(""), "Please enter a Stocking Index between 1% and 100%");
    const std::string fault =
        "The Stocking index is outside the valid range: Please enter a Stocking Index between 1% "
        "and 100%";
    EXPECT_EQ(WithStocking("1"), kValid);
    EXPECT_EQ(WithStocking("100"), kValid);
    EXPECT_EQ(WithStocking("0"), fault);
    EXPECT_EQ(WithStocking("101"), fault);
    EXPECT_EQ(WithStocking("0.9"), fault);
    EXPECT_EQ(WithStocking("x"), fault);
}

TEST_F(StepChecks, Step6NeedsOneKindOfRotation) {
    const std::string fault = "Please enter simulation length in terms of an age or a DBH";
    form.Step6_opt2.SetValue(true);
    EXPECT_EQ(Step6(), fault);
    form.Step6_opt1.SetValue(false);
    form.Step6_opt2.SetValue(false);
    EXPECT_EQ(Step6(), fault);
}

TEST_F(StepChecks, Step6LimitsTheRotationAge) {
    EXPECT_EQ(WithRotationAge(""), "Please enter a Rotation Age");
    const std::string fault = "Please ensure that the Rotation Age is within 20 to 120 years";
    EXPECT_EQ(WithRotationAge("20"), kValid);
    EXPECT_EQ(WithRotationAge("120"), kValid);
    EXPECT_EQ(WithRotationAge("19"), fault);
    EXPECT_EQ(WithRotationAge("121"), fault);
    EXPECT_EQ(WithRotationAge("0"), fault);
}

TEST_F(StepChecks, Step6LimitsTheRotationDbh) {
    EXPECT_EQ(WithRotationDbh(""), "Please enter a Rotation DBH");
    const std::string metric =
        "Please ensure that the Rotation DBH entered is within 10 to 50 centimeters";
    EXPECT_EQ(WithRotationDbh("10"), kValid);
    EXPECT_EQ(WithRotationDbh("50"), kValid);
    EXPECT_EQ(WithRotationDbh("9.99"), metric);
    EXPECT_EQ(WithRotationDbh("50.1"), metric);
    EXPECT_EQ(WithRotationDbh("4"), metric);
    bare.Choose("Softwood", "Imperial");
    const std::string imperial =
        "Please ensure that the Rotation DBH entered is within 4 to 20 inches";
    EXPECT_EQ(WithRotationDbh("4"), kValid);
    EXPECT_EQ(WithRotationDbh("20"), kValid);
    EXPECT_EQ(WithRotationDbh("3.99"), imperial);
    EXPECT_EQ(WithRotationDbh("20.1"), imperial);
    EXPECT_EQ(WithRotationDbh("50"), imperial);
}

TEST_F(StepChecks, InAdvancedModeNothingIsLookedAtAndNothingSetRight) {
    form.Adv_Mode.SetChecked(true);
    form.Choose_Hwd.SetValue(true);
    bare.Plant("0", "0");
    run.record.WDTYPE = "Hardwood";
    form.choose_Site.SetValue(true);
    form.Stocking_Index.SetText("0");
    form.Step6_opt2.SetValue(true);
    EXPECT_EQ(Step1(), kValid);
    EXPECT_EQ(Step2(), kValid);
    EXPECT_EQ(Step3(), kValid);
    EXPECT_EQ(Step4(), kValid);
    EXPECT_EQ(Step5(), kValid);
    EXPECT_EQ(Step6(), kValid);
    EXPECT_TRUE(form.chkPlant.Value());
    EXPECT_EQ(form.spac1.Text(), "0");
}

TEST_F(StepChecks, AnyOtherUnitWordCountsAsImperial) {
    run.globals.UnitSystem = "";
    EXPECT_EQ(Planted("4", "10.5"),
              "Please ensure that both plantation spacing dimensions are within 4 to 10 feet");
    EXPECT_EQ(Planted("4", "8"), kValid);
}

}  // namespace
}  // namespace arbolith
