// The public header compiles as C++ too, where TarnApi is the engine's own class.
#include <kel_c.h>

#include <type_traits>

namespace Varno::Kel_cpp {
class TarnApi;
}

static_assert(std::is_same_v<TarnApi, Varno::Kel_cpp::TarnApi>);
static_assert(std::is_same_v<decltype(&kel_getTarnApi), TarnApi* (*)()>);
static_assert(std::is_standard_layout_v<KelError> && std::is_trivial_v<KelError>);

// The ownership marks leave the declarations' types as they are in C++ too.
static_assert(
    std::is_same_v<decltype(&kel_readDtcs), void (*)(TarnApi*, wchar_t**, uint32_t, DtcReadConfig*,
                                                     KelError**, ReadDtcResult***, uint32_t*)>);
