// Which places of the reader an input has been through. Only a build with ARBOLITH_FUZZ reports
// any.
#pragma once

#include <cstddef>

namespace arbolith {

/// Forgets what was reached since the last call, and tells how many places were new to all inputs.
std::size_t TakeNewPlaces();

/// How many places all inputs together have reached.
std::size_t PlacesReached();

}  // namespace arbolith
