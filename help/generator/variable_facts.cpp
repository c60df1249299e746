// The result variables with their units and definitions, and the two measures of a site.
#include "charts/graph_titles.h"
#include "generator/facts.h"
#include "generator/html.h"
#include "model_bridge/variables.h"
#include "platform/text.h"
#include "results/definition_terms.h"

#include <algorithm>
#include <cstdint>

namespace arbolith::help {

namespace {

// What stands in brackets at the end of the variable's axis title.
std::string UnitOf(std::size_t variable, const char* unitSystem) {
    Globals globals;
    globals.UnitSystem = unitSystem;
    const auto title = GetAxisTitle(static_cast<std::int16_t>(variable + 1), globals);
    const auto open = title.find('(');
    return EscapedProgramText(title.substr(open + 1, title.rfind(')') - open - 1));
}

// The label of the list of terms, "- (Total Diameter)", without what surrounds it.
std::string NameOf(const DefinitionTerm& term) {
    const std::string label = term.label;
    const auto open = label.find('(');
    return EscapedProgramText(label.substr(open + 1, label.rfind(')') - open - 1));
}

std::string VariableTable() {
    Table table({"Column", "Variable", "Metric", "Imperial"});
    for (std::size_t i = 0; i < kVariableTerms.size(); ++i) {
        const auto& term = kVariableTerms[i];
        const auto code = EscapedProgramText(term.key);
        table.Row({"<a href=\"#" + code + "\"><code>" + code + "</code></a>", NameOf(term),
                   UnitOf(i, "Metric"), UnitOf(i, "Imperial")});
    }
    return table.Html();
}

std::string TextOf(const DefinitionTerm& term) {
    const auto metric = EscapedProgramText(Trimmed(term.text.metric));
    const auto imperial = EscapedProgramText(Trimmed(term.text.imperial));
    if (metric == imperial) return "<p>" + metric + "</p>\n";
    return "<p><i>Metric:</i> " + metric + "</p>\n<p><i>Imperial:</i> " + imperial + "</p>\n";
}

std::string VariableDefinitions() {
    std::string html;
    for (const auto& term : kVariableTerms) {
        const auto code = EscapedProgramText(term.key);
        html += "<h3 id=\"" + code + "\"><code>" + code + "</code>: " + NameOf(term) + "</h3>\n" +
                TextOf(term);
    }
    return html;
}

std::string SiteDefinition(const std::string& key) {
    const auto term = std::find_if(kSiteTerms.begin(), kSiteTerms.end(),
                                   [&](const DefinitionTerm& each) { return each.key == key; });
    if (term == kSiteTerms.end()) throw BadPage("no measure of a site named " + key);
    return TextOf(*term);
}

}  // namespace

void AddVariableFacts(Facts& facts) {
    facts["variables"] = [](const Words&, const Page&) { return VariableTable(); };
    facts["definitions"] = [](const Words&, const Page&) { return VariableDefinitions(); };
    facts["site-definition"] = [](const Words& words, const Page&) {
        return SiteDefinition(WordAt(words, 0) + " " + WordAt(words, 1));
    };
}

}  // namespace arbolith::help
