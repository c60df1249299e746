// The species that each model knows, and their two-way lookup.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace arbolith {

/// The species of one wood type; a name and its code share a position.
struct SpeciesTables {
    std::vector<std::string> SpeciesNames;
    std::vector<std::string> SpeciesCodes;

    /// Looks a name up for its code, or a code for its name, without regard to case. The last match
    /// wins, and one among the codes beats one among the names. Empty where there is none.
    std::string Species(std::string_view nameOrCode) const;
};

/// The tables of a wood type. A word other than "Softwood" and "Hardwood" leaves `tables` as they
/// are. `shortHardwoodList` leaves out the aspens and White Ash.
void LoadSpeciesTables(SpeciesTables& tables, std::string_view woodType, bool shortHardwoodList);

}  // namespace arbolith
