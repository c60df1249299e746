// Density of full stands and of stands that have more or less room.
#include "models/density.h"

#include "models/height.h"
#include "models/units.h"

#include <algorithm>
#include <cmath>

namespace growth {

namespace {

constexpr double kDiameterExponent = 1.05;
constexpr double kSelfThinningSlope = 1.605;
constexpr double kIndexDiameter = 25.4;  // cm: the 10 inches of the stand density index

constexpr double kRoomExponent = 0.33;
constexpr double kNarrowest = 0.70;
constexpr double kWidest = 2.20;

// Keeps the start of a stand on the line finite.
constexpr double kLeastInverseCube = 1e-30;

double InverseCube(double value) {
    return 1.0 / (value * value * value);
}
double FromInverseCube(double value) {
    return 1.0 / std::cbrt(value);
}

}  // namespace

double FullStand::StemsLeft(double startStems) const {
    return FromInverseCube(InverseCube(startStems) + lineInverseCube);
}

double FullStand::StartFor(double stems) const {
    return FromInverseCube(std::max(kLeastInverseCube, InverseCube(stems) - lineInverseCube));
}

double FullStand::DiameterFor(double stems) const {
    const double room = std::pow(naturalStems / stems, kRoomExponent);
    return diameter * std::clamp(room, kNarrowest, kWidest);
}

DensityLaw::DensityLaw(const DensityShape& shape, double fullStocking)
    : diameterFactor(shape.diameterFactor),
      lineFactor(fullStocking * shape.indexPerAcre / kHectaresPerAcre),
      naturalStart(shape.naturalStart) {}

FullStand DensityLaw::At(double height) const {
    FullStand full{};
    full.diameter = diameterFactor * std::pow(height - kBreastHeight, kDiameterExponent);
    full.lineStems = lineFactor * std::pow(kIndexDiameter / full.diameter, kSelfThinningSlope);
    full.lineInverseCube = InverseCube(full.lineStems);
    full.naturalStems = full.StemsLeft(naturalStart);
    return full;
}

}  // namespace growth
