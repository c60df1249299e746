// The treatment probe: runs the model quietly on the run as it stands and offers the treatment
// fields that make sense for the stand at the time of treatment.
#pragma once

#include "run_definition/run_definition.h"

namespace arbolith {

/// Shows or hides the fields of BA1, Spacing, Age2 and BA2, and leaves the stems per unit area at
/// treatment 1's time in `tf_textbox` where a spacing is possible. A rotation that isn't valid, or
/// an error, ends it with the fields as they are.
void TreatmentProbe(RunDefinition& run);

/// While one of these lives a probe that needs the model ends as if its file number were in use:
/// numbers 1 and 2 are closed, the fields stay as they are.
class HeldBackModel {
public:
    explicit HeldBackModel(RunDefinition& run) : run_(run) { run_.ModelHeldBack = true; }
    ~HeldBackModel() { run_.ModelHeldBack = false; }
    HeldBackModel(const HeldBackModel&) = delete;
    HeldBackModel& operator=(const HeldBackModel&) = delete;

private:
    RunDefinition& run_;
};

}  // namespace arbolith
