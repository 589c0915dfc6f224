// What the generated conformance suite cannot see on the interface's own records: the
// C member order of a record with a base, and flag bytes other than 0 and 1 (a C
// caller's memset, a packed struct, a stream) reaching the engine as true. Conversions,
// null entries, as= classes and one-way fields are proven there for every record.
#include "generated/test_records.h"

#include <gtest/gtest.h>

#include <OTXStream.h>
#include <convert.h>
#include <cstddef>
#include <cstring>
#include <frame.h>
#include <type_traits>

namespace {

std::shared_ptr<kel_test::ProbeLeaf> leaf(const std::wstring& label, uint64_t stamp) {
    auto l = std::make_shared<kel_test::ProbeLeaf>();
    l->label = label;
    l->stamp = stamp;
    return l;
}

TEST(RecordsBase, BaseMembersLeadTheCRecord) {
    static_assert(std::is_base_of_v<kel_test::ProbeEntry, kel_test::ProbeNode>);
    static_assert(std::is_base_of_v<Varno::Kel_cpp::NamedItem, kel_test::ProbeEntry>);
    // NamedItem's strings first, then the base's own members, then the record's.
    EXPECT_EQ(offsetof(ProbeNode, itemText1), 0U);
    EXPECT_EQ(offsetof(ProbeNode, name), 32U);
    EXPECT_EQ(offsetof(ProbeNode, error), 40U);
    EXPECT_EQ(offsetof(ProbeNode, ok), 48U);
    EXPECT_EQ(offsetof(ProbeNode, leaves), 56U);
}

// ---- one-byte flags ---------------------------------------------------------------------

// A C caller may leave any byte in a bool or flag member (memset, a packed struct, a
// language without a bool type): it must not reach the engine as an invalid bool, and
// true goes back to C as 1.
TEST(RecordsFlag, AnyNonZeroByteIsTrueAndTrueIsOne) {
    for (const uint8_t byte : {uint8_t{0}, uint8_t{1}, uint8_t{2}, uint8_t{0x80}, uint8_t{0xFF}}) {
        SCOPED_TRACE(static_cast<int>(byte));
        auto* c = static_cast<Probe*>(allocate_Memory(sizeof(Probe)));
        std::memset(c, 0, sizeof(Probe));
        c->text = duplicate_WString(L"");
        c->leaf = kel::toC<ProbeLeaf>(leaf(L"x", 1).get());
        c->leaf->marker = byte;
        std::memcpy(&c->flag, &byte, 1);
        std::memcpy(&c->switches[1], &byte, 1);
        const auto engine = kel::in::record(c);
        const uint8_t one = byte != 0 ? 1 : 0;
        uint8_t stored[4] = {};
        std::memcpy(&stored[0], &engine->flag, 1);
        std::memcpy(&stored[1], engine->switches.data(), 3);
        EXPECT_EQ(stored[0], one);
        EXPECT_EQ(stored[1], 0U);
        EXPECT_EQ(stored[2], one) << "also in a fixed array";
        EXPECT_EQ(stored[3], 0U);
        std::memcpy(&stored[0], &engine->leaf->marker, 1);
        EXPECT_EQ(stored[0], one) << "a flag";
        const std::unique_ptr<ProbeLeaf, void (*)(ProbeLeaf*)> again(
            kel::toC<ProbeLeaf>(engine->leaf.get()), &kel::release<ProbeLeaf>);
        EXPECT_EQ(again->marker, one);
    }
}

TEST(RecordsFlag, StreamedFlagBytesBecomeTrue) {
    const auto original = leaf(L"s", 5);
    kel::OTXStream out(true, true, false);
    out.write(original);
    const auto written = out.position;
    out.buffer[written - 1] = 0x7F; // the marker is the record's last byte
    kel::OTXStream in(out.buffer, true, true, false);
    std::shared_ptr<kel_test::ProbeLeaf> back;
    in.read(back);
    uint8_t stored = 0;
    std::memcpy(&stored, &back->marker, 1);
    EXPECT_EQ(stored, 1U);
    EXPECT_EQ(back->stamp, 5U);
}

} // namespace
