#include "ProjectFiles.h"

#include "DataRoot.h"
#include "ErrorCodes.h"
#include "SafeFiles.h"

#include <Kel_cpp/TarnApiException.h>

#include <fstream>
#include <sstream>
#include <stdexcept>
#include <system_error>

namespace Varno::Kel_cpp::Reference {

std::optional<Json> readJsonFile(const std::filesystem::path& file) {
    std::error_code error;
    if (!std::filesystem::exists(file, error)) {
        return std::nullopt;
    }
    std::ifstream in(file, std::ios::binary);
    if (!in) {
        throw std::runtime_error("cannot be opened");
    }
    std::ostringstream text;
    text << in.rdbuf();
    try {
        return Json::parse(text.str());
    } catch (const Json::parse_error& e) {
        throw std::runtime_error(std::string("is not valid JSON: ") + e.what());
    }
}

void writeJsonFile(const std::filesystem::path& file, const Json& json) {
    const std::error_code error = writeWhole(file, json.dump(2) + "\n");
    if (error) {
        throw TarnApiException(CannotWriteFile, L"The file cannot be written",
                               wideFromPath(file) + L": " + fromUtf8(error.message()));
    }
}

} // namespace Varno::Kel_cpp::Reference
