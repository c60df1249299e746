// The field that the text is edited in. It holds what the code page holds and no more: a character
// that is typed or pasted and isn't in it becomes a question mark at once, not at the save.
#pragma once

#include "notepad/document.h"
#include "notepad/lines.h"

#include <QPlainTextEdit>

#include <functional>

namespace arbolith::notepad {

class TextEdit : public QPlainTextEdit, public TextBuffer {
public:
    explicit TextEdit(QWidget* parent = nullptr);

    std::string Bytes() const override;
    void SetBytes(std::string_view bytes) override;
    bool IsModified() const override { return document()->isModified(); }
    void MarkAsSaved() override { document()->setModified(false); }

    /// The line ends of the file in words.
    QString LineEnds() const;

    /// Percents of the usual size; steps beyond the ends do nothing.
    void ZoomBy(int steps);
    void ResetZoom();
    int Zoom() const { return zoom_; }

    /// The size for so many characters and lines.
    QSize SizeFor(int columns, int lines) const;

    /// Moves the cursor to the beginning of a line, counted from 1.
    void GoToLine(int line);

    /// Called behind every change of the zoom.
    std::function<void()> onZoomChange;

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void inputMethodEvent(QInputMethodEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    QMimeData* createMimeDataFromSelection() const override;
    void insertFromMimeData(const QMimeData* source) override;

private:
    void SetZoom(int percent);
    void MarkUnusualLineEnds(const Lines& lines);
    LineEnd LineEndBefore(const QTextBlock& block) const;

    LineEnd usualEnd_ = LineEnd::kCrLf;
    bool isMixed_ = false;
    int zoom_ = 100;
};

}  // namespace arbolith::notepad
