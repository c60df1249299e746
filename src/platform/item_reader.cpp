#include "platform/item_reader.h"

#include "platform/runtime_error.h"

#include <algorithm>

namespace arbolith {

namespace {

constexpr std::string_view kBlanks = " \t";
constexpr std::string_view kLineEnds = "\r\n";
constexpr char kQuote = '"';

bool EndsItem(char c) {
    return c == ',' || c == '\r' || c == '\n';
}

}  // namespace

std::string_view ItemReader::Read() {
    if (AtEnd()) throw RuntimeError(ErrorNumber::kInputPastEnd);
    rest_.remove_prefix(std::min(rest_.find_first_not_of(kBlanks), rest_.size()));
    if (rest_.starts_with(kQuote)) return TakeQuoted();
    return TakePlain();
}

std::string_view ItemReader::TakePlain() {
    const auto end = std::find_if(rest_.begin(), rest_.end(), EndsItem);
    const auto item = rest_.substr(0, static_cast<std::size_t>(end - rest_.begin()));
    Take(item.size());
    return item;
}

// The closing quote is the one that ends the item; without one on this line the item is plain.
std::string_view ItemReader::TakeQuoted() {
    const auto line = rest_.substr(0, rest_.find_first_of(kLineEnds));
    for (auto quote = line.find(kQuote, 1); quote != std::string_view::npos;
         quote = line.find(kQuote, quote + 1)) {
        const auto next = std::min(line.find_first_not_of(kBlanks, quote + 1), line.size());
        if (next != line.size() && line[next] != ',') continue;
        const auto item = line.substr(1, quote - 1);
        Take(next);
        return item;
    }
    return TakePlain();
}

// Takes characters, and behind them the comma or the line end.
void ItemReader::Take(std::size_t length) {
    rest_.remove_prefix(length);
    if (rest_.empty()) return;
    rest_.remove_prefix(rest_.starts_with("\r\n") ? 2 : 1);
}

}  // namespace arbolith
