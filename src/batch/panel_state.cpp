// What can be used on the batch panel, by the two file names and the selected row.
#include "batch/batch.h"
#include "platform/file_names.h"

#include <initializer_list>

namespace arbolith {

namespace {

constexpr std::size_t kPrefixLength = 3;

bool IsLetter(char c) {
    return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z');
}

void EnableAll(std::initializer_list<Control*> controls, bool enabled) {
    for (Control* control : controls) control->SetEnabled(enabled);
}

}  // namespace

bool HasDrivePrefix(std::string_view text) {
    return text.size() >= kPrefixLength && IsLetter(text[0]) && text.substr(1, 2) == ":\\";
}

bool IsUsableFileName(std::string_view text) {
    if (text.size() <= kPrefixLength) return false;
    if (HasDrivePrefix(text)) text.remove_prefix(kPrefixLength);
    return text.find_first_of(kRefusedCharacters) == std::string_view::npos;
}

void EnableRowCommands(BatchPanel& panel, bool enabled) {
    EnableAll({&panel.PlotNum_btn, &panel.editSeqBtn, &panel.Del_Seq_Btn, &panel.Copy_Seq_Btn},
              enabled);
}

void RefreshBatchPanel(Batch& batch) {
    auto& panel = batch.panel;
    const bool hasInput = IsUsableFileName(panel.batch_in.Text());
    const bool hasOutput = IsUsableFileName(panel.batch_out.Text());
    EnableAll({&panel.batchFileBtn, &panel.newBatBtn, &panel.outFileBtn, &panel.Cancel_Btn_Bat},
              true);
    EnableAll({&panel.editBatBtn, &panel.Append_Make_Btn}, hasInput);
    panel.viewBatBtn.SetEnabled(hasOutput);
    panel.StartBtn_Bat.SetEnabled(hasInput && hasOutput);
    EnableRowCommands(panel, panel.Batch_Seq.ListIndex() != -1);
}

void EnableBatchControls(Batch& batch, bool enabled) {
    auto& panel = batch.panel;
    auto& form = panel.form;
    EnableAll(
        {&panel.StartBtn_Bat, &panel.Cancel_Btn_Bat, &panel.batchFileBtn, &panel.newBatBtn,
         &panel.outFileBtn, &form.File_Mnu, &form.Run_Mnu, &panel.viewBatBtn, &panel.editBatBtn},
        enabled);
}

void ForgetBatch(Batch& batch) {
    batch.BatchDirty = false;
    batch.BatchPath.clear();
    batch.BatchSavePath.clear();
    batch.panel.Progress.SetEnabled(true);
}

}  // namespace arbolith
