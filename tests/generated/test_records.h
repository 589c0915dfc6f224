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

template <>
struct Record<::ProbeLeaf> {
    using Engine = kel_test::ProbeLeaf;
    static constexpr const char* name = "ProbeLeaf";
    static constexpr auto fields = std::make_tuple(
        field(&::ProbeLeaf::itemText1, &Engine::itemText1),
        field(&::ProbeLeaf::itemText2, &Engine::itemText2),
        field(&::ProbeLeaf::itemText3, &Engine::itemText3),
        field(&::ProbeLeaf::itemText4, &Engine::itemText4),
        field(&::ProbeLeaf::label, &Engine::label), field(&::ProbeLeaf::stamp, &Engine::stamp),
        field(&::ProbeLeaf::marker, &Engine::marker));
};

template <>
struct Record<::ProbeNode> {
    using Engine = kel_test::ProbeNode;
    static constexpr const char* name = "ProbeNode";
    static constexpr auto fields = std::make_tuple(
        field(&::ProbeNode::itemText1, &Engine::itemText1),
        field(&::ProbeNode::itemText2, &Engine::itemText2),
        field(&::ProbeNode::itemText3, &Engine::itemText3),
        field(&::ProbeNode::itemText4, &Engine::itemText4),
        field(&::ProbeNode::name, &Engine::name), field(&::ProbeNode::error, &Engine::error),
        field(&::ProbeNode::ok, &Engine::ok),
        field(&::ProbeNode::leaves, &::ProbeNode::leafCount, &Engine::leaves),
        outOnly(field(&::ProbeNode::nodes, &::ProbeNode::nodeCount, &Engine::nodes)),
        inOnly(field(&::ProbeNode::request, &Engine::request)),
        field(&::ProbeNode::size, &Engine::size));
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
        field(&::Probe::values, &Engine::values), field(&::Probe::switches, &Engine::switches),
        field(&::Probe::children, &::Probe::childCount, &Engine::children),
        field(&::Probe::labels, &::Probe::labelCount, &Engine::labels),
        field(&::Probe::node, &Engine::node), field(&::Probe::entry, &Engine::entry));
};

template <>
struct Alias<::ProbeLeaf, kel_test::ProbeLeafLabel> {
    using Engine = kel_test::ProbeLeafLabel;
    static constexpr auto fields = std::make_tuple(
        field(&::ProbeLeaf::itemText1, &Engine::itemText1),
        field(&::ProbeLeaf::itemText2, &Engine::itemText2),
        field(&::ProbeLeaf::itemText3, &Engine::itemText3),
        field(&::ProbeLeaf::itemText4, &Engine::itemText4),
        field(&::ProbeLeaf::label, &Engine::label), field(&::ProbeLeaf::marker, &Engine::marker));
};

template <>
struct Alias<::ProbeNode, kel_test::ProbeNodeEntry> {
    using Engine = kel_test::ProbeNodeEntry;
    static constexpr auto fields = std::make_tuple(
        field(&::ProbeNode::itemText1, &Engine::itemText1),
        field(&::ProbeNode::itemText2, &Engine::itemText2),
        field(&::ProbeNode::itemText3, &Engine::itemText3),
        field(&::ProbeNode::itemText4, &Engine::itemText4),
        field(&::ProbeNode::name, &Engine::name), field(&::ProbeNode::error, &Engine::error),
        field(&::ProbeNode::ok, &Engine::ok));
};

} // namespace kel

namespace Varno::Kel_cpp::Fields {

template <>
struct Of<kel_test::ProbeLeaf> {
    static constexpr auto list = std::make_tuple(
        member("itemText1", &kel_test::ProbeLeaf::itemText1),
        member("itemText2", &kel_test::ProbeLeaf::itemText2),
        member("itemText3", &kel_test::ProbeLeaf::itemText3),
        member("itemText4", &kel_test::ProbeLeaf::itemText4),
        member("label", &kel_test::ProbeLeaf::label), member("stamp", &kel_test::ProbeLeaf::stamp),
        member("marker", &kel_test::ProbeLeaf::marker));
};

template <>
struct Of<kel_test::ProbeLeafLabel> {
    static constexpr auto list =
        std::make_tuple(member("itemText1", &kel_test::ProbeLeafLabel::itemText1),
                        member("itemText2", &kel_test::ProbeLeafLabel::itemText2),
                        member("itemText3", &kel_test::ProbeLeafLabel::itemText3),
                        member("itemText4", &kel_test::ProbeLeafLabel::itemText4),
                        member("label", &kel_test::ProbeLeafLabel::label),
                        member("marker", &kel_test::ProbeLeafLabel::marker));
};

template <>
struct Of<kel_test::ProbeEntry> {
    static constexpr auto list = std::make_tuple(
        member("itemText1", &kel_test::ProbeEntry::itemText1),
        member("itemText2", &kel_test::ProbeEntry::itemText2),
        member("itemText3", &kel_test::ProbeEntry::itemText3),
        member("itemText4", &kel_test::ProbeEntry::itemText4),
        member("name", &kel_test::ProbeEntry::name), member("error", &kel_test::ProbeEntry::error),
        member("ok", &kel_test::ProbeEntry::ok));
};

template <>
struct Of<kel_test::ProbeNode> {
    static constexpr auto list = std::make_tuple(
        member("itemText1", &kel_test::ProbeNode::itemText1),
        member("itemText2", &kel_test::ProbeNode::itemText2),
        member("itemText3", &kel_test::ProbeNode::itemText3),
        member("itemText4", &kel_test::ProbeNode::itemText4),
        member("name", &kel_test::ProbeNode::name), member("error", &kel_test::ProbeNode::error),
        member("ok", &kel_test::ProbeNode::ok), member("leaves", &kel_test::ProbeNode::leaves),
        member("nodes", &kel_test::ProbeNode::nodes),
        member("request", &kel_test::ProbeNode::request),
        member("size", &kel_test::ProbeNode::size));
};

template <>
struct Of<kel_test::ProbeNodeEntry> {
    static constexpr auto list =
        std::make_tuple(member("itemText1", &kel_test::ProbeNodeEntry::itemText1),
                        member("itemText2", &kel_test::ProbeNodeEntry::itemText2),
                        member("itemText3", &kel_test::ProbeNodeEntry::itemText3),
                        member("itemText4", &kel_test::ProbeNodeEntry::itemText4),
                        member("name", &kel_test::ProbeNodeEntry::name),
                        member("error", &kel_test::ProbeNodeEntry::error),
                        member("ok", &kel_test::ProbeNodeEntry::ok));
};

template <>
struct Of<kel_test::Probe> {
    static constexpr auto list = std::make_tuple(
        member("text", &kel_test::Probe::text), member("names", &kel_test::Probe::names),
        member("tags", &kel_test::Probe::tags), member("leaves", &kel_test::Probe::leaves),
        member("leaf", &kel_test::Probe::leaf), member("error", &kel_test::Probe::error),
        member("data", &kel_test::Probe::data), member("flag", &kel_test::Probe::flag),
        member("signedValue", &kel_test::Probe::signedValue),
        member("unsignedValue", &kel_test::Probe::unsignedValue),
        member("wideSigned", &kel_test::Probe::wideSigned),
        member("wideValue", &kel_test::Probe::wideValue),
        member("narrowValue", &kel_test::Probe::narrowValue),
        member("values", &kel_test::Probe::values), member("switches", &kel_test::Probe::switches),
        member("children", &kel_test::Probe::children), member("labels", &kel_test::Probe::labels),
        member("node", &kel_test::Probe::node), member("entry", &kel_test::Probe::entry));
};

} // namespace Varno::Kel_cpp::Fields
