#include "run_definition/species.h"

#include "platform/text.h"

#include <cstddef>

namespace arbolith {

namespace {

constexpr const char* kSoftwoodNames =
    "White Pine,Red Pine,Black Spruce,Red Spruce,White Spruce,Norway Spruce,Balsam Fir,E. Hemlock";
constexpr const char* kSoftwoodCodes = "WP,RP,BS,RS,WS,NS,BF,EH";
constexpr const char* kHardwoodNames =
    "Red Oak,Red Maple,Sugar Maple,Yellow Birch,White Birch,American Beech,Largetooth "
    "Aspen,Trembling Aspen,White Ash";
constexpr const char* kHardwoodCodes = "RO,RM,SM,YB,WB,AB,LA,TA,WA";
constexpr const char* kShortHardwoodNames =
    "Red Oak,Red Maple,Sugar Maple,Yellow Birch,White Birch,American Beech";
constexpr const char* kShortHardwoodCodes = "RO,RM,SM,YB,WB,AB";

}  // namespace

std::string SpeciesTables::Species(std::string_view nameOrCode) const {
    std::string found;
    for (std::size_t i = 0; i < SpeciesNames.size(); ++i)
        if (EqualIgnoringCase(SpeciesNames[i], nameOrCode)) found = SpeciesCodes[i];
    for (std::size_t i = 0; i < SpeciesCodes.size(); ++i)
        if (EqualIgnoringCase(SpeciesCodes[i], nameOrCode)) found = SpeciesNames[i];
    return found;
}

void LoadSpeciesTables(SpeciesTables& tables, std::string_view woodType, bool shortHardwoodList) {
    if (woodType == "Softwood") {
        tables = {Split(kSoftwoodNames, ','), Split(kSoftwoodCodes, ',')};
    } else if (woodType == "Hardwood") {
        tables =
            shortHardwoodList
                ? SpeciesTables{Split(kShortHardwoodNames, ','), Split(kShortHardwoodCodes, ',')}
                : SpeciesTables{Split(kHardwoodNames, ','), Split(kHardwoodCodes, ',')};
    }
}

}  // namespace arbolith
