#include "qt/file_dialog.h"

#include "platform/text.h"
#include "qt/texts.h"

#include <QFile>
#include <QHeaderView>
#include <QTreeView>

#include <algorithm>

namespace arbolith {

namespace {

// Of the toolkit's own dialog, in characters: the folders, and a row of files with all it tells.
constexpr int kCharacters = 120;

// The place of the filter that is told as it was given, or by its description alone; -1 for none.
qsizetype PlaceOf(const QString& selected, const QStringList& filters) {
    const auto found = std::find_if(filters.begin(), filters.end(), [&](const QString& filter) {
        return filter == selected || filter.startsWith(selected + QStringLiteral(" ("));
    });
    return found == filters.end() ? -1 : found - filters.begin();
}

QString PathOf(const std::string& bytes) {
    return QFile::decodeName(bytes.c_str());
}

}  // namespace

QStringList NameFilters(const std::string& filter) {
    QStringList filters;
    const auto words = Split(filter, '|');
    for (std::size_t i = 0; i + 1 < words.size(); i += 2) {
        QStringList patterns = ToQString(words[i + 1]).split(u';');
        // Meant for all files, also those without a point.
        patterns.replaceInStrings(QStringLiteral("*.*"), QStringLiteral("*"));
        filters << QStringLiteral("%1 (%2)").arg(ToQString(words[i]), patterns.join(u' '));
    }
    return filters;
}

FileDialog::FileDialog(QWidget* parent, const FileQuestion& question)
    : QFileDialog(parent), question_(question) {
    setAcceptMode(question.saves ? AcceptSave : AcceptOpen);
    // The toolkit's own dialog has a title of its own, the desktop's has none.
    setWindowTitle(question.saves ? QStringLiteral("Save As") : QStringLiteral("Open"));
    setFileMode(question.mustExist ? ExistingFile : AnyFile);
    setOption(DontConfirmOverwrite, !question.asksBeforeOverwriting);
    // The descriptions name the patterns themselves.
    setOption(HideNameFilterDetails);
    const QStringList filters = NameFilters(question.filter);
    setNameFilters(filters);
    if (question.filterIndex >= 1 && question.filterIndex <= filters.size())
        selectNameFilter(filters[question.filterIndex - 1]);
    if (!question.folder.empty()) setDirectory(PathOf(question.folder));
    if (!question.fileName.empty()) selectFile(PathOf(question.fileName));
    // The toolkit's own dialog cuts sizes and days off.
    if (auto* files = findChild<QTreeView*>(QStringLiteral("treeView")); files != nullptr) {
        files->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
        resize(size().expandedTo(QSize(fontMetrics().averageCharWidth() * kCharacters, 0)));
    }
}

FileChoice FileDialog::Choice() const {
    const QString path = selectedFiles().value(0);
    const auto filter = static_cast<int>(PlaceOf(selectedNameFilter(), nameFilters())) + 1;
    // A proposed name that was taken keeps its bytes, also those that are no text.
    const bool isProposed = path == PathOf(question_.fileName);
    return {isProposed ? question_.fileName : QFile::encodeName(path).toStdString(),
            filter > 0 ? filter : question_.filterIndex};
}

}  // namespace arbolith
