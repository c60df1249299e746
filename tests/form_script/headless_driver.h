// Acts on the forms through their own user actions, with no screen.
#pragma once

#include "form_script/driver.h"

namespace arbolith {

class HeadlessDriver : public Driver {
public:
    explicit HeadlessDriver(Application& application) : actions_(application) {}

    void Click(Control& control) override { actions_.Click(control); }
    /// On a list what its view makes of it; elsewhere two presses of the mouse.
    void DoubleClick(Control& control) override {
        if (dynamic_cast<ListBox*>(&control) != nullptr) return actions_.DoubleClick(control);
        actions_.Click(control);
        if (control.Showing() && control.Usable()) actions_.DoubleClick(control);
        if (control.Showing() && control.Usable()) actions_.Click(control);
    }
    void Focus(Control& control) override { actions_.Focus(control); }
    void Type(TextBox& box, const std::string& text) override { actions_.Type(box, text); }
    void Press(Control& control, Key key) override { actions_.Press(control, key); }
    void Paste(TextBox& box, const std::string& text) override { actions_.Paste(box, text); }
    void SelectRow(ListBox& list, int index) override { actions_.SelectRow(list, index); }
    void DragCells(Grid& grid, int row, int col, int rowSel, int colSel) override {
        actions_.DragCells(grid, row, col, rowSel, colSel);
    }
    void PickPoint(Chart& chart, int series, int point) override {
        actions_.PickPoint(chart, series, point);
    }
    void Resize(Form& form, Size clientSize) override { actions_.Resize(form, clientSize); }
    void Close(Form& form) override { actions_.Close(form); }
    void ComeBack(Form& form) override { actions_.ComeBack(form); }

    /// Nothing is on a screen: everything is read from the state.
    std::optional<std::string> Shown(const Control&, const std::string&) override {
        return std::nullopt;
    }
    void SavePictures(const std::string&) override { RefusePictures(); }
    void SavePictureOf(const Control&, const std::string&) override { RefusePictures(); }

private:
    [[noreturn]] static void RefusePictures() {
        throw ActionRefused("nothing is drawn without windows");
    }

    UserActions actions_;
};

}  // namespace arbolith
