#include "notepad/lines.h"

#include <algorithm>
#include <array>
#include <cstddef>

namespace arbolith::notepad {

namespace {

struct LineEndTexts {
    std::string_view bytes;
    const char* name;
};

// In the order of the enumeration.
constexpr std::array<LineEndTexts, 3> kLineEnds = {{{"\r\n", "CR LF"}, {"\n", "LF"}, {"\r", "CR"}}};

LineEnd LineEndAt(std::string_view bytes, std::size_t place) {
    if (bytes[place] == '\n') return LineEnd::kLf;
    return bytes.substr(place, 2) == "\r\n" ? LineEnd::kCrLf : LineEnd::kCr;
}

}  // namespace

Lines SplitLines(std::string_view bytes) {
    Lines result;
    std::array<std::size_t, kLineEnds.size()> counts{};
    auto before = LineEnd::kCrLf;
    for (auto end = bytes.find_first_of("\r\n"); end != std::string_view::npos;
         end = bytes.find_first_of("\r\n")) {
        result.lines.push_back({bytes.substr(0, end), before});
        before = LineEndAt(bytes, end);
        ++counts[static_cast<std::size_t>(before)];
        bytes.remove_prefix(end + BytesOf(before).size());
    }
    result.lines.push_back({bytes, before});
    const auto most = std::max_element(counts.begin(), counts.end());
    result.usual = static_cast<LineEnd>(most - counts.begin());
    result.isMixed = *most + 1 < result.lines.size();
    result.lines.front().before = result.usual;
    return result;
}

std::string_view BytesOf(LineEnd end) {
    return kLineEnds[static_cast<std::size_t>(end)].bytes;
}

const char* NameOf(LineEnd end) {
    return kLineEnds[static_cast<std::size_t>(end)].name;
}

}  // namespace arbolith::notepad
