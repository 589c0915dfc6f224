// The record conventions, on a test-only record set that uses every member kind:
// engine to C, C to engine, consumption and release.
#include "generated/test_records.h"

#include <gtest/gtest.h>

#include <convert.h>
#include <cstring>
#include <frame.h>

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

} // namespace
