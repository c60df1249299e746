// The graph buttons of the Output window. Texts and caps are told by the scenarios of the charts.
#include "charts/graph_buttons.h"

#include "unit/charts/charts_testing.h"

namespace arbolith {
namespace {

class GraphButtonsTest : public ChartsTest {
protected:
    void Select(int col, int colSel) {
        auto& table = output.Get().form.Table;
        table.SetCol(col);
        table.SetColSel(colSel);
    }
    using SeriesColumns = std::vector<std::int16_t>;
    SeriesColumns Drawn() {
        DrawSelectedColumns(graphs);
        return output.Get().SeriesColumns;
    }
};

TEST_F(GraphButtonsTest, RefuseTheAgeAlone) {
    Select(1, 1);
    EXPECT_EQ(Drawn(), SeriesColumns{});
    ASSERT_EQ(host.boxes.size(), 1u);
    EXPECT_EQ(host.boxes[0].text,
              "Please highlight a column other than the 'SAGE' column that you want to graph");
    EXPECT_EQ(chart.Find(), nullptr);
}

TEST_F(GraphButtonsTest, LeaveTheAgeOutOnlyWhereTheSelectionBegins) {
    Select(1, 3);
    EXPECT_EQ(Drawn(), (SeriesColumns{2, 3}));
    Select(3, 1);
    EXPECT_EQ(Drawn(), (SeriesColumns{1, 2, 3}));
    Select(4, 2);
    EXPECT_EQ(Drawn(), (SeriesColumns{2, 3, 4}));
    Select(3, 3);
    EXPECT_EQ(Drawn(), (SeriesColumns{3}));
    EXPECT_TRUE(host.boxes.empty());
}

TEST_F(GraphButtonsTest, DrawAFamilyAndTakeThePendingEndBack) {
    options.Get().Max.SetCaption("6000");
    DrawFixedGraph(graphs, FixedGraph::kDiameter);
    EXPECT_EQ(output.Get().SeriesColumns, (SeriesColumns{2, 3, 0}));
    EXPECT_EQ(Y().Title, "Diameter (cm)");
    EXPECT_EQ(options.Get().Max.Caption(), "");
}

TEST_F(GraphButtonsTest, CutFrequenciesOff) {
    FillTable({"\tSAGE\tTF", "\t5\t6000"});
    options.Get().autosetx = options.Get().autosety = true;
    DrawFixedGraph(graphs, FixedGraph::kFrequency);
    EXPECT_EQ(output.Get().YAxisMax, 6005);
    EXPECT_EQ(Y().Scale.Maximum, 6000);
    EXPECT_EQ(Y().Scale.MajorDivision, 8);
    EXPECT_EQ(options.Get().Max.Caption(), "6000");
    EXPECT_FALSE(options.Get().autosetx);
    EXPECT_FALSE(options.Get().autosety);
}

TEST_F(GraphButtonsTest, LeaveFrequenciesBelowTheCapAlone) {
    FillTable({"\tSAGE\tTF", "\t5\t5999.99"});
    options.Get().autosetx = true;
    options.Get().Max.SetCaption("12");
    DrawFixedGraph(graphs, FixedGraph::kFrequency);
    EXPECT_EQ(Y().Scale.Maximum, 6000);
    EXPECT_EQ(Y().Scale.MajorDivision, 5);
    EXPECT_EQ(options.Get().Max.Caption(), "12");
    EXPECT_TRUE(options.Get().autosetx);
}

TEST_F(GraphButtonsTest, OpenTheCustomChartAndPutTheSelectionBack) {
    CustomChart window(application, graphs);
    Select(3, 4);
    OpenCustomChart(output.Get().form.Table, window);
    EXPECT_TRUE(window.Visible());
    EXPECT_EQ(output.Get().form.Table.Col(), 1);
    EXPECT_EQ(output.Get().form.Table.ColSel(), 1);
}

}  // namespace
}  // namespace arbolith
