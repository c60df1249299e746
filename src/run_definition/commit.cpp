#include "run_definition/commit.h"

#include "platform/numbers.h"

namespace arbolith {

namespace {

// Side of a square of one hectare in metres, and of one acre in feet.
constexpr double kHectareSide = 100;
constexpr double kAcreSide = 208.7295;

}  // namespace

double TreeFrequency(bool metric, double spacingX, double spacingY) {
    if (spacingX == 0 || spacingY == 0) return 0;
    if (metric) return RoundTo2((kHectareSide / spacingY) * (kHectareSide / spacingX));
    return RoundTo2((kAcreSide / spacingX) * (kAcreSide / spacingX));
}

void CommitStep1(RunDefinition& run) {
    const auto& form = run.form;
    if (form.Choose_Swd.Value()) {
        run.record.WDTYPE = "Softwood";
    } else if (form.Choose_Hwd.Value()) {
        run.record.WDTYPE = "Hardwood";
    }
    if (form.choose_Metric.Value()) {
        run.globals.UnitSystem = "Metric";
    } else if (form.choose_Imperial.Value()) {
        run.globals.UnitSystem = "Imperial";
    }
}

void CommitStep2(RunDefinition& run) {
    CommitStep1(run);
    auto& record = run.record;
    record.NatFlag = run.form.chkNat.Value();
    record.PlantFlag = !record.NatFlag;
    if (record.NatFlag) {
        record.SPX = record.SPY = record.FREQ = 0;
        return;
    }
    record.SPX = Val(run.form.spac1.Text());
    record.SPY = Val(run.form.spac2.Text());
    if (record.WDTYPE == "Softwood")
        record.FREQ = TreeFrequency(run.globals.UnitSystem == "Metric", record.SPX, record.SPY);
}

void CommitStep3(RunDefinition& run) {
    CommitStep2(run);
    run.record.SPEC = run.form.lstSpecies.Text();
}

void CommitStep4(RunDefinition& run) {
    CommitStep3(run);
    auto& record = run.record;
    record.LcFlag = run.form.choose_Land.Value();
    record.SiFlag = !record.LcFlag;
    record.LC = record.LcFlag ? ToInt16(Val(run.form.Lcap.Text())) : std::int16_t{0};
    record.SIB = record.LcFlag ? 0 : Val(run.form.Site.Text());
}

void CommitStep5(RunDefinition& run) {
    CommitStep4(run);
    run.record.STK = ToInt16(Val(run.form.Stocking_Index.Text()));
}

void CommitStep6(RunDefinition& run) {
    CommitStep5(run);
    auto& record = run.record;
    record.RotAgeFlag = run.form.Step6_opt1.Value();
    record.RotDbhFlag = !record.RotAgeFlag;
    record.RAGE = record.RotAgeFlag ? ToInt16(Val(run.form.txtRotAge.Text())) : std::int16_t{0};
    record.RDBH = record.RotAgeFlag ? 0 : Val(run.form.txtRotDBH.Text());
}

void CommitStep7(RunDefinition& run) {
    CommitStep6(run);
    auto& record = run.record;
    record.T1Age = Val(run.form.Age1.Text());
    record.T1DBH = Val(run.form.DBH1.Text());
    record.T1IBA = Val(run.form.BA1.Text());
    record.ISD = Val(run.form.Spacing.Text());
    record.T2Age = Val(run.form.Age2.Text());
    record.T2IBA = Val(run.form.BA2.Text());
}

}  // namespace arbolith
