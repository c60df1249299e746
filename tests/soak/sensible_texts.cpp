#include "soak/sensible_texts.h"

#include <map>
#include <vector>

namespace arbolith {

namespace {

using Texts = std::vector<std::string>;

const std::map<std::string, Texts>& TextsOfFields() {
    static const std::map<std::string, Texts> texts = {
        {"spac1", {"1.8", "2", "2.5", "3", "6", "8"}},
        {"spac2", {"1.8", "2", "2.5", "3", "6", "8"}},
        {"Site", {"8", "11.5", "14", "18", "30", "45", "60"}},
        {"Stocking_Index", {"60", "80", "100", "110"}},
        {"txtRotAge", {"40", "60", "80", "100", "120"}},
        {"txtRotDBH", {"12", "18", "25", "8"}},
        {"Age1", {"12", "30", "45", "60"}},
        {"DBH1", {"10", "15", "20"}},
        {"BA1", {"20", "35", "80"}},
        {"Spacing", {"1.8", "2.4", "3", "8"}},
        {"Age2", {"50", "60", "80"}},
        {"BA2", {"20", "30", "90"}},
        {"plotn", {"Back field", "12", "A-7"}},
    };
    return texts;
}

const Texts& AnyNumbers() {
    static const Texts texts = {"0", "1", "5", "10", "50", "100", "250", "1000"};
    return texts;
}

const Texts& Misfits() {
    static const Texts texts = {"",    ".", "-1",    "1e5", "99999", "12.345678", "abc",
                                " 7 ", "0", "1.1.1", "\"",  "a,b",   "2,5"};
    return texts;
}

}  // namespace

std::string SensibleText(const std::string& field, Dice& dice) {
    if (dice.Below(8) == 0) return dice.OneOf(Misfits());
    const auto& texts = TextsOfFields();
    const auto found = texts.find(field);
    return dice.OneOf(found == texts.end() ? AnyNumbers() : found->second);
}

}  // namespace arbolith
