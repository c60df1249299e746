// The check of step 7, stage by stage.
#include "run_definition/treatment_checks.h"

#include "platform/runtime_error.h"
#include "unit/run_definition/run_testing.h"

#include <gtest/gtest.h>

namespace arbolith {
namespace {

constexpr const char* kValid = "";
constexpr const char* kAmountRequired =
    "A B.A. Reduction or Spacing parameter is required for treatment #1.";
constexpr const char* kNeitherPossible =
    "Treatment #1 parameters are not valid because neither treatment type is possible at the time "
    "specified.";
constexpr const char* kSoftwoodTooLate =
    "Age or DBH entered for treatment #1 must not exceed the length of the simulation specified in "
    "step 6.";
constexpr const char* kSecondSooner =
    "Age entered for treatment #2 must not be sooner than that specified in treatment #1.";
constexpr const char* kSecondTooLate =
    "Age entered for treatment #2 must not exceed the length of the simulation specified in step "
    "6.";
constexpr const char* kBasalAreaRange =
    "Basal Area Reduction must be in the range of 10 to 60 percent.";
constexpr const char* kBlackSpruce = "Black Spruce Commercial Thinnings not simulated.";
constexpr const char* kNeverBoth =
    "This error should never occur, but if it has, ensure that exactly one of either a commercial "
    "thinning or a spacing is specified, not both.";
constexpr const char* kNoFirstTreatment =
    "No treatment can be made at time specified for optional treatment #1.  Either clear the entry "
    "or specify a time that allows for one of the possible treatment types.";

class TreatmentChecks : public testing::Test {
protected:
    TreatmentChecks() {
        run.record.RAGE = 80;
        form.tf_textbox.SetText("5000");
        Offer(false, false, false);
    }

    // Which amounts the last probe left possible.
    void Offer(bool ba1, bool spacing, bool ba2 = false) {
        form.BA1.SetEnabled(ba1);
        form.Spacing.SetEnabled(spacing);
        form.BA2.SetEnabled(ba2);
    }
    std::string Message(TreatmentCheck level = TreatmentCheck::kEverything) {
        run.StepErrorFlag = true;
        run.StepErrorText = "stale";
        run.StepErrorStep = 99;
        CheckStep7(run, level);
        EXPECT_EQ(run.StepErrorFlag, !run.StepErrorText.empty());
        EXPECT_EQ(run.StepErrorStep, run.StepErrorFlag ? 7 : 99) << "written on failure only";
        return run.StepErrorText;
    }
    std::string WithBa1(const std::string& text) {
        form.BA1.SetText(text);
        return Message();
    }
    std::string WithSpacing(const std::string& text) {
        form.Spacing.SetText(text);
        return Message();
    }
    std::string WithBa2(const std::string& text) {
        form.BA2.SetText(text);
        return Message();
    }

    BareRun bare;
    RunDefinition& run = bare.run;
    MainForm& form = bare.form;
};

TEST_F(TreatmentChecks, NoTreatmentAtAllPasses) {
    EXPECT_EQ(Message(), kValid);
    bare.Choose("Hardwood", "Imperial");
    EXPECT_EQ(Message(), kValid);
}

TEST_F(TreatmentChecks, ASoftwoodAgeMayReachTheRotationAge) {
    Offer(true, false);
    form.BA1.SetText("30");
    form.Age1.SetText("80");
    EXPECT_EQ(Message(), kValid);
    form.Age1.SetText("81");
    EXPECT_EQ(Message(), kSoftwoodTooLate);
}

TEST_F(TreatmentChecks, ASoftwoodDiameterNeedsARotationByDiameter) {
    Offer(true, false);
    form.BA1.SetText("30");
    form.DBH1.SetText("20");
    EXPECT_EQ(Message(), kSoftwoodTooLate);
    run.record.RAGE = 0;
    run.record.RDBH = 30;
    EXPECT_EQ(Message(), kValid);
    form.DBH1.SetText("30");
    EXPECT_EQ(Message(), kValid);
    form.DBH1.SetText("30.1");
    EXPECT_EQ(Message(), kSoftwoodTooLate);
}

TEST_F(TreatmentChecks, AnAgeUnderARotationByDiameterIsTooLate) {
    run.record.RAGE = 0;
    run.record.RDBH = 30;
    Offer(true, false);
    form.BA1.SetText("30");
    form.Age1.SetText("1");
    EXPECT_EQ(Message(), kSoftwoodTooLate);
}

TEST_F(TreatmentChecks, AHardwoodAgeMayReachTheRotationAge) {
    bare.Choose("Hardwood", "Metric");
    Offer(true, false);
    form.BA1.SetText("30");
    form.Age1.SetText("80");
    EXPECT_EQ(Message(), kValid);
    form.Age1.SetText("81");
    EXPECT_EQ(Message(),
              "Age entered for treatment #1 must not exceed the length of the simulation specified "
              "in step 6.");
}

TEST_F(TreatmentChecks, AHardwoodDiameterIsNotLookedAtAsATime) {
    bare.Choose("Hardwood", "Metric");
    form.DBH1.SetText("99");
    EXPECT_EQ(Message(), kNoFirstTreatment);
}

TEST_F(TreatmentChecks, ATimeNeedsAnAmount) {
    for (const char* wood : {"Softwood", "Hardwood"}) {
        SCOPED_TRACE(wood);
        bare.Choose(wood, "Metric");
        form.Age1.SetText("40");
        Offer(true, false);
        EXPECT_EQ(Message(), kAmountRequired);
        Offer(false, true);
        EXPECT_EQ(Message(), kAmountRequired);
        Offer(true, true);
        EXPECT_EQ(Message(), kAmountRequired);
        Offer(false, false);
        EXPECT_EQ(Message(), kNeitherPossible);
    }
}

TEST_F(TreatmentChecks, AnAmountWhereNoneIsPossibleFails) {
    form.Age1.SetText("40");
    form.BA1.SetText("30");
    EXPECT_EQ(Message(), kNeitherPossible);
}

TEST_F(TreatmentChecks, TheSecondAgeMayEqualTheFirstButNotPrecedeIt) {
    for (const char* wood : {"Softwood", "Hardwood"}) {
        SCOPED_TRACE(wood);
        bare.Choose(wood, "Metric");
        Offer(true, false, true);
        form.Age1.SetText("40");
        form.BA1.SetText("30");
        form.BA2.SetText("30");
        form.Age2.SetText("40");
        EXPECT_EQ(Message(), kValid);
        form.Age2.SetText("39");
        EXPECT_EQ(Message(), kSecondSooner);
        form.Age2.SetText("80");
        EXPECT_EQ(Message(), kValid);
        form.Age2.SetText("81");
        EXPECT_EQ(Message(), kSecondTooLate);
    }
}

TEST_F(TreatmentChecks, ASecondAgeUnderARotationByDiameterIsTooLate) {
    run.record.RAGE = 0;
    run.record.RDBH = 30;
    Offer(true, false, true);
    form.DBH1.SetText("20");
    form.BA1.SetText("30");
    form.Age2.SetText("40");
    form.BA2.SetText("30");
    EXPECT_EQ(Message(), kSecondTooLate);
}

TEST_F(TreatmentChecks, WithoutASecondSoftwoodTreatmentItsAgeIsNotLookedAt) {
    run.SoftwoodT2Allowed = false;
    Offer(true, false, true);
    form.Age1.SetText("40");
    form.BA1.SetText("30");
    form.Age2.SetText("99");
    form.BA2.SetText("30");
    EXPECT_EQ(Message(), kValid);
    bare.Choose("Hardwood", "Metric");
    EXPECT_EQ(Message(), kSecondTooLate);
}

TEST_F(TreatmentChecks, WithoutAFirstTimeTheSecondAgeIsNotCompared) {
    form.Age2.SetText("99");
    Offer(false, false, true);
    form.BA2.SetText("30");
    EXPECT_EQ(Message(), kValid);
}

TEST_F(TreatmentChecks, ACommercialThinningTakesTenToSixtyPerCent) {
    Offer(true, false);
    EXPECT_EQ(WithBa1("10"), kValid);
    EXPECT_EQ(WithBa1("60"), kValid);
    EXPECT_EQ(WithBa1("9.9"), kBasalAreaRange);
    EXPECT_EQ(WithBa1("60.1"), kBasalAreaRange);
    EXPECT_EQ(WithBa1("."), kBasalAreaRange);
}

TEST_F(TreatmentChecks, ACommercialThinningNeedsItsPercentage) {
    Offer(true, false);
    EXPECT_EQ(Message(),
              "Please enter a % Basal Area Reduction for a commercial thinning treatment.  If you "
              "do not wish to specify a treatment, clear the time specified in Age or DBH.");
}

TEST_F(TreatmentChecks, BlackSpruceIsNotThinnedCommercially) {
    Offer(true, false);
    form.Step3_Spec.SetCaption("Black Spruce");
    EXPECT_EQ(WithBa1("30"), kBlackSpruce);
    EXPECT_EQ(WithBa1("61"), kBasalAreaRange) << "the range comes first";
}

TEST_F(TreatmentChecks, BlackSprucePassesWhereASpacingIsPossibleToo) {
    Offer(true, true);
    form.Step3_Spec.SetCaption("Black Spruce");
    EXPECT_EQ(WithBa1("30"), kValid);
}

TEST_F(TreatmentChecks, APrecommercialThinningNeedsItsSpacing) {
    Offer(false, true);
    EXPECT_EQ(Message(),
              "Please enter a spacing for precommercial thinning treatment.  If you do not wish to "
              "specify a treatment, clear the time specified in Age or DBH.");
}

TEST_F(TreatmentChecks, ThinningSpacingsHaveLimitsByWoodAndUnits) {
    struct Limits {
        const char* wood;
        const char* units;
        const char* lowest;
        const char* tooLow;
        const char* highest;
        const char* tooHigh;
        const char* words;
    };
    form.tf_textbox.SetText("99999");
    for (const auto& limits : {
             Limits{"Softwood", "Metric", "1.2", "1.19", "3.0", "3.01", "1.2 to 3.0 meters."},
             Limits{"Hardwood", "Metric", "1.8", "1.79", "3.0", "3.01", "1.8 to 3.0 meters."},
             Limits{"Softwood", "Imperial", "4", "3.99", "10", "10.1", "4 to 10 feet."},
             Limits{"Hardwood", "Imperial", "6", "5.99", "10", "10.1", "6 to 10 feet."},
         })
        for (const bool eitherPossible : {false, true}) {
            SCOPED_TRACE(std::string(limits.wood) + " " + limits.units);
            const std::string fault =
                std::string("Spacing for precommercial thinning must be in the range of ") +
                limits.words;
            bare.Choose(limits.wood, limits.units);
            Offer(eitherPossible, true);
            EXPECT_EQ(WithSpacing(limits.lowest), kValid);
            EXPECT_EQ(WithSpacing(limits.highest), kValid);
            EXPECT_EQ(WithSpacing(limits.tooLow), fault);
            EXPECT_EQ(WithSpacing(limits.tooHigh), fault);
        }
}

TEST_F(TreatmentChecks, TheSpacingGoesByTheOptionButtonForTheWoodType) {
    Offer(false, true);
    run.record.WDTYPE = "Hardwood";
    EXPECT_EQ(WithSpacing("1.5"), kValid);
    form.Choose_Swd.SetValue(false);
    form.Choose_Hwd.SetValue(true);
    run.record.WDTYPE = "Softwood";
    EXPECT_EQ(WithSpacing("1.5"),
              "Spacing for precommercial thinning must be in the range of 1.8 to 3.0 meters.");
}

TEST_F(TreatmentChecks, AThinningLeavesNoMoreStemsThanTheStandHas) {
    Offer(false, true);
    form.tf_textbox.SetText("2000");
    EXPECT_EQ(WithSpacing("2"), "Enter Spacing Greater Than 2.24");
    EXPECT_EQ(WithSpacing("2.24"), kValid);
    form.tf_textbox.SetText("2500");
    EXPECT_EQ(WithSpacing("2"), kValid) << "exactly as many";
    form.tf_textbox.SetText("2499");
    EXPECT_EQ(WithSpacing("2"), "Enter Spacing Greater Than 2");
    form.tf_textbox.SetText("1600");
    EXPECT_EQ(WithSpacing("2"), "Enter Spacing Greater Than 2.5");
}

TEST_F(TreatmentChecks, TheStemsAreCountedAlikeInBothUnitSystems) {
    bare.Choose("Softwood", "Imperial");
    Offer(false, true);
    form.tf_textbox.SetText("500");
    EXPECT_EQ(WithSpacing("4"), "Enter Spacing Greater Than 4.47");
    EXPECT_EQ(WithSpacing("5"), kValid);
}

TEST_F(TreatmentChecks, ADensityOfZeroIsADivisionByZero) {
    Offer(false, true);
    form.Spacing.SetText("2");
    form.tf_textbox.SetText("enter density");
    try {
        CheckStep7(run, TreatmentCheck::kEverything);
        FAIL() << "no error";
    } catch (const RuntimeError& error) {
        EXPECT_EQ(error.Number(), ErrorNumber::kDivisionByZero);
    }
}

TEST_F(TreatmentChecks, WhereEitherThinningIsPossibleExactlyOneIsGiven) {
    Offer(true, true);
    EXPECT_EQ(Message(), kNeverBoth);
    form.BA1.SetText("30");
    EXPECT_EQ(Message(), kValid);
    form.Spacing.SetText("2");
    EXPECT_EQ(Message(), kNeverBoth);
    form.BA1.SetText("");
    EXPECT_EQ(Message(), kValid);
    form.tf_textbox.SetText("1");
    EXPECT_EQ(Message(), kValid) << "no look at the density here";
}

TEST_F(TreatmentChecks, WhereEitherThinningIsPossibleThePercentageHasItsLimits) {
    Offer(true, true);
    EXPECT_EQ(WithBa1("9.9"), kBasalAreaRange);
    EXPECT_EQ(WithBa1("60.1"), kBasalAreaRange);
    EXPECT_EQ(WithBa1("10"), kValid);
    EXPECT_EQ(WithBa1("60"), kValid);
}

TEST_F(TreatmentChecks, AnAgeOfZeroIsNoTimeButAFilledField) {
    form.Age1.SetText("0");
    EXPECT_EQ(Message(), kNoFirstTreatment);
    form.Age1.SetText("");
    form.DBH1.SetText("0");
    EXPECT_EQ(Message(), kNoFirstTreatment);
}

TEST_F(TreatmentChecks, ASecondThinningNeedsItsPercentage) {
    Offer(false, false, true);
    EXPECT_EQ(Message(),
              "Please enter a % Basal Area Reduction for a commercial thinning in treatment #2.  "
              "If you do not wish to specify a treatment, clear the time specified in Age or DBH.");
}

TEST_F(TreatmentChecks, ASecondThinningTakesTenToSixtyPerCent) {
    Offer(false, false, true);
    const std::string fault =
        "Basal Area Reduction for treatment #2 must be in the range of 10 to 60 percent.";
    EXPECT_EQ(WithBa2("10"), kValid);
    EXPECT_EQ(WithBa2("60"), kValid);
    EXPECT_EQ(WithBa2("9.9"), fault);
    EXPECT_EQ(WithBa2("60.1"), fault);
    form.Step3_Spec.SetCaption("Black Spruce");
    EXPECT_EQ(WithBa2("60.1"), fault) << "the range comes first";
    EXPECT_EQ(WithBa2("30"), kBlackSpruce);
}

TEST_F(TreatmentChecks, ASecondAgeWithoutAPossibleThinningFails) {
    form.Age2.SetText("60");
    EXPECT_EQ(Message(),
              "No treatment can be made at time specified for optional treatment #2.  Either clear "
              "the entry or specify a time that allows for a commerical thinning (BA% "
              "reduction).");
}

TEST_F(TreatmentChecks, TheFirstAmountAloneSkipsTheTimesAndTheSecondTreatment) {
    const auto first = TreatmentCheck::kFirstAmountOnly;
    form.Age1.SetText("99");
    Offer(true, false, true);
    form.BA1.SetText("30");
    form.Age2.SetText("1");
    form.BA2.SetText("99");
    EXPECT_EQ(Message(first), kValid);
    form.BA1.SetText("9");
    EXPECT_EQ(Message(first), kBasalAreaRange);
    form.BA1.SetText("");
    Offer(false, false);
    EXPECT_EQ(Message(first), kNoFirstTreatment);
}

TEST_F(TreatmentChecks, InAdvancedModeNothingIsLookedAt) {
    form.Adv_Mode.SetChecked(true);
    form.Age1.SetText("99");
    EXPECT_EQ(Message(), kValid);
    EXPECT_EQ(Message(TreatmentCheck::kFirstAmountOnly), kValid);
}

}  // namespace
}  // namespace arbolith
