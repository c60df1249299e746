// The batch view: the controls of the main form's frame Batch with their captions, places and
// design-time states. The order of making is the tab order.
#pragma once

#include "run_definition/main_form.h"

namespace arbolith {

/// The texts that stand in the two boxes of file names for a missing file.
inline constexpr const char* kNoInputSelected = "<< No Input Selected >>";
inline constexpr const char* kInputError = "<< ERROR. Select a file >>";
inline constexpr const char* kNoOutputSelected = "<< No Output File Selected >>";
inline constexpr const char* kOutputError = "<< Error: Select a file >>";

/// The columns of the list of sequences: plot, unit, regeneration, species and stocking, site,
/// rotation, treatments. Those of the heading above it are the same.
inline const TextColumns kSequenceColumns = {{0, true},    {85, true},  {130, false}, {260, true},
                                             {385, false}, {470, true}, {595, false}};

struct BatchPanel {
    /// Makes the controls on the form's frame Batch.
    explicit BatchPanel(MainForm& mainForm);

    MainForm& form;

    Frame Batch_FilePath{
        form.Batch, "Batch_FilePath", "Batch Sequence File (input)", {120, 360, 6900, 1440}};
    TextBox batch_in{Batch_FilePath, "batch_in", {240, 360, 6420, 375}};
    Button batchFileBtn{Batch_FilePath, "batchFileBtn", "Select File", {240, 840, 1560, 420}};
    Button newBatBtn{Batch_FilePath, "newBatBtn", "New", {1920, 840, 1200, 420}};
    Button editBatBtn{Batch_FilePath, "editBatBtn", "Edit", {3240, 840, 1200, 420}};

    Frame Batch_OutputPath{
        form.Batch, "Batch_OutputPath", "Output Path and File", {7140, 360, 6900, 1440}};
    TextBox batch_out{Batch_OutputPath, "batch_out", {240, 360, 6420, 375}};
    Button outFileBtn{Batch_OutputPath, "outFileBtn", "Select File", {240, 840, 1560, 420}};
    Button viewBatBtn{Batch_OutputPath, "viewBatBtn", "View", {1920, 840, 840, 420}};
    CheckBox batchHTML{Batch_OutputPath, "batchHTML", "HTML", {2880, 840, 900, 420}};
    CheckBox chkBorder{
        Batch_OutputPath, "chkBorder", "Apply gridlines to data cells", {3780, 840, 3000, 420}};

    Frame Batch_Sequence{form.Batch, "Batch_Sequence", "Sequence", {120, 1920, 13920, 5400}};
    Label Label1{Batch_Sequence,
                 "Label1",
                 "Plot#      Unit   Regen             Species/stock      Site              "
                 "Rotation        Treatments",
                 {240, 360, 13440, 285},
                 {.columns = kSequenceColumns}};
    ListBox Batch_Seq{Batch_Sequence,
                      "Batch_Seq",
                      {240, 720, 13440, 2880},
                      {"Times New Roman", kSequenceColumns}};
    Label Label7{Batch_Sequence,
                 "Label7",
                 "Double Clicking on an item in the list will let you edit it.",
                 {240, 3720, 13440, 285}};
    Label Label8{
        Batch_Sequence,
        "Label8",
        "Pressing DELETE will remove the Selected item. Pressing INSERT will let you add an item.",
        {240, 4020, 13440, 285}};
    Button Append_Make_Btn{
        Batch_Sequence, "Append_Make_Btn", "Create Sequence To Append", {240, 4380, 2880, 420}};
    Button editSeqBtn{
        Batch_Sequence, "editSeqBtn", "Edit Selected Sequence", {3240, 4380, 2760, 420}};
    Button Del_Seq_Btn{
        Batch_Sequence, "Del_Seq_Btn", "Delete Selected Sequence", {6120, 4380, 2760, 420}};
    Button Copy_Seq_Btn{
        Batch_Sequence, "Copy_Seq_Btn", "Copy and Create New", {9000, 4380, 2400, 420}};
    Button PlotNum_btn{Batch_Sequence, "PlotNum_btn", "Edit Plot Number", {11520, 4380, 2160, 420}};
    Label Label9{Batch_Sequence, "Label9", "Enter Plot Number:", {240, 4965, 2040, 285}};
    TextBox plotn{Batch_Sequence, "plotn", {2400, 4920, 2280, 375}};
    Button ok_btn{Batch_Sequence, "ok_btn", "OK", {4800, 4920, 960, 375}};
    Button can_btn{Batch_Sequence, "can_btn", "Cancel", {5880, 4920, 960, 375}};

    Frame Progress{form.Batch, "Progress", "Progress", {120, 7440, 9960, 1440}};
    Label Label2{Progress, "Label2", "Softwood :", {240, 315, 1320, 285}};
    ProgressBar SwdProg{Progress, "SwdProg", {1680, 330, 8040, 255}, 50};
    Label Label3{Progress, "Label3", "Hardwood :", {240, 675, 1320, 285}};
    ProgressBar HwdProg{Progress, "HwdProg", {1680, 690, 8040, 255}, 50};
    Label Label4{Progress, "Label4", "Overall :", {240, 1035, 1320, 285}};
    ProgressBar TotalProg{Progress, "TotalProg", {1680, 1050, 8040, 255}, 100};
    Button Cancel_Btn_Bat{form.Batch, "Cancel_Btn_Bat", "Cancel", {10320, 8280, 1680, 600}};
    Button StartBtn_Bat{form.Batch, "StartBtn_Bat", "Start", {12120, 8280, 1920, 600}};
};

}  // namespace arbolith
