// Acts on the real windows: every action is a mouse or key event sent to the widget that has the
// control's name, and what is shown is read from the widgets.
#pragma once

#include "form_script/driver.h"

#include <memory>

namespace arbolith {

class WindowManager;

/// A driver for the windows of an application, both of which must outlive it. The manager's timers
/// should be manual ones.
std::unique_ptr<Driver> MakeWindowDriver(Application& application, WindowManager& windows);

}  // namespace arbolith
