// The number rules that everything uses: reading a number from a text, rounding, and the text
// forms. The decimal sign is a point in every locale.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace arbolith {

/// The numeric value of a text: leading blanks skipped, the longest leading decimal number (sign,
/// digits, at most one point) taken; 0 if there is none. Throws an overflow when it doesn't fit 64
/// bits.
double Val(std::string_view text);

/// The default text form: the shortest general form with at most 15 significant digits, a digit
/// before the point, no forced decimals; "12.5", "30", "0.25", "1E+15".
std::string DefaultText(double value);

/// Appends the default text form to a text.
void AppendDefaultText(std::string& out, double value);

/// Format "0.0##": one to three decimals, halves away from zero; 2 gives "2.0", 12.34567 "12.346".
std::string OneToThreeDecimals(double value);

/// Rounds to 2 decimals: times 100, to the nearest whole number with halves to even, divided by
/// 100.
double RoundTo2(double value);

/// Rounds to a whole number with halves to even. Throws an overflow outside 16 bits.
std::int16_t ToInt16(double value);

/// The whole part of a number: its floor.
double WholePart(double value);

/// Reads a whole text as a real number (sign, digits, point, exponent). Throws a type mismatch when
/// it is anything else, an overflow when it doesn't fit 64 bits.
double ParseReal(std::string_view token);

}  // namespace arbolith
