// HTML from plain texts. All texts of the help are UTF-8.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace arbolith::help {

/// The text with the marks that mean something in HTML written out.
std::string Escaped(std::string_view text);

/// The same for a text of the program, which is Windows-1252.
std::string EscapedProgramText(std::string_view text);

/// HTML without its tags and with the usual entities resolved, white space run together.
std::string PlainText(std::string_view html);

/// A table with headings. Cells are HTML.
class Table {
public:
    explicit Table(std::vector<std::string> headings) : headings_(std::move(headings)) {}

    void Row(std::vector<std::string> cells) { rows_.push_back(std::move(cells)); }
    /// `kind` is the class for the style sheet, empty for none.
    std::string Html(std::string_view kind = "") const;

private:
    std::vector<std::string> headings_;
    std::vector<std::vector<std::string>> rows_;
};

}  // namespace arbolith::help
