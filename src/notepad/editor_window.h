// The editor's window: the text, its menus, and the line that tells where the cursor is.
#pragma once

#include "notepad/document.h"
#include "notepad/find_dialog.h"
#include "notepad/text_edit.h"

#include <QLabel>
#include <QMainWindow>

class QMenu;
class QSessionManager;

namespace arbolith::notepad {

class EditorWindow : public QMainWindow {
public:
    /// `person` is asked before anything is lost, and lives longer than this; null for boxes of
    /// the window's own.
    explicit EditorWindow(Person* person = nullptr);

    /// Opens the file that the program was started with. False where there is nothing to edit.
    bool Start(const std::string& path);

    TextEdit& Text() { return *text_; }
    const Document& GetDocument() const { return document_; }

    /// The desktop's session ends, or the person thinks better of it.
    void EndSession(QSessionManager& session);

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    void AddFileMenu();
    void AddEditMenu();
    void AddViewMenu();
    void AddStatusLine();
    void ShowName();
    void ShowPlace();
    void ShowZoom();
    bool MayEnd();
    void AskWhatToFind();
    void AskForLine();
    void FindNext(Direction direction);

    TextEdit* text_;
    std::unique_ptr<Person> boxes_;
    Document document_;
    FindDialog* find_;
    QLabel* place_ = nullptr;
    QLabel* lineEnds_ = nullptr;
    QLabel* zoomed_ = nullptr;
    // The person gave the text as it stands up while the session ends; the close needn't ask again.
    bool isGivenUp_ = false;
};

}  // namespace arbolith::notepad
