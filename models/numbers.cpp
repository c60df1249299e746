// Reading and printing numbers by plain digit rules. Printing goes through whole numbers: the
// scaled value is rounded once, and a point is put between its digits.
#include "models/numbers.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstdint>

namespace growth {

namespace {

constexpr std::array<double, 4> kScale = {1.0, 10.0, 100.0, 1000.0};

// Beyond this a double no longer holds every whole number, so there is nothing to round.
constexpr double kLargestExactWhole = 9e15;

bool IsBlank(char c) {
    return c == ' ' || c == '\t' || c == '\r';
}
bool IsDigit(char c) {
    return c >= '0' && c <= '9';
}

double ScaledWhole(double value, int decimals) {
    return std::floor(value * kScale[static_cast<std::size_t>(decimals)] + 0.5);
}

// Digits and at most one point from the beginning of the text, commas turned into points.
std::string LeadingDigits(std::string_view text) {
    std::string digits;
    bool pointSeen = false;
    for (const char c : text) {
        const bool isPoint = c == '.' || c == ',';
        if ((!IsDigit(c) && !isPoint) || (isPoint && pointSeen)) break;
        pointSeen = pointSeen || isPoint;
        digits += isPoint ? '.' : c;
    }
    return digits;
}

}  // namespace

std::string_view StripBlanks(std::string_view text) {
    while (!text.empty() && IsBlank(text.front())) text.remove_prefix(1);
    while (!text.empty() && IsBlank(text.back())) text.remove_suffix(1);
    return text;
}

double ReadNumber(std::string_view text) {
    text = StripBlanks(text);
    if (text.empty()) return 0.0;
    const bool negative = text.front() == '-';
    if (negative || text.front() == '+') text.remove_prefix(1);
    const std::string digits = LeadingDigits(text);
    if (std::none_of(digits.begin(), digits.end(), IsDigit)) return 0.0;
    double value = 0.0;
    const auto read = std::from_chars(digits.data(), digits.data() + digits.size(), value,
                                      std::chars_format::fixed);
    // Out of the range of a double: either hundreds of digits before the point or all after it.
    if (read.ec == std::errc::result_out_of_range) {
        const bool large = digits.find_first_not_of('0') < digits.find('.');
        value = large ? kLargestRead : 0.0;
    }
    value = std::min(value, kLargestRead);
    return negative ? -value : value;
}

double RoundTo(double value, int decimals) {
    return ScaledWhole(value, decimals) / kScale[static_cast<std::size_t>(decimals)];
}

void AppendFixed(std::string& text, double value, int decimals) {
    const double scaled = ScaledWhole(value, decimals);
    if (std::abs(scaled) > kLargestExactWhole) {
        std::array<char, 330> wide;
        const auto end = std::to_chars(wide.data(), wide.data() + wide.size(), value,
                                       std::chars_format::fixed, decimals);
        text.append(wide.data(), end.ptr);
        return;
    }
    std::array<char, 24> narrow;
    char* const last = narrow.data() + narrow.size();
    char* first = last;
    auto whole = static_cast<std::uint64_t>(std::abs(scaled));
    for (int place = 0; place <= decimals || whole > 0; ++place) {
        if (place == decimals && decimals > 0) *--first = '.';
        *--first = static_cast<char>('0' + whole % 10);
        whole /= 10;
    }
    if (scaled < 0.0) *--first = '-';
    text.append(first, last);
}

void AppendWhole(std::string& text, int value) {
    std::array<char, 12> digits;
    const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), value);
    text.append(digits.data(), end.ptr);
}

}  // namespace growth
