// Reading lines in constant memory.
#include "models/lines.h"

#include <gtest/gtest.h>
#include <sstream>

namespace growth {
namespace {

std::vector<std::string> Lines(const std::string& text) {
    std::istringstream stream(text);
    LineReader reader(stream);
    std::vector<std::string> lines;
    while (reader.Next()) lines.emplace_back(reader.Text());
    return lines;
}

TEST(LineReader, SplitsAtLineFeeds) {
    EXPECT_EQ(Lines("a\nb\r\n\nc\n"), (std::vector<std::string>{"a", "b\r", "", "c"}));
}

TEST(LineReader, CountsALastLineWithoutItsEnd) {
    EXPECT_EQ(Lines("a\nb"), (std::vector<std::string>{"a", "b"}));
    EXPECT_TRUE(Lines("").empty());
}

TEST(LineReader, KeepsLinesWholeAcrossItsBuffer) {
    std::string text;
    std::vector<std::string> expected;
    for (int i = 0; i < 3000; ++i) {
        expected.push_back(std::string(static_cast<std::size_t>(i % 97), 'x') + std::to_string(i));
        text += expected.back() + '\n';
    }
    EXPECT_EQ(Lines(text), expected);
}

TEST(LineReader, KeepsTheBeginningOfAnOverlongLineAndGoesOnAfterIt) {
    const auto lines = Lines("a" + std::string(1000000, 'b') + "\nc\n");
    ASSERT_EQ(lines.size(), 2U);
    EXPECT_EQ(lines[0], "a" + std::string(kKeptOfLine - 1, 'b'));
    EXPECT_EQ(lines[1], "c");
}

TEST(LineReader, TellsBlankLinesByTheirWholeLength) {
    std::istringstream stream(" \t \r\n\nx\n" + std::string(200000, ' ') + "\n" +
                              std::string(200000, ' ') + "x\n" + "x" + std::string(200000, ' ') +
                              "\n");
    LineReader reader(stream);
    for (const bool blank : {true, true, false, true, false, false}) {
        ASSERT_TRUE(reader.Next());
        EXPECT_EQ(reader.IsBlank(), blank);
    }
    EXPECT_FALSE(reader.Next());
}

TEST(LineReader, TakesNulBytesForCharacters) {
    EXPECT_EQ(Lines(std::string("a\0b\n\0", 5)),
              (std::vector<std::string>{std::string("a\0b", 3), std::string(1, '\0')}));
}

}  // namespace
}  // namespace growth
