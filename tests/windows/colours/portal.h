// A desktop that tells its setting for light or dark colours on the session bus.
#pragma once

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVirtualObject>

namespace arbolith {

/// What the setting can be, by its numbers on the bus.
enum class Preference : unsigned { kNone = 0, kDark = 1, kLight = 2 };

class Portal : public QDBusVirtualObject {
public:
    /// Answers on the bus from now until its end, when it is asked, or, where it is slow, not
    /// before `Answer`.
    explicit Portal(Preference preference, bool isSlow = false);
    ~Portal() override;

    int TimesAsked() const { return timesAsked_; }
    /// Answers the question that a slow one has let wait.
    void Answer();
    /// Tells that the setting has changed.
    void Change(Preference preference);
    /// Tells that another setting of the same group has changed to what means dark colours here.
    void ChangeOther();

    QString introspect(const QString& path) const override;
    bool handleMessage(const QDBusMessage& message, const QDBusConnection& connection) override;

private:
    void Tell(const char* key, unsigned value);

    QDBusConnection bus_;
    Preference preference_;
    bool isSlow_;
    int timesAsked_ = 0;
    QDBusMessage question_;
};

}  // namespace arbolith
