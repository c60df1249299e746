// The page of messages tells exactly what the program says: every text on it was seen in a box by a
// scenario, and every box that a scenario sees is told on it.
#include "generator/html.h"
#include "generator/pages.h"
#include "unit/platform/temporary_folder.h"

#include <filesystem>
#include <gtest/gtest.h>
#include <iterator>
#include <regex>
#include <set>

namespace arbolith::help {
namespace {

namespace fs = std::filesystem;

const std::string kProject = PROJECT_FOLDER;

std::string ReadText(const fs::path& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

// A text of a script with its escapes, white space run together.
std::string BoxText(std::string text) {
    text = std::regex_replace(text, std::regex(R"(\\[rnt])"), " ");
    text = std::regex_replace(text, std::regex(R"(\\(["\\]))"), "$1");
    return PlainText(Escaped(text));
}

std::set<std::string> BoxesOfScenarios() {
    const std::regex box(R"rx(^\s*expect box "((?:[^"\\]|\\.)*)")rx", std::regex::multiline);
    std::set<std::string> boxes;
    for (const auto& entry : fs::recursive_directory_iterator(kProject + "/tests/scenarios")) {
        if (entry.path().extension() != ".script") continue;
        const auto script = ReadText(entry.path());
        for (std::sregex_iterator at(script.begin(), script.end(), box), end; at != end; ++at)
            boxes.insert(BoxText((*at)[1]));
    }
    return boxes;
}

/// A message as the page tells it: what stands in italics there is different each time.
struct Told {
    std::string text;
    std::regex pattern;
};

std::regex PatternOf(const std::string& html) {
    static const std::regex kMarks(R"([.^$|()\[\]{}*+?\\])");
    static const std::regex kVaries("<i>[^<]*</i>");
    std::string pattern;
    auto from = html.cbegin();
    const auto add = [&](std::string piece) {
        const auto plain = PlainText("|" + piece + "|");
        pattern += std::regex_replace(plain.substr(1, plain.size() - 2), kMarks, "\\$&");
    };
    for (std::sregex_iterator at(html.begin(), html.end(), kVaries), end; at != end; ++at) {
        add({from, html.cbegin() + at->position()});
        pattern += ".+";
        from = html.cbegin() + at->position() + at->length();
    }
    add({from, html.cend()});
    return std::regex(pattern);
}

std::vector<Told> MessagesOfThePage() {
    const TemporaryFolder folder;
    MakeHelpFolder(kProject + "/help", folder.Path());
    const auto page = folder.Read("messages.html");
    static const std::regex kMessage("<dt>([^<]*(?:<i>[^<]*</i>[^<]*)*)</dt>");
    std::vector<Told> messages;
    for (std::sregex_iterator at(page.begin(), page.end(), kMessage), end; at != end; ++at) {
        const std::string html = (*at)[1];
        messages.push_back({PlainText(html), PatternOf(html)});
    }
    return messages;
}

TEST(MessagesTest, ThePageAndTheProgramSayTheSame) {
    const auto boxes = BoxesOfScenarios();
    const auto messages = MessagesOfThePage();
    ASSERT_GT(boxes.size(), 30U);
    std::set<std::string> told;
    for (const auto& message : messages) {
        bool seen = false;
        for (const auto& box : boxes) {
            if (!std::regex_match(box, message.pattern)) continue;
            seen = true;
            told.insert(box);
        }
        EXPECT_TRUE(seen) << "no scenario sees the message: " << message.text;
    }
    for (const auto& box : boxes)
        EXPECT_TRUE(told.contains(box)) << "the page of messages doesn't tell: " << box;
}

}  // namespace
}  // namespace arbolith::help
