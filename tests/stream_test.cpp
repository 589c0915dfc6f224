// The call stream: wire forms against the golden vectors, the reading variants, UTF-8,
// growth and ownership, and the bounds checks of the checked entry points.
#include "golden.h"

#include <Vutil/ErrorHandler.h>
#include <Vutil/TraceRecorder.h>

#include <gtest/gtest.h>

#include <OTXStream.h>
#include <cstdlib>
#include <cstring>
#include <utf8.h>
#include <utility>

namespace {

using kel::Bits;
using kel::OTXStream;
using kel_test::golden;
using Varno::Kel_cpp::KelError;
using Varno::Kel_cpp::MvciServerError;

std::vector<uint8_t> written(const OTXStream& stream) {
    return {stream.buffer, stream.buffer + stream.position};
}

std::shared_ptr<MvciServerError> mvciError() {
    auto mvci = std::make_shared<MvciServerError>();
    mvci->code = 0x101;
    mvci->codeText = L"PDU_ERR_COMM_PC_TO_VCI_FAILED";
    mvci->vendorCode = -3;
    mvci->vendorCodeText = L"VCI timeout";
    return mvci;
}

TEST(StreamStrings, WrittenWithTheirUtf8ByteCount) {
    OTXStream empty(true, false, true);
    empty.write(std::wstring());
    EXPECT_EQ(written(empty), golden("string_empty"));

    // The writer always writes the prefix, whatever the reading flag says.
    OTXStream text(false, true, false);
    text.write(std::wstring(L"Grüße \U0001F697"));
    EXPECT_EQ(written(text), golden("string_utf8"));
}

TEST(StreamStrings, ReadLengthPrefixedOrUpToTheNul) {
    auto bytes = golden("string_utf8");
    OTXStream prefixed(bytes.data(), true, false, true);
    std::wstring text;
    prefixed.read(text);
    EXPECT_EQ(text, L"Grüße \U0001F697") << "astral characters survive the round trip";
    EXPECT_EQ(prefixed.position, bytes.size());

    bytes = golden("string_nul_terminated");
    OTXStream terminated(bytes.data(), false, true, false);
    uint32_t after = 0;
    terminated.read(text).read(after);
    EXPECT_EQ(text, L"Zündung");
    EXPECT_EQ(after, 42U) << "the NUL is consumed";
    EXPECT_EQ(terminated.position, bytes.size());

    const uint8_t emptyTerminated[] = {0};
    OTXStream nul(emptyTerminated, false, true, false);
    nul.read(text);
    EXPECT_EQ(text, L"");
    EXPECT_EQ(nul.position, 1U);
}

// The ASCII runs go several units at a time: a character of each UTF-8 length, and a
// malformed byte, at every offset across those steps.
TEST(StreamStrings, NonAsciiAtEveryOffsetOfAnAsciiRun) {
    const std::pair<std::wstring, std::string> characters[] = {
        {L"\u00E9", "\xC3\xA9"}, {L"\u20AC", "\xE2\x82\xAC"}, {L"\U0001F697", "\xF0\x9F\x9A\x97"}};
    for (std::size_t offset = 0; offset < 20; ++offset) {
        for (const auto& [wide, utf8] : characters) {
            const std::wstring text =
                std::wstring(offset, L'a') + wide + std::wstring(20 - offset, L'b');
            OTXStream out(true, false, false);
            out.write(text);
            const std::string expected =
                std::string(offset, 'a') + utf8 + std::string(20 - offset, 'b');
            ASSERT_EQ(std::string(reinterpret_cast<const char*>(out.buffer) + 4, out.position - 4),
                      expected)
                << offset;
            OTXStream in(out.buffer, true, false, false);
            std::wstring back;
            in.read(back);
            EXPECT_EQ(back, text) << offset;
        }
        const std::string bad = std::string(offset, 'a') + "\xFF" + std::string(20 - offset, 'b');
        EXPECT_EQ(kel::utf8::decode(bad),
                  std::wstring(offset, L'a') + L"\uFFFD" + std::wstring(20 - offset, L'b'))
            << offset;
    }
}

TEST(StreamStrings, TraceShowsTheStreamedStringAtLevelThree) {
    auto recorder = std::make_shared<Vutil::TraceRecorder>();
    Vutil::ErrorHandler::addListener(recorder);
    Vutil::ErrorHandler::setDebugTraceLevel(2);
    OTXStream stream(true, false, true);
    stream.write(std::wstring(L"quiet"));
    Vutil::ErrorHandler::setDebugTraceLevel(3);
    stream.write(std::wstring(L"Zündung"));
    Vutil::ErrorHandler::setDebugTraceLevel(0);
    Vutil::ErrorHandler::removeListener(recorder);

    const auto lines = recorder->lines();
    ASSERT_EQ(lines.size(), 1U) << "nothing is traced below level 3";
    EXPECT_EQ(lines[0].source, "OTXStream");
    EXPECT_EQ(lines[0].text, "Streaming a string with size 8 c = Z\xC3\xBCndung");
}

TEST(StreamRecords, NullAndPresentRecordsAsWritten) {
    OTXStream null(true, false, true);
    null.write(std::shared_ptr<KelError>());
    EXPECT_EQ(written(null), golden("record_null"));

    auto error = std::make_shared<KelError>();
    error->code = 5;
    error->message = L"m";
    error->subCode = 2;
    error->mvciError = mvciError();
    OTXStream present(true, false, true);
    present.write(error);
    EXPECT_EQ(written(present), golden("record_present"));
}

TEST(StreamRecords, PresenceBytesAreReadOnlyWhenTheFlagSaysSo) {
    auto bytes = golden("record_input_without_presence");
    OTXStream otx(bytes.data(), true, false, true);
    std::shared_ptr<MvciServerError> record;
    otx.read(record);
    ASSERT_TRUE(record) << "without presence bytes a record is always created";
    EXPECT_EQ(record->codeText, L"PDU_ERR_COMM_PC_TO_VCI_FAILED");
    EXPECT_EQ(record->vendorCode, -3);
    EXPECT_EQ(otx.position, bytes.size());

    // The Python input form: strings NUL-terminated there, so write the fields fresh.
    OTXStream python(true, false, false);
    python.write(uint8_t{0}).write(uint8_t{1}).write(int32_t{7});
    for (const char* text : {"code", "vendor", "extra"}) {
        python.put(text, std::strlen(text) + 1);
        if (std::strcmp(text, "code") == 0) {
            python.write(int32_t{8});
        }
    }
    python.write(int32_t{9});
    OTXStream in(python.buffer, false, true, false);
    std::shared_ptr<MvciServerError> first = mvciError();
    std::shared_ptr<MvciServerError> second;
    in.read(first).read(second);
    EXPECT_EQ(first->code, 0x101) << "presence 0 leaves the target as it was";
    ASSERT_TRUE(second);
    EXPECT_EQ(second->code, 7);
    EXPECT_EQ(second->codeText, L"code");
    EXPECT_EQ(second->vendorCode, 8);
    EXPECT_EQ(second->vendorCodeText, L"vendor");
    EXPECT_EQ(second->extraText, L"extra");
    EXPECT_EQ(second->extraCode, 9);
    EXPECT_EQ(in.position, python.position);
}

TEST(StreamRecords, VectorsOfRecordsKeepNullEntries) {
    const auto bytes = golden("record_input_with_presence");
    OTXStream in(bytes.data(), true, true, true);
    // The same two records as a vector: a count, then each in nullable form.
    OTXStream vector(true, false, true);
    vector.write(uint32_t{2});
    vector.put(bytes.data(), bytes.size());
    OTXStream read(vector.buffer, true, true, true);
    std::vector<std::shared_ptr<MvciServerError>> records(5);
    read.read(records);
    ASSERT_EQ(records.size(), 2U) << "the vector is resized to the count";
    EXPECT_EQ(records[0], nullptr);
    ASSERT_TRUE(records[1]);
    EXPECT_EQ(records[1]->extraCode, 0);
    EXPECT_EQ(records[1]->vendorCodeText, L"VCI timeout");
}

TEST(StreamValues, BitSetsAsListsAndVectors) {
    for (const auto& [value, name] :
         {std::pair{0x7U, "bits_7_as_list"}, std::pair{0x6U, "bits_6_as_list"},
          std::pair{0xBU, "bits_B_as_list"}}) {
        OTXStream stream(true, false, true);
        stream.write(Bits{value});
        EXPECT_EQ(written(stream), golden(name)) << name;
    }
    const auto bytes = golden("bits_read_1_4");
    OTXStream in(bytes.data(), true, false, true);
    Bits bits;
    in.read(bits);
    EXPECT_EQ(bits.value, 0x5U);

    OTXStream single(true, false, false);
    single.write(Bits{0xB});
    EXPECT_EQ(written(single), (std::vector<uint8_t>{0x0B, 0, 0, 0}))
        << "without the flag: one u32";

    OTXStream empty(true, false, true);
    empty.write(std::vector<std::wstring>{});
    EXPECT_EQ(written(empty), golden("vector_empty"));

    OTXStream mixed(true, false, true);
    mixed.write(true).write(uint16_t{0xBEEF}).write(int64_t{-2}).write(std::vector<uint64_t>{1});
    EXPECT_EQ(written(mixed), (std::vector<uint8_t>{1,    0xEF, 0xBE, 0xFE, 0xFF, 0xFF, 0xFF, 0xFF,
                                                    0xFF, 0xFF, 0xFF, 1,    0,    0,    0,    1,
                                                    0,    0,    0,    0,    0,    0,    0}));
}

TEST(StreamBuffer, GrowsAndHandsItsBufferOver) {
    OTXStream out(true, false, true);
    for (uint32_t i = 0; i < 10000; ++i) {
        out.write(i);
    }
    EXPECT_EQ(out.position, 40000U);
    EXPECT_GE(out.capacity, out.position);
    EXPECT_LT(out.capacity, 2 * 40000U + 64) << "growth is geometric, not unbounded";
    uint32_t last = 0;
    std::memcpy(&last, out.buffer + 39996, 4);
    EXPECT_EQ(last, 9999U);

    uint8_t* buffer = out.detach();
    EXPECT_EQ(out.buffer, nullptr);
    EXPECT_EQ(out.capacity, 0U);
    EXPECT_EQ(out.position, 0U);
    std::free(buffer); // the caller's now; the stream frees nothing
}

TEST(StreamBounds, CheckedReadsStopAtTheEnd) {
    const uint8_t countPastEnd[] = {0xFF, 0xFF, 0xFF, 0x7F, 'a'};
    OTXStream counts(countPastEnd, true, false, true);
    counts.bounded = true;
    counts.size = sizeof countPastEnd;
    std::vector<uint32_t> values;
    EXPECT_THROW(counts.read(values), kel::MalformedInput);

    const uint8_t noNul[] = {'a', 'b', 'c'};
    OTXStream text(noNul, false, true, false);
    text.bounded = true;
    text.size = sizeof noNul;
    std::wstring out;
    EXPECT_THROW(text.read(out), kel::MalformedInput);

    const uint8_t shortValue[] = {1, 2};
    OTXStream value(shortValue, true, false, true);
    value.bounded = true;
    value.size = sizeof shortValue;
    uint32_t number = 0;
    EXPECT_THROW(value.read(number), kel::MalformedInput);
    EXPECT_EQ(number, 0U);
}

} // namespace
