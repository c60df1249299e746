// The accessibility bus, as a screen reader uses it: reads what programs tell of their windows,
// does what they offer, and presses keys.
#pragma once

#include <QDBusConnection>
#include <QDBusMessage>
#include <QString>
#include <QStringList>
#include <QVariantList>

#include <cstdint>
#include <vector>

namespace arbolith::accessibility {

/// The bits of a state that matter here, by their numbers on the bus.
enum class State {
    kActive = 1,
    kChecked = 4,
    kFocusable = 11,
    kFocused = 12,
    kSensitive = 24,
    kShowing = 25
};

/// Where something is told from: a program on the bus, and its name there.
struct Address {
    QString program;
    QString path;

    bool operator==(const Address&) const = default;
};

/// What is told of one thing, at one moment.
struct Told {
    Address address;
    QString role;
    QString name;
    std::uint64_t states = 0;
    std::vector<Told> children;

    bool Has(State state) const { return states >> static_cast<int>(state) & 1; }
    /// "role: name".
    QString Text() const { return role + ": " + name; }
};

class Bus {
public:
    /// Starts the accessibility bus of the session where it doesn't run yet.
    Bus();

    bool IsConnected() const { return connection_.isConnected(); }

    /// The programs on the bus, without what they hold.
    std::vector<Told> Programs() const;
    /// With all that shows in it, as far as the first rows of tables.
    Told Read(const Address& address) const;
    /// Without what it holds.
    Told ReadAlone(const Address& address) const;
    std::vector<Address> ChildrenOf(const Address& address) const;

    QString DescriptionOf(const Address& address) const;
    QStringList ActionsOf(const Address& address) const;
    bool Do(const Address& address, const QString& action) const;
    bool SetText(const Address& address, const QString& text) const;
    QString TextIn(const Address& address) const;
    bool SelectRow(const Address& address, int row) const;

    /// Presses a key and lets go, by its symbol.
    void PressKey(std::uint32_t symbol) const;
    /// The same while the key of this code is held.
    void PressKeyWith(std::uint32_t held, std::uint32_t symbol) const;

private:
    std::uint64_t StatesOf(const Address& address) const;
    QDBusMessage Ask(const Address& address, const char* interface, const char* method,
                     const QVariantList& arguments = {}) const;
    QString Property(const Address& address, const char* name) const;
    void Synthesize(std::uint32_t key, std::uint32_t kind) const;

    QDBusConnection connection_;
};

}  // namespace arbolith::accessibility
