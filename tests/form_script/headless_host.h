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
    void SetClipboardText(const std::string& text) override { clipboard_ = text; }
    std::string ClipboardText() override { return clipboard_; }
    std::unique_ptr<Process> Start(const ProgramStart& start) override;
    void WaitForEnd(Process& process, const std::function<bool()>& giveUp) override;
    Size ScreenSize() override { return screen_; }
    void EndProgram() override {}

private:
    Size screen_;
    std::string clipboard_;
};

}  // namespace arbolith
