#include "forms/controls.h"

#include "platform/runtime_error.h"

#include <algorithm>
#include <utility>

namespace arbolith {

Frame::Frame(Control& parent, std::string name, std::string caption, Place place)
    : Control(ControlKind::kFrame, parent, std::move(name), std::move(caption), place) {}

Label::Label(Control& parent, std::string name, std::string caption, Place place)
    : Label(parent, std::move(name), std::move(caption), place, Look{}) {}

Label::Label(Control& parent, std::string name, std::string caption, Place place, Look look)
    : Control(ControlKind::kLabel, parent, std::move(name), std::move(caption), place),
      look_(std::move(look)) {}

Button::Button(Control& parent, std::string name, std::string caption, Place place)
    : Control(ControlKind::kButton, parent, std::move(name), std::move(caption), place) {}

void Button::SetMarked(bool marked) {
    if (marked_ == marked) return;
    marked_ = marked;
    Touch();
}

Option::Option(Control& parent, std::string name, std::string caption, Place place)
    : Control(ControlKind::kOption, parent, std::move(name), std::move(caption), place) {}

void Option::SetValue(bool value) {
    if (value_ == value) return;
    value_ = value;
    Touch();
    if (value) Raise(onClick);
}

CheckBox::CheckBox(Control& parent, std::string name, std::string caption, Place place)
    : Control(ControlKind::kCheckBox, parent, std::move(name), std::move(caption), place) {}

void CheckBox::SetValue(bool value) {
    if (value_ == value) return;
    value_ = value;
    Touch();
    Raise(onClick);
}

TextBox::TextBox(Control& parent, std::string name, Place place, std::size_t maxLength)
    : Control(ControlKind::kTextBox, parent, std::move(name), "", place), maxLength_(maxLength) {}

void TextBox::SetText(const std::string& text) {
    if (text_ == text) return;
    text_ = text;
    selStart_ = 0;
    selLength_ = 0;
    Touch();
    Raise(onChange);
}

void TextBox::Select(std::size_t start, std::size_t length) {
    start = std::min(start, text_.size());
    length = std::min(length, text_.size() - start);
    if (start == selStart_ && length == selLength_) return;
    selStart_ = start;
    selLength_ = length;
    Touch();
}

void TextBox::EditByPerson(std::string text, std::size_t caret) {
    if (maxLength_ != 0 && text.size() > maxLength_) {
        const auto excess = text.size() - maxLength_;
        const auto fromCaret = std::min(caret, excess);
        text.erase(caret - fromCaret, fromCaret);
        text.resize(std::min(text.size(), maxLength_));
        caret -= fromCaret;
    }
    const bool changed = text != text_;
    text_ = std::move(text);
    selStart_ = std::min(caret, text_.size());
    selLength_ = 0;
    Touch();
    if (changed) Raise(onChange);
}

bool TextBox::HasRoomForKey() const {
    return maxLength_ == 0 || text_.size() - selLength_ < maxLength_;
}

ListBox::ListBox(Control& parent, std::string name, Place place)
    : ListBox(parent, std::move(name), place, Look{}) {}

ListBox::ListBox(Control& parent, std::string name, Place place, Look look)
    : ListBox(ControlKind::kListBox, parent, std::move(name), place) {
    look_ = std::move(look);
}

ListBox::ListBox(ControlKind kind, Control& parent, std::string name, Place place)
    : Control(kind, parent, std::move(name), "", place) {}

void ListBox::SetListIndex(int index) {
    if (index < -1 || index >= ListCount()) throw RuntimeError(ErrorNumber::kInvalidCall);
    if (index == index_) return;
    index_ = index;
    Touch();
    if (index != -1) Raise(onClick);
}

std::string ListBox::Text() const {
    return index_ == -1 ? std::string{} : rows_[static_cast<std::size_t>(index_)];
}

void ListBox::AddItem(const std::string& text) {
    rows_.push_back(text);
    Touch();
}

void ListBox::RemoveItem(int index) {
    if (index < 0 || index >= ListCount()) throw RuntimeError(ErrorNumber::kInvalidCall);
    rows_.erase(rows_.begin() + index);
    if (index == index_) {
        index_ = -1;
    } else if (index < index_) {
        --index_;
    }
    Touch();
}

void ListBox::ReplaceItem(int index, const std::string& text) {
    if (index < 0 || index >= ListCount()) throw RuntimeError(ErrorNumber::kInvalidCall);
    rows_[static_cast<std::size_t>(index)] = text;
    Touch();
}

void ListBox::Clear() {
    rows_.clear();
    index_ = -1;
    Touch();
}

ComboBox::ComboBox(Control& parent, std::string name, Place place)
    : ListBox(ControlKind::kComboBox, parent, std::move(name), place) {}

MenuItem::MenuItem(Control& parent, std::string name, std::string caption, std::string shortcut)
    : Control(ControlKind::kMenuItem, parent, std::move(name), std::move(caption), {}),
      shortcut_(std::move(shortcut)) {}

void MenuItem::SetChecked(bool checked) {
    if (checked_ == checked) return;
    checked_ = checked;
    Touch();
}

Timer::Timer(Control& parent, std::string name, int interval)
    : Control(ControlKind::kTimer, parent, std::move(name), "", {}), interval_(interval) {}

void Timer::SetInterval(int interval) {
    interval_ = interval;
    Touch();
}

ProgressBar::ProgressBar(Control& parent, std::string name, Place place, int max)
    : Control(ControlKind::kProgressBar, parent, std::move(name), "", place), max_(max) {}

void ProgressBar::SetMax(int max) {
    max_ = max;
    Touch();
}

void ProgressBar::SetValue(double value) {
    if (value_ == value) return;
    value_ = value;
    Touch();
}

Picture::Picture(Control& parent, std::string name, std::string caption, Place place)
    : Control(ControlKind::kPicture, parent, std::move(name), std::move(caption), place) {}

}  // namespace arbolith
