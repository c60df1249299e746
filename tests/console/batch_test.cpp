#include "console/console_run.h"
#include "platform/headless_host.h"
#include "shell/program.h"

#include <algorithm>
#include <filesystem>

namespace arbolith {

namespace {

const std::string kTenStands = std::string(ARBOLITH_SAMPLES) + "/ten-stands.qvb";

}  // namespace

class BatchFileRuns : public ConsoleTest {
public:
    // The report of the same batch as the panel's Start button writes it.
    std::string ReportOnTheForms(const std::string& path, bool html) {
        HeadlessHost host;
        Application application(host, models.Path(), "");
        Program program(application);
        program.Start();
        auto& batch = program.GetBatch();
        application.Enter([&] {
            ReadBatch(batch, path);
            batch.panel.batchHTML.SetValue(html);
            batch.panel.batch_out.SetText(work.PathOf("forms.out"));
            StartBatch(batch);
        });
        return work.Read("forms.out");
    }

    Ended RunLines(const std::vector<std::string>& sequences,
                   const std::vector<std::string>& options = {"--output", "-"}) const {
        work.Write("stands.qvb", BatchText(sequences));
        std::vector<std::string> words = {"batch", "stands.qvb"};
        words.insert(words.end(), options.begin(), options.end());
        return Run(words);
    }
};

TEST_F(BatchFileRuns, GivesTheFormsTextReport) {
    const auto ended = Run({"batch", kTenStands, "--output", "-"});
    EXPECT_EQ(ended.status, 0) << ended.errors;
    EXPECT_EQ(ended.errors, "");
    EXPECT_EQ(ended.output, ReportOnTheForms(kTenStands, false));
    EXPECT_TRUE(LeftNothingBehind());
}

TEST_F(BatchFileRuns, GivesTheFormsHtmlReport) {
    const auto ended = Run({"batch", kTenStands, "--output", "-", "--format", "html"});
    EXPECT_EQ(ended.status, 0) << ended.errors;
    EXPECT_EQ(ended.output, ReportOnTheForms(kTenStands, true));
}

TEST_F(BatchFileRuns, WritesWhereTheBatchFileSays) {
    work.Write("stands.qvb", BatchText({SequenceLine("1", "S")}));
    EXPECT_EQ(Run({"batch", "stands.qvb"}).status, 0);
    EXPECT_TRUE(work.Read("stands.txt").starts_with("\t\tWOOD\t"));
    work.Write("stands.qvb", BatchText({SequenceLine("1", "S")}, "default html"));
    EXPECT_EQ(Run({"batch", "stands.qvb"}).status, 0);
    EXPECT_TRUE(work.Read("stands.html").starts_with("<!DOCTYPE"));
    work.Write("stands.qvb", BatchText({SequenceLine("1", "S")}, "result.csv"));
    EXPECT_EQ(Run({"batch", "stands.qvb"}).status, 0);
    EXPECT_TRUE(work.Read("result.csv").starts_with("Plot,"));
}

TEST_F(BatchFileRuns, AFormatGivesTheReportOfTheBatchFileItsEnding) {
    work.Write("stands.qvb", BatchText({SequenceLine("1", "S")}));
    EXPECT_EQ(Run({"batch", "stands.qvb", "--format", "csv"}).status, 0);
    EXPECT_TRUE(work.Read("stands.csv").starts_with("Plot,"));
    EXPECT_FALSE(std::filesystem::exists(work.PathOf("stands.txt")));
}

TEST_F(BatchFileRuns, WithoutANameTheReportGoesToTheOutput) {
    work.Write("stands.qvb", SequenceLine("1", "S") + "\r\n");
    const auto ended = Run({"batch", "stands.qvb"});
    EXPECT_EQ(ended.status, 0) << ended.errors;
    EXPECT_TRUE(ended.output.starts_with("\t\tWOOD\t"));
}

TEST_F(BatchFileRuns, CsvHasTheStandsInTheBatchsOrder) {
    const auto ended =
        RunLines({SequenceLine("7", "S"), SequenceLine(" ", "H"), SequenceLine("\"far\" lot", "S")},
                 {"--output", "-", "--format", "csv"});
    EXPECT_EQ(ended.status, 0) << ended.errors;
    const auto first = ended.output.find("\r\n7,Softwood,White Pine,");
    const auto second = ended.output.find("\r\n8,Hardwood,Sugar Maple,");
    const auto third = ended.output.find("\r\n\"\"\"far\"\" lot\",Softwood,White Pine,");
    EXPECT_LT(first, second);
    EXPECT_LT(second, third);
    EXPECT_NE(third, std::string::npos);
}

TEST_F(BatchFileRuns, CsvTakesEveryPlotLabelWhereTextDoesNot) {
    const std::vector<std::string> long_ = {SequenceLine("north of the lake", "S")};
    const auto text = RunLines(long_);
    EXPECT_EQ(text.status, 4);
    EXPECT_EQ(text.errors,
              "arbolith-cli: stands.qvb: the plot label \"north of the lake\" is longer than the 8 "
              "characters of a text report\n");
    const auto csv = RunLines(long_, {"--output", "-", "--format", "csv"});
    EXPECT_EQ(csv.status, 0) << csv.errors;
    EXPECT_TRUE(LineOf(csv.output, 1).starts_with("north of the lake,Softwood,"));
}

TEST_F(BatchFileRuns, TellsStandsThatGoToNoModel) {
    const auto ended = RunLines({SequenceLine("1", "S"), SequenceLine("2", "h")});
    EXPECT_EQ(ended.status, 7);
    EXPECT_EQ(ended.errors, "arbolith-cli: stands.qvb: the stand of plot 2 has no result\n");
    EXPECT_NE(ended.output.find("PLOT#: 1"), std::string::npos);
}

TEST_F(BatchFileRuns, TellsLinesThatAreNoStands) {
    const auto last = RunLines({SequenceLine("1", "S"), "a\tline"});
    EXPECT_EQ(last.status, 7);
    EXPECT_EQ(last.errors, "arbolith-cli: stands.qvb: \"a\tline\" is no stand\n");
    EXPECT_NE(last.output.find("PLOT#: 1"), std::string::npos);
    const auto first = RunLines({"a\tline", SequenceLine("1", "S")});
    EXPECT_EQ(first.status, 3);
    EXPECT_EQ(first.errors,
              "arbolith-cli: stands.qvb: \"a\tline\" is no stand\n"
              "arbolith-cli: stands.qvb: what is no stand must not stand between the stands\n");
    const auto comment = RunLines({SequenceLine("1", "S"), "# the end"});
    EXPECT_EQ(comment.status, 3);
    EXPECT_EQ(comment.errors, "arbolith-cli: stands.qvb: \"# the end\" is no stand\n");
}

TEST_F(BatchFileRuns, MessagesAreUtf8) {
    EXPECT_EQ(RunLines({SequenceLine("\xC9rable \x1B", "h"), SequenceLine("1", "S")}).errors,
              "arbolith-cli: stands.qvb: the stand of plot Érable ? has no result\n");
    EXPECT_EQ(RunLines({SequenceLine("1", "S"), "\xC9\tline"}).errors,
              "arbolith-cli: stands.qvb: \"É\tline\" is no stand\n");
}

TEST_F(BatchFileRuns, TellsABatchThatIsNone) {
    EXPECT_EQ(RunLines({}).errors, "arbolith-cli: stands.qvb: it holds no stands\n");
    EXPECT_EQ(RunLines({}).status, 3);
    auto unknown = SequenceLine("1", "S");
    unknown.replace(unknown.find("WP"), 2, "XX");
    EXPECT_EQ(RunLines({unknown}).errors, "arbolith-cli: stands.qvb: a field of the stand \"" +
                                              unknown + "\" can't be understood\n");
    const std::vector<std::string> many(1026, SequenceLine("1", "S"));
    EXPECT_EQ(RunLines(many).errors, "arbolith-cli: stands.qvb: it holds more than 1025 stands\n");
}

TEST_F(BatchFileRuns, TellsLabelsThatLeaveNoNumber) {
    for (const char* label : {"32767", "32768"}) {
        const auto ended = RunLines({SequenceLine(label, "S"), SequenceLine(" ", "S")});
        EXPECT_EQ(ended.status, 4);
        EXPECT_EQ(ended.errors,
                  "arbolith-cli: stands.qvb: its plot labels are too high: stands are numbered up "
                  "to 32767\n");
    }
}

TEST_F(BatchFileRuns, AnAutorunLineMakesNoDifference) {
    auto text = BatchText({SequenceLine("1", "S")});
    text.replace(text.find("autorun false"), 13, "autorun true");
    work.Write("stands.qvb", text);
    const auto ended = Run({"batch", "stands.qvb", "--output", "mine.txt"});
    EXPECT_EQ(ended.status, 0) << ended.errors;
    EXPECT_TRUE(std::filesystem::exists(work.PathOf("mine.txt")));
    EXPECT_FALSE(std::filesystem::exists(work.PathOf("stands.txt")));
}

}  // namespace arbolith
