// Reading a stand's line.
#include "models/stand_line.h"

#include "unit/models/growth_testing.h"

#include <gtest/gtest.h>

namespace growth {
namespace {

using testing::Line;
using testing::LineFields;
using testing::TabLine;

StandLine Read(const LineFields& fields) {
    return ReadStandLine(Line(fields));
}

TEST(StandLine, HoldsEveryFieldInItsPlace) {
    const StandLine stand = ReadStandLine(
        TabLine("7|N|N|bf|3|51.5|1100|6.5|7.25|80|9.5|20.5|50.25|8.125|99|30|25|6.75|85|"));
    EXPECT_EQ(stand.sequence, 7);
    EXPECT_EQ(stand.units, Units::Imperial);
    EXPECT_TRUE(stand.planted);
    EXPECT_EQ(stand.species, "BF");
    EXPECT_EQ(stand.landClass, 3);
    EXPECT_EQ(stand.siteIndex, 51.5);
    EXPECT_EQ(stand.frequency, 1100);
    EXPECT_EQ(stand.spacingX, 6.5);
    EXPECT_EQ(stand.spacingY, 7.25);
    EXPECT_EQ(stand.rotationAge, 80);
    EXPECT_EQ(stand.rotationDiameter, 9.5);
    EXPECT_EQ(stand.treatment1Age, 20.5);
    EXPECT_EQ(stand.treatment2Age, 50.25);
    EXPECT_EQ(stand.treatment1Diameter, 8.125);
    EXPECT_EQ(stand.treatment1Removal, 30);
    EXPECT_EQ(stand.treatment2Removal, 25);
    EXPECT_EQ(stand.treatment1Spacing, 6.75);
    EXPECT_EQ(stand.stocking, 85);
}

TEST(StandLine, TakesOnlyTheLetterNForImperialAndPlanted) {
    EXPECT_EQ(Read({.met = "n"}).units, Units::Imperial);
    EXPECT_EQ(Read({.met = "N"}).units, Units::Imperial);
    for (const char* text : {"Y", "y", "", "No", "M", "0"}) {
        EXPECT_EQ(Read({.met = text}).units, Units::Metric) << text;
        EXPECT_FALSE(Read({.nat = text}).planted) << text;
    }
    EXPECT_TRUE(Read({.nat = "n"}).planted);
    EXPECT_TRUE(Read({.nat = "N"}).planted);
}

TEST(StandLine, StripsAndRaisesTheSpecies) {
    EXPECT_EQ(Read({.spec = "  wP "}).species, "WP");
    EXPECT_EQ(Read({.spec = "\xE9p"}).species, "\xE9P");
}

TEST(StandLine, LimitsTheSequenceToWholeNumbersOf15Bits) {
    EXPECT_EQ(Read({.sequence = "12.9"}).sequence, 12);
    EXPECT_EQ(Read({.sequence = "-1"}).sequence, 0);
    EXPECT_EQ(Read({.sequence = "32767"}).sequence, 32767);
    EXPECT_EQ(Read({.sequence = "99999999999"}).sequence, 32767);
    EXPECT_EQ(Read({.sequence = "x"}).sequence, 0);
}

TEST(StandLine, TakesMissingFieldsForEmptyOnes) {
    const StandLine stand = ReadStandLine(TabLine("4|Y|Y|WP"));
    EXPECT_EQ(stand.sequence, 4);
    EXPECT_EQ(stand.species, "WP");
    EXPECT_EQ(stand.landClass, 0);
    EXPECT_EQ(stand.stocking, 0);
    EXPECT_EQ(ReadStandLine("").species, "");
    EXPECT_EQ(ReadStandLine("").units, Units::Metric);
}

TEST(StandLine, IgnoresWhatFollowsTheLastTab) {
    const std::string line = Line({.stk = "75"});
    EXPECT_EQ(ReadStandLine(line + "12345\tmore\t").stocking, 75);
}

TEST(StandLine, TakesALastFieldWithoutItsTab) {
    std::string line = Line({.stk = "75"});
    line.pop_back();
    EXPECT_EQ(ReadStandLine(line).stocking, 75);
    EXPECT_EQ(ReadStandLine(line + "\r").stocking, 75);
}

TEST(StandLine, ReadsCommasSignsAndBlanksInNumbers) {
    const StandLine stand =
        Read({.sib = " 17,5 ", .rage = "+80", .t1Age = "-4", .t1Iba = "3e1", .stk = "80 %"});
    EXPECT_EQ(stand.siteIndex, 17.5);
    EXPECT_EQ(stand.rotationAge, 80);
    EXPECT_EQ(stand.treatment1Age, -4);
    EXPECT_EQ(stand.treatment1Removal, 3);
    EXPECT_EQ(stand.stocking, 80);
}

}  // namespace
}  // namespace growth
