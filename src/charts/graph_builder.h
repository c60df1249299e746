// The graphs: columns of the yield table become the series of the one chart, with titles and scale.
#pragma once

#include "charts/chart_options.h"
#include "charts/chart_window.h"
#include "forms/at_first_use.h"
#include "results/output.h"
#include "run_definition/run_definition.h"

#include <optional>
#include <string>
#include <vector>

namespace arbolith {

class GraphBuilder {
public:
    /// All must outlive the builder. What is drawn is left in the Output window, so that it can be
    /// drawn anew.
    GraphBuilder(const RunDefinition& run, AtFirstUse<Output>& output,
                 AtFirstUse<ChartWindow>& chartWindow, AtFirstUse<ChartOptions>& options);

    /// Draws an XY plot and shows it. `columns` are the codes, parted by commas: the X variable,
    /// then the Y series. An empty `Ytitle` becomes that of the series' family, or their codes.
    /// Without a series it says that there is nothing to graph; an X variable that isn't in the
    /// table is the one before, and where there is none nothing happens.
    void GraphCustom(const std::string& columns, std::string Ytitle);
    /// Draws the series as an XY plot again, under the Y title that the chart shows.
    void LineGraph();
    /// Draws the series as bars. Titles and scale stay as they are.
    void BarGraph();
    /// Clears the chart of all that the one before left.
    void Reset_Graph();

    const RunDefinition& Run() const { return run_; }
    Output& GetOutput() const { return output_.Get(); }
    ChartOptions& Options() const { return options_.Get(); }
    ChartWindow& Window() const { return chartWindow_.Get(); }

private:
    std::optional<int> FindColumn(const std::string& code) const;
    std::string CodeOf(int column) const;
    std::string CodesOfSeries() const;
    void TakeSeries(const std::vector<std::string>& codes);
    void SetMode(bool isXy);
    void FillSeries();
    void SetTitles(const std::string& Ytitle);
    void SetScales();
    void ShowChart();

    const RunDefinition& run_;
    AtFirstUse<Output>& output_;
    AtFirstUse<ChartWindow>& chartWindow_;
    AtFirstUse<ChartOptions>& options_;
};

}  // namespace arbolith
