// The programs where there is no display.
#include <QProcess>

#include <gtest/gtest.h>

namespace arbolith {

namespace {

QString ErrorsWithoutDisplayOf(const QString& program) {
    auto environment = QProcessEnvironment::systemEnvironment();
    for (const char* name : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"})
        environment.remove(name);
    QProcess process;
    process.setProcessEnvironment(environment);
    process.start(PROGRAMS "/" + program, {});
    EXPECT_TRUE(process.waitForFinished());
    EXPECT_NE(process.exitCode(), 0);
    return QString::fromLocal8Bit(process.readAllStandardError());
}

}  // namespace

TEST(WithoutDisplay, TheProgramSaysSoAndWhatHelps) {
    EXPECT_EQ(ErrorsWithoutDisplayOf("arbolith"),
              "arbolith: there is no display to open windows on\n"
              "arbolith-cli runs stands without windows\n");
}

TEST(WithoutDisplay, TheEditorSaysSo) {
    EXPECT_EQ(ErrorsWithoutDisplayOf("notepad"),
              "notepad: there is no display to open windows on\n");
}

}  // namespace arbolith
