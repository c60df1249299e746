#include "notepad/text_edit.h"

#include "notepad/columns.h"
#include "qt/texts.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QInputMethodEvent>
#include <QTest>
#include <QTextBlock>

#include <gtest/gtest.h>
#include <random>
#include <string>

namespace arbolith::notepad {

namespace {

std::string AllBytes() {
    std::string all;
    for (int byte = 0; byte < 256; ++byte) all += static_cast<char>(byte);
    return all;
}

// Where a character of a line stands.
double PlaceOf(TextEdit& text, int line, int character) {
    QTextCursor cursor(text.document()->findBlockByNumber(line));
    cursor.movePosition(QTextCursor::Right, QTextCursor::MoveAnchor, character);
    return text.cursorRect(cursor).left();
}

}  // namespace

class TextEditTest : public testing::Test {
public:
    TextEdit text;
};

TEST_F(TextEditTest, EveryByteComesBack) {
    text.SetBytes(AllBytes());
    EXPECT_EQ(text.Bytes(), AllBytes());
}

TEST_F(TextEditTest, AnyBytesComeBack) {
    std::mt19937 random(2);
    for (int round = 0; round < 300; ++round) {
        std::string bytes;
        // Every second byte is one of a line end.
        for (auto length = random() % 60; length > 0; --length)
            bytes += random() % 2 == 0 ? "\r\n"[random() % 2] : static_cast<char>(random() % 256);
        text.SetBytes(bytes);
        ASSERT_EQ(text.Bytes(), bytes);
    }
}

TEST_F(TextEditTest, AFreshTextIsSavedAndCantBeUndone) {
    text.SetBytes("a\nb\r\n");
    EXPECT_FALSE(text.IsModified());
    text.undo();
    EXPECT_EQ(text.Bytes(), "a\nb\r\n");
}

TEST_F(TextEditTest, ALineThatIsAddedEndsAsTheOthers) {
    text.SetBytes("a\nb\n");
    QTest::keyClick(&text, Qt::Key_Return);
    EXPECT_EQ(text.Bytes(), "\na\nb\n");
    text.SetBytes("a\r\n");
    QTest::keyClick(&text, Qt::Key_Return);
    EXPECT_EQ(text.Bytes(), "\r\na\r\n");
}

TEST_F(TextEditTest, LinesThatArentTouchedKeepTheirMixedEnds) {
    text.SetBytes("a\nb\r\nc\rd\r\ne");
    text.GoToLine(3);
    QTest::keyClicks(&text, "x");
    EXPECT_EQ(text.Bytes(), "a\nb\r\nxc\rd\r\ne");
}

TEST_F(TextEditTest, ALineEndComesBackByUndo) {
    text.SetBytes("a\r\nb\nc\r\nd");
    text.GoToLine(3);
    QTest::keyClick(&text, Qt::Key_Backspace);
    EXPECT_EQ(text.Bytes(), "a\r\nbc\r\nd");
    text.undo();
    EXPECT_EQ(text.Bytes(), "a\r\nb\nc\r\nd");
    EXPECT_FALSE(text.IsModified());
}

TEST_F(TextEditTest, ShiftEnterIsALineEndAsAnyOther) {
    text.SetBytes("ab");
    QTest::keyClick(&text, Qt::Key_Return, Qt::ShiftModifier);
    EXPECT_EQ(text.Bytes(), "\r\nab");
    EXPECT_EQ(text.blockCount(), 2);
}

TEST_F(TextEditTest, ATypedCharacterOutsideTheCodePageIsAQuestionMarkAtOnce) {
    QKeyEvent key(QEvent::KeyPress, 0, Qt::NoModifier, QString::fromUtf8("→"));
    QApplication::sendEvent(&text, &key);
    EXPECT_EQ(text.toPlainText(), "?");
    QInputMethodEvent composed;
    composed.setCommitString(QString::fromUtf8("é中"));
    QApplication::sendEvent(&text, &composed);
    EXPECT_EQ(text.Bytes(), "?\xE9?");
}

TEST_F(TextEditTest, PasteTakesWhatTheCodePageHoldsAndAnyLineEnds) {
    QGuiApplication::clipboard()->setText(QString::fromUtf8("é→\rb\u2028c\r\nd"));
    text.paste();
    EXPECT_EQ(text.Bytes(), "\xE9?\r\nb\r\nc\r\nd");
}

TEST_F(TextEditTest, CopyKeepsEveryCharacter) {
    text.SetBytes(
        "a\xA0"
        "b\tc\r\nd");
    text.selectAll();
    text.copy();
    EXPECT_EQ(QGuiApplication::clipboard()->text(), QString::fromUtf8("a\u00A0b\tc\nd"));
}

TEST_F(TextEditTest, CutAndPasteChangeNothing) {
    const std::string bytes = "one\x80\xA0\r\ntwo\t\x81\r\n";
    text.SetBytes(bytes);
    text.selectAll();
    text.cut();
    EXPECT_EQ(text.Bytes(), "");
    text.paste();
    EXPECT_EQ(text.Bytes(), bytes);
}

TEST_F(TextEditTest, TellsItsLineEnds) {
    EXPECT_EQ(text.LineEnds(), "CR LF");
    text.SetBytes("a\nb");
    EXPECT_EQ(text.LineEnds(), "LF");
    text.SetBytes("a\nb\r\n");
    EXPECT_EQ(text.LineEnds(), "Mixed line ends");
}

TEST_F(TextEditTest, DoesntWrapUntilTold) {
    EXPECT_EQ(text.lineWrapMode(), QPlainTextEdit::NoWrap);
}

TEST_F(TextEditTest, AllCharactersAreEquallyWide) {
    const QFontMetricsF metrics(text.font());
    EXPECT_DOUBLE_EQ(metrics.horizontalAdvance(u'i'), metrics.horizontalAdvance(u'W'));
}

// At every zoom a value that fills its column up to the last place must not slip to the next stop.
TEST_F(TextEditTest, TabStopsStandAtEveryEighthColumn) {
    text.SetBytes("1234567\tx\r\n12345678\tx\r\n\tx\r\n1234567812345678x");
    text.show();
    for (int zoom = 50; zoom <= 200; zoom += 10) {
        text.ResetZoom();
        text.ZoomBy((zoom - 100) / 10);
        EXPECT_NEAR(PlaceOf(text, 0, 8), PlaceOf(text, 3, 8), 1.0) << zoom;
        EXPECT_NEAR(PlaceOf(text, 1, 9), PlaceOf(text, 3, 16), 1.0) << zoom;
        EXPECT_NEAR(PlaceOf(text, 2, 1), PlaceOf(text, 3, 8), 1.0) << zoom;
    }
}

TEST_F(TextEditTest, ZoomHasEndsAndAWayBack) {
    int changes = 0;
    text.onZoomChange = [&changes] { ++changes; };
    text.ZoomBy(1);
    EXPECT_EQ(text.Zoom(), 110);
    text.ZoomBy(-100);
    EXPECT_EQ(text.Zoom(), 50);
    text.ZoomBy(100);
    EXPECT_EQ(text.Zoom(), 400);
    text.ResetZoom();
    EXPECT_EQ(text.Zoom(), 100);
    EXPECT_EQ(changes, 4);
    EXPECT_FALSE(text.IsModified());
}

TEST_F(TextEditTest, GoesToALine) {
    text.SetBytes("a\r\nb\r\nc");
    text.GoToLine(2);
    EXPECT_EQ(text.textCursor().blockNumber(), 1);
    EXPECT_EQ(text.textCursor().positionInBlock(), 0);
}

}  // namespace arbolith::notepad
