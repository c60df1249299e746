// The chart as data: series in columns, points in rows, and what is told of its axes, titles and
// legend. Drawing it is a view's business.
#pragma once

#include "forms/control.h"

#include <array>
#include <string>
#include <vector>

namespace arbolith {

enum class PenStyle { kNone = 0, kSolid = 1, kDashed = 2, kDotted = 3 };

/// Scale, title and grid lines of one axis. Explicit values are kept also while the scale is
/// automatic.
struct ChartAxis {
    std::string Title;
    bool Auto = true;
    double Minimum = 0;
    double Maximum = 0;
    int MajorDivision = 5;
    int MinorDivision = 1;
    PenStyle MajorPen = PenStyle::kNone;
    PenStyle MinorPen = PenStyle::kNone;
};

/// Columns and rows are counted from 1.
class Chart : public Control {
public:
    enum class Type { kBar2d = 1, kXyScatter = 16 };
    static constexpr int kAxisX = 0;
    static constexpr int kAxisY = 1;

    Chart(Control& parent, std::string name, Place place);

    Type chartType() const { return type_; }
    void SetChartType(Type type);

    int ColumnCount() const { return static_cast<int>(columnLabels_.size()); }
    int RowCount() const { return static_cast<int>(rowLabels_.size()); }
    /// A new size keeps the cells that both sizes have; new cells are 0.
    void SetSize(int rows, int columns);

    /// Throw 9 outside the chart.
    double Data(int row, int column) const;
    void SetData(int row, int column, double value);
    const std::string& ColumnLabel(int column) const;
    void SetColumnLabel(int column, const std::string& label);
    const std::string& RowLabel(int row) const;
    void SetRowLabel(int row, const std::string& label);

    const ChartAxis& Axis(int axis) const;
    void SetAxis(int axis, const ChartAxis& values);
    const std::string& Title() const { return title_; }
    void SetTitle(const std::string& title);
    bool LegendVisible() const { return legendVisible_; }
    void SetLegendVisible(bool visible);

private:
    void CheckRow(int row) const;
    void CheckColumn(int column) const;

    Type type_ = Type::kXyScatter;
    std::vector<std::string> columnLabels_;
    std::vector<std::string> rowLabels_;
    std::vector<std::vector<double>> data_;
    std::array<ChartAxis, 2> axes_;
    std::string title_;
    bool legendVisible_ = false;
};

}  // namespace arbolith
