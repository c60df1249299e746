// The small window that asks what to find. It stays open while the text is worked on, and keeps the
// search while it is closed.
#pragma once

#include "notepad/find.h"

#include <QCheckBox>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>

#include <functional>

namespace arbolith::notepad {

class FindDialog : public QDialog {
public:
    /// `find` runs the search when a button asks for it.
    FindDialog(QWidget* parent, const std::function<void(Direction)>& find);

    /// Comes to the front with a text to start from; an empty one leaves what was sought last.
    void Ask(const QString& text);
    Search Wanted() const;
    /// Tells how the search ended.
    void Tell(const QString& message) { message_->setText(message); }

private:
    QLineEdit* text_;
    QCheckBox* matchesCase_;
    QCheckBox* wraps_;
    QLabel* message_;
};

}  // namespace arbolith::notepad
