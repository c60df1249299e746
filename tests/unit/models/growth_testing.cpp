// Helpers of the growth models' tests.
#include "unit/models/growth_testing.h"

#include "models/exchange.h"

#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>
#include <sstream>

namespace growth::testing {

namespace {

std::vector<std::string> Split(const std::string& text, const std::string& separator) {
    std::vector<std::string> parts;
    std::size_t at = 0;
    for (;;) {
        const std::size_t end = text.find(separator, at);
        parts.push_back(text.substr(at, end - at));
        if (end == std::string::npos) return parts;
        at = end + separator.size();
    }
}

double ReadToken(const std::string& token) {
    EXPECT_FALSE(token.empty());
    EXPECT_EQ(token.find_first_not_of("0123456789."), std::string::npos) << token;
    EXPECT_LE(std::count(token.begin(), token.end(), '.'), 1) << token;
    const double value = std::stod("0" + token);
    EXPECT_TRUE(std::isfinite(value)) << token;
    return value;
}

}  // namespace

std::string Line(const LineFields& f) {
    std::string line;
    for (const std::string* field :
         {&f.sequence, &f.met, &f.nat, &f.spec, &f.lc, &f.sib, &f.freq, &f.spx, &f.spy, &f.rage,
          &f.rdbh, &f.t1Age, &f.t2Age, &f.t1Dbh, &f.t2Dbh, &f.t1Iba, &f.t2Iba, &f.isd, &f.stk})
        line += *field + '\t';
    return line;
}

std::string TabLine(std::string_view fields) {
    std::string line(fields);
    std::replace(line.begin(), line.end(), '|', '\t');
    return line;
}

std::vector<Block> ReadBlocks(const std::string& output) {
    std::vector<Block> blocks;
    std::vector<std::string> lines = Split(output, "\r\n");
    EXPECT_EQ(lines.back(), "") << "the output doesn't end in CR LF";
    lines.pop_back();
    for (const std::string& line : lines) {
        EXPECT_EQ(line.find_first_of("\r\n"), std::string::npos);
        if (line.size() < 11) {
            ReadToken(line);
            blocks.push_back({line, {}, {}});
            continue;
        }
        EXPECT_GT(line.size(), 50U);
        if (blocks.empty()) {
            ADD_FAILURE() << "a row before the first heading";
            break;
        }
        std::vector<double> numbers;
        for (const std::string& token : Split(line, " ")) numbers.push_back(ReadToken(token));
        EXPECT_EQ(numbers.size(), 26U) << line;
        blocks.back().texts.push_back(line);
        blocks.back().rows.push_back(std::move(numbers));
    }
    for (const Block& block : blocks) EXPECT_FALSE(block.rows.empty());
    return blocks;
}

std::string Output(Wood wood, const std::string& input) {
    std::istringstream in(input);
    std::ostringstream out;
    GrowStands(wood, in, out);
    return out.str();
}

Block Project(Wood wood, const std::string& line) {
    std::vector<Block> blocks = ReadBlocks(Output(wood, line + "\r\n"));
    EXPECT_EQ(blocks.size(), 1U);
    return blocks.empty() ? Block{} : blocks.front();
}

Wood WoodOf(std::string_view code) {
    return FindSpecies(Wood::Softwood, code) != nullptr ? Wood::Softwood : Wood::Hardwood;
}

Yield Grow(const LineFields& fields) {
    return GrowStand(WoodOf(fields.spec), ReadStandLine(Line(fields)));
}

}  // namespace growth::testing
