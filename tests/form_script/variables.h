// The program's variables and pure functions that scripts can ask for, by their names.
#pragma once

#include "form_script/tables.h"
#include "shell/program.h"

namespace arbolith {

/// The program must outlive the table.
VariableTable MakeVariables(Program& program);

/// Functions that look something up look it up as the program stands at the call.
FunctionTable MakeFunctions(Program& program);

}  // namespace arbolith
