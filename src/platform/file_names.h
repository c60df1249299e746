// What no name of a file holds.
#pragma once

#include <filesystem>
#include <string_view>

namespace arbolith {

/// The characters that no file is created with. A slash is one of them only where it doesn't part
/// folders.
inline constexpr std::string_view kRefusedCharacters =
    std::filesystem::path::preferred_separator == '/' ? "?\":*|<>" : "/?\":*|<>";

}  // namespace arbolith
