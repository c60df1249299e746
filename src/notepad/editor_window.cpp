#include "notepad/editor_window.h"

#include "notepad/boxes.h"
#include "notepad/printing.h"

#include <QAction>
#include <QCloseEvent>
#include <QFile>
#include <QInputDialog>
#include <QMenu>
#include <QMenuBar>
#include <QScreen>
#include <QSessionManager>
#include <QStatusBar>
#include <QTextBlock>

#include <utility>

namespace arbolith::notepad {

namespace {

// Wide enough for the comment block of a batch file and the first half of a report.
constexpr int kColumns = 110;
constexpr int kLines = 36;
// The part of the screen that the window takes at most when it opens.
constexpr double kMostOfScreen = 0.9;

// Parts what the status line tells; in pixels.
constexpr int kStatusIndent = 12;

template <class Work>
QAction* Add(QMenu& menu, const char* caption, const QKeySequence& key, QObject* context,
             Work work) {
    auto* action = menu.addAction(QString::fromLatin1(caption));
    action->setShortcut(key);
    QObject::connect(action, &QAction::triggered, context, std::move(work));
    return action;
}

}  // namespace

EditorWindow::EditorWindow(Person* person)
    : text_(new TextEdit(this)),
      boxes_(person == nullptr ? std::make_unique<Boxes>(*this) : nullptr),
      document_(*text_, person == nullptr ? *boxes_ : *person),
      find_(new FindDialog(this, [this](Direction direction) { FindNext(direction); })) {
    setCentralWidget(text_);
    AddFileMenu();
    AddEditMenu();
    AddViewMenu();
    AddStatusLine();
    connect(text_->document(), &QTextDocument::modificationChanged, this,
            &QWidget::setWindowModified);
    connect(text_->document(), &QTextDocument::contentsChanged, this,
            [this] { isGivenUp_ = false; });
    ShowName();
    resize((text_->SizeFor(kColumns, kLines) +
            QSize(0, menuBar()->sizeHint().height() + statusBar()->sizeHint().height()))
               .boundedTo(screen()->availableSize() * kMostOfScreen));
}

bool EditorWindow::Start(const std::string& path) {
    const bool isOpen = document_.Start(path);
    ShowName();
    return isOpen;
}

void EditorWindow::AddFileMenu() {
    auto& menu = *menuBar()->addMenu(QStringLiteral("&File"));
    const auto add = [&](const char* caption, const QKeySequence& key, auto work) {
        return Add(menu, caption, key, this, [this, work] {
            work();
            ShowName();
        });
    };
    add("&New", QKeySequence::New, [this] { document_.New(); });
    add("&Open...", QKeySequence::Open, [this] { document_.Open(); });
    add("&Save", QKeySequence::Save, [this] { document_.Save(); });
    add("Save &As...", QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_S),
        [this] { document_.SaveAs(); });
    menu.addSeparator();
    add("&Print...", QKeySequence::Print, [this] {
        AskAndPrint(*this, QFile::decodeName(document_.Name().c_str()), text_->Bytes());
    });
    menu.addSeparator();
    Add(menu, "&Close", {}, this, [this] {
        close();
    })->setShortcuts({QKeySequence(Qt::CTRL | Qt::Key_W), QKeySequence(Qt::CTRL | Qt::Key_Q)});
}

void EditorWindow::AddEditMenu() {
    auto& menu = *menuBar()->addMenu(QStringLiteral("&Edit"));
    auto* undo = Add(menu, "&Undo", QKeySequence::Undo, text_, [this] { text_->undo(); });
    auto* redo = Add(menu, "&Redo", QKeySequence::Redo, text_, [this] { text_->redo(); });
    menu.addSeparator();
    auto* cut = Add(menu, "Cu&t", QKeySequence::Cut, text_, [this] { text_->cut(); });
    auto* copy = Add(menu, "&Copy", QKeySequence::Copy, text_, [this] { text_->copy(); });
    auto* paste = Add(menu, "&Paste", QKeySequence::Paste, text_, [this] { text_->paste(); });
    Add(menu, "Select &All", QKeySequence::SelectAll, text_, [this] { text_->selectAll(); });
    menu.addSeparator();
    Add(menu, "&Find...", QKeySequence::Find, this, [this] { AskWhatToFind(); });
    Add(menu, "Find &Next", QKeySequence(Qt::Key_F3), this,
        [this] { FindNext(Direction::kForward); });
    Add(menu, "Find Pre&vious", QKeySequence(Qt::SHIFT | Qt::Key_F3), this,
        [this] { FindNext(Direction::kBackward); });
    Add(menu, "&Go to Line...", QKeySequence(Qt::CTRL | Qt::Key_G), this, [this] { AskForLine(); });

    for (auto* action : {undo, redo, cut, copy}) action->setEnabled(false);
    connect(text_, &QPlainTextEdit::undoAvailable, undo, &QAction::setEnabled);
    connect(text_, &QPlainTextEdit::redoAvailable, redo, &QAction::setEnabled);
    connect(text_, &QPlainTextEdit::copyAvailable, cut, &QAction::setEnabled);
    connect(text_, &QPlainTextEdit::copyAvailable, copy, &QAction::setEnabled);
    connect(&menu, &QMenu::aboutToShow, paste,
            [this, paste] { paste->setEnabled(text_->canPaste()); });
    // What is on the clipboard may have changed unseen; the key works in any case.
    connect(&menu, &QMenu::aboutToHide, paste, [paste] { paste->setEnabled(true); });
}

void EditorWindow::AddViewMenu() {
    auto& menu = *menuBar()->addMenu(QStringLiteral("&View"));
    Add(menu, "Zoom &In", {}, this, [this] { text_->ZoomBy(1); })
        ->setShortcuts(
            {QKeySequence(Qt::CTRL | Qt::Key_Plus), QKeySequence(Qt::CTRL | Qt::Key_Equal)});
    Add(menu, "Zoom &Out", QKeySequence(Qt::CTRL | Qt::Key_Minus), this,
        [this] { text_->ZoomBy(-1); });
    Add(menu, "&Usual Size", QKeySequence(Qt::CTRL | Qt::Key_0), this,
        [this] { text_->ResetZoom(); });
    menu.addSeparator();
    auto* wrap = menu.addAction(QStringLiteral("&Word Wrap"));
    wrap->setCheckable(true);
    connect(wrap, &QAction::toggled, text_, [this](bool wraps) {
        text_->setLineWrapMode(wraps ? QPlainTextEdit::WidgetWidth : QPlainTextEdit::NoWrap);
    });
}

void EditorWindow::AddStatusLine() {
    for (auto** label : {&place_, &lineEnds_, &zoomed_}) {
        *label = new QLabel(this);
        (*label)->setIndent(kStatusIndent);
        statusBar()->addPermanentWidget(*label);
    }
    connect(text_, &QPlainTextEdit::cursorPositionChanged, this, [this] { ShowPlace(); });
    text_->onZoomChange = [this] { ShowZoom(); };
    ShowPlace();
    ShowZoom();
}

void EditorWindow::ShowName() {
    const auto name = QFile::decodeName(document_.Name().c_str());
    setWindowTitle(
        QStringLiteral("%1[*] - Notepad")
            .arg(QString(name).replace(QStringLiteral("[*]"), QStringLiteral("[*][*]"))));
    setWindowModified(text_->IsModified());
    lineEnds_->setText(text_->LineEnds());
}

void EditorWindow::ShowPlace() {
    const auto cursor = text_->textCursor();
    place_->setText(QStringLiteral("Line %1, column %2")
                        .arg(cursor.blockNumber() + 1)
                        .arg(cursor.positionInBlock() + 1));
}

void EditorWindow::ShowZoom() {
    zoomed_->setText(QStringLiteral("%1%").arg(text_->Zoom()));
}

void EditorWindow::AskWhatToFind() {
    // A selection of several lines is no word to look for.
    const auto selected = text_->textCursor().selectedText();
    find_->Ask(selected.contains(QChar::ParagraphSeparator) ? QString() : selected);
}

void EditorWindow::FindNext(Direction direction) {
    const auto search = find_->Wanted();
    if (search.text.isEmpty()) {
        AskWhatToFind();
        return;
    }
    const auto found = Find(*text_->document(), text_->textCursor(), search, direction);
    if (!found.isNull()) text_->setTextCursor(found);
    const auto message =
        found.isNull() ? QStringLiteral("\"%1\" is not there.").arg(search.text) : QString();
    find_->Tell(message);
    statusBar()->showMessage(message);
}

void EditorWindow::AskForLine() {
    bool isChosen = false;
    const int line = QInputDialog::getInt(
        this, QStringLiteral("Go to Line"), QStringLiteral("&Line:"),
        text_->textCursor().blockNumber() + 1, 1, text_->blockCount(), 1, &isChosen);
    if (isChosen) text_->GoToLine(line);
}

bool EditorWindow::MayEnd() {
    const bool mayEnd = document_.MayLeave();
    ShowName();
    return mayEnd;
}

void EditorWindow::closeEvent(QCloseEvent* event) {
    event->setAccepted(isGivenUp_ || MayEnd());
}

void EditorWindow::EndSession(QSessionManager& session) {
    if (!text_->IsModified()) return;
    isGivenUp_ = session.allowsInteraction() && MayEnd();
    session.release();
    if (!isGivenUp_) session.cancel();
}

}  // namespace arbolith::notepad
