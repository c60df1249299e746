#include "windows/accessibility/program.h"

#include <QFile>
#include <QTest>

#include <algorithm>
#include <optional>
#include <stdexcept>

namespace arbolith::accessibility {

namespace {

constexpr int kPatience = 30000;
constexpr std::uint32_t kControlKey = 37;
constexpr std::uint32_t kAltKey = 64;
constexpr int kMostTabs = 100;

// A program that notes its last argument in a file beside it.
void PutNotingProgram(const QString& path, const QString& note) {
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("#!/bin/sh\nfor last; do :; done\nprintf %s \"$last\" >\"" + note.toUtf8() +
               ".part\" && mv \"" + note.toUtf8() + ".part\" \"" + note.toUtf8() + "\"\n");
    file.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
}

const Told* FindIn(const Told& told, const std::function<bool(const Told&)>& fits) {
    if (fits(told)) return &told;
    for (const Told& child : told.children)
        if (const Told* found = FindIn(child, fits)) return found;
    return nullptr;
}

// Rows and cells go on telling the focus that their list has had.
bool HasFocus(const Told& told) {
    return told.Has(State::kFocused) && told.role != "cell" && told.role != "list item" &&
           !told.role.startsWith("menu") && told.role != "panel";
}

}  // namespace

void ProgramTest::SetUp() {
    ASSERT_TRUE(bus_.IsConnected());
    for (const char* model : {"SWQVL.exe", "HWQVL.exe"})
        ASSERT_TRUE(QFile::copy(QString(PROGRAMS "/") + model, PathOf(model)));
    ASSERT_TRUE(QFile::copy(SAMPLES "/ten-stands.qvb", PathOf("ten-stands.qvb")));
    PutNotingProgram(PathOf("xdg-open"), PathOf("opened"));
    PutNotingProgram(PathOf("notepad"), PathOf("edited"));
    auto environment = QProcessEnvironment::systemEnvironment();
    environment.insert("ARBOLITH_FOLDER", folder_.path());
    environment.insert("QT_LINUX_ACCESSIBILITY_ALWAYS_ON", "1");
    environment.insert("HOME", folder_.path());
    environment.insert("PATH", folder_.path() + ":" + environment.value("PATH"));
    program_.setProcessEnvironment(environment);
    program_.setWorkingDirectory(folder_.path());
    program_.setProcessChannelMode(QProcess::ForwardedChannels);
    program_.start(PROGRAM, {});
    ASSERT_TRUE(program_.waitForStarted());
    Await("the program on the bus", [this] {
        for (const Told& program : bus_.Programs())
            if (program.name == "Arbolith") address_ = program.address;
        return !address_.path.isEmpty();
    });
}

void ProgramTest::TearDown() {
    program_.kill();
    program_.waitForFinished();
}

QByteArray ProgramTest::BytesOf(const QString& file) const {
    QFile bytes(PathOf(file));
    return bytes.open(QIODevice::ReadOnly) ? bytes.readAll() : QByteArray();
}

void ProgramTest::Await(const QString& what, const std::function<bool()>& condition) {
    if (QTest::qWaitFor(condition, kPatience)) return;
    QStringList titles;
    for (const Told& window : Windows()) titles << window.Text();
    throw std::runtime_error(QStringLiteral("no %1; there are %2; the focus is on %3")
                                 .arg(what, titles.join(", "), Focused().Text())
                                 .toStdString());
}

std::vector<Told> ProgramTest::Windows() {
    std::vector<Told> windows;
    for (const Address& window : bus_.ChildrenOf(address_)) {
        Told told = bus_.ReadAlone(window);
        if (told.Has(State::kShowing)) windows.push_back(std::move(told));
    }
    return windows;
}

bool ProgramTest::IsOpen(const QString& title) {
    const auto windows = Windows();
    return std::any_of(windows.begin(), windows.end(),
                       [&](const Told& window) { return window.name == title; });
}

Told ProgramTest::Window(const QString& title) {
    std::optional<Told> found;
    Await("window " + title, [&] {
        for (const Told& window : Windows())
            if (window.name == title) found = bus_.Read(window.address);
        return found.has_value();
    });
    return found.value_or(Told());
}

void ProgramTest::AwaitActive(const QString& title) {
    Await("active window " + title, [&] {
        const auto windows = Windows();
        return std::any_of(windows.begin(), windows.end(), [&](const Told& window) {
            return window.name == title && window.Has(State::kActive);
        });
    });
}

Told ProgramTest::Focused() {
    for (const Told& window : Windows()) {
        if (!window.Has(State::kActive)) continue;
        const Told read = bus_.Read(window.address);
        if (const Told* found = FindIn(read, HasFocus)) return *found;
    }
    return {};
}

Told ProgramTest::Find(const QString& title, const QString& text) {
    std::optional<Told> found;
    Await(text + " in " + title, [&] {
        const Told window = Window(title);
        const Told* inside = FindIn(window, [&](const Told& told) {
            return told.Text() == text && told.Has(State::kSensitive);
        });
        if (inside != nullptr) found = *inside;
        return inside != nullptr;
    });
    return found.value_or(Told());
}

void ProgramTest::Press(const QString& title, const QString& text) {
    const Told control = Find(title, text);
    const QStringList actions = bus_.ActionsOf(control.address);
    for (const char* action : {"Press", "Toggle"})
        if (actions.contains(action)) {
            EXPECT_TRUE(bus_.Do(control.address, action));
            return;
        }
    ADD_FAILURE() << text.toStdString()
                  << " can't be pressed: " << actions.join(", ").toStdString();
}

void ProgramTest::Choose(const QString& title, char menu,
                         std::initializer_list<std::uint32_t> entry) {
    AwaitActive(title);
    PressAlt(menu);
    Await("open menu", [this] { return Shows("popup menu"); });
    for (const std::uint32_t key : entry) PressKey(key);
    Await("closed menu", [this] { return !Shows("popup menu"); });
}

bool ProgramTest::Shows(const QString& role) {
    for (const Told& window : Windows()) {
        const Told read = bus_.Read(window.address);
        if (FindIn(read, [&](const Told& told) { return told.role == role; }) != nullptr)
            return true;
    }
    return false;
}

void ProgramTest::Type(const QString& title, const QString& text, const QString& typed) {
    const Told field = Find(title, text);
    EXPECT_TRUE(bus_.SetText(field.address, typed));
    EXPECT_EQ(bus_.TextIn(field.address), typed);
}

void ProgramTest::SelectRow(const QString& title, const QString& text, int row) {
    EXPECT_TRUE(bus_.SelectRow(Find(title, text).address, row));
}

void ProgramTest::TabTo(const QString& text) {
    QStringList passed;
    Told now = Focused();
    for (int tabs = 0; now.Text() != text && tabs < kMostTabs; ++tabs) {
        passed << now.Text();
        bus_.PressKey(kTab);
        Await("focus behind " + now.Text(), [&] {
            const Told next = Focused();
            const bool hasMoved = !next.address.path.isEmpty() && next.address != now.address;
            if (hasMoved) now = next;
            return hasMoved;
        });
    }
    EXPECT_EQ(now.Text().toStdString(), text.toStdString()) << passed.join(", ").toStdString();
}

void ProgramTest::PressAlt(char letter) {
    bus_.PressKeyWith(kAltKey, static_cast<unsigned char>(letter));
}

void ProgramTest::PressControl(char letter) {
    bus_.PressKeyWith(kControlKey, static_cast<unsigned char>(letter));
}

void ProgramTest::TypeKeys(const QString& text) {
    for (const QChar c : text) bus_.PressKey(c.unicode());
}

void ProgramTest::ExpectFocus(const QString& text) {
    Told now;
    Await("focus on " + text, [&] {
        now = Focused();
        return now.Text() == text;
    });
    EXPECT_EQ(now.Text().toStdString(), text.toStdString());
}

}  // namespace arbolith::accessibility
