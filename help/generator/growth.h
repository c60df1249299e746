// What the pages tell and draw of the open growth models: heights of dominant trees by class, and
// the growth of a plantation.
#pragma once

#include "generator/woods.h"

#include <string>
#include <vector>

namespace arbolith::help {

/// Height of the dominant trees in m at a breast-height age in years, on a site of a class.
double DominantHeight(const WoodSpecies& wood, const NamedSpecies& species, int landClass,
                      double breastHeightAge);

/// A plantation of softwood at one age; metric units.
struct PlantationAge {
    int age;
    double height;        ///< Mean height, m.
    double diameter;      ///< cm.
    double basalArea;     ///< m²/ha.
    double merchantable;  ///< Merchantable volume, m³/ha.
    double increment;     ///< Its mean annual increment, m³/ha/yr.
};

/// A fully stocked softwood plantation, 2 m by 2 m, at every fifth year to 80. Throws BadPage for a
/// species that the model doesn't know.
std::vector<PlantationAge> GrowPlantation(const std::string& code, int landClass);

/// A plantation that the note on Norway spruce compares.
struct ComparedPlantation {
    std::string name;
    std::string code;
    int landClass;
};

/// Norway spruce, and a native spruce on the same site: four classes lower.
std::vector<ComparedPlantation> ComparedPlantations();

}  // namespace arbolith::help
