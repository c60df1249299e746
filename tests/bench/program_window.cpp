// The program's start: to the first paint of the splash, or with the word "main" on to that of the
// main form.
#include "bench/first_paint.h"
#include "forms/user_actions.h"
#include "qt/icon.h"
#include "qt/qt_host.h"
#include "qt/window_manager.h"
#include "shell/program.h"

#include <cstring>

int main(int argc, char** argv) {
    using namespace arbolith;
    QApplication toolkit(argc, argv);
    QApplication::setWindowIcon(ProgramIcon());
    QApplication::setQuitOnLastWindowClosed(false);
    QtHost host;
    Application application(host, QCoreApplication::applicationDirPath().toStdString(), "");
    WindowManager windows(application);
    host.SetWindows(&windows);
    Program program(application);

    const bool toMainForm = argc > 1 && std::strcmp(argv[1], "main") == 0;
    std::unique_ptr<bench::FirstPaint> mainPaint;
    const bench::FirstPaint splashPaint([&] {
        if (!toMainForm) bench::TellMemoryAndLeave();
        mainPaint = std::make_unique<bench::FirstPaint>(bench::TellMemoryAndLeave);
        UserActions(application).Tick(program.GetSplash().Timer1);
    });
    program.Start();
    return QApplication::exec();
}
