// Making a new input from those that are known.
#pragma once

#include "fuzz/dice.h"

#include <string>
#include <vector>

namespace arbolith {

/// One of the pool, changed in a few places: bytes, words, lines and pieces of others of the pool
/// are put in, doubled, moved or taken away. `pool` and `words` are not empty.
std::string Mutated(const std::vector<std::string>& pool, const std::vector<std::string>& words,
                    Dice& dice);

}  // namespace arbolith
