// The Output window's own work: its controls, and what goes from its table to the clipboard.
#include "results/output.h"

#include "forms/application.h"
#include "unit/platform/fake_host.h"

#include <gtest/gtest.h>

namespace arbolith {
namespace {

class OutputTest : public testing::Test {
protected:
    // The codes over two rows, three columns wide.
    void FillTable() {
        auto& table = output.form.Table;
        table.SetCols(4);
        table.SetRows(1);
        table.AddItem("\tSAGE\tTDBH\tMDBH");
        table.AddItem("\t5\t2.5\t ");
        table.AddItem("\t10\t\t 4");
    }
    void Select(int row, int col, int rowSel, int colSel) {
        auto& table = output.form.Table;
        table.SetRow(row);
        table.SetCol(col);
        table.SetRowSel(rowSel);
        table.SetColSel(colSel);
    }

    FakeHost host;
    Application application{host, "/nowhere", ""};
    Output output{application};
};

TEST_F(OutputTest, CopiesTheSelectionWithTabsAndReturns) {
    FillTable();
    Select(1, 1, 3, 2);
    output.Copy_Mnu_Click();
    EXPECT_EQ(host.ClipboardText(), "SAGE\tTDBH\r5\t2.5\r10\t");
    EXPECT_TRUE(host.boxes.empty());
}

TEST_F(OutputTest, CopiesASelectionFromEitherEnd) {
    FillTable();
    Select(3, 2, 1, 1);
    output.Copy_Mnu_Click();
    EXPECT_EQ(host.ClipboardText(), "SAGE\tTDBH\r5\t2.5\r10\t");
}

TEST_F(OutputTest, StripsBlanksButNoTabs) {
    FillTable();
    Select(2, 3, 3, 3);
    EXPECT_EQ(output.form.Table.Clip(), " \r 4");
    output.Copy_Mnu_Click();
    EXPECT_EQ(host.ClipboardText(), "\r 4");
}

TEST_F(OutputTest, WarnsOfAnEmptySelectionAndEmptiesTheClipboard) {
    FillTable();
    Select(3, 2, 3, 2);
    output.Copy_Mnu_Click();
    ASSERT_EQ(host.boxes.size(), 1u);
    EXPECT_EQ(host.boxes[0].text, "Please select something on table before copying");
    EXPECT_EQ(host.boxes[0].title, "");
    EXPECT_EQ(host.boxes[0].icon, BoxIcon::kNone);
    EXPECT_EQ(host.boxes[0].buttons, BoxButtons::kOk);
    EXPECT_EQ(host.ClipboardText(), "");
}

TEST_F(OutputTest, HasNothingToCopyOfATableThatWasNeverFilled) {
    output.CopySelection();
    EXPECT_EQ(host.boxes.size(), 1u);
    EXPECT_EQ(host.ClipboardText(), "");
}

TEST_F(OutputTest, TakesACellOfBlanksForASelection) {
    FillTable();
    Select(2, 3, 2, 3);
    output.Copy_Mnu_Click();
    EXPECT_TRUE(host.boxes.empty());
    EXPECT_EQ(host.ClipboardText(), "");
}

TEST_F(OutputTest, SelectsAllButTheFixedCellsAndKeepsThemSelected) {
    FillTable();
    Select(2, 2, 2, 2);
    output.SelectAll();
    const auto& table = output.form.Table;
    EXPECT_EQ(table.Row(), 1);
    EXPECT_EQ(table.Col(), 1);
    EXPECT_EQ(table.RowSel(), 3);
    EXPECT_EQ(table.ColSel(), 3);
    EXPECT_EQ(host.ClipboardText(), "SAGE\tTDBH\tMDBH\r5\t2.5\t \r10\t\t 4");
}

TEST_F(OutputTest, SelectsTheCodesOfATableWithoutRows) {
    auto& table = output.form.Table;
    table.SetRows(1);
    table.AddItem("\tSAGE");
    output.SelectAll();
    EXPECT_EQ(host.ClipboardText(), "SAGE");
}

TEST_F(OutputTest, KeepsTheTextsOfTheReports) {
    output.SetReportTexts("5.5", "0\tS\tY\t");
    EXPECT_EQ(output.OutputYTBH, "5.5");
    EXPECT_EQ(output.OutputRunLine, "0\tS\tY\t");
}

TEST_F(OutputTest, HasItsSizeCaptionAndShortcuts) {
    EXPECT_EQ(output.form.Name(), "Output");
    EXPECT_EQ(output.form.Caption(), "Output");
    EXPECT_EQ(output.form.ClientSize().width, 9135);
    EXPECT_EQ(output.form.ClientSize().height, 7065);
    EXPECT_EQ(output.form.Select_All_Mnu.Shortcut(), "Ctrl+A");
    EXPECT_EQ(output.form.Copy_Mnu.Shortcut(), "Ctrl+C");
    EXPECT_FALSE(output.form.Open_Mnu.Enabled());
    EXPECT_TRUE(output.form.Title.GetLook().bold);
    EXPECT_EQ(output.form.Title.GetLook().points, 12);
    EXPECT_TRUE(output.form.YTBH.GetLook().bold);
    EXPECT_EQ(output.form.YTBH.GetLook().points, 12);
}

TEST(OutputsEnd, LeavesNoControlForTheViewsToShow) {
    FakeHost host;
    Application application(host, "/nowhere", "");
    {
        Output output(application);
        output.form.SetCaption("changed");
        output.form.Title.SetCaption("changed");
        EXPECT_TRUE(application.HasTouched());
    }
    EXPECT_FALSE(application.HasTouched());
}

}  // namespace
}  // namespace arbolith
