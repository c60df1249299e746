#include "notepad/boxes.h"

#include <QFile>
#include <QFileDialog>
#include <QFileInfo>
#include <QMessageBox>
#include <QPushButton>

namespace arbolith::notepad {

namespace {

constexpr const char* kFilters = "Text files (*.txt *.qvb *.qvn);;All files (*)";

QString Shown(const std::string& path) {
    return QFile::decodeName(path.c_str());
}

std::optional<std::string> Chosen(const QString& path) {
    if (path.isEmpty()) return std::nullopt;
    return QFile::encodeName(path).toStdString();
}

// File names hold whatever they hold, so no text is taken for HTML.
QMessageBox& Prepare(QMessageBox& box, QMessageBox::Icon icon, const QString& text,
                     const QString& detail) {
    box.setIcon(icon);
    box.setTextFormat(Qt::PlainText);
    box.setText(text);
    box.setInformativeText(detail);
    return box;
}

// True for the button with the caption; Cancel is the other.
bool Confirm(QWidget& window, const QString& text, const QString& detail, const QString& caption,
             bool isDefault) {
    QMessageBox box(&window);
    Prepare(box, QMessageBox::Warning, text, detail);
    auto* confirm = box.addButton(caption, QMessageBox::AcceptRole);
    auto* cancel = box.addButton(QMessageBox::Cancel);
    box.setDefaultButton(isDefault ? confirm : cancel);
    box.exec();
    return box.clickedButton() == confirm;
}

}  // namespace

UnsavedAnswer Boxes::AskAboutUnsaved(const std::string& name) {
    QMessageBox box(&window_);
    Prepare(box, QMessageBox::Warning,
            QStringLiteral("Do you want to save the changes to %1?").arg(Shown(name)),
            QStringLiteral("Discarded changes are lost."));
    box.setStandardButtons(QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel);
    box.setDefaultButton(QMessageBox::Save);
    switch (box.exec()) {
        case QMessageBox::Save:
            return UnsavedAnswer::kSave;
        case QMessageBox::Discard:
            return UnsavedAnswer::kDiscard;
        default:
            return UnsavedAnswer::kCancel;
    }
}

bool Boxes::AskToCreate(const std::string& path) {
    return Confirm(window_, QStringLiteral("There is no file %1.").arg(Shown(path)),
                   QStringLiteral("Do you want to create it?"), QStringLiteral("C&reate"), true);
}

bool Boxes::AskToOverwrite(const std::string& path) {
    return Confirm(
        window_,
        QStringLiteral("Another program has changed %1 since it was opened.").arg(Shown(path)),
        QStringLiteral("Overwriting it loses these changes. Save As keeps both."),
        QStringLiteral("&Overwrite"), false);
}

std::optional<std::string> Boxes::ChooseFileToOpen(const std::string& besidePath) {
    return Chosen(QFileDialog::getOpenFileName(&window_, QStringLiteral("Open"),
                                               QFileInfo(Shown(besidePath)).path(), kFilters));
}

std::optional<std::string> Boxes::ChooseFileToSave(const std::string& proposedPath) {
    return Chosen(QFileDialog::getSaveFileName(&window_, QStringLiteral("Save As"),
                                               Shown(proposedPath), kFilters));
}

void Boxes::TellFailure(const std::string& path, const std::string& action,
                        const std::string& reason) {
    QMessageBox box(&window_);
    Prepare(box, QMessageBox::Critical,
            QStringLiteral("%1 can't be %2.").arg(Shown(path), Shown(action)),
            Shown(reason) + u'.');
    box.exec();
}

}  // namespace arbolith::notepad
