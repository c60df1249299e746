// The text of a block.
#include "models/report.h"

#include "unit/models/growth_testing.h"

#include <gtest/gtest.h>

namespace growth {
namespace {

Yield OneRow() {
    Yield yield{8.7, {Row{}}};
    yield.rows[0].age = 45;
    double value = 1.0 / 3.0;
    for (auto& classes : yield.rows[0].values) {
        for (double& each : classes) each = value += 1.0;
    }
    return yield;
}

std::string BlockText(int sequence, Units units, const Yield& yield) {
    std::string text;
    AppendBlock(text, sequence, units, yield);
    return text;
}

TEST(AppendBlock, PrintsMetricDecimals) {
    EXPECT_EQ(BlockText(3, Units::Metric, OneRow()),
              "8.7\r\n"
              "3 45 1.3 2.3 3.3 4.33 5.33 6.33 7 8 9 10.3 11.3 12.3 13.3 14.3 15.3 "
              "16.33 17.33 18.33 19.3 20.3 21.3 22.33 23.33 24.33\r\n");
}

TEST(AppendBlock, PrintsImperialDecimals) {
    EXPECT_EQ(BlockText(3, Units::Imperial, OneRow()),
              "8.7\r\n"
              "3 45 1.3 2.3 3.3 4.3 5.3 6.3 7 8 9 10.3 11.3 12.3 13 14 15 "
              "16.3 17.3 18.3 19 20 21 22.3 23.3 24.3\r\n");
}

TEST(AppendBlock, PrintsAStandThatCantBeGrownAsOneRowOfZeros) {
    const Yield ungrown{0.0, {Row{}}};
    EXPECT_EQ(BlockText(12, Units::Metric, ungrown),
              "0.0\r\n12 0 0.0 0.0 0.0 0.00 0.00 0.00 0 0 0 0.0 0.0 0.0 0.0 0.0 0.0 "
              "0.00 0.00 0.00 0.0 0.0 0.0 0.00 0.00 0.00\r\n");
    EXPECT_EQ(BlockText(12, Units::Imperial, ungrown),
              "0.0\r\n12 0 0.0 0.0 0.0 0.0 0.0 0.0 0 0 0 0.0 0.0 0.0 0 0 0 "
              "0.0 0.0 0.0 0 0 0 0.0 0.0 0.0\r\n");
}

TEST(AppendBlock, EchoesTheSequenceOnEveryRow) {
    const testing::Block block =
        testing::Project(Wood::Softwood, testing::Line({.sequence = "31999"}));
    EXPECT_EQ(block.rows.size(), 24U);
    for (const auto& row : block.rows) EXPECT_EQ(row[0], 31999);
}

}  // namespace
}  // namespace growth
