// The forms' program without windows, in a work folder of its own.
#pragma once

#include "cli/console_host.h"
#include "cli/work_folder.h"
#include "forms/user_actions.h"
#include "shell/program.h"

#include <string>

namespace arbolith::console {

class Session {
public:
    /// `modelFolder` is where the models lie. Throws a Failure where it can't be used.
    Session(Terminal& terminal, const std::string& modelFolder);

    /// Does something as an event of the program. Throws the failure that it led to, or
    /// Interrupted.
    template <class Work>
    void Do(Work work) {
        application_.Enter(work);
        host.ThrowFailure();
    }

    /// The same for a click of a person.
    void Click(Control& control) {
        person_.Click(control);
        host.ThrowFailure();
    }

    /// Does the whole job of a request. Where it fails for want of room in the work folder, that is
    /// the failure thrown: all else may have followed from it.
    template <class Job>
    ExitStatus Carry(const std::string& request, Job job) {
        try {
            return job();
        } catch (const Failure&) {
            folder_.RequireRoom(request);
            throw;
        }
    }

    Program& Forms() { return program_; }
    const WorkFolder& Folder() const { return folder_; }

    ConsoleHost host;

private:
    WorkFolder folder_;
    Application application_;
    Program program_;
    UserActions person_;
};

}  // namespace arbolith::console
