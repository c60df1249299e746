// The clipboard as another program sees it, and what another program puts there.
#include "forms/application.h"
#include "qt/chart_drawing.h"
#include "qt/qt_drawing.h"
#include "qt/qt_host.h"
#include "windows/chart_testing.h"

#include <QClipboard>
#include <QEventLoop>
#include <QGuiApplication>
#include <QImage>
#include <QProcess>

#include <gtest/gtest.h>

namespace arbolith {

namespace {

using namespace chart_testing;

// What the other program reads, while this one answers it.
QByteArray ReadElsewhere(const QString& kind) {
    QProcess reader;
    QEventLoop loop;
    QObject::connect(&reader, &QProcess::finished, &loop, &QEventLoop::quit);
    reader.start(QStringLiteral(CLIPBOARD_READER), {kind});
    loop.exec();
    EXPECT_EQ(reader.exitCode(), 0);
    return reader.readAllStandardOutput();
}

struct ClipboardTest : testing::Test {
    ClipboardTest() { FillScatter(chart, 3, 16); }

    QtHost host;
    Application application{host, "/tmp", ""};
    Form form{application, "Form", "Form", {9000, 6000}};
    Chart chart{form, "Chart", {0, 0, 6495, 4575}};
};

}  // namespace

TEST_F(ClipboardTest, AnotherProgramReadsTheText) {
    host.SetClipboardText("SAGE\tTVOL (m\xB3/ha)\r\n5\t12.5");
    EXPECT_EQ(ReadElsewhere("text/plain"), QByteArray("SAGE\tTVOL (m\xC2\xB3/ha)\r\n5\t12.5"));
}

TEST_F(ClipboardTest, AnotherProgramReadsTheChartAsTextAndAsPicture) {
    application.drawChart = DrawChart;
    chart.EditCopy({10000, 10000});
    const QByteArray text = ReadElsewhere("text/plain");
    EXPECT_TRUE(text.startsWith("Age (years)\tTDBH\tMDBH\tSDBH\r\n5\t")) << text.toStdString();
    const QImage shown = ImageOf(*host.ClipboardPicture());
    for (const char* kind : {"image/png", "image/bmp"})
        EXPECT_EQ(QImage::fromData(ReadElsewhere(kind)).convertToFormat(shown.format()), shown)
            << kind;
}

TEST_F(ClipboardTest, ATextAloneIsNoPictureForOthers) {
    chart.EditCopy({10000, 10000});
    host.SetClipboardText("text");
    EXPECT_FALSE(ReadElsewhere("formats").contains("image/"));
}

}  // namespace arbolith
