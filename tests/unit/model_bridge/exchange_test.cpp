// The exchange files byte for byte, their order, and the trap of a failed exchange.
#include "model_bridge/exchange.h"

#include "run_definition/commit.h"
#include "run_definition/reset.h"
#include "unit/model_bridge/bridge_testing.h"

#include <gtest/gtest.h>

namespace arbolith {
namespace {

class ExchangeTest : public testing::Test {
protected:
    ExchangeTest() {
        ResetInput(run);
        run.record.SPEC = "White Pine";
        run.record.LC = 6;
        run.record.STK = 100;
        run.record.RAGE = 80;
    }

    ErrorNumber ErrorOfExchange() {
        try {
            ExchangeWithModel(run, StartMode::kHidden);
        } catch (const RuntimeError& error) {
            return error.Number();
        }
        ADD_FAILURE() << "the exchange met no error";
        return ErrorNumber::kInvalidCall;
    }

    TestFolder folder;
    FakeHost host;
    Application application{host, folder.Path(), ""};
    RunDefinition run{application};
};

TEST_F(ExchangeTest, PicksTheModelByTheWordSoftwood) {
    EXPECT_STREQ(ModelFileName("Softwood"), "SWQVL.exe");
    EXPECT_STREQ(ModelFileName("Hardwood"), "HWQVL.exe");
    EXPECT_STREQ(ModelFileName("softwood"), "HWQVL.exe");
    EXPECT_STREQ(ModelFileName(""), "HWQVL.exe");
}

TEST_F(ExchangeTest, TellsTheModelTheTwoPaths) {
    ExchangeWithModel(run, StartMode::kNormal);
    EXPECT_EQ(folder.Read("_PATHINF.TMP"),
              folder.PathOf("_INPUT.TMP") + "\r\n" + folder.PathOf("_OUTPUT.TMP") + "\r\n");
}

TEST_F(ExchangeTest, PutsTheSequenceBeforeTheRunLine) {
    const auto runLine = ExchangeWithModel(run, StartMode::kNormal);
    EXPECT_EQ(runLine,
              "Y\tY\tWP\t6\t0.0\t1\t0.0\t0.0\t80\t0.0\t0.0\t0.0\t0.0\t0.0\t0.0\t0.0\t0.0\t100\t");
    EXPECT_EQ(folder.Read("_INPUT.TMP"), "0\t" + runLine + "\r\n");
}

TEST_F(ExchangeTest, HasBothFilesCompleteWhenTheModelStarts) {
    std::string paths;
    std::string input;
    host.model = [&](const ProgramStart&) {
        paths = folder.Read("_PATHINF.TMP");
        input = folder.Read("_INPUT.TMP");
    };
    ExchangeWithModel(run, StartMode::kNormal);
    EXPECT_TRUE(paths.ends_with("_OUTPUT.TMP\r\n"));
    EXPECT_TRUE(input.ends_with("\t100\t\r\n"));
}

TEST_F(ExchangeTest, EmptiesLongerFilesOfAnEarlierRun) {
    folder.Write("_INPUT.TMP", std::string(5000, 'x'));
    folder.Write("_PATHINF.TMP", std::string(5000, 'x'));
    ExchangeWithModel(run, StartMode::kNormal);
    EXPECT_EQ(folder.Read("_INPUT.TMP").find('x'), std::string::npos);
    EXPECT_EQ(folder.Read("_PATHINF.TMP").find("xx"), std::string::npos);
}

TEST_F(ExchangeTest, LeavesNoLaunchScriptWhereProgramsStartWithoutOne) {
    ExchangeWithModel(run, StartMode::kNormal);
    EXPECT_FALSE(folder.Holds("_RunTMP.bat"));
}

TEST_F(ExchangeTest, StartsTheModelOfTheRecordsWoodType) {
    ExchangeWithModel(run, StartMode::kHidden);
    run.record.WDTYPE = "Hardwood";
    ExchangeWithModel(run, StartMode::kNormal);
    ASSERT_EQ(host.starts.size(), 2u);
    EXPECT_EQ(host.starts[0].FileName(), "SWQVL.exe");
    EXPECT_EQ(host.starts[0].mode, 1);
    EXPECT_EQ(host.starts[1].FileName(), "HWQVL.exe");
    EXPECT_EQ(host.starts[1].mode, 0);
}

TEST_F(ExchangeTest, LeavesTheOutputFileToTheModel) {
    folder.Write("_OUTPUT.TMP", "earlier");
    ExchangeWithModel(run, StartMode::kNormal);
    EXPECT_EQ(folder.Read("_OUTPUT.TMP"), "earlier");
}

TEST_F(ExchangeTest, StartsNoModelWhereAFileCannotBeCreated) {
    folder.Block("_PATHINF.TMP");
    EXPECT_EQ(ErrorOfExchange(), ErrorNumber::kPathFileAccess);
    EXPECT_TRUE(host.starts.empty());
    EXPECT_FALSE(folder.Holds("_INPUT.TMP"));
}

TEST_F(ExchangeTest, WritesThePathsBeforeTheInput) {
    folder.Block("_INPUT.TMP");
    EXPECT_EQ(ErrorOfExchange(), ErrorNumber::kPathFileAccess);
    EXPECT_TRUE(host.starts.empty());
    EXPECT_TRUE(folder.Holds("_PATHINF.TMP"));
}

TEST_F(ExchangeTest, NoticesAFullDisk) {
    folder.FillUp("_INPUT.TMP");
    EXPECT_EQ(ErrorOfExchange(), ErrorNumber::kDiskFull);
    EXPECT_TRUE(host.starts.empty());
}

TEST_F(ExchangeTest, NeedsTheFileNumberForItself) {
    application.Files().OpenForOutput(kExchangeFile, folder.PathOf("other"));
    EXPECT_EQ(ErrorOfExchange(), ErrorNumber::kFileAlreadyOpen);
}

TEST_F(ExchangeTest, TrapTellsOfFileFailuresOnly) {
    for (const int number : {53, 68, 70, 71, 75, 76}) {
        host.boxes.clear();
        TrapModelError(application, static_cast<ErrorNumber>(number));
        ASSERT_EQ(host.boxes.size(), 1u) << number;
        EXPECT_EQ(host.boxes[0].text, kRequiredFileMissing);
        EXPECT_EQ(host.boxes[0].title, "");
        EXPECT_EQ(host.boxes[0].icon, BoxIcon::kNone);
        EXPECT_EQ(host.boxes[0].buttons, BoxButtons::kOk);
    }
    host.boxes.clear();
    for (const int number : {5, 6, 7, 9, 11, 13, 52, 55, 57, 61, 62})
        TrapModelError(application, static_cast<ErrorNumber>(number));
    EXPECT_TRUE(host.boxes.empty());
}

TEST_F(ExchangeTest, TrapClosesTheFirstTwoFileNumbers) {
    auto& files = application.Files();
    for (const int number : {1, 2, 4})
        files.OpenForOutput(number, folder.PathOf("file" + std::to_string(number)));
    TrapModelError(application, ErrorNumber::kTypeMismatch);
    EXPECT_NO_THROW(files.OpenForOutput(1, folder.PathOf("again1")));
    EXPECT_NO_THROW(files.OpenForOutput(2, folder.PathOf("again2")));
    EXPECT_THROW(files.OpenForOutput(4, folder.PathOf("again4")), RuntimeError);
}

TEST_F(ExchangeTest, ReadsTheVariablesOfARow) {
    folder.Write("_OUTPUT.TMP", ModelOutput({{.sage = 35, .tdbh = 14.25, .th = 9.5}}));
    auto& files = application.Files();
    files.OpenForInput(kExchangeFile, folder.PathOf("_OUTPUT.TMP"));
    EXPECT_EQ(files.ReadReal(kExchangeFile), 5.5);
    EXPECT_EQ(files.ReadWhole(kExchangeFile), 0);
    OutputRow row;
    ReadOutputRow(files, row);
    EXPECT_EQ(row[0], 35);
    EXPECT_EQ(row[1], 14.25);
    EXPECT_EQ(row[10], 9.5);
    EXPECT_EQ(row[24], 1);
    EXPECT_TRUE(files.AtEndOfData(kExchangeFile));
}

}  // namespace
}  // namespace arbolith
