#include "run_definition/reset.h"

#include "run_definition/apply_steps.h"
#include "run_definition/guidance.h"
#include "run_definition/land_capability.h"
#include "run_definition/step_engine.h"

namespace arbolith {

namespace {

// A pair of options: the first on, its partner off.
void Choose(Option& chosen, Option& partner) {
    chosen.SetValue(true);
    partner.SetValue(false);
}

void ForgetErrors(RunDefinition& run) {
    run.StepErrorText.clear();
    run.StepErrorFlag = false;
    run.StepErrorStep = 0;
}

// Before anything looks at them: a file may have left a number that doesn't fit.
void EmptyFields(MainForm& form) {
    for (TextBox* box :
         {&form.spac1, &form.spac2, &form.Site, &form.Stocking_Index, &form.txtRotAge,
          &form.txtRotDBH, &form.Age1, &form.DBH1, &form.BA1, &form.Spacing, &form.Age2, &form.BA2})
        box->SetText("");
}

void ResetSpecies(RunDefinition& run) {
    LoadSpeciesTables(run.species, "Softwood", run.ShortHardwoodList);
    FillSpecies(run);
    run.form.Step3_Spec.SetCaption("");
}

void ResetSite(RunDefinition& run) {
    auto& form = run.form;
    Choose(form.choose_Land, form.choose_Site);
    FillLandCapabilities(run, LandCapabilityClasses("Softwood"));
    ApplyStep4(run);
}

void ResetRotation(RunDefinition& run) {
    auto& form = run.form;
    Choose(form.Step6_opt1, form.Step6_opt2);
    ApplyStep6(run);
}

void ResetTreatments(RunDefinition& run) {
    auto& form = run.form;
    Choose(form.Step7_T1Age, form.Step7_T1DBH);
    for (TextBox* box : {&form.Age1, &form.DBH1, &form.BA1, &form.Spacing, &form.Age2, &form.BA2})
        box->SetVisible(true);
    for (Label* label : {&form.BA1_lbl, &form.Spac1_lbl, &form.Age2_lbl, &form.BA2_lbl,
                         &form.Step7_BA1, &form.Step7_Spac, &form.Step7_Age2, &form.Step7_BA2})
        label->SetVisible(true);
    for (TextBox* box : {&form.BA1, &form.BA2, &form.Spacing}) box->SetEnabled(false);
    form.Age2.SetEnabled(true);
    ApplyStep7(run);
}

}  // namespace

void ResetInput(RunDefinition& run) {
    const HeldBackEvents quiet(run.application);
    auto& form = run.form;
    run.StepsReached = 0;
    run.InputChanged = false;
    run.TreatmentKeysOpen = true;
    HideStepFrames(run);
    ForgetErrors(run);
    run.record = RunRecord{};
    run.globals.UnitSystem.clear();

    EmptyFields(form);
    Choose(form.Choose_Swd, form.Choose_Hwd);
    Choose(form.choose_Metric, form.choose_Imperial);
    ApplyStep1(run);
    Choose(form.chkNat, form.chkPlant);
    ApplyStep2(run);
    ResetSpecies(run);
    ResetSite(run);
    ApplyStep5(run);
    ResetRotation(run);
    ResetTreatments(run);
    GuideFreshForm(run);

    ForgetErrors(run);
    form.Options_Help.SetVisible(true);
    form.Options.SetCaption("Options:");
    EnableSteps(run, 1);
    if (run.onReset) run.onReset();
}

}  // namespace arbolith
