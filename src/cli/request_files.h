// The files that a request names: what is read must be there, and must not be what is written.
#pragma once

#include "cli/arguments.h"

#include <string>

namespace arbolith::console {

/// Throws a Failure where the request's file can't be read, or is none that can be read again.
void RequireReadable(const std::string& file);

/// Throws a Failure where a report would take the place of the file that it is made from.
void RequireOther(const std::string& output, const std::string& file);

/// The folder with the models: the one that is asked for, that of the environment, or the
/// program's own.
std::string ModelFolder(const Request& request);

}  // namespace arbolith::console
