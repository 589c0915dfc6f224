// The call stream beyond what the conformance suite's byte streams show per operation:
// the wire forms pinned by the golden vectors, the UTF-8 fast path, the trace, bit sets
// (which no operation carries), growth and ownership, and the bounds checks of the checked
// entry points.
#include "golden.h"

#include <Vutil/ErrorHandler.h>
#include <Vutil/TraceRecorder.h>

#include <gtest/gtest.h>

#include <OTXStream.h>
#include <cstdlib>
#include <cstring>
#include <functional>
#include <utf8.h>
#include <utility>

namespace {

using kel::Bits;
using kel::OTXStream;
using namespace kel_test;
using Varno::Kel_cpp::KelError;
using Varno::Kel_cpp::MvciServerError;

std::vector<uint8_t> written(const OTXStream& stream) {
    return {stream.buffer, stream.buffer + stream.position};
}

// The conformance suite holds the codec to the generator's model of the stream; these files
// hold both to the form OTX runtimes already read, so that the two cannot drift together.
TEST(StreamGolden, WrittenAndReadAsTheVectorsSay) {
    auto error = std::make_shared<KelError>();
    error->code = 5;
    error->message = L"m";
    error->subCode = 2;
    error->mvciError = std::make_shared<MvciServerError>();
    error->mvciError->code = 0x101;
    error->mvciError->codeText = L"PDU_ERR_COMM_PC_TO_VCI_FAILED";
    error->mvciError->vendorCode = -3;
    error->mvciError->vendorCodeText = L"VCI timeout";
    const std::pair<const char*, std::function<void(OTXStream&)>> forms[] = {
        {"string_empty", [](OTXStream& s) { s.write(std::wstring()); }},
        {"string_utf8", [](OTXStream& s) { s.write(std::wstring(L"Grüße \U0001F697")); }},
        {"record_null", [](OTXStream& s) { s.write(std::shared_ptr<KelError>()); }},
        {"record_present", [&](OTXStream& s) { s.write(error); }},
        {"vector_empty", [](OTXStream& s) { s.write(std::vector<uint32_t>()); }},
    };
    for (const auto& [name, write] : forms) {
        OTXStream stream(true, false, true);
        write(stream);
        EXPECT_EQ(written(stream), golden(name)) << name;
    }
    auto bytes = golden("string_nul_terminated");
    OTXStream terminated(bytes.data(), false, true, false);
    std::wstring text;
    uint32_t after = 0;
    terminated.read(text).read(after);
    EXPECT_EQ(std::pair(text, after), std::pair(std::wstring(L"Zündung"), 42U));
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

TEST(StreamValues, BitSetsAsListsOrOneNumber) {
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

// Reads a T from `bytes` in a stream bounded to their end; the read must be refused. The
// value as the refused read left it.
template <class T>
T readPastTheEnd(const std::vector<uint8_t>& bytes, bool lengthPrefixed, bool presence,
                 bool asList) {
    OTXStream in(bytes.data(), lengthPrefixed, presence, asList);
    in.bounded = true;
    in.size = static_cast<uint32_t>(bytes.size());
    T value{};
    EXPECT_THROW(in.read(value), kel::MalformedInput);
    return value;
}

TEST(StreamBounds, CheckedReadsStopAtTheEnd) {
    readPastTheEnd<std::vector<uint32_t>>({0xFF, 0xFF, 0xFF, 0x7F, 'a'}, true, false, true);
    readPastTheEnd<std::wstring>({'a', 'b', 'c'}, false, true, false); // no NUL
    EXPECT_EQ(readPastTheEnd<uint32_t>({1, 2}, true, false, true), 0U);
}

} // namespace
