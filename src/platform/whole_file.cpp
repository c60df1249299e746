#include "platform/whole_file.h"

#include <cerrno>
#include <cstddef>
#include <fcntl.h>
#include <filesystem>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>
#include <utility>

namespace arbolith {

namespace {

constexpr std::size_t kPiece = 1 << 20;
constexpr mode_t kPermissions = 07777;

[[noreturn]] void Fail(int systemError) {
    throw std::system_error(systemError, std::generic_category());
}

// An open file that is closed in any case.
class OpenFile {
public:
    OpenFile(const std::string& path, int flags)
        : descriptor_(open(path.c_str(), flags | O_CLOEXEC, 0666)) {
        if (descriptor_ == -1) Fail(errno);
    }
    ~OpenFile() {
        if (descriptor_ != -1) close(descriptor_);
    }
    OpenFile(const OpenFile&) = delete;
    OpenFile& operator=(const OpenFile&) = delete;

    int Descriptor() const { return descriptor_; }

    /// Appends up to a piece to the text; false at the end of the file.
    bool Read(std::string& text) const {
        const auto before = text.size();
        text.resize(before + kPiece);
        ssize_t count = 0;
        do {
            count = read(descriptor_, text.data() + before, kPiece);
        } while (count == -1 && errno == EINTR);
        if (count == -1) Fail(errno);
        text.resize(before + static_cast<std::size_t>(count));
        return count > 0;
    }
    void Write(std::string_view bytes) const {
        while (!bytes.empty()) {
            const auto count = write(descriptor_, bytes.data(), bytes.size());
            if (count == -1 && errno != EINTR) Fail(errno);
            if (count > 0) bytes.remove_prefix(static_cast<std::size_t>(count));
        }
    }
    /// Some file systems tell only here that there was no room.
    void Close() {
        if (close(std::exchange(descriptor_, -1)) != 0) Fail(errno);
    }

private:
    int descriptor_;
};

// A new file beside another, which it replaces; gone where it doesn't come to that.
class Replacement {
public:
    explicit Replacement(const std::string& target)
        : target_(target),
          path_(FreePathBeside(target)),
          file_(path_, O_WRONLY | O_CREAT | O_EXCL) {}
    ~Replacement() {
        if (!path_.empty()) unlink(path_.c_str());
    }
    Replacement(const Replacement&) = delete;
    Replacement& operator=(const Replacement&) = delete;

    /// Takes over owner and permissions; false where that is refused.
    bool TakeAfter(const struct stat& old) const {
        const int file = file_.Descriptor();
        struct stat own {};
        if (fstat(file, &own) != 0) Fail(errno);
        const bool isSame = own.st_uid == old.st_uid && own.st_gid == old.st_gid;
        return (isSame || fchown(file, old.st_uid, old.st_gid) == 0) &&
               fchmod(file, old.st_mode & kPermissions) == 0;
    }
    void Fill(std::string_view bytes) {
        file_.Write(bytes);
        if (fsync(file_.Descriptor()) != 0 && errno != EINVAL) Fail(errno);
        file_.Close();
        if (rename(path_.c_str(), target_.c_str()) != 0) Fail(errno);
        path_.clear();
    }

private:
    static std::string FreePathBeside(const std::string& target) {
        const auto folder = std::filesystem::path(target).parent_path();
        const auto stem = ".arbolith-" + std::to_string(getpid()) + "-";
        for (int number = 0;; ++number) {
            auto path = (folder / (stem + std::to_string(number))).string();
            struct stat found {};
            if (lstat(path.c_str(), &found) != 0) return path;
        }
    }

    std::string target_;
    std::string path_;
    OpenFile file_;
};

// Where a link leads to, so that the file behind it is replaced and not the link.
std::string BehindLinks(const std::string& path) {
    std::error_code failed;
    const auto target = std::filesystem::canonical(path, failed);
    return failed ? path : target.string();
}

void OverwriteInPlace(const std::string& target, const struct stat& old, std::string_view bytes) {
    OpenFile file(target, O_WRONLY);
    const auto size = static_cast<off_t>(bytes.size());
    if (size > old.st_size && fallocate(file.Descriptor(), 0, 0, size) != 0 &&
        errno != EOPNOTSUPP) {
        const int reason = errno;
        Fail(ftruncate(file.Descriptor(), old.st_size) == 0 ? reason : errno);
    }
    file.Write(bytes);
    if (ftruncate(file.Descriptor(), size) != 0) Fail(errno);
    file.Close();
}

// False where the file beside the old one can't be, or can't be like it.
bool ReplaceFromBeside(const std::string& target, const struct stat& old, std::string_view bytes) {
    if (old.st_nlink > 1) return false;
    try {
        Replacement replacement(target);
        if (!replacement.TakeAfter(old)) return false;
        replacement.Fill(bytes);
        return true;
    } catch (const std::system_error& error) {
        if (error.code() == std::errc::permission_denied ||
            error.code() == std::errc::operation_not_permitted ||
            error.code() == std::errc::read_only_file_system)
            return false;
        throw;
    }
}

}  // namespace

std::string ReadWholeFile(const std::string& path) {
    const OpenFile file(path, O_RDONLY);
    std::string bytes;
    struct stat found {};
    if (fstat(file.Descriptor(), &found) == 0 && S_ISREG(found.st_mode))
        bytes.reserve(static_cast<std::size_t>(found.st_size) + kPiece);
    while (file.Read(bytes)) {
    }
    return bytes;
}

void ReplaceWholeFile(const std::string& path, std::string_view bytes) {
    const auto target = BehindLinks(path);
    struct stat old {};
    if (stat(target.c_str(), &old) != 0) {
        if (errno != ENOENT) Fail(errno);
        Replacement(target).Fill(bytes);
    } else if (S_ISDIR(old.st_mode)) {
        Fail(EISDIR);
    } else if (access(target.c_str(), W_OK) != 0) {
        Fail(errno);
    } else if (!S_ISREG(old.st_mode)) {
        OpenFile(target, O_WRONLY | O_NONBLOCK).Write(bytes);
    } else if (!ReplaceFromBeside(target, old, bytes)) {
        OverwriteInPlace(target, old, bytes);
    }
}

}  // namespace arbolith
