// The treatment probe: when it asks the model, which fields a stand allows at and just beyond each
// limit for the first treatment, and what it leaves behind.
#include "unit/model_bridge/probe_testing.h"

#include <ostream>

namespace arbolith {
namespace {

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

TEST_F(ProbeTest, FailsSilentlyWhileTheModelIsHeldBack) {
    TreatAtAge("30");
    ModelGrows({{.sage = 30, .mdbh = 20}});
    application.Files().OpenForOutput(1, folder.PathOf("open.txt"));
    run.TreatmentKeysOpen = false;
    {
        const HeldBackModel held(run);
        Probe();
    }
    EXPECT_TRUE(host.starts.empty());
    EXPECT_TRUE(host.boxes.empty());
    EXPECT_FALSE(run.form.BA1.Enabled());
    EXPECT_TRUE(run.form.BA1.Visible());
    EXPECT_FALSE(run.TreatmentKeysOpen);
    Probe();
    EXPECT_EQ(host.starts.size(), 1u);
    EXPECT_TRUE(run.form.BA1.Enabled());
}

TEST_F(ProbeTest, NeedsNoModelToFindThatNothingIsPossible) {
    TreatAtAge("0");
    const HeldBackModel held(run);
    Probe();
    EXPECT_FALSE(run.form.BA1.Visible());
    EXPECT_TRUE(run.TreatmentKeysOpen);
}

}  // namespace
}  // namespace arbolith
