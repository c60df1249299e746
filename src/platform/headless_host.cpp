#include "platform/headless_host.h"

#include "platform/runtime_error.h"

#include <poll.h>
#include <utility>

namespace arbolith {

void HeadlessHost::SetClipboard(const std::string& text, std::shared_ptr<const Drawing> picture) {
    clipboard_ = text;
    picture_ = std::move(picture);
}

void HeadlessHost::Print(const Drawing&) {
    throw RuntimeError(ErrorNumber::kPrinter);
}

Date HeadlessHost::Today() {
    return CurrentDate();
}

std::unique_ptr<Process> HeadlessHost::Start(const ProgramStart& start) {
    return StartProcess(start);
}

void HeadlessHost::WaitForEnd(Process& process, const std::function<bool()>& giveUp) {
    // No events come here, so only the end of the process can change anything.
    while (!process.HasEnded() && !giveUp()) {
        pollfd end{process.EndDescriptor(), POLLIN, 0};
        poll(&end, 1, -1);
    }
}

}  // namespace arbolith
