// The exchange with the application: which files a model reads and writes, and what it says when it
// can't. The application knows a model by these files only.
#pragma once

#include "models/species.h"

#include <iosfwd>
#include <optional>
#include <string>
#include <string_view>

namespace growth {

/// The file in the working directory that names the input and the output file.
inline constexpr const char* kPathFile = "_PATHINF.TMP";

/// What every run says on its console.
inline constexpr std::string_view kConsoleLine =
    "Open reference growth model. Built from published equations; replaceable by the licensed "
    "programs.";

/// The exit codes of a model.
enum ExitCode : int { kDone = 0, kNoPaths = 2, kNotWritten = 3 };

/// Where a run reads and writes.
struct RunPaths {
    std::string input;
    std::string output;
};

/// The paths on the first two lines of a path file, without outer blanks, carriage returns and
/// double quotes; nothing where one of them is missing or empty.
std::optional<RunPaths> ReadPaths(std::istream& pathFile);

/// Grows every stand of an input and writes a block for each, in order. Blank lines are skipped. An
/// input that holds no stand gives one block of a stand that can't be grown. Stops early when the
/// output fails; the caller sees that in the stream's state.
void GrowStands(Wood wood, std::istream& input, std::ostream& output);

/// A whole run of a model in the working directory. Messages about failures go to `errors`.
///
/// An input file that can't be read counts as one without stands, so that the output is always
/// replaced. Nothing is written when the paths are missing.
ExitCode RunModel(Wood wood, std::ostream& console, std::ostream& errors);

}  // namespace growth
