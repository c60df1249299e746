#include "cli/request_files.h"

#include "cli/delivery.h"
#include "cli/exit_status.h"

#include <cerrno>
#include <cstdlib>
#include <fcntl.h>
#include <filesystem>
#include <system_error>
#include <unistd.h>

namespace arbolith::console {

namespace {

constexpr const char* kFolderVariable = "ARBOLITH_FOLDER";
constexpr const char* kThisProgram = "/proc/self/exe";

}  // namespace

void RequireReadable(const std::string& file) {
    const int descriptor = open(file.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK);
    int failure = descriptor == -1 ? errno : 0;
    if (descriptor != -1) close(descriptor);
    std::error_code ignored;
    if (std::filesystem::is_directory(file, ignored)) failure = EISDIR;
    if (failure != 0)
        throw Failure{ExitStatus::kBadFile, file + ": " + std::generic_category().message(failure)};
}

void RequireOther(const std::string& output, const std::string& file) {
    std::error_code ignored;
    if (output != kStandardOutput && std::filesystem::equivalent(output, file, ignored))
        throw Failure{ExitStatus::kUsage,
                      output + ": the report would replace what it is made from"};
}

std::string ModelFolder(const Request& request) {
    if (request.folder) return *request.folder;
    const char* told = std::getenv(kFolderVariable);
    if (told != nullptr && *told != '\0') return told;
    return std::filesystem::read_symlink(kThisProgram).parent_path().string();
}

}  // namespace arbolith::console
