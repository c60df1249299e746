// Runs the open batch: numbers its sequences, hands all those of a wood type to its model in one
// call, and turns what the models wrote into one report.
#include "batch/batch.h"
#include "batch/html_report.h"
#include "batch/open_report.h"
#include "batch/report_blocks.h"
#include "model_bridge/exchange.h"
#include "platform/numbers.h"

#include <new>

namespace arbolith {

namespace {

using enum SequenceField;

/// What belongs to the sequences of one wood type.
struct Wood {
    std::string_view letter;
    const char* type;
    int file;
    const char* inputName;
    const char* outputName;
    ProgressBar& bar;
    bool any = false;  ///< The batch has sequences of this type.
};

bool IsUnlabelled(std::string_view plot) {
    return plot.empty() || plot == " ";
}

// The line without its plot label, the tab behind that and the wood letter. The tab that stood in
// front of the units stays.
std::string_view WithoutLabelAndWood(std::string_view line, const SequenceFields& fields) {
    const auto dropped = fields[kPlot].size() + 2;
    if (line.size() < dropped) throw RuntimeError(ErrorNumber::kInvalidCall);
    return line.substr(dropped);
}

/// The passes over the sequences ask for their number and for the format anew: the panel can be
/// used while a model runs.
class BatchRun {
public:
    explicit BatchRun(Batch& batch)
        : batch_(batch),
          panel_(batch.panel),
          application_(batch.run.application),
          files_(application_.Files()) {}

    void Run() {
        ReadLabels();
        EnableBatchControls(batch_, false);
        CreateFiles();
        WriteSequences();
        SortSequences();
        // Models take their time: what can't be written is better known before.
        files_.Flush(kReportFile);
        if (softwood_.any) CallModel(softwood_);
        if (hardwood_.any) CallModel(hardwood_);
        WriteReport();
        EnableBatchControls(batch_, true);
        panel_.TotalProg.SetValue(panel_.TotalProg.Max());
        OpenReport(batch_);
    }

private:
    int Count() const { return panel_.Batch_Seq.ListCount(); }
    bool IsHtml() const { return panel_.batchHTML.Value(); }
    void Print(std::string_view text) { files_.PrintLine(kReportFile, text); }

    void ReadLabels() {
        for (int i = 0; i < Count(); ++i) {
            const SequenceFields fields(EntryAt(batch_.SeqLines, i));
            const auto& plot = fields[kPlot];
            const bool unlabelled = IsUnlabelled(plot);
            EntryAt(batch_.SeqPlots, i) = unlabelled ? " " : plot;
            if (!unlabelled && fields.Whole(kPlot) > highestPlot_)
                highestPlot_ = ToInt16(fields.Whole(kPlot));
            EntryAt(batch_.SeqWoods, i) = fields[kWood];
        }
    }

    void CreateFiles() {
        for (const Wood* wood : {&softwood_, &hardwood_})
            files_.OpenForOutput(wood->file, application_.PathOf(wood->inputName));
        files_.OpenForOutput(kReportFile, panel_.batch_out.Text());
    }

    // Numbers the sequences without a label above the highest one; a text report lists them all.
    void WriteSequences() {
        if (!IsHtml()) Print("\t\t" + std::string(kRunFieldHeads));
        for (int i = 0; i < Count(); ++i) {
            const auto& line = EntryAt(batch_.SeqLines, i);
            const SequenceFields fields(line);
            const auto& plot = fields[kPlot];
            const auto number = IsUnlabelled(plot) ? NextNumber() : "";
            // A line that keeps its blank label loses as many characters at its end.
            if (!IsHtml()) {
                std::string shown = "# Plot # " + number;
                shown += number.empty() ? line : line.substr(0, line.size() - plot.size());
                Print(shown);
            }
            if (!number.empty()) EntryAt(batch_.SeqPlots, i) = number;
        }
    }

    std::string NextNumber() { return DefaultText(ToInt16(highestPlot_ + nextNumber_++)); }

    void SortSequences() {
        for (int i = 0; i < Count(); ++i) {
            const auto& line = EntryAt(batch_.SeqLines, i);
            const auto modelLine =
                std::to_string(i).append(WithoutLabelAndWood(line, SequenceFields(line)));
            for (Wood* wood : {&softwood_, &hardwood_}) {
                if (EntryAt(batch_.SeqWoods, i) != wood->letter) continue;
                files_.PrintLine(wood->file, modelLine);
                wood->any = true;
            }
        }
        for (const Wood* wood : {&softwood_, &hardwood_}) files_.Close(wood->file);
    }

    void CallModel(const Wood& wood) {
        WritePathFile(application_, kBatchExchangeFile, wood.inputName, wood.outputName);
        ShowProgress(wood.bar, wood.bar.Max() / 2.0);
        RunAndWait(application_, ModelFileName(wood.type), StartMode::kHidden);
        ShowProgress(wood.bar, wood.bar.Max());
    }

    void ShowProgress(ProgressBar& bar, double value) {
        bar.SetValue(value);
        panel_.TotalProg.SetValue(panel_.SwdProg.Value() + panel_.HwdProg.Value());
    }

    void WriteReport() {
        for (const Wood* wood : {&softwood_, &hardwood_})
            if (wood->any) files_.OpenForInput(wood->file, application_.PathOf(wood->outputName));
        if (IsHtml()) Print(BatchGetHTMLHeader(panel_.chkBorder.Value()));
        for (const Wood* wood : {&hardwood_, &softwood_}) {
            if (!wood->any) continue;
            WriteBlocks(batch_, wood->file);
            files_.Close(wood->file);
            if (IsHtml()) Print(kTableEnd);
        }
        if (IsHtml()) Print(kPageEnd);
        files_.Close(kReportFile);
    }

    Batch& batch_;
    BatchPanel& panel_;
    Application& application_;
    NumberedFiles& files_;
    Wood softwood_{"S",         "Softwood",          kSoftwoodFile,
                   "_SOFT.TMP", kSoftwoodOutputName, panel_.SwdProg};
    Wood hardwood_{"H",         "Hardwood",          kHardwoodFile,
                   "_HARD.TMP", kHardwoodOutputName, panel_.HwdProg};
    std::int16_t highestPlot_ = 0;
    std::int16_t nextNumber_ = 1;
};

void TrapBatchError(Batch& batch, ErrorNumber error) {
    auto& application = batch.run.application;
    if (InFileErrorSet(error)) {
        application.ShowBox("File Specified for output does not exist.\nFile: " +
                            batch.panel.batch_out.Text());
    } else {
        application.ShowBox(
            "Unknown error. Possible problem with output formatting function, or web browser not "
            "found.\n");
    }
    EnableBatchControls(batch, true);
    for (const int file : {kSoftwoodFile, kHardwoodFile, kBatchExchangeFile, kReportFile})
        application.Files().CloseQuietly(file);
}

}  // namespace

void StartBatch(Batch& batch) {
    auto& panel = batch.panel;
    for (ProgressBar* bar : {&panel.SwdProg, &panel.HwdProg, &panel.TotalProg}) bar->SetValue(0);
    auto& application = batch.run.application;
    if (panel.batch_out.Text() == kNoOutputSelected) {
        application.ShowBox("Please select an output file. ");
    } else if (panel.Batch_Seq.ListCount() > 0) {
        RunBatch(batch);
    } else {
        application.ShowBox("Error: No Sequences To Run");
    }
}

void RunBatch(Batch& batch) {
    try {
        BatchRun(batch).Run();
    } catch (const RuntimeError& error) {
        TrapBatchError(batch, error.Number());
    } catch (const std::bad_alloc&) {
        TrapBatchError(batch, ErrorNumber::kOutOfMemory);
    }
}

}  // namespace arbolith
