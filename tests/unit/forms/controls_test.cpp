#include "forms/controls.h"

#include "unit/forms/forms_test.h"
#include "unit/platform/expect_error.h"

namespace arbolith {

using LabelTest = FormsTest;
using OptionTest = FormsTest;
using CheckBoxTest = FormsTest;
using TextBoxTest = FormsTest;
using ListBoxTest = FormsTest;
using MenuItemTest = FormsTest;
using ProgressBarTest = FormsTest;
using TimerTest = FormsTest;

TEST_F(LabelTest, RaisesItsChangeWhenTheCaptionChanges) {
    Label label(form, "lbl", "old");
    label.onChange = Note("change");
    label.SetCaption("new");
    EXPECT_EQ(TakeLog(), (Log{"change"}));
    label.SetCaption("new");
    EXPECT_EQ(TakeLog(), Log{});
}

TEST_F(LabelTest, IsTheOnlyKindWhoseCaptionRaisesSomething) {
    Button button(form, "btn", "old");
    button.onChange = Note("change");
    button.SetCaption("new");
    EXPECT_EQ(log, Log{});
}

TEST_F(OptionTest, RaisesItsClickWhenSwitchedOnOnly) {
    Option option(form, "opt");
    option.onClick = Note("click");
    option.SetValue(true);
    EXPECT_EQ(TakeLog(), (Log{"click"}));
    option.SetValue(true);
    option.SetValue(false);
    EXPECT_EQ(TakeLog(), Log{});
    EXPECT_FALSE(option.Value());
}

TEST_F(OptionTest, HasItsNewValueWhenTheClickIsRaised) {
    Option option(form, "opt");
    option.onClick = [&] { log.push_back(option.Value() ? "on" : "off"); };
    option.SetValue(true);
    EXPECT_EQ(log, (Log{"on"}));
}

TEST_F(OptionTest, PairsExcludeEachOtherByTheirHandlersWithoutAnEndlessRound) {
    Option one(form, "one");
    Option two(form, "two");
    one.onClick = [&] {
        log.push_back("one");
        two.SetValue(false);
    };
    two.onClick = [&] {
        log.push_back("two");
        one.SetValue(false);
    };
    one.SetValue(true);
    two.SetValue(true);
    EXPECT_FALSE(one.Value());
    EXPECT_TRUE(two.Value());
    EXPECT_EQ(log, (Log{"one", "two"}));
}

TEST_F(CheckBoxTest, RaisesItsClickForEveryChange) {
    CheckBox box(form, "chk");
    box.onClick = Note("click");
    box.SetValue(true);
    box.SetValue(false);
    EXPECT_EQ(TakeLog(), (Log{"click", "click"}));
    box.SetValue(false);
    EXPECT_EQ(TakeLog(), Log{});
}

TEST_F(TextBoxTest, RaisesItsChangeOnlyWhenTheTextChanges) {
    TextBox box(form, "txt");
    box.onChange = Note("change");
    box.SetText("12");
    box.SetText("12");
    EXPECT_EQ(TakeLog(), (Log{"change"}));
    box.SetText("");
    box.SetText("");
    EXPECT_EQ(TakeLog(), (Log{"change"}));
}

TEST_F(TextBoxTest, RaisesAChangeWithinItsOwnChange) {
    TextBox box(form, "txt");
    box.onChange = [&] {
        log.push_back("begin " + box.Text());
        if (box.Text() == "a") box.SetText("b");
        log.push_back("end " + box.Text());
    };
    box.SetText("a");
    EXPECT_EQ(log, (Log{"begin a", "begin b", "end b", "end b"}));
}

TEST_F(TextBoxTest, EndsARoundOfChangesAtTheEmptyText) {
    TextBox one(form, "one");
    TextBox two(form, "two");
    two.SetText("2");
    one.onChange = [&] {
        log.push_back("one");
        two.SetText("");
    };
    two.onChange = [&] {
        log.push_back("two");
        one.SetText("");
    };
    one.SetText("1");
    EXPECT_EQ(log, (Log{"one", "two", "one"}));
    EXPECT_EQ(one.Text() + two.Text(), "");
}

TEST_F(TextBoxTest, TakesATextOfTheProgramWholeWhateverItsLimit) {
    TextBox box(form, "txt", {}, 3);
    box.SetText("12345");
    EXPECT_EQ(box.Text(), "12345");
    EXPECT_EQ(box.MaxLength(), 3U);
}

TEST_F(TextBoxTest, PutsTheCaretToTheStartOfATextOfTheProgram) {
    TextBox box(form, "txt");
    box.SetText("12345");
    box.SelectAll();
    box.SetText("678");
    EXPECT_EQ(box.SelStart(), 0U);
    EXPECT_EQ(box.SelLength(), 0U);
}

TEST_F(TextBoxTest, LimitsTheSelectionToTheText) {
    TextBox box(form, "txt");
    box.SetText("1234");
    box.Select(2, 10);
    EXPECT_EQ(box.SelStart(), 2U);
    EXPECT_EQ(box.SelLength(), 2U);
    box.Select(9, 1);
    EXPECT_EQ(box.SelStart(), 4U);
    EXPECT_EQ(box.SelLength(), 0U);
}

TEST_F(TextBoxTest, TakesAPersonsEditWithTheCaretBehindIt) {
    TextBox box(form, "txt");
    box.onChange = Note("change");
    box.EditByPerson("12", 1);
    EXPECT_EQ(box.Text(), "12");
    EXPECT_EQ(box.SelStart(), 1U);
    EXPECT_EQ(log, (Log{"change"}));
}

TEST_F(TextBoxTest, CutsAPersonsEditBeforeTheCaretToItsLimit) {
    TextBox box(form, "txt", {}, 4);
    box.SetText("1234");
    // "xyz" was put between 2 and 3: what is too long goes from the end of what was put in.
    box.EditByPerson("12xyz34", 5);
    EXPECT_EQ(box.Text(), "1234");
    EXPECT_EQ(box.SelStart(), 2U);
    box.EditByPerson("1x234", 2);
    EXPECT_EQ(box.Text(), "1234");
}

TEST_F(TextBoxTest, CutsTheEndWhereTheCaretIsTooFarLeft) {
    TextBox box(form, "txt", {}, 3);
    box.EditByPerson("123456", 1);
    EXPECT_EQ(box.Text().size(), 3U);
    EXPECT_LE(box.SelStart(), 3U);
}

TEST_F(TextBoxTest, RaisesNothingForAnEditThatEndsInTheSameText) {
    TextBox box(form, "txt", {}, 3);
    box.SetText("123");
    box.onChange = Note("change");
    box.EditByPerson("1234", 4);
    EXPECT_EQ(box.Text(), "123");
    EXPECT_EQ(log, Log{});
}

TEST_F(TextBoxTest, HasRoomForAKeyBelowItsLimitOrInPlaceOfASelection) {
    TextBox box(form, "txt", {}, 3);
    box.SetText("12");
    EXPECT_TRUE(box.HasRoomForKey());
    box.SetText("123");
    EXPECT_FALSE(box.HasRoomForKey());
    box.Select(1, 1);
    EXPECT_TRUE(box.HasRoomForKey());
    TextBox unlimited(form, "all");
    unlimited.SetText(std::string(1000, 'x'));
    EXPECT_TRUE(unlimited.HasRoomForKey());
}

TEST_F(ListBoxTest, RaisesItsClickWhenTheSelectionMovesToAnotherRow) {
    ListBox list(form, "lst");
    list.AddItem("one");
    list.AddItem("two");
    list.onClick = [&] { log.push_back("click " + list.Text()); };
    list.SetListIndex(1);
    list.SetListIndex(1);
    list.SetListIndex(0);
    EXPECT_EQ(TakeLog(), (Log{"click two", "click one"}));
    list.SetListIndex(-1);
    EXPECT_EQ(TakeLog(), Log{});
    EXPECT_EQ(list.Text(), "");
}

TEST_F(ListBoxTest, RaisesNothingWhenItIsEmptied) {
    ListBox list(form, "lst");
    list.AddItem("one");
    list.SetListIndex(0);
    list.onClick = Note("click");
    list.Clear();
    EXPECT_EQ(list.ListCount(), 0);
    EXPECT_EQ(list.ListIndex(), -1);
    EXPECT_EQ(log, Log{});
}

TEST_F(ListBoxTest, SelectsNoneWhenTheSelectedRowIsRemoved) {
    ListBox list(form, "lst");
    for (const char* row : {"a", "b", "c"}) list.AddItem(row);
    list.SetListIndex(1);
    list.onClick = Note("click");
    list.RemoveItem(1);
    EXPECT_EQ(list.ListIndex(), -1);
    EXPECT_EQ(list.List(), (std::vector<std::string>{"a", "c"}));
    EXPECT_EQ(log, Log{});
}

TEST_F(ListBoxTest, KeepsTheSelectedEntryWhenAnotherRowIsRemoved) {
    ListBox list(form, "lst");
    for (const char* row : {"a", "b", "c"}) list.AddItem(row);
    list.SetListIndex(1);
    list.onClick = Note("click");
    list.RemoveItem(0);
    EXPECT_EQ(list.ListIndex(), 0);
    EXPECT_EQ(list.Text(), "b");
    list.RemoveItem(1);
    EXPECT_EQ(list.Text(), "b");
    EXPECT_EQ(log, Log{});
}

TEST_F(ListBoxTest, RaisesNothingWhenARowsTextIsReplaced) {
    ListBox list(form, "lst");
    list.AddItem("old");
    list.SetListIndex(0);
    list.onClick = Note("click");
    list.ReplaceItem(0, "new");
    EXPECT_EQ(list.Text(), "new");
    EXPECT_EQ(log, Log{});
}

TEST_F(ListBoxTest, FailsWith5OutsideItsRows) {
    ListBox list(form, "lst");
    list.AddItem("one");
    EXPECT_ERROR(5, list.SetListIndex(1));
    EXPECT_ERROR(5, list.SetListIndex(-2));
    EXPECT_ERROR(5, list.RemoveItem(1));
    EXPECT_ERROR(5, list.RemoveItem(-1));
    EXPECT_ERROR(5, list.ReplaceItem(1, "x"));
    EXPECT_EQ(list.ListIndex(), -1);
}

TEST_F(ListBoxTest, IsTheListOfAComboBoxToo) {
    ComboBox combo(form, "cbo");
    combo.AddItem("one");
    combo.onClick = Note("click");
    combo.SetListIndex(0);
    EXPECT_EQ(combo.Kind(), ControlKind::kComboBox);
    EXPECT_EQ(combo.Text(), "one");
    EXPECT_EQ(log, (Log{"click"}));
}

TEST_F(MenuItemTest, KeepsItsMarkAndShortcutAndRaisesNothing) {
    MenuItem menu(form, "File_Mnu", "&File");
    MenuItem item(menu, "Save_Mnu", "&Save", "Ctrl+S");
    item.onClick = Note("click");
    item.SetChecked(true);
    EXPECT_TRUE(item.Checked());
    EXPECT_EQ(item.Shortcut(), "Ctrl+S");
    EXPECT_EQ(log, Log{});
    EXPECT_FALSE(item.IsSeparator());
    EXPECT_TRUE(MenuItem(menu, "Separator", "-").IsSeparator());
}

TEST_F(ProgressBarTest, KeepsItsRangeAndValue) {
    ProgressBar bar(form, "Prog", {}, 100);
    EXPECT_EQ(bar.Max(), 100);
    EXPECT_EQ(bar.Value(), 0);
    bar.SetMax(7);
    bar.SetValue(3);
    EXPECT_EQ(bar.Max(), 7);
    EXPECT_EQ(bar.Value(), 3);
}

TEST_F(TimerTest, KeepsItsInterval) {
    Timer timer(form, "Timer1", 1000);
    EXPECT_EQ(timer.Interval(), 1000);
    timer.SetInterval(38);
    EXPECT_EQ(timer.Interval(), 38);
}

}  // namespace arbolith
