#include "forms/control.h"

#include "forms/application.h"
#include "forms/form.h"

#include <utility>

namespace arbolith {

Control::Control(ControlKind kind, Control& parent, std::string name, std::string caption,
                 Place place)
    : kind_(kind),
      name_(std::move(name)),
      parent_(&parent),
      form_(&parent.Owner()),
      caption_(std::move(caption)),
      place_(place) {
    form_->Add(*this);
}

Control::Control(Form& itself, std::string name, std::string caption, Place place)
    : kind_(ControlKind::kForm),
      name_(std::move(name)),
      parent_(this),
      form_(&itself),
      caption_(std::move(caption)),
      place_(place),
      visible_(false) {}

Control::~Control() {
    // A form takes itself out: its application is out of reach by now.
    if (kind_ != ControlKind::kForm) App().Forget(*this);
}

Application& Control::App() const {
    return form_->GetApplication();
}

void Control::Touch() {
    App().Touch(*this);
}

void Control::Raise(const Handler& handler) const {
    if (handler && !App().EventsHeldBack()) handler();
}

void Control::SetCaption(const std::string& caption) {
    if (caption_ == caption) return;
    caption_ = caption;
    Touch();
    if (kind_ == ControlKind::kLabel) Raise(onChange);
}

void Control::SetVisible(bool visible) {
    if (visible_ == visible) return;
    visible_ = visible;
    Touch();
}

void Control::SetEnabled(bool enabled) {
    if (enabled_ == enabled) return;
    enabled_ = enabled;
    Touch();
}

void Control::SetBackColor(Colour colour) {
    if (backColor_ == colour) return;
    backColor_ = colour;
    Touch();
}

void Control::SetTag(const std::string& tag) {
    tag_ = tag;
}

void Control::SetPlace(const Place& place) {
    if (place_ == place) return;
    place_ = place;
    Touch();
}

bool Control::Showing() const {
    if (!visible_) return false;
    return kind_ == ControlKind::kForm || parent_->Showing();
}

bool Control::Usable() const {
    if (!visible_ || !enabled_) return false;
    return kind_ == ControlKind::kForm || parent_->Usable();
}

bool Control::TakesFocus() const {
    switch (kind_) {
        case ControlKind::kButton:
        case ControlKind::kOption:
        case ControlKind::kCheckBox:
        case ControlKind::kTextBox:
        case ControlKind::kListBox:
        case ControlKind::kComboBox:
        case ControlKind::kGrid:
            return true;
        default:
            return false;
    }
}

bool Control::HasFocus() const {
    return App().Focused() == this;
}

}  // namespace arbolith
