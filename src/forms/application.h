// The running program as its forms see it: which forms there are, where the focus is, how an event
// enters, and how the program ends.
#pragma once

#include "forms/form.h"
#include "platform/host.h"
#include "platform/numbered_files.h"

#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace arbolith {

class Chart;

/// Unwinds a wait when the program has ended meanwhile. No error trap catches it; only the entry of
/// an event does.
struct ProgramEnded {};

class Application {
public:
    /// `folder` is the application folder, without a separator at its end; `commandLine` is the raw
    /// text behind the program's name.
    Application(Host& host, std::string folder, std::string commandLine);
    Application(const Application&) = delete;
    Application& operator=(const Application&) = delete;

    Host& GetHost() const { return host_; }
    NumberedFiles& Files() { return files_; }
    const std::string& Folder() const { return folder_; }
    const std::string& CommandLine() const { return commandLine_; }
    /// The full path of a file in the application folder.
    std::string PathOf(const std::string& fileName) const;

    /// The one entry for everything that a person or a timer does. A run-time error that escapes is
    /// shown in a box; afterwards the focus is settled.
    void Enter(const std::function<void()>& event);
    /// Shows a box. True for OK and Yes.
    bool ShowBox(const std::string& text, const std::string& title = "",
                 BoxIcon icon = BoxIcon::kNone, BoxButtons buttons = BoxButtons::kOk);

    /// Ends the program: all forms go, nothing is asked.
    void End();
    bool HasEnded() const { return ended_; }
    /// Throws ProgramEnded once the program has ended; called behind every wait.
    void UnwindIfEnded() const;

    /// The forms that were created, in the order of their making.
    const std::vector<Form*>& Forms() const { return forms_; }
    /// The forms that were shown at least once, in the order of their first showing.
    const std::vector<Form*>& FormsByFirstShowing() const { return shown_; }
    Form* ActiveForm() const { return active_; }
    /// The control that has the focus: that of the active form, null for none.
    Control* Focused() const;
    /// Makes a visible form the active one, with the focus events of the two forms' controls and
    /// its activate event.
    void Activate(Form& form);
    /// Moves the focus to a control that is showing and enabled, with the events of both;
    /// otherwise, and where it has the focus already, does nothing.
    void SetFocus(Control& control);
    /// The next (or previous) control in the tab order that can take the focus; null for none. Of
    /// the options in one frame only the one that is on counts.
    static Control* NextInTabOrder(const Control& from, bool forward);
    /// The first control of a form that can take the focus; null for none.
    static Control* FirstInTabOrder(const Form& form);

    bool EventsHeldBack() const { return heldBack_ > 0; }

    /// The controls whose state changed since the views last took them.
    std::vector<Control*> TakeTouched();
    bool HasTouched() const { return !touched_.empty(); }
    /// Called behind every event, when the views may show the new states.
    Handler onSettled;

    /// Draws a chart as it stands on a sheet of a size in twips. The windows bring their own; where
    /// nothing draws, the sheet stays blank.
    std::function<std::shared_ptr<const Drawing>(const Chart& chart, Size size)> drawChart =
        [](const Chart&, Size size) { return std::make_shared<const BlankDrawing>(size); };

private:
    friend class Control;
    friend class Form;
    friend class HeldBackEvents;
    void Add(Form& form);
    void Remove(Form& form);
    void Touch(Control& control);
    void Forget(Control& control);
    void Attempt(const std::function<void()>& work);
    void Deactivate(Form& form);
    static void GiveFocus(Control& control);
    void SettleFocus();
    void ReportError(const std::string& number, const std::string& name);

    Host& host_;
    NumberedFiles files_;
    std::string folder_;
    std::string commandLine_;
    std::vector<Form*> forms_;
    std::vector<Form*> shown_;
    std::vector<Form*> activeBefore_;
    Form* active_ = nullptr;
    std::vector<Control*> touched_;
    int heldBack_ = 0;
    bool ended_ = false;
};

/// While one of these lives no event is raised.
class HeldBackEvents {
public:
    explicit HeldBackEvents(Application& application) : application_(application) {
        ++application_.heldBack_;
    }
    ~HeldBackEvents() { --application_.heldBack_; }
    HeldBackEvents(const HeldBackEvents&) = delete;
    HeldBackEvents& operator=(const HeldBackEvents&) = delete;

private:
    Application& application_;
};

}  // namespace arbolith
