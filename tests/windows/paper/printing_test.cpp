// What comes out of a printer: a real queue, whose paper is looked at. Its sheet is 595 by 842
// points and can be printed on from 18 points at the left and 36 at the top to the same at the
// other side.
#include "qt/printing.h"

#include "forms/application.h"
#include "qt/chart_drawing.h"
#include "qt/qt_drawing.h"
#include "qt/qt_host.h"
#include "unit/platform/temporary_folder.h"
#include "windows/chart_testing.h"

#include <QImage>
#include <QPainter>
#include <QProcess>

#include <future>
#include <gtest/gtest.h>

namespace arbolith {

namespace {

using namespace chart_testing;

constexpr int kPixelsPerInch = 72;
constexpr int kTwipsPerPoint = 20;
constexpr QRect kPrintable(18, 36, 559, 770);

class BlackSheet : public QtDrawing {
public:
    explicit BlackSheet(Size size) : size_(size) {}
    Size GetSize() const override { return size_; }
    void Paint(QPainter& painter, const QRectF& place) const override {
        painter.fillRect(place, Qt::black);
    }

private:
    Size size_;
};

struct PaperTest : testing::Test {
    // Prints, and keeps what the printer got in the file `paper.pdf`.
    void Print(const Drawing& drawing) {
        auto paper = std::async(std::launch::async, [] {
            std::ifstream pipe(qEnvironmentVariable("PAPER").toStdString(), std::ios::binary);
            return std::string(std::istreambuf_iterator<char>(pipe), {});
        });
        host.Print(drawing);
        folder.Write("paper.pdf", paper.get());
    }

    // What a program says about the paper.
    QByteArray Ask(const QString& program, const QStringList& before, const QStringList& behind) {
        QProcess process;
        const QString file = QString::fromStdString(folder.PathOf("paper.pdf"));
        process.start(program, before + QStringList{file} + behind);
        EXPECT_TRUE(process.waitForFinished());
        EXPECT_EQ(process.exitCode(), 0);
        return process.readAllStandardOutput();
    }

    // The paper at a pixel a point.
    QImage Look() {
        return QImage::fromData(
            Ask("pdftoppm", {"-singlefile", "-r", QString::number(kPixelsPerInch)}, {}));
    }

    // Where the paper isn't white.
    static QRect Printed(const QImage& paper) {
        QRect printed;
        for (int y = 0; y < paper.height(); ++y)
            for (int x = 0; x < paper.width(); ++x)
                if (qGray(paper.pixel(x, y)) < 128) printed |= QRect(x, y, 1, 1);
        return printed;
    }

    static void ExpectNear(const QRect& found, const QRect& expected) {
        EXPECT_NEAR(found.left(), expected.left(), 1);
        EXPECT_NEAR(found.top(), expected.top(), 1);
        EXPECT_NEAR(found.width(), expected.width(), 1);
        EXPECT_NEAR(found.height(), expected.height(), 1);
    }

    QtHost host;
    TemporaryFolder folder;
};

}  // namespace

TEST_F(PaperTest, APictureComesInItsOwnSizeAtTheUpperLeft) {
    Print(BlackSheet({10000, 6000}));
    const QImage paper = Look();
    EXPECT_EQ(paper.size(), QSize(595, 842));
    ExpectNear(Printed(paper),
               {kPrintable.topLeft(), QSize(10000 / kTwipsPerPoint, 6000 / kTwipsPerPoint)});
}

TEST_F(PaperTest, APictureThatDoesNotFitIsMadeSmaller) {
    Print(BlackSheet({20000, 10000}));
    ExpectNear(Printed(Look()),
               {kPrintable.topLeft(), QSize(kPrintable.width(), kPrintable.width() / 2)});
    Print(BlackSheet({10000, 20000}));
    ExpectNear(Printed(Look()),
               {kPrintable.topLeft(), QSize(kPrintable.height() / 2, kPrintable.height())});
}

TEST_F(PaperTest, AChartIsPrintedSharplyOnOnePage) {
    Application application(host, "/tmp", "");
    Form form(application, "Form", "Form", {9000, 6000});
    Chart chart(form, "Chart", {0, 0, 6495, 4575});
    FillScatter(chart, 24, 16);
    Print(*DrawChart(chart, {10000, 10000}));
    const QByteArray text = Ask("pdftotext", {}, {"-"});
    EXPECT_TRUE(text.contains("White Pine : Volume (m\xC2\xB3/ha) vs Age (years)"));
    for (const char* name : kNames) EXPECT_TRUE(text.contains(name)) << name;
    EXPECT_EQ(text.count('\f'), 1);
    // Two lines of headings, and not one picture made of pixels.
    EXPECT_EQ(Ask("pdfimages", {"-list"}, {}).count('\n'), 2);
    const QRect printed = Printed(Look());
    EXPECT_TRUE(QRect(kPrintable.topLeft(), QSize(500, 500)).contains(printed));
    EXPECT_GT(printed.height(), 450);
}

}  // namespace arbolith
