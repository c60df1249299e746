#include "model_bridge/treatment_probe.h"

#include "model_bridge/exchange.h"
#include "platform/numbers.h"
#include "run_definition/apply_steps.h"
#include "run_definition/commit.h"
#include "run_definition/step_checks.h"
#include "run_definition/treatment_checks.h"

namespace arbolith {

namespace {

constexpr std::int16_t kNotSet = -1;
constexpr int kYearsOfARow = 5;

// When the treatments are to happen.
struct TreatmentTimes {
    std::int16_t firstAge = kNotSet;
    double firstDbh = kNotSet;
    std::int16_t secondAge = kNotSet;
};

// Which fields the stand allows.
struct Possible {
    bool ba1 = false;
    bool spacing = false;
    bool age2 = false;
    bool ba2 = false;
};

// The variables of a row that the probe looks at.
struct RowView {
    explicit RowView(const OutputRow& row)
        : sage(ToInt16(row[0])), tdbh(row[1]), mdbh(row[2]), tf(row[7]), th(row[10]) {}

    std::int16_t sage;
    double tdbh;
    double mdbh;
    double tf;
    double th;
};

// A text field with its summary and its caption, which show and hide together.
struct FieldGroup {
    TextBox& box;
    Label& summary;
    Label& caption;

    void SetVisible(bool visible) const {
        box.SetVisible(visible);
        summary.SetVisible(visible);
        caption.SetVisible(visible);
    }
    void Offer() const {
        SetVisible(true);
        box.SetEnabled(true);
    }
    void Withdraw() const {
        SetVisible(false);
        box.SetEnabled(false);
    }
};

FieldGroup Ba1Of(MainForm& form) {
    return {form.BA1, form.Step7_BA1, form.BA1_lbl};
}
FieldGroup SpacingOf(MainForm& form) {
    return {form.Spacing, form.Step7_Spac, form.Spac1_lbl};
}
FieldGroup Age2Of(MainForm& form) {
    return {form.Age2, form.Step7_Age2, form.Age2_lbl};
}
FieldGroup Ba2Of(MainForm& form) {
    return {form.BA2, form.Step7_BA2, form.BA2_lbl};
}

void OfferEverything(RunDefinition& run) {
    auto& form = run.form;
    for (const auto& field : {Ba1Of(form), SpacingOf(form), Age2Of(form), Ba2Of(form)})
        field.Offer();
    form.Treatment2.SetVisible(true);
    run.TreatmentKeysOpen = true;
}

bool IsHardwood(const RunDefinition& run) {
    return run.record.WDTYPE == "Hardwood";
}

TreatmentTimes ReadTimes(const RunDefinition& run) {
    const auto& form = run.form;
    TreatmentTimes times;
    if (form.Step7_T1Age.Value()) {
        times.firstAge = ToInt16(Val(form.Age1.Text()));
    } else if (form.Step7_T1DBH.Value()) {
        times.firstDbh = Val(form.DBH1.Text());
    }
    if (form.Age2.Enabled() && !form.Age2.Text().empty() &&
        (IsHardwood(run) || run.SoftwoodT2Allowed))
        times.secondAge = ToInt16(Val(form.Age2.Text()));
    return times;
}

bool NeedsModel(const TreatmentTimes& times) {
    if (times.firstAge != kNotSet) return kProbeAge.Holds(times.firstAge);
    if (times.firstDbh != kNotSet) return times.firstDbh > 0 && times.firstDbh < kProbeDbhBelow;
    return false;
}

Range ThinningHeights(const RunDefinition& run) {
    const auto& limits = run.Limits();
    if (run.record.WDTYPE != "Softwood") return limits.hardwoodThinningHeight;
    return run.form.Step7_T1Age.Value() ? limits.softwoodThinningHeightByAge
                                        : limits.softwoodThinningHeightByDbh;
}

// The option that is on at this moment decides how the time is read.
bool MeetsFirstTreatment(const RunDefinition& run, const TreatmentTimes& times,
                         const RowView& row) {
    if (run.form.Step7_T1Age.Value())
        return row.sage >= times.firstAge && row.sage < times.firstAge + kYearsOfARow;
    return row.tdbh >= times.firstDbh;
}

void JudgeFirstTreatment(RunDefinition& run, const RowView& row, Possible& possible) {
    possible.ba1 = row.mdbh >= run.Limits().merchantableDbh;
    possible.spacing = ThinningHeights(run).Holds(row.th);
    if (possible.spacing) run.form.tf_textbox.SetText(DefaultText(row.tf));
}

// A softwood stand that becomes merchantable only later still counts; a hardwood stand doesn't.
bool AllowsSecondTreatment(const RunDefinition& run, const TreatmentTimes& times,
                           const Possible& possible, const RowView& row) {
    if (times.secondAge < times.firstAge + kYearsBetweenTreatments) return false;
    if (!possible.ba1 && !possible.spacing) return false;
    if (row.sage < times.secondAge || row.mdbh < run.Limits().merchantableDbh) return false;
    return IsHardwood(run) ? row.sage < times.secondAge + kYearsOfARow : run.SoftwoodT2Allowed;
}

// Runs the model and reads its rows until the answer stands.
Possible AskModel(RunDefinition& run, const TreatmentTimes& times) {
    if (run.ModelHeldBack) throw RuntimeError(ErrorNumber::kFileAlreadyOpen);
    ExchangeWithModel(run, StartMode::kHidden);
    auto& files = run.application.Files();
    files.OpenForInput(kExchangeFile, run.application.PathOf(kOutputFileName));
    files.ReadReal(kExchangeFile);  // years to breast height
    Possible possible;
    bool firstReached = false;
    OutputRow values;
    while (!possible.ba2 && !files.AtEndOfData(kExchangeFile)) {
        files.ReadReal(kExchangeFile);  // sequence
        ReadOutputRow(files, values);
        const RowView row(values);
        if (firstReached) {
            possible.ba2 = AllowsSecondTreatment(run, times, possible, row);
        } else if (MeetsFirstTreatment(run, times, row)) {
            firstReached = true;
            JudgeFirstTreatment(run, row, possible);
        }
    }
    files.Close(kExchangeFile);
    return possible;
}

void OfferOrEmpty(const FieldGroup& field, bool possible) {
    if (possible) {
        field.Offer();
    } else {
        field.box.SetText("");
        field.Withdraw();
    }
}

void OfferSecondAge(MainForm& form, bool possible) {
    if (possible) {
        Age2Of(form).Offer();
        return;
    }
    form.Age2.SetText("");
    form.BA2.SetText("");
    form.Step7_Age2.SetCaption("");
    form.Step7_BA2.SetCaption("");
    Age2Of(form).Withdraw();
    Ba2Of(form).Withdraw();
}

void OfferFields(RunDefinition& run, Possible possible) {
    auto& form = run.form;
    if (run.record.PlantFlag) possible.spacing = false;
    OfferOrEmpty(Ba1Of(form), possible.ba1);
    OfferOrEmpty(SpacingOf(form), possible.spacing);
    if (possible.ba1 || possible.spacing) {
        // A second treatment is offered only behind a first that is valid as it stands.
        run.StepErrorFlag = false;
        CheckStep7(run, TreatmentCheck::kFirstAmountOnly);
        possible.age2 = !run.StepErrorFlag;
    }
    OfferSecondAge(form, possible.age2);
    // A second treatment without a time makes no sense.
    if (possible.ba2 && possible.age2) {
        Ba2Of(form).Offer();
    } else {
        Ba2Of(form).Withdraw();
    }
}

void Probe(RunDefinition& run) {
    ApplyStep6(run);
    run.StepErrorFlag = false;
    CheckStep6(run);
    if (run.StepErrorFlag) return;
    CommitStep6(run);
    const auto times = ReadTimes(run);
    Possible possible;
    if (NeedsModel(times)) {
        possible = AskModel(run, times);
    } else {
        run.form.BA1.SetEnabled(false);
        run.form.Spacing.SetEnabled(false);
    }
    OfferFields(run, possible);
    run.TreatmentKeysOpen = true;
}

}  // namespace

void TreatmentProbe(RunDefinition& run) {
    if (run.form.Adv_Mode.Checked()) return OfferEverything(run);
    try {
        Probe(run);
    } catch (const RuntimeError& error) {
        TrapModelError(run.application, error.Number());
    }
}

}  // namespace arbolith
