// A picture that the toolkit can paint on anything: a screen, a sheet of paper, an image.
#pragma once

#include "platform/drawing.h"

#include <QImage>
#include <QRectF>

class QPainter;

namespace arbolith {

class QtDrawing : public Drawing {
public:
    /// Paints all of it into a rectangle of the painter's, as sharp as its device is.
    virtual void Paint(QPainter& painter, const QRectF& place) const = 0;

    std::string BitmapFile() const override;
};

/// A picture at 15 twips to the pixel, on white.
QImage ImageOf(const Drawing& drawing);

/// Paints any picture into a rectangle, those of the toolkit's as sharp as the device is.
void PaintDrawing(QPainter& painter, const QRectF& place, const Drawing& drawing);

}  // namespace arbolith
