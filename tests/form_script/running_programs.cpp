#include "form_script/running_programs.h"

#include <csignal>
#include <fcntl.h>
#include <poll.h>
#include <unistd.h>

// This header of the C library forgets to say that it is C.
extern "C" {
#include <sys/pidfd.h>
}

namespace arbolith {

namespace {

void EndNow(int descriptor) {
    pidfd_send_signal(descriptor, SIGKILL, nullptr, 0);
}

}  // namespace

RunningPrograms::~RunningPrograms() {
    for (const int descriptor : descriptors_) {
        EndNow(descriptor);
        close(descriptor);
    }
}

void RunningPrograms::ForgetEnded() {
    std::erase_if(descriptors_, [](int descriptor) {
        pollfd ended{descriptor, POLLIN, 0};
        if (poll(&ended, 1, 0) != 1) return false;
        close(descriptor);
        return true;
    });
}

void RunningPrograms::Watch(const Process& process) {
    ForgetEnded();
    const int descriptor = fcntl(process.EndDescriptor(), F_DUPFD_CLOEXEC, 0);
    if (descriptor != -1) descriptors_.push_back(descriptor);
}

void RunningPrograms::End(const Process& process) {
    EndNow(process.EndDescriptor());
}

}  // namespace arbolith
