// What the graph buttons of the Output window do.
#pragma once

#include "charts/custom_chart.h"
#include "charts/graph_builder.h"

namespace arbolith {

/// The graphs that have a button of their own.
enum class FixedGraph {
    kDiameter,
    kBasalArea,
    kHeight,
    kFrequency,
    kVolume,
    kMai,
    kCumulativeVolume,
    kCumulativeMai,
};

/// Draws one family of variables over the age. A pending end of the Y axis is taken back; the
/// frequencies have one instead where they go beyond 6000.
void DrawFixedGraph(GraphBuilder& graphs, FixedGraph graph);

/// Draws the selected columns of the table over the age.
void DrawSelectedColumns(GraphBuilder& graphs);

/// Shows the window in which any variables can be chosen.
void OpenCustomChart(Grid& table, CustomChart& window);

}  // namespace arbolith
