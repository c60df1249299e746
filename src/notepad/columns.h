// Where tabs lead to. In reports each column is filled with blanks to its width and ends in a tab,
// in batch files each field does; as none is wider than 7 characters but the first of a report,
// which has 8, stops at every eighth column put all of them under their headings.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace arbolith::notepad {

/// The columns from one tab stop to the next.
inline constexpr std::size_t kTabColumns = 8;

/// The columns that a line takes.
std::size_t ColumnsOf(std::string_view line);

/// The line with blanks for its tabs.
std::string WithoutTabs(std::string_view line);

}  // namespace arbolith::notepad
