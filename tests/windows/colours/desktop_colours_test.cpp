#include "qt/desktop_colours.h"

#include "qt/dark_colours.h"
#include "windows/colours/portal.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QStyle>
#include <QTemporaryDir>
#include <QTest>
#include <QWidget>

#include <gtest/gtest.h>

namespace arbolith {

namespace {

// Milliseconds: far more than the program waits for an answer, and far less than a call on the bus
// waits by itself.
constexpr int kLong = 10000;

bool IsShownDark() {
    return IsDark(QApplication::palette());
}

// How often the program's colours change.
class ChangeCounter : public QObject {
public:
    ChangeCounter() { qApp->installEventFilter(this); }
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (watched == qApp && event->type() == QEvent::ApplicationPaletteChange) ++changes;
        return false;
    }
    int changes = 0;
};

struct DesktopColoursTest : testing::Test {
    DesktopColoursTest() {
        EXPECT_TRUE(QDBusConnection::sessionBus().isConnected());
        EXPECT_FALSE(IsShownDark());
    }
    ~DesktopColoursTest() override {
        QApplication::setPalette(QPalette());
        QApplication::setStyle("fusion");
    }
};

// A session whose bus is told by nothing but its folder.
struct SessionFolderTest : DesktopColoursTest {
    SessionFolderTest() {
        qunsetenv("DBUS_SESSION_BUS_ADDRESS");
        qputenv("XDG_RUNTIME_DIR", QFile::encodeName(folder.path()));
    }
    ~SessionFolderTest() override {
        qputenv("DBUS_SESSION_BUS_ADDRESS", address);
        hadFolder ? qputenv("XDG_RUNTIME_DIR", folderBefore) : qunsetenv("XDG_RUNTIME_DIR");
    }

    const QByteArray address = qgetenv("DBUS_SESSION_BUS_ADDRESS");
    const bool hadFolder = qEnvironmentVariableIsSet("XDG_RUNTIME_DIR");
    const QByteArray folderBefore = qgetenv("XDG_RUNTIME_DIR");
    const QTemporaryDir folder;
    Portal portal{Preference::kDark};
};

}  // namespace

TEST_F(DesktopColoursTest, ADarkDesktopMakesTheProgramDarkAtOnce) {
    const QPalette before = QApplication::palette();
    Portal portal(Preference::kDark);
    {
        const DesktopColours colours;
        EXPECT_TRUE(IsShownDark());
        EXPECT_NE(QApplication::style()->name(), "fusion");
    }
    EXPECT_EQ(QApplication::palette(), before);
}

TEST_F(DesktopColoursTest, OtherwiseTheColoursStay) {
    for (const auto preference : {Preference::kNone, Preference::kLight}) {
        ChangeCounter counter;
        Portal portal(preference);
        const DesktopColours colours;
        EXPECT_EQ(portal.TimesAsked(), 1);
        EXPECT_FALSE(IsShownDark());
        EXPECT_EQ(counter.changes, 0);
        EXPECT_EQ(QApplication::style()->name(), "fusion");
    }
}

TEST_F(DesktopColoursTest, WithoutAPortalTheProgramStartsLight) {
    QElapsedTimer timer;
    timer.start();
    const DesktopColours colours;
    EXPECT_LT(timer.elapsed(), kLong);
    EXPECT_FALSE(IsShownDark());
}

TEST_F(DesktopColoursTest, ASlowPortalIsNotWaitedForButHeard) {
    Portal portal(Preference::kDark, true);
    QElapsedTimer timer;
    timer.start();
    const DesktopColours colours;
    EXPECT_LT(timer.elapsed(), kLong);
    EXPECT_FALSE(IsShownDark());
    EXPECT_TRUE(QTest::qWaitFor([&] { return portal.TimesAsked() == 1; }));
    portal.Answer();
    EXPECT_TRUE(QTest::qWaitFor(IsShownDark));
}

TEST_F(DesktopColoursTest, AChangeIsFollowedWhileTheProgramRuns) {
    Portal portal(Preference::kLight);
    const DesktopColours colours;
    QWidget window;
    window.show();
    const QColor light = QApplication::palette().color(QPalette::Window);
    const QColor dark = DarkPalette().color(QPalette::Window);
    const auto shows = [&](const QColor& colour) {
        return QTest::qWaitFor([&] { return window.grab().toImage().pixelColor(1, 1) == colour; });
    };
    EXPECT_TRUE(shows(light));
    portal.Change(Preference::kDark);
    EXPECT_TRUE(shows(dark));
    portal.Change(Preference::kNone);
    EXPECT_TRUE(shows(light));
}

TEST_F(DesktopColoursTest, OtherSettingsAndRepeatedOnesChangeNothing) {
    Portal portal(Preference::kLight);
    const DesktopColours colours;
    ChangeCounter counter;
    portal.ChangeOther();
    portal.Change(Preference::kLight);
    portal.Change(Preference::kNone);
    portal.Change(Preference::kDark);
    EXPECT_TRUE(QTest::qWaitFor(IsShownDark));
    EXPECT_EQ(counter.changes, 1);
}

TEST_F(DesktopColoursTest, DarkColoursFromElsewhereStay) {
    Portal portal(Preference::kLight);
    const QPalette brown(QColor(60, 50, 40));
    QApplication::setPalette(brown);
    const DesktopColours colours;
    EXPECT_EQ(portal.TimesAsked(), 0);
    EXPECT_EQ(QApplication::palette().color(QPalette::Window), brown.color(QPalette::Window));
    EXPECT_NE(QApplication::style()->name(), "fusion");
}

TEST_F(SessionFolderTest, NobodyIsAskedWhereThereIsNoBus) {
    for (const char* told : {"", "autolaunch:"}) {
        qputenv("DBUS_SESSION_BUS_ADDRESS", told);
        const DesktopColours colours;
        EXPECT_EQ(portal.TimesAsked(), 0);
        EXPECT_FALSE(IsShownDark());
    }
}

TEST_F(SessionFolderTest, ABusInItsUsualPlaceIsAsked) {
    QFile bus(folder.filePath("bus"));
    ASSERT_TRUE(bus.open(QIODevice::WriteOnly));
    const DesktopColours colours;
    EXPECT_TRUE(IsShownDark());
}

}  // namespace arbolith
