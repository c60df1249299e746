#include "window_test.h"

#include <QAbstractButton>
#include <QCheckBox>
#include <QRadioButton>
#include <QTest>

namespace arbolith {

namespace {

struct ChoiceForm : Form {
    explicit ChoiceForm(Application& application)
        : Form(application, "ChoiceForm", "Choices", {6000, 4000}) {
        first.onClick = [this] {
            ++clicks;
            second.SetValue(false);
        };
        second.onClick = [this] {
            ++clicks;
            first.SetValue(false);
        };
        box.onClick = [this] { ++clicks; };
        button.onClick = [this] { ++clicks; };
    }

    Option first{*this, "first", "First", {240, 240, 4000, 375}};
    Option second{*this, "second", "Second", {240, 720, 4000, 375}};
    CheckBox box{*this, "box", "Box", {240, 1200, 4000, 375}};
    Button button{*this, "button", "&Press", {240, 1680, 1500, 375}};
    int clicks = 0;
};

struct ChoiceTest : WindowTest {
    ChoiceTest() { Open(form); }

    bool IsOn(const Control& control) { return WidgetOf<QAbstractButton>(control).isChecked(); }

    ChoiceForm form{application};
};

}  // namespace

TEST_F(ChoiceTest, AClickSwitchesAnOptionOnAndItsHandlerTheOtherOff) {
    driver->Click(form.first);
    driver->Click(form.second);
    EXPECT_FALSE(IsOn(form.first));
    EXPECT_TRUE(IsOn(form.second));
    EXPECT_EQ(form.clicks, 2);
}

TEST_F(ChoiceTest, AClickOnAnOptionThatIsOnRaisesNothing) {
    driver->Click(form.first);
    driver->Click(form.first);
    EXPECT_TRUE(IsOn(form.first));
    EXPECT_EQ(form.clicks, 1);
}

TEST_F(ChoiceTest, OptionsExcludeEachOtherOnlyByTheirHandlers) {
    form.first.onClick = form.second.onClick = nullptr;
    driver->Click(form.first);
    driver->Click(form.second);
    EXPECT_TRUE(IsOn(form.first));
    EXPECT_TRUE(IsOn(form.second));
}

TEST_F(ChoiceTest, TheProgramSwitchesAnOption) {
    Do([&] { form.second.SetValue(true); });
    EXPECT_TRUE(IsOn(form.second));
}

TEST_F(ChoiceTest, TheWholePlaceOfAnOptionCanBeClicked) {
    auto& widget = WidgetOf<QRadioButton>(form.first);
    window_events::ClickAt(widget, {widget.width() - 2, 2});
    EXPECT_TRUE(IsOn(form.first));
}

TEST_F(ChoiceTest, ArrowKeysGoToTheNeighbour) {
    driver->Click(form.first);
    window_events::PressKey(Qt::Key_Right);
    EXPECT_TRUE(IsOn(form.second));
    EXPECT_TRUE(WidgetOf<QWidget>(form.second).hasFocus());
    window_events::PressKey(Qt::Key_Up);
    EXPECT_TRUE(IsOn(form.first));
}

TEST_F(ChoiceTest, SpaceSwitchesTheFocusedOption) {
    driver->Press(form.second, {Key::kSpace});
    EXPECT_TRUE(IsOn(form.second));
}

TEST_F(ChoiceTest, ACheckBoxGoesOnAndOff) {
    driver->Click(form.box);
    EXPECT_TRUE(IsOn(form.box));
    driver->Press(form.box, {Key::kSpace});
    EXPECT_FALSE(IsOn(form.box));
    EXPECT_EQ(form.clicks, 2);
}

TEST_F(ChoiceTest, ADisabledOptionTakesNoClick) {
    Do([&] { form.first.SetEnabled(false); });
    EXPECT_THROW(driver->Click(form.first), ActionRefused);
    EXPECT_FALSE(WidgetOf<QWidget>(form.first).isEnabled());
    QTest::mouseClick(&WidgetOf<QWidget>(form.first), Qt::LeftButton);
    EXPECT_EQ(form.clicks, 0);
}

TEST_F(ChoiceTest, AButtonIsPressedByMouseSpaceEnterAndAccessKey) {
    driver->Click(form.button);
    driver->Press(form.button, {Key::kSpace});
    driver->Press(form.button, {Key::kEnter});
    driver->Focus(form.first);
    window_events::PressKey(Qt::Key_P, Qt::AltModifier);
    EXPECT_TRUE(QTest::qWaitFor([&] { return form.clicks == 4; }));
}

TEST_F(ChoiceTest, EnterPressesTheDefaultButtonFromAnywhere) {
    form.button.SetDefault(true);
    driver->Press(form.box, {Key::kEnter});
    EXPECT_EQ(form.clicks, 1);
    EXPECT_FALSE(form.box.Value());
}

}  // namespace arbolith
