#include "notepad/boxes.h"

#include <QAbstractButton>
#include <QApplication>
#include <QMessageBox>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>
#include <string>

namespace arbolith::notepad {

class BoxesTest : public testing::Test {
public:
    QWidget window;
    Boxes boxes{window};
    QString shown;

    // Once the box is up: notes what it says and presses a key.
    void Answer(Qt::Key key) {
        QTimer::singleShot(0, &window, [this, key] {
            auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            ASSERT_NE(box, nullptr);
            shown = box->text() + u'|' + box->informativeText();
            QTest::keyClick(box, key);
        });
    }
    // The same, with the button of a caption.
    void Press(const QString& caption) {
        QTimer::singleShot(0, &window, [caption] {
            auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            ASSERT_NE(box, nullptr);
            for (auto* button : box->buttons())
                if (button->text().remove(u'&') == caption) return button->click();
            FAIL() << "no such button";
        });
    }
};

TEST_F(BoxesTest, UnsavedChangesAreSavedByEnter) {
    Answer(Qt::Key_Return);
    EXPECT_EQ(boxes.AskAboutUnsaved("a <b>.txt"), UnsavedAnswer::kSave);
    EXPECT_EQ(shown, "Do you want to save the changes to a <b>.txt?|Discarded changes are lost.");
}

TEST_F(BoxesTest, EscapeKeepsUnsavedChanges) {
    Answer(Qt::Key_Escape);
    EXPECT_EQ(boxes.AskAboutUnsaved("a.txt"), UnsavedAnswer::kCancel);
}

TEST_F(BoxesTest, OnlyDiscardDiscards) {
    Press(QStringLiteral("Discard"));
    EXPECT_EQ(boxes.AskAboutUnsaved("a.txt"), UnsavedAnswer::kDiscard);
}

TEST_F(BoxesTest, AMissingFileIsCreatedByEnterAndNotByEscape) {
    Answer(Qt::Key_Return);
    EXPECT_TRUE(boxes.AskToCreate("/tmp/a.txt"));
    EXPECT_EQ(shown, "There is no file /tmp/a.txt.|Do you want to create it?");
    Answer(Qt::Key_Escape);
    EXPECT_FALSE(boxes.AskToCreate("/tmp/a.txt"));
}

TEST_F(BoxesTest, EnterOverwritesNothing) {
    Answer(Qt::Key_Return);
    EXPECT_FALSE(boxes.AskToOverwrite("/tmp/a.txt"));
    Press(QStringLiteral("Overwrite"));
    EXPECT_TRUE(boxes.AskToOverwrite("/tmp/a.txt"));
}

TEST_F(BoxesTest, AFailureTellsFileAndReason) {
    Answer(Qt::Key_Return);
    boxes.TellFailure("/tmp/a.txt", "saved", "No space left on device");
    EXPECT_EQ(shown, "/tmp/a.txt can't be saved.|No space left on device.");
}

}  // namespace arbolith::notepad
