// How much memory the process has.
#pragma once

#include <cstddef>

namespace arbolith {

struct Memory {
    std::size_t heap = 0;      ///< Bytes that the program has asked for and not given back.
    std::size_t resident = 0;  ///< Bytes that the system has given it.
};

/// Lets go of the pictures that the toolkit keeps for speed, up to a size of its own, and measures.
Memory MeasureMemory();

}  // namespace arbolith
