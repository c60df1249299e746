// How much memory the process has.
#pragma once

#include <cstddef>

namespace arbolith {

struct Memory {
    std::size_t heap = 0;      ///< Bytes that the program has asked for and not given back.
    std::size_t resident = 0;  ///< Bytes that the system has given it.
};

Memory MeasureMemory();

}  // namespace arbolith
