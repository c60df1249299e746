// The host of a form script: boxes, sounds and the clipboard are recorded and answered here, all
// that needs the machine goes on to another host.
#pragma once

#include "form_script/recordings.h"
#include "form_script/running_programs.h"
#include "platform/host.h"

#include <chrono>
#include <functional>
#include <memory>
#include <optional>
#include <string>

namespace arbolith {

/// Programs are really started and waited for, but for an editor that the application folder
/// doesn't hold: that one is recorded and over at once. A plain box is answered with OK, a question
/// from the queue of answers; the clipboard is one of its own, so that no run depends on the
/// desktop's.
class RecordingHost : public Host {
public:
    /// `inner` starts and waits; `folder` is the application folder.
    RecordingHost(Host& inner, std::string folder);

    bool ShowBox(const Box& box) override;
    void Beep() override { ++recordings_.beeps; }
    std::optional<FileChoice> ChooseFile(const FileQuestion& question) override;
    std::optional<std::string> AskForText(const std::string& prompt) override;
    void SetClipboardText(const std::string& text) override { SetClipboard(text, nullptr); }
    std::string ClipboardText() override { return clipboard_; }
    void SetClipboard(const std::string& text, std::shared_ptr<const Drawing> picture) override;
    std::shared_ptr<const Drawing> ClipboardPicture() override { return picture_; }
    void Print(const Drawing& picture) override;
    OpenResult Open(const std::string& address) override;
    void ShowHelp(const std::string& file) override { Open(file); }
    void CloseHelp() override {}
    std::unique_ptr<Process> Start(const ProgramStart& start) override;
    void WaitForEnd(Process& process, const std::function<bool()>& giveUp) override;
    Size ScreenSize() override;
    Date Today() override { return today_ ? *today_ : inner_.Today(); }
    void EndProgram() override { inner_.EndProgram(); }

    Recordings& Recorded() { return recordings_; }
    Answers& QueuedAnswers() { return answers_; }
    OpenerAnswer opener = OpenerAnswer::kOk;
    PrinterAnswer printer = PrinterAnswer::kOk;

    /// A screen size in place of the inner host's.
    void SetScreenSize(Size size) { screen_ = size; }
    /// A day in place of the real one.
    void SetToday(Date date) { today_ = date; }
    /// How many programs were started so far.
    int StartCount() const { return startCount_; }

    /// The waits from here on belong to a new step, which may wait for this long in all.
    void BeginStep(std::chrono::nanoseconds limit = std::chrono::seconds(60)) { left_ = limit; }
    /// Every wait ends at once from here on.
    void Abandon() { abandoned_ = true; }

    /// Called before a program is waited for, with its number: the first one started is 1.
    std::function<void(int number)> onWait;
    /// Called when something was asked that the script has no answer to, and when a wait was too
    /// long: what was expected, and what was found.
    std::function<void(const std::string& expected, const std::string& found)> onFailure;

private:
    Host& inner_;
    std::string folder_;
    Recordings recordings_;
    Answers answers_;
    RunningPrograms running_;
    std::string clipboard_;
    std::shared_ptr<const Drawing> picture_;
    std::optional<Date> today_;
    std::optional<Size> screen_;
    std::chrono::nanoseconds left_ = std::chrono::seconds(60);
    int startCount_ = 0;
    bool abandoned_ = false;
};

}  // namespace arbolith
