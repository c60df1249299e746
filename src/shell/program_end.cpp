#include "shell/program_end.h"

namespace arbolith {

namespace {

// What there is to save, as the question names it; null for nothing. A sequence in the step form
// counts as part of its batch.
const char* WhatToSave(const Batch& batch) {
    const auto& run = batch.run;
    const auto& form = run.form;
    if (!form.Batch.Visible() && form.Run.Caption() == "Run")
        return form.Run.Enabled() && run.InputChanged ? "run" : nullptr;
    return batch.panel.StartBtn_Bat.Enabled() && batch.BatchDirty ? "batch sequence" : nullptr;
}

}  // namespace

void CloseMainForm(Batch& batch) {
    auto& application = batch.run.application;
    const char* what = WhatToSave(batch);
    if (what != nullptr && application.ShowBox(std::string("Do you wish to save changes to this ") +
                                                   what + " before exit?",
                                               "", BoxIcon::kNone, BoxButtons::kYesNo)) {
        const auto& saveAs = batch.run.form.SaveAs_Mnu;
        saveAs.Raise(saveAs.onClick);
    }
    application.End();
}

}  // namespace arbolith
