// How the console program ends: the status that it leaves behind, and the failure that led there.
#pragma once

#include <string>

namespace arbolith::console {

/// The exit statuses. A run that a signal ended leaves 128 and the signal's number.
enum class ExitStatus : int {
    kOk = 0,
    kFailed = 1,       ///< Something that this table has no other place for.
    kUsage = 2,        ///< The command line can't be understood.
    kBadFile = 3,      ///< The run or batch file is missing, can't be read, or isn't one.
    kRefused = 4,      ///< The checks refuse the stand, or what its file asks for isn't possible.
    kModel = 5,        ///< A model program is missing, failed, or left nothing that can be used.
    kCannotWrite = 6,  ///< The report, or a file on the way to it, can't be written.
    kIncomplete = 7,   ///< The report is written, but stands are missing from it.
};

inline constexpr int kSignalStatus = 128;

/// Ends the program with a status and a message.
struct Failure {
    ExitStatus status = ExitStatus::kFailed;
    std::string message;
};

/// A signal has asked the program to end.
struct Interrupted {
    int signal = 0;
};

}  // namespace arbolith::console
