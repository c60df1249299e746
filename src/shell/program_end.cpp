#include "shell/program_end.h"

#include "saved_runs/file_menu.h"

namespace arbolith {

namespace {

// What would be lost, as the question names it; empty for nothing.
std::string LossAtEnd(const SavedRuns& saved) {
    const auto& form = saved.run.form;
    if (!form.Batch.Visible() && form.Run.Caption() == "Run")
        return form.Run.Enabled() && saved.run.InputChanged ? "run" : "";
    const auto& batch = saved.batch;
    return batch.panel.StartBtn_Bat.Enabled() && batch.BatchDirty ? "batch sequence" : "";
}

}  // namespace

void CloseMainForm(SavedRuns& saved) {
    auto& application = saved.run.application;
    const auto loss = LossAtEnd(saved);
    if (!loss.empty() &&
        application.ShowBox("Do you wish to save changes to this " + loss + " before exit?", "",
                            BoxIcon::kNone, BoxButtons::kYesNo))
        // A failure is told as that of any event, and then the program ends all the same.
        application.Enter([&saved] { SaveFileAs(saved); });
    application.End();
}

}  // namespace arbolith
