#include "charts/graph_buttons.h"

#include "forms/always_on_top.h"
#include "model_bridge/variables.h"
#include "platform/numbers.h"
#include "run_definition/by_units.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <string>

namespace arbolith {

namespace {

struct FixedGraphTexts {
    const char* columns;
    ByUnits Ytitle;
};

// In the order of FixedGraph.
constexpr std::array<FixedGraphTexts, 8> kFixedGraphs = {{
    {"SAGE,TDBH,MDBH,SDBH", {"Diameter (cm)", "Diameter (in)"}},
    {"SAGE,TBA,MBA,SBA", {"Basal Area (m\xB2/ha)", "Basal Area (ft\xB2/acre)"}},
    {"SAGE,TH,MH,SH", {"Height (m)", "Height (ft)"}},
    {"SAGE,TF,MF,SF", {"Frequency (trees/ha)", "Frequency (trees/acre)"}},
    {"SAGE,TVOL,MVOL,SVOL", {"Volume (m\xB3/ha)", "Volume (ft\xB3/acre) SVOL (fbm/acre)"}},
    {"SAGE,TMAI,MMAI,SMAI", {"M.A.I. (m\xB3/ha/yr)", "M.A.I. (ft\xB3/acre/yr) SMAI (fbm/acre/yr)"}},
    {"SAGE,CTVOL,CMVOL,CSVOL",
     {"Cumulative Vol (m\xB3/ha)", "Cumulative Vol (ft\xB3/acre) CSVOL (fbm/acre)"}},
    {"SAGE,CTMAI,CMMAI,CSMAI",
     {"Cumulative M.A.I. (m\xB3/ha/yr)", "Cumulative M.A.I. (ft\xB3/acre/yr) CSMAI (fbm/acre/yr)"}},
}};

// Young stands have so many stems that the rest of the curve would lie flat.
constexpr int kFrequencyCap = 6000;
constexpr int kCappedDivisions = 8;

void CapFrequencies(GraphBuilder& graphs) {
    if (graphs.GetOutput().YAxisMax <= kFrequencyCap) return;
    auto& options = graphs.Options();
    options.autosetx = false;
    options.autosety = false;
    graphs.Window().Chart.ChangeAxis(Chart::kAxisY, [](ChartAxis& axis) {
        axis.Scale.Auto = false;
        axis.Scale.Maximum = kFrequencyCap;
        axis.Scale.MajorDivision = kCappedDivisions;
    });
    options.Max.SetCaption(std::to_string(kFrequencyCap));
}

}  // namespace

void DrawFixedGraph(GraphBuilder& graphs, FixedGraph graph) {
    const auto& texts = kFixedGraphs.at(static_cast<std::size_t>(graph));
    graphs.GraphCustom(texts.columns, texts.Ytitle.For(graphs.Run().globals));
    if (graph == FixedGraph::kFrequency) {
        CapFrequencies(graphs);
    } else {
        graphs.Options().Max.SetCaption("");
    }
}

void DrawSelectedColumns(GraphBuilder& graphs) {
    auto& table = graphs.GetOutput().form.Table;
    const int end = table.ColSel();
    if (end == kColumnSage && table.Col() == kColumnSage) {
        graphs.Run().application.ShowBox(
            "Please highlight a column other than the 'SAGE' column that you want to graph");
        return;
    }
    // Only where the selection begins at the age is that left out.
    const int begin = table.Col() == kColumnSage ? kColumnSage + 1 : table.Col();
    std::string columns = kVariableCodes.front();
    for (int column = std::min(begin, end); column <= std::max(begin, end); ++column)
        columns += "," + std::string(table.Cell(1, column));
    graphs.GraphCustom(columns, "");
}

void OpenCustomChart(Grid& table, CustomChart& window) {
    WindowToTop(window);
    window.Show();
    table.SetCol(kColumnSage);
}

}  // namespace arbolith
