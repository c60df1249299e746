#include "platform/code_page.h"

#include <algorithm>
#include <array>
#include <cstddef>

namespace arbolith {

namespace {

// Bytes 0x80 to 0x9F; all others stand for the code point of their own number.
constexpr std::array<char32_t, 32> kUpperControls = {
    0x20AC, 0x81,   0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x8D,   0x017D, 0x8F,   0x90,   0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x9D,   0x017E, 0x0178};

void AppendUtf8(std::string& out, char32_t c) {
    const auto put = [&out](char32_t unit) { out += static_cast<char>(unit); };
    if (c < 0x80) {
        put(c);
    } else if (c < 0x800) {
        put(0xC0 | (c >> 6));
        put(0x80 | (c & 0x3F));
    } else {
        put(0xE0 | (c >> 12));
        put(0x80 | ((c >> 6) & 0x3F));
        put(0x80 | (c & 0x3F));
    }
}

std::size_t SequenceLength(unsigned char lead) {
    if (lead < 0x80) return 1;
    if (lead >= 0xC2 && lead < 0xE0) return 2;
    if (lead >= 0xE0 && lead < 0xF0) return 3;
    return lead >= 0xF0 && lead < 0xF5 ? 4 : 0;
}

constexpr char32_t kNoCharacter = 0xFFFD;

// Takes one character off the front; kNoCharacter where the bytes are no UTF-8.
char32_t TakeCodePoint(std::string_view& utf8) {
    const auto lead = static_cast<unsigned char>(utf8.front());
    const auto length = SequenceLength(lead);
    utf8.remove_prefix(1);
    if (length == 1) return lead;
    if (length == 0 || utf8.size() < length - 1) return kNoCharacter;
    char32_t c = lead & (0x7Fu >> length);
    for (std::size_t i = 0; i + 1 < length; ++i) {
        const auto unit = static_cast<unsigned char>(utf8[i]);
        if ((unit & 0xC0) != 0x80) return kNoCharacter;
        c = (c << 6) | (unit & 0x3F);
    }
    utf8.remove_prefix(length - 1);
    constexpr std::array<char32_t, 5> kLeast = {0, 0, 0x80, 0x800, 0x10000};
    return c < kLeast[length] ? kNoCharacter : c;
}

}  // namespace

char32_t CodePointOf(unsigned char byte) {
    return byte >= 0x80 && byte < 0xA0 ? kUpperControls[byte - 0x80u] : byte;
}

unsigned char ByteOf(char32_t codePoint) {
    if (codePoint < 0x80 || (codePoint >= 0xA0 && codePoint < 0x100))
        return static_cast<unsigned char>(codePoint);
    const auto found = std::find(kUpperControls.begin(), kUpperControls.end(), codePoint);
    if (found == kUpperControls.end()) return '?';
    return static_cast<unsigned char>(0x80 + (found - kUpperControls.begin()));
}

std::string ToUtf8(std::string_view text) {
    std::string utf8;
    utf8.reserve(text.size());
    for (const char c : text) AppendUtf8(utf8, CodePointOf(static_cast<unsigned char>(c)));
    return utf8;
}

std::string AnyToUtf8(std::string_view text) {
    for (auto rest = text; !rest.empty();)
        if (TakeCodePoint(rest) == kNoCharacter) return ToUtf8(text);
    return std::string(text);
}

std::string FromUtf8(std::string_view utf8) {
    std::string text;
    text.reserve(utf8.size());
    while (!utf8.empty()) text += static_cast<char>(ByteOf(TakeCodePoint(utf8)));
    return text;
}

}  // namespace arbolith
