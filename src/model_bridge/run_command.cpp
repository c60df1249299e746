#include "model_bridge/run_command.h"

#include "model_bridge/exchange.h"
#include "model_bridge/run_stand.h"
#include "model_bridge/treatment_probe.h"
#include "run_definition/apply_steps.h"
#include "run_definition/commit.h"
#include "run_definition/step_engine.h"
#include "run_definition/treatment_checks.h"

namespace arbolith {

namespace {

constexpr int kEverythingEnabled = 8;

// Copies the whole table, then reduces the selection to its first cell.
void CopyTable(YieldTable& result) {
    auto& table = result.Table();
    table.SetRow(1);
    table.SetCol(1);
    table.SetColSel(table.Cols() - 1);
    table.SetRowSel(table.Rows() - 1);
    result.CopySelection();
    table.SetRow(1);
    table.SetCol(1);
}

void RunOrApply(RunCommand& command) {
    auto& run = command.run;
    if (!CommitFaultlessRun(run)) return;
    if (run.form.Run.Caption() == "Apply") {
        command.applySequence();
    } else {
        RunStand(run, command.result());
    }
    CopyTable(command.result());
}

}  // namespace

bool CommitFaultlessRun(RunDefinition& run) {
    ApplyStep7(run);
    run.StepErrorFlag = false;
    TreatmentProbe(run);
    CheckStep7(run, TreatmentCheck::kEverything);
    if (run.StepErrorFlag) {
        ShowFailedStep(run);
        ShowInputError(run);
        return false;
    }
    EnableSteps(run, kEverythingEnabled);
    CommitStep7(run);
    return true;
}

void ClickRun(RunCommand& command) {
    try {
        RunOrApply(command);
    } catch (const RuntimeError& error) {
        TrapModelError(command.run.application, error.Number());
    }
}

}  // namespace arbolith
