// The species that the models grow, with every number that is a species' own. One table, one row a
// species; where its numbers come from stands with each group of columns.
#pragma once

#include <array>
#include <span>
#include <string_view>

namespace growth {

/// Softwood species belong to SWQVL.exe, hardwood species to HWQVL.exe.
enum class Wood { Softwood, Hardwood };

/// Species of one group share the site indexes of their land capability classes (see site.h).
/// S: all softwoods. T: red oak, sugar maple, yellow birch, beech, white ash. A: aspens.
/// B: red maple and white birch.
enum class SiteGroup { S, T, A, B };

/// The age that a published height curve runs on.
enum class HeightForm { BreastHeightAge, TotalAge };

/// Shape of the dominant height curve (see height.h): rate b per year, exponent c * S^d with the
/// site index S in feet or metres.
///
/// Sources: BF, BS, WS from Ker and Bowling 1991; WP, RP, LA (bigtooth aspen) from Scott and
/// Voorhis 1986 (both as transcribed in the R package CanadaForestAllometry); all others from
/// Carmean, Hahn and Jacobs 1989, as coded in the Lake States variant of the Forest Vegetation
/// Simulator: RS (spruces, northern Maine), NS (curve 63, plantations), EH (127), RO (48), RM, SM,
/// YB, WB, AB (1, 3, 6, 9, 11), TA (32), WA (13). The rate of the RS curve (62) has the opposite
/// sign there; it is used as a rate like the others.
struct HeightShape {
    HeightForm form;
    double b;
    double c;
    double d;
    bool siteInFeet;
};

/// Stems and diameters of full stands (see density.h).
struct DensityShape {
    /// Stems per hectare that a natural stand starts with. Assumed.
    double naturalStart;
    /// Maximum stand density index, stems per acre at 10 inches. Source: defaults of the Forest
    /// Vegetation Simulator, Northeast variant.
    double indexPerAcre;
    /// Factor of the mean diameter of a natural full stand over its height. Sources: BF, BS, WB and
    /// (3 % up) TA from permanent sample plots of Quebec, as in the test data of the R package
    /// Natura3; WP, RP, RS, WS, EH, RO, RM, SM, YB, AB from Auger 2016 (parameters in the R package
    /// TarifQC), lowered by 0.89 (softwood) or 0.83 (hardwood) to the level of those plots; NS from
    /// European yield tables (openyieldtables). LA and WA are assumed.
    double diameterFactor;
};

/// Coefficients of the tree volume equations (see tree_volume.h).
///
/// Source: Honer, Ker and Alemdag 1983, Metric timber tables for the commercial tree species of
/// central and eastern Canada, as transcribed in the R package CanadaForestAllometry. NS takes
/// white spruce, LA trembling aspen, and WA maple; RM and SM are one species group in the source.
struct VolumeShape {
    double b2;
    double c1;
    double c2;
    double r1;
    double r2;
    double r3;
};

/// The most classes that a site group has.
inline constexpr std::size_t kMostClasses = 13;

/// One species.
struct Species {
    /// The code in a run line: two upper-case letters.
    std::string_view code;
    Wood wood;
    SiteGroup siteGroup;
    HeightShape height;
    DensityShape density;
    VolumeShape volume;
    /// Full-stocking factor for each class of the site group, 0 beyond its last. Calibrated, not a
    /// source's: with it the best mean annual increment of merchantable volume of a natural full
    /// stand equals the class. Any other change to the model calls for a new calibration.
    std::array<double, kMostClasses> fullStocking;
};

/// All species, softwoods first.
std::span<const Species> AllSpecies();

/// The species of this wood with this code (upper case), or null where there is none.
const Species* FindSpecies(Wood wood, std::string_view code);

}  // namespace growth
