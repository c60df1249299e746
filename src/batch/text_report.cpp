#include "batch/text_report.h"

#include "platform/numbers.h"
#include "platform/runtime_error.h"

#include <algorithm>
#include <cstddef>
#include <limits>
#include <numeric>

namespace arbolith {

namespace {

struct Column {
    std::int16_t width;
    bool whole = false;  ///< Shown as a whole number.
};

// The variables' columns, in their fixed order.
constexpr std::array<Column, kVariableCodes.size()> kColumns = {{
    {4, true},                        // SAGE
    {4},       {4},       {4},        // DBH
    {5},       {5},       {5},        // BA
    {6, true}, {4, true}, {4, true},  // F
    {4},       {4},       {4},        // H
    {5, true}, {5, true}, {5, true},  // VOL
    {7},       {7},       {7},        // MAI
    {5, true}, {5, true}, {5, true},  // cumulative VOL
    {7},       {7},       {7},        // cumulative MAI
}};

// So many digits come through a number unchanged.
constexpr std::size_t kExactDigits = 15;

void AppendRightAligned(std::string& line, std::int16_t width, std::string_view text) {
    const auto room = static_cast<std::size_t>(width);
    if (text.size() > room) throw RuntimeError(ErrorNumber::kInvalidCall);
    line.append(room - text.size(), ' ');
    line += text;
}

bool IsDigit(char c) {
    return c >= '0' && c <= '9';
}

// Most values are plain: their whole part is the digits before the point.
void CutToWholePart(std::string& value) {
    const auto end = std::find_if_not(value.begin(), value.end(), IsDigit);
    const auto digits = end - value.begin();
    const bool plain = digits == 1 || (digits > 1 && value.front() != '0');
    if (plain && value.size() <= kExactDigits) {
        value.erase(end, value.end());
    } else {
        value = DefaultText(WholePart(Val(value)));
    }
}

}  // namespace

std::string VariableHeads() {
    std::string heads;
    for (std::size_t i = 0; i < kColumns.size(); ++i) {
        if (i > 0) heads += '\t';
        AppendRightAligned(heads, kColumns[i].width, kVariableCodes[i]);
    }
    return heads;
}

void BatchIntegerize(DataValues& datavals) {
    for (std::size_t i = 0; i < kColumns.size(); ++i)
        if (kColumns[i].whole) CutToWholePart(datavals[i + 1]);
}

void BatchGetDataLengths(const DataValues& datavals, std::string_view plot,
                         DataLengths& datalengths) {
    constexpr std::int16_t kNarrowestPlot = 2;
    constexpr std::size_t kWidest = std::numeric_limits<std::int16_t>::max();
    datalengths[0] = kPlotHead.size();
    if (datalengths[0] < kNarrowestPlot) datalengths[0] = static_cast<std::int16_t>(plot.size());
    for (std::size_t i = 0; i < kColumns.size(); ++i) {
        const auto size = datavals[i + 1].size();
        if (size > kWidest) throw RuntimeError(ErrorNumber::kOverflow);
        datalengths[i + 1] = std::max(kColumns[i].width, static_cast<std::int16_t>(size));
    }
}

std::string BatchGetLineOutput(const DataValues& datavals, std::string_view plot,
                               const DataLengths& datalengths) {
    constexpr std::size_t kUsualSize = 200;
    std::string line;
    line.reserve(kUsualSize);
    AppendRightAligned(line, datalengths[0], plot);
    line += '\t';
    AppendVariables(line, datavals, datalengths);
    return line;
}

// The values are put into blanks: appending blanks and values in turn takes much longer.
void AppendVariables(std::string& line, const DataValues& datavals,
                     const DataLengths& datalengths) {
    auto end = line.size();
    const auto size = std::accumulate(datalengths.begin() + 1, datalengths.end(), end);
    line.resize(size + datalengths.size() - 2, ' ');
    for (std::size_t i = 1; i < datavals.size(); ++i) {
        if (i > 1) line[end++] = '\t';
        end += static_cast<std::size_t>(datalengths[i]);
        datavals[i].copy(line.data() + end - datavals[i].size(), datavals[i].size());
    }
}

}  // namespace arbolith
