// A list that drops down.
#include "qt/focus_ring.h"
#include "qt/form_window.h"
#include "qt/texts.h"
#include "qt/views.h"

#include <QComboBox>

namespace arbolith {

namespace {

class ComboBoxView final : public QComboBox, public View {
public:
    ComboBoxView(ComboBox& combo, FormWindow& window)
        : QComboBox(window.InsideOf(combo.Parent())), View(combo, window, this), combo_(combo) {
        setFocusPolicy(Qt::StrongFocus);
        connect(this, &QComboBox::activated, this, [this](int row) {
            if (Perform([&](UserActions& actions) { actions.SelectRow(combo_, row); })) ShowState();
        });
    }

    void Refresh() override {
        RefreshRows();
        if (currentIndex() != combo_.ListIndex()) setCurrentIndex(combo_.ListIndex());
        RefreshWidget();
        RefreshBackColor(QPalette::Button, QPalette::ButtonText);
    }

protected:
    void paintEvent(QPaintEvent* event) override {
        QComboBox::paintEvent(event);
        if (hasFocus()) PaintFocusRing(*this, rect().adjusted(2, 2, -2, -2));
    }

    void keyPressEvent(QKeyEvent* event) override {
        const bool opens = event->key() == Qt::Key_F4 || event->key() == Qt::Key_Space ||
                           event->modifiers() & Qt::AltModifier;
        if (opens || !PassKey(*event)) QComboBox::keyPressEvent(event);
    }

    // A page that is scrolled past the field must not change it.
    void wheelEvent(QWheelEvent* event) override { event->ignore(); }

private:
    void RefreshRows() {
        for (int row = 0; row < combo_.ListCount(); ++row) {
            const QString text = ToQString(combo_.List()[static_cast<std::size_t>(row)]);
            if (row >= count()) {
                addItem(text);
            } else if (itemText(row) != text) {
                setItemText(row, text);
            }
        }
        while (count() > combo_.ListCount()) removeItem(count() - 1);
    }

    ComboBox& combo_;
};

}  // namespace

View* MakeComboBoxView(ComboBox& combo, FormWindow& window) {
    return new ComboBoxView(combo, window);
}

}  // namespace arbolith
