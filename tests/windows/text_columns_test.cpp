#include "qt/text_columns.h"

#include "results/definitions.h"
#include "window_test.h"

#include <QListView>
#include <QScrollBar>

namespace arbolith {

namespace {

const TextColumns kColumns = {{0, true}, {170, true}, {330, false}, {500, true}, {670, false}};

using Pieces = std::vector<ColumnPiece>;

struct ColumnsForm : Form {
    explicit ColumnsForm(Application& application)
        : Form(application, "ColumnsForm", "Columns", {9000, 4500}) {
        list.AddItem("M\tM  M\tM  M");
        list.AddItem("M\tM  M\t\tM  M");
    }

    Label heading{*this, "heading", "M  M  M  M  M", {240, 240, 7200, 285}, {.columns = kColumns}};
    ListBox list{*this, "list", {240, 600, 7200, 2400}, {"Times New Roman", kColumns}};
};

struct TextColumnsTest : WindowTest {
    TextColumnsTest() { Open(form); }

    // The columns of pixels of a line in which something is drawn, from the left of the form.
    static std::vector<int> InkIn(const QWidget& widget, const QRect& line) {
        const QImage image = widget.window()->grab().toImage();
        const QRect place(widget.mapTo(widget.window(), line.topLeft()), line.size());
        const double ratio = image.devicePixelRatio();
        std::vector<int> ink;
        for (int x = place.left() + 4; x < place.right() - 4; ++x) {
            bool isDark = false;
            for (int y = place.top() + 3; y < place.bottom() - 3; ++y)
                isDark = isDark || qGray(image.pixel(int(x * ratio), int(y * ratio))) < 128;
            if (isDark) ink.push_back(x);
        }
        return ink;
    }

    // Where the letters of a line begin that stand far from each other.
    static std::vector<int> LettersIn(const QWidget& widget, const QRect& line) {
        constexpr int kGap = 12;
        std::vector<int> starts;
        int last = -kGap;
        for (const int x : InkIn(widget, line)) {
            if (x - last >= kGap) starts.push_back(x);
            last = x;
        }
        return starts;
    }

    std::vector<int> InkInRow(int row) {
        auto& list = WidgetOf<QListView>(form.list);
        return InkIn(*list.viewport(), list.visualRect(list.model()->index(row, 0)));
    }

    static void ExpectAligned(const std::vector<int>& some, const std::vector<int>& others) {
        ASSERT_EQ(some.size(), kColumns.size());
        ASSERT_EQ(others.size(), kColumns.size());
        for (std::size_t i = 0; i < some.size(); ++i) EXPECT_NEAR(some[i], others[i], 2) << i;
    }

    ColumnsForm form{application};
};

}  // namespace

TEST(CutIntoColumns, GoesOnAtTabsAndRunsOfBlanks) {
    EXPECT_EQ(CutIntoColumns("a\tb    c\td  e f", kColumns),
              (Pieces{{0, "a"}, {1, "b"}, {2, "c"}, {3, "d"}, {4, "e f"}}));
    EXPECT_EQ(CutIntoColumns("", kColumns), Pieces{});
}

TEST(CutIntoColumns, TakesSeveralTabsAsOne) {
    EXPECT_EQ(CutIntoColumns("a\tb  c\t\td", kColumns),
              (Pieces{{0, "a"}, {1, "b"}, {2, "c"}, {3, "d"}}));
}

TEST(CutIntoColumns, LeavesMissingPartsOut) {
    EXPECT_EQ(CutIntoColumns("\tb\t    e", kColumns), (Pieces{{1, "b"}, {4, "e"}}));
    EXPECT_EQ(CutIntoColumns(" \t\t  ", kColumns), Pieces{});
}

TEST(CutIntoColumns, KeepsBlanksInTheLastColumnBeforeATab) {
    EXPECT_EQ(CutIntoColumns("a  b\tc  d  e\tf", kColumns),
              (Pieces{{0, "a  b"}, {1, "c"}, {2, "d  e"}, {3, "f"}}));
}

TEST(CutIntoColumns, PutsWhatIsTooMuchIntoTheLastColumn) {
    EXPECT_EQ(CutIntoColumns("\t\ta\tb\tc", kColumns), (Pieces{{1, "a"}, {3, "b"}, {4, "c"}}));
}

TEST_F(TextColumnsTest, StandUnderTheirHeadings) {
    auto& list = WidgetOf<QListView>(form.list);
    auto& heading = WidgetOf<QWidget>(form.heading);
    const auto headings = LettersIn(heading, heading.rect());
    for (int row = 0; row < 2; ++row) {
        const QRect line = list.visualRect(list.model()->index(row, 0));
        ExpectAligned(LettersIn(*list.viewport(), line), headings);
    }
}

TEST_F(TextColumnsTest, LeaveTheRowsTextAsItIs) {
    const auto& list = WidgetOf<QListView>(form.list);
    EXPECT_EQ(list.model()->index(1, 0).data().toString(), "M\tM  M\t\tM  M");
    EXPECT_EQ(list.font().family(), "Times New Roman");
}

TEST_F(TextColumnsTest, MoveTheNextOnWhereTheyAreTooLong) {
    const std::string wide(20, 'M');
    Do([&] {
        form.list.ReplaceItem(0, wide + "\tM");
        form.list.ReplaceItem(1, wide);
    });
    EXPECT_GT(InkInRow(0).back(), InkInRow(1).back());
}

TEST_F(TextColumnsTest, AreCutAtTheEndOfTheLine) {
    Do([&] { form.list.ReplaceItem(0, std::string(200, 'M')); });
    auto& list = WidgetOf<QListView>(form.list);
    EXPECT_FALSE(list.horizontalScrollBar()->isVisible());
}

TEST_F(TextColumnsTest, ShowTheTermsOfTheDefinitionsWithTheirLabels) {
    const Globals globals{"Metric"};
    Definitions definitions(application, globals);
    definitions.ShowVariableTerms();
    Open(definitions);
    auto& list = WidgetOf<QListView>(definitions.definition_list);
    for (int row = 0; row < list.model()->rowCount(); ++row) {
        const QRect line = list.visualRect(list.model()->index(row, 0));
        EXPECT_TRUE(list.viewport()->rect().contains(line.center())) << row;
        const auto ink = InkIn(*list.viewport(), line);
        ASSERT_FALSE(ink.empty()) << row;
        const int begin = list.viewport()->mapTo(list.window(), line.topLeft()).x();
        EXPECT_LT(ink.front(), begin + line.width() / 10) << row;
        EXPECT_GT(ink.back(), begin + line.width() / 3) << row;
        // Nothing is cut.
        EXPECT_LT(ink.back(), begin + line.width() * 19 / 20) << row;
    }
}

}  // namespace arbolith
