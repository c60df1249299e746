// A text's bytes as lines, each with the line end in front of it, so that files with any mixture of
// line ends come back byte for byte.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace arbolith::notepad {

/// How a line ends: as in batch files and reports, as on Unix, as on the clipboard of a table.
enum class LineEnd { kCrLf, kLf, kCr };

struct Line {
    std::string_view text;
    LineEnd before = LineEnd::kCrLf;  ///< Parts it from the line in front; of the first, `usual`.
};

struct Lines {
    std::vector<Line> lines;         ///< One at least; the last is empty behind a line end.
    LineEnd usual = LineEnd::kCrLf;  ///< Which most lines have; CR LF where there is none.
    bool isMixed = false;            ///< Whether some have another.
};

/// The lines of a text; they look into it.
Lines SplitLines(std::string_view bytes);

/// The bytes of a line end.
std::string_view BytesOf(LineEnd end);

/// What a person knows the line end by, for example "CR LF".
const char* NameOf(LineEnd end);

}  // namespace arbolith::notepad
