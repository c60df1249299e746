// What a person can do to a control, each with its rules: a disabled or hidden control takes
// nothing, focus events come first, a key passes the field's filter and then the length limit,
// getting the focus selects the whole text where the field says so. The windows, the console and
// the form scripts all act through these.
#pragma once

#include "forms/application.h"
#include "forms/chart.h"
#include "forms/controls.h"
#include "forms/grid.h"

#include <stdexcept>
#include <string>

namespace arbolith {

/// An action that a person could not have done, and why.
class ActionRefused : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// A key: a character by its 8-bit code, or one of the named keys.
struct Key {
    enum Name {
        kCharacter,
        kEnter,
        kBackspace,
        kDelete,
        kInsert,
        kSelectAll,
        kCopy,
        kTab,
        kBackTab,
        kSpace,
        kUp,
        kDown,
        kEscape,
    };
    Name name = kCharacter;
    unsigned char character = 0;
};

class UserActions {
public:
    explicit UserActions(Application& application) : application_(application) {}

    /// All of these throw ActionRefused for what can't be done.

    void Click(Control& control);
    void DoubleClick(Control& control);
    /// Moves the focus there, after its form was activated.
    void Focus(Control& control);
    /// The same by the Tab key: a text there is marked whole, so that typing replaces it.
    void TabTo(Control& control);
    void Activate(Form& form);
    /// A user who went to another program and comes back: activate and got focus.
    void ComeBack(Form& form);

    /// Whether what is typed from the outside takes the place of the text: where the focus marks it
    /// whole, and where it is marked whole already.
    static bool TypingReplaces(const TextBox& box);
    /// Focus, then one key press a character, in place of the text or behind it.
    void Type(TextBox& box, const std::string& text);
    /// Focus, then one key. The shortcut of a menu entry clicks the entry without opening its menu.
    void Press(Control& control, Key key);
    /// Focus, then the whole text replaced by the pasted one.
    void Paste(TextBox& box, const std::string& text);

    /// Clicks a row of a list or combo box.
    void SelectRow(ListBox& list, int index);
    /// Presses the mouse on a cell and, with the button or Shift held, goes on to another.
    void DragCells(Grid& grid, int row, int col, int rowSel, int colSel);

    /// Picks a data point; series and point as the chart's event gives them.
    void PickPoint(Chart& chart, int series, int point);

    void Resize(Form& form, Size clientSize);
    void Close(Form& form);
    void Tick(Timer& timer);

    /// Passes a character key to the field's filter and the length limit; whether the field takes
    /// it. For views that edit on their own.
    bool AcceptsKey(TextBox& box, unsigned char character);
    /// A view's own edit of a field that was let through.
    void Edited(TextBox& box, const std::string& text, std::size_t caret);

private:
    void RequireUsable(const Control& control) const;
    void Approach(Control& control, bool takesFocus = true);
    void ApproachByMouse(Control& control);
    void PressInTextBox(TextBox& box, Key key);
    void PressInList(ListBox& list, Key key);
    void PressInGrid(Grid& grid, Key key);
    void PressOnOption(Option& option, Key key);
    bool PressDefaultButton(const Form& form);
    static void PutCharacter(TextBox& box, unsigned char character);
    static void TakeCharacter(TextBox& box, bool before);
    static void Act(Control& control);

    Application& application_;
};

}  // namespace arbolith
