// Runs the tests of the windows with the toolkit up, on a screen in memory that is large enough for
// every form also at the double resolution.
#include <QApplication>
#include <QSettings>
#include <QTemporaryDir>
#include <QTemporaryFile>

#include <cstdio>
#include <gtest/gtest.h>

namespace {

// The platform in memory complains about what it leaves to real ones.
void DropPlatformComplaints(QtMsgType, const QMessageLogContext&, const QString& message) {
    if (!message.startsWith("This plugin does not support"))
        std::fprintf(stderr, "%s\n", qPrintable(message));
}

}  // namespace

#if defined(__SANITIZE_ADDRESS__)
// The toolkit's thread for the accessibility bus ends with a message half read.
extern "C" const char* __lsan_default_suppressions();
extern "C" const char* __lsan_default_suppressions() {
    return "leak:libdbus-1.so";
}
#endif

int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    QTemporaryFile screen;
    if (qgetenv("QT_QPA_PLATFORM") == "offscreen" && screen.open()) {
        screen.write(R"({"screens": [{"name": "memory", "x": 0, "y": 0, "width": 3200,
            "height": 2400, "logicalDpi": 96, "logicalBaseDpi": 96, "dpr": 1}]})");
        screen.flush();
        qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" + screen.fileName().toUtf8());
    }
    qInstallMessageHandler(DropPlatformComplaints);
    // What the toolkit remembers of its dialogs is gone with the tests.
    const QTemporaryDir settings;
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, settings.path());
    QApplication toolkit(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    return RUN_ALL_TESTS();
}
