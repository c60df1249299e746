// The commands on the panel's two files: the batch and its report.
#pragma once

#include "batch/batch.h"

namespace arbolith {

/// Asks where a new batch goes. A cancelled dialog gives the name that was chosen last in any
/// dialog of the form; empty where there is none.
std::string AskForNewBatch(Batch& batch);

/// Asks for a batch and reads it.
void PickBatch(Batch& batch);
/// Opens the batch in the editor, waits for its end and reads the batch again. Throws 53 where
/// there is no editor.
void EditBatch(Batch& batch);
/// Opens the report in the editor and waits for its end.
void ViewReport(Batch& batch);
/// Asks for the report's name, which also chooses its format.
void PickReport(Batch& batch);
/// Behind a change of the format: the report's name ends as the format does.
void FollowReportFormat(Batch& batch);
/// Asks for a batch and appends the run to it.
void AppendToPickedBatch(Batch& batch);

}  // namespace arbolith
