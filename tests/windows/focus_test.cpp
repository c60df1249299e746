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

// A form with each kind of control that takes the focus, two of each, so that one is without it.
struct KindsForm : Form {
    explicit KindsForm(Application& application)
        : Form(application, "KindsForm", "Kinds", {12000, 9000}) {
        for (ListBox* list : {&lists[0], &lists[1]}) list->AddItem("row");
        for (Button* button : {&marked[0], &marked[1]}) button->SetMarked(true);
    }

    static constexpr Place PlaceOf(int column, int row) {
        return {240 + column * 3000, 240 + row * 900, 2400, 600};
    }
    TextBox first{*this, "first", {9000, 240, 1500, 375}};
    TextBox fields[2]{{*this, "field0", PlaceOf(0, 0)}, {*this, "field1", PlaceOf(1, 0)}};
    Button buttons[2]{{*this, "button0", "Run", PlaceOf(0, 1)},
                      {*this, "button1", "Run", PlaceOf(1, 1)}};
    Button marked[2]{{*this, "marked0", "1", PlaceOf(0, 2)},
                     {*this, "marked1", "1", PlaceOf(1, 2)}};
    Option options[2]{{*this, "option0", "Age", PlaceOf(0, 3)},
                      {*this, "option1", "Age", PlaceOf(1, 3)}};
    CheckBox boxes[2]{{*this, "box0", "Grid", PlaceOf(0, 4)},
                      {*this, "box1", "Grid", PlaceOf(1, 4)}};
    ListBox lists[2]{{*this, "list0", PlaceOf(0, 5)}, {*this, "list1", PlaceOf(1, 5)}};
    ComboBox combos[2]{{*this, "combo0", PlaceOf(0, 6)}, {*this, "combo1", PlaceOf(1, 6)}};
    Grid grids[2]{{*this, "grid0", PlaceOf(0, 7)}, {*this, "grid1", PlaceOf(1, 7)}};
    Label links[2]{{*this, "link0", "More", PlaceOf(0, 8), {.link = true}},
                   {*this, "link1", "More", PlaceOf(1, 8), {.link = true}}};
    Label labels[2]{{*this, "label0", "Accept", PlaceOf(2, 8), {.bordered = true}},
                    {*this, "label1", "Accept", PlaceOf(2, 7), {.bordered = true}}};
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

TEST_F(FocusTest, ItIsSeenOnEveryKindOfControl) {
    constexpr int kSeenPixels = 60;
    KindsForm kinds(application);
    Open(kinds);
    const auto expectSeen = [&](Control& control, const Control& other) {
        Do([&] { application.SetFocus(control); });
        ASSERT_TRUE(HasFocus(control)) << control.Name();
        const QImage with = WidgetOf<QWidget>(control).grab().toImage();
        const QImage without = WidgetOf<QWidget>(other).grab().toImage();
        ASSERT_EQ(with.size(), without.size());
        int differing = 0;
        for (int y = 0; y < with.height(); ++y)
            for (int x = 0; x < with.width(); ++x)
                differing += with.pixel(x, y) != without.pixel(x, y);
        EXPECT_GE(differing, kSeenPixels) << control.Name();
    };
    expectSeen(kinds.fields[0], kinds.fields[1]);
    expectSeen(kinds.buttons[0], kinds.buttons[1]);
    expectSeen(kinds.marked[0], kinds.marked[1]);
    expectSeen(kinds.options[0], kinds.options[1]);
    expectSeen(kinds.boxes[0], kinds.boxes[1]);
    expectSeen(kinds.lists[0], kinds.lists[1]);
    expectSeen(kinds.combos[0], kinds.combos[1]);
    expectSeen(kinds.grids[0], kinds.grids[1]);
    expectSeen(kinds.links[0], kinds.links[1]);
    expectSeen(kinds.labels[0], kinds.labels[1]);
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
