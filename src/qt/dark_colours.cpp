#include "qt/dark_colours.h"

#include <QApplication>
#include <QPainter>
#include <QProxyStyle>
#include <QStyleOption>

namespace arbolith {

namespace {

// The toolkit's own style: its edges are darker than a window, also than a dark one.
const QString kOwnStyle = QStringLiteral("fusion");
// How much the corners of its fields are rounded, in pixels.
constexpr double kRounding = 2;

const QColor kWindow(0x32, 0x32, 0x32);
const QColor kField(0x24, 0x24, 0x24);
const QColor kButton(0x3E, 0x3E, 0x3E);
const QColor kText(0xF0, 0xF0, 0xF0);
const QColor kGreyedText(0x94, 0x94, 0x94);
const QColor kGreyedSelection(0x50, 0x50, 0x50);

QColor Between(const QColor& one, const QColor& other) {
    return {(one.red() + other.red()) / 2, (one.green() + other.green()) / 2,
            (one.blue() + other.blue()) / 2};
}

// Draws what the style does, and on a dark window an outline around it.
class OutliningStyle final : public QProxyStyle {
public:
    OutliningStyle() : QProxyStyle(kOwnStyle) {}

    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override {
        QProxyStyle::drawPrimitive(element, option, painter, widget);
        if (element == PE_IndicatorRadioButton) {
            DrawEdge(*painter, *option, option->rect.height() / 2.0);
        } else if (element == PE_FrameLineEdit) {
            DrawEdge(*painter, *option, kRounding);
        } else if (element == PE_IndicatorCheckBox || element == PE_Frame) {
            DrawEdge(*painter, *option, 0);
        }
    }

    void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override {
        QProxyStyle::drawControl(element, option, painter, widget);
        if (element == CE_ProgressBarGroove) DrawEdge(*painter, *option, kRounding);
    }

    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* more) const override {
        // Fainter than edges: it is the numbers that are read.
        if (hint == SH_Table_GridLineColor && option != nullptr && IsDark(option->palette))
            return static_cast<int>(
                Between(option->palette.color(QPalette::Base), OutlineOn(option->palette)).rgb());
        return QProxyStyle::styleHint(hint, option, widget, more);
    }

private:
    // A line of one pixel along the edge, inside it. Around a field it marks the focus as well.
    static void DrawEdge(QPainter& painter, const QStyleOption& option, double rounding) {
        if (!IsDark(option.palette)) return;
        const bool isFocus = rounding == kRounding && option.state & State_HasFocus;
        painter.save();
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(isFocus ? option.palette.color(QPalette::Highlight)
                               : OutlineOn(option.palette));
        painter.setBrush(Qt::NoBrush);
        const QRectF edge = QRectF(option.rect).adjusted(0.5, 0.5, -0.5, -0.5);
        painter.drawRoundedRect(edge, rounding, rounding);
        painter.restore();
    }
};

}  // namespace

bool IsDark(const QPalette& palette) {
    return palette.color(QPalette::Window).lightness() <
           palette.color(QPalette::WindowText).lightness();
}

QPalette DarkPalette() {
    QPalette palette(kButton, kWindow);
    for (const auto role :
         {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::ToolTipText}) {
        palette.setColor(role, kText);
        palette.setColor(QPalette::Disabled, role, kGreyedText);
    }
    palette.setColor(QPalette::Base, kField);
    palette.setColor(QPalette::Disabled, QPalette::Base, kWindow);
    palette.setColor(QPalette::AlternateBase, QColor(0x2C, 0x2C, 0x2C));
    palette.setColor(QPalette::ToolTipBase, kButton);
    palette.setColor(QPalette::PlaceholderText, QColor(0xA0, 0xA0, 0xA0));
    palette.setColor(QPalette::BrightText, Qt::white);
    // Printed pages have links in this colour too, on white.
    palette.setColor(QPalette::Link, QColor(0x58, 0xA0, 0xE0));
    palette.setColor(QPalette::LinkVisited, QColor(0xC0, 0xA0, 0xF0));
    // As with light colours, so that what has a colour of its own keeps fitting to it.
    palette.setColor(QPalette::Highlight, QColor(0x30, 0x8C, 0xC6));
    palette.setColor(QPalette::HighlightedText, Qt::white);
    palette.setColor(QPalette::Disabled, QPalette::Highlight, kGreyedSelection);
    return palette;
}

QColor OutlineOn(const QPalette& palette) {
    return Between(palette.color(QPalette::Window), palette.color(QPalette::WindowText));
}

void OutlineOnDark() {
    if (QApplication::style()->name() == kOwnStyle) QApplication::setStyle(new OutliningStyle);
}

}  // namespace arbolith
