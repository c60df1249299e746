#include "cli/delivery.h"

#include "cli/exit_status.h"
#include "cli/interrupts.h"
#include "platform/whole_file.h"

#include <cerrno>
#include <system_error>
#include <unistd.h>

namespace arbolith::console {

namespace {

void WriteToStandardOutput(std::string_view report) {
    const int failure = TryWrite(STDOUT_FILENO, report);
    if (failure == EINTR) throw Interrupted{Interrupts::Signal()};
    if (failure != 0)
        throw Failure{ExitStatus::kCannotWrite,
                      "standard output: " + std::generic_category().message(failure)};
}

}  // namespace

void Deliver(std::string_view report, const std::string& name) {
    if (name == kStandardOutput) {
        WriteToStandardOutput(report);
        return;
    }
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
