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
    for (std::string line; std::getline(file, line);) {
        std::istringstream words(line.starts_with('#') ? "" : line);
        for (std::string word; words >> word;) {
            bytes.push_back(static_cast<uint8_t>(std::stoul(word, nullptr, 16)));
        }
    }
    return bytes;
}

} // namespace kel_test
