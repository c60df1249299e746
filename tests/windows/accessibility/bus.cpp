#include "windows/accessibility/bus.h"

#include <QDBusArgument>
#include <QDBusObjectPath>
#include <QDBusVariant>

#include <algorithm>
#include <utility>

namespace arbolith::accessibility {

namespace {

constexpr const char* kAccessible = "org.a11y.atspi.Accessible";
const Address kRegistry{"org.a11y.atspi.Registry", "/org/a11y/atspi/accessible/root"};
const Address kKeyboard{"org.a11y.atspi.Registry",
                        "/org/a11y/atspi/registry/deviceeventcontroller"};
// What the keyboard is asked to do.
constexpr std::uint32_t kPress = 0;
constexpr std::uint32_t kRelease = 1;
constexpr std::uint32_t kSymbol = 3;
// Of a table, so many cells and headings are read.
constexpr std::size_t kMostCells = 60;

QDBusConnection Connect() {
    const auto question = QDBusMessage::createMethodCall("org.a11y.Bus", "/org/a11y/bus",
                                                         "org.a11y.Bus", "GetAddress");
    const auto answer = QDBusConnection::sessionBus().call(question);
    return QDBusConnection::connectToBus(answer.arguments().value(0).toString(), "accessibility");
}

// Calls `take` with each element of the array that an answer holds.
template <class Take>
void ForEach(const QDBusMessage& answer, Take take) {
    if (answer.type() != QDBusMessage::ReplyMessage) return;
    const auto array = answer.arguments().value(0).value<QDBusArgument>();
    array.beginArray();
    while (!array.atEnd()) take(array);
    array.endArray();
}

}  // namespace

Bus::Bus() : connection_(Connect()) {}

QDBusMessage Bus::Ask(const Address& address, const char* interface, const char* method,
                      const QVariantList& arguments) const {
    auto question =
        QDBusMessage::createMethodCall(address.program, address.path, interface, method);
    question.setArguments(arguments);
    return connection_.call(question);
}

QString Bus::Property(const Address& address, const char* name) const {
    const auto answer = Ask(address, "org.freedesktop.DBus.Properties", "Get", {kAccessible, name});
    return answer.arguments().value(0).value<QDBusVariant>().variant().toString();
}

std::vector<Address> Bus::ChildrenOf(const Address& address) const {
    std::vector<Address> children;
    ForEach(Ask(address, kAccessible, "GetChildren"), [&](const QDBusArgument& array) {
        QString program;
        QDBusObjectPath path;
        array.beginStructure();
        array >> program >> path;
        array.endStructure();
        children.push_back({program, path.path()});
    });
    return children;
}

std::uint64_t Bus::StatesOf(const Address& address) const {
    std::uint64_t states = 0;
    int shift = 0;
    ForEach(Ask(address, kAccessible, "GetState"), [&](const QDBusArgument& array) {
        std::uint32_t half = 0;
        array >> half;
        states |= std::uint64_t{half} << std::exchange(shift, 32);
    });
    return states;
}

Told Bus::ReadAlone(const Address& address) const {
    return {address,
            Ask(address, kAccessible, "GetRoleName").arguments().value(0).toString(),
            Property(address, "Name"),
            StatesOf(address),
            {}};
}

Told Bus::Read(const Address& address) const {
    Told told = ReadAlone(address);
    auto children = ChildrenOf(address);
    if (told.role == "table") children.resize(std::min(children.size(), kMostCells));
    for (const Address& child : children)
        if (StatesOf(child) >> static_cast<int>(State::kShowing) & 1)
            told.children.push_back(Read(child));
    return told;
}

QString Bus::DescriptionOf(const Address& address) const {
    return Property(address, "Description");
}

std::vector<Told> Bus::Programs() const {
    std::vector<Told> programs;
    for (const Address& address : ChildrenOf(kRegistry)) programs.push_back(ReadAlone(address));
    return programs;
}

QStringList Bus::ActionsOf(const Address& address) const {
    QStringList names;
    ForEach(Ask(address, "org.a11y.atspi.Action", "GetActions"), [&](const QDBusArgument& array) {
        QString name;
        QString description;
        QString keys;
        array.beginStructure();
        array >> name >> description >> keys;
        array.endStructure();
        names << name;
    });
    return names;
}

bool Bus::Do(const Address& address, const QString& action) const {
    const auto number = ActionsOf(address).indexOf(action);
    if (number < 0) return false;
    const auto answer =
        Ask(address, "org.a11y.atspi.Action", "DoAction", {static_cast<int>(number)});
    return answer.type() == QDBusMessage::ReplyMessage;
}

bool Bus::SetText(const Address& address, const QString& text) const {
    const auto answer = Ask(address, "org.a11y.atspi.EditableText", "SetTextContents", {text});
    return answer.type() == QDBusMessage::ReplyMessage;
}

QString Bus::TextIn(const Address& address) const {
    return Ask(address, "org.a11y.atspi.Text", "GetText", {0, -1}).arguments().value(0).toString();
}

bool Bus::SelectRow(const Address& address, int row) const {
    return Ask(address, "org.a11y.atspi.Table", "AddRowSelection", {row})
        .arguments()
        .value(0)
        .toBool();
}

void Bus::Synthesize(std::uint32_t key, std::uint32_t kind) const {
    Ask(kKeyboard, "org.a11y.atspi.DeviceEventController", "GenerateKeyboardEvent",
        {static_cast<int>(key), QString(), kind});
}

void Bus::PressKey(std::uint32_t symbol) const {
    Synthesize(symbol, kSymbol);
}

void Bus::PressKeyWith(std::uint32_t held, std::uint32_t symbol) const {
    Synthesize(held, kPress);
    Synthesize(symbol, kSymbol);
    Synthesize(held, kRelease);
}

}  // namespace arbolith::accessibility
