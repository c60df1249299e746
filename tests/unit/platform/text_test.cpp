#include "platform/text.h"

#include <gtest/gtest.h>

namespace arbolith {

using Pieces = std::vector<std::string>;

TEST(Trimmed, TakesBlanksOffBothEnds) {
    EXPECT_EQ(Trimmed("  a b  "), "a b");
    EXPECT_EQ(Trimmed("a"), "a");
    EXPECT_EQ(Trimmed("   "), "");
    EXPECT_EQ(Trimmed(""), "");
}

TEST(Trimmed, LeavesOtherWhiteSpace) {
    EXPECT_EQ(Trimmed("\ta\n"), "\ta\n");
}

TEST(ToLower, ChangesAsciiLettersOnly) {
    EXPECT_EQ(ToLower("Red OAK 1"), "red oak 1");
    EXPECT_EQ(ToLower("\xC9"), "\xC9");
    EXPECT_EQ(ToLower("@[`{"), "@[`{");
}

TEST(EqualIgnoringCase, LooksPastTheCaseOfAsciiLettersOnly) {
    EXPECT_TRUE(EqualIgnoringCase("White Pine", "wHITE pINE"));
    EXPECT_TRUE(EqualIgnoringCase("", ""));
    EXPECT_FALSE(EqualIgnoringCase("\xC9", "\xE9"));
    EXPECT_FALSE(EqualIgnoringCase("WP", "WPX"));
    EXPECT_FALSE(EqualIgnoringCase("@", "`"));
}

TEST(Split, GivesOnePieceMoreThanSeparators) {
    EXPECT_EQ(Split("a\tb\tc", '\t'), (Pieces{"a", "b", "c"}));
    EXPECT_EQ(Split("a", '\t'), (Pieces{"a"}));
    EXPECT_EQ(Split("", '\t'), (Pieces{""}));
    EXPECT_EQ(Split(",a,", ','), (Pieces{"", "a", ""}));
}

}  // namespace arbolith
