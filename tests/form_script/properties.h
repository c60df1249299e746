// The properties that a script can ask of a form or control, read from its state. One table for all
// controls and one for each kind.
#pragma once

#include "form_script/value.h"
#include "forms/control.h"

#include <stdexcept>
#include <string>

namespace arbolith {

/// A property that this control doesn't have.
class NoSuchProperty : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// The value of a property as a script writes it, for example `Text`, `Cell(1,1)` or
/// `Axis(1).Minimum`. Throws NoSuchProperty, and the control's own RuntimeError for an index
/// outside of it.
Value ReadProperty(const Control& control, const std::string& property);

/// What the screen shows of a property, as a value of the same kind as the state's. A text that is
/// no value of that kind stays a text.
Value AsKindOf(const Value& state, const std::string& shown);

}  // namespace arbolith
