// The treatment probe on the second treatment: behind which first one it is offered, and for which
// stands.
#include "unit/model_bridge/probe_testing.h"

#include <ostream>

namespace arbolith {
namespace {

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

}  // namespace
}  // namespace arbolith
