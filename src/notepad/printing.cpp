#include "notepad/printing.h"

#include "notepad/font.h"
#include "notepad/print_layout.h"
#include "qt/texts.h"

#include <QFontMetricsF>
#include <QMessageBox>
#include <QPrintDialog>
#include <QPrinter>

#include <algorithm>
#include <span>

namespace arbolith::notepad {

namespace {

// Wider texts go across the paper.
constexpr std::size_t kUprightColumns = 95;
// Measured large, so that a font's rounding to whole pixels doesn't show.
constexpr double kMeasuredPoints = 100;

// The place of a character at one point, in the device's own units.
Extent CellOf(QPagedPaintDevice& paper) {
    const QFontMetricsF metrics(TextFont(kMeasuredPoints), &paper);
    return {metrics.horizontalAdvance(u'0') / kMeasuredPoints,
            metrics.lineSpacing() / kMeasuredPoints};
}

// One page, drawn in rows of the painter's font.
class Sheet {
public:
    Sheet(QPainter& painter, const QPagedPaintDevice& paper)
        : painter_(painter),
          width_(paper.width()),
          rowHeight_(QFontMetricsF(painter.font(), &paper).lineSpacing()) {}

    void DrawHeading(const QString& left, const QString& right) const {
        painter_.drawText(RowAt(0), Qt::AlignLeft, left);
        painter_.drawText(RowAt(0), Qt::AlignRight, right);
    }
    void DrawRows(std::span<const std::string> rows) const {
        std::size_t place = kHeadingRows;
        for (const auto& row : rows)
            painter_.drawText(RowAt(place++), Qt::TextDontClip, ToQString(row));
    }

private:
    QRectF RowAt(std::size_t place) const {
        return {0, static_cast<double>(place) * rowHeight_, width_, rowHeight_};
    }

    QPainter& painter_;
    double width_;
    double rowHeight_;
};

}  // namespace

bool PrintPages(QPainter& painter, QPagedPaintDevice& paper, const QString& name,
                const std::string& bytes, const PageRange& wanted) {
    const Extent area{static_cast<double>(paper.width()), static_cast<double>(paper.height())};
    const auto layout = FitToPaper(LongestLine(bytes), area, CellOf(paper));
    const auto rows = RowsOf(bytes, layout.columns);
    const auto pages = static_cast<int>((rows.size() + layout.rows - 1) / layout.rows);
    const int first = std::max(1, wanted.first);
    const int last = wanted.last == 0 ? pages : std::min(pages, wanted.last);
    painter.setFont(TextFont(layout.points));
    for (int page = first; page <= last; ++page) {
        if (page > first && !paper.newPage()) return false;
        const auto begin = static_cast<std::size_t>(page - 1) * layout.rows;
        const auto count = std::min(rows.size() - begin, layout.rows);
        const Sheet sheet(painter, paper);
        sheet.DrawHeading(name, QStringLiteral("%1 of %2").arg(page).arg(pages));
        sheet.DrawRows({rows.data() + begin, count});
    }
    return true;
}

void AskAndPrint(QWidget& window, const QString& name, const std::string& bytes) {
    QPrinter printer(QPrinter::HighResolution);
    printer.setDocName(name);
    printer.setPageOrientation(LongestLine(bytes) > kUprightColumns ? QPageLayout::Landscape
                                                                    : QPageLayout::Portrait);
    QPrintDialog dialog(&printer, &window);
    if (dialog.exec() != QDialog::Accepted) return;
    QPainter painter;
    const bool isDone =
        painter.begin(&printer) &&
        PrintPages(painter, printer, name, bytes, {printer.fromPage(), printer.toPage()}) &&
        painter.end();
    if (!isDone)
        QMessageBox::critical(&window, {}, QStringLiteral("%1 can't be printed.").arg(name));
}

}  // namespace arbolith::notepad
