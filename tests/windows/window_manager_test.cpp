#include "window_test.h"

#include <QApplication>
#include <QEvent>
#include <QLabel>

namespace arbolith {

namespace {

struct SmallForm : Form {
    SmallForm(Application& application, const char* name)
        : Form(application, name, name, {3000, 3000}) {
        onActivate = [this] { ++activations; };
        field.onGotFocus = [this] { ++gotFocus; };
    }

    Label label{*this, "label", "start", {0, 0, 1500, 300}};
    TextBox field{*this, "field", {0, 500, 1500, 375}};
    int activations = 0;
    int gotFocus = 0;
};

// Counts how often a widget was shown and hidden.
class ShowCounter : public QObject {
public:
    explicit ShowCounter(QWidget& widget) { widget.installEventFilter(this); }
    bool eventFilter(QObject*, QEvent* event) override {
        shows += event->type() == QEvent::Show;
        hides += event->type() == QEvent::Hide;
        return false;
    }
    int shows = 0;
    int hides = 0;
};

struct WindowManagerTest : WindowTest {
    void LeaveAndComeBack() {
        emit qApp->applicationStateChanged(Qt::ApplicationInactive);
        emit qApp->applicationStateChanged(Qt::ApplicationActive);
        window_events::Settle();
    }

    SmallForm first{application, "First"};
    SmallForm second{application, "Second"};
};

}  // namespace

TEST_F(WindowManagerTest, AWindowIsMadeWhenItsFormFirstShows) {
    Do([&] { first.label.SetCaption("changed"); });
    EXPECT_EQ(windows.WindowOf(first), nullptr);
    Open(first);
    ASSERT_NE(windows.WindowOf(first), nullptr);
    EXPECT_EQ(WidgetOf<QLabel>(first.label).text(), "changed");
}

TEST_F(WindowManagerTest, ViewsFollowAtTheEndOfTheEventAndNotBefore) {
    Open(first);
    auto& label = WidgetOf<QLabel>(first.label);
    Do([&] {
        first.label.SetCaption("between");
        EXPECT_EQ(label.text(), "start");
        first.label.SetCaption("end");
    });
    EXPECT_EQ(label.text(), "end");
}

TEST_F(WindowManagerTest, AFlushShowsTheStatesInTheMiddleOfAnEvent) {
    Open(first);
    Do([&] {
        first.label.SetCaption("between");
        windows.Flush();
        EXPECT_EQ(WidgetOf<QLabel>(first.label).text(), "between");
    });
}

TEST_F(WindowManagerTest, AFormHiddenAndShownInOneEventDoesNotFlicker) {
    Open(first);
    const ShowCounter counter(WindowOf(first));
    Do([&] {
        first.Hide();
        first.Show();
    });
    EXPECT_EQ(counter.shows, 0);
    EXPECT_EQ(counter.hides, 0);
    EXPECT_TRUE(WindowOf(first).isVisible());
}

TEST_F(WindowManagerTest, TheFormShownLastIsActiveAndLastInOrder) {
    Open(first);
    Open(second);
    EXPECT_TRUE(WindowOf(second).isActiveWindow());
    EXPECT_EQ(windows.OpenWindows(),
              (std::vector<FormWindow*>{&WindowOf(first), &WindowOf(second)}));
    Do([&] {
        first.Hide();
        first.Show();
    });
    window_events::Settle();
    EXPECT_TRUE(WindowOf(first).isActiveWindow());
    EXPECT_EQ(windows.OpenWindows().back(), &WindowOf(first));
}

TEST_F(WindowManagerTest, HidingTheActiveFormGoesBackToTheOneBefore) {
    Open(first);
    Open(second);
    Do([&] { second.Hide(); });
    window_events::Settle();
    EXPECT_TRUE(WindowOf(first).isActiveWindow());
    EXPECT_TRUE(WidgetOf<QWidget>(first.field).hasFocus());
}

TEST_F(WindowManagerTest, ThePersonsTurnToAnotherWindowActivatesItsForm) {
    Open(first);
    Open(second);
    const int before = first.activations;
    WindowOf(first).activateWindow();
    window_events::Settle();
    EXPECT_EQ(application.ActiveForm(), &first);
    EXPECT_EQ(first.activations, before + 1);
}

TEST_F(WindowManagerTest, AShowingRaisesActivateOnce) {
    Open(first);
    window_events::Settle();
    EXPECT_EQ(first.activations, 1);
    EXPECT_EQ(first.gotFocus, 1);
}

TEST_F(WindowManagerTest, AScriptsPersonNeverLeavesByItself) {
    Open(first);
    LeaveAndComeBack();
    EXPECT_EQ(first.activations, 1);
}

namespace {

// As the program has it: nothing waits for a script.
struct ComingBackTest : testing::Test {
    ComingBackTest() { host.SetWindows(&windows); }
    ~ComingBackTest() override { host.SetWindows(nullptr); }

    void Leave() { emit qApp->applicationStateChanged(Qt::ApplicationInactive); }
    void ComeBack() {
        emit qApp->applicationStateChanged(Qt::ApplicationActive);
        window_events::Settle();
    }

    void Open(Form& form) {
        application.Enter([&] { form.Show(); });
        window_events::ActivateWindowOf(*windows.WindowOf(form));
    }

    BoxRecorder host;
    Application application{host, "/tmp", ""};
    WindowManager windows{application};
    SmallForm first{application, "First"};
    SmallForm second{application, "Second"};
};

}  // namespace

TEST_F(ComingBackTest, ItRaisesActivateAndGotFocusOfTheActiveForm) {
    Open(first);
    Leave();
    ComeBack();
    EXPECT_EQ(first.activations, 2);
    EXPECT_EQ(first.gotFocus, 2);
}

TEST_F(ComingBackTest, ToAnotherWindowOnlyThatOneIsActivated) {
    Open(first);
    Open(second);
    Leave();
    window_events::ActivateWindowOf(*windows.WindowOf(first));
    ComeBack();
    EXPECT_EQ(first.activations, 2);
    EXPECT_EQ(second.activations, 1);
}

TEST_F(ComingBackTest, ABoxOfTheProgramsOwnIsNoLeaving) {
    Open(first);
    {
        const WindowManager::OwnBox box(&windows);
        Leave();
        ComeBack();
    }
    EXPECT_EQ(first.activations, 1);
    Leave();
    ComeBack();
    EXPECT_EQ(first.activations, 2);
}

TEST_F(ComingBackTest, WithoutAFormThereIsNothingToTell) {
    Leave();
    ComeBack();
    EXPECT_EQ(application.ActiveForm(), nullptr);
}

}  // namespace arbolith
