// The one exception type the engine throws at its callers.
#pragma once

#include <Kel_cpp/Records.h>

#include <cstdint>
#include <memory>
#include <string>
#include <utility>

namespace Varno::Kel_cpp {

// Member order is part of the interface: details comes before message here, while the
// KelError record carries message first.
class TarnApiException {
public:
    TarnApiException() = default;
    TarnApiException(int32_t code, std::wstring message, std::wstring details = {},
                     int32_t subCode = 0, std::shared_ptr<MvciServerError> mvciError = {})
        : mvciError(std::move(mvciError)), details(std::move(details)), message(std::move(message)),
          code(code), subCode(subCode) {}

    std::shared_ptr<MvciServerError> mvciError;
    std::wstring details;
    std::wstring message;
    int32_t code = 0;
    int32_t subCode = 0;
};

} // namespace Varno::Kel_cpp
