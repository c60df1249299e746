#include "qt/window_manager.h"

#include "qt/accessibility.h"
#include "qt/chart_drawing.h"
#include "qt/form_window.h"

#include <QApplication>

#include <algorithm>
#include <utility>

namespace arbolith {

WindowManager::OwnBox::OwnBox(WindowManager* manager) : manager_(manager) {
    if (manager_ == nullptr) return;
    manager_->Flush();
    ++manager_->ownBoxes_;
}

WindowManager::OwnBox::~OwnBox() {
    if (manager_ == nullptr || --manager_->ownBoxes_ > 0) return;
    manager_->boxJustClosed_ = dynamic_cast<FormWindow*>(QApplication::activeWindow()) == nullptr;
}

WindowManager::WindowManager(Application& application, bool manualTimers)
    : application_(application),
      manualTimers_(manualTimers),
      context_(std::make_unique<QObject>()) {
    application_.onSettled = [this] { Flush(); };
    application_.drawChart = DrawChart;
    TellAssistiveTechnology();
    if (!manualTimers_) WatchComingBack();
}

WindowManager::~WindowManager() {
    application_.onSettled = nullptr;
    for (const Entry& entry : entries_) {
        entry.window->Retire();
        delete entry.window;
    }
}

void WindowManager::WhileFlushing(const std::function<void()>& refresh) {
    ++flushing_;
    refresh();
    --flushing_;
}

void WindowManager::Flush() {
    if (IsFlushing()) return;
    WhileFlushing([this] {
        RetireLost();
        while (application_.HasTouched()) RefreshTouched();
        ShowActive();
    });
    ShowFocus();
}

// Contents come before windows, and windows that open before those that close, so that nothing is
// seen half done.
void WindowManager::RefreshTouched() {
    const auto touched = application_.TakeTouched();
    for (const Control* control : touched) {
        if (control->Kind() == ControlKind::kForm) continue;
        if (FormWindow* window = WindowOf(control->Owner())) window->Refresh(*control);
    }
    RefreshForms(touched, true);
    RefreshForms(touched, false);
}

void WindowManager::RefreshForms(const std::vector<Control*>& touched, bool visible) {
    for (Control* control : touched) {
        if (control->Kind() != ControlKind::kForm || control->Visible() != visible) continue;
        auto& form = static_cast<Form&>(*control);
        FormWindow* window = WindowOf(form);
        if (window == nullptr && visible) window = &Build(form);
        if (window != nullptr) window->Refresh(form);
    }
}

FormWindow& WindowManager::Build(Form& form) {
    auto* window = new FormWindow(form, *this);
    entries_.push_back({&form, window, 0});
    return *window;
}

// Windows of forms that were unloaded.
void WindowManager::RetireLost() {
    const auto& forms = application_.Forms();
    std::erase_if(entries_, [&](const Entry& entry) {
        if (std::find(forms.begin(), forms.end(), entry.form) != forms.end()) return false;
        entry.window->Retire();
        // One of its widgets may have raised the event that this is the end of.
        entry.window->deleteLater();
        return true;
    });
}

WindowManager::Entry* WindowManager::EntryOf(const Form& form) {
    const auto found = std::find_if(entries_.begin(), entries_.end(),
                                    [&](const Entry& entry) { return entry.form == &form; });
    return found == entries_.end() ? nullptr : &*found;
}

FormWindow* WindowManager::WindowOf(const Form& form) const {
    const auto found = std::find_if(entries_.begin(), entries_.end(),
                                    [&](const Entry& entry) { return entry.form == &form; });
    return found == entries_.end() ? nullptr : found->window;
}

std::vector<FormWindow*> WindowManager::OpenWindows() const {
    std::vector<FormWindow*> open;
    for (const Entry& entry : entries_)
        if (entry.form->Visible()) open.push_back(entry.window);
    return open;
}

bool WindowManager::HasTopmost() const {
    return std::any_of(entries_.begin(), entries_.end(), [](const Entry& entry) {
        return entry.form->Visible() && entry.form->Topmost();
    });
}

// Brings the active form's window to the front when the form was shown anew or became active.
void WindowManager::ShowActive() {
    const Form* active = application_.ActiveForm();
    const bool isOther = std::exchange(shownActive_, active) != active;
    Entry* entry = active == nullptr ? nullptr : EntryOf(*active);
    if (entry == nullptr) return;
    const bool isShownAnew =
        std::exchange(entry->timesShown, active->TimesShown()) != active->TimesShown();
    FormWindow* window = entry->window;
    if (isShownAnew)
        std::rotate(entries_.begin() + (entry - entries_.data()),
                    entries_.begin() + (entry - entries_.data()) + 1, entries_.end());
    if (isShownAnew || (isOther && !window->isActiveWindow())) window->BringToFront();
}

void WindowManager::ShowFocus() {
    const Form* active = application_.ActiveForm();
    FormWindow* window = active == nullptr ? nullptr : WindowOf(*active);
    // A menu or box has the keys for now and gives them back when it closes.
    if (window == nullptr || QApplication::activePopupWidget() != nullptr ||
        QApplication::activeModalWidget() != nullptr)
        return;
    WhileFlushing([&] { window->ShowFocus(application_.Focused()); });
}

void WindowManager::ShowFocusLater() {
    QMetaObject::invokeMethod(
        context_.get(), [this] { ShowFocus(); }, Qt::QueuedConnection);
}

void WindowManager::WindowActivated(FormWindow& window) {
    boxJustClosed_ = false;
    if (&window.GetForm() == application_.ActiveForm()) return;
    if (!IsFlushing()) {
        window.Perform([&](UserActions& actions) { actions.Activate(window.GetForm()); });
        return;
    }
    // Most often the state is about to say the same; where it doesn't, the person has the last
    // word.
    QMetaObject::invokeMethod(
        &window,
        [this, &window] {
            if (window.isActiveWindow()) WindowActivated(window);
        },
        Qt::QueuedConnection);
}

void WindowManager::WatchComingBack() {
    const auto changed = [this](Qt::ApplicationState state) {
        if (state == Qt::ApplicationInactive) {
            leftFrom_ = ownBoxes_ > 0 || boxJustClosed_ ? nullptr : application_.ActiveForm();
        } else if (state == Qt::ApplicationActive) {
            // Once it is known to which window the person came back.
            QMetaObject::invokeMethod(
                context_.get(), [this] { CameBack(); }, Qt::QueuedConnection);
        }
    };
    QObject::connect(qApp, &QGuiApplication::applicationStateChanged, context_.get(), changed);
}

void WindowManager::CameBack() {
    const Form* left = std::exchange(leftFrom_, nullptr);
    Form* active = application_.ActiveForm();
    if (left == nullptr || left != active || ownBoxes_ > 0) return;
    if (FormWindow* window = WindowOf(*active))
        window->Perform([&](UserActions& actions) { actions.ComeBack(*active); });
}

}  // namespace arbolith
