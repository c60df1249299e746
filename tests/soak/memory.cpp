#include "soak/memory.h"

#include <QPixmapCache>

#include <fstream>
#include <malloc.h>
#include <unistd.h>
#if defined(__SANITIZE_ADDRESS__)
// The sanitizer's own count; the compiler's package brings no header for it.
extern "C" std::size_t __sanitizer_get_current_allocated_bytes();
#endif

namespace arbolith {

namespace {

std::size_t HeapInUse() {
#if defined(__SANITIZE_ADDRESS__)
    return __sanitizer_get_current_allocated_bytes();
#else
    const auto info = mallinfo2();
    return info.uordblks + info.hblkhd;
#endif
}

std::size_t Resident() {
    std::ifstream file("/proc/self/statm");
    std::size_t all = 0;
    std::size_t pages = 0;
    file >> all >> pages;
    return pages * static_cast<std::size_t>(sysconf(_SC_PAGESIZE));
}

}  // namespace

void KeepNoPictures() {
    QPixmapCache::setCacheLimit(0);
}

Memory MeasureMemory() {
    return {HeapInUse(), Resident()};
}

}  // namespace arbolith
