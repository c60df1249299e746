// What is drawn: colours, emphasis, headings, and that nothing is cut off. With WINDOW_PICTURES set
// to a folder the demo form is also left there as a picture.
#include "demo_form.h"
#include "window_test.h"

#include <QApplication>
#include <QImage>
#include <QLabel>
#include <QMenuBar>
#include <QProgressBar>
#include <QTableView>
#include <QTemporaryDir>

#include <algorithm>

namespace arbolith {

namespace {

struct RenderingTest : WindowTest {
    RenderingTest() {
        Open(form);
        application.Enter([&] { application.SetFocus(form.button); });
    }

    QImage PictureOf(const Control& control) { return WidgetOf<QWidget>(control).grab().toImage(); }

    // How many pixels of a colour there are, told as a share of all.
    static double Share(const QImage& image, QColor colour) {
        int count = 0;
        for (int y = 0; y < image.height(); ++y)
            for (int x = 0; x < image.width(); ++x) count += image.pixelColor(x, y) == colour;
        return static_cast<double>(count) / (image.width() * image.height());
    }

    // The darkest pixel, from 0 to 255.
    static int Darkest(const QImage& image) {
        int darkest = 255;
        for (int y = 0; y < image.height(); ++y)
            for (int x = 0; x < image.width(); ++x)
                darkest = std::min(darkest, qGray(image.pixel(x, y)));
        return darkest;
    }

    QImage CellImage(int row, int col) {
        auto& view = WidgetOf<QTableView>(form.table);
        const QRect cell = view.visualRect(view.model()->index(row - 1, col - 1));
        return view.viewport()->grab(cell).toImage();
    }

    // Columns of pixels from the left that are all of the first one's colour.
    static int EmptyFromLeft(const QImage& image) {
        const QColor ground = image.pixelColor(0, 0);
        for (int x = 0; x < image.width(); ++x)
            for (int y = 0; y < image.height() - 2; ++y)
                if (image.pixelColor(x, y) != ground) return x;
        return image.width();
    }

    DemoForm form{application};
};

}  // namespace

TEST_F(RenderingTest, EveryKindOfControlIsDrawn) {
    const QPixmap picture = WindowOf(form).grab();
    EXPECT_EQ(picture.deviceIndependentSize().toSize(), WindowOf(form).size());
    if (qEnvironmentVariableIsSet("WINDOW_PICTURES")) {
        const QString name = QString("%1/demo-%2x.png")
                                 .arg(qEnvironmentVariable("WINDOW_PICTURES"))
                                 .arg(picture.devicePixelRatio());
        EXPECT_TRUE(picture.save(name));
    }
    for (const Control* control : form.Controls())
        EXPECT_NE(WindowOf(form).ViewOf(*control), nullptr) << control->Name();
}

TEST_F(RenderingTest, AColourFillsALabelBehindDarkText) {
    const QImage label = PictureOf(form.coloured);
    EXPECT_GT(Share(label, Qt::cyan), 0.7);
    EXPECT_LT(Darkest(label), 80);
    EXPECT_GT(Share(PictureOf(form.colouredOption), Qt::cyan), 0.7);
    Do([&] { form.coloured.SetBackColor(kButtonFace); });
    EXPECT_EQ(Share(PictureOf(form.coloured), Qt::cyan), 0);
}

TEST_F(RenderingTest, DarkTextOnColourAlsoInADarkTheme) {
    const QPalette before = QApplication::palette();
    QPalette dark(QColor(40, 40, 40));
    QApplication::setPalette(dark);
    const QImage plain = PictureOf(form.plain);
    const QImage coloured = PictureOf(form.coloured);
    QApplication::setPalette(before);
    EXPECT_GT(Share(coloured, Qt::cyan), 0.7);
    EXPECT_LT(Darkest(coloured), 80);
    EXPECT_NE(plain.pixelColor(0, 0), coloured.pixelColor(0, 0));
}

TEST_F(RenderingTest, WhatIsDisabledLooksGrey) {
    EXPECT_LT(Darkest(PictureOf(form.plain)), 80);
    EXPECT_GT(Darkest(PictureOf(form.greyed)), 110);
}

TEST_F(RenderingTest, AHeadingIsLargeAndBold) {
    const QFont font = WidgetOf<QLabel>(form.heading).font();
    EXPECT_TRUE(font.bold());
    EXPECT_DOUBLE_EQ(font.pointSizeF(), 12);
}

TEST_F(RenderingTest, ALinkIsUnderlinedAndShowsAHand) {
    const auto& link = WidgetOf<QLabel>(form.link);
    EXPECT_TRUE(link.font().underline());
    EXPECT_EQ(link.cursor().shape(), Qt::PointingHandCursor);
}

TEST_F(RenderingTest, TextStandsWhereItsLabelSays) {
    const int width = PictureOf(form.right).width();
    EXPECT_LT(EmptyFromLeft(PictureOf(form.plain)), width / 20);
    EXPECT_GT(EmptyFromLeft(PictureOf(form.right)), width / 2);
    const int centred = EmptyFromLeft(PictureOf(form.centred));
    EXPECT_GT(centred, width / 4);
    EXPECT_LT(centred, width / 2);
}

TEST_F(RenderingTest, NoTextIsCutOff) {
    for (const Control* control : form.Controls()) {
        if (control->Kind() != ControlKind::kLabel && control->Kind() != ControlKind::kButton)
            continue;
        const auto& widget = WidgetOf<QWidget>(*control);
        const QSize needed = widget.hasHeightForWidth()
                                 ? QSize(0, widget.heightForWidth(widget.width()))
                                 : widget.sizeHint();
        EXPECT_LE(needed.height(), widget.height()) << control->Name();
        EXPECT_LE(needed.width(), widget.width()) << control->Name();
    }
}

TEST_F(RenderingTest, NumbersStandToTheRightAndTextsToTheLeft) {
    EXPECT_GT(EmptyFromLeft(CellImage(10, 1)), CellImage(10, 1).width() / 3);
    EXPECT_LT(EmptyFromLeft(CellImage(10, 5)), CellImage(10, 5).width() / 4);
}

TEST_F(RenderingTest, ACentredRowLooksLikeAHeading) {
    EXPECT_NE(CellImage(1, 6).pixelColor(0, 0), CellImage(10, 6).pixelColor(0, 0));
    EXPECT_GT(EmptyFromLeft(CellImage(1, 6)), 3);
}

TEST_F(RenderingTest, TheSelectionIsHighlighted) {
    const QColor highlight = WindowOf(form).palette().color(QPalette::Highlight);
    EXPECT_GT(Share(CellImage(4, 3), highlight), 0.5);
    EXPECT_GT(Share(CellImage(3, 2), highlight), 0.5);
    EXPECT_EQ(Share(CellImage(6, 3), highlight), 0);
}

TEST_F(RenderingTest, AColumnIsNoNarrowerThanItsTexts) {
    auto& table = WidgetOf<QTableView>(form.table);
    const int before = table.columnWidth(2);
    Do([&] { form.table.SetCell(10, 3, "123456789.123"); });
    EXPECT_GT(table.columnWidth(2), before);
    EXPECT_GT(EmptyFromLeft(CellImage(10, 3)), 0);
    Do([&] { form.table.SetCell(10, 3, "1.5"); });
    EXPECT_EQ(table.columnWidth(2), before);
}

TEST_F(RenderingTest, ANumberThatDoesNotFitIsVisiblyCut) {
    Do([&] { form.table.SetCell(10, 3, "123456789.123"); });
    auto& table = WidgetOf<QTableView>(form.table);
    table.setColumnWidth(2, table.columnWidth(2) / 2);
    const QImage cut = CellImage(10, 3);
    // Other digits behind the cut change nothing, others at its front do.
    Do([&] { form.table.SetCell(10, 3, "123456789.999"); });
    EXPECT_EQ(cut, CellImage(10, 3));
    Do([&] { form.table.SetCell(10, 3, "923456789.123"); });
    EXPECT_NE(cut, CellImage(10, 3));
}

TEST_F(RenderingTest, ABarShowsItsValue) {
    EXPECT_EQ(WidgetOf<QProgressBar>(form.bar).value(), 40);
    EXPECT_EQ(driver->Shown(form.bar, "Max"), "100");
    Do([&] { form.bar.SetValue(100); });
    EXPECT_EQ(driver->Shown(form.bar, "Value"), "100");
}

TEST_F(RenderingTest, PicturesOfTheWindowsAreSaved) {
    Form other(application, "Other", "Other", {3000, 3000});
    Open(other);
    const QTemporaryDir folder;
    const QString path = folder.filePath("shot.png");
    driver->SavePictures(path.toStdString());
    EXPECT_EQ(QImage(path).size(), WindowOf(other).size() * WindowOf(other).devicePixelRatio());
    EXPECT_FALSE(QImage(folder.filePath("shot-DemoForm.png")).isNull());
    EXPECT_THROW(driver->SavePictures("/no/such/folder/shot.png"), ActionRefused);
}

}  // namespace arbolith
