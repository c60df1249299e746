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
