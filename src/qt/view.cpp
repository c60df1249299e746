#include "qt/view.h"

#include "qt/accessible_names.h"
#include "qt/form_window.h"
#include "qt/keys.h"
#include "qt/texts.h"

namespace arbolith {

namespace {

// The top bit marks a colour of the desktop's.
bool IsSystemColour(Colour colour) {
    return (colour & 0x80000000) != 0;
}

}  // namespace

QColor ColourOf(Colour colour) {
    const auto byte = [&](int shift) { return static_cast<int>((colour >> shift) & 0xFF); };
    return {byte(0), byte(8), byte(16)};
}

QString ObjectNameOf(const Control& control) {
    QString name = ToQString(control.Name());
    if (control.Index() >= 0) name += QStringLiteral("(%1)").arg(control.Index());
    return name;
}

View::View(Control& control, FormWindow& window, QWidget* widget)
    : control_(control), window_(window), widget_(widget) {}

bool View::Perform(const std::function<void(UserActions&)>& action) {
    return window_.Perform(action);
}

void View::ShowState() {
    window_.Update(*this);
}

void View::Press() {
    Perform([this](UserActions& actions) { actions.Click(control_); });
}

void View::PassMouse(QMouseEvent& event) {
    event.setAccepted(!window_.IsGone() && (control_.onClick || control_.onDoubleClick));
    if (!event.isAccepted() || event.button() != Qt::LeftButton) return;
    if (event.type() == QEvent::MouseButtonDblClick)
        Perform([this](UserActions& actions) { actions.DoubleClick(control_); });
    if (event.type() == QEvent::MouseButtonRelease && widget_->rect().contains(event.pos()))
        Perform([this](UserActions& actions) { actions.Click(control_); });
}

bool View::PassKey(const QKeyEvent& event) {
    const auto key = KeyOf(event);
    if (!key || key->name == Key::kTab || key->name == Key::kBackTab) return false;
    Perform([&](UserActions& actions) { actions.Press(control_, *key); });
    return true;
}

QRect View::ShownPlace() const {
    return window_.GetScale().Pixels(control_.GetPlace());
}

void View::RefreshWidget() {
    const QRect place = ShownPlace();
    if (widget_->geometry() != place) widget_->setGeometry(place);
    if (widget_->isEnabledTo(widget_->parentWidget()) != control_.Enabled())
        widget_->setEnabled(control_.Enabled());
    const QString name = AccessibleNameOf(control_);
    if (widget_->accessibleName() != name) widget_->setAccessibleName(name);
    if (widget_->isHidden() == control_.Visible()) widget_->setVisible(control_.Visible());
}

void View::RefreshBackColor(QPalette::ColorRole background, QPalette::ColorRole text) {
    const Colour colour = control_.BackColor();
    if (colour == shownColour_) return;
    shownColour_ = colour;
    if (IsSystemColour(colour)) {
        widget_->setPalette({});
        widget_->setAutoFillBackground(false);
        return;
    }
    QPalette palette;
    palette.setColor(background, ColourOf(colour));
    palette.setColor(QPalette::Active, text, Qt::black);
    palette.setColor(QPalette::Inactive, text, Qt::black);
    widget_->setPalette(palette);
    widget_->setAutoFillBackground(true);
}

}  // namespace arbolith
