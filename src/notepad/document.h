// The text that is being edited and the file that it belongs to: opening, saving, and never losing
// what isn't saved. What is asked and shown goes out through interfaces, so that all of it works
// without a screen.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>

namespace arbolith::notepad {

/// The text as it stands in the window.
class TextBuffer {
public:
    virtual ~TextBuffer() = default;

    virtual std::string Bytes() const = 0;
    /// Takes a whole new text, which counts as saved.
    virtual void SetBytes(std::string_view bytes) = 0;
    virtual bool IsModified() const = 0;
    /// The text as it stands is what the file holds.
    virtual void MarkAsSaved() = 0;
};

enum class UnsavedAnswer { kSave, kDiscard, kCancel };

/// What a person is asked and told. Paths are the file system's own bytes.
class Person {
public:
    virtual ~Person() = default;

    /// `name` is the file's name, or that of a text without a file.
    virtual UnsavedAnswer AskAboutUnsaved(const std::string& name) = 0;
    /// Whether a missing file is to be created.
    virtual bool AskToCreate(const std::string& path) = 0;
    /// Whether a file is to be overwritten that has changed since it was read.
    virtual bool AskToOverwrite(const std::string& path) = 0;
    virtual std::optional<std::string> ChooseFileToOpen(const std::string& besidePath) = 0;
    /// A choice of a file that exists has been confirmed.
    virtual std::optional<std::string> ChooseFileToSave(const std::string& proposedPath) = 0;
    /// What went wrong with a file; `action` is for example "opened".
    virtual void TellFailure(const std::string& path, const std::string& action,
                             const std::string& reason) = 0;
};

class Document {
public:
    Document(TextBuffer& text, Person& person) : text_(text), person_(person) {}

    /// Opens the file that the program was started with; a missing one is created if the person
    /// wants so. False where there is nothing to edit then.
    bool Start(const std::string& path);

    /// Each asks first about a text that isn't saved. False where nothing came of it: the person
    /// thought better of it, or it failed, which the person was told.
    bool New();
    bool Open();
    /// Whether the text may go: it is saved, or the person gave it up.
    bool MayLeave();

    /// False where the text isn't saved: the person thought better of it, or it failed, which the
    /// person was told. The file then is as it was.
    bool Save();
    bool SaveAs();

    /// The path of the file; empty for a text without one.
    const std::string& Path() const { return path_; }
    /// The last part of the path, or what a text without a file is called.
    std::string Name() const;

private:
    /// What tells one state of a file on the disk from another; nothing where it is missing.
    struct Stamp {
        long seconds = 0;
        long nanoseconds = 0;
        long size = 0;
        unsigned long file = 0;
        bool operator==(const Stamp&) const = default;
    };

    static std::optional<Stamp> StampOf(const std::string& path);
    bool Load(const std::string& path);
    bool Store(const std::string& path);
    bool HasChangedOnDisk() const;

    TextBuffer& text_;
    Person& person_;
    std::string path_;
    std::optional<Stamp> stamp_;
};

}  // namespace arbolith::notepad
