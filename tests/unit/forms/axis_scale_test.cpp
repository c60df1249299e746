#include "forms/axis_scale.h"

#include <cmath>
#include <gtest/gtest.h>
#include <limits>
#include <ostream>

namespace arbolith {

void PrintTo(const AxisScale& scale, std::ostream* out) {
    *out << scale.minimum << " to " << scale.maximum << " in " << scale.majorDivisions << " by "
         << scale.minorDivisions;
}

namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kNan = std::numeric_limits<double>::quiet_NaN();
constexpr double kLargest = std::numeric_limits<double>::max();
constexpr double kTiniest = std::numeric_limits<double>::denorm_min();

TEST(AutomaticScale, BeginsAt0WhereThatWastesLittle) {
    EXPECT_EQ(AutomaticScale(5, 80), (AxisScale{0, 80, 4, 1}));
    EXPECT_EQ(AutomaticScale(0, 100), (AxisScale{0, 100, 5, 1}));
    EXPECT_EQ(AutomaticScale(0, 12.3), (AxisScale{0, 12.5, 5, 1}));
    EXPECT_EQ(AutomaticScale(-80, -5), (AxisScale{-80, 0, 4, 1}));
}

TEST(AutomaticScale, StaysWithValuesFarFrom0) {
    EXPECT_EQ(AutomaticScale(90, 100), (AxisScale{90, 100, 5, 1}));
    EXPECT_EQ(AutomaticScale(-100, -90), (AxisScale{-100, -90, 5, 1}));
}

TEST(AutomaticScale, HoldsBothSidesOf0) {
    EXPECT_EQ(AutomaticScale(-3, 7), (AxisScale{-4, 8, 6, 1}));
}

TEST(AutomaticScale, MakesRoomAroundOneValue) {
    EXPECT_EQ(AutomaticScale(0, 0), (AxisScale{0, 1, 5, 1}));
    for (const double value : {7.0, -7.0, 1e15, -1e-9, 1e300}) {
        const auto scale = AutomaticScale(value, value);
        EXPECT_LT(scale.minimum, value);
        EXPECT_GT(scale.maximum, value);
        EXPECT_GT(scale.majorDivisions, 0);
    }
}

TEST(AutomaticScale, TakesValuesThatCanNotBeToldApartForOne) {
    const double next = std::nextafter(1e15, kInfinity);
    const auto scale = AutomaticScale(1e15, next);
    EXPECT_LT(scale.minimum, 1e15);
    EXPECT_GT(scale.maximum, next);
    EXPECT_LE(scale.majorDivisions, 10);
}

TEST(AutomaticScale, SurvivesWhatNoNumberOfATableIs) {
    EXPECT_EQ(AutomaticScale(kNan, 1), AxisScale{});
    EXPECT_EQ(AutomaticScale(0, kNan), AxisScale{});
    EXPECT_EQ(AutomaticScale(0, kInfinity), AxisScale{});
    EXPECT_EQ(AutomaticScale(kInfinity, -kInfinity), AxisScale{});
    EXPECT_EQ(AutomaticScale(2, 1), AxisScale{});
    EXPECT_EQ(AutomaticScale(0, kTiniest), AxisScale{});
}

TEST(AutomaticScale, KeepsItsEndsAndTheirDistanceFinite) {
    constexpr double kValues[] = {-kLargest, -1e307, -1e6, -1e-300, -kTiniest, 0,       kTiniest,
                                  1e-300,    1e-20,  0.1,  1e6,     1e307,     kLargest};
    for (const double lowest : kValues)
        for (const double highest : kValues) {
            const auto scale = AutomaticScale(lowest, highest);
            EXPECT_LT(scale.minimum, scale.maximum) << lowest << " to " << highest;
            EXPECT_TRUE(std::isfinite(scale.maximum - scale.minimum))
                << lowest << " to " << highest;
            EXPECT_GE(scale.majorDivisions, 1) << lowest << " to " << highest;
            EXPECT_LE(scale.majorDivisions, 12) << lowest << " to " << highest;
        }
}

TEST(DrawnScale, IsTheToldOne) {
    EXPECT_EQ(DrawnScaleOf({false, -5, 6000, 8, 2}, 0, 10), (AxisScale{-5, 6000, 8, 2}));
}

TEST(DrawnScale, IsAutomaticWhereThatIsTold) {
    EXPECT_EQ(DrawnScaleOf({true, -5, 6000, 8, 2}, 0, 10), (AxisScale{0, 10, 5, 2}));
}

TEST(DrawnScale, TakesAnEndThatIsNotToldFromTheAutomaticOne) {
    EXPECT_EQ(DrawnScaleOf({false, {}, 6, 3, 1}, 0, 10), (AxisScale{0, 6, 3, 1}));
    EXPECT_EQ(DrawnScaleOf({false, 4, {}, 3, 1}, 0, 10), (AxisScale{4, 10, 3, 1}));
    EXPECT_EQ(DrawnScaleOf({false, {}, {}, 4, 1}, 0, 10), (AxisScale{0, 10, 4, 1}));
}

TEST(DrawnScale, IsAutomaticWhereTheToldOneCanNotBeDrawn) {
    const AxisScale automatic{0, 10, 5, 1};
    EXPECT_EQ(DrawnScaleOf({false, 10, 5, 5, 1}, 0, 10), automatic);
    EXPECT_EQ(DrawnScaleOf({false, 5, 5, 5, 1}, 0, 10), automatic);
    EXPECT_EQ(DrawnScaleOf({false, 0, 8, 0, 1}, 0, 10), automatic);
    EXPECT_EQ(DrawnScaleOf({false, 0, 8, -1, 1}, 0, 10), automatic);
    EXPECT_EQ(DrawnScaleOf({false, 0, 8, 32767, 1}, 0, 10), automatic);
    EXPECT_EQ(DrawnScaleOf({false, 0, kInfinity, 5, 1}, 0, 10), automatic);
    EXPECT_EQ(DrawnScaleOf({false, kNan, 8, 5, 1}, 0, 10), automatic);
    EXPECT_EQ(DrawnScaleOf({false, -kLargest, kLargest, 5, 1}, 0, 10), automatic);
    EXPECT_EQ(DrawnScaleOf({false, 20, {}, 5, 1}, 0, 10), automatic);
}

TEST(DrawnScale, HasASensibleNumberOfMinorDivisions) {
    EXPECT_EQ(DrawnScaleOf({false, 0, 8, 4, 0}, 0, 10).minorDivisions, 1);
    EXPECT_EQ(DrawnScaleOf({false, 0, 8, 4, -32768}, 0, 10).minorDivisions, 1);
    EXPECT_EQ(DrawnScaleOf({true, 0, 8, 4, 7}, 0, 10).minorDivisions, 7);
    EXPECT_LE(DrawnScaleOf({true, 0, 8, 4, 32767}, 0, 10).minorDivisions, 1000);
}

}  // namespace
}  // namespace arbolith
