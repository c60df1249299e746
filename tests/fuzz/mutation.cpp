#include "fuzz/mutation.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace arbolith {

namespace {

constexpr std::size_t kMostChanges = 6;
constexpr std::size_t kMostRepeats = 300;
constexpr std::size_t kLongestInput = 1U << 16U;

struct Piece {
    std::size_t start = 0;
    std::size_t length = 0;
};

Piece AnyPiece(const std::string& text, Dice& dice) {
    const auto start = dice.Below(text.size());
    return {start, text.empty() ? 0 : 1 + dice.Below(text.size() - start)};
}

// The piece between two commas or line ends around any place.
Piece AnyField(const std::string& text, Dice& dice) {
    constexpr std::string_view kEnds = ",\t\r\n";
    const auto place = dice.Below(text.size());
    const auto before = text.empty() ? std::string::npos : text.find_last_of(kEnds, place);
    const auto start = before == std::string::npos ? 0 : before + 1;
    const auto end = std::min(text.find_first_of(kEnds, start), text.size());
    return {start, end - start};
}

using Change = void (*)(std::string& text, const std::vector<std::string>& pool,
                        const std::vector<std::string>& words, Dice& dice);

constexpr std::array<Change, 9> kChanges = {
    // any byte in the place of another
    [](auto& text, const auto&, const auto&, Dice& dice) {
        if (!text.empty()) text[dice.Below(text.size())] = static_cast<char>(dice.Below(256));
    },
    // one bit of a byte
    [](auto& text, const auto&, const auto&, Dice& dice) {
        if (text.empty()) return;
        char& byte = text[dice.Below(text.size())];
        byte = static_cast<char>(static_cast<unsigned char>(byte) ^ (1U << dice.Below(8)));
    },
    // a byte more, perhaps many times
    [](auto& text, const auto&, const auto&, Dice& dice) {
        const auto count = dice.Below(4) == 0 ? dice.Below(kMostRepeats) : 1;
        text.insert(dice.Below(text.size() + 1), count, static_cast<char>(dice.Below(256)));
    },
    // a piece less
    [](auto& text, const auto&, const auto&, Dice& dice) {
        const auto piece = AnyPiece(text, dice);
        text.erase(piece.start, std::min<std::size_t>(piece.length, 1 + dice.Below(40)));
    },
    // the end less
    [](auto& text, const auto&, const auto&, Dice& dice) { text.resize(dice.Below(text.size())); },
    // a word more
    [](auto& text, const auto&, const auto& words, Dice& dice) {
        text.insert(dice.Below(text.size() + 1), dice.OneOf(words));
    },
    // a word in the place of a field
    [](auto& text, const auto&, const auto& words, Dice& dice) {
        const auto field = AnyField(text, dice);
        text.replace(field.start, field.length, dice.OneOf(words));
    },
    // a piece of itself or of another once more, somewhere else
    [](auto& text, const auto& pool, const auto&, Dice& dice) {
        const auto& other = dice.OneOf(pool);
        const auto piece = AnyPiece(other, dice);
        text.insert(dice.Below(text.size() + 1), other, piece.start, piece.length);
    },
    // the field of another in the place of a field
    [](auto& text, const auto& pool, const auto&, Dice& dice) {
        const auto& other = dice.OneOf(pool);
        const auto from = AnyField(other, dice);
        const auto to = AnyField(text, dice);
        text.replace(to.start, to.length, other, from.start, from.length);
    },
};

}  // namespace

std::string Mutated(const std::vector<std::string>& pool, const std::vector<std::string>& words,
                    Dice& dice) {
    auto text = dice.OneOf(pool);
    const auto changes = 1 + dice.Below(kMostChanges);
    for (std::size_t i = 0; i < changes; ++i)
        kChanges[dice.Below(kChanges.size())](text, pool, words, dice);
    text.resize(std::min(text.size(), kLongestInput));
    return text;
}

}  // namespace arbolith
