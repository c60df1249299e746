// The person at the screen, asked and told by boxes and file dialogs.
#pragma once

#include "notepad/document.h"

#include <QWidget>

namespace arbolith::notepad {

class Boxes : public Person {
public:
    /// The boxes stand before `window`, which lives longer than this.
    explicit Boxes(QWidget& window) : window_(window) {}

    UnsavedAnswer AskAboutUnsaved(const std::string& name) override;
    bool AskToCreate(const std::string& path) override;
    bool AskToOverwrite(const std::string& path) override;
    std::optional<std::string> ChooseFileToOpen(const std::string& besidePath) override;
    std::optional<std::string> ChooseFileToSave(const std::string& proposedPath) override;
    void TellFailure(const std::string& path, const std::string& action,
                     const std::string& reason) override;

private:
    QWidget& window_;
};

}  // namespace arbolith::notepad
