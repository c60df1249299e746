// A form's dialog for files. What was chosen last stays in it, also over a cancel.
#pragma once

#include "forms/application.h"

#include <string>

namespace arbolith {

struct CommonDialog {
    /// Flags of the dialog.
    static constexpr int kAsksBeforeOverwriting = 2;
    static constexpr int kFileMustExist = 4096;

    explicit CommonDialog(Application& app) : application(app) {}

    /// Each takes the file's name and the filter that was chosen over; a cancel leaves both and
    /// gives false.
    bool ShowOpen() { return Show(false); }
    bool ShowSave() { return Show(true); }

    std::string Filter;   ///< Descriptions and patterns in turn, parted by "|".
    int FilterIndex = 1;  ///< From 1.
    int Flags = 0;
    std::string InitDir;
    std::string FileName;

private:
    bool Show(bool saves);

    Application& application;
};

}  // namespace arbolith
