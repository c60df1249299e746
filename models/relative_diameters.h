// How diameters spread about the mean of an even-aged stand: a Weibull distribution of the relative
// diameter, cut at a class's threshold and represented by eight trees.
#pragma once

#include "models/species.h"

#include <array>
#include <cstddef>

namespace growth {

/// Number of trees that stand for a class.
inline constexpr std::size_t kTrees = 8;

/// Shares of the eight trees in their class: weights of the 8-point Gauss-Laguerre quadrature.
extern const std::array<double, kTrees> kTreeShares;

/// The eight trees of a class, by their diameter relative to the mean of the whole stand.
struct SampleTrees {
    std::array<double, kTrees> relativeDiameter;
    /// Height above breast height over that of the dominant trees (see HeightShare).
    std::array<double, kTrees> heightShare;
};

/// Height above breast height of a tree over that of the dominant trees, by its relative diameter:
/// (1 - exp(-2.25 x)) / (1 - exp(-3.6)). The mean tree reaches 92 %, one of 1.6 times the mean
/// diameter all of it. Assumed.
double HeightShare(double relativeDiameter);

/// The distribution x = location + scale * z^(1/shape), z being exponential.
///
/// Shape and location are assumed; the scale follows from the mean of x² being 1, so that the
/// stand's diameter is exactly its quadratic mean.
class RelativeDiameters {
public:
    RelativeDiameters(double shape, double location);

    /// The distribution of a planted stand, or of a natural one of this wood.
    static const RelativeDiameters& Of(Wood wood, bool planted);

    double Scale() const { return scale; }

    /// The z above which relative diameters exceed x; 0 where all do. exp(-z) of the stems are
    /// above.
    double Cut(double x) const;

    /// Eight trees that stand for all above a cut, from 0.
    SampleTrees TreesAbove(double cut) const;

private:
    SampleTrees Sample(double cut) const;

    double shape;
    double location;
    double scale;
    SampleTrees wholeStand;
};

}  // namespace growth
