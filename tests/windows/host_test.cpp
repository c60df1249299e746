#include "platform/runtime_error.h"
#include "window_test.h"

#include <QAbstractButton>
#include <QApplication>
#include <QClipboard>
#include <QLabel>
#include <QMessageBox>
#include <QScreen>
#include <QTest>
#include <QTimer>

#include <functional>

namespace arbolith {

namespace {

struct HostTest : testing::Test {
    HostTest() { host.SetWindows(&windows); }
    ~HostTest() override { host.SetWindows(nullptr); }

    void Open() {
        application.Enter([&] { form.Show(); });
        window_events::ActivateWindowOf(*windows.WindowOf(form));
    }

    // Shows a box and does something with it as soon as it is up.
    bool ShowBox(const Box& box, const std::function<void(QMessageBox&)>& act) {
        QTimer::singleShot(0, [act] {
            auto* shown = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            ASSERT_NE(shown, nullptr);
            act(*shown);
            if (shown->isVisible()) shown->reject();
        });
        return host.ShowBox(box);
    }

    static void Press(QMessageBox& box, Qt::Key key) { QTest::keyClick(&box, key); }

    QtHost host;
    Application application{host, "/tmp", ""};
    WindowManager windows{application};
    Form form{application, "Form", "Form", {3000, 3000}};
};

}  // namespace

TEST_F(HostTest, ABoxShowsWhatItIsTold) {
    ShowBox({"First <b>line</b>\nm\xB2", "Input Error", BoxIcon::kExclamation, BoxButtons::kOk},
            [](QMessageBox& box) {
                EXPECT_EQ(box.text(), QString::fromUtf8("First <b>line</b>\nm²"));
                EXPECT_EQ(box.textFormat(), Qt::PlainText);
                EXPECT_EQ(box.windowTitle(), "Input Error");
                EXPECT_EQ(box.icon(), QMessageBox::Warning);
                EXPECT_EQ(box.standardButtons(), QMessageBox::Ok);
            });
    ShowBox({"Stop", "", BoxIcon::kStop, BoxButtons::kOk},
            [](QMessageBox& box) { EXPECT_EQ(box.icon(), QMessageBox::Critical); });
    ShowBox({"Plain", "", BoxIcon::kNone, BoxButtons::kOk},
            [](QMessageBox& box) { EXPECT_EQ(box.icon(), QMessageBox::NoIcon); });
}

TEST_F(HostTest, AQuestionIsYesOrNo) {
    const Box question{"Save?", "", BoxIcon::kNone, BoxButtons::kYesNo};
    EXPECT_TRUE(ShowBox(question, [](QMessageBox& box) { box.button(QMessageBox::Yes)->click(); }));
    EXPECT_FALSE(ShowBox(question, [](QMessageBox& box) { box.button(QMessageBox::No)->click(); }));
    EXPECT_TRUE(ShowBox(question, [](QMessageBox& box) { Press(box, Qt::Key_Return); }));
}

TEST_F(HostTest, EscapeAnswersAQuestionWithNo) {
    const Box question{"Save?", "", BoxIcon::kNone, BoxButtons::kYesNo};
    EXPECT_FALSE(ShowBox(question, [](QMessageBox& box) { Press(box, Qt::Key_Escape); }));
}

TEST_F(HostTest, ABoxComesOverStatesAsTheyStand) {
    Label label(form, "label", "before", {0, 0, 1500, 300});
    Open();
    application.Enter([&] {
        label.SetCaption("after");
        ShowBox({"Box", "", BoxIcon::kNone, BoxButtons::kOk}, [&](QMessageBox& box) {
            EXPECT_EQ(windows.WindowOf(form)->findChild<QLabel*>("label")->text(), "after");
            EXPECT_EQ(box.parentWidget(), windows.WindowOf(form));
        });
    });
}

TEST_F(HostTest, ABoxComesOverWindowsThatStayOnTop) {
    Open();
    const auto isOnTop = [&] {
        bool onTop = false;
        ShowBox({"Box", "", BoxIcon::kNone, BoxButtons::kOk}, [&](QMessageBox& box) {
            onTop = box.windowFlags().testFlag(Qt::WindowStaysOnTopHint);
        });
        return onTop;
    };
    EXPECT_FALSE(isOnTop());
    application.Enter([&] { form.SetTopmost(true); });
    EXPECT_TRUE(isOnTop());
}

TEST_F(HostTest, ABoxShowsAPathAsItsFileIsCalled) {
    ShowBox(
        {"Saved /home/\xC3\xA9t\xC3\xA9.txt", "", BoxIcon::kNone, BoxButtons::kOk},
        [](QMessageBox& box) { EXPECT_EQ(box.text(), QString::fromUtf8("Saved /home/été.txt")); });
}

TEST_F(HostTest, ClosingABoxRaisesNoActivate) {
    Open();
    int activations = 0;
    form.onActivate = [&] { ++activations; };
    application.Enter([&] {
        ShowBox({"Box", "", BoxIcon::kNone, BoxButtons::kOk}, [](QMessageBox&) {});
    });
    window_events::Settle();
    // The platform in memory gives a window the focus back only when it is asked to.
    if (QGuiApplication::platformName() == "offscreen") windows.WindowOf(form)->activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(windows.WindowOf(form)));
    window_events::Settle();
    EXPECT_EQ(activations, 0);
}

TEST_F(HostTest, TheClipboardHoldsTextOfTheCodePage) {
    host.SetClipboardText("m\xB3/ha\ttab\rnext");
    EXPECT_EQ(QApplication::clipboard()->text(), QString::fromUtf8("m³/ha\ttab\rnext"));
    QApplication::clipboard()->setText(QString::fromUtf8("€→"));
    EXPECT_EQ(host.ClipboardText(), "\x80?");
}

TEST_F(HostTest, WithoutAPrinterPrintingIsAnError) {
    try {
        host.Print(BlankDrawing({1500, 1500}));
        FAIL() << "it was printed";
    } catch (const RuntimeError& error) {
        EXPECT_EQ(error.Number(), ErrorNumber::kPrinter);
    }
}

TEST_F(HostTest, TheScreenIsToldInTwips) {
    const QSize pixels = QApplication::primaryScreen()->size();
    EXPECT_EQ(host.ScreenSize().width, pixels.width() * 15);
    EXPECT_EQ(host.ScreenSize().height, pixels.height() * 15);
}

TEST_F(HostTest, TheEndAsksNoWindow) {
    Open();
    bool asked = false;
    form.onClose = [&] { asked = true; };
    QTimer::singleShot(0, [&] { application.Enter([&] { application.End(); }); });
    EXPECT_EQ(QApplication::exec(), 0);
    EXPECT_FALSE(asked);
    EXPECT_FALSE(windows.WindowOf(form)->isVisible());
}

}  // namespace arbolith
