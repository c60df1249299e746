// Files that are read and replaced as a whole. New bytes are written beside the old file and take
// its place when they are complete, so that a failure leaves the old file as it was.
#pragma once

#include <string>
#include <string_view>

namespace arbolith {

/// The bytes of a file. Throws a std::system_error with the system's number.
std::string ReadWholeFile(const std::string& path);

/// Puts the bytes in the place of a file, or creates it. The file keeps its permissions, its owner
/// and the links to it; a link is followed. Where nothing can be written beside it, it is
/// overwritten in place, once there is known to be room. A device is written to. Throws a
/// std::system_error with the system's number.
void ReplaceWholeFile(const std::string& path, std::string_view bytes);

}  // namespace arbolith
