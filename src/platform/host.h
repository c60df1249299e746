// The narrow door to the outside world: boxes, dialogs, sounds, the clipboard, started programs and
// the screen. The windows, the console and the tests each bring their own.
#pragma once

#include "platform/process.h"

#include <functional>
#include <memory>
#include <optional>
#include <string>

namespace arbolith {

enum class BoxIcon { kNone, kExclamation, kStop };
enum class BoxButtons { kOk, kYesNo };

/// A message box. Lines of the text are parted by one line feed.
struct Box {
    std::string text;
    std::string title;
    BoxIcon icon = BoxIcon::kNone;
    BoxButtons buttons = BoxButtons::kOk;
};

/// A size in twips, 15 to the pixel.
struct Size {
    int width = 0;
    int height = 0;
};

/// Everything that the forms ask of the machine they run on. All calls come on the one thread.
/// Where forms are shown on a screen, the host shows them as their states stand at each of these
/// calls.
class Host {
public:
    virtual ~Host() = default;

    /// Shows a box until it is answered. True for OK and Yes.
    virtual bool ShowBox(const Box& box) = 0;

    virtual void Beep() = 0;

    virtual void SetClipboardText(const std::string& text) = 0;
    virtual std::string ClipboardText() = 0;

    /// Starts a program; null where it can't be started.
    virtual std::unique_ptr<Process> Start(const ProgramStart& start) = 0;

    /// Returns when the process has ended or `giveUp` says so. Meanwhile the person's events flow,
    /// and `giveUp` is asked after each; nothing is polled.
    virtual void WaitForEnd(Process& process, const std::function<bool()>& giveUp) = 0;

    /// The size of the screen.
    virtual Size ScreenSize() = 0;

    /// The program has ended: waits give up and the host's own event loop ends.
    virtual void EndProgram() = 0;
};

}  // namespace arbolith
