// The servers' part of kel_sim.h.
#include "IdentityProvider.h"
#include "Servers.h"

#include <algorithm>
#include <cwchar>
#include <kel_sim.h>

extern "C" {

int64_t kelsim_signInAtIdentityProvider(const wchar_t* url, const wchar_t* user, wchar_t* code,
                                        size_t size) {
    namespace Provider = Varno::Kel_cpp::Reference::IdentityProvider;
    const std::wstring issued =
        Provider::signIn(url != nullptr ? url : L"", user != nullptr ? user : L"");
    if (issued.empty()) {
        return -1;
    }
    if (code != nullptr && size > 0) {
        const size_t n = std::min(size - 1, issued.size());
        std::wmemcpy(code, issued.data(), n);
        code[n] = L'\0';
    }
    return static_cast<int64_t>(issued.size());
}

} // extern "C"
