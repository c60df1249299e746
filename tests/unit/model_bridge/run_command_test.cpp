// The Run button: what is checked before a run, what a run leaves behind, and what ends it.
#include "model_bridge/run_command.h"

#include "model_bridge/treatment_probe.h"
#include "run_definition/apply_steps.h"
#include "run_definition/reset.h"
#include "run_definition/step_engine.h"
#include "unit/model_bridge/bridge_testing.h"
#include "unit/model_bridge/result_window.h"

#include <gtest/gtest.h>

namespace arbolith {
namespace {

class RunCommandTest : public testing::Test {
protected:
    RunCommandTest() {
        run.probeTreatments = [this] { TreatmentProbe(run); };
        ResetInput(run);
        run.form.lstSpecies.SetListIndex(0);
        run.form.Lcap.SetListIndex(5);
        run.form.Stocking_Index.SetText("100");
        run.form.txtRotAge.SetText("80");
        run.StepsReached = 7;
        host.model = [this](const ProgramStart&) {
            folder.Write("_OUTPUT.TMP", ModelOutput({{.sage = 5}, {.sage = 10}}));
        };
    }

    void Click() { ClickRun(command); }

    TestFolder folder;
    FakeHost host;
    Application application{host, folder.Path(), ""};
    RunDefinition run{application};
    ResultWindow result{application};
    int timesApplied = 0;
    RunCommand command{run, [this]() -> YieldTable& { return result; }, [this] { ++timesApplied; }};
};

TEST_F(RunCommandTest, RunsAValidStandOnce) {
    Click();
    EXPECT_TRUE(host.boxes.empty());
    ASSERT_EQ(host.starts.size(), 1u);
    EXPECT_EQ(host.starts[0].mode, 0);
    EXPECT_TRUE(result.Window().Visible());
    EXPECT_EQ(timesApplied, 0);
}

TEST_F(RunCommandTest, CommitsTheWholeInputFirst) {
    Click();
    EXPECT_EQ(folder.Read("_INPUT.TMP"),
              "0\tY\tY\tWP\t6\t0.0\t1\t0.0\t0.0\t80\t0.0\t0.0\t0.0\t0.0\t0.0\t0.0\t0.0\t0.0\t100\t"
              "\r\n");
    EXPECT_EQ(run.record.SPEC, "White Pine");
}

TEST_F(RunCommandTest, CopiesTheWholeTableAndReducesTheSelection) {
    Click();
    ASSERT_EQ(result.copies.size(), 1u);
    EXPECT_TRUE(result.copies[0].starts_with("SAGE\tTDBH\t"));
    EXPECT_TRUE(result.copies[0].ends_with("\t1"));
    const auto& table = result.Table();
    EXPECT_EQ(table.Row(), 1);
    EXPECT_EQ(table.Col(), 1);
    EXPECT_EQ(table.RowSel(), 1);
    EXPECT_EQ(table.ColSel(), 1);
}

TEST_F(RunCommandTest, OpensAllStepsOfAValidInput) {
    EnableSteps(run, 1);
    Click();
    EXPECT_TRUE(run.form.Step7_Btn.Enabled());
    EXPECT_TRUE(run.form.Run.Enabled());
    EXPECT_TRUE(run.form.Append_Btn.Enabled());
}

TEST_F(RunCommandTest, ProbesHiddenBeforeItRuns) {
    run.form.Age1.SetText("5");
    run.form.BA1.SetText("30");
    host.model = [this](const ProgramStart&) {
        EXPECT_NE(folder.Read("_INPUT.TMP").find("\t5.0\t0.0\t0.0\t0.0\t30.0\t"),
                  std::string::npos);
        folder.Write("_OUTPUT.TMP", ModelOutput({{.sage = 5, .mdbh = 14, .th = 20}}));
    };
    Click();
    EXPECT_TRUE(host.boxes.empty());
    ASSERT_EQ(host.starts.size(), 2u);
    EXPECT_EQ(host.starts[0].mode, 1);
    EXPECT_EQ(host.starts[1].mode, 0);
}

TEST_F(RunCommandTest, StopsAtAFaultOfTheTreatments) {
    run.form.Age1.SetText("90");
    EnableSteps(run, 7);
    Click();
    ASSERT_EQ(host.boxes.size(), 1u);
    EXPECT_EQ(host.boxes[0].text,
              "Age or DBH entered for treatment #1 must not exceed the length of the simulation "
              "specified in step 6.");
    EXPECT_EQ(host.boxes[0].title, "Input Error");
    EXPECT_EQ(host.boxes[0].icon, BoxIcon::kExclamation);
    EXPECT_TRUE(run.form.Step7.Visible());
    EXPECT_EQ(run.form.Options.Caption(), "Step 7:");
    EXPECT_EQ(run.form.Age1.Text(), "90");
    EXPECT_FALSE(run.form.Append_Btn.Enabled());
    EXPECT_EQ(host.starts.size(), 1u) << "only the probe";
    EXPECT_TRUE(result.copies.empty());
    EXPECT_FALSE(result.Window().Visible());
}

TEST_F(RunCommandTest, AppliesWhileTheButtonSaysSo) {
    run.form.Run.SetCaption("Apply");
    Click();
    EXPECT_EQ(timesApplied, 1);
    EXPECT_TRUE(host.starts.empty());
    EXPECT_FALSE(folder.Holds("_INPUT.TMP"));
    EXPECT_EQ(result.copies.size(), 1u);
    EXPECT_FALSE(result.Window().Visible());
}

TEST_F(RunCommandTest, AppliesNothingOfAFaultyInput) {
    run.form.Run.SetCaption("Apply");
    run.form.Age1.SetText("90");
    Click();
    EXPECT_EQ(timesApplied, 0);
    EXPECT_EQ(host.boxes.size(), 1u);
    EXPECT_TRUE(result.copies.empty());
}

TEST_F(RunCommandTest, RunsUnderAnyOtherCaption) {
    run.form.Run.SetCaption("apply");
    Click();
    EXPECT_EQ(timesApplied, 0);
    EXPECT_EQ(host.starts.size(), 1u);
}

TEST_F(RunCommandTest, TellsOfAMissingOutput) {
    host.model = nullptr;
    Click();
    ASSERT_EQ(host.boxes.size(), 1u);
    EXPECT_EQ(host.boxes[0].text, kRequiredFileMissing);
    EXPECT_EQ(host.boxes[0].title, "");
    EXPECT_EQ(host.boxes[0].icon, BoxIcon::kNone);
    EXPECT_FALSE(result.Window().Visible());
    EXPECT_EQ(run.form.txtRotAge.Text(), "80");
    EXPECT_TRUE(result.copies.empty());
}

TEST_F(RunCommandTest, IsSilentAboutAnOutputThatIsNoTable) {
    for (const std::string output : {"", "x", "5.5\r\n0 5 1"}) {
        host.model = [&](const ProgramStart&) { folder.Write("_OUTPUT.TMP", output); };
        Click();
        EXPECT_TRUE(host.boxes.empty());
        EXPECT_FALSE(result.Window().Visible());
    }
    EXPECT_NO_THROW(application.Files().OpenForOutput(1, folder.PathOf("free")));
}

TEST_F(RunCommandTest, TakesTheNextRunAfterAFailedOne) {
    const auto works = host.model;
    host.model = [this](const ProgramStart&) { folder.Write("_OUTPUT.TMP", "5.5\r\n0 5 1"); };
    Click();
    host.model = works;
    Click();
    EXPECT_TRUE(result.Window().Visible());
    EXPECT_EQ(result.Table().Rows(), 4);
}

TEST_F(RunCommandTest, LetsASecondClickRunDuringTheFirst) {
    host.whileWaiting = [this] {
        host.whileWaiting = nullptr;
        Click();
        EXPECT_TRUE(result.Window().Visible());
    };
    Click();
    EXPECT_EQ(host.starts.size(), 2u);
    EXPECT_EQ(result.copies.size(), 2u);
    EXPECT_EQ(result.Table().Rows(), 4);
    EXPECT_TRUE(result.Window().Visible());
    EXPECT_TRUE(host.boxes.empty());
}

TEST_F(RunCommandTest, UnwindsWithoutATraceWhenTheProgramEndsMeanwhile) {
    host.whileWaiting = [this] { application.End(); };
    EXPECT_THROW(Click(), ProgramEnded);
    EXPECT_TRUE(host.boxes.empty());
    EXPECT_TRUE(result.copies.empty());
    EXPECT_FALSE(result.Window().Visible());
}

TEST_F(RunCommandTest, RunsAnythingInAdvancedMode) {
    run.form.Adv_Mode.SetChecked(true);
    ResetInput(run);
    run.form.lstSpecies.SetListIndex(2);
    run.form.Age1.SetText("999");
    Click();
    EXPECT_TRUE(host.boxes.empty());
    EXPECT_EQ(host.starts.size(), 1u);
    EXPECT_EQ(
        folder.Read("_INPUT.TMP"),
        "0\tY\tY\tBS\t0\t0.0\t1\t0.0\t0.0\t0\t0.0\t999.0\t0.0\t0.0\t0.0\t0.0\t0.0\t0.0\t0\t\r\n");
}

}  // namespace
}  // namespace arbolith
