#include "dispatch.h"

#include "generated/dispatch_table.h"
#include "utf8.h"

#include <algorithm>

namespace kel::dispatch {

const Operation* find(int32_t number) {
    const auto found =
        std::lower_bound(operations.begin(), operations.end(), number,
                         [](const Operation& op, int32_t n) { return op.number < n; });
    return found != operations.end() && found->number == number ? &*found : nullptr;
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
