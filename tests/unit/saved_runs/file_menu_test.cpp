// The File menu: what its dialogs start from, and what it does in the views and states of the form.
#include "saved_runs/file_menu.h"

#include "unit/saved_runs/saved_testing.h"

namespace arbolith {
namespace {

class FileMenuTest : public SavedRunsTest {
protected:
    void ShowBatchView() {
        form.Batch.SetVisible(true);
        form.Qvly.SetVisible(false);
    }
    const FileQuestion& LastQuestion() const { return host.questions.back(); }
    const Box& LastBox() const { return host.boxes.back(); }

    BatchPanel& panel = program.GetBatch().panel;
};

TEST_F(FileMenuTest, AsksForAFileThatExistsInTheApplicationFolder) {
    person.Click(form.Open_Mnu);
    EXPECT_FALSE(LastQuestion().saves);
    EXPECT_EQ(LastQuestion().filter, "All Files (*.qv*)|*.qv*");
    EXPECT_EQ(LastQuestion().folder, folder.Path());
    EXPECT_TRUE(LastQuestion().mustExist);
    EXPECT_FALSE(LastQuestion().asksBeforeOverwriting);
    EXPECT_TRUE(host.boxes.empty());
}

TEST_F(FileMenuTest, ProposesTheNameThatWasOpenedLast) {
    folder.Write("stand.qvn", Joined(PineFile()));
    host.files = {{folder.PathOf("stand.qvn")}};
    person.Click(form.Open_Mnu);
    person.Click(form.Open_Mnu);
    EXPECT_EQ(LastQuestion().fileName, folder.PathOf("stand.qvn"));
}

TEST_F(FileMenuTest, AsksForANewNameBeforeASave) {
    Read(PineFile());
    host.files = {{folder.PathOf("stand.qvn")}};
    person.Click(form.Open_Mnu);
    form.CDL.FilterIndex = 2;
    person.Click(form.SaveAs_Mnu);
    EXPECT_TRUE(LastQuestion().saves);
    EXPECT_EQ(LastQuestion().filter, "QVL Config (*.qvn)|*.qvn|All Files (*.*)|*.*");
    EXPECT_EQ(LastQuestion().filterIndex, 1);
    EXPECT_EQ(LastQuestion().folder, folder.Path());
    EXPECT_EQ(LastQuestion().fileName, "");
    EXPECT_FALSE(LastQuestion().mustExist);
    EXPECT_TRUE(LastQuestion().asksBeforeOverwriting);
}

TEST_F(FileMenuTest, EnablesAppendingBehindEveryOpening) {
    form.AppendToBatch_Mnu.SetEnabled(false);
    OpenFile(saved);
    EXPECT_TRUE(form.AppendToBatch_Mnu.Enabled());
}

TEST_F(FileMenuTest, OffersToAppendInTheSingleRunViewOnly) {
    OpenFileMenu(saved);
    EXPECT_TRUE(form.AppendToBatch_Mnu.Enabled());
    ShowBatchView();
    OpenFileMenu(saved);
    EXPECT_FALSE(form.AppendToBatch_Mnu.Enabled());
    EXPECT_TRUE(form.Save_Mnu.Enabled());
}

TEST_F(FileMenuTest, LosesItsSavesForGoodWhenItIsOpenedDuringAnEdit) {
    form.Run.SetCaption("Apply");
    OpenFileMenu(saved);
    EXPECT_FALSE(form.Save_Mnu.Enabled());
    EXPECT_FALSE(form.SaveAs_Mnu.Enabled());
    form.Run.SetCaption("Run");
    OpenFileMenu(saved);
    EXPECT_FALSE(form.Save_Mnu.Enabled());
    EXPECT_FALSE(form.SaveAs_Mnu.Enabled());
}

TEST_F(FileMenuTest, SavesNothingWhileASequenceIsEdited) {
    Read(PineFile());
    form.Run.SetCaption("Apply");
    run.InputChanged = true;
    SaveFile(saved);
    SaveFileAs(saved);
    EXPECT_TRUE(host.questions.empty());
    EXPECT_TRUE(host.boxes.empty());
    EXPECT_TRUE(run.InputChanged);
}

TEST_F(FileMenuTest, SavesABatchOnlyWhenItChangedAndIsComplete) {
    ShowBatchView();
    run.InputChanged = true;
    SaveFile(saved);
    EXPECT_TRUE(host.boxes.empty());
    program.GetBatch().BatchDirty = true;
    panel.StartBtn_Bat.SetEnabled(false);
    SaveFile(saved);
    ASSERT_EQ(host.boxes.size(), 1u);
    EXPECT_EQ(LastBox().text,
              "The batch run is invalid or incomplete.  Cannot save.\nYou may wish to first try a "
              "'Run' with the current input.");
    EXPECT_EQ(LastBox().title, "Save Error");
    EXPECT_EQ(LastBox().icon, BoxIcon::kExclamation);
}

TEST_F(FileMenuTest, AsksWhereToSaveACompleteBatchWhetherItChangedOrNot) {
    ShowBatchView();
    panel.StartBtn_Bat.SetEnabled(false);
    SaveFileAs(saved);
    EXPECT_EQ(LastBox().title, "Save Error");
    EXPECT_TRUE(host.questions.empty());
    panel.StartBtn_Bat.SetEnabled(true);
    host.files = {{folder.PathOf("batch.txt")}};
    SaveFileAs(saved);
    EXPECT_EQ(LastQuestion().filter, "QVL Batch (*.qvb)|*.qvb|All Files (*.*)|*.*");
    EXPECT_TRUE(LastQuestion().asksBeforeOverwriting);
    EXPECT_FALSE(folder.Holds("batch.txt"));
    EXPECT_EQ(host.boxes.size(), 1u);
}

TEST_F(FileMenuTest, ResetsTheInputForANewRun) {
    Read(PineFile());
    NewInput(saved);
    EXPECT_EQ(saved.RunFilePath, "");
    EXPECT_EQ(run.StepsReached, 0);
    EXPECT_TRUE(run.InputChanged);
    EXPECT_TRUE(host.questions.empty());
}

TEST_F(FileMenuTest, EmptiesTheBatchForANewOne) {
    auto& batch = program.GetBatch();
    Read(PineFile());
    ShowBatchView();
    panel.batch_in.SetText(folder.PathOf("old.qvb"));
    panel.batch_out.SetText(folder.PathOf("old.txt"));
    panel.Batch_Seq.AddItem("row");
    batch.SeqLines.front() = batch.SeqWoods.back() = batch.SeqPlots.back() = "old";
    batch.BatchDirty = true;
    batch.BatchPath = "old";
    NewInput(saved);
    EXPECT_EQ(panel.batch_in.Text(), "");
    EXPECT_EQ(panel.batch_out.Text(), "");
    EXPECT_EQ(panel.Batch_Seq.ListCount(), 0);
    EXPECT_EQ(batch.SeqLines.front(), "");
    EXPECT_EQ(batch.SeqWoods.back(), "");
    EXPECT_EQ(batch.SeqPlots.back(), " ");
    EXPECT_FALSE(panel.StartBtn_Bat.Enabled());
    EXPECT_FALSE(batch.BatchDirty);
    EXPECT_EQ(batch.BatchPath, "");
    EXPECT_EQ(host.questions.size(), 1u);
    EXPECT_EQ(run.StepsReached, 7);
}

TEST_F(FileMenuTest, MakesAnEditedSequenceASingleRun) {
    form.Run.SetCaption("Apply");
    form.Single_Mnu.SetChecked(false);
    form.Batch_Mnu.SetChecked(true);
    ShowSingleRun(saved);
    EXPECT_EQ(form.Run.Caption(), "Run");
    EXPECT_TRUE(form.Single_Mnu.Checked());
    EXPECT_FALSE(form.Batch_Mnu.Checked());
}

TEST_F(FileMenuTest, ResetsTheInputOnTheWayBackFromABatchWithoutRows) {
    Read(PineFile());
    ShowBatchView();
    ShowSingleRun(saved);
    EXPECT_TRUE(form.Qvly.Visible());
    EXPECT_FALSE(form.Batch.Visible());
    EXPECT_EQ(run.StepsReached, 0);
}

TEST_F(FileMenuTest, KeepsTheInputOnTheWayBackFromRowsOfWhichNoneIsSelected) {
    Read(PineFile());
    ShowBatchView();
    panel.Batch_Seq.AddItem("row");
    ShowSingleRun(saved);
    EXPECT_TRUE(form.Qvly.Visible());
    EXPECT_EQ(run.StepsReached, 7);
    EXPECT_EQ(saved.RunFilePath, folder.PathOf("stand.qvn"));
}

}  // namespace
}  // namespace arbolith
