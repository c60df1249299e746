// The options of the chart: the way of its values to the fields and back.
#include "charts/chart_options.h"

#include "unit/charts/charts_testing.h"
#include "unit/platform/expect_error.h"

namespace arbolith {
namespace {

class ChartOptionsTest : public ChartsTest {
protected:
    ChartOptionsTest() {
        graphs.GraphCustom("SAGE,TDBH", "");
        window.Reload_Click();
    }

    ChartOptions& window = options.Get();
};

TEST_F(ChartOptionsTest, ShowTheChart) {
    EXPECT_EQ(window.XMin.Text(), "0");
    EXPECT_EQ(window.XMax.Text(), "10");
    EXPECT_EQ(window.XDMaj.Text(), "2");
    EXPECT_EQ(window.XDMin.Text(), "1");
    EXPECT_EQ(window.YMax.Text(), "10");
    EXPECT_TRUE(window.Legend.Value());
    EXPECT_TRUE(window.Grid.Value());
    EXPECT_FALSE(window.AutoX.Value());
}

TEST_F(ChartOptionsTest, CanBeAcceptedUnchanged) {
    EXPECT_TRUE(window.AcceptFields());
    EXPECT_FALSE(X().Scale.Auto);
    EXPECT_EQ(X().Scale.Maximum, 10);
    EXPECT_EQ(Y().Scale.Maximum, 10);
}

TEST_F(ChartOptionsTest, ShowAnyGridButNoneAsOne) {
    Chart().ChangeAxis(Chart::kAxisX, [](ChartAxis& axis) { axis.MajorPen = PenStyle::kSolid; });
    window.Reload_Click();
    EXPECT_TRUE(window.Grid.Value());
    Chart().ChangeAxis(Chart::kAxisX, [](ChartAxis& axis) { axis.MajorPen = PenStyle::kNone; });
    window.Reload_Click();
    EXPECT_FALSE(window.Grid.Value());
}

TEST_F(ChartOptionsTest, OpenTheFieldsOfXOnlyForAPlot) {
    chart.Get().XYEnabled = false;
    window.Reload_Click();
    for (const Control* control : std::initializer_list<const Control*>{
             &window.XMax, &window.XMin, &window.XDMaj, &window.XDMin, &window.AutoX})
        EXPECT_FALSE(control->Enabled()) << control->Name();
    EXPECT_TRUE(window.YMax.Enabled());
    chart.Get().XYEnabled = true;
    window.Reload_Click();
    EXPECT_TRUE(window.XMax.Enabled());
}

TEST_F(ChartOptionsTest, RefuseWhatIsNoNumberAndApplyNothing) {
    const auto before = Chart().Axis(Chart::kAxisX);
    window.XMax.SetText("40");
    window.YDMin.SetText("one");
    window.AutoX.SetValue(true);
    EXPECT_FALSE(window.AcceptFields());
    ASSERT_EQ(host.boxes.size(), 1u);
    EXPECT_EQ(host.boxes[0].text, "Please enter a number for Y Minor Div");
    EXPECT_EQ(host.boxes[0].title, "Input Error");
    EXPECT_EQ(host.boxes[0].icon, BoxIcon::kExclamation);
    EXPECT_EQ(X(), before);
    EXPECT_FALSE(window.autosetx);
    EXPECT_EQ(window.XMax.Text(), "40");
    EXPECT_EQ(window.FocusControl(), nullptr);  // it isn't showing
    window.Show();
    window.YDMin.SetText("");
    EXPECT_FALSE(window.AcceptFields());
    EXPECT_EQ(window.FocusControl(), &window.YDMin);
}

TEST_F(ChartOptionsTest, KeepWhatStandsBeforeAnOverflow) {
    window.XMax.SetText("40");
    window.XDMaj.SetText("99999");
    window.YMax.SetText("60");
    EXPECT_ERROR(6, window.AcceptFields());
    EXPECT_EQ(X().Scale.Maximum, 40);
    EXPECT_EQ(X().Scale.MajorDivision, 2);
    EXPECT_EQ(Y().Scale.Maximum, 10);
}

TEST_F(ChartOptionsTest, SaveOnlyWhatTheyAccept) {
    window.Show();
    window.YMax.SetText("x");
    window.SaveAndHide();
    EXPECT_TRUE(window.Visible());
    window.YMax.SetText("33");
    window.SaveAndHide();
    EXPECT_FALSE(window.Visible());
    EXPECT_EQ(host.boxes.back().text, "Settings Applied");
    EXPECT_EQ(Y().Scale.Maximum, 33);
}

TEST_F(ChartOptionsTest, DropEditsWhenCancelled) {
    window.Show();
    window.YMax.SetText("33");
    window.CancelEdits();
    EXPECT_FALSE(window.Visible());
    EXPECT_EQ(window.YMax.Text(), "10");
    EXPECT_EQ(Y().Scale.Maximum, 10);
}

TEST_F(ChartOptionsTest, HandAPendingEndToTheYAxis) {
    window.Max.SetCaption("6000");
    window.ApplyMax();
    EXPECT_EQ(Y().Scale.Maximum, 6000);
    EXPECT_FALSE(Y().Scale.Auto);
    window.Max.SetCaption("");
    window.ApplyMax();
    EXPECT_EQ(Y().Scale.Maximum, 6000);
    EXPECT_TRUE(Y().Scale.Auto);
}

}  // namespace
}  // namespace arbolith
