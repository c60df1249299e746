// What a site means to a stand: the site index of a land capability class, the density of full
// stands that goes with it, and the years that trees need to reach breast height.
#pragma once

#include "models/species.h"

#include <span>

namespace growth {

/// Site index is limited to this range, m.
inline constexpr double kLowestSiteIndex = 2.0;
inline constexpr double kHighestSiteIndex = 40.0;

/// Site indexes of classes 1, 2, ... of a group, m at 50 years of breast-height age, rising.
/// Source: the application's own definition of land capability.
std::span<const double> SiteClasses(SiteGroup group);

/// Site index of a class, m. Takes whole classes from 1; beyond the last one the last step between
/// two classes goes on. Not limited.
double ClassSiteIndex(SiteGroup group, double landClass);

/// Full-stocking factor at a site index in m: linear between the classes of the species' group,
/// constant beyond the first and the last. It scales the self-thinning line.
double FullStocking(const Species& species, double siteIndex);

/// Years from stump height to breast height at a site index in m, rounded to one decimal.
///
/// Source: Thrower, Nussbaum and Di Lucca 1994 (interior white spruce for all softwoods, paper
/// birch for all hardwoods), from the ground. Assumed: 2 years (softwood) or 1 year (hardwood) pass
/// below stump height, and planted trees take three quarters of the time.
double YearsToBreastHeight(Wood wood, double siteIndex, bool planted);

}  // namespace growth
