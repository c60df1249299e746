// A form with every kind of control in its states, to be looked at.
#pragma once

#include "forms/controls.h"
#include "forms/grid.h"

namespace arbolith {

struct DemoForm : Form {
    explicit DemoForm(Application& application)
        : Form(application, "DemoForm", "Every kind of control", {13500, 9000}) {
        for (const char* row : {"White Pine", "Red Pine", "Black Spruce", "Red Spruce"}) {
            list.AddItem(row);
            combo.AddItem(row);
        }
        list.SetListIndex(1);
        combo.SetListIndex(2);
        optionOn.SetValue(true);
        boxOn.SetValue(true);
        coloured.SetBackColor(kCyan);
        colouredOption.SetBackColor(kCyan);
        greyed.SetEnabled(false);
        disabledButton.SetEnabled(false);
        disabledField.SetEnabled(false);
        field.SetText("12.5");
        disabledField.SetText("80");
        bar.SetValue(40);
        FillTable();
    }

    void FillTable() {
        table.SetCols(9);
        table.SetColWidth(0, 300);
        for (int col = 1; col < 9; ++col) {
            table.SetColWidth(col, 700);
            table.SetCell(1, col, "COL" + std::to_string(col));
            table.SetCellAlignment(1, col, Grid::CellAlignment::kCentre);
        }
        for (int row = 2; row < 30; ++row)
            table.AddItem("\t" + std::to_string(row * 5) +
                          "\t12.5\t0.25\t1234567.8\ttext\t\t-1\t2");
        table.SetRow(3);
        table.SetCol(2);
        table.SetRowSel(5);
        table.SetColSel(4);
    }

    static constexpr Colour kCyan = 0xFFFF00;

    MenuItem file{*this, "file", "&File"};
    MenuItem open{file, "open", "&Open"};
    MenuItem edit{*this, "edit", "&Edit"};
    MenuItem copy{edit, "copy", "&Copy", "Ctrl+C"};

    Frame texts{*this, "texts", "Texts", {120, 120, 6480, 4200}};
    Label plain{texts, "plain", "A plain label", {240, 360, 2400, 285}};
    Label coloured{texts, "coloured", "In colour", {3000, 360, 2400, 285}};
    Label greyed{texts, "greyed", "Greyed out", {240, 720, 2400, 285}};
    Label heading{
        texts, "heading", "Heading", {240, 1080, 2400, 375}, {.bold = true, .points = 12}};
    Label link{texts, "link", "More Information", {3000, 720, 2400, 285}, {.link = true}};
    Label wrapped{texts,
                  "wrapped",
                  "A text of several lines that is wrapped where the label ends, from its top.",
                  {240, 1560, 2400, 1200},
                  {.wraps = true}};
    Label right{
        texts, "right", "To the right", {3000, 1080, 3240, 285}, {.alignment = Alignment::kRight}};
    Label centred{texts,
                  "centred",
                  "In the middle",
                  {3000, 1440, 3240, 285},
                  {.alignment = Alignment::kCentre}};
    Label fieldLabel{texts, "fieldLabel", "B.&A. Reduction (%)", {240, 3045, 2400, 285}};
    TextBox field{texts, "field", {3000, 3000, 1200, 375}, 4};
    TextBox disabledField{texts, "disabledField", {3000, 3480, 1200, 375}, 4};

    Frame choices{*this, "choices", "Choices", {6720, 120, 6660, 4200}};
    Option optionOn{choices, "optionOn", "Softwood", {240, 360, 2400, 375}};
    Option optionOff{choices, "optionOff", "Hardwood", {240, 780, 2400, 375}};
    Option colouredOption{choices, "colouredOption", "In colour", {240, 1200, 2400, 375}};
    CheckBox boxOn{choices, "boxOn", "Checked", {240, 1680, 2400, 375}};
    CheckBox boxOff{choices, "boxOff", "Not checked", {240, 2100, 2400, 375}};
    ListBox list{choices, "list", {3000, 360, 3000, 2100}};
    ComboBox combo{choices, "combo", {3000, 2700, 3000, 375}};
    Button button{choices, "button", "&Run", {240, 3600, 1680, 375}};
    Button disabledButton{choices, "disabledButton", "Disabled", {2040, 3600, 1680, 375}};
    ProgressBar bar{choices, "bar", {3960, 3660, 2040, 255}, 100};

    Grid table{*this, "table", {120, 4440, 8000, 4440}};
    Frame picture{*this, "picture", "", {8280, 4440, 5100, 4440}};
    Picture tree{picture, "tree", "Arbolith", {0, 0, 5100, 4440}};
};

}  // namespace arbolith
