#include "cli/terminal.h"

#include <array>
#include <cstdlib>
#include <gtest/gtest.h>
#include <poll.h>
#include <pty.h>
#include <string>
#include <unistd.h>

namespace arbolith::console {

namespace {

// All that has come, after waiting for as many bytes as are expected: a terminal may pass them on
// in pieces.
std::string Read(int descriptor, std::size_t expected) {
    constexpr int kLongest = 5000;  // In milliseconds.
    std::string text;
    const auto hasMore = [&] {
        pollfd awaited{descriptor, POLLIN, 0};
        return poll(&awaited, 1, text.size() < expected ? kLongest : 0) > 0;
    };
    std::array<char, 1000> bytes{};
    while (hasMore()) {
        const auto count = read(descriptor, bytes.data(), bytes.size());
        if (count <= 0) break;
        text.append(bytes.data(), static_cast<std::size_t>(count));
    }
    return text;
}

void ExpectRead(int descriptor, const std::string& expected) {
    EXPECT_EQ(Read(descriptor, expected.size()), expected);
}

/// Two ends of a pipe or of a terminal.
struct Ends {
    int reader = -1;
    int writer = -1;
    ~Ends() {
        close(reader);
        close(writer);
    }
};

void OpenPipe(Ends& ends) {
    std::array<int, 2> both{};
    ASSERT_EQ(pipe(both.data()), 0);
    ends.reader = both[0];
    ends.writer = both[1];
}

void OpenTerminal(Ends& ends, unsigned short columns) {
    winsize size{24, columns, 0, 0};
    ASSERT_EQ(openpty(&ends.reader, &ends.writer, nullptr, nullptr, &size), 0);
    setenv("TERM", "xterm", 1);
}

}  // namespace

TEST(Terminal, AMessageCarriesTheProgramsName) {
    Ends ends;
    OpenPipe(ends);
    Terminal terminal(ends.writer);
    terminal.Say("stand.qvn: No such file or directory");
    ExpectRead(ends.reader, "arbolith-cli: stand.qvn: No such file or directory\n");
}

TEST(Terminal, AMessageIsUtf8WithoutControlCharacters) {
    Ends ends;
    OpenPipe(ends);
    Terminal terminal(ends.writer);
    terminal.Say("\u00C9rable\t\x1B[2J\x07\x7F\r\n\u0090.");
    ExpectRead(ends.reader, "arbolith-cli: \u00C9rable\t?[2J?????.\n");
    terminal.Say("\xC9rable \x90");
    ExpectRead(ends.reader, "arbolith-cli: \u00C9rable ?\n");
}

TEST(Terminal, APipeSeesNoProgress) {
    Ends ends;
    OpenPipe(ends);
    Terminal terminal(ends.writer);
    EXPECT_FALSE(terminal.ShowsProgress());
    terminal.Progress(0.5, "SWQVL.exe");
    terminal.Say("done");
    ExpectRead(ends.reader, "arbolith-cli: done\n");
}

TEST(Terminal, ATerminalSeesTheBarOnOneLine) {
    Ends ends;
    OpenTerminal(ends, 80);
    Terminal terminal(ends.writer);
    EXPECT_TRUE(terminal.ShowsProgress());
    terminal.Progress(0.5, "SWQVL.exe");
    ExpectRead(ends.reader, "\r\x1B[K" + ProgressLine(0.5, "SWQVL.exe"));
    terminal.ClearProgress();
    ExpectRead(ends.reader, "\r\x1B[K");
}

TEST(Terminal, AMessageTakesTheBarAway) {
    Ends ends;
    OpenTerminal(ends, 80);
    Terminal terminal(ends.writer);
    terminal.Progress(0, "SWQVL.exe");
    ExpectRead(ends.reader, "\r\x1B[K" + ProgressLine(0, "SWQVL.exe"));
    terminal.Say("failed");
    ExpectRead(ends.reader, "\r\x1B[Karbolith-cli: failed\r\n");
}

TEST(Terminal, ANarrowOrPlainTerminalSeesNoBar) {
    Ends narrow;
    OpenTerminal(narrow, 40);
    EXPECT_FALSE(Terminal(narrow.writer).ShowsProgress());
    Ends plain;
    OpenTerminal(plain, 80);
    setenv("TERM", "dumb", 1);
    EXPECT_FALSE(Terminal(plain.writer).ShowsProgress());
    unsetenv("TERM");
    EXPECT_FALSE(Terminal(plain.writer).ShowsProgress());
}

TEST(Terminal, TheBarFillsFromLeftToRight) {
    EXPECT_EQ(ProgressLine(0, "x"), "[..............................]   0 %  x");
    EXPECT_EQ(ProgressLine(0.5, "x"), "[###############...............]  50 %  x");
    EXPECT_EQ(ProgressLine(1.5, "x"), "[##############################] 100 %  x");
}

}  // namespace arbolith::console
