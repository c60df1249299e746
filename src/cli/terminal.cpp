#include "cli/terminal.h"

#include "cli/delivery.h"
#include "platform/code_page.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <sys/ioctl.h>
#include <unistd.h>

namespace arbolith::console {

namespace {

constexpr int kBarWidth = 30;
// Of a narrower terminal the line would take two, which can't be taken back.
constexpr int kNeededColumns = 70;
constexpr std::string_view kClearLine = "\r\x1B[K";

bool CanShowProgress(int descriptor) {
    if (isatty(descriptor) == 0) return false;
    const char* kind = std::getenv("TERM");
    if (kind == nullptr || std::string_view(kind) == "dumb") return false;
    winsize size{};
    // A terminal that doesn't tell its size is taken for a usual one.
    return ioctl(descriptor, TIOCGWINSZ, &size) != 0 || size.ws_col == 0 ||
           size.ws_col >= kNeededColumns;
}

// A message may hold what stands in a file: control characters would reach the terminal.
std::string Printable(std::string_view message) {
    auto text = AnyToUtf8(message);
    for (std::size_t i = 0; i < text.size(); ++i) {
        const auto byte = static_cast<unsigned char>(text[i]);
        if ((byte < 0x20 && byte != '\t') || byte == 0x7F) text[i] = '?';
        // The two bytes of the control characters behind ASCII.
        const bool isUpper = byte == 0xC2 && static_cast<unsigned char>(text[i + 1]) < 0xA0;
        if (isUpper) text.replace(i, 2, "?");
    }
    return text;
}

}  // namespace

Terminal::Terminal(int descriptor)
    : descriptor_(descriptor), showsProgress_(CanShowProgress(descriptor)) {}

void Terminal::Say(std::string_view message) {
    ClearProgress();
    // Nobody is left to be told that telling has failed.
    TryWrite(descriptor_, "arbolith-cli: " + Printable(message) + "\n");
}

void Terminal::Progress(double part, std::string_view what) {
    if (!showsProgress_) return;
    auto line = ProgressLine(part, what);
    if (line == shown_) return;
    TryWrite(descriptor_, std::string(kClearLine) + line);
    shown_ = std::move(line);
}

void Terminal::ClearProgress() {
    if (!shown_.empty()) TryWrite(descriptor_, kClearLine);
    shown_.clear();
}

std::string ProgressLine(double part, std::string_view what) {
    const double bounded = std::clamp(part, 0.0, 1.0);
    const int done = static_cast<int>(std::lround(bounded * kBarWidth));
    const auto percent = std::to_string(std::lround(bounded * 100));
    std::string line = "[";
    line.append(static_cast<std::size_t>(done), '#');
    line.append(static_cast<std::size_t>(kBarWidth - done), '.');
    return line + "] " + std::string(3 - percent.size(), ' ') + percent + " %  " +
           std::string(what);
}

}  // namespace arbolith::console
