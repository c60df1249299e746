// What a person does with the keyboard outside fields: default buttons, arrows and letters, the tab
// key and shortcuts.
#include "forms/user_actions.h"
#include "platform/runtime_error.h"
#include "unit/forms/keys_testing.h"

namespace arbolith {

TEST_F(KeysTest, GoesToTheNextControlByTab) {
    NoteFocus(box);
    NoteFocus(next);
    actions.Focus(box);
    TakeLog();
    actions.Press(box, {Key::kTab, 0});
    EXPECT_EQ(TakeLog(), (Log{"box lost", "next got"}));
    actions.Press(next, {Key::kBackTab, 0});
    EXPECT_EQ(log, (Log{"next lost", "box got"}));
}

TEST_F(KeysTest, MarksTheTextThatTabLeadsTo) {
    next.SetText("90");
    actions.Press(box, {Key::kTab, 0});
    EXPECT_EQ(next.SelStart(), 0U);
    EXPECT_EQ(next.SelLength(), 2U);
    actions.Press(next, {Key::kCharacter, '7'});
    EXPECT_EQ(next.Text(), "7");
}

class ButtonKeysTest : public KeysTest {
protected:
    void SetUp() override {
        KeysTest::SetUp();
        ok.SetDefault(true);
        ok.onClick = Note("ok");
        other.onClick = Note("other");
    }

    Button other{form, "other"};
    Button ok{form, "ok"};
};

TEST_F(ButtonKeysTest, PressesTheDefaultButtonByEnterFromAField) {
    box.onKeyPress = DigitFilter();
    actions.Press(box, {Key::kEnter, 0});
    EXPECT_EQ(log, (Log{"ok"}));
}

TEST_F(ButtonKeysTest, PassesOverADefaultButtonThatIsHiddenOrDisabled) {
    box.onKeyPress = DigitFilter();
    ok.SetEnabled(false);
    actions.Press(box, {Key::kEnter, 0});
    EXPECT_EQ(TakeLog(), (Log{"key 13"}));
    ok.SetEnabled(true);
    ok.SetVisible(false);
    actions.Press(box, {Key::kEnter, 0});
    EXPECT_EQ(TakeLog(), (Log{"key 13"}));
}

TEST_F(ButtonKeysTest, PressesTheFocusedButtonByEnterAndSpace) {
    actions.Press(other, {Key::kEnter, 0});
    actions.Press(other, {Key::kSpace, 0});
    actions.Press(other, Character(' '));
    EXPECT_EQ(log, (Log{"other", "other", "other"}));
}

TEST_F(ButtonKeysTest, TogglesACheckBoxAndSwitchesAnOptionOnBySpace) {
    CheckBox check(form, "check");
    Option option(form, "option");
    actions.Press(check, {Key::kSpace, 0});
    actions.Press(option, {Key::kSpace, 0});
    EXPECT_TRUE(check.Value());
    EXPECT_TRUE(option.Value());
}

class OptionKeysTest : public KeysTest {
protected:
    void SetUp() override {
        KeysTest::SetUp();
        first.onClick = Note("first");
        second.onClick = Note("second");
        third.onClick = Note("third");
        elsewhere.onClick = Note("elsewhere");
    }

    Frame frame{form, "frame"};
    Frame otherFrame{form, "otherFrame"};
    Option first{frame, "first"};
    Option second{frame, "second"};
    Option third{frame, "third"};
    Option elsewhere{otherFrame, "elsewhere"};
};

TEST_F(OptionKeysTest, ChoosesTheNeighbourInTheSameFrameByTheArrows) {
    actions.Press(first, {Key::kDown, 0});
    EXPECT_TRUE(second.HasFocus());
    actions.Press(second, {Key::kUp, 0});
    EXPECT_EQ(log, (Log{"second", "first"}));
    EXPECT_TRUE(first.HasFocus());
}

TEST_F(OptionKeysTest, StaysAtTheEndsOfItsFrame) {
    actions.Press(third, {Key::kDown, 0});
    actions.Press(first, {Key::kUp, 0});
    EXPECT_EQ(log, Log{});
    EXPECT_FALSE(elsewhere.Value());
}

TEST_F(OptionKeysTest, PassesOverADisabledNeighbour) {
    second.SetEnabled(false);
    actions.Press(first, {Key::kDown, 0});
    EXPECT_EQ(log, (Log{"third"}));
}

class ListKeysTest : public KeysTest {
protected:
    void SetUp() override {
        KeysTest::SetUp();
        for (const char* row : {"White Pine", "Red Pine", "Black Spruce", "Red Spruce"})
            list.AddItem(row);
        list.onClick = [this] { log.push_back(list.Text()); };
    }

    ListBox list{form, "list"};
};

TEST_F(ListKeysTest, MovesByTheArrowsAndStaysAtTheEnds) {
    actions.Press(list, {Key::kDown, 0});
    actions.Press(list, {Key::kDown, 0});
    actions.Press(list, {Key::kUp, 0});
    actions.Press(list, {Key::kUp, 0});
    EXPECT_EQ(TakeLog(), (Log{"White Pine", "Red Pine", "White Pine"}));
    list.SetListIndex(3);
    TakeLog();
    actions.Press(list, {Key::kDown, 0});
    EXPECT_EQ(log, Log{});
}

TEST_F(ListKeysTest, GoesToTheNextRowThatBeginsWithALetterRoundTheEnd) {
    actions.Press(list, Character('r'));
    actions.Press(list, Character('R'));
    actions.Press(list, Character('r'));
    EXPECT_EQ(log, (Log{"Red Pine", "Red Spruce", "Red Pine"}));
    TakeLog();
    actions.Press(list, Character('x'));
    EXPECT_EQ(log, Log{});
}

TEST_F(ListKeysTest, GivesEnterToItsHandlerAndKeepsTheRow) {
    list.SetListIndex(1);
    TakeLog();
    list.onKeyPress = [this](int& key) { log.push_back("key " + std::to_string(key)); };
    actions.Press(list, {Key::kEnter, 0});
    EXPECT_EQ(log, (Log{"key 13"}));
    EXPECT_EQ(list.ListIndex(), 1);
}

TEST_F(ListKeysTest, DropsALetterThatItsHandlerRefuses) {
    list.onKeyPress = [](int& key) { key = 0; };
    actions.Press(list, Character('r'));
    EXPECT_EQ(list.ListIndex(), -1);
}

TEST_F(ListKeysTest, DoesNothingInAnEmptyList) {
    ListBox empty(form, "empty");
    empty.onClick = Note("click");
    for (const auto key : {Key::kUp, Key::kDown}) actions.Press(empty, {key, 0});
    actions.Press(empty, Character('a'));
    EXPECT_EQ(empty.ListIndex(), -1);
    EXPECT_EQ(log, Log{});
}

TEST_F(KeysTest, MovesTheCurrentRowOfAGridWithinItsOrdinaryRows) {
    Grid grid(form, "grid", {});
    grid.SetRows(3);
    actions.Press(grid, {Key::kDown, 0});
    EXPECT_EQ(grid.Row(), 2);
    actions.Press(grid, {Key::kDown, 0});
    EXPECT_EQ(grid.Row(), 2);
    actions.Press(grid, {Key::kUp, 0});
    actions.Press(grid, {Key::kUp, 0});
    EXPECT_EQ(grid.Row(), 1);
}

class ShortcutTest : public KeysTest {
protected:
    void SetUp() override {
        KeysTest::SetUp();
        menu.onClick = Note("menu opens");
        selectAll.onClick = Note("select all");
        copy.onClick = Note("copy");
    }

    MenuItem menu{form, "Edit_Mnu", "&Edit"};
    MenuItem selectAll{menu, "Select_All_Mnu", "&Select All", "Ctrl+A"};
    MenuItem copy{menu, "Copy_Mnu", "&Copy", "Ctrl+C"};
    Grid grid{form, "grid", {}};
};

TEST_F(ShortcutTest, ClicksItsEntryWithoutOpeningTheMenu) {
    actions.Press(grid, {Key::kSelectAll, 0});
    actions.Press(grid, {Key::kCopy, 0});
    EXPECT_EQ(log, (Log{"select all", "copy"}));
}

TEST_F(ShortcutTest, DoesNothingForADisabledEntry) {
    selectAll.SetEnabled(false);
    menu.SetEnabled(false);
    actions.Press(grid, {Key::kSelectAll, 0});
    actions.Press(grid, {Key::kCopy, 0});
    EXPECT_EQ(log, Log{});
}

TEST_F(ShortcutTest, ShowsAnErrorOfItsEntryInABox) {
    copy.onClick = [] { throw RuntimeError(ErrorNumber::kInvalidCall); };
    actions.Press(grid, {Key::kCopy, 0});
    ASSERT_EQ(host.boxes.size(), 1U);
    EXPECT_EQ(host.boxes[0].text, "Run-time error '5':\nInvalid procedure call or argument");
}

TEST_F(KeysTest, ReachesALinkByTabAndFollowsItByEnterOrSpace) {
    Label plain{form, "plain", "text"};
    Label link{form, "link", "document", {}, {.link = true}};
    plain.onClick = link.onClick = [this] { log.emplace_back("followed"); };
    actions.Focus(next);
    actions.Press(next, {Key::kTab, 0});
    EXPECT_TRUE(link.HasFocus());
    actions.Press(link, {Key::kEnter, 0});
    actions.Press(link, {Key::kSpace, 0});
    actions.Press(link, Character(' '));
    actions.Press(link, Character('x'));
    EXPECT_EQ(log, (Log{"followed", "followed", "followed"}));
    EXPECT_THROW(actions.Focus(plain), ActionRefused);
}

}  // namespace arbolith
