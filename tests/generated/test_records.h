// Generated from the interface description by tools/generate.py. Do not edit.
// The test-only records of tests/interface/records.def: C records, engine classes
// and field tables, made exactly as for the interface's own records.
#pragma once

#include <EngineFields.h>
#include <array>
#include <cstdint>
#include <memory>
#include <record_fields.h>
#include <string>
#include <vector>

typedef struct ProbeLeaf ProbeLeaf;
typedef struct ProbeNode ProbeNode;
typedef struct Probe Probe;

struct ProbeLeaf {
    wchar_t* itemText1;
    wchar_t* itemText2;
    wchar_t* itemText3;
    wchar_t* itemText4;
    wchar_t* label;
    uint64_t stamp;
    uint8_t marker;
};

struct ProbeNode {
    wchar_t* itemText1;
    wchar_t* itemText2;
    wchar_t* itemText3;
    wchar_t* itemText4;
    wchar_t* name;
    KelError* error;
    uint8_t ok;
    ProbeLeaf** leaves;
    uint32_t leafCount;
    ProbeNode** nodes;
    uint32_t nodeCount;
    wchar_t* request;
    uint32_t size;
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
    bool switches[3];
    Probe** children;
    uint32_t childCount;
    ProbeLeaf** labels;
    uint32_t labelCount;
    ProbeNode* node;
    ProbeNode* entry;
};

namespace kel_test {
using Varno::Kel_cpp::KelError;
using Varno::Kel_cpp::NamedItem;

class ProbeLeaf;
class ProbeLeafLabel;
class ProbeEntry;
class ProbeNode;
class ProbeNodeEntry;
class Probe;

class ProbeLeaf : public virtual NamedItem {
public:
    ~ProbeLeaf() override = default;
    std::wstring label;
    uint64_t stamp = 0;
    bool marker = false;
};

class ProbeLeafLabel : public virtual NamedItem {
public:
    ~ProbeLeafLabel() override = default;
    std::wstring label;
    bool marker = false;
};

class ProbeEntry : public virtual NamedItem {
public:
    ~ProbeEntry() override = default;
    std::wstring name;
    std::shared_ptr<KelError> error;
    bool ok = false;
};

class ProbeNode : public virtual ProbeEntry {
public:
    ~ProbeNode() override = default;
    std::vector<std::shared_ptr<ProbeLeaf>> leaves;
    std::vector<std::shared_ptr<ProbeNode>> nodes;
    std::wstring request;
    uint32_t size = 0;
};

class ProbeNodeEntry : public virtual ProbeEntry {
public:
    ~ProbeNodeEntry() override = default;
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
    std::array<bool, 3> switches{};
    std::vector<std::shared_ptr<Probe>> children;
    std::vector<std::shared_ptr<ProbeLeafLabel>> labels;
    std::shared_ptr<ProbeNode> node;
    std::shared_ptr<ProbeNodeEntry> entry;
};

} // namespace kel_test

namespace kel {

template <class V>
struct Record<::ProbeLeaf, V> {
    using C = typename Deferred<V, ::ProbeLeaf>::type;
    using Engine = typename Deferred<V, kel_test::ProbeLeaf>::type;
    static constexpr const char* name = "ProbeLeaf";
    static constexpr auto fields = std::make_tuple(
        field(&C::itemText1, &Engine::itemText1), field(&C::itemText2, &Engine::itemText2),
        field(&C::itemText3, &Engine::itemText3), field(&C::itemText4, &Engine::itemText4),
        field(&C::label, &Engine::label), field(&C::stamp, &Engine::stamp),
        field(&C::marker, &Engine::marker));
};

template <class V>
struct Record<::ProbeNode, V> {
    using C = typename Deferred<V, ::ProbeNode>::type;
    using Engine = typename Deferred<V, kel_test::ProbeNode>::type;
    static constexpr const char* name = "ProbeNode";
    static constexpr auto fields = std::make_tuple(
        field(&C::itemText1, &Engine::itemText1), field(&C::itemText2, &Engine::itemText2),
        field(&C::itemText3, &Engine::itemText3), field(&C::itemText4, &Engine::itemText4),
        field(&C::name, &Engine::name), field(&C::error, &Engine::error),
        field(&C::ok, &Engine::ok), field(&C::leaves, &C::leafCount, &Engine::leaves),
        outOnly(field(&C::nodes, &C::nodeCount, &Engine::nodes)),
        inOnly(field(&C::request, &Engine::request)), field(&C::size, &Engine::size));
};

template <class V>
struct Record<::Probe, V> {
    using C = typename Deferred<V, ::Probe>::type;
    using Engine = typename Deferred<V, kel_test::Probe>::type;
    static constexpr const char* name = "Probe";
    static constexpr auto fields = std::make_tuple(
        field(&C::text, &Engine::text), field(&C::names, &C::nameCount, &Engine::names),
        field(&C::tags, &C::tagCount, &Engine::tags, always),
        field(&C::leaves, &C::leafCount, &Engine::leaves), field(&C::leaf, &Engine::leaf),
        field(&C::error, &Engine::error), field(&C::data, &C::dataLength, &Engine::data),
        field(&C::flag, &Engine::flag), field(&C::signedValue, &Engine::signedValue),
        field(&C::unsignedValue, &Engine::unsignedValue),
        field(&C::wideSigned, &Engine::wideSigned), field(&C::wideValue, &Engine::wideValue),
        field(&C::narrowValue, &Engine::narrowValue), field(&C::values, &Engine::values),
        field(&C::switches, &Engine::switches),
        field(&C::children, &C::childCount, &Engine::children),
        field(&C::labels, &C::labelCount, &Engine::labels), field(&C::node, &Engine::node),
        field(&C::entry, &Engine::entry));
};

template <class V>
struct Alias<::ProbeLeaf, kel_test::ProbeLeafLabel, V> {
    using C = typename Deferred<V, ::ProbeLeaf>::type;
    using Engine = typename Deferred<V, kel_test::ProbeLeafLabel>::type;
    static constexpr auto fields = std::make_tuple(
        field(&C::itemText1, &Engine::itemText1), field(&C::itemText2, &Engine::itemText2),
        field(&C::itemText3, &Engine::itemText3), field(&C::itemText4, &Engine::itemText4),
        field(&C::label, &Engine::label), field(&C::marker, &Engine::marker));
};

template <class V>
struct Alias<::ProbeNode, kel_test::ProbeNodeEntry, V> {
    using C = typename Deferred<V, ::ProbeNode>::type;
    using Engine = typename Deferred<V, kel_test::ProbeNodeEntry>::type;
    static constexpr auto fields = std::make_tuple(
        field(&C::itemText1, &Engine::itemText1), field(&C::itemText2, &Engine::itemText2),
        field(&C::itemText3, &Engine::itemText3), field(&C::itemText4, &Engine::itemText4),
        field(&C::name, &Engine::name), field(&C::error, &Engine::error),
        field(&C::ok, &Engine::ok));
};

} // namespace kel

namespace Varno::Kel_cpp::Fields {

template <class V>
struct Of<kel_test::ProbeLeaf, V> {
    using E = typename Deferred<V, kel_test::ProbeLeaf>::type;
    static constexpr auto list = std::make_tuple(
        member("itemText1", &E::itemText1), member("itemText2", &E::itemText2),
        member("itemText3", &E::itemText3), member("itemText4", &E::itemText4),
        member("label", &E::label), member("stamp", &E::stamp), member("marker", &E::marker));
};

template <class V>
struct Of<kel_test::ProbeLeafLabel, V> {
    using E = typename Deferred<V, kel_test::ProbeLeafLabel>::type;
    static constexpr auto list =
        std::make_tuple(member("itemText1", &E::itemText1), member("itemText2", &E::itemText2),
                        member("itemText3", &E::itemText3), member("itemText4", &E::itemText4),
                        member("label", &E::label), member("marker", &E::marker));
};

template <class V>
struct Of<kel_test::ProbeEntry, V> {
    using E = typename Deferred<V, kel_test::ProbeEntry>::type;
    static constexpr auto list =
        std::make_tuple(member("itemText1", &E::itemText1), member("itemText2", &E::itemText2),
                        member("itemText3", &E::itemText3), member("itemText4", &E::itemText4),
                        member("name", &E::name), member("error", &E::error), member("ok", &E::ok));
};

template <class V>
struct Of<kel_test::ProbeNode, V> {
    using E = typename Deferred<V, kel_test::ProbeNode>::type;
    static constexpr auto list =
        std::make_tuple(member("itemText1", &E::itemText1), member("itemText2", &E::itemText2),
                        member("itemText3", &E::itemText3), member("itemText4", &E::itemText4),
                        member("name", &E::name), member("error", &E::error), member("ok", &E::ok),
                        member("leaves", &E::leaves), member("nodes", &E::nodes),
                        member("request", &E::request), member("size", &E::size));
};

template <class V>
struct Of<kel_test::ProbeNodeEntry, V> {
    using E = typename Deferred<V, kel_test::ProbeNodeEntry>::type;
    static constexpr auto list =
        std::make_tuple(member("itemText1", &E::itemText1), member("itemText2", &E::itemText2),
                        member("itemText3", &E::itemText3), member("itemText4", &E::itemText4),
                        member("name", &E::name), member("error", &E::error), member("ok", &E::ok));
};

template <class V>
struct Of<kel_test::Probe, V> {
    using E = typename Deferred<V, kel_test::Probe>::type;
    static constexpr auto list = std::make_tuple(
        member("text", &E::text), member("names", &E::names), member("tags", &E::tags),
        member("leaves", &E::leaves), member("leaf", &E::leaf), member("error", &E::error),
        member("data", &E::data), member("flag", &E::flag), member("signedValue", &E::signedValue),
        member("unsignedValue", &E::unsignedValue), member("wideSigned", &E::wideSigned),
        member("wideValue", &E::wideValue), member("narrowValue", &E::narrowValue),
        member("values", &E::values), member("switches", &E::switches),
        member("children", &E::children), member("labels", &E::labels), member("node", &E::node),
        member("entry", &E::entry));
};

} // namespace Varno::Kel_cpp::Fields
