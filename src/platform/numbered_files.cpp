#include "platform/numbered_files.h"

#include "platform/file_error.h"
#include "platform/file_names.h"
#include "platform/item_reader.h"
#include "platform/numbers.h"
#include "platform/runtime_error.h"
#include "platform/whole_file.h"

#include <algorithm>
#include <cerrno>
#include <cstddef>
#include <cstdio>
#include <fcntl.h>
#include <filesystem>
#include <system_error>
#include <unistd.h>
#include <utility>
#include <vector>

namespace arbolith {

namespace {

constexpr std::size_t kBufferSize = 65536;
// What runs on for longer is no number of a model, and may not end at all.
constexpr std::size_t kLongestToken = 1000;
// Much more than any text of this program; a device may not end at all.
constexpr std::size_t kLargestText = 64U << 20U;
// Editors may put it in front; it is no part of the text.
constexpr std::string_view kUtf8Mark = "\xEF\xBB\xBF";

bool IsBlank(int c) {
    return c == ' ' || c == '\t' || c == '\r' || c == '\n';
}

bool EndsLine(char c) {
    return c == '\r' || c == '\n';
}

// An output file is overwritten in place and cut at its new end when it is closed. Where it is
// emptied first, some file systems write it out at the next close, which takes longer than a model
// does.
std::FILE* OpenToOverwrite(const std::string& path) {
    const int descriptor = open(path.c_str(), O_WRONLY | O_CREAT | O_CLOEXEC, 0666);
    return descriptor == -1 ? nullptr : fdopen(descriptor, "wb");
}

bool NameCanBeCreated(const std::string& path) {
    const auto name = std::filesystem::path(path).filename().string();
    return name.find_first_of(kRefusedCharacters) == std::string::npos;
}

}  // namespace

/// One open file with a buffer of its own, so that characters can be looked at before they are
/// taken.
class NumberedFiles::File {
public:
    File(const std::string& path, Use use) : path_(path), use_(use) {
        buffer_.reserve(kBufferSize);
        if (IsReplacement()) return;
        stream_ = OpenStream(path, use);
        if (stream_ == nullptr) throw RuntimeError(FileErrorOf(errno, path));
        std::setvbuf(stream_, nullptr, _IONBF, 0);
    }
    ~File() {
        if (stream_ == nullptr) return;
        CutBehindText();
        std::fclose(stream_);
    }
    File(const File&) = delete;
    File& operator=(const File&) = delete;

    void Write(std::string_view text) {
        buffer_.insert(buffer_.end(), text.begin(), text.end());
        if (buffer_.size() >= kBufferSize && !IsReplacement()) Flush();
    }
    void Flush() {
        const auto size = buffer_.size();
        const auto count = std::fwrite(buffer_.data(), 1, size, stream_);
        // What can't be written is let go: another try would fail as well.
        buffer_.clear();
        written_ += count;
        if (count != size) throw RuntimeError(FileErrorOf(errno, path_));
    }
    void FlushAndCut() {
        Flush();
        CutBehindText();
    }
    void Finish() {
        if (IsReplacement()) return Replace();
        if (use_ != Use::kInput) FlushAndCut();
        auto* stream = std::exchange(stream_, nullptr);
        if (std::fclose(stream) != 0) throw RuntimeError(FileErrorOf(errno, path_));
    }

    int Peek() {
        if (position_ == buffer_.size()) Refill();
        return position_ < buffer_.size() ? static_cast<unsigned char>(buffer_[position_]) : EOF;
    }
    void Skip() { ++position_; }
    bool Skip(char c) {
        const bool isNext = Peek() == c;
        if (isNext) Skip();
        return isNext;
    }

    std::string ReadAll() {
        std::string text;
        while (Peek() != EOF) {
            text.append(buffer_.data() + position_, buffer_.size() - position_);
            position_ = buffer_.size();
            if (text.size() > kLargestText) throw RuntimeError(ErrorNumber::kOutOfMemory);
        }
        return text;
    }

    bool AtEndOfFile() { return items_.AtEnd() && Peek() == EOF; }
    std::string_view ItemRead() {
        if (items_.AtEnd()) {
            ReadLine();
            items_ = ItemReader(line_);
        }
        return items_.Read();
    }

    std::string& Token() { return token_; }
    bool IsReplacement() const { return use_ == Use::kReplacement; }

private:
    static std::FILE* OpenStream(const std::string& path, Use use) {
        switch (use) {
            case Use::kInput:
                return std::fopen(path.c_str(), "rbe");
            case Use::kAppend:
                return std::fopen(path.c_str(), "abe");
            case Use::kOutput:
                return OpenToOverwrite(path);
            case Use::kReplacement:
                break;
        }
        return nullptr;
    }

    void Replace() const {
        try {
            ReplaceWholeFile(path_, {buffer_.data(), buffer_.size()});
        } catch (const std::system_error& error) {
            throw RuntimeError(FileErrorOf(error.code().value(), path_));
        }
    }

    // Whatever ends the line ends it as a line feed.
    void ReadLine() {
        line_.clear();
        while (Peek() != EOF && !TakeToLineEnd())
            if (line_.size() > kLargestText) throw RuntimeError(ErrorNumber::kOutOfMemory);
        if (Peek() == EOF) return;
        Skip('\r');
        Skip('\n');
        line_ += '\n';
    }

    // Moves what stands in the buffer before the next line end; whether that was found.
    bool TakeToLineEnd() {
        const auto begin = buffer_.begin() + static_cast<std::ptrdiff_t>(position_);
        const auto end = std::find_if(begin, buffer_.end(), EndsLine);
        line_.append(begin, end);
        position_ = static_cast<std::size_t>(end - buffer_.begin());
        return end != buffer_.end();
    }

    // Takes away what an earlier, longer text left. A device has nothing to cut.
    void CutBehindText() {
        if (use_ != Use::kOutput) return;
        if (ftruncate(fileno(stream_), static_cast<off_t>(written_)) != 0) {
            errno = 0;
        } else if (written_ == 0) {
            // Gives the file system that next close while there is nothing to write out.
            const int other = open(path_.c_str(), O_WRONLY | O_CLOEXEC);
            if (other != -1) close(other);
        }
    }

    void Refill() {
        buffer_.resize(kBufferSize);
        const auto count = std::fread(buffer_.data(), 1, kBufferSize, stream_);
        if (count == 0 && std::ferror(stream_) != 0) throw RuntimeError(FileErrorOf(errno, path_));
        buffer_.resize(count);
        const bool skipsMark =
            !std::exchange(begun_, true) &&
            std::string_view(buffer_.data(), buffer_.size()).starts_with(kUtf8Mark);
        position_ = skipsMark ? kUtf8Mark.size() : 0;
    }

    std::string path_;
    std::FILE* stream_ = nullptr;
    std::vector<char> buffer_;
    std::size_t position_ = 0;
    std::string token_;
    std::string line_;
    ItemReader items_{line_};
    bool begun_ = false;
    Use use_;
    std::size_t written_ = 0;
};

NumberedFiles::NumberedFiles() = default;
NumberedFiles::~NumberedFiles() = default;

std::unique_ptr<NumberedFiles::File> NumberedFiles::OpenFile(const std::string& path, Use use) {
    if (use != Use::kInput && !NameCanBeCreated(path))
        throw RuntimeError(ErrorNumber::kBadFileName);
    std::error_code ignored;
    if (path.empty() || std::filesystem::is_directory(path, ignored))
        throw RuntimeError(ErrorNumber::kPathFileAccess);
    return std::make_unique<File>(path, use);
}

void NumberedFiles::Open(int number, const std::string& path, Use use) {
    if (files_.contains(number)) throw RuntimeError(ErrorNumber::kFileAlreadyOpen);
    files_.emplace(number, OpenFile(path, use));
}

void NumberedFiles::OpenForInput(int number, const std::string& path) {
    Open(number, path, Use::kInput);
}

void NumberedFiles::OpenForOutput(int number, const std::string& path) {
    Open(number, path, Use::kOutput);
}

void NumberedFiles::OpenForReplacement(int number, const std::string& path) {
    Open(number, path, Use::kReplacement);
}

void NumberedFiles::OpenForAppend(int number, const std::string& path) {
    Open(number, path, Use::kAppend);
}

void NumberedFiles::WriteWhole(const std::string& path, std::string_view bytes) {
    const auto file = OpenFile(path, Use::kOutput);
    file->Write(bytes);
    file->Finish();
}

NumberedFiles::File& NumberedFiles::Opened(int number) {
    const auto found = files_.find(number);
    if (found == files_.end()) throw RuntimeError(ErrorNumber::kBadFileName);
    return *found->second;
}

void NumberedFiles::PrintLine(int number, std::string_view text) {
    auto& file = Opened(number);
    file.Write(text);
    file.Write("\r\n");
}

void NumberedFiles::Flush(int number) {
    Opened(number).FlushAndCut();
}

bool NumberedFiles::AtEndOfFile(int number) {
    return Opened(number).AtEndOfFile();
}

std::string_view NumberedFiles::ItemRead(int number) {
    return Opened(number).ItemRead();
}

std::string NumberedFiles::ReadAll(int number) {
    return Opened(number).ReadAll();
}

bool NumberedFiles::AtEndOfData(int number) {
    auto& file = Opened(number);
    while (IsBlank(file.Peek())) file.Skip();
    return file.Peek() == EOF;
}

std::string_view NumberedFiles::ReadToken(int number) {
    if (AtEndOfData(number)) throw RuntimeError(ErrorNumber::kInputPastEnd);
    auto& file = Opened(number);
    auto& token = file.Token();
    token.clear();
    for (int c = file.Peek(); c != EOF && !IsBlank(c); c = file.Peek()) {
        if (token.size() == kLongestToken) throw RuntimeError(ErrorNumber::kTypeMismatch);
        token += static_cast<char>(c);
        file.Skip();
    }
    return token;
}

double NumberedFiles::ReadReal(int number) {
    return ParseReal(ReadToken(number));
}

std::int16_t NumberedFiles::ReadWhole(int number) {
    return ToInt16(ReadReal(number));
}

void NumberedFiles::Close(int number) {
    const auto found = files_.find(number);
    if (found == files_.end()) return;
    const auto file = std::move(found->second);
    files_.erase(found);
    file->Finish();
}

void NumberedFiles::CloseQuietly(int number) {
    const auto found = files_.find(number);
    if (found != files_.end() && found->second->IsReplacement()) {
        files_.erase(found);
        return;
    }
    try {
        Close(number);
    } catch (const RuntimeError&) {
        // The trap that calls has told the user all that there is to tell.
    }
}

}  // namespace arbolith
