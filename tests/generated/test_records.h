// Generated from the interface description by tools/generate.py. Do not edit.
// The test-only records of tests/interface/records.def: C records, engine classes
// and field tables, made exactly as for the interface's own records.
#pragma once

#include <array>
#include <cstdint>
#include <memory>
#include <record_fields.h>
#include <string>
#include <vector>

typedef struct ProbeLeaf ProbeLeaf;
typedef struct Probe Probe;

struct ProbeLeaf {
    wchar_t* itemText1;
    wchar_t* itemText2;
    wchar_t* itemText3;
    wchar_t* itemText4;
    wchar_t* label;
    uint64_t stamp;
};

struct Probe {
    wchar_t* text;
    wchar_t** names;
    uint32_t nameCount;
    wchar_t** tags;
    uint32_t tagCount;
    ProbeLeaf** leaves;
    uint32_t leafCount;
    ProbeLeaf* leaf;
    KelError* error;
    uint8_t* data;
    uint32_t dataLength;
    bool flag;
    int32_t signedValue;
    uint32_t unsignedValue;
    int64_t wideSigned;
    uint64_t wideValue;
    uint16_t narrowValue;
    uint32_t values[5];
    Probe** children;
    uint32_t childCount;
};

namespace kel_test {
using Varno::Kel_cpp::KelError;
using Varno::Kel_cpp::NamedItem;

class ProbeLeaf;
class Probe;

class ProbeLeaf : public virtual NamedItem {
public:
    ~ProbeLeaf() override = default;
    std::wstring label;
    uint64_t stamp = 0;
};

class Probe {
public:
    virtual ~Probe() = default;
    std::wstring text;
    std::vector<std::wstring> names;
    std::vector<std::wstring> tags;
    std::vector<std::shared_ptr<ProbeLeaf>> leaves;
    std::shared_ptr<ProbeLeaf> leaf;
    std::shared_ptr<KelError> error;
    std::vector<uint8_t> data;
    bool flag = false;
    int32_t signedValue = 0;
    uint32_t unsignedValue = 0;
    int64_t wideSigned = 0;
    uint64_t wideValue = 0;
    uint16_t narrowValue = 0;
    std::array<uint32_t, 5> values{};
    std::vector<std::shared_ptr<Probe>> children;
};

} // namespace kel_test

namespace kel {

template <>
struct Record<::ProbeLeaf> {
    using Engine = kel_test::ProbeLeaf;
    static constexpr const char* name = "ProbeLeaf";
    static constexpr auto fields = std::make_tuple(
        field(&::ProbeLeaf::itemText1, &Engine::itemText1),
        field(&::ProbeLeaf::itemText2, &Engine::itemText2),
        field(&::ProbeLeaf::itemText3, &Engine::itemText3),
        field(&::ProbeLeaf::itemText4, &Engine::itemText4),
        field(&::ProbeLeaf::label, &Engine::label), field(&::ProbeLeaf::stamp, &Engine::stamp));
};

template <>
struct Record<::Probe> {
    using Engine = kel_test::Probe;
    static constexpr const char* name = "Probe";
    static constexpr auto fields = std::make_tuple(
        field(&::Probe::text, &Engine::text),
        field(&::Probe::names, &::Probe::nameCount, &Engine::names),
        field(&::Probe::tags, &::Probe::tagCount, &Engine::tags, always),
        field(&::Probe::leaves, &::Probe::leafCount, &Engine::leaves),
        field(&::Probe::leaf, &Engine::leaf), field(&::Probe::error, &Engine::error),
        field(&::Probe::data, &::Probe::dataLength, &Engine::data),
        field(&::Probe::flag, &Engine::flag), field(&::Probe::signedValue, &Engine::signedValue),
        field(&::Probe::unsignedValue, &Engine::unsignedValue),
        field(&::Probe::wideSigned, &Engine::wideSigned),
        field(&::Probe::wideValue, &Engine::wideValue),
        field(&::Probe::narrowValue, &Engine::narrowValue),
        field(&::Probe::values, &Engine::values),
        field(&::Probe::children, &::Probe::childCount, &Engine::children));
};

} // namespace kel
