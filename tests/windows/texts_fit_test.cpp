// The texts on all forms of the program have the room that they need, at the windows' first size
// and larger.
#include "qt/texts.h"
#include "shell/program.h"
#include "window_test.h"

#include <QAbstractButton>
#include <QLabel>
#include <QPushButton>
#include <QStyle>

namespace arbolith {

namespace {

// What a button has at least on either side of its text.
constexpr int kButtonEdge = 2;

struct TextsFitTest : WindowTest {
    TextsFitTest() {
        program.Start();
        UserActions(application).Tick(program.GetSplash().Timer1);
    }

    static int WidthNeeded(const QWidget& widget) {
        const auto width = [&](const QString& text) {
            return widget.fontMetrics().horizontalAdvance(WithoutAccessKey(text).trimmed());
        };
        if (const auto* label = qobject_cast<const QLabel*>(&widget))
            return label->wordWrap() ? 0 : width(label->text());
        if (const auto* button = qobject_cast<const QPushButton*>(&widget))
            return width(button->text()) + 2 * kButtonEdge;
        const auto* choice = qobject_cast<const QAbstractButton*>(&widget);
        if (choice == nullptr) return 0;
        const QStyle& style = *widget.style();
        return style.pixelMetric(QStyle::PM_IndicatorWidth) +
               style.pixelMetric(QStyle::PM_CheckBoxLabelSpacing) + width(choice->text());
    }

    void ExpectThatTextsFit(const Form& form, double share) {
        for (const Control* control : form.Controls()) {
            const View* view = WindowOf(form).ViewOf(*control);
            const QWidget* widget = view == nullptr ? nullptr : view->Widget();
            if (widget == nullptr) continue;
            EXPECT_LE(WidthNeeded(*widget), widget->width())
                << form.Name() << "." << control->Name() << " at " << share;
        }
    }

    void ExpectThatTextsFitAtAllSizes(Form& form) {
        Open(form);
        auto& window = WindowOf(form);
        const QSize first = window.size();
        for (const double share : {1.0, 1.25, 1.5}) {
            window.resize(first * share);
            ExpectThatTextsFit(form, share);
        }
    }

    Program program{application};
};

}  // namespace

TEST_F(TextsFitTest, OnTheMainForm) {
    ExpectThatTextsFitAtAllSizes(program.Run().form);
}

TEST_F(TextsFitTest, OnTheOutputWindow) {
    ExpectThatTextsFitAtAllSizes(program.Results().output.Get().form);
}

TEST_F(TextsFitTest, OnTheChartsWindows) {
    ExpectThatTextsFitAtAllSizes(program.Results().chart.Get());
    ExpectThatTextsFitAtAllSizes(program.Results().chartOptions.Get());
    ExpectThatTextsFitAtAllSizes(program.Results().customChart.Get());
}

TEST_F(TextsFitTest, OnTheDefinitions) {
    ExpectThatTextsFitAtAllSizes(program.Results().definitions.Get());
}

}  // namespace arbolith
