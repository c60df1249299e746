#include "cli/delivery.h"

#include "cli/exit_status.h"
#include "cli/interrupts.h"
#include "platform/whole_file.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>

namespace arbolith::console {

namespace {

// `failure` is the system's number, 0 for none.
void RequireWritten(int failure, const std::string& name) {
    if (failure == EINTR) throw Interrupted{Interrupts::Signal()};
    if (failure != 0)
        throw Failure{ExitStatus::kCannotWrite,
                      name + ": " + std::generic_category().message(failure)};
}

bool IsPipe(const std::string& name) {
    struct stat found {};
    return stat(name.c_str(), &found) == 0 && S_ISFIFO(found.st_mode);
}

// Waits for the reader, and for it to keep up.
void WriteToPipe(const std::string& name, std::string_view report) {
    const int descriptor = open(name.c_str(), O_WRONLY | O_CLOEXEC);
    const int failure = descriptor == -1 ? errno : TryWrite(descriptor, report);
    if (descriptor != -1) close(descriptor);
    RequireWritten(failure, name);
}

}  // namespace

void Deliver(std::string_view report, const std::string& name) {
    if (name == kStandardOutput)
        return RequireWritten(TryWrite(STDOUT_FILENO, report), "standard output");
    if (IsPipe(name)) return WriteToPipe(name, report);
    try {
        ReplaceWholeFile(name, report);
    } catch (const std::system_error& error) {
        throw Failure{ExitStatus::kCannotWrite, name + ": " + error.code().message()};
    }
}

int TryWrite(int descriptor, std::string_view bytes) {
    while (!bytes.empty()) {
        const auto count = write(descriptor, bytes.data(), bytes.size());
        if (count > 0) bytes.remove_prefix(static_cast<std::size_t>(count));
        if (count == -1 && (errno != EINTR || Interrupts::Signal() != 0)) return errno;
    }
    return 0;
}

}  // namespace arbolith::console
