// A host for unit tests: boxes and beeps are recorded, questions are answered from a queue, and no
// program is ever started. A stand-in may write what a model would have written.
#pragma once

#include "platform/headless_host.h"

#include <deque>
#include <functional>
#include <gtest/gtest.h>
#include <memory>
#include <string>
#include <vector>

namespace arbolith {

class FakeHost : public HeadlessHost {
public:
    bool ShowBox(const Box& box) override {
        boxes.push_back(box);
        if (box.buttons == BoxButtons::kOk) return true;
        if (answers.empty()) {
            ADD_FAILURE() << "No answer to: " << box.text;
            return false;
        }
        const bool answer = answers.front();
        answers.pop_front();
        return answer;
    }

    void Beep() override { ++beeps; }
    void SetClipboardText(const std::string& text) override { clipboard = text; }
    std::string ClipboardText() override { return clipboard; }

    /// Counts as a program that could not be started; what the stand-in wrote is there all the
    /// same.
    std::unique_ptr<Process> Start(const ProgramStart& start) override {
        starts.push_back(start);
        if (model) model(start);
        return nullptr;
    }
    void WaitForEnd(Process&, const std::function<bool()>&) override {}
    Size ScreenSize() override { return {1024 * 15, 768 * 15}; }
    void EndProgram() override {}

    std::vector<Box> boxes;
    std::deque<bool> answers;
    int beeps = 0;
    std::string clipboard;
    std::vector<ProgramStart> starts;
    /// What runs in a model's place.
    std::function<void(const ProgramStart&)> model;
};

}  // namespace arbolith
