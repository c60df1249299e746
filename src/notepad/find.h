// Searching a text for a text.
#pragma once

#include <QString>
#include <QTextCursor>
#include <QTextDocument>

namespace arbolith::notepad {

struct Search {
    QString text;
    bool matchesCase = false;
    bool wraps = true;  ///< Goes on at the other end of the text.
};

enum class Direction { kForward, kBackward };

/// The next place of the text, selected, from a cursor or behind its selection; a null cursor for
/// none. A place that the cursor has selected already is found again when it is the only one.
QTextCursor Find(const QTextDocument& document, const QTextCursor& from, const Search& search,
                 Direction direction);

}  // namespace arbolith::notepad
