#include "forms/form.h"

#include "unit/forms/forms_test.h"

namespace arbolith {

using FormTest = FormsTest;

TEST_F(FormTest, FindsControlsByNameAndIndex) {
    Frame frame(form, "fra");
    CheckBox zero(frame, "cbDBH");
    CheckBox one(frame, "cbDBH");
    zero.SetIndex(0);
    one.SetIndex(1);
    EXPECT_EQ(form.Find("fra"), &frame);
    EXPECT_EQ(form.Find("cbDBH", 1), &one);
    EXPECT_EQ(form.Find("cbDBH", 0), &zero);
    EXPECT_EQ(form.Find("cbDBH"), nullptr);
    EXPECT_EQ(form.Find("cbDBH", 2), nullptr);
    EXPECT_EQ(form.Find("FRA"), nullptr);
}

TEST_F(FormTest, KeepsItsControlsInTheOrderOfTheirMaking) {
    Frame frame(form, "fra");
    Button inside(frame, "inside");
    Button behind(form, "behind");
    EXPECT_EQ(form.Controls(), (std::vector<Control*>{&frame, &inside, &behind}));
}

TEST_F(FormTest, ResizesAtItsFirstShowingOnly) {
    form.onResize = Note("resize");
    form.onActivate = Note("activate");
    form.Show();
    EXPECT_EQ(TakeLog(), (Log{"resize", "activate"}));
    form.Hide();
    form.Show();
    EXPECT_EQ(TakeLog(), (Log{"activate"}));
}

TEST_F(FormTest, IsVisibleWhenItResizesForTheFirstTime) {
    form.onResize = [this] { log.push_back(form.Visible() ? "visible" : "hidden"); };
    form.Show();
    EXPECT_EQ(log, (Log{"visible"}));
}

TEST_F(FormTest, RaisesNothingWhenShownWhileItIsTheActiveOne) {
    form.Show();
    form.onActivate = Note("activate");
    form.Show();
    EXPECT_EQ(log, Log{});
}

TEST_F(FormTest, CountsHowOftenItCameToSight) {
    EXPECT_EQ(form.TimesShown(), 0);
    form.Show();
    form.Hide();
    form.Show();
    EXPECT_EQ(form.TimesShown(), 2);
}

TEST_F(FormTest, ResizesWithEveryNewClientSize) {
    form.onResize = [this] { log.push_back(std::to_string(form.ClientSize().width)); };
    form.SetClientSize({7500, 4500});
    form.SetClientSize({7500, 4500});
    EXPECT_EQ(log, (Log{"7500"}));
}

TEST_F(FormTest, GrowsAsAWindowByWhatItsClientAreaGrows) {
    form.SetPlace({100, 200, 6240, 5100});
    form.SetClientSize({6300, 4200});
    EXPECT_EQ(form.GetPlace(), (Place{100, 200, 6540, 4800}));
}

TEST_F(FormTest, KeepsItsWindowStateAndPointer) {
    EXPECT_EQ(form.State(), WindowState::kNormal);
    EXPECT_EQ(form.Pointer(), MousePointer::kDefault);
    form.SetState(WindowState::kMaximised);
    form.SetPointer(MousePointer::kHourglass);
    EXPECT_EQ(static_cast<int>(form.State()), 2);
    EXPECT_EQ(static_cast<int>(form.Pointer()), 11);
}

TEST_F(FormTest, LeavesTheApplicationWhenItIsUnmade) {
    const auto before = application.Forms();
    {
        Form other(application, "Other", "", {1000, 1000});
        other.Show();
        EXPECT_EQ(application.Forms().size(), before.size() + 1);
        EXPECT_EQ(application.ActiveForm(), &other);
    }
    EXPECT_EQ(application.Forms(), before);
    EXPECT_EQ(application.ActiveForm(), nullptr);
    EXPECT_TRUE(application.FormsByFirstShowing().empty());
    EXPECT_FALSE(application.HasTouched());
}

}  // namespace arbolith
