#include "notepad/lines.h"

#include <gtest/gtest.h>
#include <random>
#include <string>

namespace arbolith::notepad {

namespace {

std::string Joined(const Lines& lines) {
    std::string bytes;
    for (const auto& line : lines.lines) {
        if (&line != &lines.lines.front()) bytes += BytesOf(line.before);
        bytes += line.text;
    }
    return bytes;
}

}  // namespace

TEST(Lines, AnEmptyTextIsOneEmptyLine) {
    const auto split = SplitLines("");
    ASSERT_EQ(split.lines.size(), 1U);
    EXPECT_EQ(split.lines[0].text, "");
    EXPECT_EQ(split.usual, LineEnd::kCrLf);
    EXPECT_FALSE(split.isMixed);
}

TEST(Lines, BehindTheLastLineEndStandsAnEmptyLine) {
    const auto split = SplitLines("a\r\n");
    ASSERT_EQ(split.lines.size(), 2U);
    EXPECT_EQ(split.lines[1].text, "");
}

TEST(Lines, KnowWhichLineEndIsInFrontOfThem) {
    const auto split = SplitLines("a\nb\r\nc\rd\r\n");
    ASSERT_EQ(split.lines.size(), 5U);
    EXPECT_EQ(split.lines[1].before, LineEnd::kLf);
    EXPECT_EQ(split.lines[2].before, LineEnd::kCrLf);
    EXPECT_EQ(split.lines[3].before, LineEnd::kCr);
    EXPECT_EQ(split.lines[4].before, LineEnd::kCrLf);
}

TEST(Lines, ACrInFrontOfCrLfEndsALineOfItsOwn) {
    const auto split = SplitLines("a\r\r\nb");
    ASSERT_EQ(split.lines.size(), 3U);
    EXPECT_EQ(split.lines[1].before, LineEnd::kCr);
    EXPECT_EQ(split.lines[1].text, "");
    EXPECT_EQ(split.lines[2].before, LineEnd::kCrLf);
}

TEST(Lines, TheUsualLineEndIsThatOfMostLines) {
    EXPECT_EQ(SplitLines("a\nb\nc\r\n").usual, LineEnd::kLf);
    EXPECT_EQ(SplitLines("a\nb\r\nc\r\n").usual, LineEnd::kCrLf);
    EXPECT_EQ(SplitLines("a\nb\r\n").usual, LineEnd::kCrLf);
    EXPECT_EQ(SplitLines("a\rb\r").usual, LineEnd::kCr);
}

TEST(Lines, AreMixedWhereTheyDontAllEndAlike) {
    EXPECT_FALSE(SplitLines("a\nb\nc").isMixed);
    EXPECT_TRUE(SplitLines("a\nb\r\nc").isMixed);
}

TEST(Lines, TheFirstLineCountsAsUsual) {
    EXPECT_EQ(SplitLines("a\nb").lines.front().before, LineEnd::kLf);
}

TEST(Lines, AnyBytesComeBack) {
    std::mt19937 random(1);
    // Line ends and the bytes around them come often.
    const std::string alphabet("\r\n\r\na\0\x85\x0B\x0C\x1A", 10);
    for (int round = 0; round < 2000; ++round) {
        std::string bytes;
        for (auto length = random() % 30; length > 0; --length)
            bytes += alphabet[random() % alphabet.size()];
        EXPECT_EQ(Joined(SplitLines(bytes)), bytes);
    }
}

TEST(Lines, LineEndsHaveNames) {
    EXPECT_STREQ(NameOf(LineEnd::kCrLf), "CR LF");
    EXPECT_STREQ(NameOf(LineEnd::kLf), "LF");
    EXPECT_STREQ(NameOf(LineEnd::kCr), "CR");
}

}  // namespace arbolith::notepad
