// What the windows add: a run up to the painted table, the processor time of waiting while a timer
// fires, the start up to the splash, the memory of the main form, a redraw of the chart, and the
// reading of a batch. --check turns the limits into the exit code.
#include "bench/application_folder.h"
#include "bench/bare_exchange.h"
#include "bench/chart_redraw.h"
#include "bench/headless_program.h"
#include "bench/measure.h"
#include "bench/white_pine.h"
#include "qt/form_window.h"
#include "qt/qt_host.h"
#include "qt/window_manager.h"
#include "shell/program.h"

#include <QAbstractScrollArea>
#include <QApplication>
#include <QEventLoop>
#include <QProcess>
#include <QPushButton>
#include <QTimer>

#include <cstring>
#include <filesystem>
namespace arbolith::bench {

namespace {

constexpr double kRunLimit = 4;
constexpr double kWaitLimit = 1.5;
constexpr double kStartLimit = 2.5;
constexpr double kMemoryLimit = 1.5;
constexpr double kBatchLimit = 10;
constexpr double kChartLimit = 3;
constexpr int kTimerMilliseconds = 10;
constexpr int kWaitMilliseconds = 5000;

// Sees when a widget has been painted since the last question.
class PaintWatch : public QObject {
public:
    void Watch(QWidget* widget) { widget->installEventFilter(this); }
    bool TakePainted() { return std::exchange(painted_, false); }

protected:
    bool eventFilter(QObject*, QEvent* event) override {
        painted_ = painted_ || event->type() == QEvent::Paint;
        return false;
    }

private:
    bool painted_ = false;
};

struct WindowedProgram {
    explicit WindowedProgram(const std::string& folder)
        : application(host, folder, ""),
          windows(application, true),
          program(application),
          user(application) {
        host.SetWindows(&windows);
        program.Start();
        user.Tick(program.GetSplash().Timer1);
        EnterWhitePine(user, Form());
        QCoreApplication::processEvents();
    }
    ~WindowedProgram() { host.SetWindows(nullptr); }
    WindowedProgram(const WindowedProgram&) = delete;
    WindowedProgram& operator=(const WindowedProgram&) = delete;

    MainForm& Form() { return program.Run().form; }
    void ClickRun() {
        windows.WindowOf(Form())->findChild<QPushButton*>(QStringLiteral("Run"))->click();
    }

    QtHost host;
    Application application;
    WindowManager windows;
    Program program;
    UserActions user;
};

double RunRatio() {
    const ApplicationFolder folder;
    WindowedProgram windowed(folder.Path());
    windowed.ClickRun();
    PaintWatch watch;
    auto* table = windowed.windows.WindowOf(windowed.program.Results().output.Find()->form)
                      ->findChild<QAbstractScrollArea*>(QStringLiteral("Table"));
    watch.Watch(table->viewport());
    return MedianRatio(
        [&] {
            watch.TakePainted();
            windowed.ClickRun();
            while (!watch.TakePainted())
                QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        },
        [&] { ExchangeBare(folder.Path(), "SWQVL.exe", kWhitePineLine); });
}

// Processor time of a run with a model of five seconds over that of an event loop of five seconds,
// with a timer of 10 ms firing in both.
double WaitRatio() {
    const ApplicationFolder models;
    ExchangeBare(models.Path(), "SWQVL.exe", kWhitePineLine);
    const ApplicationFolder folder(SLEEPING_MODEL, SLEEPING_MODEL);
    std::filesystem::copy_file(models.Path() + "/_OUTPUT.TMP", folder.Path() + "/_OUTPUT.TMP");
    WindowedProgram windowed(folder.Path());
    QTimer timer;
    timer.start(kTimerMilliseconds);

    double before = ProcessorSeconds();
    windowed.ClickRun();
    const double ours = ProcessorSeconds() - before;

    QEventLoop bare;
    QTimer::singleShot(kWaitMilliseconds, &bare, &QEventLoop::quit);
    before = ProcessorSeconds();
    bare.exec();
    return ours / (ProcessorSeconds() - before);
}

// Runs a start program to its end. Returns the KiB that it tells.
double RunStartProgram(const QString& program, const QStringList& arguments) {
    QProcess process;
    process.start(program, arguments);
    process.waitForFinished(-1);
    return process.readAllStandardOutput().trimmed().toDouble();
}

double StartRatio() {
    return MedianRatio([] { RunStartProgram(QStringLiteral(PROGRAM_WINDOW), {}); },
                       [] { RunStartProgram(QStringLiteral(EMPTY_WINDOW), {}); });
}

double MemoryRatio() {
    std::vector<double> ours;
    std::vector<double> floor;
    for (int i = 0; i < kMeasurements; ++i) {
        ours.push_back(RunStartProgram(QStringLiteral(PROGRAM_WINDOW), {QStringLiteral("main")}));
        floor.push_back(RunStartProgram(QStringLiteral(EMPTY_WINDOW), {}));
    }
    return Median(ours) / Median(floor);
}

// Up to the painted list.
double BatchReadRatio() {
    const ApplicationFolder folder;
    HeadlessProgram headless(folder.Path());
    WindowedProgram windowed(folder.Path());
    const auto read = [&] {
        windowed.application.Enter([&] { ReadBatch(windowed.program.GetBatch(), FULL_BATCH); });
    };
    read();
    PaintWatch watch;
    watch.Watch(windowed.windows.WindowOf(windowed.Form())
                    ->findChild<QAbstractScrollArea*>(QStringLiteral("Batch_Seq"))
                    ->viewport());
    return MedianRatio(
        [&] {
            watch.TakePainted();
            read();
            while (!watch.TakePainted())
                QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        },
        [&] { headless.Read(FULL_BATCH); });
}

int Main(bool check) {
    Report report;
    report.AtMost("single run, click to painted table / bare exchange", RunRatio(), kRunLimit);
    report.AtMost("processor time of waiting / bare event loop", WaitRatio(), kWaitLimit);
    report.AtMost("start to first paint of the splash / empty window", StartRatio(), kStartLimit);
    report.AtMost("memory with the main form / empty window", MemoryRatio(), kMemoryLimit);
    report.AtMost("redraw of 24 series / bare drawing", ChartRedrawRatio(), kChartLimit);
    report.AtMost("batch of 1025 into the painted panel / without windows", BatchReadRatio(),
                  kBatchLimit);
    return check && !report.AllHold() ? 1 : 0;
}

}  // namespace

}  // namespace arbolith::bench

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication toolkit(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    return arbolith::bench::Main(argc > 1 && std::strcmp(argv[1], "--check") == 0);
}
