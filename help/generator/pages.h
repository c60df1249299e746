// Makes all pages of the help from their sources.
#pragma once

#include "generator/template.h"
#include "generator/topics.h"

#include <string>
#include <string_view>
#include <vector>

namespace arbolith::help {

/// A page as it is written by hand, filled in: what stands between its head and its foot.
struct FilledPage {
    std::string title;  ///< That of its first heading, as plain text.
    std::string body;
    std::vector<std::string> keywords;  ///< From its lines "<!-- index: word, word -->".
};

/// Fills a page in. Throws BadPage, also for a page without a heading.
FilledPage FillPage(std::string_view source, const Facts& facts, const Page& page);

/// The whole page as a browser reads it.
std::string PageHtml(const FilledPage& filled, const Page& page, const std::string& wayOn);

/// All files that a page's `src` and `srcset` name, relative to the help folder.
std::vector<std::string> PicturesOf(std::string_view html);

/// Makes the help folder: every page of `source`/contents.txt, the style sheet, the lists of
/// contents and the project for the compiler. The pictures are not made, only named. Throws
/// BadPage.
void MakeHelpFolder(const std::string& source, const std::string& target);

}  // namespace arbolith::help
