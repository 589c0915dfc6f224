// Bad input: record trees nested past the checked dispatchers' bound, invalid UTF-8 and
// unpaired surrogates through the codec, and py_call on the local engine while another
// thread restarts it.
#include "support.h"

#include <Describe.h>
#include <OTXStream.h>
#include <algorithm>
#include <atomic>
#include <cstring>
#include <string>
#include <thread>
#include <utf8.h>
#include <vector>

#if defined(_WIN32)
#include <windows.h>
#endif

namespace {

using Bytes = std::vector<uint8_t>;
using kel::maxRecordDepth;
using namespace kel_test;

// Argument bytes in one of the two input forms: kel_call's (length-prefixed strings, no
// presence bytes) or py_call's (NUL-terminated strings, a presence byte before a record).
struct Arguments {
    bool python = false;
    Bytes bytes;

    void u8(uint8_t value) { bytes.push_back(value); }
    void u32(uint32_t value) {
        const auto at = bytes.size();
        bytes.resize(at + 4);
        std::memcpy(bytes.data() + at, &value, 4);
    }
    void emptyText() { python ? u8(0) : u32(0); }
    void record() {
        if (python) {
            u8(1);
        }
    }
};

// executeSequence (262): empty target and sequence, then `count` parameters, each a
// chain of `depth` ParameterInput records, each the only child of the one before.
Bytes parameterChains(bool python, uint32_t count, uint32_t depth) {
    Arguments a{python, {}};
    a.emptyText();
    a.emptyText();
    a.u32(count);
    for (uint32_t chain = 0; chain < count; ++chain) {
        for (uint32_t level = 1; level <= depth; ++level) {
            a.record();
            a.emptyText();                // name
            a.u32(level < depth ? 1 : 0); // children
        }
        for (uint32_t level = 1; level <= depth; ++level) {
            a.emptyText(); // value, innermost record first
        }
    }
    return a.bytes;
}

// createDirectory (133) in py_call's form: a parent DirectoryInfo `depth` levels deep
// (each the only subdirectory of the one before), then an empty name.
Bytes directoryChain(uint32_t depth) {
    Arguments a{true, {}};
    for (uint32_t level = 1; level <= depth; ++level) {
        a.record();
        a.emptyText(); // name
        a.u8(0);       // no error record
        a.u8(0);       // flag
        a.u32(0);      // value1
        a.emptyText(); // text1
        a.emptyText(); // text2
        a.u32(0);      // files
        a.u32(level < depth ? 1 : 0);
    }
    for (uint32_t level = 1; level <= depth; ++level) {
        a.u8(0); // flag2
    }
    a.emptyText();
    return a.bytes;
}

class CheckedNesting : public EngineTest {
protected:
    // The error code of a checked call, or 0 when the call succeeded.
    int32_t errorOf(bool python, int32_t operation, const Bytes& input) {
        int32_t code = 0;
        if (python) {
            uint32_t size = 0;
            void* buffer = nullptr;
            const int32_t returned =
                py_call_checked(api, operation, 0, input.data(), input.size(), &size, &buffer);
            Bytes result(size);
            py_result(result.data(), static_cast<int32_t>(size), buffer);
            if (returned == -1 && size >= 5) {
                std::memcpy(&code, result.data() + 1, 4);
            }
            return code;
        }
        void* stream = nullptr;
        uint64_t size = 0;
        kel_call_checked(0, operation, input.data(), input.size(), &stream, &size);
        Bytes result(size);
        kel_call_result(stream, result.data());
        EXPECT_GE(size, 1U);
        if (size >= 6 && result[0] == 0) {
            std::memcpy(&code, result.data() + 2, 4);
        }
        return code;
    }

    // How many ParameterInput records executeSequence received, counted in the
    // arguments the engine recorded.
    static std::size_t recordedParameters() {
        const int64_t length = kelsim_lastArguments("executeSequence", nullptr, 0);
        std::string text(static_cast<std::size_t>(std::max<int64_t>(length, 0)) + 1, '\0');
        kelsim_lastArguments("executeSequence", text.data(), text.size());
        std::size_t count = 0;
        for (auto at = text.find("\"children\""); at != std::string::npos;
             at = text.find("\"children\"", at + 1)) {
            ++count;
        }
        return count;
    }
};

// Trees up to the bound reach the engine whole; one level more, or the hundred thousand
// that exhausted the stack, is malformed input and the engine is not called. The bound is
// on nesting, not on the number of records: many deep siblings pass, and a rejected call
// leaves nothing behind for the next one.
TEST_F(CheckedNesting, TheBoundIsExactPerBranchAndDeeperTreesAreMalformedNotACrash) {
    for (const bool python : {false, true}) {
        SCOPED_TRACE(python ? "py_call_checked" : "kel_call_checked");
        kelsim_reset();
        EXPECT_NE(errorOf(python, 262, parameterChains(python, 1, maxRecordDepth)),
                  KEL_ERROR_MALFORMED_INPUT);
        EXPECT_EQ(recordedParameters(), maxRecordDepth);
        for (const uint32_t depth : {maxRecordDepth + 1, uint32_t{100000}}) {
            EXPECT_EQ(errorOf(python, 262, parameterChains(python, 1, depth)),
                      KEL_ERROR_MALFORMED_INPUT)
                << depth;
        }
        EXPECT_EQ(kelsim_callCount("executeSequence"), 1U);
    }
    EXPECT_NE(errorOf(true, 133, directoryChain(maxRecordDepth)), KEL_ERROR_MALFORMED_INPUT);
    for (const uint32_t depth : {maxRecordDepth + 1, uint32_t{100000}}) {
        EXPECT_EQ(errorOf(true, 133, directoryChain(depth)), KEL_ERROR_MALFORMED_INPUT) << depth;
    }
    EXPECT_EQ(kelsim_callCount("createDirectory"), 1U);
    EXPECT_NE(errorOf(false, 262, parameterChains(false, 40, maxRecordDepth)),
              KEL_ERROR_MALFORMED_INPUT);
    EXPECT_EQ(recordedParameters(), 40 * std::size_t{maxRecordDepth});
}

// Wine's converter treats a lead byte and a following continuation byte as one
// malformed unit even where that byte cannot follow the lead (E0 80, ED A0, F0 80,
// F4 90): one U+FFFD fewer than Windows and the portable codec give.
bool underWine() {
#if defined(_WIN32)
    HMODULE ntdll = GetModuleHandleA("ntdll.dll");
    return ntdll != nullptr && GetProcAddress(ntdll, "wine_get_version") != nullptr;
#else
    return false;
#endif
}

std::wstring wide(const std::u32string& codePoints) {
    std::wstring out;
    for (const char32_t c : codePoints) {
        if constexpr (sizeof(wchar_t) == 2) {
            if (c >= 0x10000) {
                out += static_cast<wchar_t>(0xD800 + ((c - 0x10000) >> 10));
                out += static_cast<wchar_t>(0xDC00 + ((c - 0x10000) & 0x3FF));
                continue;
            }
        }
        out += static_cast<wchar_t>(c);
    }
    return out;
}

struct InvalidUtf8 {
    const char* what;
    std::string bytes;
    std::u32string expected;    // one U+FFFD per maximal subpart
    std::u32string underWine{}; // where wine's converter differs
};

constexpr char32_t R = 0xFFFD;

const std::vector<InvalidUtf8>& invalidUtf8() {
    static const std::vector<InvalidUtf8> cases = {
        {"encoded surrogate", "\xED\xA0\x80", {R, R, R}, {R, R}},
        {"last encoded surrogate", "\xED\xBF\xBF", {R, R, R}, {R, R}},
        {"above U+10FFFF", "\xF4\x90\x80\x80", {R, R, R, R}, {R, R, R}},
        {"overlong three bytes", "\xE0\x80\xAF", {R, R, R}, {R, R}},
        {"overlong four bytes", "\xF0\x80\x80\xAF", {R, R, R, R}, {R, R, R}},
        {"overlong two bytes", "\xC0\xAF", {R, R}},
        {"overlong C1", "\xC1\xBF", {R, R}},
        {"truncated at the end", "\xE2\x82", {R}},
        {"truncated four bytes", "\xF0\x9F\x98", {R}},
        {"truncated before ASCII",
         "\xE2\x82"
         "A",
         {R, U'A'}},
        {"valid prefix, bad third byte", "\xE0\xA0\xC0", {R, R}},
        {"lone continuation bytes", "\x80\xBF", {R, R}},
        {"lead byte beyond F4", "\xF5\x80\x80\x80", {R, R, R, R}},
        {"five-byte form", "\xF8\x88\x80\x80\x80", {R, R, R, R, R}},
        {"byte FF", "\xFF", {R}},
        {"mixed, as in the Unicode standard's example",
         "a\xF1\x80\x80\xE1\x80\xC2"
         "b\x80"
         "c\x80\xBF"
         "d",
         {U'a', R, R, R, U'b', R, U'c', R, R, U'd'}},
        {"last before the surrogates", "\xED\x9F\xBF", {0xD7FF}},
        {"first after the surrogates", "\xEE\x80\x80", {0xE000}},
        {"first four-byte", "\xF0\x90\x80\x80", {0x10000}},
        {"last code point", "\xF4\x8F\xBF\xBF", {0x10FFFF}},
    };
    return cases;
}

const std::u32string& expectedHere(const InvalidUtf8& c) {
    return underWine() && !c.underWine.empty() ? c.underWine : c.expected;
}

TEST(Utf8Decode, EachMaximalSubpartBecomesOneReplacement) {
    for (const auto& c : invalidUtf8()) {
        EXPECT_EQ(kel::utf8::decode(c.bytes), wide(expectedHere(c))) << c.what;
    }
}

// Long text is decoded in two halves cut at a character's start: every case inside a
// long text, with the cut falling on each byte of a stretch of them, decodes as it does
// alone.
TEST(Utf8Decode, LongTextDecodesAsItsParts) {
    std::string bytes;
    std::u32string expected;
    for (int round = 0; bytes.size() < 8192; ++round) {
        for (const auto& c : invalidUtf8()) {
            bytes += c.bytes + std::string(static_cast<std::size_t>(round % 7), 'a') + "\xC3\xA9";
            expected += expectedHere(c) +
                        std::u32string(static_cast<std::size_t>(round % 7), U'a') + U"\u00E9";
        }
    }
    for (std::size_t shift = 0; shift < 64; ++shift) {
        EXPECT_EQ(kel::utf8::decode(std::string(shift, 'z') + bytes),
                  wide(std::u32string(shift, U'z') + expected))
            << shift;
    }
}

// Wide text that is no character (an unpaired surrogate) becomes U+FFFD, never a
// three-byte encoding of the surrogate: in the binding's codec and in the engine's, which
// every family converts through (its JSON writer throws on anything but UTF-8).
TEST(Utf8Encode, UnpairedSurrogatesBecomeReplacements) {
    const std::string replacement = "\xEF\xBF\xBD";
    const auto high = static_cast<wchar_t>(0xD800);
    const auto low = static_cast<wchar_t>(0xDC00);
    for (auto* encode :
         {+[](const std::wstring& t) { return kel::utf8::encode(t); },
          +[](const std::wstring& t) { return Varno::Kel_cpp::Reference::toUtf8(t); }}) {
        EXPECT_EQ(encode(std::wstring{high}), replacement);
        EXPECT_EQ(encode(std::wstring{L'a', low, L'b'}), "a" + replacement + "b");
        EXPECT_EQ(encode(std::wstring{low, high}), replacement + replacement);
        if constexpr (sizeof(wchar_t) == 4) {
            EXPECT_EQ(encode(std::wstring{static_cast<wchar_t>(0x110000)}), replacement);
        }
    }
    // Nor does the engine read a surrogate or a value above U+10FFFF back from a file.
    using Varno::Kel_cpp::Reference::fromUtf8;
    EXPECT_EQ(fromUtf8("a\xED\xA0\x80"), L"a\uFFFD");
    EXPECT_EQ(fromUtf8("\xF4\x90\x80\x80"), L"\uFFFD");
    EXPECT_EQ(fromUtf8("\xC0\xAF"), L"\uFFFD") << "an overlong slash";
}

using EngineFaults = EngineTest;

// Whatever a family throws leaves the engine as its internal error, with the fault's
// text: the binding converts engine errors alone, so anything else ended the process.
TEST_F(EngineFaults, AnExceptionThatIsNoEngineErrorBecomesTheInternalError) {
    kelsim_throwNext("getState", 1, "broken \xFF invariant");
    ErrorSlot error;
    int32_t state = -7;
    kel_getState(api, &error, &state);
    ASSERT_TRUE(error);
    EXPECT_EQ(error->code, 2301);
    EXPECT_STREQ(error->details, L"broken \uFFFD invariant");
    EXPECT_EQ(state, -7);
    ErrorSlot next;
    kel_getState(api, &next, &state);
    EXPECT_FALSE(next) << "the engine goes on";
}

using PyCallConcurrency = EngineTest;

// Each restart lets the engine go; a py_call that did not hold the local engine for
// its length used a freed object (the sanitizer builds report it). The engine takes a
// millisecond per call, so that restarts fall inside calls; the fixture's own reference
// is let go for the length of the test, so that a restart can end the engine.
TEST_F(PyCallConcurrency, CallsOnTheLocalEngineSurviveItsRestart) {
    releaseTarnApi(api);
    kelsim_setDelay("getState", 1);
    std::atomic<bool> done{false};
    std::thread restarter([&] {
        while (!done) {
            kelsim_restart();
        }
    });
    int wrong = 0;
    for (int i = 0; i < 150; ++i) {
        uint32_t size = 0;
        void* buffer = nullptr;
        const int32_t state = py_call(nullptr, 49, 0, nullptr, &size, &buffer);
        int32_t written = -2;
        py_result(&written, size == 4 ? 4 : 0, buffer);
        wrong += size != 4 || written != state ? 1 : 0;
    }
    done = true;
    restarter.join();
    api = kel_getTarnApi();
    EXPECT_EQ(wrong, 0);
}

} // namespace
