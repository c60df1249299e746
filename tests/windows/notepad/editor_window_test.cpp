#include "notepad/editor_window.h"

#include "unit/notepad/fakes.h"
#include "unit/platform/temporary_folder.h"

#include <QApplication>
#include <QInputDialog>
#include <QMenuBar>
#include <QScreen>
#include <QSpinBox>
#include <QStatusBar>
#include <QTest>
#include <QTimer>

#include <algorithm>
#include <gtest/gtest.h>
#include <set>
#include <string>

namespace arbolith::notepad {

class EditorWindowTest : public testing::Test {
public:
    TemporaryFolder folder;
    std::string path = folder.PathOf("stands.qvb");
    FakePerson person;
    EditorWindow window{&person};

    void StartWith(const std::string& bytes) {
        folder.Write("stands.qvb", bytes);
        window.show();
        window.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
        ASSERT_TRUE(window.Start(path));
    }
    void Type(const QString& keys) { QTest::keyClicks(&window.Text(), keys); }
    void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        QTest::keyClick(&window.Text(), key, modifiers);
    }
    // What the title bar shows.
    std::string Title() const {
        const auto mark = window.isWindowModified() ? QStringLiteral("*") : QString();
        return window.windowTitle().replace(QStringLiteral("[*]"), mark).toStdString();
    }
    bool StatusShows(const QString& text) const {
        const auto labels = window.statusBar()->findChildren<QLabel*>();
        return std::any_of(labels.begin(), labels.end(),
                           [&text](const QLabel* label) { return label->text() == text; });
    }
};

TEST_F(EditorWindowTest, ShowsTheFilesNameAndItsText) {
    StartWith("sequences:\r\n");
    EXPECT_EQ(Title(), "stands.qvb - Notepad");
    EXPECT_EQ(window.Text().Bytes(), "sequences:\r\n");
    EXPECT_TRUE(StatusShows(QStringLiteral("CR LF")));
}

TEST_F(EditorWindowTest, MarksUnsavedTextInTheTitle) {
    StartWith("text");
    Type(QStringLiteral("x"));
    EXPECT_EQ(Title(), "stands.qvb* - Notepad");
    Press(Qt::Key_S, Qt::ControlModifier);
    EXPECT_EQ(Title(), "stands.qvb - Notepad");
    EXPECT_EQ(folder.Read("stands.qvb"), "xtext");
}

TEST_F(EditorWindowTest, WhatIsUndoneIsNotUnsaved) {
    StartWith("text");
    Type(QStringLiteral("x"));
    Press(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(Title(), "stands.qvb - Notepad");
    EXPECT_TRUE(window.close());
    EXPECT_TRUE(person.asked.empty());
}

TEST_F(EditorWindowTest, CloseAsksBeforeUnsavedTextIsLost) {
    StartWith("text");
    Type(QStringLiteral("x"));
    EXPECT_FALSE(window.close());
    EXPECT_TRUE(window.isVisible());
    person.unsaved = UnsavedAnswer::kSave;
    EXPECT_TRUE(window.close());
    EXPECT_EQ(folder.Read("stands.qvb"), "xtext");
}

TEST_F(EditorWindowTest, DiscardLeavesTheFile) {
    StartWith("text");
    Type(QStringLiteral("x"));
    person.unsaved = UnsavedAnswer::kDiscard;
    EXPECT_TRUE(window.close());
    EXPECT_EQ(folder.Read("stands.qvb"), "text");
}

TEST_F(EditorWindowTest, SaveAsTakesTheOtherName) {
    StartWith("text");
    person.chosen = folder.PathOf("other.txt");
    Press(Qt::Key_S, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(Title(), "other.txt - Notepad");
    EXPECT_EQ(folder.Read("other.txt"), "text");
}

TEST_F(EditorWindowTest, OpenShowsTheOtherFile) {
    StartWith("text");
    folder.Write("other.txt", "other\n");
    person.chosen = folder.PathOf("other.txt");
    Press(Qt::Key_O, Qt::ControlModifier);
    EXPECT_EQ(Title(), "other.txt - Notepad");
    EXPECT_EQ(window.Text().Bytes(), "other\n");
    EXPECT_TRUE(StatusShows(QStringLiteral("LF")));
}

TEST_F(EditorWindowTest, NewIsUntitled) {
    StartWith("text");
    Press(Qt::Key_N, Qt::ControlModifier);
    EXPECT_EQ(Title(), "Untitled - Notepad");
    EXPECT_EQ(window.Text().Bytes(), "");
}

TEST_F(EditorWindowTest, TellsLineAndColumn) {
    StartWith("one\r\ntwo\r\n");
    EXPECT_TRUE(StatusShows(QStringLiteral("Line 1, column 1")));
    Press(Qt::Key_Down);
    Press(Qt::Key_End);
    EXPECT_TRUE(StatusShows(QStringLiteral("Line 2, column 4")));
}

TEST_F(EditorWindowTest, ZoomsByKeys) {
    StartWith("text");
    Press(Qt::Key_Plus, Qt::ControlModifier);
    EXPECT_TRUE(StatusShows(QStringLiteral("110%")));
    Press(Qt::Key_Minus, Qt::ControlModifier);
    Press(Qt::Key_Minus, Qt::ControlModifier);
    EXPECT_TRUE(StatusShows(QStringLiteral("90%")));
    Press(Qt::Key_0, Qt::ControlModifier);
    EXPECT_TRUE(StatusShows(QStringLiteral("100%")));
}

TEST_F(EditorWindowTest, F3FindsWhatTheDialogWasAskedFor) {
    StartWith("oak pine oak\r\n");
    Press(Qt::Key_Right, Qt::ShiftModifier);
    Press(Qt::Key_Right, Qt::ShiftModifier);
    Press(Qt::Key_Right, Qt::ShiftModifier);
    Press(Qt::Key_F, Qt::ControlModifier);
    auto* dialog = window.findChild<QDialog*>();
    ASSERT_NE(dialog, nullptr);
    EXPECT_TRUE(dialog->isVisible());
    EXPECT_EQ(dialog->findChild<QLineEdit*>()->text(), "oak");
    dialog->close();
    Press(Qt::Key_F3);
    EXPECT_EQ(window.Text().textCursor().selectionStart(), 9);
    Press(Qt::Key_F3);
    EXPECT_EQ(window.Text().textCursor().selectionStart(), 0);
    Press(Qt::Key_F3, Qt::ShiftModifier);
    EXPECT_EQ(window.Text().textCursor().selectionStart(), 9);
}

TEST_F(EditorWindowTest, WhatIsNotThereIsTold) {
    StartWith("oak\r\n");
    Press(Qt::Key_F3);
    auto* dialog = window.findChild<QDialog*>();
    ASSERT_NE(dialog, nullptr);
    QTest::keyClicks(dialog->findChild<QLineEdit*>(), "beech");
    QTest::keyClick(dialog->findChild<QLineEdit*>(), Qt::Key_Return);
    EXPECT_EQ(window.statusBar()->currentMessage(), "\"beech\" is not there.");
}

TEST_F(EditorWindowTest, GoesToALine) {
    StartWith("a\r\nb\r\nc\r\n");
    QTimer::singleShot(0, &window, [] {
        auto* dialog = qobject_cast<QInputDialog*>(QApplication::activeModalWidget());
        ASSERT_NE(dialog, nullptr);
        dialog->setIntValue(3);
        dialog->accept();
    });
    Press(Qt::Key_G, Qt::ControlModifier);
    EXPECT_TRUE(StatusShows(QStringLiteral("Line 3, column 1")));
}

TEST_F(EditorWindowTest, PrintingAsksFirstAndCanBeCancelled) {
    StartWith("text");
    bool asked = false;
    QTimer::singleShot(0, &window, [&asked] {
        auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        ASSERT_NE(dialog, nullptr);
        asked = true;
        dialog->reject();
    });
    Press(Qt::Key_P, Qt::ControlModifier);
    EXPECT_TRUE(asked);
    EXPECT_EQ(Title(), "stands.qvb - Notepad");
}

TEST_F(EditorWindowTest, WrapsOnlyWhenTold) {
    StartWith("text");
    for (auto* menu : window.menuBar()->actions())
        for (auto* action : menu->menu()->actions())
            if (action->text() == "&Word Wrap") action->trigger();
    EXPECT_EQ(window.Text().lineWrapMode(), QPlainTextEdit::WidgetWidth);
}

TEST_F(EditorWindowTest, EveryCommandHasAnAccessKeyOfItsOwn) {
    for (auto* menu : window.menuBar()->actions()) {
        std::set<QChar> keys;
        for (auto* action : menu->menu()->actions()) {
            if (action->isSeparator()) continue;
            const auto mark = action->text().indexOf(u'&');
            ASSERT_GE(mark, 0) << qPrintable(action->text());
            EXPECT_TRUE(keys.insert(action->text()[mark + 1].toLower()).second)
                << qPrintable(action->text());
        }
    }
}

TEST_F(EditorWindowTest, OpensWithinTheScreen) {
    const auto screen = window.screen()->availableSize();
    EXPECT_LE(window.width(), screen.width());
    EXPECT_LE(window.height(), screen.height());
    EXPECT_GE(window.width(), 600);
}

TEST_F(EditorWindowTest, AMissingFileThatIsNotWantedLeavesNothingToEdit) {
    EXPECT_FALSE(window.Start(path));
    person.creates = true;
    EXPECT_TRUE(window.Start(path));
    EXPECT_EQ(Title(), "stands.qvb - Notepad");
}

}  // namespace arbolith::notepad
