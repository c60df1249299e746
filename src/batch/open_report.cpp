#include "batch/open_report.h"

#include "model_bridge/run_and_wait.h"

namespace arbolith {

namespace {

void OpenInBrowser(Application& application, const std::string& report) {
    switch (application.GetHost().Open(report)) {
        case OpenResult::kOpened:
            break;
        case OpenResult::kNoOpener:
            application.ShowBox("Could not find associated Browser", "Browser Not Found",
                                BoxIcon::kExclamation);
            break;
        case OpenResult::kFailed:
            application.ShowBox("Web Page not Opened", "URL Failed", BoxIcon::kExclamation);
            break;
    }
}

}  // namespace

void OpenReport(Batch& batch) {
    const auto& report = batch.panel.batch_out.Text();
    if (batch.panel.batchHTML.Value()) {
        OpenInBrowser(batch.run.application, report);
    } else {
        StartEditor(batch.run.application, report);
    }
}

}  // namespace arbolith
