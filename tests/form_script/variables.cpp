#include "form_script/variables.h"

#include "form_script/stage.h"
#include "platform/runtime_error.h"

#include <iterator>
#include <string_view>
#include <type_traits>
#include <utility>
#include <vector>

namespace arbolith {

namespace {

template <class T>
Value ToValue(const T& state) {
    if constexpr (std::is_same_v<T, bool> || std::is_same_v<T, std::string>) {
        return state;
    } else {
        return static_cast<double>(state);
    }
}

// A field of the record, the program's globals or the run itself.
template <class Owner, class T>
Variable Field(const Owner& owner, T Owner::*field) {
    return {0, [&owner, field](const auto&) { return ToValue(owner.*field); }};
}

void AddRecord(VariableTable& table, const RunRecord& record) {
    const auto add = [&](std::string_view name, auto field) {
        table.emplace("RunRecord." + std::string(name), Field(record, field));
    };
    add("WDTYPE", &RunRecord::WDTYPE);
    add("NatFlag", &RunRecord::NatFlag);
    add("PlantFlag", &RunRecord::PlantFlag);
    add("SPX", &RunRecord::SPX);
    add("SPY", &RunRecord::SPY);
    add("FREQ", &RunRecord::FREQ);
    add("SPEC", &RunRecord::SPEC);
    add("LcFlag", &RunRecord::LcFlag);
    add("SiFlag", &RunRecord::SiFlag);
    add("LC", &RunRecord::LC);
    add("SIB", &RunRecord::SIB);
    add("STK%", &RunRecord::STK);
    add("RotAgeFlag", &RunRecord::RotAgeFlag);
    add("RotDbhFlag", &RunRecord::RotDbhFlag);
    add("RAGE", &RunRecord::RAGE);
    add("RDBH", &RunRecord::RDBH);
    add("T1Age", &RunRecord::T1Age);
    add("T1DBH", &RunRecord::T1DBH);
    add("T1IBA", &RunRecord::T1IBA);
    add("ISD", &RunRecord::ISD);
    add("T2Age", &RunRecord::T2Age);
    add("T2DBH", &RunRecord::T2DBH);
    add("T2IBA", &RunRecord::T2IBA);
}

void AddRun(VariableTable& table, const RunDefinition& run) {
    const auto unitSystem = Field(run.globals, &Globals::UnitSystem);
    table.emplace("UnitSystem", unitSystem);
    // It counts among the fields of the record too.
    table.emplace("RunRecord.UnitSystem", unitSystem);
    const auto add = [&](const char* name, auto field) { table.emplace(name, Field(run, field)); };
    add("StepsReached", &RunDefinition::StepsReached);
    add("StepErrorFlag", &RunDefinition::StepErrorFlag);
    add("StepErrorText", &RunDefinition::StepErrorText);
    add("StepErrorStep", &RunDefinition::StepErrorStep);
    add("InputChanged", &RunDefinition::InputChanged);
    add("SoftwoodT2Allowed", &RunDefinition::SoftwoodT2Allowed);
    add("ShortHardwoodList", &RunDefinition::ShortHardwoodList);
    add("TreatmentKeysOpen", &RunDefinition::TreatmentKeysOpen);
}

// Entry i of one of the batch's texts.
Variable Entry(Batch& batch, SequenceTexts Batch::*texts) {
    return {1, [&batch, texts](const std::vector<int>& at) {
                return Value(EntryAt(batch.*texts, at[0]));
            }};
}

void AddBatch(VariableTable& table, Batch& batch) {
    table.emplace("BatchDirty", Field(batch, &Batch::BatchDirty));
    table.emplace("BatchPath", Field(batch, &Batch::BatchPath));
    table.emplace("BatchSavePath", Field(batch, &Batch::BatchSavePath));
    table.emplace("SeqLines", Entry(batch, &Batch::SeqLines));
    table.emplace("SeqPlots", Entry(batch, &Batch::SeqPlots));
    table.emplace("SeqWoods", Entry(batch, &Batch::SeqWoods));
}

void AddSavedRuns(VariableTable& table, const SavedRuns& saved) {
    table.emplace("RunFilePath", Field(saved, &SavedRuns::RunFilePath));
}

// A window comes into being at its first use only.
template <class Window>
const Window& Created(const AtFirstUse<Window>& window, const std::string& name) {
    const Window* created = window.Find();
    if (created == nullptr) throw StepFailed("that the form " + name + " was not created yet");
    return *created;
}

// The fields of a window, under its form's name.
template <class Window>
class WindowFields {
public:
    WindowFields(VariableTable& table, const AtFirstUse<Window>& window, std::string form)
        : table_(table), window_(window), form_(std::move(form)) {}

    template <class T>
    void Add(const std::string& name, T Window::*field) {
        table_.emplace(form_ + "." + name,
                       Variable{0, [&window = window_, form = form_, field](const auto&) {
                                    return ToValue(Created(window, form).*field);
                                }});
    }
    template <class T>
    void Add(const std::string& name, std::vector<T> Window::*field) {
        table_.emplace(form_ + "." + name,
                       Variable{1, [&window = window_, form = form_, field](const auto& at) {
                                    const auto& elements = Created(window, form).*field;
                                    if (at[0] < 0 || at[0] >= std::ssize(elements))
                                        throw RuntimeError(ErrorNumber::kSubscript);
                                    return ToValue(elements[static_cast<std::size_t>(at[0])]);
                                }});
    }

private:
    VariableTable& table_;
    const AtFirstUse<Window>& window_;
    std::string form_;
};

void AddResults(VariableTable& table, const ResultWindows& results) {
    WindowFields output(table, results.output, "Output");
    output.Add("OutputYTBH", &Output::OutputYTBH);
    output.Add("OutputRunLine", &Output::OutputRunLine);
    output.Add("YAxisMax", &Output::YAxisMax);
    output.Add("XColumn", &Output::XColumn);
    output.Add("SeriesColumns", &Output::SeriesColumns);
    WindowFields chart(table, results.chart, "Chart_Frm");
    chart.Add("XYEnabled", &ChartWindow::XYEnabled);
    WindowFields options(table, results.chartOptions, "Chart_Opt");
    options.Add("autosetx", &ChartOptions::autosetx);
    options.Add("autosety", &ChartOptions::autosety);
}

}  // namespace

VariableTable MakeVariables(Program& program) {
    VariableTable table;
    AddRecord(table, program.Run().record);
    AddRun(table, program.Run());
    AddBatch(table, program.GetBatch());
    AddSavedRuns(table, program.Saved());
    AddResults(table, program.Results());
    return table;
}

}  // namespace arbolith
