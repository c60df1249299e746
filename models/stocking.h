// The history of a stand's density: how it started and what each thinning left. From it come the
// stems and the mean diameter at any later height and age.
#pragma once

#include "models/density.h"

#include <array>
#include <cstddef>

namespace growth {

/// What a thinning made of a stand: a new start, and a diameter on its way to that of the new
/// density.
struct Phase {
    /// Stems per hectare of a stand that, never thinned, would now have as many.
    double startStems;
    /// Stand age at the thinning, years.
    double age;
    /// Share of the way to the new diameter that the thinning itself has gone, 0 to 1.
    double gone;
};

/// A stand's phases: the start and up to two thinnings.
class Stocking {
public:
    /// The most thinnings that a stand can have.
    static constexpr std::size_t kMostThinnings = 2;

    /// A stand with so many stems per hectare at its start, above 0.
    explicit Stocking(double startStems);

    /// Stems and diameter at a height (given as the full stand there) and a stand age in years.
    ///
    /// Stems follow the last phase at once. The diameter nears that of each phase with what is left
    /// of the way falling to 1/e every 12 years; the 12 years are assumed.
    StemsAndDiameter At(const FullStand& full, double age) const;

    /// Opens a phase: at this height and age a thinning turned `before` into `after`.
    void Thin(const FullStand& full, double age, StemsAndDiameter before, StemsAndDiameter after);

private:
    double startStems;
    std::array<Phase, kMostThinnings> phases{};
    std::size_t thinnings = 0;
};

/// What a precommercial thinning to a square spacing in m (limited to 0.1..30) leaves; the stand as
/// it was where it is that wide already. The better trees stay: the mean diameter rises with the
/// 0.10th power of the share felled (assumed).
StemsAndDiameter SpacedTo(double spacing, StemsAndDiameter before);

/// What a commercial thinning of a share of the stems (0 to below 1) leaves: it is even over
/// diameters (assumed), so that the mean stays.
StemsAndDiameter Reduced(double share, StemsAndDiameter before);

}  // namespace growth
