#include "window_test.h"

#include <QApplication>
#include <QLabel>
#include <QTemporaryDir>
#include <QTimer>

#include <fcntl.h>
#include <functional>
#include <sys/stat.h>
#include <unistd.h>

namespace arbolith {

namespace {

// A program that runs until it is let go.
class HeldProgram {
public:
    explicit HeldProgram(Host& host) {
        const std::string pipe = folder_.filePath("pipe").toStdString();
        mkfifo(pipe.c_str(), 0600);
        pipe_ = open(pipe.c_str(), O_RDWR | O_CLOEXEC);
        process_ = host.Start({"/bin/sh", {"-c", "read line < '" + pipe + "'"}, "/tmp", 1});
    }
    ~HeldProgram() {
        LetGo();
        close(pipe_);
    }
    HeldProgram(const HeldProgram&) = delete;
    HeldProgram& operator=(const HeldProgram&) = delete;

    void LetGo() { EXPECT_EQ(write(pipe_, "\n", 1), 1); }
    Process& Get() { return *process_; }

private:
    QTemporaryDir folder_;
    int pipe_ = -1;
    std::unique_ptr<Process> process_;
};

// Calls back when the notice of a wait comes up.
class NoticeWatcher : public QObject {
public:
    explicit NoticeWatcher(std::function<void(QLabel&)> act) : act_(std::move(act)) {
        qApp->installEventFilter(this);
    }
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::Show && watched->objectName() == "waitNotice")
            act_(dynamic_cast<QLabel&>(*watched));
        return false;
    }

private:
    std::function<void(QLabel&)> act_;
};

struct WaitTest : WindowTest {
    WaitTest() { Open(form); }

    static bool Never() { return false; }

    Form form{application, "Form", "Form", {6000, 3000}};
};

}  // namespace

TEST_F(WaitTest, AProgramThatIsMissingIsNotStarted) {
    EXPECT_EQ(host.Start({"/no/such/program", {}, "/tmp", 1}), nullptr);
}

TEST_F(WaitTest, AWaitForAProgramThatHasEndedIsOverAtOnce) {
    const auto process = host.Start({"/bin/true", {}, "/tmp", 1});
    ASSERT_NE(process, nullptr);
    host.WaitForEnd(*process, Never);
    EXPECT_TRUE(process->HasEnded());
    host.WaitForEnd(*process, Never);
}

TEST_F(WaitTest, EventsFlowUntilTheProgramEnds) {
    HeldProgram program(host);
    int events = 0;
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, [&] {
        if (++events == 3) program.LetGo();
    });
    timer.start(1);
    host.WaitForEnd(program.Get(), Never);
    EXPECT_GE(events, 3);
    EXPECT_TRUE(program.Get().HasEnded());
}

TEST_F(WaitTest, AnEventCanMakeItGiveUp) {
    HeldProgram program(host);
    bool enough = false;
    QTimer::singleShot(0, [&] { enough = true; });
    host.WaitForEnd(program.Get(), [&] { return enough; });
    EXPECT_FALSE(program.Get().HasEnded());
}

TEST_F(WaitTest, TheEndOfTheProgramMakesItGiveUp) {
    HeldProgram program(host);
    QTimer::singleShot(0, [&] { application.Enter([&] { application.End(); }); });
    host.WaitForEnd(program.Get(), Never);
    EXPECT_TRUE(application.HasEnded());
    EXPECT_FALSE(program.Get().HasEnded());
}

TEST_F(WaitTest, AWaitWithinAWaitEndsFirst) {
    HeldProgram outer(host);
    HeldProgram inner(host);
    std::string order;
    QTimer::singleShot(0, [&] {
        outer.LetGo();
        QTimer::singleShot(0, [&] { inner.LetGo(); });
        host.WaitForEnd(inner.Get(), Never);
        order += "inner ";
    });
    host.WaitForEnd(outer.Get(), Never);
    order += "outer";
    EXPECT_EQ(order, "inner outer");
}

TEST_F(WaitTest, StatesAreShownBeforeItWaits) {
    HeldProgram program(host);
    QTimer::singleShot(0, [&] { program.LetGo(); });
    QString title;
    Do([&] {
        form.SetCaption("Working");
        host.WaitForEnd(program.Get(), [&] {
            title = WindowOf(form).windowTitle();
            return false;
        });
    });
    EXPECT_EQ(title, "Working");
}

TEST_F(WaitTest, AShortWaitShowsNothing) {
    HeldProgram program(host);
    int notices = 0;
    const NoticeWatcher watcher([&](QLabel&) { ++notices; });
    QTimer::singleShot(0, [&] {
        EXPECT_EQ(QApplication::overrideCursor(), nullptr);
        program.LetGo();
    });
    host.WaitForEnd(program.Get(), Never);
    EXPECT_EQ(notices, 0);
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
}

TEST_F(WaitTest, ALongWaitShowsACursorAndWhatIsWaitedFor) {
    HeldProgram program(host);
    QString text;
    Qt::CursorShape cursor = Qt::ArrowCursor;
    const NoticeWatcher watcher([&](QLabel& notice) {
        text = notice.text();
        EXPECT_EQ(notice.window(), &WindowOf(form));
        EXPECT_TRUE(notice.window()->rect().contains(notice.geometry()));
        if (const QCursor* shown = QApplication::overrideCursor()) cursor = shown->shape();
        program.LetGo();
    });
    host.WaitForEnd(program.Get(), Never);
    EXPECT_EQ(text, "Waiting for sh ...");
    EXPECT_EQ(cursor, Qt::WaitCursor);
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
    EXPECT_EQ(WindowOf(form).findChild<QLabel*>("waitNotice"), nullptr);
}

}  // namespace arbolith
