// The pages as they are: that their links lead somewhere, that they keep to what every viewer
// understands, and that none types a number that the program has.
#include "generator/html.h"
#include "generator/pages.h"
#include "platform/text.h"
#include "unit/platform/temporary_folder.h"

#include <filesystem>
#include <gtest/gtest.h>
#include <iterator>
#include <regex>
#include <set>

namespace arbolith::help {
namespace {

namespace fs = std::filesystem;

const std::string kSource = std::string(PROJECT_FOLDER) + "/help";

std::string ReadText(const fs::path& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

std::vector<std::string> AllMatches(const std::string& text, const char* pattern) {
    const std::regex regex(pattern);
    std::vector<std::string> found;
    for (std::sregex_iterator at(text.begin(), text.end(), regex), end; at != end; ++at)
        found.push_back((*at)[1]);
    return found;
}

/// The help folder, made once for all tests.
class HelpPagesTest : public testing::Test {
protected:
    static void SetUpTestSuite() {
        folder_ = std::make_unique<TemporaryFolder>();
        MakeHelpFolder(kSource, folder_->Path());
        topics_ = ReadTopics(ReadText(kSource + "/contents.txt"));
    }
    static void TearDownTestSuite() { folder_.reset(); }

    static fs::path PathOf(const Topic& topic) { return fs::path(folder_->Path()) / topic.file; }
    static std::string SourceOf(const Topic& topic) {
        return ReadText(kSource + "/pages/" + topic.file);
    }

    static inline std::unique_ptr<TemporaryFolder> folder_;
    static inline std::vector<Topic> topics_;
};

TEST_F(HelpPagesTest, EveryLinkLeadsSomewhere) {
    std::size_t links = 0;
    for (const auto& topic : topics_) {
        for (const auto& link : AllMatches(ReadText(PathOf(topic)), R"rx( href="([^"]*)")rx")) {
            ++links;
            const auto mark = link.find('#');
            const auto file = link.substr(0, mark);
            const auto path = file.empty() ? PathOf(topic) : PathOf(topic).parent_path() / file;
            ASSERT_TRUE(fs::exists(path)) << topic.file << ": " << link;
            if (mark == std::string::npos) continue;
            const auto anchor = " id=\"" + link.substr(mark + 1) + "\"";
            EXPECT_NE(ReadText(path).find(anchor), std::string::npos) << topic.file << ": " << link;
        }
    }
    EXPECT_GT(links, topics_.size());
}

TEST_F(HelpPagesTest, EveryPageIsInTheContents) {
    std::set<std::string> listed;
    for (const auto& topic : topics_) listed.insert(topic.file);
    EXPECT_EQ(listed.size(), topics_.size());
    const fs::path pages = kSource + "/pages";
    for (const auto& entry : fs::recursive_directory_iterator(pages)) {
        if (!entry.is_regular_file()) continue;
        const auto file = entry.path().lexically_relative(pages).generic_string();
        EXPECT_TRUE(listed.contains(file)) << file;
    }
}

TEST_F(HelpPagesTest, EveryPageCanBeFoundInTheIndex) {
    for (const auto& topic : topics_)
        EXPECT_NE(SourceOf(topic).find("<!-- index: "), std::string::npos) << topic.file;
}

TEST_F(HelpPagesTest, PagesKeepToWhatEveryViewerShows) {
    const std::set<std::string> known = {
        "a",  "b",  "body", "br",   "code", "dd",   "dl",    "dt",  "h1",  "h2",
        "h3", "h4", "hr",   "html", "head", "i",    "li",    "ol",  "p",   "table",
        "td", "th", "tr",   "ul",   "meta", "link", "title", "kbd", "img", "pre"};
    for (const auto& topic : topics_)
        for (const auto& tag : AllMatches(ReadText(PathOf(topic)), "</?([a-z][a-z0-9]*)"))
            EXPECT_TRUE(known.contains(tag)) << topic.file << ": " << tag;
}

// What a person types is an example and stands in kbd, what a file holds in code; messages, in dt,
// are compared with those of the program.
std::string WithoutExamples(const std::string& source) {
    return std::regex_replace(
        source, std::regex(R"(<kbd>[^<]*</kbd>|<code>[^<]*</code>|<dt>[^<]*|\{\{[^}]*\}\})"), "");
}

TEST_F(HelpPagesTest, NoPageTypesALimit) {
    const std::regex typed(
        R"((\d[\d.]*)(&nbsp;|\s)+(m|cm|ft|in|inches|feet|metres|meters|centimetres|%|per\s+cent)\b)");
    for (const auto& topic : topics_) {
        if (topic.file == "models.html") continue;
        const auto text = WithoutExamples(SourceOf(topic));
        for (std::sregex_iterator at(text.begin(), text.end(), typed), end; at != end; ++at)
            ADD_FAILURE() << topic.file << " types " << at->str();
    }
}

TEST_F(HelpPagesTest, NumbersAboutTheModelsAreThoseOfTheirDescription) {
    const auto description = ReadText(std::string(PROJECT_FOLDER) + "/docs/open-models.md");
    const auto told = AllMatches(description, R"((\d+(?:\.\d+)?))");
    const std::set<std::string> known(told.begin(), told.end());
    auto page = ReadText(kSource + "/pages/models.html");
    page = std::regex_replace(page, std::regex("<[^>]*>"), "");
    page = std::regex_replace(page, std::regex("step \\d"), "");
    const auto numbers = AllMatches(page, R"((\d+(?:\.\d+)?))");
    EXPECT_GT(numbers.size(), 10U);
    for (const auto& number : numbers) EXPECT_TRUE(known.contains(number)) << number;
}

}  // namespace
}  // namespace arbolith::help
