#include "qt/printing.h"

#include "platform/runtime_error.h"
#include "qt/qt_drawing.h"

#include <QCoreApplication>
#include <QPainter>
#include <QPrinter>
#include <QPrinterInfo>

#include <algorithm>

namespace arbolith {

namespace {

constexpr double kTwipsPerInch = 1440;

QPrinterInfo ChosenPrinter() {
    const QPrinterInfo named = QPrinterInfo::defaultPrinter();
    if (!named.isNull()) return named;
    const auto all = QPrinterInfo::availablePrinters();
    return all.size() == 1 ? all.constFirst() : QPrinterInfo();
}

QRectF PlaceOnPaper(const QPrinter& printer, Size size) {
    const QSizeF full(size.width * printer.logicalDpiX() / kTwipsPerInch,
                      size.height * printer.logicalDpiY() / kTwipsPerInch);
    const QSizeF room = printer.pageRect(QPrinter::DevicePixel).size();
    const double fits = std::min({1.0, room.width() / full.width(), room.height() / full.height()});
    // The origin is the upper left corner of what can be printed on.
    return {QPointF(0, 0), full * fits};
}

}  // namespace

void PrintOnePage(const Drawing& picture) {
    const QPrinterInfo chosen = ChosenPrinter();
    if (chosen.isNull()) throw RuntimeError(ErrorNumber::kPrinter);
    QPrinter printer(chosen, QPrinter::HighResolution);
    printer.setDocName(QCoreApplication::applicationName());
    QPainter painter;
    if (!printer.isValid() || !painter.begin(&printer)) throw RuntimeError(ErrorNumber::kPrinter);
    PaintDrawing(painter, PlaceOnPaper(printer, picture.GetSize()), picture);
    painter.end();
    if (printer.printerState() == QPrinter::Error) throw RuntimeError(ErrorNumber::kPrinter);
}

}  // namespace arbolith
