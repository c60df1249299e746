// What the fields let through as it is typed. A refused key sounds the beep.
#pragma once

#include "forms/application.h"
#include "forms/controls.h"

namespace arbolith {

/// Lets digits, backspace, code 127 and the first point of the field's text pass; sets any other
/// key to 0. Returns the key.
int DecimalFilter(Application& application, int& key, const TextBox& box);

/// Lets digits, backspace and code 127 pass; sets any other key to 0. Returns the key.
int IntegerFilter(Application& application, int& key);

/// Replaces a text that is empty or no number by "0.0".
void NumOnly(TextBox& box);

}  // namespace arbolith
