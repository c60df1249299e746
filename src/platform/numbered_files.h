// Text files addressed by fixed numbers. A number in use refuses a second open, which procedures
// that share one rely on. Lines are written with CR LF; bytes pass through as they are, but for a
// UTF-8 mark at a file's start, which is not read.
#pragma once

#include <cstdint>
#include <map>
#include <memory>
#include <string>
#include <string_view>

namespace arbolith {

/// The table of the open files. Every operation throws a RuntimeError with the file's failure: 53
/// for a missing file, 76 for a missing folder, 75 for a folder or an empty name, 70 for a refused
/// permission, 52 for a number that is not open or a name that can't be a file's, 55 for a number
/// in use, 61 for a full disk, 62 for reading past the end.
class NumberedFiles {
public:
    NumberedFiles();
    ~NumberedFiles();
    NumberedFiles(const NumberedFiles&) = delete;
    NumberedFiles& operator=(const NumberedFiles&) = delete;

    void OpenForInput(int number, const std::string& path);
    /// Creates the file, or empties it where it exists.
    void OpenForOutput(int number, const std::string& path);
    /// As for output, but the old file stays until Close puts the new bytes in its place as a
    /// whole; Close is also what fails where the file can't be written. CloseQuietly drops the new
    /// bytes.
    void OpenForReplacement(int number, const std::string& path);
    void OpenForAppend(int number, const std::string& path);

    /// Creates or overwrites a file with these bytes; takes no number.
    static void WriteWhole(const std::string& path, std::string_view bytes);

    /// Writes the text and CR LF.
    void PrintLine(int number, std::string_view text);

    /// Writes out what is pending: the file then holds what was written so far and nothing else.
    void Flush(int number);

    /// Whether not a byte is left.
    bool AtEndOfFile(int number);
    /// The next item by the rules of ItemReader. It stands until the next read. It is read with its
    /// whole line, of which the other reads then see nothing. 7 where the line is too long.
    std::string_view ItemRead(int number);
    /// All that is left, as it is; 7 where that is more than any file of this program.
    std::string ReadAll(int number);

    /// Whether nothing but blanks and line ends is left.
    bool AtEndOfData(int number);
    /// The next run of characters between blanks and line ends; 13 where it is longer than any
    /// number.
    std::string_view ReadToken(int number);
    /// The next token as a real number; 13 where it is none.
    double ReadReal(int number);
    /// The next token as a 16-bit whole number, rounded; 6 where it doesn't fit.
    std::int16_t ReadWhole(int number);

    /// Writes out what is pending and frees the number; nothing where it isn't open.
    void Close(int number);
    /// The same, for error traps: what can't be written any more is let go.
    void CloseQuietly(int number);

private:
    class File;
    enum class Use { kInput, kOutput, kAppend, kReplacement };
    static std::unique_ptr<File> OpenFile(const std::string& path, Use use);
    File& Opened(int number);
    void Open(int number, const std::string& path, Use use);

    std::map<int, std::unique_ptr<File>> files_;
};

}  // namespace arbolith
