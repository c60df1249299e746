// The lines of a batch file that the forms pass over without a word.
#pragma once

#include "batch/batch.h"

#include <string>
#include <vector>

namespace arbolith::console {

/// Behind a read of the file, whether it was done or failed: how the lines that are to be sequences
/// compare with the batch on the panel.
struct LineJudgement {
    bool isRead = false;               ///< The read came to its end.
    std::vector<std::string> leftOut;  ///< Lines that gave no sequence.
    bool breaksTheBatch = false;       ///< One of them stands before a sequence.
    std::string reason;                ///< Why the read failed, in words.
};

/// Reads the file once more for it. Throws what reading throws.
LineJudgement JudgeLines(Batch& batch, const std::string& path);

}  // namespace arbolith::console
