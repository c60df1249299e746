#include "qt/wait_notice.h"

#include "qt/texts.h"

#include <QApplication>

#include <utility>

namespace arbolith {

namespace {

// Milliseconds of waiting until the cursor and the text show.
constexpr int kUntilCursor = 300;
constexpr int kUntilText = 1000;

void StartOnce(QTimer& timer, int milliseconds) {
    timer.setSingleShot(true);
    timer.start(milliseconds);
}

}  // namespace

WaitNotice::WaitNotice(std::string program) : program_(std::move(program)) {
    QObject::connect(&cursorTimer_, &QTimer::timeout, [this] {
        showsCursor_ = true;
        QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    });
    QObject::connect(&textTimer_, &QTimer::timeout, [this] { ShowText(); });
    StartOnce(cursorTimer_, kUntilCursor);
    StartOnce(textTimer_, kUntilText);
}

WaitNotice::~WaitNotice() {
    if (showsCursor_) QGuiApplication::restoreOverrideCursor();
    delete text_;
}

void WaitNotice::ShowText() {
    QWidget* window = QApplication::activeWindow();
    if (window == nullptr) return;
    const QString what = program_.empty() ? QStringLiteral("the model") : ToQString(program_);
    text_ = new QLabel(QStringLiteral("Waiting for %1 ...").arg(what), window);
    text_->setTextFormat(Qt::PlainText);
    text_->setObjectName(QStringLiteral("waitNotice"));
    text_->setAccessibleName(text_->text());
    text_->setAttribute(Qt::WA_TransparentForMouseEvents);
    text_->setAutoFillBackground(true);
    text_->setBackgroundRole(QPalette::ToolTipBase);
    text_->setForegroundRole(QPalette::ToolTipText);
    text_->setMargin(4);
    text_->adjustSize();
    text_->move(0, window->height() - text_->height());
    text_->show();
}

}  // namespace arbolith
