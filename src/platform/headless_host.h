// A host without a screen and without a person: nothing is shown, programs are really started.
#pragma once

#include "platform/host.h"

namespace arbolith {

class HeadlessHost : public Host {
public:
    /// `screen` is the size that the screen is said to have.
    explicit HeadlessHost(Size screen = {1024 * 15, 768 * 15}) : screen_(screen) {}

    /// Nobody is there to say no.
    bool ShowBox(const Box&) override { return true; }
    void Beep() override {}
    /// Nobody is there to choose or to answer.
    std::optional<FileChoice> ChooseFile(const FileQuestion&) override { return std::nullopt; }
    std::optional<std::string> AskForText(const std::string&) override { return std::nullopt; }
    void SetClipboardText(const std::string& text) override { SetClipboard(text, nullptr); }
    std::string ClipboardText() override { return clipboard_; }
    void SetClipboard(const std::string& text, std::shared_ptr<const Drawing> picture) override;
    std::shared_ptr<const Drawing> ClipboardPicture() override { return picture_; }
    void Print(const Drawing&) override;
    OpenResult Open(const std::string&) override { return OpenResult::kNoOpener; }
    void ShowHelp(const std::string&) override {}
    void CloseHelp() override {}
    std::unique_ptr<Process> Start(const ProgramStart& start) override;
    void WaitForEnd(Process& process, const std::function<bool()>& giveUp) override;
    Size ScreenSize() override { return screen_; }
    Date Today() override;
    void EndProgram() override {}

private:
    Size screen_;
    std::string clipboard_;
    std::shared_ptr<const Drawing> picture_;
};

}  // namespace arbolith
