#include "cli/request_files.h"

#include "cli/delivery.h"
#include "cli/exit_status.h"

#include <cerrno>
#include <cstdlib>
#include <fcntl.h>
#include <filesystem>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>

namespace arbolith::console {

namespace {

constexpr const char* kFolderVariable = "ARBOLITH_FOLDER";
constexpr const char* kThisProgram = "/proc/self/exe";
// Much more than the largest batch.
constexpr off_t kLargestFile = 64 << 20;

}  // namespace

void RequireReadable(const std::string& file) {
    const auto refuse = [&file](const std::string& reason) {
        throw Failure{ExitStatus::kBadFile, file + ": " + reason};
    };
    const int descriptor = open(file.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK);
    if (descriptor == -1) refuse(std::generic_category().message(errno));
    struct stat found {};
    const int failure = fstat(descriptor, &found) == 0 ? 0 : errno;
    close(descriptor);
    if (failure != 0) refuse(std::generic_category().message(failure));
    if (S_ISDIR(found.st_mode)) refuse(std::generic_category().message(EISDIR));
    // It is read more than once; what a pipe has given is gone.
    if (!S_ISREG(found.st_mode)) refuse("it is not a regular file");
    if (found.st_size > kLargestFile) refuse("it is too large");
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
