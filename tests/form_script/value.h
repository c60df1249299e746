// The values that a script sees: texts, numbers, flags and colours, and when one equals what the
// script says.
#pragma once

#include "forms/control.h"

#include <optional>
#include <string>
#include <string_view>
#include <variant>

namespace arbolith {

/// A colour, told apart from a number.
struct ColourValue {
    Colour colour = 0;
};

using Value = std::variant<std::string, double, bool, ColourValue>;

/// A whole number's value.
inline Value Number(int number) {
    return static_cast<double>(number);
}

/// As `print` shows it: the default text form, `true` or `false`, `cyan`, `face` or `r,g,b`.
std::string TextOf(const Value& value);

/// As a failure shows it: a text in quotes, all else as TextOf.
std::string Described(const Value& value);

/// Whether a value is what the script says. Texts are compared exactly; numbers as numbers, to the
/// 15 digits of their text form.
bool Equals(const Value& value, std::string_view expected);

/// The number that a whole text is; nothing where it is none.
std::optional<double> ReadNumber(std::string_view text);

/// The whole number that a text is, digits with or without a minus; nothing where it is none.
std::optional<int> ReadWholeNumber(std::string_view text);

}  // namespace arbolith
