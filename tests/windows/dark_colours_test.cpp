// What is seen on a dark desktop: nothing is dark on dark, and where a field or a box is empty its
// outline shows where it is.
#include "qt/dark_colours.h"

#include "demo_form.h"
#include "window_test.h"

#include <QApplication>
#include <QCheckBox>
#include <QImage>
#include <QLineEdit>
#include <QListView>
#include <QProgressBar>
#include <QRadioButton>
#include <QStyle>
#include <QStyleOption>
#include <QTableView>

#include <algorithm>
#include <cmath>
#include <utility>

namespace arbolith {

namespace {

// What texts and what edges need at least, for eyes that see little contrast.
constexpr double kForTexts = 4.5;
constexpr double kForEdges = 3;
// About what the lines of a table have on light colours.
constexpr double kForLinesOfATable = 1.8;

double Luminance(const QColor& colour) {
    const auto linear = [](double part) {
        return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) +
           0.0722 * linear(colour.blueF());
}

// From 1, the same, to 21, black on white.
double Contrast(const QColor& one, const QColor& other) {
    const double a = Luminance(one) + 0.05;
    const double b = Luminance(other) + 0.05;
    return std::max(a, b) / std::min(a, b);
}

struct DarkColoursTest : WindowTest {
    DarkColoursTest() {
        Open(form);
        Do([&] {
            form.field.SetText("");
            form.bar.SetValue(0);
            application.SetFocus(form.button);
        });
        light = Picture();
        OutlineOnDark();
        Wear(DarkPalette());
    }
    ~DarkColoursTest() override {
        QApplication::setStyle("fusion");
        Wear({});
    }

    // The widgets take new colours in an event.
    static void Wear(const QPalette& palette) {
        QApplication::setPalette(palette);
        QApplication::processEvents();
    }

    QImage Picture() { return WindowOf(form).grab().toImage(); }

    // The contrast of the best pixel to the window's ground, from a place of a control on, as far
    // as a step of a few pixels leads inwards.
    double EdgeSeen(const Control& control, QPoint from, QPoint step) {
        auto& widget = WidgetOf<QWidget>(control);
        const QImage image = widget.grab().toImage();
        const double ratio = image.devicePixelRatio();
        double best = 0;
        for (int i = 0; i < 3; ++i) {
            const QPoint at = (QPointF(from + step * i) * ratio).toPoint();
            if (image.rect().contains(at))
                best = std::max(best, Contrast(image.pixelColor(at), window));
        }
        return best;
    }

    // That of the worst of the four sides, in their middles.
    double EdgesSeen(const Control& control, const QRect& place) {
        const QPoint middle = place.center();
        return std::min({EdgeSeen(control, {place.left(), middle.y()}, {1, 0}),
                         EdgeSeen(control, {place.right(), middle.y()}, {-1, 0}),
                         EdgeSeen(control, {middle.x(), place.top()}, {0, 1}),
                         EdgeSeen(control, {middle.x(), place.bottom()}, {0, -1})});
    }

    QRect MarkOf(const Control& control, QStyle::SubElement element) {
        auto& widget = WidgetOf<QAbstractButton>(control);
        QStyleOptionButton option;
        option.initFrom(&widget);
        return widget.style()->subElementRect(element, &option, &widget);
    }

    // The share of a mark's inside that stands out from a field.
    double ShareInside(const Control& control, const QRect& mark) {
        const QImage image = WidgetOf<QWidget>(control).grab(mark.adjusted(2, 2, -2, -2)).toImage();
        int count = 0;
        for (int y = 0; y < image.height(); ++y)
            for (int x = 0; x < image.width(); ++x)
                count += Contrast(image.pixelColor(x, y), DarkPalette().color(QPalette::Base)) >
                         kForEdges;
        return static_cast<double>(count) / (image.width() * image.height());
    }

    const QColor window = DarkPalette().color(QPalette::Window);
    DemoForm form{application};
    QImage light;
};

}  // namespace

TEST(DarkPaletteTest, TextsCanBeReadInEveryState) {
    const QPalette dark = DarkPalette();
    EXPECT_TRUE(IsDark(dark));
    EXPECT_FALSE(IsDark(QApplication::palette()));
    using Pair = std::pair<QPalette::ColorRole, QPalette::ColorRole>;
    for (const auto& [text, ground] :
         {Pair{QPalette::WindowText, QPalette::Window}, Pair{QPalette::Text, QPalette::Base},
          Pair{QPalette::Text, QPalette::AlternateBase},
          Pair{QPalette::ButtonText, QPalette::Button},
          Pair{QPalette::ToolTipText, QPalette::ToolTipBase},
          Pair{QPalette::PlaceholderText, QPalette::Base}, Pair{QPalette::Link, QPalette::Window},
          Pair{QPalette::Link, QPalette::Base}, Pair{QPalette::LinkVisited, QPalette::Base}}) {
        for (const auto group : {QPalette::Active, QPalette::Inactive})
            EXPECT_GE(Contrast(dark.color(group, text), dark.color(group, ground)), kForTexts)
                << text << " on " << ground;
        EXPECT_GE(
            Contrast(dark.color(QPalette::Disabled, text), dark.color(QPalette::Disabled, ground)),
            kForEdges - 0.1)
            << text << " on " << ground;
    }
    for (const auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled})
        EXPECT_GE(Contrast(dark.color(group, QPalette::HighlightedText),
                           dark.color(group, QPalette::Highlight)),
                  kForEdges);
    EXPECT_GE(Contrast(dark.color(QPalette::Highlight), dark.color(QPalette::Window)), kForEdges);
}

TEST_F(DarkColoursTest, EmptyBoxesAndOptionsHaveOutlines) {
    EXPECT_GE(EdgesSeen(form.boxOff, MarkOf(form.boxOff, QStyle::SE_CheckBoxIndicator)), kForEdges);
    EXPECT_GE(EdgesSeen(form.optionOff, MarkOf(form.optionOff, QStyle::SE_RadioButtonIndicator)),
              kForEdges);
}

TEST_F(DarkColoursTest, MarksAreSeenInTheirBoxes) {
    const QRect box = MarkOf(form.boxOn, QStyle::SE_CheckBoxIndicator);
    EXPECT_GT(ShareInside(form.boxOn, box), 0.15);
    EXPECT_EQ(ShareInside(form.boxOff, box), 0);
    const QRect option = MarkOf(form.optionOn, QStyle::SE_RadioButtonIndicator);
    EXPECT_GT(ShareInside(form.optionOn, option), ShareInside(form.optionOff, option) + 0.1);
}

TEST_F(DarkColoursTest, FieldsListsAndBarsHaveOutlines) {
    EXPECT_GE(EdgesSeen(form.field, WidgetOf<QLineEdit>(form.field).rect()), kForEdges);
    EXPECT_GE(EdgesSeen(form.list, WidgetOf<QListView>(form.list).rect()), kForEdges);
    EXPECT_GE(EdgesSeen(form.bar, WidgetOf<QProgressBar>(form.bar).rect()), kForEdges);
}

TEST_F(DarkColoursTest, TheFocusIsSeenOnAField) {
    Do([&] { application.SetFocus(form.field); });
    EXPECT_GE(EdgesSeen(form.field, WidgetOf<QLineEdit>(form.field).rect()), kForEdges);
    const QImage field = WidgetOf<QLineEdit>(form.field).grab().toImage();
    EXPECT_EQ(field.pixelColor(field.width() / 2, 0), DarkPalette().color(QPalette::Highlight));
}

TEST_F(DarkColoursTest, TheLinesOfATableAreSeen) {
    auto& table = WidgetOf<QTableView>(form.table);
    const QRect cell = table.visualRect(table.model()->index(9, 1));
    // The line is the last row of pixels of the cell's place.
    const QImage image = table.viewport()->grab(QRect(cell.left(), cell.bottom(), 4, 4)).toImage();
    double best = 0;
    for (int y = 0; y < image.height(); ++y)
        best = std::max(best, Contrast(image.pixelColor(0, y), table.palette().base().color()));
    EXPECT_GE(best, kForLinesOfATable);
}

TEST_F(DarkColoursTest, WhatHasAColourKeepsItAndItsDarkText) {
    const QImage label = WidgetOf<QWidget>(form.coloured).grab().toImage();
    EXPECT_EQ(label.pixelColor(0, 0), QColor(Qt::cyan));
    const QImage option = WidgetOf<QWidget>(form.colouredOption).grab().toImage();
    EXPECT_EQ(option.pixelColor(option.width() - 1, 0), QColor(Qt::cyan));
}

TEST_F(DarkColoursTest, LightColoursAreDrawnAsWithoutTheOutlines) {
    EXPECT_NE(Picture(), light);
    Wear({});
    EXPECT_EQ(Picture(), light);
}

TEST_F(DarkColoursTest, OutlinesAreAddedOnce) {
    const QStyle* style = QApplication::style();
    OutlineOnDark();
    EXPECT_EQ(QApplication::style(), style);
}

}  // namespace arbolith
