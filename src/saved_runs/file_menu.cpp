#include "saved_runs/file_menu.h"

#include "batch/sequence_commands.h"
#include "platform/text.h"
#include "run_definition/commit.h"
#include "run_definition/reset.h"
#include "run_definition/treatment_checks.h"

namespace arbolith {

namespace {

constexpr const char* kRunExtension = ".qvn";
constexpr const char* kBatchExtension = ".qvb";
constexpr const char* kRunFilter = "QVL Config (*.qvn)|*.qvn|All Files (*.*)|*.*";
constexpr const char* kBatchFilter = "QVL Batch (*.qvb)|*.qvb|All Files (*.*)|*.*";
constexpr const char* kAllFilter = "All Files (*.qv*)|*.qv*";

bool InBatchView(const SavedRuns& saved) {
    return saved.run.form.Batch.Visible();
}

bool EndsIn(const std::string& path, const std::string& extension) {
    return path.size() >= extension.size() &&
           EqualIgnoringCase(std::string_view(path).substr(path.size() - extension.size()),
                             extension);
}

void RefuseToSave(SavedRuns& saved, const std::string& reason) {
    saved.run.application.ShowBox(
        reason + "\nYou may wish to first try a 'Run' with the current input.", "Save Error",
        BoxIcon::kExclamation);
}

// False, with a message, where the input isn't a run.
bool CheckRun(SavedRuns& saved) {
    CheckStep7(saved.run, TreatmentCheck::kEverything);
    if (saved.run.StepErrorFlag)
        RefuseToSave(saved,
                     "Some fields are missing or invalid.  Please complete steps 1-7 first.");
    return !saved.run.StepErrorFlag;
}

bool CheckBatch(SavedRuns& saved) {
    const bool ready = saved.batch.panel.StartBtn_Bat.Enabled();
    if (!ready) RefuseToSave(saved, "The batch run is invalid or incomplete.  Cannot save.");
    return ready;
}

// Asks where to save; empty where the dialog was cancelled or the name has another extension.
std::string AskWhereToSave(SavedRuns& saved, const char* filter, const char* extension) {
    auto& dialog = saved.run.form.CDL;
    dialog.Filter = filter;
    dialog.FilterIndex = 1;
    dialog.Flags = CommonDialog::kAsksBeforeOverwriting;
    dialog.InitDir = saved.run.application.Folder();
    dialog.FileName.clear();
    dialog.ShowSave();
    return EndsIn(dialog.FileName, extension) ? dialog.FileName : "";
}

void SaveRunAs(SavedRuns& saved) {
    if (!CheckRun(saved)) return;
    CommitStep7(saved.run);
    const auto path = AskWhereToSave(saved, kRunFilter, kRunExtension);
    if (!path.empty()) WriteRunFile(saved, path);
}

void SaveBatchAs(SavedRuns& saved) {
    if (!CheckBatch(saved)) return;
    const auto path = AskWhereToSave(saved, kBatchFilter, kBatchExtension);
    if (path.empty()) return;
    WriteBatch(saved.batch, path);
    ReadBatch(saved.batch, path);
}

void SaveRun(SavedRuns& saved) {
    if (!CheckRun(saved)) return;
    CommitStep7(saved.run);
    if (saved.RunFilePath.empty()) {
        SaveFileAs(saved);
    } else {
        WriteRunFile(saved, saved.RunFilePath);
    }
}

void SaveBatch(SavedRuns& saved) {
    if (!CheckBatch(saved)) return;
    auto& batch = saved.batch;
    // A batch that was read goes to a second path that it never has: only one made here is saved.
    WriteBatch(batch, batch.BatchPath.empty() ? batch.panel.batch_in.Text() : batch.BatchSavePath);
}

void EmptyBatch(Batch& batch) {
    auto& panel = batch.panel;
    panel.StartBtn_Bat.SetEnabled(false);
    panel.batch_in.SetText("");
    panel.batch_out.SetText("");
    panel.Batch_Seq.Clear();
    batch.SeqLines.fill("");
    batch.SeqWoods.fill("");
    batch.SeqPlots.fill(" ");
}

}  // namespace

void OpenFileMenu(SavedRuns& saved) {
    auto& form = saved.run.form;
    form.AppendToBatch_Mnu.SetEnabled(!InBatchView(saved));
    if (InBatchView(saved) || form.Run.Caption() != "Apply") return;
    form.SaveAs_Mnu.SetEnabled(false);
    form.Save_Mnu.SetEnabled(false);
}

void NewInput(SavedRuns& saved) {
    if (!InBatchView(saved)) return ResetInput(saved.run);
    EmptyBatch(saved.batch);
    NewBatch(saved.batch);
    RefreshBatchPanel(saved.batch);
}

void OpenFile(SavedRuns& saved) {
    auto& form = saved.run.form;
    auto& dialog = form.CDL;
    dialog.Filter = kAllFilter;
    dialog.Flags = CommonDialog::kFileMustExist;
    dialog.InitDir = saved.run.application.Folder();
    dialog.ShowOpen();
    // The name decides, also behind a cancel.
    const std::string path = dialog.FileName;
    if (EndsIn(path, kBatchExtension)) {
        ReadBatch(saved.batch, path);
    } else if (EndsIn(path, kRunExtension)) {
        ReadRunFile(saved, path);
    } else if (!path.empty()) {
        saved.run.application.ShowBox("File format not supported.", "Open Error");
    }
    form.AppendToBatch_Mnu.SetEnabled(true);
}

void SaveFile(SavedRuns& saved) {
    if (InBatchView(saved)) {
        if (saved.batch.BatchDirty) SaveBatch(saved);
    } else if (saved.run.form.Run.Caption() == "Run" && saved.run.InputChanged) {
        SaveRun(saved);
    }
}

void SaveFileAs(SavedRuns& saved) {
    if (InBatchView(saved)) {
        SaveBatchAs(saved);
    } else if (saved.run.form.Run.Caption() == "Run") {
        SaveRunAs(saved);
    }
}

void ShowSingleRun(SavedRuns& saved) {
    auto& form = saved.run.form;
    auto& sequences = saved.batch.panel.Batch_Seq;
    form.Single_Mnu.SetChecked(true);
    form.Batch_Mnu.SetChecked(false);
    if (!InBatchView(saved)) {
        form.Run.SetCaption("Run");
    } else if (sequences.ListIndex() != -1) {
        EditSequence(saved.batch);
        form.Run.SetCaption("Run");
    } else if (sequences.ListCount() == 0) {
        ResetInput(saved.run);
    }
    ShowSingleRunView(form);
}

}  // namespace arbolith
