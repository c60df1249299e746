#include "model_bridge/run_line.h"

#include "platform/numbers.h"
#include "platform/text.h"
#include "run_definition/species.h"

namespace arbolith {

namespace {

// Collects fields, each with the tab that follows it.
class FieldWriter {
public:
    FieldWriter& operator<<(std::string_view field) {
        line_ += field;
        line_ += '\t';
        return *this;
    }
    std::string Line() && { return std::move(line_); }

private:
    std::string line_;
};

std::string Whole(double value) {
    return DefaultText(value);
}
std::string TwoDecimals(double value) {
    return DefaultText(RoundTo2(value));
}

}  // namespace

std::string BuildRunLine(const RunRecord& record, const std::string& unitSystem,
                         bool shortHardwoodList) {
    SpeciesTables tables;
    LoadSpeciesTables(tables, record.WDTYPE, shortHardwoodList);
    const bool planted = !record.NatFlag;
    FieldWriter line;
    line << (unitSystem == "Metric" ? "Y" : "N");
    line << (planted ? "N" : "Y");
    line << Trimmed(tables.Species(record.SPEC));
    line << (record.LcFlag ? Whole(record.LC) : "0");
    line << (record.LcFlag ? "0.0" : TwoDecimals(record.SIB));
    line << (planted ? Whole(WholePart(record.FREQ)) : "1");
    line << (planted ? OneToThreeDecimals(record.SPX) : "0.0");
    line << (planted ? OneToThreeDecimals(record.SPY) : "0.0");
    line << (record.RotAgeFlag ? Whole(record.RAGE) : "0");
    line << (record.RotAgeFlag ? "0.0" : TwoDecimals(record.RDBH));
    line << OneToThreeDecimals(record.T1Age);
    line << OneToThreeDecimals(record.T2Age);
    line << OneToThreeDecimals(record.T1DBH);
    line << "0.0";  // T2DBH: treatment 2 can't be set by diameter.
    line << OneToThreeDecimals(record.T1IBA);
    line << OneToThreeDecimals(record.T2IBA);
    line << OneToThreeDecimals(record.ISD);
    line << Whole(record.STK);
    return std::move(line).Line();
}

}  // namespace arbolith
