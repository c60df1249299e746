// A fresh application folder with the model programs, removed at the end.
#pragma once

#include <filesystem>
#include <stdexcept>
#include <stdlib.h>
#include <string>

namespace arbolith::bench {

class ApplicationFolder {
public:
    /// With the two open growth models.
    ApplicationFolder() : ApplicationFolder(SOFTWOOD_PROGRAM, HARDWOOD_PROGRAM) {}
    /// With two programs under the models' names.
    ApplicationFolder(const std::string& softwood, const std::string& hardwood) {
        std::string name = (std::filesystem::temp_directory_path() / "arbolithXXXXXX").string();
        if (mkdtemp(name.data()) == nullptr) throw std::runtime_error("no temporary folder");
        path_ = name;
        std::filesystem::copy_file(softwood, path_ + "/SWQVL.exe");
        std::filesystem::copy_file(hardwood, path_ + "/HWQVL.exe");
    }
    ~ApplicationFolder() {
        std::error_code ignored;
        std::filesystem::remove_all(path_, ignored);
    }
    ApplicationFolder(const ApplicationFolder&) = delete;
    ApplicationFolder& operator=(const ApplicationFolder&) = delete;

    const std::string& Path() const { return path_; }

private:
    std::string path_;
};

}  // namespace arbolith::bench
