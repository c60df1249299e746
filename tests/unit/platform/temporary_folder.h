// A folder of a test's own, gone with the test.
#pragma once

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <string>

namespace arbolith {

class TemporaryFolder {
public:
    /// The name gets a blank, which paths must survive.
    TemporaryFolder() {
        auto name = (std::filesystem::temp_directory_path() / "arbolith test.XXXXXX").string();
        if (mkdtemp(name.data()) == nullptr) throw std::runtime_error("no temporary folder");
        path_ = name;
    }
    ~TemporaryFolder() {
        std::error_code ignored;
        std::filesystem::remove_all(path_, ignored);
    }
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;

    const std::string& Path() const { return path_; }
    std::string PathOf(const std::string& name) const { return path_ + "/" + name; }

    /// Both return or take whole files, byte by byte.
    void Write(const std::string& name, const std::string& bytes) const {
        std::ofstream(PathOf(name), std::ios::binary) << bytes;
    }
    std::string Read(const std::string& name) const {
        std::ifstream file(PathOf(name), std::ios::binary);
        return {std::istreambuf_iterator<char>(file), {}};
    }

    /// An executable shell script.
    void WriteProgram(const std::string& name, const std::string& commands) const {
        Write(name, "#!/bin/sh\n" + commands + "\n");
        std::filesystem::permissions(PathOf(name), std::filesystem::perms::owner_all);
    }

private:
    std::string path_;
};

}  // namespace arbolith
