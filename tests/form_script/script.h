// A form script as steps of words: quoted texts with their escapes, comments left out, nested steps
// under the step that holds them. What the words mean is not looked at here.
#pragma once

#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace arbolith {

/// A script that can't be run at all, and where.
class ScriptError : public std::runtime_error {
public:
    ScriptError(int line, const std::string& what) : std::runtime_error(what), line_(line) {}
    int Line() const { return line_; }

private:
    int line_;
};

/// A word of a step, in the program's 8-bit characters.
struct Word {
    std::string text;
    bool quoted = false;

    /// Whether it is this word of the language; a text in quotes never is.
    bool Is(std::string_view keyword) const { return !quoted && text == keyword; }
};

/// One step: its words and, between `during` and `end`, the steps inside.
struct Step {
    int line = 0;
    std::string source;  ///< The line without outer blanks, in UTF-8.
    std::vector<Word> words;
    std::vector<Step> body;
};

/// What stands for the marks $FOLDER, $S and $VERSION.
struct Substitutes {
    std::string folder;
    std::string separator;
    std::string version;
};

/// The steps of a script given in UTF-8. Throws a ScriptError for a text that isn't closed, an
/// unknown escape, a `during` without `end` and the reverse.
std::vector<Step> ReadScript(std::string_view utf8, const Substitutes& substitutes);

/// The words of one line in the program's characters; none for a blank line or a comment.
std::vector<Word> ReadWords(std::string_view line, int lineNumber, const Substitutes& substitutes);

/// A text as a script would write it: in quotes, with escapes, in UTF-8 and on one line.
std::string Quoted(std::string_view text);

}  // namespace arbolith
