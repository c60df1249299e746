#include "cli/console_host.h"

#include "cli/interrupts.h"
#include "model_bridge/exchange.h"
#include "platform/text.h"
#include "platform/whole_file.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <csignal>
#include <filesystem>
#include <poll.h>
#include <sys/wait.h>
#include <system_error>
#include <unistd.h>
#include <utility>

// This header of the C library forgets to say that it is C.
extern "C" {
#include <sys/pidfd.h>
}

namespace arbolith::console {

namespace {

constexpr const char* kInputFault = "Input Error";
constexpr int kNothingStarted = -1;
constexpr int kForever = -1;
// Milliseconds between two looks at what progress shows.
constexpr int kOneSecond = 1000;
// Milliseconds that a model has to end by itself when it is asked to.
constexpr int kUntilKilled = 2000;

/// What nobody wants on a console: an editor, a viewer.
class NothingStarted : public Process {
public:
    bool HasEnded() override { return true; }
    int EndDescriptor() const override { return kNothingStarted; }
};

bool IsModel(const std::string& fileName) {
    return fileName == ModelFileName("Softwood") || fileName == ModelFileName("Hardwood");
}

// Removes what an earlier call left in the place of the results of this one.
void RemoveResults(const std::string& folder) {
    const auto paths = Split(ReadWholeFile(folder + "/" + kPathFileName), '\n');
    if (paths.size() < 2) return;
    std::error_code ignored;
    std::filesystem::remove(paths[1].substr(0, paths[1].find('\r')), ignored);
}

std::string WhyNotStarted(const std::string& program) {
    return access(program.c_str(), X_OK) == 0 ? "it can't be started"
                                              : std::generic_category().message(errno);
}

// Waits until either can be read; whether the first can.
bool WaitFor(int first, int second, int milliseconds) {
    std::array<pollfd, 2> descriptors = {{{first, POLLIN, 0}, {second, POLLIN, 0}}};
    return poll(descriptors.data(), descriptors.size(), milliseconds) > 0 &&
           descriptors[0].revents != 0;
}

void Stop(Process& process) {
    for (const int signal : {SIGTERM, SIGKILL}) {
        pidfd_send_signal(process.EndDescriptor(), signal, nullptr, 0);
        if (WaitFor(process.EndDescriptor(), -1, kUntilKilled)) break;
    }
    process.HasEnded();
}

// The signal that ended a process; 0 where it ended by itself. It can still be waited for.
int SignalThatEnded(const Process& process) {
    siginfo_t end{};
    const auto descriptor = static_cast<id_t>(process.EndDescriptor());
    if (waitid(P_PIDFD, descriptor, &end, WEXITED | WNOHANG | WNOWAIT) != 0) return 0;
    return end.si_code == CLD_KILLED || end.si_code == CLD_DUMPED ? end.si_status : 0;
}

std::string OnOneLine(std::string text) {
    std::erase(text, '\r');
    std::replace(text.begin(), text.end(), '\n', ' ');
    return std::string(Trimmed(text));
}

}  // namespace

bool ConsoleHost::ShowBox(const Box& box) {
    Note(box.title == kInputFault ? ExitStatus::kRefused : boxStatus_,
         subject_ + ": " + OnOneLine(box.text));
    return box.buttons == BoxButtons::kOk;
}

std::optional<FileChoice> ConsoleHost::ChooseFile(const FileQuestion& question) {
    return question.saves ? report : std::nullopt;
}

std::unique_ptr<Process> ConsoleHost::Start(const ProgramStart& start) {
    if (!IsModel(start.FileName())) return std::make_unique<NothingStarted>();
    model_ = start.FileName();
    RemoveResults(start.folder);
    auto process = HeadlessHost::Start(start);
    if (process == nullptr)
        Note(ExitStatus::kModel, (std::filesystem::path(modelFolder) / model_).string() + ": " +
                                     WhyNotStarted(start.program));
    return process;
}

void ConsoleHost::WaitForEnd(Process& process, const std::function<bool()>& giveUp) {
    if (process.EndDescriptor() == kNothingStarted) return;
    const auto begin = Clock::now();
    while (!giveUp()) {
        ShowProgress(Clock::now() - begin);
        const bool ended = WaitFor(process.EndDescriptor(), Interrupts::Descriptor(),
                                   terminal_.ShowsProgress() ? kOneSecond : kForever);
        if (Interrupts::Signal() != 0) {
            Stop(process);
            onInterrupt();
        } else if (ended) {
            if (const int signal = SignalThatEnded(process); signal != 0)
                Note(ExitStatus::kModel,
                     model_ + ": it was ended by signal " + std::to_string(signal));
            if (process.HasEnded()) return;
        }
    }
}

void ConsoleHost::CallBoxes(ExitStatus status, std::string subject) {
    boxStatus_ = status;
    subject_ = std::move(subject);
}

std::optional<Failure> ConsoleHost::TakeFailure() {
    return std::exchange(failure_, std::nullopt);
}

void ConsoleHost::ThrowFailure() {
    if (Interrupts::Signal() != 0) throw Interrupted{Interrupts::Signal()};
    if (failure_) throw *TakeFailure();
}

void ConsoleHost::Note(ExitStatus status, const std::string& message) {
    if (!failure_) failure_ = Failure{status, message};
}

void ConsoleHost::ShowProgress(Clock::duration waited) {
    const auto seconds = std::chrono::duration_cast<std::chrono::seconds>(waited).count();
    terminal_.Progress(progress ? progress() : 0,
                       model_ + (seconds > 0 ? ", " + std::to_string(seconds) + " s" : ""));
}

}  // namespace arbolith::console
