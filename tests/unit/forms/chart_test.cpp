#include "forms/chart.h"

#include "unit/forms/forms_test.h"
#include "unit/platform/expect_error.h"

namespace arbolith {

class ChartTest : public FormsTest {
protected:
    Chart chart{form, "Chart", {}};
};

TEST_F(ChartTest, StartsEmptyAsAScatterChartWithoutLegend) {
    EXPECT_EQ(static_cast<int>(chart.chartType()), 16);
    EXPECT_EQ(chart.ColumnCount(), 0);
    EXPECT_EQ(chart.RowCount(), 0);
    EXPECT_FALSE(chart.LegendVisible());
    EXPECT_EQ(chart.Title(), "");
}

TEST_F(ChartTest, KeepsTheCellsThatOldAndNewSizeShare) {
    chart.SetSize(2, 2);
    chart.SetData(1, 1, 11);
    chart.SetData(2, 2, 22);
    chart.SetSize(3, 1);
    EXPECT_EQ(chart.Data(1, 1), 11);
    EXPECT_EQ(chart.Data(3, 1), 0);
    chart.SetSize(2, 2);
    EXPECT_EQ(chart.Data(2, 2), 0);
}

TEST_F(ChartTest, CountsFromOneAndFailsWith9Outside) {
    chart.SetSize(2, 3);
    chart.SetData(2, 3, 1.5);
    EXPECT_EQ(chart.Data(2, 3), 1.5);
    EXPECT_ERROR(9, chart.Data(0, 1));
    EXPECT_ERROR(9, chart.Data(1, 0));
    EXPECT_ERROR(9, chart.Data(3, 1));
    EXPECT_ERROR(9, chart.SetData(1, 4, 0));
    EXPECT_ERROR(9, chart.ColumnLabel(4));
    EXPECT_ERROR(9, chart.SetColumnLabel(0, ""));
    EXPECT_ERROR(9, chart.RowLabel(3));
    EXPECT_ERROR(9, chart.SetRowLabel(3, ""));
    EXPECT_ERROR(9, chart.Axis(4));
    EXPECT_ERROR(9, chart.SetAxis(-1, {}));
    EXPECT_ERROR(5, chart.SetSize(-1, 1));
}

TEST_F(ChartTest, KeepsLabelsOfColumnsAndRows) {
    chart.SetSize(1, 2);
    chart.SetColumnLabel(2, "TDBH");
    chart.SetRowLabel(1, "5");
    EXPECT_EQ(chart.ColumnLabel(2), "TDBH");
    EXPECT_EQ(chart.ColumnLabel(1), "");
    EXPECT_EQ(chart.RowLabel(1), "5");
}

TEST_F(ChartTest, StartsItsAxesAutomatic) {
    for (const int axis : {Chart::kAxisX, Chart::kAxisY}) {
        EXPECT_TRUE(chart.Axis(axis).Scale.Auto);
        EXPECT_EQ(chart.Axis(axis).Scale.MajorDivision, 5);
        EXPECT_EQ(chart.Axis(axis).Scale.MinorDivision, 1);
        EXPECT_EQ(chart.Axis(axis).MajorPen, PenStyle::kNone);
    }
}

TEST_F(ChartTest, KeepsExplicitValuesAlsoOnAnAutomaticAxis) {
    auto axis = chart.Axis(Chart::kAxisY);
    axis.Scale.Maximum = 6000;
    axis.Scale.Auto = true;
    axis.Title = "Frequency";
    chart.SetAxis(Chart::kAxisY, axis);
    EXPECT_EQ(chart.Maximum(Chart::kAxisY), 6000);
    EXPECT_EQ(chart.Axis(Chart::kAxisY).Title, "Frequency");
    EXPECT_FALSE(chart.Axis(Chart::kAxisX).Scale.Maximum);
}

TEST_F(ChartTest, TakesTheNumberOfAText) {
    chart.SetSize(1, 1);
    const auto numberIn = [this](const char* text) {
        chart.SetData(1, 1, text);
        return chart.Data(1, 1);
    };
    EXPECT_EQ(numberIn("12.5"), 12.5);
    EXPECT_EQ(numberIn("-1.5E-05"), -1.5e-5);
    EXPECT_EQ(numberIn("7 cm"), 7);
    EXPECT_EQ(numberIn(""), 0);
    EXPECT_EQ(numberIn("none"), 0);
    EXPECT_ERROR(9, chart.SetData(1, 2, "1"));
}

TEST_F(ChartTest, ReadsEndsThatAreNotToldAsTheyAreDrawn) {
    EXPECT_EQ(chart.Minimum(Chart::kAxisX), 0);
    EXPECT_EQ(chart.Maximum(Chart::kAxisX), 1);
    chart.SetSize(2, 2);
    chart.SetData(1, 1, 5);
    chart.SetData(2, 1, 80);
    chart.SetData(1, 2, -3);
    chart.SetData(2, 2, 7);
    EXPECT_EQ(chart.Minimum(Chart::kAxisX), 0);
    EXPECT_EQ(chart.Maximum(Chart::kAxisX), 80);
    for (const int axis : {Chart::kAxisY, Chart::kAxisSecondY}) {
        EXPECT_EQ(chart.Minimum(axis), -4);
        EXPECT_EQ(chart.Maximum(axis), 8);
    }
    chart.ChangeAxis(Chart::kAxisY, [](ChartAxis& axis) { axis.Scale.Maximum = 100; });
    EXPECT_EQ(chart.Maximum(Chart::kAxisY), 100);
    EXPECT_EQ(chart.Minimum(Chart::kAxisY), -4);
    EXPECT_EQ(chart.DrawnScale(Chart::kAxisY).maximum, 8);
    chart.ChangeAxis(Chart::kAxisY, [](ChartAxis& axis) { axis.Scale.Auto = false; });
    EXPECT_EQ(chart.DrawnScale(Chart::kAxisY).maximum, 100);
}

TEST_F(ChartTest, StandsBarsOn0) {
    chart.SetChartData({{"TDBH"}, {"90"}, {"100"}, {"95"}});
    chart.SetChartType(Chart::Type::kBar2d);
    EXPECT_EQ(chart.DrawnScale(Chart::kAxisY), (AxisScale{0, 100, 5, 1}));
}

TEST_F(ChartTest, ReadsTheEndsOfXAlikeForBarsAndForAScatterChart) {
    chart.SetSize(3, 2);
    const char* const ages[] = {"35", "40", "47.5"};
    for (int row = 1; row <= 3; ++row) chart.SetData(row, 1, ages[row - 1]);
    EXPECT_EQ(chart.Minimum(Chart::kAxisX), 35);
    EXPECT_EQ(chart.Maximum(Chart::kAxisX), 47.5);
    chart.SetChartData({{"TDBH"}, {"90"}, {"100"}, {"95"}});
    chart.SetChartType(Chart::Type::kBar2d);
    EXPECT_EQ(chart.Maximum(Chart::kAxisX), 1) << "nothing labels the rows yet";
    for (int row = 1; row <= 3; ++row) chart.SetRowLabel(row, ages[row - 1]);
    EXPECT_EQ(chart.Minimum(Chart::kAxisX), 35);
    EXPECT_EQ(chart.Maximum(Chart::kAxisX), 47.5);
}

TEST_F(ChartTest, TakesItsDataAtOnceOnlyWhereAllRowsAreAlike) {
    EXPECT_ERROR(5, chart.SetChartData({}));
    EXPECT_ERROR(5, chart.SetChartData({{"a", "b"}, {"1"}}));
}

TEST_F(ChartTest, ForgetsEverythingButItsPlace) {
    chart.SetPlace({1, 2, 3, 4});
    chart.SetChartData({{"TDBH"}, {"90"}});
    chart.SetChartType(Chart::Type::kBar2d);
    chart.SetTitle({"Growth", {}, ChartLocation::kTop});
    chart.SetLegend({.Visible = true, .Font = {}});
    chart.ChangeAxis(Chart::kAxisX, [](ChartAxis& axis) { axis.Title = "Age"; });
    chart.ResetToDefaults();
    EXPECT_EQ(chart.ColumnCount(), 0);
    EXPECT_EQ(chart.RowCount(), 0);
    EXPECT_EQ(chart.chartType(), Chart::Type::kXyScatter);
    EXPECT_EQ(chart.Title(), "");
    EXPECT_FALSE(chart.LegendVisible());
    EXPECT_EQ(chart.Axis(Chart::kAxisX), ChartAxis{});
    EXPECT_EQ(chart.GetPlace(), (Place{1, 2, 3, 4}));
}

TEST_F(ChartTest, KnowsItsPoints) {
    chart.SetSize(2, 4);
    EXPECT_TRUE(chart.HasPoint(1, 1));
    EXPECT_TRUE(chart.HasPoint(3, 2));
    EXPECT_FALSE(chart.HasPoint(2, 1));
    EXPECT_FALSE(chart.HasPoint(5, 1));
    EXPECT_FALSE(chart.HasPoint(0, 1));
    EXPECT_FALSE(chart.HasPoint(1, 3));
    EXPECT_FALSE(chart.HasPoint(1, 0));
    chart.SetChartType(Chart::Type::kBar2d);
    EXPECT_TRUE(chart.HasPoint(2, 1));
    EXPECT_TRUE(chart.HasPoint(4, 2));
    EXPECT_FALSE(chart.HasPoint(5, 1));
}

TEST_F(ChartTest, CopiesAScatterChartWithItsXValuesOnce) {
    chart.SetSize(2, 4);
    chart.SetAxis(Chart::kAxisX, {.Title = "Age (years)", .Scale = {}});
    const double data[2][4] = {{5, 1.5, 5, 2}, {10, 3.25, 10, -0.5}};
    for (int row = 1; row <= 2; ++row)
        for (int column = 1; column <= 4; ++column)
            chart.SetData(row, column, data[row - 1][column - 1]);
    for (const int column : {1, 2}) chart.SetColumnLabel(column, "TDBH");
    for (const int column : {3, 4}) chart.SetColumnLabel(column, "MDBH");
    chart.EditCopy({1500, 3000});
    EXPECT_EQ(host.ClipboardText(), "Age (years)\tTDBH\tMDBH\r\n5\t1.5\t2\r\n10\t3.25\t-0.5");
    ASSERT_TRUE(host.ClipboardPicture());
    EXPECT_EQ(host.ClipboardPicture()->GetSize(), (Size{1500, 3000}));
}

TEST_F(ChartTest, CopiesBarsBehindTheirRowLabels) {
    chart.SetChartData({{"TDBH", "TH"}, {"1.5", "2"}, {"3", "x"}});
    chart.SetChartType(Chart::Type::kBar2d);
    chart.SetRowLabel(1, "5");
    chart.EditCopy({});
    EXPECT_EQ(host.ClipboardText(), "\tTDBH\tTH\r\n5\t1.5\t2\r\n\t3\t0");
}

TEST_F(ChartTest, CopiesOnlyItsHeadingWhereItHasNoRows) {
    chart.SetSize(0, 2);
    chart.SetColumnLabel(2, "TDBH");
    chart.EditCopy({});
    EXPECT_EQ(host.ClipboardText(), "\tTDBH");
}

TEST_F(ChartTest, IsDrawnByWhoeverDraws) {
    const auto drawing = std::make_shared<const BlankDrawing>(Size{15, 15});
    application.drawChart = [&](const Chart& drawn, Size size) {
        EXPECT_EQ(&drawn, &chart);
        EXPECT_EQ(size, (Size{30, 45}));
        return drawing;
    };
    chart.EditCopy({30, 45});
    EXPECT_EQ(host.ClipboardPicture(), drawing);
}

TEST_F(ChartTest, TellsTheViewsOfEveryChange) {
    chart.SetSize(1, 1);
    const auto touches = [&](const auto& change) {
        application.TakeTouched();
        change();
        return application.HasTouched();
    };
    EXPECT_TRUE(touches([&] { chart.SetData(1, 1, 2); }));
    EXPECT_TRUE(touches([&] { chart.SetChartType(Chart::Type::kBar2d); }));
    EXPECT_TRUE(touches([&] { chart.SetTitle({"Growth", {}, ChartLocation::kTop}); }));
    EXPECT_TRUE(touches([&] { chart.SetLegend({.Visible = true, .Font = {}}); }));
    EXPECT_TRUE(touches([&] { chart.SetAxis(Chart::kAxisX, {.Title = "Age", .Scale = {}}); }));
    EXPECT_TRUE(touches([&] { chart.SetColumnLabel(1, "x"); }));
    EXPECT_TRUE(touches([&] { chart.SetRowLabel(1, "x"); }));
    EXPECT_EQ(chart.Title(), "Growth");
    EXPECT_TRUE(chart.LegendVisible());
    EXPECT_EQ(static_cast<int>(chart.chartType()), 1);
}

}  // namespace arbolith
