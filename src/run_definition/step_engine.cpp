#include "run_definition/step_engine.h"

#include "run_definition/apply_steps.h"
#include "run_definition/commit.h"
#include "run_definition/guidance.h"
#include "run_definition/reset.h"
#include "run_definition/step_checks.h"
#include "run_definition/treatment_checks.h"

#include <algorithm>
#include <array>
#include <cstddef>

namespace arbolith {

namespace {

constexpr int kSteps = 7;
constexpr int kAllEnabled = 8;

// How far a step's button counts as having reached: the first reaches step 2, the sixth step 7.
constexpr std::array<std::int16_t, kSteps> kFloors = {2, 2, 3, 4, 5, 7, 7};

std::array<Button*, kSteps> StepButtons(MainForm& form) {
    return {&form.Step1_Btn, &form.Step2_Btn, &form.Step3_Btn, &form.Step4_Btn,
            &form.Step5_Btn, &form.Step6_Btn, &form.Step7_Btn};
}

std::array<Frame*, kSteps> StepFrames(MainForm& form) {
    return {&form.Step1, &form.Step2, &form.Step3, &form.Step4,
            &form.Step5, &form.Step6, &form.Step7};
}

std::array<Label*, kSteps> HelpLabels(MainForm& form) {
    return {&form.Help1, &form.Help2, &form.Help3, &form.Help4,
            &form.Help5, &form.Help6, &form.Help7};
}

void CheckOne(RunDefinition& run, int step) {
    switch (step) {
        case 1:
            return CheckStep1(run);
        case 2:
            return CheckStep2(run);
        case 3:
            return CheckStep3(run);
        case 4:
            return CheckStep4(run);
        case 5:
            return CheckStep5(run);
        case 6:
            return CheckStep6(run);
        default:
            return CheckStep7(run, TreatmentCheck::kEverything);
    }
}

// What a step's button does before it shows the step.
void PrepareStep(RunDefinition& run, int step) {
    switch (step) {
        case 1:
            ApplyStep1(run);
            break;
        case 2:
            CommitStep1(run);
            GuideStep2(run);
            ApplyStep2(run);
            break;
        case 3:
            CommitStep2(run);
            GuideStep3(run);
            ApplyStep3(run);
            break;
        case 4:
            CommitStep3(run);
            GuideStep4(run);
            ApplyStep4(run);
            break;
        case 5:
            CommitStep4(run);
            ApplyStep5(run);
            break;
        case 6:
            CommitStep5(run);
            GuideStep6(run);
            ApplyStep6(run);
            break;
        default:
            CommitStep6(run);
            GuideStep7(run);
            ApplyStep7(run);
            run.probeTreatments();
    }
}

// The control that gets the focus when a step is shown; null leaves it where it is.
Control* FirstFieldOf(MainForm& form, int step) {
    const auto either = [](const Option& option, Control& ifSet, Control& otherwise) {
        return option.Value() ? &ifSet : &otherwise;
    };
    switch (step) {
        case 1:
            return either(form.Choose_Swd, form.Choose_Swd, form.Choose_Hwd);
        case 2:
            return either(form.chkNat, form.chkNat, form.spac1);
        case 3:
            return &form.lstSpecies;
        case 4:
            return either(form.choose_Land, form.Lcap, form.Site);
        case 5:
            return &form.Stocking_Index;
        case 6:
            return either(form.Step6_opt1, form.txtRotAge, form.txtRotDBH);
        case 7:
            if (form.Step7_T1Age.Value() && form.Age1.Usable()) return &form.Age1;
            if (form.Step7_T1DBH.Value() && form.DBH1.Usable()) return &form.DBH1;
            return nullptr;
        default:
            return nullptr;
    }
}

// The steps were hidden in between: a field that had the focus before gets it as if it were new.
void GiveFocusAnew(Application& application, Control& field) {
    application.SetFocus(field);
    if (field.Kind() != ControlKind::kTextBox || !field.Usable()) return;
    auto& box = static_cast<TextBox&>(field);
    if (box.SelectsAllOnFocus()) box.SelectAll();
}

}  // namespace

void CheckSteps(RunDefinition& run, int count) {
    if (run.form.Adv_Mode.Checked()) return;
    for (int step = 1; step <= count && !run.StepErrorFlag; ++step) CheckOne(run, step);
}

void EnableSteps(RunDefinition& run, int level) {
    auto& form = run.form;
    if (form.Adv_Mode.Checked()) level = kAllEnabled;
    // Step n opens above level n - 1, but the first already at level 0.
    const auto buttons = StepButtons(form);
    for (int step = 1; step <= kSteps; ++step)
        buttons[static_cast<std::size_t>(step - 1)]->SetEnabled(step == 1 ? level >= 0
                                                                          : level >= step);
    form.Run.SetEnabled(level >= kSteps);
    form.Append_Btn.SetEnabled(level >= kAllEnabled);
}

void HideStepFrames(RunDefinition& run) {
    auto& form = run.form;
    form.Options_Help.SetVisible(false);
    for (Frame* frame : StepFrames(form)) frame->SetVisible(false);
    for (Button* button : StepButtons(form)) button->SetMarked(false);
    for (Label* help : HelpLabels(form)) help->SetVisible(false);
    form.NSpruceHelp.SetVisible(false);
    form.Help4a.SetVisible(false);
}

void ShowStep(RunDefinition& run, int step) {
    auto& form = run.form;
    HideStepFrames(run);
    if (step == 0) {
        form.Options_Help.SetVisible(true);
        form.Options.SetCaption("Options:");
        return;
    }
    const auto index = static_cast<std::size_t>(step - 1);
    StepFrames(form)[index]->SetVisible(true);
    StepButtons(form)[index]->SetMarked(true);
    HelpLabels(form)[index]->SetVisible(true);
    if (step == 3) form.NSpruceHelp.SetVisible(form.lstSpecies.Text() == "Norway Spruce");
    if (step == 4) form.Help4a.SetVisible(true);
    form.Options.SetCaption("Step " + std::to_string(step) + ":");
    if (Control* field = FirstFieldOf(form, step)) GiveFocusAnew(run.application, *field);
}

void ShowFailedStep(RunDefinition& run) {
    auto& form = run.form;
    if (form.Adv_Mode.Checked()) return;
    if (form.Batch.Visible()) {
        form.Batch.SetVisible(false);
        form.Qvly.SetVisible(true);
    }
    if (run.StepErrorStep >= 1 && run.StepErrorStep <= kSteps) ShowStep(run, run.StepErrorStep);
}

void RecheckSteps(RunDefinition& run, int step) {
    if (run.form.Adv_Mode.Checked() || step < 1 || step > kSteps) return;
    run.StepErrorFlag = false;
    CheckSteps(run, run.StepsReached);
    const int failed = run.StepErrorFlag ? run.StepErrorStep : 0;
    const bool closesLaterSteps = failed >= step && (failed == step || failed <= run.StepsReached);
    EnableSteps(run, failed != 0 && closesLaterSteps ? failed : run.StepsReached + 1);
}

void ShowInputError(RunDefinition& run) {
    run.application.ShowBox(run.StepErrorText, "Input Error", BoxIcon::kExclamation);
}

void PressStepButton(RunDefinition& run, int step) {
    run.StepsReached = std::max(run.StepsReached, kFloors[static_cast<std::size_t>(step - 1)]);
    run.StepErrorFlag = false;
    CheckSteps(run, run.StepsReached);
    if (run.StepErrorFlag && run.StepErrorStep < step) {
        EnableSteps(run, run.StepErrorStep);
        ShowInputError(run);
        ShowFailedStep(run);
        return;
    }
    EnableSteps(run, run.StepErrorFlag ? run.StepErrorStep : std::max(run.StepsReached + 1, step));
    PrepareStep(run, step);
    ShowStep(run, step);
}

void ToggleAdvancedMode(RunDefinition& run) {
    auto& mode = run.form.Adv_Mode;
    if (mode.Checked()) {
        ResetInput(run);
        mode.SetChecked(false);
        return;
    }
    if (!run.application.ShowBox("Enabling advanced mode will cause all input to be reset, \n"
                                 "        and invalid input will be ignored from now on.\n\n"
                                 "Are you sure you want to enable advanced user mode?",
                                 "Confirm selection", BoxIcon::kNone, BoxButtons::kYesNo))
        return;
    ResetInput(run);
    EnableSteps(run, kAllEnabled);
    mode.SetChecked(true);
}

}  // namespace arbolith
