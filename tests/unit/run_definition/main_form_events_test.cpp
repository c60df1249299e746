// What a person's clicks, keys and moves of the focus set off on the main form.
#include "unit/run_definition/run_testing.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <utility>

namespace arbolith {
namespace {

class MainFormEvents : public testing::Test {
protected:
    RunningProgram running;
    RunDefinition& run = running.run;
    MainForm& form = running.form;
    UserActions& person = running.person;
    FakeHost& host = running.host;

    void PressEnter(Control& control) { person.Press(control, {Key::kEnter}); }
    int TakeBeeps() { return std::exchange(host.beeps, 0); }
    // A planted softwood stand with its step 2 open.
    void OpenPlantation() {
        running.Press({1, 2});
        person.Click(form.chkPlant);
    }
};

TEST_F(MainFormEvents, TheOptionsOfAPairExcludeEachOther) {
    running.EnterSoftwood();
    struct Pair {
        int step;
        Option* one;
        Option* other;
    };
    for (const auto& [step, one, other] : {
             Pair{6, &form.Step6_opt1, &form.Step6_opt2},
             Pair{4, &form.choose_Land, &form.choose_Site},
             Pair{2, &form.chkNat, &form.chkPlant},
             Pair{1, &form.choose_Metric, &form.choose_Imperial},
             Pair{1, &form.Choose_Swd, &form.Choose_Hwd},
         }) {
        running.PressStep(step);
        ASSERT_TRUE(one->Value()) << one->Name();
        person.Click(*other);
        EXPECT_TRUE(other->Value()) << other->Name();
        EXPECT_FALSE(one->Value()) << one->Name();
        person.Click(*one);
        EXPECT_TRUE(one->Value()) << one->Name();
        EXPECT_FALSE(other->Value()) << other->Name();
    }
}

TEST_F(MainFormEvents, AnOptionAdjustsTheButtonsAtOnce) {
    running.EnterSoftwood();
    running.PressStep(6);
    person.Click(form.Step6_opt2);
    EXPECT_EQ(running.Level(), 6);
    person.Type(form.txtRotDBH, "30");
    EXPECT_EQ(running.Level(), 8);
    person.Click(form.Step6_opt1);
    EXPECT_EQ(running.Level(), 6);
    person.Type(form.txtRotAge, "80");
    running.PressStep(4);
    person.Click(form.choose_Site);
    EXPECT_EQ(running.Level(), 4);
    person.Type(form.Site, "17");
    EXPECT_EQ(running.Level(), 8);
    person.Click(form.choose_Land);
    EXPECT_EQ(running.Level(), 4);
    running.Select(form.Lcap, "6");
    running.PressStep(2);
    person.Click(form.chkPlant);
    EXPECT_EQ(running.Level(), 2);
    person.Click(form.chkNat);
    EXPECT_EQ(running.Level(), 8);
    running.PressStep(1);
    person.Click(form.Choose_Hwd);
    EXPECT_EQ(running.Level(), 3);
    person.Click(form.Choose_Swd);
    EXPECT_EQ(running.Level(), 3);
}

TEST_F(MainFormEvents, AChangeToSoftwoodTakesTheLaterStepsAway) {
    running.EnterHardwood();
    running.PressStep(1);
    EXPECT_EQ(running.Level(), 8);
    person.Click(form.Choose_Swd);
    EXPECT_EQ(running.Level(), 3) << "no species any more";
}

TEST_F(MainFormEvents, AChangeOfUnitsAdjustsTheButtonsWithoutAFieldToEmpty) {
    running.EnterSoftwood();
    running.PressStep(1);
    for (Option* units : {&form.choose_Imperial, &form.choose_Metric}) {
        form.Step7_Btn.SetEnabled(false);
        person.Click(*units);
        EXPECT_EQ(running.Level(), 8) << units->Name();
    }
}

TEST_F(MainFormEvents, TheKindsOfTreatmentTimeExcludeEachOther) {
    running.EnterSoftwood();
    person.Click(form.Step7_T1DBH);
    EXPECT_FALSE(form.Step7_T1Age.Value());
    EXPECT_TRUE(form.DBH1.HasFocus());
    EXPECT_FALSE(form.Age1.Enabled());
    person.Click(form.Step7_T1Age);
    EXPECT_FALSE(form.Step7_T1DBH.Value());
    EXPECT_TRUE(form.Age1.HasFocus());
    EXPECT_FALSE(form.DBH1.Enabled());
}

TEST_F(MainFormEvents, AnOptionThatIsOnRaisesNoClick) {
    running.EnterSoftwood();
    running.PressStep(1);
    {
        const HeldBackEvents quiet(running.application);
        form.Age2.SetText("50");
    }
    person.Click(form.Choose_Swd);
    EXPECT_EQ(form.Age2.Text(), "50");
}

TEST_F(MainFormEvents, AnOptionWithAFieldMovesTheFocusThere) {
    running.EnterSoftwood();
    running.PressStep(4);
    person.Click(form.choose_Site);
    EXPECT_TRUE(form.Site.HasFocus());
    person.Click(form.choose_Land);
    EXPECT_TRUE(form.Lcap.HasFocus());
    running.Select(form.Lcap, "6");
    running.PressStep(6);
    person.Click(form.Step6_opt2);
    EXPECT_TRUE(form.txtRotDBH.HasFocus());
    person.Click(form.Step6_opt1);
    EXPECT_TRUE(form.txtRotAge.HasFocus());
    running.PressStep(2);
    person.Click(form.chkPlant);
    EXPECT_TRUE(form.spac1.HasFocus());
    person.Click(form.chkNat);
    EXPECT_TRUE(form.chkNat.HasFocus());
}

TEST_F(MainFormEvents, TheRegenerationChangesItsGuidanceAtOnce) {
    running.Press({1, 2});
    EXPECT_EQ(form.Help2.Caption(), "");
    person.Click(form.chkPlant);
    EXPECT_EQ(form.Help2.Caption().substr(0, 35), "Please enter X and Y dimension spac");
    person.Click(form.chkNat);
    EXPECT_EQ(form.Help2.Caption(), "");
}

TEST_F(MainFormEvents, EnterGoesOnFromTheSpacings) {
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

TEST_F(MainFormEvents, EnterGoesThroughTheSteps) {
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

TEST_F(MainFormEvents, EnterGoesOnFromASiteIndexAndARotationDiameter) {
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

TEST_F(MainFormEvents, EnterTellsAFaultAlsoWhileTheNextButtonIsDisabled) {
    running.Press({1, 3});
    EXPECT_FALSE(form.Step4_Btn.Enabled());
    PressEnter(form.lstSpecies);
    ASSERT_EQ(host.boxes.size(), 1U);
    EXPECT_EQ(host.boxes[0].text, "Please select a tree species to model");
    EXPECT_EQ(host.boxes[0].title, "Input Error");
    EXPECT_TRUE(form.Step3.Visible());
}

TEST_F(MainFormEvents, EnterInATreatmentFieldOnlyBeeps) {
    running.EnterSoftwood();
    PressEnter(form.Age1);
    EXPECT_EQ(TakeBeeps(), 1);
    EXPECT_TRUE(form.Step7.Visible());
    EXPECT_TRUE(form.Age1.HasFocus());
}

TEST_F(MainFormEvents, ASecondPointBeepsAndIsDropped) {
    OpenPlantation();
    person.Type(form.spac1, "1.2.");
    EXPECT_EQ(form.spac1.Text(), "1.2");
    EXPECT_EQ(TakeBeeps(), 1);
}

TEST_F(MainFormEvents, AFullFieldTakesNoMoreAndKeepsQuiet) {
    OpenPlantation();
    person.Type(form.spac1, "1.234");
    EXPECT_EQ(form.spac1.Text(), "1.23");
    EXPECT_EQ(TakeBeeps(), 0);
    person.Type(form.spac1, "x");
    EXPECT_EQ(TakeBeeps(), 1);
    EXPECT_EQ(form.spac1.Text(), "1.23");
}

TEST_F(MainFormEvents, WholeNumberFieldsTakeNoPoint) {
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

TEST_F(MainFormEvents, APastedTextIsCutButNotFiltered) {
    OpenPlantation();
    person.Paste(form.spac1, "-2.55");
    EXPECT_EQ(form.spac1.Text(), "-2.5");
    EXPECT_EQ(TakeBeeps(), 0);
    EXPECT_EQ(form.Step2_Spac1.Caption(), "-2.5");
    person.Paste(form.spac2, "abc");
    EXPECT_EQ(form.spac2.Text(), "abc");
    EXPECT_EQ(running.Level(), 2);
}

TEST_F(MainFormEvents, ATimeOfTreatmentAsksTheModel) {
    running.ModelAnswers({{40, 15, 15, 2000, 8}});
    running.EnterSoftwood();
    EXPECT_EQ(host.starts.size(), 0U) << "no time, no model";
    person.Type(form.Age1, "40");
    EXPECT_EQ(host.starts.size(), 2U) << "once a digit";
    EXPECT_TRUE(run.TreatmentKeysOpen);
    EXPECT_TRUE(form.BA1.Enabled());
    EXPECT_TRUE(form.Spacing.Enabled());
    EXPECT_EQ(form.tf_textbox.Text(), "2000");
    EXPECT_EQ(run.record.T1Age, 40);
}

TEST_F(MainFormEvents, AnAmountAsksTheModelToo) {
    running.ModelAnswers({{40, 15, 15, 2000, 8}, {60, 20, 20, 1500, 12}});
    running.EnterSoftwood();
    person.Type(form.Age1, "40");
    EXPECT_FALSE(form.Age2.Visible());
    host.starts.clear();
    person.Type(form.BA1, "30");
    EXPECT_EQ(host.starts.size(), 2U);
    EXPECT_TRUE(form.Age2.Visible());
    EXPECT_TRUE(form.Age2.Enabled());
    EXPECT_FALSE(form.BA2.Visible());
    person.Type(form.Age2, "60");
    EXPECT_TRUE(form.BA2.Enabled());
    host.starts.clear();
    person.Type(form.BA2, "20");
    EXPECT_EQ(host.starts.size(), 0U) << "the last amount changes nothing";
    EXPECT_EQ(run.record.T2IBA, 20);
    EXPECT_EQ(form.Step7_BA2.Caption(), "20");
}

TEST_F(MainFormEvents, WithoutASecondTreatmentAnAmountAsksNothing) {
    running.ModelAnswers({{40, 15, 15, 2000, 8}});
    running.EnterSoftwood();
    run.SoftwoodT2Allowed = false;
    person.Type(form.Age1, "40");
    host.starts.clear();
    person.Type(form.BA1, "30");
    EXPECT_EQ(host.starts.size(), 0U);
    EXPECT_EQ(run.record.T1IBA, 30);
}

TEST_F(MainFormEvents, AHardwoodAmountAlwaysAsksTheModel) {
    running.ModelAnswers({{40, 15, 15, 2000, 8}});
    running.EnterHardwood();
    run.SoftwoodT2Allowed = false;
    person.Type(form.Age1, "40");
    host.starts.clear();
    person.Type(form.Spacing, "2");
    EXPECT_EQ(host.starts.size(), 1U);
    EXPECT_EQ(host.starts[0].FileName(), "HWQVL.exe");
}

TEST_F(MainFormEvents, KeysAreDroppedWithoutABeepWhileTheProbeRuns) {
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

TEST_F(MainFormEvents, AMissingModelIsToldAndLeavesTheKeysClosed) {
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

TEST_F(MainFormEvents, TheDiameterFieldTakesDecimals) {
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

TEST_F(MainFormEvents, ChangingTheKindOfTimeDropsTheTime) {
    running.ModelAnswers({{40, 15, 15, 2000, 8}});
    running.EnterSoftwood();
    person.Type(form.Age1, "40");
    person.Type(form.BA1, "30");
    person.Click(form.Step7_T1DBH);
    EXPECT_EQ(form.Age1.Text(), "");
    EXPECT_EQ(form.Step7_Age1.Caption(), "");
    EXPECT_EQ(form.BA1.Text(), "") << "no time, no amount";
    EXPECT_FALSE(form.BA1.Visible());
    EXPECT_FALSE(form.Age2.Visible());
    EXPECT_EQ(run.record.T1Age, 0);
    EXPECT_EQ(run.record.T1IBA, 0);
}

TEST_F(MainFormEvents, ChangingUnitsKeepsTheYears) {
    running.ModelAnswers({{40, 15, 15, 2000, 8}, {60, 20, 20, 1500, 12}});
    running.EnterSoftwood();
    person.Type(form.Age1, "40");
    person.Type(form.BA1, "30");
    person.Type(form.Age2, "60");
    EXPECT_TRUE(form.BA2.Enabled());
    running.PressStep(4);
    person.Click(form.choose_Site);
    person.Type(form.Site, "17");
    running.PressStep(7);
    EXPECT_EQ(form.Age2.Text(), "60");
    {
        // Opening step 1 alone would empty treatment 2.
        const HeldBackEvents quiet(running.application);
        form.Step7.SetVisible(false);
        form.Step1.SetVisible(true);
    }
    person.Click(form.choose_Imperial);
    EXPECT_EQ(form.Site.Text(), "");
    EXPECT_EQ(form.BA1.Text(), "");
    EXPECT_EQ(form.txtRotAge.Text(), "80");
    EXPECT_EQ(form.Age1.Text(), "40");
    EXPECT_EQ(form.Age2.Text(), "60");
    EXPECT_EQ(run.globals.UnitSystem, "Metric") << "until the next commit";
    EXPECT_EQ(form.Step1_Unit.Caption(), "Imperial");
    EXPECT_EQ(running.Level(), 4) << "the site index is gone";
}

TEST_F(MainFormEvents, UnitsAndWoodTypeMayBeChosenInAnyOrder) {
    running.PressStep(1);
    person.Click(form.choose_Imperial);
    person.Click(form.Choose_Hwd);
    EXPECT_EQ(run.record.WDTYPE, "Hardwood");
    EXPECT_EQ(run.globals.UnitSystem, "Imperial");
    EXPECT_EQ(form.lstSpecies.ListCount(), 9);
    EXPECT_EQ(form.Step1_Type.Caption(), "Hardwood");
    EXPECT_EQ(form.Step1_Unit.Caption(), "Imperial");

    person.Click(form.Clear);
    running.PressStep(1);
    person.Click(form.Choose_Hwd);
    person.Click(form.choose_Imperial);
    EXPECT_EQ(run.globals.UnitSystem, "Metric") << "until the next commit";
    running.PressStep(2);
    EXPECT_EQ(run.globals.UnitSystem, "Imperial");
    EXPECT_EQ(run.record.WDTYPE, "Hardwood");
    EXPECT_EQ(form.lstSpecies.ListCount(), 9);
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

TEST_F(MainFormEvents, TheFocusHighlightsWhatBelongsToItsField) {
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

TEST_F(MainFormEvents, AFieldThatGetsTheFocusIsSelectedWhole) {
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

TEST_F(MainFormEvents, ClearResetsTheInput) {
    running.EnterSoftwood();
    person.Click(form.Clear);
    EXPECT_EQ(running.Level(), 1);
    EXPECT_EQ(form.Stocking_Index.Text(), "");
    EXPECT_TRUE(form.Options_Help.Visible());
    EXPECT_TRUE(host.boxes.empty()) << "no question";
}

}  // namespace
}  // namespace arbolith
