// What passes between this program and a model program: the files in the application folder, by
// which a model is told its stand and tells its result.
#pragma once

#include "forms/application.h"
#include "model_bridge/run_and_wait.h"
#include "platform/runtime_error.h"
#include "run_definition/run_definition.h"

#include <array>
#include <string>

namespace arbolith {

/// The number under which all files of a single run and of the treatment probe are opened.
inline constexpr int kExchangeFile = 1;
inline constexpr const char* kPathFileName = "_PATHINF.TMP";
inline constexpr const char* kInputFileName = "_INPUT.TMP";
inline constexpr const char* kOutputFileName = "_OUTPUT.TMP";

/// The model program of a wood type: the hardwood model unless the word is "Softwood".
const char* ModelFileName(const std::string& woodType);

/// Writes the file that tells a model where it finds its input and leaves its output, both files of
/// the application folder.
void WritePathFile(Application& application, int fileNumber, const std::string& inputName,
                   const std::string& outputName);

/// Hands the record to its model and waits until the model has ended. Failures of the files are
/// those of NumberedFiles; a model that can't be started is none. Returns the run line.
std::string ExchangeWithModel(RunDefinition& run, StartMode mode);

/// How many variables a row of a model's output holds.
inline constexpr int kVariables = 25;
using OutputRow = std::array<double, kVariables>;

/// Reads a row's variables, in their fixed order, from the output file that is open.
void ReadOutputRow(NumberedFiles& files, OutputRow& row);

/// The box and the clean-up of an error that ended a command of the bridge: told only for a failure
/// of a file.
void TrapModelError(Application& application, ErrorNumber error);

}  // namespace arbolith
