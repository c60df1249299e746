#include "unit/model_bridge/bridge_testing.h"

#include <filesystem>
#include <sstream>

namespace arbolith {

bool TestFolder::Holds(const std::string& name) const {
    return std::filesystem::exists(PathOf(name));
}

void TestFolder::Remove(const std::string& name) const {
    std::filesystem::remove(PathOf(name));
}

void TestFolder::Block(const std::string& name) const {
    Remove(name);
    std::filesystem::create_directory(PathOf(name));
}

void TestFolder::FillUp(const std::string& name) const {
    Remove(name);
    std::filesystem::create_symlink("/dev/full", PathOf(name));
}

std::string ModelOutput(const std::vector<ModelRow>& rows, const std::string& years) {
    constexpr int kLastVariable = 25;
    std::ostringstream out;
    out << years << "\r\n";
    for (const auto& row : rows) {
        out << "0 " << row.sage << ' ' << row.tdbh << ' ' << row.mdbh << " 1 1 1 1 " << row.tf
            << " 1 1 " << row.th;
        for (int variable = 12; variable <= kLastVariable; ++variable) out << " 1";
        out << "\r\n";
    }
    return out.str();
}

}  // namespace arbolith
