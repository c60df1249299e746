#include "platform/numbered_files.h"

#include "platform/numbers.h"
#include "platform/runtime_error.h"

#include <algorithm>
#include <cerrno>
#include <cstddef>
#include <cstdio>
#include <fcntl.h>
#include <filesystem>
#include <unistd.h>
#include <utility>
#include <vector>

namespace arbolith {

namespace {

constexpr std::size_t kBufferSize = 65536;
// What runs on for longer is no number of a model, and may not end at all.
constexpr std::size_t kLongestToken = 1000;
constexpr std::size_t kLongestItem = std::size_t{1} << 24;

bool IsBlank(int c) {
    return c == ' ' || c == '\t' || c == '\r' || c == '\n';
}

bool EndsItem(char c) {
    return c == ',' || c == '\r' || c == '\n';
}

ErrorNumber NumberOfSystemError(int systemError, const std::string& path) {
    switch (systemError) {
        case ENOENT: {
            std::error_code ignored;
            const auto folder = std::filesystem::path(path).parent_path();
            const bool folderThere = folder.empty() || std::filesystem::exists(folder, ignored);
            return folderThere ? ErrorNumber::kFileNotFound : ErrorNumber::kPathNotFound;
        }
        case ENOTDIR:
            return ErrorNumber::kPathNotFound;
        case EACCES:
        case EPERM:
        case EROFS:
        case ETXTBSY:
            return ErrorNumber::kPermissionDenied;
        case ENOSPC:
        case EDQUOT:
        case EFBIG:
            return ErrorNumber::kDiskFull;
        case ENODEV:
        case ENXIO:
            return ErrorNumber::kDeviceUnavailable;
        case EIO:
            return ErrorNumber::kDeviceError;
        default:
            return ErrorNumber::kPathFileAccess;
    }
}

// An output file is overwritten in place and cut at its new end when it is closed. Emptying it
// first would make some file systems write it out at the close, which takes longer than a model
// does.
std::FILE* OpenToOverwrite(const std::string& path) {
    const int descriptor = open(path.c_str(), O_WRONLY | O_CREAT | O_CLOEXEC, 0666);
    return descriptor == -1 ? nullptr : fdopen(descriptor, "wb");
}

bool NameCanBeCreated(const std::string& path) {
    const auto name = std::filesystem::path(path).filename().string();
    return name.find_first_of("?\":*|<>") == std::string::npos;
}

}  // namespace

/// One open file with a buffer of its own, so that characters can be looked at before they are
/// taken.
class NumberedFiles::File {
public:
    File(const std::string& path, Use use)
        : path_(path), stream_(OpenStream(path, use)), use_(use) {
        if (stream_ == nullptr) throw RuntimeError(NumberOfSystemError(errno, path));
        std::setvbuf(stream_, nullptr, _IONBF, 0);
        buffer_.reserve(kBufferSize);
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
        if (buffer_.size() >= kBufferSize) Flush();
    }
    void Flush() {
        const auto pending = std::exchange(buffer_, {});
        if (std::fwrite(pending.data(), 1, pending.size(), stream_) != pending.size())
            throw RuntimeError(NumberOfSystemError(errno, path_));
        written_ += pending.size();
    }
    void Finish() {
        if (use_ != Use::kInput) Flush();
        CutBehindText();
        auto* stream = std::exchange(stream_, nullptr);
        if (std::fclose(stream) != 0) throw RuntimeError(NumberOfSystemError(errno, path_));
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

    /// Moves what stands in the buffer before the next end of an item to the token; whether the end
    /// was found.
    bool TakeToItemEnd() {
        const auto begin = buffer_.begin() + static_cast<std::ptrdiff_t>(position_);
        const auto end = std::find_if(begin, buffer_.end(), EndsItem);
        token_.append(begin, end);
        position_ = static_cast<std::size_t>(end - buffer_.begin());
        return end != buffer_.end();
    }

    std::string& Token() { return token_; }

private:
    static std::FILE* OpenStream(const std::string& path, Use use) {
        switch (use) {
            case Use::kInput:
                return std::fopen(path.c_str(), "rbe");
            case Use::kAppend:
                return std::fopen(path.c_str(), "abe");
            case Use::kOutput:
                return OpenToOverwrite(path);
        }
        return nullptr;
    }

    // Takes away what an earlier, longer text left. A device has nothing to cut.
    void CutBehindText() {
        if (use_ == Use::kOutput && ftruncate(fileno(stream_), static_cast<off_t>(written_)) != 0)
            errno = 0;
    }

    void Refill() {
        buffer_.resize(kBufferSize);
        const auto count = std::fread(buffer_.data(), 1, kBufferSize, stream_);
        if (count == 0 && std::ferror(stream_) != 0)
            throw RuntimeError(NumberOfSystemError(errno, path_));
        buffer_.resize(count);
        position_ = 0;
    }

    std::string path_;
    std::FILE* stream_;
    std::vector<char> buffer_;
    std::size_t position_ = 0;
    std::string token_;
    Use use_;
    std::size_t written_ = 0;
};

NumberedFiles::NumberedFiles() = default;
NumberedFiles::~NumberedFiles() = default;

void NumberedFiles::Open(int number, const std::string& path, Use use) {
    if (files_.contains(number)) throw RuntimeError(ErrorNumber::kFileAlreadyOpen);
    std::error_code ignored;
    if (path.empty() || std::filesystem::is_directory(path, ignored))
        throw RuntimeError(ErrorNumber::kPathFileAccess);
    files_.emplace(number, std::make_unique<File>(path, use));
}

void NumberedFiles::OpenForInput(int number, const std::string& path) {
    Open(number, path, Use::kInput);
}

void NumberedFiles::OpenForOutput(int number, const std::string& path) {
    if (!NameCanBeCreated(path)) throw RuntimeError(ErrorNumber::kBadFileName);
    Open(number, path, Use::kOutput);
}

void NumberedFiles::OpenForAppend(int number, const std::string& path) {
    if (!NameCanBeCreated(path)) throw RuntimeError(ErrorNumber::kBadFileName);
    Open(number, path, Use::kAppend);
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

bool NumberedFiles::AtEndOfFile(int number) {
    return Opened(number).Peek() == EOF;
}

std::string_view NumberedFiles::ItemRead(int number) {
    auto& file = Opened(number);
    if (file.Peek() == EOF) throw RuntimeError(ErrorNumber::kInputPastEnd);
    while (file.Skip(' ') || file.Skip('\t')) {
    }
    auto& item = file.Token();
    item.clear();
    while (file.Peek() != EOF && !file.TakeToItemEnd())
        if (item.size() > kLongestItem) throw RuntimeError(ErrorNumber::kOutOfMemory);
    if (file.Skip(',')) return item;
    file.Skip('\r');
    file.Skip('\n');
    return item;
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
    try {
        Close(number);
    } catch (const RuntimeError&) {
        // The trap that calls has told the user all that there is to tell.
    }
}

}  // namespace arbolith
