// Menus and their entries. Opening a menu raises its click before it shows, so that its entries can
// still be set; a shortcut chooses an entry without opening the menu.
#include "qt/form_window.h"
#include "qt/texts.h"
#include "qt/views.h"

#include <QAction>
#include <QMenu>

#include <algorithm>

namespace arbolith {

namespace {

bool HasEntries(const MenuItem& item) {
    const auto& controls = item.Owner().Controls();
    return std::any_of(controls.begin(), controls.end(),
                       [&](const Control* other) { return &other->Parent() == &item; });
}

class MenuView final : public QObject, public View {
public:
    MenuView(MenuItem& item, FormWindow& window)
        : QObject(&window), View(item, window, nullptr), item_(item) {
        QWidget* above = MenuAbove();
        if (HasEntries(item)) {
            menu_ = new QMenu(above);
            menu_->setObjectName(ObjectNameOf(item));
            connect(menu_, &QMenu::aboutToShow, this, [this] { RaiseClick(); });
            action_ = menu_->menuAction();
        } else {
            action_ = new QAction(above);
            connect(action_, &QAction::triggered, this, [this] { Choose(); });
        }
        action_->setObjectName(ObjectNameOf(item));
        action_->setSeparator(item.IsSeparator());
        if (!item.Shortcut().empty())
            action_->setShortcut(QKeySequence::fromString(ToQString(item.Shortcut())));
        above->addAction(action_);
    }

    void Refresh() override {
        // A separator with a text would be drawn as a heading.
        const QString caption = item_.IsSeparator() ? QString() : ToQString(item_.Caption());
        if (action_->text() != caption) action_->setText(caption);
        action_->setEnabled(item_.Enabled());
        action_->setVisible(item_.Visible());
        // Only a checked entry shows a mark.
        action_->setCheckable(item_.Checked());
        action_->setChecked(item_.Checked());
    }

    QMenu* Menu() const { return menu_; }

private:
    // The menu that holds the entry, or the window's menu bar.
    QWidget* MenuAbove() {
        auto* above = dynamic_cast<MenuView*>(Window().ViewOf(item_.Parent()));
        if (above != nullptr && above->Menu() != nullptr) return above->Menu();
        return Window().MenuBar();
    }

    void RaiseClick() {
        Perform([this](UserActions&) {
            Application& application = item_.Owner().GetApplication();
            application.Enter([&] {
                application.Activate(item_.Owner());
                item_.Raise(item_.onClick);
            });
        });
    }

    // The menus above have had their clicks when they opened.
    void Choose() {
        if (item_.Usable()) RaiseClick();
        ShowState();
    }

    MenuItem& item_;
    QMenu* menu_ = nullptr;
    QAction* action_ = nullptr;
};

}  // namespace

View* MakeMenuView(MenuItem& item, FormWindow& window) {
    return new MenuView(item, window);
}

}  // namespace arbolith
