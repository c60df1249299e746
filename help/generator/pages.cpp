#include "generator/pages.h"

#include "generator/facts.h"
#include "generator/html.h"
#include "platform/text.h"

#include <filesystem>
#include <fstream>
#include <set>
#include <sstream>

namespace arbolith::help {

namespace {

namespace fs = std::filesystem;

constexpr std::string_view kIndexOpen = "<!-- index:";
constexpr std::string_view kIndexClose = "-->\n";
constexpr const char* kStyleSheet = "help.css";

std::string ReadText(const fs::path& path) {
    std::ifstream file(path, std::ios::binary);
    if (!file) throw BadPage("can't read " + path.string());
    std::ostringstream text;
    text << file.rdbuf();
    return text.str();
}

void WriteText(const fs::path& path, const std::string& text) {
    fs::create_directories(path.parent_path());
    std::ofstream file(path, std::ios::binary);
    file << text;
    file.close();
    if (!file) throw BadPage("can't write " + path.string());
}

std::vector<std::string> TakeKeywords(std::string& text) {
    std::vector<std::string> keywords;
    for (auto open = text.find(kIndexOpen); open != std::string::npos;
         open = text.find(kIndexOpen)) {
        const auto close = text.find(kIndexClose, open);
        if (close == std::string::npos) throw BadPage("index words that aren't closed");
        const auto words = text.substr(open + kIndexOpen.size(), close - open - kIndexOpen.size());
        for (const auto& word : Split(words, ',')) keywords.emplace_back(Trimmed(word));
        text.erase(open, close + kIndexClose.size() - open);
    }
    return keywords;
}

std::string FirstHeading(std::string_view body) {
    const auto open = body.find("<h1>");
    const auto close = body.find("</h1>");
    if (open == std::string_view::npos || close == std::string_view::npos)
        throw BadPage("a page without a heading");
    return PlainText(body.substr(open, close - open));
}

// The attribute values of this name.
std::vector<std::string> Attributes(std::string_view html, std::string_view name) {
    std::vector<std::string> values;
    const auto open = std::string(" ").append(name).append("=\"");
    for (auto at = html.find(open); at != std::string_view::npos; at = html.find(open, at)) {
        at += open.size();
        values.emplace_back(html.substr(at, html.find('"', at) - at));
    }
    return values;
}

std::string FromRoot(std::string_view link) {
    while (link.starts_with("../")) link.remove_prefix(3);
    return std::string(link);
}

Facts MakeFacts(const fs::path& source) {
    Facts facts;
    AddCaptionFacts(facts);
    AddLimitFacts(facts);
    AddSiteFacts(facts);
    AddVariableFacts(facts);
    AddBatchFacts(facts);
    AddGrowthFacts(facts);
    AddPictureFacts(facts, (source / "pictures").string());
    return facts;
}

/// All pages on their way, the contents last since they need the titles.
class HelpFolder {
public:
    HelpFolder(fs::path source, fs::path target)
        : source_(std::move(source)),
          target_(std::move(target)),
          facts_(MakeFacts(source_)),
          topics_(ReadTopics(ReadText(source_ / "contents.txt"))) {
        if (topics_.empty()) throw BadPage("no contents");
        facts_["contents"] = [this](const Words&, const Page&) { return ContentsHtml(topics_); };
    }

    void Make() {
        std::vector<FilledPage> pages(topics_.size());
        for (std::size_t i = topics_.size(); i-- > 0;) pages[i] = Fill(topics_[i]);
        for (std::size_t i = 0; i < topics_.size(); ++i) Write(pages[i], i);
        WriteText(target_ / kStyleSheet, ReadText(source_ / kStyleSheet));
        files_.insert(kStyleSheet);
        WriteText(target_ / "contents.txt", ContentsList(topics_));
        WriteText(target_ / "qvlhelp.hhc", CompilerContents(topics_));
        WriteText(target_ / "qvlhelp.hhk", CompilerIndex(topics_));
        WriteText(target_ / "qvlhelp.hhp",
                  CompilerProject(topics_, {files_.begin(), files_.end()}));
    }

private:
    FilledPage Fill(Topic& topic) {
        auto page = FillPage(ReadText(source_ / "pages" / topic.file), facts_, {topic.file});
        topic.title = page.title;
        topic.keywords = page.keywords;
        return page;
    }

    void Write(const FilledPage& filled, std::size_t position) {
        const auto& file = topics_[position].file;
        const auto html = PageHtml(filled, {file}, WayOn(topics_, position));
        WriteText(target_ / file, html);
        files_.insert(file);
        for (auto& picture : PicturesOf(html)) files_.insert(std::move(picture));
    }

    fs::path source_;
    fs::path target_;
    Facts facts_;
    std::vector<Topic> topics_;
    std::set<std::string> files_;
};

}  // namespace

FilledPage FillPage(std::string_view source, const Facts& facts, const Page& page) {
    FilledPage filled;
    filled.body = Expand(source, facts, page);
    try {
        filled.keywords = TakeKeywords(filled.body);
        filled.title = FirstHeading(filled.body);
    } catch (const BadPage& bad) {
        throw BadPage(page.file + ": " + bad.what());
    }
    return filled;
}

std::string PageHtml(const FilledPage& filled, const Page& page, const std::string& wayOn) {
    return "<!DOCTYPE html>\n<html lang=\"en\">\n<head>\n<meta charset=\"utf-8\">\n<title>" +
           Escaped(filled.title) + "</title>\n<link rel=\"stylesheet\" type=\"text/css\" href=\"" +
           page.Root() + kStyleSheet + "\">\n</head>\n<body>\n" + filled.body + wayOn +
           "</body>\n</html>\n";
}

std::vector<std::string> PicturesOf(std::string_view html) {
    std::vector<std::string> pictures;
    for (const auto& link : Attributes(html, "src")) pictures.push_back(FromRoot(link));
    for (const auto& set : Attributes(html, "srcset"))
        pictures.push_back(FromRoot(set.substr(0, set.find(' '))));
    return pictures;
}

void MakeHelpFolder(const std::string& source, const std::string& target) {
    HelpFolder(source, target).Make();
}

}  // namespace arbolith::help
