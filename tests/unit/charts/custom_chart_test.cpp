// The choice of variables for a chart of one's own.
#include "charts/custom_chart.h"

#include "model_bridge/variables.h"
#include "unit/charts/charts_testing.h"

#include <set>

namespace arbolith {
namespace {

class CustomChartTest : public ChartsTest {
protected:
    CustomChartTest() {
        window.Show();
        window.cmbDomainSelect.onClick = [this] { window.ChooseDomain(); };
    }
    std::vector<CheckBox*> Boxes() {
        std::vector<CheckBox*> boxes;
        for (Control* control : window.Controls())
            if (control->Kind() == ControlKind::kCheckBox)
                boxes.push_back(static_cast<CheckBox*>(control));
        return boxes;
    }
    void Choose(const std::string& code) {
        for (int row = 0; row < window.cmbDomainSelect.ListCount(); ++row)
            if (window.cmbDomainSelect.List()[static_cast<std::size_t>(row)] == code)
                window.cmbDomainSelect.SetListIndex(row);
    }

    CustomChart window{application, graphs};
};

TEST_F(CustomChartTest, OffersEveryVariableButTheAgeOnce) {
    std::set<std::string> codes;
    for (const CheckBox* box : Boxes()) codes.insert(box->Caption());
    EXPECT_EQ(Boxes().size(), 24u);
    EXPECT_EQ(codes.size(), 24u);
    EXPECT_FALSE(codes.contains("SAGE"));
    EXPECT_EQ(window.cmbDomainSelect.List(),
              std::vector<std::string>(kVariableCodes.begin(), kVariableCodes.end()));
    EXPECT_EQ(window.cmbDomainSelect.Text(), "SAGE");
}

TEST_F(CustomChartTest, StandsInTwoRowsOfFourFrames) {
    std::vector<std::string> names;
    std::set<int> tops;
    for (const Control* control : window.Controls())
        if (control->Kind() == ControlKind::kFrame && &control->Parent() == &window.fraY) {
            names.push_back(control->Name());
            tops.insert(control->GetPlace().top);
        }
    EXPECT_EQ(names, (std::vector<std::string>{"fraDBH", "fraH", "fraVOL", "fraCVOL", "fraBA",
                                               "fraF", "fraMAI", "fraCMAI"}));
    EXPECT_EQ(tops.size(), 2u);
}

TEST_F(CustomChartTest, GreysTheVariableOfTheXAxisAndNoOther) {
    for (const char* code : kVariableCodes) {
        Choose(code);
        for (const CheckBox* box : Boxes()) {
            const bool isGreyed = box->Caption() == code && box->Caption() != "SDBH";
            EXPECT_EQ(box->Enabled(), !isGreyed) << box->Caption() << " over " << code;
        }
    }
}

TEST_F(CustomChartTest, TakesTheCheckOfAGreyedVariableForGood) {
    window.DBH.boxes[0].SetValue(true);
    window.H.boxes[2].SetValue(true);
    Choose("TDBH");
    EXPECT_FALSE(window.DBH.boxes[0].Value());
    Choose("SAGE");
    EXPECT_FALSE(window.DBH.boxes[0].Value());
    EXPECT_TRUE(window.DBH.boxes[0].Enabled());
    EXPECT_TRUE(window.H.boxes[2].Value());
}

TEST_F(CustomChartTest, DrawsInTheOrderOfTheColumns) {
    window.H.boxes[0].SetValue(true);
    window.DBH.boxes[1].SetValue(true);
    window.DBH.boxes[0].SetValue(true);
    window.DrawChoice();
    EXPECT_FALSE(window.Visible());
    EXPECT_EQ(output.Get().XColumn, 1);
    EXPECT_EQ(output.Get().SeriesColumns, (std::vector<std::int16_t>{2, 3, kColumnTh}));
    EXPECT_EQ(Y().Title, "TDBH/MDBH/TH");
    EXPECT_TRUE(window.H.boxes[0].Value());
}

TEST_F(CustomChartTest, StaysOpenWithoutAChoice) {
    window.DrawChoice();
    EXPECT_TRUE(window.Visible());
    ASSERT_EQ(host.boxes.size(), 1u);
    EXPECT_EQ(host.boxes[0].text, "You must select at least one Y-Axis Variable to graph.");
    EXPECT_EQ(host.boxes[0].icon, BoxIcon::kExclamation);
    EXPECT_EQ(chart.Find(), nullptr);
}

TEST_F(CustomChartTest, ForgetsTheChecksWhenCancelled) {
    window.CMAI.boxes[2].SetValue(true);
    Choose("TF");
    window.CancelChoice();
    EXPECT_FALSE(window.Visible());
    EXPECT_FALSE(window.CMAI.boxes[2].Value());
    EXPECT_EQ(window.cmbDomainSelect.Text(), "TF");
    EXPECT_FALSE(window.F.boxes[0].Enabled());
}

}  // namespace
}  // namespace arbolith
