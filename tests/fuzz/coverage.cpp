#include "fuzz/coverage.h"

#include <array>
#include <cstdint>

namespace {

// Places are kept by a hash of their address, so that two may rarely count as one.
constexpr std::size_t kPlaces = 1U << 16U;

std::array<bool, kPlaces> reached;
std::size_t reachedCount = 0;
std::size_t newCount = 0;

}  // namespace

namespace arbolith {

std::size_t TakeNewPlaces() {
    const auto count = newCount;
    newCount = 0;
    return count;
}

std::size_t PlacesReached() {
    return reachedCount;
}

}  // namespace arbolith

// The compiler puts a call of this at every branch of an instrumented build.
extern "C" void __sanitizer_cov_trace_pc();   // NOLINT(bugprone-reserved-identifier)
extern "C" void __sanitizer_cov_trace_pc() {  // NOLINT(bugprone-reserved-identifier)
    const auto place = reinterpret_cast<std::uintptr_t>(__builtin_return_address(0));
    bool& mark = reached[(place ^ (place >> 16U)) % kPlaces];
    if (mark) return;
    mark = true;
    ++reachedCount;
    ++newCount;
}
