// The console program: runs stands without windows, for those who run many of them unattended.
#include "cli/commands.h"
#include "cli/delivery.h"
#include "cli/exit_status.h"
#include "cli/interrupts.h"
#include "platform/version.h"

#include <exception>
#include <fcntl.h>
#include <string>
#include <unistd.h>
#include <vector>

namespace {

using namespace arbolith::console;

ExitStatus Perform(const Request& request, Terminal& terminal) {
    switch (request.command) {
        case Command::kRun:
            return RunStandFile(request, terminal);
        case Command::kBatch:
            return RunBatchFile(request, terminal);
        case Command::kHelp:
            Deliver(HelpText(), kStandardOutput);
            break;
        case Command::kVersion:
            Deliver(std::string("arbolith-cli ") + arbolith::kVersion + "\n", kStandardOutput);
            break;
    }
    return ExitStatus::kOk;
}

// A stream that the caller has closed would else be the next file that is opened.
void FillClosedStreams() {
    for (const int stream : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO})
        if (fcntl(stream, F_GETFD) == -1) open("/dev/null", O_RDONLY);
}

int StatusOf(const std::vector<std::string>& words, Terminal& terminal) {
    try {
        return static_cast<int>(Perform(ParseArguments(words), terminal));
    } catch (const Failure& failure) {
        terminal.Say(failure.message);
        return static_cast<int>(failure.status);
    } catch (const Interrupted& interrupted) {
        terminal.Say("ended by a signal");
        return kSignalStatus + interrupted.signal;
    } catch (const std::exception& error) {
        terminal.Say(error.what());
        return static_cast<int>(ExitStatus::kFailed);
    }
}

}  // namespace

int main(int argc, char** argv) {
    FillClosedStreams();
    const Interrupts interrupts;
    Terminal terminal(STDERR_FILENO);
    return StatusOf({argv + 1, argv + argc}, terminal);
}
