#include "qt/desktop_colours.h"

#include "qt/dark_colours.h"

#include <QApplication>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusVariant>
#include <QEventLoop>
#include <QFile>
#include <QTimer>

namespace arbolith {

namespace {

// Milliseconds that the first window waits for an answer.
constexpr int kPatience = 250;

const QString kService = QStringLiteral("org.freedesktop.portal.Desktop");
const QString kPath = QStringLiteral("/org/freedesktop/portal/desktop");
const QString kInterface = QStringLiteral("org.freedesktop.portal.Settings");
const QString kGroup = QStringLiteral("org.freedesktop.appearance");
const QString kKey = QStringLiteral("color-scheme");
constexpr unsigned kPrefersDark = 1;

// Asking for a bus that doesn't run would start one.
bool HasBus() {
    return !qEnvironmentVariableIsEmpty("DBUS_SESSION_BUS_ADDRESS") ||
           (qEnvironmentVariableIsSet("XDG_RUNTIME_DIR") &&
            QFile::exists(qEnvironmentVariable("XDG_RUNTIME_DIR") + QStringLiteral("/bus")));
}

}  // namespace

// The program that tells its desktop's settings on the bus.
class DesktopColours::Portal final : public QObject {
    Q_OBJECT

public:
    // Listens before it asks, so that no change in between is missed.
    Portal() : bus_(QDBusConnection::sessionBus()) {
        if (!bus_.isConnected()) return;
        // The slot is found by the names of its types, which another thread might tell too late.
        qRegisterMetaType<QDBusVariant>();
        bus_.connect(kService, kPath, kInterface, QStringLiteral("SettingChanged"), this,
                     SLOT(TakeChange(QString, QString, QDBusVariant)));
        auto question =
            QDBusMessage::createMethodCall(kService, kPath, kInterface, QStringLiteral("Read"));
        question.setArguments({kGroup, kKey});
        Await(bus_.asyncCall(question));
    }

    ~Portal() override {
        if (isDark_) QApplication::setPalette(QPalette());
    }

private slots:
    void TakeChange(const QString& group, const QString& key, const QDBusVariant& value) {
        if (group == kGroup && key == kKey) Take(value);
    }

private:
    void Await(const QDBusPendingCall& call) {
        auto* answer = new QDBusPendingCallWatcher(call, this);
        connect(answer, &QDBusPendingCallWatcher::finished, this,
                [this](QDBusPendingCallWatcher* finished) {
                    const QDBusPendingReply<QDBusVariant> reply = *finished;
                    if (reply.isValid()) Take(reply.value());
                    finished->deleteLater();
                });
        QEventLoop wait;
        connect(answer, &QDBusPendingCallWatcher::finished, &wait, &QEventLoop::quit);
        QTimer::singleShot(kPatience, &wait, &QEventLoop::quit);
        wait.exec();
    }

    // An answer is wrapped once more than a change is.
    void Take(const QDBusVariant& told) {
        QVariant value = told.variant();
        while (value.canConvert<QDBusVariant>()) value = value.value<QDBusVariant>().variant();
        const bool isDark = value.toUInt() == kPrefersDark;
        if (isDark == isDark_) return;
        isDark_ = isDark;
        if (isDark) OutlineOnDark();
        QApplication::setPalette(isDark ? DarkPalette() : QPalette());
    }

    QDBusConnection bus_;
    bool isDark_ = false;
};

DesktopColours::DesktopColours() {
    if (IsDark(QApplication::palette())) {
        OutlineOnDark();
    } else if (HasBus()) {
        portal_ = std::make_unique<Portal>();
    }
}

DesktopColours::~DesktopColours() = default;

}  // namespace arbolith

#include "desktop_colours.moc"
