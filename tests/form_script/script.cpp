#include "form_script/script.h"

#include "platform/code_page.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <optional>
#include <utility>

namespace arbolith {

namespace {

constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
constexpr std::string_view kBlanks = " \t";

struct Escape {
    char letter;
    char character;
};
constexpr std::array<Escape, 5> kEscapes = {
    {{'n', '\n'}, {'r', '\r'}, {'t', '\t'}, {'"', '"'}, {'\\', '\\'}}};

std::optional<int> HexDigit(char c) {
    if (c >= '0' && c <= '9') return c - '0';
    if (c >= 'A' && c <= 'F') return c - 'A' + 10;
    if (c >= 'a' && c <= 'f') return c - 'a' + 10;
    return std::nullopt;
}

// Takes the words off a line one by one.
class WordReader {
public:
    WordReader(std::string_view line, int lineNumber, const Substitutes& substitutes)
        : rest_(line), lineNumber_(lineNumber), substitutes_(substitutes) {}

    bool Next(Word& word) {
        rest_.remove_prefix(std::min(rest_.find_first_not_of(kBlanks), rest_.size()));
        if (rest_.empty()) return false;
        word = rest_.front() == '"' ? QuotedWord() : PlainWord();
        return true;
    }

private:
    Word PlainWord() {
        Word word;
        while (!rest_.empty() && kBlanks.find(rest_.front()) == std::string_view::npos)
            TakeCharacter(word.text);
        return word;
    }

    Word QuotedWord() {
        Word word{.text = "", .quoted = true};
        rest_.remove_prefix(1);
        while (!rest_.empty() && rest_.front() != '"') {
            if (rest_.front() == '\\') {
                TakeEscape(word.text);
            } else {
                TakeCharacter(word.text);
            }
        }
        if (rest_.empty()) throw ScriptError(lineNumber_, "a text that ends in a double quote");
        rest_.remove_prefix(1);
        if (!rest_.empty() && kBlanks.find(rest_.front()) == std::string_view::npos)
            throw ScriptError(lineNumber_, "a blank behind a text in quotes");
        return word;
    }

    // One character, or what stands for a mark.
    void TakeCharacter(std::string& text) {
        const std::array<std::pair<std::string_view, const std::string*>, 3> marks = {
            {{"$FOLDER", &substitutes_.folder},
             {"$VERSION", &substitutes_.version},
             {"$S", &substitutes_.separator}}};
        for (const auto& [mark, substitute] : marks) {
            if (!rest_.starts_with(mark)) continue;
            text += *substitute;
            rest_.remove_prefix(mark.size());
            return;
        }
        text += rest_.front();
        rest_.remove_prefix(1);
    }

    void TakeEscape(std::string& text) {
        rest_.remove_prefix(1);
        const char letter = rest_.empty() ? '\0' : rest_.front();
        for (const auto& escape : kEscapes) {
            if (escape.letter != letter) continue;
            text += escape.character;
            rest_.remove_prefix(1);
            return;
        }
        const auto high = rest_.size() > 2 && letter == 'x' ? HexDigit(rest_[1]) : std::nullopt;
        const auto low = high ? HexDigit(rest_[2]) : std::nullopt;
        if (!low) throw ScriptError(lineNumber_, R"(an escape: \n, \r, \t, \", \\ or \xHH)");
        text += static_cast<char>(*high * 16 + *low);
        rest_.remove_prefix(3);
    }

    std::string_view rest_;
    int lineNumber_;
    const Substitutes& substitutes_;
};

std::string_view WithoutOuterBlanks(std::string_view line) {
    const auto first = line.find_first_not_of(" \t\r");
    if (first == std::string_view::npos) return {};
    return line.substr(first, line.find_last_not_of(" \t\r") - first + 1);
}

std::string_view TakeLine(std::string_view& text) {
    const auto end = text.find('\n');
    const auto line = text.substr(0, end);
    text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
    return line;
}

}  // namespace

std::vector<Word> ReadWords(std::string_view line, int lineNumber, const Substitutes& substitutes) {
    std::vector<Word> words;
    line = WithoutOuterBlanks(line);
    if (line.starts_with('#')) return words;
    WordReader reader(line, lineNumber, substitutes);
    for (Word word; reader.Next(word);) words.push_back(std::move(word));
    return words;
}

std::vector<Step> ReadScript(std::string_view utf8, const Substitutes& substitutes) {
    if (utf8.starts_with(kByteOrderMark)) utf8.remove_prefix(kByteOrderMark.size());
    // The last of these is the list that steps go to; below it stand the ones that wait for it.
    std::vector<std::vector<Step>> lists(1);
    for (int line = 1; !utf8.empty(); ++line) {
        const auto source = WithoutOuterBlanks(TakeLine(utf8));
        auto words = ReadWords(FromUtf8(source), line, substitutes);
        if (words.empty()) continue;
        if (words.front().Is("end")) {
            if (words.size() > 1) throw ScriptError(line, "nothing behind end");
            if (lists.size() == 1) throw ScriptError(line, "a during before end");
            auto body = std::move(lists.back());
            lists.pop_back();
            lists.back().back().body = std::move(body);
            continue;
        }
        lists.back().push_back({line, std::string(source), std::move(words), {}});
        if (lists.back().back().words.front().Is("during")) lists.emplace_back();
    }
    if (lists.size() > 1)
        throw ScriptError(lists[lists.size() - 2].back().line, "an end for this during");
    return std::move(lists.front());
}

std::string Quoted(std::string_view text) {
    constexpr std::string_view kHexDigits = "0123456789ABCDEF";
    std::string quoted = "\"";
    for (const char c : text) {
        const auto byte = static_cast<unsigned char>(c);
        const Escape* found = nullptr;
        for (const auto& escape : kEscapes)
            if (escape.character == c) found = &escape;
        if (found != nullptr) {
            quoted += {'\\', found->letter};
        } else if (byte >= ' ' && byte < 0x7F) {
            quoted += c;
        } else if (CodePointOf(byte) >= 0xA0) {
            quoted += ToUtf8(std::string_view(&c, 1));
        } else {
            quoted += {'\\', 'x', kHexDigits[byte / 16], kHexDigits[byte % 16]};
        }
    }
    return quoted + '"';
}

}  // namespace arbolith
