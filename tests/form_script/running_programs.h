// The programs that a script's run has started, so that none is left running behind it.
#pragma once

#include "platform/process.h"

#include <vector>

namespace arbolith {

/// Ends every watched program that still runs when this is destroyed.
class RunningPrograms {
public:
    RunningPrograms() = default;
    ~RunningPrograms();
    RunningPrograms(const RunningPrograms&) = delete;
    RunningPrograms& operator=(const RunningPrograms&) = delete;

    void Watch(const Process& process);
    /// Ends a program at once.
    static void End(const Process& process);

private:
    void ForgetEnded();

    std::vector<int> descriptors_;
};

}  // namespace arbolith
