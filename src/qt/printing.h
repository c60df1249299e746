// Pictures on paper.
#pragma once

#include "platform/drawing.h"

namespace arbolith {

/// Prints a page with the picture in its own size at the upper left of what can be printed on,
/// smaller only where it would not fit, on the default printer; where none is named so, on the only
/// one there is. Throws 482 where there is no such printer or it doesn't take the page.
void PrintOnePage(const Drawing& picture);

}  // namespace arbolith
