// Saving a run.
#include "model_bridge/exchange.h"
#include "saved_runs/run_file.h"
#include "saved_runs/saved_runs.h"

namespace arbolith {

void WriteRunFile(SavedRuns& saved, const std::string& path) {
    auto& run = saved.run;
    auto& files = run.application.Files();
    try {
        files.OpenForReplacement(kExchangeFile, path);
        for (const auto& line : RunFileLines(run.record, run.globals.UnitSystem))
            files.PrintLine(kExchangeFile, line);
        files.Close(kExchangeFile);
        run.InputChanged = false;
        saved.RunFilePath = path;
    } catch (const RuntimeError& error) {
        if (InFileErrorSet(error.Number()))
            run.application.ShowBox(
                "An error has occurred while trying to save the file.  Ensure that it exists and "
                "is not in use by any other program");
        files.CloseQuietly(kExchangeFile);
    }
}

}  // namespace arbolith
