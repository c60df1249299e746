// The window that shows the help pages where the desktop has no viewer for compiled help: contents
// and search at the left, the page at the right.
#pragma once

#include "qt/help_contents.h"

#include <QMainWindow>

#include <functional>
#include <memory>
#include <vector>

class QAction;
class QLabel;
class QLineEdit;
class QListWidget;
class QTabWidget;
class QTreeWidget;
class QTreeWidgetItem;

namespace arbolith {

class HelpPage;

class HelpWindow : public QMainWindow {
public:
    /// Over the pages in a help folder, on the first of them.
    explicit HelpWindow(const QString& folder);
    ~HelpWindow() override;

    /// Whether the folder holds anything to show.
    bool HasPages() const { return !topics_.empty(); }
    /// Goes to the first page, and in front of the other windows.
    void ShowFirstPage();
    HelpPage& Page() { return *page_; }

    /// Called for a link to anything but a help page.
    std::function<void(const QString& address)> onOtherLink;

private:
    QAction* AddAction(const char* name, const QString& text, const QList<QKeySequence>& keys,
                       const std::function<void()>& act);
    void BuildToolBar();
    QWidget* BuildContents();
    QWidget* BuildSearch();
    void Open(std::size_t topic);
    void FollowPage(const QUrl& shown);
    void Search();
    void OpenHit(int row);
    void PutFocusOnSearch();
    void Print();

    QString folder_;
    std::vector<HelpTopic> topics_;
    std::unique_ptr<HelpTexts> texts_;  ///< Read at the first search.
    std::vector<HelpHit> hits_;
    HelpPage* page_;
    QTabWidget* tabs_ = nullptr;
    QTreeWidget* contents_ = nullptr;
    std::vector<QTreeWidgetItem*> entries_;
    QWidget* searchTab_ = nullptr;
    QLineEdit* searchWords_ = nullptr;
    QLabel* searchCount_ = nullptr;
    QListWidget* searchHits_ = nullptr;
};

}  // namespace arbolith
