// Applying the steps: what the summary shows, what is greyed out, and what a change of wood type or
// units takes along.
#include "run_definition/apply_steps.h"

#include "unit/run_definition/run_testing.h"

#include <gtest/gtest.h>

namespace arbolith {
namespace {

class ApplySteps : public testing::Test {
protected:
    BareRun bare;
    RunDefinition& run = bare.run;
    MainForm& form = bare.form;

    void ExpectEnabled(std::initializer_list<const Control*> controls, bool enabled) {
        for (const Control* control : controls)
            EXPECT_EQ(control->Enabled(), enabled) << control->Name();
    }
    void ExpectRegeneration(bool natural) {
        ExpectEnabled({&form.Step2_Nat, &form.Step2_lbl1}, natural);
        ExpectEnabled({&form.Step2_Plant, &form.Step2_Spac1, &form.Step2_Spac2, &form.Step4_Freq,
                       &form.s2l1, &form.s2l2, &form.Step2_lbl2, &form.Step4_lbl3, &form.lbl2_2,
                       &form.lbl2_3, &form.spac1, &form.spac2},
                      !natural);
        EXPECT_EQ(form.Step2_Nat.Caption(), natural ? "Yes" : "No");
        EXPECT_EQ(form.Step2_Plant.Caption(), natural ? "No" : "Yes");
    }
};

TEST_F(ApplySteps, EachMarksTheInputAsChanged) {
    for (const auto apply :
         {ApplyStep1, ApplyStep2, ApplyStep3, ApplyStep4, ApplyStep5, ApplyStep6, ApplyStep7}) {
        run.InputChanged = false;
        apply(run);
        EXPECT_TRUE(run.InputChanged);
    }
}

TEST_F(ApplySteps, Step2OfAPlantationShowsItsSpacingsAndFrequency) {
    bare.Plant("1.2", "2.4");
    form.Step3_Btn.SetEnabled(false);
    ApplyStep2(run);
    ExpectRegeneration(false);
    EXPECT_EQ(form.Step2_Spac1.Caption(), "1.2");
    EXPECT_EQ(form.Step2_Spac2.Caption(), "2.4");
    EXPECT_EQ(form.Step4_Freq.Caption(), "3472.22");
    EXPECT_TRUE(form.Step3_Btn.Enabled());
}

TEST_F(ApplySteps, Step2KeepsTheOldFrequencyWhileASpacingIsWrong) {
    bare.Plant("2", "2");
    ApplyStep2(run);
    EXPECT_EQ(form.Step4_Freq.Caption(), "2500");
    form.Step3_Btn.SetEnabled(false);
    form.spac2.SetText("9");
    ApplyStep2(run);
    EXPECT_EQ(form.Step4_Freq.Caption(), "2500");
    EXPECT_EQ(form.Step2_Spac2.Caption(), "9");
    EXPECT_FALSE(form.Step3_Btn.Enabled());
}

TEST_F(ApplySteps, Step2WorksOutTheFrequencyFromXAloneUnderImperialUnits) {
    bare.Choose("Softwood", "Imperial");
    bare.Plant("5", "10");
    ApplyStep2(run);
    EXPECT_EQ(form.Step4_Freq.Caption(), "1742.72");
}

TEST_F(ApplySteps, Step2OfANaturalStandEmptiesTheSpacings) {
    bare.Plant("2", "2");
    ApplyStep2(run);
    form.chkPlant.SetValue(false);
    form.chkNat.SetValue(true);
    ApplyStep2(run);
    ExpectRegeneration(true);
    for (const TextBox* box : {&form.spac1, &form.spac2}) EXPECT_EQ(box->Text(), "");
    for (const Label* label : {&form.Step2_Spac1, &form.Step2_Spac2, &form.Step4_Freq})
        EXPECT_EQ(label->Caption(), "") << label->Name();
}

TEST_F(ApplySteps, Step2InAdvancedModeHasNoFrequencyWithoutASpacing) {
    form.Adv_Mode.SetChecked(true);
    bare.Plant("2", "0");
    form.Step4_Freq.SetCaption("2500");
    ApplyStep2(run);
    EXPECT_EQ(form.Step4_Freq.Caption(), "");
}

TEST_F(ApplySteps, Step3ShowsTheSpecies) {
    bare.SelectSpecies("Balsam Fir");
    form.Step3_Spec.SetCaption("");
    ApplyStep3(run);
    EXPECT_EQ(form.Step3_Spec.Caption(), "Balsam Fir");
    form.lstSpecies.SetListIndex(-1);
    ApplyStep3(run);
    EXPECT_EQ(form.Step3_Spec.Caption(), "");
}

TEST_F(ApplySteps, Step3NarrowsTheClassesOfAHardwood) {
    bare.Choose("Hardwood", "Metric");
    for (const auto& [species, classes] : {std::pair{"White Birch", 3},
                                           {"Red Maple", 3},
                                           {"Trembling Aspen", 5},
                                           {"Largetooth Aspen", 5},
                                           {"Red Oak", 4},
                                           {"White Ash", 4}}) {
        bare.SelectSpecies(species);
        bare.SelectClass(2);
        ApplyStep3(run);
        EXPECT_EQ(form.Lcap.ListCount(), classes) << species;
        EXPECT_EQ(form.Lcap.ListIndex(), -1) << "the class chosen earlier is gone";
        EXPECT_EQ(form.Lcap.List().front(), "1");
        EXPECT_EQ(form.Lcap.List().back(), std::to_string(classes));
    }
}

TEST_F(ApplySteps, Step3LeavesTheClassesOfASoftwoodAndOfTheAdvancedMode) {
    bare.SelectSpecies("White Pine");
    bare.SelectClass(13);
    ApplyStep3(run);
    EXPECT_EQ(form.Lcap.Text(), "13");
    bare.Choose("Hardwood", "Metric");
    bare.SelectSpecies("White Birch");
    bare.SelectClass(5);
    form.Adv_Mode.SetChecked(true);
    ApplyStep3(run);
    EXPECT_EQ(form.Lcap.Text(), "5");
}

TEST_F(ApplySteps, Step4ShowsTheClassOrTheSiteIndex) {
    bare.SelectClass(7);
    form.Site.SetText("20");
    ApplyStep4(run);
    EXPECT_EQ(form.Site.Text(), "");
    EXPECT_EQ(form.Step4_Land.Caption(), "7");
    EXPECT_EQ(form.Step4_Site.Caption(), "");
    ExpectEnabled({&form.Lcap, &form.Step4_Land, &form.Step4_lbl2}, true);
    ExpectEnabled({&form.Site, &form.Step4_Site, &form.Step4_lbl1}, false);

    form.choose_Land.SetValue(false);
    form.choose_Site.SetValue(true);
    form.Site.SetText("20");
    ApplyStep4(run);
    EXPECT_EQ(form.Lcap.ListIndex(), -1);
    EXPECT_EQ(form.Step4_Land.Caption(), "");
    EXPECT_EQ(form.Step4_Site.Caption(), "20");
    ExpectEnabled({&form.Lcap, &form.Step4_Land, &form.Step4_lbl2}, false);
    ExpectEnabled({&form.Site, &form.Step4_Site, &form.Step4_lbl1}, true);
}

TEST_F(ApplySteps, Step4AndStep6SetTheirGuidance) {
    ApplyStep4(run);
    EXPECT_EQ(form.Help4.Caption().substr(0, 20), "Enter the Site Index");
    ApplyStep6(run);
    EXPECT_EQ(form.Help6.Caption().substr(0, 20), "Enter the length of ");
}

TEST_F(ApplySteps, Step5ShowsTheStocking) {
    form.Stocking_Index.SetText("7x");
    ApplyStep5(run);
    EXPECT_EQ(form.Step5_Stock.Caption(), "7x");
}

TEST_F(ApplySteps, Step6OfASoftwoodShowsTheAgeOrTheDiameter) {
    form.txtRotAge.SetText("80");
    form.txtRotDBH.SetText("30");
    ApplyStep6(run);
    EXPECT_EQ(form.Step6_Age.Caption(), "80");
    EXPECT_EQ(form.Step6_DBH.Caption(), "");
    EXPECT_EQ(form.txtRotDBH.Text(), "");
    ExpectEnabled({&form.txtRotAge, &form.Step6_lbl2, &form.Step6_Age}, true);
    ExpectEnabled({&form.txtRotDBH, &form.Step6_lbl3, &form.Step6_DBH}, false);

    form.Step6_opt1.SetValue(false);
    form.Step6_opt2.SetValue(true);
    form.txtRotDBH.SetText("30");
    ApplyStep6(run);
    EXPECT_EQ(form.Step6_Age.Caption(), "");
    EXPECT_EQ(form.txtRotAge.Text(), "");
    EXPECT_EQ(form.Step6_DBH.Caption(), "30");
    ExpectEnabled({&form.txtRotAge, &form.Step6_lbl2, &form.Step6_Age}, false);
    ExpectEnabled({&form.txtRotDBH, &form.Step6_lbl3, &form.Step6_DBH}, true);
    EXPECT_TRUE(form.Step6_opt2.Visible());
    EXPECT_TRUE(form.txtRotDBH.Visible());
}

TEST_F(ApplySteps, Step6OfAHardwoodHidesTheDiameter) {
    bare.Choose("Hardwood", "Metric");
    form.txtRotAge.SetText("80");
    form.txtRotDBH.SetText("30");
    ApplyStep6(run);
    EXPECT_EQ(form.Step6_Age.Caption(), "80");
    EXPECT_EQ(form.txtRotDBH.Text(), "");
    EXPECT_FALSE(form.Step6_opt2.Visible());
    EXPECT_FALSE(form.txtRotDBH.Visible());
    ExpectEnabled({&form.txtRotAge, &form.Step6_lbl2, &form.Step6_Age}, true);
    ExpectEnabled({&form.txtRotDBH, &form.Step6_lbl3, &form.Step6_DBH}, false);
    form.Choose_Hwd.SetValue(false);
    form.Choose_Swd.SetValue(true);
    ApplyStep6(run);
    EXPECT_TRUE(form.Step6_opt2.Visible());
    EXPECT_TRUE(form.txtRotDBH.Visible());
}

void FillTreatments(MainForm& form) {
    form.Age1.SetText("40");
    form.DBH1.SetText("15");
    form.BA1.SetText("30");
    form.Spacing.SetText("2");
    form.Age2.SetText("60");
    form.BA2.SetText("20");
}

TEST_F(ApplySteps, Step7OfASoftwoodByAge) {
    FillTreatments(form);
    ApplyStep7(run);
    EXPECT_EQ(form.DBH1.Text(), "");
    ExpectEnabled({&form.Age1, &form.Step7_lbl3}, true);
    ExpectEnabled({&form.DBH1, &form.Step7_lbl4}, false);
    EXPECT_EQ(form.Step7_Age1.Caption(), "40");
    EXPECT_EQ(form.Step7_DBH1.Caption(), "");
    EXPECT_EQ(form.Step7_BA1.Caption(), "30");
    EXPECT_EQ(form.Step7_Spac.Caption(), "2");
    EXPECT_EQ(form.Step7_Age2.Caption(), "60");
    EXPECT_EQ(form.Step7_BA2.Caption(), "20");
    EXPECT_EQ(run.record.T1Age, 40);
    EXPECT_EQ(run.record.T1DBH, 0);
    EXPECT_EQ(run.record.T1IBA, 30);
    EXPECT_EQ(run.record.ISD, 2);
    EXPECT_EQ(run.record.T2Age, 60);
    EXPECT_EQ(run.record.T2IBA, 20);
}

TEST_F(ApplySteps, Step7OfASoftwoodByDiameter) {
    form.Step7_T1Age.SetValue(false);
    form.Step7_T1DBH.SetValue(true);
    FillTreatments(form);
    ApplyStep7(run);
    EXPECT_EQ(form.Age1.Text(), "");
    ExpectEnabled({&form.Age1, &form.Step7_lbl3}, false);
    ExpectEnabled({&form.DBH1, &form.Step7_lbl4}, true);
    EXPECT_EQ(form.Step7_Age1.Caption(), "");
    EXPECT_EQ(form.Step7_DBH1.Caption(), "15");
    EXPECT_EQ(run.record.T1Age, 0);
    EXPECT_EQ(run.record.T1DBH, 15);
}

TEST_F(ApplySteps, Step7WithoutASecondSoftwoodTreatmentForgetsIt) {
    run.SoftwoodT2Allowed = false;
    run.record.T2Age = run.record.T2IBA = 9;
    form.Step7_Age2.SetCaption("9");
    form.Step7_BA2.SetCaption("9");
    FillTreatments(form);
    ApplyStep7(run);
    EXPECT_EQ(run.record.T2Age, 0);
    EXPECT_EQ(run.record.T2IBA, 0);
    EXPECT_EQ(form.Step7_Age2.Caption(), "");
    EXPECT_EQ(form.Step7_BA2.Caption(), "");
    form.Adv_Mode.SetChecked(true);
    ApplyStep7(run);
    EXPECT_EQ(run.record.T2Age, 60);
    EXPECT_EQ(run.record.T2IBA, 20);
    EXPECT_EQ(form.Step7_Age2.Caption(), "60");
}

TEST_F(ApplySteps, Step7OfAHardwoodIsByAge) {
    bare.Choose("Hardwood", "Metric");
    run.SoftwoodT2Allowed = false;
    form.Step7_T1Age.SetValue(false);
    form.Step7_T1DBH.SetValue(true);
    FillTreatments(form);
    ApplyStep7(run);
    EXPECT_TRUE(form.Step7_T1Age.Value());
    EXPECT_FALSE(form.Step7_T1DBH.Value());
    EXPECT_EQ(form.DBH1.Text(), "");
    ExpectEnabled({&form.Age1, &form.Step7_lbl3}, true);
    ExpectEnabled({&form.DBH1, &form.Step7_lbl4}, false);
    EXPECT_EQ(run.record.T1Age, 40);
    EXPECT_EQ(run.record.T1DBH, 0);
    EXPECT_EQ(run.record.T2Age, 60);
    EXPECT_EQ(form.Step7_BA2.Caption(), "20");
    EXPECT_EQ(form.Step7_Spac.Caption(), "2");
}

TEST_F(ApplySteps, Step7WithoutAKindOfTreatmentTimeIsAnUnknownError) {
    form.Step7_T1Age.SetValue(false);
    run.record.T1IBA = 5;
    form.BA1.SetText("30");
    ApplyStep7(run);
    ASSERT_EQ(bare.host.boxes.size(), 1U);
    EXPECT_EQ(bare.host.boxes[0].text,
              "An unknown error has occurred.  The program should be restarted.");
    EXPECT_EQ(bare.host.boxes[0].title, "");
    EXPECT_EQ(bare.host.boxes[0].icon, BoxIcon::kStop);
    EXPECT_EQ(run.record.T1IBA, 5) << "nothing was stored";
}

TEST_F(ApplySteps, AChangeOfUnitsEmptiesWhatDependsOnThem) {
    bare.Plant("2", "2");
    bare.SelectSpecies("White Pine");
    form.choose_Land.SetValue(false);
    form.choose_Site.SetValue(true);
    form.Site.SetText("17");
    form.txtRotAge.SetText("80");
    FillTreatments(form);
    form.choose_Metric.SetValue(false);
    form.choose_Imperial.SetValue(true);
    ApplyStep1(run);
    for (const TextBox* box : {&form.spac1, &form.spac2, &form.Site, &form.txtRotDBH, &form.DBH1,
                               &form.BA1, &form.Spacing, &form.BA2})
        EXPECT_EQ(box->Text(), "") << box->Name();
    EXPECT_EQ(form.Step4_Freq.Caption(), "");
    EXPECT_EQ(form.Step1_Unit.Caption(), "Imperial");
    EXPECT_EQ(form.txtRotAge.Text(), "80");
    EXPECT_EQ(form.Age1.Text(), "40");
    EXPECT_EQ(form.Age2.Text(), "60") << "years stay";
    EXPECT_EQ(run.globals.UnitSystem, "Metric") << "until the next commit";
    EXPECT_EQ(form.lstSpecies.Text(), "White Pine");
}

TEST_F(ApplySteps, AChangeOfUnitsBackIsNoChange) {
    form.txtRotDBH.SetText("30");
    form.Age2.SetText("60");
    ApplyStep1(run);
    EXPECT_EQ(form.Age2.Text(), "") << "a whole pass empties treatment 2";
    EXPECT_EQ(form.txtRotDBH.Text(), "30") << "step 6 is not applied";
}

TEST_F(ApplySteps, APassOverASoftwoodLosesTheSecondTreatment) {
    ApplyStep1(run);
    FillTreatments(form);
    ApplyStep1(run);
    EXPECT_EQ(form.Age2.Text(), "");
    EXPECT_EQ(form.BA2.Text(), "");
    EXPECT_EQ(form.Step7_Age2.Caption(), "");
    EXPECT_EQ(form.Step7_BA2.Caption(), "");
    EXPECT_EQ(form.Age1.Text(), "40");
    EXPECT_EQ(form.BA1.Text(), "30");
    EXPECT_EQ(form.Spacing.Text(), "2");
}

TEST_F(ApplySteps, APassOverAHardwoodKeepsTheTreatments) {
    bare.Choose("Hardwood", "Metric");
    bare.SelectSpecies("Red Oak");
    FillTreatments(form);
    ApplyStep1(run);
    EXPECT_EQ(form.Age2.Text(), "60");
    EXPECT_EQ(form.BA2.Text(), "20");
}

TEST_F(ApplySteps, AChangeToHardwoodTakesEverythingAlong) {
    bare.Plant("2", "2");
    bare.SelectSpecies("White Pine");
    bare.SelectClass(9);
    ApplyStep4(run);
    EXPECT_EQ(form.Step4_Land.Caption(), "9");
    form.Step6_opt1.SetValue(false);
    form.Step6_opt2.SetValue(true);
    form.txtRotDBH.SetText("30");
    FillTreatments(form);
    form.Step7_T1Age.SetValue(false);
    form.Step7_T1DBH.SetValue(true);
    form.Choose_Swd.SetValue(false);
    form.Choose_Hwd.SetValue(true);
    ApplyStep1(run);
    EXPECT_EQ(form.Step1_Type.Caption(), "Hardwood");
    EXPECT_EQ(form.Qvly.Caption(), "Arbolith Models: Hardwood");
    EXPECT_EQ(run.record.WDTYPE, "Hardwood");
    EXPECT_EQ(form.lstSpecies.ListCount(), 9);
    EXPECT_EQ(form.lstSpecies.ListIndex(), -1);
    EXPECT_EQ(form.Step3_Spec.Caption(), "");
    EXPECT_EQ(form.Lcap.ListCount(), 4) << "no species is chosen";
    EXPECT_EQ(form.Step4_Land.Caption(), "");
    EXPECT_TRUE(form.chkNat.Value());
    EXPECT_FALSE(form.chkPlant.Value());
    EXPECT_FALSE(form.chkPlant.Enabled());
    ExpectRegeneration(true);
    EXPECT_TRUE(form.Step6_opt1.Value());
    EXPECT_FALSE(form.Step6_opt2.Value());
    EXPECT_EQ(form.txtRotDBH.Text(), "");
    for (const TextBox* box :
         {&form.Age1, &form.DBH1, &form.BA1, &form.Spacing, &form.Age2, &form.BA2})
        EXPECT_EQ(box->Text(), "") << box->Name();
    EXPECT_TRUE(form.Step7_T1Age.Value());
    EXPECT_FALSE(form.Step7_T1DBH.Value());
    for (const Control* control : std::initializer_list<Control*>{&form.Step7_T1DBH, &form.DBH1}) {
        EXPECT_FALSE(control->Visible()) << control->Name();
        EXPECT_FALSE(control->Enabled()) << control->Name();
    }
    EXPECT_TRUE(form.Treatment2.Visible());
}

TEST_F(ApplySteps, AChangeToHardwoodInAdvancedModeOffersFiveClasses) {
    form.Adv_Mode.SetChecked(true);
    form.Choose_Swd.SetValue(false);
    form.Choose_Hwd.SetValue(true);
    ApplyStep1(run);
    EXPECT_EQ(form.Lcap.ListCount(), 5);
}

TEST_F(ApplySteps, AChangeBackToSoftwoodOpensItsChoices) {
    bare.Choose("Hardwood", "Metric");
    ApplyStep1(run);
    form.Choose_Hwd.SetValue(false);
    form.Choose_Swd.SetValue(true);
    form.txtRotAge.SetText("80");
    ApplyStep1(run);
    EXPECT_EQ(form.Step1_Type.Caption(), "Softwood");
    EXPECT_EQ(form.Qvly.Caption(), "Arbolith Models: Softwood");
    EXPECT_EQ(run.record.WDTYPE, "Softwood");
    EXPECT_EQ(form.lstSpecies.ListCount(), 8);
    EXPECT_EQ(form.Lcap.ListCount(), 13);
    EXPECT_TRUE(form.chkPlant.Enabled());
    EXPECT_TRUE(form.Step7_T1DBH.Visible());
    EXPECT_TRUE(form.Step7_T1DBH.Enabled());
    EXPECT_TRUE(form.DBH1.Visible());
    EXPECT_EQ(form.txtRotAge.Text(), "80");
}

TEST_F(ApplySteps, WithoutASecondSoftwoodTreatmentItsFrameGoes) {
    run.SoftwoodT2Allowed = false;
    ApplyStep1(run);
    EXPECT_EQ(form.Step7_lbl2.Caption(), "Treatment:      1");
    EXPECT_FALSE(form.Treatment2.Visible());
    form.Choose_Swd.SetValue(false);
    form.Choose_Hwd.SetValue(true);
    ApplyStep1(run);
    EXPECT_EQ(form.Step7_lbl2.Caption(), "Treatment:      1        2");
    EXPECT_TRUE(form.Treatment2.Visible());
}

TEST_F(ApplySteps, AClickOnAWoodTypeGoesThroughAChangeOfUnits) {
    form.choose_Metric.SetValue(false);
    form.choose_Imperial.SetValue(true);
    form.Choose_Swd.SetValue(false);
    form.Choose_Hwd.SetValue(true);
    ApplyWoodOption(run);
    EXPECT_EQ(run.record.WDTYPE, "Hardwood");
    EXPECT_EQ(run.globals.UnitSystem, "Imperial");
    EXPECT_EQ(form.lstSpecies.ListCount(), 9);
}

TEST_F(ApplySteps, AShortListLeavesOutAspenAndAsh) {
    run.ShortHardwoodList = true;
    form.Choose_Swd.SetValue(false);
    form.Choose_Hwd.SetValue(true);
    ApplyStep1(run);
    EXPECT_EQ(form.lstSpecies.ListCount(), 6);
}

}  // namespace
}  // namespace arbolith
