// A whole run of a script: the program is started on a host, the script acts on it, and what it was
// run on is let go.
#pragma once

#include "form_script/arguments.h"
#include "form_script/compile.h"
#include "form_script/driver.h"

#include <functional>
#include <iosfwd>
#include <memory>

namespace arbolith {

/// How form_script ends.
enum class ExitStatus : int { kHeld = 0, kFailed = 1, kUnusable = 2 };

/// Makes what acts on the forms, with everything that it needs; called before there are any forms.
using MakeDriver = std::function<std::shared_ptr<Driver>(Application&)>;

/// Reads and compiles the script of the arguments. Throws a ScriptError, or BadArguments where it
/// can't be read.
CompiledScript LoadScript(const Arguments& arguments);

/// Runs a script. `inner` starts and waits for programs; prints go to `output`, failures to
/// `errors`.
ExitStatus RunSession(const Arguments& arguments, const CompiledScript& script, Host& inner,
                      const MakeDriver& makeDriver, std::ostream& output, std::ostream& errors);

/// The same on the real windows; says so on `errors` where they are not part of this build.
ExitStatus RunOnWindows(const Arguments& arguments, const CompiledScript& script,
                        std::ostream& output, std::ostream& errors);

}  // namespace arbolith
