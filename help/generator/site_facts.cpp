// Species, and what a Land Capability class means to each.
#include "generator/facts.h"
#include "generator/html.h"
#include "generator/woods.h"
#include "platform/numbers.h"
#include "run_definition/land_capability.h"

#include <map>

namespace arbolith::help {

namespace {

std::string SpeciesTable(const WoodSpecies& wood) {
    Table table({"Species", "Code"});
    for (const auto& species : wood.species)
        table.Row({Escaped(species.name), "<code>" + species.code + "</code>"});
    return table.Html();
}

std::string ClassTable(const WoodSpecies& wood) {
    Table table({"Species", "Land Capability classes"});
    for (const auto& species : wood.species)
        table.Row({Escaped(species.name), "1 to " + std::to_string(species.classes)});
    return table.Html();
}

/// Species that share the site indexes of their classes.
struct SiteGroup {
    std::vector<std::string> names;
    int classes = 0;
};

std::vector<SiteGroup> GroupsOf(const WoodSpecies& wood) {
    std::map<double, SiteGroup> byFirstClass;
    for (const auto& species : wood.species) {
        auto& group = byFirstClass[SiteIndexFromLc(species.name, 1, true)];
        group.names.push_back(species.name);
        group.classes = species.classes;
    }
    std::vector<SiteGroup> groups;
    groups.reserve(byFirstClass.size());
    for (auto& [siteIndex, group] : byFirstClass) groups.push_back(std::move(group));
    return groups;
}

std::string Joined(const std::vector<std::string>& names) {
    std::string text;
    for (std::size_t i = 0; i < names.size(); ++i) {
        if (i > 0) text += i + 1 == names.size() ? " and " : ", ";
        text += Escaped(names[i]);
    }
    return text;
}

std::string SiteIndexTables(const WoodSpecies& wood) {
    const auto groups = GroupsOf(wood);
    std::string html;
    for (const auto& group : groups) {
        html += "<h3>" + (groups.size() == 1 ? "All " + wood.word + "s" : Joined(group.names)) +
                "</h3>\n";
        Table table({"Land Capability", "Site index, m", "Site index, ft"});
        for (int lc = 1; lc <= group.classes; ++lc)
            table.Row({std::to_string(lc),
                       DefaultText(SiteIndexFromLc(group.names.front(), lc, true)),
                       DefaultText(SiteIndexFromLc(group.names.front(), lc, false))});
        html += table.Html("numbers");
    }
    return html;
}

}  // namespace

void AddSiteFacts(Facts& facts) {
    const auto about = [](std::string (*tell)(const WoodSpecies&)) {
        return
            [tell](const Words& words, const Page&) { return tell(WoodNamed(WordAt(words, 0))); };
    };
    facts["species"] = about(SpeciesTable);
    facts["classes"] = about(ClassTable);
    facts["site-index"] = about(SiteIndexTables);
}

}  // namespace arbolith::help
