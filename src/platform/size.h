// A size in twips, the measure of all places: 15 to the pixel.
#pragma once

namespace arbolith {

struct Size {
    int width = 0;
    int height = 0;

    bool operator==(const Size&) const = default;
};

}  // namespace arbolith
