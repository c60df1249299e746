#include "platform/runtime_error.h"

namespace arbolith {

RuntimeError::RuntimeError(ErrorNumber number) : number_(number) {}

const char* RuntimeError::what() const noexcept {
    return ErrorName(number_);
}

const char* ErrorName(ErrorNumber number) {
    switch (number) {
        case ErrorNumber::kInvalidCall:
            return "Invalid procedure call or argument";
        case ErrorNumber::kOverflow:
            return "Overflow";
        case ErrorNumber::kOutOfMemory:
            return "Out of memory";
        case ErrorNumber::kSubscript:
            return "Subscript out of range";
        case ErrorNumber::kDivisionByZero:
            return "Division by zero";
        case ErrorNumber::kTypeMismatch:
            return "Type mismatch";
        case ErrorNumber::kBadFileName:
            return "Bad file name or number";
        case ErrorNumber::kFileNotFound:
            return "File not found";
        case ErrorNumber::kFileAlreadyOpen:
            return "File already open";
        case ErrorNumber::kDeviceError:
            return "Device I/O error";
        case ErrorNumber::kDiskFull:
            return "Disk full";
        case ErrorNumber::kInputPastEnd:
            return "Input past end of file";
        case ErrorNumber::kDeviceUnavailable:
            return "Device unavailable";
        case ErrorNumber::kPermissionDenied:
            return "Permission denied";
        case ErrorNumber::kDiskNotReady:
            return "Disk not ready";
        case ErrorNumber::kPathFileAccess:
            return "Path/File access error";
        case ErrorNumber::kPathNotFound:
            return "Path not found";
        case ErrorNumber::kPrinter:
            return "Printer error";
    }
    return "Application-defined or object-defined error";
}

bool InFileErrorSet(ErrorNumber number) {
    switch (number) {
        case ErrorNumber::kFileNotFound:
        case ErrorNumber::kDeviceUnavailable:
        case ErrorNumber::kPermissionDenied:
        case ErrorNumber::kDiskNotReady:
        case ErrorNumber::kPathFileAccess:
        case ErrorNumber::kPathNotFound:
            return true;
        default:
            return false;
    }
}

}  // namespace arbolith
