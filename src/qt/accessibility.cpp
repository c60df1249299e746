#include "qt/accessibility.h"

#include "qt/form_window.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAccessibleWidget>
#include <QComboBox>

namespace arbolith {

namespace {

// A view with a role of its own. What its widget is made of is nobody's business.
class AccessibleView final : public QAccessibleWidget {
public:
    AccessibleView(QWidget* widget, View& view)
        : QAccessibleWidget(widget, view.Role()), view_(view) {}

    int childCount() const override { return 0; }
    QAccessibleInterface* child(int) const override { return nullptr; }
    QAccessibleInterface* childAt(int, int) const override { return nullptr; }

    QAccessible::State state() const override {
        QAccessible::State state = QAccessibleWidget::state();
        if (const auto* button = qobject_cast<QAbstractButton*>(widget())) {
            state.checkable = button->isCheckable();
            state.checked = button->isChecked();
        }
        return state;
    }

    QStringList actionNames() const override {
        QStringList names = QAccessibleWidget::actionNames();
        if (widget()->isEnabled() && CanBePressed()) names.prepend(OwnAction());
        return names;
    }

    void doAction(const QString& name) override {
        if (name == OwnAction() && CanBePressed()) {
            view_.Press();
        } else {
            QAccessibleWidget::doAction(name);
        }
    }

private:
    bool CanBePressed() const {
        return role() != QAccessible::Chart && role() != QAccessible::Graphic;
    }

    QString OwnAction() const {
        return qobject_cast<QAbstractButton*>(widget()) == nullptr ? pressAction() : toggleAction();
    }

    View& view_;
};

// By itself a combo box is told by what is chosen alone.
class AccessibleComboBox final : public QAccessibleWidget {
public:
    explicit AccessibleComboBox(QComboBox& box)
        : QAccessibleWidget(&box, QAccessible::ComboBox), box_(box) {}

    int childCount() const override { return 1; }
    QAccessibleInterface* child(int index) const override {
        return index == 0 ? QAccessible::queryAccessibleInterface(box_.view()) : nullptr;
    }
    QAccessibleInterface* childAt(int, int) const override { return nullptr; }
    int indexOfChild(const QAccessibleInterface* child) const override {
        return child != nullptr && child->object() == box_.view() ? 0 : -1;
    }

    QString text(QAccessible::Text kind) const override {
        if (kind == QAccessible::Value) return box_.currentText();
        const QString text = QAccessibleWidget::text(kind);
        return kind == QAccessible::Name ? text + QStringLiteral(": ") + box_.currentText() : text;
    }

    QStringList actionNames() const override {
        QStringList names = QAccessibleWidget::actionNames();
        if (box_.isEnabled()) names.prepend(showMenuAction());
        return names;
    }

    void doAction(const QString& name) override {
        if (name == showMenuAction() && box_.isEnabled()) {
            box_.showPopup();
        } else {
            QAccessibleWidget::doAction(name);
        }
    }

private:
    QComboBox& box_;
};

QAccessibleInterface* InterfaceOf(const QString&, QObject* object) {
    auto* widget = qobject_cast<QWidget*>(object);
    if (widget == nullptr) return nullptr;
    if (dynamic_cast<FormWindow*>(widget) != nullptr)
        return new QAccessibleWidget(widget, QAccessible::Window);
    auto* view = dynamic_cast<View*>(widget);
    auto* comboBox = qobject_cast<QComboBox*>(widget);
    if (view != nullptr && comboBox != nullptr) return new AccessibleComboBox(*comboBox);
    if (view == nullptr || view->Role() == QAccessible::NoRole) return nullptr;
    return new AccessibleView(widget, *view);
}

}  // namespace

void TellAssistiveTechnology() {
    QAccessible::installFactory(InterfaceOf);
}

}  // namespace arbolith
