// The record conventions, on a test-only record set that uses every member kind and
// record form: engine to C, C to engine, consumption and release; engine classes that
// are handed out as another C record, bases, one-way fields and flag bytes.
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
    l->itemText1 = label;
    l->itemText2 = L"";
    l->itemText3 = L"third";
    l->itemText4 = L"\U0001F697";
    l->label = label + L"-label";
    l->stamp = stamp;
    return l;
}

std::shared_ptr<kel_test::Probe> fullProbe() {
    auto p = std::make_shared<kel_test::Probe>();
    p->text = L"Motorsteuergerät";
    p->names = {L"ECM", L"", L"TCM"};
    p->tags = {L"only"};
    p->leaves = {leaf(L"a", 1), nullptr, leaf(L"c", 3)};
    p->leaf = leaf(L"single", 0xFFFFFFFFFFFFFFFFULL);
    p->error = std::make_shared<Varno::Kel_cpp::KelError>();
    p->error->code = -7;
    p->error->message = L"per-item";
    p->error->negativeResponse = std::make_shared<Varno::Kel_cpp::NegativeResponse>();
    p->error->negativeResponse->code = 0x7F;
    p->error->negativeResponse->bytes = {0x7F, 0x22, 0x31};
    p->error->negativeResponse->value1 = 0x8000000000000001ULL;
    p->data = {0, 1, 2, 255};
    p->flag = true;
    p->signedValue = -123456;
    p->unsignedValue = 0xFFFFFFF0U;
    p->wideSigned = -(1LL << 40);
    p->wideValue = 0x0123456789ABCDEFULL;
    p->narrowValue = 0xBEEF;
    p->values = {1, 2, 3, 4, 0xFFFFFFFFU};
    auto child = std::make_shared<kel_test::Probe>();
    child->text = L"child";
    child->children = {std::make_shared<kel_test::Probe>()};
    p->children = {child};
    return p;
}

struct Released {
    void operator()(Probe* p) const { kel::release(p); }
};
using ProbeRecord = std::unique_ptr<Probe, Released>;

TEST(RecordsToC, EveryMemberKindIsCopied) {
    const auto engine = fullProbe();
    const ProbeRecord c(kel::toC<Probe>(engine.get()));
    ASSERT_TRUE(c);
    EXPECT_STREQ(c->text, L"Motorsteuergerät");
    ASSERT_EQ(c->nameCount, 3U);
    EXPECT_STREQ(c->names[0], L"ECM");
    EXPECT_STREQ(c->names[1], L"");
    EXPECT_STREQ(c->names[2], L"TCM");
    ASSERT_EQ(c->tagCount, 1U);
    EXPECT_STREQ(c->tags[0], L"only");

    ASSERT_EQ(c->leafCount, 3U);
    EXPECT_STREQ(c->leaves[0]->itemText1, L"a");
    EXPECT_STREQ(c->leaves[0]->itemText2, L"");
    EXPECT_STREQ(c->leaves[0]->itemText4, L"\U0001F697");
    EXPECT_STREQ(c->leaves[0]->label, L"a-label");
    EXPECT_EQ(c->leaves[1], nullptr) << "a null engine element gives a NULL entry";
    EXPECT_EQ(c->leaves[2]->stamp, 3U);
    ASSERT_NE(c->leaf, nullptr);
    EXPECT_EQ(c->leaf->stamp, 0xFFFFFFFFFFFFFFFFULL);

    ASSERT_NE(c->error, nullptr);
    EXPECT_EQ(c->error->code, -7);
    EXPECT_STREQ(c->error->details, L"");
    EXPECT_EQ(c->error->mvciError, nullptr);
    ASSERT_NE(c->error->negativeResponse, nullptr);
    EXPECT_EQ(c->error->negativeResponse->value1, 0x8000000000000001ULL);
    ASSERT_EQ(c->error->negativeResponse->byteCount, 3U);
    EXPECT_EQ(std::memcmp(c->error->negativeResponse->bytes, "\x7F\x22\x31", 3), 0);

    ASSERT_EQ(c->dataLength, 4U);
    EXPECT_EQ(c->data[3], 255);
    EXPECT_TRUE(c->flag);
    EXPECT_EQ(c->signedValue, -123456);
    EXPECT_EQ(c->unsignedValue, 0xFFFFFFF0U);
    EXPECT_EQ(c->wideSigned, -(1LL << 40));
    EXPECT_EQ(c->wideValue, 0x0123456789ABCDEFULL);
    EXPECT_EQ(c->narrowValue, 0xBEEF);
    EXPECT_EQ(c->values[4], 0xFFFFFFFFU);

    ASSERT_EQ(c->childCount, 1U);
    EXPECT_STREQ(c->children[0]->text, L"child");
    ASSERT_EQ(c->children[0]->childCount, 1U);
    EXPECT_STREQ(c->children[0]->children[0]->text, L"") << "the tree converts recursively";
}

TEST(RecordsToC, EmptyMembersFollowTheRules) {
    const kel_test::Probe empty;
    const ProbeRecord c(kel::toC<Probe>(&empty));
    ASSERT_NE(c->text, nullptr) << "an empty string is allocated";
    EXPECT_STREQ(c->text, L"");
    EXPECT_EQ(c->names, nullptr);
    EXPECT_EQ(c->nameCount, 0U);
    EXPECT_NE(c->tags, nullptr) << "this string list is allocated even when empty";
    EXPECT_EQ(c->tagCount, 0U);
    EXPECT_EQ(c->leaves, nullptr);
    EXPECT_EQ(c->leafCount, 0U);
    EXPECT_EQ(c->leaf, nullptr);
    EXPECT_EQ(c->error, nullptr);
    EXPECT_EQ(c->data, nullptr) << "an empty byte vector gives NULL and 0";
    EXPECT_EQ(c->dataLength, 0U);
    EXPECT_EQ(c->children, nullptr);
    EXPECT_EQ(kel::toC<Probe>(nullptr), nullptr);
}

TEST(RecordsToC, ResultListsAreNullWhenEmpty) {
    std::vector<std::shared_ptr<kel_test::Probe>> none;
    Probe** block = reinterpret_cast<Probe**>(static_cast<uintptr_t>(1));
    uint32_t count = 9;
    kel::out::records(&block, &count).store(none);
    EXPECT_EQ(block, nullptr);
    EXPECT_EQ(count, 0U);
    kel::releaseArray(block, count);

    std::vector<std::wstring> noTexts;
    wchar_t** texts = nullptr;
    kel::out::texts(&texts, &count).store(noTexts);
    EXPECT_EQ(texts, nullptr);
    EXPECT_EQ(count, 0U);

    // A byte buffer handed out directly is allocated even for zero bytes.
    uint8_t* bytes = nullptr;
    kel::out::buffer(&bytes, &count).store(std::vector<uint8_t>{});
    EXPECT_NE(bytes, nullptr);
    EXPECT_EQ(count, 0U);
    release_Memory(bytes);
}

TEST(RecordsFromC, RoundTripKeepsEveryValue) {
    const auto original = fullProbe();
    Probe* c = kel::toC<Probe>(original.get());
    const auto back = kel::fromC(c, false);
    ProbeRecord keep(c); // not consumed: still the caller's
    ASSERT_TRUE(back);
    EXPECT_EQ(back->text, original->text);
    EXPECT_EQ(back->names, original->names);
    EXPECT_EQ(back->tags, original->tags);
    ASSERT_EQ(back->leaves.size(), 3U);
    EXPECT_EQ(back->leaves[1], nullptr);
    EXPECT_EQ(back->leaves[2]->itemText4, L"\U0001F697");
    EXPECT_EQ(back->leaves[2]->label, L"c-label");
    EXPECT_EQ(back->leaf->stamp, original->leaf->stamp);
    EXPECT_EQ(back->error->negativeResponse->bytes, original->error->negativeResponse->bytes);
    EXPECT_EQ(back->data, original->data);
    EXPECT_EQ(back->flag, true);
    EXPECT_EQ(back->wideSigned, original->wideSigned);
    EXPECT_EQ(back->narrowValue, original->narrowValue);
    EXPECT_EQ(back->values, original->values);
    ASSERT_EQ(back->children.size(), 1U);
    EXPECT_EQ(back->children[0]->children.size(), 1U);
}

TEST(RecordsFromC, ConsumedRecordIsReleasedAndNullGivesNull) {
    const auto original = fullProbe();
    // consume=true frees the C record; the leak checker sees the rest.
    const auto engine = kel::in::record(kel::toC<Probe>(original.get()));
    ASSERT_TRUE(engine);
    EXPECT_EQ(engine->text, original->text);
    EXPECT_FALSE(kel::in::record<Probe>(nullptr));
}

TEST(RecordsFromC, ListsAreNotConsumedAndKeepNullEntries) {
    const auto original = fullProbe();
    Probe* items[3] = {kel::toC<Probe>(original.get()), nullptr, kel::toC<Probe>(original.get())};
    const auto engine = kel::in::records(items, 3);
    ASSERT_EQ(engine.size(), 3U);
    EXPECT_EQ(engine[1], nullptr);
    EXPECT_EQ(engine[2]->names, original->names);
    EXPECT_TRUE(kel::in::records<Probe>(nullptr, 0).empty()) << "count 0 does not read the block";
    kel::release(items[0]);
    kel::release(items[2]);
}

TEST(RecordsRelease, NestedNullsAndNullEntriesAreSkipped) {
    auto* c = static_cast<Probe*>(allocate_Memory(sizeof(Probe)));
    std::memset(c, 0, sizeof(Probe));
    c->text = duplicate_WString(L"x");
    c->leafCount = 2;
    c->leaves = static_cast<ProbeLeaf**>(allocate_Memory(2 * sizeof(ProbeLeaf*)));
    c->leaves[0] = nullptr;
    c->leaves[1] = kel::toC<ProbeLeaf>(leaf(L"b", 2).get());
    kel::release(c);
    kel::release<Probe>(nullptr);
    kel::releaseArray<Probe>(nullptr, 5);
}

TEST(RecordsRelease, ReleaseClearsEveryOwnedMember) {
    // Release works member by member through the table: check that it reaches each
    // owned member by letting it clear a copy of the record in place first.
    const auto engine = fullProbe();
    Probe* c = kel::toC<Probe>(engine.get());
    std::apply([&](const auto&... f) { (f.release(*c), ...); }, kel::Record<Probe>::fields);
    EXPECT_EQ(c->text, nullptr);
    EXPECT_EQ(c->names, nullptr);
    EXPECT_EQ(c->nameCount, 0U);
    EXPECT_EQ(c->leaves, nullptr);
    EXPECT_EQ(c->leafCount, 0U);
    EXPECT_EQ(c->leaf, nullptr);
    EXPECT_EQ(c->error, nullptr);
    EXPECT_EQ(c->data, nullptr);
    EXPECT_EQ(c->dataLength, 0U);
    EXPECT_EQ(c->children, nullptr);
    EXPECT_EQ(c->values[0], 1U) << "plain values are left alone";
    std::free(c);
}

// ---- engine classes handed out as another C record (as=) ----------------------------

std::shared_ptr<kel_test::ProbeLeafLabel> label(const std::wstring& text, bool marker) {
    auto l = std::make_shared<kel_test::ProbeLeafLabel>();
    l->itemText1 = text + L"-1";
    l->itemText4 = text + L"-4";
    l->label = text;
    l->marker = marker;
    return l;
}

TEST(RecordsAs, PartialClassInAListFieldTravelsBothWays) {
    auto engine = std::make_shared<kel_test::Probe>();
    engine->labels = {label(L"first", true), nullptr, label(L"\U0001F697", false)};
    const ProbeRecord c(kel::toC<Probe>(engine.get()));
    ASSERT_EQ(c->labelCount, 3U);
    EXPECT_STREQ(c->labels[0]->itemText1, L"first-1");
    EXPECT_STREQ(c->labels[0]->itemText2, L"") << "members the class has are all written";
    EXPECT_STREQ(c->labels[0]->label, L"first");
    EXPECT_EQ(c->labels[0]->marker, 1U);
    EXPECT_EQ(c->labels[0]->stamp, 0U) << "a member the class lacks stays 0";
    EXPECT_EQ(c->labels[1], nullptr);
    EXPECT_STREQ(c->labels[2]->label, L"\U0001F697");
    EXPECT_EQ(c->labels[2]->marker, 0U);

    c->labels[0]->stamp = 42; // a caller's value that the class has no member for
    const auto back = kel::fromC(c.get(), false);
    static_assert(std::is_same_v<decltype(back->labels)::value_type,
                                 std::shared_ptr<kel_test::ProbeLeafLabel>>);
    ASSERT_EQ(back->labels.size(), 3U);
    EXPECT_EQ(back->labels[0]->label, L"first");
    EXPECT_EQ(back->labels[0]->itemText4, L"first-4");
    EXPECT_TRUE(back->labels[0]->marker);
    EXPECT_EQ(back->labels[1], nullptr);
    EXPECT_FALSE(back->labels[2]->marker);
}

TEST(RecordsAs, InputsConvertToTheNamedEngineClass) {
    // What an export generates for an operation that takes an as= class: the engine
    // class is named, the C record is the other record's.
    ProbeLeaf* items[2] = {kel::toC<ProbeLeaf>(label(L"a", true).get()), nullptr};
    items[0]->stamp = 7;
    const auto list = kel::in::records<ProbeLeaf, kel_test::ProbeLeafLabel>(items, 2);
    static_assert(std::is_same_v<decltype(list),
                                 const std::vector<std::shared_ptr<kel_test::ProbeLeafLabel>>>);
    ASSERT_EQ(list.size(), 2U);
    EXPECT_EQ(list[0]->label, L"a");
    EXPECT_TRUE(list[0]->marker);
    EXPECT_EQ(list[1], nullptr);
    EXPECT_STREQ(items[0]->label, L"a") << "a list stays the caller's";

    // A single input record is consumed; the leak checker sees whether all of it went.
    const auto one = kel::in::record<ProbeLeaf, kel_test::ProbeLeafLabel>(items[0]);
    ASSERT_TRUE(one);
    EXPECT_EQ(one->itemText1, L"a-1");
    EXPECT_FALSE((kel::in::record<ProbeLeaf, kel_test::ProbeLeafLabel>(nullptr)));
}

// ---- bases other than NamedItem -------------------------------------------------------

std::shared_ptr<kel_test::ProbeNode> node(const std::wstring& name, int depth) {
    auto n = std::make_shared<kel_test::ProbeNode>();
    kel_test::ProbeEntry& entry = *n; // the base members, as the engine sets them
    entry.itemText1 = name + L"/named";
    entry.name = name;
    entry.ok = depth % 2 == 0;
    entry.error = std::make_shared<Varno::Kel_cpp::KelError>();
    entry.error->code = depth;
    n->leaves = {leaf(name + L".leaf", static_cast<uint64_t>(depth))};
    n->request = L"sent only";
    n->size = 1000U + static_cast<uint32_t>(depth);
    if (depth > 0) {
        n->nodes = {node(name + L"/a", depth - 1), nullptr, node(name + L"/b", depth - 1)};
    }
    return n;
}

struct ReleasedNode {
    void operator()(ProbeNode* p) const { kel::release(p); }
};

TEST(RecordsBase, BaseMembersLeadTheCRecordAndTheEngineKeepsTheHierarchy) {
    static_assert(std::is_base_of_v<kel_test::ProbeEntry, kel_test::ProbeNode>);
    static_assert(std::is_base_of_v<Varno::Kel_cpp::NamedItem, kel_test::ProbeEntry>);
    static_assert(std::is_base_of_v<kel_test::ProbeEntry, kel_test::ProbeNodeEntry>);
    // NamedItem's strings first, then the base's own members, then the record's.
    EXPECT_EQ(offsetof(ProbeNode, itemText1), 0U);
    EXPECT_EQ(offsetof(ProbeNode, name), 32U);
    EXPECT_EQ(offsetof(ProbeNode, error), 40U);
    EXPECT_EQ(offsetof(ProbeNode, ok), 48U);
    EXPECT_EQ(offsetof(ProbeNode, leaves), 56U);

    const auto engine = node(L"root", 2);
    const std::unique_ptr<ProbeNode, ReleasedNode> c(kel::toC<ProbeNode>(engine.get()));
    EXPECT_STREQ(c->itemText1, L"root/named");
    EXPECT_STREQ(c->name, L"root");
    ASSERT_NE(c->error, nullptr);
    EXPECT_EQ(c->error->code, 2);
    EXPECT_EQ(c->ok, 1U);
    EXPECT_EQ(c->size, 1002U);
    ASSERT_EQ(c->nodeCount, 3U);
    EXPECT_STREQ(c->nodes[2]->name, L"root/b");
    EXPECT_EQ(c->nodes[2]->ok, 0U);
    ASSERT_EQ(c->nodes[2]->nodeCount, 3U) << "the tree converts recursively";
    EXPECT_STREQ(c->nodes[2]->nodes[0]->leaves[0]->label, L"root/b/a.leaf-label");

    c->request = duplicate_WString(L""); // handed out NULL: an input string must be set
    const auto back = kel::fromC(c.get(), false);
    const kel_test::ProbeEntry& entry = *back;
    EXPECT_EQ(entry.name, L"root");
    EXPECT_EQ(entry.itemText1, L"root/named");
    EXPECT_TRUE(entry.ok);
    ASSERT_TRUE(entry.error);
    EXPECT_EQ(entry.error->code, 2);
    ASSERT_EQ(back->leaves.size(), 1U);
    EXPECT_EQ(back->leaves[0]->stamp, 2U);
}

TEST(RecordsBase, ClassOfTheBaseMembersOnlyConvertsThroughTheDerivedRecord) {
    auto entry = std::make_shared<kel_test::ProbeNodeEntry>();
    entry->name = L"entry";
    entry->itemText3 = L"three";
    entry->ok = true;
    auto engine = std::make_shared<kel_test::Probe>();
    engine->entry = entry;
    const ProbeRecord c(kel::toC<Probe>(engine.get()));
    ASSERT_NE(c->entry, nullptr);
    EXPECT_STREQ(c->entry->name, L"entry");
    EXPECT_STREQ(c->entry->itemText3, L"three");
    EXPECT_EQ(c->entry->ok, 1U);
    EXPECT_EQ(c->entry->leaves, nullptr);
    EXPECT_EQ(c->entry->request, nullptr);

    const auto back = kel::fromC(c.get(), false);
    ASSERT_TRUE(back->entry);
    EXPECT_EQ(back->entry->name, L"entry");
    EXPECT_TRUE(back->entry->ok);
}

// ---- fields that travel one way ---------------------------------------------------------

TEST(RecordsDirection, OneWayFieldsAreLeftOutOnTheOtherWay) {
    const auto engine = node(L"root", 1);
    const std::unique_ptr<ProbeNode, ReleasedNode> c(kel::toC<ProbeNode>(engine.get()));
    EXPECT_EQ(c->request, nullptr) << "an in-only field is not handed out";
    EXPECT_EQ(c->nodeCount, 3U) << "an out-only field is";

    // A caller's input: the in-only field reaches the engine, the out-only one does not.
    c->request = duplicate_WString(L"from the caller");
    const auto back = kel::fromC(c.get(), false);
    EXPECT_EQ(back->request, L"from the caller");
    EXPECT_TRUE(back->nodes.empty());
    EXPECT_EQ(back->name, L"root") << "base fields travel as before";
    EXPECT_EQ(back->leaves.size(), 1U) << "other lists travel as before";
    EXPECT_EQ(back->size, 1001U);
    // Releasing the record frees both one-way members (the leak checker sees it).
}

TEST(RecordsDirection, TheStreamFormCarriesEveryEngineField) {
    const auto engine = node(L"root", 1);
    kel::OTXStream out(true, true, false);
    out.write(engine);
    kel::OTXStream in(out.buffer, true, true, false);
    std::shared_ptr<kel_test::ProbeNode> back;
    in.read(back);
    ASSERT_TRUE(back);
    EXPECT_EQ(in.position, out.position);
    EXPECT_EQ(back->request, L"sent only");
    ASSERT_EQ(back->nodes.size(), 3U);
    EXPECT_EQ(back->nodes[1], nullptr);
    EXPECT_EQ(back->nodes[2]->name, L"root/b");
    EXPECT_EQ(back->error->code, 1);
}

// ---- one-byte flags ---------------------------------------------------------------------

TEST(RecordsFlag, AnyNonZeroByteIsTrueAndTrueIsOne) {
    for (const uint8_t byte : {uint8_t{0}, uint8_t{1}, uint8_t{2}, uint8_t{0x80}, uint8_t{0xFF}}) {
        auto* c = kel::toC<ProbeLeaf>(leaf(L"x", 1).get());
        c->marker = byte;
        const auto engine = kel::in::record(c);
        EXPECT_EQ(engine->marker, byte != 0) << static_cast<int>(byte);
        const std::unique_ptr<ProbeLeaf, void (*)(ProbeLeaf*)> again(
            kel::toC<ProbeLeaf>(engine.get()), &kel::release<ProbeLeaf>);
        EXPECT_EQ(again->marker, byte != 0 ? 1U : 0U);
    }
}

TEST(RecordsFlag, ABoolByteOtherThanOneFromCIsTrue) {
    // A C caller may leave any byte in a bool member (memset, a packed struct, a
    // language without a bool type); it must not reach the engine as an invalid bool.
    auto* c = static_cast<Probe*>(allocate_Memory(sizeof(Probe)));
    std::memset(c, 0, sizeof(Probe));
    c->text = duplicate_WString(L"");
    const uint8_t two = 2;
    std::memcpy(&c->flag, &two, 1);
    std::memcpy(&c->switches[1], &two, 1);
    const auto engine = kel::in::record(c);
    uint8_t stored[4] = {};
    std::memcpy(&stored[0], &engine->flag, 1);
    std::memcpy(&stored[1], engine->switches.data(), 3);
    EXPECT_EQ(stored[0], 1U);
    EXPECT_EQ(stored[1], 0U);
    EXPECT_EQ(stored[2], 1U) << "also in a fixed array";
    EXPECT_EQ(stored[3], 0U);
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
