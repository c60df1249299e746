// The program's icon, drawn rather than loaded.
#pragma once

#include <QIcon>
#include <QPixmap>

namespace arbolith {

/// A small conifer, `side` pixels wide and high.
QPixmap TreePicture(int side);

/// The icon of all windows.
QIcon ProgramIcon();

}  // namespace arbolith
