// Resetting: whatever stood before, the start state stands after.
#include "run_definition/reset.h"

#include "run_definition/step_engine.h"
#include "unit/run_definition/run_testing.h"

#include <gtest/gtest.h>
#include <map>
#include <sstream>

namespace arbolith {
namespace {

// Everything that can be seen of a control, in words.
std::string StateOf(const Control& control) {
    std::ostringstream state;
    state << control.Caption() << '|' << (control.Visible() ? "visible" : "hidden") << '|'
          << (control.Enabled() ? "enabled" : "disabled") << '|' << control.BackColor() << '|';
    switch (control.Kind()) {
        case ControlKind::kOption:
            state << static_cast<const Option&>(control).Value();
            break;
        case ControlKind::kButton:
            state << static_cast<const Button&>(control).IsMarked();
            break;
        case ControlKind::kTextBox:
            state << static_cast<const TextBox&>(control).Text();
            break;
        case ControlKind::kMenuItem:
            state << static_cast<const MenuItem&>(control).Checked();
            break;
        case ControlKind::kListBox: {
            const auto& list = static_cast<const ListBox&>(control);
            for (const auto& row : list.List()) state << row << ',';
            state << list.ListIndex();
            break;
        }
        default:
            break;
    }
    return state.str();
}

std::map<std::string, std::string> StatesOf(const MainForm& form) {
    std::map<std::string, std::string> states;
    for (const Control* control : form.Controls()) states[control->Name()] = StateOf(*control);
    // The probe's density is no part of the input.
    states.erase("tf_textbox");
    return states;
}

void ExpectStartState(const RunDefinition& run) {
    EXPECT_EQ(run.StepsReached, 0);
    EXPECT_FALSE(run.StepErrorFlag);
    EXPECT_EQ(run.StepErrorText, "");
    EXPECT_EQ(run.StepErrorStep, 0);
    EXPECT_TRUE(run.InputChanged);
    EXPECT_TRUE(run.TreatmentKeysOpen);
    EXPECT_TRUE(run.SoftwoodT2Allowed);
    EXPECT_FALSE(run.ShortHardwoodList);
    EXPECT_EQ(run.globals.UnitSystem, "Metric");
    EXPECT_EQ(run.species.SpeciesCodes.front(), "WP");
    EXPECT_EQ(run.species.SpeciesCodes.size(), 8U);
}

void ExpectEmptyRecord(const RunRecord& record) {
    EXPECT_EQ(record.WDTYPE, "Softwood");
    EXPECT_TRUE(record.NatFlag);
    EXPECT_FALSE(record.PlantFlag);
    EXPECT_TRUE(record.LcFlag);
    EXPECT_FALSE(record.SiFlag);
    EXPECT_TRUE(record.RotAgeFlag);
    EXPECT_FALSE(record.RotDbhFlag);
    EXPECT_EQ(record.SPEC, "");
    for (const double value :
         {record.SPX, record.SPY, record.FREQ, record.SIB, record.RDBH, record.T1Age, record.T1DBH,
          record.T1IBA, record.ISD, record.T2Age, record.T2DBH, record.T2IBA})
        EXPECT_EQ(value, 0);
    EXPECT_EQ(record.LC, 0);
    EXPECT_EQ(record.STK, 0);
    EXPECT_EQ(record.RAGE, 0);
}

class Reset : public RunningTest {
protected:
    std::map<std::string, std::string> fresh = StatesOf(form);

    void ExpectFresh() {
        const auto now = StatesOf(form);
        for (const auto& [name, state] : fresh) EXPECT_EQ(now.at(name), state) << name;
        ExpectStartState(run);
        ExpectEmptyRecord(run.record);
    }
};

TEST_F(Reset, AFreshFormStandsAtTheStart) {
    ExpectStartState(run);
    ExpectEmptyRecord(run.record);
    EXPECT_EQ(running.Level(), 1);
    EXPECT_TRUE(form.Options_Help.Visible());
    for (const Control* hidden : std::initializer_list<Control*>{
             &form.Step1, &form.Step2, &form.Step3, &form.Step4, &form.Step5, &form.Step6,
             &form.Step7, &form.Help1, &form.Help2, &form.Help3, &form.Help4, &form.Help5,
             &form.Help6, &form.Help7, &form.NSpruceHelp, &form.Help4a})
        EXPECT_FALSE(hidden->Visible()) << hidden->Name();
    EXPECT_TRUE(form.Choose_Swd.Value());
    EXPECT_FALSE(form.Choose_Hwd.Value());
    EXPECT_TRUE(form.choose_Metric.Value());
    EXPECT_FALSE(form.choose_Imperial.Value());
    EXPECT_TRUE(form.chkNat.Value());
    EXPECT_FALSE(form.chkPlant.Value());
    EXPECT_TRUE(form.chkPlant.Enabled());
    EXPECT_TRUE(form.choose_Land.Value());
    EXPECT_FALSE(form.choose_Site.Value());
    EXPECT_TRUE(form.Step6_opt1.Value());
    EXPECT_FALSE(form.Step6_opt2.Value());
    EXPECT_TRUE(form.Step7_T1Age.Value());
    EXPECT_FALSE(form.Step7_T1DBH.Value());
}

TEST_F(Reset, AFreshFormShowsTheStartValuesInItsSummary) {
    EXPECT_EQ(form.Step1_Type.Caption(), "Softwood");
    EXPECT_EQ(form.Step1_Unit.Caption(), "Metric");
    EXPECT_EQ(form.Step2_Nat.Caption(), "Yes");
    EXPECT_EQ(form.Step2_Plant.Caption(), "No");
    EXPECT_EQ(form.Step7_lbl2.Caption(), "Treatment:      1        2");
    for (const Label* empty :
         {&form.Step2_Spac1, &form.Step2_Spac2, &form.Step3_Spec, &form.Step4_Site,
          &form.Step4_Land, &form.Step4_Freq, &form.Step5_Stock, &form.Step6_Age, &form.Step6_DBH,
          &form.Step7_Age1, &form.Step7_Age2, &form.Step7_DBH1, &form.Step7_BA1, &form.Step7_BA2,
          &form.Step7_Spac})
        EXPECT_EQ(empty->Caption(), "") << empty->Name();
}

TEST_F(Reset, AFreshFormOffersTheSoftwoodLists) {
    EXPECT_EQ(form.lstSpecies.ListCount(), 8);
    EXPECT_EQ(form.lstSpecies.ListIndex(), -1);
    EXPECT_EQ(form.Lcap.ListCount(), 13);
    EXPECT_EQ(form.Lcap.List().front(), "1");
    EXPECT_EQ(form.Lcap.List().back(), "13");
    EXPECT_EQ(form.Lcap.ListIndex(), -1);
}

TEST_F(Reset, AFreshFormHasTheTreatmentTimesOpenAndTheAmountsClosed) {
    for (const TextBox* box :
         {&form.Age1, &form.DBH1, &form.BA1, &form.Spacing, &form.Age2, &form.BA2}) {
        EXPECT_TRUE(box->Visible()) << box->Name();
        EXPECT_EQ(box->Text(), "") << box->Name();
    }
    for (const TextBox* box : {&form.BA1, &form.BA2, &form.Spacing, &form.DBH1})
        EXPECT_FALSE(box->Enabled()) << box->Name();
    EXPECT_TRUE(form.Age1.Enabled());
    EXPECT_TRUE(form.Age2.Enabled());
}

TEST_F(Reset, AFreshFormHasItsGuidance) {
    EXPECT_EQ(form.Help1.Caption(), "");
    EXPECT_EQ(form.Help2.Caption(), "");
    EXPECT_EQ(form.Help4.Caption(), "");
    EXPECT_EQ(form.Help6.Caption(),
              "Enter the length of the simulation as either the ending stump age (Rotation Age) or "
              "average diameter at breast height (Rotation DBH). \nRotation Age: Minimum = 20 "
              "years, Maximum = 120 years");
}

TEST_F(Reset, ForgetsAPlantation) {
    running.Press({1, 2});
    person.Click(form.chkPlant);
    person.Type(form.spac1, "2");
    person.Type(form.spac2, "1.5");
    running.PressStep(3);
    running.Select(form.lstSpecies, "Norway Spruce");
    running.PressStep(4);
    person.Click(form.choose_Site);
    person.Type(form.Site, "99");
    running.host.boxes.clear();
    person.Click(form.Clear);
    ExpectFresh();
    EXPECT_TRUE(running.host.boxes.empty());
}

TEST_F(Reset, ForgetsAThinnedSoftwoodStand) {
    running.ModelAnswers({{40, 15, 15, 2000, 8}, {60, 20, 20, 1500, 12}});
    running.EnterSoftwood();
    person.Type(form.Age1, "40");
    person.Type(form.BA1, "30");
    person.Type(form.Age2, "60");
    person.Type(form.BA2, "20");
    EXPECT_EQ(form.Step7_BA2.Caption(), "20");
    const auto starts = running.host.starts.size();
    person.Click(form.Clear);
    ExpectFresh();
    EXPECT_EQ(running.host.starts.size(), starts) << "a reset asks no model";
}

TEST_F(Reset, ForgetsATreatmentByDiameter) {
    running.ModelAnswers({{40, 25, 15, 2000, 8}});
    running.EnterSoftwood();
    running.PressStep(6);
    person.Click(form.Step6_opt2);
    person.Type(form.txtRotDBH, "40");
    running.PressStep(7);
    person.Click(form.Step7_T1DBH);
    person.Type(form.DBH1, "20");
    person.Click(form.Clear);
    ExpectFresh();
}

TEST_F(Reset, ForgetsAnImperialHardwoodStand) {
    running.ModelAnswers({{40, 6, 6, 500, 25}});
    running.PressStep(1);
    person.Click(form.choose_Imperial);
    person.Click(form.Choose_Hwd);
    running.Press({2, 3});
    running.Select(form.lstSpecies, "Red Maple");
    running.PressStep(4);
    person.Click(form.choose_Site);
    person.Type(form.Site, "60");
    running.PressStep(5);
    person.Type(form.Stocking_Index, "80");
    running.PressStep(6);
    person.Type(form.txtRotAge, "90");
    running.PressStep(7);
    person.Type(form.Age1, "40");
    EXPECT_TRUE(form.BA1.Enabled());
    person.Click(form.Clear);
    ExpectFresh();
}

TEST_F(Reset, OpensTheTreatmentKeysAgain) {
    running.EnterSoftwood();
    person.Type(form.Age1, "4");
    EXPECT_FALSE(run.TreatmentKeysOpen) << "the probe met an error";
    person.Click(form.Clear);
    ExpectFresh();
}

TEST_F(Reset, RaisesNoEventAndTellsTheOtherFolders) {
    int told = 0;
    running.EnterSoftwood();
    run.onReset = [&] { ++told; };
    int events = 0;
    const auto count = [&events] { ++events; };
    form.Stocking_Index.onChange = form.txtRotAge.onChange = form.Choose_Swd.onClick =
        form.lstSpecies.onClick = form.Lcap.onClick = form.Step3_Spec.onChange = count;
    ResetInput(run);
    EXPECT_EQ(events, 0);
    EXPECT_EQ(told, 1);
}

TEST_F(Reset, LeavesTheViewAndTheCommandsAlone) {
    form.Batch.SetVisible(true);
    form.Qvly.SetVisible(false);
    form.Run.SetCaption("Apply");
    form.CancelAppend.SetVisible(true);
    form.Append_Btn.SetVisible(true);
    ResetInput(run);
    EXPECT_TRUE(form.Batch.Visible());
    EXPECT_FALSE(form.Qvly.Visible());
    EXPECT_EQ(form.Run.Caption(), "Apply");
    EXPECT_TRUE(form.CancelAppend.Visible());
    EXPECT_TRUE(form.Append_Btn.Visible());
}

TEST_F(Reset, OpensAllStepsWhileTheAdvancedModeIsOn) {
    form.Adv_Mode.SetChecked(true);
    ResetInput(run);
    EXPECT_EQ(running.Level(), 8);
    EXPECT_EQ(form.Lcap.ListCount(), 13);
    EXPECT_TRUE(form.Adv_Mode.Checked());
}

TEST_F(Reset, TakesTheHighlightFromAFieldThatGoes) {
    running.host.answers = {true};
    running.EnterSoftwood();
    running.PressStep(5);
    EXPECT_EQ(form.stk_lbl.BackColor(), run.FocusColour);
    person.Click(form.Adv_Mode);
    EXPECT_EQ(form.stk_lbl.BackColor(), run.RestColour);
    EXPECT_EQ(form.Step5_Stock.BackColor(), run.RestColour);
    EXPECT_TRUE(form.Options_Help.Visible());
}

}  // namespace
}  // namespace arbolith
