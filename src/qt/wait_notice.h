// Tells a person who waits that the program is at work: first by the cursor, then by a line of text
// at the foot of the active window. A short wait shows nothing.
#pragma once

#include <QLabel>
#include <QPointer>
#include <QTimer>

#include <string>

namespace arbolith {

/// Lives as long as the wait.
class WaitNotice {
public:
    /// `program` is the name of what is waited for, empty where it isn't known.
    explicit WaitNotice(std::string program);
    ~WaitNotice();
    WaitNotice(const WaitNotice&) = delete;
    WaitNotice& operator=(const WaitNotice&) = delete;

private:
    void ShowText();

    std::string program_;
    bool showsCursor_ = false;
    QTimer cursorTimer_;
    QTimer textTimer_;
    QPointer<QLabel> text_;
};

}  // namespace arbolith
