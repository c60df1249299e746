// The floor under the reading of a batch: its lines, split at tabs, with nothing around them.
#pragma once

#include <string>

namespace arbolith::bench {

/// Reads a text file and splits each line at its tabs. Returns how many fields there are.
std::size_t ReadAndSplitBare(const std::string& path);

}  // namespace arbolith::bench
