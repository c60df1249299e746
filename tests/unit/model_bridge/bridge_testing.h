// What the tests of the model bridge stand on: an application folder of their own, and model
// outputs made of the few variables that matter.
#pragma once

#include "unit/platform/fake_host.h"
#include "unit/platform/temporary_folder.h"

#include <string>
#include <vector>

namespace arbolith {

/// A fresh application folder, whose files may be made to fail.
class TestFolder : public TemporaryFolder {
public:
    bool Holds(const std::string& name) const;
    void Remove(const std::string& name) const;
    /// A folder in the file's place, which no permission lets anybody open as a file.
    void Block(const std::string& name) const;
    /// A file that takes no byte, as on a full disk.
    void FillUp(const std::string& name) const;
};

/// The variables of a row that decide about treatments; all others are written as 1.
struct ModelRow {
    double sage = 0;
    double tdbh = 1;
    double mdbh = 1;
    double tf = 1;
    double th = 1;
};

/// An output file: the years to breast height and the rows.
std::string ModelOutput(const std::vector<ModelRow>& rows, const std::string& years = "5.5");

/// The told box of a failed file.
inline constexpr const char* kRequiredFileMissing =
    "A required file is missing.  Try closing the program and restarting.  Reinstalling the "
    "program may be necessary.";

}  // namespace arbolith
