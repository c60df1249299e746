// What a model reads and writes, on streams: path file, input and output.
#include "models/exchange.h"

#include "unit/models/growth_testing.h"

#include <clocale>
#include <gtest/gtest.h>
#include <locale>
#include <random>
#include <sstream>

namespace growth {
namespace {

using testing::Line;
using testing::Output;
using testing::ReadBlocks;

constexpr const char* kUngrownMetric =
    "0.0\r\n0 0 0.0 0.0 0.0 0.00 0.00 0.00 0 0 0 0.0 0.0 0.0 0.0 0.0 0.0 0.00 0.00 0.00 "
    "0.0 0.0 0.0 0.00 0.00 0.00\r\n";

std::optional<RunPaths> Paths(const std::string& text) {
    std::istringstream stream(text);
    return ReadPaths(stream);
}

TEST(ReadPaths, TakesTheFirstTwoLines) {
    const auto paths = Paths("/a/_INPUT.TMP\r\n/a/_OUTPUT.TMP\r\nmore\r\n");
    ASSERT_TRUE(paths);
    EXPECT_EQ(paths->input, "/a/_INPUT.TMP");
    EXPECT_EQ(paths->output, "/a/_OUTPUT.TMP");
}

TEST(ReadPaths, StripsBlanksReturnsAndQuotesFromBothEnds) {
    const auto paths = Paths(" \"/a folder/in\" \r\n\"  /b\"c/out\"\r");
    ASSERT_TRUE(paths);
    EXPECT_EQ(paths->input, "/a folder/in");
    EXPECT_EQ(paths->output, "/b\"c/out");
}

TEST(ReadPaths, NeedsBothLines) {
    for (const char* text : {"", "\r\n", "/in", "/in\r\n", "/in\r\n  \r\n", "\"\"\r\n/out\r\n"})
        EXPECT_FALSE(Paths(text)) << text;
}

TEST(GrowStands, WritesABlockForEachLineInOrder) {
    const auto blocks = ReadBlocks(Output(
        Wood::Softwood, Line({.sequence = "5"}) + "\r\n" + Line({.sequence = "2", .spec = "XX"}) +
                            "\r\n" + Line({.sequence = "9", .rage = "30"}) + "\r\n"));
    ASSERT_EQ(blocks.size(), 3U);
    EXPECT_EQ(blocks[0].rows.size(), 24U);
    EXPECT_EQ(blocks[0].rows[0][0], 5);
    EXPECT_EQ(blocks[1].rows.size(), 1U);
    EXPECT_EQ(blocks[1].rows[0][0], 2);
    EXPECT_EQ(blocks[1].heading, "0.0");
    EXPECT_EQ(blocks[2].rows.size(), 6U);
    EXPECT_EQ(blocks[2].rows[0][0], 9);
}

TEST(GrowStands, SkipsBlankLines) {
    const std::string line = Line({});
    EXPECT_EQ(Output(Wood::Softwood, "\r\n  \r\n" + line + "\r\n\t\t\r\n\n" + line + "\n \n"),
              Output(Wood::Softwood, line + "\r\n" + line + "\r\n"));
}

TEST(GrowStands, TakesLineFeedsAndALastLineWithoutEnd) {
    const std::string line = Line({});
    EXPECT_EQ(Output(Wood::Softwood, line + "\n" + line),
              Output(Wood::Softwood, line + "\r\n" + line + "\r\n"));
}

TEST(GrowStands, WritesOneUngrownStandForAnInputWithoutAny) {
    for (const char* input : {"", "\r\n", " \t \r\n\n"})
        EXPECT_EQ(Output(Wood::Softwood, input), kUngrownMetric);
}

TEST(GrowStands, WritesAnUngrownStandForEachSenselessLine) {
    EXPECT_EQ(Output(Wood::Hardwood, "hello\r\n;;;\r\n"),
              std::string(kUngrownMetric) + kUngrownMetric);
}

TEST(GrowStands, GrowsALineHoweverMuchFollowsItsFields) {
    EXPECT_EQ(Output(Wood::Softwood, Line({}) + std::string(3000000, 'x') + "\r\n" + Line({})),
              Output(Wood::Softwood, Line({}) + "\r\n" + Line({})));
}

TEST(GrowStands, GivesAStandTheSameBlockAloneAndInABatch) {
    std::string input;
    std::string alone;
    for (int i = 0; i < 200; ++i) {
        const std::string line = Line({.sequence = std::to_string(i),
                                       .spec = i % 2 == 0 ? "WP" : "BF",
                                       .lc = std::to_string(1 + i % 12),
                                       .t1Age = "30",
                                       .t1Iba = std::to_string(i % 60)});
        input += line + "\r\n";
        alone += Output(Wood::Softwood, line);
    }
    EXPECT_EQ(Output(Wood::Softwood, input), alone);
}

TEST(GrowStands, StopsAtAnOutputThatFails) {
    std::istringstream input(Line({}) + "\r\n" + Line({}) + "\r\n");
    std::ostringstream output;
    output.setstate(std::ios::failbit);
    GrowStands(Wood::Softwood, input, output);
    EXPECT_TRUE(output.fail());
    EXPECT_EQ(output.str(), "");
    EXPECT_EQ(input.tellg(), 0);
}

// A locale that writes decimal commas and groups digits, on any machine.
class CommaPunctuation : public std::numpunct<char> {
    char do_decimal_point() const override { return ','; }
    char do_thousands_sep() const override { return '.'; }
    std::string do_grouping() const override { return "\3"; }
};

class ForeignLocale {
public:
    ForeignLocale()
        : before(std::locale::global(std::locale(std::locale::classic(), new CommaPunctuation))) {
        for (const char* name : {"de_DE.UTF-8", "fr_CA.UTF-8", "de_DE.utf8", "fr_FR.UTF-8"}) {
            if (std::setlocale(LC_ALL, name) != nullptr) break;
        }
    }
    ~ForeignLocale() {
        std::locale::global(before);
        std::setlocale(LC_ALL, "C");
    }
    ForeignLocale(const ForeignLocale&) = delete;
    ForeignLocale& operator=(const ForeignLocale&) = delete;

private:
    std::locale before;
};

TEST(GrowStands, DoesNotDependOnTheLocale) {
    const std::string input = Line({.sequence = "12345", .lc = "0", .sib = "17.06"}) + "\r\n" +
                              Line({.lc = "0", .sib = "17,06", .stk = "1000"}) + "\r\n";
    const std::string expected = Output(Wood::Softwood, input);
    const ForeignLocale locale;
    std::ostringstream proof;
    proof << 12345.5;
    ASSERT_EQ(proof.str(), "12.345,5");
    EXPECT_EQ(Output(Wood::Softwood, input), expected);
}

// Bytes drawn at random, of all values and of those that lines are made of.
std::string RandomBytes(std::mt19937& random, bool likeLines) {
    static const std::string usual = "0123456789.,+-NnYy \t\t\t\t\r\nWPSMBF";
    std::string bytes(random() % 3000, '\0');
    for (char& byte : bytes)
        byte = likeLines ? usual[random() % usual.size()] : static_cast<char>(random() % 256);
    return bytes;
}

std::size_t CountNonBlankLines(const std::string& input) {
    std::istringstream lines(input);
    std::size_t count = 0;
    for (std::string line; std::getline(lines, line);)
        count += line.find_first_not_of(" \t\r") != std::string::npos ? 1 : 0;
    return count;
}

TEST(GrowStands, GivesAReadableBlockForEachLineOfArbitraryBytes) {
    std::mt19937 random(20250211);
    for (int i = 0; i < 300; ++i) {
        const std::string input = RandomBytes(random, i % 2 == 0);
        const auto blocks = ReadBlocks(Output(i % 3 == 0 ? Wood::Hardwood : Wood::Softwood, input));
        EXPECT_EQ(blocks.size(), std::max<std::size_t>(1, CountNonBlankLines(input)));
    }
}

std::string SenselessNumber(std::mt19937& random) {
    static const std::vector<std::string> values = {
        "",          "0",         "-1",  "1",           "0.5",
        "2",         "3.7",       "13",  "40",          "200",
        "201",       "999999999", "1e9", "-1000000000", "100000000000000",
        "0.0000001", "0,3",       "90",  "100",         "1000",
        "x",         "-0",        "25"};
    return values[random() % values.size()];
}

TEST(GrowStands, GivesAReadableBlockForNumbersWithoutSense) {
    std::mt19937 random(42);
    const auto number = [&random] { return SenselessNumber(random); };
    for (int i = 0; i < 3000; ++i) {
        const Species& species = AllSpecies()[random() % AllSpecies().size()];
        const std::string line = Line({.sequence = number(),
                                       .met = random() % 2 == 0 ? "Y" : "N",
                                       .nat = random() % 2 == 0 ? "Y" : "N",
                                       .spec = std::string(species.code),
                                       .lc = number(),
                                       .sib = number(),
                                       .freq = number(),
                                       .spx = number(),
                                       .spy = number(),
                                       .rage = number(),
                                       .rdbh = number(),
                                       .t1Age = number(),
                                       .t2Age = number(),
                                       .t1Dbh = number(),
                                       .t2Dbh = number(),
                                       .t1Iba = number(),
                                       .t2Iba = number(),
                                       .isd = number(),
                                       .stk = number()});
        EXPECT_EQ(ReadBlocks(Output(species.wood, line)).size(), 1U) << line;
        if (::testing::Test::HasFailure()) break;
    }
}

}  // namespace
}  // namespace growth
