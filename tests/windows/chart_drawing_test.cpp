// A chart's picture, and how it gets onto the clipboard.
#include "qt/chart_drawing.h"

#include "chart_testing.h"
#include "qt/qt_drawing.h"
#include "qt/series_look.h"
#include "qt/texts.h"
#include "window_test.h"

#include <QApplication>
#include <QClipboard>
#include <QMimeData>
#include <QPainter>

namespace arbolith {

namespace {

using namespace chart_testing;

constexpr Size kSheet = {10000, 10000};
constexpr int kPixels = 667;

struct ChartDrawingTest : WindowTest {
    ChartDrawingTest() { FillScatter(chart, 3, 16); }

    static int Count(const QImage& image, const QColor& colour) {
        int count = 0;
        for (int y = 0; y < image.height(); ++y)
            for (int x = 0; x < image.width(); ++x) count += image.pixelColor(x, y) == colour;
        return count;
    }

    Form form{application, "Form", "Form", {9000, 6000}};
    Chart chart{form, "Chart", {0, 0, 6495, 4575}};
};

}  // namespace

TEST_F(ChartDrawingTest, APictureHasTheToldSizeWhateverTheControlsIs) {
    const auto drawing = DrawChart(chart, kSheet);
    EXPECT_EQ(drawing->GetSize().width, kSheet.width);
    EXPECT_EQ(drawing->GetSize().height, kSheet.height);
    EXPECT_EQ(ImageOf(*drawing).size(), QSize(kPixels, kPixels));
}

TEST_F(ChartDrawingTest, ThePictureShowsTheChart) {
    const QImage image = ImageOf(*DrawChart(chart, kSheet));
    EXPECT_EQ(image.pixelColor(1, 1), QColor(Qt::white));
    for (int i = 0; i < 3; ++i) EXPECT_GT(Count(image, LookOfSeries(i).line.color()), 100) << i;
}

TEST_F(ChartDrawingTest, ThePictureStaysAsItWasDrawn) {
    const auto drawing = DrawChart(chart, kSheet);
    const QImage before = ImageOf(*drawing);
    FillBars(chart, 2, 5);
    EXPECT_EQ(ImageOf(*drawing), before);
    EXPECT_NE(ImageOf(*DrawChart(chart, kSheet)), before);
}

TEST_F(ChartDrawingTest, ABitmapFileHoldsIt) {
    const auto drawing = DrawChart(chart, kSheet);
    const std::string bytes = drawing->BitmapFile();
    EXPECT_TRUE(bytes.starts_with("BM"));
    EXPECT_EQ(
        QImage::fromData(QByteArray::fromStdString(bytes)).convertToFormat(QImage::Format_RGB32),
        ImageOf(*drawing));
}

TEST_F(ChartDrawingTest, WhatIsPaintedLargerIsSharper) {
    const auto drawing = DrawChart(chart, kSheet);
    QImage large(4 * kPixels, 4 * kPixels, QImage::Format_RGB32);
    large.fill(Qt::white);
    QPainter painter(&large);
    PaintDrawing(painter, large.rect(), *drawing);
    painter.end();
    const QImage small = ImageOf(*drawing);
    EXPECT_NE(large, small.scaled(large.size()));
    // Lines are four times as wide, and hardly paler at their edges.
    const QColor colour = LookOfSeries(0).line.color();
    EXPECT_GT(Count(large, colour), 14 * Count(small, colour));
}

TEST_F(ChartDrawingTest, AnyOtherPictureIsPaintedFromItsBitmap) {
    const BlankDrawing blank({150, 300});
    QImage image(40, 40, QImage::Format_RGB32);
    image.fill(Qt::black);
    QPainter painter(&image);
    PaintDrawing(painter, {10, 10, 10, 20}, blank);
    painter.end();
    EXPECT_EQ(Count(image, Qt::white), 10 * 20);
    EXPECT_EQ(image.pixelColor(10, 29), QColor(Qt::white));
}

TEST_F(ChartDrawingTest, TheClipboardHoldsTextAndPicture) {
    chart.EditCopy(kSheet);
    const QMimeData* held = QGuiApplication::clipboard()->mimeData();
    EXPECT_TRUE(held->text().startsWith("Age (years)\tTDBH\tMDBH\tSDBH\r\n5\t"));
    EXPECT_EQ(qvariant_cast<QImage>(held->imageData()).size(), QSize(kPixels, kPixels));
    EXPECT_EQ(host.ClipboardText(), FromQString(held->text()));
    const auto picture = host.ClipboardPicture();
    ASSERT_NE(picture, nullptr);
    EXPECT_EQ(picture->GetSize().width, kSheet.width);
}

TEST_F(ChartDrawingTest, AnotherTextOnTheClipboardIsNoPictureOfOurs) {
    chart.EditCopy(kSheet);
    QGuiApplication::clipboard()->setText("other");
    EXPECT_EQ(host.ClipboardPicture(), nullptr);
    chart.EditCopy(kSheet);
    host.SetClipboardText("table");
    EXPECT_EQ(host.ClipboardPicture(), nullptr);
}

}  // namespace arbolith
