#include "dispatch.h"

#include "generated/dispatch_table.h"
#include "utf8.h"

#include <array>
#include <cstddef>
#include <cstdint>

namespace kel::dispatch {

namespace {

// The table's position of each number from 0 to the highest, -1 for numbers that name no
// operation: the numbers are dense, so one array lookup replaces a search.
constexpr auto positions = [] {
    std::array<int16_t, operations.back().number + 1> out{};
    for (auto& position : out) {
        position = -1;
    }
    for (std::size_t i = 0; i < operations.size(); ++i) {
        out[static_cast<std::size_t>(operations[i].number)] = static_cast<int16_t>(i);
    }
    return out;
}();
static_assert(operations.size() < INT16_MAX);

} // namespace

const Operation* find(int32_t number) {
    const auto index = static_cast<uint32_t>(number);
    if (index >= positions.size() || positions[index] < 0) {
        return nullptr;
    }
    return &operations[static_cast<std::size_t>(positions[index])];
}

void writeError(OTXStream& out, const Varno::Kel_cpp::TarnApiException& exception) {
    auto error = std::make_shared<Varno::Kel_cpp::KelError>();
    error->code = exception.code;
    error->message = exception.message;
    error->details = exception.details;
    error->subCode = exception.subCode;
    error->mvciError = exception.mvciError;
    out.write(error);
}

Varno::Kel_cpp::TarnApiException notAvailable(const Operation& operation) {
    return {NotAvailableError,
            L"Operation " + std::to_wstring(operation.number) + L" (" +
                utf8::decode(operation.name) + L") cannot be called by number yet",
            L"its records are not built in this version of the library"};
}

Varno::Kel_cpp::TarnApiException malformed(const Operation& operation,
                                           const MalformedInput& problem) {
    return {MalformedInputError,
            L"Malformed input for operation " + std::to_wstring(operation.number) + L" (" +
                utf8::decode(operation.name) + L")",
            utf8::decode(problem.what())};
}

} // namespace kel::dispatch
