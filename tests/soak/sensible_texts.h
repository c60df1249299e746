// What a person would type into a field.
#pragma once

#include "fuzz/dice.h"

#include <string>

namespace arbolith {

/// A text for the field of this name: mostly one that fits it, now and then one that doesn't.
std::string SensibleText(const std::string& field, Dice& dice);

}  // namespace arbolith
