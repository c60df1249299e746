// The text of a batch file: the heading that explains it, and how a line of one is understood.
#pragma once

#include "platform/numbered_files.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace arbolith {

/// The line before the sequences, exactly so.
inline constexpr std::string_view kSequencesLine = "sequences:";

/// What a batch file says of its report.
inline constexpr std::string_view kDefaultOutput = "default";
inline constexpr std::string_view kDefaultHtmlOutput = "default html";
inline constexpr std::string_view kDefaultTextOutput = "default txt";

/// What the names of reports end in.
inline constexpr const char* kHtmlExtension = "html";
inline constexpr const char* kTextExtension = "txt";

/// All lines before the sequences, with the value of the output line.
std::vector<std::string> HeadingOfBatch(std::string_view output);

/// The items of a batch file, which is opened under a number meanwhile. Throws what opening and
/// reading throw.
std::vector<std::string> ReadItems(NumberedFiles& files, int number, const std::string& path);

/// The value of the output line of a file's items; nothing where the line says something else.
std::optional<std::string> OutputOf(const std::vector<std::string>& items);
/// Whether the file asks to be run at once.
bool RunsByItself(const std::vector<std::string>& items);
/// The first item of the sequences: all are where none is the line before them.
std::size_t FirstSequence(const std::vector<std::string>& items);

/// A path up to its last point; empty without a point.
std::string StemOf(std::string_view path);
/// What stands behind the last point of a path; all of it without a point.
std::string ExtensionOf(std::string_view path);

}  // namespace arbolith
