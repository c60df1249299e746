// The whole program: its forms put together, from the splash to the end.
#pragma once

#include "batch/batch.h"
#include "forms/resize.h"
#include "model_bridge/run_command.h"
#include "run_definition/run_definition.h"
#include "saved_runs/saved_runs.h"
#include "shell/result_windows.h"
#include "shell/splash.h"

namespace arbolith {

class Program {
public:
    explicit Program(Application& application);

    /// Loads the splash, and by it the main form, and shows the splash. The main form shows when
    /// the splash goes: at its timer or at a click.
    void Start();

    Splash& GetSplash() { return splash_; }
    RunDefinition& Run() { return run_; }
    Batch& GetBatch() { return batch_; }
    SavedRuns& Saved() { return saved_; }
    ResultWindows& Results() { return results_; }

private:
    void LoadSplash();
    void LoadMainForm();
    void ReadCommandLine();
    void EndSplash();
    void Centre(Form& form);

    Application& application_;
    Resize resize_;
    Splash splash_;
    RunDefinition run_;
    Batch batch_;
    SavedRuns saved_;
    ResultWindows results_;
    RunCommand runCommand_;
};

}  // namespace arbolith
