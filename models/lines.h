// Reading a stream line by line in constant memory, whatever the stream holds.
#pragma once

#include <cstddef>
#include <istream>
#include <string>
#include <string_view>
#include <vector>

namespace growth {

/// So much is kept of a line, bytes; the rest of a longer one is read over. A line that the
/// application writes has some 150.
inline constexpr std::size_t kKeptOfLine = 4096;

/// Hands out the lines of a stream. Lines end at LF; a last line without one counts.
class LineReader {
public:
    /// Reads from a stream that outlives the reader.
    explicit LineReader(std::istream& stream);

    /// Goes to the next line; false at the end of the stream or where it can't be read on.
    bool Next();

    /// The line without its LF, at most kKeptOfLine bytes of it.
    std::string_view Text() const { return text; }

    /// Whether the whole line, also what isn't kept of it, is blanks, tabs and carriage returns.
    bool IsBlank() const { return blank; }

private:
    bool Fill();
    void Take(std::string_view piece);

    std::istream& input;
    std::vector<char> buffer;
    std::string_view unread;
    std::string text;
    bool blank = true;
};

}  // namespace growth
