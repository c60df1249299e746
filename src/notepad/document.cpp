#include "notepad/document.h"

#include "platform/whole_file.h"

#include <cerrno>
#include <filesystem>
#include <sys/stat.h>
#include <system_error>

namespace arbolith::notepad {

namespace {

constexpr const char* kNoFile = "Untitled";
// Much more is no text for an editor that holds all of it in memory.
constexpr long kLargestFile = 512L << 20;

bool IsMissing(const std::string& path) {
    struct stat found {};
    return stat(path.c_str(), &found) != 0 && errno == ENOENT;
}

// Why a file is none that can be edited; null where it is, or is missing.
const char* WhyNoText(const std::string& path) {
    struct stat found {};
    if (stat(path.c_str(), &found) != 0) return nullptr;
    if (S_ISDIR(found.st_mode)) return "It is a folder";
    if (!S_ISREG(found.st_mode)) return "It is a device and no text file";
    return found.st_size > kLargestFile ? "It is larger than 512 MB" : nullptr;
}

}  // namespace

bool Document::Start(const std::string& path) {
    if (!IsMissing(path)) return Load(path);
    if (!person_.AskToCreate(path)) return false;
    text_.SetBytes("");
    return Store(path);
}

bool Document::New() {
    if (!MayLeave()) return false;
    text_.SetBytes("");
    path_.clear();
    stamp_.reset();
    return true;
}

bool Document::Open() {
    if (!MayLeave()) return false;
    const auto path = person_.ChooseFileToOpen(path_);
    return path && Load(*path);
}

bool Document::MayLeave() {
    if (!text_.IsModified()) return true;
    switch (person_.AskAboutUnsaved(Name())) {
        case UnsavedAnswer::kSave:
            return Save();
        case UnsavedAnswer::kDiscard:
            return true;
        case UnsavedAnswer::kCancel:
            break;
    }
    return false;
}

bool Document::Save() {
    if (path_.empty()) return SaveAs();
    if (HasChangedOnDisk() && !person_.AskToOverwrite(path_)) return false;
    return Store(path_);
}

bool Document::SaveAs() {
    const auto path = person_.ChooseFileToSave(path_);
    return path && Store(*path);
}

std::string Document::Name() const {
    return path_.empty() ? kNoFile : std::filesystem::path(path_).filename().string();
}

std::optional<Document::Stamp> Document::StampOf(const std::string& path) {
    struct stat found {};
    if (stat(path.c_str(), &found) != 0) return std::nullopt;
    return Stamp{found.st_mtim.tv_sec, found.st_mtim.tv_nsec, found.st_size, found.st_ino};
}

// A file that is gone holds nothing that saving could destroy.
bool Document::HasChangedOnDisk() const {
    const auto now = StampOf(path_);
    return now && now != stamp_;
}

bool Document::Load(const std::string& path) {
    const char* reason = WhyNoText(path);
    if (reason != nullptr) {
        person_.TellFailure(path, "opened", reason);
        return false;
    }
    try {
        // Taken before the text, so that a change in between counts as one.
        const auto stamp = StampOf(path);
        text_.SetBytes(ReadWholeFile(path));
        path_ = path;
        stamp_ = stamp;
        return true;
    } catch (const std::system_error& error) {
        person_.TellFailure(path, "opened", error.code().message());
        return false;
    }
}

bool Document::Store(const std::string& path) {
    try {
        ReplaceWholeFile(path, text_.Bytes());
        text_.MarkAsSaved();
        path_ = path;
        stamp_ = StampOf(path);
        return true;
    } catch (const std::system_error& error) {
        person_.TellFailure(path, "saved", error.code().message());
        return false;
    }
}

}  // namespace arbolith::notepad
