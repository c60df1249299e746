#include "notepad/columns.h"

namespace arbolith::notepad {

namespace {

std::size_t NextColumn(std::size_t column, char c) {
    return c == '\t' ? (column / kTabColumns + 1) * kTabColumns : column + 1;
}

}  // namespace

std::size_t ColumnsOf(std::string_view line) {
    std::size_t column = 0;
    for (const char c : line) column = NextColumn(column, c);
    return column;
}

std::string WithoutTabs(std::string_view line) {
    std::string result;
    for (const char c : line) {
        const auto next = NextColumn(result.size(), c);
        c == '\t' ? result.resize(next, ' ') : result.push_back(c);
    }
    return result;
}

}  // namespace arbolith::notepad
