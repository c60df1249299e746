#include "charts/graph_builder.h"

#include "charts/graph_titles.h"
#include "forms/always_on_top.h"
#include "model_bridge/variables.h"
#include "platform/numbers.h"
#include "platform/text.h"

#include <algorithm>
#include <cmath>

namespace arbolith {

namespace {

constexpr int kCodeRow = 1;
constexpr int kFirstDataRow = 2;
// A chart of so many series names none of them in its titles.
constexpr std::size_t kManySeries = 5;
// The Y axis ends at the next multiple of this beyond the largest value.
constexpr int kRoundEnd = 5;
constexpr int kYDivisions = 5;
constexpr char kBetweenCodes = ',';
constexpr char kBetweenTitles = '/';

constexpr const char* kXyMode = "1";
constexpr const char* kBarMode = "0";

}  // namespace

GraphBuilder::GraphBuilder(const RunDefinition& run, AtFirstUse<Output>& output,
                           AtFirstUse<ChartWindow>& chartWindow, AtFirstUse<ChartOptions>& options)
    : run_(run), output_(output), chartWindow_(chartWindow), options_(options) {}

std::optional<int> GraphBuilder::FindColumn(const std::string& code) const {
    const auto& table = GetOutput().form.Table;
    for (int column = kColumnSage; column < table.Cols(); ++column)
        if (table.Cell(kCodeRow, column) == code) return column;
    return std::nullopt;
}

std::string GraphBuilder::CodeOf(int column) const {
    return std::string(GetOutput().form.Table.Cell(kCodeRow, column));
}

std::string GraphBuilder::CodesOfSeries() const {
    std::string codes;
    for (const auto column : GetOutput().SeriesColumns) codes += CodeOf(column) + kBetweenTitles;
    codes.pop_back();
    return codes;
}

// The codes behind the first one; 0 for one that the table doesn't have.
void GraphBuilder::TakeSeries(const std::vector<std::string>& codes) {
    GetOutput().SeriesColumns.clear();
    for (auto code = codes.begin() + 1; code != codes.end(); ++code)
        GetOutput().SeriesColumns.push_back(
            static_cast<std::int16_t>(FindColumn(*code).value_or(0)));
}

void GraphBuilder::SetMode(bool isXy) {
    Options().XY.SetCaption(isXy ? kXyMode : kBarMode);
    Window().XYEnabled = isXy;
}

void GraphBuilder::GraphCustom(const std::string& columns, std::string Ytitle) {
    const auto codes = Split(columns, kBetweenCodes);
    if (codes.size() == 1) {
        run_.application.ShowBox("Nothing to graph.");
        return;
    }
    auto& table = GetOutput().form.Table;
    table.SetRow(kCodeRow);
    GetOutput().XColumn = FindColumn(codes.front()).value_or(GetOutput().XColumn);
    if (GetOutput().XColumn == 0) return;
    TakeSeries(codes);
    if (Ytitle.empty()) Ytitle = GetYTitle(GetOutput().SeriesColumns, run_.globals);
    if (Ytitle.empty()) Ytitle = CodesOfSeries();
    Reset_Graph();
    SetMode(true);
    FillSeries();
    SetTitles(Ytitle);
    SetScales();
    ShowChart();
    table.SetCol(kColumnSage);
}

void GraphBuilder::Reset_Graph() {
    auto& chart = Window().Chart;
    chart.ResetToDefaults();
    chart.SetChartType(Chart::Type::kXyScatter);
    chart.SetColumnCount(GetOutput().form.Table.Cols());
    for (const int axis : {Chart::kAxisX, Chart::kAxisY, Chart::kAxisSecondY})
        chart.ChangeAxis(axis, [](ChartAxis& values) { values.MajorPen = PenStyle::kDotted; });
    chart.SetDecoration({FillStyle::kBrush, 0xFFFFFF, PenStyle::kNone, 0});
    chart.SetTitle({GetOutput().form.Title.Caption(), {"Arial", 14, 0}, ChartLocation::kTop});
}

// Each series takes two chart columns, the X values and its own, and both bear its code.
void GraphBuilder::FillSeries() {
    const auto& table = GetOutput().form.Table;
    auto& chart = Window().Chart;
    const int rows = table.Rows() - kFirstDataRow;
    GetOutput().YAxisMax = 0;
    chart.SetSize(rows, 2 * static_cast<int>(GetOutput().SeriesColumns.size()));
    int x = 1;
    for (const auto column : GetOutput().SeriesColumns) {
        for (const int chartColumn : {x, x + 1}) chart.SetColumnLabel(chartColumn, CodeOf(column));
        for (int row = 1; row <= rows; ++row) {
            const int tableRow = row - 1 + kFirstDataRow;
            const auto y = table.Cell(tableRow, column);
            chart.SetData(row, x, table.Cell(tableRow, GetOutput().XColumn));
            chart.SetData(row, x + 1, y);
            GetOutput().YAxisMax = std::max(GetOutput().YAxisMax, Val(y));
        }
        x += 2;
    }
}

void GraphBuilder::SetTitles(const std::string& Ytitle) {
    auto& chart = Window().Chart;
    const bool many = GetOutput().SeriesColumns.size() >= kManySeries;
    const auto Xtitle = GetAxisTitle(static_cast<std::int16_t>(GetOutput().XColumn), run_.globals);
    auto title = chart.GetTitle();
    title.Text = run_.form.Step3_Spec.Caption() + " : " + (many ? "Multiple Vars" : Ytitle) +
                 " vs " + Xtitle;
    chart.SetTitle(title);
    chart.ChangeAxis(Chart::kAxisX, [&](ChartAxis& axis) { axis.Title = Xtitle; });
    chart.ChangeAxis(Chart::kAxisY,
                     [&](ChartAxis& axis) { axis.Title = many ? "Mult. Vars" : Ytitle; });
}

// The Y axis always ends strictly above the whole part of the largest value.
void GraphBuilder::SetScales() {
    auto& chart = Window().Chart;
    chart.ChangeAxis(Chart::kAxisX, [&](ChartAxis& axis) {
        axis.Scale.Auto = true;
        axis.Scale.MajorDivision = chart.RowCount();
    });
    const double whole = WholePart(GetOutput().YAxisMax);
    GetOutput().YAxisMax = whole + kRoundEnd - std::fmod(whole, kRoundEnd);
    chart.ChangeAxis(Chart::kAxisY, [&](ChartAxis& axis) {
        axis.Scale.Auto = false;
        axis.Scale.Maximum = GetOutput().YAxisMax;
        axis.Scale.Minimum = 0;
        axis.Scale.MajorDivision = kYDivisions;
    });
}

void GraphBuilder::ShowChart() {
    auto& window = Window();
    window.Enable_Legend(true);
    WindowToTop(window);
    window.Show();
}

void GraphBuilder::LineGraph() {
    std::string columns = CodeOf(GetOutput().XColumn);
    for (const auto column : GetOutput().SeriesColumns) columns += kBetweenCodes + CodeOf(column);
    GraphCustom(columns, Window().Chart.Axis(Chart::kAxisY).Title);
}

void GraphBuilder::BarGraph() {
    const auto& table = GetOutput().form.Table;
    auto& chart = Window().Chart;
    SetMode(false);
    std::vector<std::vector<std::string>> texts;
    for (int row = kCodeRow; row < table.Rows(); ++row) {
        auto& cells = texts.emplace_back();
        for (const auto column : GetOutput().SeriesColumns)
            cells.emplace_back(table.Cell(row, column));
    }
    chart.SetChartData(texts);
    chart.SetChartType(Chart::Type::kBar2d);
    for (int row = kFirstDataRow; row < table.Rows(); ++row)
        chart.SetRowLabel(row - kFirstDataRow + 1,
                          std::string(table.Cell(row, GetOutput().XColumn)));
    ShowChart();
}

}  // namespace arbolith
