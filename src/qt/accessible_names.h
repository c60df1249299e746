// The names under which assistive technology tells the controls.
#pragma once

#include "forms/control.h"

#include <QString>

namespace arbolith {

/// What a person who doesn't see the form must hear to know the control: its caption; for a field
/// what names it on the form, the label in front of it or else the caption of the frame around it.
/// Empty for what shows no text and has no name.
QString AccessibleNameOf(const Control& control);

}  // namespace arbolith
