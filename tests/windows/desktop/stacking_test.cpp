// Which window is above which, seen on the screen.
#include "windows/window_test.h"

#include <QGuiApplication>
#include <QScreen>
#include <QTest>

namespace arbolith {

namespace {

// A window at one place of the screen, filled with one colour.
struct ColouredForm : Form {
    ColouredForm(Application& application, const char* name, Colour colour)
        : Form(application, name, name, {4500, 4500}) {
        fill.SetBackColor(colour);
        SetPlace({3000, 3000, 4500, 4500});
    }
    Label fill{*this, "fill", "", {0, 0, 4500, 4500}};
};

struct StackingTest : WindowTest {
    // The colour in the middle of where both windows lie, as the screen shows it.
    static QColor Seen(const QWidget& window) {
        const QPoint middle = window.mapToGlobal(window.rect().center());
        const QPixmap screen =
            QGuiApplication::primaryScreen()->grabWindow(0, middle.x(), middle.y(), 1, 1);
        return screen.toImage().pixelColor(0, 0);
    }

    bool IsOnTop(const Form& form) {
        const QColor own = form.Name() == "Red" ? Qt::red : Qt::blue;
        return QTest::qWaitFor([&] { return Seen(WindowOf(form)) == own; });
    }

    ColouredForm red{application, "Red", 0x0000FF};
    ColouredForm blue{application, "Blue", 0xFF0000};
};

}  // namespace

TEST_F(StackingTest, TheWindowShownLastIsOnTop) {
    Open(red);
    Open(blue);
    EXPECT_TRUE(IsOnTop(blue));
    Do([&] { red.BringToTop(); });
    EXPECT_TRUE(IsOnTop(red));
}

TEST_F(StackingTest, ATopmostWindowStaysAboveTheOthers) {
    Do([&] { red.SetTopmost(true); });
    Open(red);
    Open(blue);
    EXPECT_TRUE(blue.Visible());
    EXPECT_TRUE(WindowOf(blue).isActiveWindow());
    EXPECT_TRUE(IsOnTop(red));
    Do([&] { blue.BringToTop(); });
    window_events::ActivateWindowOf(WindowOf(blue));
    EXPECT_TRUE(IsOnTop(red));
}

TEST_F(StackingTest, AWindowBecomesTopmostAndOrdinaryWhileItShows) {
    Open(red);
    Open(blue);
    ASSERT_TRUE(IsOnTop(blue));
    Do([&] { red.SetTopmost(true); });
    EXPECT_TRUE(WindowOf(red).isVisible());
    EXPECT_TRUE(IsOnTop(red));
    Do([&] { red.SetTopmost(false); });
    EXPECT_TRUE(WindowOf(red).isVisible());
    window_events::ActivateWindowOf(WindowOf(red));
    window_events::ActivateWindowOf(WindowOf(blue));
    EXPECT_TRUE(IsOnTop(blue));
}

TEST_F(StackingTest, ATopmostWindowStaysSoWhenRaisedAndWhenHidden) {
    Open(blue);
    Do([&] { red.SetTopmost(true); });
    Open(red);
    Do([&] { red.BringToTop(); });
    Do([&] { blue.BringToTop(); });
    EXPECT_TRUE(IsOnTop(red));
    Do([&] { red.Hide(); });
    EXPECT_TRUE(IsOnTop(blue));
    Do([&] { red.Show(); });
    Do([&] { blue.BringToTop(); });
    window_events::ActivateWindowOf(WindowOf(blue));
    EXPECT_TRUE(IsOnTop(red));
}

TEST_F(StackingTest, AMaximisedWindowFillsTheScreenAndComesBack) {
    Open(red);
    const QSize before = WindowOf(red).size();
    Do([&] { red.SetState(WindowState::kMaximised); });
    EXPECT_TRUE(QTest::qWaitFor([&] {
        return WindowOf(red).width() > QGuiApplication::primaryScreen()->size().width() * 9 / 10;
    }));
    Do([&] { red.SetState(WindowState::kNormal); });
    EXPECT_TRUE(QTest::qWaitFor([&] { return WindowOf(red).size() == before; }));
}

}  // namespace arbolith
