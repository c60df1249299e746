#include "cli/interrupts.h"

#include <array>
#include <cerrno>
#include <csignal>
#include <cstddef>
#include <fcntl.h>
#include <system_error>
#include <unistd.h>

namespace arbolith::console {

namespace {

constexpr std::array<int, 3> kAsksForTheEnd = {SIGINT, SIGTERM, SIGHUP};

// A handler has nothing but what lives longer than everything.
volatile std::sig_atomic_t noted = 0;
std::array<int, 2> wakeUp = {-1, -1};
std::array<struct sigaction, kAsksForTheEnd.size()> before{};
// A reader that has gone, and a file that would grow beyond what is allowed.
constexpr std::array<int, 2> kTellsOfTheWrite = {SIGPIPE, SIGXFSZ};

extern "C" void Note(int signal) {
    const int error = errno;
    noted = signal;
    // Full only when it is readable already.
    [[maybe_unused]] const auto count = write(wakeUp[1], "", 1);
    errno = error;
}

// Unlike ignoring, this doesn't go on to the models that are started.
extern "C" void LeaveToTheWrite(int) {}

}  // namespace

Interrupts::Interrupts() {
    noted = 0;
    if (pipe2(wakeUp.data(), O_CLOEXEC | O_NONBLOCK) != 0)
        throw std::system_error(errno, std::generic_category(), "pipe");
    struct sigaction action {};
    action.sa_handler = Note;
    for (std::size_t i = 0; i < kAsksForTheEnd.size(); ++i) {
        sigaction(kAsksForTheEnd[i], nullptr, &before[i]);
        if (before[i].sa_handler != SIG_IGN) sigaction(kAsksForTheEnd[i], &action, nullptr);
    }
    action.sa_handler = LeaveToTheWrite;
    for (const int signal : kTellsOfTheWrite) sigaction(signal, &action, nullptr);
}

Interrupts::~Interrupts() {
    for (std::size_t i = 0; i < kAsksForTheEnd.size(); ++i)
        sigaction(kAsksForTheEnd[i], &before[i], nullptr);
    // Those of the write stay: the last bytes go out when the program ends.
    for (const int end : wakeUp) close(end);
    wakeUp = {-1, -1};
}

int Interrupts::Signal() {
    return noted;
}

int Interrupts::Descriptor() {
    return wakeUp[0];
}

}  // namespace arbolith::console
