// The classes of a stand.
#include "models/size_classes.h"

#include "models/height.h"

#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>

namespace growth {
namespace {

const Species& RedSpruce() {
    return *FindSpecies(Wood::Softwood, "RS");
}
const Species& SugarMaple() {
    return *FindSpecies(Wood::Hardwood, "SM");
}

void ExpectLimits(const ClassLimits& limits, double threshold, double top, double stump) {
    EXPECT_NEAR(limits.threshold, threshold, 1e-12);
    EXPECT_NEAR(limits.logs.topDiameter, top, 1e-12);
    EXPECT_NEAR(limits.logs.stumpHeight, stump, 1e-12);
}

TEST(LimitsOf, AreTheMetricOnes) {
    for (const Wood wood : {Wood::Softwood, Wood::Hardwood})
        ExpectLimits(LimitsOf(kMerchantableClass, wood, Units::Metric), 9, 7.6, 0.15);
    ExpectLimits(LimitsOf(kSawlogClass, Wood::Softwood, Units::Metric), 14, 10, 0.15);
    ExpectLimits(LimitsOf(kSawlogClass, Wood::Hardwood, Units::Metric), 25, 20, 0.15);
}

TEST(LimitsOf, AreTheImperialOnes) {
    for (const Wood wood : {Wood::Softwood, Wood::Hardwood})
        ExpectLimits(LimitsOf(kMerchantableClass, wood, Units::Imperial), 8.89, 7.62, 0.1524);
    ExpectLimits(LimitsOf(kSawlogClass, Wood::Softwood, Units::Imperial), 13.97, 10.16, 0.1524);
    ExpectLimits(LimitsOf(kSawlogClass, Wood::Hardwood, Units::Imperial), 25.4, 20.32, 0.1524);
}

TEST(SizeClasses, HaveTheWorkedValues) {
    const SizeClassifier classifier(RedSpruce(), false, Units::Metric);
    const AllClasses classes = classifier.Classes({2305.170, 16.80177}, 17.36989);
    const ClassValues& merchantable = classes[kMerchantableClass];
    EXPECT_NEAR(merchantable.stems, 2122.772, 2e-3);
    EXPECT_NEAR(merchantable.basalArea, 50.14286, 5e-5);
    EXPECT_NEAR(merchantable.diameter, 17.34235, 1e-5);
    EXPECT_NEAR(merchantable.height, 16.20159, 1e-5);
    EXPECT_NEAR(merchantable.volume, 351.1365, 5e-4);
    EXPECT_NEAR(classes[kSawlogClass].stems, 1402.425, 2e-3);
    EXPECT_NEAR(classes[kSawlogClass].volume, 290.5480, 5e-4);
}

TEST(SizeClasses, CountTheWholeStandInTheTotalClass) {
    const SizeClassifier classifier(SugarMaple(), true, Units::Metric);
    const ClassValues total = classifier.Classes({1500, 12.0}, 14.0)[kTotalClass];
    EXPECT_EQ(total.stems, 1500.0);
    EXPECT_NEAR(total.diameter, 12.0, 1e-9);
    EXPECT_NEAR(total.basalArea, 3.14159265358979 / 40000 * 144 * 1500, 1e-9);
    EXPECT_NEAR(total.height, 1.3 + 12.7 * HeightShare(1.0), 1e-9);
}

TEST(SizeClasses, AreWholeWhereEveryTreeIsAboveTheThreshold) {
    const SizeClassifier classifier(SugarMaple(), true, Units::Metric);
    const AllClasses classes = classifier.Classes({400, 30.0}, 24.0);  // smallest: 0.40 * 30 cm
    EXPECT_EQ(classes[kMerchantableClass].stems, 400.0);
    EXPECT_EQ(classes[kMerchantableClass].diameter, classes[kTotalClass].diameter);
    EXPECT_LT(classes[kMerchantableClass].volume, classes[kTotalClass].volume);
}

TEST(SizeClasses, AreEmptyBelowHalfAStem) {
    const SizeClassifier classifier(RedSpruce(), false, Units::Metric);
    // The share above 9 cm in a stand of 6 cm mean diameter.
    const double share = std::exp(-std::pow((1.5 - 0.30) / 0.7327674476, 2.2));
    const ClassValues few = classifier.Classes({0.499 / share, 6.0}, 7.0)[kMerchantableClass];
    EXPECT_EQ(few.stems, 0.0);
    EXPECT_EQ(few.diameter, 0.0);
    EXPECT_EQ(few.basalArea, 0.0);
    EXPECT_EQ(few.height, 0.0);
    EXPECT_EQ(few.volume, 0.0);
    const ClassValues enough = classifier.Classes({0.501 / share, 6.0}, 7.0)[kMerchantableClass];
    EXPECT_NEAR(enough.stems, 0.501, 1e-6);
    EXPECT_GT(enough.volume, 0.0);
}

TEST(SizeClasses, KeepATotalClassOfLessThanHalfAStem) {
    const SizeClassifier classifier(RedSpruce(), false, Units::Metric);
    EXPECT_EQ(classifier.Classes({0.2, 20.0}, 15.0)[kTotalClass].stems, 0.2);
}

TEST(SizeClasses, NeverHaveMoreSawlogsThanMerchantableVolume) {
    for (const Species& species : AllSpecies()) {
        const SizeClassifier classifier(species, false, Units::Metric);
        for (double diameter = 3.0; diameter < 160.0; diameter *= 1.03) {
            const AllClasses classes =
                classifier.Classes({1000, diameter}, std::min(30.0, 1.0 + 0.9 * diameter));
            EXPECT_LE(classes[kSawlogClass].volume, classes[kMerchantableClass].volume)
                << species.code << ' ' << diameter;
        }
    }
}

// All sawlogs of an imperial hardwood run are 6 board feet a cubic foot, whatever the tree.
TEST(SizeClasses, CountImperialSawlogsInBoardFeet) {
    const SizeClassifier classifier(SugarMaple(), true, Units::Imperial);
    const StemsAndDiameter stand{300, 70.0};  // every tree above 10 in
    double cubicFeet = 0.0;
    const SampleTrees trees = RelativeDiameters::Of(Wood::Hardwood, true).TreesAbove(0.0);
    const TreeVolume volume(SugarMaple().volume);
    for (std::size_t i = 0; i < kTrees; ++i) {
        const double d = 70.0 * trees.relativeDiameter[i];
        const double h = 1.3 + 28.7 * trees.heightShare[i];
        cubicFeet += kTreeShares[i] * volume.Total(d, h) * volume.LogShare(d, h, {20.32, 0.1524}) /
                     0.028316846592;
    }
    EXPECT_NEAR(classifier.Classes(stand, 30.0)[kSawlogClass].volume, 300 * 6.0 * cubicFeet, 1e-6);
}

}  // namespace
}  // namespace growth
