// Forms that grow and shrink in proportion, by the told rules.
#include "forms/resize.h"

#include "forms/application.h"
#include "forms/controls.h"
#include "unit/model_bridge/fake_host.h"

#include <gtest/gtest.h>

namespace arbolith {
namespace {

struct TestForm : Form {
    TestForm(Application& application, const std::string& name)
        : Form(application, name, "", {4000, 2000}) {}

    MenuItem menu{*this, "menu", "&Menu"};
    Frame frame{*this, "frame", "", {1000, 500, 2000, 1000}};
    Label inside{frame, "inside", "", {101, 51, 333, 77}};
    Label hidden{*this, "hidden", "", {-74800, 100, 400, 300}};
    Timer timer{*this, "timer", 1000};
};

class ResizeTest : public testing::Test {
protected:
    ResizeTest() { Wire(form); }

    void Wire(Form& which) {
        which.onResize = [this, &which] { resize.ResizeForm(which); };
    }
    void ShowAt(int width, int height) {
        form.Show();
        form.SetClientSize({width, height});
    }

    FakeHost host;
    Application application{host, "/nowhere", ""};
    Resize resize;
    TestForm form{application, "first"};
};

TEST_F(ResizeTest, ScalesPlaceAndSizeWithTheClientArea) {
    ShowAt(6000, 5000);
    EXPECT_EQ(form.frame.GetPlace(), (Place{1500, 1250, 3000, 2500}));
    EXPECT_EQ(form.inside.GetPlace(), (Place{151, 127, 499, 192}));
}

TEST_F(ResizeTest, ScalesFromTheBaseHoweverOften) {
    ShowAt(6000, 3000);
    form.SetClientSize({2000, 1000});
    EXPECT_EQ(form.frame.GetPlace(), (Place{500, 250, 1000, 500}));
    form.SetClientSize({4000, 2000});
    EXPECT_EQ(form.frame.GetPlace(), (Place{1000, 500, 2000, 1000}));
    EXPECT_EQ(form.inside.GetPlace(), (Place{101, 51, 333, 77}));
}

TEST_F(ResizeTest, MovesInWholePercents) {
    ShowAt(4036, 2019);
    EXPECT_EQ(form.frame.GetPlace(), (Place{1000, 500, 2000, 1000}));
    form.SetClientSize({4040, 2020});
    EXPECT_EQ(form.frame.GetPlace(), (Place{1010, 505, 2020, 1010}));
}

TEST_F(ResizeTest, KeepsWhatStandsFarToTheLeftThere) {
    ShowAt(6000, 3000);
    EXPECT_EQ(form.hidden.GetPlace(), (Place{-74700, 150, 600, 450}));
    form.SetClientSize({2000, 1000});
    EXPECT_EQ(form.hidden.GetPlace().left, -74900);
}

TEST_F(ResizeTest, TakesTheLayoutOfTheFirstShowingForItsBase) {
    form.frame.SetPlace({2000, 500, 2000, 1000});
    form.Show();
    form.frame.SetPlace({0, 0, 10, 10});
    form.SetClientSize({8000, 4000});
    EXPECT_EQ(form.frame.GetPlace(), (Place{4000, 1000, 4000, 2000}));
}

TEST_F(ResizeTest, KeepsFormsApartByTheirNames) {
    TestForm second(application, "second");
    Wire(second);
    ShowAt(8000, 2000);
    second.Show();
    second.SetClientSize({4000, 4000});
    EXPECT_EQ(second.frame.GetPlace(), (Place{1000, 1000, 2000, 2000}));
    EXPECT_EQ(form.frame.GetPlace(), (Place{2000, 500, 4000, 1000}));
}

TEST_F(ResizeTest, TellsTheControlsOfAnArrayApart) {
    Label one(form, "item", "", {100, 0, 100, 100});
    Label two(form, "item", "", {300, 0, 100, 100});
    one.SetIndex(0);
    two.SetIndex(1);
    ShowAt(8000, 2000);
    EXPECT_EQ(one.GetPlace().left, 200);
    EXPECT_EQ(two.GetPlace().left, 600);
}

TEST_F(ResizeTest, LeavesAFormFarDownAlone) {
    form.SetPlace({0, 30000, 4000, 2000});
    ShowAt(8000, 4000);
    EXPECT_EQ(form.frame.GetPlace(), (Place{1000, 500, 2000, 1000}));
    form.SetPlace({0, 29999, 8000, 4000});
    form.SetClientSize({4000, 2000});
    // It was not noted before, so this is its base.
    EXPECT_EQ(form.frame.GetPlace(), (Place{1000, 500, 2000, 1000}));
    form.SetClientSize({8000, 2000});
    EXPECT_EQ(form.frame.GetPlace().left, 2000);
}

TEST_F(ResizeTest, TakesTheBaseOfAFormShownMaximisedFirstFromItsControls) {
    form.SetState(WindowState::kMaximised);
    form.SetClientSize({9600, 6000});
    EXPECT_EQ(form.ClientSize().width, 9600);
    // The frame reaches to 3000 and 1500, which with the margins makes 3200 by 2000.
    EXPECT_EQ(form.frame.GetPlace(), (Place{3000, 1500, 6000, 3000}));
    form.SetState(WindowState::kNormal);
    form.SetClientSize({3200, 2000});
    EXPECT_EQ(form.frame.GetPlace(), (Place{1000, 500, 2000, 1000}));
}

TEST_F(ResizeTest, MaximisedLaterKeepsItsBase) {
    form.Show();
    form.SetState(WindowState::kMaximised);
    form.SetClientSize({8000, 6000});
    EXPECT_EQ(form.frame.GetPlace(), (Place{2000, 1500, 4000, 3000}));
}

TEST_F(ResizeTest, DropsTheEventOfAnotherFormWhileItWorks) {
    TestForm second(application, "second");
    Wire(second);
    second.Show();
    // A form shown maximised first gets its computed size within the first call.
    form.SetState(WindowState::kMaximised);
    int events = 0;
    form.onResize = [&] {
        if (++events == 2) second.SetClientSize({8000, 4000});
        resize.ResizeForm(form);
    };
    form.SetClientSize({9600, 6000});
    EXPECT_EQ(events, 3);
    EXPECT_EQ(form.frame.GetPlace().left, 3000);
    EXPECT_EQ(second.frame.GetPlace(), (Place{1000, 500, 2000, 1000}));
    second.SetClientSize({8000, 2000});
    EXPECT_EQ(second.frame.GetPlace(), (Place{2000, 500, 4000, 1000}));
}

TEST_F(ResizeTest, LeavesTheFormsSightAsItIs) {
    form.SetClientSize({8000, 4000});
    EXPECT_FALSE(form.Visible());
    EXPECT_EQ(form.frame.GetPlace(), (Place{1000, 500, 2000, 1000})) << "the base";
}

}  // namespace
}  // namespace arbolith
