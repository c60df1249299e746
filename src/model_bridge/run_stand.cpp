#include "model_bridge/run_stand.h"

#include "model_bridge/exchange.h"
#include "model_bridge/variables.h"
#include "platform/numbers.h"
#include "run_definition/land_capability.h"

namespace arbolith {

namespace {

constexpr int kFirstDataRow = 2;
constexpr int kTwipsFixedColumn = 300;
constexpr int kTwipsAge = 550;
constexpr int kTwipsVariable = 700;
constexpr int kTwipsFrequency = 800;

void ResetTable(Grid& table) {
    table.Clear();
    table.SetFixedRows(1);
    table.SetFixedCols(1);
    table.SetCols(kVariables + 1);
    table.SetRows(1);
    std::string header;
    for (const char* code : kVariableCodes) {
        header += '\t';
        header += code;
    }
    table.AddItem(header);
}

void AddCurrentRow(Grid& table, const std::string& row) {
    table.AddItem(row);
    table.SetRow(table.Rows() - 1);
}

// Reads the rows of the open output file into the table. Of a row that breaks off, the table keeps
// what was read.
void ReadRows(NumberedFiles& files, Grid& table) {
    std::string row;
    while (!files.AtEndOfData(kExchangeFile)) {
        files.ReadWhole(kExchangeFile);  // the sequence, always 0 here
        row.clear();
        try {
            for (int variable = 0; variable < kVariables; ++variable) {
                const double value = files.ReadReal(kExchangeFile);
                row += '\t';
                AppendDefaultText(row, value);
            }
        } catch (const RuntimeError&) {
            AddCurrentRow(table, row);
            throw;
        }
        AddCurrentRow(table, row);
    }
}

// A row of age 0 carries no result; the first data row stays whatever it holds.
void RemoveRowsWithoutResult(Grid& table) {
    table.RemoveItemsIf(kFirstDataRow + 1,
                        [&table](int row) { return table.Cell(row, kColumnSage) == "0"; });
}

std::string HeadingOf(const RunDefinition& run) {
    const std::string gap(5, ' ');
    const auto& record = run.record;
    std::string heading = record.WDTYPE + ": " + record.SPEC + gap;
    if (record.SiFlag) {
        heading += "Site Index: " + DefaultText(record.SIB) + gap;
    } else {
        const double siteIndex = SiteIndexFromLc(run.form.Step3_Spec.Caption(), record.LC,
                                                 run.form.choose_Metric.Value());
        heading += "Land Capability: " + DefaultText(record.LC) + "(SI=" + DefaultText(siteIndex) +
                   (run.globals.UnitSystem == "Metric" ? "m" : "ft") + ")" + gap;
    }
    return heading + "Unit: " + run.globals.UnitSystem;
}

void LayOutTable(Grid& table) {
    table.SetColWidth(0, kTwipsFixedColumn);
    table.SetColWidth(kColumnSage, kTwipsAge);
    for (int col = kColumnSage + 1; col <= kVariables; ++col)
        table.SetColWidth(col, col == kColumnTf ? kTwipsFrequency : kTwipsVariable);
    table.SetRow(1);
    for (int col = 1; col <= kVariables; ++col) {
        table.SetCol(col);
        table.SetCellAlignment(1, col, Grid::CellAlignment::kCentre);
    }
}

}  // namespace

void RunStand(RunDefinition& run, YieldTable& result) {
    const auto runLine = ExchangeWithModel(run, StartMode::kNormal);
    // An old table doesn't stand in view while it is replaced.
    result.Window().Hide();
    auto& table = result.Table();
    ResetTable(table);
    auto& files = run.application.Files();
    files.OpenForInput(kExchangeFile, run.application.PathOf(kOutputFileName));
    const double years = files.ReadReal(kExchangeFile);
    ReadRows(files, table);
    files.Close(kExchangeFile);
    table.SetCol(1);
    RemoveRowsWithoutResult(table);

    result.Title().SetCaption(HeadingOf(run));
    result.YTBH().SetCaption(DefaultText(years) + " Years from Stump to Breast Height");
    const std::string woodLetter = run.record.WDTYPE == "Softwood" ? "S" : "H";
    result.SetReportTexts(DefaultText(years), "0\t" + woodLetter + "\t" + runLine);
    LayOutTable(table);
    result.Window().Show();
    result.EnableGraphs();
}

}  // namespace arbolith
