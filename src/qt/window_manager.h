// Keeps the windows in step with the forms: makes each form's window when it first shows, refreshes
// what has changed behind every event, and tells the forms which window the person turns to.
#pragma once

#include "forms/application.h"

#include <QPointer>

#include <functional>
#include <memory>
#include <vector>

namespace arbolith {

class FormWindow;

class WindowManager {
public:
    /// Follows the application from here on; it must live longer. With manual timers, as scripts
    /// need them, the forms' timers never fire by themselves, and nobody leaves and comes back.
    explicit WindowManager(Application& application, bool manualTimers = false);
    ~WindowManager();
    WindowManager(const WindowManager&) = delete;
    WindowManager& operator=(const WindowManager&) = delete;

    Application& GetApplication() const { return application_; }
    bool HasManualTimers() const { return manualTimers_; }

    /// Brings all windows to the states as they stand. Done by itself behind every event; a host
    /// calls it before it shows something or waits.
    void Flush();
    /// Whether states are being shown, so that what widgets say is no person's doing.
    bool IsFlushing() const { return flushing_ > 0; }
    /// Runs `refresh` as part of showing states.
    void WhileFlushing(const std::function<void()>& refresh);

    /// Null until the form first shows.
    FormWindow* WindowOf(const Form& form) const;
    /// The windows that are open, in the order of their last showing.
    std::vector<FormWindow*> OpenWindows() const;

    /// Whether an open window stays above all others.
    bool HasTopmost() const;

    /// Puts the keyboard focus where the state has it.
    void ShowFocus();
    /// The same when the events at hand are through.
    void ShowFocusLater();
    /// The person has turned to a window.
    void WindowActivated(FormWindow& window);

    /// While one of these lives, a box or dialog of the program's own is up: that windows lose and
    /// get back the focus on its account is no leaving and coming back.
    class OwnBox {
    public:
        explicit OwnBox(WindowManager* manager);
        ~OwnBox();
        OwnBox(const OwnBox&) = delete;
        OwnBox& operator=(const OwnBox&) = delete;

    private:
        WindowManager* manager_;
    };

private:
    struct Entry {
        const Form* form;
        FormWindow* window;
        int timesShown;
    };

    void RefreshTouched();
    void RefreshForms(const std::vector<Control*>& touched, bool visible);
    void RetireLost();
    void ShowActive();
    Entry* EntryOf(const Form& form);
    FormWindow& Build(Form& form);
    void WatchComingBack();
    void CameBack();

    Application& application_;
    bool manualTimers_;
    int flushing_ = 0;
    std::vector<Entry> entries_;
    const Form* shownActive_ = nullptr;
    const Form* leftFrom_ = nullptr;
    int ownBoxes_ = 0;
    bool boxJustClosed_ = false;
    std::unique_ptr<QObject> context_;
};

}  // namespace arbolith
