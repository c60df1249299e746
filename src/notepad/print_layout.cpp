#include "notepad/print_layout.h"

#include "notepad/columns.h"
#include "notepad/lines.h"

#include <algorithm>

namespace arbolith::notepad {

namespace {

constexpr double kLargestPoints = 10;
constexpr double kLeastPoints = 5.5;
constexpr double kStep = 0.5;

std::size_t HowMany(double space, double each) {
    return std::max<std::size_t>(1, static_cast<std::size_t>(space / each));
}

}  // namespace

PrintLayout FitToPaper(std::size_t longestLine, const Extent& paper, const Extent& cell) {
    double points = kLargestPoints;
    while (points >= kLeastPoints && HowMany(paper.width, cell.width * points) < longestLine)
        points -= kStep;
    // Nothing is gained by small print that is broken all the same.
    if (points < kLeastPoints) points = kLargestPoints;
    const auto rows = HowMany(paper.height, cell.height * points);
    return {points, HowMany(paper.width, cell.width * points),
            rows > kHeadingRows ? rows - kHeadingRows : 1};
}

std::size_t LongestLine(std::string_view bytes) {
    std::size_t longest = 0;
    for (const auto& line : SplitLines(bytes).lines)
        longest = std::max(longest, ColumnsOf(line.text));
    return longest;
}

std::vector<std::string> RowsOf(std::string_view bytes, std::size_t columns) {
    std::vector<std::string> rows;
    for (const auto& line : SplitLines(bytes).lines) {
        const auto text = WithoutTabs(line.text);
        for (std::size_t begin = 0; begin == 0 || begin < text.size(); begin += columns)
            rows.push_back(text.substr(begin, columns));
    }
    // What stands behind the last line end is no row of its own.
    if (rows.size() > 1 && rows.back().empty()) rows.pop_back();
    return rows;
}

}  // namespace arbolith::notepad
