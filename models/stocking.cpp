// Phases of a stand's density and what thinnings leave.
#include "models/stocking.h"

#include "models/units.h"

#include <algorithm>
#include <cmath>

namespace growth {

namespace {

constexpr double kResponseYears = 12.0;
constexpr double kBetterTreesStay = 0.10;
constexpr double kClosestSpacing = 0.1;
constexpr double kWidestSpacing = 30.0;

}  // namespace

Stocking::Stocking(double start) : startStems(start) {}

StemsAndDiameter Stocking::At(const FullStand& full, double age) const {
    StemsAndDiameter now{full.StemsLeft(startStems), 0.0};
    now.diameter = full.DiameterFor(now.stems);
    for (std::size_t i = 0; i < thinnings; ++i) {
        const Phase& phase = phases[i];
        now.stems = full.StemsLeft(phase.startStems);
        const double way = 1.0 - (1.0 - phase.gone) * std::exp(-(age - phase.age) / kResponseYears);
        now.diameter += way * (full.DiameterFor(now.stems) - now.diameter);
    }
    return now;
}

void Stocking::Thin(const FullStand& full, double age, StemsAndDiameter before,
                    StemsAndDiameter after) {
    const double whole = full.DiameterFor(after.stems) - before.diameter;
    const double step = after.diameter - before.diameter;
    const double gone = whole > 0.0 ? std::clamp(step / whole, 0.0, 1.0) : 1.0;
    phases[thinnings++] = {full.StartFor(after.stems), age, gone};
}

StemsAndDiameter SpacedTo(double spacing, StemsAndDiameter before) {
    const double side = std::clamp(spacing, kClosestSpacing, kWidestSpacing);
    const double stems = kSquareMPerHectare / (side * side);
    if (stems >= before.stems) return before;
    return {stems, before.diameter * std::pow(before.stems / stems, kBetterTreesStay)};
}

StemsAndDiameter Reduced(double share, StemsAndDiameter before) {
    return {(1.0 - share) * before.stems, before.diameter};
}

}  // namespace growth
