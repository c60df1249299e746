#include "generator/woods.h"

#include "generator/template.h"
#include "run_definition/land_capability.h"
#include "run_definition/species.h"

namespace arbolith::help {

WoodSpecies WoodNamed(const std::string& word) {
    const bool hardwood = word == "hardwood";
    if (!hardwood && word != "softwood") throw BadPage("no wood named " + word);
    const std::string woodType = hardwood ? "Hardwood" : "Softwood";
    SpeciesTables tables;
    LoadSpeciesTables(tables, woodType, false);
    WoodSpecies wood{word, {}};
    for (std::size_t i = 0; i < tables.SpeciesNames.size(); ++i) {
        const auto& name = tables.SpeciesNames[i];
        const int classes =
            hardwood ? LandCapabilityClassesOf(name) : LandCapabilityClasses(woodType);
        wood.species.push_back({name, tables.SpeciesCodes[i], classes});
    }
    return wood;
}

}  // namespace arbolith::help
