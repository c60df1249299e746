// A small text editor for batch files and text reports.
#include "notepad/editor_window.h"
#include "notepad/icon.h"
#include "platform/version.h"
#include "qt/desktop_colours.h"
#include "qt/toolkit_messages.h"

#include <QApplication>
#include <QFile>
#include <QSessionManager>

#include <cstdio>
#include <filesystem>

namespace {

constexpr int kWrongUse = 2;

std::string FullPath(const QString& argument) {
    const auto path = QFile::encodeName(argument).toStdString();
    std::error_code failed;
    const auto full = std::filesystem::absolute(path, failed);
    return failed ? path : full.string();
}

}  // namespace

int main(int argc, char** argv) {
    using namespace arbolith::notepad;
    arbolith::TellOnlyWhyItEnds("notepad");
    QApplication toolkit(argc, argv);
    QApplication::setApplicationName(QStringLiteral("Notepad"));
    QApplication::setApplicationVersion(QString::fromLatin1(arbolith::kVersion));
    QApplication::setWindowIcon(NotepadIcon());

    const QStringList arguments = QApplication::arguments();
    if (arguments.size() > 2) {
        std::fputs("usage: notepad [FILE]\n", stderr);
        return kWrongUse;
    }
    const arbolith::DesktopColours colours;
    EditorWindow window;
    QObject::connect(&toolkit, &QGuiApplication::commitDataRequest, &window,
                     [&window](QSessionManager& session) { window.EndSession(session); });
    window.show();
    if (arguments.size() == 2 && !window.Start(FullPath(arguments[1]))) return 1;
    return QApplication::exec();
}
