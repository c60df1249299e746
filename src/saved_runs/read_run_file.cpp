// Opening a run: the values of its file are played back through the controls, one step at a time,
// so that every rule of the form applies to them as to what is typed.
#include "batch/sequence_commands.h"
#include "model_bridge/exchange.h"
#include "model_bridge/treatment_probe.h"
#include "platform/numbers.h"
#include "run_definition/apply_steps.h"
#include "run_definition/commit.h"
#include "run_definition/reset.h"
#include "run_definition/step_engine.h"
#include "run_definition/treatment_checks.h"
#include "saved_runs/run_file.h"
#include "saved_runs/saved_runs.h"

#include <functional>

namespace arbolith {

namespace {

constexpr std::int16_t kAllSteps = 7;
constexpr int kEverythingEnabled = 8;

double WholeOf(const std::string& field) {
    return WholePart(Val(field));
}

std::string WholeTextOf(const std::string& field) {
    return DefaultText(WholeOf(field));
}

void Choose(Option& chosen, Option& partner) {
    chosen.SetValue(true);
    partner.SetValue(false);
}

// False, for a step that ends the reading.
bool ReportBadFile(RunDefinition& run) {
    run.application.ShowBox("File is corrupt or wrong format", "File Open", BoxIcon::kExclamation);
    ResetInput(run);
    return false;
}

// Makes one row after the other the selection up to the first that fits. False where none does.
bool SelectFirst(ListBox& list, const std::function<bool(const std::string& row)>& fits) {
    for (int i = 0; i < list.ListCount(); ++i) {
        list.SetListIndex(i);
        if (fits(list.Text())) return true;
    }
    return false;
}

// Each of the following plays one step back; false when that ended the reading.

bool PlayStep1(RunDefinition& run, const RunFile& file) {
    auto& form = run.form;
    if (file.WDTYPE == "Softwood") {
        Choose(form.Choose_Swd, form.Choose_Hwd);
    } else if (file.WDTYPE == "Hardwood") {
        Choose(form.Choose_Hwd, form.Choose_Swd);
    } else {
        run.application.ShowBox("An unknown error has occurred.  The program should be restarted.",
                                "", BoxIcon::kStop);
        return false;
    }
    if (file.UnitSystem == "Metric") {
        Choose(form.choose_Metric, form.choose_Imperial);
    } else if (file.UnitSystem == "Imperial") {
        Choose(form.choose_Imperial, form.choose_Metric);
    } else {
        return ReportBadFile(run);
    }
    ApplyStep1(run);
    CommitStep1(run);
    return true;
}

bool PlayStep2(RunDefinition& run, const RunFile& file) {
    auto& form = run.form;
    const bool natural = file.planted == "No" && (file.natural == "Yes" || file.natural == "No");
    if (natural) {
        Choose(form.chkNat, form.chkPlant);
    } else if (file.natural == "No" && file.planted == "Yes") {
        Choose(form.chkPlant, form.chkNat);
        form.spac1.SetText(file.SPX);
        form.spac2.SetText(file.SPY);
    } else {
        return ReportBadFile(run);
    }
    ApplyStep2(run);
    CommitStep2(run);
    return true;
}

bool PlayStep3(RunDefinition& run, const RunFile& file) {
    if (!SelectFirst(run.form.lstSpecies, [&](const auto& name) { return name == file.SPEC; }))
        return ReportBadFile(run);
    ApplyStep3(run);
    CommitStep3(run);
    return true;
}

bool PlayStep4(RunDefinition& run, const RunFile& file) {
    auto& form = run.form;
    const double landCapability = WholeOf(file.LC);
    if (Val(file.SIB) == 0) {
        Choose(form.choose_Land, form.choose_Site);
        if (!SelectFirst(form.Lcap,
                         [&](const auto& row) { return WholeOf(row) == landCapability; }))
            return ReportBadFile(run);
    } else if (landCapability != 0) {
        return ReportBadFile(run);
    } else {
        Choose(form.choose_Site, form.choose_Land);
        form.Site.SetText(file.SIB);
    }
    ApplyStep4(run);
    CommitStep4(run);
    return true;
}

void PlayStep5(RunDefinition& run, const RunFile& file) {
    run.form.Stocking_Index.SetText(WholeTextOf(file.STK));
    ApplyStep5(run);
    CommitStep5(run);
}

bool PlayStep6(RunDefinition& run, const RunFile& file) {
    auto& form = run.form;
    if (WholeOf(file.RAGE) == 0) {
        Choose(form.Step6_opt2, form.Step6_opt1);
        form.txtRotDBH.SetText(file.RDBH);
    } else if (Val(file.RDBH) != 0) {
        return ReportBadFile(run);
    } else {
        Choose(form.Step6_opt1, form.Step6_opt2);
        form.txtRotAge.SetText(WholeTextOf(file.RAGE));
    }
    ApplyStep6(run);
    CommitStep6(run);
    return true;
}

void PlayFirstTime(RunDefinition& run, const RunFile& file) {
    auto& form = run.form;
    if (Val(file.T1Age) != 0) {
        Choose(form.Step7_T1Age, form.Step7_T1DBH);
        form.Age1.SetText(WholeTextOf(file.T1Age));
    } else if (Val(file.T1DBH) != 0) {
        Choose(form.Step7_T1DBH, form.Step7_T1Age);
        form.DBH1.SetText(file.T1DBH);
    }
}

// The amount goes into a field that is offered. Outside the advanced mode none is: no probe has
// asked the model yet, and the one behind this finds the time without an amount.
void PlayFirstTreatment(RunDefinition& run, const RunFile& file) {
    const HeldBackModel held(run);
    PlayFirstTime(run, file);
    TreatmentProbe(run);
    auto& form = run.form;
    if (form.BA1.Enabled()) {
        form.BA1.SetText(WholeTextOf(file.T1IBA));
    } else if (form.Spacing.Enabled()) {
        form.Spacing.SetText(file.ISD);
    }
}

void PlaySecondTreatment(RunDefinition& run, const RunFile& file) {
    auto& form = run.form;
    if (!form.Age2.Enabled() || Val(file.T2Age) == 0) return;
    form.Age2.SetText(WholeTextOf(file.T2Age));
    TreatmentProbe(run);
    if (form.BA2.Enabled()) form.BA2.SetText(WholeTextOf(file.T2IBA));
}

void PlayStep7(RunDefinition& run, const RunFile& file) {
    PlayFirstTreatment(run, file);
    TreatmentProbe(run);
    PlaySecondTreatment(run, file);
    ApplyStep7(run);
    CommitStep7(run);
}

bool PlaySteps(RunDefinition& run, const RunFile& file) {
    if (!PlayStep1(run, file) || !PlayStep2(run, file) || !PlayStep3(run, file) ||
        !PlayStep4(run, file))
        return false;
    PlayStep5(run, file);
    if (!PlayStep6(run, file)) return false;
    PlayStep7(run, file);
    return true;
}

// Shows the first step, or the one with a fault in it.
void JudgeRun(RunDefinition& run) {
    run.StepsReached = kAllSteps;
    EnableSteps(run, kEverythingEnabled);
    CheckStep7(run, TreatmentCheck::kEverything);
    if (run.StepErrorFlag) {
        ShowInputError(run);
        ShowFailedStep(run);
    } else {
        ShowStep(run, 1);
    }
}

void Read(SavedRuns& saved, const std::string& path) {
    auto& run = saved.run;
    auto& files = run.application.Files();
    ShowSingleRunView(run.form);
    files.OpenForInput(kExchangeFile, path);
    const auto file = ParseRunFile(files.ReadAll(kExchangeFile));
    ResetInput(run);
    // A file that ends here stays open, and the next use of its number fails.
    if (!PlaySteps(run, file)) return;
    files.Close(kExchangeFile);
    JudgeRun(run);
    run.InputChanged = false;
    saved.RunFilePath = path;
}

}  // namespace

void ReadRunFile(SavedRuns& saved, const std::string& path) {
    auto& application = saved.run.application;
    try {
        Read(saved, path);
    } catch (const RuntimeError& error) {
        if (InFileErrorSet(error.Number()))
            application.ShowBox(
                "An error has occurred while trying to load the file.  Ensure that it exists and "
                "is not in use by any other program");
        application.Files().CloseQuietly(kExchangeFile);
    }
}

}  // namespace arbolith
