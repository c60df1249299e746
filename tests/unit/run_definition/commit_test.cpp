// Committing the controls into the record, and the frequency of a plantation.
#include "run_definition/commit.h"

#include "platform/runtime_error.h"
#include "unit/run_definition/run_testing.h"

#include <gtest/gtest.h>

namespace arbolith {
namespace {

class Commit : public testing::Test {
protected:
    BareRun bare;
    RunDefinition& run = bare.run;
    MainForm& form = bare.form;
    RunRecord& record = run.record;
};

TEST(TreeFrequency, IsStemsPerHectareFromBothSpacings) {
    EXPECT_DOUBLE_EQ(TreeFrequency(true, 1.2, 3.0), 2777.78);
    EXPECT_DOUBLE_EQ(TreeFrequency(true, 3.0, 1.2), 2777.78);
    EXPECT_DOUBLE_EQ(TreeFrequency(true, 1.2, 1.2), 6944.44);
    EXPECT_DOUBLE_EQ(TreeFrequency(true, 3.0, 3.0), 1111.11);
    EXPECT_DOUBLE_EQ(TreeFrequency(true, 2.0, 2.0), 2500);
}

TEST(TreeFrequency, UnderImperialUnitsIsTheSquareOverTheXSpacingAlone) {
    EXPECT_DOUBLE_EQ(TreeFrequency(false, 4, 10), 2723);
    EXPECT_DOUBLE_EQ(TreeFrequency(false, 4, 4), 2723);
    EXPECT_DOUBLE_EQ(TreeFrequency(false, 10, 4), 435.68);
    EXPECT_DOUBLE_EQ(TreeFrequency(false, 6, 8), 1210.22);
}

TEST(TreeFrequency, IsZeroWhileASpacingIsZero) {
    for (const bool metric : {true, false}) {
        EXPECT_EQ(TreeFrequency(metric, 0, 2), 0);
        EXPECT_EQ(TreeFrequency(metric, 2, 0), 0);
        EXPECT_EQ(TreeFrequency(metric, 0, 0), 0);
    }
}

TEST_F(Commit, Step1TakesTheOptionsThatAreSet) {
    bare.Choose("Hardwood", "Imperial");
    record.WDTYPE = run.globals.UnitSystem = "";
    CommitStep1(run);
    EXPECT_EQ(record.WDTYPE, "Hardwood");
    EXPECT_EQ(run.globals.UnitSystem, "Imperial");
    form.Choose_Swd.SetValue(true);
    form.choose_Metric.SetValue(true);
    CommitStep1(run);
    EXPECT_EQ(record.WDTYPE, "Softwood");
    EXPECT_EQ(run.globals.UnitSystem, "Metric");
}

TEST_F(Commit, Step1KeepsAWordWithoutAnOption) {
    bare.Choose("", "");
    record.WDTYPE = "Hardwood";
    run.globals.UnitSystem = "Imperial";
    CommitStep1(run);
    EXPECT_EQ(record.WDTYPE, "Hardwood");
    EXPECT_EQ(run.globals.UnitSystem, "Imperial");
}

TEST_F(Commit, Step2OfANaturalStandHasNoSpacings) {
    record.SPX = record.SPY = record.FREQ = 9;
    record.NatFlag = false;
    record.PlantFlag = true;
    form.spac1.SetText("2");
    form.spac2.SetText("2");
    CommitStep2(run);
    EXPECT_TRUE(record.NatFlag);
    EXPECT_FALSE(record.PlantFlag);
    EXPECT_EQ(record.SPX, 0);
    EXPECT_EQ(record.SPY, 0);
    EXPECT_EQ(record.FREQ, 0);
}

TEST_F(Commit, Step2OfAPlantationWorksOutTheFrequency) {
    bare.Plant("1.2", "3.0");
    CommitStep2(run);
    EXPECT_FALSE(record.NatFlag);
    EXPECT_TRUE(record.PlantFlag);
    EXPECT_DOUBLE_EQ(record.SPX, 1.2);
    EXPECT_DOUBLE_EQ(record.SPY, 3.0);
    EXPECT_DOUBLE_EQ(record.FREQ, 2777.78);
}

TEST_F(Commit, Step2UsesTheUnitsCommittedWithIt) {
    bare.Plant("4", "10");
    form.choose_Metric.SetValue(false);
    form.choose_Imperial.SetValue(true);
    CommitStep2(run);
    EXPECT_DOUBLE_EQ(record.FREQ, 2723);
}

TEST_F(Commit, Step2OfAHardwoodPlantationKeepsTheOldFrequency) {
    bare.Choose("Hardwood", "Metric");
    bare.Plant("2", "2");
    record.FREQ = 77;
    CommitStep2(run);
    EXPECT_EQ(record.FREQ, 77);
    EXPECT_EQ(record.SPX, 2);
}

TEST_F(Commit, ATextThatIsNoNumberCountsAsZero) {
    bare.Plant(".", "abc");
    CommitStep2(run);
    EXPECT_EQ(record.SPX, 0);
    EXPECT_EQ(record.SPY, 0);
    EXPECT_EQ(record.FREQ, 0);
}

TEST_F(Commit, Step3TakesTheSelectedSpecies) {
    bare.SelectSpecies("Norway Spruce");
    CommitStep3(run);
    EXPECT_EQ(record.SPEC, "Norway Spruce");
    form.lstSpecies.SetListIndex(-1);
    CommitStep3(run);
    EXPECT_EQ(record.SPEC, "");
}

TEST_F(Commit, Step4TakesAClassOrASiteIndex) {
    bare.SelectClass(13);
    form.Site.SetText("17.5");
    CommitStep4(run);
    EXPECT_TRUE(record.LcFlag);
    EXPECT_FALSE(record.SiFlag);
    EXPECT_EQ(record.LC, 13);
    EXPECT_EQ(record.SIB, 0);

    form.choose_Land.SetValue(false);
    form.choose_Site.SetValue(true);
    CommitStep4(run);
    EXPECT_FALSE(record.LcFlag);
    EXPECT_TRUE(record.SiFlag);
    EXPECT_EQ(record.LC, 0);
    EXPECT_EQ(record.SIB, 17.5);
}

TEST_F(Commit, WholeNumbersAreRoundedWithHalvesToEven) {
    form.Stocking_Index.SetText("2.5");
    CommitStep5(run);
    EXPECT_EQ(record.STK, 2);
    form.Stocking_Index.SetText("3.5");
    CommitStep5(run);
    EXPECT_EQ(record.STK, 4);
    form.txtRotAge.SetText("80.5");
    CommitStep6(run);
    EXPECT_EQ(record.RAGE, 80);
}

TEST_F(Commit, AWholeNumberThatDoesNotFitIsAnOverflow) {
    form.Stocking_Index.SetText("32768");
    try {
        CommitStep5(run);
        FAIL() << "no error";
    } catch (const RuntimeError& error) {
        EXPECT_EQ(error.Number(), ErrorNumber::kOverflow);
    }
    form.Stocking_Index.SetText("32767");
    CommitStep5(run);
    EXPECT_EQ(record.STK, 32767);
}

TEST_F(Commit, Step6TakesAnAgeOrADiameter) {
    form.txtRotAge.SetText("80");
    form.txtRotDBH.SetText("30.5");
    CommitStep6(run);
    EXPECT_TRUE(record.RotAgeFlag);
    EXPECT_FALSE(record.RotDbhFlag);
    EXPECT_EQ(record.RAGE, 80);
    EXPECT_EQ(record.RDBH, 0);

    form.Step6_opt1.SetValue(false);
    form.Step6_opt2.SetValue(true);
    CommitStep6(run);
    EXPECT_FALSE(record.RotAgeFlag);
    EXPECT_TRUE(record.RotDbhFlag);
    EXPECT_EQ(record.RAGE, 0);
    EXPECT_EQ(record.RDBH, 30.5);
}

TEST_F(Commit, Step7TakesTheTreatmentsAndRefreshesTheRest) {
    bare.SelectSpecies("Red Pine");
    bare.SelectClass(4);
    form.Stocking_Index.SetText("90");
    form.txtRotAge.SetText("100");
    form.Age1.SetText("40");
    form.DBH1.SetText("15.5");
    form.BA1.SetText("9.5");
    form.Spacing.SetText("2.25");
    form.Age2.SetText("60");
    form.BA2.SetText("30");
    record.T2DBH = 3;
    CommitStep7(run);
    EXPECT_EQ(record.T1Age, 40);
    EXPECT_EQ(record.T1DBH, 15.5);
    EXPECT_EQ(record.T1IBA, 9.5);
    EXPECT_EQ(record.ISD, 2.25);
    EXPECT_EQ(record.T2Age, 60);
    EXPECT_EQ(record.T2IBA, 30);
    EXPECT_EQ(record.T2DBH, 3) << "not touched";
    EXPECT_EQ(record.WDTYPE, "Softwood");
    EXPECT_EQ(record.SPEC, "Red Pine");
    EXPECT_EQ(record.LC, 4);
    EXPECT_EQ(record.STK, 90);
    EXPECT_EQ(record.RAGE, 100);
}

}  // namespace
}  // namespace arbolith
