#include "results/output_save.h"

#include "batch/html_report.h"
#include "batch/text_report.h"
#include "platform/runtime_error.h"

namespace arbolith {

namespace {

constexpr int kReportNumber = 1;
constexpr int kHtmlFilter = 2;
constexpr int kFirstDataRow = 2;
// In the place of a plot's label.
constexpr const char* kNoPlot = "N/A";

// What fails is passed over.
template <class Step>
void Attempt(const Step& step) {
    try {
        step();
    } catch (const RuntimeError&) {
        // The save goes on without it.
    }
}

std::string GetTableLine(const DataValues& values, const DataLengths& widths) {
    std::string line;
    AppendVariables(line, values, widths);
    return line;
}

class OutputReport {
public:
    OutputReport(Output& output, Batch& batch)
        : output_(output), batch_(batch), files_(batch.run.application.Files()) {}

    void PrintText() {
        const auto& runLine = output_.OutputRunLine;
        Print(kRunFieldHeads);
        Print(runLine.substr(runLine.find('\t') + 1));
        Print("");
        Print("YTBH: " + output_.form.YTBH.Caption());
        Print(VariableHeads());
        ForEachRow([this](DataValues& values) {
            DataLengths widths{};
            BatchGetDataLengths(values, kNoPlot, widths);
            Print(GetTableLine(values, widths));
        });
    }

    void PrintHtml() {
        Print(BatchGetHTMLHeader(batch_.panel.chkBorder.Value()));
        Attempt([this] {
            Print(BatchGetHTMLTableHeader(batch_.run, output_.OutputYTBH, kNoPlot,
                                          output_.OutputRunLine));
        });
        ForEachRow([this](DataValues& values) {
            BatchIntegerize(values);
            Print(BatchGetRowOutput(values));
        });
        Print("</TABLE>\r\n" + std::string(kPageEnd));
    }

private:
    void Print(std::string_view text) {
        Attempt([&] { files_.PrintLine(kReportNumber, text); });
    }

    template <class PrintRow>
    void ForEachRow(const PrintRow& printRow) {
        const auto& table = output_.form.Table;
        DataValues values;
        for (int row = kFirstDataRow; row < table.Rows(); ++row) {
            for (std::size_t col = 1; col < values.size(); ++col)
                values[col] = table.Cell(row, static_cast<int>(col));
            Attempt([&] { printRow(values); });
        }
    }

    Output& output_;
    Batch& batch_;
    NumberedFiles& files_;
};

std::string PathOf(const std::string& fileName, const char* extension) {
    const bool hasPoint = fileName.find('.') != std::string::npos;
    return fileName.empty() || hasPoint ? fileName : fileName + extension;
}

void ShowDialog(CommonDialog& dialog, const std::string& folder) {
    dialog.InitDir = folder;
    dialog.Filter = "Text (*.txt)|*.txt|HTML (*.html)|*.html";
    dialog.Flags = CommonDialog::kAsksBeforeOverwriting;
    dialog.ShowSave();
}

}  // namespace

void SaveOutput(Output& output, Batch& batch) {
    auto& dialog = output.form.CDL;
    // A cancel isn't told apart: the name that the dialog has kept counts.
    ShowDialog(dialog, batch.run.application.Folder());
    const bool isHtml = dialog.FilterIndex == kHtmlFilter;
    auto& files = batch.run.application.Files();
    Attempt([&] {
        files.OpenForOutput(kReportNumber, PathOf(dialog.FileName, isHtml ? ".html" : ".txt"));
    });
    OutputReport report(output, batch);
    if (isHtml) {
        report.PrintHtml();
    } else {
        report.PrintText();
    }
    auto& table = output.form.Table;
    Attempt([&table] {
        table.SetCol(1);
        table.SetRow(1);
    });
    files.CloseQuietly(kReportNumber);
}

}  // namespace arbolith
