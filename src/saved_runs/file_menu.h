// The commands of the File menu, and the way back from the batch view to the single run.
#pragma once

#include "saved_runs/saved_runs.h"

namespace arbolith {

/// Before the menu shows. Save and Save As stay disabled once it was opened while a sequence was
/// being edited.
void OpenFileMenu(SavedRuns& saved);

/// A fresh input, or in the batch view a new batch.
void NewInput(SavedRuns& saved);
/// Asks for a run or a batch and reads it. A cancelled dialog that still holds an earlier name
/// counts as confirmed.
void OpenFile(SavedRuns& saved);
/// Saves what changed where it was read from; a run that has no file yet as SaveFileAs does.
void SaveFile(SavedRuns& saved);
/// Asks for a name and saves there. A name without the extension told saves nothing.
void SaveFileAs(SavedRuns& saved);

/// The single-run view; from the batch view with the selected sequence as its run.
void ShowSingleRun(SavedRuns& saved);

}  // namespace arbolith
