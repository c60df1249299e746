// A sequence in the step form: its fields are played back through the controls, one step after the
// other, and the Run button puts the run back into its line.
#include "batch/batch.h"
#include "batch/sequence_commands.h"
#include "model_bridge/run_line.h"
#include "model_bridge/treatment_probe.h"
#include "platform/numbers.h"
#include "run_definition/apply_steps.h"
#include "run_definition/commit.h"
#include "run_definition/reset.h"
#include "run_definition/step_engine.h"
#include "run_definition/treatment_checks.h"

#include <functional>

namespace arbolith {

namespace {

using Field = SequenceField;

constexpr int kEverythingEnabled = 8;
constexpr int kAllSteps = 7;
constexpr int kSpeciesStep = 3;
constexpr const char* kInputErrorTitle = "Batch Input Error";

void Choose(Option& chosen, Option& partner) {
    chosen.SetValue(true);
    partner.SetValue(false);
}

// Selects row after row until one fits; false where none does.
bool SelectUntil(ListBox& list, const std::function<bool(const std::string&)>& fits) {
    for (int row = 0; row < list.ListCount(); ++row) {
        list.SetListIndex(row);
        if (fits(list.Text())) return true;
    }
    return false;
}

// Plays one line back. The steps that read an option or a number give false for a line whose format
// can't be played back.
class Playback {
public:
    Playback(RunDefinition& definition, const SequenceFields& line)
        : run_(definition), form_(definition.form), fields_(line) {}

    // All steps but the final check.
    bool Play() {
        if (!PlayType()) return false;
        ApplyStep1(run_);
        CommitStep1(run_);
        if (!PlayRegeneration()) return false;
        ApplyStep2(run_);
        CommitStep2(run_);
        PlaySpecies();
        if (!PlaySite()) return false;
        ApplyStep4(run_);
        CommitStep4(run_);
        form_.Stocking_Index.SetText(Whole(Field::kStk));
        ApplyStep5(run_);
        CommitStep5(run_);
        if (!PlayRotation()) return false;
        ApplyStep6(run_);
        CommitStep6(run_);
        PlayFirstTreatment();
        PlaySecondTreatment();
        ApplyStep7(run_);
        CommitStep7(run_);
        return true;
    }

private:
    const std::string& Text(Field field) const { return fields_[field]; }
    std::string Whole(Field field) const { return DefaultText(fields_.Whole(field)); }

    bool PlayType() {
        const auto& wood = Text(Field::kWood);
        if (wood == "S") {
            Choose(form_.Choose_Swd, form_.Choose_Hwd);
        } else if (wood == "H") {
            Choose(form_.Choose_Hwd, form_.Choose_Swd);
        } else {
            return false;
        }
        const auto& metric = Text(Field::kMet);
        if (metric == "Y") {
            Choose(form_.choose_Metric, form_.choose_Imperial);
        } else if (metric == "N") {
            Choose(form_.choose_Imperial, form_.choose_Metric);
        } else {
            return false;
        }
        return true;
    }

    // A hardwood stand is always natural.
    bool PlayRegeneration() {
        const auto& natural = Text(Field::kNat);
        if (natural != "Y" && natural != "N") return false;
        if (natural == "Y" || Text(Field::kWood) == "H") {
            Choose(form_.chkNat, form_.chkPlant);
            return true;
        }
        form_.chkNat.SetValue(false);
        form_.chkPlant.SetValue(true);
        form_.spac1.SetText(Text(Field::kSpx));
        form_.spac2.SetText(Text(Field::kSpy));
        return true;
    }

    void PlaySpecies() {
        const auto species = run_.species.Species(Text(Field::kSpec));
        const bool isKnown = SelectUntil(
            form_.lstSpecies, [&](const std::string& entry) { return entry == species; });
        run_.StepErrorFlag = false;
        if (isKnown) {
            ApplyStep3(run_);
            CommitStep3(run_);
        } else {
            form_.lstSpecies.SetListIndex(-1);
            form_.Step3_Spec.SetCaption("");
        }
    }

    bool PlaySite() {
        const double landCapability = fields_.Whole(Field::kLc);
        if (fields_.Number(Field::kSib) == 0) {
            Choose(form_.choose_Land, form_.choose_Site);
            return SelectUntil(form_.Lcap, [&](const std::string& entry) {
                return WholePart(Val(entry)) == landCapability;
            });
        }
        if (landCapability != 0) return false;
        Choose(form_.choose_Site, form_.choose_Land);
        form_.Site.SetText(Text(Field::kSib));
        return true;
    }

    bool PlayRotation() {
        if (fields_.Whole(Field::kRage) == 0) {
            Choose(form_.Step6_opt2, form_.Step6_opt1);
            form_.txtRotDBH.SetText(Text(Field::kRdbh));
            return true;
        }
        if (fields_.Number(Field::kRdbh) != 0) return false;
        Choose(form_.Step6_opt1, form_.Step6_opt2);
        form_.txtRotAge.SetText(Whole(Field::kRage));
        return true;
    }

    // The probe finds out which amount is possible; without one the time goes, too.
    void PlayFirstTreatment() {
        if (fields_.Number(Field::kT1Age) != 0) {
            Choose(form_.Step7_T1Age, form_.Step7_T1DBH);
            form_.Age1.SetText(Whole(Field::kT1Age));
        } else if (fields_.Number(Field::kT1Dbh) != 0) {
            Choose(form_.Step7_T1DBH, form_.Step7_T1Age);
            form_.DBH1.SetText(Text(Field::kT1Dbh));
        }
        TreatmentProbe(run_);
        if (form_.BA1.Enabled()) {
            form_.BA1.SetText(Whole(Field::kT1Iba));
        } else if (form_.Spacing.Enabled()) {
            form_.Spacing.SetText(Text(Field::kIsd));
        } else {
            form_.Age1.SetText("");
            form_.DBH1.SetText("");
        }
    }

    void PlaySecondTreatment() {
        TreatmentProbe(run_);
        if (fields_.Number(Field::kT2Age) == 0 || !form_.Age2.Enabled()) return;
        form_.Age2.SetText(Whole(Field::kT2Age));
        TreatmentProbe(run_);
        if (form_.BA2.Enabled()) {
            form_.BA2.SetText(Whole(Field::kT2Iba));
        } else {
            form_.Age2.SetText("");
        }
    }

    RunDefinition& run_;
    MainForm& form_;
    const SequenceFields& fields_;
};

void ShowFaultOfSequence(RunDefinition& run, const std::string& text) {
    run.application.ShowBox(text, kInputErrorTitle, BoxIcon::kExclamation);
}

// The first step of a faultless sequence, or the step of its fault.
void ShowPlayedBack(RunDefinition& run) {
    auto& form = run.form;
    if (form.lstSpecies.ListIndex() == -1) {
        ShowFaultOfSequence(run,
                            "Invalid tree species input detected.  This may be the result of a "
                            "corrupt or outdated batch file.  Please re-select species.");
        run.StepErrorStep = kSpeciesStep;
    } else {
        CheckStep7(run, TreatmentCheck::kEverything);
        if (!run.StepErrorFlag) {
            ShowSingleRunView(form);
            ShowStep(run, 1);
            return;
        }
        ShowFaultOfSequence(run, run.StepErrorText);
    }
    form.Run.SetEnabled(false);
    ShowFailedStep(run);
}

}  // namespace

void EditSequence(Batch& batch) {
    auto& run = batch.run;
    const int row = batch.panel.Batch_Seq.ListIndex();
    batch.BatchDirty = true;
    if (row == -1) return;
    const auto line = EntryAt(batch.SeqLines, row);
    ResetInput(run);
    run.form.Run.SetCaption("Apply");
    const SequenceFields fields(line);
    EntryAt(batch.SeqPlots, row) = fields[Field::kPlot];
    if (!Playback(run, fields).Play()) {
        run.application.ShowBox(
            "Invalid input format.  Advanced users may wish to correct this by manually editing "
            "the batch file.");
        return;
    }
    run.StepsReached = kAllSteps;
    EnableSteps(run, kEverythingEnabled);
    ShowPlayedBack(run);
}

void ApplySequence(Batch& batch) {
    auto& run = batch.run;
    auto& panel = batch.panel;
    const int row = panel.Batch_Seq.ListIndex();
    auto& line = EntryAt(batch.SeqLines, row);
    line = SequenceFields(line)[Field::kPlot] + "\t" + run.record.WDTYPE.substr(0, 1) + "\t" +
           BuildRunLine(run.record, run.globals.UnitSystem, run.ShortHardwoodList);
    panel.Batch_Seq.ReplaceItem(row, DescribeSequence(run, line));
    run.form.Run.SetCaption("Run");
    ResetInput(run);
    WriteBatch(batch, panel.batch_in.Text());
    RefreshBatchPanel(batch);
    panel.Batch_Seq.SetListIndex(row);
    ShowBatchView(batch.panel);
    batch.BatchDirty = true;
}

}  // namespace arbolith
