// The run in the form as something that is kept in a file.
#pragma once

#include "batch/batch.h"
#include "run_definition/run_definition.h"

#include <string>

namespace arbolith {

struct SavedRuns {
    RunDefinition& run;
    Batch& batch;
    /// The run's file; empty until it was opened or saved, and behind a reset.
    std::string RunFilePath;
};

/// Reads a run file into the form, as if it were typed: the values go through the controls step by
/// step, and what the form refuses is told. An end within the steps leaves file number 1 in use.
void ReadRunFile(SavedRuns& saved, const std::string& path);

/// Replaces the file by the committed run. A failure is told and leaves the old file.
void WriteRunFile(SavedRuns& saved, const std::string& path);

}  // namespace arbolith
