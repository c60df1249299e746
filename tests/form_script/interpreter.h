// Runs the steps of a script one after the other and reports those that don't hold.
#pragma once

#include "form_script/compile.h"
#include "form_script/stage.h"

#include <functional>
#include <iosfwd>
#include <string>
#include <vector>

namespace arbolith {

class Interpreter {
public:
    /// Failures go to `errors`, a line each: `SCRIPT:LINE: what was expected, what was found`. With
    /// `keepGoing` the steps behind a failure run too. The stage's host reports to this as long as
    /// it lives.
    Interpreter(Stage& stage, std::string scriptName, bool keepGoing, std::ostream& errors);
    ~Interpreter();
    Interpreter(const Interpreter&) = delete;
    Interpreter& operator=(const Interpreter&) = delete;

    /// Runs the steps up to the first failure, or all of them when it keeps going.
    void Run(const std::vector<CompiledStep>& steps);
    /// Runs something that belongs to a line; what it throws is reported there.
    void Attempt(int line, const std::string& expected, const std::function<void()>& work);
    /// The script is over: steps that still wait for a program have failed.
    void Finish();

    /// Whether everything held so far.
    bool Held() const { return failures_ == 0; }

private:
    void RunStep(const CompiledStep& step);
    void RunDuring(int number);
    void Report(int line, const std::string& expected, const std::string& found);
    bool Stopped() const { return failures_ > 0 && !keepGoing_; }

    Stage& stage_;
    std::string scriptName_;
    bool keepGoing_;
    std::ostream& errors_;
    int line_ = 0;   // Of the innermost step that runs.
    int depth_ = 0;  // 1 for a step of the script itself, more for one inside a wait.
    int failures_ = 0;
};

}  // namespace arbolith
