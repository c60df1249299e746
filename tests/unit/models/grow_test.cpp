// Which stands grow, which rows they have, and what treatments do to them.
#include "models/grow.h"

#include "models/numbers.h"
#include "unit/models/growth_testing.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <utility>

namespace growth {
namespace {

using testing::Grow;
using testing::LineFields;

// ft³/acre of 1 m³/ha.
constexpr double kCubicFeetPerAcre = 0.40468564224 / 0.028316846592;

std::vector<int> Ages(const Yield& yield) {
    std::vector<int> ages;
    for (const Row& row : yield.rows) ages.push_back(row.age);
    return ages;
}

bool IsUngrown(const Yield& yield) {
    return yield.yearsToBreastHeight == 0.0 && yield.rows.size() == 1 && yield.rows[0].age == 0 &&
           yield.rows[0].values == Row{}.values;
}

const Row& RowAt(const Yield& yield, int age) {
    for (const Row& row : yield.rows) {
        if (row.age == age) return row;
    }
    ADD_FAILURE() << "no row of age " << age;
    return yield.rows.front();
}

TEST(GrowStand, GrowsNoSpeciesOfTheOtherWoodOrOfNone) {
    EXPECT_FALSE(IsUngrown(GrowStand(Wood::Softwood, ReadStandLine(testing::Line({})))));
    EXPECT_TRUE(IsUngrown(GrowStand(Wood::Hardwood, ReadStandLine(testing::Line({})))));
    EXPECT_TRUE(IsUngrown(Grow({.spec = "XX"})));
    EXPECT_TRUE(IsUngrown(Grow({.spec = ""})));
}

TEST(GrowStand, GrowsNothingWithoutASite) {
    EXPECT_TRUE(IsUngrown(Grow({.lc = "0", .sib = "0"})));
    EXPECT_TRUE(IsUngrown(Grow({.lc = "0.9", .sib = "-3"})));
    EXPECT_FALSE(IsUngrown(Grow({.lc = "0.9", .sib = "0.01"})));
    EXPECT_FALSE(IsUngrown(Grow({.lc = "1", .sib = "-3"})));
}

TEST(GrowStand, GrowsNothingWithoutStockingOrLength) {
    EXPECT_TRUE(IsUngrown(Grow({.stk = "0"})));
    EXPECT_TRUE(IsUngrown(Grow({.stk = "-10"})));
    EXPECT_TRUE(IsUngrown(Grow({.rage = "0.9", .rdbh = "0"})));
    EXPECT_TRUE(IsUngrown(Grow({.rage = "-5", .rdbh = "-1"})));
    EXPECT_FALSE(IsUngrown(Grow({.rage = "0.9", .rdbh = "0.1"})));
    EXPECT_FALSE(IsUngrown(Grow({.rage = "1"})));
}

TEST(GrowStand, PrefersTheClassAndTakesItsWholePart) {
    EXPECT_EQ(Grow({.lc = "6.9", .sib = "25"}).rows[20].values, Grow({.lc = "6"}).rows[20].values);
    EXPECT_EQ(Grow({.lc = "0", .sib = "17.06"}).rows[20].values, Grow({.lc = "6"}).rows[20].values);
}

TEST(GrowStand, LimitsTheSiteIndex) {
    const auto at = [](const char* siteIndex) {
        return Grow({.lc = "0", .sib = siteIndex}).rows.back().values;
    };
    EXPECT_EQ(at("0.5"), at("2"));
    EXPECT_EQ(at("1000"), at("40"));
    EXPECT_NE(at("39"), at("40"));
    EXPECT_EQ(Grow({.lc = "500"}).rows.back().values, at("40"));
}

TEST(GrowStand, ReadsASiteIndexInFeetForImperialRuns) {
    const Yield feet = Grow({.met = "N", .lc = "0", .sib = "50"});
    const Yield metres = Grow({.lc = "0", .sib = "15.24"});
    EXPECT_EQ(feet.yearsToBreastHeight, metres.yearsToBreastHeight);
    EXPECT_NEAR(feet.rows.back().At(kH, kTotalClass) * 0.3048,
                metres.rows.back().At(kH, kTotalClass), 1e-9);
}

TEST(Rows, LieEveryFiveYearsAndAtTheRotationAge) {
    EXPECT_EQ(Ages(Grow({.rage = "20"})), (std::vector<int>{5, 10, 15, 20}));
    EXPECT_EQ(Ages(Grow({.rage = "22.9"})), (std::vector<int>{5, 10, 15, 20, 22}));
    EXPECT_EQ(Ages(Grow({.rage = "5"})), (std::vector<int>{5}));
    EXPECT_EQ(Ages(Grow({.rage = "3"})), (std::vector<int>{3}));
    EXPECT_EQ(Ages(Grow({.rage = "1"})), (std::vector<int>{1}));
}

TEST(Rows, EndAtTwoHundredYears) {
    const Yield yield = Grow({.rage = "201"});
    EXPECT_EQ(yield.rows.size(), 40U);
    EXPECT_EQ(yield.rows.back().age, 200);
    EXPECT_EQ(Grow({.rage = "1000000000"}).rows.size(), 40U);
}

TEST(Rows, IgnoreTheRotationDiameterBesideARotationAge) {
    EXPECT_EQ(Grow({.rage = "120", .rdbh = "2"}).rows.size(), 24U);
}

TEST(Rows, EndWithTheFirstPrintedDiameterOfTheRotation) {
    const Yield yield = Grow({.rage = "0", .rdbh = "15"});
    const std::size_t count = yield.rows.size();
    EXPECT_GE(RoundTo(yield.rows[count - 1].At(kDbh, kTotalClass), 1), 15.0);
    EXPECT_LT(RoundTo(yield.rows[count - 2].At(kDbh, kTotalClass), 1), 15.0);
    EXPECT_EQ(Grow({.rage = "0", .rdbh = "500"}).rows.size(), 40U);
}

// A diameter that rounds up to the rotation's is enough, one that exceeds it but rounds down is
// not.
TEST(Rows, CompareThePrintedDiameterWithTheRotations) {
    const Yield yield = Grow({});
    int roundedUp = 0;
    for (std::size_t i = 2; i + 1 < yield.rows.size(); ++i) {
        const double diameter = yield.rows[i].At(kDbh, kTotalClass);
        std::string limit;
        AppendFixed(limit, diameter, 1);
        roundedUp += diameter < ReadNumber(limit) ? 1 : 0;
        EXPECT_EQ(Grow({.rage = "0", .rdbh = limit}).rows.size(), i + 1) << limit;
        EXPECT_EQ(Grow({.rage = "0", .rdbh = limit + "01"}).rows.size(), i + 2) << limit;
    }
    EXPECT_GT(roundedUp, 0);
}

TEST(Rows, HaveNoTreesBelowBreastHeightAndBelowOneCentimetre) {
    const Yield yield = Grow({.spec = "RS", .lc = "6"});
    EXPECT_EQ(yield.rows[0].values, Row{}.values);  // 5 years, breast height at 8.7
    EXPECT_EQ(yield.rows[1].values, Row{}.values);  // 10 years, thinner than 1 cm
    EXPECT_GE(yield.rows[2].At(kDbh, kTotalClass), 1.0);
}

TEST(Rows, HaveTreesFromOneCentimetreOn) {
    double thinnest = 100.0;
    for (double siteIndex = 4.0; siteIndex < 30.0; siteIndex += 0.05) {
        const Yield yield = Grow({.lc = "0", .sib = std::to_string(siteIndex)});
        for (const Row& row : yield.rows) {
            if (row.At(kF, kTotalClass) > 0.0)
                thinnest = std::min(thinnest, row.At(kDbh, kTotalClass));
        }
    }
    EXPECT_GE(thinnest, 1.0);
    EXPECT_LT(thinnest, 1.02);
}

TEST(Planting, TakesTheFrequencyBeforeTheSpacing) {
    const auto stems = [](LineFields fields) {
        fields.nat.assign(1, 'N');
        return Grow(fields).rows[4].At(kF, kTotalClass);
    };
    EXPECT_EQ(stems({.freq = "2500", .spx = "9", .spy = "9"}), stems({.freq = "2500"}));
    EXPECT_EQ(stems({.freq = "0", .spx = "2", .spy = "2"}), stems({.freq = "2500"}));
    EXPECT_EQ(stems({.freq = "-1", .spx = "2.5", .spy = "1.6"}), stems({.freq = "2500"}));
    EXPECT_NEAR(stems({.freq = "1000"}), 1000, 10);
}

TEST(Planting, ReadsFrequencyAndSpacingPerAcreAndFeetForImperialRuns) {
    const Yield byCount = Grow({.met = "N", .nat = "N", .freq = "1089"});
    const Yield bySpacing = Grow({.met = "N", .nat = "N", .freq = "0", .spx = "8", .spy = "5"});
    EXPECT_EQ(byCount.rows.back().values, bySpacing.rows.back().values);
    EXPECT_NEAR(RowAt(byCount, 20).At(kF, kTotalClass), 1089, 15);
}

TEST(Planting, LimitsTheFrequency) {
    const auto last = [](const char* frequency) {
        return Grow({.nat = "N", .freq = frequency}).rows.back().values;
    };
    EXPECT_EQ(last("200000"), last("100000"));
    EXPECT_NE(last("99000"), last("100000"));
    EXPECT_NEAR(last("0.01")[kF][kTotalClass], 1.0, 1e-3);
    EXPECT_NEAR(last("1.5")[kF][kTotalClass], 1.5, 1e-3);
    EXPECT_EQ(Grow({.nat = "N", .freq = "0", .spx = "1e-9", .spy = "0.000000001"}).rows.size(),
              24U);
}

TEST(Planting, GrowsAsNaturalWithoutAFrequency) {
    const Yield natural = Grow({});
    for (const LineFields& fields :
         {LineFields{.nat = "N", .freq = "0"}, LineFields{.nat = "N", .freq = "0", .spx = "2"},
          LineFields{.nat = "N", .freq = "-4", .spx = "2", .spy = "-2"}}) {
        const Yield yield = Grow(fields);
        EXPECT_EQ(yield.yearsToBreastHeight, natural.yearsToBreastHeight);
        EXPECT_EQ(yield.rows.back().values, natural.rows.back().values);
    }
    EXPECT_EQ(Grow({.freq = "900"}).rows.back().values, natural.rows.back().values);
}

// A treatment shows first in the row after the one at which it was carried out.
int FirstChangedAge(const LineFields& fields) {
    LineFields plain = fields;
    for (std::string* time : {&plain.t1Age, &plain.t2Age, &plain.t1Dbh}) time->clear();
    const Yield treated = Grow(fields);
    const Yield untreated = Grow(plain);
    for (std::size_t i = 0; i < treated.rows.size(); ++i) {
        if (treated.rows[i].values != untreated.rows[i].values) return treated.rows[i].age;
    }
    return 0;
}

TEST(Treatment1, FollowsTheFirstRowOfItsAge) {
    EXPECT_EQ(FirstChangedAge({.t1Age = "40", .t1Iba = "30"}), 45);
    EXPECT_EQ(FirstChangedAge({.t1Age = "41", .t1Iba = "30"}), 50);
    EXPECT_EQ(FirstChangedAge({.t1Age = "40.2", .t1Iba = "30"}), 50);
}

TEST(Treatment1, WaitsForTrees) {
    EXPECT_EQ(FirstChangedAge({.t1Age = "1", .t1Iba = "30"}), 20);  // first trees at 15
    EXPECT_EQ(FirstChangedAge({.t1Dbh = "0.1", .t1Iba = "30"}), 20);
}

TEST(Treatment1, FollowsTheFirstRowOfItsPrintedDiameter) {
    EXPECT_EQ(FirstChangedAge({.t1Dbh = "19.2", .t1Iba = "30"}), 75);  // 19.2 printed at 70
    EXPECT_EQ(FirstChangedAge({.t1Dbh = "19.3", .t1Iba = "30"}), 80);
    EXPECT_EQ(FirstChangedAge({.t1Dbh = "7.4", .t1Iba = "30"}), 40);
}

TEST(Treatment1, GoesByAgeWhereItHasBoth) {
    EXPECT_EQ(FirstChangedAge({.t1Age = "60", .t1Dbh = "2", .t1Iba = "30"}), 65);
    EXPECT_EQ(FirstChangedAge({.t1Age = "20", .t1Dbh = "90", .t1Iba = "30"}), 25);
}

TEST(Treatment1, NeedsATimeAndAnAmount) {
    EXPECT_EQ(FirstChangedAge({.t1Age = "40"}), 0);
    EXPECT_EQ(FirstChangedAge({.t1Age = "-40", .t1Dbh = "-3", .t1Iba = "30"}), 0);
    EXPECT_EQ(FirstChangedAge({.t1Age = "40", .t1Iba = "-30", .isd = "-2"}), 0);
    EXPECT_EQ(FirstChangedAge({.t1Iba = "30", .isd = "2"}), 0);
}

TEST(Treatment1, IsCommercialWhereItHasARemovalAndASpacing) {
    const Yield both = Grow({.t1Age = "40", .t1Iba = "30", .isd = "3"});
    const Yield commercial = Grow({.t1Age = "40", .t1Iba = "30"});
    EXPECT_EQ(both.rows.back().values, commercial.rows.back().values);
    const Yield spaced = Grow({.t1Age = "40", .t1Iba = "-1", .isd = "3"});
    EXPECT_EQ(spaced.rows.back().values, Grow({.t1Age = "40", .isd = "3"}).rows.back().values);
    EXPECT_NE(spaced.rows.back().values, commercial.rows.back().values);
}

TEST(Treatment1, TakesAtMostNinetyPercent) {
    EXPECT_EQ(Grow({.t1Age = "40", .t1Iba = "100"}).rows.back().values,
              Grow({.t1Age = "40", .t1Iba = "90"}).rows.back().values);
}

TEST(Treatment1, IsCarriedOutOnce) {
    const Yield yield = Grow({.t1Age = "40", .t1Iba = "30"});
    // One third of the stems went; from then on they only fall as fast as the site demands.
    const double after = RowAt(yield, 45).At(kF, kTotalClass);
    EXPECT_GT(RowAt(yield, 50).At(kF, kTotalClass), 0.85 * after);
    const auto harvested = [&yield](int age) {
        return RowAt(yield, age).At(kCvol, kTotalClass) - RowAt(yield, age).At(kVol, kTotalClass);
    };
    EXPECT_NEAR(harvested(100), harvested(45), 1e-9);
}

TEST(Treatment2, FollowsItsAgeAlsoWithoutTreatment1) {
    EXPECT_EQ(FirstChangedAge({.t2Age = "50", .t2Iba = "20"}), 55);
    EXPECT_EQ(FirstChangedAge({.t2Age = "50"}), 0);
    EXPECT_EQ(FirstChangedAge({.t2Iba = "20"}), 0);
    EXPECT_EQ(FirstChangedAge({.t2Age = "50", .isd = "2"}), 0);
}

TEST(Treatment2, MayComeBeforeTreatment1) {
    const Yield swapped = Grow({.t1Age = "70", .t2Age = "50", .t1Iba = "20", .t2Iba = "30"});
    const Yield ordered = Grow({.t1Age = "50", .t2Age = "70", .t1Iba = "30", .t2Iba = "20"});
    EXPECT_EQ(swapped.rows.back().values, ordered.rows.back().values);
}

TEST(BothTreatments, AfterOneRowTakeFromWhatTheFirstLeft) {
    const Yield both = Grow({.t1Age = "50", .t2Age = "50", .t1Iba = "50", .t2Iba = "50"});
    const Row& before = RowAt(both, 50);
    const Row& after = RowAt(both, 55);
    for (const SizeClass sizeClass : {kTotalClass, kMerchantableClass, kSawlogClass})
        EXPECT_NEAR(after.At(kCvol, sizeClass) - after.At(kVol, sizeClass),
                    0.75 * before.At(kVol, sizeClass), 1e-9);
    const Yield once = Grow({.t1Age = "50", .t1Iba = "75"});
    EXPECT_NEAR(after.At(kF, kTotalClass), RowAt(once, 55).At(kF, kTotalClass), 1e-6);
}

TEST(BothTreatments, HarvestFromTheSpacedStandAfterASpacing) {
    const Yield both = Grow({.t1Age = "30", .t2Age = "30", .t2Iba = "40", .isd = "2.5"});
    const Yield spaced = Grow({.t1Age = "30", .isd = "2.5"});
    const Row& after = RowAt(both, 35);
    const double harvested = after.At(kCvol, kTotalClass) - after.At(kVol, kTotalClass);
    EXPECT_GT(harvested, 0.0);
    EXPECT_LT(harvested, 0.4 * RowAt(both, 30).At(kVol, kTotalClass));
    EXPECT_LT(harvested, 0.4 * RowAt(spaced, 35).At(kVol, kTotalClass));
    EXPECT_NEAR(after.At(kF, kTotalClass), 0.6 * 1600, 10);
}

TEST(Spacing, HarvestsNothing) {
    const Yield yield = Grow({.t1Age = "30", .isd = "2.5"});
    for (const Row& row : yield.rows) {
        EXPECT_EQ(row.values[kCvol], row.values[kVol]);
        EXPECT_EQ(row.values[kCmai], row.values[kMai]);
    }
}

TEST(Spacing, ReadsFeetForImperialRuns) {
    const Yield feet = Grow({.met = "N", .t1Age = "30", .isd = "8.2"});
    const Yield metres = Grow({.t1Age = "30", .isd = "2.49936"});
    EXPECT_NEAR(feet.rows.back().At(kF, kTotalClass),
                metres.rows.back().At(kF, kTotalClass) * 0.40468564224, 1e-6);
}

TEST(Spacing, DoesNothingInAStandThatIsWideEnough) {
    EXPECT_EQ(FirstChangedAge({.nat = "N", .freq = "1000", .t1Age = "30", .isd = "2"}), 0);
}

TEST(Treatments, OfTheLastRowDontShow) {
    EXPECT_EQ(FirstChangedAge({.rage = "60", .t1Age = "60", .t1Iba = "50"}), 0);
    EXPECT_EQ(FirstChangedAge({.rage = "0", .rdbh = "15", .t1Dbh = "15", .t1Iba = "50"}), 0);
}

TEST(OutputScale, ConvertsEveryVariableOfAnImperialRun) {
    const Row metric = Grow({}).rows.back();
    const Row imperial = Grow({.met = "N"}).rows.back();
    const auto ratio = [&](Variable variable) {
        return imperial.At(variable, kTotalClass) / metric.At(variable, kTotalClass);
    };
    EXPECT_NEAR(ratio(kDbh), 1 / 2.54, 1e-9);
    EXPECT_NEAR(ratio(kBa), 4.356, 1e-6);
    EXPECT_NEAR(ratio(kF), 0.40468564224, 1e-9);
    EXPECT_NEAR(ratio(kH), 1 / 0.3048, 1e-9);
    for (const Variable variable : {kVol, kMai, kCvol, kCmai})
        EXPECT_NEAR(ratio(variable), kCubicFeetPerAcre, 1e-9);
}

// Sawlogs: board feet per acre, between the rule's lowest and highest yield of a cubic foot.
TEST(OutputScale, PrintsImperialSawlogsInBoardFeetPerAcre) {
    const Row metric = Grow({}).rows.back();
    const Row imperial = Grow({.met = "N"}).rows.back();
    const double cubicFeet = metric.At(kVol, kSawlogClass) * kCubicFeetPerAcre;
    EXPECT_GT(imperial.At(kVol, kSawlogClass), 2.7 * cubicFeet);
    EXPECT_LT(imperial.At(kVol, kSawlogClass), 9.1 * cubicFeet);
    const Row maple = Grow({.spec = "SM", .lc = "3"}).rows.back();
    const Row mapleBoards = Grow({.met = "N", .spec = "SM", .lc = "3"}).rows.back();
    const double sixPerCubicFoot = 6 * kCubicFeetPerAcre * maple.At(kVol, kSawlogClass);
    EXPECT_NEAR(mapleBoards.At(kVol, kSawlogClass), sixPerCubicFoot, 0.05 * sixPerCubicFoot);
}

TEST(Stocking, IsLimitedToAThousandPercent) {
    EXPECT_EQ(Grow({.stk = "5000"}).rows.back().values, Grow({.stk = "1000"}).rows.back().values);
}

}  // namespace
}  // namespace growth
