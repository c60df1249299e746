// The scale of a chart's axis: what is told of it, and what is drawn.
#pragma once

#include <optional>

namespace arbolith {

/// Explicit values are kept also while the scale is automatic.
struct ToldScale {
    bool Auto = true;
    std::optional<double> Minimum;
    std::optional<double> Maximum;
    int MajorDivision = 5;
    int MinorDivision = 1;

    bool operator==(const ToldScale&) const = default;
};

/// An axis as it is drawn: its two ends, minimum below maximum, and in how many equal parts it is
/// divided. Each part has `minorDivisions` smaller ones.
struct AxisScale {
    double minimum = 0;
    double maximum = 1;
    int majorDivisions = 5;
    int minorDivisions = 1;

    bool operator==(const AxisScale&) const = default;
};

/// A scale of round numbers (1, 2, 2.5 or 5 times a power of ten a division) that holds all values
/// from `lowest` to `highest`; it begins at 0 where that wastes less than half of it. Values too
/// close together to be told apart get room around them; without finite values in order the scale
/// goes from 0 to 1. Ends and width are always finite.
AxisScale AutomaticScale(double lowest, double highest);

/// The scale to draw: the told one where it is explicit and can be drawn (finite ends, minimum
/// below maximum, at least one major division and few enough to tell apart), else the automatic
/// one. An end that isn't told is that of the automatic scale.
AxisScale DrawnScaleOf(const ToldScale& told, double lowest, double highest);

}  // namespace arbolith
