// What a person does with the mouse, and what goes for every action. The keys have a file of their
// own.
#include "forms/user_actions.h"

#include "platform/runtime_error.h"
#include "unit/forms/forms_test.h"

namespace arbolith {

class UserActionsTest : public FormsTest {
protected:
    void SetUp() override { form.Show(); }

    Frame frame{form, "frame"};
    Button button{frame, "button"};
    TextBox box{form, "box", {}, 4};
};

TEST_F(UserActionsTest, AreRefusedOnWhatDoesNotShow) {
    button.onClick = Note("click");
    frame.SetVisible(false);
    EXPECT_THROW(actions.Click(button), ActionRefused);
    frame.SetVisible(true);
    form.Hide();
    EXPECT_THROW(actions.Click(button), ActionRefused);
    EXPECT_EQ(log, Log{});
}

TEST_F(UserActionsTest, AreRefusedOnWhatIsDisabled) {
    button.onClick = Note("click");
    frame.SetEnabled(false);
    EXPECT_THROW(actions.Click(button), ActionRefused);
    frame.SetEnabled(true);
    box.SetEnabled(false);
    EXPECT_THROW(actions.Type(box, "1"), ActionRefused);
    EXPECT_THROW(actions.Paste(box, "1"), ActionRefused);
    EXPECT_THROW(actions.Focus(box), ActionRefused);
    EXPECT_THROW(actions.Press(box, {Key::kEnter, 0}), ActionRefused);
    EXPECT_EQ(box.Text(), "");
    EXPECT_EQ(host.ClipboardText(), "");
    EXPECT_EQ(log, Log{});
}

TEST_F(UserActionsTest, AreRefusedAfterTheEnd) {
    application.End();
    EXPECT_THROW(actions.Click(button), ActionRefused);
    EXPECT_THROW(actions.Close(form), ActionRefused);
    EXPECT_THROW(actions.Activate(form), ActionRefused);
}

TEST_F(UserActionsTest, SayWhyTheyAreRefused) {
    button.SetEnabled(false);
    try {
        actions.Click(button);
        FAIL() << "the click was not refused";
    } catch (const ActionRefused& refused) {
        EXPECT_STREQ(refused.what(), "button is disabled");
    }
}

TEST_F(UserActionsTest, MoveTheFocusBeforeTheClick) {
    NoteFocus(box);
    NoteFocus(button);
    actions.Focus(box);
    button.onClick = Note("click");
    TakeLog();
    actions.Click(button);
    EXPECT_EQ(log, (Log{"box lost", "button got", "click"}));
}

TEST_F(UserActionsTest, AreRefusedWhenTheFocusMoveItselfDisablesTheControl) {
    actions.Focus(box);
    box.onLostFocus = [this] { button.SetEnabled(false); };
    button.onClick = Note("click");
    EXPECT_THROW(actions.Click(button), ActionRefused);
    EXPECT_EQ(log, Log{});
}

TEST_F(UserActionsTest, ActivateTheFormOfTheirControlFirst) {
    Form other(application, "Other", "", {1000, 1000});
    Button press(other, "press");
    NoteFocus(press);
    NoteFocus(box);
    other.Show();
    actions.Focus(box);
    other.onActivate = Note("Other activate");
    press.onClick = Note("click");
    TakeLog();
    actions.Click(press);
    EXPECT_EQ(log, (Log{"box lost", "Other activate", "press got", "click"}));
}

TEST_F(UserActionsTest, ShowAnErrorOfAHandlerInABox) {
    button.onClick = [] { throw RuntimeError(ErrorNumber::kSubscript); };
    actions.Click(button);
    ASSERT_EQ(host.boxes.size(), 1U);
    EXPECT_EQ(host.boxes[0].text, "Run-time error '9':\nSubscript out of range");
}

TEST_F(UserActionsTest, ClickAnOptionOnceOnly) {
    Option option(form, "option");
    option.onClick = Note("click");
    actions.Click(option);
    EXPECT_TRUE(option.Value());
    actions.Click(option);
    EXPECT_TRUE(option.Value());
    EXPECT_EQ(log, (Log{"click"}));
}

TEST_F(UserActionsTest, ToggleACheckBox) {
    CheckBox check(form, "check");
    check.onClick = Note("click");
    actions.Click(check);
    EXPECT_TRUE(check.Value());
    actions.Click(check);
    EXPECT_FALSE(check.Value());
    EXPECT_EQ(log, (Log{"click", "click"}));
}

TEST_F(UserActionsTest, ClickLabelsWithoutMovingTheFocus) {
    Label label(form, "label");
    label.onClick = Note("click");
    NoteFocus(box);
    actions.Focus(box);
    actions.Click(label);
    EXPECT_EQ(log, (Log{"box got", "click"}));
}

TEST_F(UserActionsTest, FollowALinkWithoutMovingTheFocus) {
    Label link{form, "link", "document", {}, {.link = true}};
    actions.Focus(box);
    link.onClick = [this] { log.emplace_back("followed"); };
    actions.Click(link);
    EXPECT_EQ(log, Log{"followed"});
    EXPECT_TRUE(box.HasFocus());
}

TEST_F(UserActionsTest, CountADoubleClickOnAnOptionThatIsOn) {
    Option option(form, "option");
    actions.Click(option);
    option.onClick = Note("click");
    option.onDoubleClick = Note("double click");
    actions.DoubleClick(option);
    EXPECT_EQ(log, (Log{"double click"}));
}

class MenuTest : public UserActionsTest {
protected:
    MenuItem menu{form, "File_Mnu", "&File"};
    MenuItem deeper{menu, "More_Mnu", "&More"};
    MenuItem item{deeper, "Save_Mnu", "&Save"};
};

TEST_F(MenuTest, OpensEveryMenuAboveAnEntryFirst) {
    menu.onClick = Note("File");
    deeper.onClick = Note("More");
    item.onClick = Note("Save");
    actions.Click(item);
    EXPECT_EQ(log, (Log{"File", "More", "Save"}));
}

TEST_F(MenuTest, JustOpensAMenuThatIsClicked) {
    menu.onClick = Note("File");
    item.onClick = Note("Save");
    actions.Click(menu);
    EXPECT_EQ(log, (Log{"File"}));
}

TEST_F(MenuTest, ChecksAnEntryAfterItsMenusHaveOpened) {
    item.SetEnabled(false);
    menu.onClick = [this] { item.SetEnabled(true); };
    item.onClick = Note("Save");
    actions.Click(item);
    EXPECT_EQ(TakeLog(), (Log{"Save"}));
    menu.onClick = [this] { item.SetEnabled(false); };
    EXPECT_THROW(actions.Click(item), ActionRefused);
    EXPECT_EQ(log, Log{});
}

TEST_F(MenuTest, IsRefusedUnderADisabledMenu) {
    item.onClick = Note("Save");
    menu.SetEnabled(false);
    EXPECT_THROW(actions.Click(item), ActionRefused);
    EXPECT_EQ(log, Log{});
}

TEST_F(MenuTest, LeavesTheFocusWhereItIs) {
    actions.Focus(box);
    actions.Click(item);
    EXPECT_TRUE(box.HasFocus());
}

TEST_F(UserActionsTest, SelectARowWithOneClickEvent) {
    ListBox list(form, "list");
    for (const char* row : {"a", "b"}) list.AddItem(row);
    list.onClick = [&] { log.push_back("click " + list.Text()); };
    actions.SelectRow(list, 1);
    actions.SelectRow(list, 1);
    EXPECT_EQ(log, (Log{"click b"}));
    EXPECT_TRUE(list.HasFocus());
    EXPECT_THROW(actions.SelectRow(list, 2), ActionRefused);
    EXPECT_THROW(actions.SelectRow(list, -1), ActionRefused);
}

class GridActionsTest : public UserActionsTest {
protected:
    void SetUp() override {
        UserActionsTest::SetUp();
        grid.SetCols(5);
        grid.SetRows(6);
    }

    Grid grid{form, "grid", {}};
};

TEST_F(GridActionsTest, DragFromTheAnchorToTheMovingEnd) {
    actions.DragCells(grid, 3, 4, 1, 2);
    EXPECT_EQ(grid.Row(), 3);
    EXPECT_EQ(grid.Col(), 4);
    EXPECT_EQ(grid.RowSel(), 1);
    EXPECT_EQ(grid.ColSel(), 2);
    EXPECT_TRUE(grid.HasFocus());
}

TEST_F(GridActionsTest, RefuseAnAnchorInAFixedRowOrColumnOrOutside) {
    EXPECT_THROW(actions.DragCells(grid, 0, 1, 2, 2), ActionRefused);
    EXPECT_THROW(actions.DragCells(grid, 1, 0, 2, 2), ActionRefused);
    EXPECT_THROW(actions.DragCells(grid, 6, 1, 2, 2), ActionRefused);
    EXPECT_THROW(actions.DragCells(grid, 1, 1, 6, 2), ActionRefused);
    EXPECT_EQ(grid.Row(), 1);
    EXPECT_EQ(grid.RowSel(), 1);
}

TEST_F(UserActionsTest, ResizeAFormWithItsEvent) {
    form.onResize = Note("resize");
    actions.Resize(form, {7500, 6000});
    EXPECT_EQ(form.ClientSize().width, 7500);
    EXPECT_EQ(form.ClientSize().height, 6000);
    EXPECT_EQ(log, (Log{"resize"}));
}

TEST_F(UserActionsTest, HideAFormAtItsCloseBoxUnlessItSaysOtherwise) {
    form.onClose = Note("close");
    actions.Close(form);
    EXPECT_TRUE(form.Visible());
    EXPECT_EQ(log, (Log{"close"}));
    form.onClose = nullptr;
    actions.Close(form);
    EXPECT_FALSE(form.Visible());
}

TEST_F(UserActionsTest, FireATimerOnlyWhileItIsEnabled) {
    Timer timer(form, "Timer1", 1000);
    timer.onTimer = Note("tick");
    actions.Tick(timer);
    timer.SetEnabled(false);
    EXPECT_THROW(actions.Tick(timer), ActionRefused);
    EXPECT_EQ(log, (Log{"tick"}));
}

TEST_F(UserActionsTest, RaiseActivateAndGotFocusOnceForAPersonWhoComesBack) {
    NoteFocus(box);
    actions.Focus(box);
    form.onActivate = Note("activate");
    TakeLog();
    actions.ComeBack(form);
    EXPECT_EQ(log, (Log{"activate", "box got"}));
}

TEST_F(UserActionsTest, RaiseThemOnceAlsoOnAFormThatWasNotTheActiveOne) {
    Form other(application, "Other", "", {1000, 1000});
    other.Show();
    NoteFocus(box);
    application.SetFocus(box);
    form.onActivate = Note("activate");
    actions.ComeBack(form);
    EXPECT_EQ(log, (Log{"activate", "box got"}));
    EXPECT_EQ(application.ActiveForm(), &form);
}

}  // namespace arbolith
