#include "window_test.h"

#include <QHeaderView>
#include <QLineEdit>
#include <QScrollBar>
#include <QTableView>
#include <QTest>

namespace arbolith {

namespace {

struct GridForm : Form {
    explicit GridForm(Application& application)
        : Form(application, "GridForm", "Grid", {9000, 6000}) {
        Fill(60);
        table.onClick = [this] { ++clicks; };
    }

    void Fill(int rows) {
        table.SetRows(2);
        table.SetCols(6);
        table.SetColWidth(0, 300);
        for (int col = 1; col < 6; ++col) {
            table.SetColWidth(col, 700);
            table.SetCellAlignment(1, col, Grid::CellAlignment::kCentre);
            table.SetCell(1, col, "C" + std::to_string(col));
        }
        for (int row = 2; row < rows; ++row) {
            const auto number = std::to_string(row);
            table.AddItem("\t" + number + "\t1." + number + "\tx\t\t5");
        }
    }

    Grid table{*this, "table", {240, 240, 6000, 3000}};
    Button button{*this, "button", "Button", {240, 5000, 1500, 375}};
    int clicks = 0;
};

struct GridTest : WindowTest {
    GridTest() { Open(form); }

    QTableView& Table() { return WidgetOf<QTableView>(form.table); }

    std::vector<int> Selection() const {
        return {form.table.Row(), form.table.Col(), form.table.RowSel(), form.table.ColSel()};
    }

    // What is highlighted, as top, left, bottom and right of the grid.
    std::vector<int> Highlighted() {
        const auto ranges = Table().selectionModel()->selection();
        if (ranges.size() != 1) return {};
        const auto& range = ranges.first();
        return {range.top() + 1, range.left() + 1, range.bottom() + 1, range.right() + 1};
    }

    bool IsInSight(int row, int col) {
        const QRect cell = Table().visualRect(Table().model()->index(row - 1, col - 1));
        return Table().viewport()->rect().intersects(cell);
    }

    GridForm form{application};
};

using Cells = std::vector<int>;

}  // namespace

TEST_F(GridTest, CellsShowTheStatesTexts) {
    EXPECT_EQ(driver->Shown(form.table, "Cell(1,1)"), "C1");
    EXPECT_EQ(driver->Shown(form.table, "Cell(59,2)"), "1.59");
    Do([&] { form.table.SetCell(5, 4, "new"); });
    EXPECT_EQ(driver->Shown(form.table, "Cell(5,4)"), "new");
}

TEST_F(GridTest, TheFixedRowIsAThinHeaderAndTheFixedColumnTheRowHeader) {
    EXPECT_LE(Table().horizontalHeader()->height(), 8);
    EXPECT_EQ(Table().verticalHeader()->width(), 20);
    EXPECT_EQ(Table().columnWidth(0), 47);
    Do([&] { form.table.SetCell(0, 2, "heading"); });
    EXPECT_GE(Table().horizontalHeader()->height(), Table().fontMetrics().height());
    EXPECT_EQ(driver->Shown(form.table, "Cell(0,2)"), "heading");
}

TEST_F(GridTest, DraggingSelectsFromTheAnchorToTheMovingEnd) {
    driver->DragCells(form.table, 3, 4, 2, 1);
    EXPECT_EQ(Selection(), (Cells{3, 4, 2, 1}));
    EXPECT_EQ(Highlighted(), (Cells{2, 1, 3, 4}));
    EXPECT_EQ(form.clicks, 1);
}

TEST_F(GridTest, DraggingReachesRowsOutOfSight) {
    driver->DragCells(form.table, 1, 1, 59, 5);
    EXPECT_EQ(Selection(), (Cells{1, 1, 59, 5}));
}

TEST_F(GridTest, AClickWithShiftMovesTheEnd) {
    driver->DragCells(form.table, 3, 3, 3, 3);
    auto* cells = Table().viewport();
    const QPoint place = Table().visualRect(Table().model()->index(5, 0)).center();
    QTest::mouseClick(cells, Qt::LeftButton, Qt::ShiftModifier, place);
    EXPECT_EQ(Selection(), (Cells{3, 3, 6, 1}));
}

TEST_F(GridTest, FixedCellsAreNoAnchor) {
    EXPECT_THROW(driver->DragCells(form.table, 0, 1, 2, 2), ActionRefused);
    EXPECT_THROW(driver->DragCells(form.table, 1, 0, 2, 2), ActionRefused);
    EXPECT_THROW(driver->DragCells(form.table, 1, 1, 60, 2), ActionRefused);
}

TEST_F(GridTest, AClickBehindTheLastColumnKeepsTheSelection) {
    driver->DragCells(form.table, 3, 3, 4, 4);
    window_events::ClickAt(*Table().viewport(), {Table().viewport()->width() - 2, 30});
    EXPECT_EQ(Selection(), (Cells{3, 3, 4, 4}));
}

TEST_F(GridTest, AHeaderSelectsItsColumnOrRow) {
    auto* columns = Table().horizontalHeader();
    const int x = columns->sectionViewportPosition(1) + 5;
    window_events::ClickAt(*columns->viewport(), {x, 2});
    EXPECT_EQ(Selection(), (Cells{1, 2, 59, 2}));
    EXPECT_EQ(Highlighted(), (Cells{1, 2, 59, 2}));
    auto* rows = Table().verticalHeader();
    window_events::ClickAt(*rows->viewport(), {5, rows->sectionViewportPosition(4) + 9});
    EXPECT_EQ(Selection(), (Cells{5, 1, 5, 5}));
}

TEST_F(GridTest, ArrowKeysMoveTheCurrentCell) {
    driver->DragCells(form.table, 3, 3, 4, 4);
    window_events::PressKey(Qt::Key_Right);
    EXPECT_EQ(Selection(), (Cells{3, 4, 3, 4}));
    window_events::PressKey(Qt::Key_Down);
    window_events::PressKey(Qt::Key_Left);
    EXPECT_EQ(Selection(), (Cells{4, 3, 4, 3}));
    EXPECT_EQ(Highlighted(), (Cells{4, 3, 4, 3}));
}

TEST_F(GridTest, ArrowKeysWithShiftMoveTheEnd) {
    driver->DragCells(form.table, 3, 3, 3, 3);
    window_events::PressKey(Qt::Key_Down, Qt::ShiftModifier);
    window_events::PressKey(Qt::Key_Left, Qt::ShiftModifier);
    EXPECT_EQ(Selection(), (Cells{3, 3, 4, 2}));
}

TEST_F(GridTest, KeysStopAtTheOrdinaryCells) {
    driver->DragCells(form.table, 1, 1, 1, 1);
    window_events::PressKey(Qt::Key_Up);
    window_events::PressKey(Qt::Key_Left);
    EXPECT_EQ(Selection(), (Cells{1, 1, 1, 1}));
    window_events::PressKey(Qt::Key_End, Qt::ControlModifier);
    window_events::PressKey(Qt::Key_Down);
    window_events::PressKey(Qt::Key_Right);
    EXPECT_EQ(Selection(), (Cells{59, 5, 59, 5}));
    EXPECT_TRUE(IsInSight(59, 5));
}

TEST_F(GridTest, HomeEndAndPagesGoFar) {
    driver->DragCells(form.table, 2, 3, 2, 3);
    window_events::PressKey(Qt::Key_End);
    EXPECT_EQ(Selection(), (Cells{2, 5, 2, 5}));
    window_events::PressKey(Qt::Key_Home, Qt::ShiftModifier);
    EXPECT_EQ(Selection(), (Cells{2, 5, 2, 1}));
    window_events::PressKey(Qt::Key_PageDown);
    EXPECT_GT(form.table.Row(), 5);
    EXPECT_LT(form.table.Row(), 20);
    window_events::PressKey(Qt::Key_PageUp);
    EXPECT_EQ(form.table.Row(), 2);
}

TEST_F(GridTest, TheProgramsSelectionIsHighlighted) {
    Do([&] {
        form.table.SetRow(1);
        form.table.SetCol(1);
        form.table.SetColSel(5);
        form.table.SetRowSel(59);
    });
    EXPECT_EQ(Highlighted(), (Cells{1, 1, 59, 5}));
    Do([&] {
        form.table.SetRow(1);
        form.table.SetCol(1);
    });
    EXPECT_EQ(Highlighted(), (Cells{1, 1, 1, 1}));
}

TEST_F(GridTest, ANewTableIsShownFromItsTop) {
    driver->DragCells(form.table, 50, 5, 59, 5);
    Do([&] { form.Fill(40); });
    EXPECT_TRUE(IsInSight(1, 1));
    EXPECT_EQ(Table().model()->rowCount(), 39);
}

TEST_F(GridTest, AMillionRowsAreNoBurden) {
    Do([&] { form.Fill(1'000'000); });
    EXPECT_EQ(driver->Shown(form.table, "Cell(999999,1)"), "999999");
    driver->DragCells(form.table, 1, 1, 999'999, 5);
    EXPECT_EQ(Selection(), (Cells{1, 1, 999'999, 5}));
    EXPECT_FALSE(Table().grab().isNull());
}

TEST_F(GridTest, NothingCanBeEdited) {
    driver->DragCells(form.table, 3, 3, 3, 3);
    window_events::PressKey(Qt::Key_F2);
    window_events::PressKey(Key{Key::kCharacter, '9'});
    EXPECT_EQ(form.table.Cell(3, 3), "x");
    EXPECT_EQ(Table().viewport()->findChildren<QLineEdit*>().size(), 0);
}

TEST_F(GridTest, AGridWithoutOrdinaryRowsTakesMouseAndKeys) {
    Do([&] { form.table.SetRows(1); });
    window_events::ClickAt(*Table().viewport(), {10, 10});
    driver->Press(form.table, {Key::kDown});
    EXPECT_EQ(form.table.Row(), 0);
    EXPECT_EQ(Table().model()->rowCount(), 0);
}

}  // namespace arbolith
