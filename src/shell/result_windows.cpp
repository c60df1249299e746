#include "shell/result_windows.h"

#include "shell/events.h"

namespace arbolith {

ResultWindows::ResultWindows(RunDefinition& run, Batch& batch, Resize& resize)
    : output([&run, &batch, &resize, this] {
          auto window = std::make_unique<Output>(run.application);
          WireOutput(*window, {batch, graphs, customChart, definitions}, resize);
          return window;
      }),
      definitions([&run, &resize] {
          auto window = std::make_unique<Definitions>(run.application, run.globals);
          WireDefinitions(*window, resize);
          return window;
      }),
      chart([&run, &resize, this] {
          auto window =
              std::make_unique<ChartWindow>(run.application, output.Get().form.Title, chartOptions);
          WireChartWindow(*window, graphs, resize);
          return window;
      }),
      chartOptions([&run, &resize, this] {
          auto window = std::make_unique<ChartOptions>(run.application, chart);
          WireChartOptions(*window, resize);
          return window;
      }),
      customChart([&run, &resize, this] {
          auto window = std::make_unique<CustomChart>(run.application, graphs);
          WireCustomChart(*window, definitions, resize);
          return window;
      }),
      graphs(run, output, chart, chartOptions) {}

}  // namespace arbolith
