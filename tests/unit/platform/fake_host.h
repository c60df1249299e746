// The host of unit tests: what the forms ask of it is kept, answers are queued, and a started
// program is a function that runs at once; what happens while it is waited for is a function too.
#pragma once

#include "platform/headless_host.h"
#include "platform/runtime_error.h"

#include <deque>
#include <functional>
#include <gtest/gtest.h>
#include <memory>
#include <optional>
#include <string>
#include <utility>
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
        if (box.buttons == BoxButtons::kOk) return true;
        const auto answer = Next(answers);
        if (!answer) ADD_FAILURE() << "No answer to: " << box.text;
        return answer.value_or(false);
    }
    void Beep() override { ++beeps; }
    std::optional<FileChoice> ChooseFile(const FileQuestion& question) override {
        questions.push_back(question);
        return Next(files);
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
    Date Today() override { return today; }
    Size ScreenSize() override { return screen; }
    void EndProgram() override { ++ends; }

    /// To the Yes/No boxes to come.
    std::deque<bool> answers;
    /// What is chosen in the dialogs to come; those behind the last are cancelled.
    std::deque<FileChoice> files;
    /// What a started program does.
    std::function<void(const ProgramStart& start)> model;
    /// What a person does while a program runs.
    std::function<void()> whileWaiting;
    bool canStart = true;
    OpenResult openResult = OpenResult::kOpened;
    std::optional<ErrorNumber> openError;
    Date today{2026, 3, 5};
    Size screen{15360, 11520};

    std::vector<Box> boxes;
    std::vector<FileQuestion> questions;
    std::vector<std::string> opened;
    std::vector<ProgramStart> starts;
    int beeps = 0;
    int waits = 0;
    bool gaveUp = false;
    int ends = 0;

private:
    template <class Answer>
    static std::optional<Answer> Next(std::deque<Answer>& queue) {
        if (queue.empty()) return std::nullopt;
        auto answer = std::move(queue.front());
        queue.pop_front();
        return answer;
    }
};

}  // namespace arbolith
