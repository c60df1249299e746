// The help window over the pages that the build makes.
#include "qt/help_window.h"

#include "qt/dark_colours.h"
#include "qt/help_page.h"
#include "unit/platform/temporary_folder.h"

#include <QAction>
#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPdfWriter>
#include <QScrollBar>
#include <QTest>
#include <QTextBlock>
#include <QTextCursor>
#include <QTreeWidget>

#include <gtest/gtest.h>

namespace arbolith {
namespace {

class HelpWindowTest : public testing::Test {
protected:
    HelpWindowTest() {
        window.ShowFirstPage();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
    }

    template <class Child>
    Child& Get(const char* name) {
        return *window.findChild<Child*>(name);
    }
    void Choose(const char* action) { Get<QAction>(action).trigger(); }
    QString ShownFile() { return page.source().fileName(); }
    QTreeWidgetItem* Entry(const QString& title) {
        const auto found = contents.findItems(title, Qt::MatchExactly | Qt::MatchRecursive);
        return found.isEmpty() ? nullptr : found.constFirst();
    }
    // The colour of the page's first link.
    QColor LinkColour() {
        QTextCursor cursor(page.document());
        while (!cursor.charFormat().isAnchor() && !cursor.atEnd())
            cursor.movePosition(QTextCursor::NextCharacter);
        return cursor.charFormat().foreground().color();
    }
    void Follow(const QString& link) { emit page.anchorClicked(QUrl(link)); }

    HelpWindow window{HELP_FOLDER};
    HelpPage& page = window.Page();
    QTreeWidget& contents = Get<QTreeWidget>("helpContents");
};

TEST_F(HelpWindowTest, BeginsOnTheFirstPage) {
    EXPECT_TRUE(window.isVisible());
    EXPECT_EQ(ShownFile(), "index.html");
    EXPECT_EQ(window.windowTitle(), "Arbolith Help");
    EXPECT_TRUE(page.toPlainText().startsWith("Arbolith Help"));
    EXPECT_FALSE(Get<QAction>("helpBack").isEnabled());
}

TEST_F(HelpWindowTest, LinksTakeTheDesktopsColours) {
    const QColor before = LinkColour();
    EXPECT_EQ(before, QApplication::palette().color(QPalette::Link));
    QApplication::setPalette(DarkPalette());
    EXPECT_TRUE(
        QTest::qWaitFor([&] { return LinkColour() == DarkPalette().color(QPalette::Link); }));
    EXPECT_EQ(ShownFile(), "index.html");
    QApplication::setPalette(QPalette());
    EXPECT_TRUE(QTest::qWaitFor([&] { return LinkColour() == before; }));
}

TEST_F(HelpWindowTest, TheContentsAreATree) {
    ASSERT_NE(Entry("The seven steps"), nullptr);
    ASSERT_NE(Entry("Step 4: Site"), nullptr);
    EXPECT_EQ(Entry("Step 4: Site")->parent(), Entry("The seven steps"));
    contents.setCurrentItem(Entry("Step 4: Site"));
    EXPECT_EQ(ShownFile(), "step4.html");
    EXPECT_EQ(window.windowTitle(), "Step 4: Site - Arbolith Help");
}

TEST_F(HelpWindowTest, EveryEntryOpensAPage) {
    for (QTreeWidgetItemIterator at(&contents); *at; ++at) {
        contents.setCurrentItem(*at);
        EXPECT_TRUE(page.toPlainText().startsWith((*at)->text(0))) << (*at)->text(0).toStdString();
    }
}

TEST_F(HelpWindowTest, LinksLeadThroughThePagesAndBack) {
    Follow("steps.html");
    Follow("step4.html");
    Follow("vlrn/forestry/handbook/page1.htm");
    EXPECT_EQ(ShownFile(), "page1.htm");
    Follow("../../../index.html");
    EXPECT_EQ(ShownFile(), "index.html");
    QTest::keyClick(&window, Qt::Key_Left, Qt::AltModifier);
    QTest::keyClick(&window, Qt::Key_Left, Qt::AltModifier);
    EXPECT_EQ(ShownFile(), "step4.html");
    EXPECT_EQ(contents.currentItem(), Entry("Step 4: Site"));
    QTest::keyClick(&window, Qt::Key_Right, Qt::AltModifier);
    EXPECT_EQ(ShownFile(), "page1.htm");
    QTest::keyClick(&window, Qt::Key_Home, Qt::AltModifier);
    EXPECT_EQ(ShownFile(), "index.html");
}

TEST_F(HelpWindowTest, OtherLinksGoElsewhere) {
    QStringList asked;
    window.onOtherLink = [&](const QString& address) { asked << address; };
    Follow("https://example.org/forest");
    Follow("vlrn/forestry/reports/report24.pdf");
    EXPECT_EQ(ShownFile(), "index.html");
    EXPECT_EQ(asked, (QStringList{"https://example.org/forest",
                                  HELP_FOLDER "/vlrn/forestry/reports/report24.pdf"}));
}

TEST_F(HelpWindowTest, SearchFindsThePagesWithAllWords) {
    QTest::keyClick(&window, Qt::Key_F, Qt::ControlModifier);
    auto& words = Get<QLineEdit>("helpWords");
    auto& hits = Get<QListWidget>("helpHits");
    EXPECT_TRUE(words.hasFocus());
    QTest::keyClicks(&words, "norway SPRUCE");
    ASSERT_GT(hits.count(), 1);
    EXPECT_EQ(hits.item(0)->text(), "A note on Norway spruce");
    EXPECT_EQ(Get<QLabel>("helpCount").text(), QStringLiteral("%1 pages").arg(hits.count()));
    QTest::keyClick(&words, Qt::Key_Return);
    EXPECT_EQ(ShownFile(), "norway-spruce.html");
    EXPECT_FALSE(page.extraSelections().isEmpty());
    words.setText("no page has xyzzy");
    EXPECT_EQ(hits.count(), 0);
    EXPECT_EQ(Get<QLabel>("helpCount").text(), "No page has all these words");
    words.clear();
    EXPECT_EQ(Get<QLabel>("helpCount").text(), "");
}

TEST_F(HelpWindowTest, TheFirstMarkedWordIsInSight) {
    Get<QLineEdit>("helpWords").setText("quarter-inch");
    Get<QListWidget>("helpHits").setCurrentRow(0);
    ASSERT_EQ(ShownFile(), "models.html");
    ASSERT_EQ(page.extraSelections().size(), 1);
    const auto place = page.cursorRect(page.extraSelections().constFirst().cursor);
    EXPECT_TRUE(page.viewport()->rect().contains(place.center()));
}

TEST_F(HelpWindowTest, LettersGrowAndShrink) {
    const double usual = page.font().pointSizeF();
    Choose("helpLarger");
    Choose("helpLarger");
    EXPECT_GT(page.font().pointSizeF(), usual + 1);
    Choose("helpUsual");
    EXPECT_DOUBLE_EQ(page.font().pointSizeF(), usual);
    Choose("helpSmaller");
    EXPECT_LT(page.font().pointSizeF(), usual);
}

TEST_F(HelpWindowTest, PicturesNeverReachOverTheEdge) {
    Follow("norway-spruce.html");
    for (const int width : {1200, 820, 900}) {
        window.resize(width, 700);
        QCoreApplication::processEvents();
        EXPECT_EQ(page.horizontalScrollBar()->maximum(), 0) << width;
    }
}

TEST_F(HelpWindowTest, APageCanBePrinted) {
    const TemporaryFolder folder;
    Follow("limits.html");
    QPdfWriter paper(QString::fromStdString(folder.PathOf("page.pdf")));
    page.print(&paper);
    EXPECT_TRUE(folder.Read("page.pdf").starts_with("%PDF-"));
}

TEST_F(HelpWindowTest, ClosesByKey) {
    QTest::keyClick(&window, Qt::Key_W, Qt::ControlModifier);
    EXPECT_FALSE(window.isVisible());
    window.ShowFirstPage();
    EXPECT_TRUE(window.isVisible());
}

TEST(HelpFolderTest, WithoutPagesThereIsNothingToShow) {
    const TemporaryFolder folder;
    const HelpWindow window(QString::fromStdString(folder.Path()));
    EXPECT_FALSE(window.HasPages());
}

}  // namespace
}  // namespace arbolith
