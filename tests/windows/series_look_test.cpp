// That the series of a chart can be told apart.
#include "qt/series_look.h"

#include <cmath>
#include <gtest/gtest.h>

namespace arbolith {

namespace {

constexpr int kSeries = 24;

// How a colour stands out from white: from 1 to 21.
double Contrast(const QColor& colour) {
    const auto linear = [](double channel) {
        return channel <= 0.04045 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
    };
    const double light = 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) +
                         0.0722 * linear(colour.blueF());
    return 1.05 / (light + 0.05);
}

bool SameWithoutColour(const SeriesLook& a, const SeriesLook& b) {
    return a.point == b.point && a.line.dashPattern() == b.line.dashPattern();
}

}  // namespace

TEST(SeriesLook, ShapesAndDashesAloneTell24SeriesApart) {
    for (int a = 0; a < kSeries; ++a)
        for (int b = 0; b < a; ++b)
            EXPECT_FALSE(SameWithoutColour(LookOfSeries(a), LookOfSeries(b))) << a << " and " << b;
}

TEST(SeriesLook, NeighboursDifferInEverything) {
    for (int i = 1; i < kSeries; ++i) {
        const SeriesLook before = LookOfSeries(i - 1);
        const SeriesLook look = LookOfSeries(i);
        EXPECT_NE(look.line.color(), before.line.color()) << i;
        EXPECT_NE(look.line.dashPattern(), before.line.dashPattern()) << i;
        EXPECT_NE(look.point, before.point) << i;
        EXPECT_NE(look.barFill, before.barFill) << i;
    }
}

TEST(SeriesLook, NoTwoBarsOf24HaveTheSameColour) {
    for (int a = 0; a < kSeries; ++a)
        for (int b = 0; b < a; ++b)
            EXPECT_NE(LookOfSeries(a).barFill, LookOfSeries(b).barFill) << a << " and " << b;
}

TEST(SeriesLook, LightnessAloneTellsAFewBarsApart) {
    const auto grey = [](int series) { return qGray(LookOfSeries(series).barFill.color().rgb()); };
    for (int a = 0; a < 3; ++a)
        for (int b = 0; b < a; ++b) EXPECT_GE(std::abs(grey(a) - grey(b)), 40) << a << " and " << b;
    for (int i = 1; i < 6; ++i) EXPECT_GE(std::abs(grey(i) - grey(i - 1)), 25) << i;
}

TEST(SeriesLook, LinesStandOutFromWhite) {
    for (int i = 0; i < kSeries; ++i) EXPECT_GE(Contrast(LookOfSeries(i).line.color()), 3) << i;
}

TEST(SeriesLook, ThereIsOneForEverySeries) {
    EXPECT_FALSE(LookOfSeries(1000).point.isEmpty());
}

}  // namespace arbolith
