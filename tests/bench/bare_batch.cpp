#include "bench/bare_batch.h"

#include <fstream>
#include <sstream>
#include <vector>

namespace arbolith::bench {

std::size_t ReadAndSplitBare(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    std::vector<std::vector<std::string>> lines;
    std::size_t count = 0;
    for (std::string line; std::getline(file, line);) {
        auto& fields = lines.emplace_back();
        for (std::size_t begin = 0; begin <= line.size();) {
            const auto end = std::min(line.find('\t', begin), line.size());
            fields.push_back(line.substr(begin, end - begin));
            begin = end + 1;
        }
        count += fields.size();
    }
    return count;
}

}  // namespace arbolith::bench
