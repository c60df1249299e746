// What the dialogs of the batch view start from. All share one, so that each has to set its own.
#include "batch/pickers.h"

#include "unit/batch/batch_testing.h"

namespace arbolith {

namespace {

struct PickersTest : BatchTest {
    PickersTest() {
        auto& dialog = run.form.CDL;
        dialog.Filter = "Others|*.other";
        dialog.Flags = CommonDialog::kFileMustExist | CommonDialog::kAsksBeforeOverwriting;
        dialog.InitDir = "elsewhere";
        dialog.FileName = folder.PathOf("chosen.before");
    }

    const FileQuestion& Question() const { return host.questions.back(); }
};

}  // namespace

TEST_F(PickersTest, ABatchToOpenMustExistAndIsSoughtInTheApplicationFolder) {
    PickBatch(batch);
    EXPECT_FALSE(Question().saves);
    EXPECT_EQ(Question().filter, "All Files (*.qvb)|*.qvb");
    EXPECT_TRUE(Question().mustExist);
    EXPECT_FALSE(Question().asksBeforeOverwriting);
    EXPECT_EQ(Question().folder, folder.Path());
    EXPECT_EQ(Question().fileName, folder.PathOf("chosen.before"));
}

TEST_F(PickersTest, ANewBatchAsksBeforeItOverwrites) {
    EXPECT_EQ(AskForNewBatch(batch), folder.PathOf("chosen.before"));
    EXPECT_TRUE(Question().saves);
    EXPECT_EQ(Question().filter, "All Files (*.qvb)|*.qvb");
    EXPECT_FALSE(Question().mustExist);
    EXPECT_TRUE(Question().asksBeforeOverwriting);
    EXPECT_EQ(Question().folder, "elsewhere");
}

TEST_F(PickersTest, AReportAsksBeforeItOverwrites) {
    PickReport(batch);
    EXPECT_TRUE(Question().saves);
    EXPECT_FALSE(Question().mustExist);
    EXPECT_TRUE(Question().asksBeforeOverwriting);
    EXPECT_EQ(Question().folder, "elsewhere");
    EXPECT_EQ(Question().fileName, folder.PathOf("chosen.before"));
}

TEST_F(PickersTest, ABatchToAppendToMayExistAndIsNotOverwritten) {
    run.form.CDL.FileName.clear();
    AppendToPickedBatch(batch);
    EXPECT_TRUE(Question().saves);
    EXPECT_EQ(Question().filter, "All Files (*.qvb)|*.qvb");
    EXPECT_FALSE(Question().mustExist);
    EXPECT_FALSE(Question().asksBeforeOverwriting);
    EXPECT_EQ(Question().folder, folder.Path());
}

}  // namespace arbolith
