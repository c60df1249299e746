// The text of a yield: what a model writes for one stand.
#pragma once

#include "models/grow.h"

#include <string>

namespace growth {

/// Appends a stand's block: a line with the years to breast height, then a line for each row with
/// the sequence and the row's 25 values, one blank between two. Every line ends in CR LF.
void AppendBlock(std::string& text, int sequence, Units units, const Yield& yield);

}  // namespace growth
