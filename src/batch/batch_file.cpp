// The batch file: making, reading and writing it, and appending a run to one.
#include "batch/batch.h"
#include "batch/batch_text.h"
#include "batch/pickers.h"
#include "batch/sequence_commands.h"
#include "model_bridge/run_and_wait.h"
#include "model_bridge/run_line.h"
#include "platform/runtime_error.h"
#include "platform/text.h"
#include "run_definition/commit.h"

#include <filesystem>
#include <functional>

namespace arbolith {

namespace {

constexpr int kBatchFile = 1;

// Does the work with the error trap of the batch's file operations.
void WithTrap(Application& application, const char* message, const std::function<void()>& work) {
    try {
        work();
    } catch (const RuntimeError& error) {
        if (InFileErrorSet(error.Number())) application.ShowBox(message);
        application.Files().CloseQuietly(kBatchFile);
    }
}

void PassOverErrors(const std::function<void()>& work) {
    try {
        work();
    } catch (const RuntimeError&) {
        // The next step is done all the same.
    }
}

void PrintLines(NumberedFiles& files, const std::vector<std::string>& lines) {
    for (const auto& line : lines) files.PrintLine(kBatchFile, line);
}

// The report's name and format as the file tells them.
void TakeOutput(Batch& batch, const std::string& output) {
    auto& panel = batch.panel;
    const bool isHtml = output == kDefaultHtmlOutput;
    panel.batch_out.SetText(output);
    if (!isHtml && output != kDefaultOutput && output != kDefaultTextOutput) return;
    panel.batch_out.SetText(StemOf(panel.batch_in.Text()) +
                            (isHtml ? kHtmlExtension : kTextExtension));
    // Reading is no change of the batch.
    const bool wasDirty = batch.BatchDirty;
    panel.batchHTML.SetValue(isHtml);
    batch.BatchDirty = wasDirty;
}

bool IsWoodLetter(const std::string& field) {
    return EqualIgnoringCase(field, "S") || EqualIgnoringCase(field, "H");
}

void AddRow(Batch& batch, const std::string& line) {
    batch.panel.Batch_Seq.AddItem(DescribeSequence(batch.run, line));
}

// A line that is no sequence takes a slot, but gets no row.
void TakeSequences(Batch& batch, const std::vector<std::string>& items) {
    const auto first = FirstSequence(items);
    int slot = 0;
    for (auto i = first; i < items.size(); ++i) {
        const auto& line = items[i];
        if (line.empty()) continue;
        const SequenceFields fields(line);
        if (IsWoodLetter(fields[SequenceField::kPlot])) {
            const auto labelled = " \t" + line;
            EntryAt(batch.SeqLines, slot) = labelled;
            AddRow(batch, labelled);
        } else if (IsWoodLetter(fields[SequenceField::kWood])) {
            EntryAt(batch.SeqLines, slot) = line;
            EntryAt(batch.SeqPlots, static_cast<int>(i - first)) = fields[SequenceField::kPlot];
            AddRow(batch, line);
        }
        ++slot;
    }
}

void ShowPanelForFile(Batch& batch, const std::string& path) {
    auto& panel = batch.panel;
    ShowBatchView(panel);
    for (ProgressBar* bar : {&panel.SwdProg, &panel.HwdProg, &panel.TotalProg}) bar->SetValue(0);
    panel.batch_in.SetText(path);
    panel.Batch_Seq.Clear();
    batch.SeqLines.fill("");
}

// The value of the output line that leads back to the report's name.
std::string OutputFor(const BatchPanel& panel) {
    const auto& report = panel.batch_out.Text();
    if (StemOf(report) != StemOf(panel.batch_in.Text())) return report;
    return std::string(ExtensionOf(report) == kHtmlExtension ? kDefaultHtmlOutput
                                                             : kDefaultTextOutput);
}

void CreateBatchFile(Batch& batch, const std::string& path) {
    auto& files = batch.run.application.Files();
    PassOverErrors([&] {
        files.OpenForReplacement(kBatchFile, path);
        PrintLines(files, HeadingOfBatch(batch.panel.batchHTML.Value() ? kDefaultHtmlOutput
                                                                       : kDefaultTextOutput));
        files.Close(kBatchFile);
    });
    files.CloseQuietly(kBatchFile);
}

std::string SequenceLineOf(const RunDefinition& run) {
    return (run.form.Step1_Type.Caption() == "Softwood" ? "\tS\t" : "\tH\t") +
           BuildRunLine(run.record, run.globals.UnitSystem, run.ShortHardwoodList);
}

}  // namespace

void NewBatch(Batch& batch) {
    const auto path = AskForNewBatch(batch);
    if (!path.empty()) {
        batch.panel.batch_in.SetText(path);
        CreateBatchFile(batch, path);
        PassOverErrors([&] { EditAndWait(batch.run.application, path); });
        ReadBatch(batch, path);
    }
    batch.BatchDirty = false;
    batch.BatchPath.clear();
}

void ReadBatch(Batch& batch, const std::string& path) {
    if (LoadBatch(batch, path)) RunBatch(batch);
}

bool LoadBatch(Batch& batch, const std::string& path) {
    auto& application = batch.run.application;
    bool runsByItself = false;
    WithTrap(application, "An unknown error has occurred opening the file.", [&] {
        ShowPanelForFile(batch, path);
        const auto items = ReadItems(application.Files(), kBatchFile, path);
        if (const auto output = OutputOf(items)) TakeOutput(batch, *output);
        batch.SeqPlots.fill(" ");
        batch.SeqWoods.fill("");
        TakeSequences(batch, items);
        RefreshBatchPanel(batch);
        batch.BatchDirty = false;
        batch.BatchPath = path;
        runsByItself = RunsByItself(items);
    });
    return runsByItself;
}

void WriteBatch(Batch& batch, const std::string& path) {
    auto& application = batch.run.application;
    auto& files = application.Files();
    constexpr const char* kMessage =
        "Error overwriting the batch.  Ensure that the file exists and is not in use by another "
        "program.";
    WithTrap(application, kMessage, [&] {
        files.OpenForReplacement(kBatchFile, path);
        PrintLines(files, HeadingOfBatch(OutputFor(batch.panel)));
        for (int i = 0; i < batch.panel.Batch_Seq.ListCount(); ++i)
            files.PrintLine(kBatchFile, EntryAt(batch.SeqLines, i));
        files.Close(kBatchFile);
        batch.BatchDirty = false;
        batch.BatchPath = path;
        batch.panel.batch_in.SetText(path);
    });
}

void AppendRunToBatch(Batch& batch, const std::string& path) {
    auto& application = batch.run.application;
    auto& files = application.Files();
    constexpr const char* kMessage =
        "An unknown error has occurred appending the run to file.  Ensure that the file exists and "
        "is not in use by any other program.";
    WithTrap(application, kMessage, [&] {
        CommitStep7(batch.run);
        const auto line = SequenceLineOf(batch.run);
        std::error_code ignored;
        const bool exists = std::filesystem::exists(path, ignored);
        if (exists) {
            files.OpenForAppend(kBatchFile, path);
        } else {
            files.OpenForOutput(kBatchFile, path);
        }
        files.PrintLine(kBatchFile, line);
        files.Close(kBatchFile);
        application.ShowBox(
            (exists ? "Run was appended to batch file: " : "New Batch file was created: ") + path);
        ReadBatch(batch, path);
    });
}

}  // namespace arbolith
