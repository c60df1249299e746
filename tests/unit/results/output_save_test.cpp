// The table on view as a saved report.
#include "results/output_save.h"

#include "batch/html_report.h"
#include "unit/platform/fake_host.h"
#include "unit/platform/temporary_folder.h"

#include <gtest/gtest.h>

namespace arbolith {
namespace {

class OutputSaveTest : public testing::Test {
protected:
    OutputSaveTest() {
        auto& table = output.form.Table;
        table.SetCols(26);
        table.SetRows(1);
        table.AddItem("\tSAGE");
        output.form.YTBH.SetCaption("5.5 Years from Stump to Breast Height");
        output.SetReportTexts("5.5", kRunLine);
    }
    // A row of this age; the other variables are 1.5 but for the total frequency.
    void AddRow(const std::string& age, const std::string& frequency = "1.5") {
        std::string row = "\t" + age;
        for (int variable = 2; variable <= 25; ++variable)
            row += "\t" + (variable == 8 ? frequency : "1.5");
        output.form.Table.AddItem(row);
    }
    // Saves under a name in the folder and returns what was written.
    std::string Save(const std::string& name, int filter) {
        host.files.push_back(FileChoice{folder.PathOf(name), filter});
        SaveOutput(output, batch);
        return folder.Read(name);
    }
    static std::string TextLine(const std::string& age, const std::string& frequency) {
        return age + "\t 1.5\t 1.5\t 1.5\t  1.5\t  1.5\t  1.5\t" + frequency +
               "\t 1.5\t 1.5\t 1.5\t 1.5\t 1.5\t  1.5\t  1.5\t  1.5\t    1.5\t    1.5\t    1.5\t"
               "  1.5\t  1.5\t  1.5\t    1.5\t    1.5\t    1.5\r\n";
    }

    static constexpr const char* kRunLine =
        "0\tS\tY\tY\tWP\t6\t0.0\t1\t0.0\t0.0\t80\t0.0\t0.0\t0.0\t0.0\t0.0\t0.0\t0.0\t0.0\t100\t";
    static constexpr const char* kTextHead =
        "WOOD\tUNIT\tNAT\tSPEC\tLC\tSI\tFREQ\tXSPC\tYSPC\tRAGE\tRDBH\tT1AGE\tT2AGE\tT1DBH\tT2DBH\t"
        "IBA1\tIBA2\tISD\tSTK%\r\n"
        "S\tY\tY\tWP\t6\t0.0\t1\t0.0\t0.0\t80\t0.0\t0.0\t0.0\t0.0\t0.0\t0.0\t0.0\t0.0\t100\t\r\n"
        "\r\n"
        "YTBH: 5.5 Years from Stump to Breast Height\r\n"
        "SAGE\tTDBH\tMDBH\tSDBH\t  TBA\t  MBA\t  SBA\t    TF\t  MF\t  SF\t  TH\t  MH\t  SH\t TVOL\t"
        " MVOL\t SVOL\t   TMAI\t   MMAI\t   SMAI\tCTVOL\tCMVOL\tCSVOL\t  CTMAI\t  CMMAI\t  CSMAI"
        "\r\n";

    TemporaryFolder folder;
    FakeHost host;
    Application application{host, folder.Path(), ""};
    RunDefinition run{application};
    Batch batch{run};
    Output output{application};
};

TEST_F(OutputSaveTest, AsksForATextOrAPageInTheApplicationFolder) {
    SaveOutput(output, batch);
    ASSERT_EQ(host.questions.size(), 1u);
    EXPECT_TRUE(host.questions[0].saves);
    EXPECT_EQ(host.questions[0].filter, "Text (*.txt)|*.txt|HTML (*.html)|*.html");
    EXPECT_EQ(host.questions[0].filterIndex, 1);
    EXPECT_EQ(host.questions[0].folder, folder.Path());
    EXPECT_TRUE(host.questions[0].asksBeforeOverwriting);
    EXPECT_FALSE(host.questions[0].mustExist);
}

TEST_F(OutputSaveTest, WritesATextWithTheNumbersAsTheyStand) {
    AddRow("5", "1234.5");
    AddRow("100", "1.5");
    EXPECT_EQ(Save("r.txt", 1),
              kTextHead + TextLine("   5", "1234.5") + TextLine(" 100", "   1.5"));
}

TEST_F(OutputSaveTest, LetsALongValueShiftItsOwnLineOnly) {
    AddRow("5", "1234567.5");
    AddRow("10", "1.5");
    EXPECT_EQ(Save("r.txt", 1),
              kTextHead + TextLine("   5", "1234567.5") + TextLine("  10", "   1.5"));
}

TEST_F(OutputSaveTest, WritesAPageWithWholeNumbers) {
    AddRow("5", "1234.5");
    batch.panel.chkBorder.SetValue(true);
    DataValues row;
    row.fill("1.5");
    row[1] = "5";
    row[8] = "1234.5";
    BatchIntegerize(row);
    EXPECT_EQ(row[8], "1234");
    EXPECT_EQ(Save("r.htm", 2), BatchGetHTMLHeader(true) + "\r\n" +
                                    BatchGetHTMLTableHeader(run, "5.5", "N/A", kRunLine) + "\r\n" +
                                    BatchGetRowOutput(row) +
                                    "\r\n</TABLE>\r\n</BODY>\r\n</HTML>\r\n\r\n");
    EXPECT_NE(folder.Read("r.htm").find("Plot number: [N/A]"), std::string::npos);
}

TEST_F(OutputSaveTest, WritesTheHeadsOfATableWithoutRows) {
    EXPECT_EQ(Save("r.txt", 1), kTextHead);
    EXPECT_TRUE(
        Save("r.html", 2).ends_with("  </TR>\r\n\r\n</TABLE>\r\n</BODY>\r\n</HTML>\r\n\r\n"));
}

TEST_F(OutputSaveTest, ReplacesAnEarlierFile) {
    folder.Write("r.txt", std::string(100000, 'x'));
    EXPECT_EQ(Save("r.txt", 1), kTextHead);
}

// The test's folder has a point in its own name, so the names here are relative ones.
TEST_F(OutputSaveTest, GivesANameWithoutAPointItsExtension) {
    const auto before = std::filesystem::current_path();
    std::filesystem::current_path(folder.Path());
    host.files = {FileChoice{"text", 1}, FileChoice{"page", 2}, FileChoice{"a.b/../c", 1},
                  FileChoice{"other.ext", 2}};
    std::filesystem::create_directory("a.b");
    for (int save = 0; save < 4; ++save) SaveOutput(output, batch);
    std::filesystem::current_path(before);
    EXPECT_EQ(folder.Read("text.txt"), kTextHead);
    EXPECT_TRUE(folder.Read("page.html").starts_with("<!DOCTYPE"));
    EXPECT_EQ(folder.Read("c"), kTextHead);
    EXPECT_TRUE(folder.Read("other.ext").starts_with("<!DOCTYPE"));
}

TEST_F(OutputSaveTest, WritesNothingWhereNoNameWasEverChosen) {
    SaveOutput(output, batch);
    EXPECT_TRUE(std::filesystem::is_empty(folder.Path()));
    EXPECT_TRUE(host.boxes.empty());
}

TEST_F(OutputSaveTest, WritesTheFileOfTheSaveBeforeAgainAfterACancel) {
    Save("r.ext", 2);
    folder.Write("r.ext", "changed");
    SaveOutput(output, batch);
    EXPECT_EQ(host.questions.back().filterIndex, 2);
    EXPECT_TRUE(folder.Read("r.ext").starts_with("<!DOCTYPE"));
}

TEST_F(OutputSaveTest, PassesOverWhatCannotBeWritten) {
    AddRow("5");
    std::filesystem::create_symlink("/dev/full", folder.PathOf("full.txt"));
    for (const auto* name : {"missing/r.txt", "", "r?.txt", "full.txt"}) {
        for (const int filter : {1, 2}) {
            host.files.push_back(FileChoice{folder.PathOf(name), filter});
            SaveOutput(output, batch);
        }
    }
    EXPECT_TRUE(host.boxes.empty());
    EXPECT_EQ(Save("r.txt", 1), kTextHead + TextLine("   5", "   1.5"));
}

TEST_F(OutputSaveTest, ReturnsToTheFirstCellAndFreesTheFile) {
    AddRow("5");
    output.form.Table.SetRow(2);
    output.form.Table.SetCol(7);
    output.form.Table.SetColSel(20);
    Save("r.txt", 1);
    EXPECT_EQ(output.form.Table.Row(), 1);
    EXPECT_EQ(output.form.Table.Col(), 1);
    EXPECT_EQ(output.form.Table.RowSel(), 1);
    EXPECT_EQ(output.form.Table.ColSel(), 1);
    EXPECT_NO_THROW(application.Files().OpenForInput(1, folder.PathOf("r.txt")));
}

// A batch that waits for its model has the same number open.
TEST_F(OutputSaveTest, WritesIntoTheFileThatHasItsNumber) {
    application.Files().OpenForOutput(1, folder.PathOf("batch.txt"));
    EXPECT_EQ(Save("r.txt", 1), "");
    EXPECT_EQ(folder.Read("batch.txt"), kTextHead);
}

}  // namespace
}  // namespace arbolith
