// The machine as the windows see it: boxes, sounds, the clipboard, started programs and the screen.
#pragma once

#include "platform/host.h"

namespace arbolith {

class WindowManager;

class QtHost : public Host {
public:
    /// The windows that are to show the states whenever something is shown or waited for; null for
    /// none. They must be taken away before they end.
    void SetWindows(WindowManager* windows) { windows_ = windows; }

    bool ShowBox(const Box& box) override;
    void Beep() override;
    void SetClipboardText(const std::string& text) override;
    std::string ClipboardText() override;
    std::unique_ptr<Process> Start(const ProgramStart& start) override;
    void WaitForEnd(Process& process, const std::function<bool()>& giveUp) override;
    Size ScreenSize() override;
    void EndProgram() override;

private:
    WindowManager* windows_ = nullptr;
    bool ended_ = false;
};

}  // namespace arbolith
