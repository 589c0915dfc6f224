// The memory exports and the error capture: the heap that every record, text and
// buffer handed out comes from, and the KelError built from an engine exception.
#include "frame.h"

#include <cstdlib>
#include <cstring>
#include <cwchar>

namespace kel {

void capture(KelError** error, const engine_ns::TarnApiException& exception) {
    auto* record = heap::zeroed<KelError>();
    *error = record;
    record->code = exception.code;
    record->message = heap::copy(exception.message);
    record->subCode = exception.subCode;
    record->details = heap::copy(exception.details);
    record->mvciError = toC<MvciServerError>(exception.mvciError.get());
    // negativeResponse stays NULL: an exception carries none.
}

} // namespace kel

extern "C" {

void* allocate_Memory(size_t size) { return std::malloc(size); }

char* duplicate_String(const char* s) {
    if (s == nullptr) {
        return nullptr;
    }
    const size_t bytes = std::strlen(s) + 1;
    auto* copy = static_cast<char*>(std::malloc(bytes));
    if (copy != nullptr) {
        std::memcpy(copy, s, bytes);
    }
    return copy;
}

wchar_t* duplicate_WString(const wchar_t* s) {
    return s == nullptr ? nullptr : kel::heap::copy(s, std::wcslen(s));
}

void release_Memory(void* p) { std::free(p); }

void release_StringArray(wchar_t** ptr, uint64_t count) { kel::heap::freeTexts(ptr, count); }

} // extern "C"
