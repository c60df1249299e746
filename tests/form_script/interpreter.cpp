#include "form_script/interpreter.h"

#include "form_script/step_reader.h"
#include "platform/runtime_error.h"

#include <algorithm>
#include <iterator>
#include <ostream>
#include <utility>

namespace arbolith {

namespace {

std::string ExpectedBy(const CompiledStep& step) {
    constexpr std::string_view kExpect = "expect";
    if (!step.source.starts_with(kExpect)) return "to be able to " + step.source;
    auto expected = step.source.substr(kExpect.size());
    expected.erase(0, expected.find_first_not_of(" \t"));
    return expected;
}

}  // namespace

Interpreter::Interpreter(Stage& stage, std::string scriptName, bool keepGoing, std::ostream& errors)
    : stage_(stage), scriptName_(std::move(scriptName)), keepGoing_(keepGoing), errors_(errors) {
    stage_.host.onWait = [this](int number) { RunDuring(number); };
    stage_.host.onFailure = [this](const std::string& expected, const std::string& found) {
        Report(line_, expected, found);
    };
}

Interpreter::~Interpreter() {
    stage_.host.onWait = nullptr;
    stage_.host.onFailure = nullptr;
}

void Interpreter::Report(int line, const std::string& expected, const std::string& found) {
    // What fails only because the script has stopped is no news.
    if (Stopped()) return;
    errors_ << scriptName_ << ':' << line << ": expected " << expected << ", found " << found
            << std::endl;
    ++failures_;
    if (!keepGoing_) stage_.host.Abandon();
}

void Interpreter::Attempt(int line, const std::string& expected,
                          const std::function<void()>& work) {
    const int outerLine = std::exchange(line_, line);
    if (++depth_ == 1) stage_.host.BeginStep();
    try {
        work();
    } catch (const RuntimeError& error) {
        Report(line, expected,
               "run-time error '" + std::to_string(static_cast<int>(error.Number())) + "', " +
                   error.what());
    } catch (const std::exception& error) {
        Report(line, expected, error.what());
    }
    --depth_;
    line_ = outerLine;
}

void Interpreter::RunStep(const CompiledStep& step) {
    Attempt(step.line, ExpectedBy(step), [&] {
        if (step.needsProgram && stage_.application.HasEnded())
            throw ActionRefused("that the program has ended");
        step.act(stage_);
    });
}

void Interpreter::Run(const std::vector<CompiledStep>& steps) {
    for (const auto& step : steps) {
        if (Stopped()) return;
        RunStep(step);
    }
}

void Interpreter::RunDuring(int number) {
    auto& waiting = stage_.during;
    const auto mine = std::stable_partition(
        waiting.begin(), waiting.end(),
        [number](const DuringSteps& during) { return during.number != number; });
    std::vector<DuringSteps> due(std::make_move_iterator(mine),
                                 std::make_move_iterator(waiting.end()));
    waiting.erase(mine, waiting.end());
    // A person sees what the program shows before it waits.
    if (!due.empty() && stage_.application.onSettled) stage_.application.onSettled();
    for (const auto& during : due) Run(*during.steps);
}

void Interpreter::Finish() {
    for (const auto& during : std::exchange(stage_.during, {}))
        Report(during.line, "its program to be waited for", "that it never was");
}

}  // namespace arbolith
