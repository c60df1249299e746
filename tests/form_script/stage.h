// What the steps of a running script work on.
#pragma once

#include "form_script/driver.h"
#include "form_script/recording_host.h"
#include "form_script/tables.h"

#include <functional>
#include <iosfwd>
#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

namespace arbolith {

/// A step that did not hold, and what was found.
class StepFailed : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

struct CompiledStep;

/// Steps that run while the program of this number is being waited for.
struct DuringSteps {
    int line = 0;
    int number = 0;
    std::shared_ptr<const std::vector<CompiledStep>> steps;
};

struct Stage {
    Application& application;
    Driver& driver;
    RecordingHost& host;
    const VariableTable& variables;
    const FunctionTable& functions;
    std::ostream& output;  ///< Where `print` prints.

    /// The script has seen the program's end: its forms can be asked no more.
    bool endSeen = false;
    std::vector<DuringSteps> during;
};

/// What a step does. Throws StepFailed, ActionRefused, NoSuchProperty or the RuntimeError of what
/// it reads.
using Act = std::function<void(Stage& stage)>;

/// A step that is ready to run.
struct CompiledStep {
    int line = 0;
    std::string source;
    bool needsProgram = false;  ///< Refused once the program has ended.
    Act act;
};

}  // namespace arbolith
