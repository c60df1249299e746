#include "batch/pickers.h"

#include "batch/batch_text.h"
#include "model_bridge/run_and_wait.h"
#include "platform/runtime_error.h"

#include <filesystem>

namespace arbolith {

namespace {

constexpr const char* kBatchFilter = "All Files (*.qvb)|*.qvb";
constexpr const char* kTextFilter = "Txt Files (*.txt)|*.txt";
constexpr const char* kHtmlFilter = "HTML documents (*.htm/html)|*.htm;*.html";

const char* ExtensionOfReport(const BatchPanel& panel) {
    return panel.batchHTML.Value() ? kHtmlExtension : kTextExtension;
}

std::string WithExtension(const BatchPanel& panel, const std::string& name) {
    if (std::filesystem::path(name).filename().string().find('.') != std::string::npos) return name;
    return name + "." + ExtensionOfReport(panel);
}

void TakeReportName(BatchPanel& panel, const std::string& picked) {
    const auto name = WithExtension(panel, picked);
    const auto extension = ExtensionOf(name);
    panel.batch_out.SetText(name);
    panel.batchHTML.SetValue(extension == kHtmlExtension || extension == "htm");
}

}  // namespace

std::string AskForNewBatch(Batch& batch) {
    auto& dialog = batch.panel.form.CDL;
    dialog.Filter = kBatchFilter;
    dialog.Flags = CommonDialog::kAsksBeforeOverwriting;
    dialog.ShowSave();
    return dialog.FileName;
}

void PickBatch(Batch& batch) {
    auto& dialog = batch.panel.form.CDL;
    dialog.Filter = kBatchFilter;
    dialog.Flags = CommonDialog::kFileMustExist;
    dialog.InitDir = batch.run.application.Folder();
    dialog.ShowOpen();
    if (dialog.FileName.empty()) {
        batch.panel.batch_in.SetText(kInputError);
    } else {
        ReadBatch(batch, dialog.FileName);
    }
    RefreshBatchPanel(batch);
}

void EditBatch(Batch& batch) {
    const auto path = batch.panel.batch_in.Text();
    EditAndWait(batch.run.application, path);
    ReadBatch(batch, path);
}

void ViewReport(Batch& batch) {
    auto& application = batch.run.application;
    try {
        EditAndWait(application, batch.panel.batch_out.Text());
    } catch (const RuntimeError& error) {
        if (!InFileErrorSet(error.Number())) throw;
        application.ShowBox(
            "It would appear that notepad.exe is missing.  You may need to reinstall this from a "
            "Windows CD.");
    }
}

void PickReport(Batch& batch) {
    auto& panel = batch.panel;
    auto& dialog = panel.form.CDL;
    const std::string text = kTextFilter;
    const std::string html = kHtmlFilter;
    dialog.Filter = panel.batchHTML.Value() ? html + "|" + text : text + "|" + html;
    dialog.Flags = CommonDialog::kAsksBeforeOverwriting;
    dialog.ShowSave();
    if (dialog.FileName.empty()) {
        panel.batch_out.SetText(kOutputError);
    } else {
        TakeReportName(panel, dialog.FileName);
    }
    batch.BatchDirty = true;
    RefreshBatchPanel(batch);
}

void FollowReportFormat(Batch& batch) {
    auto& panel = batch.panel;
    batch.BatchDirty = true;
    panel.chkBorder.SetVisible(panel.batchHTML.Value());
    const auto& name = panel.batch_out.Text();
    if (name == kNoOutputSelected || name == kOutputError) return;
    panel.batch_out.SetText(StemOf(name) + ExtensionOfReport(panel));
}

void AppendToPickedBatch(Batch& batch) {
    auto& dialog = batch.panel.form.CDL;
    dialog.Filter = kBatchFilter;
    dialog.Flags = 0;
    dialog.InitDir = batch.run.application.Folder();
    dialog.ShowSave();
    if (!dialog.FileName.empty()) AppendRunToBatch(batch, dialog.FileName);
}

}  // namespace arbolith
