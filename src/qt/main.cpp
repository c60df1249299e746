// The program with its windows.
#include "qt/desktop_colours.h"
#include "qt/icon.h"
#include "qt/qt_host.h"
#include "qt/toolkit_messages.h"
#include "qt/window_manager.h"
#include "shell/program.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QFontDatabase>

#include <filesystem>
#include <string>

namespace {

// The shell has taken the quotes away and may stand in another folder than the program.
std::string CommandLineOf(int count, char** arguments) {
    if (count < 2) return "";
    std::error_code failed;
    const auto path = std::filesystem::absolute(arguments[1], failed);
    return '"' + (failed ? std::string(arguments[1]) : path.string()) + '"';
}

// The program works in its own folder; the launcher of an installed one, whose folder is not
// writable, names another.
std::string ApplicationFolder() {
    const QByteArray told = qgetenv("ARBOLITH_FOLDER");
    const QDir folder(told.isEmpty() ? QCoreApplication::applicationDirPath()
                                     : QFile::decodeName(told));
    return QFile::encodeName(folder.absolutePath()).toStdString();
}

// A portable folder brings its fonts along, for machines that have none.
void AddFontsBesideProgram() {
    const QDir fonts(QCoreApplication::applicationDirPath() + QStringLiteral("/fonts"));
    for (const QString& file : fonts.entryList({QStringLiteral("*.ttf")}, QDir::Files))
        QFontDatabase::addApplicationFont(fonts.filePath(file));
}

}  // namespace

int main(int argc, char** argv) {
    using namespace arbolith;
    TellOnlyWhyItEnds("arbolith", "arbolith-cli runs stands without windows");
    QApplication toolkit(argc, argv);
    QApplication::setApplicationName(QStringLiteral("Arbolith"));
    AddFontsBesideProgram();
    const DesktopColours colours;
    QApplication::setWindowIcon(ProgramIcon());
    // A moment without an open window is not the end: the forms say when that is.
    QApplication::setQuitOnLastWindowClosed(false);

    QtHost host;
    Application application(host, ApplicationFolder(), CommandLineOf(argc, argv));
    WindowManager windows(application);
    host.SetWindows(&windows);
    Program program(application);
    program.Start();
    const int status = application.HasEnded() ? 0 : QApplication::exec();
    host.SetWindows(nullptr);
    return status;
}
