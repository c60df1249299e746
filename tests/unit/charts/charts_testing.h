// What tests of the charts stand on: the windows of the charts side, not wired, over a table of two
// rows, and a host that prints and asks for a text.
#pragma once

#include "charts/custom_chart.h"
#include "charts/graph_builder.h"
#include "unit/platform/fake_host.h"

#include <gtest/gtest.h>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace arbolith {

class ChartsHost : public FakeHost {
public:
    std::optional<std::string> AskForText(const std::string& prompt) override {
        prompts.push_back(prompt);
        if (whileAsking) whileAsking();
        return answerText;
    }
    void Print(const Drawing& picture) override {
        if (!hasPrinter) throw RuntimeError(ErrorNumber::kPrinter);
        printed.push_back(picture.GetSize());
    }

    std::optional<std::string> answerText;
    std::function<void()> whileAsking;
    std::vector<std::string> prompts;
    std::vector<Size> printed;
    bool hasPrinter = true;
};

/// Where the yield table has the total height.
inline constexpr int kColumnTh = 11;

class ChartsTest : public testing::Test {
protected:
    ChartsTest() {
        run.globals.UnitSystem = "Metric";
        run.form.Step3_Spec.SetCaption("Red Oak");
        FillTable({Row("SAGE\tTDBH\tMDBH", "TH"), Row("5\t2.5\t1", "3"), Row("10\t7.25\t6", "8")});
    }

    /// The first three columns, and the one of the total height.
    static std::string Row(const std::string& first, const std::string& height) {
        return "\t" + first + std::string(kColumnTh - 3, '\t') + height;
    }

    void FillTable(const std::vector<std::string>& rows) {
        auto& table = output.Get().form.Table;
        table.SetCols(kColumnTh + 1);
        table.SetRows(1);
        for (const auto& row : rows) table.AddItem(row);
    }
    arbolith::Chart& Chart() { return chart.Get().Chart; }
    const ChartAxis& X() { return Chart().Axis(arbolith::Chart::kAxisX); }
    const ChartAxis& Y() { return Chart().Axis(arbolith::Chart::kAxisY); }

    ChartsHost host;
    Application application{host, "/nowhere", ""};
    RunDefinition run{application};
    AtFirstUse<Output> output{[this] { return std::make_unique<Output>(application); }};
    AtFirstUse<ChartWindow> chart{[this] {
        return std::make_unique<ChartWindow>(application, output.Get().form.Title, options);
    }};
    AtFirstUse<ChartOptions> options{
        [this] { return std::make_unique<ChartOptions>(application, chart); }};
    GraphBuilder graphs{run, output, chart, options};
};

}  // namespace arbolith
