// One line of a model's input: what the application asks for one stand.
#pragma once

#include "models/units.h"

#include <string>
#include <string_view>

namespace growth {

/// A stand as its line describes it, in the unit system of the run. Numbers lie within ±1e9 and may
/// make no sense; GrowStand says which stands it grows.
struct StandLine {
    /// 0..32767, echoed on every row.
    int sequence = 0;
    Units units = Units::Metric;
    bool planted = false;
    /// Species code in upper case.
    std::string species;
    double landClass = 0.0;
    /// m or ft.
    double siteIndex = 0.0;
    /// Planted stems per hectare or acre.
    double frequency = 0.0;
    /// Planting distances, m or ft.
    double spacingX = 0.0;
    double spacingY = 0.0;
    /// Years.
    double rotationAge = 0.0;
    /// cm or inches.
    double rotationDiameter = 0.0;
    /// When treatments 1 and 2 are due: years; treatment 1 also by diameter, cm or inches.
    double treatment1Age = 0.0;
    double treatment2Age = 0.0;
    double treatment1Diameter = 0.0;
    /// Basal area that a commercial thinning takes, percent.
    double treatment1Removal = 0.0;
    double treatment2Removal = 0.0;
    /// Distance that a precommercial thinning leaves, m or ft.
    double treatment1Spacing = 0.0;
    /// Percent of full stocking.
    double stocking = 0.0;
};

/// Reads a stand from a line of fields that each end at a tab. Missing fields are empty, what
/// follows the nineteenth is ignored; any text gives a stand.
StandLine ReadStandLine(std::string_view line);

}  // namespace growth
