// What a person at the terminal sees on the way: messages, and a progress bar where there is a
// terminal to draw it on.
#pragma once

#include <string>
#include <string_view>

namespace arbolith::console {

class Terminal {
public:
    /// Writes to an open descriptor, the standard error as a rule.
    explicit Terminal(int descriptor);
    ~Terminal() { ClearProgress(); }
    Terminal(const Terminal&) = delete;
    Terminal& operator=(const Terminal&) = delete;

    /// Whether progress shows: it is a terminal that can go back in a line.
    bool ShowsProgress() const { return showsProgress_; }

    /// A message on a line of its own, with the program's name in front.
    void Say(std::string_view message);
    /// Draws the bar for a part from 0 to 1, with what is going on behind it.
    void Progress(double part, std::string_view what);
    void ClearProgress();

private:
    int descriptor_;
    bool showsProgress_;
    std::string shown_;
};

/// The bar as text: what is done, what is left, the per cent, and what is going on.
std::string ProgressLine(double part, std::string_view what);

}  // namespace arbolith::console
