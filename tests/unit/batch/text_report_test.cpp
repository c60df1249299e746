// One row of a model's output as a line of the text report.
#include "batch/text_report.h"

#include "unit/platform/expect_error.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace arbolith {
namespace {

// A row whose variables are all the same text.
DataValues RowOf(const std::string& text) {
    DataValues row;
    row.fill(text);
    row[0] = "0";
    return row;
}

std::string LineOf(const DataValues& row, std::string_view plot) {
    DataLengths lengths{};
    BatchGetDataLengths(row, plot, lengths);
    return BatchGetLineOutput(row, plot, lengths);
}

std::string Integerized(const std::string& text) {
    auto row = RowOf(text);
    BatchIntegerize(row);
    return row[1];
}

TEST(TextReport, HeadsTheColumnsOverTheirValues) {
    EXPECT_EQ(kPlotHead, "PLOT #  ");
    EXPECT_EQ(VariableHeads(),
              "SAGE\tTDBH\tMDBH\tSDBH\t  TBA\t  MBA\t  SBA\t    TF\t  MF\t  SF\t  TH\t  MH\t  SH\t"
              " TVOL\t MVOL\t SVOL\t   TMAI\t   MMAI\t   SMAI\tCTVOL\tCMVOL\tCSVOL\t  CTMAI\t"
              "  CMMAI\t  CSMAI");
}

TEST(TextReport, HeadsTheFieldsOfARun) {
    EXPECT_EQ(kRunFieldHeads,
              "WOOD\tUNIT\tNAT\tSPEC\tLC\tSI\tFREQ\tXSPC\tYSPC\tRAGE\tRDBH\tT1AGE\tT2AGE\tT1DBH\t"
              "T2DBH\tIBA1\tIBA2\tISD\tSTK%");
}

TEST(TextReport, TakesTheWholePartOfAgesFrequenciesAndVolumesOnly) {
    auto row = RowOf("12.9");
    row[0] = "3.7";
    BatchIntegerize(row);
    for (const int whole : {1, 8, 9, 10, 14, 15, 16, 20, 21, 22})
        EXPECT_EQ(row[static_cast<std::size_t>(whole)], "12") << whole;
    EXPECT_EQ(std::count(row.begin(), row.end(), "12.9"), 15);
    EXPECT_EQ(row[0], "3.7");
}

TEST(TextReport, TakesTheFloorAndRoundsNothing) {
    const std::pair<const char*, const char*> expected[] = {
        {"12.9", "12"},
        {"12", "12"},
        {"0", "0"},
        {"0.99", "0"},
        {"-0.5", "-1"},
        {"-3", "-3"},
        {"007.5", "7"},
        {"+8.5", "8"},
        {".5", "0"},
        {"12b", "12"},
        {"A3", "0"},
        {"", "0"},
        {"1E+5", "1"},
        {"123456789012.5", "123456789012"},
        {"0.9999999999999999999", "1"},
        {"1234567890123456", "1.23456789012346E+15"},
        {"00", "0"},
        {"\xE9", "0"},
    };
    for (const auto& [text, whole] : expected) EXPECT_EQ(Integerized(text), whole) << text;
}

TEST(TextReport, OverflowsOnANumberThatNoRealHolds) {
    EXPECT_ERROR(6, Integerized(std::string(400, '9')));
}

TEST(TextReport, RightAlignsEveryColumn) {
    EXPECT_EQ(
        LineOf(RowOf("1"), "7"),
        "       7\t   1\t   1\t   1\t   1\t    1\t    1\t    1\t     1\t   1\t   1\t   1\t   1"
        "\t   1\t    1\t    1\t    1\t      1\t      1\t      1\t    1\t    1\t    1\t      1\t"
        "      1\t      1");
}

TEST(TextReport, KeepsAFrequencyInItsSixCharacters) {
    auto row = RowOf("0");
    row[8] = "123.4";
    BatchIntegerize(row);
    const auto line = LineOf(row, "1");
    EXPECT_NE(line.find("\t   123\t   0\t"), std::string::npos) << line;
}

TEST(TextReport, WidensAColumnForOneLineOnly) {
    DataLengths lengths{};
    auto row = RowOf("1");
    row[14] = "123456";
    BatchGetDataLengths(row, "1", lengths);
    EXPECT_EQ(lengths[14], 6);
    row[14] = "1";
    BatchGetDataLengths(row, "1", lengths);
    EXPECT_EQ(lengths[14], 5);
    EXPECT_EQ(lengths[0], 8);
}

TEST(TextReport, HoldsPlotLabelsOfUpToEightCharacters) {
    const auto row = RowOf("1");
    EXPECT_TRUE(LineOf(row, "12345678").starts_with("12345678\t   1\t"));
    EXPECT_ERROR(5, LineOf(row, "123456789"));
}

TEST(TextReport, OverflowsOnAValueWiderThanAWidth) {
    auto row = RowOf("1");
    row[2] = std::string(32767, '1');
    EXPECT_EQ(LineOf(row, "1").size(),
              8u + 25 + 4 + 32767 + 2 * 4 + 3 * 5 + 6 + 5 * 4 + 3 * 5 + 3 * 7 + 3 * 5 + 3 * 7);
    row[2] += '1';
    EXPECT_ERROR(6, LineOf(row, "1"));
}

}  // namespace
}  // namespace arbolith
