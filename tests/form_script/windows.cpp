#include "form_script/on_windows.h"
#include "form_script/session.h"

namespace arbolith {

ExitStatus RunOnWindows(const Arguments& arguments, const CompiledScript& script,
                        std::ostream& output, std::ostream& errors) {
    return static_cast<ExitStatus>(OnWindows(arguments.screen, [&](Host& host,
                                                                   const MakeDriver& makeDriver) {
        return static_cast<int>(RunSession(arguments, script, host, makeDriver, output, errors));
    }));
}

}  // namespace arbolith
