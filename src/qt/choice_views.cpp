// Option buttons and check boxes. A click never switches them by itself: the control's state does.
#include "qt/focus_ring.h"
#include "qt/form_window.h"
#include "qt/texts.h"
#include "qt/views.h"

#include <QCheckBox>
#include <QRadioButton>

#include <algorithm>
#include <type_traits>

namespace arbolith {

namespace {

// Between the text and the mark of the focus.
constexpr int kMargin = 4;

template <class Base, class ChoiceControl>
class ChoiceView final : public Base, public View {
public:
    ChoiceView(ChoiceControl& choice, FormWindow& window)
        : Base(window.InsideOf(choice.Parent())), View(choice, window, this), choice_(choice) {
        this->setAutoExclusive(false);
        QObject::connect(this, &Base::clicked, this, [this] {
            Perform([this](UserActions& actions) { actions.Click(choice_); });
        });
    }

    QAccessible::Role Role() const override {
        return std::is_same_v<ChoiceControl, Option> ? QAccessible::RadioButton
                                                     : QAccessible::CheckBox;
    }

    void Refresh() override {
        const QString caption = ToQString(choice_.Caption());
        if (this->text() != caption) this->setText(caption);
        if (this->isChecked() != choice_.Value()) this->setChecked(choice_.Value());
        RefreshWidget();
        RefreshBackColor(this->backgroundRole(), this->foregroundRole());
    }

protected:
    void paintEvent(QPaintEvent* event) override {
        Base::paintEvent(event);
        if (!this->hasFocus()) return;
        // On a colour of the control's own the mark has that of its text.
        const bool isColoured = this->autoFillBackground();
        const int shown = isColoured ? this->width() : this->sizeHint().width() + kMargin;
        PaintFocusRing(*this, {0, 0, std::min(this->width(), shown), this->height()},
                       isColoured ? this->foregroundRole() : QPalette::Highlight);
    }

    void nextCheckState() override {}

    // The whole place can be clicked, not only mark and text.
    bool hitButton(const QPoint& position) const override {
        return this->rect().contains(position);
    }

    void keyPressEvent(QKeyEvent* event) override {
        if (event->key() == Qt::Key_Left || event->key() == Qt::Key_Right) {
            const Key key{event->key() == Qt::Key_Left ? Key::kUp : Key::kDown};
            Perform([&](UserActions& actions) { actions.Press(choice_, key); });
        } else if (event->key() == Qt::Key_Space || !PassKey(*event)) {
            // The space bar presses and lets go, as on a button.
            Base::keyPressEvent(event);
        }
    }

private:
    ChoiceControl& choice_;
};

}  // namespace

View* MakeOptionView(Option& option, FormWindow& window) {
    return new ChoiceView<QRadioButton, Option>(option, window);
}

View* MakeCheckBoxView(CheckBox& box, FormWindow& window) {
    return new ChoiceView<QCheckBox, CheckBox>(box, window);
}

}  // namespace arbolith
