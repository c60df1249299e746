// The chart window: the one chart of the program, and what can be done with it once it stands.
#pragma once

#include "forms/at_first_use.h"
#include "forms/chart.h"
#include "forms/controls.h"

#include <array>
#include <cstdint>

namespace arbolith {

struct ChartOptions;

/// The form Chart_Frm. It stays above the other windows but in full screen, where it is maximised.
struct ChartWindow : Form {
    /// `tableTitle` is the heading of the yield table; it, like `options`, must outlive the window.
    ChartWindow(Application& application, const Label& tableTitle,
                AtFirstUse<ChartOptions>& options);

    static constexpr int kButtonLeft = 6840;

    Button Close_Btn{*this, "Close_Btn", "Close", {kButtonLeft, 120, 1215, 255}};
    Button FullScreen{*this, "FullScreen", "Full Screen", {kButtonLeft, 480, 1215, 255}};
    Button Copy_Btn{*this, "Copy_Btn", "Copy Graph", {kButtonLeft, 840, 1215, 255}};
    Button Save_Btn{*this, "Save_Btn", "Save Graph", {kButtonLeft, 1080, 1215, 255}};
    Button Print_Btn{*this, "Print_Btn", "Print Graph", {kButtonLeft, 1320, 1215, 255}};
    Button Axis{*this, "Axis", "Chart Options", {kButtonLeft, 1680, 1215, 255}};
    Button Line_Btn{*this, "Line_Btn", "XY Plot (Line)", {kButtonLeft, 2160, 1215, 255}};
    Button Bar_Btn{*this, "Bar_Btn", "Bar", {kButtonLeft, 2400, 1215, 255}};
    arbolith::Chart Chart{*this, "Chart", {240, 120, 6495, 4575}};

    bool XYEnabled = true;  ///< The chart is an XY plot; false while it is a bar chart.

    /// Shows the legend at the lower right, or hides it.
    void Enable_Legend(bool visible);

    /// Enters full screen, or leaves it, by the Tag of `FullScreen`: "No" or "Yes". Throws an
    /// overflow, and changes nothing, on a screen whose places don't fit 16 bits.
    void ToggleFullScreen();
    /// Behind a resize of the window: in full screen the controls go back to their places there; a
    /// window that a person has taken out of it leaves it.
    void KeepFullScreen();
    /// The size of the screen in pixels; throws an overflow where it doesn't fit 16 bits.
    struct Resolution {
        std::int16_t RetValX;
        std::int16_t RetValY;
    };
    Resolution CalcRes() const;

    /// Shows the options with the values of the chart, always on top as well.
    void OpenOptions();
    /// Tells the data point that was picked; the series of an XY plot is the X column of its pair.
    void ShowPoint(int series, int point);
    /// Leaves full screen and hides the window with its options.
    void CloseWindow();

private:
    struct FullScreenPlaces {
        int buttonLeft;
        Size chart;
    };
    FullScreenPlaces PlacesInFullScreen() const;
    void EnterFullScreen();
    void LeaveFullScreen();
    void PlaceControls(const FullScreenPlaces& places);
    std::array<Button*, 8> Buttons();

    const Label& tableTitle_;
    AtFirstUse<ChartOptions>& options_;
    // For the way back from full screen, in twips.
    std::int16_t SavedButtonLeft;
    std::int16_t SavedChartWidth;
    std::int16_t SavedChartHeight;
    std::int16_t SavedChartTop;
    std::int16_t SavedFormWidth;
    std::int16_t SavedFormHeight;
};

}  // namespace arbolith
