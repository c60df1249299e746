// What of a chart is drawn, and the numbers at its axes.
#include "qt/plot.h"

#include "chart_testing.h"
#include "forms/application.h"
#include "platform/headless_host.h"

#include <gtest/gtest.h>

namespace arbolith {

namespace {

using namespace chart_testing;

struct PlotTest : testing::Test {
    HeadlessHost host;
    Application application{host, "/tmp", ""};
    Form form{application, "Form", "Form", {9000, 6000}};
    Chart chart{form, "Chart", {0, 0, 9000, 6000}};
};

}  // namespace

TEST(TickTexts, NumbersHaveTheDecimalsThatTheirDivisionsNeed) {
    EXPECT_EQ(TickTexts({0, 100, 5, 1}), (QStringList{"0", "20", "40", "60", "80", "100"}));
    EXPECT_EQ(TickTexts({0, 1, 4, 1}), (QStringList{"0.00", "0.25", "0.50", "0.75", "1.00"}));
    EXPECT_EQ(TickTexts({0, 0.5, 5, 1}), (QStringList{"0.0", "0.1", "0.2", "0.3", "0.4", "0.5"}));
    EXPECT_EQ(TickTexts({0, 5865, 5, 1}),
              (QStringList{"0", "1173", "2346", "3519", "4692", "5865"}));
}

TEST(TickTexts, DivisionsThatNeedManyDecimalsAreRounded) {
    EXPECT_EQ(TickTexts({0, 100, 3, 1}), (QStringList{"0.0", "33.3", "66.7", "100.0"}));
    EXPECT_EQ(TickTexts({0, 1, 3, 1}), (QStringList{"0.000", "0.333", "0.667", "1.000"}));
    EXPECT_EQ(TickTexts({0, 61728.375, 2, 1}), (QStringList{"0", "30864", "61728"}));
}

TEST(TickTexts, TheMiddleOfAnAxisIsNoAlmostZero) {
    EXPECT_EQ(TickTexts({-0.3, 0.3, 6, 1}),
              (QStringList{"-0.3", "-0.2", "-0.1", "0.0", "0.1", "0.2", "0.3"}));
}

TEST(TickTexts, NumbersOutOfAllMeasureStayShort) {
    EXPECT_EQ(TickTexts({0, 1e12, 2, 1}), (QStringList{"0", "5e+11", "1e+12"}));
    EXPECT_EQ(TickTexts({0, 1e-9, 1, 1}), (QStringList{"0", "1e-09"}));
}

TEST_F(PlotTest, AScatterChartReadsItsColumnsInPairs) {
    FillScatter(chart, 2, 3);
    const Plot plot = PlotOf(chart);
    ASSERT_EQ(plot.series.size(), 2U);
    EXPECT_EQ(plot.series[1].number, 3);
    EXPECT_EQ(plot.series[1].name, "MDBH");
    EXPECT_EQ(plot.series[1].points[2], QPointF(15, chart.Data(3, 4)));
}

TEST_F(PlotTest, ADescriptionTellsTitleAxesAndSeries) {
    FillScatter(chart, 2, 3);
    Plot plot = PlotOf(chart);
    plot.title = "Red Oak";
    plot.xTitle = "Age";
    plot.yTitle = "Height";
    plot.x = {0, 15, 3, 1};
    plot.y = {-1, 1, 4, 1};
    EXPECT_EQ(DescriptionOf(plot),
              "Red Oak. X axis: Age, 0 to 15. Y axis: Height, -1.0 to 1.0. Lines: TDBH, MDBH");
    plot.hasBars = true;
    plot.title.clear();
    EXPECT_EQ(DescriptionOf(plot), "X axis: Age. Y axis: Height, -1.0 to 1.0. Bars: TDBH, MDBH");
}

TEST_F(PlotTest, ALastColumnWithoutItsPairIsNoSeries) {
    chart.SetSize(2, 3);
    EXPECT_EQ(PlotOf(chart).series.size(), 1U);
}

TEST_F(PlotTest, BarsStandInTheMiddleOfTheirRows) {
    FillBars(chart, 2, 3);
    const Plot plot = PlotOf(chart);
    EXPECT_TRUE(plot.hasBars);
    EXPECT_EQ(plot.rowLabels, (QStringList{"5", "10", "15"}));
    EXPECT_EQ(plot.x, (AxisScale{-0.5, 2.5, 3, 1}));
    EXPECT_EQ(plot.series[1].number, 2);
    EXPECT_EQ(plot.series[1].points[2], QPointF(2, chart.Data(3, 2)));
}

TEST_F(PlotTest, AnEmptyChartCanBeDrawn) {
    EXPECT_TRUE(PlotOf(chart).series.empty());
    chart.SetChartType(Chart::Type::kBar2d);
    EXPECT_EQ(PlotOf(chart).x, (AxisScale{-0.5, 0.5, 1, 1}));
}

TEST_F(PlotTest, APointSaysItsSeriesItsValueAndWhatItStandsOver) {
    FillScatter(chart, 2, 3);
    chart.SetData(3, 4, 12.5);
    EXPECT_EQ(TextOf(PlotOf(chart), {3, 3}), "MDBH: 12.5\nAge (years): 15");
    FillBars(chart, 2, 3);
    chart.SetData(3, 2, 0.25);
    EXPECT_EQ(TextOf(PlotOf(chart), {2, 3}), "MDBH: 0.25\nAge (years): 15");
}

}  // namespace arbolith
