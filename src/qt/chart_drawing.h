// A chart's picture for the clipboard, for files and for paper.
#pragma once

#include "forms/chart.h"
#include "platform/drawing.h"

#include <memory>

namespace arbolith {

/// The chart as it stands, drawn on a sheet of a size in twips.
std::shared_ptr<const Drawing> DrawChart(const Chart& chart, Size size);

}  // namespace arbolith
