// The species of each wood as the program names and classes them.
#pragma once

#include <string>
#include <vector>

namespace arbolith::help {

struct NamedSpecies {
    std::string name;
    std::string code;
    int classes;  ///< Land Capability classes offered, from 1 up.
};

struct WoodSpecies {
    std::string word;  ///< "softwood" or "hardwood".
    std::vector<NamedSpecies> species;
};

/// Throws BadPage for another word.
WoodSpecies WoodNamed(const std::string& word);

}  // namespace arbolith::help
