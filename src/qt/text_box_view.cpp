// A text field. Keys pass the field's own filter before the editor gets them; whatever else edits
// (undo, menu, drag and drop, input methods) is told to the state, which may cut it.
#include "qt/form_window.h"
#include "qt/keys.h"
#include "qt/texts.h"
#include "qt/views.h"

#include <QApplication>
#include <QLineEdit>

#include <limits>
#include <memory>
#include <utility>

namespace arbolith {

namespace {

constexpr unsigned char kBackspaceCode = 8;

class TextBoxView final : public QLineEdit, public View {
public:
    TextBoxView(TextBox& box, FormWindow& window)
        : QLineEdit(window.InsideOf(box.Parent())), View(box, window, this), box_(box) {
        // The length limit is the state's, which cuts by rules of its own.
        setMaxLength(std::numeric_limits<int>::max());
        // Assistive technology sets the text without a word of an edit.
        connect(this, &QLineEdit::textChanged, this, [this] { PassEdit(); });
        connect(this, &QLineEdit::selectionChanged, this, [this] { PassSelection(); });
        connect(this, &QLineEdit::cursorPositionChanged, this, [this] { PassSelection(); });
    }

    void Refresh() override {
        RefreshText();
        if (box_.HasFocus()) RefreshSelection();
        RefreshWidget();
        RefreshBackColor(QPalette::Base, QPalette::Text);
    }

protected:
    void keyPressEvent(QKeyEvent* event) override {
        const auto key = KeyOf(*event);
        if (!key || IsCommand(*key, event->modifiers())) {
            QLineEdit::keyPressEvent(event);
        } else if (key->name == Key::kBackspace) {
            if (Accepts(kBackspaceCode)) QLineEdit::keyPressEvent(event);
        } else if (key->name == Key::kCharacter || key->name == Key::kSpace) {
            if (Accepts(key->character)) Put(*key, event);
        } else {
            keepsUndo_ = true;
            PassKey(*event);
            keepsUndo_ = false;
        }
    }

    void focusInEvent(QFocusEvent* event) override {
        QLineEdit::focusInEvent(event);
        gotFocusByMouse_ = event->reason() == Qt::MouseFocusReason;
        ShowState();
    }

    // The press that brings the focus leaves the whole text selected where the field wants it so,
    // unless the mouse is drawn on from there.
    void mousePressEvent(QMouseEvent* event) override {
        const bool bringsFocus = std::exchange(gotFocusByMouse_, false);
        if (bringsFocus && box_.SelectsAllOnFocus() && event->button() == Qt::LeftButton) {
            heldPress_.reset(event->clone());
        } else {
            QLineEdit::mousePressEvent(event);
        }
    }

    void mouseMoveEvent(QMouseEvent* event) override {
        if (heldPress_ != nullptr) {
            const QPointF way = event->position() - heldPress_->position();
            if (way.manhattanLength() < QApplication::startDragDistance()) return;
            QLineEdit::mousePressEvent(std::exchange(heldPress_, nullptr).get());
        }
        QLineEdit::mouseMoveEvent(event);
    }

    void mouseReleaseEvent(QMouseEvent* event) override {
        if (std::exchange(heldPress_, nullptr) == nullptr) QLineEdit::mouseReleaseEvent(event);
    }

private:
    // What the editor does best by itself: selecting all, and cutting.
    static bool IsCommand(Key key, Qt::KeyboardModifiers modifiers) {
        return key.name == Key::kSelectAll ||
               (key.name == Key::kDelete && modifiers.testFlag(Qt::ShiftModifier));
    }

    // What the program has no character for goes in as the question mark that stands for it.
    void Put(Key key, QKeyEvent* event) {
        if (key.character == '?') {
            insert(QStringLiteral("?"));
        } else {
            QLineEdit::keyPressEvent(event);
        }
    }

    bool Accepts(unsigned char character) {
        bool accepts = false;
        Perform([&](UserActions& actions) { accepts = actions.AcceptsKey(box_, character); });
        return accepts;
    }

    void PassEdit() {
        const auto caret = FromQString(QStringView(text()).left(cursorPosition())).size();
        if (Perform(
                [&](UserActions& actions) { actions.Edited(box_, FromQString(text()), caret); }))
            ShowState();
    }

    void PassSelection() {
        if (!hasFocus()) return;
        const bool selects = hasSelectedText();
        const auto start = static_cast<std::size_t>(selects ? selectionStart() : cursorPosition());
        const auto length = static_cast<std::size_t>(selects ? selectionLength() : 0);
        Perform([&](UserActions&) { box_.Select(start, length); });
    }

    void RefreshText() {
        const QString told = ToQString(box_.Text());
        if (text() == told) return;
        if (keepsUndo_) {
            selectAll();
            insert(told);
        } else {
            setText(told);
        }
    }

    void RefreshSelection() {
        const int start = static_cast<int>(box_.SelStart());
        const int length = static_cast<int>(box_.SelLength());
        if (length == 0) {
            if (hasSelectedText() || cursorPosition() != start) setCursorPosition(start);
        } else if (selectionStart() != start || selectionLength() != length) {
            setSelection(start, length);
        }
    }

    TextBox& box_;
    bool gotFocusByMouse_ = false;
    std::unique_ptr<QMouseEvent> heldPress_;
    bool keepsUndo_ = false;
};

}  // namespace

View* MakeTextBoxView(TextBox& box, FormWindow& window) {
    return new TextBoxView(box, window);
}

}  // namespace arbolith
