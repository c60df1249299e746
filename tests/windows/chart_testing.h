// Charts as the program fills them.
#pragma once

#include "forms/chart.h"

#include <array>
#include <cmath>
#include <string>
#include <vector>

namespace arbolith::chart_testing {

inline constexpr std::array<const char*, 24> kNames = {
    "TDBH", "MDBH", "SDBH",  "TBA",   "MBA",   "SBA",   "TF",    "MF",
    "SF",   "TH",   "MH",    "SH",    "TVOL",  "MVOL",  "SVOL",  "TMAI",
    "MMAI", "SMAI", "CTVOL", "CMVOL", "CSVOL", "CTMAI", "CMMAI", "CSMAI"};
inline constexpr int kYears = 5;

/// A curve that rises to about 100, each series lower than the one before.
inline double ValueOf(int series, int row, int rows) {
    const double share = (row - rows / 3.0) / (rows / 8.0);
    return std::round(1000 * (1 - 0.04 * series) / (1 + std::exp(-share))) / 10;
}

/// What every chart of the program has: titles, a dotted grid, a legend, a white ground.
inline void Dress(Chart& chart) {
    ChartAxis x;
    x.Title = "Age (years)";
    x.MajorPen = PenStyle::kDotted;
    chart.SetAxis(Chart::kAxisX, x);
    ChartAxis y;
    y.Title = "Volume (m\xB3/ha)";
    y.MajorPen = PenStyle::kDotted;
    y.Scale = {false, 0, 100, 5, 1};
    chart.SetAxis(Chart::kAxisY, y);
    chart.SetTitle({"White Pine : Volume (m\xB3/ha) vs Age (years)", {"Arial", 14, 0}});
    chart.SetLegend({true, {"Arial", 8, 1}});
    chart.SetDecoration({FillStyle::kBrush, 0xFFFFFF, PenStyle::kNone, 0});
}

inline void FillScatter(Chart& chart, int series, int rows) {
    chart.ResetToDefaults();
    chart.SetSize(rows, 2 * series);
    for (int i = 0; i < series; ++i) {
        const int column = 2 * i + 1;
        for (const int each : {column, column + 1})
            chart.SetColumnLabel(each, kNames[static_cast<std::size_t>(i)]);
        for (int row = 1; row <= rows; ++row) {
            chart.SetData(row, column, kYears * row);
            chart.SetData(row, column + 1, ValueOf(i, row, rows));
        }
    }
    Dress(chart);
}

inline void FillBars(Chart& chart, int series, int rows) {
    chart.ResetToDefaults();
    std::vector<std::vector<std::string>> table(static_cast<std::size_t>(rows) + 1);
    for (int i = 0; i < series; ++i) {
        table[0].emplace_back(kNames[static_cast<std::size_t>(i)]);
        for (int row = 1; row <= rows; ++row)
            table[static_cast<std::size_t>(row)].push_back(std::to_string(ValueOf(i, row, rows)));
    }
    chart.SetChartData(table);
    chart.SetChartType(Chart::Type::kBar2d);
    for (int row = 1; row <= rows; ++row) chart.SetRowLabel(row, std::to_string(kYears * row));
    Dress(chart);
}

inline void Retitle(Chart& chart, const std::string& title) {
    ChartTitle told = chart.GetTitle();
    told.Text = title;
    chart.SetTitle(told);
}

inline void RetitleAxis(Chart& chart, int axis, const std::string& title) {
    ChartAxis told = chart.Axis(axis);
    told.Title = title;
    chart.SetAxis(axis, told);
}

}  // namespace arbolith::chart_testing
