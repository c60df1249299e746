// The chart in its window: what is drawn of it, and what the mouse finds there.
#include "qt/chart_view.h"

#include "chart_testing.h"
#include "qt/series_look.h"
#include "window_test.h"

#include <QApplication>
#include <QMenu>
#include <QTest>
#include <QToolTip>

#include <utility>

namespace arbolith {

namespace {

using namespace chart_testing;

struct ChartForm : Form {
    explicit ChartForm(Application& application)
        : Form(application, "ChartForm", "Chart", {9000, 7500}) {
        chart.onPointActivated = [this](int series, int point) {
            picked.emplace_back(series, point);
        };
    }
    Chart chart{*this, "Chart", {150, 150, 8700, 7200}};
    std::vector<std::pair<int, int>> picked;
};

struct ChartViewTest : WindowTest {
    ChartViewTest() {
        FillScatter(form.chart, 3, 16);
        Open(form);
    }

    ChartView& View() { return WidgetOf<ChartView>(form.chart); }
    const DrawnChart& Drawn() { return View().Drawn(); }
    QImage Picture() { return View().grab().toImage().convertToFormat(QImage::Format_RGB32); }

    // How many pixels of a part of the view are such.
    template <class Matches>
    int CountWhere(const QRectF& part, Matches matches) {
        const QImage image = Picture();
        const double factor = image.devicePixelRatio();
        const QRect pixels = QRectF(part.topLeft() * factor, part.size() * factor).toRect();
        int count = 0;
        for (int y = pixels.top(); y <= pixels.bottom(); ++y)
            for (int x = pixels.left(); x <= pixels.right(); ++x)
                count += image.rect().contains(x, y) && matches(image.pixelColor(x, y));
        return count;
    }

    // Those of a colour, or as good as.
    int Count(const QColor& colour, const QRectF& part) {
        return CountWhere(part, [&](const QColor& found) {
            return std::abs(found.red() - colour.red()) < 12 &&
                   std::abs(found.green() - colour.green()) < 12 &&
                   std::abs(found.blue() - colour.blue()) < 12;
        });
    }
    int Count(const QColor& colour) { return Count(colour, View().rect()); }

    // Those that aren't white.
    int CountDrawn(const QRectF& part) {
        return CountWhere(part, [](const QColor& found) { return found.lightness() < 245; });
    }

    static QColor LineOf(int series) { return LookOfSeries(series).line.color(); }
    static QColor BarOf(int series) { return LookOfSeries(series).barFill.color(); }

    QPoint PlaceOf(int series, int point) { return Drawn().PlaceOf({series, point})->toPoint(); }

    void ClickAt(QPoint place) { window_events::ClickAt(*View().viewport(), place); }

    std::vector<std::pair<int, int>> TakePicked() { return std::exchange(form.picked, {}); }

    ChartForm form{application};
};

using Picked = std::vector<std::pair<int, int>>;

}  // namespace

TEST_F(ChartViewTest, EverySeriesIsDrawnInItsColour) {
    for (int i = 0; i < 3; ++i) EXPECT_GT(Count(LineOf(i), Drawn().Layout().plot), 100) << i;
    EXPECT_EQ(Count(LineOf(4)), 0);
}

TEST_F(ChartViewTest, LinesGoThroughTheirPoints) {
    for (const int point : {6, 8, 15})
        for (int i = 0; i < 3; ++i) {
            const QRectF around(PlaceOf(2 * i + 1, point) - QPoint(3, 3), QSizeF(6, 6));
            EXPECT_GT(Count(LineOf(i), around), 8) << i << ", " << point;
        }
}

TEST_F(ChartViewTest, TheLegendIsDrawnAtTheLowerRight) {
    const QRectF corner(View().width() * 0.75, View().height() * 0.75, View().width() * 0.25,
                        View().height() * 0.25);
    for (int i = 0; i < 3; ++i) {
        const QRectF sample = Drawn().Layout().samples[static_cast<std::size_t>(i)];
        EXPECT_TRUE(corner.contains(sample));
        EXPECT_GT(Count(LineOf(i), sample), 10) << i;
    }
    Do([&] { form.chart.SetLegend({}); });
    EXPECT_EQ(Count(LineOf(0), corner.translated(0, View().height() * 0.2)), 0);
}

TEST_F(ChartViewTest, ManySeriesAllShow) {
    Do([&] { FillScatter(form.chart, 24, 80); });
    for (int i = 0; i < 24; ++i) EXPECT_GT(Count(LineOf(i)), 50) << i;
    EXPECT_EQ(Drawn().Layout().samples.size(), 24U);
}

TEST_F(ChartViewTest, TheGridIsDottedOrNone) {
    const QRectF plot = Drawn().Layout().plot;
    // A line of the grid where no curve runs.
    const double y = plot.bottom() - plot.height() * 0.8;
    const QRectF line(plot.left() + 3, y - 1.5, plot.width() / 4, 3);
    const int dots = CountDrawn(line);
    EXPECT_GT(dots, line.width() / 4);
    EXPECT_LT(dots, CountWhere(line, [](const QColor&) { return true; }) * 2 / 3);
    Do([&] {
        for (const int axis : {Chart::kAxisX, Chart::kAxisY}) {
            ChartAxis none = form.chart.Axis(axis);
            none.MajorPen = PenStyle::kNone;
            form.chart.SetAxis(axis, none);
        }
    });
    EXPECT_EQ(CountDrawn(line), 0);
}

TEST_F(ChartViewTest, TheGridFollowsTheScale) {
    Do([&] {
        ChartAxis axis = form.chart.Axis(Chart::kAxisY);
        axis.Scale = {false, 0, 200, 4, 1};
        form.chart.SetAxis(Chart::kAxisY, axis);
    });
    const QRectF plot = Drawn().Layout().plot;
    for (int i = 1; i < 4; ++i) {
        const double y = plot.bottom() - plot.height() * i / 4;
        EXPECT_GT(CountDrawn({plot.left() + 3, y - 1.5, 60, 3}), 10) << i;
        const double between = y - plot.height() / 8;
        EXPECT_EQ(CountDrawn({plot.left() + 3, between - 1.5, 15, 3}), 0) << i;
    }
}

TEST_F(ChartViewTest, TheBackdropIsWhiteWhereTold) {
    EXPECT_EQ(Picture().pixelColor(2, 2), QColor(Qt::white));
    Do([&] { form.chart.SetDecoration({FillStyle::kNone, 0xFFFFFF, PenStyle::kNone, 0}); });
    EXPECT_EQ(Picture().pixelColor(2, 2), WindowOf(form).palette().color(QPalette::Window));
}

TEST_F(ChartViewTest, AFrameAroundThePlotIsDrawnWhereTold) {
    const auto countAtTheRight = [&] {
        const QRectF plot = Drawn().Layout().plot;
        return Count(QColor(0x40, 0x40, 0x40),
                     {plot.right() - 1, plot.top() + 5, 2, plot.height() - 10});
    };
    EXPECT_EQ(countAtTheRight(), 0);
    Do([&] { form.chart.SetDecoration({FillStyle::kBrush, 0xFFFFFF, PenStyle::kSolid, 0}); });
    EXPECT_GT(countAtTheRight(), Drawn().Layout().plot.height() / 2);
}

TEST_F(ChartViewTest, BarsHaveTheirColoursAndBlackEdges) {
    Do([&] { FillBars(form.chart, 3, 8); });
    for (int i = 0; i < 3; ++i) {
        EXPECT_GT(Count(BarOf(i), Drawn().Layout().plot), 500) << i;
        const QPointF middle = *Drawn().PlaceOf({i + 1, 8});
        EXPECT_GT(Count(BarOf(i), {middle - QPointF(2, 2), QSizeF(4, 4)}), 12) << i;
    }
    EXPECT_GT(Count(Qt::black, Drawn().Layout().plot), 500);
}

TEST_F(ChartViewTest, BarsAndLinesTakeTurns) {
    Do([&] { FillScatter(form.chart, 2, 16); });
    const QImage lines = Picture();
    Do([&] { FillBars(form.chart, 3, 8); });
    const QImage bars = Picture();
    EXPECT_NE(bars, lines);
    Do([&] { FillScatter(form.chart, 2, 16); });
    EXPECT_EQ(Picture(), lines);
    Do([&] { FillBars(form.chart, 3, 8); });
    EXPECT_EQ(Picture(), bars);
}

TEST_F(ChartViewTest, ItFollowsTheSizeOfItsControl) {
    Do([&] { form.chart.SetPlace({150, 150, 4500, 3600}); });
    EXPECT_EQ(View().size(), QSize(300, 240));
    EXPECT_TRUE(QRectF(View().rect()).contains(Drawn().Layout().plot));
    EXPECT_LT(Drawn().Layout().plot.right(), 300);
}

TEST_F(ChartViewTest, ItLooksTheSameWhateverSizeItHadBefore) {
    const auto fill = [](Chart& chart, bool asBars) {
        asBars ? FillBars(chart, 3, 8) : FillScatter(chart, 3, 16);
    };
    for (const bool asBars : {false, true})
        for (const Place place : {Place{150, 150, 4500, 3600}, Place{150, 150, 12000, 9000}}) {
            Do([&] {
                form.chart.SetPlace({150, 150, 8700, 7200});
                fill(form.chart, asBars);
            });
            Do([&] { form.chart.SetPlace(place); });
            ChartForm other(application);
            other.chart.SetPlace(place);
            fill(other.chart, asBars);
            Open(other);
            auto& fresh = WidgetOf<ChartView>(other.chart);
            EXPECT_EQ(View().grab().toImage(), fresh.grab().toImage())
                << asBars << ", " << place.width;
        }
}

TEST_F(ChartViewTest, TheAxesHaveTicksAtTheirDivisions) {
    Do([&] {
        form.chart.ChangeAxis(Chart::kAxisY, [](ChartAxis& axis) {
            axis.Scale = {false, 0, 100, 4, 2};
        });
    });
    const QRectF plot = Drawn().Layout().plot;
    const auto tickAt = [&](double share) {
        return CountDrawn({plot.left() - 6, plot.bottom() - share * plot.height() - 1.5, 5, 3});
    };
    for (int i = 0; i < 4; ++i) {
        EXPECT_GT(tickAt(i / 4.0), tickAt((i + 0.5) / 4)) << i;
        EXPECT_GT(tickAt((i + 0.5) / 4), 0) << i;
        EXPECT_EQ(tickAt((i + 0.25) / 4), 0) << i;
    }
}

TEST_F(ChartViewTest, AScreenReaderTellsWhatItShows) {
    EXPECT_EQ(View().accessibleName(), "Chart");
    EXPECT_EQ(View().accessibleDescription(), DescriptionOf(PlotOf(form.chart)));
    EXPECT_TRUE(View().accessibleDescription().startsWith(
        QString::fromUtf8("White Pine : Volume (m³/ha) vs Age (years). ")));
}

TEST_F(ChartViewTest, AClickOnAPointPicksIt) {
    ClickAt(PlaceOf(3, 8));
    EXPECT_EQ(TakePicked(), (Picked{{3, 8}}));
    ClickAt(PlaceOf(1, 16) + QPoint(-4, 3));
    EXPECT_EQ(TakePicked(), (Picked{{1, 16}}));
}

TEST_F(ChartViewTest, AClickBesideAllPointsPicksNone) {
    ClickAt(Drawn().Layout().plot.topLeft().toPoint() + QPoint(30, 30));
    ClickAt({1, 1});
    EXPECT_TRUE(TakePicked().empty());
    QTest::mouseClick(WindowOf(form).windowHandle(), Qt::RightButton, {},
                      View().mapTo(View().window(), PlaceOf(1, 8)));
    EXPECT_TRUE(TakePicked().empty());
}

TEST_F(ChartViewTest, AClickOnABarPicksIt) {
    Do([&] { FillBars(form.chart, 3, 8); });
    const QRectF plot = Drawn().Layout().plot;
    ClickAt(PlaceOf(2, 7));
    ClickAt({PlaceOf(2, 7).x(), static_cast<int>(plot.bottom()) - 2});
    EXPECT_EQ(TakePicked(), (Picked{{2, 7}, {2, 7}}));
}

TEST_F(ChartViewTest, WhereSeveralPointsLieAMenuAsksWhich) {
    Do([&] { form.chart.SetData(5, 4, form.chart.Data(5, 2)); });
    ClickAt(PlaceOf(1, 5));
    EXPECT_TRUE(TakePicked().empty());
    auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    ASSERT_NE(menu, nullptr);
    ASSERT_EQ(menu->actions().size(), 2);
    EXPECT_TRUE(menu->actions()[1]->text().startsWith("MDBH: "));
    menu->actions()[1]->trigger();
    menu->close();
    window_events::Settle();
    EXPECT_EQ(TakePicked(), (Picked{{3, 5}}));
}

TEST_F(ChartViewTest, EveryDrawnPointCanBePickedByTheMouse) {
    // The youngest rows of two series lie on one another.
    Do([&] {
        FillScatter(form.chart, 2, 16);
        for (int row = 1; row <= 4; ++row) form.chart.SetData(row, 4, form.chart.Data(row, 2));
    });
    for (int series = 1; series <= 3; series += 2)
        for (int point = 1; point <= 16; ++point) {
            driver->PickPoint(form.chart, series, point);
            EXPECT_EQ(TakePicked(), (Picked{{series, point}}));
        }
}

TEST_F(ChartViewTest, EveryBarCanBePickedByTheMouse) {
    // So narrow that several lie within a pixel, and the first ones without height.
    Do([&] {
        FillBars(form.chart, 24, 20);
        for (int column = 1; column <= 24; ++column) form.chart.SetData(1, column, 0);
    });
    for (const int series : {1, 12, 24})
        for (const int point : {1, 2, 20}) {
            driver->PickPoint(form.chart, series, point);
            EXPECT_EQ(TakePicked(), (Picked{{series, point}}));
        }
}

TEST_F(ChartViewTest, APointOutsideTheScaleIsShownAtTheEdge) {
    Do([&] {
        ChartAxis axis = form.chart.Axis(Chart::kAxisY);
        axis.Scale.Maximum = 10;
        form.chart.SetAxis(Chart::kAxisY, axis);
    });
    const QPoint place = PlaceOf(3, 16);
    EXPECT_NEAR(place.y(), Drawn().Layout().plot.top(), 1);
    EXPECT_GT(CountDrawn({place - QPointF(3, 0), QSizeF(6, 8)}), 10);
    driver->PickPoint(form.chart, 3, 16);
    EXPECT_EQ(TakePicked(), (Picked{{3, 16}}));
}

TEST_F(ChartViewTest, ABarThatIsCutOffEndsInAnArrow) {
    Do([&] { FillBars(form.chart, 3, 8); });
    const auto countAtTheEnd = [&](int point) {
        const QRectF plot = Drawn().Layout().plot;
        return Count(Qt::white, {PlaceOf(1, point).x() - 3.0, plot.top() + 2, 6, 6});
    };
    const double highest = form.chart.Data(8, 1);
    const auto endAt = [&](double end) {
        Do([&] {
            form.chart.ChangeAxis(Chart::kAxisY,
                                  [&](ChartAxis& axis) { axis.Scale.Maximum = end; });
        });
    };
    endAt(highest / 2);
    EXPECT_GT(countAtTheEnd(8), 4);
    // One that just fills the plot has none.
    endAt(highest);
    EXPECT_EQ(countAtTheEnd(8), 0);
}

TEST_F(ChartViewTest, APointThatThereIsNotCanNotBePicked) {
    EXPECT_THROW(driver->PickPoint(form.chart, 2, 1), ActionRefused);
    EXPECT_THROW(driver->PickPoint(form.chart, 1, 17), ActionRefused);
    EXPECT_THROW(driver->PickPoint(form.chart, 1, 0), ActionRefused);
}

TEST_F(ChartViewTest, TheMouseOverAPointShowsWhatItSays) {
    QWidget* viewport = View().viewport();
    QTest::mouseMove(viewport, PlaceOf(3, 8));
    window_events::Settle();
    EXPECT_EQ(QToolTip::text(), TextOf(Drawn().Drawn(), {3, 8}));
    EXPECT_EQ(viewport->cursor().shape(), Qt::PointingHandCursor);
    Do([&] {
        FillScatter(form.chart, 12, 16);
        for (int column = 2; column <= 24; column += 2) form.chart.SetData(8, column, 50);
    });
    QTest::mouseMove(viewport, PlaceOf(3, 8) + QPoint(1, 0));
    window_events::Settle();
    EXPECT_TRUE(QToolTip::text().startsWith("TDBH: 50, Age (years): 40\nMDBH: 50, Age"));
    EXPECT_TRUE(QToolTip::text().endsWith("\nand 4 more"));
    QTest::mouseMove(viewport, QPoint(2, 2));
    EXPECT_TRUE(QTest::qWaitFor([] { return !QToolTip::isVisible(); }));
    EXPECT_EQ(viewport->cursor().shape(), Qt::ArrowCursor);
}

}  // namespace arbolith
