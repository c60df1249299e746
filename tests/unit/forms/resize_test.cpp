#include "forms/resize.h"

#include "unit/forms/forms_test.h"

namespace arbolith {

class ResizeTest : public FormsTest {
protected:
    void SetUp() override { form.SetClientSize({10000, 5000}); }

    /// Gives the client area a share of its base, then resizes.
    void ResizeTo(double widthShare, double heightShare) {
        form.SetClientSize(
            {static_cast<int>(10000 * widthShare), static_cast<int>(5000 * heightShare)});
        resize.ResizeForm(form);
    }

    Resize resize;
    Button button{form, "btn", "", {1000, 600, 2000, 400}};
};

TEST_F(ResizeTest, MovesNothingAtTheFirstResize) {
    resize.ResizeForm(form);
    EXPECT_EQ(button.GetPlace(), (Place{1000, 600, 2000, 400}));
}

TEST_F(ResizeTest, ScalesPlacesByTheRatioToTheFirstResize) {
    resize.ResizeForm(form);
    ResizeTo(1.5, 2);
    EXPECT_EQ(button.GetPlace(), (Place{1500, 1200, 3000, 800}));
    ResizeTo(1, 1);
    EXPECT_EQ(button.GetPlace(), (Place{1000, 600, 2000, 400}));
    ResizeTo(0.5, 0.25);
    EXPECT_EQ(button.GetPlace(), (Place{500, 150, 1000, 100}));
}

TEST_F(ResizeTest, MovesInStepsOfAWholePercentRoundedDown) {
    resize.ResizeForm(form);
    ResizeTo(1.009, 1.009);
    EXPECT_EQ(button.GetPlace(), (Place{1000, 600, 2000, 400}));
    ResizeTo(1.0199, 1);
    EXPECT_EQ(button.GetPlace(), (Place{1010, 600, 2020, 400}));
    ResizeTo(0.999, 1);
    EXPECT_EQ(button.GetPlace(), (Place{990, 600, 1980, 400}));
}

TEST_F(ResizeTest, CutsPlacesToWholeTwips) {
    button.SetPlace({7, 3, 5, 9});
    resize.ResizeForm(form);
    ResizeTo(1.5, 1.5);
    EXPECT_EQ(button.GetPlace(), (Place{10, 4, 7, 13}));
}

TEST_F(ResizeTest, KeepsControlsFarToTheLeftOutOfSight) {
    button.SetPlace({-74800, 600, 2000, 400});
    resize.ResizeForm(form);
    EXPECT_EQ(button.GetPlace().left, -74800);
    ResizeTo(1.5, 1);
    EXPECT_EQ(button.GetPlace().left, -74700);
    ResizeTo(3, 1);
    EXPECT_EQ(button.GetPlace().left, -74400);
    ResizeTo(1, 1);
    EXPECT_EQ(button.GetPlace().left, -74800);
}

TEST_F(ResizeTest, OverwritesWhatWasMovedSinceTheLastResize) {
    resize.ResizeForm(form);
    button.SetPlace({1, 2, 3, 4});
    ResizeTo(2, 1);
    EXPECT_EQ(button.GetPlace(), (Place{2000, 600, 4000, 400}));
}

TEST_F(ResizeTest, TakesTheLayoutOfTheFirstShowingForItsBase) {
    form.onResize = [&] { resize.ResizeForm(form); };
    button.SetPlace({2000, 600, 2000, 400});
    form.Show();
    button.SetPlace({0, 0, 10, 10});
    form.SetClientSize({20000, 10000});
    EXPECT_EQ(button.GetPlace(), (Place{4000, 1200, 4000, 800}));
}

TEST_F(ResizeTest, TakesTheBaseOfALaterControlFromItsFirstResize) {
    resize.ResizeForm(form);
    Button late(form, "late", "", {100, 100, 100, 100});
    ResizeTo(2, 2);
    EXPECT_EQ(late.GetPlace(), (Place{200, 200, 200, 200}));
}

TEST_F(ResizeTest, TellsMembersOfAControlArrayApart) {
    CheckBox zero(form, "cb", "", {100, 0, 10, 10});
    CheckBox one(form, "cb", "", {200, 0, 10, 10});
    zero.SetIndex(0);
    one.SetIndex(1);
    resize.ResizeForm(form);
    ResizeTo(2, 1);
    EXPECT_EQ(zero.GetPlace().left, 200);
    EXPECT_EQ(one.GetPlace().left, 400);
}

TEST_F(ResizeTest, TellsControlsOfTwoFormsApart) {
    Form other(application, "Other", "", {1000, 1000});
    Button same(other, "btn", "", {10, 10, 10, 10});
    resize.ResizeForm(form);
    resize.ResizeForm(other);
    ResizeTo(2, 2);
    EXPECT_EQ(same.GetPlace(), (Place{10, 10, 10, 10}));
    other.SetClientSize({3000, 1000});
    resize.ResizeForm(other);
    EXPECT_EQ(same.GetPlace(), (Place{30, 10, 30, 10}));
    EXPECT_EQ(button.GetPlace().left, 2000);
}

TEST_F(ResizeTest, ScalesControlsInsideFrames) {
    Frame frame(form, "frame", "", {100, 100, 3000, 3000});
    Label inside(frame, "inside", "", {300, 300, 600, 600});
    resize.ResizeForm(form);
    ResizeTo(1.1, 1.2);
    EXPECT_EQ(frame.GetPlace(), (Place{110, 120, 3300, 3600}));
    EXPECT_EQ(inside.GetPlace(), (Place{330, 360, 660, 720}));
}

TEST_F(ResizeTest, LeavesWhatHasNoPlaceAlone) {
    Timer timer(form, "Timer1", 100);
    MenuItem menu(form, "File_Mnu", "&File");
    resize.ResizeForm(form);
    ResizeTo(2, 2);
    EXPECT_EQ(timer.GetPlace(), Place{});
    EXPECT_EQ(menu.GetPlace(), Place{});
}

TEST_F(ResizeTest, LeavesAFormAloneThatIsFarBelow) {
    resize.ResizeForm(form);
    form.SetPlace({0, 30000, 10000, 5000});
    ResizeTo(2, 2);
    EXPECT_EQ(button.GetPlace(), (Place{1000, 600, 2000, 400}));
    form.SetPlace({0, 29999, 20000, 10000});
    resize.ResizeForm(form);
    EXPECT_EQ(button.GetPlace(), (Place{2000, 1200, 4000, 800}));
}

TEST_F(ResizeTest, TakesNoBaseFromAFormThatIsFarBelow) {
    form.SetPlace({0, 30000, 10000, 5000});
    resize.ResizeForm(form);
    form.SetPlace({0, 0, 10000, 5000});
    ResizeTo(2, 2);
    EXPECT_EQ(button.GetPlace(), (Place{1000, 600, 2000, 400}));
    ResizeTo(4, 4);
    EXPECT_EQ(button.GetPlace(), (Place{2000, 1200, 4000, 800}));
}

TEST_F(ResizeTest, TakesTheBaseOfAFormFirstShownMaximisedFromItsControls) {
    // The controls reach to 3000 by 1000, and with the margins of 200 and 500 to 3200 by 1500.
    form.SetState(WindowState::kMaximised);
    form.SetClientSize({6400, 4500});
    resize.ResizeForm(form);
    EXPECT_EQ(form.ClientSize().width, 6400);
    EXPECT_EQ(form.ClientSize().height, 4500);
    EXPECT_EQ(button.GetPlace(), (Place{2000, 1800, 4000, 1200}));
}

TEST_F(ResizeTest, KeepsThatBaseWhenTheFormIsNormalAgain) {
    form.SetState(WindowState::kMaximised);
    resize.ResizeForm(form);
    form.SetState(WindowState::kNormal);
    form.SetClientSize({3200, 1500});
    resize.ResizeForm(form);
    EXPECT_EQ(button.GetPlace(), (Place{1000, 600, 2000, 400}));
}

TEST_F(ResizeTest, ScalesAKnownFormThatIsMaximisedLikeAnyOther) {
    resize.ResizeForm(form);
    form.SetState(WindowState::kMaximised);
    ResizeTo(2, 2);
    EXPECT_EQ(button.GetPlace(), (Place{2000, 1200, 4000, 800}));
}

TEST_F(ResizeTest, DropsAResizeOfItsOwnMaking) {
    // A form first shown maximised is given other sizes on the way, each with its event.
    int calls = 0;
    form.onResize = [&] {
        ++calls;
        resize.ResizeForm(form);
    };
    form.SetState(WindowState::kMaximised);
    resize.ResizeForm(form);
    EXPECT_EQ(calls, 2);
    EXPECT_EQ(button.GetPlace(), (Place{3120, 1998, 6240, 1332}));
}

TEST_F(ResizeTest, DropsAResizeOfAnotherFormMeanwhile) {
    Form other(application, "Other", "", {1000, 1000});
    Button inside(other, "btn", "", {10, 10, 10, 10});
    resize.ResizeForm(other);
    other.SetClientSize({2000, 2000});
    form.onResize = [&] { resize.ResizeForm(other); };
    form.SetState(WindowState::kMaximised);
    resize.ResizeForm(form);
    EXPECT_EQ(inside.GetPlace(), (Place{10, 10, 10, 10}));
    resize.ResizeForm(other);
    EXPECT_EQ(inside.GetPlace(), (Place{20, 20, 20, 20}));
}

TEST_F(ResizeTest, LeavesTheVisibilityAsItIs) {
    button.SetVisible(false);
    form.Show();
    resize.ResizeForm(form);
    ResizeTo(2, 2);
    EXPECT_FALSE(button.Visible());
    EXPECT_TRUE(form.Visible());
}

}  // namespace arbolith
