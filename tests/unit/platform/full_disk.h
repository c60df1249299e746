// A disk without room.
#pragma once

#include <csignal>
#include <sys/resource.h>

namespace arbolith {

/// While it lives no file of this process can grow beyond some bytes, as on a full disk; the signal
/// that would tell of it is held back.
class FullDisk {
public:
    explicit FullDisk(rlim_t bytes) {
        getrlimit(RLIMIT_FSIZE, &before_);
        const rlimit small{bytes, before_.rlim_max};
        setrlimit(RLIMIT_FSIZE, &small);
        handler_ = std::signal(SIGXFSZ, SIG_IGN);
    }
    ~FullDisk() {
        setrlimit(RLIMIT_FSIZE, &before_);
        std::signal(SIGXFSZ, handler_);
    }
    FullDisk(const FullDisk&) = delete;
    FullDisk& operator=(const FullDisk&) = delete;

private:
    rlimit before_{};
    void (*handler_)(int) = nullptr;
};

}  // namespace arbolith
