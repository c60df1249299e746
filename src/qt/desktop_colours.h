// The desktop's choice between light and dark colours, which the toolkit doesn't ask for by itself.
#pragma once

#include <QObject>

class QDBusVariant;

namespace arbolith {

/// Dresses the program as the desktop's setting says, and anew whenever that changes. Waits for the
/// desktop's word a moment at most, so that no window opens in the wrong colours where it comes in
/// time; a later one counts all the same. Where there is no session bus, nobody answers on it, or
/// the toolkit has dark colours from elsewhere, the colours stay. Wants a QApplication without
/// windows.
class DesktopColours final : public QObject {
    Q_OBJECT

public:
    DesktopColours();
    ~DesktopColours() override;

private slots:
    void TakeChange(const QString& group, const QString& key, const QDBusVariant& value);

private:
    void Ask();
    void Take(const QDBusVariant& told);

    bool isDark_ = false;
};

}  // namespace arbolith
