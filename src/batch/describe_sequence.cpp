// The row that stands for a sequence in the panel's list.
#include "batch/batch.h"
#include "platform/numbers.h"
#include "platform/runtime_error.h"
#include "platform/text.h"

namespace arbolith {

namespace {

using Field = SequenceField;

constexpr std::size_t kShownPlot = 6;
constexpr std::size_t kSiteWidth = 8;

std::string Blanks(std::size_t count) {
    return std::string(count, ' ');
}

std::string WholeText(const SequenceFields& fields, Field field) {
    return DefaultText(fields.Whole(field));
}
std::string NumberText(const SequenceFields& fields, Field field) {
    return DefaultText(fields.Number(field));
}

bool IsMetric(const SequenceFields& fields) {
    return fields[Field::kMet] == "Y";
}
const char* LengthUnit(const SequenceFields& fields) {
    return IsMetric(fields) ? "m" : "ft";
}

std::string Plot(const SequenceFields& fields) {
    const auto& plot = fields[Field::kPlot];
    return plot.size() > kShownPlot ? plot.substr(0, kShownPlot) + "..." : plot;
}

std::string Unit(const SequenceFields& fields) {
    if (IsMetric(fields)) return "SI" + Blanks(4);
    return fields[Field::kMet] == "N" ? "IM" + Blanks(3) : "";
}

std::string Regeneration(const SequenceFields& fields) {
    const auto& natural = fields[Field::kNat];
    if (natural == "Y" || (natural == "N" && fields[Field::kWood] == "H")) return "NAT\t";
    if (natural != "N") return "";
    return "PLT:" + fields[Field::kSpx].substr(0, 3) + "x" + fields[Field::kSpy].substr(0, 3) +
           LengthUnit(fields);
}

// What makes texts of different lengths about equally wide.
std::size_t PaddingBehindStocking(std::size_t length) {
    switch (length) {
        case 10:
            return 8;
        case 9:
            return 10;
        case 8:
            return 12;
        default:
            return 0;
    }
}

std::string SpeciesAndStocking(const SpeciesTables& tables, const SequenceFields& fields) {
    const auto name = tables.Species(fields[Field::kSpec]);
    const auto words = Split(name, ' ');
    if (name.empty() || words.size() < 2) throw RuntimeError(ErrorNumber::kSubscript);
    const auto text = words[0].substr(0, 2) + " " + words[1].substr(0, 2) + ":" +
                      WholeText(fields, Field::kStk) + "%";
    return text + Blanks(PaddingBehindStocking(text.size()));
}

std::string Site(const SequenceFields& fields) {
    std::string site;
    if (fields.Number(Field::kSib) == 0) {
        site = "LC:" + WholeText(fields, Field::kLc);
    } else if (fields.Whole(Field::kLc) == 0) {
        site = "SI:" + fields[Field::kSib];
    }
    if (site.size() > kSiteWidth) throw RuntimeError(ErrorNumber::kInvalidCall);
    return site + Blanks(kSiteWidth - site.size());
}

std::string Rotation(const SequenceFields& fields) {
    std::string rotation;
    if (fields.Whole(Field::kRage) == 0) {
        rotation = "DBH:" + fields[Field::kRdbh];
    } else if (fields.Number(Field::kRdbh) == 0) {
        rotation = "AGE:" + WholeText(fields, Field::kRage);
    }
    return rotation + Blanks(rotation.size() == 6 ? 8 : 6);
}

// When a treatment takes place, behind its kind; empty without a time.
std::string Time(const SequenceFields& fields, const char* kind, Field age, Field dbh) {
    if (fields.Number(age) != 0) return std::string(kind) + "(age " + WholeText(fields, age) + ")";
    if (fields.Number(dbh) != 0) return std::string(kind) + "(DBH " + NumberText(fields, dbh) + ")";
    return "";
}

std::string FirstTreatment(const SequenceFields& fields) {
    if (fields.Whole(Field::kT1Iba) != 0)
        return Time(fields, "CT ", Field::kT1Age, Field::kT1Dbh) + ":" +
               WholeText(fields, Field::kT1Iba) + "%";
    if (fields.Number(Field::kIsd) <= 0) return "";
    return Time(fields, "PCT", Field::kT1Age, Field::kT1Dbh) + ":" +
           NumberText(fields, Field::kIsd) + LengthUnit(fields);
}

std::string SecondTreatment(const SequenceFields& fields) {
    const auto time = Time(fields, "CT ", Field::kT2Age, Field::kT2Dbh);
    return time.empty() ? "" : time + ":" + WholeText(fields, Field::kT2Iba) + "%";
}

}  // namespace

std::string DescribeSequence(RunDefinition& run, const std::string& line) {
    const SequenceFields fields(line);
    auto row = Plot(fields) + "\t";
    LoadSpeciesTables(run.species, fields[Field::kWood] == "S" ? "Softwood" : "Hardwood",
                      run.ShortHardwoodList);
    row += Unit(fields) + Regeneration(fields) + "\t";
    row += SpeciesAndStocking(run.species, fields);
    row += Site(fields) + "\t";
    row += Rotation(fields);
    row += FirstTreatment(fields);
    if (const auto second = SecondTreatment(fields); !second.empty()) row += ", " + second;
    return row;
}

}  // namespace arbolith
