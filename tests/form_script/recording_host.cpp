#include "form_script/recording_host.h"

#include "form_script/script.h"
#include "form_script/timed_process.h"
#include "platform/runtime_error.h"

#include <filesystem>
#include <unistd.h>
#include <utility>

namespace arbolith {

namespace {

constexpr const char* kEditor = "notepad";

/// A started program with its number; one without a process is over.
class NumberedProcess : public Process {
public:
    NumberedProcess(std::unique_ptr<Process> process, int number, std::string name)
        : process_(std::move(process)), number_(number), name_(std::move(name)) {}

    bool HasEnded() override { return process_ == nullptr || process_->HasEnded(); }
    int EndDescriptor() const override {
        return process_ == nullptr ? -1 : process_->EndDescriptor();
    }

    int ItsNumber() const { return number_; }
    const std::string& Name() const { return name_; }

private:
    std::unique_ptr<Process> process_;
    int number_;
    std::string name_;
};

}  // namespace

RecordingHost::RecordingHost(Host& inner, std::string folder)
    : inner_(inner), folder_(std::move(folder)) {}

bool RecordingHost::ShowBox(const Box& box) {
    recordings_.boxes.push_back(box);
    if (box.buttons == BoxButtons::kOk) return true;
    if (const auto yes = answers_.TakeYesNo()) return *yes;
    if (onFailure) onFailure("an answer to the question " + Quoted(box.text), "none");
    return false;
}

std::optional<FileChoice> RecordingHost::ChooseFile(const FileQuestion& question) {
    recordings_.dialog = FileDialog{question.saves, question.filter};
    const auto answer = answers_.TakeForFileDialog();
    if (!answer) {
        if (onFailure) onFailure("an answer to a dialog for " + Quoted(question.filter), "none");
        return std::nullopt;
    }
    if (answer->kind == DialogAnswer::kCancel) return std::nullopt;
    FileChoice choice{answer->text, question.filterIndex};
    // An empty name is no file, wherever it lies.
    if (!choice.fileName.empty())
        choice.fileName = (std::filesystem::path(folder_) / choice.fileName).string();
    if (answer->filterIndex > 0) choice.filterIndex = answer->filterIndex;
    return choice;
}

std::optional<std::string> RecordingHost::AskForText(const std::string& prompt) {
    recordings_.inputPrompt = prompt;
    const auto answer = answers_.TakeForInputBox();
    if (!answer && onFailure) onFailure("an answer to the input box " + Quoted(prompt), "none");
    if (!answer || answer->kind == DialogAnswer::kCancel) return std::nullopt;
    return answer->text;
}

void RecordingHost::SetClipboard(const std::string& text, std::shared_ptr<const Drawing> picture) {
    clipboard_ = text;
    picture_ = std::move(picture);
}

void RecordingHost::Print(const Drawing&) {
    if (printer == PrinterAnswer::kNone) throw RuntimeError(ErrorNumber::kPrinter);
    ++recordings_.printed;
}

OpenResult RecordingHost::Open(const std::string& address) {
    if (opener == OpenerAnswer::kNone) return OpenResult::kNoOpener;
    recordings_.opened.push_back(address);
    return opener == OpenerAnswer::kFailed ? OpenResult::kFailed : OpenResult::kOpened;
}

std::unique_ptr<Process> RecordingHost::Start(const ProgramStart& start) {
    const auto name = start.FileName();
    auto program = start;
    auto text = name;
    bool onlyRecorded = false;
    if (name == kEditor) {
        for (const auto& argument : start.arguments) text += " " + argument;
        program.program = (std::filesystem::path(folder_) / kEditor).string();
        onlyRecorded = access(program.program.c_str(), X_OK) != 0;
    }
    recordings_.started.push_back({text, start.mode});
    ++recordings_.starts;
    const int number = ++startCount_;
    if (onlyRecorded) return std::make_unique<NumberedProcess>(nullptr, number, name);
    auto process = inner_.Start(program);
    if (process == nullptr) return nullptr;
    running_.Watch(*process);
    return std::make_unique<NumberedProcess>(std::move(process), number, name);
}

void RecordingHost::WaitForEnd(Process& process, const std::function<bool()>& giveUp) {
    // Every process of the program came from Start.
    auto& numbered = static_cast<NumberedProcess&>(process);
    if (onWait) onWait(numbered.ItsNumber());
    const auto over = [&] { return abandoned_ || giveUp(); };
    if (over() || numbered.HasEnded()) return;
    const auto began = std::chrono::steady_clock::now();
    TimedProcess timed(numbered, left_);
    inner_.WaitForEnd(timed, over);
    left_ -= std::chrono::steady_clock::now() - began;
    if (over() || numbered.HasEnded() || !timed.TimeIsUp()) return;
    RunningPrograms::End(numbered);
    if (onFailure) onFailure("the step to wait no longer", numbered.Name() + " still running");
}

Size RecordingHost::ScreenSize() {
    return screen_ ? *screen_ : inner_.ScreenSize();
}

}  // namespace arbolith
