#include "unit/batch/batch_testing.h"
#include "unit/platform/expect_error.h"

namespace arbolith {

namespace {

using DescribeSequenceTest = BatchTest;

}  // namespace

TEST_F(DescribeSequenceTest, LoadsTheTablesOfTheWoodType) {
    DescribeSequence(run, Line("1", "H"));
    EXPECT_EQ(run.species.Species("RM"), "Red Maple");
    EXPECT_EQ(run.species.Species("WP"), "");
    DescribeSequence(run, Line("1", "S"));
    EXPECT_EQ(run.species.Species("WP"), "White Pine");
}

TEST_F(DescribeSequenceTest, FailsForASpeciesThatIsNotKnown) {
    EXPECT_ERROR(9, DescribeSequence(run,
                                     "1\tS\tY\tY\tRM\t3\t0\t1\t0\t0\t80\t0\t0\t0\t0\t0\t0\t0"
                                     "\t0\t100\t"));
    // A name is looked up for its code, which is a single word.
    EXPECT_ERROR(9, DescribeSequence(run,
                                     "1\tS\tY\tY\tWhite Pine\t3\t0\t1\t0\t0\t80\t0\t0\t0\t0\t0"
                                     "\t0\t0\t0\t100\t"));
}

TEST_F(DescribeSequenceTest, FailsForASiteTextOfMoreThanEightCharacters) {
    const auto line = [](const std::string& sites) {
        return "1\tS\tY\tY\tWP\t" + sites + "\t1\t0\t0\t80\t0\t0\t0\t0\t0\t0\t0\t0\t100\t";
    };
    EXPECT_NE(DescribeSequence(run, line("0\t12.34")).find("SI:12.34\t"), std::string::npos);
    EXPECT_ERROR(5, DescribeSequence(run, line("0\t12.345")));
    EXPECT_ERROR(5, DescribeSequence(run, line("123456\t0")));
}

TEST_F(DescribeSequenceTest, FailsForALineThatIsTooShort) {
    auto line = Line("1", "S");
    line = line.substr(0, line.rfind("\t100"));
    EXPECT_ERROR(9, DescribeSequence(run, line));
    EXPECT_ERROR(9, DescribeSequence(run, "1"));
    EXPECT_ERROR(9, DescribeSequence(run, ""));
}

}  // namespace arbolith
