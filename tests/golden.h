// Reads the golden vectors of tests/golden: hexadecimal bytes, '#' lines are comments.
#pragma once

#include <cstdint>
#include <fstream>
#include <sstream>
#include <stdexcept>
#include <string>
#include <vector>

namespace kel_test {

inline std::vector<uint8_t> golden(const std::string& name) {
    const std::string path = std::string(KEL_GOLDEN_DIR) + "/" + name + ".hex";
    std::ifstream file(path);
    if (!file) {
        throw std::runtime_error("cannot open golden vector " + path);
    }
    std::vector<uint8_t> bytes;
    std::string line;
    while (std::getline(file, line)) {
        if (!line.empty() && line[0] == '#') {
            continue;
        }
        std::istringstream words(line);
        std::string word;
        while (words >> word) {
            bytes.push_back(static_cast<uint8_t>(std::stoul(word, nullptr, 16)));
        }
    }
    return bytes;
}

} // namespace kel_test
