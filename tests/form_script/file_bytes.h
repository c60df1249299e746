// Files that a script looks into.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace arbolith {

/// All bytes of a file; a relative name lies in the folder. Nothing where it can't be read.
std::optional<std::string> ReadFileBytes(const std::string& folder, const std::string& name);

/// Whether anything of this name is there.
bool FileExists(const std::string& folder, const std::string& name);

/// Bytes as a failure shows them: whole, or from shortly before the first difference to what was
/// expected on.
std::string DescribedBytes(std::string_view bytes, std::string_view expected);

}  // namespace arbolith
