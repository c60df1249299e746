// Small rules for texts. All program text is 8-bit Windows-1252, one byte a character, whatever the
// host's locale: letters are told apart only within ASCII.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace arbolith {

/// The text without leading and trailing blanks.
std::string_view Trimmed(std::string_view text);

/// The text with the letters A to Z in lower case.
std::string ToLower(std::string_view text);

/// Whether two texts are equal when the case of A to Z is not looked at.
bool EqualIgnoringCase(std::string_view a, std::string_view b);

/// The pieces between the separators; n separators give n + 1 pieces.
std::vector<std::string> Split(std::string_view text, char separator);

}  // namespace arbolith
