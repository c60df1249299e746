// A form: a window's controls, its own size and state, and which of its controls has the focus.
#pragma once

#include "forms/control.h"
#include "platform/host.h"

#include <string>
#include <string_view>
#include <vector>

namespace arbolith {

enum class WindowState { kNormal = 0, kMinimised = 1, kMaximised = 2 };
enum class MousePointer { kDefault = 0, kHourglass = 11 };

/// One form. It is created at its first use, hidden and shown after that, and lives to the end of
/// the program. The caption is the window's title; the place is the window's on the screen.
class Form : public Control {
public:
    /// Client area in twips.
    Form(Application& application, std::string name, std::string caption, Size clientSize);
    ~Form() override;

    Application& GetApplication() const { return application_; }

    /// All controls in the order of their making, which is the tab order.
    const std::vector<Control*>& Controls() const { return controls_; }
    /// The control of a name (and index, -1 for none); null where there is none.
    Control* Find(std::string_view name, int index = -1) const;

    /// Shows the form and makes it the active one. The first showing raises the resize event.
    void Show();
    void Hide();
    /// Brings a visible form's window before the others and makes the form the active one.
    void BringToTop();

    Size ClientSize() const { return clientSize_; }
    /// A new client area; raises the resize event where it changes.
    void SetClientSize(Size size);
    WindowState State() const { return state_; }
    void SetState(WindowState state);
    /// Whether its window stays above all others.
    bool Topmost() const { return topmost_; }
    void SetTopmost(bool topmost);
    MousePointer Pointer() const { return pointer_; }
    void SetPointer(MousePointer pointer);

    /// The control that has the focus while this form is active; null for none.
    Control* FocusControl() const { return focus_; }

    /// How often the form was brought to sight; the view raises the window when it grows.
    int TimesShown() const { return timesShown_; }

    Handler onResize;
    Handler onActivate;
    /// The close box; without a handler it hides the form.
    Handler onClose;

private:
    friend class Control;
    friend class Application;
    void Add(Control& control);

    Application& application_;
    std::vector<Control*> controls_;
    Size clientSize_;
    WindowState state_ = WindowState::kNormal;
    MousePointer pointer_ = MousePointer::kDefault;
    Control* focus_ = nullptr;
    bool topmost_ = false;
    int timesShown_ = 0;
};

}  // namespace arbolith
