#include "cli/interrupts.h"

#include <csignal>
#include <gtest/gtest.h>
#include <poll.h>

namespace arbolith::console {

namespace {

bool IsReadable(int descriptor) {
    pollfd end{descriptor, POLLIN, 0};
    return poll(&end, 1, 0) == 1;
}

}  // namespace

TEST(Interrupts, NoneHasComeAtFirst) {
    const Interrupts interrupts;
    EXPECT_EQ(Interrupts::Signal(), 0);
    EXPECT_FALSE(IsReadable(Interrupts::Descriptor()));
}

TEST(Interrupts, ASignalIsNotedAndWakesUp) {
    for (const int signal : {SIGINT, SIGTERM, SIGHUP}) {
        const Interrupts interrupts;
        std::raise(signal);
        EXPECT_EQ(Interrupts::Signal(), signal);
        EXPECT_TRUE(IsReadable(Interrupts::Descriptor()));
    }
}

TEST(Interrupts, WhatTheCallerIgnoresStaysIgnored) {
    const auto before = std::signal(SIGHUP, SIG_IGN);
    {
        const Interrupts interrupts;
        std::raise(SIGHUP);
        EXPECT_EQ(Interrupts::Signal(), 0);
    }
    std::signal(SIGHUP, before);
}

TEST(Interrupts, AClosedPipeEndsNothing) {
    const Interrupts interrupts;
    std::raise(SIGPIPE);
    EXPECT_EQ(Interrupts::Signal(), 0);
}

TEST(Interrupts, AreTakenBackAtTheEnd) {
    const auto before = std::signal(SIGINT, SIG_DFL);
    { const Interrupts interrupts; }
    EXPECT_EQ(std::signal(SIGINT, before), SIG_DFL);
}

}  // namespace arbolith::console
