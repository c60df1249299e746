// A host for unit tests: boxes, beeps and the clipboard are kept, and a started model is a function
// that runs at once; what happens while it is waited for is a function as well.
#pragma once

#include "platform/headless_host.h"

#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace arbolith {

class EndedProcess : public Process {
public:
    bool HasEnded() override { return true; }
    int EndDescriptor() const override { return -1; }
};

class FakeHost : public HeadlessHost {
public:
    bool ShowBox(const Box& box) override {
        boxes.push_back(box);
        return answer;
    }
    void Beep() override { ++beeps; }
    void SetClipboardText(const std::string& text) override { clipboard = text; }
    std::string ClipboardText() override { return clipboard; }
    std::unique_ptr<Process> Start(const ProgramStart& start) override {
        starts.push_back(start);
        if (!canStart) return nullptr;
        if (model) model(start);
        return std::make_unique<EndedProcess>();
    }
    void WaitForEnd(Process&, const std::function<bool()>& giveUp) override {
        ++waits;
        if (!whileWaiting) return;
        whileWaiting();
        gaveUp = giveUp();
    }
    Size ScreenSize() override { return screen; }
    void EndProgram() override { ended = true; }

    /// What a started program does.
    std::function<void(const ProgramStart& start)> model;
    /// What a person does while a program runs.
    std::function<void()> whileWaiting;
    bool canStart = true;
    bool answer = true;
    Size screen{12000, 9000};

    std::vector<Box> boxes;
    std::vector<ProgramStart> starts;
    std::string clipboard = "as before";
    int beeps = 0;
    int waits = 0;
    bool gaveUp = false;
    bool ended = false;
};

}  // namespace arbolith
