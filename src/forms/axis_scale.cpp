#include "forms/axis_scale.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace arbolith {

namespace {

constexpr int kWishedDivisions = 5;
// More lines than this can't be told apart on any screen.
constexpr int kMostDivisions = 200;

// Beyond these a scale of round numbers would leave what a number can hold.
constexpr double kLargest = 1e307;
constexpr double kSmallest = 1e-290;
// The ends for what lies beyond: their distance is still a number.
constexpr double kLastResort = std::numeric_limits<double>::max() / 4;
// Values that differ by less than this part of them can't be told apart.
constexpr double kPrecision = 1e-9;
constexpr int kRoomDivisor = 10;
// A value this part of a division beyond a line still counts as on it.
constexpr double kTolerance = 1e-9;

// The next round number from here up: 1, 2, 2.5 or 5 times a power of ten.
double RoundedUp(double step) {
    const double power = std::pow(10.0, std::floor(std::log10(step)));
    constexpr double kRound[] = {1, 2, 2.5, 5, 10};
    for (const double round : kRound)
        if (step <= round * power * (1 + kTolerance)) return round * power;
    return 10 * power;
}

bool CanBeDrawn(double minimum, double maximum, int divisions) {
    return std::isfinite(minimum) && std::isfinite(maximum) && minimum < maximum &&
           std::isfinite(maximum - minimum) && divisions >= 1 && divisions <= kMostDivisions;
}

int MinorDivisions(const ToldScale& told) {
    return std::clamp(told.MinorDivision, 1, kMostDivisions);
}

}  // namespace

AxisScale AutomaticScale(double lowest, double highest) {
    if (!std::isfinite(lowest) || !std::isfinite(highest) || lowest > highest) return {};
    if (lowest >= 0 && lowest <= highest / 2) lowest = 0;
    if (highest <= 0 && highest >= lowest / 2) highest = 0;
    const double largest = std::max(std::abs(lowest), std::abs(highest));
    if (largest > kLargest) return {-kLastResort, kLastResort, 2 * kWishedDivisions, 1};
    if (highest - lowest <= std::max(kSmallest, largest * kPrecision)) {
        if (largest <= kSmallest) return {};
        lowest -= largest / kRoomDivisor;
        highest += largest / kRoomDivisor;
    }
    const double step = RoundedUp((highest - lowest) / kWishedDivisions);
    const double first = std::floor(lowest / step + kTolerance);
    const double last = std::ceil(highest / step - kTolerance);
    return {first * step, last * step, static_cast<int>(last - first), 1};
}

AxisScale DrawnScaleOf(const ToldScale& told, double lowest, double highest) {
    auto scale = AutomaticScale(lowest, highest);
    scale.minorDivisions = MinorDivisions(told);
    const double minimum = told.Minimum.value_or(scale.minimum);
    const double maximum = told.Maximum.value_or(scale.maximum);
    if (told.Auto || !CanBeDrawn(minimum, maximum, told.MajorDivision)) return scale;
    return {minimum, maximum, told.MajorDivision, scale.minorDivisions};
}

}  // namespace arbolith
