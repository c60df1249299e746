// Makes the view of each kind of control, one file a kind. All of them put their widget into the
// window at the control's place, with the control's name.
#pragma once

#include "forms/chart.h"
#include "forms/controls.h"
#include "forms/grid.h"
#include "qt/view.h"

namespace arbolith {

/// The view of a control; null for a kind that is not shown. Its parent's view must stand.
View* MakeView(Control& control, FormWindow& window);

View* MakeFrameView(Frame& frame, FormWindow& window);
View* MakeLabelView(Label& label, FormWindow& window);
View* MakeButtonView(Button& button, FormWindow& window);
View* MakeOptionView(Option& option, FormWindow& window);
View* MakeCheckBoxView(CheckBox& box, FormWindow& window);
View* MakeTextBoxView(TextBox& box, FormWindow& window);
View* MakeListBoxView(ListBox& list, FormWindow& window);
View* MakeComboBoxView(ComboBox& combo, FormWindow& window);
View* MakeMenuView(MenuItem& item, FormWindow& window);
View* MakeTimerView(Timer& timer, FormWindow& window);
View* MakeProgressBarView(ProgressBar& bar, FormWindow& window);
View* MakePictureView(Picture& picture, FormWindow& window);
View* MakeGridView(Grid& grid, FormWindow& window);
View* MakeChartView(Chart& chart, FormWindow& window);

}  // namespace arbolith
