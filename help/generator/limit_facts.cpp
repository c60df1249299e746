// The limits of the inputs, in both unit systems.
#include "generator/facts.h"
#include "generator/html.h"
#include "platform/numbers.h"
#include "run_definition/limits.h"

#include <algorithm>
#include <string_view>

namespace arbolith::help {

namespace {

/// A limit that each unit system has its own of.
struct UnitLimit {
    std::string_view name;
    std::string_view quantity;
    Range UnitLimits::*range;
    std::string_view metricUnit;
    std::string_view imperialUnit;
};

constexpr UnitLimit kUnitLimits[] = {
    {"plantation-spacing", "Plantation spacing, X and Y each", &UnitLimits::plantationSpacing, "m",
     "ft"},
    {"softwood-site-index", "Site index, softwood", &UnitLimits::softwoodSiteIndex, "m", "ft"},
    {"birch-maple-site-index", "Site index, White Birch and Red Maple",
     &UnitLimits::birchMapleSiteIndex, "m", "ft"},
    {"hardwood-site-index", "Site index, other hardwoods", &UnitLimits::otherHardwoodSiteIndex, "m",
     "ft"},
    {"rotation-dbh", "Rotation DBH, softwood", &UnitLimits::rotationDbh, "cm", "in"},
    {"softwood-spacing", "Spacing left by a precommercial thinning, softwood",
     &UnitLimits::softwoodThinningSpacing, "m", "ft"},
    {"hardwood-spacing", "Spacing left by a precommercial thinning, hardwood",
     &UnitLimits::hardwoodThinningSpacing, "m", "ft"},
    {"softwood-height-by-age",
     "Total height for a precommercial thinning, softwood, treatment by age",
     &UnitLimits::softwoodThinningHeightByAge, "m", "ft"},
    {"softwood-height-by-dbh",
     "Total height for a precommercial thinning, softwood, treatment by DBH",
     &UnitLimits::softwoodThinningHeightByDbh, "m", "ft"},
    {"hardwood-height", "Total height for a precommercial thinning, hardwood",
     &UnitLimits::hardwoodThinningHeight, "m", "ft"},
};

/// A limit that is the same in both.
struct CommonLimit {
    std::string_view name;
    std::string_view quantity;
    Range range;
    std::string_view unit;
};

constexpr CommonLimit kCommonLimits[] = {
    {"stocking", "Expected stocking", kStockingPercent, "%"},
    {"rotation-age", "Rotation age", kRotationAge, "years"},
    {"basal-area", "Basal area reduction, both treatments", kBasalAreaReduction, "%"},
    {"probe-age", "Age of treatment 1 that is asked about", kProbeAge, "years"},
};

std::string WithUnit(const std::string& number, std::string_view unit) {
    return number + (unit == "%" ? "&nbsp;%" : "&nbsp;" + std::string(unit));
}

std::string Span(Range range, std::string_view unit) {
    return WithUnit(DefaultText(range.lowest) + " to " + DefaultText(range.highest), unit);
}

template <class Row, std::size_t size>
const Row* FindRow(const Row (&rows)[size], std::string_view name) {
    const auto found = std::find_if(std::begin(rows), std::end(rows),
                                    [&](const Row& row) { return row.name == name; });
    return found == std::end(rows) ? nullptr : found;
}

/// A limit told in each unit system, whichever kind it is.
struct Told {
    std::string quantity;
    std::string metric;
    std::string imperial;
};

Told TellUnitLimit(const UnitLimit& row, std::string (*tell)(Range, std::string_view)) {
    return {std::string(row.quantity), tell(kMetricLimits.*row.range, row.metricUnit),
            tell(kImperialLimits.*row.range, row.imperialUnit)};
}

Told TellCommonLimit(const CommonLimit& row, std::string (*tell)(Range, std::string_view)) {
    const auto told = tell(row.range, row.unit);
    return {std::string(row.quantity), told, told};
}

Told Tell(std::string_view name, std::string (*tell)(Range, std::string_view)) {
    if (const auto* row = FindRow(kUnitLimits, name)) return TellUnitLimit(*row, tell);
    if (const auto* row = FindRow(kCommonLimits, name)) return TellCommonLimit(*row, tell);
    throw BadPage("no limit named " + std::string(name));
}

std::string Lowest(Range range, std::string_view unit) {
    return WithUnit(DefaultText(range.lowest), unit);
}

std::string Highest(Range range, std::string_view unit) {
    return WithUnit(DefaultText(range.highest), unit);
}

std::string InBothUnits(const Told& told) {
    if (told.metric == told.imperial) return told.metric;
    return told.metric + " (" + told.imperial + ")";
}

Fact InText(std::string (*tell)(Range, std::string_view)) {
    return [tell](const Words& words, const Page&) {
        return InBothUnits(Tell(WordAt(words, 0), tell));
    };
}

std::string TableOf(const Words& names) {
    Table table({"Quantity", "Metric", "Imperial"});
    for (const auto& name : names) {
        const auto told = Tell(name, Span);
        table.Row({told.quantity, told.metric, told.imperial});
    }
    return table.Html();
}

}  // namespace

void AddLimitFacts(Facts& facts) {
    facts["range"] = InText(Span);
    facts["least"] = InText(Lowest);
    facts["most"] = InText(Highest);
    facts["limits"] = [](const Words& words, const Page&) { return TableOf(words); };
    facts["spacing-ratio"] = [](const Words&, const Page&) {
        return DefaultText(kLargestSpacingRatio);
    };
    facts["merchantable-dbh"] = [](const Words&, const Page&) {
        return InBothUnits({"", WithUnit(DefaultText(kMetricLimits.merchantableDbh), "cm"),
                            WithUnit(DefaultText(kImperialLimits.merchantableDbh), "in")});
    };
    facts["probe-dbh-below"] = [](const Words&, const Page&) {
        return DefaultText(kProbeDbhBelow);
    };
    facts["years-between-treatments"] = [](const Words&, const Page&) {
        return WithUnit(std::to_string(kYearsBetweenTreatments), "years");
    };
}

}  // namespace arbolith::help
