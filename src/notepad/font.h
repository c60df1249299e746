// The font of the text, on the screen and on paper: all characters equally wide.
#pragma once

#include <QFont>

namespace arbolith::notepad {

QFont TextFont(double points);

}  // namespace arbolith::notepad
