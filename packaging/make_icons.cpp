// Writes the program's icon as pictures of all usual sizes into a theme's folder.
#include "qt/icon.h"

#include <QCoreApplication>
#include <QDir>
#include <QGuiApplication>

#include <cstdio>

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication toolkit(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() != 2) {
        std::fputs("usage: arbolith_icons FOLDER\n", stderr);
        return 2;
    }
    for (const int side : {16, 24, 32, 48, 64, 128, 256}) {
        const QString folder = QStringLiteral("%1/%2x%2/apps").arg(arguments[1]).arg(side);
        const QString file = folder + QStringLiteral("/arbolith.png");
        if (!QDir().mkpath(folder) || !arbolith::TreePicture(side).save(file)) {
            std::fprintf(stderr, "arbolith_icons: can't write %s\n", qPrintable(file));
            return 1;
        }
    }
    return 0;
}
