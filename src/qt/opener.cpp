#include "qt/opener.h"

#include <QProcess>
#include <QStandardPaths>
#include <QUrl>

#include <filesystem>

namespace arbolith {

namespace {

const QString kOpener = QStringLiteral("xdg-open");
// The opener's exit code where it knows no program for what it is to open.
constexpr int kNoProgram = 3;
// Milliseconds in which an opener that fails is expected to say so. One that goes on has found its
// program.
constexpr int kMoment = 1000;

bool HasScheme(const std::string& text) {
    const auto end = text.find(':');
    if (end == std::string::npos || end < 2) return false;
    return text.find_first_not_of(
               "abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789+.-") == end;
}

}  // namespace

std::string AddressOf(const std::string& addressOrPath) {
    if (HasScheme(addressOrPath)) return addressOrPath;
    const std::string path = std::filesystem::absolute(addressOrPath).string();
    return "file://" + QByteArray::fromStdString(path).toPercentEncoding("/").toStdString();
}

OpenResult OpenByDesktop(const std::string& address) {
    const QString opener = QStandardPaths::findExecutable(kOpener);
    if (opener.isEmpty()) return OpenResult::kNoOpener;
    // Left to itself when it lasts longer than the program.
    auto* process = new QProcess;
    QObject::connect(process, &QProcess::finished, process, &QObject::deleteLater);
    process->setStandardInputFile(QProcess::nullDevice());
    process->setStandardOutputFile(QProcess::nullDevice());
    process->setStandardErrorFile(QProcess::nullDevice());
    process->start(opener, {QString::fromStdString(AddressOf(address))});
    if (!process->waitForStarted()) {
        delete process;
        return OpenResult::kFailed;
    }
    if (!process->waitForFinished(kMoment) || process->exitCode() == 0) return OpenResult::kOpened;
    return process->exitCode() == kNoProgram ? OpenResult::kNoOpener : OpenResult::kFailed;
}

}  // namespace arbolith
