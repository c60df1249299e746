// How many stems of what diameter a stand holds at a height: the mean diameter of natural full
// stands, the self-thinning line, and what a stand of another number of stems tends to.
#pragma once

#include "models/species.h"

namespace growth {

/// Stems per hectare and their quadratic mean diameter in cm.
struct StemsAndDiameter {
    double stems;
    double diameter;
};

/// A fully stocked natural stand at one dominant height, and the limits that it sets for others.
struct FullStand {
    /// Mean diameter of a natural full stand, cm.
    double diameter;
    /// The self-thinning line: stems per hectare that there is room for.
    double lineStems;
    /// lineStems^-3.
    double lineInverseCube;
    /// Stems per hectare of a natural full stand.
    double naturalStems;

    /// Stems per hectare left of so many at the start, above 0: a smooth minimum of these and the
    /// line, (N0^-3 + N_line^-3)^(-1/3). Assumed.
    double StemsLeft(double startStems) const;

    /// The start that StemsLeft makes into so many stems per hectare; 1e10 where the line allows
    /// none.
    double StartFor(double stems) const;

    /// Mean diameter in cm that a stand of so many stems per hectare tends to: the 0.33th power of
    /// the room that a stem has over that in the natural stand, within 0.70 to 2.20. Assumed.
    double DiameterFor(double stems) const;
};

/// The full stands of one species on one site.
///
/// The diameter is m1 * (H - 1.3)^1.05 cm; the exponent fits softwoods (Auger 2016) and is assumed
/// for hardwoods. The line is k * SDI * (25.4 / diameter)^1.605, with Reineke's exponent.
class DensityLaw {
public:
    /// The law for a full-stocking factor k (see FullStocking), above 0.
    DensityLaw(const DensityShape& shape, double fullStocking);

    /// The full stand at a dominant height in m, above 1.3.
    FullStand At(double height) const;

private:
    double diameterFactor;
    double lineFactor;
    double naturalStart;
};

}  // namespace growth
