// The controls of the single-run view: their names, kinds and captions, and what holds them.
#include "run_definition/main_form.h"

#include "unit/run_definition/run_testing.h"

#include <gtest/gtest.h>

namespace arbolith {
namespace {

using Kind = ControlKind;

struct Row {
    const char* name;
    Kind kind;
    const char* caption;
    const char* parent;
};

constexpr Row kControls[] = {
    {"Run_Mnu", Kind::kMenuItem, "&Mode", "QvlySwd"},
    {"Adv_Mode", Kind::kMenuItem, "Advanced User", "Run_Mnu"},
    {"Batch_Mnu", Kind::kMenuItem, "&Batch Run", "Run_Mnu"},
    {"Single_Mnu", Kind::kMenuItem, "&Single Run", "Run_Mnu"},
    {"Qvly", Kind::kFrame, "Arbolith Models:", "QvlySwd"},
    {"Batch", Kind::kFrame, "Batch Run", "QvlySwd"},
    {"Steps", Kind::kFrame, "Steps", "Qvly"},
    {"Options", Kind::kFrame, "Options", "Qvly"},
    {"HelpFrame", Kind::kFrame, "Help", "Qvly"},
    {"Run", Kind::kButton, "Run", "Qvly"},
    {"Clear", Kind::kButton, "Clear Input", "Qvly"},
    {"Append_Btn", Kind::kButton, "Append To Batch", "Qvly"},
    {"CancelAppend", Kind::kButton, "Cancel", "Qvly"},
    {"Step1_Btn", Kind::kButton, "1", "Steps"},
    {"Step2_Btn", Kind::kButton, "2", "Steps"},
    {"Step3_Btn", Kind::kButton, "3", "Steps"},
    {"Step4_Btn", Kind::kButton, "4", "Steps"},
    {"Step5_Btn", Kind::kButton, "5", "Steps"},
    {"Step6_Btn", Kind::kButton, "6", "Steps"},
    {"Step7_Btn", Kind::kButton, "7", "Steps"},
    {"Options_Help", Kind::kLabel,
     "Please Select an option to the left to continue. All the steps must be completed in order "
     "for program to run correctly.",
     "Options"},
    {"Help1", Kind::kLabel, "", "HelpFrame"},
    {"Help2", Kind::kLabel, "", "HelpFrame"},
    {"Help3", Kind::kLabel, "", "HelpFrame"},
    {"Help4", Kind::kLabel, "", "HelpFrame"},
    {"Help5", Kind::kLabel, "", "HelpFrame"},
    {"Help6", Kind::kLabel, "", "HelpFrame"},
    {"Help7", Kind::kLabel, "", "HelpFrame"},
    {"NSpruceHelp", Kind::kLabel, "More Information", "HelpFrame"},
    {"Help4a", Kind::kLabel, "Goto Manual Now", "HelpFrame"},
    // The step frames.
    {"Step1", Kind::kFrame, "", "Options"},
    {"Step2", Kind::kFrame, "", "Options"},
    {"Step3", Kind::kFrame, "", "Options"},
    {"Step4", Kind::kFrame, "", "Options"},
    {"Step5", Kind::kFrame, "", "Options"},
    {"Step6", Kind::kFrame, "", "Options"},
    {"Step7", Kind::kFrame, "", "Options"},
    {"Step1a", Kind::kFrame, "Choose model type", "Step1"},
    {"Choose_Swd", Kind::kOption, "Softwood", "Step1a"},
    {"Choose_Hwd", Kind::kOption, "Hardwood", "Step1a"},
    {"Step1b", Kind::kFrame, "Choose measurement system", "Step1"},
    {"choose_Metric", Kind::kOption, "Metric", "Step1b"},
    {"choose_Imperial", Kind::kOption, "Imperial", "Step1b"},
    {"Label12", Kind::kLabel, "Choose one of the options below", "Step2"},
    {"chkPlant", Kind::kOption, "Plantation", "Step2"},
    {"chkNat", Kind::kOption, "Natural Regeneration", "Step2"},
    {"lbl2_2", Kind::kLabel, "X Spacing:", "Step2"},
    {"spac1", Kind::kTextBox, "", "Step2"},
    {"lbl2_3", Kind::kLabel, "Y Spacing:", "Step2"},
    {"spac2", Kind::kTextBox, "", "Step2"},
    {"step3_Listlbl", Kind::kLabel, "Select a species to model:", "Step3"},
    {"lstSpecies", Kind::kListBox, "", "Step3"},
    {"Label13", Kind::kLabel, "Choose one of the options below", "Step4"},
    {"choose_Land", Kind::kOption, "Land Capability", "Step4"},
    {"Lcap", Kind::kListBox, "", "Step4"},
    {"choose_Site", Kind::kOption, "Site Index (Age 50)", "Step4"},
    {"Site", Kind::kTextBox, "", "Step4"},
    {"Label14", Kind::kLabel, "Enter Expected Stocking Value (%)", "Step5"},
    {"stk_lbl", Kind::kLabel, "Expected Stocking:", "Step5"},
    {"Stocking_Index", Kind::kTextBox, "", "Step5"},
    {"Label15", Kind::kLabel, "Choose one of the options below", "Step6"},
    {"Step6_opt1", Kind::kOption, "Rotation Age:", "Step6"},
    {"txtRotAge", Kind::kTextBox, "", "Step6"},
    {"Step6_opt2", Kind::kOption, "Rotation DBH:", "Step6"},
    {"txtRotDBH", Kind::kTextBox, "", "Step6"},
    {"Treatment1", Kind::kFrame, "Optional Treatment 1 Parameters", "Step7"},
    {"Step7_T1Age", Kind::kOption, "&Age", "Treatment1"},
    {"Age1", Kind::kTextBox, "", "Treatment1"},
    {"Step7_T1DBH", Kind::kOption, "&DBH", "Treatment1"},
    {"DBH1", Kind::kTextBox, "", "Treatment1"},
    {"BA1_lbl", Kind::kLabel, "B.&A. Reduction (%)", "Treatment1"},
    {"BA1", Kind::kTextBox, "", "Treatment1"},
    {"Spac1_lbl", Kind::kLabel, "&Spacing", "Treatment1"},
    {"Spacing", Kind::kTextBox, "", "Treatment1"},
    {"Treatment2", Kind::kFrame, "Optional Treatment 2 Parameters", "Step7"},
    {"Age2_lbl", Kind::kLabel, "&Age", "Treatment2"},
    {"Age2", Kind::kTextBox, "", "Treatment2"},
    {"BA2_lbl", Kind::kLabel, "B.&A. Reduction (%)", "Treatment2"},
    {"BA2", Kind::kTextBox, "", "Treatment2"},
    // What each step holds.
    {"Step1_lbl1", Kind::kLabel, "Choose Model:", "Steps"},
    {"Step1_Type", Kind::kLabel, "", "Steps"},
    {"Step1_lbl2", Kind::kLabel, "Unit Type:", "Steps"},
    {"Step1_Unit", Kind::kLabel, "", "Steps"},
    {"Step2_lbl1", Kind::kLabel, "Natural Regen:", "Steps"},
    {"Step2_Nat", Kind::kLabel, "", "Steps"},
    {"Step2_lbl2", Kind::kLabel, "Plantation:", "Steps"},
    {"Step2_Plant", Kind::kLabel, "", "Steps"},
    {"s2l1", Kind::kLabel, "X:", "Steps"},
    {"Step2_Spac1", Kind::kLabel, "", "Steps"},
    {"s2l2", Kind::kLabel, "Y:", "Steps"},
    {"Step2_Spac2", Kind::kLabel, "", "Steps"},
    {"Step3_lbl", Kind::kLabel, "Dominant Species:", "Steps"},
    {"Step3_Spec", Kind::kLabel, "", "Steps"},
    {"Step4_lbl1", Kind::kLabel, "Site Index (@50):", "Steps"},
    {"Step4_Site", Kind::kLabel, "", "Steps"},
    {"Step4_lbl2", Kind::kLabel, "Land Capability:", "Steps"},
    {"Step4_Land", Kind::kLabel, "", "Steps"},
    {"Step4_lbl3", Kind::kLabel, "Tree Frequency:", "Steps"},
    {"Step4_Freq", Kind::kLabel, "", "Steps"},
    {"step5_lbl", Kind::kLabel, "Expected Stocking:", "Steps"},
    {"Step5_Stock", Kind::kLabel, "", "Steps"},
    {"step5_lbl2", Kind::kLabel, "%", "Steps"},
    {"Step6_lbl1", Kind::kLabel, "Simulation Duration:  ", "Steps"},
    {"Step6_lbl2", Kind::kLabel, "Age:", "Steps"},
    {"Step6_Age", Kind::kLabel, "", "Steps"},
    {"Step6_lbl3", Kind::kLabel, "DBH:  ", "Steps"},
    {"Step6_DBH", Kind::kLabel, "", "Steps"},
    {"Step7_lbl1", Kind::kLabel, "Management Options:", "Steps"},
    {"Step7_lbl2", Kind::kLabel, "Treatment:      1        2", "Steps"},
    {"Step7_lbl3", Kind::kLabel, "Age:", "Steps"},
    {"Step7_Age1", Kind::kLabel, "", "Steps"},
    {"Step7_Age2", Kind::kLabel, "", "Steps"},
    {"Step7_lbl4", Kind::kLabel, "DBH:", "Steps"},
    {"Step7_DBH1", Kind::kLabel, "", "Steps"},
    {"Step7_lbl5", Kind::kLabel, "% B.A.", "Steps"},
    {"Step7_BA1", Kind::kLabel, "", "Steps"},
    {"Step7_BA2", Kind::kLabel, "", "Steps"},
    {"Step7_lbl6", Kind::kLabel, "Spacing:", "Steps"},
    {"Step7_Spac", Kind::kLabel, "", "Steps"},
};

TEST(MainForm, HoldsTheControlsOfTheSingleRunView) {
    FakeHost host;
    Application application(host, "", "");
    const MainForm form(application);
    for (const auto& row : kControls) {
        const Control* control = form.Find(row.name);
        ASSERT_NE(control, nullptr) << row.name;
        EXPECT_EQ(control->Kind(), row.kind) << row.name;
        EXPECT_EQ(control->Caption(), row.caption) << row.name;
        EXPECT_EQ(control->Parent().Name(), row.parent) << row.name;
    }
}

TEST(MainForm, KeepsTheDensityInAHiddenField) {
    FakeHost host;
    Application application(host, "", "");
    const MainForm form(application);
    EXPECT_EQ(form.tf_textbox.Text(), "enter density");
    EXPECT_FALSE(form.tf_textbox.Visible());
}

TEST(MainForm, BeginsInTheSingleRunView) {
    const RunningProgram running;
    EXPECT_TRUE(running.form.Qvly.Visible());
    EXPECT_FALSE(running.form.Batch.Visible());
    EXPECT_FALSE(running.form.Append_Btn.Visible());
    EXPECT_FALSE(running.form.CancelAppend.Visible());
    EXPECT_FALSE(running.form.Adv_Mode.Checked());
    EXPECT_EQ(running.form.Qvly.Caption(), "Arbolith Models: Softwood");
    EXPECT_EQ(running.form.Options.Caption(), "Options:");
}

}  // namespace
}  // namespace arbolith
