#include "charts/graph_titles.h"

#include "model_bridge/variables.h"
#include "run_definition/by_units.h"

#include <algorithm>
#include <array>
#include <cstddef>

namespace arbolith {

namespace {

// In the fixed order of the variables.
constexpr std::array<ByUnits, kVariableCodes.size()> kAxisTitles = {{
    InBoth("Age (years)"),
    {"Total Diameter (cm)", "Total Diameter (in)"},
    {"Merchantable Diameter (cm)", "Merchantable Diameter (in)"},
    {"Sawlog Diameter (cm)", "Sawlog Diameter (in)"},
    {"Total Basal Area (m\xB2/ha)", "Total Basal Area (ft\xB2/acre)"},
    {"Merchantable Basal Area (m\xB2/ha)", "Merchantable Basal Area (ft\xB2/acre)"},
    {"Sawlog Basal Area (m\xB2/ha)", "Sawlog Basal Area (ft\xB2/acre)"},
    {"Total Frequency (per ha)", "Total Frequency (per acre)"},
    {"Merchantable Frequency (per ha)", "Merchantable Frequency (per acre)"},
    {"Sawlog Frequency (per ha)", "Sawlog Frequency (per acre)"},
    {"Total Height (m)", "Total Height (ft)"},
    {"Merchantable Height (m)", "Merchantable Height (ft)"},
    {"Sawlog Height (m)", "Sawlog Height (ft)"},
    {"Total Volume (m\xB3/ha)", "Total Volume (ft\xB3/acre)"},
    {"Merchantable Volume (m\xB3/ha)", "Merchantable Volume (ft\xB3/acre)"},
    {"Sawlog Volume (m\xB3/ha)", "Sawlog Volume (fbm/acre)"},
    {"Total M.A.I. (m\xB3/ha/year)", "Total M.A.I. (ft\xB3/acre/year)"},
    {"Merchantable M.A.I. (m\xB3/ha/year)", "Merchantable M.A.I. (ft\xB3/acre/year)"},
    {"Sawlog M.A.I. (m\xB3/ha/year)", "Sawlog M.A.I. (fbm/acre/year)"},
    {"Total Cumulative Vol. (m\xB3/ha)", "Total Cumulative Vol. (ft\xB3/acre)"},
    {"Merchantable Cumulative Vol. (m\xB3/ha)", "Merchantable Cumulative Vol. (ft\xB3/acre)"},
    {"Sawlog Cumulative Vol. (m\xB3/ha)", "Sawlog Cumulative Vol. (fbm/acre)"},
    {"Total Cumulative M.A.I. (m\xB3/ha/year)", "Total Cumulative M.A.I. (ft\xB3/acre/year)"},
    {"Merchantable Cumulative M.A.I. (m\xB3/ha/year)",
     "Merchantable Cumulative M.A.I. (ft\xB3/acre/year)"},
    {"Sawlog Cumulative M.A.I. (m\xB3/ha/year)", "Sawlog Cumulative M.A.I. (fbm/acre/year)"},
}};

using Columns = std::span<const std::int16_t>;

constexpr std::int16_t kDiameters[] = {2, 3, 4};
constexpr std::int16_t kBasalAreas[] = {5, 6, 7};
constexpr std::int16_t kFrequencies[] = {8, 9, 10};
constexpr std::int16_t kHeights[] = {11, 12, 13};
constexpr std::int16_t kVolumes[] = {14, 15, 16, 20, 21, 22};
constexpr std::int16_t kSawlogVolumes[] = {16, 22};
constexpr std::int16_t kIncrements[] = {17, 18, 19, 23, 24, 25};
constexpr std::int16_t kSawlogIncrements[] = {19, 25};

/// Variables that can share an axis. Under imperial units sawlog volumes are in board feet and all
/// others in cubic feet, and the title names what is there.
struct Family {
    Columns columns;
    ByUnits title;
    Columns inBoardFeet = {};
    const char* withBoardFeet = "";
    const char* onlyBoardFeet = "";
};

constexpr Family kFamilies[] = {
    {kDiameters, {"Diameter (cm)", "Diameter (in)"}},
    {kBasalAreas, {"Basal Area (m\xB2/ha)", "Basal Area (ft\xB2/acre)"}},
    {kFrequencies, {"Tree Frequency (per ha)", "Tree Frequency (per acre)"}},
    {kHeights, {"Height (m)", "Height (ft)"}},
    {kVolumes,
     {"Volume (m\xB3/ha)", "Volume (ft\xB3/acre)"},
     kSawlogVolumes,
     "Volume (ft\xB3/acre) SVOL (fbm/acre)",
     "SVOL (fbm/acre)"},
    {kIncrements,
     {"M.A.I. (m\xB3/ha/year)", "M.A.I. (ft\xB3/acre/year)"},
     kSawlogIncrements,
     "M.A.I. (ft\xB3/acre/year) SMAI (fbm/acre/yr)",
     "SMAI (fbm/acre/year)"},
};

// Null for a column of no family.
const Family* FamilyOf(std::int16_t column) {
    const auto* found =
        std::find_if(std::begin(kFamilies), std::end(kFamilies),
                     [&](const Family& family) { return InColumnSet(family.columns, column); });
    return found == std::end(kFamilies) ? nullptr : found;
}

const char* ImperialTitle(const Family& family, Columns series) {
    const auto inBoardFeet = [&](std::int16_t column) {
        return InColumnSet(family.inBoardFeet, column);
    };
    const auto inCubicFeet = [&](std::int16_t column) {
        return InColumnSet(family.columns, column) && !inBoardFeet(column);
    };
    if (std::none_of(series.begin(), series.end(), inBoardFeet)) return family.title.imperial;
    const bool both = std::any_of(series.begin(), series.end(), inCubicFeet);
    return both ? family.withBoardFeet : family.onlyBoardFeet;
}

}  // namespace

std::string GetAxisTitle(std::int16_t column, const Globals& globals) {
    if (column < 1 || column > std::ssize(kAxisTitles)) return "";
    return kAxisTitles[static_cast<std::size_t>(column - 1)].For(globals);
}

std::string GetYTitle(Columns seriesColumns, const Globals& globals) {
    if (seriesColumns.empty()) return "";
    const Family* family = FamilyOf(seriesColumns.front());
    for (const auto column : seriesColumns.subspan(1)) {
        const Family* other = FamilyOf(column);
        if (other != nullptr && other != family) return "";
    }
    if (family == nullptr) return "";
    return ByUnits{family->title.metric, ImperialTitle(*family, seriesColumns)}.For(globals);
}

bool InColumnSet(Columns columns, std::int16_t column) {
    return std::find(columns.begin(), columns.end(), column) != columns.end();
}

}  // namespace arbolith
