#include "run_definition/apply_steps.h"

#include "platform/numbers.h"
#include "run_definition/commit.h"
#include "run_definition/guidance.h"
#include "run_definition/land_capability.h"
#include "run_definition/step_checks.h"

#include <initializer_list>

namespace arbolith {

namespace {

void Enable(std::initializer_list<Control*> controls, bool enabled) {
    for (Control* control : controls) control->SetEnabled(enabled);
}

void Empty(std::initializer_list<TextBox*> boxes) {
    for (TextBox* box : boxes) box->SetText("");
}

void EmptyCaptions(std::initializer_list<Label*> labels) {
    for (Label* label : labels) label->SetCaption("");
}

// What is about to change units loses its value; ages keep theirs, being in years. True when it
// did.
bool ApplyUnitChange(RunDefinition& run) {
    auto& form = run.form;
    run.InputChanged = true;
    form.Step1_Unit.SetCaption(form.choose_Metric.Value() ? "Metric" : "Imperial");
    const auto& units = run.globals.UnitSystem;
    const bool changes = (units == "Metric" && form.choose_Imperial.Value()) ||
                         (units == "Imperial" && form.choose_Metric.Value());
    if (!changes) return false;
    Empty({&form.spac1, &form.spac2});
    form.Step4_Freq.SetCaption("");
    ApplyStep2(run);
    form.Site.SetText("");
    ApplyStep4(run);
    form.txtRotDBH.SetText("");
    ApplyStep6(run);
    {
        // A probe between these would find treatment 1 without its amount and take the age of
        // treatment 2 away; the next one has the new units.
        const HeldBackEvents quiet(run.application);
        Empty({&form.DBH1, &form.BA1, &form.Spacing, &form.BA2});
    }
    ApplyStep7(run);
    return true;
}

void ApplyWoodTypeChange(RunDefinition& run) {
    auto& form = run.form;
    const auto& wood = run.record.WDTYPE;
    const bool changes = (wood == "Hardwood" && form.Choose_Swd.Value()) ||
                         (wood == "Softwood" && form.Choose_Hwd.Value());
    if (!changes) return;
    const std::string newWood = form.Choose_Swd.Value() ? "Softwood" : "Hardwood";
    LoadSpeciesTables(run.species, newWood, run.ShortHardwoodList);
    FillSpecies(run);
    FillLandCapabilities(run, LandCapabilityClasses(newWood));
    Empty({&form.Age1, &form.Age2, &form.DBH1, &form.BA1, &form.BA2, &form.Spacing});
}

void ApplySoftwood(RunDefinition& run) {
    auto& form = run.form;
    form.Step1_Type.SetCaption("Softwood");
    form.Qvly.SetCaption("Arbolith Models: Softwood");
    LoadSpeciesTables(run.species, "Softwood", run.ShortHardwoodList);
    form.chkPlant.SetEnabled(true);
    ApplyStep2(run);
    if (run.SoftwoodT2Allowed) {
        form.Step7_lbl2.SetCaption("Treatment:      1        2");
    } else {
        form.Step7_lbl2.SetCaption("Treatment:      1");
        form.Treatment2.SetVisible(false);
    }
    Empty({&form.Age2, &form.BA2});
    form.Step7_T1DBH.SetEnabled(true);
    form.Step7_T1DBH.SetVisible(true);
    form.DBH1.SetVisible(true);
    form.DBH1.SetEnabled(true);
    EmptyCaptions({&form.Step7_DBH1, &form.Step7_Age2, &form.Step7_BA2});
    ApplyStep7(run);
}

// Hardwood stands are always natural, end at an age and are thinned at an age.
void ApplyHardwood(RunDefinition& run) {
    auto& form = run.form;
    form.Step1_Type.SetCaption("Hardwood");
    form.Qvly.SetCaption("Arbolith Models: Hardwood");
    LoadSpeciesTables(run.species, "Hardwood", run.ShortHardwoodList);
    form.chkNat.SetValue(true);
    form.chkPlant.SetValue(false);
    form.chkPlant.SetEnabled(false);
    form.Step4_Freq.SetCaption("");
    ApplyStep2(run);
    form.Step6_opt1.SetValue(true);
    form.Step6_opt2.SetValue(false);
    form.Step6_DBH.SetCaption("");
    ApplyStep6(run);
    form.Step7_lbl2.SetCaption("Treatment:      1        2");
    form.Treatment2.SetVisible(true);
    form.Step7_T1Age.SetValue(true);
    form.Step7_T1DBH.SetValue(false);
    form.Step7_T1DBH.SetEnabled(false);
    form.Step7_T1DBH.SetVisible(false);
    form.DBH1.SetVisible(false);
    form.DBH1.SetEnabled(false);
    ApplyStep7(run);
}

// ApplyStep1 from the wood type on.
void ApplyWoodType(RunDefinition& run) {
    ApplyWoodTypeChange(run);
    if (run.form.Choose_Swd.Value()) {
        ApplySoftwood(run);
    } else if (run.form.Choose_Hwd.Value()) {
        ApplyHardwood(run);
    }
    CommitStep1(run);
    ApplyStep3(run);
    ApplyStep4(run);
}

void ShowNaturalStand(MainForm& form) {
    Enable({&form.Step2_Nat, &form.Step2_lbl1}, true);
    form.Step2_Nat.SetCaption("Yes");
    form.Step2_Plant.SetCaption("No");
    EmptyCaptions({&form.Step2_Spac1, &form.Step2_Spac2});
    Empty({&form.spac1, &form.spac2});
    form.Step4_Freq.SetCaption("");
    Enable({&form.Step2_Plant, &form.Step2_Spac1, &form.Step2_Spac2, &form.Step4_Freq, &form.s2l1,
            &form.s2l2, &form.Step2_lbl2, &form.Step4_lbl3, &form.lbl2_2, &form.lbl2_3, &form.spac1,
            &form.spac2},
           false);
}

void ShowPlantation(MainForm& form) {
    Enable({&form.Step2_Plant, &form.Step2_Spac1, &form.Step2_Spac2, &form.Step4_Freq, &form.s2l1,
            &form.s2l2, &form.Step2_lbl2, &form.Step4_lbl3, &form.lbl2_2, &form.lbl2_3, &form.spac1,
            &form.spac2},
           true);
    form.Step2_Nat.SetCaption("No");
    form.Step2_Plant.SetCaption("Yes");
    Enable({&form.Step2_Nat, &form.Step2_lbl1}, false);
    form.Step2_Spac1.SetCaption(form.spac1.Text());
    form.Step2_Spac2.SetCaption(form.spac2.Text());
}

void ShowRotationByAge(MainForm& form) {
    Enable({&form.txtRotAge, &form.Step6_lbl2, &form.Step6_Age}, true);
    form.Step6_Age.SetCaption(form.txtRotAge.Text());
    form.Step6_DBH.SetCaption("");
    form.txtRotDBH.SetText("");
    Enable({&form.Step6_DBH, &form.Step6_lbl3, &form.txtRotDBH}, false);
}

void ShowRotationByDbh(MainForm& form) {
    Enable({&form.Step6_DBH, &form.txtRotDBH, &form.Step6_lbl3}, true);
    form.Step6_DBH.SetCaption(form.txtRotDBH.Text());
    form.Step6_Age.SetCaption("");
    form.txtRotAge.SetText("");
    Enable({&form.txtRotAge, &form.Step6_Age, &form.Step6_lbl2}, false);
}

void ShowFirstTreatmentByAge(MainForm& form) {
    form.Age1.SetEnabled(true);
    form.Step7_Age1.SetCaption(form.Age1.Text());
    form.Step7_DBH1.SetCaption("");
    form.DBH1.SetText("");
    form.DBH1.SetEnabled(false);
    form.Step7_lbl3.SetEnabled(true);
    form.Step7_lbl4.SetEnabled(false);
}

void ShowFirstTreatmentByDbh(MainForm& form) {
    form.DBH1.SetEnabled(true);
    form.Step7_Age1.SetCaption("");
    form.Step7_DBH1.SetCaption(form.DBH1.Text());
    form.Age1.SetText("");
    form.Age1.SetEnabled(false);
    form.Step7_lbl3.SetEnabled(false);
    form.Step7_lbl4.SetEnabled(true);
}

void StoreFirstTreatment(RunDefinition& run) {
    const auto& form = run.form;
    run.record.T1Age = Val(form.Age1.Text());
    run.record.T1DBH = Val(form.DBH1.Text());
    run.record.T1IBA = Val(form.BA1.Text());
    run.record.ISD = Val(form.Spacing.Text());
}

void StoreSecondTreatment(RunDefinition& run) {
    run.record.T2Age = Val(run.form.Age2.Text());
    run.record.T2IBA = Val(run.form.BA2.Text());
}

void ApplyHardwoodTreatments(RunDefinition& run) {
    auto& form = run.form;
    form.Step7_T1Age.SetValue(true);
    form.Step7_T1DBH.SetValue(false);
    ShowFirstTreatmentByAge(form);
    form.Step7_BA1.SetCaption(form.BA1.Text());
    form.Step7_Spac.SetCaption(form.Spacing.Text());
    form.Step7_Age2.SetCaption(form.Age2.Text());
    form.Step7_BA2.SetCaption(form.BA2.Text());
    StoreFirstTreatment(run);
    run.record.T1DBH = 0;
    StoreSecondTreatment(run);
}

void ApplySoftwoodTreatments(RunDefinition& run) {
    auto& form = run.form;
    if (form.Step7_T1Age.Value()) {
        ShowFirstTreatmentByAge(form);
    } else if (form.Step7_T1DBH.Value()) {
        ShowFirstTreatmentByDbh(form);
    } else {
        run.application.ShowBox("An unknown error has occurred.  The program should be restarted.",
                                "", BoxIcon::kStop);
        return;
    }
    form.Step7_Age1.SetCaption(form.Age1.Text());
    form.Step7_DBH1.SetCaption(form.DBH1.Text());
    form.Step7_BA1.SetCaption(form.BA1.Text());
    form.Step7_Spac.SetCaption(form.Spacing.Text());
    if (run.SoftwoodT2Allowed || form.Adv_Mode.Checked()) {
        StoreSecondTreatment(run);
        form.Step7_Age2.SetCaption(form.Age2.Text());
        form.Step7_BA2.SetCaption(form.BA2.Text());
    } else {
        run.record.T2Age = run.record.T2IBA = 0;
        EmptyCaptions({&form.Step7_Age2, &form.Step7_BA2});
    }
    StoreFirstTreatment(run);
}

}  // namespace

void FillLandCapabilities(RunDefinition& run, int classes) {
    run.form.Lcap.Clear();
    for (int lc = 1; lc <= classes; ++lc) run.form.Lcap.AddItem(std::to_string(lc));
}

void FillSpecies(RunDefinition& run) {
    run.form.lstSpecies.Clear();
    for (const auto& name : run.species.SpeciesNames) run.form.lstSpecies.AddItem(name);
}

void ApplyStep1(RunDefinition& run) {
    if (!ApplyUnitChange(run)) ApplyWoodType(run);
}

void ApplyWoodOption(RunDefinition& run) {
    ApplyUnitChange(run);
    ApplyWoodType(run);
}

void ApplyStep2(RunDefinition& run) {
    auto& form = run.form;
    run.InputChanged = true;
    if (form.chkNat.Value()) {
        ShowNaturalStand(form);
    } else {
        ShowPlantation(form);
    }
    CheckStep2(run);
    if (run.StepErrorFlag) return;
    form.Step3_Btn.SetEnabled(true);
    const double x = Val(form.spac1.Text());
    const double y = Val(form.spac2.Text());
    const bool hasFrequency =
        run.record.WDTYPE == "Softwood" && form.chkPlant.Value() && x != 0 && y != 0;
    form.Step4_Freq.SetCaption(
        hasFrequency ? DefaultText(TreeFrequency(run.globals.UnitSystem == "Metric", x, y)) : "");
}

void ApplyStep3(RunDefinition& run) {
    auto& form = run.form;
    run.InputChanged = true;
    form.Step3_Spec.SetCaption(form.lstSpecies.Text());
    if (form.Choose_Hwd.Value() && !form.Adv_Mode.Checked())
        FillLandCapabilities(run, LandCapabilityClassesOf(form.Step3_Spec.Caption()));
}

void ApplyStep4(RunDefinition& run) {
    auto& form = run.form;
    run.InputChanged = true;
    if (form.choose_Land.Value()) {
        form.Site.SetText("");
        Enable({&form.Lcap, &form.Step4_Land, &form.Step4_lbl2}, true);
        form.Step4_Land.SetCaption(form.Lcap.Text());
        form.Step4_Site.SetCaption("");
        Enable({&form.Step4_Site, &form.Step4_lbl1, &form.Site}, false);
    } else {
        form.Lcap.SetListIndex(-1);
        Enable({&form.Step4_Site, &form.Site, &form.Step4_lbl1}, true);
        form.Step4_Land.SetCaption("");
        form.Step4_Site.SetCaption(form.Site.Text());
        Enable({&form.Lcap, &form.Step4_Land, &form.Step4_lbl2}, false);
    }
    GuideStep4(run);
}

void ApplyStep5(RunDefinition& run) {
    run.InputChanged = true;
    run.form.Step5_Stock.SetCaption(run.form.Stocking_Index.Text());
}

void ApplyStep6(RunDefinition& run) {
    auto& form = run.form;
    run.InputChanged = true;
    const bool softwood = form.Choose_Swd.Value();
    form.Step6_opt2.SetVisible(softwood);
    form.txtRotDBH.SetVisible(softwood);
    if (!softwood || form.Step6_opt1.Value()) {
        ShowRotationByAge(form);
    } else {
        ShowRotationByDbh(form);
    }
    GuideStep6(run);
}

void ApplyStep7(RunDefinition& run) {
    run.InputChanged = true;
    if (run.record.WDTYPE == "Softwood") {
        ApplySoftwoodTreatments(run);
    } else {
        ApplyHardwoodTreatments(run);
    }
}

}  // namespace arbolith
