// The custom chart: any variable over any other, chosen from a list and from check boxes.
#pragma once

#include "charts/graph_builder.h"
#include "forms/controls.h"

#include <array>
#include <string>

namespace arbolith {

/// A frame with the three check boxes of one family of variables: total, merchantable and sawlog.
struct VariableFamily {
    VariableFamily(Control& parent, const char* frameName, const char* caption,
                   const char* arrayName, int firstColumn, int left, int top);

    int firstColumn;  ///< Table column of the first of them.
    Frame frame;
    std::array<CheckBox, 3> boxes;
};

/// The form Chart_Custom. What is chosen outlives its closing, and the table.
struct CustomChart : Form {
    /// `graphs` must outlive the window.
    CustomChart(Application& application, GraphBuilder& graphs);

    MenuItem Help_Mnu{*this, "Help_Mnu", "&Help"};
    MenuItem Var_Defn_Mnu{Help_Mnu, "Var_Defn_Mnu", "&Variable Definitions..."};

    Frame fraX{*this, "fraX", "X-Axis Setup", {120, 120, 8760, 960}};
    Label XHelp{
        fraX, "XHelp", "Select the X-Axis Variable to plot against.", {240, 435, 5400, 285}};
    ComboBox cmbDomainSelect{fraX, "cmbDomainSelect", {6600, 390, 1920, 375}};
    Frame fraY{*this, "fraY", "Y-Axis Setup", {120, 1200, 8760, 4320}};
    Label YHelp{fraY,
                "YHelp",
                "Select dependent variables to be plotted against the above selection.",
                {240, 360, 8400, 285}};

    static constexpr int kRow1 = 720;
    static constexpr int kRow2 = 2520;
    VariableFamily DBH{fraY, "fraDBH", "Diameter", "cbDBH", 2, 120, kRow1};
    VariableFamily H{fraY, "fraH", "Height", "cbH", 11, 2280, kRow1};
    VariableFamily VOL{fraY, "fraVOL", "Volume", "cbVOL", 14, 4440, kRow1};
    VariableFamily CVOL{fraY, "fraCVOL", "Cumulative Vol.", "cbCVOL", 20, 6600, kRow1};
    VariableFamily BA{fraY, "fraBA", "Basal Area", "cbBA", 5, 120, kRow2};
    VariableFamily F{fraY, "fraF", "Frequency", "cbF", 8, 2280, kRow2};
    VariableFamily MAI{fraY, "fraMAI", "M.A.I.", "cbMAI", 17, 4440, kRow2};
    VariableFamily CMAI{fraY, "fraCMAI", "Cumulative M.A.I.", "cbCMAI", 23, 6600, kRow2};

    Button btnOK{*this, "btnOK", "OK", {6240, 5640, 1260, 375}};
    Button btnCancel{*this, "btnCancel", "Cancel", {7620, 5640, 1260, 375}};

    /// Takes the chosen X variable away from the Y variables, and gives all others back.
    void ChooseDomain();
    /// Draws what is chosen and hides the window; without a Y variable it says so and stays.
    void DrawChoice();
    /// Takes the checks back and hides the window.
    void CancelChoice();

private:
    /// In the order of the table's columns.
    std::array<CheckBox*, 24> Boxes();
    void ClearYChecks();
    void EnableYChecks();
    static void DisableYCheck(CheckBox& box);

    GraphBuilder& graphs_;
};

}  // namespace arbolith
