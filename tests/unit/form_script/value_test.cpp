#include "form_script/value.h"

#include <gtest/gtest.h>

namespace arbolith {

namespace {

Value Text(const char* text) {
    return std::string(text);
}

}  // namespace

TEST(Value, ComparesTextsExactly) {
    EXPECT_TRUE(Equals(Text("12.5"), "12.5"));
    EXPECT_FALSE(Equals(Text("12.50"), "12.5"));
    EXPECT_FALSE(Equals(Text("Run"), "run"));
    EXPECT_TRUE(Equals(Text(""), ""));
    EXPECT_FALSE(Equals(Text("a\r\n"), "a\n"));
}

TEST(Value, ComparesNumbersAsNumbers) {
    EXPECT_TRUE(Equals(12.5, "12.50"));
    EXPECT_TRUE(Equals(1000.0, "1E3"));
    EXPECT_TRUE(Equals(Number(-1), "-1"));
    EXPECT_FALSE(Equals(12.5, "12.51"));
    EXPECT_FALSE(Equals(0.0, ""));
    EXPECT_FALSE(Equals(0.0, "zero"));
}

TEST(Value, ComparesNumbersToTheDigitsOfTheirTextForm) {
    EXPECT_TRUE(Equals(0.1 + 0.2, "0.3"));
    EXPECT_FALSE(Equals(0.3000000001, "0.3"));
}

TEST(Value, ComparesFlagsByTheirWords) {
    EXPECT_TRUE(Equals(true, "true"));
    EXPECT_TRUE(Equals(false, "false"));
    EXPECT_FALSE(Equals(true, "1"));
    EXPECT_FALSE(Equals(false, "0"));
}

TEST(Value, ComparesColoursByNameOrParts) {
    EXPECT_TRUE(Equals(ColourValue{0xFFFF00}, "cyan"));
    EXPECT_TRUE(Equals(ColourValue{0xFFFF00}, "0,255,255"));
    EXPECT_TRUE(Equals(ColourValue{kButtonFace}, "face"));
    EXPECT_TRUE(Equals(ColourValue{0x0000FF}, "255,0,0"));
    EXPECT_FALSE(Equals(ColourValue{0x0000FF}, "0,0,255"));
    for (const char* text : {"255,0", "255,0,0,0", "256,0,0", "-1,0,0", "red", ""})
        EXPECT_FALSE(Equals(ColourValue{0x0000FF}, text)) << text;
}

TEST(Value, HasATextOfItsKind) {
    EXPECT_EQ(TextOf(Text("a b")), "a b");
    EXPECT_EQ(TextOf(0.25), "0.25");
    EXPECT_EQ(TextOf(true), "true");
    EXPECT_EQ(TextOf(ColourValue{0xFFFF00}), "cyan");
    EXPECT_EQ(TextOf(ColourValue{kButtonFace}), "face");
    EXPECT_EQ(TextOf(ColourValue{0x030201}), "1,2,3");
    EXPECT_EQ(TextOf(ColourValue{0x80000005}), "system colour 5");
}

TEST(Value, IsDescribedWithTextsInQuotes) {
    EXPECT_EQ(Described(Text("a b")), "\"a b\"");
    EXPECT_EQ(Described(3.0), "3");
}

TEST(ReadWholeNumber, TakesDigitsAndAMinusOnly) {
    EXPECT_EQ(ReadWholeNumber("12"), 12);
    EXPECT_EQ(ReadWholeNumber("-1"), -1);
    for (const char* text : {"", "-", "1.0", "1x", " 1", "+1", "99999999999"})
        EXPECT_EQ(ReadWholeNumber(text), std::nullopt) << text;
}

TEST(ReadNumber, TakesWholeTextsOnly) {
    EXPECT_EQ(ReadNumber("-0.5"), -0.5);
    for (const char* text : {"", "x", "1 ", "nan", "1e999"})
        EXPECT_EQ(ReadNumber(text), std::nullopt) << text;
}

}  // namespace arbolith
