// The line reader.
#include "models/lines.h"

#include "models/numbers.h"

#include <algorithm>

namespace growth {

namespace {

constexpr std::size_t kBufferSize = std::size_t{64} * 1024;

}  // namespace

LineReader::LineReader(std::istream& stream) : input(stream), buffer(kBufferSize) {
    text.reserve(kKeptOfLine);
}

bool LineReader::Next() {
    text.clear();
    blank = true;
    bool any = false;
    while (!unread.empty() || Fill()) {
        any = true;
        const std::size_t end = unread.find('\n');
        Take(unread.substr(0, end));
        if (end != std::string_view::npos) {
            unread.remove_prefix(end + 1);
            return true;
        }
        unread = {};
    }
    return any;
}

bool LineReader::Fill() {
    input.read(buffer.data(), static_cast<std::streamsize>(buffer.size()));
    unread = {buffer.data(), static_cast<std::size_t>(input.gcount())};
    return !unread.empty();
}

void LineReader::Take(std::string_view piece) {
    blank = blank && StripBlanks(piece).empty();
    text += piece.substr(0, kKeptOfLine - text.size());
}

}  // namespace growth
