// A button to press.
#include "qt/focus_ring.h"
#include "qt/form_window.h"
#include "qt/texts.h"
#include "qt/views.h"

#include <QPushButton>

#include <algorithm>

namespace arbolith {

namespace {

// Pixels between two buttons of a row.
constexpr int kGap = 6;
// How much darker a marked button is than a selection, in per cent.
constexpr int kDarker = 170;

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
        if (marked_ != button_.IsMarked()) RefreshMark();
        QFont told = Window().TextFont();
        told.setBold(marked_);
        if (font() != told) setFont(told);
    }

protected:
    // Told places may touch: a gap keeps a button apart from the next one in its row.
    QRect ShownPlace() const override {
        QRect place = View::ShownPlace();
        for (const Control* other : button_.Owner().Controls()) {
            if (other->Kind() != ControlKind::kButton || !SharesRowWith(*other)) continue;
            const int left = Window().GetScale().Pixels(other->GetPlace()).left();
            if (left > place.left()) place.setRight(std::min(place.right(), left - kGap));
        }
        return place;
    }

    void paintEvent(QPaintEvent* event) override {
        QPushButton::paintEvent(event);
        if (!hasFocus()) return;
        PaintFocusRing(*this, rect().adjusted(2, 2, -2, -2),
                       marked_ ? QPalette::ButtonText : QPalette::Highlight);
    }

    void keyPressEvent(QKeyEvent* event) override {
        // The space bar presses and lets go, so that the button is seen to go down.
        if (event->key() == Qt::Key_Space || !PassKey(*event)) QPushButton::keyPressEvent(event);
    }

private:
    bool SharesRowWith(const Control& other) const {
        return &other != &button_ && &other.Parent() == &button_.Parent() && other.Visible() &&
               other.GetPlace().top == button_.GetPlace().top;
    }

    // The marked button has the colours of a selection.
    void RefreshMark() {
        marked_ = button_.IsMarked();
        QPalette colours;
        if (marked_) {
            // Styles draw a button lighter than it is told, and white has to be read on it.
            colours.setBrush(QPalette::Button, palette().highlight().color().darker(kDarker));
            colours.setBrush(QPalette::ButtonText, palette().highlightedText());
        }
        setPalette(colours);
    }

    Button& button_;
    bool marked_ = false;
};

}  // namespace

View* MakeButtonView(Button& button, FormWindow& window) {
    return new ButtonView(button, window);
}

}  // namespace arbolith
