#include "window_test.h"

#include <QAction>
#include <QApplication>
#include <QMenu>
#include <QMenuBar>
#include <QTest>

namespace arbolith {

namespace {

struct MenuForm : Form {
    explicit MenuForm(Application& application)
        : Form(application, "MenuForm", "Menus", {6000, 3000}) {
        menu.onClick = [this] { calls += "menu "; };
        open.onClick = [this] { calls += "open "; };
        all.onClick = [this] { calls += "all "; };
        mode.onClick = [this] { calls += "mode "; };
        deep.onClick = [this] { calls += "deep "; };
    }

    MenuItem menu{*this, "menu", "&File"};
    MenuItem open{menu, "open", "&Open"};
    MenuItem line{menu, "line", "-"};
    MenuItem mode{menu, "mode", "Advanced"};
    MenuItem sub{menu, "sub", "&More"};
    MenuItem deep{sub, "deep", "Deep"};
    MenuItem edit{*this, "edit", "&Edit"};
    MenuItem all{edit, "all", "Select &All", "Ctrl+A"};
    Button button{*this, "button", "Button", {240, 240, 1500, 375}};
    TextBox field{*this, "field", {240, 1000, 1500, 375}};
    std::string calls;
};

struct MenuTest : WindowTest {
    MenuTest() { Open(form); }

    MenuForm form{application};
};

}  // namespace

TEST_F(MenuTest, AnEntrysClickFirstOpensItsMenuWithItsEvent) {
    driver->Click(form.open);
    EXPECT_EQ(form.calls, "menu open ");
    EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
}

TEST_F(MenuTest, AnEntryOfASubmenuIsReachedThroughItsMenus) {
    driver->Click(form.deep);
    EXPECT_EQ(form.calls, "menu deep ");
}

TEST_F(MenuTest, ATitlesClickJustOpensTheMenu) {
    driver->Click(form.menu);
    EXPECT_EQ(form.calls, "menu ");
}

TEST_F(MenuTest, TheTitlesEventCanStillDisableAnEntry) {
    form.menu.onClick = [this] { form.open.SetEnabled(false); };
    EXPECT_THROW(driver->Click(form.open), ActionRefused);
    EXPECT_EQ(form.calls, "");
    EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
    EXPECT_EQ(driver->Shown(form.open, "Enabled"), "false");
}

TEST_F(MenuTest, TheTitlesEventCanStillEnableAnEntry) {
    Do([&] { form.open.SetEnabled(false); });
    form.menu.onClick = [this] { form.open.SetEnabled(true); };
    driver->Click(form.open);
    EXPECT_EQ(form.calls, "open ");
}

TEST_F(MenuTest, AShortcutChoosesItsEntryWithoutOpeningTheMenu) {
    driver->Press(form.button, {Key::kSelectAll});
    EXPECT_EQ(form.calls, "all ");
}

TEST_F(MenuTest, AShortcutOfADisabledEntryOrMenuDoesNothing) {
    Do([&] { form.all.SetEnabled(false); });
    driver->Press(form.button, {Key::kSelectAll});
    Do([&] {
        form.all.SetEnabled(true);
        form.edit.SetEnabled(false);
    });
    driver->Press(form.button, {Key::kSelectAll});
    EXPECT_EQ(form.calls, "");
}

TEST_F(MenuTest, OnlyTheStateChecksAnEntry) {
    driver->Click(form.mode);
    EXPECT_EQ(driver->Shown(form.mode, "Checked"), "false");
    Do([&] { form.mode.SetChecked(true); });
    EXPECT_EQ(driver->Shown(form.mode, "Checked"), "true");
    driver->Click(form.mode);
    EXPECT_EQ(driver->Shown(form.mode, "Checked"), "true");
}

TEST_F(MenuTest, ASeparatorIsALine) {
    const auto* line = WindowOf(form).findChild<QAction*>("line");
    EXPECT_TRUE(line->isSeparator());
    EXPECT_EQ(line->text(), "");
    EXPECT_EQ(driver->Shown(form.line, "Caption"), "-");
}

TEST_F(MenuTest, AnAccessKeyOpensAMenuAndItsEntry) {
    driver->Focus(form.field);
    window_events::PressKey(Qt::Key_F, Qt::AltModifier);
    auto* popup = QApplication::activePopupWidget();
    ASSERT_NE(popup, nullptr);
    EXPECT_EQ(popup->objectName(), "menu");
    QTest::keyClick(popup, Qt::Key_O);
    window_events::Settle();
    EXPECT_EQ(form.calls, "menu open ");
    EXPECT_TRUE(WidgetOf<QWidget>(form.field).hasFocus());
}

TEST_F(MenuTest, AMenuLeavesTheFocusWhereItWas) {
    driver->Focus(form.field);
    int lost = 0;
    form.field.onLostFocus = [&] { ++lost; };
    driver->Click(form.menu);
    EXPECT_EQ(lost, 0);
    EXPECT_TRUE(WidgetOf<QWidget>(form.field).hasFocus());
}

TEST_F(MenuTest, AnEntryMayMoveTheFocus) {
    driver->Focus(form.field);
    form.open.onClick = [this] { application.SetFocus(form.button); };
    driver->Click(form.open);
    EXPECT_TRUE(WidgetOf<QWidget>(form.button).hasFocus());
    EXPECT_TRUE(form.button.HasFocus());
}

TEST_F(MenuTest, TheMenuBarIsNoPartOfTheClientArea) {
    auto& window = WindowOf(form);
    EXPECT_EQ(window.InsideOf(form)->height(), 200);
    EXPECT_EQ(window.height(), 200 + window.MenuBar()->height());
    EXPECT_GT(window.MenuBar()->height(), 10);
}

}  // namespace arbolith
