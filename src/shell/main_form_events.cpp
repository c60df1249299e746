// The events of the main form, step by step: control, event, and what runs, in order.
#include "run_definition/apply_steps.h"
#include "run_definition/guidance.h"
#include "run_definition/key_filters.h"
#include "run_definition/reset.h"
#include "run_definition/step_engine.h"
#include "shell/events.h"
#include "shell/help.h"
#include "shell/webpage.h"

#include <vector>

namespace arbolith {

namespace {

constexpr int kEnter = 13;

void WireStepButtons(RunDefinition& run) {
    auto& form = run.form;
    form.Step1_Btn.onClick = [&run] { PressStepButton(run, 1); };
    form.Step2_Btn.onClick = [&run] { PressStepButton(run, 2); };
    form.Step3_Btn.onClick = [&run] { PressStepButton(run, 3); };
    form.Step4_Btn.onClick = [&run] { PressStepButton(run, 4); };
    form.Step5_Btn.onClick = [&run] { PressStepButton(run, 5); };
    form.Step6_Btn.onClick = [&run] { PressStepButton(run, 6); };
    form.Step7_Btn.onClick = [&run] { PressStepButton(run, 7); };
}

void WireStep1(RunDefinition& run) {
    auto& form = run.form;
    form.Choose_Swd.onClick = [&run, &form] {
        form.Choose_Hwd.SetValue(false);
        ApplyWoodOption(run);
        RecheckSteps(run, 1);
    };
    form.Choose_Hwd.onClick = [&run, &form] {
        form.Choose_Swd.SetValue(false);
        ApplyWoodOption(run);
        RecheckSteps(run, 1);
    };
    form.choose_Metric.onClick = [&run, &form] {
        form.choose_Imperial.SetValue(false);
        ApplyStep1(run);
        RecheckSteps(run, 1);
    };
    form.choose_Imperial.onClick = [&run, &form] {
        form.choose_Metric.SetValue(false);
        ApplyStep1(run);
        RecheckSteps(run, 1);
    };
}

void WireStep2(RunDefinition& run) {
    auto& form = run.form;
    auto& application = run.application;
    form.chkPlant.onClick = [&run, &form, &application] {
        form.chkNat.SetValue(false);
        ApplyStep2(run);
        RecheckSteps(run, 2);
        GuideStep2(run);
        if (form.spac2.Usable()) application.SetFocus(form.spac1);
    };
    form.chkNat.onClick = [&run, &form] {
        form.chkPlant.SetValue(false);
        ApplyStep2(run);
        RecheckSteps(run, 2);
        GuideStep2(run);
    };
    form.spac1.onChange = form.spac2.onChange = [&run] {
        ApplyStep2(run);
        RecheckSteps(run, 2);
    };
    form.spac1.onKeyPress = [&form, &application](int& key) {
        if (key == kEnter) application.SetFocus(form.spac2);
        DecimalFilter(application, key, form.spac1);
    };
    form.spac2.onKeyPress = [&run, &form, &application](int& key) {
        if (key == kEnter) PressStepButton(run, 3);
        DecimalFilter(application, key, form.spac2);
    };
}

void WireStep3(RunDefinition& run) {
    auto& form = run.form;
    form.lstSpecies.onClick = [&run] {
        ApplyStep3(run);
        RecheckSteps(run, 3);
        GuideStep3(run);
    };
    form.lstSpecies.onKeyPress = [&run](int& key) {
        if (key == kEnter) PressStepButton(run, 4);
    };
}

void WireStep4(RunDefinition& run) {
    auto& form = run.form;
    auto& application = run.application;
    form.choose_Land.onClick = [&run, &form, &application] {
        form.choose_Site.SetValue(false);
        ApplyStep4(run);
        RecheckSteps(run, 4);
        application.SetFocus(form.Lcap);
    };
    form.choose_Site.onClick = [&run, &form, &application] {
        form.choose_Land.SetValue(false);
        ApplyStep4(run);
        RecheckSteps(run, 4);
        application.SetFocus(form.Site);
    };
    form.Lcap.onClick = form.Site.onChange = [&run] {
        ApplyStep4(run);
        RecheckSteps(run, 4);
    };
    form.Lcap.onKeyPress = [&run](int& key) {
        if (key == kEnter) PressStepButton(run, 5);
    };
    form.Site.onKeyPress = [&run, &form, &application](int& key) {
        if (key == kEnter) PressStepButton(run, 5);
        DecimalFilter(application, key, form.Site);
    };
}

void WireStep5(RunDefinition& run) {
    auto& form = run.form;
    form.Stocking_Index.onChange = [&run] {
        ApplyStep5(run);
        RecheckSteps(run, 5);
    };
    form.Stocking_Index.onKeyPress = [&run](int& key) {
        if (key == kEnter) PressStepButton(run, 6);
        IntegerFilter(run.application, key);
    };
}

void WireStep6(RunDefinition& run) {
    auto& form = run.form;
    auto& application = run.application;
    form.Step6_opt1.onClick = [&run, &form, &application] {
        form.Step6_opt2.SetValue(false);
        ApplyStep6(run);
        RecheckSteps(run, 6);
        application.SetFocus(form.txtRotAge);
    };
    form.Step6_opt2.onClick = [&run, &form, &application] {
        form.Step6_opt1.SetValue(false);
        ApplyStep6(run);
        RecheckSteps(run, 6);
        application.SetFocus(form.txtRotDBH);
    };
    form.txtRotAge.onChange = form.txtRotDBH.onChange = [&run] {
        ApplyStep6(run);
        RecheckSteps(run, 6);
    };
    form.txtRotAge.onKeyPress = [&run](int& key) {
        if (key == kEnter) PressStepButton(run, 7);
        IntegerFilter(run.application, key);
    };
    form.txtRotDBH.onKeyPress = [&run, &form](int& key) {
        if (key == kEnter) PressStepButton(run, 7);
        DecimalFilter(run.application, key, form.txtRotDBH);
    };
}

void WireStep7(RunDefinition& run) {
    auto& form = run.form;
    auto& application = run.application;
    form.Step7_T1Age.onClick = [&run, &form, &application] {
        form.Step7_T1DBH.SetValue(false);
        ApplyStep7(run);
        application.SetFocus(form.Age1);
    };
    form.Step7_T1DBH.onClick = [&run, &form, &application] {
        form.Step7_T1Age.SetValue(false);
        ApplyStep7(run);
        application.SetFocus(form.DBH1);
    };
    // A time decides which treatments are possible; no key gets in until the probe has its answer.
    form.Age1.onChange = form.Age2.onChange = form.DBH1.onChange = [&run] {
        run.TreatmentKeysOpen = false;
        ApplyStep7(run);
        run.probeTreatments();
    };
    form.BA1.onChange = form.Spacing.onChange = [&run] {
        ApplyStep7(run);
        if (run.record.WDTYPE == "Hardwood" || run.SoftwoodT2Allowed) run.probeTreatments();
    };
    form.BA2.onChange = [&run] { ApplyStep7(run); };

    form.Age1.onKeyPress = form.Age2.onKeyPress = [&run](int& key) {
        if (run.TreatmentKeysOpen) {
            IntegerFilter(run.application, key);
        } else {
            key = 0;
        }
    };
    form.DBH1.onKeyPress = [&run, &form](int& key) {
        if (run.TreatmentKeysOpen) {
            DecimalFilter(run.application, key, form.DBH1);
        } else {
            key = 0;
        }
    };
    for (TextBox* box : {&form.BA1, &form.BA2, &form.Spacing})
        box->onKeyPress = [&application, box](int& key) { DecimalFilter(application, key, *box); };
}

/// A control and what lights up while it has the focus.
struct FocusGroup {
    Control* control;
    std::vector<Control*> coloured;
};

std::vector<FocusGroup> FocusGroups(MainForm& form) {
    return {
        {&form.Choose_Swd, {&form.Choose_Swd, &form.Step1_Type}},
        {&form.Choose_Hwd, {&form.Choose_Hwd, &form.Step1_Type}},
        {&form.choose_Metric, {&form.choose_Metric, &form.Step1_Unit}},
        {&form.choose_Imperial, {&form.choose_Imperial, &form.Step1_Unit}},
        {&form.spac1, {&form.lbl2_2, &form.Step2_Spac1, &form.chkPlant, &form.Step2_Plant}},
        {&form.spac2, {&form.lbl2_3, &form.Step2_Spac2, &form.chkPlant, &form.Step2_Plant}},
        {&form.chkNat, {&form.chkNat, &form.Step2_Nat}},
        {&form.lstSpecies, {&form.Step3_Spec}},
        {&form.Lcap, {&form.choose_Land, &form.Step4_Land}},
        {&form.Site, {&form.choose_Site, &form.Step4_Site}},
        {&form.Stocking_Index, {&form.stk_lbl, &form.Step5_Stock}},
        {&form.txtRotAge, {&form.Step6_opt1, &form.Step6_Age}},
        {&form.txtRotDBH, {&form.Step6_opt2, &form.Step6_DBH}},
        {&form.Age1, {&form.Step7_T1Age, &form.Step7_Age1}},
        {&form.DBH1, {&form.Step7_T1DBH, &form.Step7_DBH1}},
        {&form.BA1, {&form.BA1_lbl, &form.Step7_BA1}},
        {&form.Spacing, {&form.Spac1_lbl, &form.Step7_Spac}},
        {&form.Age2, {&form.Age2_lbl, &form.Step7_Age2}},
        {&form.BA2, {&form.BA2_lbl, &form.Step7_BA2}},
    };
}

void WireFocus(RunDefinition& run) {
    for (const auto& group : FocusGroups(run.form)) {
        const auto paint = [coloured = group.coloured](Colour colour) {
            for (Control* control : coloured) control->SetBackColor(colour);
        };
        group.control->onGotFocus = [&run, paint] { paint(run.FocusColour); };
        group.control->onLostFocus = [&run, paint] { paint(run.RestColour); };
        if (group.control->Kind() == ControlKind::kTextBox)
            static_cast<TextBox*>(group.control)->SetSelectsAllOnFocus(true);
    }
}

void WireCommands(RunDefinition& run, RunCommand& command) {
    auto& form = run.form;
    form.Run.onClick = [&command] { ClickRun(command); };
    form.Clear.onClick = [&run] { ResetInput(run); };
    form.Adv_Mode.onClick = [&run] { ToggleAdvancedMode(run); };
    form.NSpruceHelp.onClick = [&run] {
        Launch_Webpage(run.application, AddressOf(run.application, kNorwaySpruceReport));
    };
    form.Help4a.onClick = [&run, &form] {
        const bool hardwood = form.Step1_Type.Caption() == "Hardwood";
        Launch_Webpage(run.application,
                       AddressOf(run.application, hardwood ? kHardwoodManual : kSoftwoodManual));
    };
}

void WireHelp(RunDefinition& run, AtFirstUse<Definitions>& definitions) {
    auto& form = run.form;
    form.Help.onClick = [&run] { ShowHelpFile(run.application); };
    form.Definitions_Mnu.onClick = [&definitions] {
        definitions.Get().ShowSiteTerms();
        definitions.Get().Open();
    };
}

}  // namespace

void WireMainForm(RunDefinition& run, RunCommand& command, AtFirstUse<Definitions>& definitions,
                  Resize& resize) {
    WireStepButtons(run);
    WireStep1(run);
    WireStep2(run);
    WireStep3(run);
    WireStep4(run);
    WireStep5(run);
    WireStep6(run);
    WireStep7(run);
    WireFocus(run);
    WireCommands(run, command);
    WireHelp(run, definitions);
    run.form.onResize = [&run, &resize] { resize.ResizeForm(run.form); };
}

}  // namespace arbolith
