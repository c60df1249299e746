// The real model programs, each run as a process of its own in a fresh folder.
#include "models/exchange.h"
#include "unit/models/growth_testing.h"

#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <sstream>
#include <stdlib.h>
#include <string>
#include <sys/wait.h>

namespace growth {
namespace {

namespace fs = std::filesystem;

using testing::Line;
using testing::Output;
using testing::ReadBlocks;

constexpr const char* kConsoleText =
    "Open reference growth model. Built from published equations; replaceable by the licensed "
    "programs.\n";

std::string Contents(const fs::path& path) {
    std::ifstream file(path, std::ios::binary);
    std::ostringstream text;
    text << file.rdbuf();
    return text.str();
}

// A folder with a blank in its name, as an application folder may have; gone after the test.
class ModelProgram : public ::testing::Test {
protected:
    ModelProgram() {
        std::string name = (fs::temp_directory_path() / "growth model XXXXXX").string();
        EXPECT_NE(mkdtemp(name.data()), nullptr);
        folder = name;
    }
    ~ModelProgram() override { fs::remove_all(folder); }

    void Write(const char* name, const std::string& text) const {
        std::ofstream(folder / name, std::ios::binary) << text;
    }
    std::string Read(const char* name) const { return Contents(folder / name); }
    std::string In(const char* name) const { return (folder / name).string(); }

    void WritePaths(const char* input, const char* output) const {
        Write("_PATHINF.TMP", In(input) + "\r\n" + In(output) + "\r\n");
    }

    // The exit code of a model run in the folder.
    int Run(const char* program) const {
        const std::string command =
            "cd \"" + folder.string() + "\" && \"" + program + "\" > console.txt 2> errors.txt";
        const int status = std::system(command.c_str());
        EXPECT_TRUE(WIFEXITED(status));
        return WEXITSTATUS(status);
    }

    fs::path folder;
};

TEST_F(ModelProgram, WritesTheBlocksOfItsInput) {
    const std::string line = Line({}) + "\r\n";
    Write("_INPUT.TMP", line);
    Write("_OUTPUT.TMP", std::string(100000, 'x'));
    WritePaths("_INPUT.TMP", "_OUTPUT.TMP");
    EXPECT_EQ(Run(SOFTWOOD_PROGRAM), 0);
    EXPECT_EQ(Read("_OUTPUT.TMP"), Output(Wood::Softwood, line));
    EXPECT_EQ(ReadBlocks(Read("_OUTPUT.TMP")).at(0).rows.size(), 24U);
}

TEST_F(ModelProgram, SaysWhatItIsAndNothingElse) {
    Write("_INPUT.TMP", Line({}));
    WritePaths("_INPUT.TMP", "_OUTPUT.TMP");
    for (const char* program : {SOFTWOOD_PROGRAM, HARDWOOD_PROGRAM}) {
        EXPECT_EQ(Run(program), 0);
        EXPECT_EQ(Read("console.txt"), kConsoleText);
        EXPECT_EQ(Read("errors.txt"), "");
    }
}

TEST_F(ModelProgram, GrowsTheSpeciesOfItsWood) {
    const std::string input =
        Line({.spec = "BF"}) + "\r\n" + Line({.spec = "SM", .lc = "3"}) + "\r\n";
    Write("in.tmp", input);
    WritePaths("in.tmp", "out.tmp");
    EXPECT_EQ(Run(SOFTWOOD_PROGRAM), 0);
    EXPECT_EQ(Read("out.tmp"), Output(Wood::Softwood, input));
    EXPECT_EQ(ReadBlocks(Read("out.tmp")).at(1).heading, "0.0");
    EXPECT_EQ(Run(HARDWOOD_PROGRAM), 0);
    EXPECT_EQ(Read("out.tmp"), Output(Wood::Hardwood, input));
    EXPECT_EQ(ReadBlocks(Read("out.tmp")).at(0).heading, "0.0");
}

TEST_F(ModelProgram, TakesQuotedPathsWithBlanksAroundThem) {
    Write("in.tmp", Line({}));
    Write("_PATHINF.TMP", "  \"" + In("in.tmp") + "\" \r\n\t\"" + In("out.tmp") + "\"");
    EXPECT_EQ(Run(SOFTWOOD_PROGRAM), 0);
    EXPECT_EQ(ReadBlocks(Read("out.tmp")).size(), 1U);
}

TEST_F(ModelProgram, TakesPathsRelativeToTheWorkingDirectory) {
    Write("in.tmp", Line({}));
    Write("_PATHINF.TMP", "in.tmp\nout.tmp\n");
    EXPECT_EQ(Run(SOFTWOOD_PROGRAM), 0);
    EXPECT_EQ(ReadBlocks(Read("out.tmp")).size(), 1U);
}

TEST_F(ModelProgram, WritesNothingWithoutAPathFile) {
    EXPECT_EQ(Run(SOFTWOOD_PROGRAM), 2);
    EXPECT_NE(Read("errors.txt").find("_PATHINF.TMP"), std::string::npos);
    EXPECT_EQ(std::distance(fs::directory_iterator(folder), fs::directory_iterator()), 2)
        << "more than the console's two files";
}

TEST_F(ModelProgram, WritesNothingWithoutASecondPath) {
    Write("in.tmp", Line({}));
    for (const std::string& paths : {In("in.tmp"), In("in.tmp") + "\r\n\"\"\r\n", std::string()}) {
        Write("_PATHINF.TMP", paths);
        EXPECT_EQ(Run(HARDWOOD_PROGRAM), 2);
        EXPECT_NE(Read("errors.txt"), "");
        EXPECT_EQ(Read("in.tmp"), Line({}));
        EXPECT_EQ(std::distance(fs::directory_iterator(folder), fs::directory_iterator()), 4);
    }
}

TEST_F(ModelProgram, ReplacesTheOutputWithoutAnInput) {
    const std::string ungrown = Output(Wood::Softwood, "");
    Write("out.tmp", "old");
    WritePaths("missing.tmp", "out.tmp");
    EXPECT_EQ(Run(SOFTWOOD_PROGRAM), 0);
    EXPECT_EQ(Read("out.tmp"), ungrown);
    Write("in.tmp", "\r\n   \r\n");
    Write("out.tmp", "old");
    WritePaths("in.tmp", "out.tmp");
    EXPECT_EQ(Run(SOFTWOOD_PROGRAM), 0);
    EXPECT_EQ(Read("out.tmp"), ungrown);
}

TEST_F(ModelProgram, TakesAFolderForAnInputThatCantBeRead) {
    fs::create_directory(folder / "in.tmp");
    WritePaths("in.tmp", "out.tmp");
    EXPECT_EQ(Run(SOFTWOOD_PROGRAM), 0);
    EXPECT_EQ(Read("out.tmp"), Output(Wood::Softwood, ""));
}

TEST_F(ModelProgram, MayReplaceItsInputByItsOutput) {
    Write("both.tmp", Line({}));
    WritePaths("both.tmp", "both.tmp");
    EXPECT_EQ(Run(SOFTWOOD_PROGRAM), 0);
    EXPECT_EQ(Read("both.tmp"), Output(Wood::Softwood, Line({})));
}

TEST_F(ModelProgram, ReportsAnOutputThatCantBeOpened) {
    Write("in.tmp", Line({}));
    fs::create_directory(folder / "a folder");
    for (const char* output : {"no folder/out.tmp", "a folder"}) {
        WritePaths("in.tmp", output);
        EXPECT_EQ(Run(SOFTWOOD_PROGRAM), 3);
        EXPECT_NE(Read("errors.txt").find(In(output)), std::string::npos);
    }
    EXPECT_EQ(Read("in.tmp"), Line({}));
}

TEST_F(ModelProgram, ReportsAnOutputThatDoesntFit) {
    if (!fs::exists("/dev/full")) GTEST_SKIP() << "no device that is always full";
    Write("_PATHINF.TMP", In("in.tmp") + "\r\n/dev/full\r\n");
    Write("in.tmp", Line({}));
    EXPECT_EQ(Run(SOFTWOOD_PROGRAM), 3);
    std::string many;
    for (int i = 0; i < 100; ++i) many += Line({}) + "\r\n";
    Write("in.tmp", many);
    EXPECT_EQ(Run(SOFTWOOD_PROGRAM), 3);
    EXPECT_NE(Read("errors.txt"), "");
}

// A batch as large as the application's largest: lines of all kinds, each with its own sequence.
TEST_F(ModelProgram, GrowsABatchOf1025Lines) {
    std::vector<std::string> lines;
    for (int i = 0; i < 1025; ++i) {
        const Species& species = AllSpecies()[static_cast<std::size_t>(i) % AllSpecies().size()];
        lines.push_back(Line({.sequence = std::to_string(i),
                              .met = i % 5 == 0 ? "N" : "Y",
                              .nat = i % 3 == 0 ? "N" : "Y",
                              .spec = std::string(species.code),
                              .lc = std::to_string(i % 9),
                              .sib = i % 2 == 0 ? "16.5" : "0.0",
                              .freq = "2200",
                              .rage = std::to_string(i % 130),
                              .rdbh = i % 130 == 0 ? "18" : "0.0",
                              .t1Age = "30",
                              .t2Age = std::to_string(i % 80),
                              .t1Iba = std::to_string(i % 50),
                              .t2Iba = "20",
                              .isd = "2.4",
                              .stk = std::to_string(i % 140)}));
    }
    std::string input;
    for (const std::string& line : lines) input += line + "\r\n";
    Write("_SOFT.TMP", input);
    WritePaths("_SOFT.TMP", "_SOFTOUT.TMP");
    EXPECT_EQ(Run(SOFTWOOD_PROGRAM), 0);
    const std::string output = Read("_SOFTOUT.TMP");
    const auto blocks = ReadBlocks(output);
    ASSERT_EQ(blocks.size(), lines.size());
    std::string alone;
    std::size_t grown = 0;
    for (std::size_t i = 0; i < lines.size(); ++i) {
        for (const auto& row : blocks[i].rows) EXPECT_EQ(row[0], static_cast<double>(i));
        grown += blocks[i].rows[0][1] > 0.0 ? 1 : 0;
        alone += Output(Wood::Softwood, lines[i]);
    }
    EXPECT_EQ(output, alone);
    EXPECT_GT(grown, 300U);
    EXPECT_LT(grown, 600U);
}

TEST_F(ModelProgram, WritesPointsInALocaleOfCommas) {
    Write("in.tmp", Line({.lc = "0", .sib = "17,06"}));
    WritePaths("in.tmp", "out.tmp");
    ASSERT_EQ(setenv("LC_ALL", "de_DE.UTF-8", 1), 0);
    EXPECT_EQ(Run(SOFTWOOD_PROGRAM), 0);
    unsetenv("LC_ALL");
    EXPECT_EQ(Read("out.tmp"), Output(Wood::Softwood, Line({.lc = "0", .sib = "17.06"})));
}

}  // namespace
}  // namespace growth
