// A text and a person for the tests of the document.
#pragma once

#include "notepad/document.h"

#include <functional>
#include <vector>

namespace arbolith::notepad {

class FakeText : public TextBuffer {
public:
    std::string Bytes() const override { return bytes; }
    void SetBytes(std::string_view newBytes) override {
        bytes = newBytes;
        isModified = false;
    }
    bool IsModified() const override { return isModified; }
    void MarkAsSaved() override { isModified = false; }

    void Type(const std::string& newBytes) {
        bytes = newBytes;
        isModified = true;
    }

    std::string bytes;
    bool isModified = false;
};

/// Answers as it was told beforehand and records what it was asked.
class FakePerson : public Person {
public:
    UnsavedAnswer AskAboutUnsaved(const std::string& name) override {
        asked.push_back("unsaved " + name);
        return unsaved;
    }
    bool AskToCreate(const std::string&) override {
        asked.emplace_back("create");
        return creates;
    }
    bool AskToOverwrite(const std::string&) override {
        asked.emplace_back("overwrite");
        return overwrites;
    }
    std::optional<std::string> ChooseFileToOpen(const std::string&) override {
        asked.emplace_back("open");
        return chosen;
    }
    std::optional<std::string> ChooseFileToSave(const std::string&) override {
        asked.emplace_back("save");
        return chosen;
    }
    void TellFailure(const std::string& path, const std::string& action,
                     const std::string& reason) override {
        failures.push_back(path + " " + action + ": " + reason);
    }

    UnsavedAnswer unsaved = UnsavedAnswer::kCancel;
    bool creates = false;
    bool overwrites = false;
    std::optional<std::string> chosen;
    std::vector<std::string> asked;
    std::vector<std::string> failures;
};

}  // namespace arbolith::notepad
