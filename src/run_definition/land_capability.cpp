#include "run_definition/land_capability.h"

#include <algorithm>
#include <cstddef>
#include <initializer_list>
#include <span>

namespace arbolith {

namespace {

// Site index by class from class 0; the hardwood tables begin at class 1.
constexpr double kSoftwoodFeet[] = {12,    27.19, 33.28, 38.98, 44.61, 50.45, 55.97,
                                    61.19, 66.95, 72.3,  77.34, 82.53, 87.4,  92.06};
constexpr double kSoftwoodMetres[] = {3.66,  8.29,  10.14, 11.85, 13.6,  15.38, 17.06,
                                      18.65, 20.41, 22.04, 23.57, 25.16, 26.64, 28.06};
constexpr double kTolerantFeet[] = {0, 30.5, 43.3, 56.4, 71.5, 92.8};
constexpr double kTolerantMetres[] = {0, 9.3, 13.2, 17.2, 21.8, 28.3};
constexpr double kAspenFeet[] = {0, 28.2, 38.1, 47.9, 57.4, 67.3, 78.1};
constexpr double kAspenMetres[] = {0, 8.6, 11.6, 14.6, 17.5, 20.5, 23.8};
constexpr double kBirchMapleFeet[] = {0, 31.2, 45.6, 61.7, 85};
constexpr double kBirchMapleMetres[] = {0, 9.5, 13.9, 18.8, 25.9};

bool IsOneOf(std::string_view species, std::initializer_list<std::string_view> names) {
    return std::find(names.begin(), names.end(), species) != names.end();
}

bool IsTolerant(std::string_view species) {
    return IsOneOf(species,
                   {"American Beech", "Red Oak", "White Ash", "Yellow Birch", "Sugar Maple"});
}
bool IsAspen(std::string_view species) {
    return IsOneOf(species, {"Trembling Aspen", "Largetooth Aspen"});
}
bool IsBirchOrMaple(std::string_view species) {
    return IsOneOf(species, {"White Birch", "Red Maple"});
}

std::span<const double> TableOf(std::string_view species, bool metric) {
    const auto pick = [metric](std::span<const double> metres, std::span<const double> feet) {
        return metric ? metres : feet;
    };
    if (IsTolerant(species)) return pick(kTolerantMetres, kTolerantFeet);
    if (IsAspen(species)) return pick(kAspenMetres, kAspenFeet);
    if (IsBirchOrMaple(species)) return pick(kBirchMapleMetres, kBirchMapleFeet);
    return pick(kSoftwoodMetres, kSoftwoodFeet);
}

}  // namespace

int LandCapabilityClasses(std::string_view woodType) {
    return woodType == "Hardwood" ? 5 : 13;
}

int LandCapabilityClassesOf(std::string_view hardwoodSpecies) {
    if (IsBirchOrMaple(hardwoodSpecies)) return 3;
    return IsAspen(hardwoodSpecies) ? 5 : 4;
}

double SiteIndexFromLc(std::string_view species, int landCapability, bool metric) {
    const auto table = TableOf(species, metric);
    if (landCapability < 0 || landCapability >= static_cast<int>(table.size())) return 0;
    return table[static_cast<std::size_t>(landCapability)];
}

}  // namespace arbolith
