// What a script sees of the outside world: what went out through the host, and the answers that it
// has ready for boxes and dialogs.
#pragma once

#include "platform/host.h"

#include <cstddef>
#include <deque>
#include <optional>
#include <string>

namespace arbolith {

/// A started program: its file name and, for the editor, the file's name behind a blank.
struct StartedProgram {
    std::string text;
    int mode = 0;
};

/// A file dialog as it came up.
struct FileDialog {
    bool saves = false;
    std::string filter;
};

/// Everything that went out, oldest first, until a script takes it.
struct Recordings {
    std::deque<Box> boxes;
    std::deque<StartedProgram> started;
    std::deque<std::string> opened;  ///< Addresses and files handed to the opener.
    int beeps = 0;                   ///< Since they were last asked for, as the next two.
    int starts = 0;
    int printed = 0;
    std::optional<std::string> inputPrompt;  ///< Of the last input box.
    std::optional<FileDialog> dialog;        ///< The last one.
};

/// The answer to a file dialog or an input box.
struct DialogAnswer {
    enum Kind { kFile, kText, kCancel };
    Kind kind = kCancel;
    std::string text;
    int filterIndex = 0;  ///< From 1; 0 leaves the dialog's own.

    bool operator==(const DialogAnswer&) const = default;
};

/// The queues of answers, first in, first out for each kind of box. A cancel is taken by whatever
/// dialog or input box comes next.
class Answers {
public:
    void Add(bool yes) { yesNo_.push_back(yes); }
    void Add(const DialogAnswer& answer) { dialogs_.push_back(answer); }

    /// Each gives nothing when its queue is empty.
    std::optional<bool> TakeYesNo();
    std::optional<DialogAnswer> TakeForFileDialog() { return Take(DialogAnswer::kFile); }
    std::optional<DialogAnswer> TakeForInputBox() { return Take(DialogAnswer::kText); }

private:
    std::optional<DialogAnswer> Take(DialogAnswer::Kind kind);

    std::deque<bool> yesNo_;
    std::deque<DialogAnswer> dialogs_;
};

/// What the desktop's opener and printer answer.
enum class OpenerAnswer { kNone, kFailed, kOk };
enum class PrinterAnswer { kNone, kOk };

}  // namespace arbolith
