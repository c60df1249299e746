// The program without a screen, past its splash, with a white pine stand in its form.
#pragma once

#include "bench/white_pine.h"
#include "platform/headless_host.h"
#include "shell/program.h"

#include <string>

namespace arbolith::bench {

struct HeadlessProgram {
    explicit HeadlessProgram(const std::string& folder)
        : application(host, folder, ""), program(application), user(application) {
        program.Start();
        user.Tick(program.GetSplash().Timer1);
        EnterWhitePine(user, Form());
    }
    MainForm& Form() { return program.Run().form; }
    /// Reads a batch as a command of the panel does.
    void Read(const std::string& path) {
        application.Enter([&] { ReadBatch(program.GetBatch(), path); });
    }

    HeadlessHost host;
    Application application;
    Program program;
    UserActions user;
};

}  // namespace arbolith::bench
