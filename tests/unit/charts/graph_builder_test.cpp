// From the table to the chart: which columns, what data, which titles and scale.
#include "charts/graph_builder.h"

#include "unit/charts/charts_testing.h"

namespace arbolith {
namespace {

using GraphBuilderTest = ChartsTest;
using SeriesColumns = std::vector<std::int16_t>;

TEST_F(GraphBuilderTest, HasNothingToGraphWithoutASeries) {
    graphs.GraphCustom("SAGE", "Title");
    ASSERT_EQ(host.boxes.size(), 1u);
    EXPECT_EQ(host.boxes[0].text, "Nothing to graph.");
    EXPECT_EQ(host.boxes[0].title, "");
    EXPECT_EQ(host.boxes[0].icon, BoxIcon::kNone);
    EXPECT_EQ(chart.Find(), nullptr);
    graphs.GraphCustom("", "");
    EXPECT_EQ(host.boxes.size(), 2u);
}

TEST_F(GraphBuilderTest, EndsSilentlyWithoutAnXColumn) {
    graphs.GraphCustom("XYZ,TDBH", "");
    EXPECT_TRUE(host.boxes.empty());
    EXPECT_EQ(chart.Find(), nullptr);
    EXPECT_EQ(output.Get().XColumn, 0);
    EXPECT_TRUE(output.Get().SeriesColumns.empty());
}

TEST_F(GraphBuilderTest, TakesTheXColumnBeforeForOneThatIsNotThere) {
    graphs.GraphCustom("TH,TDBH", "");
    graphs.GraphCustom("XYZ,MDBH", "");
    EXPECT_EQ(output.Get().XColumn, kColumnTh);
    EXPECT_EQ(Chart().Data(2, 1), 8);
    EXPECT_EQ(X().Title, "Total Height (m)");
}

TEST_F(GraphBuilderTest, DrawsASeriesThatIsNotThereFromTheEmptyColumn) {
    graphs.GraphCustom("SAGE,XYZ,MDBH", "");
    EXPECT_EQ(output.Get().SeriesColumns, (SeriesColumns{0, 3}));
    EXPECT_EQ(Chart().ColumnLabel(2), "");
    EXPECT_EQ(Chart().Data(1, 2), 0);
    EXPECT_EQ(Chart().Data(1, 1), 5);
    EXPECT_EQ(Y().Title, "/MDBH");
}

TEST_F(GraphBuilderTest, FillsPairsOfColumns) {
    graphs.GraphCustom("SAGE,TDBH,TH", "Both");
    EXPECT_EQ(Chart().chartType(), Chart::Type::kXyScatter);
    ASSERT_EQ(Chart().ColumnCount(), 4);
    ASSERT_EQ(Chart().RowCount(), 2);
    EXPECT_EQ(Chart().ColumnLabel(1), "TDBH");
    EXPECT_EQ(Chart().ColumnLabel(2), "TDBH");
    EXPECT_EQ(Chart().ColumnLabel(3), "TH");
    EXPECT_EQ(Chart().ColumnLabel(4), "TH");
    EXPECT_EQ(Chart().Data(2, 1), 10);
    EXPECT_EQ(Chart().Data(2, 2), 7.25);
    EXPECT_EQ(Chart().Data(2, 3), 10);
    EXPECT_EQ(Chart().Data(2, 4), 8);
    EXPECT_EQ(Chart().Title(), "Red Oak : Both vs Age (years)");
    EXPECT_EQ(Y().Title, "Both");
    EXPECT_TRUE(chart.Get().XYEnabled);
    EXPECT_EQ(options.Get().XY.Caption(), "1");
    EXPECT_TRUE(chart.Get().Visible());
}

TEST_F(GraphBuilderTest, ReadsPowersOfTen) {
    FillTable({"\tSAGE\tTDBH", "\t5\t1E-05", "\t1E+15\t2"});
    graphs.GraphCustom("SAGE,TDBH", "");
    EXPECT_EQ(Chart().Data(1, 2), 1e-5);
    EXPECT_EQ(Chart().Data(2, 1), 1e15);
}

TEST_F(GraphBuilderTest, EndsTheYAxisAtTheNextMultipleOfFive) {
    const auto endFor = [this](const std::string& peak) {
        FillTable({"\tSAGE\tTDBH", "\t5\t" + peak, "\t10\t0"});
        graphs.GraphCustom("SAGE,TDBH", "");
        EXPECT_EQ(Y().Scale.Maximum, output.Get().YAxisMax);
        return output.Get().YAxisMax;
    };
    EXPECT_EQ(endFor("0"), 5);
    EXPECT_EQ(endFor("12.3"), 15);
    EXPECT_EQ(endFor("14.9"), 15);
    EXPECT_EQ(endFor("15"), 20);
    EXPECT_EQ(endFor("15.01"), 20);
    EXPECT_EQ(endFor("-7"), 5);
    EXPECT_EQ(endFor("x"), 5);
    EXPECT_EQ(endFor("123456789012345"), 123456789012350);
}

TEST_F(GraphBuilderTest, ScalesXAutomatically) {
    graphs.GraphCustom("SAGE,TDBH", "");
    EXPECT_TRUE(X().Scale.Auto);
    EXPECT_EQ(X().Scale.MajorDivision, 2);
    EXPECT_FALSE(Y().Scale.Auto);
    EXPECT_EQ(Y().Scale.Minimum, 0);
    EXPECT_EQ(Y().Scale.MajorDivision, 5);
}

TEST_F(GraphBuilderTest, LeavesNothingOfTheChartBefore) {
    graphs.GraphCustom("SAGE,TDBH", "");
    Chart().ChangeAxis(Chart::kAxisX, [](ChartAxis& axis) {
        axis.Scale.Maximum = 3;
        axis.MajorPen = PenStyle::kNone;
        axis.MinorPen = PenStyle::kSolid;
    });
    graphs.BarGraph();
    graphs.Reset_Graph();
    EXPECT_EQ(Chart().chartType(), Chart::Type::kXyScatter);
    EXPECT_EQ(Chart().ColumnCount(), kColumnTh + 1);
    EXPECT_EQ(Chart().RowCount(), 0);
    EXPECT_FALSE(X().Scale.Maximum);
    EXPECT_EQ(X().MajorPen, PenStyle::kDotted);
    EXPECT_EQ(X().MinorPen, PenStyle::kNone);
    EXPECT_EQ(Chart().Axis(2).MajorPen, PenStyle::kDotted);
    EXPECT_EQ(Chart().Axis(3).MajorPen, PenStyle::kNone);
    EXPECT_FALSE(Chart().LegendVisible());
    EXPECT_EQ(Chart().Decoration(),
              (ChartDecoration{FillStyle::kBrush, 0xFFFFFF, PenStyle::kNone, 0}));
}

TEST_F(GraphBuilderTest, TitlesTheResetChartAsTheTable) {
    output.Get().form.Title.SetCaption("Hardwood: Red Oak");
    graphs.Reset_Graph();
    EXPECT_EQ(Chart().GetTitle(),
              (ChartTitle{"Hardwood: Red Oak", {"Arial", 14, 0}, ChartLocation::kTop}));
}

TEST_F(GraphBuilderTest, DrawsBarsFromCodesAndRows) {
    graphs.GraphCustom("TH,TDBH,MDBH", "Mine");
    const auto before = Y();
    auto& table = output.Get().form.Table;
    table.SetRow(3);
    table.SetCol(2);
    graphs.BarGraph();
    EXPECT_EQ(Chart().chartType(), Chart::Type::kBar2d);
    ASSERT_EQ(Chart().ColumnCount(), 2);
    ASSERT_EQ(Chart().RowCount(), 2);
    EXPECT_EQ(Chart().ColumnLabel(2), "MDBH");
    EXPECT_EQ(Chart().Data(2, 1), 7.25);
    EXPECT_EQ(Chart().RowLabel(1), "3");
    EXPECT_EQ(Chart().RowLabel(2), "8");
    EXPECT_EQ(Chart().Title(), "Red Oak : Mine vs Total Height (m)");
    EXPECT_EQ(Y(), before);
    EXPECT_TRUE(Chart().LegendVisible());
    EXPECT_EQ(table.Row(), 3);
    EXPECT_EQ(table.Col(), 2);
    EXPECT_FALSE(chart.Get().XYEnabled);
    EXPECT_EQ(options.Get().XY.Caption(), "0");
}

TEST_F(GraphBuilderTest, GoesBackFromBarsUnderTheTitleThatStands) {
    graphs.GraphCustom("SAGE,TDBH,TH", "");
    EXPECT_EQ(Y().Title, "TDBH/TH");
    graphs.BarGraph();
    Chart().ChangeAxis(Chart::kAxisY, [](ChartAxis& axis) { axis.Title = "Mine"; });
    graphs.LineGraph();
    EXPECT_EQ(Y().Title, "Mine");
    EXPECT_EQ(Chart().Title(), "Red Oak : Mine vs Age (years)");
    EXPECT_EQ(Chart().ColumnCount(), 4);
    EXPECT_TRUE(chart.Get().XYEnabled);
}

TEST_F(GraphBuilderTest, TellsManySeriesByNoName) {
    graphs.GraphCustom("SAGE,TDBH,TDBH,TDBH,TDBH", "Title");
    EXPECT_EQ(Y().Title, "Title");
    graphs.GraphCustom("SAGE,TDBH,TDBH,TDBH,TDBH,TDBH", "Title");
    EXPECT_EQ(Y().Title, "Mult. Vars");
    EXPECT_EQ(Chart().Title(), "Red Oak : Multiple Vars vs Age (years)");
}

TEST_F(GraphBuilderTest, PutsTheSelectionBack) {
    auto& table = output.Get().form.Table;
    table.SetRow(3);
    table.SetCol(2);
    table.SetColSel(4);
    graphs.GraphCustom("SAGE,TDBH", "");
    EXPECT_EQ(table.Row(), 1);
    EXPECT_EQ(table.Col(), 1);
    EXPECT_EQ(table.ColSel(), 1);
}

}  // namespace
}  // namespace arbolith
