#include "form_script/compile.h"

#include "form_script/step_reader.h"

#include <algorithm>
#include <utility>

namespace arbolith {

namespace {

bool IsSplash(const Step& step) {
    return step.words.front().Is("splash");
}

bool IsAnswer(const Step& step) {
    return step.words.front().Is("answer");
}

CompiledStep CompileStep(const Step& step);

CompiledStep CompileDuring(const Step& step) {
    StepReader words(step, 1);
    const int number = words.Whole("which program", 1);
    words.End();
    auto steps = std::make_shared<std::vector<CompiledStep>>();
    for (const auto& inner : step.body) steps->push_back(CompileStep(inner));
    return {step.line, step.source, true, [line = step.line, number, steps](Stage& stage) {
                stage.during.push_back({line, stage.host.StartCount() + number, steps});
            }};
}

CompiledStep CompileStep(const Step& step) {
    const auto& word = step.words.front();
    if (IsSplash(step)) throw ScriptError(step.line, "splash only as the first step");
    if (word.Is("during")) return CompileDuring(step);
    if (word.Is("expect")) return CompileExpectation(step);
    if (word.Is("print")) return CompilePrint(step);
    return CompileAction(step);
}

}  // namespace

CompiledScript Compile(const std::vector<Step>& steps) {
    CompiledScript script;
    bool isHead = true;
    for (const auto& step : steps) {
        isHead = isHead && (IsAnswer(step) || (IsSplash(step) && !script.beginsWithSplash));
        if (isHead && IsSplash(step)) {
            StepReader(step, 1).End();
            script.beginsWithSplash = true;
        } else {
            (isHead ? script.head : script.rest).push_back(CompileStep(step));
        }
    }
    return script;
}

}  // namespace arbolith
