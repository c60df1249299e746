// The windows that follow a run: the yield table, its charts and the definitions.
#pragma once

#include "batch/batch.h"
#include "charts/custom_chart.h"
#include "charts/graph_builder.h"
#include "forms/at_first_use.h"
#include "forms/resize.h"
#include "results/definitions.h"
#include "results/output.h"
#include "run_definition/run_definition.h"

namespace arbolith {

/// Each window is created, and its events wired, at its first use.
struct ResultWindows {
    /// All must outlive the windows.
    ResultWindows(RunDefinition& run, Batch& batch, Resize& resize);
    ResultWindows(const ResultWindows&) = delete;
    ResultWindows& operator=(const ResultWindows&) = delete;

    AtFirstUse<Output> output;
    AtFirstUse<Definitions> definitions;
    AtFirstUse<ChartWindow> chart;
    AtFirstUse<ChartOptions> chartOptions;
    AtFirstUse<CustomChart> customChart;
    GraphBuilder graphs;
};

}  // namespace arbolith
