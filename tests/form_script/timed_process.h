// A process with a time limit on the wait for it.
#pragma once

#include "platform/process.h"

#include <chrono>

namespace arbolith {

/// Looks ended as soon as the time is up, whether the process has ended or not: whoever waits on
/// its end descriptor wakes up then.
class TimedProcess : public Process {
public:
    /// The process must outlive this. Throws std::system_error where the system gives no timer.
    TimedProcess(Process& process, std::chrono::nanoseconds limit);
    ~TimedProcess() override;
    TimedProcess(const TimedProcess&) = delete;
    TimedProcess& operator=(const TimedProcess&) = delete;

    bool HasEnded() override { return process_.HasEnded() || TimeIsUp(); }
    int EndDescriptor() const override { return either_; }

    bool TimeIsUp() const;

private:
    Process& process_;
    int timer_;
    int either_;  // Becomes readable with the timer and with the process.
};

}  // namespace arbolith
