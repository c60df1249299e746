#include "windows/colours/portal.h"

#include <QDBusVariant>

#include <stdexcept>

namespace arbolith {

namespace {

const QString kName = "portal";
const QString kService = "org.freedesktop.portal.Desktop";
const QString kPath = "/org/freedesktop/portal/desktop";
constexpr const char* kInterface = "org.freedesktop.portal.Settings";
constexpr const char* kGroup = "org.freedesktop.appearance";
constexpr const char* kKey = "color-scheme";

QVariant Wrapped(const QVariant& value) {
    return QVariant::fromValue(QDBusVariant(value));
}

}  // namespace

Portal::Portal(Preference preference, bool isSlow)
    : bus_(QDBusConnection::connectToBus(QDBusConnection::SessionBus, kName)),
      preference_(preference),
      isSlow_(isSlow) {
    if (!bus_.registerVirtualObject(kPath, this) || !bus_.registerService(kService))
        throw std::runtime_error("no place on the bus");
}

Portal::~Portal() {
    bus_.unregisterService(kService);
    bus_.unregisterObject(kPath);
    QDBusConnection::disconnectFromBus(kName);
}

QString Portal::introspect(const QString&) const {
    return {};
}

bool Portal::handleMessage(const QDBusMessage& message, const QDBusConnection&) {
    const QVariantList wanted{kGroup, kKey};
    if (message.interface() != kInterface || message.member() != "Read" ||
        message.arguments() != wanted)
        return false;
    ++timesAsked_;
    question_ = message;
    if (!isSlow_) Answer();
    return true;
}

// The value of an answer is wrapped twice.
void Portal::Answer() {
    bus_.send(question_.createReply(Wrapped(Wrapped(static_cast<unsigned>(preference_)))));
}

void Portal::Change(Preference preference) {
    preference_ = preference;
    Tell(kKey, static_cast<unsigned>(preference));
}

void Portal::ChangeOther() {
    Tell("contrast", static_cast<unsigned>(Preference::kDark));
}

void Portal::Tell(const char* key, unsigned value) {
    auto signal = QDBusMessage::createSignal(kPath, kInterface, "SettingChanged");
    signal.setArguments({kGroup, key, Wrapped(value)});
    bus_.send(signal);
}

}  // namespace arbolith
