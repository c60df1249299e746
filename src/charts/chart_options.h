// The options of the chart: scale and divisions of its axes, grid and legend.
#pragma once

#include "charts/chart_window.h"
#include "forms/at_first_use.h"
#include "forms/controls.h"

namespace arbolith {

/// The form Chart_Opt. It shows the chart's values as they stand when the window is loaded or comes
/// to the front; nothing changes the chart but `Accept`, and the hidden label `Max`.
struct ChartOptions : Form {
    /// `chartWindow` must outlive the window.
    ChartOptions(Application& application, AtFirstUse<ChartWindow>& chartWindow);

    static constexpr Label::Look kPressed = {.alignment = Alignment::kCentre, .bordered = true};

    MenuItem File_Mnu{*this, "File_Mnu", "&File"};
    MenuItem Save_Mnu{File_Mnu, "Save_Mnu", "&Save"};
    MenuItem Cancel_Mnu{File_Mnu, "Cancel_Mnu", "&Cancel"};

    Label Label1{*this, "Label1", "X Axis", {840, 240, 1215, 285}};
    Label Label2{*this, "Label2", "Y Axis", {2880, 240, 1215, 285}};
    Label XMax_lbl{*this, "XMax_lbl", "Max:", {240, 840, 900, 285}};
    TextBox XMax{*this, "XMax", {1200, 840, 855, 285}};
    Label XMin_lbl{*this, "XMin_lbl", "Min:", {240, 1200, 900, 285}};
    TextBox XMin{*this, "XMin", {1200, 1200, 855, 285}};
    Label XDMaj_lbl{*this, "XDMaj_lbl", "Major Div:", {240, 1800, 900, 285}};
    TextBox XDMaj{*this, "XDMaj", {1200, 1800, 855, 285}};
    Label XDMin_lbl{*this, "XDMin_lbl", "Minor Div: ", {240, 2160, 900, 285}};
    TextBox XDMin{*this, "XDMin", {1200, 2160, 855, 285}};
    Label YMax_lbl{*this, "YMax_lbl", "Max:", {2280, 840, 900, 285}};
    TextBox YMax{*this, "YMax", {3240, 840, 855, 285}};
    Label YMin_lbl{*this, "YMin_lbl", "Min:", {2280, 1200, 900, 285}};
    TextBox YMin{*this, "YMin", {3240, 1200, 855, 285}};
    Label YDMaj_lbl{*this, "YDMaj_lbl", "Major Div:", {2280, 1800, 900, 285}};
    TextBox YDMaj{*this, "YDMaj", {3240, 1800, 855, 285}};
    Label YDMin_lbl{*this, "YDMin_lbl", "Minor Div: ", {2280, 2160, 900, 285}};
    TextBox YDMin{*this, "YDMin", {3240, 2160, 855, 285}};
    CheckBox AutoX{*this, "AutoX", "Auto Set X", {720, 2640, 1560, 240}};
    CheckBox AutoY{*this, "AutoY", "Auto Set Y", {2400, 2640, 1560, 240}};
    CheckBox Legend{*this, "Legend", "Legend", {720, 2880, 1560, 240}};
    CheckBox Grid{*this, "Grid", "Grid", {2400, 2880, 1200, 240}};
    Label Reload{*this, "Reload", "Reload", {240, 3360, 720, 285}, kPressed};
    Label Accept{*this, "Accept", "Accept", {2640, 3360, 720, 285}, kPressed};
    Label Cancel{*this, "Cancel", "Cancel", {3480, 3360, 720, 285}, kPressed};
    /// The pending end of the chart's Y axis: whoever sets the caption sets the axis.
    Label Max{*this, "Max", "", {3720, 2880, 480, 240}};
    /// "1" while the chart is an XY plot, "0" while it is a bar chart.
    Label XY{*this, "XY", "", {240, 2880, 480, 240}};

    bool autosetx = false;  ///< The user wants an automatic X scale.
    bool autosety = false;  ///< The user wants an automatic Y scale.

    /// Brings the controls in line with the chart.
    void Reload_Click();
    /// Gives the chart what the controls hold, and reloads. A field that is no number is refused
    /// with a box and gets the focus; nothing is applied then, and the result is false. Throws an
    /// overflow for divisions beyond 16 bits; what stands before them is applied.
    bool AcceptFields();
    /// Accepts, says so and hides the window, unless a field is refused.
    void SaveAndHide();
    /// Drops the edits and hides the window.
    void CancelEdits();
    /// The caption of `Max` has changed: an end of the Y axis, or empty for an automatic one.
    void ApplyMax();

private:
    /// The controls of one axis.
    struct AxisFields {
        int axis;
        const char* name;
        TextBox& max;
        TextBox& min;
        TextBox& majorDivision;
        TextBox& minorDivision;
        CheckBox& automatic;
        bool& autoset;
    };
    AxisFields FieldsOfX();
    AxisFields FieldsOfY();
    void ReloadAxis(const AxisFields& fields);
    void ApplyAxis(const AxisFields& fields);
    bool FieldsAreNumbers(const AxisFields& fields);
    void ApplyGrid();
    arbolith::Chart& Chart() { return chartWindow_.Get().Chart; }

    AtFirstUse<ChartWindow>& chartWindow_;
};

}  // namespace arbolith
