#include "form_script/value.h"

#include "form_script/script.h"
#include "platform/numbers.h"
#include "platform/runtime_error.h"
#include "platform/text.h"

#include <charconv>

namespace arbolith {

namespace {

constexpr Colour kCyan = 0xFFFF00;

// The system colours have their highest bit set and no parts of their own.
constexpr Colour kSystemColour = 0x80000000;

std::string ColourText(Colour colour) {
    if (colour == kCyan) return "cyan";
    if (colour == kButtonFace) return "face";
    if ((colour & kSystemColour) != 0)
        return "system colour " + std::to_string(colour & ~kSystemColour);
    const auto part = [colour](int shift) { return std::to_string((colour >> shift) & 0xFF); };
    return part(0) + "," + part(8) + "," + part(16);
}

std::optional<Colour> ReadColour(std::string_view text) {
    if (text == "cyan") return kCyan;
    if (text == "face") return kButtonFace;
    const auto parts = Split(text, ',');
    if (parts.size() != 3) return std::nullopt;
    Colour colour = 0;
    for (std::size_t i = 0; i < parts.size(); ++i) {
        const auto part = ReadWholeNumber(parts[i]);
        if (!part || *part < 0 || *part > 255) return std::nullopt;
        colour |= static_cast<Colour>(*part) << (8 * i);
    }
    return colour;
}

bool SameNumber(double a, double b) {
    return a == b || DefaultText(a) == DefaultText(b);
}

// What to do for each kind of a value, in one visitor.
template <class... Functions>
struct Kinds : Functions... {
    using Functions::operator()...;
};
template <class... Functions>
Kinds(Functions...) -> Kinds<Functions...>;

}  // namespace

std::string TextOf(const Value& value) {
    return std::visit(Kinds{[](const std::string& text) { return text; },
                            [](double number) { return DefaultText(number); },
                            [](bool flag) { return std::string(flag ? "true" : "false"); },
                            [](ColourValue colour) { return ColourText(colour.colour); }},
                      value);
}

std::string Described(const Value& value) {
    const auto* text = std::get_if<std::string>(&value);
    return text != nullptr ? Quoted(*text) : TextOf(value);
}

bool Equals(const Value& value, std::string_view expected) {
    return std::visit(Kinds{[&](const std::string& text) { return text == expected; },
                            [&](double number) {
                                const auto other = ReadNumber(expected);
                                return other && SameNumber(number, *other);
                            },
                            [&](bool flag) { return expected == (flag ? "true" : "false"); },
                            [&](ColourValue colour) {
                                const auto other = ReadColour(expected);
                                return other && *other == colour.colour;
                            }},
                      value);
}

std::optional<double> ReadNumber(std::string_view text) {
    try {
        return ParseReal(text);
    } catch (const RuntimeError&) {
        return std::nullopt;
    }
}

std::optional<int> ReadWholeNumber(std::string_view text) {
    int number = 0;
    const char* end = text.data() + text.size();
    const auto result = std::from_chars(text.data(), end, number);
    if (text.empty() || result.ec != std::errc{} || result.ptr != end) return std::nullopt;
    return number;
}

}  // namespace arbolith
