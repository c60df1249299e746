// How a text is laid out on paper: as large as its longest line lets it be, in rows and pages.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace arbolith::notepad {

/// What the heading of a page takes, the blank row below it included.
inline constexpr std::size_t kHeadingRows = 2;

/// Widths and heights, all in one unit.
struct Extent {
    double width = 0;
    double height = 0;
};

struct PrintLayout {
    double points = 0;        ///< Size of the font.
    std::size_t columns = 1;  ///< Characters in a row, one at least.
    std::size_t rows = 1;     ///< Rows of text on a page below its heading, one at least.
};

/// The layout for a text whose longest line has so many columns, on pages of which `paper` can be
/// printed on. `cell` is the place that a character takes at a size of one point. A line that
/// doesn't fit at the least legible size is broken.
PrintLayout FitToPaper(std::size_t longestLine, const Extent& paper, const Extent& cell);

/// The columns of the longest line of a text.
std::size_t LongestLine(std::string_view bytes);

/// The rows of a text, its tabs blanks, its lines broken where they have more columns.
std::vector<std::string> RowsOf(std::string_view bytes, std::size_t columns);

}  // namespace arbolith::notepad
