#include "platform/numbers.h"

#include "unit/platform/expect_error.h"

#include <clocale>
#include <cmath>
#include <gtest/gtest.h>
#include <limits>

namespace arbolith {

TEST(Val, TakesTheLongestLeadingDecimalNumber) {
    EXPECT_EQ(Val("12.5"), 12.5);
    EXPECT_EQ(Val("12.5 cm"), 12.5);
    EXPECT_EQ(Val("1.2.3"), 1.2);
    EXPECT_EQ(Val("7-8"), 7);
    EXPECT_EQ(Val("5."), 5);
    EXPECT_EQ(Val(".5"), 0.5);
}

TEST(Val, TakesOneSign) {
    EXPECT_EQ(Val("-3.25"), -3.25);
    EXPECT_EQ(Val("+4"), 4);
    EXPECT_EQ(Val("-.5"), -0.5);
    EXPECT_EQ(Val("--4"), 0);
    EXPECT_EQ(Val("+-4"), 0);
}

TEST(Val, SkipsLeadingBlanks) {
    EXPECT_EQ(Val("   8"), 8);
    EXPECT_EQ(Val("\t 8"), 8);
}

TEST(Val, IsZeroWithoutANumber) {
    for (const char* text : {"", " ", "abc", ".", "-", "-.", "x1", "nan", "inf"})
        EXPECT_EQ(Val(text), 0) << text;
}

TEST(Val, KnowsNoExponentAndNoOtherBase) {
    EXPECT_EQ(Val("1e5"), 1);
    EXPECT_EQ(Val("0x10"), 0);
}

TEST(Val, GivesNoNegativeZero) {
    EXPECT_FALSE(std::signbit(Val("-0")));
    EXPECT_FALSE(std::signbit(Val("-0.00")));
}

TEST(Val, OverflowsBeyond64Bits) {
    EXPECT_ERROR(6, Val(std::string(400, '9')));
    EXPECT_ERROR(6, Val("-" + std::string(400, '9') + ".5"));
}

TEST(Val, TakesWhatIsTooSmallForZero) {
    EXPECT_EQ(Val("0." + std::string(400, '0') + "1"), 0);
    EXPECT_EQ(Val("-." + std::string(400, '0') + "1"), 0);
}

TEST(DefaultText, IsTheShortestFormWithoutForcedDecimals) {
    EXPECT_EQ(DefaultText(12.5), "12.5");
    EXPECT_EQ(DefaultText(30), "30");
    EXPECT_EQ(DefaultText(-7), "-7");
    EXPECT_EQ(DefaultText(0.1), "0.1");
    EXPECT_EQ(DefaultText(1000000), "1000000");
}

TEST(DefaultText, HasADigitBeforeThePoint) {
    EXPECT_EQ(DefaultText(0.25), "0.25");
    EXPECT_EQ(DefaultText(-0.25), "-0.25");
}

TEST(DefaultText, HasAtMostFifteenSignificantDigits) {
    EXPECT_EQ(DefaultText(0.1 + 0.2), "0.3");
    EXPECT_EQ(DefaultText(1.0 / 3), "0.333333333333333");
    EXPECT_EQ(DefaultText(100.0 / 3), "33.3333333333333");
    EXPECT_EQ(DefaultText(123456789012345), "123456789012345");
    EXPECT_EQ(DefaultText(2.0 / 3), "0.666666666666667");
}

TEST(DefaultText, TakesAnExponentFromTheSixteenthDigitOn) {
    EXPECT_EQ(DefaultText(999999999999999), "999999999999999");
    EXPECT_EQ(DefaultText(1e15), "1E+15");
    EXPECT_EQ(DefaultText(1.5e20), "1.5E+20");
    EXPECT_EQ(DefaultText(-2.5e-7), "-2.5E-07");
}

TEST(DefaultText, GivesNoNegativeZero) {
    EXPECT_EQ(DefaultText(-0.0), "0");
}

TEST(DefaultText, IsAppendedToWhatIsThere) {
    std::string text = "SI=";
    AppendDefaultText(text, 17.06);
    EXPECT_EQ(text, "SI=17.06");
}

TEST(OneToThreeDecimals, ShowsOneAtLeastAndThreeAtMost) {
    EXPECT_EQ(OneToThreeDecimals(2), "2.0");
    EXPECT_EQ(OneToThreeDecimals(0), "0.0");
    EXPECT_EQ(OneToThreeDecimals(0.25), "0.25");
    EXPECT_EQ(OneToThreeDecimals(1.125), "1.125");
    EXPECT_EQ(OneToThreeDecimals(12.34567), "12.346");
    EXPECT_EQ(OneToThreeDecimals(120), "120.0");
}

TEST(OneToThreeDecimals, RoundsHalvesAwayFromZero) {
    EXPECT_EQ(OneToThreeDecimals(0.0005), "0.001");
    EXPECT_EQ(OneToThreeDecimals(2.0005), "2.001");
    EXPECT_EQ(OneToThreeDecimals(2.0015), "2.002");
    EXPECT_EQ(OneToThreeDecimals(-2.0005), "-2.001");
    EXPECT_EQ(OneToThreeDecimals(2.00049), "2.0");
}

TEST(OneToThreeDecimals, CarriesThroughAllDigits) {
    EXPECT_EQ(OneToThreeDecimals(9.9995), "10.0");
    EXPECT_EQ(OneToThreeDecimals(999.9999), "1000.0");
    EXPECT_EQ(OneToThreeDecimals(1.9996), "2.0");
}

TEST(OneToThreeDecimals, GivesNoNegativeZero) {
    EXPECT_EQ(OneToThreeDecimals(-0.0004), "0.0");
    EXPECT_EQ(OneToThreeDecimals(-1e-9), "0.0");
}

TEST(OneToThreeDecimals, WritesLargeNumbersOut) {
    EXPECT_EQ(OneToThreeDecimals(1e15), "1000000000000000.0");
    EXPECT_EQ(OneToThreeDecimals(-1e16), "-10000000000000000.0");
}

TEST(RoundTo2, TakesHalvesToEven) {
    EXPECT_EQ(RoundTo2(17.255), 17.26);
    EXPECT_EQ(RoundTo2(17.245), 17.24);
    EXPECT_EQ(RoundTo2(0.125), 0.12);
    EXPECT_EQ(RoundTo2(0.375), 0.38);
    EXPECT_EQ(RoundTo2(-0.125), -0.12);
    EXPECT_EQ(RoundTo2(100.0 / 3 * (100 / 1.2)), 2777.78);
}

TEST(ToInt16, TakesHalvesToEven) {
    EXPECT_EQ(ToInt16(0.5), 0);
    EXPECT_EQ(ToInt16(1.5), 2);
    EXPECT_EQ(ToInt16(2.5), 2);
    EXPECT_EQ(ToInt16(-1.5), -2);
    EXPECT_EQ(ToInt16(-2.5), -2);
    EXPECT_EQ(ToInt16(7.4), 7);
}

TEST(ToInt16, OverflowsOutside16Bits) {
    EXPECT_EQ(ToInt16(32767.4), 32767);
    EXPECT_EQ(ToInt16(-32768.5), -32768);
    EXPECT_ERROR(6, ToInt16(32767.5));
    EXPECT_ERROR(6, ToInt16(-32769));
    EXPECT_ERROR(6, ToInt16(1e300));
    EXPECT_ERROR(6, ToInt16(std::numeric_limits<double>::quiet_NaN()));
    EXPECT_ERROR(6, ToInt16(std::numeric_limits<double>::infinity()));
}

TEST(WholePart, IsTheFloor) {
    EXPECT_EQ(WholePart(2723.99), 2723);
    EXPECT_EQ(WholePart(-0.5), -1);
    EXPECT_EQ(WholePart(4), 4);
}

TEST(ParseReal, ReadsAWholeToken) {
    EXPECT_EQ(ParseReal("12.50"), 12.5);
    EXPECT_EQ(ParseReal("-4"), -4);
    EXPECT_EQ(ParseReal("+4"), 4);
    EXPECT_EQ(ParseReal(".5"), 0.5);
    EXPECT_EQ(ParseReal("1E3"), 1000);
    EXPECT_EQ(ParseReal("1e-2"), 0.01);
}

TEST(ParseReal, RefusesEverythingElseAsATypeMismatch) {
    for (const char* token :
         {"",   "+",  "-",   ".",   "+-5",  "++5", "--5",      "12x",  "1.2.3", "1,5",
          " 1", "1 ", "nan", "inf", "-inf", "NAN", "infinity", "0x10", "1e",    "e5"})
        EXPECT_ERROR(13, ParseReal(token)) << token;
}

TEST(ParseReal, OverflowsBeyond64Bits) {
    EXPECT_ERROR(6, ParseReal("1e309"));
    EXPECT_ERROR(6, ParseReal("-1e309"));
}

// A locale with a decimal comma must change nothing.
TEST(Numbers, KeepThePointInEveryLocale) {
    const std::string before = std::setlocale(LC_ALL, nullptr);
    for (const char* locale : {"de_DE.UTF-8", "de_DE", "fr_FR.UTF-8"})
        if (std::setlocale(LC_ALL, locale) != nullptr) break;
    EXPECT_EQ(DefaultText(12.5), "12.5");
    EXPECT_EQ(OneToThreeDecimals(12.5), "12.5");
    EXPECT_EQ(Val("12.5"), 12.5);
    EXPECT_EQ(ParseReal("12.5"), 12.5);
    std::setlocale(LC_ALL, before.c_str());
}

}  // namespace arbolith
