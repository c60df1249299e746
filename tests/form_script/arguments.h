// The command line of form_script.
#pragma once

#include "platform/host.h"

#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

namespace arbolith {

/// A command line that can't be used, and why.
class BadArguments : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

struct Arguments {
    std::string script;
    std::string folder;  ///< The application folder, absolute, without a separator at its end.
    std::string commandLine;
    std::optional<Size> screen;  ///< In twips.
    std::optional<Date> date;    ///< What is today in the run; nothing for the real day.
    std::string picture;    ///< Where to save pictures when the script is over; empty for none.
    std::string pictureOf;  ///< The one control or form to picture; empty for all windows.
    bool window = false;
    bool keepGoing = false;
};

extern const char* const kUsage;

/// Reads the words behind the program's name; relative paths count from the current directory.
/// Throws BadArguments.
Arguments ReadArguments(const std::vector<std::string>& words);

}  // namespace arbolith
