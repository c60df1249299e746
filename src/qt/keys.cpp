#include "qt/keys.h"

#include "qt/texts.h"

namespace arbolith {

namespace {

constexpr Qt::KeyboardModifiers kCommands =
    Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier;

std::optional<Key> CommandOf(const QKeyEvent& event) {
    if (event.matches(QKeySequence::SelectAll)) return Key{Key::kSelectAll};
    if (event.matches(QKeySequence::Copy)) return Key{Key::kCopy};
    return std::nullopt;
}

}  // namespace

std::optional<Key> KeyOf(const QKeyEvent& event) {
    switch (event.key()) {
        case Qt::Key_Tab:
            return Key{Key::kTab};
        case Qt::Key_Backtab:
            return Key{Key::kBackTab};
        default:
            break;
    }
    if (event.modifiers() & kCommands) return CommandOf(event);
    switch (event.key()) {
        case Qt::Key_Return:
        case Qt::Key_Enter:
            return Key{Key::kEnter};
        case Qt::Key_Backspace:
            return Key{Key::kBackspace};
        case Qt::Key_Delete:
            return Key{Key::kDelete};
        case Qt::Key_Insert:
            return Key{Key::kInsert};
        case Qt::Key_Space:
            return Key{Key::kSpace, ' '};
        case Qt::Key_Up:
            return Key{Key::kUp};
        case Qt::Key_Down:
            return Key{Key::kDown};
        case Qt::Key_Escape:
            return Key{Key::kEscape};
        default:
            break;
    }
    const auto text = FromQString(event.text());
    if (text.size() != 1 || static_cast<unsigned char>(text[0]) < ' ') return std::nullopt;
    return Key{Key::kCharacter, static_cast<unsigned char>(text[0])};
}

}  // namespace arbolith
