// Another program that looks at the clipboard: writes what it holds of a kind (text/plain,
// image/png,
// ...) to its output, byte by byte; `formats` lists the kinds.
#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>

#include <cstdio>

int main(int argc, char** argv) {
    QGuiApplication toolkit(argc, argv);
    const QString kind = QGuiApplication::arguments().value(1);
    const QMimeData* held = QGuiApplication::clipboard()->mimeData();
    if (held == nullptr) return 1;
    const QByteArray bytes =
        kind == QStringLiteral("formats") ? held->formats().join(u'\n').toUtf8() : held->data(kind);
    std::fwrite(bytes.constData(), 1, static_cast<std::size_t>(bytes.size()), stdout);
}
