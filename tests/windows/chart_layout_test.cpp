// Where the parts of a chart stand, for few and many series, rows and long titles, on sheets from
// the smallest window to paper.
#include "qt/chart_layout.h"

#include "chart_testing.h"
#include "forms/application.h"
#include "platform/headless_host.h"

#include <QFontMetricsF>
#include <QTransform>

#include <gtest/gtest.h>

namespace arbolith {

namespace {

using namespace chart_testing;

const QSizeF kWindow(433, 305);
const QSizeF kPicture(667, 667);
const QSizeF kFullScreen(1470, 1080);

// What a text takes, without the room above and below its letters.
QRectF InkOf(const PlacedText& text) {
    const QFontMetricsF metrics(text.font);
    QRectF ink(0, 0, metrics.horizontalAdvance(text.text), metrics.capHeight());
    ink = QTransform().rotate(text.angle).mapRect(ink);
    ink.moveCenter(text.middle);
    return ink;
}

struct ChartLayoutTest : testing::Test {
    // Nothing outside the sheet, no text over another, none on the plot.
    void ExpectTidy(QSizeF sheet) {
        const ChartLayout layout = LayOut(PlotOf(chart), sheet, 1);
        const QRectF all(QPointF(0, 0), sheet);
        EXPECT_TRUE(all.contains(layout.plot));
        for (std::size_t i = 0; i < layout.texts.size(); ++i) {
            const QRectF ink = InkOf(layout.texts[i]);
            const auto text = layout.texts[i].text.toStdString();
            EXPECT_TRUE(all.contains(ink)) << text;
            EXPECT_FALSE(layout.plot.intersects(ink)) << text;
            for (const QRectF& sample : layout.samples)
                EXPECT_FALSE(sample.intersects(ink)) << text;
            for (std::size_t j = 0; j < i; ++j)
                EXPECT_FALSE(InkOf(layout.texts[j]).intersects(ink))
                    << text << " and " << layout.texts[j].text.toStdString();
        }
        for (const QRectF& sample : layout.samples) {
            EXPECT_TRUE(all.contains(sample));
            EXPECT_FALSE(layout.plot.intersects(sample));
        }
    }

    static bool Holds(const ChartLayout& layout, const QString& text) {
        return std::any_of(layout.texts.begin(), layout.texts.end(),
                           [&](const PlacedText& placed) { return placed.text == text; });
    }

    HeadlessHost host;
    Application application{host, "/tmp", ""};
    Form form{application, "Form", "Form", {9000, 6000}};
    Chart chart{form, "Chart", {0, 0, 9000, 6000}};
};

}  // namespace

TEST_F(ChartLayoutTest, NothingIsCutOffOrCovered) {
    for (const QSizeF sheet : {kWindow, kPicture, kFullScreen})
        for (const int series : {1, 3, 8, 24})
            for (const int rows : {1, 16, 24, 80}) {
                FillScatter(chart, series, rows);
                ExpectTidy(sheet);
                FillBars(chart, series, rows);
                ExpectTidy(sheet);
            }
}

TEST_F(ChartLayoutTest, LongTitlesTakeSeveralLines) {
    FillScatter(chart, 3, 16);
    Retitle(chart,
            "Intolerant Hardwood : Volume (ft\xB3/acre) SVOL (fbm/acre) vs Merchantable "
            "Cumulative M.A.I. (ft\xB3/acre/year)");
    RetitleAxis(chart, Chart::kAxisX, "Merchantable Cumulative M.A.I. (ft\xB3/acre/year)");
    RetitleAxis(chart, Chart::kAxisY, "M.A.I. (ft\xB3/acre/year) SMAI (fbm/acre/yr)");
    for (const QSizeF sheet : {kWindow, kPicture, kFullScreen}) ExpectTidy(sheet);
}

TEST_F(ChartLayoutTest, LargeNumbersHaveTheirRoom) {
    FillScatter(chart, 3, 16);
    ChartAxis axis = chart.Axis(Chart::kAxisY);
    axis.Scale = {false, -123456.5, 1234567.5, 10, 1};
    chart.SetAxis(Chart::kAxisY, axis);
    axis = chart.Axis(Chart::kAxisX);
    axis.Scale = {false, 0, 1234567.5, 40, 1};
    chart.SetAxis(Chart::kAxisX, axis);
    for (const QSizeF sheet : {kWindow, kPicture, kFullScreen}) ExpectTidy(sheet);
}

TEST_F(ChartLayoutTest, TheLegendStandsAtTheLowerRight) {
    for (const int series : {1, 3, 24}) {
        FillScatter(chart, series, 16);
        const ChartLayout layout = LayOut(PlotOf(chart), kPicture, 1);
        ASSERT_EQ(layout.samples.size(), static_cast<std::size_t>(series));
        for (const QRectF& sample : layout.samples) EXPECT_GT(sample.left(), layout.plot.right());
        EXPECT_GT(layout.samples.back().bottom(), kPicture.height() * 0.95);
    }
}

TEST_F(ChartLayoutTest, ManySeriesTakeColumnsWhereTheSheetIsLow) {
    FillScatter(chart, 24, 16);
    const auto narrow = LayOut(PlotOf(chart), kPicture, 1).samples;
    EXPECT_EQ(narrow.front().left(), narrow.back().left());
    const auto wide = LayOut(PlotOf(chart), kWindow, 1).samples;
    EXPECT_LT(wide.front().left(), wide.back().left());
    EXPECT_EQ(wide.front().top(), wide[12].top());
}

TEST_F(ChartLayoutTest, WithoutALegendThePlotTakesItsRoom) {
    FillScatter(chart, 3, 16);
    const double with = LayOut(PlotOf(chart), kPicture, 1).plot.width();
    chart.SetLegend({});
    const ChartLayout layout = LayOut(PlotOf(chart), kPicture, 1);
    EXPECT_TRUE(layout.samples.empty());
    EXPECT_FALSE(Holds(layout, "TDBH"));
    EXPECT_GT(layout.plot.width(), with + 40);
}

TEST_F(ChartLayoutTest, TheTitleIsOnTopInItsToldFont) {
    FillScatter(chart, 1, 16);
    Retitle(chart, "Red Pine");
    const auto texts = LayOut(PlotOf(chart), kPicture, 1.5).texts;
    const auto title = std::find_if(texts.begin(), texts.end(),
                                    [](const PlacedText& text) { return text.text == "Red Pine"; });
    ASSERT_NE(title, texts.end());
    EXPECT_EQ(title->font.family(), "Arial");
    EXPECT_DOUBLE_EQ(title->font.pointSizeF(), 14 * 1.5);
    for (const PlacedText& text : texts) EXPECT_GE(text.middle.y(), title->middle.y());
}

TEST_F(ChartLayoutTest, ManyRowLabelsAreThinned) {
    FillBars(chart, 2, 120);
    const ChartLayout layout = LayOut(PlotOf(chart), kWindow, 1);
    EXPECT_TRUE(Holds(layout, "5"));
    EXPECT_FALSE(Holds(layout, "10"));
    ExpectTidy(kWindow);
}

TEST_F(ChartLayoutTest, RowLabelsThatFitOnlyUprightAreTurned) {
    FillBars(chart, 2, 20);
    for (int row = 1; row <= 20; ++row) chart.SetRowLabel(row, "1234567." + std::to_string(row));
    const ChartLayout layout = LayOut(PlotOf(chart), kPicture, 1);
    for (int row = 1; row <= 20; ++row)
        EXPECT_TRUE(Holds(layout, QString("1234567.%1").arg(row))) << row;
    ExpectTidy(kPicture);
}

TEST_F(ChartLayoutTest, OnASmallSheetTheLegendGoesFirstAndThenTheTitles) {
    FillScatter(chart, 24, 16);
    const ChartLayout small = LayOut(PlotOf(chart), {300, 220}, 1);
    EXPECT_TRUE(small.samples.empty());
    EXPECT_TRUE(Holds(small, "Age (years)"));
    const ChartLayout tiny = LayOut(PlotOf(chart), {120, 80}, 1);
    EXPECT_FALSE(Holds(tiny, "Age (years)"));
    EXPECT_TRUE(Holds(tiny, "0"));
    for (const QSizeF sheet : {QSizeF(1, 1), QSizeF(0, 0)})
        EXPECT_GE(LayOut(PlotOf(chart), sheet, 1).plot.width(), 1);
}

TEST(Wrapped, LinesBreakAtBlanksOnly) {
    const QFont font("Arial", 10);
    EXPECT_EQ(Wrapped("one two three", font, 1), (QStringList{"one", "two", "three"}));
    EXPECT_EQ(Wrapped("one two three", font, 1000), QStringList{"one two three"});
    EXPECT_TRUE(Wrapped("", font, 1000).isEmpty());
}

TEST(Wrapped, LinesAreAboutEquallyLong) {
    const QFont font("Arial", 14);
    const QFontMetricsF metrics(font);
    const QString text("mmmm mmmm mmmm mmmm mmmm mmmm");
    const double five = metrics.horizontalAdvance(text.left(24));
    EXPECT_EQ(Wrapped(text, font, five + 1), (QStringList{"mmmm mmmm mmmm", "mmmm mmmm mmmm"}));
    const double two = metrics.horizontalAdvance(text.left(9));
    EXPECT_EQ(Wrapped(text, font, two + 1).size(), 3);
}

}  // namespace arbolith
