// Helpers of the growth models' tests: lines for stands, and the models' output read as the
// application reads it.
#pragma once

#include "models/grow.h"

#include <string>
#include <string_view>
#include <vector>

namespace growth::testing {

/// The fields of a stand's line; a test names those that matter to it. As it stands: a natural red
/// spruce stand of class 6, 120 years, metric.
struct LineFields {
    std::string sequence = "0";
    std::string met = "Y";
    std::string nat = "Y";
    std::string spec = "RS";
    std::string lc = "6";
    std::string sib = "0.0";
    std::string freq = "1";
    std::string spx = "0.0";
    std::string spy = "0.0";
    std::string rage = "120";
    std::string rdbh = "0.0";
    std::string t1Age = "0.0";
    std::string t2Age = "0.0";
    std::string t1Dbh = "0.0";
    std::string t2Dbh = "0.0";
    std::string t1Iba = "0.0";
    std::string t2Iba = "0.0";
    std::string isd = "0.0";
    std::string stk = "100";
};

/// The line of these fields, each ended by a tab, without a line end.
std::string Line(const LineFields& fields);

/// A line written with | for the tabs.
std::string TabLine(std::string_view fields);

/// A stand's block in a model's output.
struct Block {
    /// The line with the years to breast height.
    std::string heading;
    /// The rows' texts, and their 26 numbers.
    std::vector<std::string> texts;
    std::vector<std::vector<double>> rows;

    double At(std::size_t row, Variable variable, SizeClass sizeClass) const {
        return rows.at(row).at(2 + variable * kSizeClasses + sizeClass);
    }
};

/// Reads an output and fails the test where it isn't one that the application can read: lines end
/// in CR LF and nothing follows; a line under 11 characters opens a block; a row has over 50, with
/// 26 numbers of digits and at most one point, single blanks between them.
std::vector<Block> ReadBlocks(const std::string& output);

/// What a model writes for an input.
std::string Output(Wood wood, const std::string& input);

/// The one block that a model writes for one line.
Block Project(Wood wood, const std::string& line);

/// The wood of a species by its code.
Wood WoodOf(std::string_view code);

/// The stand of these fields, grown and not rounded.
Yield Grow(const LineFields& fields);

}  // namespace growth::testing
