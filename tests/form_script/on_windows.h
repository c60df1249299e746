// Real windows for what drives the program.
#pragma once

#include "form_script/session.h"

#include <functional>

namespace arbolith {

/// Starts the toolkit, on the display that there is, and where there is none on a screen in memory
/// of this size in twips (nothing for a usual one), calls `use` with its host and what makes
/// drivers of real windows, and returns what it returns. One application has windows at a time; the
/// toolkit can be started once in a process.
int OnWindows(std::optional<Size> screen,
              const std::function<int(Host& host, const MakeDriver& makeDriver)>& use);

}  // namespace arbolith
