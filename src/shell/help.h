// The compiled help file that lies beside the program.
#pragma once

#include "forms/application.h"

namespace arbolith {

inline constexpr const char* kHelpFileName = "qvlhelp.chm";

/// Opens the help file at its first page. Says nothing where there is none.
void ShowHelpFile(Application& application);

/// Closes the help windows.
void CloseAllHelp(Application& application);

}  // namespace arbolith
