#include "qt/qt_host.h"

#include "platform/runtime_error.h"
#include "qt/scale.h"
#include "qt/texts.h"
#include "qt/wait_notice.h"
#include "qt/window_manager.h"

#include <QApplication>
#include <QClipboard>
#include <QDesktopServices>
#include <QEventLoop>
#include <QFile>
#include <QFileDialog>
#include <QInputDialog>
#include <QMessageBox>
#include <QScreen>
#include <QSocketNotifier>
#include <QUrl>

#include <utility>

namespace arbolith {

namespace {

// A started program that knows its name, so that a wait can tell it.
class NamedProcess : public Process {
public:
    NamedProcess(std::unique_ptr<Process> process, std::string name)
        : process_(std::move(process)), name_(std::move(name)) {}

    bool HasEnded() override { return process_->HasEnded(); }
    int EndDescriptor() const override { return process_->EndDescriptor(); }
    const std::string& Name() const { return name_; }

private:
    std::unique_ptr<Process> process_;
    std::string name_;
};

QMessageBox::Icon IconOf(BoxIcon icon) {
    switch (icon) {
        case BoxIcon::kExclamation:
            return QMessageBox::Warning;
        case BoxIcon::kStop:
            return QMessageBox::Critical;
        case BoxIcon::kNone:
            break;
    }
    return QMessageBox::NoIcon;
}

}  // namespace

bool QtHost::ShowBox(const Box& box) {
    const WindowManager::OwnBox ownBox(windows_);
    QMessageBox message(QApplication::activeWindow());
    message.setWindowTitle(ToQString(box.title));
    message.setTextFormat(Qt::PlainText);
    message.setText(ToQString(box.text));
    message.setIcon(IconOf(box.icon));
    if (box.buttons == BoxButtons::kYesNo) {
        message.setStandardButtons(QMessageBox::Yes | QMessageBox::No);
        message.setDefaultButton(QMessageBox::Yes);
        message.setEscapeButton(QMessageBox::No);
    }
    const int answer = message.exec();
    return answer == QMessageBox::Yes || answer == QMessageBox::Ok;
}

void QtHost::Beep() {
    QApplication::beep();
}

void QtHost::SetClipboardText(const std::string& text) {
    QGuiApplication::clipboard()->setText(ToQString(text));
}

std::string QtHost::ClipboardText() {
    return FromQString(QGuiApplication::clipboard()->text());
}

std::optional<FileChoice> QtHost::ChooseFile(const FileQuestion& question) {
    const WindowManager::OwnBox ownBox(windows_);
    QFileDialog dialog(QApplication::activeWindow());
    dialog.setAcceptMode(question.saves ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
    dialog.setDirectory(QFile::decodeName(question.folder.c_str()));
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return std::nullopt;
    return FileChoice{QFile::encodeName(dialog.selectedFiles().constFirst()).toStdString(),
                      question.filterIndex};
}

std::optional<std::string> QtHost::AskForText(const std::string& prompt) {
    const WindowManager::OwnBox ownBox(windows_);
    bool accepted = false;
    const QString text = QInputDialog::getText(QApplication::activeWindow(), {}, ToQString(prompt),
                                               QLineEdit::Normal, {}, &accepted);
    return accepted ? std::optional(FromQString(text)) : std::nullopt;
}

void QtHost::SetClipboard(const std::string& text, std::shared_ptr<const Drawing> picture) {
    SetClipboardText(text);
    picture_ = std::move(picture);
}

std::shared_ptr<const Drawing> QtHost::ClipboardPicture() {
    return picture_;
}

void QtHost::Print(const Drawing&) {
    throw RuntimeError(ErrorNumber::kPrinter);
}

OpenResult QtHost::Open(const std::string& address) {
    const auto url = QUrl::fromUserInput(QFile::decodeName(address.c_str()));
    return QDesktopServices::openUrl(url) ? OpenResult::kOpened : OpenResult::kFailed;
}

std::unique_ptr<Process> QtHost::Start(const ProgramStart& start) {
    auto process = StartProcess(start);
    if (process == nullptr) return nullptr;
    return std::make_unique<NamedProcess>(std::move(process), start.FileName());
}

void QtHost::WaitForEnd(Process& process, const std::function<bool()>& giveUp) {
    if (windows_ != nullptr) windows_->Flush();
    if (process.HasEnded()) return;
    bool hasEnded = false;
    QSocketNotifier end(process.EndDescriptor(), QSocketNotifier::Read);
    QObject::connect(&end, &QSocketNotifier::activated, [&] {
        hasEnded = process.HasEnded();
        end.setEnabled(!hasEnded);
    });
    const auto* named = dynamic_cast<const NamedProcess*>(&process);
    const WaitNotice notice(named == nullptr ? "" : named->Name());
    QEventLoop loop;
    // Sleeps until something happens, then looks whether it was what is waited for.
    while (!hasEnded && !ended_ && !giveUp())
        loop.processEvents(QEventLoop::AllEvents | QEventLoop::WaitForMoreEvents);
}

Size QtHost::ScreenSize() {
    return Scale().Twips(QGuiApplication::primaryScreen()->size());
}

void QtHost::EndProgram() {
    ended_ = true;
    // Unlike quit, this asks no window whether it may close.
    QCoreApplication::exit(0);
}

}  // namespace arbolith
