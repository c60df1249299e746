#include "qt/scale.h"

#include "qt/texts.h"

#include <QFontMetricsF>

#include <algorithm>
#include <cmath>

namespace arbolith {

namespace {

constexpr double kTwipsPerPixel = 15;

// The font that the forms are laid out for: the height of its line, and the width of a sample.
constexpr double kLineHeight = 14.0;
constexpr double kSampleWidth = 196.0;
const QString kSample = QStringLiteral("Choose one of the options below");
// A font that is larger by less than this counts as the same.
constexpr double kTolerance = 1.05;

// What a button has above and below its line of text: at least, and where it is made to fit.
constexpr double kTightPadding = 8;
constexpr double kPadding = 12;

// The told height of the smallest button in pixels; 0 for a form without buttons.
double SmallestButton(const Form& form) {
    int smallest = 0;
    for (const Control* control : form.Controls()) {
        const int height = control->GetPlace().height;
        if (control->Kind() != ControlKind::kButton || height <= 0) continue;
        smallest = smallest == 0 ? height : std::min(smallest, height);
    }
    return smallest / kTwipsPerPixel;
}

}  // namespace

double Scale::FontFactor(const QFont& font) {
    const QFontMetricsF metrics(font);
    const double factor =
        std::max(metrics.height() / kLineHeight, metrics.horizontalAdvance(kSample) / kSampleWidth);
    return factor < kTolerance ? 1 : factor;
}

Scale Scale::For(const Form& form, const QFont& font) {
    const double factor = FontFactor(font);
    const double button = SmallestButton(form);
    const double line = QFontMetricsF(font).height();
    if (button == 0 || button * factor >= line + kTightPadding) return Scale(factor);
    return Scale((line + kPadding) / button);
}

double Scale::TightnessOf(const Form& form, const QFont& font) {
    const QFontMetricsF metrics(font);
    double wanted = FontFactor(font);
    for (const Control* control : form.Controls()) {
        const double width = control->GetPlace().width / kTwipsPerPixel;
        if (control->Kind() != ControlKind::kButton || width <= 0) continue;
        const QString text = WithoutAccessKey(ToQString(control->Caption()));
        wanted = std::max(wanted, (metrics.horizontalAdvance(text) + kPadding) / width);
    }
    return std::min(wanted, For(form, font).Factor()) / FontFactor(font);
}

int Scale::Pixels(int twips) const {
    return static_cast<int>(std::lround(twips * factor_ / kTwipsPerPixel));
}

QRect Scale::Pixels(const Place& place) const {
    const QPoint topLeft(Pixels(place.left), Pixels(place.top));
    const QPoint behind(Pixels(place.left + place.width), Pixels(place.top + place.height));
    return {topLeft, QSize(behind.x() - topLeft.x(), behind.y() - topLeft.y())};
}

QSize Scale::Pixels(Size size) const {
    return {Pixels(size.width), Pixels(size.height)};
}

Size Scale::Twips(QSize pixels) const {
    const auto twips = [this](int length) {
        return static_cast<int>(std::lround(length * kTwipsPerPixel / factor_));
    };
    return {twips(pixels.width()), twips(pixels.height())};
}

}  // namespace arbolith
