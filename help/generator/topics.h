// The order of the pages: the tree of contents, and what the formats of help files make of it.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace arbolith::help {

/// A page in the contents.
struct Topic {
    int level = 0;                      ///< 0 at the top.
    std::string file;                   ///< Relative to the help folder.
    std::string title;                  ///< Plain text, known once its page is made.
    std::vector<std::string> keywords;  ///< For the index.
};

/// Reads the contents: a file a line, two blanks of indent for each level; lines that begin with
/// "#" are left out. Throws BadPage for a level that has none above it.
std::vector<Topic> ReadTopics(std::string_view text);

/// The contents as nested lists of links, without the first page itself, which holds them.
std::string ContentsHtml(const std::vector<Topic>& topics);

/// The lines at the end of a page that lead to its neighbours and to the contents.
std::string WayOn(const std::vector<Topic>& topics, std::size_t position);

/// The contents for a program: level, file and title of a page a line, parted by tabs.
std::string ContentsList(const std::vector<Topic>& topics);

/// The contents and the index of the compiled help, and its project; `files` are all that go in.
std::string CompilerContents(const std::vector<Topic>& topics);
std::string CompilerIndex(const std::vector<Topic>& topics);
std::string CompilerProject(const std::vector<Topic>& topics,
                            const std::vector<std::string>& files);

}  // namespace arbolith::help
