// The machine as the console program gives it to the forms: boxes are failures to be told, no
// question is answered with yes, nothing opens, and only models are started.
#pragma once

#include "cli/exit_status.h"
#include "cli/terminal.h"
#include "platform/headless_host.h"

#include <chrono>
#include <functional>
#include <optional>
#include <string>

namespace arbolith::console {

class ConsoleHost : public HeadlessHost {
public:
    explicit ConsoleHost(Terminal& terminal) : terminal_(terminal) {}

    /// The first box counts: those behind it are consequences.
    bool ShowBox(const Box& box) override;
    /// A dialog for saving is answered with the report that was prepared for, any other is
    /// cancelled.
    std::optional<FileChoice> ChooseFile(const FileQuestion& question) override;
    OpenResult Open(const std::string&) override { return OpenResult::kOpened; }
    /// Starts a model, whose earlier results are removed first, so that a model that writes nothing
    /// is noticed. All else counts as started and ended.
    std::unique_ptr<Process> Start(const ProgramStart& start) override;
    /// A signal that asks for the end stops the model and calls `onInterrupt`.
    void WaitForEnd(Process& process, const std::function<bool()>& giveUp) override;

    /// The status of the failures that boxes tell from now on, and what they are about.
    void CallBoxes(ExitStatus status, std::string subject);
    /// The failure so far, which is forgotten; none where all went well.
    std::optional<Failure> TakeFailure();
    /// Throws the failure so far, or Interrupted.
    void ThrowFailure();

    /// What a dialog for saving answers.
    std::optional<FileChoice> report;
    /// How far the work is, from 0 to 1.
    std::function<double()> progress;
    /// Ends the forms' program.
    std::function<void()> onInterrupt;
    /// Where the models lie, for messages.
    std::string modelFolder;

private:
    using Clock = std::chrono::steady_clock;
    void Note(ExitStatus status, const std::string& message);
    void ShowProgress(Clock::duration waited);

    Terminal& terminal_;
    ExitStatus boxStatus_ = ExitStatus::kFailed;
    std::string subject_ = "the program";
    std::optional<Failure> failure_;
    std::string model_;
};

}  // namespace arbolith::console
