// Volume of a single tree inside bark: in total, up to a top diameter, and in board feet.
#pragma once

#include "models/species.h"

namespace growth {

/// Where logs end: at a top diameter inside bark, and at the stump.
struct LogLimits {
    /// cm.
    double topDiameter;
    /// m.
    double stumpHeight;
};

/// Volume equations of one species. Source: Honer, Ker and Alemdag 1983 (see VolumeShape).
class TreeVolume {
public:
    explicit TreeVolume(const VolumeShape& shape);

    /// Total volume in m³ of a tree of diameter d in cm and height h in m, both above 0.
    double Total(double d, double h) const;

    /// Share of the total volume between stump and top diameter, 0 to 1.
    double LogShare(double d, double h, const LogLimits& limits) const;

private:
    double diameterFactor;
    double heightConstant;
    double heightFactor;
    double barkSquare;
    double r1;
    double r2;
    double r3;
};

/// Board feet in a cubic foot of sawlogs from a tree of diameter d in cm.
///
/// Softwood: the International quarter-inch rule for a 16-foot log, 0.905 * (0.88 t² - 1.52 t
/// - 1.36), over that log's cubic content, its top diameter t in inches being 0.70 of the tree's
/// and at least 4. It stands in for the New Brunswick rule; that, the 0.70 and the 6.0 for hardwood
/// are assumed.
double BoardFeetPerCubicFoot(Wood wood, double d);

}  // namespace growth
