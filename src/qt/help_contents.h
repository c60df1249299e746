// The help pages that lie beside the program: their order, their titles and what they say.
#pragma once

#include <QString>

#include <vector>

namespace arbolith {

/// A page in the contents.
struct HelpTopic {
    int level = 0;  ///< 0 at the top.
    QString file;   ///< Relative to the help folder, with "/".
    QString title;
};

/// Reads the list of contents in a help folder; empty where there is none.
std::vector<HelpTopic> ReadHelpContents(const QString& folder);

/// A page that holds what was searched for.
struct HelpHit {
    std::size_t topic;  ///< Its position in the contents.
    QString excerpt;    ///< The words around the first hit.
};

/// The text of all pages, to be searched.
class HelpTexts {
public:
    HelpTexts(const QString& folder, const std::vector<HelpTopic>& topics);

    /// The pages that hold every word of `words`, whatever its case: those first that have one in
    /// their title, then those with the most hits. None for no word.
    std::vector<HelpHit> Search(const QString& words) const;

private:
    struct Text {
        QString title;
        QString body;
    };

    std::vector<Text> texts_;
};

}  // namespace arbolith
