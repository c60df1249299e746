// Printing of a stand's block.
#include "models/report.h"

#include "models/numbers.h"

namespace growth {

namespace {

constexpr std::string_view kLineEnd = "\r\n";

void AppendRow(std::string& text, Units units, const Row& row) {
    AppendWhole(text, row.age);
    for (std::size_t i = 0; i < kVariables; ++i) {
        const int decimals = DecimalsOf(static_cast<Variable>(i), units);
        for (const double value : row.values[i]) {
            text += ' ';
            AppendFixed(text, value, decimals);
        }
    }
}

}  // namespace

void AppendBlock(std::string& text, int sequence, Units units, const Yield& yield) {
    AppendFixed(text, yield.yearsToBreastHeight, 1);
    text += kLineEnd;
    for (const Row& row : yield.rows) {
        AppendWhole(text, sequence);
        text += ' ';
        AppendRow(text, units, row);
        text += kLineEnd;
    }
}

}  // namespace growth
