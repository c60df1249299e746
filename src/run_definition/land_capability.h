// Land Capability classes: which ones a species is offered, and the site index that each stands
// for.
#pragma once

#include <string_view>

namespace arbolith {

/// How many classes, from 1 up, a wood type offers before a species narrows the list.
int LandCapabilityClasses(std::string_view woodType);

/// How many classes a hardwood species is offered; a species that isn't known, or none, counts as
/// one of the tolerant hardwoods.
int LandCapabilityClassesOf(std::string_view hardwoodSpecies);

/// Site index at age 50 of a class, in m (`metric`) or ft; 0 where the table has no row. Every
/// species that is no hardwood takes the softwood table.
double SiteIndexFromLc(std::string_view species, int landCapability, bool metric);

}  // namespace arbolith
