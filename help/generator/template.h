// Pages are written by hand with places where the program's own texts and numbers go in:
// {{name words ...}}. Each name is a fact, so that no page types what the program knows.
#pragma once

#include <functional>
#include <map>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace arbolith::help {

/// A page that can't be made, and why.
class BadPage : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// What a fact may need to know of the page that it goes into.
struct Page {
    std::string file;          ///< Relative to the help folder, with "/".
    std::string Root() const;  ///< From the page back to the help folder: "" or "../" as needed.
};

using Words = std::vector<std::string>;
/// Gives the HTML for a place from the words behind its name. Throws BadPage.
using Fact = std::function<std::string(const Words& words, const Page& page)>;
using Facts = std::map<std::string, Fact, std::less<>>;

/// The text with all its places filled in. Throws a BadPage that names the line where a place isn't
/// closed, its fact isn't known, or the fact refuses its words.
std::string Expand(std::string_view text, const Facts& facts, const Page& page);

/// The word at a position. Throws a BadPage when there are fewer.
const std::string& WordAt(const Words& words, std::size_t position);

}  // namespace arbolith::help
