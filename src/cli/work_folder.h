// The folder that one run works in. The exchange files have fixed names, so each run has a folder
// of its own, with links to what lies beside the models: runs at the same time don't meet, and the
// models' own folder needn't be writable.
#pragma once

#include <string>

namespace arbolith::console {

class WorkFolder {
public:
    /// A fresh folder among the system's temporary ones with links to what lies in the models'
    /// folder, but for files whose names begin with "_". Throws a Failure where either can't be
    /// used.
    explicit WorkFolder(const std::string& modelFolder);
    /// Removes it with all that lies in it; what the links lead to stays.
    ~WorkFolder();
    WorkFolder(const WorkFolder&) = delete;
    WorkFolder& operator=(const WorkFolder&) = delete;

    const std::string& Path() const { return path_; }
    /// Throws a Failure where what comes of the request's file can't be written there any more.
    void RequireRoom(const std::string& request) const;
    std::string PathOf(const std::string& name) const { return path_ + "/" + name; }
    /// Where a report is put together. No link stands in this place.
    std::string ReportPath() const { return PathOf("_REPORT.TMP"); }

private:
    void LinkTo(const std::string& modelFolder) const;

    std::string path_;
};

}  // namespace arbolith::console
