#include "batch/batch_text.h"

#include <gtest/gtest.h>

namespace arbolith {

namespace {

using Items = std::vector<std::string>;

// A file whose lines 11 and 12 are these.
Items FileWith(const std::string& output, const std::string& autorun) {
    Items items(13, "#");
    items[11] = output;
    items[12] = autorun;
    return items;
}

}  // namespace

TEST(HeadingOfBatch, HasSeventeenLines) {
    const auto lines = HeadingOfBatch("a b.txt");
    ASSERT_EQ(lines.size(), 17U);
    EXPECT_EQ(lines[0], std::string(52, '#'));
    EXPECT_EQ(lines[10], lines[0]);
    EXPECT_EQ(lines[11], "output a b.txt");
    EXPECT_EQ(lines[12], "autorun false");
    EXPECT_EQ(lines[16], "sequences:");
}

TEST(OutputOf, IsTheTrimmedRestOfLineEleven) {
    EXPECT_EQ(OutputOf(FileWith("OutPut  my report.txt ", "")), "my report.txt");
    EXPECT_EQ(OutputOf(FileWith("output", "")), "");
    EXPECT_EQ(OutputOf(FileWith("outpu", "")), std::nullopt);
    EXPECT_EQ(OutputOf(FileWith("#output", "")), std::nullopt);
    EXPECT_EQ(OutputOf(Items(11, "output x")), std::nullopt);
    EXPECT_EQ(OutputOf({}), std::nullopt);
}

TEST(RunsByItself, OnlyByTheWordInLowerCaseAtTheEndOfLineTwelve) {
    EXPECT_TRUE(RunsByItself(FileWith("", "autorun true")));
    EXPECT_TRUE(RunsByItself(FileWith("", "AUTORUN is untrue")));
    EXPECT_TRUE(RunsByItself(FileWith("", "autoruntrue")));
    EXPECT_FALSE(RunsByItself(FileWith("", "autorun True")));
    EXPECT_FALSE(RunsByItself(FileWith("", "autorun true ")));
    EXPECT_FALSE(RunsByItself(FileWith("", "autorun")));
    EXPECT_FALSE(RunsByItself(FileWith("", "# autorun true")));
    EXPECT_FALSE(RunsByItself(FileWith("autorun true", "")));
    EXPECT_FALSE(RunsByItself({}));
}

TEST(FirstSequence, StandsBehindTheFirstExactLine) {
    EXPECT_EQ(FirstSequence({"x", "Sequences:", "sequences:", "a", "sequences:"}), 3U);
    EXPECT_EQ(FirstSequence({"sequences:"}), 1U);
    EXPECT_EQ(FirstSequence({"sequences: ", "x"}), 0U);
    EXPECT_EQ(FirstSequence({}), 0U);
}

TEST(StemAndExtension, PartAtTheLastPoint) {
    EXPECT_EQ(StemOf("a.b.qvb"), "a.b.");
    EXPECT_EQ(ExtensionOf("a.b.qvb"), "qvb");
    EXPECT_EQ(StemOf("bare"), "");
    EXPECT_EQ(ExtensionOf("bare"), "bare");
    EXPECT_EQ(StemOf("end."), "end.");
    EXPECT_EQ(ExtensionOf("end."), "");
}

}  // namespace arbolith
