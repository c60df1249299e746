// The growth of one stand, from its line to the rows of its yield table.
#pragma once

#include "models/size_classes.h"
#include "models/stand_line.h"

#include <array>
#include <cstddef>
#include <vector>

namespace growth {

/// The oldest age that is grown to, and the years from row to row.
inline constexpr int kOldestAge = 200;
inline constexpr int kRowStep = 5;

/// The variables of a row, in their order; each has a value for every size class.
enum Variable : std::size_t { kDbh, kBa, kF, kH, kVol, kMai, kCvol, kCmai };
inline constexpr std::size_t kVariables = 8;

/// Decimals of a variable in the output of a run in these units.
int DecimalsOf(Variable variable, Units units);

/// One row of a yield table, not rounded, in the units of the run: diameter in cm or inches, basal
/// area in m²/ha or ft²/acre, stems per ha or acre, height in m or ft, volume in m³/ha or ft³/acre
/// (sawlogs of an imperial run: board feet per acre), mean annual increment in volume per year;
/// then volume and increment with what thinnings have harvested so far.
struct Row {
    /// Stand age from stump height, years.
    int age = 0;
    std::array<std::array<double, kSizeClasses>, kVariables> values{};

    double At(Variable variable, SizeClass sizeClass) const { return values[variable][sizeClass]; }
};

/// A stand's growth.
struct Yield {
    /// Years from stump height to breast height; 0 for a stand that can't be grown.
    double yearsToBreastHeight = 0.0;
    /// At least one row. A stand that can't be grown has one of age 0 with all values 0.
    std::vector<Row> rows;
};

/// Grows a stand of this wood's species.
///
/// Rows lie at ages 5, 10, ... and at the rotation age, which is limited to 200; without a rotation
/// age they end with the first one whose printed mean diameter is at least the rotation diameter,
/// or at 200. A row shows the stand just before a treatment that is due at it.
///
/// A stand can't be grown whose species is none of this wood's, that has neither a land class from
/// 1 nor a site index, no stocking, or neither a rotation age from 1 nor a rotation diameter.
/// Everything else grows, with senseless values limited.
Yield GrowStand(Wood wood, const StandLine& line);

}  // namespace growth
