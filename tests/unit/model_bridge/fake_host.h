// A host for unit tests: boxes, beeps and the clipboard are kept, and a started model is a function
// that runs at once; what happens while it is waited for is a function as well.
#pragma once

#include "platform/headless_host.h"
#include "platform/runtime_error.h"

#include <deque>
#include <functional>
#include <memory>
#include <optional>
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
    /// Chooses what is queued; where nothing is, the dialog is cancelled.
    std::optional<FileChoice> ChooseFile(const FileQuestion& question) override {
        questions.push_back(question);
        if (files.empty()) return std::nullopt;
        FileChoice choice{files.front(), question.filterIndex};
        files.pop_front();
        return choice;
    }
    OpenResult Open(const std::string& address) override {
        opened.push_back(address);
        if (openError) throw RuntimeError(*openError);
        return openResult;
    }
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
    std::deque<std::string> files;
    OpenResult openResult = OpenResult::kOpened;
    std::optional<ErrorNumber> openError;
    bool answer = true;
    Size screen{12000, 9000};

    std::vector<Box> boxes;
    std::vector<FileQuestion> questions;
    std::vector<std::string> opened;
    std::vector<ProgramStart> starts;
    std::string clipboard = "as before";
    int beeps = 0;
    int waits = 0;
    bool gaveUp = false;
    bool ended = false;
};

}  // namespace arbolith
