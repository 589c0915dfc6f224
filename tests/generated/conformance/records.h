// Generated from the interface description by tools/generate.py. Do not edit.
// The C records as the conformance suite sees them: describe() renders a record as
// JSON (pointers that are NULL as null, each count after its list), build() fills
// one from JSON with the library's allocation exports.
#pragma once

#include "conformance_support.h"

namespace kel_conformance {

inline void describe(Out& o, const MvciServerError& r);
inline void build(const Json& j, MvciServerError& r);
inline void describe(Out& o, const NegativeResponse& r);
inline void build(const Json& j, NegativeResponse& r);
inline void describe(Out& o, const KelError& r);
inline void build(const Json& j, KelError& r);
inline void describe(Out& o, const NamedItem& r);
inline void build(const Json& j, NamedItem& r);
inline void describe(Out& o, const ParameterResult& r);
inline void build(const Json& j, ParameterResult& r);
inline void describe(Out& o, const ClearDtcResult& r);
inline void build(const Json& j, ClearDtcResult& r);
inline void describe(Out& o, const DtcReadConfig& r);
inline void build(const Json& j, DtcReadConfig& r);
inline void describe(Out& o, const ReadDtcResult& r);
inline void build(const Json& j, ReadDtcResult& r);
inline void describe(Out& o, const DtcResult& r);
inline void build(const Json& j, DtcResult& r);
inline void describe(Out& o, const SpecialDataGroup& r);
inline void build(const Json& j, SpecialDataGroup& r);
inline void describe(Out& o, const VariantIdentResult& r);
inline void build(const Json& j, VariantIdentResult& r);
inline void describe(Out& o, const ReadDataResult& r);
inline void build(const Json& j, ReadDataResult& r);
inline void describe(Out& o, const Target& r);
inline void build(const Json& j, Target& r);
inline void describe(Out& o, const TargetStatus& r);
inline void build(const Json& j, TargetStatus& r);
inline void describe(Out& o, const TargetFilter& r);
inline void build(const Json& j, TargetFilter& r);
inline void describe(Out& o, const KelEvent& r);
inline void build(const Json& j, KelEvent& r);
inline void describe(Out& o, const EventReport& r);
inline void build(const Json& j, EventReport& r);
inline void describe(Out& o, const FileFilter& r);
inline void build(const Json& j, FileFilter& r);
inline void describe(Out& o, const UserInfo& r);
inline void build(const Json& j, UserInfo& r);
inline void describe(Out& o, const LogInOutConfig& r);
inline void build(const Json& j, LogInOutConfig& r);
inline void describe(Out& o, const TarnApiServerConfig& r);
inline void build(const Json& j, TarnApiServerConfig& r);
inline void describe(Out& o, const ServerSettings& r);
inline void build(const Json& j, ServerSettings& r);

inline void describe(Out& o, const MvciServerError& r) {
    o.member("code", r.code);
    o.member("codeText", r.codeText);
    o.member("vendorCode", r.vendorCode);
    o.member("vendorCodeText", r.vendorCodeText);
    o.member("extraText", r.extraText);
    o.member("extraCode", r.extraCode);
    o.end();
}

inline void build(const Json& j, MvciServerError& r) {
    set(j.at("code"), r.code);
    set(j.at("codeText"), r.codeText);
    set(j.at("vendorCode"), r.vendorCode);
    set(j.at("vendorCodeText"), r.vendorCodeText);
    set(j.at("extraText"), r.extraText);
    set(j.at("extraCode"), r.extraCode);
}

inline void describe(Out& o, const NegativeResponse& r) {
    o.member("code", r.code);
    o.member("text", r.text);
    o.member("value1", r.value1);
    o.member("value2", r.value2);
    o.member("bytes", r.bytes, r.byteCount);
    o.member("byteCount", r.byteCount);
    o.end();
}

inline void build(const Json& j, NegativeResponse& r) {
    set(j.at("code"), r.code);
    set(j.at("text"), r.text);
    set(j.at("value1"), r.value1);
    set(j.at("value2"), r.value2);
    set(j.at("bytes"), r.bytes, r.byteCount);
}

inline void describe(Out& o, const KelError& r) {
    o.member("code", r.code);
    o.member("message", r.message);
    o.member("details", r.details);
    o.member("subCode", r.subCode);
    o.member("mvciError", r.mvciError);
    o.member("negativeResponse", r.negativeResponse);
    o.end();
}

inline void build(const Json& j, KelError& r) {
    set(j.at("code"), r.code);
    set(j.at("message"), r.message);
    set(j.at("details"), r.details);
    set(j.at("subCode"), r.subCode);
    set(j.at("mvciError"), r.mvciError);
    set(j.at("negativeResponse"), r.negativeResponse);
}

inline void describe(Out& o, const NamedItem& r) {
    o.member("itemText1", r.itemText1);
    o.member("itemText2", r.itemText2);
    o.member("itemText3", r.itemText3);
    o.member("itemText4", r.itemText4);
    o.end();
}

inline void build(const Json& j, NamedItem& r) {
    set(j.at("itemText1"), r.itemText1);
    set(j.at("itemText2"), r.itemText2);
    set(j.at("itemText3"), r.itemText3);
    set(j.at("itemText4"), r.itemText4);
}

inline void describe(Out& o, const ParameterResult& r) {
    o.member("itemText1", r.itemText1);
    o.member("itemText2", r.itemText2);
    o.member("itemText3", r.itemText3);
    o.member("itemText4", r.itemText4);
    o.member("text1", r.text1);
    o.member("text2", r.text2);
    o.member("value1", r.value1);
    o.member("children", r.children, r.childCount);
    o.member("childCount", r.childCount);
    o.member("text3", r.text3);
    o.member("error", r.error);
    o.member("text4", r.text4);
    o.member("value2", r.value2);
    o.member("data", r.data, r.dataLength);
    o.member("dataLength", r.dataLength);
    o.member("value3", r.value3);
    o.member("flag", r.flag);
    o.member("value4", r.value4);
    o.end();
}

inline void build(const Json& j, ParameterResult& r) {
    set(j.at("itemText1"), r.itemText1);
    set(j.at("itemText2"), r.itemText2);
    set(j.at("itemText3"), r.itemText3);
    set(j.at("itemText4"), r.itemText4);
    set(j.at("text1"), r.text1);
    set(j.at("text2"), r.text2);
    set(j.at("value1"), r.value1);
    set(j.at("children"), r.children, r.childCount);
    set(j.at("text3"), r.text3);
    set(j.at("error"), r.error);
    set(j.at("text4"), r.text4);
    set(j.at("value2"), r.value2);
    set(j.at("data"), r.data, r.dataLength);
    set(j.at("value3"), r.value3);
    set(j.at("flag"), r.flag);
    set(j.at("value4"), r.value4);
}

inline void describe(Out& o, const ClearDtcResult& r) {
    o.member("status", r.status);
    o.member("target", r.target);
    o.member("error", r.error);
    o.end();
}

inline void build(const Json& j, ClearDtcResult& r) {
    set(j.at("status"), r.status);
    set(j.at("target"), r.target);
    set(j.at("error"), r.error);
}

inline void describe(Out& o, const DtcReadConfig& r) {
    o.member("value", r.value);
    o.member("flag1", r.flag1);
    o.member("flag2", r.flag2);
    o.member("flag3", r.flag3);
    o.end();
}

inline void build(const Json& j, DtcReadConfig& r) {
    set(j.at("value"), r.value);
    set(j.at("flag1"), r.flag1);
    set(j.at("flag2"), r.flag2);
    set(j.at("flag3"), r.flag3);
}

inline void describe(Out& o, const ReadDtcResult& r) {
    o.member("status", r.status);
    o.member("target", r.target);
    o.member("error", r.error);
    o.member("dtcs", r.dtcs, r.dtcCount);
    o.member("dtcCount", r.dtcCount);
    o.member("value", r.value);
    o.end();
}

inline void build(const Json& j, ReadDtcResult& r) {
    set(j.at("status"), r.status);
    set(j.at("target"), r.target);
    set(j.at("error"), r.error);
    set(j.at("dtcs"), r.dtcs, r.dtcCount);
    set(j.at("value"), r.value);
}

inline void describe(Out& o, const DtcResult& r) {
    o.member("code", r.code);
    o.member("text1", r.text1);
    o.member("text2", r.text2);
    o.member("value1", r.value1);
    o.member("parameters1", r.parameters1, r.parameterCount1);
    o.member("parameterCount1", r.parameterCount1);
    o.member("parameters2", r.parameters2, r.parameterCount2);
    o.member("parameterCount2", r.parameterCount2);
    o.member("text3", r.text3);
    o.member("text4", r.text4);
    o.member("specialDataGroups", r.specialDataGroups, r.specialDataGroupCount);
    o.member("specialDataGroupCount", r.specialDataGroupCount);
    o.member("value2", r.value2);
    o.end();
}

inline void build(const Json& j, DtcResult& r) {
    set(j.at("code"), r.code);
    set(j.at("text1"), r.text1);
    set(j.at("text2"), r.text2);
    set(j.at("value1"), r.value1);
    set(j.at("parameters1"), r.parameters1, r.parameterCount1);
    set(j.at("parameters2"), r.parameters2, r.parameterCount2);
    set(j.at("text3"), r.text3);
    set(j.at("text4"), r.text4);
    set(j.at("specialDataGroups"), r.specialDataGroups, r.specialDataGroupCount);
    set(j.at("value2"), r.value2);
}

inline void describe(Out& o, const SpecialDataGroup& r) {
    o.member("items", r.items, r.itemCount);
    o.member("itemCount", r.itemCount);
    o.end();
}

inline void build(const Json& j, SpecialDataGroup& r) { set(j.at("items"), r.items, r.itemCount); }

inline void describe(Out& o, const VariantIdentResult& r) {
    o.member("target", r.target);
    o.member("status", r.status);
    o.member("error", r.error);
    o.member("variant", r.variant);
    o.end();
}

inline void build(const Json& j, VariantIdentResult& r) {
    set(j.at("target"), r.target);
    set(j.at("status"), r.status);
    set(j.at("error"), r.error);
    set(j.at("variant"), r.variant);
}

inline void describe(Out& o, const ReadDataResult& r) {
    o.member("target", r.target);
    o.member("status", r.status);
    o.member("text", r.text);
    o.member("error", r.error);
    o.member("parameters", r.parameters, r.parameterCount);
    o.member("parameterCount", r.parameterCount);
    o.end();
}

inline void build(const Json& j, ReadDataResult& r) {
    set(j.at("target"), r.target);
    set(j.at("status"), r.status);
    set(j.at("text"), r.text);
    set(j.at("error"), r.error);
    set(j.at("parameters"), r.parameters, r.parameterCount);
}

inline void describe(Out& o, const Target& r) {
    o.member("itemText1", r.itemText1);
    o.member("itemText2", r.itemText2);
    o.member("itemText3", r.itemText3);
    o.member("itemText4", r.itemText4);
    o.member("value1", r.value1);
    o.member("text1", r.text1);
    o.member("text2", r.text2);
    o.member("items", r.items, r.itemCount);
    o.member("itemCount", r.itemCount);
    o.member("names", r.names, r.nameCount);
    o.member("nameCount", r.nameCount);
    o.member("text3", r.text3);
    o.member("text4", r.text4);
    o.member("value2", r.value2);
    o.member("text5", r.text5);
    o.end();
}

inline void build(const Json& j, Target& r) {
    set(j.at("itemText1"), r.itemText1);
    set(j.at("itemText2"), r.itemText2);
    set(j.at("itemText3"), r.itemText3);
    set(j.at("itemText4"), r.itemText4);
    set(j.at("value1"), r.value1);
    set(j.at("text1"), r.text1);
    set(j.at("text2"), r.text2);
    set(j.at("items"), r.items, r.itemCount);
    set(j.at("names"), r.names, r.nameCount);
    set(j.at("text3"), r.text3);
    set(j.at("text4"), r.text4);
    set(j.at("value2"), r.value2);
    set(j.at("text5"), r.text5);
}

inline void describe(Out& o, const TargetStatus& r) {
    o.member("target", r.target);
    o.member("text", r.text);
    o.member("error", r.error);
    o.member("values", r.values);
    o.member("text2", r.text2);
    o.end();
}

inline void build(const Json& j, TargetStatus& r) {
    set(j.at("target"), r.target);
    set(j.at("text"), r.text);
    set(j.at("error"), r.error);
    set(j.at("values"), r.values);
    set(j.at("text2"), r.text2);
}

inline void describe(Out& o, const TargetFilter& r) {
    o.member("pattern", r.pattern);
    o.member("flag", r.flag);
    o.member("value", r.value);
    o.end();
}

inline void build(const Json& j, TargetFilter& r) {
    set(j.at("pattern"), r.pattern);
    set(j.at("flag"), r.flag);
    set(j.at("value"), r.value);
}

inline void describe(Out& o, const KelEvent& r) {
    o.member("name", r.name);
    o.member("kind", r.kind);
    o.member("code", r.code);
    o.member("text", r.text);
    o.member("error", r.error);
    o.member("detail", r.detail);
    o.end();
}

inline void build(const Json& j, KelEvent& r) {
    set(j.at("name"), r.name);
    set(j.at("kind"), r.kind);
    set(j.at("code"), r.code);
    set(j.at("text"), r.text);
    set(j.at("error"), r.error);
    set(j.at("detail"), r.detail);
}

inline void describe(Out& o, const EventReport& r) {
    o.member("events", r.events, r.eventCount);
    o.member("eventCount", r.eventCount);
    o.end();
}

inline void build(const Json& j, EventReport& r) { set(j.at("events"), r.events, r.eventCount); }

inline void describe(Out& o, const FileFilter& r) {
    o.member("pattern", r.pattern);
    o.member("flag", r.flag);
    o.member("value", r.value);
    o.end();
}

inline void build(const Json& j, FileFilter& r) {
    set(j.at("pattern"), r.pattern);
    set(j.at("flag"), r.flag);
    set(j.at("value"), r.value);
}

inline void describe(Out& o, const UserInfo& r) {
    o.member("name", r.name);
    o.member("text", r.text);
    o.member("value", r.value);
    o.end();
}

inline void build(const Json& j, UserInfo& r) {
    set(j.at("name"), r.name);
    set(j.at("text"), r.text);
    set(j.at("value"), r.value);
}

inline void describe(Out& o, const LogInOutConfig& r) {
    o.member("user", r.user);
    o.member("password", r.password);
    o.end();
}

inline void build(const Json& j, LogInOutConfig& r) {
    set(j.at("user"), r.user);
    set(j.at("password"), r.password);
}

inline void describe(Out& o, const TarnApiServerConfig& r) {
    o.member("users", r.users, r.userCount);
    o.member("userCount", r.userCount);
    o.member("flag", r.flag);
    o.member("value1", r.value1);
    o.member("text1", r.text1);
    o.member("text2", r.text2);
    o.member("filters", r.filters, r.filterCount);
    o.member("filterCount", r.filterCount);
    o.member("text3", r.text3);
    o.member("text4", r.text4);
    o.member("users2", r.users2, r.userCount2);
    o.member("userCount2", r.userCount2);
    o.member("value2", r.value2);
    o.end();
}

inline void build(const Json& j, TarnApiServerConfig& r) {
    set(j.at("users"), r.users, r.userCount);
    set(j.at("flag"), r.flag);
    set(j.at("value1"), r.value1);
    set(j.at("text1"), r.text1);
    set(j.at("text2"), r.text2);
    set(j.at("filters"), r.filters, r.filterCount);
    set(j.at("text3"), r.text3);
    set(j.at("text4"), r.text4);
    set(j.at("users2"), r.users2, r.userCount2);
    set(j.at("value2"), r.value2);
}

inline void describe(Out& o, const ServerSettings& r) {
    o.member("flag", r.flag);
    o.member("value1", r.value1);
    o.member("value2", r.value2);
    o.member("value3", r.value3);
    o.end();
}

inline void build(const Json& j, ServerSettings& r) {
    set(j.at("flag"), r.flag);
    set(j.at("value1"), r.value1);
    set(j.at("value2"), r.value2);
    set(j.at("value3"), r.value3);
}

// The scripted engine failures and what each must give.
inline std::span<const Failure> scriptedFailures() {
    static const Failure list[] = {
        {"plain", -559038737, 2147483647, L"Z\U000000FCndung aus \U0001F697", L"", false, 0, L"", 0,
         L"", L"", 0,
         "{\"code\":-559038737,\"message\":\"Z\303\274ndung aus \360\237\232\227\",\"details\":\""
         "\",\"subCode\":2147483647,\"mvciError\":null,\"negativeResponse\":null}",
         "0001efbeadde110000005ac3bc6e64756e672061757320f09f9a9700000000ffffff7f0000",
         "01efbeadde110000005ac3bc6e64756e672061757320f09f9a9700000000ffffff7f0000"},
        {"mvci", -2147483648, -1, L"", L"D\U000000E9tails \"q\" \\ \U0001D11E", true, 2147483647,
         L"MVCI \U000026A1", -2147483648, L"", L"Extra \U000000E4\U0001F527", 305419896,
         "{\"code\":-2147483648,\"message\":\"\",\"details\":\"D\303\251tails \\\"q\\\" \\\\ \360"
         "\235\204\236\",\"subCode\":-1,\"mvciError\":{\"code\":2147483647,\"codeText\":\"MVCI "
         "\342\232\241\",\"vendorCode\":-2147483648,\"vendorCodeText\":\"\",\"extraText\":\"Extra "
         "\303\244\360\237\224\247\",\"extraCode\":305419896},\"negativeResponse\":null}",
         "000100000080000000001300000044c3a97461696c7320227122205c20f09d849effffffff01ffffff7f0800"
         "00004d56434920e29aa100000080000000000c000000457874726120c3a4f09f94a77856341200",
         "0100000080000000001300000044c3a97461696c7320227122205c20f09d849effffffff01ffffff7f080000"
         "004d56434920e29aa100000080000000000c000000457874726120c3a4f09f94a77856341200"},
    };
    return list;
}

// Every dispatcher number the description names.
inline std::span<const int32_t> namedNumbers() {
    static const int32_t list[] = {
        2,   3,   4,   5,   6,   7,   8,   9,   10,  11,  12,  13,  14,  15,  16,  17,  19,  21,
        22,  23,  25,  27,  29,  30,  32,  34,  36,  37,  38,  39,  40,  41,  42,  43,  44,  45,
        46,  47,  48,  49,  50,  51,  52,  53,  54,  55,  56,  57,  58,  59,  60,  61,  62,  63,
        64,  65,  66,  67,  68,  69,  70,  71,  73,  74,  75,  77,  78,  79,  80,  81,  82,  83,
        85,  86,  88,  89,  90,  91,  92,  93,  96,  97,  99,  100, 101, 102, 103, 104, 105, 106,
        107, 108, 109, 110, 111, 112, 113, 114, 115, 116, 117, 118, 119, 120, 121, 123, 125, 126,
        127, 128, 129, 130, 131, 132, 133, 134, 135, 136, 137, 138, 139, 140, 141, 142, 143, 144,
        145, 146, 147, 148, 149, 150, 151, 152, 153, 154, 155, 156, 157, 158, 159, 160, 161, 162,
        164, 165, 166, 169, 174, 175, 177, 178, 179, 180, 181, 182, 183, 184, 185, 186, 187, 188,
        189, 190, 191, 192, 193, 194, 195, 196, 198, 199, 201, 202, 203, 204, 206, 208, 209, 210,
        211, 213, 215, 216, 217, 218, 219, 220, 223, 224, 225, 226, 227, 228, 231, 232, 233, 234,
        235, 236, 237, 238, 244, 245, 246, 247, 248, 249, 250, 251, 253, 254, 255, 256, 257, 259,
        260, 261, 262, 264, 265, 267, 268, 280};
    return list;
}

} // namespace kel_conformance
