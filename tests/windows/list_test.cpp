#include "window_test.h"

#include <QComboBox>
#include <QListView>

namespace arbolith {

namespace {

struct ListForm : Form {
    explicit ListForm(Application& application)
        : Form(application, "ListForm", "Lists", {6000, 6000}) {
        for (const char* species : {"White Pine", "Red Pine", "Black Spruce", "Red Spruce"}) {
            list.AddItem(species);
            combo.AddItem(species);
        }
        list.onClick = [this] { ++clicks; };
        list.onDoubleClick = [this] { ++doubleClicks; };
        combo.onClick = [this] { ++clicks; };
    }

    ListBox list{*this, "list", {240, 240, 3000, 2400}};
    ComboBox combo{*this, "combo", {240, 3000, 3000, 375}};
    Button button{*this, "button", "Button", {240, 4000, 3000, 375}};
    int clicks = 0;
    int doubleClicks = 0;
};

struct ListTest : WindowTest {
    ListTest() {
        Open(form);
        driver->Focus(form.button);
    }

    QListView& List() { return WidgetOf<QListView>(form.list); }
    int SelectedRow() {
        const auto rows = List().selectionModel()->selectedRows();
        return rows.isEmpty() ? -1 : rows.first().row();
    }

    ListForm form{application};
};

}  // namespace

TEST_F(ListTest, AClickOnARowSelectsIt) {
    driver->SelectRow(form.list, 2);
    EXPECT_EQ(form.list.ListIndex(), 2);
    EXPECT_EQ(SelectedRow(), 2);
    EXPECT_EQ(form.clicks, 1);
}

TEST_F(ListTest, AClickOnTheSelectedRowRaisesNothing) {
    driver->SelectRow(form.list, 2);
    driver->SelectRow(form.list, 2);
    EXPECT_EQ(form.clicks, 1);
}

TEST_F(ListTest, GettingTheFocusSelectsNothing) {
    driver->Focus(form.list);
    EXPECT_EQ(form.list.ListIndex(), -1);
    EXPECT_EQ(SelectedRow(), -1);
    EXPECT_FALSE(List().currentIndex().isValid());
}

TEST_F(ListTest, AClickBelowTheRowsSelectsNothing) {
    window_events::ClickAt(*List().viewport(), {5, List().viewport()->height() - 3});
    EXPECT_EQ(form.list.ListIndex(), -1);
    EXPECT_TRUE(List().hasFocus());
}

TEST_F(ListTest, KeysMoveTheSelection) {
    driver->Press(form.list, {Key::kDown});
    EXPECT_EQ(SelectedRow(), 0);
    window_events::PressKey(Qt::Key_End);
    EXPECT_EQ(SelectedRow(), 3);
    window_events::PressKey(Qt::Key_Home);
    EXPECT_EQ(SelectedRow(), 0);
    window_events::PressKey(Qt::Key_PageDown);
    EXPECT_EQ(SelectedRow(), 3);
    driver->Press(form.list, {Key::kUp});
    EXPECT_EQ(SelectedRow(), 2);
    driver->Press(form.list, {Key::kCharacter, 'r'});
    EXPECT_EQ(SelectedRow(), 3);
    driver->Press(form.list, {Key::kCharacter, 'r'});
    EXPECT_EQ(SelectedRow(), 1);
}

TEST_F(ListTest, EnterReachesTheListsHandler) {
    int key = 0;
    form.list.onKeyPress = [&](int& pressed) { key = pressed; };
    driver->Press(form.list, {Key::kEnter});
    EXPECT_EQ(key, 13);
}

TEST_F(ListTest, ADoubleClickCountsOnce) {
    driver->SelectRow(form.list, 1);
    driver->DoubleClick(form.list);
    EXPECT_EQ(form.doubleClicks, 1);
    EXPECT_EQ(form.clicks, 1);
}

TEST_F(ListTest, TheProgramsRowsAndSelectionAreShown) {
    Do([&] {
        form.list.Clear();
        form.list.AddItem("Red Oak");
        form.list.AddItem("Red Maple");
        form.list.SetListIndex(1);
    });
    EXPECT_EQ(driver->Shown(form.list, "ListCount"), "2");
    EXPECT_EQ(driver->Shown(form.list, "List(0)"), "Red Oak");
    EXPECT_EQ(driver->Shown(form.list, "Text"), "Red Maple");
    EXPECT_EQ(SelectedRow(), 1);
    Do([&] { form.list.SetListIndex(-1); });
    EXPECT_EQ(SelectedRow(), -1);
}

TEST_F(ListTest, TheSelectionStaysWithItsEntry) {
    driver->SelectRow(form.list, 2);
    Do([&] { form.list.RemoveItem(0); });
    EXPECT_EQ(SelectedRow(), 1);
    EXPECT_EQ(driver->Shown(form.list, "Text"), "Black Spruce");
    Do([&] { form.list.RemoveItem(1); });
    EXPECT_EQ(SelectedRow(), -1);
}

TEST_F(ListTest, ALongListIsScrolledToItsSelection) {
    Do([&] {
        form.list.Clear();
        for (int row = 0; row < 1025; ++row) form.list.AddItem("Row " + std::to_string(row));
        form.list.SetListIndex(1000);
    });
    const QModelIndex selected = List().currentIndex();
    EXPECT_EQ(selected.row(), 1000);
    EXPECT_TRUE(List().viewport()->rect().contains(List().visualRect(selected)));
    driver->SelectRow(form.list, 3);
    EXPECT_EQ(SelectedRow(), 3);
}

TEST_F(ListTest, ADisabledListTakesNothing) {
    Do([&] { form.list.SetEnabled(false); });
    EXPECT_THROW(driver->SelectRow(form.list, 1), ActionRefused);
    EXPECT_THROW(driver->Press(form.list, {Key::kDown}), ActionRefused);
    EXPECT_EQ(form.list.ListIndex(), -1);
}

TEST_F(ListTest, AComboBoxDropsItsRowsDown) {
    driver->SelectRow(form.combo, 3);
    EXPECT_EQ(form.combo.ListIndex(), 3);
    EXPECT_EQ(WidgetOf<QComboBox>(form.combo).currentText(), "Red Spruce");
    driver->Press(form.combo, {Key::kUp});
    EXPECT_EQ(driver->Shown(form.combo, "Text"), "Black Spruce");
    EXPECT_EQ(form.clicks, 2);
}

TEST_F(ListTest, AComboBoxFollowsItsState) {
    Do([&] {
        form.combo.Clear();
        form.combo.AddItem("Red Oak");
    });
    EXPECT_EQ(driver->Shown(form.combo, "ListCount"), "1");
    EXPECT_EQ(driver->Shown(form.combo, "ListIndex"), "-1");
    Do([&] { form.combo.SetListIndex(0); });
    EXPECT_EQ(driver->Shown(form.combo, "Text"), "Red Oak");
}

}  // namespace arbolith
