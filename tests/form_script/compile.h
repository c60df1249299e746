// Makes the steps of a script ready to run: looks up what their words mean, so that a script that
// can't be run is refused before it has done anything.
#pragma once

#include "form_script/script.h"
#include "form_script/stage.h"

#include <vector>

namespace arbolith {

/// A script that is ready to run.
struct CompiledScript {
    std::vector<CompiledStep> head;  ///< The answers that are queued before the program starts.
    std::vector<CompiledStep> rest;
    bool beginsWithSplash = false;  ///< The steps of the rest begin with the splash up.
};

/// Throws a ScriptError for a step that doesn't exist or whose words don't fit it.
CompiledScript Compile(const std::vector<Step>& steps);

/// An action, an answer or a `host` line.
CompiledStep CompileAction(const Step& step);
/// An `expect` line.
CompiledStep CompileExpectation(const Step& step);
/// A `print` line.
CompiledStep CompilePrint(const Step& step);

}  // namespace arbolith
