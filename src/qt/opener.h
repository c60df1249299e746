// The desktop's opener: the program that knows which program opens an address or a file.
#pragma once

#include "platform/host.h"

#include <string>

namespace arbolith {

/// Opens a web or file address, or a file by its path in the file system's own bytes. Does not wait
/// for the program that it is opened with; only the opener itself is given a moment to say that it
/// failed.
OpenResult OpenByDesktop(const std::string& address);

/// The address of that opens: an address as it stands, a path as the address of its file.
std::string AddressOf(const std::string& addressOrPath);

}  // namespace arbolith
