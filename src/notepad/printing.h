// Printing a text: every page with its name and number.
#pragma once

#include <QPagedPaintDevice>
#include <QPainter>
#include <QWidget>

#include <string>

namespace arbolith::notepad {

/// Asks for a printer and prints; a failure is told.
void AskAndPrint(QWidget& window, const QString& name, const std::string& bytes);

/// Which of the pages are wanted, from 1; 0 and 0 for all.
struct PageRange {
    int first = 0;
    int last = 0;
};

/// Prints through a painter that has been begun on the paper. False where a page can't be begun.
bool PrintPages(QPainter& painter, QPagedPaintDevice& paper, const QString& name,
                const std::string& bytes, const PageRange& wanted);

}  // namespace arbolith::notepad
