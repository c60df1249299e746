// The editor's icon: a sheet of paper with lines, and the program's tree on it.
#pragma once

#include <QIcon>

namespace arbolith::notepad {

QIcon NotepadIcon();

}  // namespace arbolith::notepad
