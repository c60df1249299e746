// The host of a soak: every box and dialog is answered by chance, and nothing leaves the process
// but the programs that are started.
#pragma once

#include "fuzz/dice.h"
#include "platform/host.h"

#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>

namespace arbolith {

class TirelessHost : public Host {
public:
    /// `inner` starts and waits for programs; files are chosen in `folder`.
    TirelessHost(Host& inner, std::string folder, Dice& dice)
        : inner_(inner), folder_(std::move(folder)), dice_(dice) {}

    bool ShowBox(const Box& box) override;
    void Beep() override {}
    std::optional<FileChoice> ChooseFile(const FileQuestion& question) override;
    std::optional<std::string> AskForText(const std::string& prompt) override;
    void SetClipboardText(const std::string& text) override { SetClipboard(text, nullptr); }
    std::string ClipboardText() override { return clipboard_; }
    void SetClipboard(const std::string& text, std::shared_ptr<const Drawing> picture) override;
    std::shared_ptr<const Drawing> ClipboardPicture() override { return picture_; }
    void Print(const Drawing& picture) override;
    OpenResult Open(const std::string& address) override;
    void ShowHelp(const std::string&) override {}
    void CloseHelp() override {}
    std::unique_ptr<Process> Start(const ProgramStart& start) override {
        return inner_.Start(start);
    }
    void WaitForEnd(Process& process, const std::function<bool()>& giveUp) override;
    Size ScreenSize() override { return inner_.ScreenSize(); }
    Date Today() override { return inner_.Today(); }
    void EndProgram() override { inner_.EndProgram(); }

    /// Called before a program is waited for: what the person does meanwhile.
    std::function<void()> onWait;

    /// How often each box came up, by its text in one line, without its numbers.
    const std::map<std::string, int>& Boxes() const { return boxes_; }

private:
    bool OneIn(std::size_t count) { return dice_.Below(count) == 0; }

    Host& inner_;
    std::string folder_;
    Dice& dice_;
    std::string clipboard_;
    std::shared_ptr<const Drawing> picture_;
    std::map<std::string, int> boxes_;
};

}  // namespace arbolith
