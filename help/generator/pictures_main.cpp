// Draws the charts of the help pages and writes the note on Norway spruce as a PDF:
// help_pictures TARGET, the help folder that help_pages has made.
#include "generator/growth.h"
#include "generator/line_chart.h"
#include "generator/pictures.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QFontDatabase>
#include <QGuiApplication>
#include <QImage>
#include <QPageLayout>
#include <QPdfWriter>
#include <QTextDocument>
#include <QUrl>

#include <iostream>
#include <stdexcept>
#include <string>

namespace {

using namespace arbolith::help;

constexpr const char* kFont = "Liberation Sans";
constexpr const char* kNote = "norway-spruce.html";
constexpr const char* kNotePdf = "vlrn/forestry/reports/report24.pdf";
constexpr double kFinePrint = 3;  // pixels on paper for one of a usual screen
constexpr int kWidthOnPaper = 480;
const QColor kGreen(0x1E, 0x6B, 0x35);
const QColor kBrown(0x8A, 0x4B, 0x12);

void Require(bool done, const QString& what) {
    if (!done) throw std::runtime_error(what.toStdString());
}

// What a page draws has the same letters on every machine that has the font.
QFont ChartFont() {
    QFont font(kFont);
    font.setPixelSize(13);
    return font;
}

QImage Drawn(const LineChart& chart, double factor) {
    QImage image(static_cast<int>(kChartSize.width * factor),
                 static_cast<int>(kChartSize.height * factor), QImage::Format_RGB32);
    QPainter painter(&image);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
    painter.setFont(ChartFont());
    painter.scale(factor, factor);
    chart.Draw(painter, QSizeF(kChartSize.width, kChartSize.height));
    return image;
}

// The few colours of a chart in all their shades towards white: a picture of them is small.
QList<QRgb> Shades() {
    constexpr int kShades = 50;
    QList<QRgb> shades;
    for (const QColor& colour : {kGreen, kBrown, kChartGrid, kChartText})
        for (int shade = 0; shade <= kShades; ++shade) {
            const auto mixed = [&](int part) { return 255 - (255 - part) * shade / kShades; };
            shades.push_back(
                qRgb(mixed(colour.red()), mixed(colour.green()), mixed(colour.blue())));
        }
    return shades;
}

void SaveBoth(const LineChart& chart, const QDir& folder, const std::string& name) {
    const auto path = folder.filePath("pictures/" + QString::fromStdString(name));
    for (const auto& [ending, factor] : {std::pair(".png", 1.0), std::pair("@2x.png", 2.0)})
        Require(Drawn(chart, factor)
                    .convertToFormat(QImage::Format_Indexed8, Shades(), Qt::ThresholdDither)
                    .save(path + ending, "PNG", 0),
                "can't write " + path + ending);
}

LineChart HeightChart(const WoodSpecies& wood, const NamedSpecies& species) {
    LineChart chart{"Breast-height age (years)", "Dominant height (m)", 120, 10, 5, {}};
    for (int landClass = 1; landClass <= species.classes; ++landClass) {
        ChartLine line{QString::number(landClass), landClass % 2 == 0 ? kBrown : kGreen, {}};
        for (int age = 0; age <= 120; age += 2)
            line.points.emplace_back(age, DominantHeight(wood, species, landClass, age));
        chart.lines.push_back(std::move(line));
    }
    return chart;
}

LineChart PlantationChart() {
    LineChart chart{"Stump age (years)", "Merchantable volume (m³/ha)", 80, 10, 100, {}};
    QColor colour = kGreen;
    for (const auto& plantation : ComparedPlantations()) {
        ChartLine line{QString::fromStdString(plantation.name), colour, {{0, 0}}};
        for (const auto& at : GrowPlantation(plantation.code, plantation.landClass))
            line.points.emplace_back(at.age, at.merchantable);
        chart.lines.push_back(std::move(line));
        colour = kBrown;
    }
    return chart;
}

QByteArray ReadBytes(const QString& path) {
    QFile file(path);
    Require(file.open(QIODevice::ReadOnly), "can't read " + path);
    return file.readAll();
}

// The page without the ways to others at its end.
QString NoteHtml(const QDir& folder) {
    auto html = QString::fromUtf8(ReadBytes(folder.filePath(kNote)));
    html.replace("<img ", QStringLiteral("<img width=\"%1\" ").arg(kWidthOnPaper));
    return html.left(html.indexOf("<hr>"));
}

void WriteNote(const QDir& folder) {
    QTextDocument note;
    QFont font(kFont);
    font.setPointSizeF(10);
    note.setDefaultFont(font);
    note.addResource(QTextDocument::StyleSheetResource, QUrl("help.css"),
                     QString::fromUtf8(ReadBytes(folder.filePath("help.css"))));
    note.addResource(QTextDocument::ImageResource,
                     QUrl(QStringLiteral("pictures/%1.png").arg(kPlantationPicture)),
                     Drawn(PlantationChart(), kFinePrint));
    note.setHtml(NoteHtml(folder));
    const auto path = folder.filePath(kNotePdf);
    Require(QDir().mkpath(QFileInfo(path).path()), "can't make the folder of " + path);
    QPdfWriter paper(path);
    paper.setPageSize(QPageSize(QPageSize::A4));
    paper.setTitle(note.metaInformation(QTextDocument::DocumentTitle));
    paper.setCreator("Arbolith");
    note.print(&paper);
    Require(QFileInfo(path).size() > 0, "can't write " + path);
}

void MakeAll(const QDir& folder) {
    Require(QFontDatabase::families().contains(kFont),
            QStringLiteral("the font %1 is missing: install fonts-liberation").arg(kFont));
    Require(folder.mkpath("pictures"), "can't make the folder of the pictures");
    for (const char* word : {"softwood", "hardwood"}) {
        const auto wood = WoodNamed(word);
        for (const auto& species : wood.species)
            SaveBoth(HeightChart(wood, species), folder, HeightPicture(species.code));
    }
    SaveBoth(PlantationChart(), folder, kPlantationPicture);
    WriteNote(folder);
}

}  // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication toolkit(argc, argv);
    if (argc != 2) {
        std::cerr << "usage: help_pictures TARGET\n";
        return 2;
    }
    try {
        MakeAll(QDir(QString::fromLocal8Bit(argv[1])));
    } catch (const std::exception& failed) {
        std::cerr << failed.what() << '\n';
        return 1;
    }
    return 0;
}
