// What the start of a program costs: up to the first paint of its first window, and the memory that
// it holds then.
#pragma once

#include <QApplication>
#include <QEvent>
#include <QWidget>

#include <cstdio>
#include <fstream>
#include <functional>
#include <string>

namespace arbolith::bench {

/// Calls back once, when the first paint of any window is through.
class FirstPaint : public QObject {
public:
    explicit FirstPaint(std::function<void()> done) : done_(std::move(done)) {
        qApp->installEventFilter(this);
    }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::Paint && done_) {
            watched->removeEventFilter(this);
            // Behind the paint that is just beginning.
            QMetaObject::invokeMethod(qApp, std::exchange(done_, nullptr), Qt::QueuedConnection);
        }
        return false;
    }

private:
    std::function<void()> done_;
};

/// The resident memory of this process in KiB.
inline long ResidentKiB() {
    std::ifstream status("/proc/self/status");
    std::string word;
    long value = 0;
    while (status >> word)
        if (word == "VmRSS:" && status >> value) return value;
    return 0;
}

/// Prints the memory and ends the process at once.
inline void TellMemoryAndLeave() {
    std::printf("%ld\n", ResidentKiB());
    std::fflush(stdout);
    std::_Exit(0);
}

}  // namespace arbolith::bench
