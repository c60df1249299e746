// A sequence line: one stand of a batch as a line of text, with its fields parted by tabs.
#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace arbolith {

/// How many sequences a batch holds at most.
inline constexpr int kSequences = 1025;

/// A text for each sequence of a batch.
using SequenceTexts = std::array<std::string, kSequences>;

/// The entry of a sequence; throws 9 for an index outside 0 to 1024.
std::string& EntryAt(SequenceTexts& texts, int index);

/// The places of the fields in a line. From kMet on they are those of the run line.
enum class SequenceField : std::size_t {
    kPlot,
    kWood,
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
};

/// The fields of a line, as text.
class SequenceFields {
public:
    /// An empty line has no fields at all.
    explicit SequenceFields(std::string_view line);

    /// A field's text; throws 9 where the line has none in this place.
    const std::string& operator[](SequenceField field) const;
    /// A field's numeric value.
    double Number(SequenceField field) const;
    /// The whole part of a field's numeric value.
    double Whole(SequenceField field) const;

private:
    std::vector<std::string> fields_;
};

}  // namespace arbolith
