#include "model_bridge/exchange.h"

#include "model_bridge/run_line.h"

namespace arbolith {

namespace {

// The second file number that a command may have left open.
constexpr int kSecondFile = 2;

void WriteInputFile(Application& application, const std::string& runLine) {
    auto& files = application.Files();
    files.OpenForOutput(kExchangeFile, application.PathOf(kInputFileName));
    files.PrintLine(kExchangeFile, "0\t" + runLine);
    files.Close(kExchangeFile);
}

}  // namespace

const char* ModelFileName(const std::string& woodType) {
    return woodType == "Softwood" ? "SWQVL.exe" : "HWQVL.exe";
}

void WritePathFile(Application& application, int fileNumber, const std::string& inputName,
                   const std::string& outputName) {
    auto& files = application.Files();
    files.OpenForOutput(fileNumber, application.PathOf(kPathFileName));
    files.PrintLine(fileNumber, application.PathOf(inputName));
    files.PrintLine(fileNumber, application.PathOf(outputName));
    files.Close(fileNumber);
}

std::string ExchangeWithModel(RunDefinition& run, StartMode mode) {
    auto& application = run.application;
    auto runLine = BuildRunLine(run.record, run.globals.UnitSystem, run.ShortHardwoodList);
    const std::string model = ModelFileName(run.record.WDTYPE);
    WritePathFile(application, kExchangeFile, kInputFileName, kOutputFileName);
    WriteInputFile(application, runLine);
    RunAndWait(application, model, mode);
    return runLine;
}

void ReadOutputRow(NumberedFiles& files, OutputRow& row) {
    for (double& value : row) value = files.ReadReal(kExchangeFile);
}

void TrapModelError(Application& application, ErrorNumber error) {
    if (InFileErrorSet(error))
        application.ShowBox(
            "A required file is missing.  Try closing the program and restarting.  Reinstalling "
            "the program may be necessary.");
    application.Files().CloseQuietly(kExchangeFile);
    application.Files().CloseQuietly(kSecondFile);
}

}  // namespace arbolith
