// What a person's keys and moves of the focus set off on the main form.
#include "unit/run_definition/run_testing.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <utility>

namespace arbolith {
namespace {

class MainFormKeys : public RunningTest {
protected:
    void PressEnter(Control& control) { person.Press(control, {Key::kEnter}); }
    int TakeBeeps() { return std::exchange(host.beeps, 0); }
    // A planted softwood stand with its step 2 open.
    void OpenPlantation() {
        running.Press({1, 2});
        person.Click(form.chkPlant);
    }
};

TEST_F(MainFormKeys, EnterGoesOnFromTheSpacings) {
    OpenPlantation();
    person.Type(form.spac1, "2");
    PressEnter(form.spac1);
    EXPECT_TRUE(form.spac2.HasFocus());
    EXPECT_EQ(TakeBeeps(), 1) << "an accepted Enter still beeps";
    person.Type(form.spac2, "2");
    PressEnter(form.spac2);
    EXPECT_TRUE(form.Step3.Visible());
    EXPECT_TRUE(form.lstSpecies.HasFocus());
    EXPECT_EQ(TakeBeeps(), 1);
    EXPECT_EQ(form.spac2.Text(), "2");
}

TEST_F(MainFormKeys, EnterGoesThroughTheSteps) {
    running.Press({1, 3});
    running.Select(form.lstSpecies, "White Pine");
    PressEnter(form.lstSpecies);
    EXPECT_TRUE(form.Step4.Visible());
    EXPECT_EQ(TakeBeeps(), 0) << "a list has no filter";
    running.Select(form.Lcap, "6");
    PressEnter(form.Lcap);
    EXPECT_TRUE(form.Step5.Visible());
    EXPECT_EQ(TakeBeeps(), 0);
    person.Type(form.Stocking_Index, "100");
    PressEnter(form.Stocking_Index);
    EXPECT_TRUE(form.Step6.Visible());
    EXPECT_EQ(TakeBeeps(), 1);
    person.Type(form.txtRotAge, "80");
    PressEnter(form.txtRotAge);
    EXPECT_TRUE(form.Step7.Visible());
    EXPECT_EQ(TakeBeeps(), 1);
    EXPECT_TRUE(host.boxes.empty());
}

TEST_F(MainFormKeys, EnterGoesOnFromASiteIndexAndARotationDiameter) {
    running.Press({1, 3});
    running.Select(form.lstSpecies, "White Pine");
    running.PressStep(4);
    person.Click(form.choose_Site);
    person.Type(form.Site, "17.5");
    PressEnter(form.Site);
    EXPECT_TRUE(form.Step5.Visible());
    EXPECT_EQ(TakeBeeps(), 1);
    person.Type(form.Stocking_Index, "100");
    running.PressStep(6);
    person.Click(form.Step6_opt2);
    person.Type(form.txtRotDBH, "30");
    PressEnter(form.txtRotDBH);
    EXPECT_TRUE(form.Step7.Visible());
    EXPECT_EQ(TakeBeeps(), 1);
}

TEST_F(MainFormKeys, EnterTellsAFaultAlsoWhileTheNextButtonIsDisabled) {
    running.Press({1, 3});
    EXPECT_FALSE(form.Step4_Btn.Enabled());
    PressEnter(form.lstSpecies);
    ASSERT_EQ(host.boxes.size(), 1U);
    EXPECT_EQ(host.boxes[0].text, "Please select a tree species to model");
    EXPECT_EQ(host.boxes[0].title, "Input Error");
    EXPECT_TRUE(form.Step3.Visible());
}

TEST_F(MainFormKeys, EnterInATreatmentFieldOnlyBeeps) {
    running.EnterSoftwood();
    PressEnter(form.Age1);
    EXPECT_EQ(TakeBeeps(), 1);
    EXPECT_TRUE(form.Step7.Visible());
    EXPECT_TRUE(form.Age1.HasFocus());
}

TEST_F(MainFormKeys, ASecondPointBeepsAndIsDropped) {
    OpenPlantation();
    person.Type(form.spac1, "1.2.");
    EXPECT_EQ(form.spac1.Text(), "1.2");
    EXPECT_EQ(TakeBeeps(), 1);
}

TEST_F(MainFormKeys, AFullFieldTakesNoMoreAndKeepsQuiet) {
    OpenPlantation();
    person.Type(form.spac1, "1.234");
    EXPECT_EQ(form.spac1.Text(), "1.23");
    EXPECT_EQ(TakeBeeps(), 0);
    person.Type(form.spac1, "x");
    EXPECT_EQ(TakeBeeps(), 1);
    EXPECT_EQ(form.spac1.Text(), "1.23");
}

TEST_F(MainFormKeys, WholeNumberFieldsTakeNoPoint) {
    running.EnterSoftwood();
    running.PressStep(5);
    person.Type(form.Stocking_Index, "9.5");
    EXPECT_EQ(form.Stocking_Index.Text(), "95");
    EXPECT_EQ(TakeBeeps(), 1);
    running.PressStep(6);
    person.Type(form.txtRotAge, "8.0");
    EXPECT_EQ(form.txtRotAge.Text(), "80");
    EXPECT_EQ(TakeBeeps(), 1);
    running.PressStep(7);
    person.Type(form.Age1, ".");
    EXPECT_EQ(form.Age1.Text(), "");
    EXPECT_EQ(TakeBeeps(), 1);
}

TEST_F(MainFormKeys, APastedTextIsCutButNotFiltered) {
    OpenPlantation();
    person.Paste(form.spac1, "-2.55");
    EXPECT_EQ(form.spac1.Text(), "-2.5");
    EXPECT_EQ(TakeBeeps(), 0);
    EXPECT_EQ(form.Step2_Spac1.Caption(), "-2.5");
    person.Paste(form.spac2, "abc");
    EXPECT_EQ(form.spac2.Text(), "abc");
    EXPECT_EQ(running.Level(), 2);
}

TEST_F(MainFormKeys, KeysAreDroppedWithoutABeepWhileTheProbeRuns) {
    running.EnterSoftwood();
    running.host.model = [this](const ProgramStart&) {
        EXPECT_FALSE(run.TreatmentKeysOpen);
        int key = '5';
        form.Age1.onKeyPress(key);
        EXPECT_EQ(key, 0);
        key = 'x';
        form.Age2.onKeyPress(key);
        EXPECT_EQ(key, 0);
        key = 8;
        form.DBH1.onKeyPress(key);
        EXPECT_EQ(key, 0);
        EXPECT_EQ(TakeBeeps(), 0);
        key = '5';
        form.BA1.onKeyPress(key);
        EXPECT_EQ(key, '5') << "the amounts have no such guard";
    };
    person.Type(form.Age1, "4");
    EXPECT_EQ(host.starts.size(), 1U);
}

TEST_F(MainFormKeys, AMissingModelIsToldAndLeavesTheKeysClosed) {
    running.EnterSoftwood();
    person.Type(form.Age1, "40");
    ASSERT_EQ(host.boxes.size(), 1U);
    EXPECT_EQ(host.boxes[0].text,
              "A required file is missing.  Try closing the program and restarting.  Reinstalling "
              "the program may be necessary.");
    EXPECT_EQ(host.boxes[0].title, "");
    EXPECT_EQ(form.Age1.Text(), "4") << "the second digit came too late";
    EXPECT_EQ(TakeBeeps(), 0);
}

TEST_F(MainFormKeys, TheDiameterFieldTakesDecimals) {
    running.ModelAnswers({{40, 25, 15, 2000, 8}});
    running.EnterSoftwood();
    person.Click(form.Step7_T1DBH);
    person.Type(form.DBH1, "12.34");
    EXPECT_EQ(form.DBH1.Text(), "12.3");
    EXPECT_EQ(run.record.T1DBH, 12.3);
    EXPECT_EQ(form.Step7_DBH1.Caption(), "12.3");
    person.Type(form.BA1, "12.5");
    EXPECT_EQ(form.BA1.Text(), "12.") << "three characters";
    person.Type(form.BA1, "9.5");
    EXPECT_EQ(form.BA1.Text(), "9.5");
}

struct FocusRow {
    const char* control;
    std::vector<const char*> coloured;
};

const std::vector<FocusRow>& FocusRows() {
    static const std::vector<FocusRow> rows = {
        {"Choose_Swd", {"Choose_Swd", "Step1_Type"}},
        {"Choose_Hwd", {"Choose_Hwd", "Step1_Type"}},
        {"choose_Metric", {"choose_Metric", "Step1_Unit"}},
        {"choose_Imperial", {"choose_Imperial", "Step1_Unit"}},
        {"spac1", {"lbl2_2", "Step2_Spac1", "chkPlant", "Step2_Plant"}},
        {"spac2", {"lbl2_3", "Step2_Spac2", "chkPlant", "Step2_Plant"}},
        {"chkNat", {"chkNat", "Step2_Nat"}},
        {"lstSpecies", {"Step3_Spec"}},
        {"Lcap", {"choose_Land", "Step4_Land"}},
        {"Site", {"choose_Site", "Step4_Site"}},
        {"Stocking_Index", {"stk_lbl", "Step5_Stock"}},
        {"txtRotAge", {"Step6_opt1", "Step6_Age"}},
        {"txtRotDBH", {"Step6_opt2", "Step6_DBH"}},
        {"Age1", {"Step7_T1Age", "Step7_Age1"}},
        {"DBH1", {"Step7_T1DBH", "Step7_DBH1"}},
        {"BA1", {"BA1_lbl", "Step7_BA1"}},
        {"Spacing", {"Spac1_lbl", "Step7_Spac"}},
        {"Age2", {"Age2_lbl", "Step7_Age2"}},
        {"BA2", {"BA2_lbl", "Step7_BA2"}},
    };
    return rows;
}

std::vector<std::string> Highlighted(const RunDefinition& run) {
    std::vector<std::string> names;
    for (const Control* control : run.form.Controls())
        if (control->BackColor() == run.FocusColour) names.push_back(control->Name());
    return names;
}

TEST_F(MainFormKeys, TheFocusHighlightsWhatBelongsToItsField) {
    EXPECT_EQ(run.FocusColour, 0xFFFF00U) << "cyan, blue first";
    EXPECT_EQ(run.RestColour, kButtonFace);
    // All fields at once, so that each can take the focus.
    for (Frame* frame : {&form.Step1, &form.Step2, &form.Step3, &form.Step4, &form.Step5,
                         &form.Step6, &form.Step7})
        frame->SetVisible(true);
    for (const auto& row : FocusRows()) form.Find(row.control)->SetEnabled(true);
    for (const auto& row : FocusRows()) {
        running.application.SetFocus(form.Clear);
        EXPECT_TRUE(Highlighted(run).empty()) << row.control;
        person.Focus(*form.Find(row.control));
        auto names = Highlighted(run);
        std::vector<std::string> expected(row.coloured.begin(), row.coloured.end());
        std::sort(names.begin(), names.end());
        std::sort(expected.begin(), expected.end());
        EXPECT_EQ(names, expected) << row.control;
    }
}

TEST_F(MainFormKeys, AFieldThatGetsTheFocusIsSelectedWhole) {
    for (Frame* frame : {&form.Step2, &form.Step4, &form.Step5, &form.Step6, &form.Step7})
        frame->SetVisible(true);
    for (TextBox* box : {&form.spac1, &form.spac2, &form.Site, &form.Stocking_Index,
                         &form.txtRotAge, &form.txtRotDBH, &form.Age1, &form.DBH1, &form.BA1,
                         &form.Spacing, &form.Age2, &form.BA2}) {
        const HeldBackEvents quiet(running.application);
        box->SetEnabled(true);
        box->SetText("12");
        person.Focus(*box);
        EXPECT_EQ(box->SelStart(), 0U) << box->Name();
        EXPECT_EQ(box->SelLength(), 2U) << box->Name();
    }
}

}  // namespace
}  // namespace arbolith
