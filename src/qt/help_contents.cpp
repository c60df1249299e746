#include "qt/help_contents.h"

#include <QDir>
#include <QFile>
#include <QStringList>
#include <QTextDocumentFragment>

#include <algorithm>

namespace arbolith {

namespace {

constexpr const char* kContentsFile = "contents.txt";
constexpr qsizetype kExcerptBefore = 40;
constexpr qsizetype kExcerptLength = 120;

QString ReadText(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

// The words around a hit, from one blank to another.
QString ExcerptAt(const QString& text, qsizetype hit) {
    qsizetype first = std::max<qsizetype>(0, hit - kExcerptBefore);
    if (first > 0) first = text.indexOf(u' ', first) + 1;
    qsizetype last = std::min(text.size(), first + kExcerptLength);
    if (last < text.size()) last = text.lastIndexOf(u' ', last);
    return (first > 0 ? "... " : "") + text.mid(first, last - first) +
           (last < text.size() ? " ..." : "");
}

/// A page's place among the hits: higher comes first.
struct Rank {
    bool inTitle = false;
    qsizetype hits = 0;

    bool operator>(const Rank& other) const {
        return inTitle != other.inTitle ? inTitle : hits > other.hits;
    }
};

}  // namespace

std::vector<HelpTopic> ReadHelpContents(const QString& folder) {
    std::vector<HelpTopic> topics;
    const auto text = ReadText(QDir(folder).filePath(kContentsFile));
    for (const auto& line : text.split(u'\n', Qt::SkipEmptyParts)) {
        const auto parts = line.split(u'\t');
        if (parts.size() == 3) topics.push_back({parts[0].toInt(), parts[1], parts[2]});
    }
    return topics;
}

HelpTexts::HelpTexts(const QString& folder, const std::vector<HelpTopic>& topics) {
    for (const auto& topic : topics) {
        const auto html = ReadText(QDir(folder).filePath(topic.file));
        const auto body = QTextDocumentFragment::fromHtml(html).toPlainText().simplified();
        texts_.push_back({topic.title, body});
    }
}

std::vector<HelpHit> HelpTexts::Search(const QString& words) const {
    const auto wanted = words.simplified().split(u' ', Qt::SkipEmptyParts);
    if (wanted.isEmpty()) return {};
    std::vector<std::pair<Rank, HelpHit>> found;
    for (std::size_t i = 0; i < texts_.size(); ++i) {
        const auto& text = texts_[i];
        Rank rank;
        const bool holdsAll = std::all_of(wanted.begin(), wanted.end(), [&](const QString& word) {
            rank.inTitle |= text.title.contains(word, Qt::CaseInsensitive);
            rank.hits += text.body.count(word, Qt::CaseInsensitive);
            return text.body.contains(word, Qt::CaseInsensitive);
        });
        if (!holdsAll) continue;
        const auto first = text.body.indexOf(wanted.front(), 0, Qt::CaseInsensitive);
        found.push_back({rank, {i, ExcerptAt(text.body, first)}});
    }
    std::stable_sort(found.begin(), found.end(),
                     [](const auto& a, const auto& b) { return a.first > b.first; });
    std::vector<HelpHit> hits;
    hits.reserve(found.size());
    for (auto& [rank, hit] : found) hits.push_back(std::move(hit));
    return hits;
}

}  // namespace arbolith
