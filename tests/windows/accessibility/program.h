// The program, started by itself and used through the accessibility bus. All that a person does
// here waits until the program has followed.
#pragma once

#include "windows/accessibility/bus.h"

#include <QProcess>
#include <QTemporaryDir>

#include <functional>
#include <gtest/gtest.h>
#include <initializer_list>

namespace arbolith::accessibility {

class ProgramTest : public testing::Test {
protected:
    /// Starts the program in a folder of its own, with the models, the samples, and a browser and
    /// an editor that note what they are told to open.
    void SetUp() override;
    void TearDown() override;

    QString PathOf(const QString& file) const { return folder_.filePath(file); }
    /// The bytes of a file in the folder; empty for none.
    QByteArray BytesOf(const QString& file) const;

    /// The open window of this title, once there is one.
    Told Window(const QString& title);
    bool IsOpen(const QString& title);
    void AwaitActive(const QString& title);
    /// What has the focus in the active window; nothing for nothing.
    Told Focused();

    /// The thing in the window that has this "role: name", once it shows and can be used.
    Told Find(const QString& title, const QString& text);
    void Press(const QString& title, const QString& text);
    void Type(const QString& title, const QString& text, const QString& typed);
    void SelectRow(const QString& title, const QString& text, int row);

    /// Presses Tab until this "role: name" has the focus.
    void TabTo(const QString& text);
    void PressKey(std::uint32_t symbol) { bus_.PressKey(symbol); }
    void PressAlt(char letter);
    void PressControl(char letter);
    /// Opens a menu by its access key, and chooses an entry by these keys.
    void Choose(const QString& title, char menu, std::initializer_list<std::uint32_t> entry);
    void TypeKeys(const QString& text);
    void ExpectFocus(const QString& text);

    /// Waits for something; throws these words where it doesn't come.
    void Await(const QString& what, const std::function<bool()>& condition);

    Bus bus_;

private:
    std::vector<Told> Windows();
    bool Shows(const QString& role);

    QTemporaryDir folder_;
    QProcess program_;
    Address address_;
};

/// The title of the main form.
inline constexpr const char* kMain = "Arbolith " VERSION;

/// The symbols of keys that aren't characters.
inline constexpr std::uint32_t kTab = 0xFF09;
inline constexpr std::uint32_t kEnter = 0xFF0D;
inline constexpr std::uint32_t kEscape = 0xFF1B;
inline constexpr std::uint32_t kDown = 0xFF54;
inline constexpr std::uint32_t kSpace = 0x20;

}  // namespace arbolith::accessibility
