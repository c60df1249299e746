#include "qt/views.h"

#include "qt/form_window.h"

namespace arbolith {

View* MakeView(Control& control, FormWindow& window) {
    switch (control.Kind()) {
        case ControlKind::kFrame:
            return MakeFrameView(static_cast<Frame&>(control), window);
        case ControlKind::kLabel:
            return MakeLabelView(static_cast<Label&>(control), window);
        case ControlKind::kButton:
            return MakeButtonView(static_cast<Button&>(control), window);
        case ControlKind::kOption:
            return MakeOptionView(static_cast<Option&>(control), window);
        case ControlKind::kCheckBox:
            return MakeCheckBoxView(static_cast<CheckBox&>(control), window);
        case ControlKind::kTextBox:
            return MakeTextBoxView(static_cast<TextBox&>(control), window);
        case ControlKind::kListBox:
            return MakeListBoxView(static_cast<ListBox&>(control), window);
        case ControlKind::kComboBox:
            return MakeComboBoxView(static_cast<ComboBox&>(control), window);
        case ControlKind::kMenuItem:
            return MakeMenuView(static_cast<MenuItem&>(control), window);
        case ControlKind::kTimer:
            return window.HasManualTimers() ? nullptr
                                            : MakeTimerView(static_cast<Timer&>(control), window);
        case ControlKind::kProgressBar:
            return MakeProgressBarView(static_cast<ProgressBar&>(control), window);
        case ControlKind::kPicture:
            return MakePictureView(static_cast<Picture&>(control), window);
        case ControlKind::kGrid:
            return MakeGridView(static_cast<Grid&>(control), window);
        case ControlKind::kChart:
            return MakeChartView(static_cast<Chart&>(control), window);
        case ControlKind::kForm:
            break;
    }
    return nullptr;
}

}  // namespace arbolith
