// From Qt's key events to the keys that the forms know.
#pragma once

#include "forms/user_actions.h"

#include <QKeyEvent>

#include <optional>

namespace arbolith {

/// The key of an event; nothing for one that is no business of a control, such as an access key.
std::optional<Key> KeyOf(const QKeyEvent& event);

}  // namespace arbolith
