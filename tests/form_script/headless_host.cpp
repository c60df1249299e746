#include "form_script/headless_host.h"

#include <poll.h>

namespace arbolith {

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
