#include "results/definitions.h"

#include "forms/always_on_top.h"
#include "platform/text.h"
#include "results/definition_terms.h"

#include <algorithm>
#include <span>
#include <string>

namespace arbolith {

namespace {

constexpr char kBehindKey = '\t';
constexpr const char* kCaption = "Help - Definitions";

void Fill(Definitions& window, std::span<const DefinitionTerm> terms) {
    window.definition_list.Clear();
    window.SetCaption(kCaption);
    window.defin2.SetCaption("Definition:");
    for (const auto& term : terms) {
        const std::string label = term.label;
        window.definition_list.AddItem(label.empty() ? term.key : term.key + (kBehindKey + label));
    }
}

const DefinitionTerm& TermOf(const std::string& key) {
    const auto hasKey = [&](const DefinitionTerm& term) { return term.key == key; };
    const auto variable = std::find_if(kVariableTerms.begin(), kVariableTerms.end(), hasKey);
    if (variable != kVariableTerms.end()) return *variable;
    const auto site = std::find_if(kSiteTerms.begin(), kSiteTerms.end(), hasKey);
    return site != kSiteTerms.end() ? *site : kUndefinedTerm;
}

}  // namespace

Definitions::Definitions(Application& application, const Globals& globals)
    : Form(application, "Help_defin", kCaption, {12480, 6780}), globals_(globals) {}

void Definitions::ShowVariableTerms() {
    Fill(*this, kVariableTerms);
}

void Definitions::ShowSiteTerms() {
    Fill(*this, kSiteTerms);
}

void Definitions::Open() {
    Show();
    WindowToTop(*this);
}

void Definitions::ShowSelectedTerm() {
    const auto& term = TermOf(Split(definition_list.Text(), kBehindKey).front());
    definTitle.SetCaption(term.heading.For(globals_));
    definition.SetCaption(term.text.For(globals_));
}

}  // namespace arbolith
