#include "notepad/find_dialog.h"

#include <QPushButton>
#include <QTest>

#include <gtest/gtest.h>
#include <vector>

namespace arbolith::notepad {

class FindDialogTest : public testing::Test {
public:
    std::vector<Direction> sought;
    FindDialog dialog{nullptr, [this](Direction direction) { sought.push_back(direction); }};

    QPushButton& Button(const QString& caption) {
        for (auto* button : dialog.findChildren<QPushButton*>())
            if (button->text() == caption) return *button;
        throw std::runtime_error("no such button");
    }
};

TEST_F(FindDialogTest, StartsFromTheTextThatIsSelected) {
    dialog.Ask(QStringLiteral("oak"));
    EXPECT_TRUE(dialog.isVisible());
    const auto wanted = dialog.Wanted();
    EXPECT_EQ(wanted.text, "oak");
    EXPECT_FALSE(wanted.matchesCase);
    EXPECT_TRUE(wanted.wraps);
}

TEST_F(FindDialogTest, KeepsWhatWasSoughtLast) {
    dialog.Ask(QStringLiteral("oak"));
    dialog.close();
    dialog.Ask(QString());
    EXPECT_EQ(dialog.Wanted().text, "oak");
}

TEST_F(FindDialogTest, EnterFindsTheNext) {
    dialog.Ask(QStringLiteral("oak"));
    QTest::keyClick(dialog.findChild<QLineEdit*>(), Qt::Key_Return);
    EXPECT_EQ(sought, std::vector<Direction>{Direction::kForward});
    EXPECT_TRUE(dialog.isVisible());
}

TEST_F(FindDialogTest, FindsBothWays) {
    dialog.Ask(QStringLiteral("oak"));
    Button(QStringLiteral("Find &Previous")).click();
    Button(QStringLiteral("Find &Next")).click();
    EXPECT_EQ(sought, (std::vector<Direction>{Direction::kBackward, Direction::kForward}));
}

TEST_F(FindDialogTest, FindsNothingForNoText) {
    EXPECT_FALSE(Button(QStringLiteral("Find &Next")).isEnabled());
    dialog.Ask(QStringLiteral("x"));
    EXPECT_TRUE(Button(QStringLiteral("Find &Next")).isEnabled());
    QTest::keyClick(dialog.findChild<QLineEdit*>(), Qt::Key_Backspace);
    EXPECT_FALSE(Button(QStringLiteral("Find &Previous")).isEnabled());
}

TEST_F(FindDialogTest, EscapeClosesIt) {
    dialog.Ask(QStringLiteral("x"));
    QTest::keyClick(&dialog, Qt::Key_Escape);
    EXPECT_FALSE(dialog.isVisible());
}

TEST_F(FindDialogTest, ItsMessageGoesWithTheNextText) {
    dialog.Ask(QStringLiteral("x"));
    dialog.Tell(QStringLiteral("not there"));
    const auto labels = dialog.findChildren<QLabel*>();
    const auto shows = [&labels] {
        return std::any_of(labels.begin(), labels.end(),
                           [](const QLabel* label) { return label->text() == "not there"; });
    };
    EXPECT_TRUE(shows());
    QTest::keyClicks(dialog.findChild<QLineEdit*>(), "y");
    EXPECT_FALSE(shows());
}

}  // namespace arbolith::notepad
