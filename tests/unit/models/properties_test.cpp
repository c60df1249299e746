// What holds for every stand that grows: checked over many stands, on values that aren't rounded
// unless a rule is about printed ones.
#include "models/density.h"
#include "models/height.h"
#include "models/numbers.h"
#include "models/site.h"
#include "models/stocking.h"
#include "unit/models/growth_testing.h"

#include <cmath>
#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace growth {
namespace {

using testing::Grow;
using testing::Line;
using testing::LineFields;

// Two results of one formula may differ by rounding in the last digits of a double.
constexpr double kSlack = 1e-9;

constexpr SizeClass kAllClasses[] = {kTotalClass, kMerchantableClass, kSawlogClass};

bool AtMost(double smaller, double larger) {
    return smaller <= larger + kSlack * std::max(1.0, std::abs(larger));
}

// Every species on the sites from its second class to one below its last.
std::vector<LineFields> SpeciesAndSites() {
    std::vector<LineFields> stands;
    for (const Species& species : AllSpecies()) {
        const int classes = static_cast<int>(SiteClasses(species.siteGroup).size());
        for (int landClass = 1; landClass <= classes; landClass += classes > 6 ? 3 : 1)
            stands.push_back({.spec = std::string(species.code), .lc = std::to_string(landClass)});
    }
    return stands;
}

// How a stand may be treated; removals up to 60 percent.
std::vector<LineFields> Treatments() {
    return {
        {.t1Age = "40", .t1Iba = "30"},
        {.t1Age = "55", .t2Age = "75", .t1Iba = "60", .t2Iba = "25"},
        {.t1Age = "20", .isd = "2.2"},
        {.t1Age = "25", .t2Age = "50", .t2Iba = "35", .isd = "2.8"},
        {.t1Dbh = "12", .t1Iba = "40"},
        {.t1Age = "45", .t2Age = "45", .t1Iba = "20", .t2Iba = "30"},
    };
}

LineFields Treated(LineFields stand, const LineFields& treatment) {
    stand.t1Age = treatment.t1Age;
    stand.t2Age = treatment.t2Age;
    stand.t1Dbh = treatment.t1Dbh;
    stand.t1Iba = treatment.t1Iba;
    stand.t2Iba = treatment.t2Iba;
    stand.isd = treatment.isd;
    return stand;
}

// Natural and planted, treated and not, at several stockings, of age 150.
std::vector<LineFields> ManyStands() {
    std::vector<LineFields> stands;
    for (LineFields stand : SpeciesAndSites()) {
        stand.rage = "150";
        stands.push_back(stand);
        for (const LineFields& treatment : Treatments())
            stands.push_back(Treated(stand, treatment));
        stand.nat = "N";
        stand.freq = "2500";
        stand.stk = "80";
        stands.push_back(stand);
        for (const LineFields& treatment : Treatments())
            stands.push_back(Treated(stand, treatment));
        stand.freq = "0";
        stand.spx = stand.spy = "3.5";
        stands.push_back(stand);
    }
    return stands;
}

LineFields InImperialUnits(LineFields stand) {
    stand.met = "N";
    return stand;
}

bool IsSpaced(const LineFields& stand) {
    return ReadNumber(stand.isd) > 0.0;
}
bool IsTreated(const LineFields& stand) {
    return ReadNumber(stand.t1Age) > 0.0 || ReadNumber(stand.t1Dbh) > 0.0;
}

class EveryStand : public ::testing::Test {
protected:
    // Calls check(stand, yield) for every stand, metric and imperial, and stops at the first
    // failure.
    template <typename Check>
    static void ForAll(Check check) {
        for (const LineFields& metric : ManyStands()) {
            for (const LineFields& stand : {metric, InImperialUnits(metric)}) {
                SCOPED_TRACE(Line(stand));
                check(stand, Grow(stand));
                if (HasFailure()) return;
            }
        }
    }

    template <typename Check>
    static void ForAllRowPairs(Check check) {
        ForAll([&check](const LineFields& stand, const Yield& yield) {
            for (std::size_t i = 1; i < yield.rows.size(); ++i)
                check(stand, yield.rows[i - 1], yield.rows[i]);
        });
    }
};

TEST_F(EveryStand, HasReadableText) {
    ForAll([](const LineFields& stand, const Yield& yield) {
        const testing::Block block = testing::Project(testing::WoodOf(stand.spec), Line(stand));
        EXPECT_EQ(block.rows.size(), yield.rows.size());
    });
}

TEST_F(EveryStand, HasItsClassesInOrder) {
    ForAll([](const LineFields& stand, const Yield& yield) {
        for (const Row& row : yield.rows) {
            for (const Variable variable : {kF, kBa, kVol}) {
                const auto& v = row.values[variable];
                EXPECT_TRUE(AtMost(v[1], v[0])) << row.age;
                const bool boardFeet = variable == kVol && stand.met == "N";
                if (!boardFeet) {
                    EXPECT_TRUE(AtMost(v[2], v[1])) << row.age;
                }
            }
            for (const Variable variable : {kDbh, kH}) {
                const auto& v = row.values[variable];
                if (v[1] > 0.0) {
                    EXPECT_TRUE(AtMost(v[0], v[1])) << row.age;
                }
                if (v[2] > 0.0) {
                    EXPECT_TRUE(AtMost(v[1], v[2])) << row.age;
                }
            }
        }
    });
}

TEST_F(EveryStand, HasValuesThatFitEachOther) {
    ForAll([](const LineFields& stand, const Yield& yield) {
        const double perSquare = 3.14159265358979 / (stand.met == "N" ? 576 : 40000);
        for (const Row& row : yield.rows) {
            const double diameter = row.At(kDbh, kTotalClass);
            const double area = perSquare * diameter * diameter * row.At(kF, kTotalClass);
            // The foot's and the acre's definitions agree to one part in a million only.
            EXPECT_NEAR(row.At(kBa, kTotalClass), area, 1e-6 * area);
            for (const SizeClass i : kAllClasses) {
                EXPECT_NEAR(row.At(kMai, i) * row.age, row.At(kVol, i), kSlack * row.At(kVol, i));
                EXPECT_NEAR(row.At(kCmai, i) * row.age, row.At(kCvol, i),
                            kSlack * row.At(kCvol, i));
                EXPECT_GE(row.At(kCvol, i), row.At(kVol, i));
            }
        }
    });
}

TEST_F(EveryStand, NeverLosesMeanDiameterOrHeightNorGainsStems) {
    ForAllRowPairs([](const LineFields&, const Row& before, const Row& after) {
        EXPECT_TRUE(AtMost(before.At(kDbh, kTotalClass), after.At(kDbh, kTotalClass))) << after.age;
        EXPECT_TRUE(AtMost(before.At(kH, kTotalClass), after.At(kH, kTotalClass))) << after.age;
        const double stems = before.At(kF, kTotalClass);
        if (stems > 0.0) {
            EXPECT_TRUE(AtMost(after.At(kF, kTotalClass), stems)) << after.age;
        }
    });
}

// The row after which a stand is spaced: the first one with trees at the treatment's age or later.
std::size_t SpacingRow(const LineFields& stand, const Yield& yield) {
    for (std::size_t i = 0; IsSpaced(stand) && i < yield.rows.size(); ++i) {
        const Row& row = yield.rows[i];
        if (row.At(kF, kTotalClass) > 0.0 && row.age >= ReadNumber(stand.t1Age)) return i;
    }
    return yield.rows.size();
}

TEST_F(EveryStand, NeverLosesCumulativeVolumeButInASpacing) {
    ForAll([](const LineFields& stand, const Yield& yield) {
        const std::size_t spacing = SpacingRow(stand, yield);
        for (std::size_t i = 1; i < yield.rows.size(); ++i) {
            if (i == spacing + 1) continue;
            for (const SizeClass k : kAllClasses) {
                EXPECT_TRUE(AtMost(yield.rows[i - 1].At(kCvol, k), yield.rows[i].At(kCvol, k)))
                    << yield.rows[i].age << ' ' << k;
            }
        }
    });
}

TEST_F(EveryStand, NeverLosesClassHeightUntreatedAndLittleAfterATreatment) {
    ForAllRowPairs([](const LineFields& stand, const Row& before, const Row& after) {
        const double kept = IsTreated(stand) ? 0.98 : 1.0;
        for (const SizeClass i : {kMerchantableClass, kSawlogClass}) {
            const double height = kept * before.At(kH, i);
            if (after.At(kH, i) > 0.0) {
                EXPECT_TRUE(AtMost(height, after.At(kH, i))) << after.age;
            }
        }
    });
}

TEST(WiderPlanting, GivesNoSmallerDiameterAndNoMoreStems) {
    const char* frequencies[] = {"6000", "4444", "2500", "1600", "1111", "816", "625"};
    for (LineFields stand : SpeciesAndSites()) {
        stand.nat = "N";
        std::vector<Yield> yields;
        for (const char* frequency : frequencies) {
            stand.freq = frequency;
            yields.push_back(Grow(stand));
        }
        for (std::size_t i = 1; i < yields.size(); ++i) {
            for (std::size_t j = 0; j < yields[i].rows.size(); ++j) {
                const Row& dense = yields[i - 1].rows[j];
                const Row& wide = yields[i].rows[j];
                ASSERT_TRUE(AtMost(dense.At(kDbh, kTotalClass), wide.At(kDbh, kTotalClass)));
                if (dense.At(kF, kTotalClass) > 0.0) {
                    ASSERT_TRUE(AtMost(wide.At(kF, kTotalClass), dense.At(kF, kTotalClass)));
                }
            }
        }
    }
}

TEST(Treatment, ChangesNoRowUpToItsOwnAndLeavesThickerAndFewerTrees) {
    for (const LineFields& stand : SpeciesAndSites()) {
        const Yield plain = Grow(stand);
        for (const LineFields& treatment : Treatments()) {
            const LineFields treatedStand = Treated(stand, treatment);
            SCOPED_TRACE(Line(treatedStand));
            const Yield treated = Grow(treatedStand);
            ASSERT_EQ(treated.rows.size(), plain.rows.size());
            bool changed = false;
            for (std::size_t i = 0; i < plain.rows.size(); ++i) {
                const Row& with = treated.rows[i];
                const Row& without = plain.rows[i];
                const bool firstChange = !changed && with.values != without.values;
                changed = changed || firstChange;
                ASSERT_TRUE(AtMost(without.At(kDbh, kTotalClass), with.At(kDbh, kTotalClass)));
                if (firstChange) {
                    ASSERT_LT(with.At(kBa, kTotalClass), without.At(kBa, kTotalClass));
                    ASSERT_LT(with.At(kF, kTotalClass), without.At(kF, kTotalClass));
                    const double due = ReadNumber(treatment.t1Age);
                    if (due > 0.0) {
                        ASSERT_GE(with.age, due + kRowStep);
                    }
                }
            }
        }
    }
}

// What the next row shows can't be more than what a thinning left: exact inside, and so bounded.
TEST(Treatment, LeavesExactlyWhatItSays) {
    for (const LineFields& stand : SpeciesAndSites()) {
        const Species& species = *FindSpecies(testing::WoodOf(stand.spec), stand.spec);
        const double siteIndex = ClassSiteIndex(species.siteGroup, ReadNumber(stand.lc));
        const double height = HeightCurve(species.height, siteIndex).At(35);
        const FullStand full =
            DensityLaw(species.density, FullStocking(species, siteIndex)).At(height);
        const SizeClassifier classifier(species, false, Units::Metric);
        const Stocking untouched(species.density.naturalStart);
        const StemsAndDiameter before = untouched.At(full, 40);
        const AllClasses whole = classifier.Classes(before, height);

        Stocking thinned = untouched;
        thinned.Thin(full, 40, before, Reduced(0.35, before));
        const AllClasses rest = classifier.Classes(thinned.At(full, 40), height);
        for (const SizeClass i : kAllClasses) {
            if (rest[i].stems == 0.0) continue;  // fell below half a stem
            EXPECT_NEAR(rest[i].stems / whole[i].stems, 0.65, 1e-9) << Line(stand);
            EXPECT_NEAR(rest[i].basalArea / whole[i].basalArea, 0.65, 1e-9) << Line(stand);
            EXPECT_NEAR(rest[i].volume / whole[i].volume, 0.65, 1e-9) << Line(stand);
        }

        ASSERT_GT(before.stems, 400.0);
        Stocking spaced = untouched;
        spaced.Thin(full, 40, before, SpacedTo(5.0, before));
        EXPECT_NEAR(spaced.At(full, 40).stems, 400.0, 1e-6) << Line(stand);
    }
}

TEST(Treatment, LeavesTheNextRowAtMostItsStems) {
    for (const LineFields& stand : SpeciesAndSites()) {
        const Yield thinned = Grow(Treated(stand, {.t1Age = "50", .t1Iba = "35"}));
        EXPECT_TRUE(AtMost(thinned.rows[10].At(kF, kTotalClass),
                           0.65 * thinned.rows[9].At(kF, kTotalClass)));
        const Yield spaced = Grow(Treated(stand, {.t1Age = "50", .isd = "3.5"}));
        const double stems = std::min(10000 / (3.5 * 3.5), spaced.rows[9].At(kF, kTotalClass));
        EXPECT_TRUE(AtMost(spaced.rows[10].At(kF, kTotalClass), stems)) << Line(stand);
    }
}

TEST(BetterSite, NeverHasLessAtTheSameAge) {
    for (const Species& species : AllSpecies()) {
        const auto classes = SiteClasses(species.siteGroup);
        LineFields stand{.spec = std::string(species.code), .lc = "0"};
        Yield poorer;
        for (double siteIndex = classes.front(); siteIndex <= classes.back(); siteIndex += 0.4) {
            stand.sib = std::to_string(siteIndex);
            const Yield better = Grow(stand);
            for (std::size_t i = 0; i < poorer.rows.size(); ++i) {
                const Row& low = poorer.rows[i];
                const Row& high = better.rows[i];
                for (const Variable variable : {kDbh, kH, kVol})
                    ASSERT_TRUE(
                        AtMost(low.At(variable, kTotalClass), high.At(variable, kTotalClass)))
                        << Line(stand) << low.age << ' ' << variable;
                ASSERT_TRUE(
                    AtMost(low.At(kVol, kMerchantableClass), high.At(kVol, kMerchantableClass)))
                    << Line(stand) << low.age;
            }
            if (!poorer.rows.empty()) {
                ASSERT_LE(better.yearsToBreastHeight, poorer.yearsToBreastHeight);
            }
            poorer = better;
        }
    }
}

TEST(UnitSystem, DoesNotChangeTheStandOfAClass) {
    const double factors[] = {1 / 2.54, 4.356, 0.40468564224, 1 / 0.3048};
    for (const LineFields& stand : SpeciesAndSites()) {
        for (const LineFields& treatment :
             {LineFields{}, LineFields{.t1Age = "45", .t1Iba = "30"}}) {
            const LineFields metricStand = Treated(stand, treatment);
            const Yield metric = Grow(metricStand);
            const Yield imperial = Grow(InImperialUnits(metricStand));
            ASSERT_EQ(metric.rows.size(), imperial.rows.size());
            EXPECT_EQ(metric.yearsToBreastHeight, imperial.yearsToBreastHeight);
            for (std::size_t i = 0; i < metric.rows.size(); ++i) {
                for (std::size_t j = 0; j < kVariables; ++j) {
                    const double expected = metric.rows[i].values[j][kTotalClass] *
                                            (j < 4 ? factors[j] : 0.40468564224 / 0.028316846592);
                    ASSERT_NEAR(imperial.rows[i].values[j][kTotalClass], expected, 2e-7 * expected);
                }
            }
        }
    }
}

TEST(RotationByDiameter, EndsWithTheOnlyRowThatReachesIt) {
    for (LineFields stand : SpeciesAndSites()) {
        stand.rage = "0";
        for (const char* diameter : {"0.1", "7", "14.5", "22", "31", "45"}) {
            stand.rdbh = diameter;
            const testing::Block block = testing::Project(testing::WoodOf(stand.spec), Line(stand));
            const std::size_t last = block.rows.size() - 1;
            for (std::size_t i = 0; i < last; ++i)
                EXPECT_LT(block.At(i, kDbh, kTotalClass), ReadNumber(diameter)) << Line(stand);
            EXPECT_TRUE(block.At(last, kDbh, kTotalClass) >= ReadNumber(diameter) ||
                        block.rows[last][1] == kOldestAge)
                << Line(stand);
        }
    }
}

TEST(StockingPercent, ScalesWhatIsPerArea) {
    for (LineFields stand : SpeciesAndSites()) {
        stand = Treated(stand, {.t1Age = "50", .t1Iba = "30"});
        const Yield full = Grow(stand);
        stand.stk = "64";
        const Yield sparse = Grow(stand);
        for (std::size_t i = 0; i < full.rows.size(); ++i) {
            for (std::size_t j = 0; j < kVariables; ++j) {
                const bool perArea = j != kDbh && j != kH;
                for (const SizeClass k : kAllClasses) {
                    const double expected = full.rows[i].values[j][k] * (perArea ? 0.64 : 1.0);
                    ASSERT_NEAR(sparse.rows[i].values[j][k], expected, kSlack * expected);
                }
            }
        }
    }
}

}  // namespace
}  // namespace growth
