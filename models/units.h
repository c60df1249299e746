// Conversion between the model's own units (cm, m, m², m³, hectares) and the imperial ones of a
// run. The model computes in metric throughout; these factors are applied where a run's values come
// in and where a row's values go out.
#pragma once

namespace growth {

/// The unit system that a run line asks for.
enum class Units { Metric, Imperial };

inline constexpr double kCmPerInch = 2.54;
inline constexpr double kMPerFoot = 0.3048;
inline constexpr double kHectaresPerAcre = 0.40468564224;
inline constexpr double kSquareFeetPerAcre = 43560.0;
inline constexpr double kSquareMPerHectare = 10000.0;
inline constexpr double kCubicMPerCubicFoot = 0.028316846592;

/// Basal area in m² of a tree of 1 cm diameter: pi/40000.
inline constexpr double kBasalAreaPerSquareCm = 3.14159265358979323846 / 40000.0;

}  // namespace growth
