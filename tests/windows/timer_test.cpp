#include "window_test.h"

#include <QTest>
#include <QTimer>

namespace arbolith {

namespace {

struct TimerForm : Form {
    explicit TimerForm(Application& application)
        : Form(application, "TimerForm", "Timer", {3000, 3000}) {
        timer.onTimer = [this] { ++ticks; };
    }

    Timer timer{*this, "timer", 5};
    int ticks = 0;
};

}  // namespace

TEST(TimerView, FiresFromTheFormsFirstShowingUntilDisabled) {
    BoxRecorder host;
    Application application(host, "/tmp", "");
    WindowManager windows(application);
    TimerForm form(application);
    application.Enter([&] { form.Show(); });
    ASSERT_TRUE(QTest::qWaitFor([&] { return form.ticks >= 3; }));
    application.Enter([&] { form.timer.SetEnabled(false); });
    const int before = form.ticks;
    // Another timer of the same length fires several times meanwhile.
    TimerForm other(application);
    application.Enter([&] { other.Show(); });
    ASSERT_TRUE(QTest::qWaitFor([&] { return other.ticks >= 5; }));
    EXPECT_EQ(form.ticks, before);
}

TEST(TimerView, FollowsItsInterval) {
    BoxRecorder host;
    Application application(host, "/tmp", "");
    WindowManager windows(application);
    TimerForm form(application);
    form.timer.SetInterval(0);
    application.Enter([&] { form.Show(); });
    window_events::Settle();
    EXPECT_EQ(form.ticks, 0);
    application.Enter([&] { form.timer.SetInterval(1); });
    EXPECT_TRUE(QTest::qWaitFor([&] { return form.ticks >= 1; }));
}

TEST_F(WindowTest, AManualTimerFiresOnlyByAnAction) {
    TimerForm form(application);
    Open(form);
    EXPECT_EQ(WindowOf(form).findChildren<QTimer*>().size(), 0);
    UserActions(application).Tick(form.timer);
    EXPECT_EQ(form.ticks, 1);
}

}  // namespace arbolith
