// Generated from the interface description by tools/generate.py. Do not edit.
// Conformance checks of the family Coding: every export and every dispatcher number.

#include "conformance_support.h"
#include "generated/conformance/records.h"

namespace {

namespace kc = kel_conformance;

using Coding = kc::ConformanceTest;
using CodingByNumber = kc::ConformanceTest;
using CodingAdmission = kc::AdmissionTest;

// ---- readCodingStrings (position 33, number 32) ----

const kc::Case kReadCodingStringsCases[] = {
    {"full",
     "[[\"Pr\303\274fstand \342\202\254 33.1\",\"\",\"\346\227\245\346\234\254\350\252\236 "
     "\360\235\204\236 33.2\"]]",
     "[[\"Pr\303\274fstand \342\202\254 33.1\",\"\",\"\346\227\245\346\234\254\350\252\236 "
     "\360\235\204\236 33.2\"]]",
     "[{\"target\":\"K\303\274hler\\u0009\360\237\224\247 33.3\",\"status\":-2147483648,\"iden"
     "tifier\":\"say \\\"\303\251\\\" 33.4\",\"coding\":\"back\\\\slash \303\237 33.5\",\"data"
     "\":[0,255,255,128],\"error\":{\"code\":2147483647,\"message\":\"Z\303\274ndung \360\237"
     "\232\227 33.6\",\"details\":\"Pr\303\274fstand \342\202\254 33.7\",\"subCode\":-1,\"mvci"
     "Error\":{\"code\":-65536,\"codeText\":\"\346\227\245\346\234\254\350\252\236 \360\235"
     "\204\236 33.8\",\"vendorCode\":2029145055,\"vendorCodeText\":\"K\303\274hler\\u0009\360"
     "\237\224\247 33.9\",\"extraText\":\"say \\\"\303\251\\\" 33.10\",\"extraCode\":-38861352"
     "3},\"negativeResponse\":{\"code\":895565637,\"text\":\"back\\\\slash \303\237 33.11\",\""
     "value1\":9223372036854775809,\"value2\":18446744073709551615,\"bytes\":[0,255,127,1]}}},"
     "{\"target\":\"Z\303\274ndung \360\237\232\227 33.12\",\"status\":-1402517751,\"identifie"
     "r\":\"Pr\303\274fstand \342\202\254 33.13\",\"coding\":\"\346\227\245\346\234\254\350"
     "\252\236 \360\235\204\236 33.14\",\"data\":[0,255,149,132],\"error\":null}]",
     "[{\"target\":\"K\303\274hler\\u0009\360\237\224\247 33.3\",\"status\":-2147483648,\"iden"
     "tifier\":\"say \\\"\303\251\\\" 33.4\",\"coding\":\"back\\\\slash \303\237 33.5\",\"data"
     "\":[0,255,255,128],\"dataLength\":4,\"error\":{\"code\":2147483647,\"message\":\"Z\303"
     "\274ndung \360\237\232\227 33.6\",\"details\":\"Pr\303\274fstand \342\202\254 33.7\",\"s"
     "ubCode\":-1,\"mvciError\":{\"code\":-65536,\"codeText\":\"\346\227\245\346\234\254\350"
     "\252\236 \360\235\204\236 33.8\",\"vendorCode\":2029145055,\"vendorCodeText\":\"K\303"
     "\274hler\\u0009\360\237\224\247 33.9\",\"extraText\":\"say \\\"\303\251\\\" 33.10\",\"ex"
     "traCode\":-388613523},\"negativeResponse\":{\"code\":895565637,\"text\":\"back\\\\slash "
     "\303\237 33.11\",\"value1\":9223372036854775809,\"value2\":18446744073709551615,\"bytes"
     "\":[0,255,127,1],\"byteCount\":4}}},{\"target\":\"Z\303\274ndung \360\237\232\227 33.12"
     "\",\"status\":-1402517751,\"identifier\":\"Pr\303\274fstand \342\202\254 33.13\",\"codin"
     "g\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 33.14\",\"data\":[0,255,149,"
     "132],\"dataLength\":4,\"error\":null}]",
     "03000000130000005072c3bc667374616e6420e282ac2033332e310000000013000000e697a5e69cace8aa9e"
     "20f09d849e2033332e32",
     "030000005072c3bc667374616e6420e282ac2033332e310000e697a5e69cace8aa9e20f09d849e2033332e32"
     "00",
     "[[\"Pr\303\274fstand \342\202\254 33.1\",\"\",\"\346\227\245\346\234\254\350\252\236 "
     "\360\235\204\236 33.2\"]]",
     "[[\"Pr\303\274fstand \342\202\254 33.1\",\"\",\"\346\227\245\346\234\254\350\252\236 "
     "\360\235\204\236 33.2\"]]",
     "010200000001110000004bc3bc686c657209f09f94a72033332e33000000800d0000007361792022c3a92220"
     "33332e34120000006261636b5c736c61736820c39f2033332e350400000000ffff8001ffffff7f120000005a"
     "c3bc6e64756e6720f09f9a972033332e36130000005072c3bc667374616e6420e282ac2033332e37ffffffff"
     "010000ffff13000000e697a5e69cace8aa9e20f09d849e2033332e38df4bf278110000004bc3bc686c657209"
     "f09f94a72033332e390e0000007361792022c3a9222033332e31306d3ad6e801453f6135130000006261636b"
     "5c736c61736820c39f2033332e31310100000000000080ffffffffffffffff0400000000ff7f010113000000"
     "5ac3bc6e64756e6720f09f9a972033332e3132094767ac140000005072c3bc667374616e6420e282ac203333"
     "2e313314000000e697a5e69cace8aa9e20f09d849e2033332e31340400000000ff958400",
     "0200000001110000004bc3bc686c657209f09f94a72033332e33000000800d0000007361792022c3a9222033"
     "332e34120000006261636b5c736c61736820c39f2033332e350400000000ffff8001ffffff7f120000005ac3"
     "bc6e64756e6720f09f9a972033332e36130000005072c3bc667374616e6420e282ac2033332e37ffffffff01"
     "0000ffff13000000e697a5e69cace8aa9e20f09d849e2033332e38df4bf278110000004bc3bc686c657209f0"
     "9f94a72033332e390e0000007361792022c3a9222033332e31306d3ad6e801453f6135130000006261636b5c"
     "736c61736820c39f2033332e31310100000000000080ffffffffffffffff0400000000ff7f0101130000005a"
     "c3bc6e64756e6720f09f9a972033332e3132094767ac140000005072c3bc667374616e6420e282ac2033332e"
     "313314000000e697a5e69cace8aa9e20f09d849e2033332e31340400000000ff958400",
     0},
    {"sparse", "[[]]", "[[]]",
     "[{\"target\":\"\",\"status\":-2147483648,\"identifier\":\"\",\"coding\":\"\",\"data\":[]"
     ",\"error\":{\"code\":2147483647,\"message\":\"\",\"details\":\"\",\"subCode\":-1,\"mvciE"
     "rror\":null,\"negativeResponse\":null}},null]",
     "[{\"target\":\"\",\"status\":-2147483648,\"identifier\":\"\",\"coding\":\"\",\"data\":nu"
     "ll,\"dataLength\":0,\"error\":{\"code\":2147483647,\"message\":\"\",\"details\":\"\",\"s"
     "ubCode\":-1,\"mvciError\":null,\"negativeResponse\":null}},null]",
     "00000000", "00000000", "[[]]", "[[]]",
     "010200000001000000000000008000000000000000000000000001ffffff7f0000000000000000ffffffff00"
     "0000",
     "0200000001000000000000008000000000000000000000000001ffffff7f0000000000000000ffffffff0000"
     "00",
     0},
    {"empty", "[[]]", "[[]]", "[]", "null", "00000000", "00000000", "[[]]", "[[]]", "0100000000",
     "00000000", 0},
};

struct ReadCodingStringsExport {
    static constexpr const char* operation = "readCodingStrings";
    using Result = kc::ListResult<CodingStringResult, release_CodingStringResult_array>;
    static void call(TarnApi* api, const kc::Json& in, KelError** error, Result& out) {
        kc::Texts a0(in[0]);
        kel_readCodingStrings(api, a0.data(), a0.count(), error, &out.data, &out.count);
    }
};

TEST_F(Coding, readCodingStrings_Exchange) {
    kc::exchange<ReadCodingStringsExport>(api, kReadCodingStringsCases);
}
TEST_F(Coding, readCodingStrings_Failure) {
    kc::failure<ReadCodingStringsExport>(api, kReadCodingStringsCases);
}
TEST_F(CodingAdmission, readCodingStrings) {
    kc::admission<ReadCodingStringsExport>(callers(), kReadCodingStringsCases, kc::Needs::Operator);
}

struct ReadCodingStringsAsyncExport {
    static constexpr const char* operation = "readCodingStringsAsync";
    using Reports = kc::Reports<CodingStringResult, release_CodingStringResult_array>;
    static uint64_t call(TarnApi* api, const kc::Json& in, KelError** error, Reports& reports) {
        kc::Texts a0(in[0]);
        return kel_readCodingStringsAsync(api, a0.data(), a0.count(), error, &Reports::onReport,
                                          &reports);
    }
};

TEST_F(Coding, readCodingStringsAsync_Exchange) {
    kc::asyncExchange<ReadCodingStringsAsyncExport>(api, kReadCodingStringsCases);
}
TEST_F(Coding, readCodingStringsAsync_Failure) {
    kc::asyncFailure<ReadCodingStringsAsyncExport>(api, kReadCodingStringsCases);
}
TEST_F(CodingAdmission, readCodingStringsAsync) {
    kc::asyncAdmission<ReadCodingStringsAsyncExport>(callers(), kReadCodingStringsCases,
                                                     kc::Needs::Operator);
}

const char* const kReadCodingStringsNoUtf8[] = {
    "[[\"\\udc00Pr\303\274fstand \342\202\254 33.1\\ud800\",\"\",\"\346\227\245\346\234\254"
    "\350\252\236 \360\235\204\236 33.2\"]]",
};
TEST_F(Coding, readCodingStrings_TextWithNoUtf8Form) {
    kc::noUtf8<ReadCodingStringsExport>(api, kReadCodingStringsNoUtf8);
}
TEST_F(Coding, readCodingStringsAsync_TextWithNoUtf8Form) {
    kc::asyncNoUtf8<ReadCodingStringsAsyncExport>(api, kReadCodingStringsNoUtf8);
}

const kc::Number kNumber32{32, "readCodingStrings", kReadCodingStringsCases};

TEST_F(CodingByNumber, n32_readCodingStrings_KelCall) { kc::kelCall(api, kNumber32); }
TEST_F(CodingByNumber, n32_readCodingStrings_PyCall) { kc::pyCall(api, kNumber32); }
TEST_F(CodingByNumber, n32_readCodingStrings_Failure) { kc::numberFailure(api, kNumber32); }
TEST_F(CodingByNumber, n32_readCodingStrings_ShortInput) { kc::shortInput(api, kNumber32); }

// ---- calculateChecksum (position 140, number 169) ----

const kc::Case kCalculateChecksumCases[] = {
    {"full", "[\"Pr\303\274fstand \342\202\254 140.1\",-2147483648]",
     "[\"Pr\303\274fstand \342\202\254 140.1\",-2147483648]",
     "\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 140.2\"",
     "\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 140.2\"",
     "140000005072c3bc667374616e6420e282ac203134302e3100000080",
     "5072c3bc667374616e6420e282ac203134302e310000000080",
     "[\"Pr\303\274fstand \342\202\254 140.1\",-2147483648]",
     "[\"Pr\303\274fstand \342\202\254 140.1\",-2147483648]",
     "0114000000e697a5e69cace8aa9e20f09d849e203134302e32",
     "14000000e697a5e69cace8aa9e20f09d849e203134302e32", 0},
    {"sparse", "[\"\",-2147483648]", "[\"\",-2147483648]", "\"\"", "\"\"", "0000000000000080",
     "0000000080", "[\"\",-2147483648]", "[\"\",-2147483648]", "0100000000", "00000000", 0},
};

struct CalculateChecksumExport {
    static constexpr const char* operation = "calculateChecksum";
    using Result = kc::TextResult;
    static void call(TarnApi* api, const kc::Json& in, KelError** error, Result& out) {
        const kc::Text a0(in[0]);
        kel_calculateChecksum(api, a0.get(), kc::number<int32_t>(in[1]), error, &out.data);
    }
};

TEST_F(Coding, calculateChecksum_Exchange) {
    kc::exchange<CalculateChecksumExport>(api, kCalculateChecksumCases);
}
TEST_F(Coding, calculateChecksum_Failure) {
    kc::failure<CalculateChecksumExport>(api, kCalculateChecksumCases);
}
TEST_F(CodingAdmission, calculateChecksum) {
    kc::admission<CalculateChecksumExport>(callers(), kCalculateChecksumCases, kc::Needs::Operator);
}

const char* const kCalculateChecksumNoUtf8[] = {
    "[\"\\udc00Pr\303\274fstand \342\202\254 140.1\\ud800\",-2147483648]",
};
TEST_F(Coding, calculateChecksum_TextWithNoUtf8Form) {
    kc::noUtf8<CalculateChecksumExport>(api, kCalculateChecksumNoUtf8);
}

const kc::Number kNumber169{169, "calculateChecksum", kCalculateChecksumCases};

TEST_F(CodingByNumber, n169_calculateChecksum_KelCall) { kc::kelCall(api, kNumber169); }
TEST_F(CodingByNumber, n169_calculateChecksum_PyCall) { kc::pyCall(api, kNumber169); }
TEST_F(CodingByNumber, n169_calculateChecksum_Failure) { kc::numberFailure(api, kNumber169); }
TEST_F(CodingByNumber, n169_calculateChecksum_ShortInput) { kc::shortInput(api, kNumber169); }

// ---- writeCodingFile (position 221, number 251) ----

const kc::Case kWriteCodingFileCases[] = {
    {"full",
     "[\"Pr\303\274fstand \342\202\254 221.1\",[\"\346\227\245\346\234\254\350\252\236 \360"
     "\235\204\236 221.2\",\"\",\"K\303\274hler\\u0009\360\237\224\247 221.3\"]]",
     "[\"Pr\303\274fstand \342\202\254 221.1\",[\"\346\227\245\346\234\254\350\252\236 \360"
     "\235\204\236 221.2\",\"\",\"K\303\274hler\\u0009\360\237\224\247 221.3\"]]",
     "[{\"target\":\"say \\\"\303\251\\\" 221.4\",\"status\":-2147483648,\"written\":\"back\\"
     "\\slash \303\237 221.5\",\"coding\":\"Z\303\274ndung \360\237\232\227 221.6\",\"data\":["
     "0,255,255,128],\"verified\":true,\"error\":{\"code\":2147483647,\"message\":\"Pr\303\274"
     "fstand \342\202\254 221.7\",\"details\":\"\346\227\245\346\234\254\350\252\236 \360\235"
     "\204\236 221.8\",\"subCode\":-1,\"mvciError\":{\"code\":-65536,\"codeText\":\"K\303\274h"
     "ler\\u0009\360\237\224\247 221.9\",\"vendorCode\":2036759619,\"vendorCodeText\":\"say \\"
     "\"\303\251\\\" 221.10\",\"extraText\":\"back\\\\slash \303\237 221.11\",\"extraCode\":-3"
     "96228087},\"negativeResponse\":{\"code\":903180201,\"text\":\"Z\303\274ndung \360\237"
     "\232\227 221.12\",\"value1\":9223372036854775809,\"value2\":18446744073709551615,\"bytes"
     "\":[0,255,127,1]}}},{\"target\":\"Pr\303\274fstand \342\202\254 221.13\",\"status\":-141"
     "0132315,\"written\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 221.14\",\"c"
     "oding\":\"K\303\274hler\\u0009\360\237\224\247 221.15\",\"data\":[0,255,157,159],\"verif"
     "ied\":false,\"error\":null}]",
     "[{\"target\":\"say \\\"\303\251\\\" 221.4\",\"status\":-2147483648,\"written\":\"back\\"
     "\\slash \303\237 221.5\",\"coding\":\"Z\303\274ndung \360\237\232\227 221.6\",\"data\":["
     "0,255,255,128],\"dataLength\":4,\"verified\":1,\"error\":{\"code\":2147483647,\"message"
     "\":\"Pr\303\274fstand \342\202\254 221.7\",\"details\":\"\346\227\245\346\234\254\350"
     "\252\236 \360\235\204\236 221.8\",\"subCode\":-1,\"mvciError\":{\"code\":-65536,\"codeTe"
     "xt\":\"K\303\274hler\\u0009\360\237\224\247 221.9\",\"vendorCode\":2036759619,\"vendorCo"
     "deText\":\"say \\\"\303\251\\\" 221.10\",\"extraText\":\"back\\\\slash \303\237 221.11\""
     ",\"extraCode\":-396228087},\"negativeResponse\":{\"code\":903180201,\"text\":\"Z\303\274"
     "ndung \360\237\232\227 221.12\",\"value1\":9223372036854775809,\"value2\":18446744073709"
     "551615,\"bytes\":[0,255,127,1],\"byteCount\":4}}},{\"target\":\"Pr\303\274fstand \342"
     "\202\254 221.13\",\"status\":-1410132315,\"written\":\"\346\227\245\346\234\254\350\252"
     "\236 \360\235\204\236 221.14\",\"coding\":\"K\303\274hler\\u0009\360\237\224\247 221.15"
     "\",\"data\":[0,255,157,159],\"dataLength\":4,\"verified\":0,\"error\":null}]",
     "140000005072c3bc667374616e6420e282ac203232312e310300000014000000e697a5e69cace8aa9e20f09d"
     "849e203232312e3200000000120000004bc3bc686c657209f09f94a7203232312e33",
     "5072c3bc667374616e6420e282ac203232312e310003000000e697a5e69cace8aa9e20f09d849e203232312e"
     "3200004bc3bc686c657209f09f94a7203232312e3300",
     "[\"Pr\303\274fstand \342\202\254 221.1\",[\"\346\227\245\346\234\254\350\252\236 \360"
     "\235\204\236 221.2\",\"\",\"K\303\274hler\\u0009\360\237\224\247 221.3\"]]",
     "[\"Pr\303\274fstand \342\202\254 221.1\",[\"\346\227\245\346\234\254\350\252\236 \360"
     "\235\204\236 221.2\",\"\",\"K\303\274hler\\u0009\360\237\224\247 221.3\"]]",
     "0102000000010e0000007361792022c3a922203232312e3400000080130000006261636b5c736c61736820c3"
     "9f203232312e35130000005ac3bc6e64756e6720f09f9a97203232312e360400000000ffff800101ffffff7f"
     "140000005072c3bc667374616e6420e282ac203232312e3714000000e697a5e69cace8aa9e20f09d849e2032"
     "32312e38ffffffff010000ffff120000004bc3bc686c657209f09f94a7203232312e39437c66790f00000073"
     "61792022c3a922203232312e3130140000006261636b5c736c61736820c39f203232312e3131090a62e801a9"
     "6fd535140000005ac3bc6e64756e6720f09f9a97203232312e31320100000000000080ffffffffffffffff04"
     "00000000ff7f0101150000005072c3bc667374616e6420e282ac203232312e3133a516f3ab15000000e697a5"
     "e69cace8aa9e20f09d849e203232312e3134130000004bc3bc686c657209f09f94a7203232312e3135040000"
     "0000ff9d9f0000",
     "02000000010e0000007361792022c3a922203232312e3400000080130000006261636b5c736c61736820c39f"
     "203232312e35130000005ac3bc6e64756e6720f09f9a97203232312e360400000000ffff800101ffffff7f14"
     "0000005072c3bc667374616e6420e282ac203232312e3714000000e697a5e69cace8aa9e20f09d849e203232"
     "312e38ffffffff010000ffff120000004bc3bc686c657209f09f94a7203232312e39437c66790f0000007361"
     "792022c3a922203232312e3130140000006261636b5c736c61736820c39f203232312e3131090a62e801a96f"
     "d535140000005ac3bc6e64756e6720f09f9a97203232312e31320100000000000080ffffffffffffffff0400"
     "000000ff7f0101150000005072c3bc667374616e6420e282ac203232312e3133a516f3ab15000000e697a5e6"
     "9cace8aa9e20f09d849e203232312e3134130000004bc3bc686c657209f09f94a7203232312e313504000000"
     "00ff9d9f0000",
     0},
    {"sparse", "[\"\",[]]", "[\"\",[]]",
     "[{\"target\":\"\",\"status\":-2147483648,\"written\":\"\",\"coding\":\"\",\"data\":[],\""
     "verified\":true,\"error\":{\"code\":2147483647,\"message\":\"\",\"details\":\"\",\"subCo"
     "de\":-1,\"mvciError\":null,\"negativeResponse\":null}},null]",
     "[{\"target\":\"\",\"status\":-2147483648,\"written\":\"\",\"coding\":\"\",\"data\":null,"
     "\"dataLength\":0,\"verified\":1,\"error\":{\"code\":2147483647,\"message\":\"\",\"detail"
     "s\":\"\",\"subCode\":-1,\"mvciError\":null,\"negativeResponse\":null}},null]",
     "0000000000000000", "0000000000", "[\"\",[]]", "[\"\",[]]",
     "01020000000100000000000000800000000000000000000000000101ffffff7f0000000000000000ffffffff"
     "000000",
     "020000000100000000000000800000000000000000000000000101ffffff7f0000000000000000ffffffff00"
     "0000",
     0},
    {"empty", "[\"\",[]]", "[\"\",[]]", "[]", "null", "0000000000000000", "0000000000", "[\"\",[]]",
     "[\"\",[]]", "0100000000", "00000000", 0},
};

struct WriteCodingFileExport {
    static constexpr const char* operation = "writeCodingFile";
    using Result = kc::ListResult<CodingFileResult, release_CodingFileResult_array>;
    static void call(TarnApi* api, const kc::Json& in, KelError** error, Result& out) {
        const kc::Text a0(in[0]);
        kc::Texts a1(in[1]);
        kel_writeCodingFile(api, a0.get(), a1.data(), a1.count(), error, &out.data, &out.count);
    }
};

TEST_F(Coding, writeCodingFile_Exchange) {
    kc::exchange<WriteCodingFileExport>(api, kWriteCodingFileCases);
}
TEST_F(Coding, writeCodingFile_Failure) {
    kc::failure<WriteCodingFileExport>(api, kWriteCodingFileCases);
}
TEST_F(CodingAdmission, writeCodingFile) {
    kc::admission<WriteCodingFileExport>(callers(), kWriteCodingFileCases, kc::Needs::Operator);
}

struct WriteCodingFileAsyncExport {
    static constexpr const char* operation = "writeCodingFileAsync";
    using Reports = kc::Reports<CodingFileResult, release_CodingFileResult_array>;
    static uint64_t call(TarnApi* api, const kc::Json& in, KelError** error, Reports& reports) {
        const kc::Text a0(in[0]);
        kc::Texts a1(in[1]);
        return kel_writeCodingFileAsync(api, a0.get(), a1.data(), a1.count(), error,
                                        &Reports::onReport, &reports);
    }
};

TEST_F(Coding, writeCodingFileAsync_Exchange) {
    kc::asyncExchange<WriteCodingFileAsyncExport>(api, kWriteCodingFileCases);
}
TEST_F(Coding, writeCodingFileAsync_Failure) {
    kc::asyncFailure<WriteCodingFileAsyncExport>(api, kWriteCodingFileCases);
}
TEST_F(CodingAdmission, writeCodingFileAsync) {
    kc::asyncAdmission<WriteCodingFileAsyncExport>(callers(), kWriteCodingFileCases,
                                                   kc::Needs::Operator);
}

const char* const kWriteCodingFileNoUtf8[] = {
    "[\"\\udc00Pr\303\274fstand \342\202\254 221.1\\ud800\",[\"\346\227\245\346\234\254\350"
    "\252\236 \360\235\204\236 221.2\",\"\",\"K\303\274hler\\t\360\237\224\247 221.3\"]]",
    "[\"Pr\303\274fstand \342\202\254 221.1\",[\"\\udc00\346\227\245\346\234\254\350\252\236 "
    "\360\235\204\236 221.2\\ud800\",\"\",\"K\303\274hler\\t\360\237\224\247 221.3\"]]",
};
TEST_F(Coding, writeCodingFile_TextWithNoUtf8Form) {
    kc::noUtf8<WriteCodingFileExport>(api, kWriteCodingFileNoUtf8);
}
TEST_F(Coding, writeCodingFileAsync_TextWithNoUtf8Form) {
    kc::asyncNoUtf8<WriteCodingFileAsyncExport>(api, kWriteCodingFileNoUtf8);
}

const kc::Number kNumber251{251, "writeCodingFile", kWriteCodingFileCases};

TEST_F(CodingByNumber, n251_writeCodingFile_KelCall) { kc::kelCall(api, kNumber251); }
TEST_F(CodingByNumber, n251_writeCodingFile_PyCall) { kc::pyCall(api, kNumber251); }
TEST_F(CodingByNumber, n251_writeCodingFile_Failure) { kc::numberFailure(api, kNumber251); }
TEST_F(CodingByNumber, n251_writeCodingFile_ShortInput) { kc::shortInput(api, kNumber251); }

// ---- performEcuConfiguration (position 233, number 267) ----

const kc::Case kPerformEcuConfigurationCases[] = {
    {"full",
     "[[\"Pr\303\274fstand \342\202\254 233.1\",\"\",\"\346\227\245\346\234\254\350\252\236 "
     "\360\235\204\236 233.2\"],\"K\303\274hler\\u0009\360\237\224\247 233.3\"]",
     "[[\"Pr\303\274fstand \342\202\254 233.1\",\"\",\"\346\227\245\346\234\254\350\252\236 "
     "\360\235\204\236 233.2\"],\"K\303\274hler\\u0009\360\237\224\247 233.3\"]",
     "[{\"target\":\"say \\\"\303\251\\\" 233.4\",\"configuration\":\"back\\\\slash \303\237 2"
     "33.5\",\"status\":-2147483648,\"written\":4294967295,\"error\":{\"code\":2147483647,\"me"
     "ssage\":\"Z\303\274ndung \360\237\232\227 233.6\",\"details\":\"Pr\303\274fstand \342"
     "\202\254 233.7\",\"subCode\":-1,\"mvciError\":{\"code\":-65536,\"codeText\":\"\346\227"
     "\245\346\234\254\350\252\236 \360\235\204\236 233.8\",\"vendorCode\":2037245655,\"vendor"
     "CodeText\":\"K\303\274hler\\u0009\360\237\224\247 233.9\",\"extraText\":\"say \\\"\303"
     "\251\\\" 233.10\",\"extraCode\":-396714123},\"negativeResponse\":{\"code\":903666237,\"t"
     "ext\":\"back\\\\slash \303\237 233.11\",\"value1\":9223372036854775809,\"value2\":184467"
     "44073709551615,\"bytes\":[0,255,255,128]}}},{\"target\":\"Z\303\274ndung \360\237\232"
     "\227 233.12\",\"configuration\":\"Pr\303\274fstand \342\202\254 233.13\",\"status\":-141"
     "0618351,\"written\":2147483648,\"error\":null}]",
     "[{\"target\":\"say \\\"\303\251\\\" 233.4\",\"configuration\":\"back\\\\slash \303\237 2"
     "33.5\",\"status\":-2147483648,\"written\":4294967295,\"error\":{\"code\":2147483647,\"me"
     "ssage\":\"Z\303\274ndung \360\237\232\227 233.6\",\"details\":\"Pr\303\274fstand \342"
     "\202\254 233.7\",\"subCode\":-1,\"mvciError\":{\"code\":-65536,\"codeText\":\"\346\227"
     "\245\346\234\254\350\252\236 \360\235\204\236 233.8\",\"vendorCode\":2037245655,\"vendor"
     "CodeText\":\"K\303\274hler\\u0009\360\237\224\247 233.9\",\"extraText\":\"say \\\"\303"
     "\251\\\" 233.10\",\"extraCode\":-396714123},\"negativeResponse\":{\"code\":903666237,\"t"
     "ext\":\"back\\\\slash \303\237 233.11\",\"value1\":9223372036854775809,\"value2\":184467"
     "44073709551615,\"bytes\":[0,255,255,128],\"byteCount\":4}}},{\"target\":\"Z\303\274ndung"
     " \360\237\232\227 233.12\",\"configuration\":\"Pr\303\274fstand \342\202\254 233.13\",\""
     "status\":-1410618351,\"written\":2147483648,\"error\":null}]",
     "03000000140000005072c3bc667374616e6420e282ac203233332e310000000014000000e697a5e69cace8aa"
     "9e20f09d849e203233332e32120000004bc3bc686c657209f09f94a7203233332e33",
     "030000005072c3bc667374616e6420e282ac203233332e310000e697a5e69cace8aa9e20f09d849e20323333"
     "2e32004bc3bc686c657209f09f94a7203233332e3300",
     "[[\"Pr\303\274fstand \342\202\254 233.1\",\"\",\"\346\227\245\346\234\254\350\252\236 "
     "\360\235\204\236 233.2\"],\"K\303\274hler\\u0009\360\237\224\247 233.3\"]",
     "[[\"Pr\303\274fstand \342\202\254 233.1\",\"\",\"\346\227\245\346\234\254\350\252\236 "
     "\360\235\204\236 233.2\"],\"K\303\274hler\\u0009\360\237\224\247 233.3\"]",
     "0102000000010e0000007361792022c3a922203233332e34130000006261636b5c736c61736820c39f203233"
     "332e3500000080ffffffff01ffffff7f130000005ac3bc6e64756e6720f09f9a97203233332e361400000050"
     "72c3bc667374616e6420e282ac203233332e37ffffffff010000ffff14000000e697a5e69cace8aa9e20f09d"
     "849e203233332e38d7e66d79120000004bc3bc686c657209f09f94a7203233332e390f0000007361792022c3"
     "a922203233332e3130759f5ae8013ddadc35140000006261636b5c736c61736820c39f203233332e31310100"
     "000000000080ffffffffffffffff0400000000ffff8001140000005ac3bc6e64756e6720f09f9a9720323333"
     "2e3132150000005072c3bc667374616e6420e282ac203233332e313311acebab0000008000",
     "02000000010e0000007361792022c3a922203233332e34130000006261636b5c736c61736820c39f20323333"
     "2e3500000080ffffffff01ffffff7f130000005ac3bc6e64756e6720f09f9a97203233332e36140000005072"
     "c3bc667374616e6420e282ac203233332e37ffffffff010000ffff14000000e697a5e69cace8aa9e20f09d84"
     "9e203233332e38d7e66d79120000004bc3bc686c657209f09f94a7203233332e390f0000007361792022c3a9"
     "22203233332e3130759f5ae8013ddadc35140000006261636b5c736c61736820c39f203233332e3131010000"
     "0000000080ffffffffffffffff0400000000ffff8001140000005ac3bc6e64756e6720f09f9a97203233332e"
     "3132150000005072c3bc667374616e6420e282ac203233332e313311acebab0000008000",
     0},
    {"sparse", "[[],\"\"]", "[[],\"\"]",
     "[{\"target\":\"\",\"configuration\":\"\",\"status\":-2147483648,\"written\":4294967295,"
     "\"error\":{\"code\":2147483647,\"message\":\"\",\"details\":\"\",\"subCode\":-1,\"mvciEr"
     "ror\":null,\"negativeResponse\":null}},null]",
     "[{\"target\":\"\",\"configuration\":\"\",\"status\":-2147483648,\"written\":4294967295,"
     "\"error\":{\"code\":2147483647,\"message\":\"\",\"details\":\"\",\"subCode\":-1,\"mvciEr"
     "ror\":null,\"negativeResponse\":null}},null]",
     "0000000000000000", "0000000000", "[[],\"\"]", "[[],\"\"]",
     "010200000001000000000000000000000080ffffffff01ffffff7f0000000000000000ffffffff000000",
     "0200000001000000000000000000000080ffffffff01ffffff7f0000000000000000ffffffff000000", 0},
    {"empty", "[[],\"\"]", "[[],\"\"]", "[]", "null", "0000000000000000", "0000000000", "[[],\"\"]",
     "[[],\"\"]", "0100000000", "00000000", 0},
};

struct PerformEcuConfigurationExport {
    static constexpr const char* operation = "performEcuConfiguration";
    using Result = kc::ListResult<EcuConfigurationResult, release_EcuConfigurationResult_array>;
    static void call(TarnApi* api, const kc::Json& in, KelError** error, Result& out) {
        kc::Texts a0(in[0]);
        const kc::Text a1(in[1]);
        kel_performEcuConfiguration(api, a0.data(), a0.count(), a1.get(), error, &out.data,
                                    &out.count);
    }
};

TEST_F(Coding, performEcuConfiguration_Exchange) {
    kc::exchange<PerformEcuConfigurationExport>(api, kPerformEcuConfigurationCases);
}
TEST_F(Coding, performEcuConfiguration_Failure) {
    kc::failure<PerformEcuConfigurationExport>(api, kPerformEcuConfigurationCases);
}
TEST_F(CodingAdmission, performEcuConfiguration) {
    kc::admission<PerformEcuConfigurationExport>(callers(), kPerformEcuConfigurationCases,
                                                 kc::Needs::Operator);
}

struct PerformEcuConfigurationAsyncExport {
    static constexpr const char* operation = "performEcuConfigurationAsync";
    using Reports = kc::Reports<EcuConfigurationResult, release_EcuConfigurationResult_array>;
    static uint64_t call(TarnApi* api, const kc::Json& in, KelError** error, Reports& reports) {
        kc::Texts a0(in[0]);
        const kc::Text a1(in[1]);
        return kel_performEcuConfigurationAsync(api, a0.data(), a0.count(), a1.get(), error,
                                                &Reports::onReport, &reports);
    }
};

TEST_F(Coding, performEcuConfigurationAsync_Exchange) {
    kc::asyncExchange<PerformEcuConfigurationAsyncExport>(api, kPerformEcuConfigurationCases);
}
TEST_F(Coding, performEcuConfigurationAsync_Failure) {
    kc::asyncFailure<PerformEcuConfigurationAsyncExport>(api, kPerformEcuConfigurationCases);
}
TEST_F(CodingAdmission, performEcuConfigurationAsync) {
    kc::asyncAdmission<PerformEcuConfigurationAsyncExport>(callers(), kPerformEcuConfigurationCases,
                                                           kc::Needs::Operator);
}

const char* const kPerformEcuConfigurationNoUtf8[] = {
    "[[\"\\udc00Pr\303\274fstand \342\202\254 233.1\\ud800\",\"\",\"\346\227\245\346\234\254"
    "\350\252\236 \360\235\204\236 233.2\"],\"K\303\274hler\\t\360\237\224\247 233.3\"]",
    "[[\"Pr\303\274fstand \342\202\254 233.1\",\"\",\"\346\227\245\346\234\254\350\252\236 "
    "\360\235\204\236 233.2\"],\"\\udc00K\303\274hler\\t\360\237\224\247 233.3\\ud800\"]",
};
TEST_F(Coding, performEcuConfiguration_TextWithNoUtf8Form) {
    kc::noUtf8<PerformEcuConfigurationExport>(api, kPerformEcuConfigurationNoUtf8);
}
TEST_F(Coding, performEcuConfigurationAsync_TextWithNoUtf8Form) {
    kc::asyncNoUtf8<PerformEcuConfigurationAsyncExport>(api, kPerformEcuConfigurationNoUtf8);
}

const kc::Number kNumber267{267, "performEcuConfiguration", kPerformEcuConfigurationCases};

TEST_F(CodingByNumber, n267_performEcuConfiguration_KelCall) { kc::kelCall(api, kNumber267); }
TEST_F(CodingByNumber, n267_performEcuConfiguration_PyCall) { kc::pyCall(api, kNumber267); }
TEST_F(CodingByNumber, n267_performEcuConfiguration_Failure) { kc::numberFailure(api, kNumber267); }
TEST_F(CodingByNumber, n267_performEcuConfiguration_ShortInput) { kc::shortInput(api, kNumber267); }

} // namespace
