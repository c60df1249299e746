// Bringing a finished report to where it is wanted.
#pragma once

#include <string>
#include <string_view>

namespace arbolith::console {

/// The name that stands for the standard output.
inline constexpr const char* kStandardOutput = "-";

/// Writes the report to a file, which is replaced whole, to a named pipe, or to the standard
/// output. Throws a Failure where it can't be written; an existing file is then as it was. Throws
/// Interrupted for a signal that comes while a reader holds the output up.
void Deliver(std::string_view report, const std::string& name);

/// Writes all bytes to a descriptor; the system's number of the failure, 0 for none, EINTR once a
/// signal has asked the program to end.
int TryWrite(int descriptor, std::string_view bytes);

}  // namespace arbolith::console
