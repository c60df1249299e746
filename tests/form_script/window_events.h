// Mouse and key events as a person's devices would send them, to a place in a window.
#pragma once

#include "forms/user_actions.h"

#include <QPoint>
#include <QWidget>

namespace arbolith::window_events {

/// Lets all events that are due run.
void Settle();

/// Makes the widget's window the active one, as a click on its title does.
void ActivateWindowOf(QWidget& widget);

/// Clicks a place in a widget. Throws ActionRefused where another widget covers it.
void ClickAt(QWidget& widget, QPoint place);
void DoubleClickAt(QWidget& widget, QPoint place);
/// Presses the button at one place of a widget, calls `between`, and lets go at the place that it
/// returns.
void Drag(QWidget& widget, QPoint from, const std::function<QPoint()>& between);

/// Presses a key and lets go, at the widget that has the focus.
void PressKey(Key key);
void PressKey(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);

}  // namespace arbolith::window_events
