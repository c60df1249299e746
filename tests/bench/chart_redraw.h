// What a redraw of the chart costs.
#pragma once

namespace arbolith::bench {

/// The time in which a chart of 24 series with 80 rows is filled anew and painted by its view, over
/// that in which the toolkit alone takes the same series and paints them.
double ChartRedrawRatio();

}  // namespace arbolith::bench
