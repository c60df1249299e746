#include "form_script/window_events.h"

#include "qt/texts.h"

#include <QApplication>
#include <QTest>
#include <QWindow>

#include <string_view>

namespace arbolith::window_events {

namespace {

constexpr int kActivationTimeout = 5000;

// The place in the window's own coordinates, once it is sure that the widget gets the event.
QPoint PlaceInWindow(QWidget& widget, QPoint place) {
    QWidget* window = widget.window();
    const QPoint inWindow = widget.mapTo(window, place);
    QWidget* hit = window->childAt(inWindow);
    if (hit == nullptr) hit = window;
    if (hit != &widget && !widget.isAncestorOf(hit)) {
        const bool isOutside = !window->rect().contains(inWindow);
        const QString name = widget.objectName();
        throw ActionRefused(
            FromQString(isOutside ? name + QStringLiteral(" lies outside its window")
                                  : name + QStringLiteral(" is covered by ") + hit->objectName()));
    }
    return inWindow;
}

QWindow* HandleOf(QWidget& widget) {
    return widget.window()->windowHandle();
}

Qt::Key CodeOf(Key key) {
    switch (key.name) {
        case Key::kEnter:
            return Qt::Key_Return;
        case Key::kBackspace:
            return Qt::Key_Backspace;
        case Key::kDelete:
            return Qt::Key_Delete;
        case Key::kInsert:
            return Qt::Key_Insert;
        case Key::kTab:
            return Qt::Key_Tab;
        case Key::kBackTab:
            return Qt::Key_Backtab;
        case Key::kUp:
            return Qt::Key_Up;
        case Key::kDown:
            return Qt::Key_Down;
        case Key::kEscape:
            return Qt::Key_Escape;
        default:
            return Qt::Key_unknown;
    }
}

void SendKey(Qt::Key code, const QString& text, Qt::KeyboardModifiers modifiers) {
    QWidget* target = QApplication::focusWidget();
    if (target == nullptr) target = QApplication::activeWindow();
    if (target == nullptr) throw ActionRefused("no window has the keyboard");
    QTest::sendKeyEvent(QTest::Click, target, code, text, modifiers);
    Settle();
}

void SendCharacter(unsigned char character) {
    const char byte = static_cast<char>(character);
    const auto code = character < 0x80 ? QTest::asciiToKey(byte) : Qt::Key_unknown;
    SendKey(code, ToQString(std::string_view(&byte, 1)), Qt::NoModifier);
}

}  // namespace

void Settle() {
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

void ActivateWindowOf(QWidget& widget) {
    QWidget* window = widget.window();
    if (window->isActiveWindow()) return;
    window->raise();
    window->activateWindow();
    if (!QTest::qWaitForWindowActive(window, kActivationTimeout))
        throw ActionRefused("the window " + FromQString(window->objectName()) +
                            " does not become active");
    Settle();
}

void ClickAt(QWidget& widget, QPoint place) {
    const QPoint inWindow = PlaceInWindow(widget, place);
    QTest::mouseClick(HandleOf(widget), Qt::LeftButton, {}, inWindow);
    Settle();
}

void DoubleClickAt(QWidget& widget, QPoint place) {
    const QPoint inWindow = PlaceInWindow(widget, place);
    QTest::mouseDClick(HandleOf(widget), Qt::LeftButton, {}, inWindow);
    Settle();
}

void Drag(QWidget& widget, QPoint from, const std::function<QPoint()>& between) {
    QTest::mousePress(HandleOf(widget), Qt::LeftButton, {}, PlaceInWindow(widget, from));
    Settle();
    const QPoint to = PlaceInWindow(widget, between());
    // What is under the pointer may have scrolled, and a move to where it is already would be none.
    QTest::mouseMove(HandleOf(widget), to + QPoint(1, 1));
    QTest::mouseMove(HandleOf(widget), to);
    Settle();
    QTest::mouseRelease(HandleOf(widget), Qt::LeftButton, {}, to);
    Settle();
}

void PressKey(Key key) {
    switch (key.name) {
        case Key::kCharacter:
            return SendCharacter(key.character);
        case Key::kSpace:
            return SendCharacter(' ');
        case Key::kSelectAll:
            return PressKey(Qt::Key_A, Qt::ControlModifier);
        case Key::kCopy:
            return PressKey(Qt::Key_C, Qt::ControlModifier);
        default:
            return PressKey(CodeOf(key));
    }
}

void PressKey(Qt::Key key, Qt::KeyboardModifiers modifiers) {
    SendKey(key, QString(), modifiers);
}

}  // namespace arbolith::window_events
