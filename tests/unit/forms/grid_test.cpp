#include "forms/grid.h"

#include "unit/forms/forms_test.h"
#include "unit/platform/expect_error.h"

namespace arbolith {

class GridTest : public FormsTest {
protected:
    // Rows 1 to 3 and columns 1 to 3 hold "11" to "33".
    void Fill() {
        grid.SetCols(4);
        grid.SetRows(4);
        for (int row = 1; row < 4; ++row)
            for (int col = 1; col < 4; ++col)
                grid.SetCell(row, col, std::to_string(row) + std::to_string(col));
    }
    void Select(int row, int col, int rowSel, int colSel) {
        grid.SetRow(row);
        grid.SetCol(col);
        grid.SetRowSel(rowSel);
        grid.SetColSel(colSel);
    }

    Grid grid{form, "Table", {}};
};

TEST_F(GridTest, CountsRowsAndColumnsFromZeroWithTheFixedOnes) {
    Fill();
    EXPECT_EQ(grid.Cell(1, 1), "11");
    EXPECT_EQ(grid.Cell(3, 2), "32");
    EXPECT_EQ(grid.Cell(0, 0), "");
    EXPECT_EQ(grid.FixedRows(), 1);
    EXPECT_EQ(grid.FixedCols(), 1);
}

TEST_F(GridTest, FailsWith9OutsideItsCells) {
    Fill();
    EXPECT_ERROR(9, grid.Cell(4, 1));
    EXPECT_ERROR(9, grid.Cell(1, 4));
    EXPECT_ERROR(9, grid.Cell(-1, 1));
    EXPECT_ERROR(9, grid.Cell(1, -1));
    EXPECT_ERROR(9, grid.SetCell(4, 1, "x"));
    EXPECT_ERROR(9, grid.SetCell(1, 4, "x"));
    EXPECT_ERROR(9, grid.SetRow(4));
    EXPECT_ERROR(9, grid.SetRow(-1));
    EXPECT_ERROR(9, grid.SetCol(4));
    EXPECT_ERROR(9, grid.SetRowSel(4));
    EXPECT_ERROR(9, grid.SetColSel(-1));
    EXPECT_ERROR(9, grid.ColWidth(4));
    EXPECT_ERROR(9, grid.SetColWidth(4, 100));
    EXPECT_ERROR(9, grid.GetCellAlignment(4, 1));
    EXPECT_ERROR(9, grid.SetCellAlignment(1, 4, Grid::CellAlignment::kCentre));
}

TEST_F(GridTest, ReplacesOneCellAndLeavesItsNeighbours) {
    Fill();
    grid.SetCell(2, 2, "changed");
    EXPECT_EQ(grid.Cell(2, 1), "21");
    EXPECT_EQ(grid.Cell(2, 2), "changed");
    EXPECT_EQ(grid.Cell(2, 3), "23");
    grid.SetCell(2, 2, "");
    EXPECT_EQ(grid.Cell(2, 2), "");
    EXPECT_EQ(grid.Cell(2, 3), "23");
}

TEST_F(GridTest, AppendsARowFromOneTextWithTabs) {
    Fill();
    grid.AddItem("\tSAGE\tTDBH");
    EXPECT_EQ(grid.Rows(), 5);
    EXPECT_EQ(grid.Cell(4, 0), "");
    EXPECT_EQ(grid.Cell(4, 1), "SAGE");
    EXPECT_EQ(grid.Cell(4, 2), "TDBH");
    EXPECT_EQ(grid.Cell(4, 3), "");
    grid.AddItem("");
    EXPECT_EQ(grid.Cell(5, 3), "");
}

TEST_F(GridTest, EmptiesItsCellsAndKeepsItsSize) {
    Fill();
    grid.Clear();
    EXPECT_EQ(grid.Rows(), 4);
    EXPECT_EQ(grid.Cols(), 4);
    EXPECT_EQ(grid.Cell(2, 2), "");
}

TEST_F(GridTest, ReducesTheSelectionToTheCurrentCellWhenARowOrColumnBecomesCurrent) {
    Fill();
    Select(1, 1, 3, 3);
    grid.SetRow(2);
    EXPECT_EQ(grid.Row(), 2);
    EXPECT_EQ(grid.RowSel(), 2);
    EXPECT_EQ(grid.Col(), 1);
    EXPECT_EQ(grid.ColSel(), 1);
    Select(1, 1, 3, 3);
    grid.SetCol(2);
    EXPECT_EQ(grid.RowSel(), 1);
    EXPECT_EQ(grid.ColSel(), 2);
}

TEST_F(GridTest, KeepsTheAnchorWhenTheMovingEndMoves) {
    Fill();
    Select(2, 3, 3, 1);
    EXPECT_EQ(grid.Row(), 2);
    EXPECT_EQ(grid.Col(), 3);
    EXPECT_EQ(grid.RowSel(), 3);
    EXPECT_EQ(grid.ColSel(), 1);
}

TEST_F(GridTest, TellsTheSelectedCellsWhicheverSideItsEndsStandOn) {
    Fill();
    const std::string expected = "11\t12\r21\t22";
    Select(1, 1, 2, 2);
    EXPECT_EQ(grid.Clip(), expected);
    Select(2, 2, 1, 1);
    EXPECT_EQ(grid.Clip(), expected);
    Select(2, 1, 1, 2);
    EXPECT_EQ(grid.Clip(), expected);
    Select(1, 2, 2, 1);
    EXPECT_EQ(grid.Clip(), expected);
}

TEST_F(GridTest, TellsASingleCellAndEmptyOnes) {
    Fill();
    grid.SetRow(3);
    grid.SetCol(3);
    EXPECT_EQ(grid.Clip(), "33");
    grid.SetCell(1, 2, "");
    Select(1, 1, 1, 3);
    EXPECT_EQ(grid.Clip(), "11\t\t13");
}

TEST_F(GridTest, RemovesEveryPickedRowFromTheFirstOneOn) {
    Fill();
    grid.AddItem("\t41");
    grid.SetCell(1, 1, "0");
    grid.SetCell(3, 1, "0");
    grid.RemoveItemsIf(2, [this](int row) { return grid.Cell(row, 1) == "0"; });
    EXPECT_EQ(grid.Rows(), 4);
    EXPECT_EQ(grid.Cell(1, 1), "0");
    EXPECT_EQ(grid.Cell(2, 1), "21");
    EXPECT_EQ(grid.Cell(3, 1), "41");
}

TEST_F(GridTest, PicksRowsByTheirPlaceBeforeTheRemoval) {
    Fill();
    std::vector<int> asked;
    grid.RemoveItemsIf(1, [&](int row) {
        asked.push_back(row);
        return row != 3;
    });
    EXPECT_EQ(asked, (std::vector<int>{1, 2, 3}));
    EXPECT_EQ(grid.Rows(), 2);
    EXPECT_EQ(grid.Cell(1, 1), "31");
}

TEST_F(GridTest, MovesAlignmentsWithTheirRows) {
    Fill();
    grid.SetCellAlignment(3, 1, Grid::CellAlignment::kCentre);
    grid.RemoveItemsIf(1, [](int row) { return row == 2; });
    EXPECT_EQ(grid.GetCellAlignment(2, 1), Grid::CellAlignment::kCentre);
}

TEST_F(GridTest, KeepsTheCurrentCellInsideWhenItShrinks) {
    Fill();
    Select(3, 3, 1, 1);
    grid.SetRows(2);
    EXPECT_EQ(grid.Row(), 1);
    EXPECT_EQ(grid.RowSel(), 1);
    grid.SetCols(2);
    EXPECT_EQ(grid.Col(), 1);
    EXPECT_EQ(grid.ColSel(), 1);
    EXPECT_EQ(grid.Clip(), "11");
}

TEST_F(GridTest, RefusesSizesThatNoGridHas) {
    EXPECT_ERROR(5, grid.SetRows(-1));
    EXPECT_ERROR(5, grid.SetCols(0));
}

TEST_F(GridTest, KeepsColumnWidths) {
    Fill();
    EXPECT_EQ(grid.ColWidth(1), -1);
    grid.SetColWidth(1, 550);
    EXPECT_EQ(grid.ColWidth(1), 550);
    EXPECT_EQ(grid.ColWidth(2), -1);
}

TEST_F(GridTest, KeepsAlignmentsOfSingleCellsUntilItIsCleared) {
    Fill();
    EXPECT_EQ(grid.GetCellAlignment(1, 1), Grid::CellAlignment::kGeneral);
    grid.SetCellAlignment(1, 1, Grid::CellAlignment::kCentre);
    EXPECT_EQ(static_cast<int>(grid.GetCellAlignment(1, 1)), 4);
    EXPECT_EQ(grid.GetCellAlignment(1, 2), Grid::CellAlignment::kGeneral);
    EXPECT_EQ(grid.GetCellAlignment(2, 1), Grid::CellAlignment::kGeneral);
    grid.Clear();
    EXPECT_EQ(grid.GetCellAlignment(1, 1), Grid::CellAlignment::kGeneral);
}

TEST_F(GridTest, TellsViewsWhenCellsOrSizeChanged) {
    Fill();
    int revision = grid.Revision();
    const auto hasChanged = [&] { return std::exchange(revision, grid.Revision()) != revision; };
    grid.SetCell(1, 1, "x");
    EXPECT_TRUE(hasChanged());
    grid.AddItem("x");
    EXPECT_TRUE(hasChanged());
    grid.SetRows(2);
    EXPECT_TRUE(hasChanged());
    grid.SetRow(1);
    grid.SetColSel(2);
    EXPECT_FALSE(hasChanged());
}

TEST_F(GridTest, RaisesNothingFromCode) {
    grid.onClick = Note("click");
    Fill();
    Select(1, 1, 2, 2);
    grid.Clear();
    EXPECT_EQ(log, Log{});
}

}  // namespace arbolith
