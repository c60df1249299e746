// What a person's clicks and amounts set off on the main form.
#include "unit/run_definition/run_testing.h"

#include <gtest/gtest.h>

namespace arbolith {
namespace {

class MainFormEvents : public RunningTest {};

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
