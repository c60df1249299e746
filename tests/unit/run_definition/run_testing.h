// What the tests of the run definition share: a run without any event wired, for the procedures on
// their own, and the whole program with a person at it, for what the events do.
#pragma once

#include "forms/user_actions.h"
#include "run_definition/run_definition.h"
#include "shell/program.h"
#include "unit/platform/fake_host.h"

#include <filesystem>
#include <gtest/gtest.h>
#include <initializer_list>
#include <string>
#include <utility>
#include <vector>

namespace arbolith {

/// An application folder of its own, gone with the object.
class FreshFolder {
public:
    FreshFolder();
    ~FreshFolder();
    FreshFolder(const FreshFolder&) = delete;
    FreshFolder& operator=(const FreshFolder&) = delete;

    std::string Path() const { return path_.string(); }

private:
    std::filesystem::path path_;
};

/// A run whose controls raise nothing: what a procedure does by itself.
struct BareRun {
    BareRun();

    FakeHost host;
    Application application{host, "", ""};
    RunDefinition run{application};
    MainForm& form = run.form;
    int probes = 0;

    /// Sets wood type and units in options and record alike.
    void Choose(const std::string& woodType, const std::string& units);
    /// Loads the species' list and selects one; its name goes into the summary too.
    void SelectSpecies(const std::string& name);
    /// A row of the Land Capability list.
    void SelectClass(int landCapability);
    void Plant(const std::string& x, const std::string& y);
};

/// One row of a model's output, as far as the probe looks at it.
struct ModelRow {
    int sage = 0;
    double tdbh = 0;
    double mdbh = 0;
    double tf = 0;
    double th = 0;
};

/// The program after its splash, with a person at the main form.
struct RunningProgram {
    RunningProgram();

    FreshFolder folder;
    FakeHost host;
    Application application{host, folder.Path(), ""};
    Program program{application};
    RunDefinition& run{program.Run()};
    MainForm& form{run.form};
    UserActions person{application};

    /// The rows that each model start writes from now on.
    void ModelAnswers(std::vector<ModelRow> rows);
    /// The buttons of these steps, one after the other.
    void Press(std::initializer_list<int> steps);
    void PressStep(int step);
    /// A row of a list by its text.
    void Select(ListBox& list, const std::string& row);
    /// A valid softwood stand up to an open step 7: White Pine, class 6, stocking 100, rotation at
    /// this age.
    void EnterSoftwood(const std::string& rotationAge = "80");
    /// The same for a hardwood stand: Red Oak, class 3.
    void EnterHardwood(const std::string& rotationAge = "80");

    /// The enabled ones of the step buttons, Run and Append_Btn, as the level that leaves them so;
    /// -1 for a state that no level gives.
    int Level() const;
};

/// A test with the running program, whose parts go by short names.
class RunningTest : public testing::Test {
protected:
    RunningProgram running;
    RunDefinition& run = running.run;
    MainForm& form = running.form;
    UserActions& person = running.person;
    FakeHost& host = running.host;
};

/// Reads the level from the buttons' states.
int LevelOf(const MainForm& form);

}  // namespace arbolith
