#include "shell/help.h"

namespace arbolith {

void ShowHelpFile(Application& application) {
    application.GetHost().ShowHelp(application.PathOf(kHelpFileName));
}

void CloseAllHelp(Application& application) {
    application.GetHost().CloseHelp();
}

}  // namespace arbolith
