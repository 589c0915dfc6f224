// Scripted results of every engine record class: a record filled with distinctive values
// is described, read back and described again to the same text, and JSON that is not
// exactly the record's is refused. The generated files tests/generated/record_classes/
// instantiate these tests over the engine's record classes, a few dozen per file (one
// object file over all of them outgrows what the Windows object format can hold).
#pragma once

#include <Kel_cpp/Records.h>

#include <gtest/gtest.h>

#include <Parse.h>
#include <array>
#include <limits>
#include <memory>
#include <string>
#include <type_traits>
#include <vector>

namespace kel_test::record_classes {

using Varno::Kel_cpp::Reference::describe;
using Varno::Kel_cpp::Reference::Json;
using Varno::Kel_cpp::Reference::parseText;
using Varno::Kel_cpp::Reference::ScriptError;
namespace engine = Varno::Kel_cpp;

// Fills a record with distinctive values of every kind: text with quotes, escapes,
// control, non-ASCII and astral characters (and empty text), both ends of each integer
// range, lists of a full and a null record, nested records down to `depth`.
class Filler {
public:
    explicit Filler(int depth) : depth_(depth) {}

    void fill(std::wstring& text) {
        static const wchar_t* const samples[] = {L"Zürich \"quoted\" back\\slash",
                                                 L"astral \U0001D11E and \u00e9", L"",
                                                 L"line\nbreak\ttab\x01 end"};
        text = samples[next_++ % 4];
    }
    void fill(bool& value) { value = next_++ % 2 == 0; }
    template <class T>
    requires std::is_integral_v<T>
    void fill(T& value) {
        using Limits = std::numeric_limits<T>;
        value = next_++ % 2 == 0 ? Limits::max() : std::is_signed_v<T> ? Limits::min() : T(1);
    }
    template <class T>
    void fill(std::vector<T>& values) {
        values.resize(2);
        for (auto& v : values) {
            fill(v);
        }
    }
    template <class T, std::size_t N>
    void fill(std::array<T, N>& values) {
        for (auto& v : values) {
            fill(v);
        }
    }
    template <class E>
    void fill(std::shared_ptr<E>& record) {
        if (depth_ == 0 || next_++ % 5 == 4) { // now and then a null one
            record.reset();
            return;
        }
        record = std::make_shared<E>();
        --depth_;
        std::apply([&](const auto&... field) { (fill((*record).*(field.pointer)), ...); },
                   engine::Fields::Of<E>::list);
        ++depth_;
    }

private:
    int depth_;
    unsigned next_ = 0;
};

template <class E>
std::string describedSample() {
    std::shared_ptr<E> record;
    while (!record) { // the first one is never null, but stay safe
        Filler(3).fill(record);
    }
    std::string text;
    describe(text, record);
    return text;
}

template <class E>
bool refused(const Json& json) {
    try {
        parseText<std::shared_ptr<E>>(json.dump(), "result");
    } catch (const ScriptError&) {
        return true;
    }
    return false;
}

template <class E>
class EveryRecordClass : public ::testing::Test {};
TYPED_TEST_SUITE_P(EveryRecordClass);

TYPED_TEST_P(EveryRecordClass, ReadsBackWhatIsDescribed) {
    const std::string text = describedSample<TypeParam>();
    std::string again;
    describe(again, parseText<std::shared_ptr<TypeParam>>(text, "result"));
    EXPECT_EQ(again, text);
    std::string list;
    describe(list, parseText<std::vector<std::shared_ptr<TypeParam>>>("[" + text + ",null]", "r"));
    EXPECT_EQ(list, "[" + text + ",null]");
}

TYPED_TEST_P(EveryRecordClass, RefusesAnythingButItsExactMembers) {
    const Json exact = Json::parse(describedSample<TypeParam>());
    Json extra = exact;
    extra["notAField"] = 0;
    EXPECT_TRUE(refused<TypeParam>(extra));
    EXPECT_TRUE(refused<TypeParam>(Json::array()));
    if (exact.empty()) {
        return;
    }
    Json missing = exact;
    missing.erase(std::prev(missing.end()).key());
    EXPECT_TRUE(refused<TypeParam>(missing));
    Json wrongValue = exact;
    wrongValue.front() = Json{{"notAField", 1}}; // a value of no field's type
    EXPECT_TRUE(refused<TypeParam>(wrongValue));
    if (exact.size() >= 2) {
        Json moved = exact; // the first member last: the order is the record's too
        const std::string first = exact.begin().key();
        moved.erase(first);
        moved[first] = exact[first];
        EXPECT_TRUE(refused<TypeParam>(moved)) << moved.dump();
    }
}

REGISTER_TYPED_TEST_SUITE_P(EveryRecordClass, ReadsBackWhatIsDescribed,
                            RefusesAnythingButItsExactMembers);

} // namespace kel_test::record_classes
