// The run that the main form holds: the controls that a person types into, the record that was last
// committed from them, and the state of the steps. The procedures of this folder work on it.
#pragma once

#include "forms/application.h"
#include "run_definition/limits.h"
#include "run_definition/main_form.h"
#include "run_definition/run_record.h"
#include "run_definition/species.h"

#include <cstdint>
#include <functional>
#include <string>

namespace arbolith {

struct RunDefinition {
    explicit RunDefinition(Application& app) : application(app), form(app) {}

    Application& application;
    MainForm form;
    RunRecord record;
    Globals globals;
    SpeciesTables species;  ///< Always those of one wood type.

    std::int16_t StepsReached = 0;   ///< Furthest step asked for since the last reset, 0 to 7.
    bool StepErrorFlag = false;      ///< True after a failing check.
    std::string StepErrorText;       ///< That check's message.
    std::int16_t StepErrorStep = 0;  ///< That check's step; only written on failure.
    bool InputChanged = false;       ///< Set by every ApplyStep procedure.
    bool SoftwoodT2Allowed = true;   ///< Gives softwood runs a second treatment.
    bool ShortHardwoodList = false;  ///< Offers the six hardwoods that are no aspen and no ash.
    bool TreatmentKeysOpen = true;   ///< False while the treatment probe runs.
    bool ModelHeldBack = false;      ///< A probe that needs the model fails (HeldBackModel).

    Colour FocusColour = 0;  ///< Behind the labels of the field that has the focus.
    Colour RestColour = 0;   ///< Behind them when the focus leaves.

    /// Finds out which treatments are possible and shows their fields.
    std::function<void()> probeTreatments;
    /// Part of a reset: each other subsystem forgets its own.
    std::function<void()> onReset;

    /// The limits of the committed unit system.
    const UnitLimits& Limits() const {
        return globals.UnitSystem == "Metric" ? kMetricLimits : kImperialLimits;
    }
};

}  // namespace arbolith
