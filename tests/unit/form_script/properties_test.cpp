#include "form_script/properties.h"

#include "forms/chart.h"
#include "forms/grid.h"
#include "unit/forms/forms_test.h"
#include "unit/platform/expect_error.h"

namespace arbolith {

class PropertiesTest : public FormsTest {
protected:
    static std::string Read(const Control& control, const std::string& property) {
        return TextOf(ReadProperty(control, property));
    }
};

TEST_F(PropertiesTest, OfEveryControl) {
    Frame frame(form, "frame");
    Button button(frame, "btn", "&Go", {15, 30, 900, 375});
    button.SetTag("6000");
    button.SetBackColor(0xFFFF00);
    button.SetEnabled(false);
    EXPECT_EQ(Read(button, "Caption"), "&Go");
    EXPECT_EQ(Read(button, "Tag"), "6000");
    EXPECT_EQ(Read(button, "BackColor"), "cyan");
    EXPECT_EQ(Read(button, "Enabled"), "false");
    EXPECT_EQ(Read(button, "Visible"), "true");
    EXPECT_EQ(Read(button, "Showing"), "false");
    EXPECT_EQ(Read(button, "Focus"), "false");
    EXPECT_EQ(Read(button, "Left"), "15");
    EXPECT_EQ(Read(button, "Top"), "30");
    EXPECT_EQ(Read(button, "Width"), "900");
    EXPECT_EQ(Read(button, "Height"), "375");
    form.Show();
    EXPECT_EQ(Read(button, "Showing"), "true");
    button.SetEnabled(true);
    application.SetFocus(button);
    EXPECT_EQ(Read(button, "Focus"), "true");
}

TEST_F(PropertiesTest, OfAForm) {
    form.SetState(WindowState::kMaximised);
    form.SetPointer(MousePointer::kHourglass);
    EXPECT_EQ(Read(form, "Title"), "Title");
    EXPECT_EQ(Read(form, "Caption"), "Title");
    EXPECT_EQ(Read(form, "WindowState"), "2");
    EXPECT_EQ(Read(form, "MousePointer"), "11");
    EXPECT_EQ(Read(form, "Width"), "6000");
    EXPECT_EQ(Read(form, "Visible"), "false");
}

TEST_F(PropertiesTest, OfWhatIsOnOrOff) {
    Option option(form, "opt");
    CheckBox check(form, "chk");
    MenuItem item(form, "mnu", "&Mode");
    option.SetValue(true);
    item.SetChecked(true);
    EXPECT_EQ(Read(option, "Value"), "true");
    EXPECT_EQ(Read(check, "Value"), "false");
    EXPECT_EQ(Read(item, "Checked"), "true");
}

TEST_F(PropertiesTest, OfATextField) {
    TextBox box(form, "txt", {}, 4);
    box.SetText("123");
    box.Select(1, 2);
    EXPECT_EQ(Read(box, "Text"), "123");
    EXPECT_EQ(Read(box, "MaxLength"), "4");
    EXPECT_EQ(Read(box, "SelStart"), "1");
    EXPECT_EQ(Read(box, "SelLength"), "2");
}

TEST_F(PropertiesTest, OfAListAndAComboBox) {
    ListBox list(form, "lst");
    list.AddItem("one");
    list.AddItem("two");
    list.SetListIndex(1);
    EXPECT_EQ(Read(list, "Text"), "two");
    EXPECT_EQ(Read(list, "ListCount"), "2");
    EXPECT_EQ(Read(list, "ListIndex"), "1");
    EXPECT_EQ(Read(list, "List(0)"), "one");
    EXPECT_ERROR(9, Read(list, "List(2)"));
    EXPECT_ERROR(9, Read(list, "List(-1)"));
    ComboBox combo(form, "cbo");
    EXPECT_EQ(Read(combo, "ListIndex"), "-1");
    EXPECT_EQ(Read(combo, "Text"), "");
}

TEST_F(PropertiesTest, OfATimerAndAProgressBar) {
    EXPECT_EQ(Read(Timer(form, "Timer1", 38), "Interval"), "38");
    ProgressBar bar(form, "Prog", {}, 7);
    bar.SetValue(3);
    EXPECT_EQ(Read(bar, "Max"), "7");
    EXPECT_EQ(Read(bar, "Value"), "3");
}

TEST_F(PropertiesTest, OfAGrid) {
    Grid grid(form, "Table", {});
    grid.SetCols(3);
    grid.SetRows(4);
    grid.SetCell(2, 1, "SAGE");
    grid.SetRow(2);
    grid.SetColSel(2);
    grid.SetColWidth(1, 550);
    grid.SetCellAlignment(2, 1, Grid::CellAlignment::kCentre);
    EXPECT_EQ(Read(grid, "Rows"), "4");
    EXPECT_EQ(Read(grid, "Cols"), "3");
    EXPECT_EQ(Read(grid, "FixedRows"), "1");
    EXPECT_EQ(Read(grid, "FixedCols"), "1");
    EXPECT_EQ(Read(grid, "Row"), "2");
    EXPECT_EQ(Read(grid, "Col"), "1");
    EXPECT_EQ(Read(grid, "RowSel"), "2");
    EXPECT_EQ(Read(grid, "ColSel"), "2");
    EXPECT_EQ(Read(grid, "Clip"), "SAGE\t");
    EXPECT_EQ(Read(grid, "Cell(2,1)"), "SAGE");
    EXPECT_EQ(Read(grid, "ColWidth(1)"), "550");
    EXPECT_EQ(Read(grid, "CellAlignment(2,1)"), "4");
    EXPECT_EQ(Read(grid, "CellAlignment(1,1)"), "9");
    EXPECT_ERROR(9, Read(grid, "Cell(4,1)"));
}

TEST_F(PropertiesTest, OfAChart) {
    Chart chart(form, "Chart", {});
    chart.SetSize(1, 2);
    chart.SetData(1, 2, 1.5);
    chart.SetColumnLabel(2, "TDBH");
    chart.SetRowLabel(1, "5");
    chart.SetTitle({"Growth", {}, ChartLocation::kTop});
    EXPECT_EQ(Read(chart, "chartType"), "16");
    EXPECT_EQ(Read(chart, "ColumnCount"), "2");
    EXPECT_EQ(Read(chart, "RowCount"), "1");
    EXPECT_EQ(Read(chart, "ColumnLabel(2)"), "TDBH");
    EXPECT_EQ(Read(chart, "RowLabel(1)"), "5");
    EXPECT_EQ(Read(chart, "Data(1,2)"), "1.5");
    EXPECT_EQ(Read(chart, "Title"), "Growth");
    EXPECT_EQ(Read(chart, "LegendVisible"), "false");
    EXPECT_ERROR(9, Read(chart, "Data(2,1)"));
}

TEST_F(PropertiesTest, OfAChartsAxis) {
    Chart chart(form, "Chart", {});
    chart.SetAxis(1, {"Height (m)", {false, -5, 6000, 8, 2}, PenStyle::kDotted, PenStyle::kNone});
    EXPECT_EQ(Read(chart, "Axis(1).Title"), "Height (m)");
    EXPECT_EQ(Read(chart, "Axis(1).Auto"), "false");
    EXPECT_EQ(Read(chart, "Axis(1).Minimum"), "-5");
    EXPECT_EQ(Read(chart, "Axis(1).Maximum"), "6000");
    EXPECT_EQ(Read(chart, "Axis(1).MajorDivision"), "8");
    EXPECT_EQ(Read(chart, "Axis(1).MinorDivision"), "2");
    EXPECT_EQ(Read(chart, "Axis(1).MajorPen"), "3");
    EXPECT_EQ(Read(chart, "Axis(1).MinorPen"), "0");
    EXPECT_EQ(Read(chart, "Axis(0).Auto"), "true");
    EXPECT_ERROR(9, Read(chart, "Axis(4).Auto"));
}

TEST_F(PropertiesTest, BelongToTheirKindOnly) {
    const Button button(form, "btn");
    Grid grid(form, "Table", {});
    for (const char* property : {"Text", "Value", "Cell(1,1)", "Axis(1).Auto", "Nonsense", "text"})
        EXPECT_THROW(ReadProperty(button, property), NoSuchProperty) << property;
    for (const char* property : {"Cell", "Cell(1)", "Rows(1)", "Rows.Count", "Cell(1,1,1)"})
        EXPECT_THROW(ReadProperty(grid, property), NoSuchProperty) << property;
}

TEST_F(PropertiesTest, ShownOnAScreenTakeTheKindOfTheState) {
    EXPECT_TRUE(std::holds_alternative<double>(AsKindOf(Number(1), "12")));
    EXPECT_TRUE(std::holds_alternative<bool>(AsKindOf(true, "false")));
    EXPECT_TRUE(std::holds_alternative<std::string>(AsKindOf(std::string("a"), "12")));
    EXPECT_EQ(TextOf(AsKindOf(Number(1), "blank")), "blank");
}

}  // namespace arbolith
