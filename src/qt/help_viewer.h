// The desktop's own viewer of compiled help.
#pragma once

namespace arbolith {

/// Whether the desktop names a program for compiled help files; without one it would hand them to
/// some other, or to none.
bool DesktopHasHelpViewer();

}  // namespace arbolith
