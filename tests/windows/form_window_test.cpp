#include "qt/scale.h"
#include "window_test.h"

#include <QApplication>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QTest>
#include <QWindow>

namespace arbolith {

namespace {

struct PlainForm : Form {
    explicit PlainForm(Application& application, Size size = {6000, 4500})
        : Form(application, "PlainForm", "Plain", size) {
        onResize = [this] { ++resizes; };
        second.SetIndex(2);
    }

    Frame outer{*this, "outer", "Outer", {150, 300, 4500, 3000}};
    Frame inner{outer, "inner", "", {150, 450, 3000, 1500}};
    Label label{inner, "label", "&Age", {30, 45, 1500, 300}};
    TextBox field{inner, "field", {1500, 45, 1200, 375}};
    TextBox second{inner, "field", {1500, 600, 1200, 375}};
    Button button{*this, "button", "&Press", {150, 3600, 1500, 375}};
    int resizes = 0;
};

// Its button is too low for a line of any font at the told size.
struct LowForm : Form {
    explicit LowForm(Application& application) : Form(application, "Low", "Low", {9135, 7065}) {}
    Button button{*this, "button", "Low", {0, 0, 1500, 255}};
};

struct FormWindowTest : WindowTest {
    QPoint PlaceOf(const Control& control) {
        return WidgetOf<QWidget>(control).mapTo(WindowOf(form).InsideOf(form), QPoint());
    }

    PlainForm form{application};
};

}  // namespace

TEST_F(FormWindowTest, PlacesAreToldFromTheInsideOfTheFrame) {
    Open(form);
    EXPECT_EQ(PlaceOf(form.outer), QPoint(10, 20));
    EXPECT_EQ(PlaceOf(form.inner), QPoint(20, 50));
    EXPECT_EQ(PlaceOf(form.label), QPoint(22, 53));
    EXPECT_EQ(WidgetOf<QWidget>(form.inner).size(), QSize(200, 100));
}

TEST_F(FormWindowTest, WidgetsHaveTheControlsNames) {
    Open(form);
    const auto& window = WindowOf(form);
    EXPECT_EQ(window.objectName(), "PlainForm");
    EXPECT_EQ(window.findChild<QWidget*>("field"), &WidgetOf<QWidget>(form.field));
    EXPECT_EQ(window.findChild<QWidget*>("field(2)"), &WidgetOf<QWidget>(form.second));
}

TEST_F(FormWindowTest, AccessibleNamesAreTheCaptions) {
    Open(form);
    EXPECT_EQ(WidgetOf<QWidget>(form.button).accessibleName(), "Press");
    EXPECT_EQ(WidgetOf<QWidget>(form.field).accessibleName(), "Age");
    Do([&] { form.button.SetCaption("Other"); });
    EXPECT_EQ(WidgetOf<QWidget>(form.button).accessibleName(), "Other");
}

TEST_F(FormWindowTest, TheCaptionIsTheTitle) {
    Open(form);
    EXPECT_EQ(WindowOf(form).windowTitle(), "Plain");
    Do([&] { form.SetCaption("caf\xE9"); });
    EXPECT_EQ(WindowOf(form).windowTitle(), QString::fromUtf8("café"));
}

TEST_F(FormWindowTest, AFormWithoutACaptionHasNoFrame) {
    Form splash(application, "Splash", "", {3000, 3000});
    Open(splash);
    EXPECT_TRUE(WindowOf(splash).windowFlags() & Qt::FramelessWindowHint);
    Open(form);
    EXPECT_FALSE(WindowOf(form).windowFlags() & Qt::FramelessWindowHint);
}

TEST_F(FormWindowTest, TheFirstShowingHasTheToldSize) {
    Open(form);
    EXPECT_EQ(WindowOf(form).size(), QSize(400, 300));
    EXPECT_EQ(form.resizes, 1);
}

TEST_F(FormWindowTest, AFormLargerThanTheScreenIsMadeToFitAndTold) {
    PlainForm huge(application, {900'000, 900'000});
    Open(huge);
    const QSize screen = QApplication::primaryScreen()->availableSize();
    EXPECT_EQ(WindowOf(huge).width(), screen.width());
    EXPECT_LT(WindowOf(huge).height(), screen.height());
    EXPECT_GT(WindowOf(huge).height(), screen.height() * 9 / 10);
    window_events::Settle();
    EXPECT_EQ(huge.ClientSize().width, screen.width() * 15);
    EXPECT_EQ(huge.resizes, 2);
}

TEST_F(FormWindowTest, ThePersonsResizeReachesTheForm) {
    Open(form);
    WindowOf(form).resize(500, 350);
    EXPECT_EQ(form.ClientSize().width, 7500);
    EXPECT_EQ(form.ClientSize().height, 5250);
    EXPECT_EQ(form.resizes, 2);
}

TEST_F(FormWindowTest, TheProgramsResizeReachesTheWindowWithoutAnEcho) {
    Open(form);
    Do([&] { form.SetClientSize({7507, 5250}); });
    EXPECT_EQ(WindowOf(form).size(), QSize(500, 350));
    window_events::Settle();
    EXPECT_EQ(form.ClientSize().width, 7507);
    EXPECT_EQ(form.resizes, 2);
}

TEST_F(FormWindowTest, ARequestedSizeReachesTheFormExactly) {
    LowForm low(application);
    Open(low);
    for (int width = 9000; width < 9300; width += 15) {
        driver->Resize(low, {width, 7065});
        ASSERT_EQ(low.ClientSize().width, width);
        ASSERT_EQ(low.ClientSize().height, 7065);
    }
}

TEST_F(FormWindowTest, AFormIsScaledUpOnlyAsFarAsTheScreenGoes) {
    LowForm low(application);
    Open(low);
    window_events::Settle();
    EXPECT_LE(WindowOf(low).width(), QApplication::primaryScreen()->availableSize().width());
    EXPECT_GE(WindowOf(low).GetScale().Factor(), 1);
    EXPECT_EQ(low.ClientSize().width, 9135);
    EXPECT_EQ(low.ClientSize().height, 7065);
}

TEST_F(FormWindowTest, TheScaleStaysWhateverTheControlsGrowTo) {
    LowForm low(application);
    Open(low);
    const Scale before = WindowOf(low).GetScale();
    Do([&] {
        low.button.SetPlace({0, 0, 1500, 510});
        low.SetCaption("High");
    });
    EXPECT_EQ(WindowOf(low).GetScale(), before);
}

TEST_F(FormWindowTest, TheCloseBoxAsksTheForm) {
    Open(form);
    bool closed = false;
    form.onClose = [&] { closed = true; };
    driver->Close(form);
    EXPECT_TRUE(closed);
    EXPECT_TRUE(WindowOf(form).isVisible());
    form.onClose = nullptr;
    driver->Close(form);
    EXPECT_FALSE(form.Visible());
    EXPECT_FALSE(WindowOf(form).isVisible());
}

TEST_F(FormWindowTest, TheHourglassIsTheWaitCursor) {
    Open(form);
    Do([&] { form.SetPointer(MousePointer::kHourglass); });
    EXPECT_EQ(WindowOf(form).cursor().shape(), Qt::WaitCursor);
    Do([&] { form.SetPointer(MousePointer::kDefault); });
    EXPECT_EQ(WindowOf(form).cursor().shape(), Qt::ArrowCursor);
}

TEST_F(FormWindowTest, MaximisingGoesBothWays) {
    Open(form);
    Do([&] { form.SetState(WindowState::kMaximised); });
    EXPECT_TRUE(WindowOf(form).isMaximized());
    EXPECT_TRUE(QTest::qWaitFor([&] { return form.ClientSize().width > 6000; }));
    EXPECT_EQ(form.ClientSize().width, WindowOf(form).width() * 15);
    WindowOf(form).showNormal();
    EXPECT_TRUE(QTest::qWaitFor([&] { return form.ClientSize().width == 6000; }));
    EXPECT_EQ(form.State(), WindowState::kNormal);
}

TEST_F(FormWindowTest, AMaximisedFormHas15TwipsToThePixel) {
    struct Low : Form {
        explicit Low(Application& application) : Form(application, "Low", "Low", {6000, 4500}) {}
        Button button{*this, "button", "Low", {1500, 1500, 1500, 255}};
    } low(application);
    Open(low);
    const int scaled = WidgetOf<QWidget>(low.button).x();
    EXPECT_GT(scaled, 100);
    Do([&] { low.SetState(WindowState::kMaximised); });
    EXPECT_EQ(WidgetOf<QWidget>(low.button).x(), 100);
    EXPECT_TRUE(
        QTest::qWaitFor([&] { return low.ClientSize().width == WindowOf(low).width() * 15; }));
    Do([&] {
        low.SetState(WindowState::kNormal);
        low.SetClientSize({6000, 4500});
    });
    window_events::Settle();
    EXPECT_EQ(low.ClientSize().width, 6000);
    EXPECT_EQ(WidgetOf<QWidget>(low.button).x(), scaled);
    EXPECT_NEAR(WindowOf(low).width(), scaled * 4, 3);
}

TEST_F(FormWindowTest, ATopmostFormKeepsItsWindowOnTop) {
    const auto isOnTop = [&] {
        return WindowOf(form).windowHandle()->flags().testFlag(Qt::WindowStaysOnTopHint);
    };
    form.SetTopmost(true);
    Open(form);
    EXPECT_TRUE(isOnTop());
    Do([&] { form.SetTopmost(false); });
    EXPECT_FALSE(isOnTop());
    Do([&] { form.SetTopmost(true); });
    EXPECT_TRUE(isOnTop());
    EXPECT_TRUE(WindowOf(form).isVisible());
}

TEST_F(FormWindowTest, ThePlaceOnTheScreenIsTold) {
    form.SetPlace({3000, 1500, 6000, 4500});
    Open(form);
    EXPECT_EQ(WindowOf(form).pos(), QPoint(200, 100));
}

TEST_F(FormWindowTest, ALargerWindowKeepsTheMiddleOfTheToldPlace) {
    struct Low : Form {
        explicit Low(Application& application) : Form(application, "Low", "Low", {6000, 4500}) {}
        Button button{*this, "button", "Low", {0, 0, 1500, 255}};
    } low(application);
    low.SetPlace({7500, 7500, 6000, 4500});
    Open(low);
    const QPoint middle = QRect(WindowOf(low).pos(), WindowOf(low).size()).center();
    EXPECT_NEAR(middle.x(), 500 + 200, 1);
    EXPECT_NEAR(middle.y(), 500 + 150, 1);
    EXPECT_GT(WindowOf(low).width(), 400);
}

TEST_F(FormWindowTest, AHiddenControlIsHiddenAndADisabledOneDisabled) {
    Open(form);
    Do([&] {
        form.label.SetVisible(false);
        form.outer.SetEnabled(false);
    });
    EXPECT_FALSE(WidgetOf<QWidget>(form.label).isVisible());
    EXPECT_FALSE(WidgetOf<QWidget>(form.field).isEnabled());
    EXPECT_EQ(driver->Shown(form.field, "Enabled"), "true");
    EXPECT_EQ(driver->Shown(form.outer, "Enabled"), "false");
    EXPECT_EQ(driver->Shown(form.label, "Visible"), "false");
}

TEST_F(FormWindowTest, LabelsAndFramesTakeClicks) {
    Open(form);
    std::string clicks;
    form.label.onClick = [&] { clicks += "label "; };
    form.outer.onClick = [&] { clicks += "outer "; };
    driver->Click(form.label);
    driver->Click(form.outer);
    EXPECT_EQ(clicks, "label outer ");
    form.label.onClick = nullptr;
    window_events::ClickAt(WidgetOf<QWidget>(form.label), {5, 5});
    EXPECT_EQ(clicks, "label outer outer ");
}

TEST_F(FormWindowTest, ACoveredWidgetCanNotBeClicked) {
    struct Covered : Form {
        explicit Covered(Application& application)
            : Form(application, "Covered", "Covered", {3000, 3000}) {}
        Button below{*this, "below", "Below", {0, 0, 1500, 375}};
        Frame above{*this, "above", "", {0, 0, 3000, 3000}};
    } covered(application);
    Open(covered);
    EXPECT_THROW(driver->Click(covered.below), ActionRefused);
}

TEST_F(FormWindowTest, AWindowEndsQuietlyWithItsForm) {
    {
        PlainForm lost(application);
        Open(lost);
        driver->Type(lost.field, "text");
        EXPECT_EQ(windows.OpenWindows().size(), 1u);
    }
    Do([] {});
    window_events::Settle();
    EXPECT_TRUE(windows.OpenWindows().empty());
    EXPECT_EQ(QApplication::topLevelWidgets().size(), 0);
}

TEST_F(FormWindowTest, AFormMayBeUnloadedByItsOwnClick) {
    auto lost = std::make_unique<PlainForm>(application);
    Open(*lost);
    // The widget is still in the middle of its own click when the form has gone.
    QObject::connect(&WidgetOf<QPushButton>(lost->button), &QPushButton::clicked, [&] {
        lost.reset();
        Do([] {});
    });
    QTest::mouseClick(&WidgetOf<QPushButton>(lost->button), Qt::LeftButton);
    window_events::Settle();
    EXPECT_TRUE(windows.OpenWindows().empty());
    EXPECT_EQ(QApplication::topLevelWidgets().size(), 0);
}

}  // namespace arbolith
