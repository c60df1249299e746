#include "cli/tables.h"

#include "batch/report_blocks.h"
#include "platform/code_page.h"
#include "platform/numbers.h"
#include "platform/runtime_error.h"
#include "platform/text.h"

#include <filesystem>

namespace arbolith::console {

namespace {

constexpr int kFirstDataRow = 2;

// Rows without an age are no result.
void AddRow(CsvStand& stand, CsvRow row) {
    if (WholePart(Val(row.front())) >= 1) stand.rows.push_back(std::move(row));
}

// As the Output window shows it; what is no number stays as the model wrote it.
std::string AsShown(const std::string& value) {
    try {
        return DefaultText(ParseReal(value));
    } catch (const RuntimeError&) {
        return ToUtf8(value);
    }
}

const char* WoodInWords(const std::string& letter) {
    return letter == "S" ? "Softwood" : "Hardwood";
}

CsvStand StandOf(Batch& batch, int sequence) {
    using enum SequenceField;
    const SequenceFields fields(EntryAt(batch.SeqLines, sequence));
    auto& run = batch.run;
    CsvStand stand;
    stand.plot = ToUtf8(EntryAt(batch.SeqPlots, sequence));
    stand.wood = WoodInWords(fields[kWood]);
    LoadSpeciesTables(run.species, stand.wood, run.ShortHardwoodList);
    stand.species = run.species.Species(fields[kSpec]);
    stand.isMetric = fields[kMet] == "Y";
    return stand;
}

CsvStand& StandAt(std::vector<CsvStand>& stands, int sequence) {
    const auto index = static_cast<std::size_t>(sequence);
    if (sequence < 0 || index >= stands.size()) throw RuntimeError(ErrorNumber::kSubscript);
    return stands[index];
}

// Adds what a model has written to the stands that it belongs to.
void ReadResults(Batch& batch, const char* outputName, std::vector<CsvStand>& stands) {
    auto& application = batch.run.application;
    const auto path = application.PathOf(outputName);
    if (!std::filesystem::exists(path)) return;
    auto& files = application.Files();
    files.OpenForInput(kSoftwoodFile, path);
    std::string ytbh;
    DataValues values;
    const auto addRow = [&](std::string_view line) {
        SplitRow(line, values);
        const int sequence = ToInt16(WholePart(Val(values.front())));
        auto& stand = StandAt(stands, sequence);
        stand.yearsToBreastHeight = AsShown(ytbh);
        CsvRow row;
        for (std::size_t i = 0; i < row.size(); ++i) row[i] = AsShown(values[i + 1]);
        AddRow(stand, std::move(row));
    };
    ForEachOutputLine(
        files, kSoftwoodFile, [&ytbh](std::string_view line) { ytbh = Trimmed(line); }, addRow);
    files.Close(kSoftwoodFile);
}

}  // namespace

CsvStand TableOf(const Output& output, const RunDefinition& run, const std::string& plot) {
    CsvStand stand{plot,
                   run.record.WDTYPE,
                   run.record.SPEC,
                   run.globals.UnitSystem == "Metric",
                   output.OutputYTBH,
                   {}};
    const auto& table = output.form.Table;
    for (int row = kFirstDataRow; row < table.Rows(); ++row) {
        CsvRow values;
        for (std::size_t i = 0; i < values.size(); ++i)
            values[i] = table.Cell(row, static_cast<int>(i) + 1);
        AddRow(stand, std::move(values));
    }
    return stand;
}

std::vector<CsvStand> TablesOf(Batch& batch) {
    std::vector<CsvStand> stands;
    const int count = batch.panel.Batch_Seq.ListCount();
    stands.reserve(static_cast<std::size_t>(count));
    for (int i = 0; i < count; ++i) stands.push_back(StandOf(batch, i));
    for (const auto* name : {kHardwoodOutputName, kSoftwoodOutputName})
        ReadResults(batch, name, stands);
    return stands;
}

}  // namespace arbolith::console
