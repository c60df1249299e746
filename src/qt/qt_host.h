// The machine as the windows see it: boxes, sounds, the clipboard, started programs and the screen.
#pragma once

#include "platform/host.h"

class QDialog;

namespace arbolith {

class HelpWindow;
class WindowManager;

class QtHost : public Host {
public:
    QtHost();
    ~QtHost() override;

    /// The windows that are to show the states whenever something is shown or waited for; null for
    /// none. They must be taken away before they end.
    void SetWindows(WindowManager* windows) { windows_ = windows; }

    bool ShowBox(const Box& box) override;
    void Beep() override;
    std::optional<FileChoice> ChooseFile(const FileQuestion& question) override;
    std::optional<std::string> AskForText(const std::string& prompt) override;
    void SetClipboardText(const std::string& text) override;
    std::string ClipboardText() override;
    void SetClipboard(const std::string& text, std::shared_ptr<const Drawing> picture) override;
    std::shared_ptr<const Drawing> ClipboardPicture() override;
    void Print(const Drawing& picture) override;
    OpenResult Open(const std::string& address) override;
    void ShowHelp(const std::string& file) override;
    void CloseHelp() override;
    std::unique_ptr<Process> Start(const ProgramStart& start) override;
    void WaitForEnd(Process& process, const std::function<bool()>& giveUp) override;
    Size ScreenSize() override;
    Date Today() override { return CurrentDate(); }
    void EndProgram() override;

private:
    int Show(QDialog& dialog);

    WindowManager* windows_ = nullptr;
    std::unique_ptr<HelpWindow> help_;  ///< Our own; null until it is needed.
    bool ended_ = false;
};

}  // namespace arbolith
