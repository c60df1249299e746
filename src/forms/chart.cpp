#include "forms/chart.h"

#include "platform/runtime_error.h"

#include <utility>

namespace arbolith {

namespace {

std::size_t At(int position) {
    return static_cast<std::size_t>(position - 1);
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
    if (axis != kAxisX && axis != kAxisY) throw RuntimeError(ErrorNumber::kSubscript);
    return axes_[static_cast<std::size_t>(axis)];
}

void Chart::SetAxis(int axis, const ChartAxis& values) {
    if (axis != kAxisX && axis != kAxisY) throw RuntimeError(ErrorNumber::kSubscript);
    axes_[static_cast<std::size_t>(axis)] = values;
    Touch();
}

void Chart::SetTitle(const std::string& title) {
    title_ = title;
    Touch();
}

void Chart::SetLegendVisible(bool visible) {
    legendVisible_ = visible;
    Touch();
}

}  // namespace arbolith
