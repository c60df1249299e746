// A button to press.
#include "qt/form_window.h"
#include "qt/texts.h"
#include "qt/views.h"

#include <QPushButton>

namespace arbolith {

namespace {

class ButtonView final : public QPushButton, public View {
public:
    ButtonView(Button& button, FormWindow& window)
        : QPushButton(window.InsideOf(button.Parent())),
          View(button, window, this),
          button_(button) {
        connect(this, &QPushButton::clicked, this,
                [this] { Perform([this](UserActions& actions) { actions.Click(button_); }); });
    }

    void Refresh() override {
        const QString caption = ToQString(button_.Caption());
        if (text() != caption) setText(caption);
        if (isDefault() != button_.IsDefault()) setDefault(button_.IsDefault());
        RefreshWidget();
        RefreshBackColor(QPalette::Button, QPalette::ButtonText);
    }

protected:
    void keyPressEvent(QKeyEvent* event) override {
        // The space bar presses and lets go, so that the button is seen to go down.
        if (event->key() == Qt::Key_Space || !PassKey(*event)) QPushButton::keyPressEvent(event);
    }

private:
    Button& button_;
};

}  // namespace

View* MakeButtonView(Button& button, FormWindow& window) {
    return new ButtonView(button, window);
}

}  // namespace arbolith
