#include "notepad/find.h"

namespace arbolith::notepad {

QTextCursor Find(const QTextDocument& document, const QTextCursor& from, const Search& search,
                 Direction direction) {
    // The toolkit takes no-break spaces in the document for blanks.
    QString text = search.text;
    text.replace(QChar::Nbsp, u' ');
    QTextDocument::FindFlags flags;
    if (search.matchesCase) flags |= QTextDocument::FindCaseSensitively;
    if (direction == Direction::kBackward) flags |= QTextDocument::FindBackward;
    const auto found = document.find(text, from, flags);
    if (!found.isNull() || !search.wraps) return found;
    QTextCursor otherEnd(from);
    otherEnd.movePosition(direction == Direction::kForward ? QTextCursor::Start : QTextCursor::End);
    return document.find(text, otherEnd, flags);
}

}  // namespace arbolith::notepad
