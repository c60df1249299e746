// The chart as data: series in columns, points in rows, and what is told of its axes, titles, grid
// and legend. Drawing it is a view's business. Numbers of kinds and styles are the control's codes.
#pragma once

#include "forms/axis_scale.h"
#include "forms/control.h"
#include "platform/size.h"

#include <array>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace arbolith {

enum class PenStyle { kNone = 0, kSolid = 1, kDashed = 2, kDotted = 3 };
enum class FillStyle { kNone = 0, kBrush = 1 };
enum class ChartLocation { kTop = 1, kBottomRight = 7 };

struct ChartFont {
    std::string Name = "Arial";
    int Size = 10;   ///< Points.
    int Effect = 0;  ///< The control's code; 1 changes nothing that is seen.

    bool operator==(const ChartFont&) const = default;
};

/// Scale, title and grid lines of one axis.
struct ChartAxis {
    std::string Title;
    ToldScale Scale;
    PenStyle MajorPen = PenStyle::kNone;
    PenStyle MinorPen = PenStyle::kNone;

    bool operator==(const ChartAxis&) const = default;
};

struct ChartTitle {
    std::string Text;
    ChartFont Font;
    ChartLocation Location = ChartLocation::kTop;

    bool operator==(const ChartTitle&) const = default;
};

struct ChartLegend {
    bool Visible = false;
    ChartFont Font;
    ChartLocation Location = ChartLocation::kBottomRight;

    bool operator==(const ChartLegend&) const = default;
};

/// What lies behind the plot and the pens around it.
struct ChartDecoration {
    FillStyle BackdropStyle = FillStyle::kNone;
    Colour BackdropColor = 0xFFFFFF;
    PenStyle WallPen = PenStyle::kSolid;
    Colour SeriesEdge = 0;  ///< Around the bars of every series.

    bool operator==(const ChartDecoration&) const = default;
};

/// Columns and rows are counted from 1. An XY chart reads its columns two by two: the X values and
/// the Y values of a series; a bar chart has a column for each series and a label for each row.
class Chart : public Control {
public:
    enum class Type { kBar2d = 1, kXyScatter = 16 };
    static constexpr int kAxisX = 0;
    static constexpr int kAxisY = 1;
    static constexpr int kAxisSecondY = 2;
    /// X, Y, a second Y and Z; the last two are never drawn.
    static constexpr int kAxes = 4;

    Chart(Control& parent, std::string name, Place place);

    /// Everything as it was when the control was made, but its place.
    void ResetToDefaults();

    Type chartType() const { return type_; }
    void SetChartType(Type type);

    int ColumnCount() const { return static_cast<int>(columnLabels_.size()); }
    int RowCount() const { return static_cast<int>(rowLabels_.size()); }
    /// A new size keeps the cells that both sizes have; new cells are 0.
    void SetSize(int rows, int columns);
    void SetColumnCount(int columns) { SetSize(RowCount(), columns); }
    void SetRowCount(int rows) { SetSize(rows, ColumnCount()); }
    /// All data at once: the first row holds the column labels, the others the data as texts. Row
    /// labels are emptied.
    void SetChartData(const std::vector<std::vector<std::string>>& rows);

    /// Throw 9 outside the chart.
    double Data(int row, int column) const;
    void SetData(int row, int column, double value);
    /// The number that a text is, or begins with; 0 for none.
    void SetData(int row, int column, std::string_view text);
    const std::string& ColumnLabel(int column) const;
    void SetColumnLabel(int column, const std::string& label);
    const std::string& RowLabel(int row) const;
    void SetRowLabel(int row, const std::string& label);

    const ChartAxis& Axis(int axis) const;
    void SetAxis(int axis, const ChartAxis& values);
    /// `change` is called with the axis to change.
    void ChangeAxis(int axis, const std::function<void(ChartAxis&)>& change);
    /// The ends of an axis: the told ones, also while the scale is automatic; until they are told,
    /// those that are drawn.
    double Minimum(int axis) const;
    double Maximum(int axis) const;
    /// How the axis is drawn. The X axis of bars keeps the values that label their rows, as in the
    /// scatter chart of the same data, although the bars stand evenly beside each other.
    AxisScale DrawnScale(int axis) const;

    const ChartTitle& GetTitle() const { return title_; }
    const std::string& Title() const { return title_.Text; }
    void SetTitle(const ChartTitle& title);
    const ChartLegend& Legend() const { return legend_; }
    bool LegendVisible() const { return legend_.Visible; }
    void SetLegend(const ChartLegend& legend);
    const ChartDecoration& Decoration() const { return decoration_; }
    void SetDecoration(const ChartDecoration& decoration);

    /// Puts the chart's picture, drawn in a size in twips, and its data as a table of text on the
    /// clipboard.
    void EditCopy(Size pictureSize) const;

    /// A person picked a data point: the series (of an XY chart the X column of its pair) and the
    /// row, both from 1.
    std::function<void(int series, int point)> onPointActivated;
    /// Whether there is such a point to pick.
    bool HasPoint(int series, int point) const;

private:
    void CheckRow(int row) const;
    void CheckColumn(int column) const;

    Type type_ = Type::kXyScatter;
    std::vector<std::string> columnLabels_;
    std::vector<std::string> rowLabels_;
    std::vector<std::vector<double>> data_;
    std::array<ChartAxis, kAxes> axes_;
    ChartTitle title_;
    ChartLegend legend_;
    ChartDecoration decoration_;
};

}  // namespace arbolith
