#include "form_script/timed_process.h"

#include <algorithm>
#include <cerrno>
#include <poll.h>
#include <sys/epoll.h>
#include <sys/timerfd.h>
#include <system_error>
#include <unistd.h>

namespace arbolith {

namespace {

void Check(bool done, const char* what) {
    if (!done) throw std::system_error(errno, std::generic_category(), what);
}

void Add(int either, int descriptor) {
    epoll_event event{};
    event.events = EPOLLIN;
    Check(epoll_ctl(either, EPOLL_CTL_ADD, descriptor, &event) == 0, "epoll_ctl");
}

itimerspec After(std::chrono::nanoseconds limit) {
    // A timer of nothing would never fire.
    limit = std::max(limit, std::chrono::nanoseconds(1));
    const auto seconds = std::chrono::duration_cast<std::chrono::seconds>(limit);
    itimerspec when{};
    when.it_value.tv_sec = seconds.count();
    when.it_value.tv_nsec = (limit - seconds).count();
    return when;
}

}  // namespace

TimedProcess::TimedProcess(Process& process, std::chrono::nanoseconds limit)
    : process_(process),
      timer_(timerfd_create(CLOCK_MONOTONIC, TFD_CLOEXEC)),
      either_(epoll_create1(EPOLL_CLOEXEC)) {
    Check(timer_ != -1 && either_ != -1, "timerfd_create");
    const auto when = After(limit);
    Check(timerfd_settime(timer_, 0, &when, nullptr) == 0, "timerfd_settime");
    Add(either_, timer_);
    Add(either_, process_.EndDescriptor());
}

TimedProcess::~TimedProcess() {
    close(either_);
    close(timer_);
}

bool TimedProcess::TimeIsUp() const {
    pollfd waited{timer_, POLLIN, 0};
    return poll(&waited, 1, 0) == 1;
}

}  // namespace arbolith
