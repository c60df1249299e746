// Failures of the run time, told apart by number. Procedures that touch files catch them in one
// trap; one that escapes an event is shown in a box and the program lives on.
#pragma once

#include <exception>
#include <string>

namespace arbolith {

/// The numbers of the run time's failures.
enum class ErrorNumber : int {
    kInvalidCall = 5,
    kOverflow = 6,
    kOutOfMemory = 7,
    kSubscript = 9,
    kDivisionByZero = 11,
    kTypeMismatch = 13,
    kBadFileName = 52,
    kFileNotFound = 53,
    kFileAlreadyOpen = 55,
    kDeviceError = 57,
    kDiskFull = 61,
    kInputPastEnd = 62,
    kDeviceUnavailable = 68,
    kPermissionDenied = 70,
    kDiskNotReady = 71,
    kPathFileAccess = 75,
    kPathNotFound = 76,
    kPrinter = 482,
};

class RuntimeError : public std::exception {
public:
    explicit RuntimeError(ErrorNumber number);

    ErrorNumber Number() const { return number_; }
    /// The error's usual name, for example "Overflow".
    const char* what() const noexcept override;

private:
    ErrorNumber number_;
};

/// The usual name of a failure.
const char* ErrorName(ErrorNumber number);

/// Whether the number is one of the file failures that error traps tell the user of: file not
/// found, device unavailable, permission denied, disk not ready, path or file access, path not
/// found.
bool InFileErrorSet(ErrorNumber number);

}  // namespace arbolith
