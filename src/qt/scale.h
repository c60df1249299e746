// From the twips in which the forms are told to the pixels of a screen.
#pragma once

#include "forms/form.h"

#include <QFont>
#include <QRect>
#include <QSize>

namespace arbolith {

/// One form's scale: its told places, 15 twips to the pixel, times one factor for the whole form,
/// so that the desktop's font fits. Pixels are those of the toolkit, not of the device.
class Scale {
public:
    explicit Scale(double factor = 1) : factor_(factor) {}

    /// The scale of a form under a font: 1 where the font is no larger than the one the forms are
    /// laid out for and the smallest button holds a line of it, more where that needs it.
    static Scale For(const Form& form, const QFont& font);

    bool operator==(const Scale&) const = default;

    double Factor() const { return factor_; }
    /// How much larger the font is than the one the forms are laid out for; at least 1.
    static double FontFactor(const QFont& font);

    /// How much more room than its font alone a form's buttons want for their texts; at least 1,
    /// and no more than the form's own scale gives them.
    static double TightnessOf(const Form& form, const QFont& font);

    int Pixels(int twips) const;
    /// Rounded edge by edge, so that what touches goes on touching.
    QRect Pixels(const Place& place) const;
    QSize Pixels(Size size) const;
    /// The way back; `Pixels` of it gives the same size again.
    Size Twips(QSize pixels) const;

private:
    double factor_;
};

}  // namespace arbolith
