// Splitting a stand's line and reading its fields.
#include "models/stand_line.h"

#include "models/numbers.h"

#include <algorithm>
#include <array>
#include <cstddef>

namespace growth {

namespace {

// Places of the fields in a line. T2DBH is there, but no treatment 2 is set by diameter.
enum Field : std::size_t {
    kSequence,
    kMet,
    kNat,
    kSpec,
    kLc,
    kSib,
    kFreq,
    kSpx,
    kSpy,
    kRage,
    kRdbh,
    kT1Age,
    kT2Age,
    kT1Dbh,
    kT2Dbh,
    kT1Iba,
    kT2Iba,
    kIsd,
    kStk,
    kFields
};

using Fields = std::array<std::string_view, kFields>;

Fields Split(std::string_view line) {
    Fields fields;
    for (std::string_view& field : fields) {
        const std::size_t tab = line.find('\t');
        field = line.substr(0, tab);
        if (tab == std::string_view::npos) break;
        line.remove_prefix(tab + 1);
    }
    return fields;
}

std::string UpperCase(std::string_view text) {
    std::string upper(text);
    for (char& c : upper) {
        if (c >= 'a' && c <= 'z') c = static_cast<char>(c - 'a' + 'A');
    }
    return upper;
}

bool SaysNo(std::string_view field) {
    return field == "N" || field == "n";
}

}  // namespace

StandLine ReadStandLine(std::string_view line) {
    const Fields fields = Split(line);
    const auto number = [&fields](Field field) { return ReadNumber(fields[field]); };
    StandLine stand;
    stand.sequence = static_cast<int>(std::clamp(number(kSequence), 0.0, 32767.0));
    stand.units = SaysNo(fields[kMet]) ? Units::Imperial : Units::Metric;
    stand.planted = SaysNo(fields[kNat]);
    stand.species = UpperCase(StripBlanks(fields[kSpec]));
    stand.landClass = number(kLc);
    stand.siteIndex = number(kSib);
    stand.frequency = number(kFreq);
    stand.spacingX = number(kSpx);
    stand.spacingY = number(kSpy);
    stand.rotationAge = number(kRage);
    stand.rotationDiameter = number(kRdbh);
    stand.treatment1Age = number(kT1Age);
    stand.treatment2Age = number(kT2Age);
    stand.treatment1Diameter = number(kT1Dbh);
    stand.treatment1Removal = number(kT1Iba);
    stand.treatment2Removal = number(kT2Iba);
    stand.treatment1Spacing = number(kIsd);
    stand.stocking = number(kStk);
    return stand;
}

}  // namespace growth
