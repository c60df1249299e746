#include "batch/sequence_commands.h"

#include "unit/batch/batch_testing.h"
#include "unit/platform/expect_error.h"

namespace arbolith {

namespace {

class SequenceCommandsTest : public BatchTest {
protected:
    void FillUp() {
        Fill(std::vector<std::string>(kSequences, Line("1", "S")));
        batch.SeqLines[kSequences - 1] = Line("last", "H");
    }
};

}  // namespace

TEST_F(SequenceCommandsTest, AFullBatchTakesNoCopy) {
    FillUp();
    batch.panel.Batch_Seq.SetListIndex(0);
    EXPECT_ERROR(9, CopySequence(batch));
    EXPECT_EQ(batch.panel.Batch_Seq.ListCount(), kSequences);
    EXPECT_EQ(batch.panel.Batch_Seq.ListIndex(), 0);
}

TEST_F(SequenceCommandsTest, AFullBatchTakesACopyOnceASequenceIsGone) {
    FillUp();
    batch.panel.Batch_Seq.SetListIndex(3);
    DeleteRow(batch);
    EXPECT_EQ(batch.SeqLines[kSequences - 2], Line("last", "H"));
    EXPECT_EQ(batch.SeqLines[kSequences - 1], "");
    CopySequence(batch);
    EXPECT_EQ(batch.SeqLines[kSequences - 1], Line(" ", "S"));
    EXPECT_EQ(batch.SeqPlots[kSequences - 1], " ");
    EXPECT_EQ(batch.panel.Batch_Seq.ListIndex(), kSequences - 1);
}

TEST_F(SequenceCommandsTest, TheLastOfAFullBatchCanGo) {
    FillUp();
    batch.panel.Batch_Seq.SetListIndex(kSequences - 1);
    DeleteSequence(batch);
    EXPECT_EQ(batch.panel.Batch_Seq.ListIndex(), kSequences - 2);
    EXPECT_EQ(batch.SeqPlots[kSequences - 2], "1");
    EXPECT_EQ(batch.SeqPlots[kSequences - 1], " ");
}

TEST_F(SequenceCommandsTest, ACopyThatCantBeDescribedLeavesItsLineBehind) {
    Fill({"1\tS\tshort"});
    batch.panel.Batch_Seq.SetListIndex(0);
    EXPECT_ERROR(9, CopySequence(batch));
    EXPECT_EQ(batch.panel.Batch_Seq.ListCount(), 1);
    EXPECT_EQ(batch.SeqLines[1], " \tS\tshort");
}

TEST_F(SequenceCommandsTest, APlotNumberThatCantBeDescribedKeepsTheRow) {
    Fill({"1\tS\tshort"});
    batch.panel.Batch_Seq.SetListIndex(0);
    batch.panel.plotn.SetText("2");
    EXPECT_ERROR(9, TakePlotNumber(batch));
    EXPECT_EQ(batch.SeqPlots[0], "2");
    EXPECT_EQ(batch.SeqLines[0], "2\tS\tshort");
    EXPECT_EQ(batch.panel.Batch_Seq.List()[0], "row");
    EXPECT_EQ(batch.panel.plotn.Text(), "2");
    EXPECT_TRUE(batch.BatchDirty);
}

}  // namespace arbolith
