// The commands on the rows of the panel's list, and the ways between the panel and the step form.
#pragma once

#include "batch/batch.h"

namespace arbolith {

// These do nothing without a selected row unless they say otherwise. Run-time errors of a line that
// can't be described escape.

/// Removes the row by key: the batch doesn't count as changed.
void DeleteRow(Batch& batch);
/// Removes the row by the button, and takes labels and wood letters anew from the lines. The batch
/// counts as changed also without a row.
void DeleteSequence(Batch& batch);
/// Adds an unlabelled copy of the row at the end; throws 9 where the batch is full.
void CopySequence(Batch& batch);

/// Asks for the row's plot number in the field below the list.
void AskForPlotNumber(Batch& batch);
/// Takes the plot number over as it stands; throws 9 without a selected row.
void TakePlotNumber(Batch& batch);
void LeavePlotNumber(Batch& batch);

/// Shows the step form for a new sequence of the open batch.
void MakeSequence(Batch& batch);
/// Back from there without one.
void CancelMaking(Batch& batch);
/// Back from there with the new sequence, where the input is faultless.
void AppendMadeSequence(Batch& batch);

/// The batch view in place of the single-run view, with the focus in its list; and the other way
/// round.
void ShowBatchView(BatchPanel& panel);
void ShowSingleRunView(MainForm& form);

}  // namespace arbolith
