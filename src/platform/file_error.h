// Which run-time error a failed call on a file stands for.
#pragma once

#include "platform/runtime_error.h"

#include <string>

namespace arbolith {

/// The error's number for the system's own (errno) after a call on `path`: 53 for a missing file,
/// 76 for a missing folder, 70 for a refused permission, 61 for a full disk, 75 where nothing else
/// fits.
ErrorNumber FileErrorOf(int systemError, const std::string& path);

}  // namespace arbolith
