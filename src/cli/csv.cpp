#include "cli/csv.h"

#include <algorithm>
#include <cstddef>

namespace arbolith::console {

namespace {

// In front of the variables.
constexpr std::array<const char*, 4> kStandHeads = {"Plot", "Wood", "Species",
                                                    "Years to breast height (years)"};
// The age is in years under both unit systems and needs one column only.
constexpr std::size_t kAge = 0;

/// Fields are put together to a line with a comma between them.
class CsvLine {
public:
    void Add(std::string_view value) {
        if (hasFields_) line_ += ',';
        line_ += CsvField(value);
        hasFields_ = true;
    }
    std::string Take() { return line_ + "\r\n"; }

private:
    std::string line_;
    bool hasFields_ = false;
};

struct Systems {
    bool metric = false;
    bool imperial = false;
};

Systems SystemsOf(const std::vector<CsvStand>& stands) {
    Systems systems;
    for (const auto& stand : stands) (stand.isMetric ? systems.metric : systems.imperial) = true;
    if (stands.empty()) systems.metric = true;
    return systems;
}

// Plain digits are easier to type in a script than raised ones.
std::string PlainUnit(std::string unit) {
    std::replace(unit.begin(), unit.end(), '\xB2', '2');
    std::replace(unit.begin(), unit.end(), '\xB3', '3');
    return unit;
}

std::string Head(std::size_t variable, const char* unit) {
    return std::string(kVariableCodes[variable]) + " (" + PlainUnit(unit) + ")";
}

std::string HeaderLine(const Systems& systems) {
    CsvLine line;
    for (const auto* head : kStandHeads) line.Add(head);
    for (std::size_t i = 0; i < kVariableCodes.size(); ++i) {
        if (systems.metric || i == kAge) line.Add(Head(i, kVariableUnits[i].metric));
        if (systems.imperial && i != kAge) line.Add(Head(i, kVariableUnits[i].imperial));
    }
    return line.Take();
}

std::string RowLine(const CsvStand& stand, const CsvRow& row, const Systems& systems) {
    CsvLine line;
    for (const auto* text : {&stand.plot, &stand.wood, &stand.species, &stand.yearsToBreastHeight})
        line.Add(*text);
    for (std::size_t i = 0; i < row.size(); ++i) {
        if (i == kAge) {
            line.Add(row[i]);
            continue;
        }
        if (systems.metric) line.Add(stand.isMetric ? row[i] : "");
        if (systems.imperial) line.Add(stand.isMetric ? "" : row[i]);
    }
    return line.Take();
}

}  // namespace

std::string CsvText(const std::vector<CsvStand>& stands) {
    const auto systems = SystemsOf(stands);
    auto text = HeaderLine(systems);
    for (const auto& stand : stands)
        for (const auto& row : stand.rows) text += RowLine(stand, row, systems);
    return text;
}

std::string CsvField(std::string_view value) {
    if (value.find_first_of(",\"\r\n") == std::string_view::npos) return std::string(value);
    std::string field = "\"";
    for (const char c : value) {
        field += c;
        if (c == '"') field += c;
    }
    return field + '"';
}

}  // namespace arbolith::console
