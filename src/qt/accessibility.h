// What assistive technology is told of the windows beyond what the toolkit tells by itself: their
// role, and that of the views which are something else than their widget.
#pragma once

namespace arbolith {

/// From now on windows and views are told as what they are. May be called again.
void TellAssistiveTechnology();

}  // namespace arbolith
