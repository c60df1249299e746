#include "forms/form.h"

#include "forms/application.h"

#include <algorithm>
#include <utility>

namespace arbolith {

Form::Form(Application& application, std::string name, std::string caption, Size clientSize)
    : Control(*this, std::move(name), std::move(caption),
              {0, 0, clientSize.width, clientSize.height}),
      application_(application),
      clientSize_(clientSize) {
    application_.Add(*this);
}

Form::~Form() {
    application_.Remove(*this);
}

void Form::Add(Control& control) {
    controls_.push_back(&control);
}

Control* Form::Find(std::string_view name, int index) const {
    const auto found = std::find_if(controls_.begin(), controls_.end(), [&](const Control* c) {
        return c->Name() == name && c->Index() == index;
    });
    return found == controls_.end() ? nullptr : *found;
}

void Form::Show() {
    if (!Visible()) {
        SetVisible(true);
        if (++timesShown_ == 1) {
            application_.shown_.push_back(this);
            Raise(onResize);
        }
    }
    application_.Activate(*this);
}

void Form::Hide() {
    if (!Visible()) return;
    SetVisible(false);
    application_.Deactivate(*this);
}

void Form::BringToTop() {
    if (!Visible()) return;
    ++timesShown_;
    Touch();
    application_.Activate(*this);
}

void Form::SetClientSize(Size size) {
    if (clientSize_.width == size.width && clientSize_.height == size.height) return;
    auto place = GetPlace();
    place.width += size.width - clientSize_.width;
    place.height += size.height - clientSize_.height;
    clientSize_ = size;
    SetPlace(place);
    Touch();
    Raise(onResize);
}

void Form::SetState(WindowState state) {
    if (state_ == state) return;
    state_ = state;
    Touch();
}

void Form::SetTopmost(bool topmost) {
    if (topmost_ == topmost) return;
    topmost_ = topmost;
    Touch();
}

void Form::SetPointer(MousePointer pointer) {
    if (pointer_ == pointer) return;
    pointer_ = pointer;
    Touch();
}

}  // namespace arbolith
