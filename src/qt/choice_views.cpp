// Option buttons and check boxes. A click never switches them by itself: the control's state does.
#include "qt/form_window.h"
#include "qt/texts.h"
#include "qt/views.h"

#include <QCheckBox>
#include <QRadioButton>

#include <type_traits>

namespace arbolith {

namespace {

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
