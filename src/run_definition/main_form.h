// The main form: its frames, menus and commands, and every control of the single-run view with its
// name, caption and place. The order of making is the tab order: it follows the steps.
#pragma once

#include "forms/common_dialog.h"
#include "forms/controls.h"

namespace arbolith {

/// The form QvlySwd. Its left half shows what each step holds, its right half the open step with
/// the help below it.
struct MainForm : Form {
    explicit MainForm(Application& application);

    MenuItem File_Mnu{*this, "File_Mnu", "&File"};
    MenuItem New_Mnu{File_Mnu, "New_Mnu", "&New"};
    MenuItem Open_Mnu{File_Mnu, "Open_Mnu", "&Open"};
    MenuItem File_Separator1{File_Mnu, "File_Separator1", "-"};
    MenuItem Save_Mnu{File_Mnu, "Save_Mnu", "&Save"};
    MenuItem SaveAs_Mnu{File_Mnu, "SaveAs_Mnu", "Save &As..."};
    MenuItem AppendToBatch_Mnu{File_Mnu, "AppendToBatch_Mnu", "Append To &Batch"};
    MenuItem File_Separator2{File_Mnu, "File_Separator2", "-"};
    MenuItem Close_Mnu{File_Mnu, "Close_Mnu", "&Close"};
    MenuItem File_Separator3{File_Mnu, "File_Separator3", "-"};
    MenuItem Exit_Program{File_Mnu, "Exit_Program", "E&xit"};
    MenuItem Run_Mnu{*this, "Run_Mnu", "&Mode"};
    MenuItem Single_Mnu{Run_Mnu, "Single_Mnu", "&Single Run"};
    MenuItem Batch_Mnu{Run_Mnu, "Batch_Mnu", "&Batch Run"};
    MenuItem Adv_Mode{Run_Mnu, "Adv_Mode", "Advanced User"};
    MenuItem HelpMain{*this, "HelpMain", "&Help"};
    MenuItem Help{HelpMain, "Help", "&Contents...", "F1"};
    MenuItem Help_Separator{HelpMain, "Help_Separator", "-"};
    MenuItem Definitions_Mnu{HelpMain, "Definitions_Mnu", "&Definitions..."};

    /// For everything that is opened or saved from this form.
    CommonDialog CDL;

    Frame Qvly{*this, "Qvly", "Arbolith Models:", {120, 60, 14160, 9060}};
    Frame Batch{*this, "Batch", "Batch Run", {120, 60, 14160, 9060}};

    /// Under the numbers of the two treatments.
    static constexpr Label::Look kCentred = {.alignment = Alignment::kCentre};

    // What each step holds: the step's button, then a column of labels and a column of values.
    Frame Steps{Qvly, "Steps", "Steps", {120, 360, 4680, 8520}};

    Button Step1_Btn{Steps, "Step1_Btn", "1", {120, 360, 480, 375}};
    Label Step1_lbl1{Steps, "Step1_lbl1", "Choose Model:", {720, 405, 1920, 285}};
    Label Step1_Type{Steps, "Step1_Type", "", {2700, 405, 1860, 285}};
    Label Step1_lbl2{Steps, "Step1_lbl2", "Unit Type:", {720, 780, 1920, 285}};
    Label Step1_Unit{Steps, "Step1_Unit", "", {2700, 780, 1860, 285}};

    Button Step2_Btn{Steps, "Step2_Btn", "2", {120, 1305, 480, 375}};
    Label Step2_lbl1{Steps, "Step2_lbl1", "Natural Regen:", {720, 1350, 1920, 285}};
    Label Step2_Nat{Steps, "Step2_Nat", "", {2700, 1350, 1860, 285}};
    Label Step2_lbl2{Steps, "Step2_lbl2", "Plantation:", {720, 1725, 1920, 285}};
    Label Step2_Plant{Steps, "Step2_Plant", "", {2700, 1725, 1860, 285}};
    Label s2l1{Steps, "s2l1", "X:", {2700, 2100, 300, 285}};
    Label Step2_Spac1{Steps, "Step2_Spac1", "", {3000, 2100, 600, 285}};
    Label s2l2{Steps, "s2l2", "Y:", {3660, 2100, 300, 285}};
    Label Step2_Spac2{Steps, "Step2_Spac2", "", {3960, 2100, 600, 285}};

    Button Step3_Btn{Steps, "Step3_Btn", "3", {120, 2625, 480, 375}};
    Label Step3_lbl{Steps, "Step3_lbl", "Dominant Species:", {720, 2670, 1920, 285}};
    Label Step3_Spec{Steps, "Step3_Spec", "", {2700, 2670, 1860, 285}};

    Button Step4_Btn{Steps, "Step4_Btn", "4", {120, 3195, 480, 375}};
    Label Step4_lbl1{Steps, "Step4_lbl1", "Site Index (@50):", {720, 3240, 1920, 285}};
    Label Step4_Site{Steps, "Step4_Site", "", {2700, 3240, 1860, 285}};
    Label Step4_lbl2{Steps, "Step4_lbl2", "Land Capability:", {720, 3615, 1920, 285}};
    Label Step4_Land{Steps, "Step4_Land", "", {2700, 3615, 1860, 285}};
    Label Step4_lbl3{Steps, "Step4_lbl3", "Tree Frequency:", {720, 3990, 1920, 285}};
    Label Step4_Freq{Steps, "Step4_Freq", "", {2700, 3990, 1860, 285}};

    Button Step5_Btn{Steps, "Step5_Btn", "5", {120, 4515, 480, 375}};
    Label step5_lbl{Steps, "step5_lbl", "Expected Stocking:", {720, 4560, 1920, 285}};
    Label Step5_Stock{Steps, "Step5_Stock", "", {2700, 4560, 480, 285}};
    Label step5_lbl2{Steps, "step5_lbl2", "%", {3180, 4560, 300, 285}};

    Button Step6_Btn{Steps, "Step6_Btn", "6", {120, 5085, 480, 375}};
    Label Step6_lbl1{Steps, "Step6_lbl1", "Simulation Duration:  ", {720, 5130, 3000, 285}};
    Label Step6_lbl2{Steps, "Step6_lbl2", "Age:", {720, 5505, 540, 285}};
    Label Step6_Age{Steps, "Step6_Age", "", {1320, 5505, 1260, 285}};
    Label Step6_lbl3{Steps, "Step6_lbl3", "DBH:  ", {2700, 5505, 600, 285}};
    Label Step6_DBH{Steps, "Step6_DBH", "", {3360, 5505, 1200, 285}};

    Button Step7_Btn{Steps, "Step7_Btn", "7", {120, 6030, 480, 375}};
    Label Step7_lbl1{Steps, "Step7_lbl1", "Management Options:", {720, 6075, 3000, 285}};
    Label Step7_lbl2{Steps, "Step7_lbl2", "Treatment:      1        2", {720, 6450, 3840, 285}};
    Label Step7_lbl3{Steps, "Step7_lbl3", "Age:", {720, 6825, 1080, 285}};
    Label Step7_Age1{Steps, "Step7_Age1", "", {1860, 6825, 570, 285}, kCentred};
    Label Step7_Age2{Steps, "Step7_Age2", "", {2445, 6825, 570, 285}, kCentred};
    Label Step7_lbl4{Steps, "Step7_lbl4", "DBH:", {720, 7200, 1080, 285}};
    Label Step7_DBH1{Steps, "Step7_DBH1", "", {1860, 7200, 570, 285}, kCentred};
    Label Step7_lbl5{Steps, "Step7_lbl5", "% B.A.", {720, 7575, 1080, 285}};
    Label Step7_BA1{Steps, "Step7_BA1", "", {1860, 7575, 570, 285}, kCentred};
    Label Step7_BA2{Steps, "Step7_BA2", "", {2445, 7575, 570, 285}, kCentred};
    Label Step7_lbl6{Steps, "Step7_lbl6", "Spacing:", {720, 7950, 1080, 285}};
    Label Step7_Spac{Steps, "Step7_Spac", "", {1860, 7950, 570, 285}, kCentred};

    // The open step.
    Frame Options{Qvly, "Options", "Options", {4920, 360, 9120, 4440}};
    Label Options_Help{Options,
                       "Options_Help",
                       "Please Select an option to the left to continue. All the steps must be "
                       "completed in order for program to run correctly.",
                       {360, 600, 8400, 840},
                       {.wraps = true}};

    Frame Step1{Options, "Step1", "", {120, 360, 8880, 3960}};
    Frame Step1a{Step1, "Step1a", "Choose model type", {120, 120, 8640, 1200}};
    Option Choose_Swd{Step1a, "Choose_Swd", "Softwood", {240, 480, 2400, 375}};
    Option Choose_Hwd{Step1a, "Choose_Hwd", "Hardwood", {3000, 480, 2400, 375}};
    Frame Step1b{Step1, "Step1b", "Choose measurement system", {120, 1560, 8640, 1200}};
    Option choose_Metric{Step1b, "choose_Metric", "Metric", {240, 480, 2400, 375}};
    Option choose_Imperial{Step1b, "choose_Imperial", "Imperial", {3000, 480, 2400, 375}};

    Frame Step2{Options, "Step2", "", {120, 360, 8880, 3960}};
    Label Label12{Step2, "Label12", "Choose one of the options below", {120, 120, 8640, 285}};
    Option chkPlant{Step2, "chkPlant", "Plantation", {240, 600, 2880, 375}};
    Option chkNat{Step2, "chkNat", "Natural Regeneration", {240, 1680, 2880, 375}};
    Label lbl2_2{Step2, "lbl2_2", "X Spacing:", {3360, 645, 1260, 285}};
    TextBox spac1{Step2, "spac1", {4680, 600, 1200, 375}, 4};
    Label lbl2_3{Step2, "lbl2_3", "Y Spacing:", {3360, 1125, 1260, 285}};
    TextBox spac2{Step2, "spac2", {4680, 1080, 1200, 375}, 4};

    Frame Step3{Options, "Step3", "", {120, 360, 8880, 3960}};
    Label step3_Listlbl{
        Step3, "step3_Listlbl", "Select a species to model:", {120, 120, 8640, 285}};
    ListBox lstSpecies{Step3, "lstSpecies", {240, 480, 3600, 3240}};

    Frame Step4{Options, "Step4", "", {120, 360, 8880, 3960}};
    Label Label13{Step4, "Label13", "Choose one of the options below", {120, 120, 8640, 285}};
    Option choose_Land{Step4, "choose_Land", "Land Capability", {240, 480, 2280, 375}};
    ListBox Lcap{Step4, "Lcap", {2640, 480, 1200, 3360}};
    Option choose_Site{Step4, "choose_Site", "Site Index (Age 50)", {4440, 480, 2520, 375}};
    TextBox Site{Step4, "Site", {7080, 480, 1200, 375}, 4};

    Frame Step5{Options, "Step5", "", {120, 360, 8880, 3960}};
    Label Label14{Step5, "Label14", "Enter Expected Stocking Value (%)", {120, 120, 8640, 285}};
    Label stk_lbl{Step5, "stk_lbl", "Expected Stocking:", {240, 645, 2160, 285}};
    TextBox Stocking_Index{Step5, "Stocking_Index", {2640, 600, 1200, 375}, 3};

    Frame Step6{Options, "Step6", "", {120, 360, 8880, 3960}};
    Label Label15{Step6, "Label15", "Choose one of the options below", {120, 120, 8640, 285}};
    Option Step6_opt1{Step6, "Step6_opt1", "Rotation Age:", {240, 600, 2160, 375}};
    TextBox txtRotAge{Step6, "txtRotAge", {2640, 600, 1200, 375}, 3};
    Option Step6_opt2{Step6, "Step6_opt2", "Rotation DBH:", {240, 1080, 2160, 375}};
    TextBox txtRotDBH{Step6, "txtRotDBH", {2640, 1080, 1200, 375}, 4};

    Frame Step7{Options, "Step7", "", {120, 360, 8880, 3960}};
    Frame Treatment1{
        Step7, "Treatment1", "Optional Treatment 1 Parameters", {120, 120, 4200, 2760}};
    Option Step7_T1Age{Treatment1, "Step7_T1Age", "&Age", {240, 480, 1920, 375}};
    TextBox Age1{Treatment1, "Age1", {2760, 480, 1200, 375}, 3};
    Option Step7_T1DBH{Treatment1, "Step7_T1DBH", "&DBH", {240, 960, 1920, 375}};
    TextBox DBH1{Treatment1, "DBH1", {2760, 960, 1200, 375}, 4};
    Label BA1_lbl{Treatment1, "BA1_lbl", "B.&A. Reduction (%)", {240, 1605, 2400, 285}};
    TextBox BA1{Treatment1, "BA1", {2760, 1560, 1200, 375}, 3};
    Label Spac1_lbl{Treatment1, "Spac1_lbl", "&Spacing", {240, 2085, 2400, 285}};
    TextBox Spacing{Treatment1, "Spacing", {2760, 2040, 1200, 375}, 4};
    Frame Treatment2{
        Step7, "Treatment2", "Optional Treatment 2 Parameters", {4560, 120, 4200, 2760}};
    Label Age2_lbl{Treatment2, "Age2_lbl", "&Age", {240, 525, 2400, 285}};
    TextBox Age2{Treatment2, "Age2", {2760, 480, 1200, 375}, 3};
    Label BA2_lbl{Treatment2, "BA2_lbl", "B.&A. Reduction (%)", {240, 1605, 2400, 285}};
    TextBox BA2{Treatment2, "BA2", {2760, 1560, 1200, 375}, 3};

    /// Holds the stems per unit area at treatment 1's time, left there by the treatment probe.
    TextBox tf_textbox{*this, "tf_textbox", {0, 0, 1200, 375}};

    Frame HelpFrame{Qvly, "HelpFrame", "Help", {4920, 4920, 9120, 3240}};
    Label Help1{HelpFrame, "Help1", "", {240, 360, 8640, 2160}, {.wraps = true}};
    Label Help2{HelpFrame, "Help2", "", {240, 360, 8640, 2160}, {.wraps = true}};
    Label Help3{HelpFrame, "Help3", "", {240, 360, 8640, 2160}, {.wraps = true}};
    Label Help4{HelpFrame, "Help4", "", {240, 360, 8640, 2160}, {.wraps = true}};
    Label Help5{HelpFrame, "Help5", "", {240, 360, 8640, 2160}, {.wraps = true}};
    Label Help6{HelpFrame, "Help6", "", {240, 360, 8640, 2160}, {.wraps = true}};
    Label Help7{HelpFrame, "Help7", "", {240, 360, 8640, 2640}, {.wraps = true}};
    Label NSpruceHelp{
        HelpFrame, "NSpruceHelp", "More Information", {240, 2640, 2400, 285}, {.link = true}};
    Label Help4a{HelpFrame, "Help4a", "Goto Manual Now", {240, 2640, 2400, 285}, {.link = true}};

    Button Append_Btn{Qvly, "Append_Btn", "Append To Batch", {12000, 8280, 2040, 600}};
    Button Run{Qvly, "Run", "Run", {12000, 8280, 2040, 600}};
    Button CancelAppend{Qvly, "CancelAppend", "Cancel", {8400, 8280, 1680, 600}};
    Button Clear{Qvly, "Clear", "Clear Input", {10200, 8280, 1680, 600}};
};

}  // namespace arbolith
