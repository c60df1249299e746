#include "forms/axis_scale.h"

#include <algorithm>
#include <cmath>

namespace arbolith {

namespace {

constexpr int kWishedDivisions = 5;
// More lines than this can't be told apart on any screen.
constexpr int kMostDivisions = 200;

// The next round number from here up: 1, 2, 2.5 or 5 times a power of ten.
double RoundedUp(double step) {
    const double power = std::pow(10.0, std::floor(std::log10(step)));
    constexpr double kRound[] = {1, 2, 2.5, 5, 10};
    for (const double round : kRound)
        if (step <= round * power * (1 + 1e-9)) return round * power;
    return 10 * power;
}

bool CanBeDrawn(const ToldScale& told) {
    const auto isFinite = [](const std::optional<double>& end) { return end && std::isfinite(*end); };
    return isFinite(told.Minimum) && isFinite(told.Maximum) && *told.Minimum < *told.Maximum &&
           std::isfinite(*told.Maximum - *told.Minimum) && told.MajorDivision >= 1 &&
           told.MajorDivision <= kMostDivisions;
}

int MinorDivisions(const ToldScale& told) {
    return std::clamp(told.MinorDivision, 1, kMostDivisions);
}

}  // namespace

AxisScale AutomaticScale(double lowest, double highest) {
    if (!std::isfinite(lowest) || !std::isfinite(highest) || lowest > highest) return {};
    if (lowest >= 0 && lowest <= highest / 2) lowest = 0;
    if (highest <= 0 && highest >= lowest / 2) highest = 0;
    if (lowest == highest) {
        const double room = lowest == 0 ? 1 : std::abs(lowest) / 10;
        lowest -= lowest == 0 ? 0 : room;
        highest += room;
    }
    const double step = RoundedUp((highest - lowest) / kWishedDivisions);
    AxisScale scale;
    const double first = std::floor(lowest / step + 1e-9);
    const double last = std::ceil(highest / step - 1e-9);
    scale.minimum = first * step;
    scale.maximum = last * step;
    scale.majorDivisions = static_cast<int>(last - first);
    return scale;
}

AxisScale DrawnScaleOf(const ToldScale& told, double lowest, double highest) {
    if (told.Auto || !CanBeDrawn(told)) {
        auto scale = AutomaticScale(lowest, highest);
        scale.minorDivisions = MinorDivisions(told);
        return scale;
    }
    return {*told.Minimum, *told.Maximum, told.MajorDivision, MinorDivisions(told)};
}

}  // namespace arbolith
