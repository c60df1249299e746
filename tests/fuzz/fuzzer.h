// What a fuzzer brings: one program for each reader of a file. The driver gives it bytes.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace arbolith {

/// Puts one input through the reader. It returns whatever the input is; what must never happen ends
/// the program: a sanitizer's report, an exception that nobody catches, or Require.
void FuzzOne(const std::string& input);

/// What the format is made of. The driver puts these into inputs beside single bytes.
const std::vector<std::string>& FuzzWords();

/// Ends the program with the text, and the input saved, unless what it says holds.
void Require(bool holds, std::string_view what);

}  // namespace arbolith
