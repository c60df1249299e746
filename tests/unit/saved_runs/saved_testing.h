// What the tests of the saved runs share: the program after its splash, and run files to open.
#pragma once

#include "forms/user_actions.h"
#include "shell/program.h"
#include "unit/model_bridge/bridge_testing.h"

#include <array>
#include <gtest/gtest.h>
#include <string>

namespace arbolith {

using RunFileText = std::array<std::string, 8>;

/// A natural white pine stand without a treatment.
inline RunFileText PineFile() {
    return {"banner", "Softwood,Metric", "Yes,No,0.0,0.0,0",   "White Pine", "0.0,6",
            "100",    "80,0.0",          "0,0,0.0,0.0,0,0,0.0"};
}

inline std::string Joined(const RunFileText& lines) {
    std::string text;
    for (const auto& line : lines) text += line + "\r\n";
    return text;
}

inline constexpr const char* kLoadFailed =
    "An error has occurred while trying to load the file.  Ensure that it exists and is not in use "
    "by any other program";
inline constexpr const char* kSaveFailed =
    "An error has occurred while trying to save the file.  Ensure that it exists and is not in use "
    "by any other program";

class SavedRunsTest : public testing::Test {
protected:
    SavedRunsTest() {
        program.Start();
        person.Click(program.GetSplash().Frame1);
        host.model = [this](const ProgramStart&) {
            folder.Write("_OUTPUT.TMP",
                         ModelOutput({{.sage = 20, .tdbh = 10, .tf = 2000, .th = 7},
                                      {.sage = 55, .tdbh = 25, .mdbh = 20, .th = 20},
                                      {.sage = 70, .tdbh = 30, .mdbh = 25, .th = 25}}));
        };
    }

    void Read(const std::string& text) {
        folder.Write("stand.qvn", text);
        ReadRunFile(saved, folder.PathOf("stand.qvn"));
    }
    void Read(const RunFileText& lines) { Read(Joined(lines)); }
    void SwitchToAdvancedMode() {
        host.answers = {true};
        person.Click(form.Adv_Mode);
    }

    TestFolder folder;
    FakeHost host;
    Application application{host, folder.Path(), ""};
    Program program{application};
    UserActions person{application};
    SavedRuns& saved = program.Saved();
    RunDefinition& run = program.Run();
    MainForm& form = run.form;
};

}  // namespace arbolith
