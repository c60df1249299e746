// The limits of the inputs, inclusive at both ends: one list for each unit system, since nothing is
// converted from one to the other.
#pragma once

namespace arbolith {

struct Range {
    double lowest;
    double highest;

    bool Holds(double value) const { return value >= lowest && value <= highest; }
};

/// The limits of one unit system.
struct UnitLimits {
    Range plantationSpacing;    ///< m / ft, X and Y each.
    Range softwoodSiteIndex;    ///< m / ft at age 50.
    Range birchMapleSiteIndex;  ///< White Birch, Red Maple.
    Range otherHardwoodSiteIndex;
    Range rotationDbh;              ///< cm / in.
    Range softwoodThinningSpacing;  ///< m / ft left by a precommercial thinning.
    Range hardwoodThinningSpacing;
    double merchantableDbh;             ///< cm / in that a commercial thinning needs.
    Range softwoodThinningHeightByAge;  ///< m / ft total height for a precommercial thinning.
    Range softwoodThinningHeightByDbh;
    Range hardwoodThinningHeight;
};

inline constexpr UnitLimits kMetricLimits = {
    .plantationSpacing = {1.2, 3.0},
    .softwoodSiteIndex = {6, 30},
    .birchMapleSiteIndex = {8, 20},
    .otherHardwoodSiteIndex = {8, 24},
    .rotationDbh = {10, 50},
    .softwoodThinningSpacing = {1.2, 3.0},
    .hardwoodThinningSpacing = {1.8, 3.0},
    .merchantableDbh = 14.0,
    .softwoodThinningHeightByAge = {2.0, 9.0},
    .softwoodThinningHeightByDbh = {2.0, 9.0},
    .hardwoodThinningHeight = {6.0, 9.0},
};

inline constexpr UnitLimits kImperialLimits = {
    .plantationSpacing = {4, 10},
    .softwoodSiteIndex = {19.7, 98.4},
    .birchMapleSiteIndex = {26.2, 65.6},
    .otherHardwoodSiteIndex = {26.2, 78.7},
    .rotationDbh = {4, 20},
    .softwoodThinningSpacing = {4, 10},
    .hardwoodThinningSpacing = {6, 10},
    .merchantableDbh = 5.5,
    .softwoodThinningHeightByAge = {6.5, 30.0},
    .softwoodThinningHeightByDbh = {6.0, 30.0},
    .hardwoodThinningHeight = {20.0, 30.0},
};

inline constexpr double kLargestSpacingRatio = 2;
inline constexpr Range kStockingPercent = {1, 100};
inline constexpr Range kRotationAge = {20, 120};        ///< Years.
inline constexpr Range kBasalAreaReduction = {10, 60};  ///< Per cent.

/// Times of treatment 1 that the treatment probe asks the model about: an age in years, or a
/// diameter above 0 and below this in both unit systems.
inline constexpr Range kProbeAge = {1, 119};
inline constexpr double kProbeDbhBelow = 50;
/// Treatment 2 comes at least so many years after treatment 1.
inline constexpr int kYearsBetweenTreatments = 5;

}  // namespace arbolith
