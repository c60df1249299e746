// What the toolkit says of itself.
#pragma once

#include <string_view>

namespace arbolith {

/// Keeps the toolkit's words from the user's terminal, but for why it can't go on: mostly that
/// there is no display. That is told in the name of the program, with an advice in a line of its
/// own where there is one. Both texts have to stay. To be called before the QApplication is made.
void TellOnlyWhyItEnds(std::string_view program, std::string_view advice = "");

}  // namespace arbolith
