// Programs that are started and waited for.
#pragma once

#include <memory>
#include <string>
#include <vector>

namespace arbolith {

/// What is to be started.
struct ProgramStart {
    std::string program;                 ///< Full path, or a name on this program's search path.
    std::vector<std::string> arguments;  ///< Behind the program's own name.
    std::string folder;                  ///< Working directory and search path; empty for its own.
    int mode = 0;                        ///< 1: hidden; any other: a normal window with the focus.

    /// The last part of the program's path.
    std::string FileName() const;
};

/// A started program. Letting go of it leaves the program running.
class Process {
public:
    virtual ~Process() = default;
    /// Whether it has ended; its exit code is not looked at.
    virtual bool HasEnded() = 0;
    /// A file descriptor that becomes readable when the program ends.
    virtual int EndDescriptor() const = 0;
};

/// Starts a program with nothing on its standard input and its output thrown away. A Windows
/// program is started through wine. Returns null where it can't be started.
std::unique_ptr<Process> StartProcess(const ProgramStart& start);

}  // namespace arbolith
