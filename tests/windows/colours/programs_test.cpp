// Both programs on a screen, from their start to a change of the desktop's setting.
#include "qt/dark_colours.h"
#include "windows/colours/portal.h"

#include <QApplication>
#include <QImage>
#include <QProcess>
#include <QScreen>
#include <QTemporaryDir>
#include <QTest>

#include <cstdlib>
#include <gtest/gtest.h>

namespace arbolith {

namespace {

constexpr int kPatience = 30000;
// How much a frame changes the ground within it, from 0 to 255.
constexpr int kTint = 8;
// The share of the screen that a window's ground takes at least.
constexpr double kSeen = 0.1;

struct Case {
    const char* program;
    QPalette::ColorRole ground;
};

struct ProgramColoursTest : testing::TestWithParam<Case> {
    ~ProgramColoursTest() override {
        program.kill();
        program.waitForFinished();
    }

    void Start() {
        auto environment = QProcessEnvironment::systemEnvironment();
        environment.insert("ARBOLITH_FOLDER", folder.path());
        environment.insert("HOME", folder.path());
        program.setProcessEnvironment(environment);
        program.setWorkingDirectory(folder.path());
        program.start(QString(PROGRAMS "/") + GetParam().program, {});
        ASSERT_TRUE(program.waitForStarted());
    }

    static double ShareOnScreen(QColor colour) {
        const QImage screen = QGuiApplication::primaryScreen()->grabWindow().toImage();
        int count = 0;
        for (int y = 0; y < screen.height(); ++y)
            for (int x = 0; x < screen.width(); ++x)
                count += std::abs(qGray(screen.pixel(x, y)) - qGray(colour.rgb())) <= kTint;
        return static_cast<double>(count) / (screen.width() * screen.height());
    }

    static bool ShowsOnly(QColor shown, QColor other) {
        return QTest::qWaitFor(
            [&] { return ShareOnScreen(shown) > kSeen && ShareOnScreen(other) < kSeen / 10; },
            kPatience);
    }

    const QColor light = QApplication::palette().color(GetParam().ground);
    const QColor dark = DarkPalette().color(GetParam().ground);
    QTemporaryDir folder;
    QProcess program;
};

}  // namespace

TEST_P(ProgramColoursTest, FollowsTheDesktop) {
    Portal portal(Preference::kDark);
    Start();
    EXPECT_TRUE(ShowsOnly(dark, light));
    portal.Change(Preference::kLight);
    EXPECT_TRUE(ShowsOnly(light, dark));
    portal.Change(Preference::kDark);
    EXPECT_TRUE(ShowsOnly(dark, light));
}

INSTANTIATE_TEST_SUITE_P(Programs, ProgramColoursTest,
                         testing::Values(Case{"arbolith", QPalette::Window},
                                         Case{"notepad", QPalette::Base}),
                         [](const auto& each) { return each.param.program; });

}  // namespace arbolith
