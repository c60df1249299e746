// The single run driver: from the model's output to the table and its headings.
#include "model_bridge/run_stand.h"

#include "model_bridge/variables.h"
#include "platform/runtime_error.h"
#include "run_definition/apply_steps.h"
#include "run_definition/commit.h"
#include "run_definition/reset.h"
#include "unit/model_bridge/bridge_testing.h"
#include "unit/model_bridge/result_window.h"

#include <gtest/gtest.h>

namespace arbolith {
namespace {

class RunStandTest : public testing::Test {
protected:
    RunStandTest() {
        ResetInput(run);
        ChooseSpecies("White Pine");
        run.record.LC = 6;
        run.record.STK = 100;
        run.record.RAGE = 80;
        ModelWrites(ModelOutput({{.sage = 5}, {.sage = 10, .tdbh = 12.50, .mdbh = 30}}));
    }

    void ModelWrites(const std::string& output) {
        host.model = [this, output](const ProgramStart&) { folder.Write("_OUTPUT.TMP", output); };
    }
    void ChooseSpecies(const std::string& species) {
        run.record.SPEC = species;
        run.form.Step3_Spec.SetCaption(species);
    }
    void ChooseHardwood() {
        run.form.Choose_Hwd.SetValue(true);
        run.form.Choose_Swd.SetValue(false);
        ApplyStep1(run);
    }
    void ChooseImperial() {
        run.form.choose_Imperial.SetValue(true);
        run.form.choose_Metric.SetValue(false);
        CommitStep1(run);
    }
    std::string HeadingOfRun() {
        RunStand(run, result);
        return result.Title().Caption();
    }
    ErrorNumber ErrorOfRun() {
        try {
            RunStand(run, result);
        } catch (const RuntimeError& error) {
            return error.Number();
        }
        ADD_FAILURE() << "the run met no error";
        return ErrorNumber::kInvalidCall;
    }

    TestFolder folder;
    FakeHost host;
    Application application{host, folder.Path(), ""};
    RunDefinition run{application};
    ResultWindow result{application};
};

TEST_F(RunStandTest, FillsTheTable) {
    RunStand(run, result);
    const auto& table = result.Table();
    EXPECT_EQ(table.Rows(), 4);
    EXPECT_EQ(table.Cols(), 26);
    EXPECT_EQ(table.FixedRows(), 1);
    EXPECT_EQ(table.FixedCols(), 1);
    for (int col = 0; col < 26; ++col) EXPECT_EQ(table.Cell(0, col), "");
    for (int row = 0; row < 4; ++row) EXPECT_EQ(table.Cell(row, 0), "");
    for (int col = 1; col <= 25; ++col)
        EXPECT_EQ(table.Cell(1, col), kVariableCodes[static_cast<std::size_t>(col - 1)]);
    EXPECT_EQ(table.Cell(2, 1), "5");
    EXPECT_EQ(table.Cell(3, 1), "10");
    EXPECT_EQ(table.Cell(3, 2), "12.5");
    EXPECT_EQ(table.Cell(3, 3), "30");
    EXPECT_EQ(table.Cell(3, 25), "1");
}

TEST_F(RunStandTest, NamesTheCodesInTheirFixedOrder) {
    std::string codes;
    for (const char* code : kVariableCodes) codes += std::string(code) + " ";
    EXPECT_EQ(codes,
              "SAGE TDBH MDBH SDBH TBA MBA SBA TF MF SF TH MH SH TVOL MVOL SVOL TMAI MMAI SMAI "
              "CTVOL CMVOL CSVOL CTMAI CMMAI CSMAI ");
}

TEST_F(RunStandTest, ShowsTheModelWhileItWorks) {
    RunStand(run, result);
    ASSERT_EQ(host.starts.size(), 1u);
    EXPECT_EQ(host.starts[0].mode, 0);
    EXPECT_EQ(host.starts[0].FileName(), "SWQVL.exe");
}

TEST_F(RunStandTest, TellsTheYearsToBreastHeight) {
    ModelWrites(ModelOutput({}, "6.250"));
    RunStand(run, result);
    EXPECT_EQ(result.YTBH().Caption(), "6.25 Years from Stump to Breast Height");
    EXPECT_EQ(result.reportYears, "6.25");
}

TEST_F(RunStandTest, KeepsTheRunLineForTheReports) {
    RunStand(run, result);
    const std::string fields =
        "\t6\t0.0\t1\t0.0\t0.0\t80\t0.0\t0.0\t0.0\t0.0\t0.0\t0.0\t0.0\t0.0\t100\t";
    EXPECT_EQ(result.reportRunLine, "0\tS\tY\tY\tWP" + fields);
    ChooseHardwood();
    ChooseSpecies("Red Oak");
    RunStand(run, result);
    EXPECT_EQ(result.reportRunLine, "0\tH\tY\tY\tRO" + fields);
}

TEST_F(RunStandTest, OfNoRowsShowsTheCodesUnderAFullHeading) {
    ModelWrites(ModelOutput({}));
    RunStand(run, result);
    EXPECT_EQ(result.Table().Rows(), 2);
    EXPECT_EQ(result.Table().Cell(1, 25), "CSMAI");
    EXPECT_TRUE(result.Window().Visible());
    EXPECT_NE(result.Title().Caption(), "");
}

TEST_F(RunStandTest, RemovesRowsOfAgeZeroButTheFirst) {
    ModelWrites(ModelOutput({{.sage = 0, .tdbh = 1},
                             {.sage = 0, .tdbh = 2},
                             {.sage = 5, .tdbh = 3},
                             {.sage = 0, .tdbh = 4},
                             {.sage = 10, .tdbh = 5},
                             {.sage = 0, .tdbh = 6}}));
    RunStand(run, result);
    const auto& table = result.Table();
    ASSERT_EQ(table.Rows(), 5);
    EXPECT_EQ(table.Cell(2, 2), "1");
    EXPECT_EQ(table.Cell(3, 2), "3");
    EXPECT_EQ(table.Cell(4, 2), "5");
}

TEST_F(RunStandTest, JudgesAgeZeroByItsText) {
    auto output = ModelOutput({{.sage = 5}, {.sage = 7}, {.sage = 7}, {.sage = 7}, {.sage = 0.4}});
    for (const std::string zero : {"0 0.00 ", "0 -0 ", "0 0E5 "})
        output.replace(output.find("0 7 "), 4, zero);
    ModelWrites(output);
    RunStand(run, result);
    ASSERT_EQ(result.Table().Rows(), 4);
    EXPECT_EQ(result.Table().Cell(3, 1), "0.4");
}

TEST_F(RunStandTest, ReadsByTokensWhateverTheLines) {
    std::string output = ModelOutput({{.sage = 5}, {.sage = 10}});
    for (char& c : output)
        if (c == '\r' || c == '\n') c = ' ';
    ModelWrites("\n\n  " + output + "\n\n \t");
    RunStand(run, result);
    EXPECT_EQ(result.Table().Rows(), 4);
    EXPECT_EQ(result.Table().Cell(3, 1), "10");
}

TEST_F(RunStandTest, ShowsNumbersInTheirShortestForm) {
    auto output = ModelOutput({{.sage = 5, .tdbh = 7, .mdbh = 8, .tf = 9}});
    output.replace(output.find(" 7 "), 3, " 0012.500 ");
    output.replace(output.find(" 8 "), 3, " .250 ");
    output.replace(output.find(" 9 "), 3, " 1.2E3 ");
    ModelWrites(output);
    RunStand(run, result);
    EXPECT_EQ(result.Table().Cell(2, 2), "12.5");
    EXPECT_EQ(result.Table().Cell(2, 3), "0.25");
    EXPECT_EQ(result.Table().Cell(2, 8), "1200");
}

TEST_F(RunStandTest, LaysOutTheColumns) {
    RunStand(run, result);
    const auto& table = result.Table();
    EXPECT_EQ(table.ColWidth(0), 300);
    EXPECT_EQ(table.ColWidth(1), 550);
    for (int col = 2; col <= 25; ++col) EXPECT_EQ(table.ColWidth(col), col == 8 ? 800 : 700) << col;
    for (int col = 1; col <= 25; ++col)
        EXPECT_EQ(table.GetCellAlignment(1, col), Grid::CellAlignment::kCentre) << col;
    EXPECT_EQ(table.GetCellAlignment(2, 1), Grid::CellAlignment::kGeneral);
    EXPECT_EQ(table.Row(), 1);
}

TEST_F(RunStandTest, ReplacesTheTableOfTheRunBefore) {
    ModelWrites(ModelOutput({{.sage = 5}, {.sage = 10}, {.sage = 15}, {.sage = 20}}));
    RunStand(run, result);
    ModelWrites(ModelOutput({{.sage = 35}}));
    RunStand(run, result);
    EXPECT_EQ(result.Table().Rows(), 3);
    EXPECT_EQ(result.Table().Cell(2, 1), "35");
    EXPECT_EQ(result.Table().Cell(1, 1), "SAGE");
}

TEST_F(RunStandTest, ShowsTheOldTableUntilTheModelHasEnded) {
    RunStand(run, result);
    bool shownMeanwhile = false;
    host.whileWaiting = [&] { shownMeanwhile = result.Window().Visible(); };
    RunStand(run, result);
    EXPECT_TRUE(shownMeanwhile);
}

TEST_F(RunStandTest, OpensTheGraphsBehindTheShownWindow) {
    RunStand(run, result);
    EXPECT_EQ(result.timesGraphsEnabled, 1);
    EXPECT_TRUE(result.wasShownForGraphs);
}

TEST_F(RunStandTest, HeadsAClassWithItsSiteIndex) {
    EXPECT_EQ(HeadingOfRun(),
              "Softwood: White Pine     Land Capability: 6(SI=17.06m)     Unit: Metric");
}

TEST_F(RunStandTest, HeadsASiteIndexAsItWasEntered) {
    run.record.LcFlag = false;
    run.record.SiFlag = true;
    run.record.SIB = 17.255;
    EXPECT_EQ(HeadingOfRun(), "Softwood: White Pine     Site Index: 17.255     Unit: Metric");
}

TEST_F(RunStandTest, HeadsWhiteBirchClassFourInFeetWithAWholeNumber) {
    ChooseHardwood();
    ChooseImperial();
    ChooseSpecies("White Birch");
    run.record.LC = 4;
    EXPECT_EQ(HeadingOfRun(),
              "Hardwood: White Birch     Land Capability: 4(SI=85ft)     Unit: Imperial");
}

TEST_F(RunStandTest, HeadsAClassWithoutARowWithSiteIndexZero) {
    ChooseHardwood();
    ChooseSpecies("White Birch");
    run.record.LC = 5;
    EXPECT_EQ(HeadingOfRun(),
              "Hardwood: White Birch     Land Capability: 5(SI=0m)     Unit: Metric");
}

TEST_F(RunStandTest, TakesTheHeadingsSiteIndexByTheUnitOptionAndItsUnitByTheRecord) {
    run.form.choose_Metric.SetValue(false);
    EXPECT_EQ(HeadingOfRun(),
              "Softwood: White Pine     Land Capability: 6(SI=55.97m)     Unit: Metric");
}

TEST_F(RunStandTest, WithoutAnOutputFileFindsNone) {
    host.model = nullptr;
    EXPECT_EQ(ErrorOfRun(), ErrorNumber::kFileNotFound);
    EXPECT_FALSE(result.Window().Visible());
}

TEST_F(RunStandTest, TakesAnEarlierOutputForItsOwn) {
    folder.Write("_OUTPUT.TMP", ModelOutput({{.sage = 45}}));
    host.canStart = false;
    RunStand(run, result);
    EXPECT_EQ(result.Table().Cell(2, 1), "45");
    EXPECT_TRUE(result.Window().Visible());
}

TEST_F(RunStandTest, HidesTheOldTableWhenTheOutputCannotBeRead) {
    RunStand(run, result);
    const auto heading = result.Title().Caption();
    ModelWrites("");
    EXPECT_EQ(ErrorOfRun(), ErrorNumber::kInputPastEnd);
    EXPECT_FALSE(result.Window().Visible());
    EXPECT_EQ(result.Table().Rows(), 2);
    EXPECT_EQ(result.Title().Caption(), heading);
    EXPECT_EQ(result.timesGraphsEnabled, 1);
}

TEST_F(RunStandTest, LeavesTheOldTableInViewWhenTheExchangeFails) {
    RunStand(run, result);
    folder.Block("_INPUT.TMP");
    EXPECT_EQ(ErrorOfRun(), ErrorNumber::kPathFileAccess);
    EXPECT_TRUE(result.Window().Visible());
    EXPECT_EQ(result.Table().Rows(), 4);
}

TEST_F(RunStandTest, KeepsWhatWasReadOfATruncatedRow) {
    ModelWrites("5\r\n0 5\r\n");
    EXPECT_EQ(ErrorOfRun(), ErrorNumber::kInputPastEnd);
    EXPECT_FALSE(result.Window().Visible());
    ASSERT_EQ(result.Table().Rows(), 3);
    EXPECT_EQ(result.Table().Cell(2, 1), "5");
    EXPECT_EQ(result.Table().Cell(2, 2), "");
    EXPECT_EQ(result.Table().Row(), 2);
}

TEST_F(RunStandTest, KeepsWhatStandsBeforeATokenThatIsNoNumber) {
    auto output = ModelOutput({{.sage = 5}, {.sage = 10, .tdbh = 7.5, .mdbh = 77}});
    output.replace(output.find("77"), 2, "**");
    ModelWrites(output);
    EXPECT_EQ(ErrorOfRun(), ErrorNumber::kTypeMismatch);
    ASSERT_EQ(result.Table().Rows(), 4);
    EXPECT_EQ(result.Table().Cell(3, 2), "7.5");
    EXPECT_EQ(result.Table().Cell(3, 3), "");
}

TEST_F(RunStandTest, AddsNoRowBehindASequenceThatIsNoNumber) {
    ModelWrites("5\r\nerror in line 7\r\n");
    EXPECT_EQ(ErrorOfRun(), ErrorNumber::kTypeMismatch);
    EXPECT_EQ(result.Table().Rows(), 2);
}

TEST_F(RunStandTest, TakesNoEndlessOutputForNumbers) {
    // A table that there was no room for, and that reads as zero bytes without end.
    folder.FillUp("_OUTPUT.TMP");
    host.model = nullptr;
    EXPECT_EQ(ErrorOfRun(), ErrorNumber::kTypeMismatch);
}

TEST_F(RunStandTest, HoldsAMillionRows) {
    constexpr int kRows = 1'000'000;
    host.model = [this](const ProgramStart&) {
        std::string output = "5\r\n";
        for (int row = 1; row <= kRows; ++row)
            output += "0 5 1 1 1 1 1 1 1 1 1 1 1 1 1 1 1 1 1 1 1 1 1 1 1 1\r\n";
        folder.Write("_OUTPUT.TMP", output);
    };
    RunStand(run, result);
    EXPECT_EQ(result.Table().Rows(), kRows + 2);
    EXPECT_EQ(result.Table().Cell(kRows + 1, 1), "5");
}

TEST_F(RunStandTest, NeedsASequenceOfSixteenBits) {
    ModelWrites("5\r\n32768 5 1\r\n");
    EXPECT_EQ(ErrorOfRun(), ErrorNumber::kOverflow);
}

}  // namespace
}  // namespace arbolith
