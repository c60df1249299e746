#include "qt/qt_drawing.h"

#include "qt/scale.h"

#include <QBuffer>
#include <QPainter>

namespace arbolith {

std::string QtDrawing::BitmapFile() const {
    QBuffer bytes;
    bytes.open(QIODevice::WriteOnly);
    ImageOf(*this).save(&bytes, "BMP");
    return bytes.data().toStdString();
}

QImage ImageOf(const Drawing& drawing) {
    const auto* own = dynamic_cast<const QtDrawing*>(&drawing);
    if (own == nullptr) return QImage::fromData(QByteArray::fromStdString(drawing.BitmapFile()));
    QImage image(Scale().Pixels(drawing.GetSize()), QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    own->Paint(painter, image.rect());
    return image;
}

void PaintDrawing(QPainter& painter, const QRectF& place, const Drawing& drawing) {
    if (const auto* own = dynamic_cast<const QtDrawing*>(&drawing)) {
        own->Paint(painter, place);
    } else {
        painter.drawImage(place, ImageOf(drawing));
    }
}

}  // namespace arbolith
