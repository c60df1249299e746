// The dominant height curves.
#include "models/height.h"

#include "models/site.h"

#include <gtest/gtest.h>

namespace growth {
namespace {

HeightCurve Curve(const char* code, double siteIndex) {
    const Species* soft = FindSpecies(Wood::Softwood, code);
    return {(soft != nullptr ? soft : FindSpecies(Wood::Hardwood, code))->height, siteIndex};
}

TEST(HeightCurve, PassesBreastHeightAtZeroAndTheSiteIndexAtFifty) {
    for (const Species& species : AllSpecies()) {
        for (double siteIndex = kLowestSiteIndex; siteIndex <= kHighestSiteIndex;
             siteIndex += 1.9) {
            const HeightCurve curve(species.height, siteIndex);
            EXPECT_NEAR(curve.At(0.0), 1.3, 1e-9) << species.code << ' ' << siteIndex;
            EXPECT_NEAR(curve.At(50.0), siteIndex, 1e-9) << species.code << ' ' << siteIndex;
        }
    }
}

TEST(HeightCurve, RisesWithAge) {
    for (const Species& species : AllSpecies()) {
        const HeightCurve curve(species.height, 15.0);
        for (double age = 1.0; age <= 200.0; age += 1.0)
            EXPECT_GT(curve.At(age), curve.At(age - 1.0)) << species.code << ' ' << age;
    }
}

TEST(HeightCurve, HasTheWorkedValues) {
    const HeightCurve pine = Curve("WP", 20.41);
    EXPECT_NEAR(pine.Exponent(), 2.18530, 6e-6);
    EXPECT_NEAR(pine.AgeAtBreastHeight(), 8.6701, 6e-5);
    EXPECT_NEAR(pine.At(25), 11.7245, 6e-5);
    const HeightCurve fir = Curve("BF", 17.06);
    EXPECT_NEAR(fir.Exponent(), 1.06887, 6e-6);
    EXPECT_EQ(fir.AgeAtBreastHeight(), 0.0);
    EXPECT_NEAR(fir.At(25), 10.1851, 6e-5);
    EXPECT_NEAR(Curve("RS", 17.06).At(60 - 8.7), 17.36989, 6e-6);
}

TEST(HeightCurve, HasAnExponentOfAtLeastOne) {
    EXPECT_EQ(Curve("BF", 25.0).Exponent(), 1.0);
    EXPECT_EQ(Curve("WB", 20.0).Exponent(), 1.0);
    EXPECT_GT(Curve("BF", 15.0).Exponent(), 1.0);
}

}  // namespace
}  // namespace growth
