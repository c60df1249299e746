// What a person does with the keyboard: filters and limits of fields, default buttons, arrows and
// letters, the tab key and shortcuts.
#include "forms/user_actions.h"
#include "platform/runtime_error.h"
#include "unit/forms/forms_test.h"

#include <cctype>

namespace arbolith {

namespace {

Key Character(char c) {
    return {Key::kCharacter, static_cast<unsigned char>(c)};
}

}  // namespace

class KeysTest : public FormsTest {
protected:
    void SetUp() override { form.Show(); }

    // Lets digits and control keys through, and notes each key that it is asked about.
    KeyHandler DigitFilter() {
        return [this](int& key) {
            log.push_back("key " + std::to_string(key));
            if (key >= ' ' && std::isdigit(key) == 0) key = 0;
        };
    }

    TextBox box{form, "box", {}, 4};
    TextBox next{form, "next"};
};

TEST_F(KeysTest, TypesAtTheEndOfAField) {
    box.SetText("1");
    actions.Type(box, "23");
    EXPECT_EQ(box.Text(), "123");
    EXPECT_EQ(box.SelStart(), 3U);
}

TEST_F(KeysTest, ReplacesTheTextWhereTheFocusSelectsIt) {
    box.SetSelectsAllOnFocus(true);
    box.SetText("12");
    actions.Type(box, "7");
    EXPECT_EQ(box.Text(), "7");
    actions.Type(box, "89");
    EXPECT_EQ(box.Text(), "89");
}

TEST_F(KeysTest, ReplacesATextThatIsMarkedWhole) {
    box.SetText("12");
    box.SelectAll();
    next.SetText("5");
    actions.Focus(next);
    actions.Type(box, "3");
    EXPECT_EQ(box.Text(), "123") << "the focus marks nothing, and the mark of before is gone";
    box.SelectAll();
    actions.Type(box, "4");
    EXPECT_EQ(box.Text(), "4");
    box.Select(0, 0);
    actions.Type(box, "5");
    EXPECT_EQ(box.Text(), "45");
}

TEST_F(KeysTest, RaisesNoFocusEventInTheFieldThatHasTheFocus) {
    actions.Focus(box);
    NoteFocus(box);
    actions.Type(box, "1");
    EXPECT_EQ(log, Log{});
}

TEST_F(KeysTest, RaisesAChangeForEachCharacter) {
    box.onChange = [this] { log.push_back(box.Text()); };
    actions.Type(box, "12");
    EXPECT_EQ(log, (Log{"1", "12"}));
}

TEST_F(KeysTest, PassesACharacterThroughTheFilter) {
    box.onKeyPress = DigitFilter();
    box.onChange = Note("change");
    actions.Type(box, "1x2");
    EXPECT_EQ(box.Text(), "12");
    EXPECT_EQ(log, (Log{"key 49", "change", "key 120", "key 50", "change"}));
}

TEST_F(KeysTest, AsksTheFilterBeforeTheLimit) {
    box.SetText("1234");
    box.onKeyPress = DigitFilter();
    actions.Type(box, "5x");
    EXPECT_EQ(box.Text(), "1234");
    EXPECT_EQ(log, (Log{"key 53", "key 120"}));
}

TEST_F(KeysTest, TakesACharacterInPlaceOfASelectionInAFullField) {
    box.SetText("1234");
    box.SetSelectsAllOnFocus(true);
    actions.Type(box, "9");
    EXPECT_EQ(box.Text(), "9");
}

TEST_F(KeysTest, DropsAKeyThatTheFilterTurnsIntoAnother) {
    box.onKeyPress = [](int& key) { key = key == 'a' ? 'b' : key; };
    actions.Type(box, "ac");
    EXPECT_EQ(box.Text(), "c");
}

TEST_F(KeysTest, StopsTypingWhereAChangeDisablesTheField) {
    box.onChange = [this] { box.SetEnabled(false); };
    EXPECT_THROW(actions.Type(box, "12"), ActionRefused);
    EXPECT_EQ(box.Text(), "1");
}

TEST_F(KeysTest, TakesAwayTheCharacterBeforeTheCaretOrTheSelection) {
    actions.Type(box, "123");
    actions.Press(box, {Key::kBackspace, 0});
    EXPECT_EQ(box.Text(), "12");
    box.Select(0, 2);
    actions.Press(box, {Key::kBackspace, 0});
    EXPECT_EQ(box.Text(), "");
    actions.Press(box, {Key::kBackspace, 0});
    EXPECT_EQ(box.Text(), "");
}

TEST_F(KeysTest, PassesBackspaceThroughTheFilterAndDeletePast) {
    box.SetText("12");
    box.onKeyPress = [this](int& key) {
        log.push_back("press " + std::to_string(key));
        key = 0;
    };
    box.onKeyDown = [this](int& key) { log.push_back("down " + std::to_string(key)); };
    actions.Press(box, {Key::kBackspace, 0});
    EXPECT_EQ(box.Text(), "12");
    actions.Press(box, {Key::kDelete, 0});
    EXPECT_EQ(box.Text(), "2");
    EXPECT_EQ(log, (Log{"press 8", "down 46"}));
}

TEST_F(KeysTest, PassesASpaceThroughTheFilterOfAField) {
    box.onKeyPress = DigitFilter();
    actions.Press(box, {Key::kSpace, 0});
    EXPECT_EQ(box.Text(), "");
    EXPECT_EQ(log, (Log{"key 32"}));
}

TEST_F(KeysTest, GivesInsertAsAKeyDownOnly) {
    ListBox list(form, "list");
    list.onKeyDown = [this](int& key) { log.push_back("down " + std::to_string(key)); };
    list.onKeyPress = [this](int& key) { log.push_back("press " + std::to_string(key)); };
    actions.Press(list, {Key::kInsert, 0});
    EXPECT_EQ(log, (Log{"down 45"}));
}

TEST_F(KeysTest, SelectsAndCopiesAFieldsText) {
    box.SetText("123");
    actions.Press(box, {Key::kSelectAll, 0});
    EXPECT_EQ(box.SelLength(), 3U);
    actions.Press(box, {Key::kCopy, 0});
    EXPECT_EQ(host.ClipboardText(), "123");
}

TEST_F(KeysTest, LeavesTheClipboardWhereNothingIsSelected) {
    host.SetClipboardText("before");
    box.SetText("123");
    actions.Press(box, {Key::kCopy, 0});
    EXPECT_EQ(host.ClipboardText(), "before");
}

TEST_F(KeysTest, PastesUnfilteredButCutToTheLimitWithOneChange) {
    box.SetText("1");
    box.onKeyPress = DigitFilter();
    box.onChange = Note("change");
    actions.Paste(box, "abcdef");
    EXPECT_EQ(box.Text(), "abcd");
    EXPECT_EQ(host.ClipboardText(), "abcdef");
    EXPECT_EQ(log, (Log{"change"}));
}

TEST_F(KeysTest, RaisesNoChangeForAPasteOfTheSameText) {
    box.SetText("1234");
    box.onChange = Note("change");
    actions.Paste(box, "12345");
    EXPECT_EQ(log, Log{});
}

TEST_F(KeysTest, PastesWholeWithoutALimit) {
    actions.Paste(next, std::string(500, 'x'));
    EXPECT_EQ(next.Text().size(), 500U);
}

TEST_F(KeysTest, GivesEnterToTheFilterAndPutsNothingIn) {
    box.onKeyPress = [this](int& key) {
        log.push_back("key " + std::to_string(key));
        if (key == 13) application.SetFocus(next);
    };
    actions.Press(box, {Key::kEnter, 0});
    EXPECT_EQ(log, (Log{"key 13"}));
    EXPECT_TRUE(next.HasFocus());
    EXPECT_EQ(box.Text(), "");
}

TEST_F(KeysTest, GivesEscapeToTheFilter) {
    box.onKeyPress = DigitFilter();
    actions.Press(box, {Key::kEscape, 0});
    EXPECT_EQ(log, (Log{"key 27"}));
    EXPECT_EQ(box.Text(), "");
}

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

TEST_F(KeysTest, AsksFilterAndLimitForAViewThatEditsOnItsOwn) {
    box.onKeyPress = DigitFilter();
    EXPECT_TRUE(actions.AcceptsKey(box, '1'));
    EXPECT_FALSE(actions.AcceptsKey(box, 'x'));
    EXPECT_TRUE(actions.AcceptsKey(box, 8));
    box.SetText("1234");
    EXPECT_FALSE(actions.AcceptsKey(box, '1'));
    EXPECT_TRUE(actions.AcceptsKey(box, 8));
}

TEST_F(KeysTest, TakesAViewsOwnEditAsAPersonsAction) {
    box.onChange = [] { throw RuntimeError(ErrorNumber::kOverflow); };
    actions.Edited(box, "12", 2);
    EXPECT_EQ(box.Text(), "12");
    EXPECT_EQ(host.boxes.size(), 1U);
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
