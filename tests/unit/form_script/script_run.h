// Runs scripts on two small forms, with really started programs.
#pragma once

#include "form_script/headless_driver.h"
#include "form_script/interpreter.h"
#include "forms/chart.h"
#include "platform/headless_host.h"
#include "platform/runtime_error.h"
#include "unit/platform/temporary_folder.h"

#include <gtest/gtest.h>
#include <sstream>
#include <string>

namespace arbolith {

/// A driver that can stand for a screen: it shows what a test puts into `shown`.
class TestDriver : public HeadlessDriver {
public:
    using HeadlessDriver::HeadlessDriver;

    std::optional<std::string> Shown(const Control& control, const std::string& property) override {
        const auto found = shown.find(control.Name() + "." + property);
        return found == shown.end() ? std::nullopt : std::optional(found->second);
    }

    std::map<std::string, std::string> shown;
};

class ScriptRun : public ::testing::Test {
protected:
    ScriptRun() {
        variables["Count"] = {0, [this](const auto&) { return Number(count); }};
        variables["Rows"] = {1, [](const std::vector<int>& at) -> Value {
                                 if (at[0] > 1) throw RuntimeError(ErrorNumber::kSubscript);
                                 return "row " + std::to_string(at[0]);
                             }};
        functions["Join"] = {
            2, [](const std::vector<std::string>& texts) -> Value { return texts[0] + texts[1]; }};
        form.Show();
    }

    /// Runs a script; true when everything held. `errors` then says what did not.
    bool Run(const std::string& text, bool keepGoing = false) {
        errors.str("");
        Stage stage{application, driver, host, variables, functions, printed, false, {}};
        Interpreter interpreter(stage, "a.script", keepGoing, errors);
        const auto script = Compile(ReadScript(text, {folder.Path(), "/", "2.1.0"}));
        interpreter.Run(script.head);
        interpreter.Run(script.rest);
        interpreter.Finish();
        return interpreter.Held();
    }

    /// Runs a script that fails; what it reports.
    std::string Failure(const std::string& text, bool keepGoing = false) {
        EXPECT_FALSE(Run(text, keepGoing)) << text;
        return errors.str();
    }

    /// Starts a program of the folder and waits for it, as the program would.
    void StartAndWait(const std::string& name, int mode = 0) {
        if (const auto process = host.Start({folder.PathOf(name), {}, folder.Path(), mode}))
            host.WaitForEnd(*process, [this] { return application.HasEnded(); });
        application.UnwindIfEnded();
    }

    TemporaryFolder folder;
    HeadlessHost inner;
    RecordingHost host{inner, folder.Path()};
    Application application{host, folder.Path(), ""};
    Form form{application, "QvlySwd", "Title", {6000, 4500}};
    Button button{form, "btn", "Press"};
    TextBox box{form, "txt", {}, 4};
    ListBox list{form, "lst"};
    VariableTable variables;
    FunctionTable functions;
    TestDriver driver{application};
    std::ostringstream printed;
    std::ostringstream errors;
    int count = 0;
};

}  // namespace arbolith
