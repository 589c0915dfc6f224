// Generated from the interface description by tools/generate.py. Do not edit.
// Conformance checks of the family EcuOrder: every export and every dispatcher number.

#include "conformance_support.h"
#include "generated/conformance/records.h"

namespace {

namespace kc = kel_conformance;

using EcuOrder = kc::ConformanceTest;
using EcuOrderByNumber = kc::ConformanceTest;
using EcuOrderAdmission = kc::AdmissionTest;

// ---- readEcuOrder (position 112, number 143) ----

const kc::Case kReadEcuOrderCases[] = {
    {"full", "[\"Pr\303\274fstand \342\202\254 112.1\"]",
     "[\"Pr\303\274fstand \342\202\254 112.1\"]",
     "[{\"target\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 112.2\",\"bus\":\"K"
     "\303\274hler\\u0009\360\237\224\247 112.3\",\"address\":4294967295,\"gateway\":true,\"op"
     "tional\":false},{\"target\":\"say \\\"\303\251\\\" 112.4\",\"bus\":\"back\\\\slash \303"
     "\237 112.5\",\"address\":2147483648,\"gateway\":true,\"optional\":false}]",
     "[{\"target\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 112.2\",\"bus\":\"K"
     "\303\274hler\\u0009\360\237\224\247 112.3\",\"address\":4294967295,\"gateway\":1,\"optio"
     "nal\":0},{\"target\":\"say \\\"\303\251\\\" 112.4\",\"bus\":\"back\\\\slash \303\237 112"
     ".5\",\"address\":2147483648,\"gateway\":1,\"optional\":0}]",
     "140000005072c3bc667374616e6420e282ac203131322e31",
     "5072c3bc667374616e6420e282ac203131322e3100", "[\"Pr\303\274fstand \342\202\254 112.1\"]",
     "[\"Pr\303\274fstand \342\202\254 112.1\"]",
     "01020000000114000000e697a5e69cace8aa9e20f09d849e203131322e32120000004bc3bc686c657209f09f"
     "94a7203131322e33ffffffff0100010e0000007361792022c3a922203131322e34130000006261636b5c736c"
     "61736820c39f203131322e35000000800100",
     "020000000114000000e697a5e69cace8aa9e20f09d849e203131322e32120000004bc3bc686c657209f09f94"
     "a7203131322e33ffffffff0100010e0000007361792022c3a922203131322e34130000006261636b5c736c61"
     "736820c39f203131322e35000000800100",
     0},
    {"sparse", "[\"\"]", "[\"\"]",
     "[{\"target\":\"\",\"bus\":\"\",\"address\":4294967295,\"gateway\":true,\"optional\":fals"
     "e},null]",
     "[{\"target\":\"\",\"bus\":\"\",\"address\":4294967295,\"gateway\":1,\"optional\":0},null"
     "]",
     "00000000", "00", "[\"\"]", "[\"\"]", "0102000000010000000000000000ffffffff010000",
     "02000000010000000000000000ffffffff010000", 0},
    {"empty", "[\"\"]", "[\"\"]", "[]", "null", "00000000", "00", "[\"\"]", "[\"\"]", "0100000000",
     "00000000", 0},
};

struct ReadEcuOrderExport {
    static constexpr const char* operation = "readEcuOrder";
    using Result = kc::ListResult<EcuOrderEntry, release_EcuOrderEntry_array>;
    static void call(TarnApi* api, const kc::Json& in, KelError** error, Result& out) {
        const kc::Text a0(in[0]);
        kel_readEcuOrder(api, a0.get(), error, &out.data, &out.count);
    }
};

TEST_F(EcuOrder, readEcuOrder_Exchange) {
    kc::exchange<ReadEcuOrderExport>(api, kReadEcuOrderCases);
}
TEST_F(EcuOrder, readEcuOrder_Failure) { kc::failure<ReadEcuOrderExport>(api, kReadEcuOrderCases); }
TEST_F(EcuOrderAdmission, readEcuOrder) {
    kc::admission<ReadEcuOrderExport>(callers(), kReadEcuOrderCases, kc::Needs::Operator);
}

const char* const kReadEcuOrderNoUtf8[] = {
    "[\"\\udc00Pr\303\274fstand \342\202\254 112.1\\ud800\"]",
};
TEST_F(EcuOrder, readEcuOrder_TextWithNoUtf8Form) {
    kc::noUtf8<ReadEcuOrderExport>(api, kReadEcuOrderNoUtf8);
}

const kc::Number kNumber143{143, "readEcuOrder", kReadEcuOrderCases};

TEST_F(EcuOrderByNumber, n143_readEcuOrder_KelCall) { kc::kelCall(api, kNumber143); }
TEST_F(EcuOrderByNumber, n143_readEcuOrder_PyCall) { kc::pyCall(api, kNumber143); }
TEST_F(EcuOrderByNumber, n143_readEcuOrder_Failure) { kc::numberFailure(api, kNumber143); }
TEST_F(EcuOrderByNumber, n143_readEcuOrder_ShortInput) { kc::shortInput(api, kNumber143); }

// ---- filterEcuOrder (position 113, number 144) ----

const kc::Case kFilterEcuOrderCases[] = {
    {"full",
     "[[{\"target\":\"Pr\303\274fstand \342\202\254 113.1\",\"bus\":\"\346\227\245\346\234\254"
     "\350\252\236 \360\235\204\236 113.2\",\"address\":4294967295,\"gateway\":128,\"optional"
     "\":0},{\"target\":\"K\303\274hler\\u0009\360\237\224\247 113.3\",\"bus\":\"say \\\"\303"
     "\251\\\" 113.4\",\"address\":2147483648,\"gateway\":255,\"optional\":0}],[\"back\\\\slas"
     "h \303\237 113.5\",\"\",\"Z\303\274ndung \360\237\232\227 113.6\"]]",
     "[[{\"target\":\"Pr\303\274fstand \342\202\254 113.1\",\"bus\":\"\346\227\245\346\234\254"
     "\350\252\236 \360\235\204\236 113.2\",\"address\":4294967295,\"gateway\":true,\"optional"
     "\":false},{\"target\":\"K\303\274hler\\u0009\360\237\224\247 113.3\",\"bus\":\"say \\\""
     "\303\251\\\" 113.4\",\"address\":2147483648,\"gateway\":true,\"optional\":false}],[\"bac"
     "k\\\\slash \303\237 113.5\",\"\",\"Z\303\274ndung \360\237\232\227 113.6\"]]",
     "[{\"target\":\"Pr\303\274fstand \342\202\254 113.7\",\"bus\":\"\346\227\245\346\234\254"
     "\350\252\236 \360\235\204\236 113.8\",\"address\":2147483647,\"gateway\":true,\"optional"
     "\":false},{\"target\":\"K\303\274hler\\u0009\360\237\224\247 113.9\",\"bus\":\"say \\\""
     "\303\251\\\" 113.10\",\"address\":1525433181,\"gateway\":true,\"optional\":false}]",
     "[{\"target\":\"Pr\303\274fstand \342\202\254 113.7\",\"bus\":\"\346\227\245\346\234\254"
     "\350\252\236 \360\235\204\236 113.8\",\"address\":2147483647,\"gateway\":1,\"optional\":"
     "0},{\"target\":\"K\303\274hler\\u0009\360\237\224\247 113.9\",\"bus\":\"say \\\"\303\251"
     "\\\" 113.10\",\"address\":1525433181,\"gateway\":1,\"optional\":0}]",
     "02000000140000005072c3bc667374616e6420e282ac203131332e3114000000e697a5e69cace8aa9e20f09d"
     "849e203131332e32ffffffff0100120000004bc3bc686c657209f09f94a7203131332e330e00000073617920"
     "22c3a922203131332e3400000080010003000000130000006261636b5c736c61736820c39f203131332e3500"
     "000000130000005ac3bc6e64756e6720f09f9a97203131332e36",
     "02000000015072c3bc667374616e6420e282ac203131332e3100e697a5e69cace8aa9e20f09d849e20313133"
     "2e3200ffffffff0100014bc3bc686c657209f09f94a7203131332e33007361792022c3a922203131332e3400"
     "000000800100030000006261636b5c736c61736820c39f203131332e3500005ac3bc6e64756e6720f09f9a97"
     "203131332e3600",
     "[[{\"target\":\"Pr\303\274fstand \342\202\254 113.1\",\"bus\":\"\346\227\245\346\234\254"
     "\350\252\236 \360\235\204\236 113.2\",\"address\":4294967295,\"gateway\":true,\"optional"
     "\":false},{\"target\":\"K\303\274hler\\u0009\360\237\224\247 113.3\",\"bus\":\"say \\\""
     "\303\251\\\" 113.4\",\"address\":2147483648,\"gateway\":true,\"optional\":false}],[\"bac"
     "k\\\\slash \303\237 113.5\",\"\",\"Z\303\274ndung \360\237\232\227 113.6\"]]",
     "[[{\"target\":\"Pr\303\274fstand \342\202\254 113.1\",\"bus\":\"\346\227\245\346\234\254"
     "\350\252\236 \360\235\204\236 113.2\",\"address\":4294967295,\"gateway\":true,\"optional"
     "\":false},{\"target\":\"K\303\274hler\\u0009\360\237\224\247 113.3\",\"bus\":\"say \\\""
     "\303\251\\\" 113.4\",\"address\":2147483648,\"gateway\":true,\"optional\":false}],[\"bac"
     "k\\\\slash \303\237 113.5\",\"\",\"Z\303\274ndung \360\237\232\227 113.6\"]]",
     "010200000001140000005072c3bc667374616e6420e282ac203131332e3714000000e697a5e69cace8aa9e20"
     "f09d849e203131332e38ffffff7f010001120000004bc3bc686c657209f09f94a7203131332e390f00000073"
     "61792022c3a922203131332e31305d43ec5a0100",
     "0200000001140000005072c3bc667374616e6420e282ac203131332e3714000000e697a5e69cace8aa9e20f0"
     "9d849e203131332e38ffffff7f010001120000004bc3bc686c657209f09f94a7203131332e390f0000007361"
     "792022c3a922203131332e31305d43ec5a0100",
     0},
    {"sparse", "[[],[]]", "[[],[]]",
     "[{\"target\":\"\",\"bus\":\"\",\"address\":4294967295,\"gateway\":true,\"optional\":fals"
     "e},null]",
     "[{\"target\":\"\",\"bus\":\"\",\"address\":4294967295,\"gateway\":1,\"optional\":0},null"
     "]",
     "0000000000000000", "0000000000000000", "[[],[]]", "[[],[]]",
     "0102000000010000000000000000ffffffff010000", "02000000010000000000000000ffffffff010000", 0},
    {"empty", "[[],[]]", "[[],[]]", "[]", "null", "0000000000000000", "0000000000000000", "[[],[]]",
     "[[],[]]", "0100000000", "00000000", 0},
};

struct FilterEcuOrderExport {
    static constexpr const char* operation = "filterEcuOrder";
    using Result = kc::ListResult<EcuOrderEntry, release_EcuOrderEntry_array>;
    static void call(TarnApi* api, const kc::Json& in, KelError** error, Result& out) {
        kc::RecordList<EcuOrderEntry, release_EcuOrderEntry_array> a0(in[0]);
        kc::Texts a1(in[1]);
        kel_filterEcuOrder(api, a0.data(), a0.count(), a1.data(), a1.count(), error, &out.data,
                           &out.count);
    }
};

TEST_F(EcuOrder, filterEcuOrder_Exchange) {
    kc::exchange<FilterEcuOrderExport>(api, kFilterEcuOrderCases);
}
TEST_F(EcuOrder, filterEcuOrder_Failure) {
    kc::failure<FilterEcuOrderExport>(api, kFilterEcuOrderCases);
}
TEST_F(EcuOrderAdmission, filterEcuOrder) {
    kc::admission<FilterEcuOrderExport>(callers(), kFilterEcuOrderCases, kc::Needs::Operator);
}

const char* const kFilterEcuOrderNoUtf8[] = {
    "[[{\"target\":\"\\udc00Pr\303\274fstand \342\202\254 113.1\\ud800\",\"bus\":\"\346\227"
    "\245\346\234\254\350\252\236 \360\235\204\236 113.2\",\"address\":4294967295,\"gateway\""
    ":128,\"optional\":0},{\"target\":\"K\303\274hler\\t\360\237\224\247 113.3\",\"bus\":\"sa"
    "y \\\"\303\251\\\" 113.4\",\"address\":2147483648,\"gateway\":255,\"optional\":0}],[\"ba"
    "ck\\\\slash \303\237 113.5\",\"\",\"Z\303\274ndung \360\237\232\227 113.6\"]]",
    "[[{\"target\":\"Pr\303\274fstand \342\202\254 113.1\",\"bus\":\"\\udc00\346\227\245\346"
    "\234\254\350\252\236 \360\235\204\236 113.2\\ud800\",\"address\":4294967295,\"gateway\":"
    "128,\"optional\":0},{\"target\":\"K\303\274hler\\t\360\237\224\247 113.3\",\"bus\":\"say"
    " \\\"\303\251\\\" 113.4\",\"address\":2147483648,\"gateway\":255,\"optional\":0}],[\"bac"
    "k\\\\slash \303\237 113.5\",\"\",\"Z\303\274ndung \360\237\232\227 113.6\"]]",
    "[[{\"target\":\"Pr\303\274fstand \342\202\254 113.1\",\"bus\":\"\346\227\245\346\234\254"
    "\350\252\236 \360\235\204\236 113.2\",\"address\":4294967295,\"gateway\":128,\"optional"
    "\":0},{\"target\":\"K\303\274hler\\t\360\237\224\247 113.3\",\"bus\":\"say \\\"\303\251"
    "\\\" 113.4\",\"address\":2147483648,\"gateway\":255,\"optional\":0}],[\"\\udc00back\\\\s"
    "lash \303\237 113.5\\ud800\",\"\",\"Z\303\274ndung \360\237\232\227 113.6\"]]",
};
TEST_F(EcuOrder, filterEcuOrder_TextWithNoUtf8Form) {
    kc::noUtf8<FilterEcuOrderExport>(api, kFilterEcuOrderNoUtf8);
}

const kc::Number kNumber144{144, "filterEcuOrder", kFilterEcuOrderCases};

TEST_F(EcuOrderByNumber, n144_filterEcuOrder_KelCall) { kc::kelCall(api, kNumber144); }
TEST_F(EcuOrderByNumber, n144_filterEcuOrder_PyCall) { kc::pyCall(api, kNumber144); }
TEST_F(EcuOrderByNumber, n144_filterEcuOrder_Failure) { kc::numberFailure(api, kNumber144); }
TEST_F(EcuOrderByNumber, n144_filterEcuOrder_ShortInput) { kc::shortInput(api, kNumber144); }

// ---- addMissingTargetsToEcuOrder (position 114, number 145) ----

const kc::Case kAddMissingTargetsToEcuOrderCases[] = {
    {"full",
     "[[{\"target\":\"Pr\303\274fstand \342\202\254 114.1\",\"bus\":\"\346\227\245\346\234\254"
     "\350\252\236 \360\235\204\236 114.2\",\"address\":4294967295,\"gateway\":128,\"optional"
     "\":0},{\"target\":\"K\303\274hler\\u0009\360\237\224\247 114.3\",\"bus\":\"say \\\"\303"
     "\251\\\" 114.4\",\"address\":2147483648,\"gateway\":255,\"optional\":0}]]",
     "[[{\"target\":\"Pr\303\274fstand \342\202\254 114.1\",\"bus\":\"\346\227\245\346\234\254"
     "\350\252\236 \360\235\204\236 114.2\",\"address\":4294967295,\"gateway\":true,\"optional"
     "\":false},{\"target\":\"K\303\274hler\\u0009\360\237\224\247 114.3\",\"bus\":\"say \\\""
     "\303\251\\\" 114.4\",\"address\":2147483648,\"gateway\":true,\"optional\":false}]]",
     "[{\"target\":\"back\\\\slash \303\237 114.5\",\"bus\":\"Z\303\274ndung \360\237\232\227 "
     "114.6\",\"address\":2147483647,\"gateway\":true,\"optional\":false},{\"target\":\"Pr\303"
     "\274fstand \342\202\254 114.7\",\"bus\":\"\346\227\245\346\234\254\350\252\236 \360\235"
     "\204\236 114.8\",\"address\":1525473685,\"gateway\":true,\"optional\":false}]",
     "[{\"target\":\"back\\\\slash \303\237 114.5\",\"bus\":\"Z\303\274ndung \360\237\232\227 "
     "114.6\",\"address\":2147483647,\"gateway\":1,\"optional\":0},{\"target\":\"Pr\303\274fst"
     "and \342\202\254 114.7\",\"bus\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236"
     " 114.8\",\"address\":1525473685,\"gateway\":1,\"optional\":0}]",
     "02000000140000005072c3bc667374616e6420e282ac203131342e3114000000e697a5e69cace8aa9e20f09d"
     "849e203131342e32ffffffff0100120000004bc3bc686c657209f09f94a7203131342e330e00000073617920"
     "22c3a922203131342e34000000800100",
     "02000000015072c3bc667374616e6420e282ac203131342e3100e697a5e69cace8aa9e20f09d849e20313134"
     "2e3200ffffffff0100014bc3bc686c657209f09f94a7203131342e33007361792022c3a922203131342e3400"
     "000000800100",
     "[[{\"target\":\"Pr\303\274fstand \342\202\254 114.1\",\"bus\":\"\346\227\245\346\234\254"
     "\350\252\236 \360\235\204\236 114.2\",\"address\":4294967295,\"gateway\":true,\"optional"
     "\":false},{\"target\":\"K\303\274hler\\u0009\360\237\224\247 114.3\",\"bus\":\"say \\\""
     "\303\251\\\" 114.4\",\"address\":2147483648,\"gateway\":true,\"optional\":false}]]",
     "[[{\"target\":\"Pr\303\274fstand \342\202\254 114.1\",\"bus\":\"\346\227\245\346\234\254"
     "\350\252\236 \360\235\204\236 114.2\",\"address\":4294967295,\"gateway\":true,\"optional"
     "\":false},{\"target\":\"K\303\274hler\\u0009\360\237\224\247 114.3\",\"bus\":\"say \\\""
     "\303\251\\\" 114.4\",\"address\":2147483648,\"gateway\":true,\"optional\":false}]]",
     "010200000001130000006261636b5c736c61736820c39f203131342e35130000005ac3bc6e64756e6720f09f"
     "9a97203131342e36ffffff7f010001140000005072c3bc667374616e6420e282ac203131342e3714000000e6"
     "97a5e69cace8aa9e20f09d849e203131342e3895e1ec5a0100",
     "0200000001130000006261636b5c736c61736820c39f203131342e35130000005ac3bc6e64756e6720f09f9a"
     "97203131342e36ffffff7f010001140000005072c3bc667374616e6420e282ac203131342e3714000000e697"
     "a5e69cace8aa9e20f09d849e203131342e3895e1ec5a0100",
     0},
    {"sparse", "[[]]", "[[]]",
     "[{\"target\":\"\",\"bus\":\"\",\"address\":4294967295,\"gateway\":true,\"optional\":fals"
     "e},null]",
     "[{\"target\":\"\",\"bus\":\"\",\"address\":4294967295,\"gateway\":1,\"optional\":0},null"
     "]",
     "00000000", "00000000", "[[]]", "[[]]", "0102000000010000000000000000ffffffff010000",
     "02000000010000000000000000ffffffff010000", 0},
    {"empty", "[[]]", "[[]]", "[]", "null", "00000000", "00000000", "[[]]", "[[]]", "0100000000",
     "00000000", 0},
};

struct AddMissingTargetsToEcuOrderExport {
    static constexpr const char* operation = "addMissingTargetsToEcuOrder";
    using Result = kc::ListResult<EcuOrderEntry, release_EcuOrderEntry_array>;
    static void call(TarnApi* api, const kc::Json& in, KelError** error, Result& out) {
        kc::RecordList<EcuOrderEntry, release_EcuOrderEntry_array> a0(in[0]);
        kel_addMissingTargetsToEcuOrder(api, a0.data(), a0.count(), error, &out.data, &out.count);
    }
};

TEST_F(EcuOrder, addMissingTargetsToEcuOrder_Exchange) {
    kc::exchange<AddMissingTargetsToEcuOrderExport>(api, kAddMissingTargetsToEcuOrderCases);
}
TEST_F(EcuOrder, addMissingTargetsToEcuOrder_Failure) {
    kc::failure<AddMissingTargetsToEcuOrderExport>(api, kAddMissingTargetsToEcuOrderCases);
}
TEST_F(EcuOrderAdmission, addMissingTargetsToEcuOrder) {
    kc::admission<AddMissingTargetsToEcuOrderExport>(callers(), kAddMissingTargetsToEcuOrderCases,
                                                     kc::Needs::Operator);
}

const char* const kAddMissingTargetsToEcuOrderNoUtf8[] = {
    "[[{\"target\":\"\\udc00Pr\303\274fstand \342\202\254 114.1\\ud800\",\"bus\":\"\346\227"
    "\245\346\234\254\350\252\236 \360\235\204\236 114.2\",\"address\":4294967295,\"gateway\""
    ":128,\"optional\":0},{\"target\":\"K\303\274hler\\t\360\237\224\247 114.3\",\"bus\":\"sa"
    "y \\\"\303\251\\\" 114.4\",\"address\":2147483648,\"gateway\":255,\"optional\":0}]]",
    "[[{\"target\":\"Pr\303\274fstand \342\202\254 114.1\",\"bus\":\"\\udc00\346\227\245\346"
    "\234\254\350\252\236 \360\235\204\236 114.2\\ud800\",\"address\":4294967295,\"gateway\":"
    "128,\"optional\":0},{\"target\":\"K\303\274hler\\t\360\237\224\247 114.3\",\"bus\":\"say"
    " \\\"\303\251\\\" 114.4\",\"address\":2147483648,\"gateway\":255,\"optional\":0}]]",
};
TEST_F(EcuOrder, addMissingTargetsToEcuOrder_TextWithNoUtf8Form) {
    kc::noUtf8<AddMissingTargetsToEcuOrderExport>(api, kAddMissingTargetsToEcuOrderNoUtf8);
}

const kc::Number kNumber145{145, "addMissingTargetsToEcuOrder", kAddMissingTargetsToEcuOrderCases};

TEST_F(EcuOrderByNumber, n145_addMissingTargetsToEcuOrder_KelCall) { kc::kelCall(api, kNumber145); }
TEST_F(EcuOrderByNumber, n145_addMissingTargetsToEcuOrder_PyCall) { kc::pyCall(api, kNumber145); }
TEST_F(EcuOrderByNumber, n145_addMissingTargetsToEcuOrder_Failure) {
    kc::numberFailure(api, kNumber145);
}
TEST_F(EcuOrderByNumber, n145_addMissingTargetsToEcuOrder_ShortInput) {
    kc::shortInput(api, kNumber145);
}

// ---- createDefaultECUOrder (position 220, number 250) ----

const kc::Case kCreateDefaultECUOrderCases[] = {
    {"full", "[]", "[]",
     "[{\"target\":\"Pr\303\274fstand \342\202\254 220.1\",\"bus\":\"\346\227\245\346\234\254"
     "\350\252\236 \360\235\204\236 220.2\",\"address\":4294967295,\"gateway\":true,\"optional"
     "\":false},{\"target\":\"K\303\274hler\\u0009\360\237\224\247 220.3\",\"bus\":\"say \\\""
     "\303\251\\\" 220.4\",\"address\":2147483648,\"gateway\":true,\"optional\":false}]",
     "[{\"target\":\"Pr\303\274fstand \342\202\254 220.1\",\"bus\":\"\346\227\245\346\234\254"
     "\350\252\236 \360\235\204\236 220.2\",\"address\":4294967295,\"gateway\":1,\"optional\":"
     "0},{\"target\":\"K\303\274hler\\u0009\360\237\224\247 220.3\",\"bus\":\"say \\\"\303\251"
     "\\\" 220.4\",\"address\":2147483648,\"gateway\":1,\"optional\":0}]",
     "", "", "[]", "[]",
     "010200000001140000005072c3bc667374616e6420e282ac203232302e3114000000e697a5e69cace8aa9e20"
     "f09d849e203232302e32ffffffff010001120000004bc3bc686c657209f09f94a7203232302e330e00000073"
     "61792022c3a922203232302e34000000800100",
     "0200000001140000005072c3bc667374616e6420e282ac203232302e3114000000e697a5e69cace8aa9e20f0"
     "9d849e203232302e32ffffffff010001120000004bc3bc686c657209f09f94a7203232302e330e0000007361"
     "792022c3a922203232302e34000000800100",
     0},
    {"sparse", "[]", "[]",
     "[{\"target\":\"\",\"bus\":\"\",\"address\":4294967295,\"gateway\":true,\"optional\":fals"
     "e},null]",
     "[{\"target\":\"\",\"bus\":\"\",\"address\":4294967295,\"gateway\":1,\"optional\":0},null"
     "]",
     "", "", "[]", "[]", "0102000000010000000000000000ffffffff010000",
     "02000000010000000000000000ffffffff010000", 0},
    {"empty", "[]", "[]", "[]", "null", "", "", "[]", "[]", "0100000000", "00000000", 0},
};

struct CreateDefaultECUOrderExport {
    static constexpr const char* operation = "createDefaultECUOrder";
    using Result = kc::ListResult<EcuOrderEntry, release_EcuOrderEntry_array>;
    static void call(TarnApi* api, const kc::Json& in, KelError** error, Result& out) {
        static_cast<void>(in);
        kel_createDefaultECUOrder(api, error, &out.data, &out.count);
    }
};

TEST_F(EcuOrder, createDefaultECUOrder_Exchange) {
    kc::exchange<CreateDefaultECUOrderExport>(api, kCreateDefaultECUOrderCases);
}
TEST_F(EcuOrder, createDefaultECUOrder_Failure) {
    kc::failure<CreateDefaultECUOrderExport>(api, kCreateDefaultECUOrderCases);
}
TEST_F(EcuOrderAdmission, createDefaultECUOrder) {
    kc::admission<CreateDefaultECUOrderExport>(callers(), kCreateDefaultECUOrderCases,
                                               kc::Needs::Operator);
}

const kc::Number kNumber250{250, "createDefaultECUOrder", kCreateDefaultECUOrderCases};

TEST_F(EcuOrderByNumber, n250_createDefaultECUOrder_KelCall) { kc::kelCall(api, kNumber250); }
TEST_F(EcuOrderByNumber, n250_createDefaultECUOrder_PyCall) { kc::pyCall(api, kNumber250); }
TEST_F(EcuOrderByNumber, n250_createDefaultECUOrder_Failure) { kc::numberFailure(api, kNumber250); }

// ---- writeEcuOrder (position 223, number 255) ----

const kc::Case kWriteEcuOrderCases[] = {
    {"full",
     "[\"Pr\303\274fstand \342\202\254 223.1\",[{\"target\":\"\346\227\245\346\234\254\350\252"
     "\236 \360\235\204\236 223.2\",\"bus\":\"K\303\274hler\\u0009\360\237\224\247 223.3\",\"a"
     "ddress\":4294967295,\"gateway\":128,\"optional\":0},{\"target\":\"say \\\"\303\251\\\" 2"
     "23.4\",\"bus\":\"back\\\\slash \303\237 223.5\",\"address\":2147483648,\"gateway\":255,"
     "\"optional\":0}]]",
     "[\"Pr\303\274fstand \342\202\254 223.1\",[{\"target\":\"\346\227\245\346\234\254\350\252"
     "\236 \360\235\204\236 223.2\",\"bus\":\"K\303\274hler\\u0009\360\237\224\247 223.3\",\"a"
     "ddress\":4294967295,\"gateway\":true,\"optional\":false},{\"target\":\"say \\\"\303\251"
     "\\\" 223.4\",\"bus\":\"back\\\\slash \303\237 223.5\",\"address\":2147483648,\"gateway\""
     ":true,\"optional\":false}]]",
     "null", nullptr,
     "140000005072c3bc667374616e6420e282ac203232332e310200000014000000e697a5e69cace8aa9e20f09d"
     "849e203232332e32120000004bc3bc686c657209f09f94a7203232332e33ffffffff01000e00000073617920"
     "22c3a922203232332e34130000006261636b5c736c61736820c39f203232332e35000000800100",
     "5072c3bc667374616e6420e282ac203232332e31000200000001e697a5e69cace8aa9e20f09d849e20323233"
     "2e32004bc3bc686c657209f09f94a7203232332e3300ffffffff0100017361792022c3a922203232332e3400"
     "6261636b5c736c61736820c39f203232332e3500000000800100",
     "[\"Pr\303\274fstand \342\202\254 223.1\",[{\"target\":\"\346\227\245\346\234\254\350\252"
     "\236 \360\235\204\236 223.2\",\"bus\":\"K\303\274hler\\u0009\360\237\224\247 223.3\",\"a"
     "ddress\":4294967295,\"gateway\":true,\"optional\":false},{\"target\":\"say \\\"\303\251"
     "\\\" 223.4\",\"bus\":\"back\\\\slash \303\237 223.5\",\"address\":2147483648,\"gateway\""
     ":true,\"optional\":false}]]",
     "[\"Pr\303\274fstand \342\202\254 223.1\",[{\"target\":\"\346\227\245\346\234\254\350\252"
     "\236 \360\235\204\236 223.2\",\"bus\":\"K\303\274hler\\u0009\360\237\224\247 223.3\",\"a"
     "ddress\":4294967295,\"gateway\":true,\"optional\":false},{\"target\":\"say \\\"\303\251"
     "\\\" 223.4\",\"bus\":\"back\\\\slash \303\237 223.5\",\"address\":2147483648,\"gateway\""
     ":true,\"optional\":false}]]",
     "01", "", 0},
    {"sparse", "[\"\",[]]", "[\"\",[]]", "null", nullptr, "0000000000000000", "0000000000",
     "[\"\",[]]", "[\"\",[]]", "01", "", 0},
};

struct WriteEcuOrderExport {
    static constexpr const char* operation = "writeEcuOrder";
    using Result = kc::NoResult;
    static void call(TarnApi* api, const kc::Json& in, KelError** error, Result& out) {
        const kc::Text a0(in[0]);
        kc::RecordList<EcuOrderEntry, release_EcuOrderEntry_array> a1(in[1]);
        static_cast<void>(out);
        kel_writeEcuOrder(api, a0.get(), a1.data(), a1.count(), error);
    }
};

TEST_F(EcuOrder, writeEcuOrder_Exchange) {
    kc::exchange<WriteEcuOrderExport>(api, kWriteEcuOrderCases);
}
TEST_F(EcuOrder, writeEcuOrder_Failure) {
    kc::failure<WriteEcuOrderExport>(api, kWriteEcuOrderCases);
}
TEST_F(EcuOrderAdmission, writeEcuOrder) {
    kc::admission<WriteEcuOrderExport>(callers(), kWriteEcuOrderCases, kc::Needs::Operator);
}

const char* const kWriteEcuOrderNoUtf8[] = {
    "[\"\\udc00Pr\303\274fstand \342\202\254 223.1\\ud800\",[{\"target\":\"\346\227\245\346"
    "\234\254\350\252\236 \360\235\204\236 223.2\",\"bus\":\"K\303\274hler\\t\360\237\224\247"
    " 223.3\",\"address\":4294967295,\"gateway\":128,\"optional\":0},{\"target\":\"say \\\""
    "\303\251\\\" 223.4\",\"bus\":\"back\\\\slash \303\237 223.5\",\"address\":2147483648,\"g"
    "ateway\":255,\"optional\":0}]]",
    "[\"Pr\303\274fstand \342\202\254 223.1\",[{\"target\":\"\\udc00\346\227\245\346\234\254"
    "\350\252\236 \360\235\204\236 223.2\\ud800\",\"bus\":\"K\303\274hler\\t\360\237\224\247 "
    "223.3\",\"address\":4294967295,\"gateway\":128,\"optional\":0},{\"target\":\"say \\\""
    "\303\251\\\" 223.4\",\"bus\":\"back\\\\slash \303\237 223.5\",\"address\":2147483648,\"g"
    "ateway\":255,\"optional\":0}]]",
    "[\"Pr\303\274fstand \342\202\254 223.1\",[{\"target\":\"\346\227\245\346\234\254\350\252"
    "\236 \360\235\204\236 223.2\",\"bus\":\"\\udc00K\303\274hler\\t\360\237\224\247 223.3\\u"
    "d800\",\"address\":4294967295,\"gateway\":128,\"optional\":0},{\"target\":\"say \\\"\303"
    "\251\\\" 223.4\",\"bus\":\"back\\\\slash \303\237 223.5\",\"address\":2147483648,\"gatew"
    "ay\":255,\"optional\":0}]]",
};
TEST_F(EcuOrder, writeEcuOrder_TextWithNoUtf8Form) {
    kc::noUtf8<WriteEcuOrderExport>(api, kWriteEcuOrderNoUtf8);
}

const kc::Number kNumber255{255, "writeEcuOrder", kWriteEcuOrderCases};

TEST_F(EcuOrderByNumber, n255_writeEcuOrder_KelCall) { kc::kelCall(api, kNumber255); }
TEST_F(EcuOrderByNumber, n255_writeEcuOrder_PyCall) { kc::pyCall(api, kNumber255); }
TEST_F(EcuOrderByNumber, n255_writeEcuOrder_Failure) { kc::numberFailure(api, kNumber255); }
TEST_F(EcuOrderByNumber, n255_writeEcuOrder_ShortInput) { kc::shortInput(api, kNumber255); }

// ---- getEcuOrderFilePath (position 224, number 256) ----

const kc::Case kGetEcuOrderFilePathCases[] = {
    {"full", "[]", "[]", "\"Pr\303\274fstand \342\202\254 224.1\"",
     "\"Pr\303\274fstand \342\202\254 224.1\"", "", "", "[]", "[]",
     "01140000005072c3bc667374616e6420e282ac203232342e31",
     "140000005072c3bc667374616e6420e282ac203232342e31", 0},
    {"sparse", "[]", "[]", "\"\"", "\"\"", "", "", "[]", "[]", "0100000000", "00000000", 0},
};

struct GetEcuOrderFilePathExport {
    static constexpr const char* operation = "getEcuOrderFilePath";
    using Result = kc::TextResult;
    static void call(TarnApi* api, const kc::Json& in, KelError** error, Result& out) {
        static_cast<void>(in);
        kel_getEcuOrderFilePath(api, error, &out.data);
    }
};

TEST_F(EcuOrder, getEcuOrderFilePath_Exchange) {
    kc::exchange<GetEcuOrderFilePathExport>(api, kGetEcuOrderFilePathCases);
}
TEST_F(EcuOrder, getEcuOrderFilePath_Failure) {
    kc::failure<GetEcuOrderFilePathExport>(api, kGetEcuOrderFilePathCases);
}
TEST_F(EcuOrderAdmission, getEcuOrderFilePath) {
    kc::admission<GetEcuOrderFilePathExport>(callers(), kGetEcuOrderFilePathCases,
                                             kc::Needs::Operator);
}

const kc::Number kNumber256{256, "getEcuOrderFilePath", kGetEcuOrderFilePathCases};

TEST_F(EcuOrderByNumber, n256_getEcuOrderFilePath_KelCall) { kc::kelCall(api, kNumber256); }
TEST_F(EcuOrderByNumber, n256_getEcuOrderFilePath_PyCall) { kc::pyCall(api, kNumber256); }
TEST_F(EcuOrderByNumber, n256_getEcuOrderFilePath_Failure) { kc::numberFailure(api, kNumber256); }

} // namespace
