#include "qt/qt_host.h"

#include "qt/file_dialog.h"
#include "qt/help_viewer.h"
#include "qt/help_window.h"
#include "qt/opener.h"
#include "qt/printing.h"
#include "qt/qt_drawing.h"
#include "qt/scale.h"
#include "qt/texts.h"
#include "qt/wait_notice.h"
#include "qt/window_manager.h"

#include <QApplication>
#include <QClipboard>
#include <QDir>
#include <QEventLoop>
#include <QFile>
#include <QFileInfo>
#include <QInputDialog>
#include <QMessageBox>
#include <QMimeData>
#include <QScreen>
#include <QSocketNotifier>

#include <utility>

namespace arbolith {

namespace {

// Where the pages lie, beside the compiled help that is made from them.
constexpr const char* kHelpFolder = "help";

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

// What goes onto the clipboard: a text and a picture for other programs, and the drawing itself for
// this one, as long as it is there.
class TextAndPicture : public QMimeData {
public:
    TextAndPicture(const std::string& text, std::shared_ptr<const Drawing> picture)
        : picture_(std::move(picture)) {
        setText(ToQString(text));
        if (picture_ != nullptr) setImageData(ImageOf(*picture_));
    }
    const std::shared_ptr<const Drawing>& Picture() const { return picture_; }

private:
    std::shared_ptr<const Drawing> picture_;
};

}  // namespace

QtHost::QtHost() = default;
QtHost::~QtHost() = default;

bool QtHost::ShowBox(const Box& box) {
    QMessageBox message(QApplication::activeWindow());
    message.setWindowTitle(ToQString(box.title));
    message.setTextFormat(Qt::PlainText);
    message.setText(ToShownText(box.text));
    message.setAccessibleDescription(message.text());
    message.setIcon(IconOf(box.icon));
    if (box.buttons == BoxButtons::kYesNo) {
        message.setStandardButtons(QMessageBox::Yes | QMessageBox::No);
        message.setDefaultButton(QMessageBox::Yes);
        message.setEscapeButton(QMessageBox::No);
    }
    const int answer = Show(message);
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

void QtHost::SetClipboard(const std::string& text, std::shared_ptr<const Drawing> picture) {
    QGuiApplication::clipboard()->setMimeData(new TextAndPicture(text, std::move(picture)));
}

std::shared_ptr<const Drawing> QtHost::ClipboardPicture() {
    const auto* own = dynamic_cast<const TextAndPicture*>(QGuiApplication::clipboard()->mimeData());
    return own == nullptr ? nullptr : own->Picture();
}

// Over the active window, and over the windows that stay above all others.
int QtHost::Show(QDialog& dialog) {
    if (dialog.windowTitle().isEmpty()) dialog.setAccessibleName(QApplication::applicationName());
    const WindowManager::OwnBox ownBox(windows_);
    if (windows_ != nullptr && windows_->HasTopmost())
        dialog.setWindowFlag(Qt::WindowStaysOnTopHint);
    return dialog.exec();
}

std::optional<FileChoice> QtHost::ChooseFile(const FileQuestion& question) {
    FileDialog dialog(QApplication::activeWindow(), question);
    if (Show(dialog) != QDialog::Accepted) return std::nullopt;
    return dialog.Choice();
}

std::optional<std::string> QtHost::AskForText(const std::string& prompt) {
    QInputDialog dialog(QApplication::activeWindow());
    dialog.setLabelText(ToQString(prompt));
    if (Show(dialog) != QDialog::Accepted) return std::nullopt;
    return QFile::encodeName(dialog.textValue()).toStdString();
}

void QtHost::Print(const Drawing& picture) {
    PrintOnePage(picture);
}

OpenResult QtHost::Open(const std::string& address) {
    return OpenByDesktop(address);
}

void QtHost::ShowHelp(const std::string& file) {
    const QFileInfo compiled(QFile::decodeName(file.c_str()));
    if (compiled.exists() && DesktopHasHelpViewer() && Open(file) == OpenResult::kOpened) return;
    if (help_ == nullptr) {
        help_ = std::make_unique<HelpWindow>(compiled.dir().filePath(kHelpFolder));
        help_->onOtherLink = [this](const QString& address) {
            Open(QFile::encodeName(address).toStdString());
        };
    }
    if (help_->HasPages()) help_->ShowFirstPage();
}

void QtHost::CloseHelp() {
    help_.reset();
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
