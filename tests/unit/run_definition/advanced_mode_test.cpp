// The advanced mode: asked for, all open and unchecked, and left again.
#include "run_definition/step_engine.h"
#include "unit/run_definition/step_testing.h"

#include <gtest/gtest.h>

namespace arbolith {
namespace {

class AdvancedMode : public StepTest {};

TEST_F(AdvancedMode, InAdvancedModeAFailedStepIsNotShown) {
    form.Adv_Mode.SetChecked(true);
    form.Qvly.SetVisible(false);
    form.Batch.SetVisible(true);
    run.StepErrorStep = 4;
    ShowFailedStep(run);
    EXPECT_TRUE(form.Batch.Visible());
    EXPECT_FALSE(form.Step4.Visible());
}

TEST_F(AdvancedMode, AdvancedModeAsksFirst) {
    running.EnterSoftwood();
    host.answers = {false};
    person.Click(form.Adv_Mode);
    ASSERT_EQ(host.boxes.size(), 1U);
    EXPECT_EQ(host.boxes[0].text,
              "Enabling advanced mode will cause all input to be reset, \n        and invalid "
              "input will be ignored from now on.\n\nAre you sure you want to enable advanced user "
              "mode?");
    EXPECT_EQ(host.boxes[0].title, "Confirm selection");
    EXPECT_EQ(host.boxes[0].buttons, BoxButtons::kYesNo);
    EXPECT_FALSE(form.Adv_Mode.Checked());
    EXPECT_EQ(form.Stocking_Index.Text(), "100");
    EXPECT_EQ(run.StepsReached, 7);
    EXPECT_EQ(Shown(), 7);
}

TEST_F(AdvancedMode, AdvancedModeResetsAndOpensEverything) {
    running.EnterSoftwood();
    host.answers = {true};
    person.Click(form.Adv_Mode);
    EXPECT_TRUE(form.Adv_Mode.Checked());
    EXPECT_EQ(running.Level(), 8);
    EXPECT_EQ(form.Stocking_Index.Text(), "");
    EXPECT_EQ(run.StepsReached, 0);
    EXPECT_EQ(Shown(), 0);
    host.boxes.clear();

    running.Press({7, 2, 4});
    EXPECT_TRUE(host.boxes.empty()) << "nothing is checked";
    EXPECT_EQ(running.Level(), 8);
    EXPECT_EQ(Shown(), 4);
    person.Click(form.choose_Site);
    person.Type(form.Site, "0");
    EXPECT_EQ(running.Level(), 8);
}

TEST_F(AdvancedMode, LeavingAdvancedModeLeavesTheButtonsOpenUntilTheNextStep) {
    host.answers = {true};
    person.Click(form.Adv_Mode);
    running.PressStep(5);
    host.boxes.clear();
    person.Click(form.Adv_Mode);
    EXPECT_TRUE(host.boxes.empty()) << "no question";
    EXPECT_FALSE(form.Adv_Mode.Checked());
    EXPECT_EQ(running.Level(), 8);
    EXPECT_EQ(run.StepsReached, 0);
    EXPECT_EQ(Shown(), 0);
    running.PressStep(7);
    ExpectInputError("Please select a tree species to model");
    EXPECT_EQ(Shown(), 3);
    EXPECT_EQ(running.Level(), 3);
}

TEST_F(AdvancedMode, LeavingAdvancedModeNarrowsAtTheFirstStep) {
    host.answers = {true};
    person.Click(form.Adv_Mode);
    person.Click(form.Adv_Mode);
    running.PressStep(1);
    EXPECT_EQ(running.Level(), 3);
}

}  // namespace
}  // namespace arbolith
