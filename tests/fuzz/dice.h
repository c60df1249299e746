// Chance that can be had again.
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

}  // namespace arbolith
