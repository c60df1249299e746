// The events of the Output window: control, event, and what runs.
#include "charts/graph_buttons.h"
#include "results/output_save.h"
#include "shell/events.h"

#include <utility>

namespace arbolith {

namespace {

void WireGraphButtons(OutputForm& form, const OutputTargets& targets) {
    const std::pair<Button*, FixedGraph> fixed[] = {
        {&form.grphDiameter, FixedGraph::kDiameter},
        {&form.grphBa, FixedGraph::kBasalArea},
        {&form.grphHeight, FixedGraph::kHeight},
        {&form.grphFrequency, FixedGraph::kFrequency},
        {&form.grphVolume, FixedGraph::kVolume},
        {&form.graphMai, FixedGraph::kMai},
        {&form.grphCumVol, FixedGraph::kCumulativeVolume},
        {&form.grphCumMai, FixedGraph::kCumulativeMai},
    };
    for (const auto& [button, graph] : fixed)
        button->onClick = [graph, &graphs = targets.graphs] { DrawFixedGraph(graphs, graph); };
    form.btnGrphCol.onClick = [&graphs = targets.graphs] { DrawSelectedColumns(graphs); };
    form.btnGrphCust.onClick = [&form, &customChart = targets.customChart] {
        OpenCustomChart(form.Table, customChart.Get());
    };
}

}  // namespace

void WireOutput(Output& output, const OutputTargets& targets, Resize& resize) {
    auto& form = output.form;
    form.Save_Mnu.onClick = [&output, &batch = targets.batch] { SaveOutput(output, batch); };
    form.Select_All_Mnu.onClick = [&output] { output.SelectAll(); };
    form.Copy_Mnu.onClick = [&output] { output.Copy_Mnu_Click(); };
    form.Definitions_Mnu.onClick = [&definitions = targets.definitions] {
        definitions.Get().ShowVariableTerms();
        definitions.Get().Open();
    };
    form.Close_Window_Mnu.onClick = [&form] { form.Hide(); };
    form.Close_Program_Mnu.onClick = [&form] { form.GetApplication().End(); };
    form.onResize = [&form, &resize] { resize.ResizeForm(form); };
    WireGraphButtons(form, targets);
}

}  // namespace arbolith
