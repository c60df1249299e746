// The treatment probe: when it asks the model, which fields a stand allows at and just beyond each
// limit, and what it leaves behind.
#include "model_bridge/treatment_probe.h"

#include "run_definition/apply_steps.h"
#include "run_definition/commit.h"
#include "run_definition/reset.h"
#include "unit/model_bridge/bridge_testing.h"

#include <gtest/gtest.h>
#include <ostream>

namespace arbolith {
namespace {

constexpr auto NameOf = [](const auto& test) { return test.param.name; };

class ProbeTest : public testing::Test {
protected:
    ProbeTest() {
        ResetInput(run);
        run.form.txtRotAge.SetText("100");
        ModelGrows({});
    }

    void ModelGrows(const std::vector<ModelRow>& rows) {
        host.model = [this, output = ModelOutput(rows)](const ProgramStart&) {
            folder.Write("_OUTPUT.TMP", output);
        };
    }
    void ChooseHardwood() {
        run.form.Choose_Hwd.SetValue(true);
        run.form.Choose_Swd.SetValue(false);
        ApplyStep1(run);
    }
    void ChooseImperial() {
        run.form.choose_Imperial.SetValue(true);
        run.form.choose_Metric.SetValue(false);
        ApplyStep1(run);
        CommitStep1(run);
    }
    void ChoosePlantation() {
        run.form.chkPlant.SetValue(true);
        run.form.chkNat.SetValue(false);
        run.form.spac1.SetText("2");
        run.form.spac2.SetText("2");
    }
    void TreatAtAge(const std::string& age) {
        run.form.Age1.SetText(age);
        ApplyStep7(run);
    }
    void TreatAtDbh(const std::string& dbh) {
        run.form.Step7_T1DBH.SetValue(true);
        run.form.Step7_T1Age.SetValue(false);
        run.form.DBH1.SetText(dbh);
        ApplyStep7(run);
    }
    // A valid first treatment stands, and a second is asked for.
    void TreatAgainAtAge(const std::string& age) {
        run.form.BA1.SetText("30");
        run.form.Age2.SetEnabled(true);
        run.form.Age2.SetText(age);
    }
    void Probe() { TreatmentProbe(run); }

    static void ExpectOffered(const TextBox& box, const Label& summary, const Label& caption,
                              bool offered) {
        EXPECT_EQ(box.Visible(), offered) << box.Name();
        EXPECT_EQ(box.Enabled(), offered) << box.Name();
        EXPECT_EQ(summary.Visible(), offered) << summary.Name();
        EXPECT_EQ(caption.Visible(), offered) << caption.Name();
    }
    void ExpectFields(bool ba1, bool spacing, bool age2, bool ba2) const {
        const auto& form = run.form;
        ExpectOffered(form.BA1, form.Step7_BA1, form.BA1_lbl, ba1);
        ExpectOffered(form.Spacing, form.Step7_Spac, form.Spac1_lbl, spacing);
        ExpectOffered(form.Age2, form.Step7_Age2, form.Age2_lbl, age2);
        ExpectOffered(form.BA2, form.Step7_BA2, form.BA2_lbl, ba2);
    }

    TestFolder folder;
    FakeHost host;
    Application application{host, folder.Path(), ""};
    RunDefinition run{application};
};

// The table of the limits: which treatment a stand of this height and diameter allows.
struct LimitCase {
    const char* name;
    bool softwood;
    bool metric;
    bool byAge;
    double mdbh;
    double th;
    bool ba1;
    bool spacing;

    friend std::ostream& operator<<(std::ostream& out, const LimitCase& c) { return out << c.name; }
};

class ProbeLimits : public ProbeTest, public testing::WithParamInterface<LimitCase> {};

TEST_P(ProbeLimits, DecideAboutTheFirstTreatment) {
    const auto& stand = GetParam();
    if (!stand.softwood) ChooseHardwood();
    if (!stand.metric) ChooseImperial();
    if (stand.byAge) {
        TreatAtAge("30");
    } else {
        TreatAtDbh("5");
    }
    ModelGrows({{.sage = 30, .tdbh = 5, .mdbh = stand.mdbh, .th = stand.th}});
    Probe();
    EXPECT_EQ(run.form.BA1.Enabled(), stand.ba1);
    EXPECT_EQ(run.form.Spacing.Enabled(), stand.spacing);
    ExpectFields(stand.ba1, stand.spacing, false, false);
}

INSTANTIATE_TEST_SUITE_P(
    MerchantableDiameter, ProbeLimits,
    testing::Values(LimitCase{"SwdMetricBelow", true, true, true, 13.99, 20, false, false},
                    LimitCase{"SwdMetricAt", true, true, true, 14, 20, true, false},
                    LimitCase{"SwdMetricByDbhBelow", true, true, false, 13.99, 20, false, false},
                    LimitCase{"SwdMetricByDbhAt", true, true, false, 14, 20, true, false},
                    LimitCase{"SwdImperialBelow", true, false, true, 5.49, 40, false, false},
                    LimitCase{"SwdImperialAt", true, false, true, 5.5, 40, true, false},
                    LimitCase{"HwdMetricBelow", false, true, true, 13.99, 20, false, false},
                    LimitCase{"HwdMetricAt", false, true, true, 14, 20, true, false},
                    LimitCase{"HwdImperialBelow", false, false, true, 5.49, 40, false, false},
                    LimitCase{"HwdImperialAt", false, false, true, 5.5, 40, true, false}),
    NameOf);

INSTANTIATE_TEST_SUITE_P(
    ThinningHeight, ProbeLimits,
    testing::Values(LimitCase{"SwdMetricAgeBelow", true, true, true, 5, 1.99, false, false},
                    LimitCase{"SwdMetricAgeLowest", true, true, true, 5, 2, false, true},
                    LimitCase{"SwdMetricAgeHighest", true, true, true, 5, 9, false, true},
                    LimitCase{"SwdMetricAgeAbove", true, true, true, 5, 9.01, false, false},
                    LimitCase{"SwdMetricDbhBelow", true, true, false, 5, 1.99, false, false},
                    LimitCase{"SwdMetricDbhLowest", true, true, false, 5, 2, false, true},
                    LimitCase{"SwdMetricDbhHighest", true, true, false, 5, 9, false, true},
                    LimitCase{"SwdMetricDbhAbove", true, true, false, 5, 9.01, false, false},
                    LimitCase{"SwdImperialAgeBelow", true, false, true, 2, 6.49, false, false},
                    LimitCase{"SwdImperialAgeBetween", true, false, true, 2, 6.2, false, false},
                    LimitCase{"SwdImperialAgeLowest", true, false, true, 2, 6.5, false, true},
                    LimitCase{"SwdImperialAgeHighest", true, false, true, 2, 30, false, true},
                    LimitCase{"SwdImperialAgeAbove", true, false, true, 2, 30.01, false, false},
                    LimitCase{"SwdImperialDbhBelow", true, false, false, 2, 5.99, false, false},
                    LimitCase{"SwdImperialDbhBetween", true, false, false, 2, 6.2, false, true},
                    LimitCase{"SwdImperialDbhLowest", true, false, false, 2, 6, false, true},
                    LimitCase{"SwdImperialDbhHighest", true, false, false, 2, 30, false, true},
                    LimitCase{"SwdImperialDbhAbove", true, false, false, 2, 30.01, false, false},
                    LimitCase{"HwdMetricBelow", false, true, true, 5, 5.99, false, false},
                    LimitCase{"HwdMetricLowest", false, true, true, 5, 6, false, true},
                    LimitCase{"HwdMetricHighest", false, true, true, 5, 9, false, true},
                    LimitCase{"HwdMetricAbove", false, true, true, 5, 9.01, false, false},
                    LimitCase{"HwdImperialBelow", false, false, true, 2, 19.99, false, false},
                    LimitCase{"HwdImperialLowest", false, false, true, 2, 20, false, true},
                    LimitCase{"HwdImperialHighest", false, false, true, 2, 30, false, true},
                    LimitCase{"HwdImperialAbove", false, false, true, 2, 30.01, false, false},
                    LimitCase{"BothPossible", true, true, true, 14, 9, true, true}),
    NameOf);

TEST_F(ProbeTest, AsksTheModelHiddenForAgesFrom1To119) {
    for (const std::string age : {"1", "119", "1", "60"}) TreatAtAge(age), Probe();
    EXPECT_EQ(host.starts.size(), 4u);
    for (const auto& start : host.starts) EXPECT_EQ(start.mode, 1);
    host.starts.clear();
    for (const std::string age : {"0", "120", "", "999", "-5", "-1", "abc"})
        TreatAtAge(age), Probe();
    EXPECT_TRUE(host.starts.empty());
    ExpectFields(false, false, false, false);
    EXPECT_FALSE(folder.Holds("_RunTMP.bat"));
}

TEST_F(ProbeTest, RoundsTheAgeHalvesToEven) {
    ModelGrows({{.sage = 30, .mdbh = 14, .th = 20}});
    TreatAtAge("0.5");
    Probe();
    EXPECT_TRUE(host.starts.empty());
    TreatAtAge("119.5");
    Probe();
    EXPECT_TRUE(host.starts.empty());
    TreatAtAge("30.5");
    Probe();
    ExpectFields(true, false, false, false);
}

TEST_F(ProbeTest, AsksTheModelForDiametersAbove0AndBelow50InBothUnits) {
    for (const bool metric : {true, false}) {
        if (!metric) {
            ChooseImperial();
            run.form.txtRotAge.SetText("100");
        }
        host.starts.clear();
        for (const std::string dbh : {".1", "49.9"}) TreatAtDbh(dbh), Probe();
        EXPECT_EQ(host.starts.size(), 2u);
        host.starts.clear();
        for (const std::string dbh : {"0", "50", "", ".", "-1", "-3"}) TreatAtDbh(dbh), Probe();
        EXPECT_TRUE(host.starts.empty());
        ExpectFields(false, false, false, false);
    }
}

TEST_F(ProbeTest, AsksNothingWithoutATimeOption) {
    run.form.Step7_T1Age.SetValue(false);
    run.form.Step7_T1DBH.SetValue(false);
    run.form.BA1.SetEnabled(true);
    Probe();
    EXPECT_TRUE(host.starts.empty());
    ExpectFields(false, false, false, false);
    EXPECT_TRUE(run.TreatmentKeysOpen);
}

TEST_F(ProbeTest, ShowsTheModelTheRecordsTreatments) {
    TreatAtAge("30");
    run.record.T1IBA = 25;
    run.record.T2Age = 45;
    Probe();
    EXPECT_EQ(folder.Read("_INPUT.TMP"),
              "0\tY\tY\t\t0\t0.0\t1\t0.0\t0.0\t100\t0.0\t30.0\t45.0\t0.0\t0.0\t25.0\t0.0\t0.0\t0\t"
              "\r\n");
}

TEST_F(ProbeTest, CommitsTheFirstSixStepsBeforeItAsks) {
    TreatAtAge("30");
    run.form.txtRotAge.SetText("75");
    run.form.Stocking_Index.SetText("60");
    Probe();
    EXPECT_EQ(run.record.RAGE, 75);
    EXPECT_EQ(run.record.STK, 60);
    EXPECT_EQ(run.form.Step6_Age.Caption(), "75");
}

TEST_F(ProbeTest, EndsAtOnceWhileTheRotationIsNotValid) {
    ModelGrows({{.sage = 30, .mdbh = 14, .th = 20}});
    TreatAtAge("30");
    Probe();
    ExpectFields(true, false, false, false);
    run.form.txtRotAge.SetText("19");
    run.form.Age1.SetText("");
    run.TreatmentKeysOpen = false;
    Probe();
    ExpectFields(true, false, false, false);
    EXPECT_FALSE(run.TreatmentKeysOpen);
    EXPECT_EQ(run.record.RAGE, 100);
    EXPECT_EQ(host.starts.size(), 1u);
    EXPECT_TRUE(host.boxes.empty());
}

TEST_F(ProbeTest, LooksAtTheFiveYearsFromTheAge) {
    TreatAtAge("30");
    ModelGrows({{.sage = 29, .mdbh = 14, .th = 5}, {.sage = 35, .mdbh = 14, .th = 5}});
    Probe();
    ExpectFields(false, false, false, false);
    ModelGrows({{.sage = 25, .mdbh = 14, .th = 20}, {.sage = 34, .mdbh = 5, .th = 5}});
    Probe();
    ExpectFields(false, true, false, false);
}

TEST_F(ProbeTest, RoundsTheAgeOfARow) {
    TreatAtAge("30");
    ModelGrows({{.sage = 29.6, .mdbh = 14, .th = 20}});
    Probe();
    ExpectFields(true, false, false, false);
    ModelGrows({{.sage = 34.6, .mdbh = 14, .th = 20}});
    Probe();
    ExpectFields(false, false, false, false);
}

TEST_F(ProbeTest, LooksAtTheFirstRowThatReachesTheDiameter) {
    TreatAtDbh("10");
    ModelGrows({{.sage = 30, .tdbh = 9.99, .mdbh = 20, .th = 5},
                {.sage = 35, .tdbh = 10, .mdbh = 5, .th = 20},
                {.sage = 40, .tdbh = 11, .mdbh = 20, .th = 5}});
    Probe();
    ExpectFields(false, false, false, false);
}

TEST_F(ProbeTest, LooksAtOneRowOnlyForTheFirstTreatment) {
    TreatAtAge("30");
    ModelGrows({{.sage = 30, .mdbh = 5, .th = 20}, {.sage = 32, .mdbh = 14, .th = 5}});
    Probe();
    ExpectFields(false, false, false, false);
}

TEST_F(ProbeTest, FollowsTheOptionThatIsOnWhileItReads) {
    TreatAtAge("30");
    host.whileWaiting = [this] {
        run.form.Step7_T1Age.SetValue(false);
        run.form.Step7_T1DBH.SetValue(true);
    };
    // No diameter was asked for, so the first row has reached it.
    ModelGrows({{.sage = 5, .tdbh = 0, .mdbh = 14, .th = 20}});
    Probe();
    EXPECT_TRUE(run.form.BA1.Enabled());
}

TEST_F(ProbeTest, LeavesTheStemsWhereASpacingIsPossible) {
    EXPECT_EQ(run.form.tf_textbox.Text(), "enter density");
    TreatAtAge("30");
    ModelGrows({{.sage = 30, .mdbh = 14, .tf = 2000.5, .th = 9.5}});
    Probe();
    EXPECT_EQ(run.form.tf_textbox.Text(), "enter density");
    ModelGrows({{.sage = 30, .tf = 2000.50, .th = 9}});
    Probe();
    EXPECT_EQ(run.form.tf_textbox.Text(), "2000.5");
}

TEST_F(ProbeTest, NeverSpacesAPlantation) {
    ChoosePlantation();
    TreatAtAge("30");
    ModelGrows({{.sage = 30, .mdbh = 5, .tf = 1800, .th = 5}});
    Probe();
    ExpectFields(false, false, false, false);
    EXPECT_EQ(run.form.tf_textbox.Text(), "1800");
    ModelGrows({{.sage = 30, .mdbh = 14, .th = 5}});
    Probe();
    ExpectFields(true, false, false, false);
}

TEST_F(ProbeTest, EmptiesWhatIsNotPossible) {
    TreatAtAge("30");
    run.form.BA1.SetText("20");
    run.form.Spacing.SetText("2");
    run.form.Age2.SetText("50");
    run.form.BA2.SetText("25");
    ApplyStep7(run);
    EXPECT_EQ(run.form.Step7_Age2.Caption(), "50");
    Probe();
    for (const TextBox* box : {&run.form.BA1, &run.form.Spacing, &run.form.Age2, &run.form.BA2})
        EXPECT_EQ(box->Text(), "") << box->Name();
    EXPECT_EQ(run.form.Step7_Age2.Caption(), "");
    EXPECT_EQ(run.form.Step7_BA2.Caption(), "");
}

TEST_F(ProbeTest, OffersASecondAgeBehindAValidFirstAmount) {
    TreatAtAge("30");
    ModelGrows({{.sage = 30, .mdbh = 14, .th = 20}});
    for (const std::string amount : {"", "9.9", "60.1"}) {
        run.form.BA1.SetText(amount);
        Probe();
        ExpectFields(true, false, false, false);
        EXPECT_EQ(run.form.BA1.Text(), amount);
    }
    for (const std::string amount : {"10", "60"}) {
        run.form.BA1.SetText(amount);
        Probe();
        ExpectFields(true, false, true, false);
    }
}

TEST_F(ProbeTest, OffersASecondAgeBehindAValidSpacing) {
    TreatAtAge("30");
    ModelGrows({{.sage = 30, .tf = 2000, .th = 5}});
    run.form.Spacing.SetText("2");
    Probe();
    ExpectFields(false, true, false, false);
    EXPECT_EQ(run.StepErrorText, "Enter Spacing Greater Than 2.24");
    run.form.Spacing.SetText("2.24");
    Probe();
    ExpectFields(false, true, true, false);
}

struct SecondCase {
    const char* name;
    bool softwood;
    const char* age2;
    double sage;
    double mdbh;
    bool ba2;

    friend std::ostream& operator<<(std::ostream& out, const SecondCase& c) {
        return out << c.name;
    }
};

class ProbeSecond : public ProbeTest, public testing::WithParamInterface<SecondCase> {};

TEST_P(ProbeSecond, IsOfferedWhereTheStandIsMerchantable) {
    const auto& second = GetParam();
    if (!second.softwood) ChooseHardwood();
    TreatAtAge("30");
    TreatAgainAtAge(second.age2);
    ModelGrows({{.sage = 30, .mdbh = 14, .th = 20}, {.sage = second.sage, .mdbh = second.mdbh}});
    Probe();
    ExpectFields(true, false, true, second.ba2);
}

INSTANTIATE_TEST_SUITE_P(
    Time, ProbeSecond,
    testing::Values(SecondCase{"SwdTooSoonAfterTheFirst", true, "34", 60, 20, false},
                    SecondCase{"SwdFiveYearsAfter", true, "35", 60, 20, true},
                    SecondCase{"SwdRowBefore", true, "50", 49, 20, false},
                    SecondCase{"SwdRowAt", true, "50", 50, 20, true},
                    SecondCase{"SwdRowLongAfter", true, "50", 95, 20, true},
                    SecondCase{"HwdTooSoonAfterTheFirst", false, "34", 36, 20, false},
                    SecondCase{"HwdFiveYearsAfter", false, "35", 36, 20, true},
                    SecondCase{"HwdRowBefore", false, "50", 49, 20, false},
                    SecondCase{"HwdRowAt", false, "50", 50, 20, true},
                    SecondCase{"HwdRowInTheLastYear", false, "50", 54, 20, true},
                    SecondCase{"HwdRowAfter", false, "50", 55, 20, false}),
    NameOf);

INSTANTIATE_TEST_SUITE_P(Diameter, ProbeSecond,
                         testing::Values(SecondCase{"SwdBelow", true, "50", 50, 13.99, false},
                                         SecondCase{"SwdAt", true, "50", 50, 14, true},
                                         SecondCase{"HwdBelow", false, "50", 50, 13.99, false},
                                         SecondCase{"HwdAt", false, "50", 50, 14, true}),
                         NameOf);

TEST_F(ProbeTest, UsesTheSameDiameterForBothTreatmentsUnderImperialUnits) {
    ChooseImperial();
    run.form.txtRotAge.SetText("100");
    TreatAtAge("30");
    for (const bool merchantable : {false, true}) {
        TreatAgainAtAge("50");
        ModelGrows(
            {{.sage = 30, .mdbh = 5.5, .th = 40}, {.sage = 50, .mdbh = merchantable ? 5.5 : 5.49}});
        Probe();
        ExpectFields(true, false, true, merchantable);
    }
}

TEST_F(ProbeTest, GivesALateSoftwoodItsSecondTreatment) {
    TreatAtAge("30");
    TreatAgainAtAge("50");
    const std::vector<ModelRow> rows = {{.sage = 30, .mdbh = 14, .th = 20},
                                        {.sage = 50, .mdbh = 12},
                                        {.sage = 55, .mdbh = 13},
                                        {.sage = 80, .mdbh = 14}};
    ModelGrows(rows);
    Probe();
    ExpectFields(true, false, true, true);
    ChooseHardwood();
    TreatAtAge("30");
    TreatAgainAtAge("50");
    Probe();
    ExpectFields(true, false, true, false);
}

TEST_F(ProbeTest, CountsTheFirstAgeAsMinusOneBehindADiameter) {
    TreatAtDbh("10");
    const std::vector<ModelRow> rows = {{.sage = 2, .tdbh = 10, .mdbh = 14, .th = 20},
                                        {.sage = 8, .tdbh = 12, .mdbh = 15}};
    ModelGrows(rows);
    TreatAgainAtAge("3");
    Probe();
    ExpectFields(true, false, true, false);
    TreatAgainAtAge("4");
    Probe();
    ExpectFields(true, false, true, true);
}

TEST_F(ProbeTest, NeedsSoftwoodSecondTreatmentsToBeAllowed) {
    run.SoftwoodT2Allowed = false;
    TreatAtAge("30");
    TreatAgainAtAge("50");
    ModelGrows({{.sage = 30, .mdbh = 14, .th = 20}, {.sage = 50, .mdbh = 20}});
    Probe();
    ExpectFields(true, false, true, false);
}

TEST_F(ProbeTest, IgnoresASecondAgeThatIsNotOffered) {
    TreatAtAge("30");
    TreatAgainAtAge("50");
    run.form.Age2.SetEnabled(false);
    ModelGrows({{.sage = 30, .mdbh = 14, .th = 20}, {.sage = 50, .mdbh = 20}});
    Probe();
    ExpectFields(true, false, true, false);
    EXPECT_EQ(run.form.Age2.Text(), "50");
}

TEST_F(ProbeTest, DoesNotTestTheRowOfTheFirstTreatmentForTheSecond) {
    TreatAtDbh("10");
    TreatAgainAtAge("50");
    ModelGrows({{.sage = 50, .tdbh = 10, .mdbh = 20, .th = 20}});
    Probe();
    ExpectFields(true, false, true, false);
}

TEST_F(ProbeTest, OffersASecondAmountOnlyWithASecondAge) {
    TreatAtAge("30");
    TreatAgainAtAge("50");
    ModelGrows({{.sage = 30, .mdbh = 14, .th = 20}, {.sage = 50, .mdbh = 20}});
    Probe();
    ExpectFields(true, false, true, true);
    run.form.BA1.SetText("");
    Probe();
    ExpectFields(true, false, false, false);
    EXPECT_EQ(run.form.Age2.Text(), "");
}

TEST_F(ProbeTest, KeepsTheTextOfASecondAmountThatIsNotPossibleNow) {
    TreatAtAge("30");
    TreatAgainAtAge("50");
    run.form.BA2.SetText("25");
    ModelGrows({{.sage = 30, .mdbh = 14, .th = 20}, {.sage = 50, .mdbh = 12}});
    Probe();
    ExpectFields(true, false, true, false);
    EXPECT_EQ(run.form.BA2.Text(), "25");
}

TEST_F(ProbeTest, StopsReadingWhenTheAnswerStands) {
    TreatAtAge("30");
    TreatAgainAtAge("50");
    host.model = [this](const ProgramStart&) {
        folder.Write("_OUTPUT.TMP",
                     ModelOutput({{.sage = 30, .mdbh = 14, .th = 20}, {.sage = 50, .mdbh = 14}}) +
                         "no number");
    };
    Probe();
    ExpectFields(true, false, true, true);
    EXPECT_TRUE(run.TreatmentKeysOpen);
}

TEST_F(ProbeTest, ReopensTheKeys) {
    TreatAtAge("30");
    run.TreatmentKeysOpen = false;
    bool openMeanwhile = true;
    host.whileWaiting = [&] { openMeanwhile = run.TreatmentKeysOpen; };
    Probe();
    EXPECT_FALSE(openMeanwhile);
    EXPECT_TRUE(run.TreatmentKeysOpen);
}

TEST_F(ProbeTest, OffersEverythingInAdvancedModeWithoutTheModel) {
    TreatAtAge("0");
    Probe();
    ExpectFields(false, false, false, false);
    run.form.Adv_Mode.SetChecked(true);
    run.form.Treatment2.SetVisible(false);
    run.form.txtRotAge.SetText("");
    run.TreatmentKeysOpen = false;
    Probe();
    ExpectFields(true, true, true, true);
    EXPECT_TRUE(run.form.Treatment2.Visible());
    EXPECT_TRUE(run.TreatmentKeysOpen);
    EXPECT_TRUE(host.starts.empty());
}

// What a failure leaves: the fields as they were, the keys closed, the file numbers free.
class ProbeFailure : public ProbeTest {
protected:
    ProbeFailure() {
        ModelGrows({{.sage = 30, .mdbh = 14, .th = 5}});
        TreatAtAge("30");
        Probe();
        folder.Remove("_OUTPUT.TMP");
        host.model = nullptr;
        run.TreatmentKeysOpen = false;
    }

    void ExpectNothingChanged() {
        ExpectFields(true, true, false, false);
        EXPECT_FALSE(run.TreatmentKeysOpen);
        EXPECT_NO_THROW(application.Files().OpenForOutput(1, folder.PathOf("free1")));
        EXPECT_NO_THROW(application.Files().OpenForOutput(2, folder.PathOf("free2")));
    }
    void ExpectMissingFileTold() {
        ASSERT_EQ(host.boxes.size(), 1u);
        EXPECT_EQ(host.boxes[0].text, kRequiredFileMissing);
        EXPECT_EQ(host.boxes[0].title, "");
    }
};

TEST_F(ProbeFailure, OfAMissingOutputIsTold) {
    Probe();
    ExpectMissingFileTold();
    ExpectNothingChanged();
}

TEST_F(ProbeFailure, OfABlockedInputIsTold) {
    folder.Block("_INPUT.TMP");
    Probe();
    ExpectMissingFileTold();
    ExpectNothingChanged();
}

TEST_F(ProbeFailure, OfAFullDiskIsSilent) {
    folder.FillUp("_PATHINF.TMP");
    Probe();
    EXPECT_TRUE(host.boxes.empty());
    ExpectNothingChanged();
}

TEST_F(ProbeFailure, OfAnOutputThatIsNoTableIsSilent) {
    for (const std::string output : {"", "words", "5.5\r\n0 5 1 2 3",
                                     "5.5\r\n0 40000 1 1 1 1 1 1 1 "
                                     "1 1 1 1 1 1 1 1 1 1 1 1 1 1 1 1 1"}) {
        folder.Write("_OUTPUT.TMP", output);
        Probe();
        EXPECT_TRUE(host.boxes.empty()) << output;
    }
    ExpectNothingChanged();
}

TEST_F(ProbeFailure, OfAnAgeThatFitsNoSixteenBitsIsSilent) {
    run.form.Age1.SetText("40000");
    Probe();
    EXPECT_TRUE(host.boxes.empty());
    ExpectNothingChanged();
    EXPECT_EQ(host.starts.size(), 1u);
}

}  // namespace
}  // namespace arbolith
