// The chart window: its place, full screen, the legend, a picked point.
#include "charts/chart_window.h"

#include "unit/charts/charts_testing.h"
#include "unit/platform/expect_error.h"

namespace arbolith {
namespace {

class ChartWindowTest : public ChartsTest {
protected:
    ChartWindow& window = chart.Get();

    Place PlaceOf(const Control& control) { return control.GetPlace(); }
};

TEST_F(ChartWindowTest, OpensAboveTheOthersALittleAboveTheMiddle) {
    EXPECT_TRUE(window.Topmost());
    EXPECT_TRUE(window.XYEnabled);
    EXPECT_EQ(window.FullScreen.Tag(), "No");
    const auto place = PlaceOf(window);
    EXPECT_NEAR(place.left + place.width / 2, 15360 / 2, 1);
    EXPECT_NEAR(place.top + place.height / 2, 11520 * 0.85 / 2, 1);
}

TEST_F(ChartWindowTest, CalculatesTheScreenInPixels) {
    EXPECT_EQ(window.CalcRes().RetValX, 1024);
    EXPECT_EQ(window.CalcRes().RetValY, 768);
    host.screen = {15368, 32767 * 15};
    EXPECT_EQ(window.CalcRes().RetValX, 1025);
    EXPECT_EQ(window.CalcRes().RetValY, 32767);
    host.screen.height += 15;
    EXPECT_ERROR(6, window.CalcRes());
}

TEST_F(ChartWindowTest, GoesToFullScreenAndBack) {
    output.Get().form.Title.SetCaption("Hardwood: Red Oak");
    window.Show();
    window.ToggleFullScreen();
    EXPECT_EQ(window.FullScreen.Tag(), "Yes");
    EXPECT_EQ(window.State(), WindowState::kMaximised);
    EXPECT_EQ(window.Caption(), "");
    EXPECT_FALSE(window.Topmost());
    EXPECT_EQ(PlaceOf(window.Chart).width, 11776);
    EXPECT_EQ(PlaceOf(window.Chart).height, 11520);
    EXPECT_EQ(PlaceOf(window.Close_Btn).left, 12800);
    EXPECT_EQ(PlaceOf(window.Bar_Btn).left, 12800);
    EXPECT_EQ(window.ClientSize(), (Size{15360, 11520}));
    window.ToggleFullScreen();
    EXPECT_EQ(window.FullScreen.Tag(), "No");
    EXPECT_EQ(window.State(), WindowState::kNormal);
    EXPECT_EQ(window.Caption(), "Hardwood: Red Oak");
    EXPECT_TRUE(window.Topmost());
    EXPECT_EQ(PlaceOf(window.Chart), (Place{240, 120, 6495, 4575}));
    EXPECT_EQ(PlaceOf(window.Close_Btn).left, 6840);
    EXPECT_EQ(window.ClientSize(), (Size{8175, 4815}));
}

TEST_F(ChartWindowTest, KeepsItsPlacesInFullScreenWhateverResizesIt) {
    window.Show();
    window.KeepFullScreen();
    EXPECT_EQ(PlaceOf(window.Chart).width, 6495);
    window.ToggleFullScreen();
    window.Chart.SetPlace({1, 2, 3, 4});
    window.Axis.SetPlace({1, 2, 3, 4});
    window.KeepFullScreen();
    EXPECT_EQ(PlaceOf(window.Chart), (Place{1, 2, 11776, 11520}));
    EXPECT_EQ(PlaceOf(window.Axis), (Place{12800, 2, 3, 4}));
}

TEST_F(ChartWindowTest, LeavesFullScreenWithAPersonWhoTakesTheWindowOutOfIt) {
    window.Show();
    window.ToggleFullScreen();
    window.SetState(WindowState::kNormal);
    window.SetClientSize({10000, 6000});
    window.KeepFullScreen();
    EXPECT_EQ(window.FullScreen.Tag(), "No");
    EXPECT_EQ(PlaceOf(window.Chart).width, 6495);
    EXPECT_TRUE(window.Topmost());
}

TEST_F(ChartWindowTest, ChangesNothingOnAScreenTooLargeForSixteenBits) {
    window.Show();
    for (const Size screen : {Size{2622 * 15, 15000}, Size{15000, 2185 * 15}}) {
        host.screen = screen;
        EXPECT_ERROR(6, window.ToggleFullScreen());
        EXPECT_EQ(window.FullScreen.Tag(), "No");
        EXPECT_EQ(window.State(), WindowState::kNormal);
        EXPECT_EQ(window.Caption(), "Chart");
        EXPECT_TRUE(window.Topmost());
        EXPECT_EQ(PlaceOf(window.Chart).width, 6495);
    }
    host.screen = {2621 * 15, 2184 * 15};
    window.ToggleFullScreen();
    EXPECT_EQ(PlaceOf(window.Close_Btn).left, 32762);
    EXPECT_EQ(PlaceOf(window.Chart).height, 32760);
}

TEST_F(ChartWindowTest, ClosesByTheWayOutOfFullScreenWithItsOptions) {
    output.Get().form.Title.SetCaption("Hardwood: Red Oak");
    window.Show();
    window.OpenOptions();
    EXPECT_TRUE(options.Get().Visible());
    EXPECT_TRUE(options.Get().Topmost());
    window.CloseWindow();
    EXPECT_FALSE(window.Visible());
    EXPECT_FALSE(options.Get().Visible());
    EXPECT_EQ(window.Caption(), "Hardwood: Red Oak");
}

TEST_F(ChartWindowTest, ShowsAndHidesTheLegend) {
    window.Enable_Legend(true);
    EXPECT_EQ(window.Chart.Legend(),
              (ChartLegend{true, {"Arial", 8, 1}, ChartLocation::kBottomRight}));
    window.Enable_Legend(false);
    EXPECT_EQ(window.Chart.Legend(),
              (ChartLegend{false, {"Arial", 8, 1}, ChartLocation::kBottomRight}));
}

TEST_F(ChartWindowTest, TellsAPointOfThePlot) {
    graphs.GraphCustom("TH,TDBH,MDBH", "");
    window.ShowPoint(3, 2);
    EXPECT_EQ(host.boxes.back().text, "Series: MDBH\nYear: 8\nValue: 6");
    graphs.BarGraph();
    window.ShowPoint(1, 1);
    EXPECT_EQ(host.boxes.back().text, "Series: TDBH\nYear: 3\nValue: 2.5");
}

TEST_F(ChartWindowTest, FillsAnEmptyModeWithThatOfBars) {
    window.Chart.SetSize(1, 2);
    window.ShowPoint(1, 1);
    EXPECT_EQ(options.Get().XY.Caption(), "0");
    options.Get().XY.SetCaption("1");
    window.ShowPoint(1, 1);
    EXPECT_EQ(options.Get().XY.Caption(), "1");
}

}  // namespace
}  // namespace arbolith
