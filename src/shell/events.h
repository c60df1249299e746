// What each event of each form does: the one place to look up what a click or a key sets off.
#pragma once

#include "batch/batch.h"
#include "charts/custom_chart.h"
#include "charts/graph_builder.h"
#include "forms/at_first_use.h"
#include "forms/resize.h"
#include "model_bridge/run_command.h"
#include "results/definitions.h"
#include "results/output.h"
#include "run_definition/run_definition.h"
#include "saved_runs/saved_runs.h"

namespace arbolith {

/// Wires the events of the main form's steps and of its commands on a run.
void WireMainForm(RunDefinition& run, RunCommand& command, AtFirstUse<Definitions>& definitions,
                  Resize& resize);

/// What the Output window leads to. Its reports are laid out as those of the batch.
struct OutputTargets {
    Batch& batch;
    GraphBuilder& graphs;
    AtFirstUse<CustomChart>& customChart;
    AtFirstUse<Definitions>& definitions;
};

/// Wires every event of the batch view, and of the ways to it.
void WireBatch(Batch& batch);

/// Wires the File menu, the way back to the single run, and the close box.
void WireFileMenu(SavedRuns& saved);

/// Wires every event of the Output window.
void WireOutput(Output& output, const OutputTargets& targets, Resize& resize);

/// Wires every event of the chart window.
void WireChartWindow(ChartWindow& window, GraphBuilder& graphs, Resize& resize);

/// Wires every event of the chart's options.
void WireChartOptions(ChartOptions& options, Resize& resize);

/// Wires every event of the custom chart's window.
void WireCustomChart(CustomChart& window, AtFirstUse<Definitions>& definitions, Resize& resize);

/// Wires every event of the definitions window.
void WireDefinitions(Definitions& definitions, Resize& resize);

}  // namespace arbolith
