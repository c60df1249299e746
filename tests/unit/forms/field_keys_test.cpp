// What a person does with the keyboard in a field: typing through its filter and limit, taking
// away, copying and pasting.
#include "forms/user_actions.h"
#include "unit/forms/keys_testing.h"

namespace arbolith {

class FieldKeysTest : public KeysTest {};

TEST_F(FieldKeysTest, TypesAtTheEndOfAField) {
    box.SetText("1");
    actions.Type(box, "23");
    EXPECT_EQ(box.Text(), "123");
    EXPECT_EQ(box.SelStart(), 3U);
}

TEST_F(FieldKeysTest, ReplacesTheTextWhereTheFocusSelectsIt) {
    box.SetSelectsAllOnFocus(true);
    box.SetText("12");
    actions.Type(box, "7");
    EXPECT_EQ(box.Text(), "7");
    actions.Type(box, "89");
    EXPECT_EQ(box.Text(), "89");
}

TEST_F(FieldKeysTest, ReplacesATextThatIsMarkedWhole) {
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

TEST_F(FieldKeysTest, RaisesNoFocusEventInTheFieldThatHasTheFocus) {
    actions.Focus(box);
    NoteFocus(box);
    actions.Type(box, "1");
    EXPECT_EQ(log, Log{});
}

TEST_F(FieldKeysTest, RaisesAChangeForEachCharacter) {
    box.onChange = [this] { log.push_back(box.Text()); };
    actions.Type(box, "12");
    EXPECT_EQ(log, (Log{"1", "12"}));
}

TEST_F(FieldKeysTest, PassesACharacterThroughTheFilter) {
    box.onKeyPress = DigitFilter();
    box.onChange = Note("change");
    actions.Type(box, "1x2");
    EXPECT_EQ(box.Text(), "12");
    EXPECT_EQ(log, (Log{"key 49", "change", "key 120", "key 50", "change"}));
}

TEST_F(FieldKeysTest, AsksTheFilterBeforeTheLimit) {
    box.SetText("1234");
    box.onKeyPress = DigitFilter();
    actions.Type(box, "5x");
    EXPECT_EQ(box.Text(), "1234");
    EXPECT_EQ(log, (Log{"key 53", "key 120"}));
}

TEST_F(FieldKeysTest, TakesACharacterInPlaceOfASelectionInAFullField) {
    box.SetText("1234");
    box.SetSelectsAllOnFocus(true);
    actions.Type(box, "9");
    EXPECT_EQ(box.Text(), "9");
}

TEST_F(FieldKeysTest, DropsAKeyThatTheFilterTurnsIntoAnother) {
    box.onKeyPress = [](int& key) { key = key == 'a' ? 'b' : key; };
    actions.Type(box, "ac");
    EXPECT_EQ(box.Text(), "c");
}

TEST_F(FieldKeysTest, StopsTypingWhereAChangeDisablesTheField) {
    box.onChange = [this] { box.SetEnabled(false); };
    EXPECT_THROW(actions.Type(box, "12"), ActionRefused);
    EXPECT_EQ(box.Text(), "1");
}

TEST_F(FieldKeysTest, TakesAwayTheCharacterBeforeTheCaretOrTheSelection) {
    actions.Type(box, "123");
    actions.Press(box, {Key::kBackspace, 0});
    EXPECT_EQ(box.Text(), "12");
    box.Select(0, 2);
    actions.Press(box, {Key::kBackspace, 0});
    EXPECT_EQ(box.Text(), "");
    actions.Press(box, {Key::kBackspace, 0});
    EXPECT_EQ(box.Text(), "");
}

TEST_F(FieldKeysTest, PassesBackspaceThroughTheFilterAndDeletePast) {
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

TEST_F(FieldKeysTest, PassesASpaceThroughTheFilterOfAField) {
    box.onKeyPress = DigitFilter();
    actions.Press(box, {Key::kSpace, 0});
    EXPECT_EQ(box.Text(), "");
    EXPECT_EQ(log, (Log{"key 32"}));
}

TEST_F(FieldKeysTest, GivesInsertAsAKeyDownOnly) {
    ListBox list(form, "list");
    list.onKeyDown = [this](int& key) { log.push_back("down " + std::to_string(key)); };
    list.onKeyPress = [this](int& key) { log.push_back("press " + std::to_string(key)); };
    actions.Press(list, {Key::kInsert, 0});
    EXPECT_EQ(log, (Log{"down 45"}));
}

TEST_F(FieldKeysTest, SelectsAndCopiesAFieldsText) {
    box.SetText("123");
    actions.Press(box, {Key::kSelectAll, 0});
    EXPECT_EQ(box.SelLength(), 3U);
    actions.Press(box, {Key::kCopy, 0});
    EXPECT_EQ(host.ClipboardText(), "123");
}

TEST_F(FieldKeysTest, LeavesTheClipboardWhereNothingIsSelected) {
    host.SetClipboardText("before");
    box.SetText("123");
    actions.Press(box, {Key::kCopy, 0});
    EXPECT_EQ(host.ClipboardText(), "before");
}

TEST_F(FieldKeysTest, PastesUnfilteredButCutToTheLimitWithOneChange) {
    box.SetText("1");
    box.onKeyPress = DigitFilter();
    box.onChange = Note("change");
    actions.Paste(box, "abcdef");
    EXPECT_EQ(box.Text(), "abcd");
    EXPECT_EQ(host.ClipboardText(), "abcdef");
    EXPECT_EQ(log, (Log{"change"}));
}

TEST_F(FieldKeysTest, RaisesNoChangeForAPasteOfTheSameText) {
    box.SetText("1234");
    box.onChange = Note("change");
    actions.Paste(box, "12345");
    EXPECT_EQ(log, Log{});
}

TEST_F(FieldKeysTest, PastesWholeWithoutALimit) {
    actions.Paste(next, std::string(500, 'x'));
    EXPECT_EQ(next.Text().size(), 500U);
}

TEST_F(FieldKeysTest, GivesEnterToTheFilterAndPutsNothingIn) {
    box.onKeyPress = [this](int& key) {
        log.push_back("key " + std::to_string(key));
        if (key == 13) application.SetFocus(next);
    };
    actions.Press(box, {Key::kEnter, 0});
    EXPECT_EQ(log, (Log{"key 13"}));
    EXPECT_TRUE(next.HasFocus());
    EXPECT_EQ(box.Text(), "");
}

TEST_F(FieldKeysTest, GivesEscapeToTheFilter) {
    box.onKeyPress = DigitFilter();
    actions.Press(box, {Key::kEscape, 0});
    EXPECT_EQ(log, (Log{"key 27"}));
    EXPECT_EQ(box.Text(), "");
}

TEST_F(FieldKeysTest, AsksFilterAndLimitForAViewThatEditsOnItsOwn) {
    box.onKeyPress = DigitFilter();
    EXPECT_TRUE(actions.AcceptsKey(box, '1'));
    EXPECT_FALSE(actions.AcceptsKey(box, 'x'));
    EXPECT_TRUE(actions.AcceptsKey(box, 8));
    box.SetText("1234");
    EXPECT_FALSE(actions.AcceptsKey(box, '1'));
    EXPECT_TRUE(actions.AcceptsKey(box, 8));
}

TEST_F(FieldKeysTest, TakesAViewsOwnEditAsAPersonsAction) {
    box.onChange = [] { throw RuntimeError(ErrorNumber::kOverflow); };
    actions.Edited(box, "12", 2);
    EXPECT_EQ(box.Text(), "12");
    EXPECT_EQ(host.boxes.size(), 1U);
}

}  // namespace arbolith
