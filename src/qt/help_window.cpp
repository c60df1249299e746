#include "qt/help_window.h"

#include "qt/help_page.h"

#include <QAction>
#include <QDir>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPrintDialog>
#include <QPrinter>
#include <QSplitter>
#include <QTabWidget>
#include <QToolBar>
#include <QTreeWidget>
#include <QUrl>
#include <QVBoxLayout>

namespace arbolith {

namespace {

constexpr QSize kFirstSize{980, 680};
constexpr int kContentsWidth = 290;

QUrl AddressOf(const QString& folder, const QString& file) {
    return QUrl::fromLocalFile(QDir(folder).filePath(file));
}

}  // namespace

HelpWindow::HelpWindow(const QString& folder)
    : folder_(folder), topics_(ReadHelpContents(folder)), page_(new HelpPage) {
    setObjectName("HelpWindow");
    page_->setObjectName("helpPage");
    page_->setAccessibleName("Help page");
    page_->onOtherLink = [this](const QUrl& address) {
        if (!onOtherLink) return;
        onOtherLink(address.isLocalFile() ? address.toLocalFile() : address.toString());
    };
    BuildToolBar();
    tabs_ = new QTabWidget;
    tabs_->setObjectName("helpTabs");
    tabs_->addTab(BuildContents(), "&Contents");
    searchTab_ = BuildSearch();
    tabs_->addTab(searchTab_, "&Search");
    auto* halves = new QSplitter;
    halves->addWidget(tabs_);
    halves->addWidget(page_);
    halves->setStretchFactor(1, 1);
    halves->setSizes({kContentsWidth, kFirstSize.width() - kContentsWidth});
    halves->setChildrenCollapsible(false);
    setCentralWidget(halves);
    resize(kFirstSize);
    connect(page_, &QTextBrowser::sourceChanged, this, &HelpWindow::FollowPage);
    page_->setFocus();
}

HelpWindow::~HelpWindow() = default;

QAction* HelpWindow::AddAction(const char* name, const QString& text,
                               const QList<QKeySequence>& keys, const std::function<void()>& act) {
    auto* action = new QAction(text, this);
    action->setObjectName(name);
    action->setShortcuts(keys);
    action->setToolTip(text + " (" + keys.constFirst().toString(QKeySequence::NativeText) + ")");
    connect(action, &QAction::triggered, this, act);
    addAction(action);
    return action;
}

void HelpWindow::BuildToolBar() {
    const auto usual = [](QKeySequence::StandardKey key) { return QKeySequence::keyBindings(key); };
    auto* bar = addToolBar("Help");
    bar->setMovable(false);
    bar->setContextMenuPolicy(Qt::PreventContextMenu);
    auto* back =
        AddAction("helpBack", "Back", {Qt::ALT | Qt::Key_Left}, [this] { page_->backward(); });
    auto* forward = AddAction("helpForward", "Forward", {Qt::ALT | Qt::Key_Right},
                              [this] { page_->forward(); });
    back->setEnabled(false);
    forward->setEnabled(false);
    connect(page_, &QTextBrowser::backwardAvailable, back, &QAction::setEnabled);
    connect(page_, &QTextBrowser::forwardAvailable, forward, &QAction::setEnabled);
    bar->addActions(
        {back, forward,
         AddAction("helpHome", "First page", {Qt::ALT | Qt::Key_Home}, [this] { Open(0); })});
    bar->addSeparator();
    // On many keyboards the plus sign takes Shift, which nobody presses for it.
    bar->addActions(
        {AddAction("helpSmaller", "Smaller", usual(QKeySequence::ZoomOut),
                   [this] { page_->zoomOut(); }),
         AddAction("helpLarger", "Larger",
                   usual(QKeySequence::ZoomIn) << QKeySequence(Qt::CTRL | Qt::Key_Equal),
                   [this] { page_->zoomIn(); }),
         AddAction("helpUsual", "Usual size", {Qt::CTRL | Qt::Key_0},
                   [this] { page_->ZoomToUsual(); })});
    bar->addSeparator();
    bar->addActions(
        {AddAction("helpFind", "Search", usual(QKeySequence::Find), [this] { PutFocusOnSearch(); }),
         AddAction("helpPrint", "Print...", usual(QKeySequence::Print), [this] { Print(); })});
    AddAction("helpClose", "Close", {Qt::CTRL | Qt::Key_W}, [this] { close(); });
}

QWidget* HelpWindow::BuildContents() {
    contents_ = new QTreeWidget;
    contents_->setObjectName("helpContents");
    contents_->setAccessibleName("Contents");
    contents_->setHeaderHidden(true);
    std::vector<QTreeWidgetItem*> above;
    for (const auto& topic : topics_) {
        above.resize(static_cast<std::size_t>(topic.level));
        auto* entry = above.empty() ? new QTreeWidgetItem(contents_, {topic.title})
                                    : new QTreeWidgetItem(above.back(), {topic.title});
        above.push_back(entry);
        entries_.push_back(entry);
    }
    contents_->expandAll();
    connect(contents_, &QTreeWidget::currentItemChanged, this, [this](QTreeWidgetItem* entry) {
        for (std::size_t i = 0; i < entries_.size(); ++i)
            if (entries_[i] == entry) Open(i);
    });
    return contents_;
}

QWidget* HelpWindow::BuildSearch() {
    auto* tab = new QWidget;
    searchWords_ = new QLineEdit;
    searchWords_->setObjectName("helpWords");
    searchWords_->setAccessibleName("Words to search for");
    searchWords_->setPlaceholderText("Words to search for");
    searchWords_->setClearButtonEnabled(true);
    searchCount_ = new QLabel;
    searchCount_->setObjectName("helpCount");
    searchHits_ = new QListWidget;
    searchHits_->setObjectName("helpHits");
    searchHits_->setAccessibleName("Pages found");
    searchHits_->setWordWrap(true);
    auto* column = new QVBoxLayout(tab);
    column->addWidget(searchWords_);
    column->addWidget(searchCount_);
    column->addWidget(searchHits_);
    connect(searchWords_, &QLineEdit::textChanged, this, &HelpWindow::Search);
    connect(searchWords_, &QLineEdit::returnPressed, this, [this] {
        if (searchHits_->count() == 0) return;
        searchHits_->setCurrentRow(0);
        searchHits_->setFocus();
    });
    connect(searchHits_, &QListWidget::currentRowChanged, this, &HelpWindow::OpenHit);
    return tab;
}

void HelpWindow::ShowFirstPage() {
    Open(0);
    show();
    raise();
    activateWindow();
}

void HelpWindow::Open(std::size_t topic) {
    if (topic >= topics_.size()) return;
    const auto address = AddressOf(folder_, topics_[topic].file);
    if (address != page_->source()) page_->setSource(address);
}

// The contents and the title follow wherever a link has led.
void HelpWindow::FollowPage(const QUrl& shown) {
    for (std::size_t i = 0; i < topics_.size(); ++i) {
        if (AddressOf(folder_, topics_[i].file) != shown.adjusted(QUrl::RemoveFragment)) continue;
        const QSignalBlocker quiet(contents_);
        contents_->setCurrentItem(entries_[i]);
        setWindowTitle(i == 0 ? topics_[0].title : topics_[i].title + " - " + topics_[0].title);
    }
}

void HelpWindow::Search() {
    if (texts_ == nullptr) texts_ = std::make_unique<HelpTexts>(folder_, topics_);
    const auto words = searchWords_->text();
    hits_ = texts_->Search(words);
    const QSignalBlocker quiet(searchHits_);
    searchHits_->clear();
    for (const auto& hit : hits_) {
        auto* row = new QListWidgetItem(topics_[hit.topic].title, searchHits_);
        row->setToolTip(hit.excerpt);
    }
    const auto count = static_cast<int>(hits_.size());
    searchCount_->setText(words.trimmed().isEmpty() ? QString()
                          : count == 0              ? QStringLiteral("No page has all these words")
                          : count == 1              ? QStringLiteral("1 page")
                                                    : QStringLiteral("%1 pages").arg(count));
}

void HelpWindow::OpenHit(int row) {
    if (row < 0 || row >= static_cast<int>(hits_.size())) return;
    Open(hits_[static_cast<std::size_t>(row)].topic);
    page_->MarkWords(searchWords_->text());
}

void HelpWindow::PutFocusOnSearch() {
    tabs_->setCurrentWidget(searchTab_);
    searchWords_->setFocus();
    searchWords_->selectAll();
}

void HelpWindow::Print() {
    QPrinter printer;
    QPrintDialog dialog(&printer, this);
    if (dialog.exec() == QDialog::Accepted) page_->print(&printer);
}

}  // namespace arbolith
