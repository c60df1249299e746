#include "generator/growth.h"

#include "generator/template.h"
#include "models/grow.h"
#include "models/height.h"
#include "models/site.h"
#include "models/species.h"
#include "models/stand_line.h"

#include <algorithm>
#include <cctype>

namespace arbolith::help {

namespace {

constexpr double kSpacing = 2.0;
constexpr int kLastAge = 80;

growth::Wood ModelOf(const std::string& word) {
    return word == "hardwood" ? growth::Wood::Hardwood : growth::Wood::Softwood;
}

const growth::Species& Known(growth::Wood wood, const std::string& code) {
    const auto* species = growth::FindSpecies(wood, code);
    if (species == nullptr) throw BadPage("the growth models don't know " + code);
    return *species;
}

}  // namespace

double DominantHeight(const WoodSpecies& wood, const NamedSpecies& species, int landClass,
                      double breastHeightAge) {
    const auto& known = Known(ModelOf(wood.word), species.code);
    const growth::HeightCurve curve(known.height,
                                    growth::ClassSiteIndex(known.siteGroup, landClass));
    return curve.At(breastHeightAge);
}

std::vector<PlantationAge> GrowPlantation(const std::string& code, int landClass) {
    Known(growth::Wood::Softwood, code);
    growth::StandLine line;
    line.planted = true;
    line.species = code;
    line.landClass = landClass;
    line.frequency = growth::kSquareMPerHectare / (kSpacing * kSpacing);
    line.spacingX = line.spacingY = kSpacing;
    line.rotationAge = kLastAge;
    line.stocking = 100;
    std::vector<PlantationAge> ages;
    for (const auto& row : growth::GrowStand(growth::Wood::Softwood, line).rows) {
        const auto all = growth::kTotalClass;
        const auto merchantable = growth::kMerchantableClass;
        ages.push_back({row.age, row.At(growth::kH, all), row.At(growth::kDbh, all),
                        row.At(growth::kBa, all), row.At(growth::kVol, merchantable),
                        row.At(growth::kMai, merchantable)});
    }
    return ages;
}

std::vector<ComparedPlantation> ComparedPlantations() {
    return {{"Norway Spruce", "NS", 9}, {"Red Spruce", "RS", 5}};
}

}  // namespace arbolith::help
