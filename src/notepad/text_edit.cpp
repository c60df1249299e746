#include "notepad/text_edit.h"

#include "notepad/columns.h"
#include "notepad/font.h"
#include "qt/texts.h"

#include <QFontMetricsF>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QMimeData>
#include <QScrollBar>
#include <QStyle>
#include <QTextBlock>
#include <QWheelEvent>

#include <algorithm>
#include <cmath>

namespace arbolith::notepad {

namespace {

constexpr int kUsualZoom = 100;
constexpr int kZoomStep = 10;
constexpr int kLeastZoom = 50;
constexpr int kMostZoom = 400;
constexpr double kPoints = 10;
constexpr int kWheelNotch = 120;

// A block's format tells the line end in front of it where that isn't the usual one: formats come
// back with an undo, other data of a block doesn't.
constexpr int kLineEndProperty = QTextFormat::UserProperty + 1;

QString InCodePage(const QString& text) {
    return ToQString(FromQString(text));
}

// The same with plain line ends, whatever the source parted its lines by.
QString PastedText(QString text) {
    text.replace(QChar::LineSeparator, u'\n').replace(QChar::ParagraphSeparator, u'\n');
    return InCodePage(text);
}

}  // namespace

TextEdit::TextEdit(QWidget* parent) : QPlainTextEdit(parent) {
    setObjectName(QStringLiteral("text"));
    setAccessibleName(QStringLiteral("Text"));
    setLineWrapMode(NoWrap);
    // Broken at words only, a line without blanks would run out of the window.
    setWordWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    SetZoom(kUsualZoom);
}

std::string TextEdit::Bytes() const {
    std::string bytes;
    bytes.reserve(static_cast<std::size_t>(document()->characterCount()) * 2);
    for (auto block = document()->begin(); block.isValid(); block = block.next()) {
        if (block.blockNumber() > 0) bytes += BytesOf(LineEndBefore(block));
        bytes += FromQString(block.text());
    }
    return bytes;
}

void TextEdit::SetBytes(std::string_view bytes) {
    const auto lines = SplitLines(bytes);
    usualEnd_ = lines.usual;
    isMixed_ = lines.isMixed;
    setPlainText(ToQString(bytes));
    if (isMixed_) MarkUnusualLineEnds(lines);
    document()->clearUndoRedoStacks();
    MarkAsSaved();
}

void TextEdit::MarkUnusualLineEnds(const Lines& lines) {
    QTextCursor cursor(document());
    cursor.beginEditBlock();
    auto block = document()->begin();
    for (const auto& line : lines.lines) {
        if (line.before != lines.usual) {
            QTextBlockFormat format;
            format.setProperty(kLineEndProperty, static_cast<int>(line.before));
            cursor.setPosition(block.position());
            cursor.setBlockFormat(format);
        }
        block = block.next();
    }
    cursor.endEditBlock();
}

LineEnd TextEdit::LineEndBefore(const QTextBlock& block) const {
    const auto format = block.blockFormat();
    return format.hasProperty(kLineEndProperty)
               ? static_cast<LineEnd>(format.intProperty(kLineEndProperty))
               : usualEnd_;
}

QString TextEdit::LineEnds() const {
    return isMixed_ ? QStringLiteral("Mixed line ends") : QString::fromLatin1(NameOf(usualEnd_));
}

void TextEdit::SetZoom(int percent) {
    zoom_ = percent;
    setFont(TextFont(kPoints * percent / kUsualZoom));
    setTabStopDistance(
        QFontMetricsF(font()).horizontalAdvance(QString(static_cast<int>(kTabColumns), u' ')));
    if (onZoomChange) onZoomChange();
}

void TextEdit::ZoomBy(int steps) {
    SetZoom(std::clamp(zoom_ + steps * kZoomStep, kLeastZoom, kMostZoom));
}

void TextEdit::ResetZoom() {
    SetZoom(kUsualZoom);
}

QSize TextEdit::SizeFor(int columns, int lines) const {
    const QFontMetricsF metrics(font());
    const double around = 2 * (document()->documentMargin() + frameWidth()) +
                          style()->pixelMetric(QStyle::PM_ScrollBarExtent);
    return {static_cast<int>(std::ceil(columns * metrics.horizontalAdvance(u' ') + around)),
            static_cast<int>(std::ceil(lines * metrics.lineSpacing() + around))};
}

void TextEdit::GoToLine(int line) {
    setTextCursor(QTextCursor(document()->findBlockByNumber(line - 1)));
    centerCursor();
}

void TextEdit::keyPressEvent(QKeyEvent* event) {
    if (event->matches(QKeySequence::InsertLineSeparator)) {
        textCursor().insertBlock();
        ensureCursorVisible();
        return;
    }
    const QString text = InCodePage(event->text());
    if (text == event->text()) {
        QPlainTextEdit::keyPressEvent(event);
    } else {
        insertPlainText(text);
        ensureCursorVisible();
    }
}

void TextEdit::inputMethodEvent(QInputMethodEvent* event) {
    QInputMethodEvent representable(event->preeditString(), event->attributes());
    representable.setCommitString(InCodePage(event->commitString()), event->replacementStart(),
                                  event->replacementLength());
    QPlainTextEdit::inputMethodEvent(&representable);
}

void TextEdit::wheelEvent(QWheelEvent* event) {
    if ((event->modifiers() & Qt::ControlModifier) == 0) {
        QPlainTextEdit::wheelEvent(event);
    } else {
        ZoomBy(event->angleDelta().y() / kWheelNotch);
    }
}

// The toolkit's own copy turns no-break spaces into blanks.
QMimeData* TextEdit::createMimeDataFromSelection() const {
    auto* copied = new QMimeData;
    copied->setText(textCursor().selectedText().replace(QChar::ParagraphSeparator, u'\n'));
    return copied;
}

void TextEdit::insertFromMimeData(const QMimeData* source) {
    if (!source->hasText()) return;
    textCursor().insertText(PastedText(source->text()));
    ensureCursorVisible();
}

}  // namespace arbolith::notepad
