#include "notepad/find_dialog.h"

#include <QDialogButtonBox>
#include <QPushButton>
#include <QVBoxLayout>

namespace arbolith::notepad {

namespace {

constexpr int kFieldCharacters = 40;

}  // namespace

FindDialog::FindDialog(QWidget* parent, const std::function<void(Direction)>& find)
    : QDialog(parent),
      text_(new QLineEdit(this)),
      matchesCase_(new QCheckBox(QStringLiteral("Match &case"), this)),
      wraps_(new QCheckBox(QStringLiteral("&Wrap around"), this)),
      message_(new QLabel(this)) {
    setWindowTitle(QStringLiteral("Find"));
    text_->setMinimumWidth(kFieldCharacters * fontMetrics().averageCharWidth());
    wraps_->setChecked(true);
    message_->setTextFormat(Qt::PlainText);
    auto* label = new QLabel(QStringLiteral("&Find what:"), this);
    label->setBuddy(text_);
    auto* buttons = new QDialogButtonBox(Qt::Vertical, this);
    auto* next = buttons->addButton(QStringLiteral("Find &Next"), QDialogButtonBox::ActionRole);
    auto* previous =
        buttons->addButton(QStringLiteral("Find &Previous"), QDialogButtonBox::ActionRole);
    buttons->addButton(QDialogButtonBox::Close);
    next->setDefault(true);

    auto* fields = new QVBoxLayout;
    for (QWidget* widget : std::initializer_list<QWidget*>{label, text_, matchesCase_, wraps_})
        fields->addWidget(widget);
    fields->addStretch();
    fields->addWidget(message_);
    auto* columns = new QHBoxLayout(this);
    columns->addLayout(fields);
    columns->addWidget(buttons);

    const auto enable = [next, previous](const QString& text) {
        next->setEnabled(!text.isEmpty());
        previous->setEnabled(!text.isEmpty());
    };
    enable(QString());
    connect(text_, &QLineEdit::textChanged, this, [this, enable](const QString& text) {
        message_->clear();
        enable(text);
    });
    connect(next, &QPushButton::clicked, this, [find] { find(Direction::kForward); });
    connect(previous, &QPushButton::clicked, this, [find] { find(Direction::kBackward); });
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
}

void FindDialog::Ask(const QString& text) {
    if (!text.isEmpty()) text_->setText(text);
    message_->clear();
    text_->selectAll();
    text_->setFocus();
    show();
    raise();
    activateWindow();
}

Search FindDialog::Wanted() const {
    return {text_->text(), matchesCase_->isChecked(), wraps_->isChecked()};
}

}  // namespace arbolith::notepad
