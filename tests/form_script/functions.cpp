// The pure functions that scripts can ask for.
#include "batch/batch.h"
#include "charts/graph_titles.h"
#include "form_script/variables.h"
#include "platform/numbers.h"
#include "platform/runtime_error.h"
#include "run_definition/land_capability.h"

namespace arbolith {

namespace {

using Arguments = std::vector<std::string>;

double NumberIn(const std::string& argument) {
    const auto number = ReadNumber(argument);
    if (!number) throw RuntimeError(ErrorNumber::kTypeMismatch);
    return *number;
}

}  // namespace

FunctionTable MakeFunctions(Program& program) {
    RunDefinition& run = program.Run();
    FunctionTable table;
    table["Val"] = {1, [](const Arguments& arguments) { return Val(arguments[0]); }};
    table["DefaultText"] = {
        1, [](const Arguments& arguments) { return DefaultText(NumberIn(arguments[0])); }};
    table["Species"] = {
        1, [&run](const Arguments& arguments) { return run.species.Species(arguments[0]); }};
    table["SiteIndexFromLc"] = {2, [&run](const Arguments& arguments) {
                                    return SiteIndexFromLc(arguments[0],
                                                           ToInt16(NumberIn(arguments[1])),
                                                           run.form.choose_Metric.Value());
                                }};
    table["IsUsableFileName"] = {
        1, [](const Arguments& arguments) { return IsUsableFileName(arguments[0]); }};
    table["HasDrivePrefix"] = {
        1, [](const Arguments& arguments) { return HasDrivePrefix(arguments[0]); }};
    table["DescribeSequence"] = {
        1, [&run](const Arguments& arguments) { return DescribeSequence(run, arguments[0]); }};
    table["GetAxisTitle"] = {1, [&run](const Arguments& arguments) {
                                 return GetAxisTitle(ToInt16(NumberIn(arguments[0])), run.globals);
                             }};
    return table;
}

}  // namespace arbolith
