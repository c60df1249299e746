// Finds what a step names, or says why there is nothing of that name.
#pragma once

#include "form_script/names.h"
#include "form_script/stage.h"

#include <string>

namespace arbolith {

/// The control or form of a name. Throws StepFailed where it doesn't exist now.
Control& Find(const Stage& stage, const std::string& name);

/// The same as a control of one kind, told as for example "a text field". Throws ActionRefused for
/// one of another.
template <class Kind>
Kind& FindKind(const Stage& stage, const std::string& name, const std::string& kind) {
    auto* control = dynamic_cast<Kind*>(&Find(stage, name));
    if (control == nullptr) throw ActionRefused(name + " is not " + kind);
    return *control;
}

/// The value of a property, as the screen shows it where one shows it. A form that was not created
/// yet is not visible; everything else of it throws StepFailed.
Value ReadNamedProperty(Stage& stage, const PropertyName& name);

/// The value of a variable. Throws StepFailed where there is none of that name.
Value ReadVariable(const Stage& stage, const std::string& name);

}  // namespace arbolith
