#include "forms/application.h"

#include "forms/controls.h"
#include "platform/runtime_error.h"

#include <algorithm>
#include <filesystem>
#include <new>
#include <utility>

namespace arbolith {

namespace {

bool IsUsableOptionOf(const Control& control, const Control& frame) {
    return control.Kind() == ControlKind::kOption && &control.Parent() == &frame &&
           control.Usable();
}

// Of the options in one frame only the one that is on is a stop of the Tab key, as on any desktop:
// the arrow keys go to the others. From one of them Tab leaves the frame's options altogether.
bool IsLeftToArrowKeys(const Control& control, const Control& from) {
    if (control.Kind() != ControlKind::kOption) return false;
    if (IsUsableOptionOf(from, control.Parent())) return true;
    if (static_cast<const Option&>(control).Value()) return false;
    const auto& controls = control.Owner().Controls();
    return std::any_of(controls.begin(), controls.end(), [&](const Control* other) {
        return IsUsableOptionOf(*other, control.Parent()) &&
               static_cast<const Option*>(other)->Value();
    });
}

}  // namespace

Application::Application(Host& host, std::string folder, std::string commandLine)
    : host_(host), folder_(std::move(folder)), commandLine_(std::move(commandLine)) {}

std::string Application::PathOf(const std::string& fileName) const {
    return folder_ + static_cast<char>(std::filesystem::path::preferred_separator) + fileName;
}

void Application::Enter(const std::function<void()>& event) {
    if (ended_) return;
    Attempt(event);
    Attempt([this] { SettleFocus(); });
    if (onSettled) onSettled();
}

void Application::Attempt(const std::function<void()>& work) {
    try {
        work();
    } catch (const ProgramEnded&) {
        // Nothing is left to do: the forms are gone.
    } catch (const RuntimeError& error) {
        ReportError(std::to_string(static_cast<int>(error.Number())), error.what());
    } catch (const std::bad_alloc&) {
        const auto number = ErrorNumber::kOutOfMemory;
        ReportError(std::to_string(static_cast<int>(number)), ErrorName(number));
    }
}

void Application::ReportError(const std::string& number, const std::string& name) {
    ShowBox("Run-time error '" + number + "':\n" + name, "", BoxIcon::kStop);
}

bool Application::ShowBox(const std::string& text, const std::string& title, BoxIcon icon,
                          BoxButtons buttons) {
    const bool answer = host_.ShowBox({text, title, icon, buttons});
    return answer;
}

void Application::End() {
    if (ended_) return;
    ended_ = true;
    active_ = nullptr;
    for (Form* form : forms_) form->SetVisible(false);
    host_.EndProgram();
}

void Application::UnwindIfEnded() const {
    if (ended_) throw ProgramEnded{};
}

void Application::Add(Form& form) {
    forms_.push_back(&form);
}

void Application::Remove(Form& form) {
    std::erase(forms_, &form);
    std::erase(shown_, &form);
    std::erase(activeBefore_, &form);
    Forget(form);
    if (active_ == &form) active_ = nullptr;
}

void Application::Forget(Control& control) {
    std::erase(touched_, &control);
}

void Application::Touch(Control& control) {
    if (control.touched_) return;
    control.touched_ = true;
    touched_.push_back(&control);
}

std::vector<Control*> Application::TakeTouched() {
    auto taken = std::exchange(touched_, {});
    for (Control* control : taken) control->touched_ = false;
    return taken;
}

Control* Application::Focused() const {
    return active_ == nullptr ? nullptr : active_->focus_;
}

void Application::Activate(Form& form) {
    if (ended_ || active_ == &form || !form.Visible()) return;
    if (Control* before = Focused()) {
        before->Raise(before->onLostFocus);
        before->Touch();
    }
    if (active_ != nullptr) activeBefore_.push_back(active_);
    std::erase(activeBefore_, &form);
    active_ = &form;
    form.Raise(form.onActivate);
    if (form.focus_ == nullptr) form.focus_ = FirstInTabOrder(form);
    if (Control* now = Focused()) GiveFocus(*now);
}

void Application::Deactivate(Form& form) {
    std::erase(activeBefore_, &form);
    if (active_ != &form) return;
    if (Control* before = form.focus_) before->Raise(before->onLostFocus);
    active_ = nullptr;
    if (activeBefore_.empty()) return;
    Form* last = activeBefore_.back();
    activeBefore_.pop_back();
    Activate(*last);
}

void Application::SetFocus(Control& control) {
    if (!control.TakesFocus() || !control.Usable()) return;
    Form& form = control.Owner();
    Control* before = form.focus_;
    if (before == &control) return;
    form.focus_ = &control;
    control.Touch();
    if (active_ != &form) return;
    if (before != nullptr) before->Raise(before->onLostFocus);
    if (form.focus_ == &control) GiveFocus(control);
}

void Application::GiveFocus(Control& control) {
    control.Touch();
    if (control.Kind() == ControlKind::kTextBox) {
        auto& box = static_cast<TextBox&>(control);
        if (box.SelectsAllOnFocus()) box.SelectAll();
    }
    control.Raise(control.onGotFocus);
}

Control* Application::NextInTabOrder(const Control& from, bool forward) {
    const auto& controls = from.Owner().Controls();
    const auto count = controls.size();
    const auto start = static_cast<std::size_t>(std::find(controls.begin(), controls.end(), &from) -
                                                controls.begin());
    for (std::size_t step = 1; step < count; ++step) {
        Control* next = controls[(forward ? start + step : start + count - step) % count];
        if (next->TakesFocus() && next->Usable() && !IsLeftToArrowKeys(*next, from)) return next;
    }
    return nullptr;
}

Control* Application::FirstInTabOrder(const Form& form) {
    const auto& controls = form.Controls();
    const auto first = std::find_if(controls.begin(), controls.end(), [](const Control* control) {
        return control->TakesFocus() && control->Usable();
    });
    return first == controls.end() ? nullptr : *first;
}

// A control that was hidden or disabled while it had the focus passes it on to the next one.
void Application::SettleFocus() {
    Control* focused = Focused();
    if (focused == nullptr || focused->Usable()) return;
    if (Control* next = NextInTabOrder(*focused, true)) {
        SetFocus(*next);
        return;
    }
    active_->focus_ = nullptr;
    focused->Raise(focused->onLostFocus);
}

}  // namespace arbolith
