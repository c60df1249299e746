// The items of a text, which stand between commas and line ends: how run files and batch files are
// read.
#pragma once

#include <cstddef>
#include <string_view>

namespace arbolith {

/// A line ends in CR LF, LF or CR. A comma parts two items, so one at a line's end is followed by
/// an empty item, and an empty line is one empty item. A UTF-8 mark in front is no part of the
/// text; all other bytes pass through as they are.
class ItemReader {
public:
    /// `text` must outlive the reader and what it has read.
    explicit ItemReader(std::string_view text) : rest_(text) {}

    bool AtEnd() const { return rest_.empty(); }

    /// The next item: leading blanks and tabs are skipped, trailing ones kept. One that stands in
    /// double quotes as a whole loses them and may hold commas; any other quote is a character like
    /// all. Throws 62 at the end.
    std::string_view Read();

private:
    std::string_view TakeQuoted();
    std::string_view TakePlain();
    void Take(std::size_t length);

    std::string_view rest_;
};

}  // namespace arbolith
