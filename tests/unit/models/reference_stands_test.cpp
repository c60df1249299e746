// Worked stands and the calibration of the models: their printed rows, and the best mean annual
// increment of every species and class.
#include "models/numbers.h"
#include "models/site.h"
#include "unit/models/growth_testing.h"

#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>
#include <sstream>
#include <string>
#include <vector>

namespace growth {
namespace {

using testing::Block;
using testing::Grow;
using testing::Project;

struct ReferenceStand {
    const char* species;
    const char* line;
    const char* heading;
    std::size_t rowCount;
    std::vector<std::string> rows;
};

const ReferenceStand kStands[] = {
    {"RS",
     "0|Y|Y|RS|6|0|1|0.0|0.0|120|0.0|0.0|0.0|0.0|0.0|0.0|0.0|0.0|100|",
     "8.7",
     24,
     {"0 15 1.8 0.0 0.0 3.00 0.00 0.00 11989 0 0 3.0 0.0 0.0 5.1 0.0 0.0 0.34 0.00 0.00 5.1 0.0 "
      "0.0 0.34 0.00 0.00",
      "0 25 5.5 9.8 0.0 23.99 1.73 0.00 10189 229 0 6.4 6.9 0.0 81.5 3.8 0.0 3.26 0.15 0.00 81.5 "
      "3.8 0.0 3.26 0.15 0.00",
      "0 40 10.9 12.6 16.2 42.30 35.10 13.55 4571 2804 659 11.0 11.4 11.8 235.9 161.5 63.9 5.90 "
      "4.04 1.60 235.9 161.5 63.9 5.90 4.04 1.60",
      "0 70 19.2 19.5 21.3 53.95 53.51 48.77 1861 1789 1368 18.1 18.2 18.5 456.6 419.9 375.4 6.52 "
      "6.00 5.36 456.6 419.9 375.4 6.52 6.00 5.36",
      "0 120 26.9 26.9 27.7 61.68 61.67 60.70 1085 1084 1011 24.4 24.4 24.6 661.3 628.0 609.9 5.51 "
      "5.23 5.08 661.3 628.0 609.9 5.51 5.23 5.08"}},
    {"WS",
     "0|Y|N|WS|0|18|2500|2.0|2.0|80|0.0|40.0|0.0|0.0|0.0|30.0|0.0|0.0|80|",
     "6.2",
     16,
     {"0 20 8.5 10.3 14.5 11.33 5.70 0.02 1998 686 1 5.9 6.1 6.3 32.6 10.1 0.0 1.63 0.50 0.00 32.6 "
      "10.1 0.0 1.63 0.50 0.00",
      "0 40 15.7 15.8 17.4 35.19 34.94 27.58 1827 1791 1165 12.5 12.5 12.8 198.8 169.8 125.9 4.97 "
      "4.25 3.15 198.8 169.8 125.9 4.97 4.25 3.15",
      "0 45 17.6 17.6 18.7 30.41 30.35 27.22 1252 1245 993 13.9 13.9 14.1 187.8 166.3 140.3 4.17 "
      "3.70 3.12 247.5 217.2 178.1 5.50 4.83 3.96",
      "0 80 25.5 25.5 25.6 49.46 49.46 49.24 969 969 957 20.9 20.9 21.0 424.8 396.3 382.8 5.31 "
      "4.95 4.79 484.5 447.2 420.6 6.06 5.59 5.26"}},
    {"BF",
     "0|Y|Y|BF|7|0|1|0.0|0.0|90|0.0|20.0|50.0|0.0|0.0|0.0|25.0|2.0|100|",
     "8.1",
     18,
     {"0 20 5.2 9.7 0.0 23.15 1.01 0.00 10956 136 0 6.1 6.6 0.0 74.4 2.0 0.0 3.72 0.10 0.00 74.4 "
      "2.0 0.0 3.72 0.10 0.00",
      "0 25 9.2 11.5 15.5 16.42 11.09 2.08 2490 1059 111 7.9 8.2 8.5 66.0 34.0 6.8 2.64 1.36 0.27 "
      "66.0 34.0 6.8 2.64 1.36 0.27",
      "0 50 17.7 18.1 20.2 51.80 51.08 44.54 2112 1982 1392 15.3 15.4 15.8 353.0 312.1 267.4 7.06 "
      "6.24 5.35 353.0 312.1 267.4 7.06 6.24 5.35",
      "0 55 19.4 19.7 21.5 45.71 45.37 41.56 1541 1485 1148 16.5 16.6 16.9 329.3 296.1 266.5 5.99 "
      "5.38 4.84 417.6 374.2 333.3 7.59 6.80 6.06",
      "0 90 26.7 26.7 27.5 66.50 66.48 65.40 1187 1185 1102 23.1 23.1 23.2 601.6 556.0 540.5 6.68 "
      "6.18 6.01 689.8 634.0 607.3 7.66 7.04 6.75"}},
    {"WP",
     "0|N|Y|WP|8|0|1|0.0|0.0|0|14|0.0|0.0|8.0|0.0|35.0|0.0|0.0|100|",
     "7.6",
     40,
     {"0 30 3.6 4.5 6.1 176.9 123.7 24.3 2446 1102 120 32.3 33.7 34.9 2692 1369 897 89.7 45.6 29.9 "
      "2692 1369 897 89.7 45.6 29.9",
      "0 50 6.8 7.0 7.9 245.3 241.8 208.4 964 903 620 55.3 55.7 57.0 6138 5448 19820 122.8 109.0 "
      "396.4 6138 5448 19820 122.8 109.0 396.4",
      "0 55 7.5 7.6 8.3 254.4 252.4 228.6 838 806 608 59.8 60.0 61.3 6828 6193 24977 124.1 112.6 "
      "454.1 6828 6193 24977 124.1 112.6 454.1",
      "0 160 12.1 12.1 12.2 290.9 290.9 289.0 366 366 354 88.7 88.7 89.0 11034 10541 60996 69.0 "
      "65.9 381.2 13641 12939 71402 85.3 80.9 446.3"}},
    {"SM",
     "0|Y|Y|SM|3|0|1|0.0|0.0|100|0.0|45.0|70.0|0.0|0.0|25.0|20.0|0.0|100|",
     "2.6",
     20,
     {"0 10 2.6 0.0 0.0 5.13 0.00 0.00 9847 0 0 4.0 0.0 0.0 9.3 0.0 0.0 0.93 0.00 0.00 9.3 0.0 0.0 "
      "0.93 0.00 0.00",
      "0 45 13.6 15.1 27.4 27.69 25.73 1.60 1910 1434 27 14.3 14.7 15.7 167.4 129.0 6.4 3.72 2.87 "
      "0.14 167.4 129.0 6.4 3.72 2.87 0.14",
      "0 50 15.1 16.4 28.0 24.22 23.16 3.03 1346 1102 49 15.4 15.7 16.8 156.1 126.3 13.2 3.12 2.53 "
      "0.26 197.9 158.5 14.8 3.96 3.17 0.30",
      "0 75 20.3 20.8 30.3 26.60 26.33 11.69 825 774 162 19.5 19.7 21.0 210.6 182.9 68.0 2.81 2.44 "
      "0.91 298.9 255.1 81.8 3.99 3.40 1.09",
      "0 100 23.4 23.8 32.1 31.66 31.52 19.31 733 711 239 22.2 22.2 23.5 278.5 245.9 129.8 2.79 "
      "2.46 1.30 366.8 318.1 143.7 3.67 3.18 1.44"}},
    {"TA",
     "0|N|Y|TA|0|65|1|0.0|0.0|63|0.0|0.0|0.0|0.0|0.0|0.0|0.0|0.0|70|",
     "2.3",
     13,
     {"0 10 1.3 0.0 0.0 27.8 0.0 0.0 3252 0 0 15.8 0.0 0.0 186 0 0 18.6 0.0 0.0 186 0 0 18.6 0.0 "
      "0.0",
      "0 30 4.4 5.2 10.6 90.6 76.7 0.5 874 523 1 42.0 43.6 46.3 1650 1159 34 55.0 38.6 1.1 1650 "
      "1159 34 55.0 38.6 1.1",
      "0 60 7.1 7.4 11.6 110.4 108.4 30.8 403 364 42 64.2 64.9 69.6 3124 2798 3927 52.1 46.6 65.5 "
      "3124 2798 3927 52.1 46.6 65.5",
      "0 63 7.3 7.5 11.7 111.4 109.7 34.1 388 354 46 65.6 66.2 71.0 3225 2901 4486 51.2 46.1 71.2 "
      "3225 2901 4486 51.2 46.1 71.2"}},
};

std::vector<std::string> Tokens(const std::string& row) {
    std::istringstream stream(row);
    std::vector<std::string> tokens;
    for (std::string token; stream >> token;) tokens.push_back(token);
    return tokens;
}

std::size_t Decimals(const std::string& token) {
    const std::size_t point = token.find('.');
    return point == std::string::npos ? 0 : token.size() - point - 1;
}

// Equal to one unit in the last printed place.
void ExpectRow(const std::string& actual, const std::string& expected) {
    const auto given = Tokens(actual);
    const auto wanted = Tokens(expected);
    ASSERT_EQ(given.size(), wanted.size());
    for (std::size_t i = 0; i < wanted.size(); ++i) {
        EXPECT_EQ(Decimals(given[i]), Decimals(wanted[i])) << "token " << i << " of " << actual;
        const double unit = std::pow(10.0, -static_cast<double>(Decimals(wanted[i])));
        EXPECT_NEAR(std::stod(given[i]), std::stod(wanted[i]), 1.001 * unit)
            << "token " << i << " of " << expected;
    }
}

std::string RowOfAge(const Block& block, double age) {
    for (std::size_t i = 0; i < block.rows.size(); ++i) {
        if (block.rows[i][1] == age) return block.texts[i];
    }
    return "";
}

class ReferenceStands : public ::testing::TestWithParam<ReferenceStand> {};

TEST_P(ReferenceStands, HaveTheWorkedRows) {
    const ReferenceStand& stand = GetParam();
    const Block block = Project(testing::WoodOf(stand.species), testing::TabLine(stand.line));
    EXPECT_EQ(block.heading, stand.heading);
    EXPECT_EQ(block.rows.size(), stand.rowCount);
    for (const std::string& row : stand.rows)
        ExpectRow(RowOfAge(block, std::stod(Tokens(row)[1])), row);
}

INSTANTIATE_TEST_SUITE_P(All, ReferenceStands, ::testing::ValuesIn(kStands),
                         [](const auto& test) { return std::string(test.param.species); });

// Best mean annual increment of merchantable volume, m³/ha/year, and the stump age at which it
// comes, of natural full stands of classes 1, 2, ...; * marks classes beyond the normal list.
struct Peaks {
    const char* species;
    const char* classes;
};

constexpr Peaks kPeaks[] = {
    {"WP",
     "1.00@110 2.00@95 3.00@85 4.00@80 5.00@75 6.00@70 7.00@65 8.00@65 9.00@60 10.00@60 11.00@55 "
     "12.00@55 13.00@55"},
    {"RP",
     "1.00@115 2.00@95 3.00@85 4.00@80 5.00@70 6.00@70 7.00@65 8.00@60 9.00@60 10.00@60 11.00@60 "
     "12.00@55 13.00@55"},
    {"BS",
     "1.00@120 2.00@115 3.00@100 4.00@90 5.00@75 6.00@70 7.00@60 8.00@55 9.00@55 10.00@50 11.00@50 "
     "12.00@45 13.00@45"},
    {"RS",
     "1.00@120 2.00@105 3.00@90 4.00@85 5.00@75 6.00@70 7.00@70 8.00@65 9.00@65 10.00@60 11.00@60 "
     "12.00@55 13.00@55"},
    {"WS",
     "1.00@120 2.00@110 3.00@95 4.00@85 5.00@75 6.00@70 7.00@65 8.00@55 9.00@50 10.00@45 11.00@45 "
     "12.00@40 13.00@40"},
    {"NS",
     "1.00@115 2.00@100 3.00@85 4.00@80 5.00@75 6.00@70 7.00@65 8.00@65 9.00@60 10.00@60 11.00@55 "
     "12.00@55 13.00@55"},
    {"BF",
     "1.00@120 2.00@115 3.00@100 4.00@85 5.00@75 6.00@65 7.00@60 8.00@55 9.00@50 10.00@50 11.00@45 "
     "12.00@45 13.00@45"},
    {"EH",
     "1.00@110 2.00@95 3.00@85 4.00@80 5.00@75 6.00@75 7.00@70 8.00@70 9.00@65 10.00@65 11.00@65 "
     "12.01@65 13.00@60"},
    {"RO", "1.00@90 2.00@65 3.00@50 4.00@40 *5.01@30"},
    {"RM", "1.00@105 2.00@75 3.00@60 *4.00@45"},
    {"SM", "1.00@100 2.00@75 3.00@55 4.00@45 *5.00@35"},
    {"YB", "1.00@90 2.00@65 3.00@50 4.00@40 *5.00@30"},
    {"WB", "1.00@90 2.00@65 3.00@45 *4.00@35"},
    {"AB", "1.00@115 2.00@85 3.00@65 4.00@50 *5.00@45"},
    {"LA", "1.00@90 2.00@70 3.00@60 4.00@50 5.00@45 *6.00@40"},
    {"TA", "1.00@100 2.00@80 3.00@65 4.00@55 5.00@45 *6.00@40"},
    {"WA", "1.00@90 2.00@70 3.00@55 4.00@40 *5.00@30"},
};

double Increment(const Row& row) {
    return row.At(kMai, kMerchantableClass);
}

double BestIncrement(const Yield& yield) {
    double best = 0.0;
    for (const Row& row : yield.rows) best = std::max(best, Increment(row));
    return best;
}

// The age of the first row that prints the best increment.
int AgeOfBest(const Yield& yield) {
    const double best = RoundTo(BestIncrement(yield), 2);
    for (const Row& row : yield.rows) {
        if (RoundTo(Increment(row), 2) == best) return row.age;
    }
    return 0;
}

class Calibration : public ::testing::TestWithParam<Peaks> {};

TEST_P(Calibration, PutsTheBestIncrementOfAClassAtTheClass) {
    const Peaks& peaks = GetParam();
    int landClass = 0;
    for (std::string entry : Tokens(peaks.classes)) {
        ++landClass;
        const bool beyondList = entry.front() == '*';
        if (beyondList) entry.erase(0, 1);
        const std::size_t at = entry.find('@');
        const Yield yield = Grow({.spec = peaks.species, .lc = std::to_string(landClass)});
        const double increment = BestIncrement(yield);
        EXPECT_NEAR(increment, std::stod(entry.substr(0, at)), 0.00501) << "class " << landClass;
        EXPECT_EQ(AgeOfBest(yield), std::stoi(entry.substr(at + 1))) << "class " << landClass;
        if (!beyondList) {
            EXPECT_NEAR(increment / landClass, 1.0, 0.0015) << "class " << landClass;
        }
    }
    const Species& species = *FindSpecies(testing::WoodOf(peaks.species), peaks.species);
    EXPECT_EQ(static_cast<std::size_t>(landClass), SiteClasses(species.siteGroup).size());
}

TEST_P(Calibration, StaysCloseHalfWayBetweenClasses) {
    const std::string code = GetParam().species;
    const auto classes = SiteClasses(FindSpecies(testing::WoodOf(code), code)->siteGroup);
    for (std::size_t i = 0; i + 1 < classes.size(); ++i) {
        const std::string siteIndex = std::to_string((classes[i] + classes[i + 1]) / 2.0);
        const Yield yield = Grow({.spec = code, .lc = "0", .sib = siteIndex});
        const double halfClass = static_cast<double>(i) + 1.5;
        const bool lowAspen = i == 0 && (code == "LA" || code == "TA");
        EXPECT_NEAR(BestIncrement(yield) / halfClass, 1.0, lowAspen ? 0.068 : 0.033)
            << "above class " << i + 1;
    }
}

INSTANTIATE_TEST_SUITE_P(All, Calibration, ::testing::ValuesIn(kPeaks),
                         [](const auto& test) { return std::string(test.param.species); });

}  // namespace
}  // namespace growth
