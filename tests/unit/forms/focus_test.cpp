// Where the focus goes, and the events on its way.
#include "platform/runtime_error.h"
#include "unit/forms/forms_test.h"

namespace arbolith {

class FocusTest : public FormsTest {
protected:
    void SetUp() override {
        form.Show();
        for (Control* control : {static_cast<Control*>(&one), static_cast<Control*>(&two),
                                 static_cast<Control*>(&three)})
            NoteFocus(*control);
    }

    Frame frame{form, "frame"};
    TextBox one{frame, "one"};
    TextBox two{frame, "two"};
    Button three{form, "three"};
    Label label{form, "label"};
};

TEST_F(FocusTest, IsLostBeforeItIsGot) {
    application.SetFocus(one);
    TakeLog();
    application.SetFocus(two);
    EXPECT_EQ(log, (Log{"one lost", "two got"}));
    EXPECT_TRUE(two.HasFocus());
    EXPECT_FALSE(one.HasFocus());
}

TEST_F(FocusTest, HasMovedWhenTheLostEventIsRaised) {
    application.SetFocus(one);
    one.onLostFocus = [this] { log.push_back(application.Focused()->Name()); };
    TakeLog();
    application.SetFocus(two);
    EXPECT_EQ(log, (Log{"two", "two got"}));
}

TEST_F(FocusTest, StaysWithoutAnEventWhereItIs) {
    application.SetFocus(one);
    TakeLog();
    application.SetFocus(one);
    EXPECT_EQ(log, Log{});
}

TEST_F(FocusTest, DoesNotMoveToWhatIsHiddenOrDisabledOrTakesNone) {
    application.SetFocus(one);
    TakeLog();
    two.SetVisible(false);
    application.SetFocus(two);
    two.SetVisible(true);
    two.SetEnabled(false);
    application.SetFocus(two);
    application.SetFocus(label);
    EXPECT_EQ(log, Log{});
    EXPECT_TRUE(one.HasFocus());
}

TEST_F(FocusTest, DoesNotMoveIntoAHiddenFrame) {
    application.SetFocus(three);
    TakeLog();
    frame.SetVisible(false);
    application.SetFocus(one);
    EXPECT_EQ(log, Log{});
    EXPECT_TRUE(three.HasFocus());
}

TEST_F(FocusTest, GoesWhereALostHandlerSendsIt) {
    application.SetFocus(one);
    one.onLostFocus = [this] { application.SetFocus(three); };
    TakeLog();
    application.SetFocus(two);
    EXPECT_TRUE(three.HasFocus());
    EXPECT_EQ(log, (Log{"two lost", "three got"}));
}

TEST_F(FocusTest, SelectsTheWholeTextWhereTheFieldSaysSo) {
    one.SetText("123");
    two.SetText("456");
    two.SetSelectsAllOnFocus(true);
    application.SetFocus(one);
    EXPECT_EQ(one.SelLength(), 0U);
    two.onGotFocus = [this] { log.push_back(std::to_string(two.SelLength())); };
    TakeLog();
    application.SetFocus(two);
    EXPECT_EQ(log, (Log{"one lost", "3"}));
}

TEST_F(FocusTest, RunsThroughTheTabOrderRoundTheEnds) {
    EXPECT_EQ(Application::NextInTabOrder(one, true), &two);
    EXPECT_EQ(Application::NextInTabOrder(two, true), &three);
    EXPECT_EQ(Application::NextInTabOrder(three, true), &one);
    EXPECT_EQ(Application::NextInTabOrder(one, false), &three);
    two.SetEnabled(false);
    EXPECT_EQ(Application::NextInTabOrder(one, true), &three);
    EXPECT_EQ(Application::FirstInTabOrder(form), &one);
    frame.SetVisible(false);
    EXPECT_EQ(Application::FirstInTabOrder(form), &three);
    EXPECT_EQ(Application::NextInTabOrder(three, true), nullptr);
    three.SetVisible(false);
    EXPECT_EQ(Application::FirstInTabOrder(form), nullptr);
}

TEST_F(FocusTest, StopsOnlyAtTheOptionThatIsOn) {
    Frame group(form, "group");
    Option off(group, "off");
    Option on(group, "on");
    Option alsoOff(group, "alsoOff");
    on.SetValue(true);
    EXPECT_EQ(Application::NextInTabOrder(three, true), &on);
    EXPECT_EQ(Application::NextInTabOrder(on, true), &one) << "past the options that are off";
    EXPECT_EQ(Application::NextInTabOrder(one, false), &on);
    on.SetValue(false);
    EXPECT_EQ(Application::NextInTabOrder(three, true), &off) << "none is on";
    EXPECT_EQ(Application::NextInTabOrder(off, true), &one);
    off.SetValue(true);
    off.SetEnabled(false);
    EXPECT_EQ(Application::NextInTabOrder(three, true), &on) << "the one that is on can't be used";
}

TEST_F(FocusTest, PassesOnFromAControlThatAnEventDisables) {
    application.SetFocus(one);
    TakeLog();
    application.Enter([this] {
        one.SetEnabled(false);
        log.push_back("event ends");
    });
    EXPECT_EQ(log, (Log{"event ends", "one lost", "two got"}));
}

TEST_F(FocusTest, PassesOnFromAFrameThatAnEventHides) {
    application.SetFocus(two);
    TakeLog();
    application.Enter([this] { frame.SetVisible(false); });
    EXPECT_EQ(log, (Log{"two lost", "three got"}));
}

TEST_F(FocusTest, IsNowhereWhenNothingIsLeftToTakeIt) {
    application.SetFocus(one);
    TakeLog();
    application.Enter([this] {
        frame.SetVisible(false);
        three.SetEnabled(false);
    });
    EXPECT_EQ(log, (Log{"one lost"}));
    EXPECT_EQ(application.Focused(), nullptr);
}

TEST_F(FocusTest, SettlesAlsoBehindAnEventThatFails) {
    application.SetFocus(one);
    TakeLog();
    application.Enter([this] {
        one.SetEnabled(false);
        throw RuntimeError(ErrorNumber::kOverflow);
    });
    EXPECT_EQ(log, (Log{"one lost", "two got"}));
    EXPECT_EQ(host.boxes.size(), 1U);
}

TEST_F(FocusTest, WaitsInAFormUntilThatIsActive) {
    Form other(application, "Other", "", {1000, 1000});
    TextBox first(other, "first");
    TextBox second(other, "second");
    NoteFocus(first);
    NoteFocus(second);
    other.onActivate = Note("Other activate");
    application.SetFocus(one);
    TakeLog();
    other.SetVisible(true);
    application.SetFocus(second);
    EXPECT_EQ(log, Log{});
    EXPECT_TRUE(one.HasFocus());
    application.Activate(other);
    EXPECT_EQ(log, (Log{"one lost", "Other activate", "second got"}));
    EXPECT_TRUE(second.HasFocus());
}

TEST_F(FocusTest, GoesToTheFirstControlOfAFormThatIsShown) {
    Form other(application, "Other", "", {1000, 1000});
    TextBox first(other, "first");
    NoteFocus(first);
    other.onResize = Note("resize");
    other.onActivate = Note("activate");
    application.SetFocus(one);
    TakeLog();
    other.Show();
    EXPECT_EQ(log, (Log{"resize", "one lost", "activate", "first got"}));
}

TEST_F(FocusTest, ComesBackWhenTheActiveFormHides) {
    Form other(application, "Other", "", {1000, 1000});
    TextBox first(other, "first");
    NoteFocus(first);
    application.SetFocus(two);
    other.Show();
    form.onActivate = Note("form activate");
    TakeLog();
    other.Hide();
    EXPECT_EQ(log, (Log{"first lost", "form activate", "two got"}));
    EXPECT_EQ(application.ActiveForm(), &form);
}

TEST_F(FocusTest, StaysWhenAFormHidesThatIsNotTheActiveOne) {
    Form other(application, "Other", "", {1000, 1000});
    application.SetFocus(two);
    other.Show();
    application.Activate(form);
    TakeLog();
    other.Hide();
    EXPECT_EQ(log, Log{});
    EXPECT_TRUE(two.HasFocus());
}

TEST_F(FocusTest, ComesBackToTheFormThatWasActiveBeforeTheLast) {
    Form second(application, "Second", "", {1000, 1000});
    Form third(application, "Third", "", {1000, 1000});
    second.Show();
    third.Show();
    second.Hide();
    third.Hide();
    EXPECT_EQ(application.ActiveForm(), &form);
}

TEST_F(FocusTest, IsNowhereWhenNoFormIsLeft) {
    application.SetFocus(one);
    TakeLog();
    form.Hide();
    EXPECT_EQ(log, (Log{"one lost"}));
    EXPECT_EQ(application.Focused(), nullptr);
    EXPECT_EQ(application.ActiveForm(), nullptr);
}

TEST_F(FocusTest, DoesNotFollowToAFormThatIsHidden) {
    Form other(application, "Other", "", {1000, 1000});
    application.SetFocus(one);
    application.Activate(other);
    EXPECT_EQ(application.ActiveForm(), &form);
    EXPECT_TRUE(one.HasFocus());
}

}  // namespace arbolith
