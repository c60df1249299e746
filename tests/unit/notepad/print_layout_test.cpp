#include "notepad/print_layout.h"

#include <gtest/gtest.h>

namespace arbolith::notepad {

namespace {

// A character is six tenths as wide as its size and a fifth higher.
constexpr Extent kCell{0.6, 1.2};

}  // namespace

TEST(PrintLayout, AShortLineIsPrintedAtTheUsualSize) {
    const auto layout = FitToPaper(80, {500, 700}, kCell);
    EXPECT_EQ(layout.points, 10);
    EXPECT_EQ(layout.columns, 83U);
}

TEST(PrintLayout, ALongerLineIsPrintedSmallerUntilItFits) {
    const auto layout = FitToPaper(100, {500, 700}, kCell);
    EXPECT_EQ(layout.points, 8);
    EXPECT_GE(layout.columns, 100U);
}

TEST(PrintLayout, AReportFitsAcrossTheUsualPaper) {
    // 277 by 190 millimetres, in points.
    const auto layout = FitToPaper(215, {785, 538}, kCell);
    EXPECT_EQ(layout.points, 6);
}

TEST(PrintLayout, ALineThatNeverFitsIsBrokenAtTheUsualSize) {
    const auto layout = FitToPaper(1000, {500, 700}, kCell);
    EXPECT_EQ(layout.points, 10);
    EXPECT_EQ(layout.columns, 83U);
}

TEST(PrintLayout, TheHeadingTakesTwoRowsOfThePage) {
    EXPECT_EQ(FitToPaper(10, {500, 120}, kCell).rows, 8U);
}

TEST(PrintLayout, APageHoldsARowAndARowACharacter) {
    const auto layout = FitToPaper(10, {1, 1}, kCell);
    EXPECT_EQ(layout.rows, 1U);
    EXPECT_EQ(layout.columns, 1U);
}

TEST(PrintLayout, TheLongestLineCountsItsTabs) {
    EXPECT_EQ(LongestLine("abc\r\na\tb\r\n"), 9U);
    EXPECT_EQ(LongestLine(""), 0U);
}

TEST(PrintLayout, RowsAreLinesWithBlanksForTabs) {
    EXPECT_EQ(RowsOf("a\tb\r\n\r\nc\r\n", 80), (std::vector<std::string>{"a       b", "", "c"}));
}

TEST(PrintLayout, ALongLineGoesOnInTheNextRow) {
    EXPECT_EQ(RowsOf("abcde\nfgh", 3), (std::vector<std::string>{"abc", "de", "fgh"}));
    EXPECT_EQ(RowsOf("abc", 3), (std::vector<std::string>{"abc"}));
}

TEST(PrintLayout, AnEmptyTextHasOneEmptyRow) {
    EXPECT_EQ(RowsOf("", 80), (std::vector<std::string>{""}));
}

}  // namespace arbolith::notepad
