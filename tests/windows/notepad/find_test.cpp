#include "notepad/find.h"

#include <QPlainTextEdit>

#include <gtest/gtest.h>

namespace arbolith::notepad {

class FindTest : public testing::Test {
public:
    QPlainTextEdit text{QStringLiteral("Oak oak\nPine OAK\nred\u00A0oak")};
    Search search{QStringLiteral("oak")};

    // Where the next place is from where the last one was; -1 for none.
    int Next(Direction direction = Direction::kForward) {
        const auto found = Find(*text.document(), text.textCursor(), search, direction);
        if (found.isNull()) return -1;
        text.setTextCursor(found);
        return found.selectionStart();
    }
};

TEST_F(FindTest, FindsOnePlaceAfterTheOther) {
    EXPECT_EQ(Next(), 0);
    EXPECT_EQ(Next(), 4);
    EXPECT_EQ(Next(), 13);
    EXPECT_EQ(text.textCursor().selectedText(), "OAK");
}

TEST_F(FindTest, MatchesTheCaseWhereTold) {
    search.matchesCase = true;
    EXPECT_EQ(Next(), 4);
    EXPECT_EQ(Next(), 21);
}

TEST_F(FindTest, GoesOnAtTheOtherEnd) {
    search.text = QStringLiteral("pine");
    EXPECT_EQ(Next(), 8);
    EXPECT_EQ(Next(), 8);
    EXPECT_EQ(Next(Direction::kBackward), 8);
}

TEST_F(FindTest, StopsAtTheEndWhereTold) {
    search = {QStringLiteral("pine"), false, false};
    EXPECT_EQ(Next(), 8);
    EXPECT_EQ(Next(), -1);
}

TEST_F(FindTest, FindsBackwards) {
    EXPECT_EQ(Next(Direction::kBackward), 21);
    EXPECT_EQ(Next(Direction::kBackward), 13);
}

TEST_F(FindTest, FindsNothingWhereNothingIs) {
    search.text = QStringLiteral("beech");
    EXPECT_EQ(Next(), -1);
    EXPECT_EQ(Next(Direction::kBackward), -1);
}

TEST_F(FindTest, TakesANoBreakSpaceForABlank) {
    search.text = QStringLiteral("red oak");
    EXPECT_EQ(Next(), 17);
    search.text = QStringLiteral("red\u00A0oak");
    EXPECT_EQ(Next(), 17);
}

}  // namespace arbolith::notepad
