// What the open growth models say: heights by class and age, and plantations of Norway spruce.
#include "generator/facts.h"
#include "generator/growth.h"
#include "generator/html.h"
#include "generator/pictures.h"
#include "models/numbers.h"
#include "models/units.h"

namespace arbolith::help {

namespace {

constexpr int kFirstAge = 10;
constexpr int kLastAge = 100;
constexpr int kStep = 10;

std::string WithDecimals(double value, int decimals) {
    std::string text;
    growth::AppendFixed(text, value, decimals);
    return text;
}

std::string HeightTable(const WoodSpecies& wood, const NamedSpecies& species, bool metric) {
    std::vector<std::string> headings = {"Class"};
    for (int age = kFirstAge; age <= kLastAge; age += kStep)
        headings.push_back(std::to_string(age));
    Table table(std::move(headings));
    for (int landClass = 1; landClass <= species.classes; ++landClass) {
        std::vector<std::string> cells = {std::to_string(landClass)};
        for (int age = kFirstAge; age <= kLastAge; age += kStep) {
            const double metres = DominantHeight(wood, species, landClass, age);
            cells.push_back(WithDecimals(metric ? metres : metres / growth::kMPerFoot, 1));
        }
        table.Row(std::move(cells));
    }
    return table.Html("numbers");
}

std::string HeightsOf(const WoodSpecies& wood, const NamedSpecies& species, const Page& page) {
    const auto name = Escaped(species.name);
    return "<h3>" + name + "</h3>\n" +
           PictureHtml(HeightPicture(species.code),
                       "Height of dominant " + species.name + " over breast-height age, by class",
                       page) +
           "<p>Dominant height of " + name + " in metres, by class and breast-height age:</p>\n" +
           HeightTable(wood, species, true) + "<p>The same in feet:</p>\n" +
           HeightTable(wood, species, false);
}

std::string Heights(const Words& words, const Page& page) {
    const auto wood = WoodNamed(WordAt(words, 0));
    std::string html;
    for (const auto& species : wood.species) html += HeightsOf(wood, species, page);
    return html;
}

std::string PlantationTable(const ComparedPlantation& plantation) {
    Table table({"Age", "Height, m", "DBH, cm", "Basal area, m²/ha", "Merch. volume, m³/ha",
                 "M.A.I., m³/ha/yr"});
    for (const auto& at : GrowPlantation(plantation.code, plantation.landClass)) {
        if (at.age % kStep != 0) continue;
        table.Row({std::to_string(at.age), WithDecimals(at.height, 1), WithDecimals(at.diameter, 1),
                   WithDecimals(at.basalArea, 1), WithDecimals(at.merchantable, 0),
                   WithDecimals(at.increment, 1)});
    }
    return table.Html("numbers");
}

std::string Plantations(const Words&, const Page& page) {
    std::string html =
        PictureHtml(kPlantationPicture, "Merchantable volume of both plantations over age", page);
    for (const auto& plantation : ComparedPlantations())
        html += "<h3>" + Escaped(plantation.name) + ", Land Capability " +
                std::to_string(plantation.landClass) + "</h3>\n" + PlantationTable(plantation);
    return html;
}

}  // namespace

void AddGrowthFacts(Facts& facts) {
    facts["heights"] = Heights;
    facts["plantations"] = Plantations;
}

}  // namespace arbolith::help
