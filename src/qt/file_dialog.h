// Asks for a file's name in the desktop's own dialog, where it has one.
#pragma once

#include "platform/host.h"

#include <QFileDialog>
#include <QStringList>

#include <string>

namespace arbolith {

class FileDialog : public QFileDialog {
public:
    FileDialog(QWidget* parent, const FileQuestion& question);

    /// What was chosen, when it was accepted: the name as it was picked or typed, with its folder,
    /// in the file system's own bytes; nothing is added to it.
    FileChoice Choice() const;

private:
    FileQuestion question_;
};

/// The toolkit's name filters for a filter text of descriptions and patterns in turn.
QStringList NameFilters(const std::string& filter);

}  // namespace arbolith
