#include "shell/program_end.h"

namespace arbolith {

namespace {

bool OffersToSaveRun(const RunDefinition& run) {
    const auto& form = run.form;
    return !form.Batch.Visible() && form.Run.Caption() == "Run" && form.Run.Enabled() &&
           run.InputChanged;
}

}  // namespace

void CloseMainForm(RunDefinition& run) {
    auto& application = run.application;
    if (OffersToSaveRun(run) &&
        application.ShowBox("Do you wish to save changes to this run before exit?", "",
                            BoxIcon::kNone, BoxButtons::kYesNo))
        run.form.SaveAs_Mnu.Raise(run.form.SaveAs_Mnu.onClick);
    application.End();
}

}  // namespace arbolith
