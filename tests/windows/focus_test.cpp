#include "window_test.h"

#include <QLineEdit>
#include <QTest>

namespace arbolith {

namespace {

struct FocusForm : Form {
    explicit FocusForm(Application& application, const char* name = "FocusForm")
        : Form(application, name, "Focus", {6000, 4000}) {
        for (Control* control : Controls()) {
            control->onGotFocus = [this, control] { events += "+" + control->Name() + " "; };
            control->onLostFocus = [this, control] { events += "-" + control->Name() + " "; };
        }
    }

    TextBox a{*this, "a", {240, 240, 2000, 375}};
    Label label{*this, "label", "&Label", {2500, 720, 2000, 375}};
    TextBox b{*this, "b", {240, 720, 2000, 375}};
    Frame frame{*this, "frame", "Frame", {240, 1200, 4000, 1500}};
    Button c{frame, "c", "C", {240, 480, 2000, 375}};
    Option d{frame, "d", "D", {240, 960, 2000, 375}};
    std::string events;
};

struct FocusTest : WindowTest {
    FocusTest() {
        Open(form);
        form.events.clear();
    }

    bool HasFocus(const Control& control) {
        return control.HasFocus() && WidgetOf<QWidget>(control).hasFocus();
    }

    FocusForm form{application};
};

}  // namespace

TEST_F(FocusTest, AFormsFirstControlHasItAtFirst) {
    EXPECT_TRUE(HasFocus(form.a));
}

TEST_F(FocusTest, TabFollowsTheOrderOfTheControls) {
    for (const Control* next : std::vector<Control*>{&form.b, &form.c, &form.d, &form.a}) {
        window_events::PressKey(Qt::Key_Tab);
        EXPECT_TRUE(HasFocus(*next)) << next->Name();
    }
    window_events::PressKey(Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_TRUE(HasFocus(form.d));
}

TEST_F(FocusTest, TabLeavesOutWhatIsHiddenOrDisabled) {
    Do([&] {
        form.b.SetVisible(false);
        form.c.SetEnabled(false);
    });
    window_events::PressKey(Qt::Key_Tab);
    EXPECT_TRUE(HasFocus(form.d));
}

TEST_F(FocusTest, AMoveRaisesTheEventsOfBothOnce) {
    window_events::PressKey(Qt::Key_Tab);
    EXPECT_EQ(form.events, "-a +b ");
}

TEST_F(FocusTest, AClickMovesItBeforeItsOwnEvent) {
    form.c.onClick = [this] { form.events += "click "; };
    driver->Click(form.c);
    EXPECT_EQ(form.events, "-a +c click ");
    EXPECT_TRUE(HasFocus(form.c));
}

TEST_F(FocusTest, TheProgramMovesIt) {
    Do([&] { application.SetFocus(form.d); });
    EXPECT_EQ(form.events, "-a +d ");
    EXPECT_TRUE(HasFocus(form.d));
}

TEST_F(FocusTest, AControlThatIsDisabledPassesItOn) {
    Do([&] { form.a.SetEnabled(false); });
    EXPECT_TRUE(HasFocus(form.b));
    EXPECT_EQ(form.events, "-a +b ");
}

TEST_F(FocusTest, AFrameThatIsHiddenPassesItOn) {
    driver->Focus(form.d);
    form.events.clear();
    Do([&] { form.frame.SetVisible(false); });
    EXPECT_TRUE(HasFocus(form.a));
    EXPECT_EQ(form.events, "-d +a ");
}

TEST_F(FocusTest, AControlHiddenAndShownInOneEventKeepsIt) {
    Do([&] {
        form.a.SetVisible(false);
        form.b.SetText("something else");
        form.a.SetVisible(true);
    });
    EXPECT_TRUE(HasFocus(form.a));
    EXPECT_EQ(form.events, "");
}

TEST_F(FocusTest, WithNothingLeftNoWidgetHasIt) {
    Do([&] {
        for (Control* control : form.Controls()) control->SetEnabled(false);
    });
    EXPECT_EQ(application.Focused(), nullptr);
    EXPECT_EQ(WindowOf(form).focusWidget(), nullptr);
}

TEST_F(FocusTest, AHandlerThatSendsItBackHasTheLastWord) {
    form.b.onGotFocus = [this] { application.SetFocus(form.d); };
    window_events::ClickAt(WidgetOf<QWidget>(form.b), {5, 5});
    EXPECT_TRUE(HasFocus(form.d));
}

TEST_F(FocusTest, ALabelsAccessKeyLeadsToTheFieldBehindIt) {
    window_events::PressKey(Qt::Key_L, Qt::AltModifier);
    EXPECT_TRUE(HasFocus(form.b));
    EXPECT_EQ(form.events, "-a +b ");
}

TEST_F(FocusTest, EachFormKeepsItsOwn) {
    FocusForm other(application, "OtherForm");
    driver->Focus(form.b);
    Open(other);
    EXPECT_TRUE(HasFocus(other.a));
    driver->Focus(other.c);
    driver->Focus(form.b);
    EXPECT_TRUE(HasFocus(form.b));
    EXPECT_EQ(other.events, "+a -a +c -c ");
}

TEST_F(FocusTest, AFieldWithoutItShowsNoSelection) {
    Do([&] { form.a.SetText("text"); });
    window_events::PressKey(Qt::Key_A, Qt::ControlModifier);
    driver->Focus(form.b);
    EXPECT_FALSE(WidgetOf<QLineEdit>(form.a).hasSelectedText());
    EXPECT_EQ(form.a.SelLength(), 4u);
}

}  // namespace arbolith
