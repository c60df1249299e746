// What the tests of the console program share: folders with models and files, the program as a
// process, and the same stands on the forms for comparison.
#pragma once

#include "unit/platform/temporary_folder.h"

#include <gtest/gtest.h>
#include <map>
#include <string>
#include <sys/types.h>
#include <vector>

namespace arbolith {

/// How the program ended and what it said.
struct Ended {
    int status = -1;
    std::string output;
    std::string errors;
};

/// The lines of a run file, changed by the tests field by field.
struct StandLines {
    std::string system = "Softwood,Metric";
    std::string regeneration = "Yes,No,0.0,0.0,0";
    std::string species = "White Pine";
    std::string site = "0.0,8";
    std::string stocking = "100";
    std::string rotation = "100,0.0";
    std::string treatments = "0,0,0.0,0.0,0,0,0.0";

    std::string Text() const;
};

class ConsoleTest : public testing::Test {
public:
    ConsoleTest();

    /// Starts the program in the work folder with words behind its name and waits for its end.
    /// `variables` go into its environment. A descriptor that isn't -1 becomes its output or its
    /// errors, which then aren't brought back.
    Ended Run(const std::vector<std::string>& words) const { return Run(words, -1, -1); }
    Ended Run(const std::vector<std::string>& words, int output, int errors) const;

    /// Starts it without waiting; its output and errors go to files of the work folder.
    pid_t Start(const std::vector<std::string>& words, const std::string& name) const;
    /// Waits for it and brings back what it wrote to the files of this name.
    Ended WaitFor(pid_t process, const std::string& name) const;

    /// Puts a script in the place of both models.
    void ReplaceModels(const std::string& commands) const;

    /// Whether nothing is left of the folders that the runs worked in.
    bool LeftNothingBehind() const;

    TemporaryFolder work;     ///< Where the program is started.
    TemporaryFolder models;   ///< Holds the models that come with the program.
    TemporaryFolder scratch;  ///< Holds the folders that the program works in.
    /// The environment's folder for temporary ones.
    std::string temporary = scratch.Path();
};

/// A line of a text, counted from 0, without its line end.
std::string LineOf(const std::string& text, std::size_t number);

/// A batch file with these sequence lines and this value of its output line.
std::string BatchText(const std::vector<std::string>& sequences,
                      const std::string& output = "default txt");

/// A sequence line of a natural stand of 100 years with this plot label: white pine or sugar maple.
std::string SequenceLine(const std::string& plot, const std::string& wood);

}  // namespace arbolith
