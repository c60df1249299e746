#include "qt/texts.h"
#include "window_test.h"

#include <QApplication>
#include <QClipboard>
#include <QLineEdit>
#include <QTest>

#include <cctype>

namespace arbolith {

namespace {

struct FieldForm : Form {
    explicit FieldForm(Application& application)
        : Form(application, "FieldForm", "Fields", {6000, 4000}) {
        digits.SetSelectsAllOnFocus(true);
        digits.onKeyPress = [](int& key) {
            if (key >= ' ' && std::isdigit(key) == 0) key = 0;
        };
        digits.onChange = [this] { ++changes; };
        other.onChange = [this] { ++changes; };
    }

    TextBox digits{*this, "digits", {240, 240, 2000, 375}, 4};
    TextBox other{*this, "other", {240, 720, 4000, 375}};
    int changes = 0;
};

struct TextBoxTest : WindowTest {
    TextBoxTest() {
        Open(form);
        driver->Focus(form.other);
    }

    QLineEdit& Digits() { return WidgetOf<QLineEdit>(form.digits); }
    QLineEdit& Other() { return WidgetOf<QLineEdit>(form.other); }

    FieldForm form{application};
};

}  // namespace

TEST_F(TextBoxTest, KeysPassTheFilterAndThenTheLengthLimit) {
    driver->Type(form.digits, "1a2b345");
    EXPECT_EQ(Digits().text(), "1234");
    EXPECT_EQ(form.digits.Text(), "1234");
    EXPECT_EQ(form.changes, 4);
}

TEST_F(TextBoxTest, TheEditorHasNoLimitOfItsOwn) {
    const std::string text(70000, 'x');
    driver->Paste(form.other, text);
    EXPECT_EQ(form.other.Text().size(), text.size());
    Do([&] { form.digits.SetText("123456"); });
    EXPECT_EQ(Digits().text(), "123456");
}

TEST_F(TextBoxTest, APasteIsCutToTheLimitAndNotFiltered) {
    driver->Paste(form.digits, "ab1234");
    EXPECT_EQ(Digits().text(), "ab12");
    EXPECT_EQ(form.digits.Text(), "ab12");
    EXPECT_EQ(form.changes, 1);
}

TEST_F(TextBoxTest, APasteInTheMiddleLosesWhatIsTooLongBeforeTheCaret) {
    driver->Type(form.digits, "89");
    window_events::PressKey(Qt::Key_Home);
    QApplication::clipboard()->setText("12345");
    window_events::PressKey(Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(form.digits.Text(), "1289");
    EXPECT_EQ(Digits().text(), "1289");
    EXPECT_EQ(Digits().cursorPosition(), 2);
}

TEST_F(TextBoxTest, UndoIsAnEditLikeOthers) {
    driver->Type(form.other, "ab");
    window_events::PressKey(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(FromQString(Other().text()), form.other.Text());
    EXPECT_LT(form.other.Text().size(), 2u);
}

TEST_F(TextBoxTest, ADeletedCharacterCanBeBroughtBack) {
    driver->Type(form.other, "ab");
    window_events::PressKey(Qt::Key_Home);
    window_events::PressKey(Qt::Key_Delete);
    EXPECT_EQ(form.other.Text(), "b");
    window_events::PressKey(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(form.other.Text(), "ab");
}

TEST_F(TextBoxTest, CutTakesTheSelectionOut) {
    driver->Type(form.other, "abc");
    window_events::PressKey(Qt::Key_A, Qt::ControlModifier);
    window_events::PressKey(Qt::Key_X, Qt::ControlModifier);
    EXPECT_EQ(form.other.Text(), "");
    EXPECT_EQ(QApplication::clipboard()->text(), "abc");
}

TEST_F(TextBoxTest, CopyGoesToTheHostsClipboard) {
    driver->Type(form.other, "caf\xE9");
    window_events::PressKey(Qt::Key_A, Qt::ControlModifier);
    window_events::PressKey(Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(host.ClipboardText(), "caf\xE9");
}

TEST_F(TextBoxTest, ACharacterOutsideTheCodePageBecomesAQuestionMark) {
    driver->Focus(form.other);
    const QString arrow = QString::fromUtf8("→");
    QTest::sendKeyEvent(QTest::Click, &Other(), Qt::Key_unknown, arrow, Qt::NoModifier);
    EXPECT_EQ(form.other.Text(), "?");
    EXPECT_EQ(Other().text(), "?");
    driver->Paste(form.other, "");
    QApplication::clipboard()->setText(arrow + "1");
    window_events::PressKey(Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(form.other.Text(), "?1");
    EXPECT_EQ(Other().text(), "?1");
}

TEST_F(TextBoxTest, AnInputMethodsTextIsAnEdit) {
    driver->Focus(form.digits);
    QInputMethodEvent composed;
    composed.setCommitString("7x");
    QApplication::sendEvent(&Digits(), &composed);
    EXPECT_EQ(form.digits.Text(), "7x");
}

TEST_F(TextBoxTest, ATextFromTheProgramReplacesWhatIsShown) {
    driver->Type(form.other, "mine");
    Do([&] { form.other.SetText("programs"); });
    EXPECT_EQ(Other().text(), "programs");
    EXPECT_EQ(Other().cursorPosition(), 0);
}

TEST_F(TextBoxTest, AClickThatBringsTheFocusSelectsTheWholeText) {
    Do([&] { form.digits.SetText("123"); });
    window_events::ClickAt(Digits(), {10, 10});
    EXPECT_EQ(Digits().selectedText(), "123");
    EXPECT_EQ(form.digits.SelLength(), 3u);
    driver->Press(form.digits, {Key::kCharacter, '9'});
    EXPECT_EQ(Digits().text(), "9");
}

TEST_F(TextBoxTest, ASecondClickPlacesTheCaret) {
    Do([&] { form.digits.SetText("123"); });
    window_events::ClickAt(Digits(), {10, 10});
    window_events::ClickAt(Digits(), {Digits().width() - 5, 10});
    EXPECT_FALSE(Digits().hasSelectedText());
    EXPECT_EQ(form.digits.SelStart(), 3u);
    EXPECT_EQ(form.digits.SelLength(), 0u);
}

TEST_F(TextBoxTest, DrawingTheMouseFromTheFirstPressSelectsAPart) {
    Do([&] { form.digits.SetText("1234"); });
    const int right = Digits().width() - 5;
    window_events::Drag(Digits(), {right, 10}, [] { return QPoint(0, 10); });
    EXPECT_EQ(form.digits.SelStart(), 0u);
    EXPECT_EQ(form.digits.SelLength(), 4u);
    EXPECT_EQ(Digits().cursorPosition(), 0);
}

TEST_F(TextBoxTest, ThePersonsSelectionReachesTheState) {
    driver->Type(form.other, "abcdef");
    window_events::PressKey(Qt::Key_Left, Qt::ShiftModifier);
    window_events::PressKey(Qt::Key_Left, Qt::ShiftModifier);
    EXPECT_EQ(form.other.SelStart(), 4u);
    EXPECT_EQ(form.other.SelLength(), 2u);
}

TEST_F(TextBoxTest, TheStatesSelectionIsShown) {
    driver->Type(form.other, "abcdef");
    Do([&] { form.other.Select(1, 3); });
    EXPECT_EQ(Other().selectedText(), "bcd");
}

TEST_F(TextBoxTest, EnterAndInsertReachTheFieldsHandlers) {
    int key = 0;
    int down = 0;
    form.other.onKeyPress = [&](int& pressed) { key = pressed; };
    form.other.onKeyDown = [&](int& number) { down = number; };
    driver->Press(form.other, {Key::kEnter});
    EXPECT_EQ(key, 13);
    driver->Press(form.other, {Key::kInsert});
    EXPECT_EQ(down, 45);
    driver->Press(form.other, {Key::kDelete});
    EXPECT_EQ(down, 46);
}

TEST_F(TextBoxTest, ARefusedBackspaceTakesNothing) {
    driver->Type(form.other, "ab");
    form.other.onKeyPress = [](int& key) { key = 0; };
    driver->Press(form.other, {Key::kBackspace});
    EXPECT_EQ(Other().text(), "ab");
    form.other.onKeyPress = nullptr;
    driver->Press(form.other, {Key::kBackspace});
    EXPECT_EQ(form.other.Text(), "a");
}

TEST_F(TextBoxTest, AHandlerThatMovesOnAtTheLastDigitLeavesTheRestToTheNextField) {
    form.digits.onChange = [this] {
        if (form.digits.Text().size() == 2) application.SetFocus(form.other);
    };
    driver->Focus(form.digits);
    for (const char c : std::string("123"))
        window_events::PressKey(Key{Key::kCharacter, static_cast<unsigned char>(c)});
    EXPECT_EQ(form.digits.Text(), "12");
    EXPECT_EQ(form.other.Text(), "3");
}

}  // namespace arbolith
