#include "generator/template.h"

#include <algorithm>
#include <sstream>

namespace arbolith::help {

namespace {

constexpr std::string_view kOpen = "{{";
constexpr std::string_view kClose = "}}";

Words WordsOf(std::string_view inside) {
    std::istringstream stream{std::string(inside)};
    Words words;
    for (std::string word; stream >> word;) words.push_back(word);
    return words;
}

std::string Fill(std::string_view inside, const Facts& facts, const Page& page) {
    auto words = WordsOf(inside);
    if (words.empty()) throw BadPage("an empty place");
    const auto fact = facts.find(words.front());
    if (fact == facts.end()) throw BadPage("no fact named " + words.front());
    words.erase(words.begin());
    return fact->second(words, page);
}

std::string LineAt(std::string_view text, std::size_t position) {
    const auto before = text.substr(0, position);
    return std::to_string(1 + std::count(before.begin(), before.end(), '\n'));
}

}  // namespace

std::string Page::Root() const {
    std::string root;
    for (const char c : file)
        if (c == '/') root += "../";
    return root;
}

std::string Expand(std::string_view text, const Facts& facts, const Page& page) {
    std::string result;
    std::size_t done = 0;
    for (;;) {
        const auto open = text.find(kOpen, done);
        result += text.substr(done, open - done);
        if (open == std::string_view::npos) return result;
        const auto inside = open + kOpen.size();
        try {
            const auto close = text.find(kClose, inside);
            if (close == std::string_view::npos) throw BadPage("a place that isn't closed");
            result += Fill(text.substr(inside, close - inside), facts, page);
            done = close + kClose.size();
        } catch (const BadPage& bad) {
            throw BadPage(page.file + ":" + LineAt(text, open) + ": " + bad.what());
        }
    }
}

const std::string& WordAt(const Words& words, std::size_t position) {
    if (position >= words.size()) throw BadPage("too few words");
    return words[position];
}

}  // namespace arbolith::help
