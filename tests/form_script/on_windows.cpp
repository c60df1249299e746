#include "form_script/on_windows.h"

#include "form_script/window_driver.h"
#include "qt/qt_host.h"
#include "qt/texts.h"
#include "qt/window_manager.h"

#include <QApplication>
#include <QClipboard>
#include <QTemporaryFile>

#include <memory>
#include <string>

namespace arbolith {

namespace {

constexpr int kTwipsPerPixel = 15;
constexpr Size kUsualScreen = {1024 * kTwipsPerPixel, 768 * kTwipsPerPixel};
constexpr const char* kPlatform = "QT_QPA_PLATFORM";

// What the toolkit reports about itself would stand between the script's failures.
void DropMessage(QtMsgType, const QMessageLogContext&, const QString&) {}

bool IsInMemory() {
    if (qEnvironmentVariableIsSet(kPlatform)) return qgetenv(kPlatform) == "offscreen";
    return !qEnvironmentVariableIsSet("DISPLAY") && !qEnvironmentVariableIsSet("WAYLAND_DISPLAY");
}

/// The toolkit. A screen in memory takes its size from a file that is read when the toolkit starts.
class Toolkit {
public:
    explicit Toolkit(Size screen) {
        qInstallMessageHandler(DropMessage);
        if (IsInMemory() && screenFile_.open()) {
            screenFile_.write(ScreenText(screen));
            screenFile_.flush();
            qputenv(kPlatform, "offscreen:configfile=" + screenFile_.fileName().toUtf8());
        }
        application_ = std::make_unique<QApplication>(count_, words_);
        QApplication::setQuitOnLastWindowClosed(false);
    }

private:
    static QByteArray ScreenText(Size screen) {
        return QStringLiteral(
                   R"({"screens": [{"name": "memory", "x": 0, "y": 0, "width": %1, "height": %2,
                       "logicalDpi": 96, "logicalBaseDpi": 96, "dpr": 1}]})")
            .arg(screen.width / kTwipsPerPixel)
            .arg(screen.height / kTwipsPerPixel)
            .toUtf8();
    }

    QTemporaryFile screenFile_;
    // The toolkit keeps what it is given here.
    std::string name_ = "form_script";
    char* words_[2] = {name_.data(), nullptr};
    int count_ = 1;
    std::unique_ptr<QApplication> application_;
};

// What a field copies by itself is as good as what the program puts onto the clipboard; what other
// programs of the desktop copy is none of the run's business.
void FollowClipboard(QObject& context, Host& host) {
    QClipboard* clipboard = QGuiApplication::clipboard();
    const bool isAlone = QGuiApplication::platformName() == QStringLiteral("offscreen");
    QObject::connect(clipboard, &QClipboard::dataChanged, &context, [=, &host] {
        if (isAlone || clipboard->ownsClipboard())
            host.SetClipboardText(FromQString(clipboard->text()));
    });
}

/// The windows of a run and what acts on them.
struct Windows {
    Windows(Application& application, QtHost& toldHost)
        : host(toldHost), manager(application, true) {
        host.SetWindows(&manager);
        driver = MakeWindowDriver(application, manager);
        FollowClipboard(context, application.GetHost());
    }
    ~Windows() { host.SetWindows(nullptr); }
    Windows(const Windows&) = delete;
    Windows& operator=(const Windows&) = delete;

    QtHost& host;
    WindowManager manager;
    std::unique_ptr<Driver> driver;
    QObject context;
};

}  // namespace

int OnWindows(std::optional<Size> screen,
              const std::function<int(Host& host, const MakeDriver& makeDriver)>& use) {
    const Toolkit toolkit(screen.value_or(kUsualScreen));
    QtHost host;
    return use(host, [&host](Application& application) {
        auto windows = std::make_shared<Windows>(application, host);
        return std::shared_ptr<Driver>(windows, windows->driver.get());
    });
}

}  // namespace arbolith
