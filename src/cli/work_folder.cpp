#include "cli/work_folder.h"

#include "cli/exit_status.h"
#include "platform/whole_file.h"

#include <cerrno>
#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <system_error>

namespace arbolith::console {

namespace {

namespace fs = std::filesystem;

// What the exchange of one stand takes, generously.
constexpr std::uintmax_t kRoomForOne = 1 << 16;

// What other runs have left, or are at work with.
bool IsExchangeFile(const std::string& name) {
    return name.starts_with('_');
}

std::string NewFolder() {
    std::error_code failed;
    const auto parent = fs::temp_directory_path(failed);
    if (failed)
        throw Failure{ExitStatus::kCannotWrite,
                      "there is no folder for temporary files: " + failed.message()};
    // A model starts in another folder than a relative one counts from.
    auto path = (fs::absolute(parent) / "arbolith-XXXXXX").string();
    if (mkdtemp(path.data()) == nullptr)
        throw Failure{ExitStatus::kCannotWrite,
                      parent.string() + ": " + std::generic_category().message(errno)};
    return path;
}

void RemoveFolder(const std::string& path) {
    std::error_code ignored;
    fs::remove_all(path, ignored);
}

}  // namespace

WorkFolder::WorkFolder(const std::string& modelFolder) : path_(NewFolder()) {
    try {
        LinkTo(modelFolder);
    } catch (const fs::filesystem_error& error) {
        RemoveFolder(path_);
        throw Failure{ExitStatus::kModel, modelFolder + ": " + error.code().message()};
    }
}

WorkFolder::~WorkFolder() {
    RemoveFolder(path_);
}

void WorkFolder::RequireRoom(const std::string& request) const {
    std::error_code ignored;
    const auto size = fs::file_size(request, ignored);
    const auto room = kRoomForOne + (ignored ? 0 : size);
    try {
        ReplaceWholeFile(PathOf("_room"), std::string(room, ' '));
    } catch (const std::system_error& error) {
        throw Failure{ExitStatus::kCannotWrite, path_ + ": " + error.code().message()};
    }
}

void WorkFolder::LinkTo(const std::string& modelFolder) const {
    for (const auto& entry : fs::directory_iterator(fs::canonical(modelFolder))) {
        const auto name = entry.path().filename().string();
        if (!IsExchangeFile(name)) fs::create_symlink(entry.path(), fs::path(path_) / name);
    }
}

}  // namespace arbolith::console
