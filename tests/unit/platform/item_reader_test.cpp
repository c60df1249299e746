#include "platform/item_reader.h"

#include "unit/platform/expect_error.h"

#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace arbolith {
namespace {

using namespace std::string_literals;
using Items = std::vector<std::string>;

Items ItemsOf(const std::string& text) {
    Items items;
    ItemReader reader(text);
    while (!reader.AtEnd()) items.emplace_back(reader.Read());
    return items;
}

TEST(ItemReaderTest, EndsAnItemAtACommaOrALineEnd) {
    EXPECT_EQ(ItemsOf("one,two\r\nthree\r\n"), (Items{"one", "two", "three"}));
}

TEST(ItemReaderTest, TakesEveryKindOfLineEnd) {
    EXPECT_EQ(ItemsOf("a\r\nb\nc\rd"), (Items{"a", "b", "c", "d"}));
    EXPECT_EQ(ItemsOf("a\n\rb"), (Items{"a", "", "b"}));
}

TEST(ItemReaderTest, GivesAnEmptyItemForABlankLine) {
    EXPECT_EQ(ItemsOf("a\r\n\r\nb\n \t\nc\n"), (Items{"a", "", "b", "", "c"}));
}

TEST(ItemReaderTest, SkipsBlanksAndTabsBeforeAnItemOnly) {
    EXPECT_EQ(ItemsOf(" \tone \t, two\t\r\n"), (Items{"one \t", "two\t"}));
    EXPECT_EQ(ItemsOf("a\tb c\r\n"), (Items{"a\tb c"}));
}

TEST(ItemReaderTest, FollowsACommaAtALinesEndByOneEmptyItem) {
    EXPECT_EQ(ItemsOf("a,\r\nb\r\n"), (Items{"a", "", "b"}));
    EXPECT_EQ(ItemsOf(",,\r\n"), (Items{"", "", ""}));
}

TEST(ItemReaderTest, IsAtItsEndBehindTheLastLineEndOrComma) {
    EXPECT_EQ(ItemsOf(""), Items{});
    EXPECT_EQ(ItemsOf("\r\n"), Items{""});
    EXPECT_EQ(ItemsOf("a"), Items{"a"});
    EXPECT_EQ(ItemsOf("a,"), Items{"a"});
    EXPECT_EQ(ItemsOf("a\r\n  "), (Items{"a", ""}));
}

TEST(ItemReaderTest, TakesTheQuotesFromAQuotedItem) {
    EXPECT_EQ(ItemsOf("\"Softwood\",\"Metric\"\r\n"), (Items{"Softwood", "Metric"}));
    EXPECT_EQ(ItemsOf("\"a, b\" ,c"), (Items{"a, b", "c"}));
    EXPECT_EQ(ItemsOf("\"\"\r\n\" a \"\r\n"), (Items{"", " a "}));
}

TEST(ItemReaderTest, KeepsQuotesThatDoNotHoldAWholeItem) {
    EXPECT_EQ(ItemsOf("\"7\" east\tS\r\n"), (Items{"\"7\" east\tS"}));
    EXPECT_EQ(ItemsOf("a\"b\",c"), (Items{"a\"b\"", "c"}));
    EXPECT_EQ(ItemsOf("\"a\r\nb\"\r\n"), (Items{"\"a", "b\""}));
    EXPECT_EQ(ItemsOf("\""), Items{"\""});
}

TEST(ItemReaderTest, PassesAllOtherBytesThrough) {
    EXPECT_EQ(ItemsOf("a\0b,\x1A\xE6\xFF\r\n"s), (Items{"a\0b"s, "\x1A\xE6\xFF"}));
}

TEST(ItemReaderTest, FailsBehindTheLastItem) {
    ItemReader reader("a");
    reader.Read();
    EXPECT_ERROR(62, reader.Read());
}

}  // namespace
}  // namespace arbolith
