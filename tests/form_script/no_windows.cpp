// Takes the place of the windows in a build without them.
#include "form_script/session.h"

#include <ostream>

namespace arbolith {

ExitStatus RunOnWindows(const Arguments&, const CompiledScript&, std::ostream&,
                        std::ostream& errors) {
    errors << "form_script: built without the windows, so --window can't be used\n";
    return ExitStatus::kUnusable;
}

}  // namespace arbolith
