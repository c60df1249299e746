// A picture that was drawn once, to be shown elsewhere: on the clipboard, in a file, on paper.
#pragma once

#include "platform/size.h"

#include <string>

namespace arbolith {

/// Made by whoever draws for the host, and understood by that host. It keeps what was drawn sharp
/// on paper; its size tells how large it is meant.
class Drawing {
public:
    virtual ~Drawing() = default;

    virtual Size GetSize() const = 0;
    /// The bytes of a Windows bitmap file of this picture, at 15 twips to the pixel.
    virtual std::string BitmapFile() const = 0;
};

/// A white sheet: what stands for a picture where nothing draws.
class BlankDrawing : public Drawing {
public:
    explicit BlankDrawing(Size size) : size_(size) {}

    Size GetSize() const override { return size_; }
    std::string BitmapFile() const override;

private:
    Size size_;
};

}  // namespace arbolith
