#include "run_definition/step_checks.h"

#include "platform/numbers.h"

namespace arbolith {

namespace {

bool IsMetric(const RunDefinition& run) {
    return run.globals.UnitSystem == "Metric";
}

// A site index outside its limits: the limits tested, and the message in each unit system. Those of
// birch and maple name lower limits than the ones tested.
struct SiteIndexRule {
    Range limits;
    const char* metricMessage;
    const char* imperialMessage;
};

SiteIndexRule SiteIndexRuleOf(const RunDefinition& run) {
    const auto& species = run.form.Step3_Spec.Caption();
    if (run.record.WDTYPE == "Softwood")
        return {run.Limits().softwoodSiteIndex,
                "Please enter a site index between 6 meters and 30 meters",
                "Please enter a site index between 19.7 feet and 98.4 feet"};
    if (species == "White Birch" || species == "Red Maple")
        return {run.Limits().birchMapleSiteIndex,
                "Please enter a site index between 8 meters and 18 meters",
                "Please enter a site index between 26.2 feet and 59.0 feet"};
    return {run.Limits().otherHardwoodSiteIndex,
            "Please enter a site index between 8 meters and 24 meters",
            "Please enter a site index between 26.2 feet and 78.7 feet"};
}

void KeepHardwoodNatural(RunDefinition& run) {
    auto& form = run.form;
    if (form.chkPlant.Value() || !form.chkNat.Value()) {
        form.chkNat.SetValue(true);
        form.chkPlant.SetValue(false);
    }
    form.spac1.SetText("");
    form.spac2.SetText("");
}

}  // namespace

bool BeginCheck(RunDefinition& run) {
    run.StepErrorFlag = false;
    run.StepErrorText.clear();
    return !run.form.Adv_Mode.Checked();
}

void Fault(RunDefinition& run, std::int16_t step, const std::string& message) {
    run.StepErrorFlag = true;
    run.StepErrorText = message;
    run.StepErrorStep = step;
}

void CheckStep1(RunDefinition& run) {
    if (!BeginCheck(run)) return;
    const auto& form = run.form;
    if (form.Choose_Swd.Value() == form.Choose_Hwd.Value())
        return Fault(run, 1, "Please select exactly one wood type to model");
    if (form.choose_Metric.Value() == form.choose_Imperial.Value())
        return Fault(run, 1, "Please select exactly one measurement system");
}

void CheckStep2(RunDefinition& run) {
    if (!BeginCheck(run)) return;
    const auto& form = run.form;
    if (run.record.WDTYPE == "Hardwood") return KeepHardwoodNatural(run);
    if (form.chkNat.Value() == form.chkPlant.Value())
        return Fault(run, 2, "Please select select either Plantation or Natural Regeneration");
    if (!form.chkPlant.Value()) return;
    if (form.spac1.Text().empty() || form.spac2.Text().empty())
        return Fault(run, 2, "Please enter a spacing value for both dimensions");
    const double x = Val(form.spac1.Text());
    const double y = Val(form.spac2.Text());
    const auto limits = run.Limits().plantationSpacing;
    if (!limits.Holds(x) || !limits.Holds(y))
        return Fault(run, 2,
                     IsMetric(run) ? "Please ensure that both plantation spacing dimensions are "
                                     "within 1.2 to 3.0 meters"
                                   : "Please ensure that both plantation spacing dimensions are "
                                     "within 4 to 10 feet");
    if (x / y > kLargestSpacingRatio)
        return Fault(run, 2,
                     "The plantation X spacing is more than twice the size of the Y spacing: "
                     "Please decrease X spacing or increase Y spacing");
    if (y / x > kLargestSpacingRatio)
        return Fault(run, 2,
                     "The plantation Y spacing is more than twice the size of the X spacing: "
                     "Please decrease Y spacing or increase X spacing");
}

void CheckStep3(RunDefinition& run) {
    if (!BeginCheck(run)) return;
    if (run.form.lstSpecies.ListIndex() == -1)
        return Fault(run, 3, "Please select a tree species to model");
}

void CheckStep4(RunDefinition& run) {
    if (!BeginCheck(run)) return;
    const auto& form = run.form;
    if (form.choose_Land.Value() == form.choose_Site.Value())
        return Fault(run, 4, "Please select a Land Capability Index or enter a Site Index");
    if (form.choose_Land.Value()) {
        if (form.Lcap.ListIndex() == -1) Fault(run, 4, "Please select a Land Capability Index");
        return;
    }
    if (form.Site.Text().empty()) return Fault(run, 4, "Please enter a Site Index");
    const auto rule = SiteIndexRuleOf(run);
    if (!rule.limits.Holds(Val(form.Site.Text())))
        return Fault(run, 4, IsMetric(run) ? rule.metricMessage : rule.imperialMessage);
}

void CheckStep5(RunDefinition& run) {
    if (!BeginCheck(run)) return;
    const auto& text = run.form.Stocking_Index.Text();
    if (text.empty()) return Fault(run, 5, "Please enter a Stocking Index between 1% and 100%");
    if (!kStockingPercent.Holds(Val(text)))
        return Fault(run, 5,
                     "The Stocking index is outside the valid range: Please enter a Stocking Index "
                     "between 1% and 100%");
}

void CheckStep6(RunDefinition& run) {
    if (!BeginCheck(run)) return;
    const auto& form = run.form;
    if (form.Step6_opt1.Value() == form.Step6_opt2.Value())
        return Fault(run, 6, "Please enter simulation length in terms of an age or a DBH");
    if (form.Step6_opt1.Value()) {
        if (form.txtRotAge.Text().empty()) return Fault(run, 6, "Please enter a Rotation Age");
        if (!kRotationAge.Holds(Val(form.txtRotAge.Text())))
            return Fault(run, 6, "Please ensure that the Rotation Age is within 20 to 120 years");
        return;
    }
    if (form.txtRotDBH.Text().empty()) return Fault(run, 6, "Please enter a Rotation DBH");
    if (!run.Limits().rotationDbh.Holds(Val(form.txtRotDBH.Text())))
        return Fault(
            run, 6,
            IsMetric(run)
                ? "Please ensure that the Rotation DBH entered is within 10 to 50 centimeters"
                : "Please ensure that the Rotation DBH entered is within 4 to 20 inches");
}

}  // namespace arbolith
