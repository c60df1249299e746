// Where a form's window stands among the others.
#pragma once

#include "forms/form.h"

namespace arbolith {

/// The window stays above all others.
inline void WindowTopmost(Form& form) {
    form.SetTopmost(true);
}

/// The window is one among the others again.
inline void WindowNotTopmost(Form& form) {
    form.SetTopmost(false);
}

/// A form that shows comes to the top of its group and becomes the active one; nothing else
/// changes.
inline void WindowToTop(Form& form) {
    form.BringToTop();
}

}  // namespace arbolith
