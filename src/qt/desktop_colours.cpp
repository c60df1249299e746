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

// Asking for a bus that doesn't run could start one.
bool HasBus() {
    const QByteArray address = qgetenv("DBUS_SESSION_BUS_ADDRESS");
    if (!address.isEmpty()) return !address.startsWith("autolaunch:");
    const QString folder = qEnvironmentVariable("XDG_RUNTIME_DIR");
    return !folder.isEmpty() && QFile::exists(folder + QStringLiteral("/bus"));
}

}  // namespace

DesktopColours::DesktopColours() {
    if (IsDark(QApplication::palette())) {
        OutlineOnDark();
    } else if (HasBus() && QDBusConnection::sessionBus().isConnected()) {
        Ask();
    }
}

DesktopColours::~DesktopColours() {
    if (isDark_) QApplication::setPalette(QPalette());
}

// Listens before it asks, so that no change in between is missed.
void DesktopColours::Ask() {
    auto bus = QDBusConnection::sessionBus();
    // The slot is found by the names of its types, which another thread might tell too late.
    qRegisterMetaType<QDBusVariant>();
    bus.connect(kService, kPath, kInterface, QStringLiteral("SettingChanged"), this,
                SLOT(TakeChange(QString, QString, QDBusVariant)));
    auto question =
        QDBusMessage::createMethodCall(kService, kPath, kInterface, QStringLiteral("Read"));
    question.setArguments({kGroup, kKey});
    auto* answer = new QDBusPendingCallWatcher(bus.asyncCall(question), this);
    connect(answer, &QDBusPendingCallWatcher::finished, this, [this, answer] {
        const QDBusPendingReply<QDBusVariant> reply = *answer;
        if (reply.isValid()) Take(reply.value());
        answer->deleteLater();
    });
    QEventLoop wait;
    connect(answer, &QDBusPendingCallWatcher::finished, &wait, &QEventLoop::quit);
    QTimer::singleShot(kPatience, &wait, &QEventLoop::quit);
    wait.exec();
}

void DesktopColours::TakeChange(const QString& group, const QString& key,
                                const QDBusVariant& value) {
    if (group == kGroup && key == kKey) Take(value);
}

// An answer is wrapped once more than a change is.
void DesktopColours::Take(const QDBusVariant& told) {
    QVariant value = told.variant();
    while (value.canConvert<QDBusVariant>()) value = value.value<QDBusVariant>().variant();
    const bool isDark = value.toUInt() == kPrefersDark;
    if (isDark == isDark_) return;
    isDark_ = isDark;
    if (isDark) OutlineOnDark();
    QApplication::setPalette(isDark ? DarkPalette() : QPalette());
}

}  // namespace arbolith
