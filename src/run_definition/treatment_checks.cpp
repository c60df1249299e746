#include "run_definition/treatment_checks.h"

#include "platform/numbers.h"
#include "platform/runtime_error.h"
#include "run_definition/step_checks.h"

#include <cmath>

namespace arbolith {

namespace {

constexpr std::int16_t kStep = 7;
constexpr double kSquareMetresPerHectare = 10000;
constexpr const char* kNeverBoth =
    "This error should never occur, but if it has, ensure that exactly one of either a commercial "
    "thinning or a spacing is specified, not both.";
constexpr const char* kClearTheTime =
    "If you do not wish to specify a treatment, clear the time specified in Age or DBH.";

// Stage A of a softwood: the time of treatment 1 against the rotation.
bool CheckSoftwoodTime(RunDefinition& run) {
    const auto& form = run.form;
    if (Val(form.Age1.Text()) > run.record.RAGE || Val(form.DBH1.Text()) > run.record.RDBH) {
        Fault(run, kStep,
              "Age or DBH entered for treatment #1 must not exceed the length of the simulation "
              "specified in step 6.");
        return false;
    }
    return true;
}

bool CheckHardwoodTime(RunDefinition& run) {
    if (Val(run.form.Age1.Text()) > run.record.RAGE) {
        Fault(run, kStep,
              "Age entered for treatment #1 must not exceed the length of the simulation specified "
              "in step 6.");
        return false;
    }
    return true;
}

// Treatment 1 has a time: it needs an amount, and one that is possible.
bool CheckFirstAmountGiven(RunDefinition& run) {
    const auto& form = run.form;
    const bool anyPossible = form.BA1.Enabled() || form.Spacing.Enabled();
    if (form.BA1.Text().empty() && form.Spacing.Text().empty() && anyPossible) {
        Fault(run, kStep, "A B.A. Reduction or Spacing parameter is required for treatment #1.");
        return false;
    }
    if (!anyPossible) {
        Fault(run, kStep,
              "Treatment #1 parameters are not valid because neither treatment type is possible at "
              "the time specified.");
        return false;
    }
    return true;
}

bool CheckSecondTime(RunDefinition& run) {
    const auto& form = run.form;
    if (form.Age2.Text().empty()) return true;
    if (Val(form.Age1.Text()) > Val(form.Age2.Text())) {
        Fault(run, kStep,
              "Age entered for treatment #2 must not be sooner than that specified in treatment "
              "#1.");
        return false;
    }
    if (Val(form.Age2.Text()) > run.record.RAGE) {
        Fault(run, kStep,
              "Age entered for treatment #2 must not exceed the length of the simulation specified "
              "in step 6.");
        return false;
    }
    return true;
}

// Stage A. False when it found a fault.
bool CheckTimes(RunDefinition& run) {
    const auto& form = run.form;
    const bool ageGiven = Val(form.Age1.Text()) != 0;
    if (run.record.WDTYPE == "Softwood") {
        if (!ageGiven && Val(form.DBH1.Text()) == 0) return true;
        if (!CheckSoftwoodTime(run) || !CheckFirstAmountGiven(run)) return false;
        return !run.SoftwoodT2Allowed || CheckSecondTime(run);
    }
    if (run.record.WDTYPE == "Hardwood") {
        if (!ageGiven) return true;
        return CheckHardwoodTime(run) && CheckFirstAmountGiven(run) && CheckSecondTime(run);
    }
    return true;
}

bool CheckBasalAreaRange(RunDefinition& run) {
    if (kBasalAreaReduction.Holds(Val(run.form.BA1.Text()))) return true;
    Fault(run, kStep, "Basal Area Reduction must be in the range of 10 to 60 percent.");
    return false;
}

// The wood type is that of the option buttons here, the unit system the committed one.
bool CheckSpacingRange(RunDefinition& run) {
    const bool softwood = run.form.Choose_Swd.Value();
    const auto& limits = run.Limits();
    const auto range = softwood ? limits.softwoodThinningSpacing : limits.hardwoodThinningSpacing;
    if (range.Holds(Val(run.form.Spacing.Text()))) return true;
    const bool metric = run.globals.UnitSystem == "Metric";
    const std::string bounds = metric ? (softwood ? "1.2 to 3.0 meters." : "1.8 to 3.0 meters.")
                                      : (softwood ? "4 to 10 feet." : "6 to 10 feet.");
    Fault(run, kStep, "Spacing for precommercial thinning must be in the range of " + bounds);
    return false;
}

bool CheckNotBlackSpruce(RunDefinition& run) {
    if (run.form.Step3_Spec.Caption() != "Black Spruce") return true;
    Fault(run, kStep, "Black Spruce Commercial Thinnings not simulated.");
    return false;
}

// A thinning can't leave more stems than the stand has. The factor is the same in both unit
// systems.
bool CheckDensity(RunDefinition& run) {
    const double density = Val(run.form.tf_textbox.Text());
    const double spacing = Val(run.form.Spacing.Text());
    if (density >= kSquareMetresPerHectare / (spacing * spacing)) return true;
    if (density == 0) throw RuntimeError(ErrorNumber::kDivisionByZero);
    Fault(run, kStep,
          "Enter Spacing Greater Than " +
              DefaultText(RoundTo2(std::sqrt(kSquareMetresPerHectare / density))));
    return false;
}

bool CheckCommercialThinning(RunDefinition& run) {
    if (run.form.BA1.Text().empty()) {
        Fault(run, kStep,
              std::string("Please enter a % Basal Area Reduction for a commercial thinning "
                          "treatment.  ") +
                  kClearTheTime);
        return false;
    }
    return CheckBasalAreaRange(run) && CheckNotBlackSpruce(run);
}

bool CheckPrecommercialThinning(RunDefinition& run) {
    if (run.form.Spacing.Text().empty()) {
        Fault(run, kStep,
              std::string("Please enter a spacing for precommercial thinning treatment.  ") +
                  kClearTheTime);
        return false;
    }
    return CheckSpacingRange(run) && CheckDensity(run);
}

// Either thinning is possible: exactly one must be given, within its range and no more.
bool CheckEitherThinning(RunDefinition& run) {
    const bool spacingGiven = !run.form.Spacing.Text().empty();
    const bool basalAreaGiven = !run.form.BA1.Text().empty();
    if (spacingGiven == basalAreaGiven) {
        Fault(run, kStep, kNeverBoth);
        return false;
    }
    return spacingGiven ? CheckSpacingRange(run) : CheckBasalAreaRange(run);
}

bool CheckNoThinning(RunDefinition& run) {
    if (run.form.Age1.Text().empty() && run.form.DBH1.Text().empty()) return true;
    Fault(run, kStep,
          "No treatment can be made at time specified for optional treatment #1.  Either clear the "
          "entry or specify a time that allows for one of the possible treatment types.");
    return false;
}

// Stage B. False when it found a fault.
bool CheckFirstTreatment(RunDefinition& run) {
    const bool basalArea = run.form.BA1.Enabled();
    const bool spacing = run.form.Spacing.Enabled();
    if (basalArea && spacing) return CheckEitherThinning(run);
    if (basalArea) return CheckCommercialThinning(run);
    if (spacing) return CheckPrecommercialThinning(run);
    return CheckNoThinning(run);
}

// Stage C.
void CheckSecondTreatment(RunDefinition& run) {
    const auto& form = run.form;
    if (!form.BA2.Enabled()) {
        if (!form.Age2.Text().empty())
            Fault(run, kStep,
                  "No treatment can be made at time specified for optional treatment #2.  Either "
                  "clear the entry or specify a time that allows for a commerical thinning (BA% "
                  "reduction).");
        return;
    }
    if (form.BA2.Text().empty()) {
        Fault(run, kStep,
              std::string("Please enter a % Basal Area Reduction for a commercial thinning in "
                          "treatment #2.  ") +
                  kClearTheTime);
    } else if (!kBasalAreaReduction.Holds(Val(form.BA2.Text()))) {
        Fault(run, kStep,
              "Basal Area Reduction for treatment #2 must be in the range of 10 to 60 percent.");
    } else {
        CheckNotBlackSpruce(run);
    }
}

}  // namespace

void CheckStep7(RunDefinition& run, TreatmentCheck level) {
    if (!BeginCheck(run)) return;
    if (level == TreatmentCheck::kFirstAmountOnly) {
        CheckFirstTreatment(run);
        return;
    }
    if (CheckTimes(run) && CheckFirstTreatment(run)) CheckSecondTreatment(run);
}

}  // namespace arbolith
