// What a script may ask of the program beyond its controls: variables by name, and pure functions.
#pragma once

#include "form_script/value.h"

#include <cstddef>
#include <functional>
#include <map>
#include <string>
#include <vector>

namespace arbolith {

/// A variable; an array's variable takes one index. An index outside throws a RuntimeError.
struct Variable {
    std::size_t indexes = 0;
    std::function<Value(const std::vector<int>& indexes)> read;
};
using VariableTable = std::map<std::string, Variable, std::less<>>;

/// A pure function of texts, called with as many as it takes. What it can't work on throws a
/// RuntimeError.
struct Function {
    std::size_t arguments = 1;
    std::function<Value(const std::vector<std::string>& arguments)> call;
};
using FunctionTable = std::map<std::string, Function, std::less<>>;

}  // namespace arbolith
