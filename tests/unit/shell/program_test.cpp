// Start and end of the program: the splash with its timers, the main form behind it, the ways out.
#include "shell/program.h"

#include "forms/user_actions.h"
#include "platform/version.h"
#include "unit/model_bridge/bridge_testing.h"

#include <gtest/gtest.h>

namespace arbolith {
namespace {

class ProgramTest : public testing::Test {
protected:
    void Start() { program.Start(); }
    void StartAndPassTheSplash() {
        Start();
        person.Click(splash.Frame1);
    }
    // A stand that can be run.
    void EnterStand() {
        person.Click(form.Step1_Btn);
        person.Click(form.Step3_Btn);
        person.SelectRow(form.lstSpecies, 0);
        person.Click(form.Step4_Btn);
        person.SelectRow(form.Lcap, 5);
        person.Click(form.Step5_Btn);
        person.Type(form.Stocking_Index, "100");
        person.Click(form.Step6_Btn);
        person.Type(form.txtRotAge, "80");
    }
    void ModelWrites(const std::string& output) {
        host.model = [this, output](const ProgramStart&) { folder.Write("_OUTPUT.TMP", output); };
    }

    TestFolder folder;
    FakeHost host;
    Application application{host, folder.Path(), ""};
    Program program{application};
    UserActions person{application};
    Splash& splash = program.GetSplash();
    RunDefinition& run = program.Run();
    MainForm& form = run.form;
};

TEST_F(ProgramTest, ShowsTheSplashWithTheMainFormReadyBehindIt) {
    Start();
    EXPECT_TRUE(splash.Visible());
    EXPECT_FALSE(form.Visible());
    EXPECT_EQ(form.Caption(), std::string("Arbolith ") + kVersion);
    EXPECT_EQ(form.Step1_Type.Caption(), "Softwood");
    EXPECT_EQ(splash.Pointer(), MousePointer::kDefault);
    EXPECT_EQ(program.Results().output.Find(), nullptr);
}

TEST_F(ProgramTest, TimesTheSplash) {
    Start();
    EXPECT_EQ(splash.Timer1.Interval(), 1000);
    EXPECT_EQ(splash.Timer2.Interval(), 38);
    EXPECT_TRUE(splash.Timer1.Enabled());
    EXPECT_TRUE(splash.Timer2.Enabled());
    person.Tick(splash.Timer2);
    EXPECT_EQ(splash.Pointer(), MousePointer::kHourglass);
    EXPECT_TRUE(splash.Visible());
    person.Tick(splash.Timer1);
    EXPECT_FALSE(splash.Visible());
    EXPECT_TRUE(form.Visible());
    EXPECT_FALSE(splash.Timer1.Enabled());
    EXPECT_FALSE(splash.Timer2.Enabled());
}

TEST_F(ProgramTest, EndsTheSplashAtAClick) {
    Start();
    person.Click(splash.Frame1);
    EXPECT_FALSE(splash.Visible());
    EXPECT_TRUE(form.Visible());
    EXPECT_FALSE(splash.Timer1.Enabled());
    EXPECT_EQ(application.ActiveForm(), &form);
}

TEST_F(ProgramTest, CentresItsFirstTwoFormsAHundredTwipsHigher) {
    host.screen = {12000, 9000};
    Start();
    const auto& ofSplash = splash.GetPlace();
    EXPECT_EQ(ofSplash.top, 9000 / 2 - ofSplash.height / 2 - 100);
    EXPECT_EQ(ofSplash.left, 12000 / 2 - ofSplash.width / 2);
    const auto& ofForm = form.GetPlace();
    EXPECT_EQ(ofForm.top, 9000 / 2 - ofForm.height / 2 - 100);
    EXPECT_EQ(ofForm.left, 12000 / 2 - ofForm.width / 2);
}

TEST_F(ProgramTest, LoadsTheMainFormInItsStartState) {
    StartAndPassTheSplash();
    EXPECT_TRUE(run.SoftwoodT2Allowed);
    EXPECT_FALSE(run.ShortHardwoodList);
    EXPECT_FALSE(form.Adv_Mode.Checked());
    EXPECT_EQ(run.FocusColour, 0xFFFF00u);
    EXPECT_EQ(run.RestColour, 0x8000000Fu);
    EXPECT_EQ(run.StepsReached, 0);
    EXPECT_TRUE(form.Options_Help.Showing());
    EXPECT_FALSE(form.Step2_Btn.Enabled());
    EXPECT_TRUE(host.starts.empty());
    EXPECT_TRUE(host.boxes.empty());
}

TEST_F(ProgramTest, ClosesAFreshFormWithoutAQuestion) {
    StartAndPassTheSplash();
    EXPECT_TRUE(run.InputChanged);
    person.Close(form);
    EXPECT_TRUE(host.boxes.empty());
    EXPECT_EQ(host.ends, 1);
    EXPECT_FALSE(form.Visible());
}

TEST_F(ProgramTest, AsksBeforeARunThatChangedIsLost) {
    StartAndPassTheSplash();
    EnterStand();
    host.answers = {false};
    person.Close(form);
    ASSERT_EQ(host.boxes.size(), 1u);
    EXPECT_EQ(host.boxes[0].text, "Do you wish to save changes to this run before exit?");
    EXPECT_EQ(host.boxes[0].title, "");
    EXPECT_EQ(host.boxes[0].buttons, BoxButtons::kYesNo);
    EXPECT_EQ(host.ends, 1);
}

TEST_F(ProgramTest, SavesTheRunOnYesAndEnds) {
    StartAndPassTheSplash();
    EnterStand();
    host.answers = {true};
    host.files = {{folder.PathOf("stand.qvn")}};
    person.Close(form);
    EXPECT_NE(folder.Read("stand.qvn").find("White Pine"), std::string::npos);
    EXPECT_EQ(host.ends, 1);
}

TEST_F(ProgramTest, EndsAlsoWhenTheSaveIsCancelled) {
    StartAndPassTheSplash();
    EnterStand();
    host.answers = {true};
    person.Close(form);
    EXPECT_EQ(host.questions.size(), 1u);
    EXPECT_EQ(host.boxes.size(), 1u);
    EXPECT_EQ(host.ends, 1);
}

TEST_F(ProgramTest, EndsAlsoWhenTheSaveFailsInAnUntoldWay) {
    StartAndPassTheSplash();
    EnterStand();
    host.answers = {true};
    {
        const HeldBackEvents quiet(application);
        form.txtRotAge.SetText("40000");
    }
    person.Close(form);
    ASSERT_EQ(host.boxes.size(), 2u);
    EXPECT_EQ(host.boxes[1].text, "Run-time error '6':\nOverflow");
    EXPECT_EQ(host.ends, 1);
}

TEST_F(ProgramTest, OffersToSaveABatchThatChanged) {
    StartAndPassTheSplash();
    form.Qvly.SetVisible(false);
    form.Batch.SetVisible(true);
    program.GetBatch().BatchDirty = true;
    program.GetBatch().panel.StartBtn_Bat.SetEnabled(true);
    host.answers = {false};
    person.Close(form);
    ASSERT_EQ(host.boxes.size(), 1u);
    EXPECT_EQ(host.boxes[0].text,
              "Do you wish to save changes to this batch sequence before exit?");
    EXPECT_EQ(host.boxes[0].buttons, BoxButtons::kYesNo);
    EXPECT_EQ(host.ends, 1);
}

TEST_F(ProgramTest, AsksNothingWhereNothingChanged) {
    StartAndPassTheSplash();
    EnterStand();
    host.answers = {true};
    run.InputChanged = false;
    person.Close(form);
    EXPECT_TRUE(host.boxes.empty());
    EXPECT_EQ(host.ends, 1);
}

TEST_F(ProgramTest, AsksNothingAboutARunThatCannotBeRun) {
    StartAndPassTheSplash();
    EnterStand();
    host.answers = {true};
    person.Type(form.txtRotAge, "19");
    EXPECT_FALSE(form.Run.Enabled());
    person.Close(form);
    EXPECT_TRUE(host.boxes.empty());
}

TEST_F(ProgramTest, AsksNothingAboutARunInTheBatchView) {
    StartAndPassTheSplash();
    EnterStand();
    host.answers = {true};
    form.Qvly.SetVisible(false);
    form.Batch.SetVisible(true);
    person.Close(form);
    EXPECT_TRUE(host.boxes.empty());
    EXPECT_EQ(host.ends, 1);
}

TEST_F(ProgramTest, AsksNothingAboutARunThatIsBeingApplied) {
    StartAndPassTheSplash();
    EnterStand();
    host.answers = {true};
    form.Run.SetCaption("Apply");
    person.Close(form);
    EXPECT_TRUE(host.boxes.empty());
    EXPECT_EQ(host.ends, 1);
}

TEST_F(ProgramTest, EndsAtOnceByTheMenu) {
    StartAndPassTheSplash();
    EnterStand();
    person.Click(form.Exit_Program);
    EXPECT_TRUE(host.boxes.empty());
    EXPECT_EQ(host.ends, 1);
    EXPECT_TRUE(application.HasEnded());
}

TEST_F(ProgramTest, EndsAtOnceByTheMenusOtherEntry) {
    StartAndPassTheSplash();
    EnterStand();
    person.Click(form.Close_Mnu);
    EXPECT_TRUE(host.boxes.empty());
    EXPECT_EQ(host.ends, 1);
}

TEST_F(ProgramTest, TakesNoMoreActionsOnceItHasEnded) {
    StartAndPassTheSplash();
    person.Close(form);
    EXPECT_THROW(person.Click(form.Step1_Btn), ActionRefused);
}

TEST_F(ProgramTest, CreatesTheOutputWindowAtTheFirstRunAndKeepsIt) {
    StartAndPassTheSplash();
    EnterStand();
    ModelWrites(ModelOutput({{.sage = 5}}));
    person.Click(form.Run);
    Output* output = program.Results().output.Find();
    ASSERT_NE(output, nullptr);
    EXPECT_TRUE(output->form.Visible());
    person.Close(output->form);
    EXPECT_FALSE(output->form.Visible());
    EXPECT_EQ(host.ends, 0);
    person.Click(form.Run);
    EXPECT_EQ(program.Results().output.Find(), output);
    EXPECT_TRUE(output->form.Visible());
}

TEST_F(ProgramTest, HidesOutputByItsMenuAndEndsByItsExit) {
    StartAndPassTheSplash();
    EnterStand();
    ModelWrites(ModelOutput({{.sage = 5}}));
    person.Click(form.Run);
    auto& window = program.Results().output.Find()->form;
    person.Click(window.Close_Window_Mnu);
    EXPECT_FALSE(window.Visible());
    EXPECT_EQ(window.Table.Rows(), 3);
    person.Click(form.Run);
    person.Click(window.Close_Program_Mnu);
    EXPECT_EQ(host.ends, 1);
    EXPECT_TRUE(host.boxes.empty());
    EXPECT_FALSE(form.Visible());
    EXPECT_TRUE(folder.Holds("_OUTPUT.TMP"));
}

TEST_F(ProgramTest, ClosedDuringARunUnwindsIt) {
    StartAndPassTheSplash();
    EnterStand();
    host.answers = {false};
    host.SetClipboardText("as before");
    host.whileWaiting = [this] { person.Close(form); };
    ModelWrites(ModelOutput({{.sage = 5}}));
    person.Click(form.Run);
    EXPECT_TRUE(host.gaveUp);
    EXPECT_EQ(host.ends, 1);
    EXPECT_EQ(host.boxes.size(), 1u);
    EXPECT_EQ(host.ClipboardText(), "as before");
}

TEST_F(ProgramTest, RunsAProbeWithinAProbeWhereOneEmptiesAField) {
    StartAndPassTheSplash();
    EnterStand();
    ModelWrites(ModelOutput({{.sage = 5, .th = 3}, {.sage = 30, .mdbh = 20, .th = 20}}));
    person.Click(form.Step7_Btn);
    person.Paste(form.Age1, "30");
    person.Paste(form.BA1, "30");
    EXPECT_TRUE(form.Age2.Usable());
    person.Paste(form.Age2, "60");
    host.starts.clear();
    person.Paste(form.Age1, "5");
    // One for the age, one for the amount that this empties, one for the second age that that
    // empties.
    EXPECT_EQ(host.starts.size(), 3u);
    EXPECT_EQ(form.BA1.Text(), "");
    EXPECT_EQ(form.Age2.Text(), "");
    EXPECT_TRUE(form.Spacing.Usable());
    EXPECT_FALSE(form.Age2.Visible());
    EXPECT_TRUE(run.TreatmentKeysOpen);
}

}  // namespace
}  // namespace arbolith
