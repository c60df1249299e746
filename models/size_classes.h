// The three classes of a yield table: all trees (T), merchantable trees (M) and sawlog trees (S),
// each with its stems, diameter, height, basal area and volume.
#pragma once

#include "models/density.h"
#include "models/relative_diameters.h"
#include "models/tree_volume.h"
#include "models/units.h"

#include <array>

namespace growth {

/// Order of the classes in all tables.
enum SizeClass : std::size_t { kTotalClass, kMerchantableClass, kSawlogClass };
inline constexpr std::size_t kSizeClasses = 3;

/// One class of a stand, per hectare. All are 0 where the class is empty.
struct ClassValues {
    /// Quadratic mean diameter, cm.
    double diameter = 0.0;
    /// m².
    double basalArea = 0.0;
    /// Stems.
    double stems = 0.0;
    /// Height of the tree of mean diameter, m.
    double height = 0.0;
    /// m³; the sawlog class of an imperial run: board feet.
    double volume = 0.0;
};

using AllClasses = std::array<ClassValues, kSizeClasses>;

/// What belongs to a class: trees from a diameter in cm, and which logs of them.
struct ClassLimits {
    double threshold;
    LogLimits logs;
};

/// The limits of the M or S class. The total class has none.
ClassLimits LimitsOf(SizeClass sizeClass, Wood wood, Units units);

/// Divides stands of one species and origin into classes.
class SizeClassifier {
public:
    SizeClassifier(const Species& species, bool planted, Units units);

    /// The classes of a stand of these stems and diameter (above 0) with dominant height in m.
    AllClasses Classes(StemsAndDiameter stand, double dominantHeight) const;

private:
    template <typename VolumeOfTree>
    ClassValues Above(double threshold, const StemsAndDiameter& stand, double dominantHeight,
                      VolumeOfTree volumeOfTree) const;
    double SawlogVolume(double d, double h) const;

    Wood wood;
    Units units;
    TreeVolume volume;
    ClassLimits merchantable;
    ClassLimits sawlog;
    const RelativeDiameters& diameters;
};

}  // namespace growth
