#include "forms/resize.h"

#include <algorithm>

namespace arbolith {

namespace {

// Added to a negative left edge, so that a control far to the left stays out of sight at any size.
constexpr std::int32_t kFarLeft = 75000;
// A form this far down is out of sight and is left alone.
constexpr std::int32_t kOutOfSight = 30000;
// What a window needs beyond its outermost controls.
constexpr int kMarginRight = 200;
constexpr int kMarginBelow = 500;

bool HasPlace(const Control& control) {
    return control.Kind() != ControlKind::kMenuItem && control.Kind() != ControlKind::kTimer;
}

std::int32_t IndexOf(const Control& control) {
    return std::max(0, control.Index());
}

// The smallest window that holds all controls and the margins.
Size ExtentOf(const Form& form) {
    Size extent;
    for (const Control* control : form.Controls()) {
        if (!HasPlace(*control)) continue;
        const auto& place = control->GetPlace();
        extent.width = std::max(extent.width, place.left + place.width + kMarginRight);
        extent.height = std::max(extent.height, place.top + place.height + kMarginBelow);
    }
    return extent;
}

std::int32_t Percent(std::int32_t now, std::int32_t stored) {
    return stored == 0 ? 100 : static_cast<std::int32_t>(std::int64_t{now} * 100 / stored);
}

std::int32_t Scaled(std::int32_t stored, std::int32_t percent) {
    return static_cast<std::int32_t>(std::int64_t{stored} * percent / 100);
}

}  // namespace

int Resize::FindFormIndex(const Form& form) const {
    const auto found = std::find_if(forms_.begin(), forms_.end(),
                                    [&](const FormLayout& f) { return f.Name == form.Name(); });
    return found == forms_.end() ? -1 : static_cast<int>(found - forms_.begin());
}

int Resize::FindControlIndex(const Control& control, const std::string& formName) const {
    const auto found =
        std::find_if(controls_.begin(), controls_.end(), [&](const ControlLayout& c) {
            return c.FormName == formName && c.Name == control.Name() &&
                   c.Index == IndexOf(control);
        });
    return found == controls_.end() ? -1 : static_cast<int>(found - controls_.begin());
}

int Resize::RegisterForm(const Form& form) {
    const auto& place = form.GetPlace();
    const auto size = form.ClientSize();
    forms_.push_back(
        {form.Name(), place.top, place.left, place.height, place.width, size.height, size.width});
    const int index = static_cast<int>(forms_.size()) - 1;
    for (const Control* control : form.Controls())
        if (HasPlace(*control) && FindControlIndex(*control, form.Name()) == -1)
            RegisterControl(*control, form.Name());
    return index;
}

int Resize::RegisterControl(const Control& control, const std::string& formName) {
    const auto& place = control.GetPlace();
    const auto left = place.left < 0 ? place.left + kFarLeft : place.left;
    controls_.push_back(
        {control.Name(), IndexOf(control), formName, place.top, left, place.height, place.width});
    return static_cast<int>(controls_.size()) - 1;
}

int Resize::WidthPercent(const Form& form) {
    int index = FindFormIndex(form);
    if (index == -1) index = RegisterForm(form);
    return Percent(form.ClientSize().width, forms_[static_cast<std::size_t>(index)].ScaleWidth);
}

int Resize::HeightPercent(const Form& form) {
    int index = FindFormIndex(form);
    if (index == -1) index = RegisterForm(form);
    return Percent(form.ClientSize().height, forms_[static_cast<std::size_t>(index)].ScaleHeight);
}

void Resize::ResizeControl(Control& control, const Form& form) {
    const auto width = WidthPercent(form);
    const auto height = HeightPercent(form);
    int index = FindControlIndex(control, form.Name());
    if (index == -1) index = RegisterControl(control, form.Name());
    const auto& stored = controls_[static_cast<std::size_t>(index)];
    auto left = Scaled(stored.Left, width);
    if (control.GetPlace().left < 0) left -= kFarLeft;
    control.SetPlace({left, Scaled(stored.Top, height), Scaled(stored.Width, width),
                      Scaled(stored.Height, height)});
}

void Resize::ResizeControls(const Form& form) {
    for (Control* control : form.Controls())
        if (HasPlace(*control)) ResizeControl(*control, form);
}

void Resize::ResizeForm(Form& form) {
    if (busy_) return;
    busy_ = true;
    const bool isNew = FindFormIndex(form) == -1;
    if (form.GetPlace().top < kOutOfSight) {
        const auto shown = form.ClientSize();
        const bool normal = form.State() == WindowState::kNormal;
        // A form first shown maximised takes its base from what its controls need.
        if (isNew && !normal) form.SetClientSize(ExtentOf(form));
        ResizeControls(form);
        if (isNew && form.State() != WindowState::kNormal) {
            form.SetClientSize(shown);
            ResizeControls(form);
        }
    }
    busy_ = false;
}

}  // namespace arbolith
