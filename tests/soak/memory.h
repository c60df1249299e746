// How much memory the process has.
#pragma once

#include <cstddef>

namespace arbolith {

struct Memory {
    std::size_t heap = 0;      ///< Bytes that the program has asked for and not given back.
    std::size_t resident = 0;  ///< Bytes that the system has given it.
};

/// The toolkit keeps pictures of what it draws for speed, up to a size of its own; but the names of
/// those that it drops stay, one for each size that a button ever had. From here on it keeps none.
void KeepNoPictures();

Memory MeasureMemory();

}  // namespace arbolith
