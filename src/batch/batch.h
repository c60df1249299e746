// The open batch: its panel, its sequences, and the procedures that the file menu, the panel and
// the runner share.
#pragma once

#include "batch/batch_panel.h"
#include "batch/sequence_line.h"
#include "run_definition/run_definition.h"

#include <string>
#include <string_view>

namespace arbolith {

/// The name of the report is the text of `batch_out`, its format that of `batchHTML`, and the
/// batch's own path the text of `batch_in`.
struct Batch {
    explicit Batch(RunDefinition& definition) : run(definition), panel(definition.form) {}

    RunDefinition& run;
    BatchPanel panel;

    SequenceTexts SeqLines;     ///< Row i of `Batch_Seq` shows slot i; empty for a free slot.
    SequenceTexts SeqPlots;     ///< The plot labels; " " for none.
    SequenceTexts SeqWoods;     ///< The wood letters; filled by the runner and the list's commands.
    bool BatchDirty = false;    ///< The batch changed since it was last read or written.
    std::string BatchPath;      ///< Last read or written; empty after NewBatch and ResetInput.
    std::string BatchSavePath;  ///< Always empty; saving a batch that was read passes it on.
};

// The batch file (batch_file.cpp). Each tells its own failures in a box and closes file number 1.

/// Asks for a name, creates the file, lets the person edit it and reads it. A cancelled dialog that
/// still holds an earlier name counts as confirmed.
void NewBatch(Batch& batch);
/// Reads the file into the panel and shows it; runs the batch where the file says so.
void ReadBatch(Batch& batch, const std::string& path);
/// Only reads it; whether the file says that it is to be run. `BatchPath` is the path then; a read
/// that fails leaves it as it was.
bool LoadBatch(Batch& batch, const std::string& path);
/// Replaces the file by the batch on the panel.
void WriteBatch(Batch& batch, const std::string& path);
/// Appends the committed run to the file, which is created where it is missing, and reads it.
void AppendRunToBatch(Batch& batch, const std::string& path);

// What can be used on the panel (panel_state.cpp).

/// Enables and disables by the two file names and the selected row.
void RefreshBatchPanel(Batch& batch);
/// The four commands on the selected row.
void EnableRowCommands(BatchPanel& panel, bool enabled);
/// Opens or closes the commands that must not run during a batch run.
void EnableBatchControls(Batch& batch, bool enabled);
/// Whether a text can be the path of a file: longer than 3 characters, and but for a drive prefix
/// without the characters that no name holds.
bool IsUsableFileName(std::string_view text);
/// Whether a text begins with a letter, a colon and a backslash.
bool HasDrivePrefix(std::string_view text);

// Sequences (describe_sequence.cpp, edit_sequence.cpp).

/// The row of a sequence line. Loads the species tables of its wood type. Throws 9 for a line with
/// too few fields or an unknown species, 5 for a site text that is too long.
std::string DescribeSequence(RunDefinition& run, const std::string& line);
/// Takes the selected sequence into the step form, where the Run button then applies it.
void EditSequence(Batch& batch);
/// Puts the committed run in the place of the selected sequence, and writes the batch.
void ApplySequence(Batch& batch);

// The run (batch_runner.cpp).

/// The Start button: runs the batch from empty bars, or tells what is missing for it.
void StartBatch(Batch& batch);
/// Runs all sequences, writes the report and opens it. A failure is told in a box; the report then
/// stays as far as it got. The commands that could disturb the run are closed meanwhile.
void RunBatch(Batch& batch);

/// The batch's part of a reset of the input.
void ForgetBatch(Batch& batch);

}  // namespace arbolith
