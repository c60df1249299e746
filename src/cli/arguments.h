// The command line of the console program.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace arbolith::console {

enum class Command { kRun, kBatch, kHelp, kVersion };

enum class Format { kText, kHtml, kCsv };

/// The ending of a report's name, for example "txt".
const char* ExtensionOf(Format format);

/// The format that the ending of a name stands for; text for an unknown one.
Format FormatByName(std::string_view name);

struct Request {
    Command command = Command::kHelp;
    std::string file;                   ///< The run file or batch file.
    std::optional<std::string> output;  ///< Where the report goes; "-" is the standard output.
    std::optional<Format> format;
    std::optional<std::string> folder;  ///< Where the model programs lie.
};

/// What the words behind the program's name ask for. Throws a Failure for what can't be understood.
Request ParseArguments(const std::vector<std::string>& words);

/// The text of `--help`.
std::string_view HelpText();

}  // namespace arbolith::console
