#include "fuzz/findings.h"

#include "fuzz/fuzzer.h"

#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <fcntl.h>
#include <sys/time.h>
#include <unistd.h>
#if defined(__SANITIZE_ADDRESS__)
#include <sanitizer/common_interface_defs.h>
#endif

namespace arbolith {

namespace {

std::string findingPath;
const std::string* currentInput = nullptr;
unsigned secondsAllowed = 0;

// Only calls that are safe within a signal's handler.
void WriteAll(int descriptor, const char* bytes, std::size_t count) {
    while (count > 0) {
        const auto written = write(descriptor, bytes, count);
        if (written <= 0) return;
        bytes += written;
        count -= static_cast<std::size_t>(written);
    }
}

void SaveFinding() {
    if (currentInput == nullptr) return;
    const auto* input = currentInput;
    currentInput = nullptr;
    const int file = open(findingPath.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0644);
    if (file == -1) return;
    WriteAll(file, input->data(), input->size());
    close(file);
    constexpr std::string_view kNotice = "The input is kept in ";
    WriteAll(STDERR_FILENO, kNotice.data(), kNotice.size());
    WriteAll(STDERR_FILENO, findingPath.data(), findingPath.size());
    WriteAll(STDERR_FILENO, "\n", 1);
}

void SaveAndDie(int signal) {
    SaveFinding();
    std::signal(signal, SIG_DFL);
    std::raise(signal);
}

}  // namespace

void WatchForFailures(const std::string& folder, unsigned secondsPerInput) {
    findingPath = folder + "/finding-" + std::to_string(getpid());
    secondsAllowed = secondsPerInput;
    for (const int signal : {SIGABRT, SIGPROF, SIGFPE}) std::signal(signal, SaveAndDie);
#if defined(__SANITIZE_ADDRESS__)
    __sanitizer_set_death_callback(SaveFinding);
#else
    for (const int signal : {SIGSEGV, SIGBUS}) std::signal(signal, SaveAndDie);
#endif
}

// Only the time counts in which the program computes: a disk that keeps it waiting, or a machine
// that stands still, is no fault of the input.
void SetCurrentInput(const std::string& input) {
    currentInput = &input;
    const itimerval allowed{{}, {static_cast<time_t>(secondsAllowed), 0}};
    setitimer(ITIMER_PROF, &allowed, nullptr);
}

void Require(bool holds, std::string_view what) {
    if (holds) return;
    std::fprintf(stderr, "This must hold: %.*s\n", static_cast<int>(what.size()), what.data());
    std::abort();
}

}  // namespace arbolith
