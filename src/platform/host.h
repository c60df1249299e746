// The narrow door to the outside world: boxes, dialogs, sounds, the clipboard, started programs and
// the screen. The windows, the console and the tests each bring their own.
#pragma once

#include "platform/drawing.h"
#include "platform/process.h"
#include "platform/size.h"

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

/// What a dialog that asks for a file's name starts from.
struct FileQuestion {
    bool saves = false;
    std::string filter;    ///< Descriptions and patterns in turn, parted by "|".
    int filterIndex = 1;   ///< The pair of the filter that is chosen at first, from 1.
    std::string folder;    ///< Where it starts; empty for wherever it was last.
    std::string fileName;  ///< What it proposes.
    bool mustExist = false;
    bool asksBeforeOverwriting = false;
};

struct FileChoice {
    std::string fileName;
    int filterIndex = 1;
};

/// How the desktop took an address or file that it was to open.
enum class OpenResult { kOpened, kNoOpener, kFailed };

/// A day of the calendar; the month counts from 1.
struct Date {
    int year = 0;
    int month = 0;
    int day = 0;
};

/// Today in the local time zone.
Date CurrentDate();

/// Everything that the forms ask of the machine they run on. All calls come on the one thread.
/// Where forms are shown on a screen, the host shows them as their states stand at each of these
/// calls.
class Host {
public:
    virtual ~Host() = default;

    /// Shows a box until it is answered. True for OK and Yes.
    virtual bool ShowBox(const Box& box) = 0;

    virtual void Beep() = 0;

    /// Asks for a file's name; nothing where the dialog was cancelled.
    virtual std::optional<FileChoice> ChooseFile(const FileQuestion& question) = 0;

    /// Asks for a file's name by a line of text, in the file system's own bytes; nothing where the
    /// box was cancelled.
    virtual std::optional<std::string> AskForText(const std::string& prompt) = 0;

    virtual void SetClipboardText(const std::string& text) = 0;
    virtual std::string ClipboardText() = 0;
    /// The clipboard then holds both, each for whoever asks for its kind.
    virtual void SetClipboard(const std::string& text, std::shared_ptr<const Drawing> picture) = 0;
    /// The picture that this program put on the clipboard; null when it holds none of its own.
    virtual std::shared_ptr<const Drawing> ClipboardPicture() = 0;

    /// Prints a document of one page with the picture in its own size at the upper left of what can
    /// be printed on, on the default printer. Throws 482 where there is none.
    virtual void Print(const Drawing& picture) = 0;

    /// Hands an address or a file to the desktop's own program for it and doesn't wait.
    virtual OpenResult Open(const std::string& address) = 0;

    /// Shows a compiled help file without waiting: in the desktop's own viewer or, where it has
    /// none, in a window of the host's over the same pages. Tells nobody when there is nothing to
    /// show.
    virtual void ShowHelp(const std::string& file) = 0;
    /// Closes the help windows of its own.
    virtual void CloseHelp() = 0;

    /// Starts a program; null where it can't be started.
    virtual std::unique_ptr<Process> Start(const ProgramStart& start) = 0;

    /// Returns when the process has ended or `giveUp` says so. Meanwhile the person's events flow,
    /// and `giveUp` is asked after each; nothing is polled.
    virtual void WaitForEnd(Process& process, const std::function<bool()>& giveUp) = 0;

    /// The size of the screen.
    virtual Size ScreenSize() = 0;

    virtual Date Today() = 0;

    /// The program has ended: waits give up and the host's own event loop ends.
    virtual void EndProgram() = 0;
};

}  // namespace arbolith
