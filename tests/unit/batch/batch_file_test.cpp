#include "unit/batch/batch_testing.h"
#include "unit/platform/expect_error.h"

#include <sstream>

namespace arbolith {

namespace {

constexpr const char* kCantRead = "An unknown error has occurred opening the file.";
constexpr const char* kCantWrite =
    "Error overwriting the batch.  Ensure that the file exists and is not in use by another "
    "program.";

class BatchFileTest : public BatchTest {
protected:
    // A file of so many lines, the first of which may be other than sequences.
    std::string WriteFile(int lines, const std::string& first = "") {
        std::ostringstream text;
        for (int i = 0; i < lines; ++i)
            text << (i == 0 && !first.empty() ? first : Line(std::to_string(i), "S")) << "\r\n";
        folder.Write("a.qvb", text.str());
        return folder.PathOf("a.qvb");
    }

    void ExpectBox(const std::string& text) {
        ASSERT_EQ(host.boxes.size(), 1U);
        EXPECT_EQ(host.boxes[0].text, text);
        EXPECT_EQ(host.boxes[0].title, "");
        EXPECT_EQ(host.boxes[0].icon, BoxIcon::kNone);
    }
};

class BatchFileSizeTest : public BatchFileTest, public testing::WithParamInterface<int> {};

}  // namespace

TEST_P(BatchFileSizeTest, IsReadWhole) {
    const int lines = GetParam();
    ReadBatch(batch, WriteFile(lines, "sequences:"));
    EXPECT_EQ(batch.panel.Batch_Seq.ListCount(), lines - 1);
    EXPECT_EQ(batch.SeqLines[static_cast<std::size_t>(lines - 2)],
              Line(std::to_string(lines - 1), "S"));
    EXPECT_EQ(batch.SeqPlots[static_cast<std::size_t>(lines - 2)], std::to_string(lines - 1));
    EXPECT_EQ(batch.BatchPath, folder.PathOf("a.qvb"));
    EXPECT_TRUE(host.boxes.empty());
}

INSTANTIATE_TEST_SUITE_P(Lines, BatchFileSizeTest,
                         testing::Values(2, 250, 251, 252, 500, 501, 1000, 1001, 1026));

TEST_F(BatchFileTest, MoreSequencesThanABatchHoldsEndTheRead) {
    batch.BatchPath = "before";
    batch.BatchDirty = true;
    ReadBatch(batch, WriteFile(kSequences + 1));
    EXPECT_EQ(batch.panel.Batch_Seq.ListCount(), kSequences);
    EXPECT_TRUE(host.boxes.empty());
    EXPECT_EQ(batch.BatchPath, "before");
    EXPECT_TRUE(batch.BatchDirty);
    // The number of the file is free again.
    application.Files().OpenForInput(1, folder.PathOf("a.qvb"));
}

// The last label has no entry left when its line has taken the last slot.
TEST_F(BatchFileTest, EmptyLinesCountAgainstTheLabels) {
    std::string text = "sequences:\r\n\r\n";
    for (int i = 0; i < kSequences; ++i) text += Line("1", "S") + "\r\n";
    folder.Write("a.qvb", text);
    ReadBatch(batch, folder.PathOf("a.qvb"));
    EXPECT_EQ(batch.panel.Batch_Seq.ListCount(), kSequences - 1);
    EXPECT_EQ(batch.SeqLines[kSequences - 1], Line("1", "S"));
    EXPECT_EQ(batch.SeqPlots[0], " ");
    EXPECT_EQ(batch.SeqPlots[kSequences - 1], "1");
    EXPECT_EQ(batch.BatchPath, "");
}

TEST_F(BatchFileTest, AReadWhileItsNumberIsInUseFailsSilentlyAndFreesIt) {
    folder.Write("other", "x");
    application.Files().OpenForInput(1, folder.PathOf("other"));
    const auto path = WriteFile(2);
    ReadBatch(batch, path);
    EXPECT_TRUE(host.boxes.empty());
    EXPECT_EQ(batch.panel.Batch_Seq.ListCount(), 0);
    ReadBatch(batch, path);
    EXPECT_EQ(batch.panel.Batch_Seq.ListCount(), 2);
}

TEST_F(BatchFileTest, ReadingResetsTheProgressAndShowsThePanel) {
    auto& panel = batch.panel;
    for (ProgressBar* bar : {&panel.SwdProg, &panel.HwdProg, &panel.TotalProg}) bar->SetValue(25);
    ReadBatch(batch, folder.PathOf("missing.qvb"));
    ExpectBox(kCantRead);
    for (const ProgressBar* bar : {&panel.SwdProg, &panel.HwdProg, &panel.TotalProg})
        EXPECT_EQ(bar->Value(), 0);
    EXPECT_TRUE(run.form.Batch.Visible());
    EXPECT_FALSE(run.form.Qvly.Visible());
}

TEST_F(BatchFileTest, WritesWhatItHoldsAndReadsItBack) {
    auto& panel = batch.panel;
    Fill({Line("1", "S"), Line(" ", "H"), Line("plot \xE9", "S")});
    panel.batch_in.SetText("elsewhere.qvb");
    panel.batch_out.SetText(folder.PathOf("my.html"));
    batch.BatchDirty = true;
    const auto path = folder.PathOf("my.qvb");
    WriteBatch(batch, path);
    EXPECT_FALSE(batch.BatchDirty);
    EXPECT_EQ(batch.BatchPath, path);
    EXPECT_EQ(panel.batch_in.Text(), path);
    const auto text = folder.Read("my.qvb");
    EXPECT_NE(text.find("\r\noutput " + folder.PathOf("my.html") + "\r\nautorun false\r\n"),
              std::string::npos);
    EXPECT_TRUE(text.ends_with("\r\nsequences:\r\n" + Line("1", "S") + "\r\n" + Line(" ", "H") +
                               "\r\n" + Line("plot \xE9", "S") + "\r\n"));

    // The name of the batch is known now, so the report's name is the usual one.
    WriteBatch(batch, path);
    EXPECT_NE(folder.Read("my.qvb").find("\r\noutput default html\r\n"), std::string::npos);
    ReadBatch(batch, path);
    EXPECT_TRUE(panel.batchHTML.Value());
    EXPECT_EQ(panel.batch_out.Text(), folder.PathOf("my.html"));
    EXPECT_EQ(panel.Batch_Seq.ListCount(), 3);
    EXPECT_EQ(batch.SeqLines[0], Line("1", "S"));
    // The blank of a line without a label is lost on the way and put back.
    EXPECT_EQ(batch.SeqLines[1], Line(" ", "H"));
    EXPECT_EQ(batch.SeqLines[2], Line("plot \xE9", "S"));
    EXPECT_EQ(batch.SeqPlots[2], "plot \xE9");
}

TEST_F(BatchFileTest, AReportThatEndsInHtmComesBackAsText) {
    batch.panel.batch_in.SetText("my.qvb");
    batch.panel.batch_out.SetText("my.htm");
    WriteBatch(batch, folder.PathOf("a.qvb"));
    EXPECT_NE(folder.Read("a.qvb").find("\r\noutput default txt\r\n"), std::string::npos);
    // Names without a point have one stem.
    batch.panel.batch_in.SetText("batch");
    batch.panel.batch_out.SetText("html");
    WriteBatch(batch, folder.PathOf("a.qvb"));
    EXPECT_NE(folder.Read("a.qvb").find("\r\noutput default html\r\n"), std::string::npos);
}

TEST_F(BatchFileTest, WritingWithoutANameFailsAsToldAndLeavesTheBatch) {
    batch.BatchDirty = true;
    WriteBatch(batch, "");
    ExpectBox(kCantWrite);
    EXPECT_TRUE(batch.BatchDirty);
}

TEST_F(BatchFileTest, AFailedWriteLeavesTheOldFile) {
    Fill({Line("1", "S")});
    folder.Block("a.qvb");
    WriteBatch(batch, folder.PathOf("a.qvb"));
    ExpectBox(kCantWrite);
    host.boxes.clear();

    folder.Write("b.qvb", "old");
    batch.SeqLines[0] = "";
    application.Files().OpenForInput(1, folder.PathOf("b.qvb"));
    WriteBatch(batch, folder.PathOf("b.qvb"));
    EXPECT_TRUE(host.boxes.empty());
    EXPECT_EQ(folder.Read("b.qvb"), "old");
    EXPECT_EQ(batch.BatchPath, "");
}

TEST_F(BatchFileTest, AFullDiskEndsAWriteWithoutAWord) {
    folder.FillUp("a.qvb");
    WriteBatch(batch, folder.PathOf("a.qvb"));
    EXPECT_TRUE(host.boxes.empty());
    EXPECT_EQ(batch.BatchPath, "");
}

TEST_F(BatchFileTest, AppendingCommitsTheTreatmentsFirst) {
    run.form.Choose_Swd.SetValue(true);
    run.form.choose_Metric.SetValue(true);
    run.form.Step1_Type.SetCaption("Softwood");
    run.form.chkNat.SetValue(true);
    run.form.Age1.SetText("40");
    AppendRunToBatch(batch, folder.PathOf("a.qvb"));
    EXPECT_NE(folder.Read("a.qvb").find("\t40.0\t0.0\t"), std::string::npos);
}

TEST_F(BatchFileTest, AppendingToAFullDiskTellsNothing) {
    folder.FillUp("a.qvb");
    AppendRunToBatch(batch, folder.PathOf("a.qvb"));
    EXPECT_TRUE(host.boxes.empty());
    EXPECT_EQ(batch.BatchPath, "");
}

}  // namespace arbolith
