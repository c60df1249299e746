// How a form script acts on the forms and sees them: headless through the forms' own user actions,
// or on the real windows through mouse and key events.
#pragma once

#include "forms/user_actions.h"

#include <optional>
#include <string>

namespace arbolith {

/// Every action throws ActionRefused for what a person could not have done.
class Driver {
public:
    virtual ~Driver() = default;

    virtual void Click(Control& control) = 0;
    virtual void DoubleClick(Control& control) = 0;
    virtual void Focus(Control& control) = 0;
    virtual void Type(TextBox& box, const std::string& text) = 0;
    virtual void Press(Control& control, Key key) = 0;
    virtual void Paste(TextBox& box, const std::string& text) = 0;
    virtual void SelectRow(ListBox& list, int index) = 0;
    virtual void DragCells(Grid& grid, int row, int col, int rowSel, int colSel) = 0;
    virtual void PickPoint(Chart& chart, int series, int point) = 0;
    virtual void Resize(Form& form, Size clientSize) = 0;
    virtual void Close(Form& form) = 0;
    virtual void ComeBack(Form& form) = 0;
    void Tick(Timer& timer);

    /// A property as the screen shows it (Text, Caption, Enabled, Visible, Value, List(i),
    /// ListIndex, Cell(r,c)); nothing where it is to be read from the control's state.
    virtual std::optional<std::string> Shown(const Control& control,
                                             const std::string& property) = 0;

    /// Saves pictures of the visible windows: the one shown last under `path`, each other with a
    /// minus and its form's name before the ending. Throws ActionRefused where nothing is drawn.
    virtual void SavePictures(const std::string& path) = 0;
    /// Saves a picture of one control, or of a form, that is showing. Throws ActionRefused for
    /// another, and where nothing is drawn.
    virtual void SavePictureOf(const Control& control, const std::string& path) = 0;
};

}  // namespace arbolith
