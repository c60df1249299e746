// Number reading and printing of the growth models.
#include "models/numbers.h"

#include <gtest/gtest.h>

namespace growth {
namespace {

std::string Fixed(double value, int decimals) {
    std::string text;
    AppendFixed(text, value, decimals);
    return text;
}

TEST(ReadNumber, ReadsDigitsWithAtMostOnePoint) {
    EXPECT_EQ(ReadNumber("12"), 12.0);
    EXPECT_EQ(ReadNumber("17.25"), 17.25);
    EXPECT_EQ(ReadNumber("5."), 5.0);
    EXPECT_EQ(ReadNumber(".5"), 0.5);
    EXPECT_EQ(ReadNumber("1.2.3"), 1.2);
}

TEST(ReadNumber, TakesACommaForAPoint) {
    EXPECT_EQ(ReadNumber("17,25"), 17.25);
    EXPECT_EQ(ReadNumber("1,2.3"), 1.2);
    EXPECT_EQ(ReadNumber("1.2,3"), 1.2);
}

TEST(ReadNumber, TakesASignRightBeforeTheDigits) {
    EXPECT_EQ(ReadNumber("-3.5"), -3.5);
    EXPECT_EQ(ReadNumber("+3.5"), 3.5);
    EXPECT_EQ(ReadNumber("-.5"), -0.5);
    EXPECT_EQ(ReadNumber("- 3"), 0.0);
    EXPECT_EQ(ReadNumber("--3"), 0.0);
}

TEST(ReadNumber, StripsOuterBlanksAndStopsAtInnerOnes) {
    EXPECT_EQ(ReadNumber("  7 "), 7.0);
    EXPECT_EQ(ReadNumber("7\r"), 7.0);
    EXPECT_EQ(ReadNumber("1 000"), 1.0);
}

TEST(ReadNumber, GivesZeroWithoutADigit) {
    for (const char* text : {"", " ", ".", ",", "-", "+.", "abc", "x5", "nan", "inf", "e5"})
        EXPECT_EQ(ReadNumber(text), 0.0) << text;
}

TEST(ReadNumber, TakesTheLongestNumericBeginning) {
    EXPECT_EQ(ReadNumber("120 years"), 120.0);
    EXPECT_EQ(ReadNumber("8a9"), 8.0);
}

TEST(ReadNumber, ReadsNoExponentAndNoHexadecimal) {
    EXPECT_EQ(ReadNumber("1e5"), 1.0);
    EXPECT_EQ(ReadNumber("2.5E2"), 2.5);
    EXPECT_EQ(ReadNumber("0x10"), 0.0);
}

TEST(ReadNumber, IsLimitedToABillionEitherWay) {
    EXPECT_EQ(ReadNumber("999999999"), 999999999.0);
    EXPECT_EQ(ReadNumber("1000000001"), 1e9);
    EXPECT_EQ(ReadNumber("-1000000001"), -1e9);
    EXPECT_EQ(ReadNumber(std::string(4000, '9')), 1e9);
    EXPECT_EQ(ReadNumber("-" + std::string(4000, '9') + ".5"), -1e9);
}

TEST(ReadNumber, GivesZeroForWhatIsTooSmallForADouble) {
    EXPECT_EQ(ReadNumber("0." + std::string(4000, '0') + "1"), 0.0);
    EXPECT_EQ(ReadNumber(std::string(500, '0') + "." + std::string(4000, '0') + "1"), 0.0);
    EXPECT_EQ(ReadNumber("." + std::string(4000, '0') + "1"), 0.0);
}

TEST(RoundTo, RoundsHalvesUpwards) {
    EXPECT_EQ(RoundTo(0.5, 0), 1.0);
    EXPECT_EQ(RoundTo(1.5, 0), 2.0);
    EXPECT_EQ(RoundTo(2.5, 0), 3.0);
    EXPECT_EQ(RoundTo(0.25, 1), 0.3);
    EXPECT_EQ(RoundTo(0.375, 2), 0.38);
    EXPECT_EQ(RoundTo(-0.5, 0), 0.0);
    EXPECT_EQ(RoundTo(-1.5, 0), -1.0);
}

TEST(AppendFixed, PrintsExactlySoManyDecimals) {
    EXPECT_EQ(Fixed(0.0, 0), "0");
    EXPECT_EQ(Fixed(0.0, 1), "0.0");
    EXPECT_EQ(Fixed(0.0, 2), "0.00");
    EXPECT_EQ(Fixed(8.7, 1), "8.7");
    EXPECT_EQ(Fixed(0.05, 2), "0.05");
    EXPECT_EQ(Fixed(12.3456, 3), "12.346");
    EXPECT_EQ(Fixed(11988.6, 0), "11989");
    EXPECT_EQ(Fixed(9.99, 1), "10.0");
    EXPECT_EQ(Fixed(100.0, 2), "100.00");
}

TEST(AppendFixed, GivesZeroNoSign) {
    EXPECT_EQ(Fixed(-0.0, 1), "0.0");
    EXPECT_EQ(Fixed(-0.04, 1), "0.0");
    EXPECT_EQ(Fixed(-0.06, 1), "-0.1");
    EXPECT_EQ(Fixed(-12.34, 1), "-12.3");
}

TEST(AppendFixed, PrintsLargeValuesWithoutExponent) {
    EXPECT_EQ(Fixed(123456789.0, 2), "123456789.00");
    EXPECT_EQ(Fixed(1e15, 0), "1000000000000000");
    EXPECT_EQ(Fixed(1e22, 2), "10000000000000000000000.00");
    EXPECT_EQ(Fixed(1e300, 3).size(), 305U);
}

TEST(AppendFixed, AppendsToWhatIsThere) {
    std::string text = "a ";
    AppendFixed(text, 1.5, 1);
    AppendWhole(text, 32767);
    EXPECT_EQ(text, "a 1.532767");
}

TEST(StripBlanks, TakesBlanksTabsAndReturnsOffBothEnds) {
    EXPECT_EQ(StripBlanks(" \t a b \r"), "a b");
    EXPECT_EQ(StripBlanks(" \t\r"), "");
}

}  // namespace
}  // namespace growth
