// How the windows look on a dark desktop: the colours, and a style that keeps edges visible on
// them.
#pragma once

#include <QPalette>

namespace arbolith {

/// Whether texts are lighter than the windows that they stand on.
bool IsDark(const QPalette& palette);

/// Light texts on dark windows, for all that a window shows and all of its states.
QPalette DarkPalette();

/// What edges are drawn with on dark colours: halfway between a window and the texts on it, as they
/// are in the palette's current state.
QColor OutlineOn(const QPalette& palette);

/// Gives check boxes, options, fields, lists, progress bars and grids outlines that can be seen on
/// dark colours, from now on; light colours are drawn as before. Does nothing a second time, nor
/// where the desktop has a style of its own.
void OutlineOnDark();

}  // namespace arbolith
