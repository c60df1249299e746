#include "platform/host.h"

#include <ctime>

namespace arbolith {

Date CurrentDate() {
    constexpr int kFirstYear = 1900;
    const std::time_t now = std::time(nullptr);
    std::tm local{};
    localtime_r(&now, &local);
    return {kFirstYear + local.tm_year, 1 + local.tm_mon, local.tm_mday};
}

}  // namespace arbolith
