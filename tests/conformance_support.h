// The generic half of the conformance suite (tests/generated/conformance/*): the generated
// files hold, per operation, only its call and a table of cases computed from the
// description; everything below runs those tables.
//
// A case gives the C inputs as JSON, the arguments the engine must record, the scripted
// result, the C view of the result, and the byte streams of both dispatchers. Every
// comparison is of whole strings or whole byte runs.
#pragma once

#include <kel_c.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <chrono>
#include <condition_variable>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <kel_sim.h>
#include <mutex>
#include <span>
#include <stdexcept>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>
#include <vector>

namespace kel_conformance {

// ---- JSON, as the generator writes it -----------------------------------------------------

// Read here rather than by nlohmann: the text checks' inputs hold lone UTF-16 surrogates
// (and, with 32-bit wchar_t, values past U+10FFFF), which nlohmann refuses.
class Json {
public:
    static Json parse(std::string_view text) {
        std::size_t at = 0;
        Json value = read(text, at);
        if (skip(text, at) != text.size()) {
            throw std::runtime_error("trailing text in JSON");
        }
        return value;
    }

    bool isNull() const { return kind_ == 'n'; }
    bool boolean() const { return expect('b').text_ == "true"; }
    const std::string& text() const { return expect('"').text_; } // UTF-8
    std::size_t size() const { return expect('[').items_.size(); }
    const Json& operator[](std::size_t i) const { return expect('[').items_.at(i); }
    const Json& at(std::string_view key) const {
        const Json& object = expect('{');
        for (std::size_t i = 0; i < object.keys_.size(); ++i) {
            if (object.keys_[i] == key) {
                return object.items_[i];
            }
        }
        throw std::runtime_error("JSON object without member " + std::string(key));
    }
    template <class T>
    T number() const {
        const std::string& digits = expect('0').text_;
        return digits.front() == '-' ? static_cast<T>(std::stoll(digits))
                                     : static_cast<T>(std::stoull(digits));
    }

private:
    const Json& expect(char kind) const {
        if (kind_ != kind) {
            throw std::runtime_error("unexpected JSON value kind");
        }
        return *this;
    }
    static std::size_t skip(std::string_view s, std::size_t& at) {
        while (at < s.size() && (s[at] == ' ' || s[at] == '\n' || s[at] == '\t')) {
            ++at;
        }
        return at;
    }
    static Json read(std::string_view s, std::size_t& at);
    static std::string readText(std::string_view s, std::size_t& at);

    char kind_ = 'n'; // n(ull), b(oolean), 0 (number), " (text), [ (array), { (object)
    std::string text_;
    std::vector<Json> items_;
    std::vector<std::string> keys_;
};

inline void appendUtf8(std::string& out, char32_t c) {
    if (c < 0x80) {
        out += static_cast<char>(c);
    } else if (c < 0x800) {
        out += static_cast<char>(0xC0 | (c >> 6));
        out += static_cast<char>(0x80 | (c & 0x3F));
    } else if (c < 0x10000) {
        out += static_cast<char>(0xE0 | (c >> 12));
        out += static_cast<char>(0x80 | ((c >> 6) & 0x3F));
        out += static_cast<char>(0x80 | (c & 0x3F));
    } else {
        out += static_cast<char>(0xF0 | (c >> 18));
        out += static_cast<char>(0x80 | ((c >> 12) & 0x3F));
        out += static_cast<char>(0x80 | ((c >> 6) & 0x3F));
        out += static_cast<char>(0x80 | (c & 0x3F));
    }
}

inline std::string Json::readText(std::string_view s, std::size_t& at) {
    std::string out;
    ++at; // the opening quote
    while (at < s.size() && s[at] != '"') {
        if (s[at] != '\\') {
            out += s[at++];
        } else if (s.at(at + 1) == 'u') {
            appendUtf8(out, static_cast<char32_t>(
                                std::stoul(std::string(s.substr(at + 2, 4)), nullptr, 16)));
            at += 6;
        } else {
            const char escaped = s[at + 1];
            out += escaped == 't' ? '\t' : escaped == 'n' ? '\n' : escaped;
            at += 2;
        }
    }
    ++at;
    return out;
}

inline Json Json::read(std::string_view s, std::size_t& at) {
    Json value;
    if (skip(s, at) >= s.size()) {
        throw std::runtime_error("JSON ends early");
    }
    const char c = s[at];
    if (c == '"') {
        value.kind_ = '"';
        value.text_ = readText(s, at);
    } else if (c == '[' || c == '{') {
        value.kind_ = c;
        for (++at; skip(s, at) < s.size() && s[at] != (c == '{' ? '}' : ']');) {
            if (c == '{') {
                value.keys_.push_back(readText(s, at));
                skip(s, at);
                ++at; // ':'
            }
            value.items_.push_back(read(s, at));
            if (skip(s, at) < s.size() && s[at] == ',') {
                ++at;
            }
        }
        ++at;
    } else {
        const std::size_t start = at; // a literal or a number
        while (at < s.size() && (std::isalnum(static_cast<unsigned char>(s[at])) || s[at] == '-')) {
            ++at;
        }
        value.text_ = std::string(s.substr(start, at - start));
        if (value.text_.empty()) {
            throw std::runtime_error("bad JSON value");
        }
        value.kind_ = value.text_ == "null"                             ? 'n'
                      : value.text_ == "true" || value.text_ == "false" ? 'b'
                                                                        : '0';
    }
    return value;
}

// ---- wide text: UTF-16 on Windows, UTF-32 elsewhere ----------------------------------------

inline std::wstring widen(const std::string& utf8) {
    std::wstring out;
    for (std::size_t i = 0; i < utf8.size();) {
        const auto b = static_cast<unsigned char>(utf8[i]);
        const int extra = b < 0x80 ? 0 : b < 0xE0 ? 1 : b < 0xF0 ? 2 : 3;
        char32_t c = extra == 0 ? b : b & (0x3F >> extra);
        for (int k = 1; k <= extra; ++k) {
            c = (c << 6) |
                (static_cast<unsigned char>(utf8.at(i + static_cast<std::size_t>(k))) & 0x3F);
        }
        i += static_cast<std::size_t>(extra) + 1;
        if constexpr (sizeof(wchar_t) == 2) {
            if (c >= 0x10000) {
                c -= 0x10000;
                out += static_cast<wchar_t>(0xD800 + (c >> 10));
                out += static_cast<wchar_t>(0xDC00 + (c & 0x3FF));
                continue;
            }
        }
        out += static_cast<wchar_t>(c);
    }
    return out;
}

inline std::string narrow(const wchar_t* text) {
    std::string out;
    for (const wchar_t* p = text; *p != 0; ++p) {
        auto c = static_cast<char32_t>(*p);
        if constexpr (sizeof(wchar_t) == 2) {
            if (c >= 0xD800 && c < 0xDC00 && p[1] >= 0xDC00 && p[1] < 0xE000) {
                c = 0x10000 + ((c - 0xD800) << 10) + (static_cast<char32_t>(p[1]) - 0xDC00);
                ++p;
            }
        }
        appendUtf8(out, c);
    }
    return out;
}

// ---- describing C values as JSON -----------------------------------------------------------

// Renders C records member by member (generated describe() overloads): a NULL pointer
// is null, so NULL and empty differ; each count follows its list.
class Out {
public:
    std::string text;

    void value(bool v) { text += v ? "true" : "false"; }
    template <class T>
    requires std::is_integral_v<T>
    void value(T v) { text += std::to_string(v); }
    void value(const wchar_t* v) {
        if (v == nullptr) {
            text += "null";
            return;
        }
        text += '"';
        for (const char c : narrow(v)) {
            if (c == '"' || c == '\\') {
                text += '\\';
                text += c;
            } else if (static_cast<unsigned char>(c) < 0x20) {
                char escaped[8];
                std::snprintf(escaped, sizeof escaped, "\\u%04x", static_cast<unsigned>(c));
                text += escaped;
            } else {
                text += c;
            }
        }
        text += '"';
    }
    template <class R>
    requires std::is_class_v<R>
    void value(const R* record) {
        if (record == nullptr) {
            text += "null";
            return;
        }
        text += '{';
        first_.push_back(true);
        describe(*this, *record);
    }
    // A block of `count` elements, or null.
    template <class T>
    void values(const T* block, uint32_t count) {
        if (block == nullptr) {
            text += "null";
            return;
        }
        text += '[';
        for (uint32_t i = 0; i < count; ++i) {
            text += i == 0 ? "" : ",";
            value(block[i]);
        }
        text += ']';
    }

    // Members of the record being described.
    template <class T>
    void member(const char* name, const T& v) {
        key(name);
        if constexpr (std::is_array_v<T>) {
            values(&v[0], static_cast<uint32_t>(std::extent_v<T>));
        } else {
            value(v);
        }
    }
    template <class T>
    void member(const char* name, T* const& block, uint32_t count) {
        key(name);
        values(block, count);
    }
    void end() {
        text += '}';
        first_.pop_back();
    }

private:
    void key(const char* name) {
        text += first_.back() ? "\"" : ",\"";
        first_.back() = false;
        text += name;
        text += "\":";
    }
    std::vector<bool> first_;
};

// A value, or a block and its count.
template <class... A>
std::string view(const A&... a) {
    Out o;
    if constexpr (sizeof...(A) == 1) {
        o.value(a...);
    } else {
        o.values(a...);
    }
    return o.text;
}

// ---- building C inputs from JSON, on the library's heap -------------------------------------

template <class T>
T number(const Json& j) {
    if constexpr (std::is_same_v<T, bool>) {
        return j.boolean();
    } else {
        return j.number<T>();
    }
}

inline wchar_t* text(const Json& j) { return duplicate_WString(widen(j.text()).c_str()); }

template <class R>
R* record(const Json& j) {
    if (j.isNull()) {
        return nullptr;
    }
    auto* r = static_cast<R*>(allocate_Memory(sizeof(R)));
    std::memset(static_cast<void*>(r), 0, sizeof(R));
    build(j, *r);
    return r;
}

template <class T>
T* block(std::size_t count) {
    return count == 0 ? nullptr : static_cast<T*>(allocate_Memory(count * sizeof(T)));
}

template <class T>
requires std::is_arithmetic_v<T>
void set(const Json& j, T& to) { to = number<T>(j); }
template <class T, std::size_t N>
void set(const Json& j, T (&to)[N]) {
    for (std::size_t i = 0; i < N; ++i) {
        to[i] = number<T>(j[i]);
    }
}
inline void set(const Json& j, wchar_t*& to) { to = text(j); }
template <class R>
requires std::is_class_v<R>
void set(const Json& j, R*& to) { to = record<R>(j); }
// A list and its count, each element as a member of its type.
template <class T>
void set(const Json& j, T*& to, uint32_t& count) {
    count = static_cast<uint32_t>(j.size());
    to = block<T>(count);
    for (uint32_t i = 0; i < count; ++i) {
        set(j[i], to[i]);
    }
}

// Arguments of an export: lists stay the caller's, so they live as long as the call.
class Text {
public:
    explicit Text(const Json& j) : text_(widen(j.text())) {}
    const wchar_t* get() const { return text_.c_str(); }

private:
    std::wstring text_;
};

class Texts {
public:
    explicit Texts(const Json& j) : texts_(j.size()) {
        for (std::size_t i = 0; i < j.size(); ++i) {
            texts_[i] = widen(j[i].text());
            pointers_.push_back(texts_[i].data());
        }
    }
    wchar_t** data() { return pointers_.empty() ? nullptr : pointers_.data(); }
    uint32_t count() const { return static_cast<uint32_t>(pointers_.size()); }

private:
    std::vector<std::wstring> texts_;
    std::vector<wchar_t*> pointers_;
};

template <class T>
class Values {
public:
    explicit Values(const Json& j) {
        for (std::size_t i = 0; i < j.size(); ++i) {
            values_.push_back(number<T>(j[i]));
        }
    }
    const T* data() const { return values_.empty() ? nullptr : values_.data(); }
    uint32_t count() const { return static_cast<uint32_t>(values_.size()); }

private:
    std::vector<T> values_;
};

template <class R, void (*Release)(R**, uint64_t)>
class RecordList {
public:
    explicit RecordList(const Json& j) { set(j, block_, count_); }
    RecordList(const RecordList&) = delete;
    RecordList& operator=(const RecordList&) = delete;
    ~RecordList() { Release(block_, count_); }
    R** data() const { return block_; }
    uint32_t count() const { return count_; }

private:
    R** block_ = nullptr;
    uint32_t count_ = 0;
};

// The server handler a caller registers: the engine only records its address here.
inline void* handlerAddress() {
    static int handler = 0;
    return &handler;
}

// ---- results: each holder starts as canary bytes, so that a write shows -------------------

struct NoResult {
    std::string view() const { return "null"; }
    void release() {}
};
// One output, freed by `Release` when there is one.
template <class T, auto Release = nullptr>
struct Single {
    T data;
    std::string view() const { return kel_conformance::view(data); }
    void release() {
        if constexpr (!std::is_null_pointer_v<decltype(Release)>) {
            Release(data);
        }
    }
};
// A block and its count.
template <class T, void (*Release)(T*, uint64_t)>
struct Counted {
    T* data;
    uint32_t count;
    std::string view() const { return kel_conformance::view(data, count); }
    void release() { Release(data, count); }
};
template <class T>
using ValueResult = Single<T>;
using TextResult = Single<wchar_t*, release_Memory>;
using TextsResult = Counted<wchar_t*, release_StringArray>;
template <class R, void (*Release)(R*)>
using RecordResult = Single<R*, Release>;
template <class R, void (*Release)(R**, uint64_t)>
using ListResult = Counted<R*, Release>;
inline void releaseEngine(uint64_t handle) {
    releaseTarnApi(reinterpret_cast<TarnApi*>(static_cast<uintptr_t>(handle)));
}
using EngineResult = Single<uint64_t, releaseEngine>;
// A buffer handed out directly; its view is null only when it is NULL.
template <class P>
struct BufferResult {
    P* data;
    uint32_t count;
    std::string view() const {
        return kel_conformance::view(static_cast<const uint8_t*>(data), count);
    }
    void release() { release_Memory(data); }
};

constexpr unsigned char canaryByte = 0xA5;

template <class H>
void fillCanary(H& holder) {
    std::memset(static_cast<void*>(&holder), canaryByte, sizeof holder);
}
template <class H>
bool untouched(const H& holder) {
    const auto* bytes = reinterpret_cast<const unsigned char*>(&holder);
    for (std::size_t i = 0; i < sizeof holder; ++i) {
        if (bytes[i] != canaryByte) {
            return false;
        }
    }
    return true;
}

// The reports of one asynchronous call, taken from an engine thread.
template <class R, void (*Release)(R**, uint64_t)>
struct Reports {
    std::mutex mutex;
    std::condition_variable changed;
    int count = 0;
    bool final = false;
    uint64_t callId = 0;
    std::string view;
    std::string error;

    static void onReport(R** results, uint32_t resultCount, bool isFinal, uint64_t id, KelError* e,
                         void* context) {
        std::string v = kel_conformance::view(results, resultCount);
        std::string ev = kel_conformance::view(static_cast<const KelError*>(e));
        Release(results, resultCount);
        release_KelError(e);
        auto* self = static_cast<Reports*>(context);
        const std::lock_guard lock(self->mutex);
        ++self->count;
        self->final = isFinal;
        self->callId = id;
        self->view = std::move(v);
        self->error = std::move(ev);
        self->changed.notify_all();
    }
    bool waitFinal(std::chrono::milliseconds limit) {
        std::unique_lock lock(mutex);
        return changed.wait_for(lock, limit, [&] { return final; });
    }
};

// ---- cases -----------------------------------------------------------------------------------

// One variant of an operation's values: what a C caller passes, what the engine must
// record, the scripted result and what each way in must hand back.
struct Case {
    const char* variant;
    const char* inputs;    // the C arguments as JSON
    const char* arguments; // what the engine records for the export's call
    const char* script;    // the scripted result; nullptr when it cannot be scripted
    const char* cView;     // the C view of the result; nullptr when nothing is handed out
    const char* otxInput;  // kel_call's input, hexadecimal
    const char* pyInput;   // py_call's input
    const char* otxArguments;
    const char* pyArguments;
    const char* otxResult; // status byte and results
    const char* pyResult;
    int32_t pyReturn;
};

struct Number {
    int32_t number;
    const char* operation;
    std::span<const Case> cases;
};

struct Failure {
    const char* name;
    int32_t code;
    int32_t subCode;
    const wchar_t* message;
    const wchar_t* details;
    bool withMvci;
    int32_t mvciCode;
    const wchar_t* codeText;
    int32_t vendorCode;
    const wchar_t* vendorCodeText;
    const wchar_t* extraText;
    int32_t extraCode;
    const char* view;      // the C view of the KelError
    const char* otxResult; // kel_call's stream: status 0 and the error record
    const char* pyResult;  // py_call's stream: the error record
};

using Bytes = std::vector<uint8_t>;

inline Bytes bytes(const char* hex) {
    Bytes out;
    for (const char* p = hex; p[0] != 0 && p[1] != 0; p += 2) {
        out.push_back(static_cast<uint8_t>(std::stoul(std::string(p, 2), nullptr, 16)));
    }
    return out;
}

inline std::string hex(const Bytes& data) {
    std::string out;
    char digits[3];
    for (const uint8_t b : data) {
        std::snprintf(digits, sizeof digits, "%02x", b);
        out += digits;
    }
    return out;
}

inline std::string lastArguments(const char* operation) {
    char probe[1];
    const int64_t length = kelsim_lastArguments(operation, probe, sizeof probe);
    if (length < 0) {
        return "<never called>";
    }
    std::string out(static_cast<std::size_t>(length) + 1, '\0');
    kelsim_lastArguments(operation, out.data(), out.size());
    out.resize(static_cast<std::size_t>(length));
    return out;
}

// The recorded arguments, with the handler's address put in where the case names it.
inline std::string expected(const char* arguments, bool async = false) {
    std::string out = arguments;
    for (const auto& [token, pointer] :
         {std::pair<std::string, const void*>{"\"@handler\"", handlerAddress()},
          std::pair<std::string, const void*>{"\"@nohandler\"", nullptr}}) {
        char text[40];
        std::snprintf(text, sizeof text, "\"%p\"", pointer);
        for (std::size_t at = out.find(token); at != std::string::npos; at = out.find(token)) {
            out.replace(at, token.size(), text);
        }
    }
    if (async) {
        out.insert(out.size() - 1, out == "[]" ? "\"callback\"" : ",\"callback\"");
    }
    return out;
}

inline void script(const char* operation, const char* result) {
    if (kelsim_scriptResult(operation, result) != 0) {
        char why[512];
        kelsim_lastScriptError(why, sizeof why);
        ADD_FAILURE() << "the engine refused the result of " << operation << ": " << why;
    }
}

inline void fail(const char* operation, const Failure& f) {
    if (f.withMvci) {
        kelsim_failNextWithMvci(operation, 1, f.code, f.subCode, f.message, f.details, f.mvciCode,
                                f.codeText, f.vendorCode, f.vendorCodeText, f.extraText,
                                f.extraCode);
    } else {
        kelsim_failNext(operation, 1, f.code, f.subCode, f.message, f.details);
    }
}

// Defined by the generated records.h: the scripted failures and the named numbers.
std::span<const Failure> scriptedFailures();
std::span<const int32_t> namedNumbers();

// ---- the checks ------------------------------------------------------------------------------

inline std::string errorView(KelError* error) { return view(static_cast<const KelError*>(error)); }

constexpr std::chrono::milliseconds reportLimit{10000};

template <class Op>
constexpr bool isAsync = requires {
    typename Op::Reports;
};

// What one call of an export gave. A synchronous call that fails must leave every output
// as it was; an asynchronous one that does not start must never report, and one that
// starts ends with a final report under its own id.
struct Outcome {
    bool refused = false; // the call itself returned an error
    int32_t code = 0;     // its code
    std::string error = "null";
    std::string view; // the result, from the outputs or the final report
    int reports = 0;
};

template <class Op>
Outcome invoke(TarnApi* on, const char* inputs) {
    Outcome o;
    KelError* error = nullptr;
    if constexpr (isAsync<Op>) {
        typename Op::Reports reports;
        const uint64_t id = Op::call(on, Json::parse(inputs), &error, reports);
        if (error == nullptr) {
            EXPECT_NE(id, 0U);
            if (!reports.waitFinal(reportLimit)) {
                ADD_FAILURE() << "no final report";
                return o;
            }
            const std::lock_guard lock(reports.mutex);
            EXPECT_EQ(reports.callId, id);
            o.reports = reports.count;
            o.error = reports.error;
            o.view = reports.view;
            return o;
        }
        EXPECT_EQ(id, 0U);
        EXPECT_FALSE(reports.waitFinal(std::chrono::milliseconds(20)))
            << "a call that did not start reported";
    } else {
        typename Op::Result out;
        fillCanary(out);
        Op::call(on, Json::parse(inputs), &error, out);
        if (error == nullptr) {
            o.view = out.view();
            out.release(); // ASan/LSan see leaks and double frees
            return o;
        }
        EXPECT_TRUE(untouched(out)) << "an output was written";
    }
    o.refused = true;
    o.code = error->code;
    o.error = errorView(error);
    release_KelError(error);
    return o;
}

// Inputs reach the engine exactly and the scripted result comes back exactly, through the
// outputs or through the callback, converted alike.
template <class Op>
void exchange(TarnApi* api, std::span<const Case> cases) {
    for (const Case& c : cases) {
        SCOPED_TRACE(c.variant);
        script(Op::operation, c.script);
        const Outcome o = invoke<Op>(api, c.inputs);
        EXPECT_EQ(o.error, "null");
        EXPECT_EQ(o.reports, isAsync<Op> ? 1 : 0);
        EXPECT_EQ(lastArguments(Op::operation), expected(c.arguments, isAsync<Op>));
        if (c.cView != nullptr) {
            EXPECT_EQ(o.view, c.cView);
        }
    }
}

// An engine failure gives exactly the error at once; a consumed input record is freed all
// the same (LSan reports it otherwise).
template <class Op>
void failure(TarnApi* api, std::span<const Case> cases) {
    for (const Case& c : cases) {
        for (const Failure& f : scriptedFailures()) {
            SCOPED_TRACE(std::string(c.variant) + ", failure " + f.name);
            fail(Op::operation, f);
            const Outcome o = invoke<Op>(api, c.inputs);
            EXPECT_TRUE(o.refused);
            EXPECT_EQ(o.error, f.view);
            EXPECT_EQ(lastArguments(Op::operation), expected(c.arguments, isAsync<Op>));
        }
    }
}

// The asynchronous forms go the same way: invoke() tells them apart.
template <class Op>
void asyncExchange(TarnApi* api, std::span<const Case> cases) {
    exchange<Op>(api, cases);
}
template <class Op>
void asyncFailure(TarnApi* api, std::span<const Case> cases) {
    failure<Op>(api, cases);
}

// ---- text with no UTF-8 form -----------------------------------------------------------------

// The engine error a fault inside the engine becomes (ErrorCodes.h): text, whatever it
// holds, must be handled by the engine's rule for it, never by its net for faults.
constexpr int32_t internalError = 2301;

// The inputs as given (\\udc00 and \\ud800 read as lone UTF-16 units) and, with 32-bit
// wchar_t, with a value above U+10FFFF where the high surrogate was (the JSON reader
// takes F4 90 80 80 as it is).
inline std::vector<std::string> noUtf8Forms(const char* inputs) {
    std::vector<std::string> forms{inputs};
    if constexpr (sizeof(wchar_t) == 4) {
        std::string beyond = inputs;
        for (std::size_t at = beyond.find("\\ud800"); at != std::string::npos;
             at = beyond.find("\\ud800", at)) {
            beyond.replace(at, 6, "\xF4\x90\x80\x80");
        }
        forms.push_back(std::move(beyond));
    }
    return forms;
}

// Each call returns, or starts and ends, normally or with an engine error of its own; the
// process survives.
template <class Op>
void noUtf8(TarnApi* api, std::span<const char* const> cases) {
    for (const char* inputs : cases) {
        for (const std::string& form : noUtf8Forms(inputs)) {
            SCOPED_TRACE(form);
            const Outcome o = invoke<Op>(api, form.c_str());
            EXPECT_EQ(o.error.find("\"code\":" + std::to_string(internalError)), std::string::npos)
                << o.error;
        }
    }
}

template <class Op>
void asyncNoUtf8(TarnApi* api, std::span<const char* const> cases) {
    noUtf8<Op>(api, cases);
}

// ---- by number -------------------------------------------------------------------------------

enum class Via { Otx, Py };

struct Streamed {
    bool recognised = false;
    int32_t returned = 0;
    Bytes bytes;
};

// One call through kel_call or py_call (their checked forms read only `size` bytes). A
// number neither dispatcher knows leaves both outputs alone.
inline Streamed dispatch(Via via, TarnApi* api, int32_t number, const Bytes& input, bool checked,
                         std::size_t size) {
    void* const untouchedStream = reinterpret_cast<void*>(static_cast<uintptr_t>(0xC0FFEE0));
    constexpr uint64_t untouchedSize = 0xA5A5A5A5A5ULL;
    void* stream = untouchedStream;
    uint64_t otxSize = untouchedSize;
    auto pySize = static_cast<uint32_t>(untouchedSize);
    Streamed result;
    if (via == Via::Otx && checked) {
        kel_call_checked(0, number, input.data(), size, &stream, &otxSize);
    } else if (via == Via::Otx) {
        kel_call(0, number, input.data(), &stream, &otxSize);
    } else {
        result.returned =
            checked ? py_call_checked(api, number, 0, input.data(), size, &pySize, &stream)
                    : py_call(api, number, 0, input.data(), &pySize, &stream);
    }
    if (stream == untouchedStream) {
        EXPECT_EQ(otxSize, untouchedSize) << "one output of an unknown number was written";
        EXPECT_EQ(pySize, static_cast<uint32_t>(untouchedSize)) << "one output was written";
        return result;
    }
    result.recognised = true;
    result.bytes.resize(static_cast<std::size_t>(via == Via::Otx ? otxSize : pySize));
    if (via == Via::Otx) {
        kel_call_result(stream, result.bytes.data());
    } else {
        py_result(result.bytes.data(), static_cast<int32_t>(pySize), stream);
    }
    return result;
}

// A stream that carries an error record: kel_call's after status 0, py_call's with -1
// returned; the record begins with its presence byte and the code.
inline void expectError(Via via, const Streamed& r, int32_t code) {
    const std::size_t at = via == Via::Otx ? 1 : 0;
    int32_t found = 0;
    if (r.bytes.size() >= at + 5 && r.bytes[0] == (at == 1 ? 0 : 1) && r.bytes[at] == 1) {
        std::memcpy(&found, r.bytes.data() + at + 1, 4);
    }
    EXPECT_EQ(found, code) << hex(r.bytes);
    EXPECT_EQ(r.returned, via == Via::Py ? -1 : 0);
}

// A case's values as one dispatcher sees them.
struct Side {
    Bytes input; // without padding: the stream must be read exactly
    std::string arguments;
    const char* result;
};

inline Side side(const Case& c, Via via) {
    return via == Via::Otx ? Side{bytes(c.otxInput), expected(c.otxArguments), c.otxResult}
                           : Side{bytes(c.pyInput), expected(c.pyArguments), c.pyResult};
}

inline const char* name(Via via, bool checked) {
    return via == Via::Otx ? (checked ? "kel_call_checked" : "kel_call")
                           : (checked ? "py_call_checked" : "py_call");
}

inline void byNumber(Via via, TarnApi* api, const Number& n) {
    for (const Case& c : n.cases) {
        for (const bool checked : {false, true}) {
            SCOPED_TRACE(std::string(c.variant) + ", " + name(via, checked));
            script(n.operation, c.script);
            const Side s = side(c, via);
            // The checked py form goes to the local engine through a NULL engine object.
            const Streamed r =
                dispatch(via, checked ? nullptr : api, n.number, s.input, checked, s.input.size());
            ASSERT_TRUE(r.recognised);
            EXPECT_EQ(r.returned, via == Via::Py ? c.pyReturn : 0);
            EXPECT_EQ(hex(r.bytes), s.result);
            EXPECT_EQ(lastArguments(n.operation), s.arguments);
        }
    }
}

inline void kelCall(TarnApi* api, const Number& n) { byNumber(Via::Otx, api, n); }
inline void pyCall(TarnApi* api, const Number& n) { byNumber(Via::Py, api, n); }

inline void numberFailure(TarnApi* api, const Number& n) {
    for (const Case& c : n.cases) {
        for (const Failure& f : scriptedFailures()) {
            for (const Via via : {Via::Otx, Via::Py}) {
                SCOPED_TRACE(std::string(c.variant) + ", failure " + f.name + ", " +
                             name(via, false));
                fail(n.operation, f);
                const Side s = side(c, via);
                const Streamed r = dispatch(via, api, n.number, s.input, false, s.input.size());
                EXPECT_EQ(hex(r.bytes), via == Via::Otx ? f.otxResult : f.pyResult);
                EXPECT_EQ(r.returned, via == Via::Py ? -1 : 0);
                EXPECT_EQ(lastArguments(n.operation), s.arguments);
            }
        }
    }
}

// The checked forms read nothing past the given size: one byte short is malformed, and
// the engine is not called.
inline void shortInput(TarnApi* api, const Number& n) {
    for (const Case& c : n.cases) {
        const uint64_t calls = kelsim_callCount(n.operation);
        for (const Via via : {Via::Otx, Via::Py}) {
            SCOPED_TRACE(std::string(c.variant) + ", " + name(via, true));
            const Side s = side(c, via);
            if (!s.input.empty()) {
                expectError(via, dispatch(via, api, n.number, s.input, true, s.input.size() - 1),
                            KEL_ERROR_MALFORMED_INPUT);
            }
        }
        EXPECT_EQ(kelsim_callCount(n.operation), calls) << "the engine was called";
    }
}

// A number whose records are not built yet is recognised but answers -1002.
inline void notAvailable(TarnApi* api, int32_t number, const char* operation) {
    for (const Via via : {Via::Otx, Via::Py}) {
        const Streamed r = dispatch(via, api, number, {}, true, 0);
        ASSERT_TRUE(r.recognised) << name(via, true);
        expectError(via, r, KEL_ERROR_NOT_AVAILABLE);
    }
    EXPECT_EQ(kelsim_callCount(operation), 0U);
}

// Every number the description does not name, and a margin around the range.
inline void unnamedNumbers(TarnApi* api) {
    const auto named = namedNumbers();
    int checked = 0;
    for (int32_t n = -5; n <= 285; ++n) {
        if (std::find(named.begin(), named.end(), n) != named.end()) {
            continue;
        }
        for (const Via via : {Via::Otx, Via::Py}) {
            for (const bool check : {false, true}) {
                const Streamed r = dispatch(via, api, n, {}, check, 0);
                EXPECT_FALSE(r.recognised) << n << ", " << name(via, check);
                EXPECT_EQ(r.returned, 0) << n << ", " << name(via, check);
            }
        }
        ++checked;
    }
    EXPECT_GT(checked, 60);
}

// ---- the fixture -----------------------------------------------------------------------------

// A fresh engine on a fresh vehicle for every test, with nothing scripted.
class ConformanceTest : public ::testing::Test {
protected:
    void SetUp() override {
        kelsim_reset();
        configure();
        kelsim_restart();
        api = kel_getTarnApi();
        ASSERT_NE(api, nullptr);
        KelError* error = nullptr;
        kel_initialize(api, &error);
        ASSERT_EQ(error, nullptr);
    }
    void TearDown() override {
        releaseTarnApi(api);
        kelsim_reset();
    }
    // Between the reset and the restart: what the engine starts on.
    virtual void configure() {}
    TarnApi* api = nullptr;
};

// ---- admission of remote callers -------------------------------------------------------------

// The least a remote caller needs for an operation: the `role=` of the description.
enum class Needs { Anyone, Operator, Administrator };

// A vehicle whose server has user management on, one operator and two remote connections:
// one logged in as the operator, one not logged in; each test on a data root of its own.
class AdmissionTest : public ConformanceTest {
public:
    struct Callers {
        TarnApi* local;
        TarnApi* operatorApi;
        TarnApi* anonymous;
    };

protected:
    void configure() override {
        static int made = 0;
        root_ = std::filesystem::temp_directory_path() /
                ("kel_admission_" +
                 std::to_string(std::chrono::steady_clock::now().time_since_epoch().count()) + "_" +
                 std::to_string(++made));
        std::filesystem::remove_all(root_);
        ASSERT_EQ(kelsim_setVehicleJson(R"({"name": "admission", "ecus": [{"name": "ECM"}],
            "servers": {"passwordIterations": 1000}})"),
                  0);
        kelsim_setDataRoot(root_.wstring().c_str());
    }
    void SetUp() override {
        ConformanceTest::SetUp();
        ASSERT_FALSE(HasFatalFailure());
        KelError* error = nullptr;
        kel_addUser(api, L"operator", L"operator-password", 1, &error);
        ASSERT_EQ(error, nullptr);
        kel_setServerUserManagement(api, 1, &error);
        ASSERT_EQ(error, nullptr);
        operator_ = kel_getRemoteConnectionByHandle(handleOf(api), &error);
        ASSERT_NE(operator_, nullptr);
        anonymous_ = kel_getRemoteConnectionByHandle(handleOf(operator_), &error);
        ASSERT_NE(anonymous_, nullptr);
        auto* login = static_cast<LogInOutConfig*>(allocate_Memory(sizeof(LogInOutConfig)));
        login->user = duplicate_WString(L"operator");
        login->password = duplicate_WString(L"operator-password");
        kel_logIn(operator_, login, &error);
        ASSERT_EQ(error, nullptr);
    }
    void TearDown() override {
        releaseTarnApi(anonymous_);
        releaseTarnApi(operator_);
        ConformanceTest::TearDown();
        std::error_code ignored;
        std::filesystem::remove_all(root_, ignored);
    }
    Callers callers() const { return {api, operator_, anonymous_}; }

private:
    static uint64_t handleOf(TarnApi* object) {
        KelError* error = nullptr;
        uint64_t handle = 0;
        kel_getHandle(object, &error, &handle);
        EXPECT_EQ(error, nullptr);
        return handle;
    }
    std::filesystem::path root_;
    TarnApi* operator_ = nullptr;
    TarnApi* anonymous_ = nullptr;
};

// A remote caller that lacks what the operation needs is refused (1300 not logged in,
// 1308 not an administrator); the one result scripted before then reaches the first
// caller admitted, so no refused call got as far as the engine's scripted results, let
// alone the vehicle. An operation whose result cannot be scripted runs on the vehicle:
// it may fail, but not with a refusal of admission.
template <class Op>
void admission(const AdmissionTest::Callers& who, std::span<const Case> cases, Needs needs) {
    constexpr int32_t notLoggedIn = 1300;
    constexpr int32_t needsAdministrator = 1308;
    const Case& c = cases.front();
    const bool scripted = c.script != nullptr;
    if (scripted) {
        script(Op::operation, c.script);
    }
    // A call let through took the scripted result: the next would reach the vehicle.
    if (needs != Needs::Anyone) {
        ASSERT_EQ(invoke<Op>(who.anonymous, c.inputs).code, notLoggedIn)
            << "a connection not logged in";
    }
    if (needs == Needs::Administrator) {
        ASSERT_EQ(invoke<Op>(who.operatorApi, c.inputs).code, needsAdministrator) << "an operator";
    }
    TarnApi* admitted = needs == Needs::Anyone     ? who.anonymous
                        : needs == Needs::Operator ? who.operatorApi
                                                   : who.local;
    const Outcome o = invoke<Op>(admitted, c.inputs);
    if (scripted) {
        EXPECT_FALSE(o.refused) << "the scripted result did not reach the caller admitted: "
                                << o.error;
        if (c.cView != nullptr) {
            EXPECT_EQ(o.view, c.cView);
        }
    } else {
        EXPECT_NE(o.code, notLoggedIn);
        EXPECT_NE(o.code, needsAdministrator);
    }
}

template <class Op>
void asyncAdmission(const AdmissionTest::Callers& who, std::span<const Case> cases, Needs needs) {
    admission<Op>(who, cases, needs);
}

} // namespace kel_conformance
