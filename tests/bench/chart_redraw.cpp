#include "bench/chart_redraw.h"

#include "bench/measure.h"
#include "qt/chart_view.h"
#include "qt/form_window.h"
#include "qt/qt_host.h"
#include "qt/window_manager.h"
#include "windows/chart_testing.h"

#include <QChart>
#include <QChartView>
#include <QCoreApplication>
#include <QLineSeries>

#include <vector>

namespace arbolith::bench {

namespace {

using namespace chart_testing;

constexpr int kSeries = 24;
constexpr int kRows = 80;
constexpr Place kPlace = {0, 0, 10000, 10000};

// The chart in its window, as the program shows it.
class OwnChart {
public:
    OwnChart() {
        application.Enter([this] { form.Show(); });
        view = dynamic_cast<ChartView*>(windows.WindowOf(form)->ViewOf(chart)->Widget());
    }

    void Redraw() {
        application.Enter([this] { FillScatter(chart, kSeries, kRows); });
        view->viewport()->repaint();
    }

    QSize Pixels() const { return view->size(); }

private:
    QtHost host;
    Application application{host, "/tmp", ""};
    WindowManager windows{application, true};
    Form form{application, "Form", "Chart", {kPlace.width, kPlace.height}};
    Chart chart{form, "Chart", kPlace};
    ChartView* view = nullptr;
};

// The same series on a chart of the toolkit's, with its own axes, title and legend.
class BareChart {
public:
    explicit BareChart(QSize size) : view(new QChart) {
        view.resize(size);
        view.setRenderHint(QPainter::Antialiasing);
        view.chart()->setTitle(QStringLiteral("White Pine : Volume (m³/ha) vs Age (years)"));
        for (const char* name : kNames) {
            lines.push_back(new QLineSeries);
            lines.back()->setName(QLatin1String(name));
            view.chart()->addSeries(lines.back());
        }
        TakeData();
        view.chart()->createDefaultAxes();
        view.show();
    }

    void Redraw() {
        TakeData();
        view.viewport()->repaint();
    }

private:
    void TakeData() {
        for (int i = 0; i < kSeries; ++i) {
            QList<QPointF> points;
            for (int row = 1; row <= kRows; ++row)
                points << QPointF(kYears * row, ValueOf(i, row, kRows));
            lines[static_cast<std::size_t>(i)]->replace(points);
        }
    }

    QChartView view;
    std::vector<QLineSeries*> lines;
};

}  // namespace

double ChartRedrawRatio() {
    OwnChart own;
    BareChart bare(own.Pixels());
    QCoreApplication::processEvents();
    return MedianRatio([&] { own.Redraw(); }, [&] { bare.Redraw(); });
}

}  // namespace arbolith::bench
