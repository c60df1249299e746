// The step engine: which buttons open, which step is shown, and what is told.
#include "run_definition/step_engine.h"

#include "unit/run_definition/step_testing.h"

#include <gtest/gtest.h>

namespace arbolith {
namespace {

class EnableLevels : public testing::TestWithParam<int> {};

TEST_P(EnableLevels, OpenTheStepsUpToTheirNumber) {
    BareRun bare;
    auto& form = bare.form;
    const int level = GetParam();
    EnableSteps(bare.run, level);
    const Button* buttons[] = {&form.Step1_Btn, &form.Step2_Btn, &form.Step3_Btn, &form.Step4_Btn,
                               &form.Step5_Btn, &form.Step6_Btn, &form.Step7_Btn};
    EXPECT_EQ(buttons[0]->Enabled(), level >= 0);
    for (int step = 2; step <= 7; ++step)
        EXPECT_EQ(buttons[step - 1]->Enabled(), level > step - 1) << "step " << step;
    EXPECT_EQ(form.Run.Enabled(), level >= 7);
    EXPECT_EQ(form.Append_Btn.Enabled(), level >= 8);
}

INSTANTIATE_TEST_SUITE_P(AllLevels, EnableLevels, testing::Range(-1, 10));

TEST(EnableSteps, AdvancedModeRaisesEveryLevel) {
    BareRun bare;
    bare.form.Adv_Mode.SetChecked(true);
    EnableSteps(bare.run, 0);
    EXPECT_EQ(LevelOf(bare.form), 8);
}

class StepEngine : public StepTest {};

TEST_F(StepEngine, AFirstPassOpensStepAfterStep) {
    EXPECT_EQ(running.Level(), 1);
    EXPECT_EQ(Shown(), 0);

    running.PressStep(1);
    EXPECT_EQ(run.StepsReached, 2);
    EXPECT_EQ(running.Level(), 3);
    EXPECT_EQ(Shown(), 1);

    running.PressStep(3);
    EXPECT_EQ(run.StepsReached, 3);
    EXPECT_EQ(running.Level(), 3);
    EXPECT_EQ(Shown(), 3);
    running.Select(form.lstSpecies, "Red Pine");
    EXPECT_EQ(running.Level(), 4);

    running.PressStep(4);
    EXPECT_EQ(run.StepsReached, 4);
    EXPECT_EQ(running.Level(), 4);
    EXPECT_EQ(Shown(), 4);
    running.Select(form.Lcap, "6");
    EXPECT_EQ(running.Level(), 5);

    running.PressStep(5);
    EXPECT_EQ(run.StepsReached, 5);
    EXPECT_EQ(running.Level(), 5);
    EXPECT_EQ(Shown(), 5);
    person.Type(form.Stocking_Index, "100");
    EXPECT_EQ(running.Level(), 6);

    running.PressStep(6);
    EXPECT_EQ(run.StepsReached, 7);
    EXPECT_EQ(running.Level(), 6);
    EXPECT_EQ(Shown(), 6);
    person.Type(form.txtRotAge, "8");
    EXPECT_EQ(running.Level(), 6);
    person.Type(form.txtRotAge, "80");
    EXPECT_EQ(running.Level(), 8) << "an empty step 7 is valid";

    running.PressStep(7);
    EXPECT_EQ(Shown(), 7);
    EXPECT_EQ(running.Level(), 8);
    EXPECT_TRUE(host.boxes.empty());
}

TEST_F(StepEngine, StepTwoNeedsNothingOfItsOwn) {
    running.Press({1, 2});
    EXPECT_EQ(run.StepsReached, 2);
    EXPECT_EQ(running.Level(), 3);
    EXPECT_EQ(Shown(), 2);
}

TEST_F(StepEngine, AButtonCommitsTheStepsBeforeItsOwn) {
    running.Press({1, 2});
    person.Click(form.chkPlant);
    person.Type(form.spac1, "2");
    person.Type(form.spac2, "2");
    EXPECT_TRUE(run.record.NatFlag);
    running.PressStep(3);
    EXPECT_TRUE(run.record.PlantFlag);
    EXPECT_EQ(run.record.FREQ, 2500);
    running.Select(form.lstSpecies, "Red Pine");
    EXPECT_EQ(run.record.SPEC, "");
    running.PressStep(4);
    EXPECT_EQ(run.record.SPEC, "Red Pine");
    running.Select(form.Lcap, "6");
    EXPECT_EQ(run.record.LC, 0);
    running.PressStep(5);
    EXPECT_EQ(run.record.LC, 6);
    person.Type(form.Stocking_Index, "90");
    EXPECT_EQ(run.record.STK, 0);
    running.PressStep(6);
    EXPECT_EQ(run.record.STK, 90);
    person.Type(form.txtRotAge, "80");
    EXPECT_EQ(run.record.RAGE, 0);
    running.PressStep(7);
    EXPECT_EQ(run.record.RAGE, 80);
}

TEST_F(StepEngine, AButtonSetsTheGuidanceOfItsStep) {
    running.EnterSoftwood();
    for (Label* help : {&form.Help2, &form.Help3, &form.Help4, &form.Help6, &form.Help7})
        help->SetCaption("old");
    for (const int step : {2, 3, 4, 6, 7}) {
        running.PressStep(step);
        const auto* help = form.Find("Help" + std::to_string(step));
        EXPECT_NE(help->Caption(), "old") << help->Name();
    }
}

TEST_F(StepEngine, TheSeventhButtonProbesTheTreatments) {
    running.ModelAnswers({{40, 15, 15, 2000, 20}});
    running.EnterSoftwood();
    EXPECT_FALSE(form.BA1.Visible());
    person.Type(form.Age1, "40");
    EXPECT_TRUE(form.BA1.Visible());
    running.ModelAnswers({{40, 5, 5, 2000, 20}});
    host.starts.clear();
    running.PressStep(7);
    EXPECT_EQ(host.starts.size(), 1U);
    EXPECT_FALSE(form.BA1.Visible());
}

TEST_F(StepEngine, StepsReachedNeverFalls) {
    running.EnterSoftwood();
    for (const int step : {1, 2, 3, 4, 5, 6, 7}) {
        running.PressStep(step);
        EXPECT_EQ(run.StepsReached, 7) << step;
        EXPECT_EQ(Shown(), step);
    }
    person.Click(form.Clear);
    EXPECT_EQ(run.StepsReached, 0);
}

TEST_F(StepEngine, TheButtonOfTheFailingStepEntersItQuietly) {
    running.EnterSoftwood();
    running.PressStep(5);
    person.Type(form.Stocking_Index, "0");
    EXPECT_EQ(running.Level(), 5);
    running.PressStep(1);
    running.PressStep(5);
    EXPECT_TRUE(host.boxes.empty());
    EXPECT_EQ(Shown(), 5);
    EXPECT_EQ(running.Level(), 5);
}

TEST_F(StepEngine, AButtonBeforeTheFailingStepEntersItsStepQuietly) {
    running.EnterSoftwood();
    running.PressStep(5);
    person.Type(form.Stocking_Index, "101");
    running.PressStep(3);
    EXPECT_TRUE(host.boxes.empty());
    EXPECT_EQ(Shown(), 3);
    EXPECT_EQ(running.Level(), 5);
}

TEST_F(StepEngine, ALaterButtonTellsTheFaultAndShowsItsStep) {
    running.EnterSoftwood();
    running.PressStep(5);
    person.Type(form.Stocking_Index, "0");
    person.Press(form.Stocking_Index, {Key::kEnter});
    ExpectInputError(
        "The Stocking index is outside the valid range: Please enter a Stocking Index between 1% "
        "and 100%");
    EXPECT_EQ(Shown(), 5);
    EXPECT_EQ(running.Level(), 5);
    EXPECT_TRUE(form.Stocking_Index.HasFocus());
    EXPECT_EQ(form.Stocking_Index.Text(), "0") << "left to be mended";
}

TEST_F(StepEngine, AFaultInAnEarlyStepClosesTheLaterOnesQuietly) {
    running.Press({1, 2});
    person.Click(form.chkPlant);
    person.Type(form.spac1, "2");
    person.Type(form.spac2, "2");
    running.PressStep(3);
    running.Select(form.lstSpecies, "Red Pine");
    running.PressStep(4);
    running.Select(form.Lcap, "6");
    running.PressStep(5);
    person.Type(form.Stocking_Index, "50");
    running.PressStep(6);
    person.Type(form.txtRotAge, "80");
    EXPECT_EQ(running.Level(), 8);
    running.PressStep(2);
    person.Press(form.spac1, {Key::kBackspace});
    EXPECT_EQ(form.spac1.Text(), "");
    EXPECT_EQ(running.Level(), 2);
    EXPECT_FALSE(form.Run.Enabled());
    person.Type(form.spac1, "2");
    EXPECT_EQ(running.Level(), 8);
    EXPECT_TRUE(host.boxes.empty());
}

TEST_F(StepEngine, ALaterFaultClosesWhatIsBehindIt) {
    running.EnterSoftwood();
    running.PressStep(6);
    person.Type(form.txtRotAge, "9");
    EXPECT_EQ(running.Level(), 6);
    running.PressStep(5);
    person.Type(form.Stocking_Index, "99");
    EXPECT_EQ(running.Level(), 6) << "step 6 still fails";
}

TEST_F(StepEngine, AFaultBeforeTheChangedStepLeavesTheButtonsOpen) {
    running.EnterSoftwood();
    run.StepErrorFlag = false;
    {
        const HeldBackEvents quiet(running.application);
        form.Stocking_Index.SetText("");
    }
    RecheckSteps(run, 6);
    EXPECT_TRUE(run.StepErrorFlag);
    EXPECT_EQ(run.StepErrorStep, 5);
    EXPECT_EQ(running.Level(), 8);
    RecheckSteps(run, 5);
    EXPECT_EQ(running.Level(), 5);
}

TEST_F(StepEngine, RecheckingAStepThatDoesNotExistDoesNothing) {
    EnableSteps(run, 4);
    RecheckSteps(run, 0);
    RecheckSteps(run, 8);
    EXPECT_EQ(running.Level(), 4);
    RecheckSteps(run, 1);
    EXPECT_EQ(running.Level(), 1);
}

TEST_F(StepEngine, AFaultInStep7IsFoundAtTheNextChangeElsewhere) {
    running.ModelAnswers({{40, 15, 15, 2000, 20}});
    running.EnterSoftwood();
    person.Type(form.Age1, "40");
    EXPECT_TRUE(form.BA1.Enabled());
    EXPECT_EQ(running.Level(), 8) << "not yet";
    running.PressStep(5);
    EXPECT_EQ(running.Level(), 7);
    EXPECT_TRUE(host.boxes.empty());
    person.Type(form.Stocking_Index, "90");
    EXPECT_EQ(running.Level(), 7);
    running.PressStep(7);
    EXPECT_TRUE(host.boxes.empty());
    EXPECT_EQ(Shown(), 7);
    EXPECT_TRUE(form.Run.Enabled());
    EXPECT_FALSE(form.Append_Btn.Enabled());
    person.Click(form.Run);
    ExpectInputError("A B.A. Reduction or Spacing parameter is required for treatment #1.");
    EXPECT_EQ(Shown(), 7);
}

TEST_F(StepEngine, TheFirstFieldOfAShownStepGetsTheFocus) {
    struct Case {
        int step;
        std::initializer_list<std::pair<Option*, bool>> options;
        const Control* focused;
    };
    for (const auto& shown : {
             Case{1, {{&form.Choose_Swd, true}}, &form.Choose_Swd},
             Case{1, {{&form.Choose_Swd, false}, {&form.Choose_Hwd, true}}, &form.Choose_Hwd},
             Case{2, {{&form.chkNat, true}}, &form.chkNat},
             Case{2, {{&form.chkNat, false}, {&form.chkPlant, true}}, &form.spac1},
             Case{3, {}, &form.lstSpecies},
             Case{4, {{&form.choose_Land, true}}, &form.Lcap},
             Case{4, {{&form.choose_Land, false}, {&form.choose_Site, true}}, &form.Site},
             Case{5, {}, &form.Stocking_Index},
             Case{6, {{&form.Step6_opt1, true}}, &form.txtRotAge},
             Case{6, {{&form.Step6_opt1, false}, {&form.Step6_opt2, true}}, &form.txtRotDBH},
             Case{7, {{&form.Step7_T1Age, true}, {&form.Step7_T1DBH, false}}, &form.Age1},
             Case{7, {{&form.Step7_T1Age, false}, {&form.Step7_T1DBH, true}}, &form.DBH1},
         }) {
        const HeldBackEvents quiet(running.application);
        for (const auto& [option, value] : shown.options) option->SetValue(value);
        for (Control* field :
             std::initializer_list<Control*>{&form.spac1, &form.Site, &form.txtRotDBH, &form.DBH1})
            field->SetEnabled(true);
        running.application.SetFocus(form.Clear);
        ShowStep(run, shown.step);
        EXPECT_EQ(running.application.Focused(), shown.focused)
            << "step " << shown.step << " " << shown.focused->Name();
        EXPECT_EQ(Shown(), shown.step);
    }
}

TEST_F(StepEngine, TheFocusStaysWhereTheTreatmentFieldIsNotVisible) {
    running.EnterSoftwood();
    running.application.SetFocus(form.Clear);
    form.Age1.SetVisible(false);
    ShowStep(run, 7);
    EXPECT_TRUE(form.Clear.HasFocus());
    form.Age1.SetVisible(true);
    form.Age1.SetEnabled(false);
    ShowStep(run, 7);
    EXPECT_TRUE(form.Clear.HasFocus());
}

TEST_F(StepEngine, NoStepShowsTheHintAndLeavesTheFocus) {
    running.PressStep(1);
    running.application.SetFocus(form.Clear);
    ShowStep(run, 0);
    EXPECT_EQ(Shown(), 0);
    EXPECT_TRUE(form.Clear.HasFocus());
}

TEST_F(StepEngine, TheLinkOnNorwaySpruceShowsInItsStepOnly) {
    running.Press({1, 3});
    EXPECT_FALSE(form.NSpruceHelp.Visible());
    running.Select(form.lstSpecies, "Norway Spruce");
    EXPECT_TRUE(form.NSpruceHelp.Visible());
    running.PressStep(4);
    EXPECT_FALSE(form.NSpruceHelp.Visible());
    running.PressStep(3);
    EXPECT_TRUE(form.NSpruceHelp.Visible());
    running.Select(form.lstSpecies, "White Spruce");
    EXPECT_FALSE(form.NSpruceHelp.Visible());
}

TEST_F(StepEngine, AFailedStepBringsTheSingleRunViewForward) {
    form.Qvly.SetVisible(false);
    form.Batch.SetVisible(true);
    run.StepErrorStep = 4;
    ShowFailedStep(run);
    EXPECT_TRUE(form.Qvly.Visible());
    EXPECT_FALSE(form.Batch.Visible());
    EXPECT_EQ(Shown(), 4);
    run.StepErrorStep = 0;
    ShowFailedStep(run);
    EXPECT_EQ(Shown(), 4) << "no step to show";
    run.StepErrorStep = 8;
    ShowFailedStep(run);
    EXPECT_EQ(Shown(), 4);
}

TEST_F(StepEngine, CheckingStopsAtTheFirstFault) {
    running.PressStep(1);
    run.StepErrorFlag = false;
    CheckSteps(run, 7);
    EXPECT_EQ(run.StepErrorStep, 3);
    run.StepErrorFlag = false;
    CheckSteps(run, 2);
    EXPECT_FALSE(run.StepErrorFlag);
    form.Adv_Mode.SetChecked(true);
    CheckSteps(run, 7);
    EXPECT_FALSE(run.StepErrorFlag);
}

}  // namespace
}  // namespace arbolith
