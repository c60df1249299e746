// Dialogs for files and the box for a line of text, with a person who types into them.
#include "qt/file_dialog.h"

#include "unit/platform/temporary_folder.h"
#include "window_test.h"

#include <QApplication>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QHeaderView>
#include <QInputDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <QTreeView>

#include <functional>

namespace arbolith {

namespace {

constexpr const char* kReports = "Text (*.txt)|*.txt|HTML (*.html)|*.html";

struct FileDialogTest : testing::Test {
    FileDialogTest() {
        question.filter = kReports;
        question.folder = folder.Path();
    }

    // Asks, and does something with the dialog as soon as it is up; what is left open is cancelled.
    std::optional<FileChoice> Ask(const std::function<void(QFileDialog&)>& act) {
        QTimer::singleShot(0, [act] {
            auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
            ASSERT_NE(dialog, nullptr);
            act(*dialog);
            if (dialog->isVisible()) dialog->reject();
        });
        return host.ChooseFile(question);
    }

    std::optional<FileChoice> AskForName(const QString& name) {
        return Ask([name](QFileDialog& dialog) { Enter(dialog, name); });
    }

    static void Enter(QFileDialog& dialog, const QString& name) {
        auto* field = dialog.findChild<QLineEdit*>("fileNameEdit");
        field->setText(name);
        QTest::keyClick(field, Qt::Key_Return);
    }

    // Presses a button of the box that the dialog will ask with. Returns whether it asked.
    static std::shared_ptr<bool> AnswerBox(QMessageBox::StandardButton button) {
        auto asked = std::make_shared<bool>(false);
        QTimer::singleShot(0, [asked, button] {
            auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            if (box == nullptr) return;
            *asked = true;
            box->button(button)->click();
        });
        return asked;
    }

    QtHost host;
    TemporaryFolder folder;
    FileQuestion question;
};

}  // namespace

TEST(NameFilters, DescriptionsAndPatternsComeInTurn) {
    EXPECT_EQ(NameFilters("Text (*.txt)|*.txt|HTML documents (*.htm/html)|*.htm;*.html"),
              (QStringList{"Text (*.txt) (*.txt)", "HTML documents (*.htm/html) (*.htm *.html)"}));
    EXPECT_TRUE(NameFilters("").isEmpty());
}

TEST(NameFilters, AllFilesAreAlsoThoseWithoutAPoint) {
    EXPECT_EQ(NameFilters("All Files (*.*)|*.*"), QStringList{"All Files (*.*) (*)"});
}

TEST_F(FileDialogTest, SizesAndDaysOfFilesAreShownWhole) {
    folder.Write("the report of a batch.txt", std::string(123456, 'x'));
    Ask([](QFileDialog& dialog) {
        EXPECT_EQ(dialog.windowTitle(), "Open");
        auto* files = dialog.findChild<QTreeView*>();
        ASSERT_NE(files, nullptr);
        const QAbstractItemView& rows = *files;
        ASSERT_TRUE(QTest::qWaitFor([&] {
            return files->model()->rowCount(files->rootIndex()) == 1 &&
                   files->columnWidth(1) >= rows.sizeHintForColumn(1);
        }));
        for (int column = 0; column < files->header()->count(); ++column) {
            if (files->isColumnHidden(column)) continue;
            EXPECT_GE(files->columnWidth(column), rows.sizeHintForColumn(column)) << column;
        }
        EXPECT_LE(files->header()->length(), files->viewport()->width());
    });
}

TEST_F(FileDialogTest, ANameIsTakenAsItWasTyped) {
    question.saves = true;
    const auto choice = AskForName("no ending");
    ASSERT_TRUE(choice);
    EXPECT_EQ(choice->fileName, folder.PathOf("no ending"));
    EXPECT_EQ(choice->filterIndex, 1);
}

TEST_F(FileDialogTest, NamesAreInTheFileSystemsOwnBytes) {
    folder.Write("\xC3\xA9t\xC3\xA9 \xE2\x86\x92.txt", "");
    question.mustExist = true;
    const auto choice = AskForName(QString::fromUtf8("été →.txt"));
    ASSERT_TRUE(choice);
    EXPECT_EQ(choice->fileName, folder.PathOf("\xC3\xA9t\xC3\xA9 \xE2\x86\x92.txt"));
}

TEST_F(FileDialogTest, AProposedNameKeepsItsBytesEvenWhenTheyAreNoText) {
    question.saves = true;
    question.fileName = folder.PathOf("\xE9t\xE9.txt");
    const auto choice = Ask([](QFileDialog& dialog) {
        QTest::keyClick(dialog.findChild<QLineEdit*>("fileNameEdit"), Qt::Key_Return);
    });
    ASSERT_TRUE(choice);
    EXPECT_EQ(choice->fileName, question.fileName);
}

TEST_F(FileDialogTest, ACancelChoosesNothing) {
    EXPECT_FALSE(Ask([](QFileDialog& dialog) { dialog.reject(); }));
}

TEST_F(FileDialogTest, ItStartsInTheToldFolderWithTheProposedNameAndFilter) {
    question.saves = true;
    question.fileName = "proposed.html";
    question.filterIndex = 2;
    Ask([&](QFileDialog& dialog) {
        EXPECT_EQ(dialog.directory().absolutePath().toStdString(), folder.Path());
        EXPECT_EQ(dialog.findChild<QLineEdit*>("fileNameEdit")->text(), "proposed.html");
        EXPECT_EQ(dialog.findChild<QComboBox*>("fileTypeCombo")->currentText(), "HTML (*.html)");
    });
}

TEST_F(FileDialogTest, ThePathOfAProposedNameGoesBeforeTheFolder) {
    const TemporaryFolder other;
    question.saves = true;
    question.fileName = other.PathOf("run.qvn");
    Ask([&](QFileDialog& dialog) {
        EXPECT_EQ(dialog.directory().absolutePath().toStdString(), other.Path());
        EXPECT_EQ(dialog.findChild<QLineEdit*>("fileNameEdit")->text(), "run.qvn");
    });
}

TEST_F(FileDialogTest, WithoutAFolderItStartsWhereItWasLast) {
    question.saves = true;
    ASSERT_TRUE(AskForName("run.qvn"));
    question.folder = "";
    Ask([&](QFileDialog& dialog) {
        EXPECT_EQ(dialog.directory().absolutePath().toStdString(), folder.Path());
    });
}

TEST_F(FileDialogTest, TheChosenFilterComesBack) {
    question.saves = true;
    const auto choice = Ask([](QFileDialog& dialog) {
        auto* types = dialog.findChild<QComboBox*>("fileTypeCombo");
        QTest::keyClick(types, Qt::Key_Down);
        Enter(dialog, "report");
    });
    ASSERT_TRUE(choice);
    EXPECT_EQ(choice->fileName, folder.PathOf("report"));
    EXPECT_EQ(choice->filterIndex, 2);
}

TEST_F(FileDialogTest, AFileThatMustExistIsAskedForAgain) {
    question.mustExist = true;
    std::shared_ptr<bool> told;
    EXPECT_FALSE(Ask([&](QFileDialog& dialog) {
        told = AnswerBox(QMessageBox::Ok);
        Enter(dialog, "missing.txt");
        EXPECT_TRUE(dialog.isVisible());
    }));
    EXPECT_TRUE(*told);
}

TEST_F(FileDialogTest, AFileThatNeedNotExistIsTaken) {
    const auto choice = AskForName("missing.qvb");
    ASSERT_TRUE(choice);
    EXPECT_EQ(choice->fileName, folder.PathOf("missing.qvb"));
}

TEST_F(FileDialogTest, ItAsksBeforeOverwritingWhereTold) {
    folder.Write("old.txt", "old");
    question.saves = true;
    question.asksBeforeOverwriting = true;
    std::shared_ptr<bool> asked;
    EXPECT_FALSE(Ask([&](QFileDialog& dialog) {
        asked = AnswerBox(QMessageBox::No);
        Enter(dialog, "old.txt");
        EXPECT_TRUE(dialog.isVisible());
    }));
    EXPECT_TRUE(*asked);
}

TEST_F(FileDialogTest, ItOverwritesUnaskedWhereNotTold) {
    folder.Write("old.txt", "old");
    question.saves = true;
    const auto choice = AskForName("old.txt");
    ASSERT_TRUE(choice);
    EXPECT_EQ(choice->fileName, folder.PathOf("old.txt"));
    EXPECT_EQ(folder.Read("old.txt"), "old");
}

namespace {

// Asks for a text, and does something with the box as soon as it is up.
std::optional<std::string> AskForText(const std::function<void(QInputDialog&)>& act) {
    QTimer::singleShot(0, [act] {
        auto* box = qobject_cast<QInputDialog*>(QApplication::activeModalWidget());
        ASSERT_NE(box, nullptr);
        act(*box);
        if (box->isVisible()) box->reject();
    });
    return QtHost().AskForText("Select a name:");
}

}  // namespace

TEST(AskForText, ItShowsThePromptAboveAnEmptyField) {
    AskForText([](QInputDialog& box) {
        EXPECT_EQ(box.labelText(), "Select a name:");
        EXPECT_EQ(box.textValue(), "");
        const auto* buttons = box.findChild<QDialogButtonBox*>();
        EXPECT_EQ(buttons->standardButtons(), QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    });
}

TEST(AskForText, WhatIsTypedIsTheAnswer) {
    EXPECT_EQ(AskForText([](QInputDialog& box) {
                  QTest::keyClicks(box.findChild<QLineEdit*>(), "my chart");
                  QTest::keyClick(&box, Qt::Key_Return);
              }),
              "my chart");
    EXPECT_EQ(AskForText([](QInputDialog& box) { box.accept(); }), "");
}

TEST(AskForText, ANameIsInTheFileSystemsOwnBytes) {
    EXPECT_EQ(AskForText([](QInputDialog& box) {
                  box.setTextValue(QString::fromUtf8("été →"));
                  box.accept();
              }),
              "\xC3\xA9t\xC3\xA9 \xE2\x86\x92");
}

TEST(AskForText, ACancelAnswersNothing) {
    EXPECT_EQ(AskForText([](QInputDialog& box) { QTest::keyClick(&box, Qt::Key_Escape); }),
              std::nullopt);
}

}  // namespace arbolith
