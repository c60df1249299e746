// The splash: the picture that stands while the program starts.
#pragma once

#include "forms/controls.h"

namespace arbolith {

/// The form frmSplash.
struct Splash : Form {
    explicit Splash(Application& application) : Form(application, "frmSplash", "", {6300, 3900}) {}

    Frame Frame1{*this, "Frame1", "", {0, 0, 6300, 3900}};
    Picture Picture1{Frame1, "Picture1", "", {0, 0, 6300, 3900}};
    Timer Timer1{*this, "Timer1", 1000};  ///< Ends the splash.
    Timer Timer2{*this, "Timer2", 0};     ///< Shows the hourglass.
};

}  // namespace arbolith
