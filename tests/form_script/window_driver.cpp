#include "form_script/window_driver.h"

#include "form_script/shown_properties.h"
#include "form_script/window_events.h"
#include "qt/chart_view.h"
#include "qt/form_window.h"
#include "qt/texts.h"
#include "qt/window_manager.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QMenu>
#include <QMenuBar>
#include <QTableView>
#include <QTest>

#include <filesystem>
#include <vector>

namespace arbolith {

namespace {

using namespace window_events;

// The menus above an entry, outermost first.
std::vector<MenuItem*> MenusAbove(const Control& item) {
    std::vector<MenuItem*> menus;
    for (Control* above = &item.Parent(); above->Kind() == ControlKind::kMenuItem;
         above = &above->Parent())
        menus.insert(menus.begin(), static_cast<MenuItem*>(above));
    return menus;
}

// A place of a frame that none of its children covers; its middle where there is none.
QPoint FreePlaceOf(const QWidget& widget) {
    constexpr int kStep = 4;
    const QRect inside = widget.rect();
    if (widget.childAt(inside.center()) == nullptr) return inside.center();
    for (int y = kStep / 2; y < inside.height(); y += kStep)
        for (int x = kStep / 2; x < inside.width(); x += kStep)
            if (widget.childAt(x, y) == nullptr) return {x, y};
    return inside.center();
}

class WindowDriver : public Driver {
public:
    WindowDriver(Application& application, WindowManager& windows)
        : application_(application), windows_(windows) {}

    void Click(Control& control) override {
        if (control.Kind() == ControlKind::kMenuItem) return ClickMenu(control);
        QWidget& widget = Approach(control);
        ClickAt(widget, FreePlaceOf(widget));
    }

    void DoubleClick(Control& control) override {
        QWidget& widget = Approach(control);
        if (control.Kind() != ControlKind::kListBox) {
            DoubleClickAt(widget, FreePlaceOf(widget));
            return;
        }
        auto& view = dynamic_cast<QAbstractItemView&>(widget);
        const QModelIndex selected = view.currentIndex();
        if (!selected.isValid()) throw ActionRefused(control.Name() + " has no selected row");
        view.scrollTo(selected);
        DoubleClickAt(*view.viewport(), view.visualRect(selected).center());
    }

    void Focus(Control& control) override {
        if (!control.TakesFocus()) throw ActionRefused(control.Name() + " takes no focus");
        QWidget& widget = Approach(control);
        if (!widget.hasFocus()) {
            // A click on a field that selects its text; others would be changed by one.
            if (control.Kind() == ControlKind::kTextBox &&
                static_cast<TextBox&>(control).SelectsAllOnFocus()) {
                ClickAt(widget, widget.rect().center());
            } else {
                widget.setFocus(Qt::OtherFocusReason);
                Settle();
            }
        }
        RequireUsable(control);
    }

    void Type(TextBox& box, const std::string& text) override {
        const bool replaces = UserActions::TypingReplaces(box);
        Focus(box);
        if (replaces) {
            PressKey(Qt::Key_A, Qt::ControlModifier);
        } else {
            PressKey(Qt::Key_End);
        }
        for (const char c : text) {
            RequireUsable(box);
            // What the last key set off may have taken the focus away.
            if (!Approach(box).hasFocus()) {
                Focus(box);
                PressKey(Qt::Key_End);
            }
            PressKey(Key{Key::kCharacter, static_cast<unsigned char>(c)});
        }
    }

    void Press(Control& control, Key key) override {
        Focus(control);
        PressKey(key);
    }

    void Paste(TextBox& box, const std::string& text) override {
        Focus(box);
        application_.GetHost().SetClipboardText(text);
        QGuiApplication::clipboard()->setText(ToQString(text));
        PressKey(Qt::Key_A, Qt::ControlModifier);
        PressKey(Qt::Key_V, Qt::ControlModifier);
    }

    void SelectRow(ListBox& list, int index) override {
        if (index < 0 || index >= list.ListCount())
            throw ActionRefused(list.Name() + " has no row " + std::to_string(index));
        QWidget& widget = Approach(list);
        QAbstractItemView* rows = dynamic_cast<QAbstractItemView*>(&widget);
        if (auto* combo = qobject_cast<QComboBox*>(&widget)) {
            Focus(list);
            PressKey(Qt::Key_F4);
            rows = combo->view();
        }
        const QModelIndex row = rows->model()->index(index, 0);
        rows->scrollTo(row);
        ClickAt(*rows->viewport(), rows->visualRect(row).center());
    }

    void DragCells(Grid& grid, int row, int col, int rowSel, int colSel) override {
        RequireCell(grid, row, col);
        RequireCell(grid, rowSel, colSel);
        auto& table = dynamic_cast<QTableView&>(Approach(grid));
        const auto placeOf = [&](int r, int c) {
            const auto cell = table.model()->index(r - grid.FixedRows(), c - grid.FixedCols());
            table.scrollTo(cell);
            return table.visualRect(cell).center();
        };
        Drag(*table.viewport(), placeOf(row, col), [&] { return placeOf(rowSel, colSel); });
    }

    // Where several points lie at one place the chart asks which of them is meant.
    void PickPoint(Chart& chart, int series, int point) override {
        auto& view = dynamic_cast<ChartView&>(Approach(chart));
        const DataPoint picked{series, point};
        const auto place = view.Drawn().PlaceOf(picked);
        if (!place) throw ActionRefused(chart.Name() + " doesn't show such a data point");
        const auto there = view.Drawn().PointsAt(place->toPoint());
        ClickAt(*view.viewport(), place->toPoint());
        if (there.size() == 1) return;
        ClickEntry(OpenMenu(), EntryNameOf(picked));
    }

    void Resize(Form& form, Size clientSize) override {
        WindowToUse(form).RequestClientSize(clientSize);
        Settle();
        // A window manager may first report the size before.
        const bool hasSize = QTest::qWaitFor([&] {
            const Size size = form.ClientSize();
            return size.width == clientSize.width && size.height == clientSize.height;
        });
        if (!hasSize) throw ActionRefused(form.Name() + " keeps another size");
    }

    void Close(Form& form) override {
        WindowToUse(form).close();
        Settle();
    }

    void ComeBack(Form& form) override {
        WindowToUse(form).Perform([&](UserActions& actions) { actions.ComeBack(form); });
        Settle();
    }

    std::optional<std::string> Shown(const Control& control, const std::string& property) override {
        if (application_.HasEnded()) return std::nullopt;
        if (property == "Focus") AwaitActiveForm();
        const FormWindow* window = windows_.WindowOf(control.Owner());
        if (window == nullptr) return std::nullopt;
        return ShownProperty(*window, control, property);
    }

    void SavePictures(const std::string& path) override {
        const auto open = windows_.OpenWindows();
        if (open.empty()) throw ActionRefused("no window is open");
        for (FormWindow* window : open) {
            const std::filesystem::path main(path);
            auto file = main;
            if (window != open.back())
                file.replace_filename(main.stem().string() + "-" + window->GetForm().Name() +
                                      main.extension().string());
            SavePart(*window, window->rect(), file.string());
        }
    }
    void SavePictureOf(const Control& control, const std::string& path) override {
        FormWindow* window = windows_.WindowOf(control.Owner());
        const View* view = window == nullptr ? nullptr : window->ViewOf(control);
        const bool isForm = &control == &control.Owner();
        if (!control.Showing() || (view == nullptr && !isForm))
            throw ActionRefused(control.Name() + " is not showing");
        const QWidget* widget = isForm ? window : view->Widget();
        SavePart(*window, {widget->mapTo(window, QPoint()), widget->size()}, path);
    }

private:
    static void SavePart(FormWindow& window, const QRect& part, const std::string& path) {
        if (!window.grab(part).save(QString::fromStdString(path)))
            throw ActionRefused("can't write " + path);
    }
    void RequireUsable(const Control& control) const {
        if (application_.HasEnded()) throw ActionRefused("the program has ended");
        if (!control.Showing()) throw ActionRefused(control.Name() + " is not showing");
        if (!control.Usable()) throw ActionRefused(control.Name() + " is disabled");
    }

    FormWindow& WindowToUse(Form& form) const {
        RequireUsable(form);
        AwaitActiveForm();
        FormWindow* window = windows_.WindowOf(form);
        if (window == nullptr || !window->isVisible())
            throw ActionRefused(form.Name() + " has no window that shows");
        return *window;
    }

    // A window that the last action has shown may still be on its way to the front; a person waits
    // to see it there.
    void AwaitActiveForm() const {
        const Form* active = application_.ActiveForm();
        FormWindow* window = active == nullptr ? nullptr : windows_.WindowOf(*active);
        if (window != nullptr && window->isVisible()) ActivateWindowOf(*window);
    }

    // The control's widget in its window, which becomes the active one.
    QWidget& Approach(Control& control) const {
        RequireUsable(control);
        FormWindow& window = WindowToUse(control.Owner());
        // A list that a key has opened would take the mouse.
        CloseMenus();
        ActivateWindowOf(window);
        RequireUsable(control);
        auto* widget = window.findChild<QWidget*>(ObjectNameOf(control));
        if (widget == nullptr) throw ActionRefused(control.Name() + " has no widget");
        if (!widget->isVisible()) throw ActionRefused(control.Name() + " has a hidden widget");
        if (!widget->isEnabled()) throw ActionRefused(control.Name() + " has a disabled widget");
        return *widget;
    }

    static void RequireCell(const Grid& grid, int row, int col) {
        if (row < grid.FixedRows() || col < grid.FixedCols() || row >= grid.Rows() ||
            col >= grid.Cols())
            throw ActionRefused("no ordinary cell of " + grid.Name());
    }

    void ClickMenu(Control& item) const {
        RequireUsable(item.Owner());
        FormWindow& window = WindowToUse(item.Owner());
        ActivateWindowOf(window);
        try {
            QWidget* above = window.MenuBar();
            for (MenuItem* menu : MenusAbove(item)) {
                ClickEntry(*above, *menu);
                above = window.findChild<QMenu*>(ObjectNameOf(*menu));
            }
            ClickEntry(*above, item);
        } catch (const ActionRefused&) {
            CloseMenus();
            throw;
        }
        CloseMenus();
    }

    // Clicks a title of a menu bar or an entry of an open menu.
    void ClickEntry(QWidget& above, const Control& item) const {
        RequireUsable(item);
        if (!above.isVisible()) throw ActionRefused("the menu of " + item.Name() + " is not open");
        ClickEntry(above, ObjectNameOf(item));
    }

    static void ClickEntry(QWidget& above, const QString& name) {
        for (QAction* action : above.actions()) {
            if (action->objectName() != name) continue;
            if (!action->isEnabled())
                throw ActionRefused(FromQString(name) + " is shown as disabled");
            const auto* bar = qobject_cast<const QMenuBar*>(&above);
            const QRect place = bar != nullptr ? bar->actionGeometry(action)
                                               : dynamic_cast<QMenu&>(above).actionGeometry(action);
            ClickAt(above, place.center());
            return;
        }
        throw ActionRefused(FromQString(name) + " is no entry of its menu");
    }

    static QWidget& OpenMenu() {
        QWidget* popup = QApplication::activePopupWidget();
        if (popup == nullptr) throw ActionRefused("no menu is open");
        return *popup;
    }

    static void CloseMenus() {
        while (QWidget* popup = QApplication::activePopupWidget()) {
            popup->close();
            Settle();
        }
    }

    Application& application_;
    WindowManager& windows_;
};

}  // namespace

std::unique_ptr<Driver> MakeWindowDriver(Application& application, WindowManager& windows) {
    return std::make_unique<WindowDriver>(application, windows);
}

}  // namespace arbolith
