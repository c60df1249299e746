#include "forms/chart.h"

#include "forms/application.h"
#include "platform/numbers.h"
#include "platform/runtime_error.h"

#include <algorithm>
#include <limits>
#include <utility>

namespace arbolith {

namespace {

std::size_t At(int position) {
    return static_cast<std::size_t>(position - 1);
}

// Of a text that goes on behind its number, the number counts.
double NumberIn(std::string_view text) {
    try {
        return ParseReal(text);
    } catch (const RuntimeError&) {
        return Val(text);
    }
}

// The chart's data as a spreadsheet takes it: a heading line, then a line a row, tabs between the
// cells. In front, under the title of the X axis, stands what the points stand over: of a scatter
// chart the X values, which its series share, else the row labels.
std::string DataText(const Chart& chart) {
    const bool isXy = chart.chartType() == Chart::Type::kXyScatter;
    const int step = isXy ? 2 : 1;
    std::string text = chart.Axis(Chart::kAxisX).Title;
    for (int column = step; column <= chart.ColumnCount(); column += step)
        text += '\t' + chart.ColumnLabel(column);
    for (int row = 1; row <= chart.RowCount(); ++row) {
        text += "\r\n";
        text += isXy ? DefaultText(chart.Data(row, 1)) : chart.RowLabel(row);
        for (int column = step; column <= chart.ColumnCount(); column += step)
            text += '\t' + DefaultText(chart.Data(row, column));
    }
    return text;
}

}  // namespace

Chart::Chart(Control& parent, std::string name, Place place)
    : Control(ControlKind::kChart, parent, std::move(name), "", place) {}

void Chart::CheckRow(int row) const {
    if (row < 1 || row > RowCount()) throw RuntimeError(ErrorNumber::kSubscript);
}

void Chart::CheckColumn(int column) const {
    if (column < 1 || column > ColumnCount()) throw RuntimeError(ErrorNumber::kSubscript);
}

void Chart::ResetToDefaults() {
    type_ = Type::kXyScatter;
    columnLabels_.clear();
    rowLabels_.clear();
    data_.clear();
    axes_ = {};
    title_ = {};
    legend_ = {};
    decoration_ = {};
    Touch();
}

void Chart::SetChartType(Type type) {
    type_ = type;
    Touch();
}

void Chart::SetSize(int rows, int columns) {
    if (rows < 0 || columns < 0) throw RuntimeError(ErrorNumber::kInvalidCall);
    rowLabels_.resize(static_cast<std::size_t>(rows));
    columnLabels_.resize(static_cast<std::size_t>(columns));
    data_.resize(static_cast<std::size_t>(rows));
    for (auto& row : data_) row.resize(static_cast<std::size_t>(columns));
    Touch();
}

void Chart::SetChartData(const std::vector<std::vector<std::string>>& rows) {
    if (rows.empty()) throw RuntimeError(ErrorNumber::kInvalidCall);
    columnLabels_ = rows.front();
    rowLabels_.assign(rows.size() - 1, "");
    data_.assign(rows.size() - 1, std::vector<double>(columnLabels_.size()));
    for (std::size_t row = 0; row < data_.size(); ++row) {
        if (rows[row + 1].size() != columnLabels_.size())
            throw RuntimeError(ErrorNumber::kInvalidCall);
        std::transform(rows[row + 1].begin(), rows[row + 1].end(), data_[row].begin(), NumberIn);
    }
    Touch();
}

double Chart::Data(int row, int column) const {
    CheckRow(row);
    CheckColumn(column);
    return data_[At(row)][At(column)];
}

void Chart::SetData(int row, int column, double value) {
    CheckRow(row);
    CheckColumn(column);
    data_[At(row)][At(column)] = value;
    Touch();
}

void Chart::SetData(int row, int column, std::string_view text) {
    SetData(row, column, NumberIn(text));
}

const std::string& Chart::ColumnLabel(int column) const {
    CheckColumn(column);
    return columnLabels_[At(column)];
}

void Chart::SetColumnLabel(int column, const std::string& label) {
    CheckColumn(column);
    columnLabels_[At(column)] = label;
    Touch();
}

const std::string& Chart::RowLabel(int row) const {
    CheckRow(row);
    return rowLabels_[At(row)];
}

void Chart::SetRowLabel(int row, const std::string& label) {
    CheckRow(row);
    rowLabels_[At(row)] = label;
    Touch();
}

const ChartAxis& Chart::Axis(int axis) const {
    if (axis < 0 || axis >= kAxes) throw RuntimeError(ErrorNumber::kSubscript);
    return axes_[static_cast<std::size_t>(axis)];
}

void Chart::SetAxis(int axis, const ChartAxis& values) {
    if (Axis(axis) == values) return;
    axes_[static_cast<std::size_t>(axis)] = values;
    Touch();
}

void Chart::ChangeAxis(int axis, const std::function<void(ChartAxis&)>& change) {
    auto values = Axis(axis);
    change(values);
    SetAxis(axis, values);
}

double Chart::Minimum(int axis) const {
    return Axis(axis).Scale.Minimum.value_or(DrawnScale(axis).minimum);
}

double Chart::Maximum(int axis) const {
    return Axis(axis).Scale.Maximum.value_or(DrawnScale(axis).maximum);
}

AxisScale Chart::DrawnScale(int axis) const {
    const bool isXy = type_ == Type::kXyScatter;
    double lowest = std::numeric_limits<double>::infinity();
    double highest = -lowest;
    const auto take = [&](double value) {
        lowest = std::min(lowest, value);
        highest = std::max(highest, value);
    };
    if (isXy) {
        // X and Y values take turns.
        for (const auto& row : data_)
            for (int column = axis == kAxisX ? 1 : 2; column <= ColumnCount(); column += 2)
                take(row[At(column)]);
    } else if (axis == kAxisX) {
        for (const auto& label : rowLabels_) take(NumberIn(label));
    } else {
        take(0);  // what bars stand on
        for (const auto& row : data_)
            for (const double value : row) take(value);
    }
    return DrawnScaleOf(Axis(axis).Scale, lowest, highest);
}

void Chart::SetTitle(const ChartTitle& title) {
    if (title_ == title) return;
    title_ = title;
    Touch();
}

void Chart::SetLegend(const ChartLegend& legend) {
    if (legend_ == legend) return;
    legend_ = legend;
    Touch();
}

void Chart::SetDecoration(const ChartDecoration& decoration) {
    if (decoration_ == decoration) return;
    decoration_ = decoration;
    Touch();
}

void Chart::EditCopy(Size pictureSize) const {
    App().GetHost().SetClipboard(DataText(*this), App().drawChart(*this, pictureSize));
}

bool Chart::HasPoint(int series, int point) const {
    if (point < 1 || point > RowCount() || series < 1) return false;
    return type_ == Type::kBar2d ? series <= ColumnCount()
                                 : series % 2 == 1 && series < ColumnCount();
}

}  // namespace arbolith
