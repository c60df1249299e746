#include "generator/topics.h"

#include "generator/html.h"
#include "generator/template.h"
#include "platform/text.h"

#include <algorithm>
#include <map>

namespace arbolith::help {

namespace {

constexpr std::size_t kIndent = 2;

std::string PathBack(const std::string& file) {
    return Page{file}.Root();
}

std::string Link(const Topic& to, const std::string& root) {
    return "<a href=\"" + root + to.file + "\">" + Escaped(to.title) + "</a>";
}

/// Lists in lists, each entry made by `entry`.
template <class Entry>
std::string Nested(const std::vector<Topic>& topics, std::size_t first, Entry entry) {
    std::string html;
    int depth = -1;
    for (std::size_t i = first; i < topics.size(); ++i) {
        const Topic& topic = topics[i];
        if (topic.level > depth) {
            html += "<ul>\n";
            depth = topic.level;
        } else {
            html += "</li>\n";
            for (; depth > topic.level; --depth) html += "</ul></li>\n";
        }
        html += "<li>" + entry(topic);
    }
    for (; depth >= 0; --depth) html += "</li>\n</ul>";
    return html + "\n";
}

std::string SitemapObject(const std::string& name, const std::string& file) {
    return "<OBJECT type=\"text/sitemap\"><param name=\"Name\" value=\"" + Escaped(name) +
           "\"><param name=\"Local\" value=\"" + Escaped(file) + "\"></OBJECT>";
}

std::string Sitemap(const std::string& list) {
    return "<!DOCTYPE HTML PUBLIC \"-//IETF//DTD HTML//EN\">\n<HTML><BODY>\n" + list +
           "</BODY></HTML>\n";
}

}  // namespace

std::vector<Topic> ReadTopics(std::string_view text) {
    std::vector<Topic> topics;
    for (const auto& line : Split(text, '\n')) {
        const auto name = Trimmed(line);
        if (name.empty() || name.front() == '#') continue;
        const int level = static_cast<int>((line.size() - name.size()) / kIndent);
        const int deepest = topics.empty() ? 0 : topics.back().level + 1;
        if (level > deepest) throw BadPage(std::string(name) + " has no page above it");
        topics.push_back({level, std::string(name), "", {}});
    }
    return topics;
}

std::string ContentsHtml(const std::vector<Topic>& topics) {
    return Nested(topics, 1, [](const Topic& topic) { return Link(topic, ""); });
}

std::string WayOn(const std::vector<Topic>& topics, std::size_t position) {
    const auto root = PathBack(topics[position].file);
    std::vector<std::string> ways;
    if (position > 1) ways.push_back("Back: " + Link(topics[position - 1], root));
    if (position > 0) ways.push_back("<a href=\"" + root + topics.front().file + "\">Contents</a>");
    if (position + 1 < topics.size()) ways.push_back("Next: " + Link(topics[position + 1], root));
    std::string html = "<hr>\n<p class=\"way\">";
    for (std::size_t i = 0; i < ways.size(); ++i) html += (i > 0 ? " | " : "") + ways[i];
    return html + "</p>\n";
}

std::string ContentsList(const std::vector<Topic>& topics) {
    std::string list;
    for (const Topic& topic : topics)
        list += std::to_string(topic.level) + "\t" + topic.file + "\t" + topic.title + "\n";
    return list;
}

std::string CompilerContents(const std::vector<Topic>& topics) {
    return Sitemap(Nested(
        topics, 0, [](const Topic& topic) { return SitemapObject(topic.title, topic.file); }));
}

std::string CompilerIndex(const std::vector<Topic>& topics) {
    std::multimap<std::string, std::pair<std::string, std::string>> entries;
    for (const Topic& topic : topics)
        for (const auto& keyword : topic.keywords)
            entries.emplace(ToLower(keyword), std::pair(keyword, topic.file));
    std::string list = "<ul>\n";
    for (const auto& [key, entry] : entries)
        list += "<li>" + SitemapObject(entry.first, entry.second) + "</li>\n";
    return Sitemap(list + "</ul>\n");
}

std::string CompilerProject(const std::vector<Topic>& topics,
                            const std::vector<std::string>& files) {
    std::string project =
        "[OPTIONS]\n"
        "Compatibility=1.1 or later\n"
        "Compiled file=../qvlhelp.chm\n"
        "Contents file=qvlhelp.hhc\n"
        "Index file=qvlhelp.hhk\n"
        "Full-text search=Yes\n"
        "Language=0x409 English (United States)\n";
    project += "Default topic=" + topics.front().file + "\n";
    project += "Title=" + topics.front().title + "\n\n[FILES]\n";
    for (const auto& file : files) project += file + "\n";
    return project;
}

}  // namespace arbolith::help
