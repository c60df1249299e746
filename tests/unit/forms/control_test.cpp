#include "forms/control.h"

#include "forms/grid.h"
#include "unit/forms/forms_test.h"

namespace arbolith {

using ControlTest = FormsTest;

TEST_F(ControlTest, KnowsItsNameFrameAndForm) {
    Frame frame(form, "fra", "Frame", {100, 200, 3000, 2000});
    const Button button(frame, "btn", "&Press", {10, 20, 900, 375});
    EXPECT_EQ(button.Name(), "btn");
    EXPECT_EQ(button.Caption(), "&Press");
    EXPECT_EQ(&button.Parent(), &frame);
    EXPECT_EQ(&button.Owner(), &form);
    EXPECT_EQ(button.GetPlace(), (Place{10, 20, 900, 375}));
    EXPECT_EQ(button.Index(), -1);
    EXPECT_EQ(&form.Parent(), &form);
}

TEST_F(ControlTest, StartsVisibleEnabledAndInTheColourOfButtons) {
    const Button button(form, "btn");
    EXPECT_TRUE(button.Visible());
    EXPECT_TRUE(button.Enabled());
    EXPECT_EQ(button.BackColor(), kButtonFace);
    EXPECT_FALSE(form.Visible());
}

TEST_F(ControlTest, ShowsOnlyWithEveryFrameAroundItAndItsForm) {
    Frame outer(form, "outer");
    Frame inner(outer, "inner");
    const Button button(inner, "btn");
    EXPECT_FALSE(button.Showing());
    form.Show();
    EXPECT_TRUE(button.Showing());
    outer.SetVisible(false);
    EXPECT_FALSE(button.Showing());
    EXPECT_TRUE(button.Visible());
    EXPECT_TRUE(inner.Visible());
    outer.SetVisible(true);
    form.Hide();
    EXPECT_FALSE(button.Showing());
}

TEST_F(ControlTest, IsUsableOnlyWithEveryFrameAroundItEnabled) {
    Frame frame(form, "fra");
    Button button(frame, "btn");
    form.Show();
    EXPECT_TRUE(button.Usable());
    frame.SetEnabled(false);
    EXPECT_FALSE(button.Usable());
    EXPECT_TRUE(button.Enabled());
    frame.SetEnabled(true);
    button.SetEnabled(false);
    EXPECT_FALSE(button.Usable());
    EXPECT_TRUE(button.Showing());
}

TEST_F(ControlTest, TakesFocusByItsKind) {
    EXPECT_TRUE(Button(form, "c").TakesFocus());
    EXPECT_TRUE(Option(form, "c").TakesFocus());
    EXPECT_TRUE(CheckBox(form, "c").TakesFocus());
    EXPECT_TRUE(TextBox(form, "c").TakesFocus());
    EXPECT_TRUE(ListBox(form, "c").TakesFocus());
    EXPECT_TRUE(ComboBox(form, "c").TakesFocus());
    EXPECT_TRUE(Grid(form, "c", {}).TakesFocus());
    EXPECT_FALSE(Label(form, "c").TakesFocus());
    EXPECT_FALSE(Frame(form, "c").TakesFocus());
    EXPECT_FALSE(MenuItem(form, "c", "&C").TakesFocus());
    EXPECT_FALSE(Timer(form, "c", 1).TakesFocus());
    EXPECT_FALSE(ProgressBar(form, "c", {}, 1).TakesFocus());
}

TEST_F(ControlTest, TellsTheViewsOfEachChangedControlOnce) {
    Button button(form, "btn", "one");
    Button other(form, "other");
    application.TakeTouched();
    button.SetCaption("two");
    button.SetEnabled(false);
    EXPECT_TRUE(application.HasTouched());
    EXPECT_EQ(application.TakeTouched(), (std::vector<Control*>{&button}));
    EXPECT_FALSE(application.HasTouched());
    button.SetBackColor(0xFFFF00);
    EXPECT_EQ(application.TakeTouched(), (std::vector<Control*>{&button}));
}

TEST_F(ControlTest, TellsTheViewsNothingWhenNothingChanges) {
    Button button(form, "btn", "one", {1, 2, 3, 4});
    application.TakeTouched();
    button.SetCaption("one");
    button.SetVisible(true);
    button.SetEnabled(true);
    button.SetBackColor(kButtonFace);
    button.SetPlace({1, 2, 3, 4});
    EXPECT_FALSE(application.HasTouched());
}

TEST_F(ControlTest, KeepsItsTag) {
    Button button(form, "btn");
    button.SetTag("6000");
    EXPECT_EQ(button.Tag(), "6000");
}

TEST_F(ControlTest, RaisesNoHandlerThatIsNotThere) {
    const Button button(form, "btn");
    button.Raise(button.onClick);
    EXPECT_TRUE(log.empty());
}

TEST_F(ControlTest, RaisesNothingWhileEventsAreHeldBack) {
    Button button(form, "btn");
    button.onClick = Note("click");
    {
        const HeldBackEvents outer(application);
        {
            const HeldBackEvents inner(application);
            button.Raise(button.onClick);
        }
        button.Raise(button.onClick);
        EXPECT_TRUE(application.EventsHeldBack());
    }
    EXPECT_TRUE(log.empty());
    button.Raise(button.onClick);
    EXPECT_EQ(log, (Log{"click"}));
}

}  // namespace arbolith
