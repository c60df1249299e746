// What all views have in common. A view is the widget of one control: it shows the control's state
// and passes on what a person does to it; it keeps no state of its own.
#pragma once

#include "forms/control.h"
#include "forms/user_actions.h"

#include <QAccessible>
#include <QColor>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPalette>
#include <QWidget>

#include <functional>

namespace arbolith {

class FormWindow;

/// Lives as long as its widget, which belongs to its window.
class View {
public:
    View(const View&) = delete;
    View& operator=(const View&) = delete;
    virtual ~View() = default;

    /// Shows the control's state as it stands. Called while the window ignores what its widgets
    /// say, so that nothing comes back as a person's action.
    virtual void Refresh() = 0;

    /// What assistive technology is told that the widget is; NoRole for what the toolkit tells.
    virtual QAccessible::Role Role() const { return QAccessible::NoRole; }
    /// What its action there does: that of a click.
    void Press();

    /// The widget that mouse and keys are sent to; null for a menu entry or a timer.
    QWidget* Widget() const { return widget_; }

protected:
    /// `widget` is what the view shows itself as, null for nothing that has a place.
    View(Control& control, FormWindow& window, QWidget* widget);

    FormWindow& Window() const { return window_; }
    /// Runs a person's action; one that is refused does nothing. False where the control is gone.
    bool Perform(const std::function<void(UserActions&)>& action);
    /// Refreshes after the widget has changed by itself.
    void ShowState();
    /// Passes a mouse event on to a control that can be clicked without taking the focus. What the
    /// control has no use for goes on to the frame around it.
    void PassMouse(QMouseEvent& event);
    /// Passes a key on to the control; false for a key that is no business of the control.
    bool PassKey(const QKeyEvent& event);
    /// Place, name, visible and enabled.
    void RefreshWidget();
    /// Where the widget stands in its parent, in pixels: the told place, scaled.
    virtual QRect ShownPlace() const;
    /// The control's background behind these colours of the palette, with dark text on it.
    void RefreshBackColor(QPalette::ColorRole background, QPalette::ColorRole text);

private:
    Control& control_;
    FormWindow& window_;
    QWidget* widget_;
    Colour shownColour_ = kButtonFace;
};

/// A colour whose bytes are blue, green and red from the highest down.
QColor ColourOf(Colour colour);

/// The object name of a control's widget: its name, with the index of a control array.
QString ObjectNameOf(const Control& control);

}  // namespace arbolith
