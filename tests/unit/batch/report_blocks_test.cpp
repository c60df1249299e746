// How a model's output is taken apart into blocks and rows.
#include "batch/report_blocks.h"

#include "batch/html_report.h"
#include "unit/batch/batch_testing.h"
#include "unit/platform/expect_error.h"

namespace arbolith {
namespace {

class ReportBlocksTest : public BatchTest {
protected:
    ReportBlocksTest() {
        Fill({Line("A", "S"), Line("B", "S")});
        batch.SeqPlots[0] = "A";
        batch.SeqPlots[1] = "B";
    }
    // What becomes of an output.
    std::string BlocksOf(const std::string& output) {
        folder.Write("out.txt", output);
        auto& files = application.Files();
        files.OpenForInput(kSoftwoodFile, folder.PathOf("out.txt"));
        files.OpenForOutput(kReportFile, folder.PathOf("r.txt"));
        try {
            WriteBlocks(batch, kSoftwoodFile);
        } catch (const RuntimeError&) {
            files.CloseQuietly(kSoftwoodFile);
            files.CloseQuietly(kReportFile);
            throw;
        }
        files.Close(kSoftwoodFile);
        files.Close(kReportFile);
        return Report();
    }
};

TEST_F(ReportBlocksTest, SplitsARowAtItsBlanks) {
    DataValues row;
    SplitRow("1  5 " + std::string("x ") + Row("2", "3"), row);
    EXPECT_EQ(row[0], "1");
    EXPECT_EQ(row[1], "5");
    EXPECT_EQ(row[2], "x");
    EXPECT_EQ(row[3], "2");
    EXPECT_EQ(row[24], "1.5");
    EXPECT_EQ(row[25], "1.5 1.5 1.5 1.5");
}

TEST_F(ReportBlocksTest, TrimsTheLastToken) {
    DataValues row;
    SplitRow(Row("0", "5") + "   ", row);
    EXPECT_EQ(row[25], "1.5");
}

TEST_F(ReportBlocksTest, FailsWith5OnARowWithTooFewTokens) {
    DataValues row;
    const auto whole = Row("0", "5");
    EXPECT_ERROR(5, SplitRow(whole.substr(0, whole.rfind(' ')), row));
    EXPECT_ERROR(5, SplitRow(whole.substr(0, whole.rfind(' ')) + " ", row));
    EXPECT_ERROR(5, SplitRow("4.5", row));
    EXPECT_ERROR(5, SplitRow("", row));
}

TEST_F(ReportBlocksTest, WritesABlockForEachStand) {
    EXPECT_EQ(BlocksOf("4.5\r\n" + Row("0", "5") + "\r\n" + Row("0", "10") + "\r\n 3.0 \r\n" +
                       Row("1", "5") + "\r\n"),
              ReportHead("A", "4.5") + ReportRow("A", "5") + ReportRow("A", "10") +
                  ReportHead("B", "3.0") + ReportRow("B", "5"));
}

TEST_F(ReportBlocksTest, TakesALineOfElevenCharactersForARow) {
    EXPECT_EQ(BlocksOf("1234567890\r\n" + Row("0", "5")),
              ReportHead("A", "1234567890") + ReportRow("A", "5"));
    EXPECT_ERROR(5, BlocksOf("12345678901\r\n" + Row("0", "5")));
}

TEST_F(ReportBlocksTest, TakesTheLastLineForARowWhateverItsLength) {
    EXPECT_ERROR(5, BlocksOf("4.5\r\n" + Row("0", "5") + "\r\n4.5\r\n"));
    EXPECT_EQ(Report(), ReportHead("A", "4.5") + ReportRow("A", "5"));
    EXPECT_ERROR(5, BlocksOf("4.5"));
}

TEST_F(ReportBlocksTest, TakesBlankLinesAtTheEndForTheEnd) {
    const auto expected = ReportHead("A", "4.5") + ReportRow("A", "5");
    EXPECT_EQ(BlocksOf("4.5\r\n" + Row("0", "5") + "\r\n\r\n \t \r\n\n  "), expected);
    EXPECT_EQ(BlocksOf(""), "");
    EXPECT_EQ(BlocksOf("\r\n\r\n"), "");
    EXPECT_ERROR(5, BlocksOf("4.5\r\n\r\n"));
}

TEST_F(ReportBlocksTest, TakesABlankLineBetweenForAHeadWithoutYears) {
    EXPECT_EQ(BlocksOf("4.5\r\n\r\n" + Row("0", "5")), ReportHead("A", "") + ReportRow("A", "5"));
}

TEST_F(ReportBlocksTest, DropsRowsBelowAgeOneBehindTheHead) {
    EXPECT_EQ(BlocksOf("4.5\r\n" + Row("0", "0") + "\r\n" + Row("0", "0.9") + "\r\n" +
                       Row("0", "1.9") + "\r\n"),
              ReportHead("A", "4.5") + ReportRow("A", "1"));
    EXPECT_EQ(BlocksOf("4.5\r\n" + Row("1", "0")), ReportHead("B", "4.5"));
}

TEST_F(ReportBlocksTest, ShowsNothingOfAHeadWithoutRows) {
    EXPECT_EQ(BlocksOf("4.5\r\n3.5\r\n" + Row("0", "5")),
              ReportHead("A", "3.5") + ReportRow("A", "5"));
}

TEST_F(ReportBlocksTest, WritesRowsInFrontOfTheFirstHeadWithoutOne) {
    EXPECT_EQ(BlocksOf(Row("0", "5")), ReportRow("A", "5"));
}

TEST_F(ReportBlocksTest, LabelsEachRowByItsOwnSequence) {
    EXPECT_EQ(BlocksOf("4.5\r\n" + Row("0.9", "5") + "\r\n" + Row("1x", "10")),
              ReportHead("A", "4.5") + ReportRow("A", "5") + ReportRow("B", "10"));
}

TEST_F(ReportBlocksTest, ReadsALineOnlyUpToAComma) {
    EXPECT_EQ(BlocksOf("4,5\r\n" + Row("0", "5")), ReportHead("A", "5") + ReportRow("A", "5"));
}

TEST_F(ReportBlocksTest, FailsOnASequenceThatTheBatchCannotHold) {
    EXPECT_ERROR(9, BlocksOf(Row("-1", "5")));
    EXPECT_ERROR(9, BlocksOf(Row("1025", "5")));
    EXPECT_ERROR(6, BlocksOf(Row("40000", "5")));
    EXPECT_EQ(BlocksOf(Row("1024", "5")), ReportRow(" ", "5"));
}

TEST_F(ReportBlocksTest, FailsOnALabelThatIsTooLongForItsColumn) {
    batch.SeqPlots[0] = "123456789";
    EXPECT_ERROR(5, BlocksOf("4.5\r\n" + Row("0", "5")));
    EXPECT_EQ(Report(), ReportHead("123456789", "4.5"));
}

class HtmlBlocksTest : public ReportBlocksTest {
protected:
    HtmlBlocksTest() { batch.panel.batchHTML.SetValue(true); }

    std::string TableHead(const std::string& plot, const std::string& years, int sequence) {
        return BatchGetHTMLTableHeader(run, years, plot,
                                       batch.SeqLines.at(static_cast<std::size_t>(sequence))) +
               "\r\n";
    }
    static std::string HtmlRow(const std::string& age) {
        DataValues row;
        SplitRow(Row("0", age), row);
        BatchIntegerize(row);
        return BatchGetRowOutput(row) + "\r\n";
    }
    const std::string end = "</TABLE><br>\r\n\r\n";
};

TEST_F(HtmlBlocksTest, ClosesATableBeforeTheNextOne) {
    EXPECT_EQ(
        BlocksOf("4.5\r\n" + Row("0", "5") + "\r\n3.0\r\n" + Row("1", "10.7") + "\r\n"),
        TableHead("A", "4.5", 0) + HtmlRow("5") + end + TableHead("B", "3.0", 1) + HtmlRow("10"));
}

TEST_F(HtmlBlocksTest, ClosesATableForAHeadWithoutRowsAsWell) {
    EXPECT_EQ(BlocksOf("4.5\r\n3.5\r\n" + Row("0", "5")),
              end + TableHead("A", "3.5", 0) + HtmlRow("5"));
}

TEST_F(HtmlBlocksTest, TakesLabelsOfAnyLength) {
    batch.SeqPlots[0] = "a label of 20 <marks>";
    EXPECT_NE(BlocksOf("4.5\r\n" + Row("0", "5")).find("[a label of 20 <marks>]"),
              std::string::npos);
}

TEST_F(HtmlBlocksTest, FailsWith9OnASlotWithoutALine) {
    EXPECT_ERROR(9, BlocksOf("4.5\r\n" + Row("2", "5")));
}

}  // namespace
}  // namespace arbolith
