// Reading and printing numbers as the exchange files hold them: always with a point, whatever the
// host's locale, never with an exponent or a thousands separator. Nothing here consults the locale.
#pragma once

#include <string>
#include <string_view>

namespace growth {

/// The largest size of a number that is read; larger ones are limited to it.
inline constexpr double kLargestRead = 1e9;

/// The text without blanks, tabs and carriage returns at its ends.
std::string_view StripBlanks(std::string_view text);

/// The number at the beginning of a text: outer blanks are stripped, a comma counts as a point;
/// then an optional sign and digits with at most one point, as far as they go. 0 where there is no
/// digit. Exponents are not read. The result lies within ±kLargestRead.
double ReadNumber(std::string_view text);

/// The value rounded to so many decimals (0 to 3), halves upwards: floor(v * 10^n + 0.5) / 10^n.
double RoundTo(double value, int decimals);

/// Appends a finite value, rounded by RoundTo, with exactly so many decimals (0 to 3). A value that
/// rounds to zero has no sign.
void AppendFixed(std::string& text, double value, int decimals);

/// Appends a whole number.
void AppendWhole(std::string& text, int value);

}  // namespace growth
