// The check of step 7: whether the optional thinnings are legal at the times given.
#pragma once

#include "run_definition/run_definition.h"

namespace arbolith {

/// What a check of the treatments looks at.
enum class TreatmentCheck : std::int16_t {
    kEverything = 0,
    kFirstAmountOnly = 1,  ///< Decides whether a second treatment may be offered.
};

/// Reports like the checks of the other steps, as step 7. Which thinnings are possible is read from
/// the enabled state of the fields, as the last probe left it. A density of 0 in `tf_textbox`
/// throws a division by zero.
void CheckStep7(RunDefinition& run, TreatmentCheck level);

}  // namespace arbolith
