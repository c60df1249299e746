#include "form_script/file_bytes.h"

#include "form_script/script.h"

#include <algorithm>
#include <cstddef>
#include <filesystem>
#include <fstream>
#include <iterator>

namespace arbolith {

namespace {

constexpr std::size_t kShown = 400;
constexpr std::size_t kBeforeDifference = 40;

std::filesystem::path PathOf(const std::string& folder, const std::string& name) {
    return std::filesystem::path(folder) / name;
}

}  // namespace

std::optional<std::string> ReadFileBytes(const std::string& folder, const std::string& name) {
    const auto path = PathOf(folder, name);
    std::error_code ignored;
    if (std::filesystem::is_directory(path, ignored)) return std::nullopt;
    std::ifstream file(path, std::ios::binary);
    if (!file) return std::nullopt;
    return std::string(std::istreambuf_iterator<char>(file), {});
}

bool FileExists(const std::string& folder, const std::string& name) {
    std::error_code ignored;
    return std::filesystem::exists(std::filesystem::symlink_status(PathOf(folder, name), ignored));
}

std::string DescribedBytes(std::string_view bytes, std::string_view expected) {
    if (bytes.size() <= kShown) return Quoted(bytes);
    const auto difference =
        std::mismatch(bytes.begin(), bytes.end(), expected.begin(), expected.end());
    const auto at = static_cast<std::size_t>(difference.first - bytes.begin());
    const auto from = at > kBeforeDifference ? at - kBeforeDifference : 0;
    return std::to_string(bytes.size()) + " bytes, other from byte " + std::to_string(at) +
           " on: " + Quoted(bytes.substr(from, kShown));
}

}  // namespace arbolith
