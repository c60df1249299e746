// Tree volumes.
#include "models/tree_volume.h"

#include "models/units.h"

#include <algorithm>

namespace growth {

namespace {

constexpr double kHardwoodBoardFeet = 6.0;
constexpr double kLogTopOverTree = 0.70;
constexpr double kSmallestLogTop = 4.0;                   // inches
constexpr double kLogLength = 16.0;                       // feet
constexpr double kSquareFeetPerSquareInch = 0.005454154;  // of a circle, by its diameter

}  // namespace

TreeVolume::TreeVolume(const VolumeShape& shape) : r1(shape.r1), r2(shape.r2), r3(shape.r3) {
    const double bark = 1.0 - 0.04365 * shape.b2;
    barkSquare = bark * bark;
    diameterFactor = 0.0043891 * barkSquare;
    heightConstant = shape.c1;
    heightFactor = 0.3048 * shape.c2;
}

double TreeVolume::Total(double d, double h) const {
    return diameterFactor * d * d / (heightConstant + heightFactor / h);
}

double TreeVolume::LogShare(double d, double h, const LogLimits& limits) const {
    const double topSquare = limits.topDiameter * limits.topDiameter;
    const double x = topSquare / (d * d * barkSquare) * (1.0 + limits.stumpHeight / h);
    return std::clamp(r1 + x * (r2 + x * r3), 0.0, 1.0);
}

double BoardFeetPerCubicFoot(Wood wood, double d) {
    if (wood == Wood::Hardwood) return kHardwoodBoardFeet;
    const double top = std::max(kSmallestLogTop, kLogTopOverTree * d / kCmPerInch);
    const double boardFeet = 0.905 * (0.88 * top * top - 1.52 * top - 1.36);
    return boardFeet / (kLogLength * kSquareFeetPerSquareInch * (top + 1.0) * (top + 1.0));
}

}  // namespace growth
