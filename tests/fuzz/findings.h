// Keeping the input that a failure came from.
#pragma once

#include <string>

namespace arbolith {

/// From here on the current input is written into the folder when the program crashes, a sanitizer
/// reports, Require fails, or an input takes longer than the seconds given, counted in its own
/// computing time.
void WatchForFailures(const std::string& folder, unsigned secondsPerInput);

/// The input that the next failure belongs to; it must outlive its run.
void SetCurrentInput(const std::string& input);

}  // namespace arbolith
