// The engine interface as compiled: every operation at its virtual-table position.
#include <Kel_cpp/TarnApi.h>

#include <gtest/gtest.h>

#include <cstddef>
#include <cstdint>
#include <cstring>

namespace {

using Varno::Kel_cpp::TarnApi;

// On the Itanium C++ ABI (GCC, Clang, MinGW) a pointer to a virtual member function
// holds 1 + the byte offset of its slot in the virtual table.
template <class F>
std::ptrdiff_t slotOf(F member) {
    struct Raw {
        uintptr_t pointer;
        ptrdiff_t adjustment;
    };
    static_assert(sizeof(F) == sizeof(Raw));
    Raw raw{};
    std::memcpy(&raw, &member, sizeof raw);
    if ((raw.pointer & 1U) == 0) {
        return -1; // not a virtual function
    }
    return static_cast<std::ptrdiff_t>((raw.pointer - 1) / sizeof(void*));
}

TEST(EngineInterface, EveryOperationSitsAtItsPosition) {
    int checked = 0;
    int last = 0;
#define KEL_POSITION(position, name)                                                               \
    EXPECT_EQ(slotOf(&TarnApi::name), position) << #name;                                          \
    ++checked;                                                                                     \
    last = position;
#include "generated/positions.inc"
#undef KEL_POSITION
    // Positions 0 and 1 are the destructor; every position after them is declared.
    EXPECT_EQ(checked, last - 1);
    EXPECT_GE(last, 272);
}

} // namespace
