#include "platform/numbers.h"

#include "platform/runtime_error.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstddef>

namespace arbolith {

namespace {

constexpr int kSignificantDigits = 15;

bool IsDigit(char c) {
    return c >= '0' && c <= '9';
}

// The length of the sign, digits and point at the front; 0 when they hold no digit.
std::size_t DecimalLength(std::string_view text) {
    std::size_t i = !text.empty() && (text[0] == '-' || text[0] == '+') ? 1 : 0;
    bool point = false;
    bool digit = false;
    for (; i < text.size(); ++i) {
        if (IsDigit(text[i])) {
            digit = true;
        } else if (text[i] == '.' && !point) {
            point = true;
        } else {
            break;
        }
    }
    return digit ? i : 0;
}

struct Digits {
    std::array<char, 64> text{};
    std::size_t length = 0;

    std::string_view View() const { return {text.data(), length}; }
};

Digits GeneralForm(double value) {
    Digits digits;
    const auto end = std::to_chars(digits.text.data(), digits.text.data() + digits.text.size(),
                                   value, std::chars_format::general, kSignificantDigits);
    digits.length = static_cast<std::size_t>(end.ptr - digits.text.data());
    std::replace(digits.text.begin(), digits.text.end(), 'e', 'E');
    return digits;
}

// The shortest form that reads back, empty where it would need an exponent or too many digits.
Digits ShortForm(double value) {
    Digits digits;
    const double size = std::fabs(value);
    if (value != 0 && !(size >= 1e-4 && size < 1e15)) return digits;
    const auto end = std::to_chars(digits.text.data(), digits.text.data() + digits.text.size(),
                                   value, std::chars_format::fixed);
    if (end.ec != std::errc{}) return digits;
    const auto length = static_cast<std::size_t>(end.ptr - digits.text.data());
    // 17 places leave room for a sign or a point, and for the 0 before it.
    if (length <= kSignificantDigits + 1) digits.length = length;
    return digits;
}

}  // namespace

double Val(std::string_view text) {
    const auto start = text.find_first_not_of(" \t");
    if (start == std::string_view::npos) return 0;
    text.remove_prefix(start);
    auto number = text.substr(0, DecimalLength(text));
    if (number.empty()) return 0;
    if (number.front() == '+') number.remove_prefix(1);
    double value = 0;
    const auto result = std::from_chars(number.data(), number.data() + number.size(), value);
    if (result.ec == std::errc::result_out_of_range) {
        // Too small to be told from 0, or too large.
        if (number.find_first_of("123456789") > number.find('.')) return 0;
        throw RuntimeError(ErrorNumber::kOverflow);
    }
    return value == 0 ? 0 : value;
}

void AppendDefaultText(std::string& out, double value) {
    if (value == 0) value = 0;  // no negative zero
    auto digits = ShortForm(value);
    if (digits.length == 0) digits = GeneralForm(value);
    out += digits.View();
}

std::string DefaultText(double value) {
    std::string text;
    AppendDefaultText(text, value);
    return text;
}

std::string OneToThreeDecimals(double value) {
    // Halves are judged on the decimal digits that the number shows, not on its binary value.
    std::string text = DefaultText(std::fabs(value));
    if (text.find('E') != std::string::npos) {
        if (std::fabs(value) < 1) return "0.0";
        std::array<char, 400> wide{};
        const auto end = std::to_chars(wide.data(), wide.data() + wide.size(), value,
                                       std::chars_format::fixed, 1);
        return {wide.data(), end.ptr};
    }
    auto point = text.find('.');
    if (point == std::string::npos) {
        point = text.size();
        text += '.';
    }
    const bool roundUp = text.size() > point + 4 && text[point + 4] >= '5';
    text.resize(point + 4, '0');
    if (roundUp) {
        auto i = text.size();
        while (i-- > 0) {
            if (text[i] == '.') continue;
            if (text[i]++ != '9') break;
            text[i] = '0';
            if (i == 0) text.insert(text.begin(), '1');
        }
    }
    while (text.back() == '0' && text[text.size() - 2] != '.') text.pop_back();
    const bool isZero = text.find_first_not_of("0.") == std::string::npos;
    return value < 0 && !isZero ? "-" + text : text;
}

double RoundTo2(double value) {
    return std::nearbyint(value * 100) / 100;
}

std::int16_t ToInt16(double value) {
    const double whole = std::nearbyint(value);
    if (!(whole >= INT16_MIN && whole <= INT16_MAX)) throw RuntimeError(ErrorNumber::kOverflow);
    return static_cast<std::int16_t>(whole);
}

double WholePart(double value) {
    return std::floor(value);
}

double ParseReal(std::string_view token) {
    if (token.starts_with('+') && !token.starts_with("+-")) token.remove_prefix(1);
    const bool plain = token.find_first_not_of("+-.0123456789eE") == std::string_view::npos;
    double value = 0;
    const char* end = token.data() + token.size();
    const auto result = std::from_chars(token.data(), end, value);
    if (!plain || result.ptr != end || result.ec == std::errc::invalid_argument)
        throw RuntimeError(ErrorNumber::kTypeMismatch);
    if (result.ec == std::errc::result_out_of_range) throw RuntimeError(ErrorNumber::kOverflow);
    return value;
}

}  // namespace arbolith
