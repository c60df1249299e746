#include "platform/code_page.h"

#include <gtest/gtest.h>
#include <string>

namespace arbolith {

TEST(CodePage, BringsEveryByteBack) {
    for (int byte = 0; byte < 256; ++byte)
        EXPECT_EQ(ByteOf(CodePointOf(static_cast<unsigned char>(byte))), byte);
}

TEST(CodePage, BringsATextOfAllBytesBackThroughUtf8) {
    std::string all;
    for (int byte = 0; byte < 256; ++byte) all += static_cast<char>(byte);
    EXPECT_EQ(FromUtf8(ToUtf8(all)), all);
}

TEST(CodePage, KnowsTheLettersAndSignsOfWindows1252) {
    EXPECT_EQ(CodePointOf(0x80), U'\u20AC');
    EXPECT_EQ(CodePointOf(0x99), U'\u2122');
    EXPECT_EQ(CodePointOf(0xE9), U'\u00E9');
    EXPECT_EQ(ByteOf(U'\u00B2'), 0xB2);
    EXPECT_EQ(ByteOf(U'\u0152'), 0x8C);
}

TEST(CodePage, MapsTheFiveOpenBytesToThemselves) {
    const unsigned char open[] = {0x81, 0x8D, 0x8F, 0x90, 0x9D};
    for (const auto byte : open) EXPECT_EQ(CodePointOf(byte), byte);
}

TEST(CodePage, TurnsWhatItDoesNotHoldIntoAQuestionMark) {
    EXPECT_EQ(ByteOf(U'\u0100'), '?');
    EXPECT_EQ(ByteOf(U'\U0001F332'), '?');
    EXPECT_EQ(ByteOf(0x80), '?');
    EXPECT_EQ(FromUtf8("m\u00B2 \u4E2D \U0001F332."), "m\xB2 ? ?.");
}

TEST(CodePage, WritesUtf8OfOneToThreeBytes) {
    EXPECT_EQ(ToUtf8("a\xE9\x80"), "a\u00E9\u20AC");
}

TEST(CodePage, LeavesUtf8AsItIsAndTakesAllElseForItsOwn) {
    EXPECT_EQ(AnyToUtf8("\u00C9rable \u4E2D \U0001F332"), "\u00C9rable \u4E2D \U0001F332");
    EXPECT_EQ(AnyToUtf8("\xC9rable"), "\u00C9rable");
    EXPECT_EQ(AnyToUtf8("\xC3\x89 \xC9"), "\u00C3\u2030 \u00C9");
    EXPECT_EQ(AnyToUtf8(""), "");
}

TEST(CodePage, TurnsWhatIsNoUtf8IntoQuestionMarks) {
    EXPECT_EQ(FromUtf8("a\xFFz"), "a?z");
    EXPECT_EQ(FromUtf8("\x80"), "?");
    EXPECT_EQ(FromUtf8("\xE2\x82"), "??");
    EXPECT_EQ(FromUtf8("\xC3x"), "?x");
}

TEST(CodePage, RefusesFormsThatAreLongerThanNeeded) {
    EXPECT_EQ(FromUtf8("\xC0\xAF").find('/'), std::string::npos);
    EXPECT_EQ(FromUtf8("\xE0\x80\xAF").find('/'), std::string::npos);
    EXPECT_EQ(FromUtf8("\xF0\x80\x80\xAF").find('/'), std::string::npos);
}

TEST(CodePage, LeavesAnEmptyTextEmpty) {
    EXPECT_EQ(ToUtf8(""), "");
    EXPECT_EQ(FromUtf8(""), "");
}

}  // namespace arbolith
