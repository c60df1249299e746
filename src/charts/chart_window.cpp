#include "charts/chart_window.h"

#include "charts/chart_options.h"
#include "forms/always_on_top.h"
#include "forms/application.h"
#include "platform/numbers.h"

#include <cmath>
#include <string>

namespace arbolith {

namespace {

constexpr Size kClientSize = {8175, 4815};
// The middle of the window stands at this part of the upper half of the screen.
constexpr double kMiddle = 0.85;

constexpr double kTwipsPerPixel = 15;
// Where the buttons begin in full screen, and how wide the chart is: twips to a pixel's width of
// the screen.
constexpr double kButtonShare = 12.5;
constexpr double kChartShare = 11.5;

constexpr const char* kInFullScreen = "Yes";
constexpr const char* kNotInFullScreen = "No";

std::string PointText(const std::string& series, const std::string& x, double value) {
    return "Series: " + series + "\nYear: " + x + "\nValue: " + DefaultText(value);
}

}  // namespace

ChartWindow::ChartWindow(Application& application, const Label& tableTitle,
                         AtFirstUse<ChartOptions>& options)
    : Form(application, "Chart_Frm", "Chart", kClientSize),
      tableTitle_(tableTitle),
      options_(options),
      SavedButtonLeft(ToInt16(Close_Btn.GetPlace().left)),
      SavedChartWidth(ToInt16(Chart.GetPlace().width)),
      SavedChartHeight(ToInt16(Chart.GetPlace().height)),
      SavedChartTop(ToInt16(Chart.GetPlace().top)),
      SavedFormWidth(ToInt16(ClientSize().width)),
      SavedFormHeight(ToInt16(ClientSize().height)) {
    FullScreen.SetTag(kNotInFullScreen);
    WindowTopmost(*this);
    const auto screen = application.GetHost().ScreenSize();
    auto place = GetPlace();
    place.top = static_cast<int>(std::nearbyint(screen.height * kMiddle / 2 - place.height / 2.0));
    place.left = static_cast<int>(std::nearbyint(screen.width / 2.0 - place.width / 2.0));
    SetPlace(place);
}

std::array<Button*, 8> ChartWindow::Buttons() {
    return {&Close_Btn, &FullScreen, &Copy_Btn, &Save_Btn, &Print_Btn, &Axis, &Line_Btn, &Bar_Btn};
}

void ChartWindow::Enable_Legend(bool visible) {
    ChartLegend legend = Chart.Legend();
    if (visible) legend = {true, {"Arial", 8, 1}, ChartLocation::kBottomRight};
    legend.Visible = visible;
    Chart.SetLegend(legend);
}

ChartWindow::Resolution ChartWindow::CalcRes() const {
    const auto screen = GetApplication().GetHost().ScreenSize();
    return {ToInt16(screen.width / kTwipsPerPixel), ToInt16(screen.height / kTwipsPerPixel)};
}

ChartWindow::FullScreenPlaces ChartWindow::PlacesInFullScreen() const {
    const auto pixels = CalcRes();
    return {ToInt16(pixels.RetValX * kButtonShare),
            {ToInt16(pixels.RetValX * kChartShare), ToInt16(pixels.RetValY * kTwipsPerPixel)}};
}

void ChartWindow::PlaceControls(const FullScreenPlaces& places) {
    for (Button* button : Buttons()) {
        auto place = button->GetPlace();
        place.left = places.buttonLeft;
        button->SetPlace(place);
    }
    auto place = Chart.GetPlace();
    place.width = places.chart.width;
    place.height = places.chart.height;
    Chart.SetPlace(place);
}

void ChartWindow::KeepFullScreen() {
    if (FullScreen.Tag() == kNotInFullScreen) return;
    if (State() == WindowState::kNormal) {
        LeaveFullScreen();
    } else {
        PlaceControls(PlacesInFullScreen());
    }
}

void ChartWindow::ToggleFullScreen() {
    if (FullScreen.Tag() == kNotInFullScreen) {
        EnterFullScreen();
    } else {
        LeaveFullScreen();
    }
}

void ChartWindow::EnterFullScreen() {
    const auto places = PlacesInFullScreen();
    WindowNotTopmost(*this);
    SetCaption("");
    FullScreen.SetTag(kInFullScreen);
    SetState(WindowState::kMaximised);
    SetClientSize(GetApplication().GetHost().ScreenSize());
    PlaceControls(places);
}

void ChartWindow::LeaveFullScreen() {
    WindowTopmost(*this);
    SetCaption(tableTitle_.Caption());
    FullScreen.SetTag(kNotInFullScreen);
    SetState(WindowState::kNormal);
    SetClientSize({SavedFormWidth, SavedFormHeight});
    PlaceControls({SavedButtonLeft, {SavedChartWidth, SavedChartHeight}});
    auto place = Chart.GetPlace();
    place.top = SavedChartTop;
    Chart.SetPlace(place);
}

void ChartWindow::CloseWindow() {
    LeaveFullScreen();
    Hide();
    options_.Get().Hide();
}

void ChartWindow::OpenOptions() {
    auto& options = options_.Get();
    options.Show();
    options.Reload_Click();
    WindowTopmost(options);
}

void ChartWindow::ShowPoint(int series, int point) {
    auto& mode = options_.Get().XY;
    if (mode.Caption().empty()) mode.SetCaption("0");
    const int column = XYEnabled ? series + 1 : series;
    const auto x = XYEnabled ? DefaultText(Chart.Data(point, series)) : Chart.RowLabel(point);
    GetApplication().ShowBox(PointText(Chart.ColumnLabel(series), x, Chart.Data(point, column)));
}

}  // namespace arbolith
