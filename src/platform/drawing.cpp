#include "platform/drawing.h"

#include <cstdint>

namespace arbolith {

namespace {

constexpr int kTwipsPerPixel = 15;
constexpr std::uint32_t kHeadSize = 54;
constexpr std::uint32_t kInfoSize = 40;
constexpr int kBytesPerPixel = 3;
constexpr int kBitsPerPixel = 24;
constexpr int kRowAlignment = 4;

int Pixels(int twips) {
    return (twips + kTwipsPerPixel / 2) / kTwipsPerPixel;
}

void Put(std::string& bytes, std::uint32_t value, int count) {
    for (int i = 0; i < count; ++i) bytes += static_cast<char>(value >> (8 * i) & 0xFF);
}

}  // namespace

std::string BlankDrawing::BitmapFile() const {
    const int width = Pixels(size_.width);
    const int height = Pixels(size_.height);
    const int row = (width * kBytesPerPixel + kRowAlignment - 1) / kRowAlignment * kRowAlignment;
    const auto content = static_cast<std::uint32_t>(row * height);
    std::string bytes = "BM";
    Put(bytes, kHeadSize + content, 4);
    Put(bytes, 0, 4);
    Put(bytes, kHeadSize, 4);
    Put(bytes, kInfoSize, 4);
    Put(bytes, static_cast<std::uint32_t>(width), 4);
    Put(bytes, static_cast<std::uint32_t>(height), 4);
    Put(bytes, 1, 2);
    Put(bytes, kBitsPerPixel, 2);
    Put(bytes, 0, 4);
    Put(bytes, content, 4);
    for (int field = 0; field < 4; ++field) Put(bytes, 0, 4);
    bytes.append(content, '\xFF');
    return bytes;
}

}  // namespace arbolith
