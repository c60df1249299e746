#include "form_script/variables.h"

#include "form_script/stage.h"

#include <string_view>
#include <type_traits>
#include <utility>

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

// The window comes into being at its first use only.
void AddOutput(VariableTable& table, Program& program) {
    const auto add = [&](const char* name, auto field) {
        table.emplace(name,
                      Variable{0, [&program, field](const auto&) {
                                   const Output* output = program.FindOutput();
                                   if (output == nullptr)
                                       throw StepFailed("that the form Output was not created yet");
                                   return ToValue(output->*field);
                               }});
    };
    add("Output.OutputYTBH", &Output::OutputYTBH);
    add("Output.OutputRunLine", &Output::OutputRunLine);
}

}  // namespace

VariableTable MakeVariables(Program& program) {
    VariableTable table;
    AddRecord(table, program.Run().record);
    AddRun(table, program.Run());
    AddOutput(table, program);
    return table;
}

}  // namespace arbolith
