// Making a new input from those that are known.
#pragma once

#include <random>
#include <string>
#include <vector>

namespace arbolith {

/// The same numbers from the same seed on every machine.
class Dice {
public:
    explicit Dice(unsigned seed) : engine_(seed) {}

    /// A number from 0 to `count` - 1; 0 where there is none.
    std::size_t Below(std::size_t count) { return count == 0 ? 0 : engine_() % count; }
    const std::string& OneOf(const std::vector<std::string>& texts) {
        return texts[Below(texts.size())];
    }

private:
    std::mt19937 engine_;
};

/// One of the pool, changed in a few places: bytes, words, lines and pieces of others of the pool
/// are put in, doubled, moved or taken away. `pool` and `words` are not empty.
std::string Mutated(const std::vector<std::string>& pool, const std::vector<std::string>& words,
                    Dice& dice);

}  // namespace arbolith
