#include "form_script/shown_properties.h"

#include "forms/controls.h"
#include "forms/grid.h"
#include "qt/form_window.h"
#include "qt/texts.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAction>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QProgressBar>

#include <cstdio>

namespace arbolith {

namespace {

using Shown = std::optional<std::string>;

Shown Flag(bool flag) {
    return flag ? "true" : "false";
}

Shown Text(const QString& text) {
    return FromQString(text);
}

Shown Number(int number) {
    return std::to_string(number);
}

QAction* ActionOf(const FormWindow& window, const QString& name) {
    if (const auto* menu = window.findChild<QMenu*>(name)) return menu->menuAction();
    return window.findChild<QAction*>(name);
}

Shown OfMenu(const QAction& action, const std::string& property) {
    if (property == "Caption") return Text(action.isSeparator() ? QString("-") : action.text());
    if (property == "Enabled") return Flag(action.isEnabled());
    if (property == "Visible") return Flag(action.isVisible());
    if (property == "Checked") return Flag(action.isChecked());
    return std::nullopt;
}

Shown OfForm(const FormWindow& window, const std::string& property) {
    if (property == "Caption" || property == "Title") return Text(window.windowTitle());
    if (property == "Visible") return Flag(window.isVisible());
    return std::nullopt;
}

Shown OfList(const QAbstractItemModel& rows, int current, const std::string& property) {
    if (property == "ListCount") return Number(rows.rowCount());
    if (property == "ListIndex") return Number(current);
    if (property == "Text") return Text(rows.index(current, 0).data().toString());
    int row = 0;
    if (std::sscanf(property.c_str(), "List(%d)", &row) == 1 && row >= 0 && row < rows.rowCount())
        return Text(rows.index(row, 0).data().toString());
    return std::nullopt;
}

Shown OfGrid(const QAbstractItemModel& cells, const Grid& grid, const std::string& property) {
    int row = 0;
    int col = 0;
    if (std::sscanf(property.c_str(), "Cell(%d,%d)", &row, &col) != 2) return std::nullopt;
    if (row < 0 || col < 0 || row >= grid.Rows() || col >= grid.Cols()) return std::nullopt;
    row -= grid.FixedRows();
    col -= grid.FixedCols();
    if (row < 0 && col < 0) return std::nullopt;
    if (row < 0) return Text(cells.headerData(col, Qt::Horizontal).toString());
    if (col < 0) return Text(cells.headerData(row, Qt::Vertical).toString());
    return Text(cells.index(row, col).data().toString());
}

// What a kind of widget shows beyond what all of them do.
Shown OfKind(const QWidget& widget, const Control& control, const std::string& property) {
    if (const auto* label = qobject_cast<const QLabel*>(&widget))
        return property == "Caption" ? Text(label->text()) : std::nullopt;
    if (const auto* frame = qobject_cast<const QGroupBox*>(&widget))
        return property == "Caption" ? Text(frame->title()) : std::nullopt;
    if (const auto* button = qobject_cast<const QAbstractButton*>(&widget)) {
        if (property == "Caption") return Text(button->text());
        if (property == "Value") return Flag(button->isChecked());
    }
    if (const auto* field = qobject_cast<const QLineEdit*>(&widget))
        return property == "Text" ? Text(field->text()) : std::nullopt;
    if (const auto* bar = qobject_cast<const QProgressBar*>(&widget)) {
        if (property == "Value") return Number(bar->value());
        if (property == "Max") return Number(bar->maximum());
    }
    if (const auto* combo = qobject_cast<const QComboBox*>(&widget))
        return OfList(*combo->model(), combo->currentIndex(), property);
    const auto* items = qobject_cast<const QAbstractItemView*>(&widget);
    if (items == nullptr) return std::nullopt;
    if (control.Kind() == ControlKind::kGrid)
        return OfGrid(*items->model(), static_cast<const Grid&>(control), property);
    return OfList(*items->model(), items->currentIndex().row(), property);
}

}  // namespace

std::optional<std::string> ShownProperty(const FormWindow& window, const Control& control,
                                         const std::string& property) {
    if (control.Kind() == ControlKind::kForm) return OfForm(window, property);
    const QString name = ObjectNameOf(control);
    if (control.Kind() == ControlKind::kMenuItem) {
        const QAction* action = ActionOf(window, name);
        return action == nullptr ? std::nullopt : OfMenu(*action, property);
    }
    const auto* widget = window.findChild<QWidget*>(name);
    if (widget == nullptr) return std::nullopt;
    if (property == "Enabled") return Flag(widget->isEnabledTo(widget->parentWidget()));
    if (property == "Visible") return Flag(!widget->isHidden());
    if (property == "Showing") return Flag(widget->isVisible());
    if (property == "Focus") return Flag(window.isActiveWindow() && window.focusWidget() == widget);
    return OfKind(*widget, control, property);
}

}  // namespace arbolith
