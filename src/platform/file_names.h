// What no name of a file holds.
#pragma once

#include <filesystem>
#include <string_view>

namespace arbolith {

/// The characters that no file is created with. Of the two slashes the one that parts this system's
/// folders isn't among them.
inline constexpr std::string_view kRefusedCharacters =
    std::filesystem::path::preferred_separator == '/' ? "\\?\":*|<>" : "/?\":*|<>";

}  // namespace arbolith
