// Reads a control's properties as the screen shows them, from the widgets themselves.
#pragma once

#include "forms/control.h"

#include <optional>
#include <string>

namespace arbolith {

class FormWindow;

/// What a property is on the screen, in 8-bit text: flags are "true" or "false", numbers decimal.
/// Nothing for a property that the widget of such a control doesn't show.
std::optional<std::string> ShownProperty(const FormWindow& window, const Control& control,
                                         const std::string& property);

}  // namespace arbolith
