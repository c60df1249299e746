#include "qt/help_viewer.h"

#include <QProcess>
#include <QStandardPaths>

namespace arbolith {

namespace {

constexpr const char* kAsks = "xdg-mime";
constexpr const char* kCompiledHelp = "application/vnd.ms-htmlhelp";
constexpr int kPatience = 3000;  // milliseconds

}  // namespace

bool DesktopHasHelpViewer() {
    const auto program = QStandardPaths::findExecutable(kAsks);
    if (program.isEmpty()) return false;
    QProcess asking;
    asking.start(program, {"query", "default", kCompiledHelp});
    return asking.waitForFinished(kPatience) && !asking.readAllStandardOutput().trimmed().isEmpty();
}

}  // namespace arbolith
