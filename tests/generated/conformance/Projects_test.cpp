// Generated from the interface description by tools/generate.py. Do not edit.
// Conformance checks of the family Projects: every export and every dispatcher number.

#include "conformance_support.h"
#include "generated/conformance/records.h"

namespace {

namespace kc = kel_conformance;

using Projects = kc::ConformanceTest;
using ProjectsByNumber = kc::ConformanceTest;

// ---- getProjectConfiguration (position 7, number 7) ----

const kc::Case kGetProjectConfigurationCases[] = {
    {"full", "[\"Pr\303\274fstand \342\202\254 7.1\"]", "[\"Pr\303\274fstand \342\202\254 7.1\"]",
     "{\"itemText1\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 7.2\",\"itemText2"
     "\":\"K\303\274hler\\u0009\360\237\224\247 7.3\",\"itemText3\":\"say \\\"\303\251\\\" 7.4"
     "\",\"itemText4\":\"back\\\\slash \303\237 7.5\",\"filters1\":[{\"pattern\":\"Z\303\274nd"
     "ung \360\237\232\227 7.6\",\"flag\":true,\"value\":4294967295},{\"pattern\":\"Pr\303\274"
     "fstand \342\202\254 7.7\",\"flag\":false,\"value\":2147483648}],\"value0\":-2147483648,"
     "\"targets\":[{\"value\":2147483647,\"text1\":\"\346\227\245\346\234\254\350\252\236 \360"
     "\235\204\236 7.8\",\"text2\":\"K\303\274hler\\u0009\360\237\224\247 7.9\"},{\"value\":-1"
     ",\"text1\":\"say \\\"\303\251\\\" 7.10\",\"text2\":\"back\\\\slash \303\237 7.11\"}],\"f"
     "ilters2\":[{\"pattern\":\"Z\303\274ndung \360\237\232\227 7.12\",\"flag\":true},{\"patte"
     "rn\":\"Pr\303\274fstand \342\202\254 7.13\",\"flag\":false}],\"strings1\":[\"\346\227"
     "\245\346\234\254\350\252\236 \360\235\204\236 7.14\",\"K\303\274hler\\u0009\360\237\224"
     "\247 7.15\"],\"text1\":\"say \\\"\303\251\\\" 7.16\",\"value1\":2147483647,\"text2\":\"b"
     "ack\\\\slash \303\237 7.17\",\"strings2\":[\"Z\303\274ndung \360\237\232\227 7.18\",\"Pr"
     "\303\274fstand \342\202\254 7.19\"],\"text3\":\"\346\227\245\346\234\254\350\252\236 "
     "\360\235\204\236 7.20\",\"value2\":1521139863,\"value3\":2028091977,\"flags\":[true,fals"
     "e,true,false]}",
     "{\"itemText1\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 7.2\",\"itemText2"
     "\":\"K\303\274hler\\u0009\360\237\224\247 7.3\",\"itemText3\":\"say \\\"\303\251\\\" 7.4"
     "\",\"itemText4\":\"back\\\\slash \303\237 7.5\",\"filters1\":[{\"pattern\":\"Z\303\274nd"
     "ung \360\237\232\227 7.6\",\"flag\":1,\"value\":4294967295},{\"pattern\":\"Pr\303\274fst"
     "and \342\202\254 7.7\",\"flag\":0,\"value\":2147483648}],\"filterCount1\":2,\"value0\":-"
     "2147483648,\"targets\":[{\"value\":2147483647,\"text1\":\"\346\227\245\346\234\254\350"
     "\252\236 \360\235\204\236 7.8\",\"text2\":\"K\303\274hler\\u0009\360\237\224\247 7.9\"},"
     "{\"value\":-1,\"text1\":\"say \\\"\303\251\\\" 7.10\",\"text2\":\"back\\\\slash \303\237"
     " 7.11\"}],\"targetCount\":2,\"filters2\":[{\"pattern\":\"Z\303\274ndung \360\237\232\227"
     " 7.12\",\"flag\":1,\"value\":0},{\"pattern\":\"Pr\303\274fstand \342\202\254 7.13\",\"fl"
     "ag\":0,\"value\":0}],\"filterCount2\":2,\"strings1\":[\"\346\227\245\346\234\254\350\252"
     "\236 \360\235\204\236 7.14\",\"K\303\274hler\\u0009\360\237\224\247 7.15\"],\"stringCoun"
     "t1\":2,\"text1\":\"say \\\"\303\251\\\" 7.16\",\"value1\":2147483647,\"text2\":\"back\\"
     "\\slash \303\237 7.17\",\"strings2\":[\"Z\303\274ndung \360\237\232\227 7.18\",\"Pr\303"
     "\274fstand \342\202\254 7.19\"],\"stringCount2\":2,\"text3\":\"\346\227\245\346\234\254"
     "\350\252\236 \360\235\204\236 7.20\",\"value2\":1521139863,\"value3\":2028091977,\"flags"
     "\":[true,false,true,false]}",
     "120000005072c3bc667374616e6420e282ac20372e31", "5072c3bc667374616e6420e282ac20372e3100",
     "[\"Pr\303\274fstand \342\202\254 7.1\"]", "[\"Pr\303\274fstand \342\202\254 7.1\"]",
     "010112000000e697a5e69cace8aa9e20f09d849e20372e32100000004bc3bc686c657209f09f94a720372e33"
     "0c0000007361792022c3a92220372e34110000006261636b5c736c61736820c39f20372e3502000000011100"
     "00005ac3bc6e64756e6720f09f9a9720372e3601ffffffff01120000005072c3bc667374616e6420e282ac20"
     "372e370000000080000000800200000001ffffff7f12000000e697a5e69cace8aa9e20f09d849e20372e3810"
     "0000004bc3bc686c657209f09f94a720372e3901ffffffff0d0000007361792022c3a92220372e3130120000"
     "006261636b5c736c61736820c39f20372e31310200000001120000005ac3bc6e64756e6720f09f9a9720372e"
     "31320101130000005072c3bc667374616e6420e282ac20372e3133000200000013000000e697a5e69cace8aa"
     "9e20f09d849e20372e3134110000004bc3bc686c657209f09f94a720372e31350d0000007361792022c3a922"
     "20372e3136ffffff7f120000006261636b5c736c61736820c39f20372e313702000000120000005ac3bc6e64"
     "756e6720f09f9a9720372e3138130000005072c3bc667374616e6420e282ac20372e313913000000e697a5e6"
     "9cace8aa9e20f09d849e20372e323097c0aa5a493ae27801000100",
     "0112000000e697a5e69cace8aa9e20f09d849e20372e32100000004bc3bc686c657209f09f94a720372e330c"
     "0000007361792022c3a92220372e34110000006261636b5c736c61736820c39f20372e350200000001110000"
     "005ac3bc6e64756e6720f09f9a9720372e3601ffffffff01120000005072c3bc667374616e6420e282ac2037"
     "2e370000000080000000800200000001ffffff7f12000000e697a5e69cace8aa9e20f09d849e20372e381000"
     "00004bc3bc686c657209f09f94a720372e3901ffffffff0d0000007361792022c3a92220372e313012000000"
     "6261636b5c736c61736820c39f20372e31310200000001120000005ac3bc6e64756e6720f09f9a9720372e31"
     "320101130000005072c3bc667374616e6420e282ac20372e3133000200000013000000e697a5e69cace8aa9e"
     "20f09d849e20372e3134110000004bc3bc686c657209f09f94a720372e31350d0000007361792022c3a92220"
     "372e3136ffffff7f120000006261636b5c736c61736820c39f20372e313702000000120000005ac3bc6e6475"
     "6e6720f09f9a9720372e3138130000005072c3bc667374616e6420e282ac20372e313913000000e697a5e69c"
     "ace8aa9e20f09d849e20372e323097c0aa5a493ae27801000100",
     0},
    {"sparse", "[\"\"]", "[\"\"]",
     "{\"itemText1\":\"\",\"itemText2\":\"\",\"itemText3\":\"\",\"itemText4\":\"\",\"filters1"
     "\":[{\"pattern\":\"\",\"flag\":true,\"value\":4294967295}],\"value0\":-2147483648,\"targ"
     "ets\":[{\"value\":2147483647,\"text1\":\"\",\"text2\":\"\"}],\"filters2\":[{\"pattern\":"
     "\"\",\"flag\":false}],\"strings1\":[],\"text1\":\"\",\"value1\":2147483648,\"text2\":\""
     "\",\"strings2\":[],\"text3\":\"\",\"value2\":2147483647,\"value3\":1521139863,\"flags\":"
     "[true,false,true,false]}",
     "{\"itemText1\":\"\",\"itemText2\":\"\",\"itemText3\":\"\",\"itemText4\":\"\",\"filters1"
     "\":[{\"pattern\":\"\",\"flag\":1,\"value\":4294967295}],\"filterCount1\":1,\"value0\":-2"
     "147483648,\"targets\":[{\"value\":2147483647,\"text1\":\"\",\"text2\":\"\"}],\"targetCou"
     "nt\":1,\"filters2\":[{\"pattern\":\"\",\"flag\":0,\"value\":0}],\"filterCount2\":1,\"str"
     "ings1\":[],\"stringCount1\":0,\"text1\":\"\",\"value1\":2147483648,\"text2\":\"\",\"stri"
     "ngs2\":[],\"stringCount2\":0,\"text3\":\"\",\"value2\":2147483647,\"value3\":1521139863,"
     "\"flags\":[true,false,true,false]}",
     "00000000", "00", "[\"\"]", "[\"\"]",
     "01010000000000000000000000000000000001000000010000000001ffffffff000000800100000001ffffff"
     "7f000000000000000001000000010000000000000000000000000000000080000000000000000000000000ff"
     "ffff7f97c0aa5a01000100",
     "010000000000000000000000000000000001000000010000000001ffffffff000000800100000001ffffff7f"
     "000000000000000001000000010000000000000000000000000000000080000000000000000000000000ffff"
     "ff7f97c0aa5a01000100",
     0},
    {"empty", "[\"\"]", "[\"\"]", "null", "null", "00000000", "00", "[\"\"]", "[\"\"]", "0100",
     "00", 0},
};

const kc::Number kNumber7{7, "getProjectConfiguration", kGetProjectConfigurationCases};

TEST_F(ProjectsByNumber, n7_getProjectConfiguration_KelCall) { kc::kelCall(api, kNumber7); }
TEST_F(ProjectsByNumber, n7_getProjectConfiguration_PyCall) { kc::pyCall(api, kNumber7); }
TEST_F(ProjectsByNumber, n7_getProjectConfiguration_Failure) { kc::numberFailure(api, kNumber7); }
TEST_F(ProjectsByNumber, n7_getProjectConfiguration_ShortInput) { kc::shortInput(api, kNumber7); }

// ---- setProjectConfiguration (position 8, number 8) ----

const kc::Case kSetProjectConfigurationCases[] = {
    {"full",
     "[\"Pr\303\274fstand \342\202\254 8.1\",{\"itemText1\":\"\346\227\245\346\234\254\350\252"
     "\236 \360\235\204\236 8.2\",\"itemText2\":\"K\303\274hler\\u0009\360\237\224\247 8.3\","
     "\"itemText3\":\"say \\\"\303\251\\\" 8.4\",\"itemText4\":\"back\\\\slash \303\237 8.5\","
     "\"filters1\":[{\"pattern\":\"Z\303\274ndung \360\237\232\227 8.6\",\"flag\":128,\"value"
     "\":4294967295},{\"pattern\":\"Pr\303\274fstand \342\202\254 8.7\",\"flag\":0,\"value\":2"
     "147483648}],\"value0\":-2147483648,\"targets\":[{\"value\":2147483647,\"text1\":\"\346"
     "\227\245\346\234\254\350\252\236 \360\235\204\236 8.8\",\"text2\":\"K\303\274hler\\u0009"
     "\360\237\224\247 8.9\"},{\"value\":-1,\"text1\":\"say \\\"\303\251\\\" 8.10\",\"text2\":"
     "\"back\\\\slash \303\237 8.11\"}],\"filters2\":[{\"pattern\":\"Z\303\274ndung \360\237"
     "\232\227 8.12\",\"flag\":255,\"value\":387600947},{\"pattern\":\"Pr\303\274fstand \342"
     "\202\254 8.13\",\"flag\":0,\"value\":894553061}],\"strings1\":[\"\346\227\245\346\234"
     "\254\350\252\236 \360\235\204\236 8.14\",\"K\303\274hler\\u0009\360\237\224\247 8.15\"],"
     "\"text1\":\"say \\\"\303\251\\\" 8.16\",\"value1\":2147483647,\"text2\":\"back\\\\slash "
     "\303\237 8.17\",\"strings2\":[\"Z\303\274ndung \360\237\232\227 8.18\",\"Pr\303\274fstan"
     "d \342\202\254 8.19\"],\"text3\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236"
     " 8.20\",\"value2\":1521180367,\"value3\":2028132481,\"flags\":[true,false,true,false]}]",
     "[\"Pr\303\274fstand \342\202\254 8.1\",{\"itemText1\":\"\346\227\245\346\234\254\350\252"
     "\236 \360\235\204\236 8.2\",\"itemText2\":\"K\303\274hler\\u0009\360\237\224\247 8.3\","
     "\"itemText3\":\"say \\\"\303\251\\\" 8.4\",\"itemText4\":\"back\\\\slash \303\237 8.5\","
     "\"filters1\":[{\"pattern\":\"Z\303\274ndung \360\237\232\227 8.6\",\"flag\":true,\"value"
     "\":4294967295},{\"pattern\":\"Pr\303\274fstand \342\202\254 8.7\",\"flag\":false,\"value"
     "\":2147483648}],\"value0\":-2147483648,\"targets\":[{\"value\":2147483647,\"text1\":\""
     "\346\227\245\346\234\254\350\252\236 \360\235\204\236 8.8\",\"text2\":\"K\303\274hler\\u"
     "0009\360\237\224\247 8.9\"},{\"value\":-1,\"text1\":\"say \\\"\303\251\\\" 8.10\",\"text"
     "2\":\"back\\\\slash \303\237 8.11\"}],\"filters2\":[{\"pattern\":\"Z\303\274ndung \360"
     "\237\232\227 8.12\",\"flag\":true},{\"pattern\":\"Pr\303\274fstand \342\202\254 8.13\","
     "\"flag\":false}],\"strings1\":[\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 8"
     ".14\",\"K\303\274hler\\u0009\360\237\224\247 8.15\"],\"text1\":\"say \\\"\303\251\\\" 8."
     "16\",\"value1\":2147483647,\"text2\":\"back\\\\slash \303\237 8.17\",\"strings2\":[\"Z"
     "\303\274ndung \360\237\232\227 8.18\",\"Pr\303\274fstand \342\202\254 8.19\"],\"text3\":"
     "\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 8.20\",\"value2\":1521180367,\"v"
     "alue3\":2028132481,\"flags\":[true,false,true,false]}]",
     "null", nullptr,
     "120000005072c3bc667374616e6420e282ac20382e3112000000e697a5e69cace8aa9e20f09d849e20382e32"
     "100000004bc3bc686c657209f09f94a720382e330c0000007361792022c3a92220382e34110000006261636b"
     "5c736c61736820c39f20382e3502000000110000005ac3bc6e64756e6720f09f9a9720382e3601ffffffff12"
     "0000005072c3bc667374616e6420e282ac20382e3700000000800000008002000000ffffff7f12000000e697"
     "a5e69cace8aa9e20f09d849e20382e38100000004bc3bc686c657209f09f94a720382e39ffffffff0d000000"
     "7361792022c3a92220382e3130120000006261636b5c736c61736820c39f20382e313102000000120000005a"
     "c3bc6e64756e6720f09f9a9720382e313201130000005072c3bc667374616e6420e282ac20382e3133000200"
     "000013000000e697a5e69cace8aa9e20f09d849e20382e3134110000004bc3bc686c657209f09f94a720382e"
     "31350d0000007361792022c3a92220382e3136ffffff7f120000006261636b5c736c61736820c39f20382e31"
     "3702000000120000005ac3bc6e64756e6720f09f9a9720382e3138130000005072c3bc667374616e6420e282"
     "ac20382e313913000000e697a5e69cace8aa9e20f09d849e20382e3230cf5eab5a81d8e27801000100",
     "5072c3bc667374616e6420e282ac20382e310001e697a5e69cace8aa9e20f09d849e20382e32004bc3bc686c"
     "657209f09f94a720382e33007361792022c3a92220382e34006261636b5c736c61736820c39f20382e350002"
     "000000015ac3bc6e64756e6720f09f9a9720382e360001ffffffff015072c3bc667374616e6420e282ac2038"
     "2e37000000000080000000800200000001ffffff7fe697a5e69cace8aa9e20f09d849e20382e38004bc3bc68"
     "6c657209f09f94a720382e390001ffffffff7361792022c3a92220382e3130006261636b5c736c61736820c3"
     "9f20382e31310002000000015ac3bc6e64756e6720f09f9a9720382e31320001015072c3bc667374616e6420"
     "e282ac20382e3133000002000000e697a5e69cace8aa9e20f09d849e20382e3134004bc3bc686c657209f09f"
     "94a720382e3135007361792022c3a92220382e313600ffffff7f6261636b5c736c61736820c39f20382e3137"
     "00020000005ac3bc6e64756e6720f09f9a9720382e3138005072c3bc667374616e6420e282ac20382e313900"
     "e697a5e69cace8aa9e20f09d849e20382e323000cf5eab5a81d8e27801000100",
     "[\"Pr\303\274fstand \342\202\254 8.1\",{\"itemText1\":\"\346\227\245\346\234\254\350\252"
     "\236 \360\235\204\236 8.2\",\"itemText2\":\"K\303\274hler\\u0009\360\237\224\247 8.3\","
     "\"itemText3\":\"say \\\"\303\251\\\" 8.4\",\"itemText4\":\"back\\\\slash \303\237 8.5\","
     "\"filters1\":[{\"pattern\":\"Z\303\274ndung \360\237\232\227 8.6\",\"flag\":true,\"value"
     "\":4294967295},{\"pattern\":\"Pr\303\274fstand \342\202\254 8.7\",\"flag\":false,\"value"
     "\":2147483648}],\"value0\":-2147483648,\"targets\":[{\"value\":2147483647,\"text1\":\""
     "\346\227\245\346\234\254\350\252\236 \360\235\204\236 8.8\",\"text2\":\"K\303\274hler\\u"
     "0009\360\237\224\247 8.9\"},{\"value\":-1,\"text1\":\"say \\\"\303\251\\\" 8.10\",\"text"
     "2\":\"back\\\\slash \303\237 8.11\"}],\"filters2\":[{\"pattern\":\"Z\303\274ndung \360"
     "\237\232\227 8.12\",\"flag\":true},{\"pattern\":\"Pr\303\274fstand \342\202\254 8.13\","
     "\"flag\":false}],\"strings1\":[\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 8"
     ".14\",\"K\303\274hler\\u0009\360\237\224\247 8.15\"],\"text1\":\"say \\\"\303\251\\\" 8."
     "16\",\"value1\":2147483647,\"text2\":\"back\\\\slash \303\237 8.17\",\"strings2\":[\"Z"
     "\303\274ndung \360\237\232\227 8.18\",\"Pr\303\274fstand \342\202\254 8.19\"],\"text3\":"
     "\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 8.20\",\"value2\":1521180367,\"v"
     "alue3\":2028132481,\"flags\":[true,false,true,false]}]",
     "[\"Pr\303\274fstand \342\202\254 8.1\",{\"itemText1\":\"\346\227\245\346\234\254\350\252"
     "\236 \360\235\204\236 8.2\",\"itemText2\":\"K\303\274hler\\u0009\360\237\224\247 8.3\","
     "\"itemText3\":\"say \\\"\303\251\\\" 8.4\",\"itemText4\":\"back\\\\slash \303\237 8.5\","
     "\"filters1\":[{\"pattern\":\"Z\303\274ndung \360\237\232\227 8.6\",\"flag\":true,\"value"
     "\":4294967295},{\"pattern\":\"Pr\303\274fstand \342\202\254 8.7\",\"flag\":false,\"value"
     "\":2147483648}],\"value0\":-2147483648,\"targets\":[{\"value\":2147483647,\"text1\":\""
     "\346\227\245\346\234\254\350\252\236 \360\235\204\236 8.8\",\"text2\":\"K\303\274hler\\u"
     "0009\360\237\224\247 8.9\"},{\"value\":-1,\"text1\":\"say \\\"\303\251\\\" 8.10\",\"text"
     "2\":\"back\\\\slash \303\237 8.11\"}],\"filters2\":[{\"pattern\":\"Z\303\274ndung \360"
     "\237\232\227 8.12\",\"flag\":true},{\"pattern\":\"Pr\303\274fstand \342\202\254 8.13\","
     "\"flag\":false}],\"strings1\":[\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 8"
     ".14\",\"K\303\274hler\\u0009\360\237\224\247 8.15\"],\"text1\":\"say \\\"\303\251\\\" 8."
     "16\",\"value1\":2147483647,\"text2\":\"back\\\\slash \303\237 8.17\",\"strings2\":[\"Z"
     "\303\274ndung \360\237\232\227 8.18\",\"Pr\303\274fstand \342\202\254 8.19\"],\"text3\":"
     "\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 8.20\",\"value2\":1521180367,\"v"
     "alue3\":2028132481,\"flags\":[true,false,true,false]}]",
     "01", "", 0},
    {"sparse", "[\"\",null]", "[\"\",null]", "null", nullptr,
     "0000000000000000000000000000000000000000000000000000000000000000000000000000000000000000"
     "00000000000000000000000000000000000000000000000000000000",
     "0000",
     "[\"\",{\"itemText1\":\"\",\"itemText2\":\"\",\"itemText3\":\"\",\"itemText4\":\"\",\"fil"
     "ters1\":[],\"value0\":0,\"targets\":[],\"filters2\":[],\"strings1\":[],\"text1\":\"\",\""
     "value1\":0,\"text2\":\"\",\"strings2\":[],\"text3\":\"\",\"value2\":0,\"value3\":0,\"fla"
     "gs\":[false,false,false,false]}]",
     "[\"\",null]", "01", "", 0},
};

const kc::Number kNumber8{8, "setProjectConfiguration", kSetProjectConfigurationCases};

TEST_F(ProjectsByNumber, n8_setProjectConfiguration_KelCall) { kc::kelCall(api, kNumber8); }
TEST_F(ProjectsByNumber, n8_setProjectConfiguration_PyCall) { kc::pyCall(api, kNumber8); }
TEST_F(ProjectsByNumber, n8_setProjectConfiguration_Failure) { kc::numberFailure(api, kNumber8); }
TEST_F(ProjectsByNumber, n8_setProjectConfiguration_ShortInput) { kc::shortInput(api, kNumber8); }

// ---- saveProjectConfiguration (position 9, number 9) ----

const kc::Case kSaveProjectConfigurationCases[] = {
    {"full", "[\"Pr\303\274fstand \342\202\254 9.1\"]", "[\"Pr\303\274fstand \342\202\254 9.1\"]",
     "null", nullptr, "120000005072c3bc667374616e6420e282ac20392e31",
     "5072c3bc667374616e6420e282ac20392e3100", "[\"Pr\303\274fstand \342\202\254 9.1\"]",
     "[\"Pr\303\274fstand \342\202\254 9.1\"]", "01", "", 0},
    {"sparse", "[\"\"]", "[\"\"]", "null", nullptr, "00000000", "00", "[\"\"]", "[\"\"]", "01", "",
     0},
};

struct SaveProjectConfigurationExport {
    static constexpr const char* operation = "saveProjectConfiguration";
    using Result = kc::NoResult;
    static void call(TarnApi* api, const kc::Json& in, KelError** error, Result& out) {
        const kc::Text a0(in[0]);
        static_cast<void>(out);
        kel_saveProjectConfiguration(api, a0.get(), error);
    }
};

TEST_F(Projects, saveProjectConfiguration_Exchange) {
    kc::exchange<SaveProjectConfigurationExport>(api, kSaveProjectConfigurationCases);
}
TEST_F(Projects, saveProjectConfiguration_Failure) {
    kc::failure<SaveProjectConfigurationExport>(api, kSaveProjectConfigurationCases);
}

const kc::Number kNumber9{9, "saveProjectConfiguration", kSaveProjectConfigurationCases};

TEST_F(ProjectsByNumber, n9_saveProjectConfiguration_KelCall) { kc::kelCall(api, kNumber9); }
TEST_F(ProjectsByNumber, n9_saveProjectConfiguration_PyCall) { kc::pyCall(api, kNumber9); }
TEST_F(ProjectsByNumber, n9_saveProjectConfiguration_Failure) { kc::numberFailure(api, kNumber9); }
TEST_F(ProjectsByNumber, n9_saveProjectConfiguration_ShortInput) { kc::shortInput(api, kNumber9); }

// ---- saveConfiguration (position 15, number 15) ----

const kc::Case kSaveConfigurationCases[] = {
    {"full", "[]", "[]", "null", nullptr, "", "", "[]", "[]", "01", "", 0},
};

struct SaveConfigurationExport {
    static constexpr const char* operation = "saveConfiguration";
    using Result = kc::NoResult;
    static void call(TarnApi* api, const kc::Json& in, KelError** error, Result& out) {
        static_cast<void>(out);
        static_cast<void>(in);
        kel_saveConfiguration(api, error);
    }
};

TEST_F(Projects, saveConfiguration_Exchange) {
    kc::exchange<SaveConfigurationExport>(api, kSaveConfigurationCases);
}
TEST_F(Projects, saveConfiguration_Failure) {
    kc::failure<SaveConfigurationExport>(api, kSaveConfigurationCases);
}

const kc::Number kNumber15{15, "saveConfiguration", kSaveConfigurationCases};

TEST_F(ProjectsByNumber, n15_saveConfiguration_KelCall) { kc::kelCall(api, kNumber15); }
TEST_F(ProjectsByNumber, n15_saveConfiguration_PyCall) { kc::pyCall(api, kNumber15); }
TEST_F(ProjectsByNumber, n15_saveConfiguration_Failure) { kc::numberFailure(api, kNumber15); }

// ---- refreshProjectList (position 64, number 85) ----

const kc::Case kRefreshProjectListCases[] = {
    {"full", "[]", "[]", "null", nullptr, "", "", "[]", "[]", "01", "", 0},
};

struct RefreshProjectListExport {
    static constexpr const char* operation = "refreshProjectList";
    using Result = kc::NoResult;
    static void call(TarnApi* api, const kc::Json& in, KelError** error, Result& out) {
        static_cast<void>(out);
        static_cast<void>(in);
        kel_refreshProjectList(api, error);
    }
};

TEST_F(Projects, refreshProjectList_Exchange) {
    kc::exchange<RefreshProjectListExport>(api, kRefreshProjectListCases);
}
TEST_F(Projects, refreshProjectList_Failure) {
    kc::failure<RefreshProjectListExport>(api, kRefreshProjectListCases);
}

const kc::Number kNumber85{85, "refreshProjectList", kRefreshProjectListCases};

TEST_F(ProjectsByNumber, n85_refreshProjectList_KelCall) { kc::kelCall(api, kNumber85); }
TEST_F(ProjectsByNumber, n85_refreshProjectList_PyCall) { kc::pyCall(api, kNumber85); }
TEST_F(ProjectsByNumber, n85_refreshProjectList_Failure) { kc::numberFailure(api, kNumber85); }

// ---- isProjectConversionRequired (position 75, number 99) ----

const kc::Case kIsProjectConversionRequiredCases[] = {
    {"full", "[\"Pr\303\274fstand \342\202\254 75.1\"]", "[\"Pr\303\274fstand \342\202\254 75.1\"]",
     "true", "1", "130000005072c3bc667374616e6420e282ac2037352e31",
     "5072c3bc667374616e6420e282ac2037352e3100", "[\"Pr\303\274fstand \342\202\254 75.1\"]",
     "[\"Pr\303\274fstand \342\202\254 75.1\"]", "0101", "01", 0},
    {"sparse", "[\"\"]", "[\"\"]", "true", "1", "00000000", "00", "[\"\"]", "[\"\"]", "0101", "01",
     0},
};

struct IsProjectConversionRequiredExport {
    static constexpr const char* operation = "isProjectConversionRequired";
    using Result = kc::ValueResult<uint8_t>;
    static void call(TarnApi* api, const kc::Json& in, KelError** error, Result& out) {
        const kc::Text a0(in[0]);
        kel_isProjectConversionRequired(api, a0.get(), error, &out.data);
    }
};

TEST_F(Projects, isProjectConversionRequired_Exchange) {
    kc::exchange<IsProjectConversionRequiredExport>(api, kIsProjectConversionRequiredCases);
}
TEST_F(Projects, isProjectConversionRequired_Failure) {
    kc::failure<IsProjectConversionRequiredExport>(api, kIsProjectConversionRequiredCases);
}

const kc::Number kNumber99{99, "isProjectConversionRequired", kIsProjectConversionRequiredCases};

TEST_F(ProjectsByNumber, n99_isProjectConversionRequired_KelCall) { kc::kelCall(api, kNumber99); }
TEST_F(ProjectsByNumber, n99_isProjectConversionRequired_PyCall) { kc::pyCall(api, kNumber99); }
TEST_F(ProjectsByNumber, n99_isProjectConversionRequired_Failure) {
    kc::numberFailure(api, kNumber99);
}
TEST_F(ProjectsByNumber, n99_isProjectConversionRequired_ShortInput) {
    kc::shortInput(api, kNumber99);
}

// ---- convertProject (position 76, number 100) ----

const kc::Case kConvertProjectCases[] = {
    {"full", "[\"Pr\303\274fstand \342\202\254 76.1\"]", "[\"Pr\303\274fstand \342\202\254 76.1\"]",
     "null", nullptr, "130000005072c3bc667374616e6420e282ac2037362e31",
     "5072c3bc667374616e6420e282ac2037362e3100", "[\"Pr\303\274fstand \342\202\254 76.1\"]",
     "[\"Pr\303\274fstand \342\202\254 76.1\"]", "01", "", 0},
    {"sparse", "[\"\"]", "[\"\"]", "null", nullptr, "00000000", "00", "[\"\"]", "[\"\"]", "01", "",
     0},
};

struct ConvertProjectExport {
    static constexpr const char* operation = "convertProject";
    using Result = kc::NoResult;
    static void call(TarnApi* api, const kc::Json& in, KelError** error, Result& out) {
        const kc::Text a0(in[0]);
        static_cast<void>(out);
        kel_convertProject(api, a0.get(), error);
    }
};

TEST_F(Projects, convertProject_Exchange) {
    kc::exchange<ConvertProjectExport>(api, kConvertProjectCases);
}
TEST_F(Projects, convertProject_Failure) {
    kc::failure<ConvertProjectExport>(api, kConvertProjectCases);
}

const kc::Number kNumber100{100, "convertProject", kConvertProjectCases};

TEST_F(ProjectsByNumber, n100_convertProject_KelCall) { kc::kelCall(api, kNumber100); }
TEST_F(ProjectsByNumber, n100_convertProject_PyCall) { kc::pyCall(api, kNumber100); }
TEST_F(ProjectsByNumber, n100_convertProject_Failure) { kc::numberFailure(api, kNumber100); }
TEST_F(ProjectsByNumber, n100_convertProject_ShortInput) { kc::shortInput(api, kNumber100); }

// ---- saveMoxConfiguration (position 77, number 102) ----

const kc::Case kSaveMoxConfigurationCases[] = {
    {"full", "[]", "[]", "null", nullptr, "", "", "[]", "[]", "01", "", 0},
};

struct SaveMoxConfigurationExport {
    static constexpr const char* operation = "saveMoxConfiguration";
    using Result = kc::NoResult;
    static void call(TarnApi* api, const kc::Json& in, KelError** error, Result& out) {
        static_cast<void>(out);
        static_cast<void>(in);
        kel_saveMoxConfiguration(api, error);
    }
};

TEST_F(Projects, saveMoxConfiguration_Exchange) {
    kc::exchange<SaveMoxConfigurationExport>(api, kSaveMoxConfigurationCases);
}
TEST_F(Projects, saveMoxConfiguration_Failure) {
    kc::failure<SaveMoxConfigurationExport>(api, kSaveMoxConfigurationCases);
}

const kc::Number kNumber102{102, "saveMoxConfiguration", kSaveMoxConfigurationCases};

TEST_F(ProjectsByNumber, n102_saveMoxConfiguration_KelCall) { kc::kelCall(api, kNumber102); }
TEST_F(ProjectsByNumber, n102_saveMoxConfiguration_PyCall) { kc::pyCall(api, kNumber102); }
TEST_F(ProjectsByNumber, n102_saveMoxConfiguration_Failure) { kc::numberFailure(api, kNumber102); }

TEST_F(ProjectsByNumber, n106_getProjectDetails_NotAvailable) {
    kc::notAvailable(api, 106, "getProjectDetails");
}

// ---- getSystemProperty (position 87, number 114) ----

const kc::Case kGetSystemPropertyCases[] = {
    {"full", "[\"Pr\303\274fstand \342\202\254 87.1\"]", "[\"Pr\303\274fstand \342\202\254 87.1\"]",
     "{\"itemText1\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 87.2\",\"itemText"
     "2\":\"K\303\274hler\\u0009\360\237\224\247 87.3\",\"itemText3\":\"say \\\"\303\251\\\" 8"
     "7.4\",\"itemText4\":\"back\\\\slash \303\237 87.5\",\"text1\":\"Z\303\274ndung \360\237"
     "\232\227 87.6\",\"text2\":\"Pr\303\274fstand \342\202\254 87.7\",\"value1\":4294967295,"
     "\"children\":[{\"itemText1\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 87."
     "8\",\"itemText2\":\"K\303\274hler\\u0009\360\237\224\247 87.9\",\"itemText3\":\"say \\\""
     "\303\251\\\" 87.10\",\"itemText4\":\"back\\\\slash \303\237 87.11\",\"text1\":\"Z\303"
     "\274ndung \360\237\232\227 87.12\",\"text2\":\"Pr\303\274fstand \342\202\254 87.13\",\"v"
     "alue1\":2147483648,\"children\":[{\"itemText1\":\"\346\227\245\346\234\254\350\252\236 "
     "\360\235\204\236 87.14\",\"itemText2\":\"K\303\274hler\\u0009\360\237\224\247 87.15\",\""
     "itemText3\":\"say \\\"\303\251\\\" 87.16\",\"itemText4\":\"back\\\\slash \303\237 87.17"
     "\",\"text1\":\"Z\303\274ndung \360\237\232\227 87.18\",\"text2\":\"Pr\303\274fstand \342"
     "\202\254 87.19\",\"value1\":2147483647,\"children\":[],\"text3\":\"\346\227\245\346\234"
     "\254\350\252\236 \360\235\204\236 87.20\",\"error\":{\"code\":-2147483648,\"message\":\""
     "K\303\274hler\\u0009\360\237\224\247 87.21\",\"details\":\"say \\\"\303\251\\\" 87.22\","
     "\"subCode\":2147483647,\"mvciError\":{\"code\":-1,\"codeText\":\"back\\\\slash \303\237 "
     "87.23\",\"vendorCode\":-65536,\"vendorCodeText\":\"Z\303\274ndung \360\237\232\227 87.24"
     "\",\"extraText\":\"Pr\303\274fstand \342\202\254 87.25\",\"extraCode\":2031332217},\"neg"
     "ativeResponse\":{\"code\":-390800685,\"text\":\"\346\227\245\346\234\254\350\252\236 "
     "\360\235\204\236 87.26\",\"value1\":9223372036854775809,\"value2\":18446744073709551615,"
     "\"bytes\":[0,255,255,128]}},\"text4\":\"K\303\274hler\\u0009\360\237\224\247 87.27\",\"v"
     "alue2\":1524380103,\"data\":[0,255,127,1],\"value3\":2031332217,\"flag\":true,\"value4\""
     ":390800685},{\"itemText1\":\"say \\\"\303\251\\\" 87.28\",\"itemText2\":\"back\\\\slash "
     "\303\237 87.29\",\"itemText3\":\"Z\303\274ndung \360\237\232\227 87.30\",\"itemText4\":"
     "\"Pr\303\274fstand \342\202\254 87.31\",\"text1\":\"\346\227\245\346\234\254\350\252\236"
     " \360\235\204\236 87.32\",\"text2\":\"K\303\274hler\\u0009\360\237\224\247 87.33\",\"val"
     "ue1\":897752799,\"children\":[],\"text3\":\"say \\\"\303\251\\\" 87.34\",\"error\":null,"
     "\"text4\":\"back\\\\slash \303\237 87.35\",\"value2\":1404704913,\"data\":[0,255,175,177"
     "],\"value3\":1911657027,\"flag\":false,\"value4\":271125493}],\"text3\":\"Z\303\274ndung"
     " \360\237\232\227 87.36\",\"error\":{\"code\":897752799,\"message\":\"Pr\303\274fstand "
     "\342\202\254 87.37\",\"details\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236"
     " 87.38\",\"subCode\":-1404704913,\"mvciError\":{\"code\":1911657027,\"codeText\":\"K\303"
     "\274hler\\u0009\360\237\224\247 87.39\",\"vendorCode\":-271125493,\"vendorCodeText\":\"s"
     "ay \\\"\303\251\\\" 87.40\",\"extraText\":\"back\\\\slash \303\237 87.41\",\"extraCode\""
     ":778077607},\"negativeResponse\":{\"code\":-1285029721,\"text\":\"Z\303\274ndung \360"
     "\237\232\227 87.42\",\"value1\":4294967296,\"value2\":1524380103,\"bytes\":[0,255,160,17"
     "9]}},\"text4\":\"Pr\303\274fstand \342\202\254 87.43\",\"value2\":778077607,\"data\":[0,"
     "255,162,181],\"value3\":1285029721,\"flag\":true,\"value4\":1791981835},{\"itemText1\":"
     "\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 87.44\",\"itemText2\":\"K\303"
     "\274hler\\u0009\360\237\224\247 87.45\",\"itemText3\":\"say \\\"\303\251\\\" 87.46\",\"i"
     "temText4\":\"back\\\\slash \303\237 87.47\",\"text1\":\"Z\303\274ndung \360\237\232\227 "
     "87.48\",\"text2\":\"Pr\303\274fstand \342\202\254 87.49\",\"value1\":151450303,\"childre"
     "n\":[],\"text3\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 87.50\",\"error"
     "\":null,\"text4\":\"K\303\274hler\\u0009\360\237\224\247 87.51\",\"value2\":658402417,\""
     "data\":[0,255,164,183],\"value3\":1165354531,\"flag\":false,\"value4\":1672306645}],\"te"
     "xt3\":\"say \\\"\303\251\\\" 87.52\",\"error\":{\"code\":1791981835,\"message\":\"back\\"
     "\\slash \303\237 87.53\",\"details\":\"Z\303\274ndung \360\237\232\227 87.54\",\"subCode"
     "\":-151450303,\"mvciError\":{\"code\":658402417,\"codeText\":\"Pr\303\274fstand \342\202"
     "\254 87.55\",\"vendorCode\":-1165354531,\"vendorCodeText\":\"\346\227\245\346\234\254"
     "\350\252\236 \360\235\204\236 87.56\",\"extraText\":\"K\303\274hler\\u0009\360\237\224"
     "\247 87.57\",\"extraCode\":1672306645},\"negativeResponse\":{\"code\":-31775111,\"text\""
     ":\"say \\\"\303\251\\\" 87.58\",\"value1\":2031332217,\"value2\":390800685,\"bytes\":[0,"
     "255,166,185]}},\"text4\":\"back\\\\slash \303\237 87.59\",\"value2\":31775111,\"data\":["
     "0,255,168,187],\"value3\":538727225,\"flag\":true,\"value4\":1045679339}",
     "{\"itemText1\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 87.2\",\"itemText"
     "2\":\"K\303\274hler\\u0009\360\237\224\247 87.3\",\"itemText3\":\"say \\\"\303\251\\\" 8"
     "7.4\",\"itemText4\":\"back\\\\slash \303\237 87.5\",\"text1\":\"Z\303\274ndung \360\237"
     "\232\227 87.6\",\"text2\":\"Pr\303\274fstand \342\202\254 87.7\",\"value1\":4294967295,"
     "\"children\":[{\"itemText1\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 87."
     "8\",\"itemText2\":\"K\303\274hler\\u0009\360\237\224\247 87.9\",\"itemText3\":\"say \\\""
     "\303\251\\\" 87.10\",\"itemText4\":\"back\\\\slash \303\237 87.11\",\"text1\":\"Z\303"
     "\274ndung \360\237\232\227 87.12\",\"text2\":\"Pr\303\274fstand \342\202\254 87.13\",\"v"
     "alue1\":2147483648,\"children\":[{\"itemText1\":\"\346\227\245\346\234\254\350\252\236 "
     "\360\235\204\236 87.14\",\"itemText2\":\"K\303\274hler\\u0009\360\237\224\247 87.15\",\""
     "itemText3\":\"say \\\"\303\251\\\" 87.16\",\"itemText4\":\"back\\\\slash \303\237 87.17"
     "\",\"text1\":\"Z\303\274ndung \360\237\232\227 87.18\",\"text2\":\"Pr\303\274fstand \342"
     "\202\254 87.19\",\"value1\":2147483647,\"children\":null,\"childCount\":0,\"text3\":\""
     "\346\227\245\346\234\254\350\252\236 \360\235\204\236 87.20\",\"error\":{\"code\":-21474"
     "83648,\"message\":\"K\303\274hler\\u0009\360\237\224\247 87.21\",\"details\":\"say \\\""
     "\303\251\\\" 87.22\",\"subCode\":2147483647,\"mvciError\":{\"code\":-1,\"codeText\":\"ba"
     "ck\\\\slash \303\237 87.23\",\"vendorCode\":-65536,\"vendorCodeText\":\"Z\303\274ndung "
     "\360\237\232\227 87.24\",\"extraText\":\"Pr\303\274fstand \342\202\254 87.25\",\"extraCo"
     "de\":2031332217},\"negativeResponse\":{\"code\":-390800685,\"text\":\"\346\227\245\346"
     "\234\254\350\252\236 \360\235\204\236 87.26\",\"value1\":9223372036854775809,\"value2\":"
     "18446744073709551615,\"bytes\":[0,255,255,128],\"byteCount\":4}},\"text4\":\"K\303\274hl"
     "er\\u0009\360\237\224\247 87.27\",\"value2\":1524380103,\"data\":[0,255,127,1],\"dataLen"
     "gth\":4,\"value3\":2031332217,\"flag\":1,\"value4\":390800685},{\"itemText1\":\"say \\\""
     "\303\251\\\" 87.28\",\"itemText2\":\"back\\\\slash \303\237 87.29\",\"itemText3\":\"Z"
     "\303\274ndung \360\237\232\227 87.30\",\"itemText4\":\"Pr\303\274fstand \342\202\254 87."
     "31\",\"text1\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 87.32\",\"text2\""
     ":\"K\303\274hler\\u0009\360\237\224\247 87.33\",\"value1\":897752799,\"children\":null,"
     "\"childCount\":0,\"text3\":\"say \\\"\303\251\\\" 87.34\",\"error\":null,\"text4\":\"bac"
     "k\\\\slash \303\237 87.35\",\"value2\":1404704913,\"data\":[0,255,175,177],\"dataLength"
     "\":4,\"value3\":1911657027,\"flag\":0,\"value4\":271125493}],\"childCount\":2,\"text3\":"
     "\"Z\303\274ndung \360\237\232\227 87.36\",\"error\":{\"code\":897752799,\"message\":\"Pr"
     "\303\274fstand \342\202\254 87.37\",\"details\":\"\346\227\245\346\234\254\350\252\236 "
     "\360\235\204\236 87.38\",\"subCode\":-1404704913,\"mvciError\":{\"code\":1911657027,\"co"
     "deText\":\"K\303\274hler\\u0009\360\237\224\247 87.39\",\"vendorCode\":-271125493,\"vend"
     "orCodeText\":\"say \\\"\303\251\\\" 87.40\",\"extraText\":\"back\\\\slash \303\237 87.41"
     "\",\"extraCode\":778077607},\"negativeResponse\":{\"code\":-1285029721,\"text\":\"Z\303"
     "\274ndung \360\237\232\227 87.42\",\"value1\":4294967296,\"value2\":1524380103,\"bytes\""
     ":[0,255,160,179],\"byteCount\":4}},\"text4\":\"Pr\303\274fstand \342\202\254 87.43\",\"v"
     "alue2\":778077607,\"data\":[0,255,162,181],\"dataLength\":4,\"value3\":1285029721,\"flag"
     "\":1,\"value4\":1791981835},{\"itemText1\":\"\346\227\245\346\234\254\350\252\236 \360"
     "\235\204\236 87.44\",\"itemText2\":\"K\303\274hler\\u0009\360\237\224\247 87.45\",\"item"
     "Text3\":\"say \\\"\303\251\\\" 87.46\",\"itemText4\":\"back\\\\slash \303\237 87.47\",\""
     "text1\":\"Z\303\274ndung \360\237\232\227 87.48\",\"text2\":\"Pr\303\274fstand \342\202"
     "\254 87.49\",\"value1\":151450303,\"children\":null,\"childCount\":0,\"text3\":\"\346"
     "\227\245\346\234\254\350\252\236 \360\235\204\236 87.50\",\"error\":null,\"text4\":\"K"
     "\303\274hler\\u0009\360\237\224\247 87.51\",\"value2\":658402417,\"data\":[0,255,164,183"
     "],\"dataLength\":4,\"value3\":1165354531,\"flag\":0,\"value4\":1672306645}],\"childCount"
     "\":2,\"text3\":\"say \\\"\303\251\\\" 87.52\",\"error\":{\"code\":1791981835,\"message\""
     ":\"back\\\\slash \303\237 87.53\",\"details\":\"Z\303\274ndung \360\237\232\227 87.54\","
     "\"subCode\":-151450303,\"mvciError\":{\"code\":658402417,\"codeText\":\"Pr\303\274fstand"
     " \342\202\254 87.55\",\"vendorCode\":-1165354531,\"vendorCodeText\":\"\346\227\245\346"
     "\234\254\350\252\236 \360\235\204\236 87.56\",\"extraText\":\"K\303\274hler\\u0009\360"
     "\237\224\247 87.57\",\"extraCode\":1672306645},\"negativeResponse\":{\"code\":-31775111,"
     "\"text\":\"say \\\"\303\251\\\" 87.58\",\"value1\":2031332217,\"value2\":390800685,\"byt"
     "es\":[0,255,166,185],\"byteCount\":4}},\"text4\":\"back\\\\slash \303\237 87.59\",\"valu"
     "e2\":31775111,\"data\":[0,255,168,187],\"dataLength\":4,\"value3\":538727225,\"flag\":1,"
     "\"value4\":1045679339}",
     "130000005072c3bc667374616e6420e282ac2038372e31", "5072c3bc667374616e6420e282ac2038372e3100",
     "[\"Pr\303\274fstand \342\202\254 87.1\"]", "[\"Pr\303\274fstand \342\202\254 87.1\"]",
     "010113000000e697a5e69cace8aa9e20f09d849e2038372e32110000004bc3bc686c657209f09f94a7203837"
     "2e330d0000007361792022c3a9222038372e34120000006261636b5c736c61736820c39f2038372e35120000"
     "005ac3bc6e64756e6720f09f9a972038372e36130000005072c3bc667374616e6420e282ac2038372e37ffff"
     "ffff020000000113000000e697a5e69cace8aa9e20f09d849e2038372e38110000004bc3bc686c657209f09f"
     "94a72038372e390e0000007361792022c3a9222038372e3130130000006261636b5c736c61736820c39f2038"
     "372e3131130000005ac3bc6e64756e6720f09f9a972038372e3132140000005072c3bc667374616e6420e282"
     "ac2038372e313300000080020000000114000000e697a5e69cace8aa9e20f09d849e2038372e313412000000"
     "4bc3bc686c657209f09f94a72038372e31350e0000007361792022c3a9222038372e3136130000006261636b"
     "5c736c61736820c39f2038372e3137130000005ac3bc6e64756e6720f09f9a972038372e3138140000005072"
     "c3bc667374616e6420e282ac2038372e3139ffffff7f0000000014000000e697a5e69cace8aa9e20f09d849e"
     "2038372e32300100000080120000004bc3bc686c657209f09f94a72038372e32310e0000007361792022c3a9"
     "222038372e3232ffffff7f01ffffffff130000006261636b5c736c61736820c39f2038372e32330000ffff13"
     "0000005ac3bc6e64756e6720f09f9a972038372e3234140000005072c3bc667374616e6420e282ac2038372e"
     "323579ab137901d3dab4e814000000e697a5e69cace8aa9e20f09d849e2038372e32360100000000000080ff"
     "ffffffffffffff0400000000ffff80120000004bc3bc686c657209f09f94a72038372e3237c731dc5a040000"
     "0000ff7f0179ab1379012d254b17010e0000007361792022c3a9222038372e3238130000006261636b5c736c"
     "61736820c39f2038372e3239130000005ac3bc6e64756e6720f09f9a972038372e3330140000005072c3bc66"
     "7374616e6420e282ac2038372e333114000000e697a5e69cace8aa9e20f09d849e2038372e3332120000004b"
     "c3bc686c657209f09f94a72038372e3333df9e8235000000000e0000007361792022c3a9222038372e333400"
     "130000006261636b5c736c61736820c39f2038372e33359118ba530400000000ffafb14392f17100f50b2910"
     "130000005ac3bc6e64756e6720f09f9a972038372e333601df9e8235140000005072c3bc667374616e6420e2"
     "82ac2038372e333714000000e697a5e69cace8aa9e20f09d849e2038372e33386fe745ac014392f171120000"
     "004bc3bc686c657209f09f94a72038372e33390bf4d6ef0e0000007361792022c3a9222038372e3430130000"
     "006261636b5c736c61736820c39f2038372e3431a785602e01a70068b3130000005ac3bc6e64756e6720f09f"
     "9a972038372e34320000000001000000c731dc5a000000000400000000ffa0b3140000005072c3bc66737461"
     "6e6420e282ac2038372e3433a785602e0400000000ffa2b559ff974c010b79cf6a0114000000e697a5e69cac"
     "e8aa9e20f09d849e2038372e3434120000004bc3bc686c657209f09f94a72038372e34350e00000073617920"
     "22c3a9222038372e3436130000006261636b5c736c61736820c39f2038372e3437130000005ac3bc6e64756e"
     "6720f09f9a972038372e3438140000005072c3bc667374616e6420e282ac2038372e3439bff2060900000000"
     "14000000e697a5e69cace8aa9e20f09d849e2038372e353000120000004bc3bc686c657209f09f94a7203837"
     "2e3531716c3e270400000000ffa4b723e6754500d55fad630e0000007361792022c3a9222038372e3532010b"
     "79cf6a130000006261636b5c736c61736820c39f2038372e3533130000005ac3bc6e64756e6720f09f9a9720"
     "38372e3534410df9f601716c3e27140000005072c3bc667374616e6420e282ac2038372e3535dd198aba1400"
     "0000e697a5e69cace8aa9e20f09d849e2038372e3536120000004bc3bc686c657209f09f94a72038372e3537"
     "d55fad630179261bfe0e0000007361792022c3a9222038372e353879ab1379000000002d254b170000000004"
     "00000000ffa6b9130000006261636b5c736c61736820c39f2038372e353987d9e4010400000000ffa8bb3953"
     "1c2001ebcc533e",
     "0113000000e697a5e69cace8aa9e20f09d849e2038372e32110000004bc3bc686c657209f09f94a72038372e"
     "330d0000007361792022c3a9222038372e34120000006261636b5c736c61736820c39f2038372e3512000000"
     "5ac3bc6e64756e6720f09f9a972038372e36130000005072c3bc667374616e6420e282ac2038372e37ffffff"
     "ff020000000113000000e697a5e69cace8aa9e20f09d849e2038372e38110000004bc3bc686c657209f09f94"
     "a72038372e390e0000007361792022c3a9222038372e3130130000006261636b5c736c61736820c39f203837"
     "2e3131130000005ac3bc6e64756e6720f09f9a972038372e3132140000005072c3bc667374616e6420e282ac"
     "2038372e313300000080020000000114000000e697a5e69cace8aa9e20f09d849e2038372e3134120000004b"
     "c3bc686c657209f09f94a72038372e31350e0000007361792022c3a9222038372e3136130000006261636b5c"
     "736c61736820c39f2038372e3137130000005ac3bc6e64756e6720f09f9a972038372e3138140000005072c3"
     "bc667374616e6420e282ac2038372e3139ffffff7f0000000014000000e697a5e69cace8aa9e20f09d849e20"
     "38372e32300100000080120000004bc3bc686c657209f09f94a72038372e32310e0000007361792022c3a922"
     "2038372e3232ffffff7f01ffffffff130000006261636b5c736c61736820c39f2038372e32330000ffff1300"
     "00005ac3bc6e64756e6720f09f9a972038372e3234140000005072c3bc667374616e6420e282ac2038372e32"
     "3579ab137901d3dab4e814000000e697a5e69cace8aa9e20f09d849e2038372e32360100000000000080ffff"
     "ffffffffffff0400000000ffff80120000004bc3bc686c657209f09f94a72038372e3237c731dc5a04000000"
     "00ff7f0179ab1379012d254b17010e0000007361792022c3a9222038372e3238130000006261636b5c736c61"
     "736820c39f2038372e3239130000005ac3bc6e64756e6720f09f9a972038372e3330140000005072c3bc6673"
     "74616e6420e282ac2038372e333114000000e697a5e69cace8aa9e20f09d849e2038372e3332120000004bc3"
     "bc686c657209f09f94a72038372e3333df9e8235000000000e0000007361792022c3a9222038372e33340013"
     "0000006261636b5c736c61736820c39f2038372e33359118ba530400000000ffafb14392f17100f50b291013"
     "0000005ac3bc6e64756e6720f09f9a972038372e333601df9e8235140000005072c3bc667374616e6420e282"
     "ac2038372e333714000000e697a5e69cace8aa9e20f09d849e2038372e33386fe745ac014392f17112000000"
     "4bc3bc686c657209f09f94a72038372e33390bf4d6ef0e0000007361792022c3a9222038372e343013000000"
     "6261636b5c736c61736820c39f2038372e3431a785602e01a70068b3130000005ac3bc6e64756e6720f09f9a"
     "972038372e34320000000001000000c731dc5a000000000400000000ffa0b3140000005072c3bc667374616e"
     "6420e282ac2038372e3433a785602e0400000000ffa2b559ff974c010b79cf6a0114000000e697a5e69cace8"
     "aa9e20f09d849e2038372e3434120000004bc3bc686c657209f09f94a72038372e34350e0000007361792022"
     "c3a9222038372e3436130000006261636b5c736c61736820c39f2038372e3437130000005ac3bc6e64756e67"
     "20f09f9a972038372e3438140000005072c3bc667374616e6420e282ac2038372e3439bff206090000000014"
     "000000e697a5e69cace8aa9e20f09d849e2038372e353000120000004bc3bc686c657209f09f94a72038372e"
     "3531716c3e270400000000ffa4b723e6754500d55fad630e0000007361792022c3a9222038372e3532010b79"
     "cf6a130000006261636b5c736c61736820c39f2038372e3533130000005ac3bc6e64756e6720f09f9a972038"
     "372e3534410df9f601716c3e27140000005072c3bc667374616e6420e282ac2038372e3535dd198aba140000"
     "00e697a5e69cace8aa9e20f09d849e2038372e3536120000004bc3bc686c657209f09f94a72038372e3537d5"
     "5fad630179261bfe0e0000007361792022c3a9222038372e353879ab1379000000002d254b17000000000400"
     "000000ffa6b9130000006261636b5c736c61736820c39f2038372e353987d9e4010400000000ffa8bb39531c"
     "2001ebcc533e",
     0},
    {"sparse", "[\"\"]", "[\"\"]",
     "{\"itemText1\":\"\",\"itemText2\":\"\",\"itemText3\":\"\",\"itemText4\":\"\",\"text1\":"
     "\"\",\"text2\":\"\",\"value1\":4294967295,\"children\":[{\"itemText1\":\"\",\"itemText2"
     "\":\"\",\"itemText3\":\"\",\"itemText4\":\"\",\"text1\":\"\",\"text2\":\"\",\"value1\":2"
     "147483648,\"children\":[],\"text3\":\"\",\"error\":null,\"text4\":\"\",\"value2\":214748"
     "3647,\"data\":[],\"value3\":1524380103,\"flag\":true,\"value4\":2031332217}],\"text3\":"
     "\"\",\"error\":{\"code\":-2147483648,\"message\":\"\",\"details\":\"\",\"subCode\":21474"
     "83647,\"mvciError\":null,\"negativeResponse\":null},\"text4\":\"\",\"value2\":390800685,"
     "\"data\":[],\"value3\":897752799,\"flag\":false,\"value4\":1404704913}",
     "{\"itemText1\":\"\",\"itemText2\":\"\",\"itemText3\":\"\",\"itemText4\":\"\",\"text1\":"
     "\"\",\"text2\":\"\",\"value1\":4294967295,\"children\":[{\"itemText1\":\"\",\"itemText2"
     "\":\"\",\"itemText3\":\"\",\"itemText4\":\"\",\"text1\":\"\",\"text2\":\"\",\"value1\":2"
     "147483648,\"children\":null,\"childCount\":0,\"text3\":\"\",\"error\":null,\"text4\":\""
     "\",\"value2\":2147483647,\"data\":null,\"dataLength\":0,\"value3\":1524380103,\"flag\":1"
     ",\"value4\":2031332217}],\"childCount\":1,\"text3\":\"\",\"error\":{\"code\":-2147483648"
     ",\"message\":\"\",\"details\":\"\",\"subCode\":2147483647,\"mvciError\":null,\"negativeR"
     "esponse\":null},\"text4\":\"\",\"value2\":390800685,\"data\":null,\"dataLength\":0,\"val"
     "ue3\":897752799,\"flag\":0,\"value4\":1404704913}",
     "00000000", "00", "[\"\"]", "[\"\"]",
     "0101000000000000000000000000000000000000000000000000ffffffff0100000001000000000000000000"
     "0000000000000000000000000000000000008000000000000000000000000000ffffff7f00000000c731dc5a"
     "0179ab13790000000001000000800000000000000000ffffff7f0000000000002d254b1700000000df9e8235"
     "009118ba53",
     "01000000000000000000000000000000000000000000000000ffffffff010000000100000000000000000000"
     "00000000000000000000000000000000008000000000000000000000000000ffffff7f00000000c731dc5a01"
     "79ab13790000000001000000800000000000000000ffffff7f0000000000002d254b1700000000df9e823500"
     "9118ba53",
     0},
    {"empty", "[\"\"]", "[\"\"]", "null", "null", "00000000", "00", "[\"\"]", "[\"\"]", "0100",
     "00", 0},
};

const kc::Number kNumber114{114, "getSystemProperty", kGetSystemPropertyCases};

TEST_F(ProjectsByNumber, n114_getSystemProperty_KelCall) { kc::kelCall(api, kNumber114); }
TEST_F(ProjectsByNumber, n114_getSystemProperty_PyCall) { kc::pyCall(api, kNumber114); }
TEST_F(ProjectsByNumber, n114_getSystemProperty_Failure) { kc::numberFailure(api, kNumber114); }
TEST_F(ProjectsByNumber, n114_getSystemProperty_ShortInput) { kc::shortInput(api, kNumber114); }

// ---- resetSystemProperty (position 88, number 115) ----

const kc::Case kResetSystemPropertyCases[] = {
    {"full", "[\"Pr\303\274fstand \342\202\254 88.1\"]", "[\"Pr\303\274fstand \342\202\254 88.1\"]",
     "null", nullptr, "130000005072c3bc667374616e6420e282ac2038382e31",
     "5072c3bc667374616e6420e282ac2038382e3100", "[\"Pr\303\274fstand \342\202\254 88.1\"]",
     "[\"Pr\303\274fstand \342\202\254 88.1\"]", "01", "", 0},
    {"sparse", "[\"\"]", "[\"\"]", "null", nullptr, "00000000", "00", "[\"\"]", "[\"\"]", "01", "",
     0},
};

struct ResetSystemPropertyExport {
    static constexpr const char* operation = "resetSystemProperty";
    using Result = kc::NoResult;
    static void call(TarnApi* api, const kc::Json& in, KelError** error, Result& out) {
        const kc::Text a0(in[0]);
        static_cast<void>(out);
        kel_resetSystemProperty(api, a0.get(), error);
    }
};

TEST_F(Projects, resetSystemProperty_Exchange) {
    kc::exchange<ResetSystemPropertyExport>(api, kResetSystemPropertyCases);
}
TEST_F(Projects, resetSystemProperty_Failure) {
    kc::failure<ResetSystemPropertyExport>(api, kResetSystemPropertyCases);
}

const kc::Number kNumber115{115, "resetSystemProperty", kResetSystemPropertyCases};

TEST_F(ProjectsByNumber, n115_resetSystemProperty_KelCall) { kc::kelCall(api, kNumber115); }
TEST_F(ProjectsByNumber, n115_resetSystemProperty_PyCall) { kc::pyCall(api, kNumber115); }
TEST_F(ProjectsByNumber, n115_resetSystemProperty_Failure) { kc::numberFailure(api, kNumber115); }
TEST_F(ProjectsByNumber, n115_resetSystemProperty_ShortInput) { kc::shortInput(api, kNumber115); }

// ---- setSystemProperty (position 89, number 116) ----

const kc::Case kSetSystemPropertyCases[] = {
    {"full",
     "[{\"itemText1\":\"Pr\303\274fstand \342\202\254 89.1\",\"itemText2\":\"\346\227\245\346"
     "\234\254\350\252\236 \360\235\204\236 89.2\",\"itemText3\":\"K\303\274hler\\u0009\360"
     "\237\224\247 89.3\",\"itemText4\":\"say \\\"\303\251\\\" 89.4\",\"text1\":\"back\\\\slas"
     "h \303\237 89.5\",\"text2\":\"Z\303\274ndung \360\237\232\227 89.6\",\"value1\":42949672"
     "95,\"children\":[{\"itemText1\":\"Pr\303\274fstand \342\202\254 89.7\",\"itemText2\":\""
     "\346\227\245\346\234\254\350\252\236 \360\235\204\236 89.8\",\"itemText3\":\"K\303\274hl"
     "er\\u0009\360\237\224\247 89.9\",\"itemText4\":\"say \\\"\303\251\\\" 89.10\",\"text1\":"
     "\"back\\\\slash \303\237 89.11\",\"text2\":\"Z\303\274ndung \360\237\232\227 89.12\",\"v"
     "alue1\":2147483648,\"children\":[{\"itemText1\":\"Pr\303\274fstand \342\202\254 89.13\","
     "\"itemText2\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 89.14\",\"itemText"
     "3\":\"K\303\274hler\\u0009\360\237\224\247 89.15\",\"itemText4\":\"say \\\"\303\251\\\" "
     "89.16\",\"text1\":\"back\\\\slash \303\237 89.17\",\"text2\":\"Z\303\274ndung \360\237"
     "\232\227 89.18\",\"value1\":2147483647,\"children\":[],\"text3\":\"Pr\303\274fstand \342"
     "\202\254 89.19\",\"error\":{\"code\":-2147483648,\"message\":\"\346\227\245\346\234\254"
     "\350\252\236 \360\235\204\236 89.20\",\"details\":\"K\303\274hler\\u0009\360\237\224\247"
     " 89.21\",\"subCode\":2147483647,\"mvciError\":{\"code\":-1,\"codeText\":\"say \\\"\303"
     "\251\\\" 89.22\",\"vendorCode\":-65536,\"vendorCodeText\":\"back\\\\slash \303\237 89.23"
     "\",\"extraText\":\"Z\303\274ndung \360\237\232\227 89.24\",\"extraCode\":2031413223},\"n"
     "egativeResponse\":{\"code\":-390881691,\"text\":\"Pr\303\274fstand \342\202\254 89.25\","
     "\"value1\":9223372036854775809,\"value2\":18446744073709551615,\"bytes\":[0,255,255,128]"
     "}},\"text4\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 89.26\",\"value2\":"
     "1524461109,\"data\":[0,255,127,1],\"value3\":2031413223,\"flag\":128,\"value4\":39088169"
     "1},{\"itemText1\":\"K\303\274hler\\u0009\360\237\224\247 89.27\",\"itemText2\":\"say \\"
     "\"\303\251\\\" 89.28\",\"itemText3\":\"back\\\\slash \303\237 89.29\",\"itemText4\":\"Z"
     "\303\274ndung \360\237\232\227 89.30\",\"text1\":\"Pr\303\274fstand \342\202\254 89.31\""
     ",\"text2\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 89.32\",\"value1\":89"
     "7833805,\"children\":[],\"text3\":\"K\303\274hler\\u0009\360\237\224\247 89.33\",\"error"
     "\":null,\"text4\":\"say \\\"\303\251\\\" 89.34\",\"value2\":1404785919,\"data\":[0,255,9"
     "1,93],\"value3\":1911738033,\"flag\":0,\"value4\":271206499}],\"text3\":\"back\\\\slash "
     "\303\237 89.35\",\"error\":{\"code\":897833805,\"message\":\"Z\303\274ndung \360\237\232"
     "\227 89.36\",\"details\":\"Pr\303\274fstand \342\202\254 89.37\",\"subCode\":-1404785919"
     ",\"mvciError\":{\"code\":1911738033,\"codeText\":\"\346\227\245\346\234\254\350\252\236 "
     "\360\235\204\236 89.38\",\"vendorCode\":-271206499,\"vendorCodeText\":\"K\303\274hler\\u"
     "0009\360\237\224\247 89.39\",\"extraText\":\"say \\\"\303\251\\\" 89.40\",\"extraCode\":"
     "778158613},\"negativeResponse\":{\"code\":-1285110727,\"text\":\"back\\\\slash \303\237 "
     "89.41\",\"value1\":4294967296,\"value2\":1524461109,\"bytes\":[0,255,76,95]}},\"text4\":"
     "\"Z\303\274ndung \360\237\232\227 89.42\",\"value2\":778158613,\"data\":[0,255,78,97],\""
     "value3\":1285110727,\"flag\":255,\"value4\":1792062841},{\"itemText1\":\"Pr\303\274fstan"
     "d \342\202\254 89.43\",\"itemText2\":\"\346\227\245\346\234\254\350\252\236 \360\235\204"
     "\236 89.44\",\"itemText3\":\"K\303\274hler\\u0009\360\237\224\247 89.45\",\"itemText4\":"
     "\"say \\\"\303\251\\\" 89.46\",\"text1\":\"back\\\\slash \303\237 89.47\",\"text2\":\"Z"
     "\303\274ndung \360\237\232\227 89.48\",\"value1\":151531309,\"children\":[],\"text3\":\""
     "Pr\303\274fstand \342\202\254 89.49\",\"error\":null,\"text4\":\"\346\227\245\346\234"
     "\254\350\252\236 \360\235\204\236 89.50\",\"value2\":658483423,\"data\":[0,255,80,99],\""
     "value3\":1165435537,\"flag\":0,\"value4\":1672387651}],\"text3\":\"K\303\274hler\\u0009"
     "\360\237\224\247 89.51\",\"error\":{\"code\":1792062841,\"message\":\"say \\\"\303\251\\"
     "\" 89.52\",\"details\":\"back\\\\slash \303\237 89.53\",\"subCode\":-151531309,\"mvciErr"
     "or\":{\"code\":658483423,\"codeText\":\"Z\303\274ndung \360\237\232\227 89.54\",\"vendor"
     "Code\":-1165435537,\"vendorCodeText\":\"Pr\303\274fstand \342\202\254 89.55\",\"extraTex"
     "t\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 89.56\",\"extraCode\":167238"
     "7651},\"negativeResponse\":{\"code\":-31856117,\"text\":\"K\303\274hler\\u0009\360\237"
     "\224\247 89.57\",\"value1\":2031413223,\"value2\":390881691,\"bytes\":[0,255,82,101]}},"
     "\"text4\":\"say \\\"\303\251\\\" 89.58\",\"value2\":31856117,\"data\":[0,255,84,103],\"v"
     "alue3\":538808231,\"flag\":2,\"value4\":1045760345}]",
     "[{\"itemText1\":\"Pr\303\274fstand \342\202\254 89.1\",\"itemText2\":\"\346\227\245\346"
     "\234\254\350\252\236 \360\235\204\236 89.2\",\"itemText3\":\"K\303\274hler\\u0009\360"
     "\237\224\247 89.3\",\"itemText4\":\"say \\\"\303\251\\\" 89.4\",\"text1\":\"back\\\\slas"
     "h \303\237 89.5\",\"text2\":\"Z\303\274ndung \360\237\232\227 89.6\",\"value1\":42949672"
     "95,\"children\":[{\"itemText1\":\"Pr\303\274fstand \342\202\254 89.7\",\"itemText2\":\""
     "\346\227\245\346\234\254\350\252\236 \360\235\204\236 89.8\",\"itemText3\":\"K\303\274hl"
     "er\\u0009\360\237\224\247 89.9\",\"itemText4\":\"say \\\"\303\251\\\" 89.10\",\"text1\":"
     "\"back\\\\slash \303\237 89.11\",\"text2\":\"Z\303\274ndung \360\237\232\227 89.12\",\"v"
     "alue1\":2147483648,\"children\":[{\"itemText1\":\"Pr\303\274fstand \342\202\254 89.13\","
     "\"itemText2\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 89.14\",\"itemText"
     "3\":\"K\303\274hler\\u0009\360\237\224\247 89.15\",\"itemText4\":\"say \\\"\303\251\\\" "
     "89.16\",\"text1\":\"back\\\\slash \303\237 89.17\",\"text2\":\"Z\303\274ndung \360\237"
     "\232\227 89.18\",\"value1\":2147483647,\"children\":[],\"text3\":\"Pr\303\274fstand \342"
     "\202\254 89.19\",\"error\":{\"code\":-2147483648,\"message\":\"\346\227\245\346\234\254"
     "\350\252\236 \360\235\204\236 89.20\",\"details\":\"K\303\274hler\\u0009\360\237\224\247"
     " 89.21\",\"subCode\":2147483647,\"mvciError\":{\"code\":-1,\"codeText\":\"say \\\"\303"
     "\251\\\" 89.22\",\"vendorCode\":-65536,\"vendorCodeText\":\"back\\\\slash \303\237 89.23"
     "\",\"extraText\":\"Z\303\274ndung \360\237\232\227 89.24\",\"extraCode\":2031413223},\"n"
     "egativeResponse\":{\"code\":-390881691,\"text\":\"Pr\303\274fstand \342\202\254 89.25\","
     "\"value1\":9223372036854775809,\"value2\":18446744073709551615,\"bytes\":[0,255,255,128]"
     "}},\"text4\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 89.26\",\"value2\":"
     "1524461109,\"data\":[0,255,127,1],\"value3\":2031413223,\"flag\":true,\"value4\":3908816"
     "91},{\"itemText1\":\"K\303\274hler\\u0009\360\237\224\247 89.27\",\"itemText2\":\"say \\"
     "\"\303\251\\\" 89.28\",\"itemText3\":\"back\\\\slash \303\237 89.29\",\"itemText4\":\"Z"
     "\303\274ndung \360\237\232\227 89.30\",\"text1\":\"Pr\303\274fstand \342\202\254 89.31\""
     ",\"text2\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 89.32\",\"value1\":89"
     "7833805,\"children\":[],\"text3\":\"K\303\274hler\\u0009\360\237\224\247 89.33\",\"error"
     "\":null,\"text4\":\"say \\\"\303\251\\\" 89.34\",\"value2\":1404785919,\"data\":[0,255,9"
     "1,93],\"value3\":1911738033,\"flag\":false,\"value4\":271206499}],\"text3\":\"back\\\\sl"
     "ash \303\237 89.35\",\"error\":{\"code\":897833805,\"message\":\"Z\303\274ndung \360\237"
     "\232\227 89.36\",\"details\":\"Pr\303\274fstand \342\202\254 89.37\",\"subCode\":-140478"
     "5919,\"mvciError\":{\"code\":1911738033,\"codeText\":\"\346\227\245\346\234\254\350\252"
     "\236 \360\235\204\236 89.38\",\"vendorCode\":-271206499,\"vendorCodeText\":\"K\303\274hl"
     "er\\u0009\360\237\224\247 89.39\",\"extraText\":\"say \\\"\303\251\\\" 89.40\",\"extraCo"
     "de\":778158613},\"negativeResponse\":{\"code\":-1285110727,\"text\":\"back\\\\slash \303"
     "\237 89.41\",\"value1\":4294967296,\"value2\":1524461109,\"bytes\":[0,255,76,95]}},\"tex"
     "t4\":\"Z\303\274ndung \360\237\232\227 89.42\",\"value2\":778158613,\"data\":[0,255,78,9"
     "7],\"value3\":1285110727,\"flag\":true,\"value4\":1792062841},{\"itemText1\":\"Pr\303"
     "\274fstand \342\202\254 89.43\",\"itemText2\":\"\346\227\245\346\234\254\350\252\236 "
     "\360\235\204\236 89.44\",\"itemText3\":\"K\303\274hler\\u0009\360\237\224\247 89.45\",\""
     "itemText4\":\"say \\\"\303\251\\\" 89.46\",\"text1\":\"back\\\\slash \303\237 89.47\",\""
     "text2\":\"Z\303\274ndung \360\237\232\227 89.48\",\"value1\":151531309,\"children\":[],"
     "\"text3\":\"Pr\303\274fstand \342\202\254 89.49\",\"error\":null,\"text4\":\"\346\227"
     "\245\346\234\254\350\252\236 \360\235\204\236 89.50\",\"value2\":658483423,\"data\":[0,2"
     "55,80,99],\"value3\":1165435537,\"flag\":false,\"value4\":1672387651}],\"text3\":\"K\303"
     "\274hler\\u0009\360\237\224\247 89.51\",\"error\":{\"code\":1792062841,\"message\":\"say"
     " \\\"\303\251\\\" 89.52\",\"details\":\"back\\\\slash \303\237 89.53\",\"subCode\":-1515"
     "31309,\"mvciError\":{\"code\":658483423,\"codeText\":\"Z\303\274ndung \360\237\232\227 8"
     "9.54\",\"vendorCode\":-1165435537,\"vendorCodeText\":\"Pr\303\274fstand \342\202\254 89."
     "55\",\"extraText\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 89.56\",\"ext"
     "raCode\":1672387651},\"negativeResponse\":{\"code\":-31856117,\"text\":\"K\303\274hler\\"
     "u0009\360\237\224\247 89.57\",\"value1\":2031413223,\"value2\":390881691,\"bytes\":[0,25"
     "5,82,101]}},\"text4\":\"say \\\"\303\251\\\" 89.58\",\"value2\":31856117,\"data\":[0,255"
     ",84,103],\"value3\":538808231,\"flag\":true,\"value4\":1045760345}]",
     "null", nullptr,
     "130000005072c3bc667374616e6420e282ac2038392e3113000000e697a5e69cace8aa9e20f09d849e203839"
     "2e32110000004bc3bc686c657209f09f94a72038392e330d0000007361792022c3a9222038392e3412000000"
     "6261636b5c736c61736820c39f2038392e35120000005ac3bc6e64756e6720f09f9a972038392e36ffffffff"
     "02000000130000005072c3bc667374616e6420e282ac2038392e3713000000e697a5e69cace8aa9e20f09d84"
     "9e2038392e38110000004bc3bc686c657209f09f94a72038392e390e0000007361792022c3a9222038392e31"
     "30130000006261636b5c736c61736820c39f2038392e3131130000005ac3bc6e64756e6720f09f9a97203839"
     "2e31320000008002000000140000005072c3bc667374616e6420e282ac2038392e313314000000e697a5e69c"
     "ace8aa9e20f09d849e2038392e3134120000004bc3bc686c657209f09f94a72038392e31350e000000736179"
     "2022c3a9222038392e3136130000006261636b5c736c61736820c39f2038392e3137130000005ac3bc6e6475"
     "6e6720f09f9a972038392e3138ffffff7f00000000140000005072c3bc667374616e6420e282ac2038392e31"
     "390000008014000000e697a5e69cace8aa9e20f09d849e2038392e3230120000004bc3bc686c657209f09f94"
     "a72038392e3231ffffff7fffffffff0e0000007361792022c3a9222038392e32320000ffff13000000626163"
     "6b5c736c61736820c39f2038392e3233130000005ac3bc6e64756e6720f09f9a972038392e3234e7e7147965"
     "9eb3e8140000005072c3bc667374616e6420e282ac2038392e32350100000000000080ffffffffffffffff04"
     "00000000ffff8014000000e697a5e69cace8aa9e20f09d849e2038392e3236356edd5a0400000000ff7f01e7"
     "e71479019b614c17120000004bc3bc686c657209f09f94a72038392e32370e0000007361792022c3a9222038"
     "392e3238130000006261636b5c736c61736820c39f2038392e3239130000005ac3bc6e64756e6720f09f9a97"
     "2038392e3330140000005072c3bc667374616e6420e282ac2038392e333114000000e697a5e69cace8aa9e20"
     "f09d849e2038392e33324ddb833500000000120000004bc3bc686c657209f09f94a72038392e333300000000"
     "0000000000000000000000000000000000000000000000000000000000000000000000000000000000000000"
     "00000000000000000000000000000000000000000e0000007361792022c3a9222038392e3334ff54bb530400"
     "000000ff5b5db1cef2710063482a10130000006261636b5c736c61736820c39f2038392e33354ddb83351300"
     "00005ac3bc6e64756e6720f09f9a972038392e3336140000005072c3bc667374616e6420e282ac2038392e33"
     "3701ab44acb1cef27114000000e697a5e69cace8aa9e20f09d849e2038392e33389db7d5ef120000004bc3bc"
     "686c657209f09f94a72038392e33390e0000007361792022c3a9222038392e343015c2612e39c466b3130000"
     "006261636b5c736c61736820c39f2038392e34310000000001000000356edd5a000000000400000000ff4c5f"
     "130000005ac3bc6e64756e6720f09f9a972038392e343215c2612e0400000000ff4e61c73b994c0179b5d06a"
     "140000005072c3bc667374616e6420e282ac2038392e343314000000e697a5e69cace8aa9e20f09d849e2038"
     "392e3434120000004bc3bc686c657209f09f94a72038392e34350e0000007361792022c3a9222038392e3436"
     "130000006261636b5c736c61736820c39f2038392e3437130000005ac3bc6e64756e6720f09f9a972038392e"
     "34382d2f080900000000140000005072c3bc667374616e6420e282ac2038392e343900000000000000000000"
     "0000000000000000000000000000000000000000000000000000000000000000000000000000000000000000"
     "000000000000000000000000000014000000e697a5e69cace8aa9e20f09d849e2038392e3530dfa83f270400"
     "000000ff50639122774500439cae63120000004bc3bc686c657209f09f94a72038392e353179b5d06a0e0000"
     "007361792022c3a9222038392e3532130000006261636b5c736c61736820c39f2038392e3533d3d0f7f6dfa8"
     "3f27130000005ac3bc6e64756e6720f09f9a972038392e35346fdd88ba140000005072c3bc667374616e6420"
     "e282ac2038392e353514000000e697a5e69cace8aa9e20f09d849e2038392e3536439cae630bea19fe120000"
     "004bc3bc686c657209f09f94a72038392e3537e7e71479000000009b614c17000000000400000000ff52650e"
     "0000007361792022c3a9222038392e3538f515e6010400000000ff5467a78f1d20015909553e",
     "015072c3bc667374616e6420e282ac2038392e3100e697a5e69cace8aa9e20f09d849e2038392e32004bc3bc"
     "686c657209f09f94a72038392e33007361792022c3a9222038392e34006261636b5c736c61736820c39f2038"
     "392e35005ac3bc6e64756e6720f09f9a972038392e3600ffffffff02000000015072c3bc667374616e6420e2"
     "82ac2038392e3700e697a5e69cace8aa9e20f09d849e2038392e38004bc3bc686c657209f09f94a72038392e"
     "39007361792022c3a9222038392e3130006261636b5c736c61736820c39f2038392e3131005ac3bc6e64756e"
     "6720f09f9a972038392e3132000000008002000000015072c3bc667374616e6420e282ac2038392e313300e6"
     "97a5e69cace8aa9e20f09d849e2038392e3134004bc3bc686c657209f09f94a72038392e3135007361792022"
     "c3a9222038392e3136006261636b5c736c61736820c39f2038392e3137005ac3bc6e64756e6720f09f9a9720"
     "38392e313800ffffff7f000000005072c3bc667374616e6420e282ac2038392e3139000100000080e697a5e6"
     "9cace8aa9e20f09d849e2038392e3230004bc3bc686c657209f09f94a72038392e323100ffffff7f01ffffff"
     "ff7361792022c3a9222038392e3232000000ffff6261636b5c736c61736820c39f2038392e3233005ac3bc6e"
     "64756e6720f09f9a972038392e323400e7e7147901659eb3e85072c3bc667374616e6420e282ac2038392e32"
     "35000100000000000080ffffffffffffffff0400000000ffff80e697a5e69cace8aa9e20f09d849e2038392e"
     "323600356edd5a0400000000ff7f01e7e71479019b614c17014bc3bc686c657209f09f94a72038392e323700"
     "7361792022c3a9222038392e3238006261636b5c736c61736820c39f2038392e3239005ac3bc6e64756e6720"
     "f09f9a972038392e3330005072c3bc667374616e6420e282ac2038392e333100e697a5e69cace8aa9e20f09d"
     "849e2038392e3332004ddb8335000000004bc3bc686c657209f09f94a72038392e333300007361792022c3a9"
     "222038392e333400ff54bb530400000000ff5b5db1cef2710063482a106261636b5c736c61736820c39f2038"
     "392e333500014ddb83355ac3bc6e64756e6720f09f9a972038392e3336005072c3bc667374616e6420e282ac"
     "2038392e33370001ab44ac01b1cef271e697a5e69cace8aa9e20f09d849e2038392e3338009db7d5ef4bc3bc"
     "686c657209f09f94a72038392e3339007361792022c3a9222038392e34300015c2612e0139c466b36261636b"
     "5c736c61736820c39f2038392e3431000000000001000000356edd5a000000000400000000ff4c5f5ac3bc6e"
     "64756e6720f09f9a972038392e34320015c2612e0400000000ff4e61c73b994c0179b5d06a015072c3bc6673"
     "74616e6420e282ac2038392e343300e697a5e69cace8aa9e20f09d849e2038392e3434004bc3bc686c657209"
     "f09f94a72038392e3435007361792022c3a9222038392e3436006261636b5c736c61736820c39f2038392e34"
     "37005ac3bc6e64756e6720f09f9a972038392e3438002d2f0809000000005072c3bc667374616e6420e282ac"
     "2038392e34390000e697a5e69cace8aa9e20f09d849e2038392e353000dfa83f270400000000ff5063912277"
     "4500439cae634bc3bc686c657209f09f94a72038392e3531000179b5d06a7361792022c3a9222038392e3532"
     "006261636b5c736c61736820c39f2038392e353300d3d0f7f601dfa83f275ac3bc6e64756e6720f09f9a9720"
     "38392e3534006fdd88ba5072c3bc667374616e6420e282ac2038392e353500e697a5e69cace8aa9e20f09d84"
     "9e2038392e353600439cae63010bea19fe4bc3bc686c657209f09f94a72038392e353700e7e7147900000000"
     "9b614c17000000000400000000ff52657361792022c3a9222038392e353800f515e6010400000000ff5467a7"
     "8f1d20015909553e",
     "[{\"itemText1\":\"Pr\303\274fstand \342\202\254 89.1\",\"itemText2\":\"\346\227\245\346"
     "\234\254\350\252\236 \360\235\204\236 89.2\",\"itemText3\":\"K\303\274hler\\u0009\360"
     "\237\224\247 89.3\",\"itemText4\":\"say \\\"\303\251\\\" 89.4\",\"text1\":\"back\\\\slas"
     "h \303\237 89.5\",\"text2\":\"Z\303\274ndung \360\237\232\227 89.6\",\"value1\":42949672"
     "95,\"children\":[{\"itemText1\":\"Pr\303\274fstand \342\202\254 89.7\",\"itemText2\":\""
     "\346\227\245\346\234\254\350\252\236 \360\235\204\236 89.8\",\"itemText3\":\"K\303\274hl"
     "er\\u0009\360\237\224\247 89.9\",\"itemText4\":\"say \\\"\303\251\\\" 89.10\",\"text1\":"
     "\"back\\\\slash \303\237 89.11\",\"text2\":\"Z\303\274ndung \360\237\232\227 89.12\",\"v"
     "alue1\":2147483648,\"children\":[{\"itemText1\":\"Pr\303\274fstand \342\202\254 89.13\","
     "\"itemText2\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 89.14\",\"itemText"
     "3\":\"K\303\274hler\\u0009\360\237\224\247 89.15\",\"itemText4\":\"say \\\"\303\251\\\" "
     "89.16\",\"text1\":\"back\\\\slash \303\237 89.17\",\"text2\":\"Z\303\274ndung \360\237"
     "\232\227 89.18\",\"value1\":2147483647,\"children\":[],\"text3\":\"Pr\303\274fstand \342"
     "\202\254 89.19\",\"error\":{\"code\":-2147483648,\"message\":\"\346\227\245\346\234\254"
     "\350\252\236 \360\235\204\236 89.20\",\"details\":\"K\303\274hler\\u0009\360\237\224\247"
     " 89.21\",\"subCode\":2147483647,\"mvciError\":{\"code\":-1,\"codeText\":\"say \\\"\303"
     "\251\\\" 89.22\",\"vendorCode\":-65536,\"vendorCodeText\":\"back\\\\slash \303\237 89.23"
     "\",\"extraText\":\"Z\303\274ndung \360\237\232\227 89.24\",\"extraCode\":2031413223},\"n"
     "egativeResponse\":{\"code\":-390881691,\"text\":\"Pr\303\274fstand \342\202\254 89.25\","
     "\"value1\":9223372036854775809,\"value2\":18446744073709551615,\"bytes\":[0,255,255,128]"
     "}},\"text4\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 89.26\",\"value2\":"
     "1524461109,\"data\":[0,255,127,1],\"value3\":2031413223,\"flag\":true,\"value4\":3908816"
     "91},{\"itemText1\":\"K\303\274hler\\u0009\360\237\224\247 89.27\",\"itemText2\":\"say \\"
     "\"\303\251\\\" 89.28\",\"itemText3\":\"back\\\\slash \303\237 89.29\",\"itemText4\":\"Z"
     "\303\274ndung \360\237\232\227 89.30\",\"text1\":\"Pr\303\274fstand \342\202\254 89.31\""
     ",\"text2\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 89.32\",\"value1\":89"
     "7833805,\"children\":[],\"text3\":\"K\303\274hler\\u0009\360\237\224\247 89.33\",\"error"
     "\":{\"code\":0,\"message\":\"\",\"details\":\"\",\"subCode\":0,\"mvciError\":{\"code\":0"
     ",\"codeText\":\"\",\"vendorCode\":0,\"vendorCodeText\":\"\",\"extraText\":\"\",\"extraCo"
     "de\":0},\"negativeResponse\":{\"code\":0,\"text\":\"\",\"value1\":0,\"value2\":0,\"bytes"
     "\":[]}},\"text4\":\"say \\\"\303\251\\\" 89.34\",\"value2\":1404785919,\"data\":[0,255,9"
     "1,93],\"value3\":1911738033,\"flag\":false,\"value4\":271206499}],\"text3\":\"back\\\\sl"
     "ash \303\237 89.35\",\"error\":{\"code\":897833805,\"message\":\"Z\303\274ndung \360\237"
     "\232\227 89.36\",\"details\":\"Pr\303\274fstand \342\202\254 89.37\",\"subCode\":-140478"
     "5919,\"mvciError\":{\"code\":1911738033,\"codeText\":\"\346\227\245\346\234\254\350\252"
     "\236 \360\235\204\236 89.38\",\"vendorCode\":-271206499,\"vendorCodeText\":\"K\303\274hl"
     "er\\u0009\360\237\224\247 89.39\",\"extraText\":\"say \\\"\303\251\\\" 89.40\",\"extraCo"
     "de\":778158613},\"negativeResponse\":{\"code\":-1285110727,\"text\":\"back\\\\slash \303"
     "\237 89.41\",\"value1\":4294967296,\"value2\":1524461109,\"bytes\":[0,255,76,95]}},\"tex"
     "t4\":\"Z\303\274ndung \360\237\232\227 89.42\",\"value2\":778158613,\"data\":[0,255,78,9"
     "7],\"value3\":1285110727,\"flag\":true,\"value4\":1792062841},{\"itemText1\":\"Pr\303"
     "\274fstand \342\202\254 89.43\",\"itemText2\":\"\346\227\245\346\234\254\350\252\236 "
     "\360\235\204\236 89.44\",\"itemText3\":\"K\303\274hler\\u0009\360\237\224\247 89.45\",\""
     "itemText4\":\"say \\\"\303\251\\\" 89.46\",\"text1\":\"back\\\\slash \303\237 89.47\",\""
     "text2\":\"Z\303\274ndung \360\237\232\227 89.48\",\"value1\":151531309,\"children\":[],"
     "\"text3\":\"Pr\303\274fstand \342\202\254 89.49\",\"error\":{\"code\":0,\"message\":\"\""
     ",\"details\":\"\",\"subCode\":0,\"mvciError\":{\"code\":0,\"codeText\":\"\",\"vendorCode"
     "\":0,\"vendorCodeText\":\"\",\"extraText\":\"\",\"extraCode\":0},\"negativeResponse\":{"
     "\"code\":0,\"text\":\"\",\"value1\":0,\"value2\":0,\"bytes\":[]}},\"text4\":\"\346\227"
     "\245\346\234\254\350\252\236 \360\235\204\236 89.50\",\"value2\":658483423,\"data\":[0,2"
     "55,80,99],\"value3\":1165435537,\"flag\":false,\"value4\":1672387651}],\"text3\":\"K\303"
     "\274hler\\u0009\360\237\224\247 89.51\",\"error\":{\"code\":1792062841,\"message\":\"say"
     " \\\"\303\251\\\" 89.52\",\"details\":\"back\\\\slash \303\237 89.53\",\"subCode\":-1515"
     "31309,\"mvciError\":{\"code\":658483423,\"codeText\":\"Z\303\274ndung \360\237\232\227 8"
     "9.54\",\"vendorCode\":-1165435537,\"vendorCodeText\":\"Pr\303\274fstand \342\202\254 89."
     "55\",\"extraText\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 89.56\",\"ext"
     "raCode\":1672387651},\"negativeResponse\":{\"code\":-31856117,\"text\":\"K\303\274hler\\"
     "u0009\360\237\224\247 89.57\",\"value1\":2031413223,\"value2\":390881691,\"bytes\":[0,25"
     "5,82,101]}},\"text4\":\"say \\\"\303\251\\\" 89.58\",\"value2\":31856117,\"data\":[0,255"
     ",84,103],\"value3\":538808231,\"flag\":true,\"value4\":1045760345}]",
     "[{\"itemText1\":\"Pr\303\274fstand \342\202\254 89.1\",\"itemText2\":\"\346\227\245\346"
     "\234\254\350\252\236 \360\235\204\236 89.2\",\"itemText3\":\"K\303\274hler\\u0009\360"
     "\237\224\247 89.3\",\"itemText4\":\"say \\\"\303\251\\\" 89.4\",\"text1\":\"back\\\\slas"
     "h \303\237 89.5\",\"text2\":\"Z\303\274ndung \360\237\232\227 89.6\",\"value1\":42949672"
     "95,\"children\":[{\"itemText1\":\"Pr\303\274fstand \342\202\254 89.7\",\"itemText2\":\""
     "\346\227\245\346\234\254\350\252\236 \360\235\204\236 89.8\",\"itemText3\":\"K\303\274hl"
     "er\\u0009\360\237\224\247 89.9\",\"itemText4\":\"say \\\"\303\251\\\" 89.10\",\"text1\":"
     "\"back\\\\slash \303\237 89.11\",\"text2\":\"Z\303\274ndung \360\237\232\227 89.12\",\"v"
     "alue1\":2147483648,\"children\":[{\"itemText1\":\"Pr\303\274fstand \342\202\254 89.13\","
     "\"itemText2\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 89.14\",\"itemText"
     "3\":\"K\303\274hler\\u0009\360\237\224\247 89.15\",\"itemText4\":\"say \\\"\303\251\\\" "
     "89.16\",\"text1\":\"back\\\\slash \303\237 89.17\",\"text2\":\"Z\303\274ndung \360\237"
     "\232\227 89.18\",\"value1\":2147483647,\"children\":[],\"text3\":\"Pr\303\274fstand \342"
     "\202\254 89.19\",\"error\":{\"code\":-2147483648,\"message\":\"\346\227\245\346\234\254"
     "\350\252\236 \360\235\204\236 89.20\",\"details\":\"K\303\274hler\\u0009\360\237\224\247"
     " 89.21\",\"subCode\":2147483647,\"mvciError\":{\"code\":-1,\"codeText\":\"say \\\"\303"
     "\251\\\" 89.22\",\"vendorCode\":-65536,\"vendorCodeText\":\"back\\\\slash \303\237 89.23"
     "\",\"extraText\":\"Z\303\274ndung \360\237\232\227 89.24\",\"extraCode\":2031413223},\"n"
     "egativeResponse\":{\"code\":-390881691,\"text\":\"Pr\303\274fstand \342\202\254 89.25\","
     "\"value1\":9223372036854775809,\"value2\":18446744073709551615,\"bytes\":[0,255,255,128]"
     "}},\"text4\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 89.26\",\"value2\":"
     "1524461109,\"data\":[0,255,127,1],\"value3\":2031413223,\"flag\":true,\"value4\":3908816"
     "91},{\"itemText1\":\"K\303\274hler\\u0009\360\237\224\247 89.27\",\"itemText2\":\"say \\"
     "\"\303\251\\\" 89.28\",\"itemText3\":\"back\\\\slash \303\237 89.29\",\"itemText4\":\"Z"
     "\303\274ndung \360\237\232\227 89.30\",\"text1\":\"Pr\303\274fstand \342\202\254 89.31\""
     ",\"text2\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 89.32\",\"value1\":89"
     "7833805,\"children\":[],\"text3\":\"K\303\274hler\\u0009\360\237\224\247 89.33\",\"error"
     "\":null,\"text4\":\"say \\\"\303\251\\\" 89.34\",\"value2\":1404785919,\"data\":[0,255,9"
     "1,93],\"value3\":1911738033,\"flag\":false,\"value4\":271206499}],\"text3\":\"back\\\\sl"
     "ash \303\237 89.35\",\"error\":{\"code\":897833805,\"message\":\"Z\303\274ndung \360\237"
     "\232\227 89.36\",\"details\":\"Pr\303\274fstand \342\202\254 89.37\",\"subCode\":-140478"
     "5919,\"mvciError\":{\"code\":1911738033,\"codeText\":\"\346\227\245\346\234\254\350\252"
     "\236 \360\235\204\236 89.38\",\"vendorCode\":-271206499,\"vendorCodeText\":\"K\303\274hl"
     "er\\u0009\360\237\224\247 89.39\",\"extraText\":\"say \\\"\303\251\\\" 89.40\",\"extraCo"
     "de\":778158613},\"negativeResponse\":{\"code\":-1285110727,\"text\":\"back\\\\slash \303"
     "\237 89.41\",\"value1\":4294967296,\"value2\":1524461109,\"bytes\":[0,255,76,95]}},\"tex"
     "t4\":\"Z\303\274ndung \360\237\232\227 89.42\",\"value2\":778158613,\"data\":[0,255,78,9"
     "7],\"value3\":1285110727,\"flag\":true,\"value4\":1792062841},{\"itemText1\":\"Pr\303"
     "\274fstand \342\202\254 89.43\",\"itemText2\":\"\346\227\245\346\234\254\350\252\236 "
     "\360\235\204\236 89.44\",\"itemText3\":\"K\303\274hler\\u0009\360\237\224\247 89.45\",\""
     "itemText4\":\"say \\\"\303\251\\\" 89.46\",\"text1\":\"back\\\\slash \303\237 89.47\",\""
     "text2\":\"Z\303\274ndung \360\237\232\227 89.48\",\"value1\":151531309,\"children\":[],"
     "\"text3\":\"Pr\303\274fstand \342\202\254 89.49\",\"error\":null,\"text4\":\"\346\227"
     "\245\346\234\254\350\252\236 \360\235\204\236 89.50\",\"value2\":658483423,\"data\":[0,2"
     "55,80,99],\"value3\":1165435537,\"flag\":false,\"value4\":1672387651}],\"text3\":\"K\303"
     "\274hler\\u0009\360\237\224\247 89.51\",\"error\":{\"code\":1792062841,\"message\":\"say"
     " \\\"\303\251\\\" 89.52\",\"details\":\"back\\\\slash \303\237 89.53\",\"subCode\":-1515"
     "31309,\"mvciError\":{\"code\":658483423,\"codeText\":\"Z\303\274ndung \360\237\232\227 8"
     "9.54\",\"vendorCode\":-1165435537,\"vendorCodeText\":\"Pr\303\274fstand \342\202\254 89."
     "55\",\"extraText\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 89.56\",\"ext"
     "raCode\":1672387651},\"negativeResponse\":{\"code\":-31856117,\"text\":\"K\303\274hler\\"
     "u0009\360\237\224\247 89.57\",\"value1\":2031413223,\"value2\":390881691,\"bytes\":[0,25"
     "5,82,101]}},\"text4\":\"say \\\"\303\251\\\" 89.58\",\"value2\":31856117,\"data\":[0,255"
     ",84,103],\"value3\":538808231,\"flag\":true,\"value4\":1045760345}]",
     "01", "", 0},
    {"sparse", "[null]", "[null]", "null", nullptr,
     "0000000000000000000000000000000000000000000000000000000000000000000000000000000000000000"
     "0000000000000000000000000000000000000000000000000000000000000000000000000000000000000000"
     "00000000000000000000000000000000000000000000000000000000000000000000000000",
     "00",
     "[{\"itemText1\":\"\",\"itemText2\":\"\",\"itemText3\":\"\",\"itemText4\":\"\",\"text1\":"
     "\"\",\"text2\":\"\",\"value1\":0,\"children\":[],\"text3\":\"\",\"error\":{\"code\":0,\""
     "message\":\"\",\"details\":\"\",\"subCode\":0,\"mvciError\":{\"code\":0,\"codeText\":\""
     "\",\"vendorCode\":0,\"vendorCodeText\":\"\",\"extraText\":\"\",\"extraCode\":0},\"negati"
     "veResponse\":{\"code\":0,\"text\":\"\",\"value1\":0,\"value2\":0,\"bytes\":[]}},\"text4"
     "\":\"\",\"value2\":0,\"data\":[],\"value3\":0,\"flag\":false,\"value4\":0}]",
     "[null]", "01", "", 0},
};

const kc::Number kNumber116{116, "setSystemProperty", kSetSystemPropertyCases};

TEST_F(ProjectsByNumber, n116_setSystemProperty_KelCall) { kc::kelCall(api, kNumber116); }
TEST_F(ProjectsByNumber, n116_setSystemProperty_PyCall) { kc::pyCall(api, kNumber116); }
TEST_F(ProjectsByNumber, n116_setSystemProperty_Failure) { kc::numberFailure(api, kNumber116); }
TEST_F(ProjectsByNumber, n116_setSystemProperty_ShortInput) { kc::shortInput(api, kNumber116); }

// ---- getSystemInfo (position 150, number 183) ----

const kc::Case kGetSystemInfoCases[] = {
    {"full", "[]", "[]",
     "{\"value1\":4294967295,\"value2\":2147483648,\"text1\":\"Pr\303\274fstand \342\202\254 1"
     "50.1\",\"value3\":2147483647,\"text2\":\"\346\227\245\346\234\254\350\252\236 \360\235"
     "\204\236 150.2\",\"text3\":\"K\303\274hler\\u0009\360\237\224\247 150.3\",\"text4\":\"sa"
     "y \\\"\303\251\\\" 150.4\"}",
     "{\"value1\":4294967295,\"value2\":2147483648,\"text1\":\"Pr\303\274fstand \342\202\254 1"
     "50.1\",\"value3\":2147483647,\"text2\":\"\346\227\245\346\234\254\350\252\236 \360\235"
     "\204\236 150.2\",\"text3\":\"K\303\274hler\\u0009\360\237\224\247 150.3\",\"text4\":\"sa"
     "y \\\"\303\251\\\" 150.4\"}",
     "", "", "[]", "[]",
     "0101ffffffff00000080140000005072c3bc667374616e6420e282ac203135302e31ffffff7f14000000e697"
     "a5e69cace8aa9e20f09d849e203135302e32120000004bc3bc686c657209f09f94a7203135302e330e000000"
     "7361792022c3a922203135302e34",
     "01ffffffff00000080140000005072c3bc667374616e6420e282ac203135302e31ffffff7f14000000e697a5"
     "e69cace8aa9e20f09d849e203135302e32120000004bc3bc686c657209f09f94a7203135302e330e00000073"
     "61792022c3a922203135302e34",
     0},
    {"sparse", "[]", "[]",
     "{\"value1\":4294967295,\"value2\":2147483648,\"text1\":\"\",\"value3\":2147483647,\"text"
     "2\":\"\",\"text3\":\"\",\"text4\":\"\"}",
     "{\"value1\":4294967295,\"value2\":2147483648,\"text1\":\"\",\"value3\":2147483647,\"text"
     "2\":\"\",\"text3\":\"\",\"text4\":\"\"}",
     "", "", "[]", "[]", "0101ffffffff0000008000000000ffffff7f000000000000000000000000",
     "01ffffffff0000008000000000ffffff7f000000000000000000000000", 0},
    {"empty", "[]", "[]", "null", "null", "", "", "[]", "[]", "0100", "00", 0},
};

const kc::Number kNumber183{183, "getSystemInfo", kGetSystemInfoCases};

TEST_F(ProjectsByNumber, n183_getSystemInfo_KelCall) { kc::kelCall(api, kNumber183); }
TEST_F(ProjectsByNumber, n183_getSystemInfo_PyCall) { kc::pyCall(api, kNumber183); }
TEST_F(ProjectsByNumber, n183_getSystemInfo_Failure) { kc::numberFailure(api, kNumber183); }

// ---- loadDatabaseFile (position 168, number 198) ----

const kc::Case kLoadDatabaseFileCases[] = {
    {"full",
     "[[\"Pr\303\274fstand \342\202\254 168.1\",\"\",\"\346\227\245\346\234\254\350\252\236 "
     "\360\235\204\236 168.2\"]]",
     "[[\"Pr\303\274fstand \342\202\254 168.1\",\"\",\"\346\227\245\346\234\254\350\252\236 "
     "\360\235\204\236 168.2\"]]",
     "[{\"text\":\"K\303\274hler\\u0009\360\237\224\247 168.3\",\"flag\":true,\"error\":{\"cod"
     "e\":-2147483648,\"message\":\"say \\\"\303\251\\\" 168.4\",\"details\":\"back\\\\slash "
     "\303\237 168.5\",\"subCode\":2147483647,\"mvciError\":{\"code\":-1,\"codeText\":\"Z\303"
     "\274ndung \360\237\232\227 168.6\",\"vendorCode\":-65536,\"vendorCodeText\":\"Pr\303\274"
     "fstand \342\202\254 168.7\",\"extraText\":\"\346\227\245\346\234\254\350\252\236 \360"
     "\235\204\236 168.8\",\"extraCode\":2034612961},\"negativeResponse\":{\"code\":-394081427"
     ",\"text\":\"K\303\274hler\\u0009\360\237\224\247 168.9\",\"value1\":9223372036854775809,"
     "\"value2\":18446744073709551615,\"bytes\":[0,255,255,128]}}},{\"text\":\"say \\\"\303"
     "\251\\\" 168.10\",\"flag\":false,\"error\":null}]",
     "[{\"text\":\"K\303\274hler\\u0009\360\237\224\247 168.3\",\"flag\":1,\"error\":{\"code\""
     ":-2147483648,\"message\":\"say \\\"\303\251\\\" 168.4\",\"details\":\"back\\\\slash \303"
     "\237 168.5\",\"subCode\":2147483647,\"mvciError\":{\"code\":-1,\"codeText\":\"Z\303\274n"
     "dung \360\237\232\227 168.6\",\"vendorCode\":-65536,\"vendorCodeText\":\"Pr\303\274fstan"
     "d \342\202\254 168.7\",\"extraText\":\"\346\227\245\346\234\254\350\252\236 \360\235\204"
     "\236 168.8\",\"extraCode\":2034612961},\"negativeResponse\":{\"code\":-394081427,\"text"
     "\":\"K\303\274hler\\u0009\360\237\224\247 168.9\",\"value1\":9223372036854775809,\"value"
     "2\":18446744073709551615,\"bytes\":[0,255,255,128],\"byteCount\":4}}},{\"text\":\"say \\"
     "\"\303\251\\\" 168.10\",\"flag\":0,\"error\":null}]",
     "03000000140000005072c3bc667374616e6420e282ac203136382e310000000014000000e697a5e69cace8aa"
     "9e20f09d849e203136382e32",
     "030000005072c3bc667374616e6420e282ac203136382e310000e697a5e69cace8aa9e20f09d849e20313638"
     "2e3200",
     "[[\"Pr\303\274fstand \342\202\254 168.1\",\"\",\"\346\227\245\346\234\254\350\252\236 "
     "\360\235\204\236 168.2\"]]",
     "[[\"Pr\303\274fstand \342\202\254 168.1\",\"\",\"\346\227\245\346\234\254\350\252\236 "
     "\360\235\204\236 168.2\"]]",
     "010200000001120000004bc3bc686c657209f09f94a7203136382e330101000000800e0000007361792022c3"
     "a922203136382e34130000006261636b5c736c61736820c39f203136382e35ffffff7f01ffffffff13000000"
     "5ac3bc6e64756e6720f09f9a97203136382e360000ffff140000005072c3bc667374616e6420e282ac203136"
     "382e3714000000e697a5e69cace8aa9e20f09d849e203136382e38e1ba4579016dcb82e8120000004bc3bc68"
     "6c657209f09f94a7203136382e390100000000000080ffffffffffffffff0400000000ffff80010f00000073"
     "61792022c3a922203136382e31300000",
     "0200000001120000004bc3bc686c657209f09f94a7203136382e330101000000800e0000007361792022c3a9"
     "22203136382e34130000006261636b5c736c61736820c39f203136382e35ffffff7f01ffffffff130000005a"
     "c3bc6e64756e6720f09f9a97203136382e360000ffff140000005072c3bc667374616e6420e282ac20313638"
     "2e3714000000e697a5e69cace8aa9e20f09d849e203136382e38e1ba4579016dcb82e8120000004bc3bc686c"
     "657209f09f94a7203136382e390100000000000080ffffffffffffffff0400000000ffff80010f0000007361"
     "792022c3a922203136382e31300000",
     0},
    {"sparse", "[[]]", "[[]]",
     "[{\"text\":\"\",\"flag\":true,\"error\":{\"code\":-2147483648,\"message\":\"\",\"details"
     "\":\"\",\"subCode\":2147483647,\"mvciError\":null,\"negativeResponse\":null}},null]",
     "[{\"text\":\"\",\"flag\":1,\"error\":{\"code\":-2147483648,\"message\":\"\",\"details\":"
     "\"\",\"subCode\":2147483647,\"mvciError\":null,\"negativeResponse\":null}},null]",
     "00000000", "00000000", "[[]]", "[[]]",
     "010200000001000000000101000000800000000000000000ffffff7f000000",
     "0200000001000000000101000000800000000000000000ffffff7f000000", 0},
    {"empty", "[[]]", "[[]]", "[]", "null", "00000000", "00000000", "[[]]", "[[]]", "0100000000",
     "00000000", 0},
};

const kc::Number kNumber198{198, "loadDatabaseFile", kLoadDatabaseFileCases};

TEST_F(ProjectsByNumber, n198_loadDatabaseFile_KelCall) { kc::kelCall(api, kNumber198); }
TEST_F(ProjectsByNumber, n198_loadDatabaseFile_PyCall) { kc::pyCall(api, kNumber198); }
TEST_F(ProjectsByNumber, n198_loadDatabaseFile_Failure) { kc::numberFailure(api, kNumber198); }
TEST_F(ProjectsByNumber, n198_loadDatabaseFile_ShortInput) { kc::shortInput(api, kNumber198); }

// ---- unloadDatabaseFile (position 175, number 206) ----

const kc::Case kUnloadDatabaseFileCases[] = {
    {"full",
     "[[\"Pr\303\274fstand \342\202\254 175.1\",\"\",\"\346\227\245\346\234\254\350\252\236 "
     "\360\235\204\236 175.2\"]]",
     "[[\"Pr\303\274fstand \342\202\254 175.1\",\"\",\"\346\227\245\346\234\254\350\252\236 "
     "\360\235\204\236 175.2\"]]",
     "[{\"text\":\"K\303\274hler\\u0009\360\237\224\247 175.3\",\"flag\":true,\"error\":{\"cod"
     "e\":-2147483648,\"message\":\"say \\\"\303\251\\\" 175.4\",\"details\":\"back\\\\slash "
     "\303\237 175.5\",\"subCode\":2147483647,\"mvciError\":{\"code\":-1,\"codeText\":\"Z\303"
     "\274ndung \360\237\232\227 175.6\",\"vendorCode\":-65536,\"vendorCodeText\":\"Pr\303\274"
     "fstand \342\202\254 175.7\",\"extraText\":\"\346\227\245\346\234\254\350\252\236 \360"
     "\235\204\236 175.8\",\"extraCode\":2034896481},\"negativeResponse\":{\"code\":-394364949"
     ",\"text\":\"K\303\274hler\\u0009\360\237\224\247 175.9\",\"value1\":9223372036854775809,"
     "\"value2\":18446744073709551615,\"bytes\":[0,255,255,128]}}},{\"text\":\"say \\\"\303"
     "\251\\\" 175.10\",\"flag\":false,\"error\":null}]",
     "[{\"text\":\"K\303\274hler\\u0009\360\237\224\247 175.3\",\"flag\":1,\"error\":{\"code\""
     ":-2147483648,\"message\":\"say \\\"\303\251\\\" 175.4\",\"details\":\"back\\\\slash \303"
     "\237 175.5\",\"subCode\":2147483647,\"mvciError\":{\"code\":-1,\"codeText\":\"Z\303\274n"
     "dung \360\237\232\227 175.6\",\"vendorCode\":-65536,\"vendorCodeText\":\"Pr\303\274fstan"
     "d \342\202\254 175.7\",\"extraText\":\"\346\227\245\346\234\254\350\252\236 \360\235\204"
     "\236 175.8\",\"extraCode\":2034896481},\"negativeResponse\":{\"code\":-394364949,\"text"
     "\":\"K\303\274hler\\u0009\360\237\224\247 175.9\",\"value1\":9223372036854775809,\"value"
     "2\":18446744073709551615,\"bytes\":[0,255,255,128],\"byteCount\":4}}},{\"text\":\"say \\"
     "\"\303\251\\\" 175.10\",\"flag\":0,\"error\":null}]",
     "03000000140000005072c3bc667374616e6420e282ac203137352e310000000014000000e697a5e69cace8aa"
     "9e20f09d849e203137352e32",
     "030000005072c3bc667374616e6420e282ac203137352e310000e697a5e69cace8aa9e20f09d849e20313735"
     "2e3200",
     "[[\"Pr\303\274fstand \342\202\254 175.1\",\"\",\"\346\227\245\346\234\254\350\252\236 "
     "\360\235\204\236 175.2\"]]",
     "[[\"Pr\303\274fstand \342\202\254 175.1\",\"\",\"\346\227\245\346\234\254\350\252\236 "
     "\360\235\204\236 175.2\"]]",
     "010200000001120000004bc3bc686c657209f09f94a7203137352e330101000000800e0000007361792022c3"
     "a922203137352e34130000006261636b5c736c61736820c39f203137352e35ffffff7f01ffffffff13000000"
     "5ac3bc6e64756e6720f09f9a97203137352e360000ffff140000005072c3bc667374616e6420e282ac203137"
     "352e3714000000e697a5e69cace8aa9e20f09d849e203137352e38610e4a7901eb777ee8120000004bc3bc68"
     "6c657209f09f94a7203137352e390100000000000080ffffffffffffffff0400000000ffff80010f00000073"
     "61792022c3a922203137352e31300000",
     "0200000001120000004bc3bc686c657209f09f94a7203137352e330101000000800e0000007361792022c3a9"
     "22203137352e34130000006261636b5c736c61736820c39f203137352e35ffffff7f01ffffffff130000005a"
     "c3bc6e64756e6720f09f9a97203137352e360000ffff140000005072c3bc667374616e6420e282ac20313735"
     "2e3714000000e697a5e69cace8aa9e20f09d849e203137352e38610e4a7901eb777ee8120000004bc3bc686c"
     "657209f09f94a7203137352e390100000000000080ffffffffffffffff0400000000ffff80010f0000007361"
     "792022c3a922203137352e31300000",
     0},
    {"sparse", "[[]]", "[[]]",
     "[{\"text\":\"\",\"flag\":true,\"error\":{\"code\":-2147483648,\"message\":\"\",\"details"
     "\":\"\",\"subCode\":2147483647,\"mvciError\":null,\"negativeResponse\":null}},null]",
     "[{\"text\":\"\",\"flag\":1,\"error\":{\"code\":-2147483648,\"message\":\"\",\"details\":"
     "\"\",\"subCode\":2147483647,\"mvciError\":null,\"negativeResponse\":null}},null]",
     "00000000", "00000000", "[[]]", "[[]]",
     "010200000001000000000101000000800000000000000000ffffff7f000000",
     "0200000001000000000101000000800000000000000000ffffff7f000000", 0},
    {"empty", "[[]]", "[[]]", "[]", "null", "00000000", "00000000", "[[]]", "[[]]", "0100000000",
     "00000000", 0},
};

const kc::Number kNumber206{206, "unloadDatabaseFile", kUnloadDatabaseFileCases};

TEST_F(ProjectsByNumber, n206_unloadDatabaseFile_KelCall) { kc::kelCall(api, kNumber206); }
TEST_F(ProjectsByNumber, n206_unloadDatabaseFile_PyCall) { kc::pyCall(api, kNumber206); }
TEST_F(ProjectsByNumber, n206_unloadDatabaseFile_Failure) { kc::numberFailure(api, kNumber206); }
TEST_F(ProjectsByNumber, n206_unloadDatabaseFile_ShortInput) { kc::shortInput(api, kNumber206); }

TEST_F(ProjectsByNumber, n203_getProjectsDetails_NotAvailable) {
    kc::notAvailable(api, 203, "getProjectsDetails");
}

// ---- selectDynamicProject (position 216, number 246) ----

const kc::Case kSelectDynamicProjectCases[] = {
    {"full",
     "[\"Pr\303\274fstand \342\202\254 216.1\",[\"\346\227\245\346\234\254\350\252\236 \360"
     "\235\204\236 216.2\",\"\",\"K\303\274hler\\u0009\360\237\224\247 216.3\"]]",
     "[\"Pr\303\274fstand \342\202\254 216.1\",[\"\346\227\245\346\234\254\350\252\236 \360"
     "\235\204\236 216.2\",\"\",\"K\303\274hler\\u0009\360\237\224\247 216.3\"]]",
     "null", nullptr,
     "140000005072c3bc667374616e6420e282ac203231362e310300000014000000e697a5e69cace8aa9e20f09d"
     "849e203231362e3200000000120000004bc3bc686c657209f09f94a7203231362e33",
     "5072c3bc667374616e6420e282ac203231362e310003000000e697a5e69cace8aa9e20f09d849e203231362e"
     "3200004bc3bc686c657209f09f94a7203231362e3300",
     "[\"Pr\303\274fstand \342\202\254 216.1\",[\"\346\227\245\346\234\254\350\252\236 \360"
     "\235\204\236 216.2\",\"\",\"K\303\274hler\\u0009\360\237\224\247 216.3\"]]",
     "[\"Pr\303\274fstand \342\202\254 216.1\",[\"\346\227\245\346\234\254\350\252\236 \360"
     "\235\204\236 216.2\",\"\",\"K\303\274hler\\u0009\360\237\224\247 216.3\"]]",
     "01", "", 0},
    {"sparse", "[\"\",[]]", "[\"\",[]]", "null", nullptr, "0000000000000000", "0000000000",
     "[\"\",[]]", "[\"\",[]]", "01", "", 0},
};

struct SelectDynamicProjectExport {
    static constexpr const char* operation = "selectDynamicProject";
    using Result = kc::NoResult;
    static void call(TarnApi* api, const kc::Json& in, KelError** error, Result& out) {
        const kc::Text a0(in[0]);
        kc::Texts a1(in[1]);
        static_cast<void>(out);
        kel_selectDynamicProject(api, a0.get(), a1.data(), a1.count(), error);
    }
};

TEST_F(Projects, selectDynamicProject_Exchange) {
    kc::exchange<SelectDynamicProjectExport>(api, kSelectDynamicProjectCases);
}
TEST_F(Projects, selectDynamicProject_Failure) {
    kc::failure<SelectDynamicProjectExport>(api, kSelectDynamicProjectCases);
}

const kc::Number kNumber246{246, "selectDynamicProject", kSelectDynamicProjectCases};

TEST_F(ProjectsByNumber, n246_selectDynamicProject_KelCall) { kc::kelCall(api, kNumber246); }
TEST_F(ProjectsByNumber, n246_selectDynamicProject_PyCall) { kc::pyCall(api, kNumber246); }
TEST_F(ProjectsByNumber, n246_selectDynamicProject_Failure) { kc::numberFailure(api, kNumber246); }
TEST_F(ProjectsByNumber, n246_selectDynamicProject_ShortInput) { kc::shortInput(api, kNumber246); }

// ---- getProjectConfigurations (position 241, number 48) ----

const kc::Case kGetProjectConfigurationsCases[] = {
    {"full", "[]", "[]",
     "[{\"itemText1\":\"Pr\303\274fstand \342\202\254 241.1\",\"itemText2\":\"\346\227\245\346"
     "\234\254\350\252\236 \360\235\204\236 241.2\",\"itemText3\":\"K\303\274hler\\u0009\360"
     "\237\224\247 241.3\",\"itemText4\":\"say \\\"\303\251\\\" 241.4\",\"filters1\":[{\"patte"
     "rn\":\"back\\\\slash \303\237 241.5\",\"flag\":true,\"value\":4294967295},{\"pattern\":"
     "\"Z\303\274ndung \360\237\232\227 241.6\",\"flag\":false,\"value\":2147483648}],\"value0"
     "\":-2147483648,\"targets\":[{\"value\":2147483647,\"text1\":\"Pr\303\274fstand \342\202"
     "\254 241.7\",\"text2\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 241.8\"},"
     "{\"value\":-1,\"text1\":\"K\303\274hler\\u0009\360\237\224\247 241.9\",\"text2\":\"say "
     "\\\"\303\251\\\" 241.10\"}],\"filters2\":[{\"pattern\":\"back\\\\slash \303\237 241.11\""
     ",\"flag\":true},{\"pattern\":\"Z\303\274ndung \360\237\232\227 241.12\",\"flag\":false}]"
     ",\"strings1\":[\"Pr\303\274fstand \342\202\254 241.13\",\"\346\227\245\346\234\254\350"
     "\252\236 \360\235\204\236 241.14\"],\"text1\":\"K\303\274hler\\u0009\360\237\224\247 241"
     ".15\",\"value1\":2147483647,\"text2\":\"say \\\"\303\251\\\" 241.16\",\"strings2\":[\"ba"
     "ck\\\\slash \303\237 241.17\",\"Z\303\274ndung \360\237\232\227 241.18\"],\"text3\":\"Pr"
     "\303\274fstand \342\202\254 241.19\",\"value2\":1530617565,\"value3\":2037569679,\"flags"
     "\":[true,false,true,false]},{\"itemText1\":\"\346\227\245\346\234\254\350\252\236 \360"
     "\235\204\236 241.20\",\"itemText2\":\"K\303\274hler\\u0009\360\237\224\247 241.21\",\"it"
     "emText3\":\"say \\\"\303\251\\\" 241.22\",\"itemText4\":\"back\\\\slash \303\237 241.23"
     "\",\"filters1\":[],\"value0\":-65536,\"targets\":[],\"filters2\":[],\"strings1\":[\"Z"
     "\303\274ndung \360\237\232\227 241.24\",\"Pr\303\274fstand \342\202\254 241.25\"],\"text"
     "1\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 241.26\",\"value1\":39703814"
     "7,\"text2\":\"K\303\274hler\\u0009\360\237\224\247 241.27\",\"strings2\":[\"say \\\"\303"
     "\251\\\" 241.28\",\"back\\\\slash \303\237 241.29\"],\"text3\":\"Z\303\274ndung \360\237"
     "\232\227 241.30\",\"value2\":903990261,\"value3\":1410942375,\"flags\":[true,false,true,"
     "false]}]",
     "[{\"itemText1\":\"Pr\303\274fstand \342\202\254 241.1\",\"itemText2\":\"\346\227\245\346"
     "\234\254\350\252\236 \360\235\204\236 241.2\",\"itemText3\":\"K\303\274hler\\u0009\360"
     "\237\224\247 241.3\",\"itemText4\":\"say \\\"\303\251\\\" 241.4\",\"filters1\":[{\"patte"
     "rn\":\"back\\\\slash \303\237 241.5\",\"flag\":1,\"value\":4294967295},{\"pattern\":\"Z"
     "\303\274ndung \360\237\232\227 241.6\",\"flag\":0,\"value\":2147483648}],\"filterCount1"
     "\":2,\"value0\":-2147483648,\"targets\":[{\"value\":2147483647,\"text1\":\"Pr\303\274fst"
     "and \342\202\254 241.7\",\"text2\":\"\346\227\245\346\234\254\350\252\236 \360\235\204"
     "\236 241.8\"},{\"value\":-1,\"text1\":\"K\303\274hler\\u0009\360\237\224\247 241.9\",\"t"
     "ext2\":\"say \\\"\303\251\\\" 241.10\"}],\"targetCount\":2,\"filters2\":[{\"pattern\":\""
     "back\\\\slash \303\237 241.11\",\"flag\":1,\"value\":0},{\"pattern\":\"Z\303\274ndung "
     "\360\237\232\227 241.12\",\"flag\":0,\"value\":0}],\"filterCount2\":2,\"strings1\":[\"Pr"
     "\303\274fstand \342\202\254 241.13\",\"\346\227\245\346\234\254\350\252\236 \360\235\204"
     "\236 241.14\"],\"stringCount1\":2,\"text1\":\"K\303\274hler\\u0009\360\237\224\247 241.1"
     "5\",\"value1\":2147483647,\"text2\":\"say \\\"\303\251\\\" 241.16\",\"strings2\":[\"back"
     "\\\\slash \303\237 241.17\",\"Z\303\274ndung \360\237\232\227 241.18\"],\"stringCount2\""
     ":2,\"text3\":\"Pr\303\274fstand \342\202\254 241.19\",\"value2\":1530617565,\"value3\":2"
     "037569679,\"flags\":[true,false,true,false]},{\"itemText1\":\"\346\227\245\346\234\254"
     "\350\252\236 \360\235\204\236 241.20\",\"itemText2\":\"K\303\274hler\\u0009\360\237\224"
     "\247 241.21\",\"itemText3\":\"say \\\"\303\251\\\" 241.22\",\"itemText4\":\"back\\\\slas"
     "h \303\237 241.23\",\"filters1\":null,\"filterCount1\":0,\"value0\":-65536,\"targets\":n"
     "ull,\"targetCount\":0,\"filters2\":null,\"filterCount2\":0,\"strings1\":[\"Z\303\274ndun"
     "g \360\237\232\227 241.24\",\"Pr\303\274fstand \342\202\254 241.25\"],\"stringCount1\":2"
     ",\"text1\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 241.26\",\"value1\":3"
     "97038147,\"text2\":\"K\303\274hler\\u0009\360\237\224\247 241.27\",\"strings2\":[\"say "
     "\\\"\303\251\\\" 241.28\",\"back\\\\slash \303\237 241.29\"],\"stringCount2\":2,\"text3"
     "\":\"Z\303\274ndung \360\237\232\227 241.30\",\"value2\":903990261,\"value3\":1410942375"
     ",\"flags\":[true,false,true,false]}]",
     "", "", "[]", "[]",
     "010200000001140000005072c3bc667374616e6420e282ac203234312e3114000000e697a5e69cace8aa9e20"
     "f09d849e203234312e32120000004bc3bc686c657209f09f94a7203234312e330e0000007361792022c3a922"
     "203234312e340200000001130000006261636b5c736c61736820c39f203234312e3501ffffffff0113000000"
     "5ac3bc6e64756e6720f09f9a97203234312e360000000080000000800200000001ffffff7f140000005072c3"
     "bc667374616e6420e282ac203234312e3714000000e697a5e69cace8aa9e20f09d849e203234312e3801ffff"
     "ffff120000004bc3bc686c657209f09f94a7203234312e390f0000007361792022c3a922203234312e313002"
     "00000001140000006261636b5c736c61736820c39f203234312e31310101140000005ac3bc6e64756e6720f0"
     "9f9a97203234312e31320002000000150000005072c3bc667374616e6420e282ac203234312e313315000000"
     "e697a5e69cace8aa9e20f09d849e203234312e3134130000004bc3bc686c657209f09f94a7203234312e3135"
     "ffffff7f0f0000007361792022c3a922203234312e313602000000140000006261636b5c736c61736820c39f"
     "203234312e3137140000005ac3bc6e64756e6720f09f9a97203234312e3138150000005072c3bc667374616e"
     "6420e282ac203234312e3139dd5e3b5b8fd87279010001000115000000e697a5e69cace8aa9e20f09d849e20"
     "3234312e3230130000004bc3bc686c657209f09f94a7203234312e32310f0000007361792022c3a922203234"
     "312e3232140000006261636b5c736c61736820c39f203234312e3233000000000000ffff0000000000000000"
     "02000000140000005ac3bc6e64756e6720f09f9a97203234312e3234150000005072c3bc667374616e6420e2"
     "82ac203234312e323515000000e697a5e69cace8aa9e20f09d849e203234312e32364352aa17130000004bc3"
     "bc686c657209f09f94a7203234312e3237020000000f0000007361792022c3a922203234312e323814000000"
     "6261636b5c736c61736820c39f203234312e3239140000005ac3bc6e64756e6720f09f9a97203234312e3330"
     "f5cbe135a745195401000100",
     "0200000001140000005072c3bc667374616e6420e282ac203234312e3114000000e697a5e69cace8aa9e20f0"
     "9d849e203234312e32120000004bc3bc686c657209f09f94a7203234312e330e0000007361792022c3a92220"
     "3234312e340200000001130000006261636b5c736c61736820c39f203234312e3501ffffffff01130000005a"
     "c3bc6e64756e6720f09f9a97203234312e360000000080000000800200000001ffffff7f140000005072c3bc"
     "667374616e6420e282ac203234312e3714000000e697a5e69cace8aa9e20f09d849e203234312e3801ffffff"
     "ff120000004bc3bc686c657209f09f94a7203234312e390f0000007361792022c3a922203234312e31300200"
     "000001140000006261636b5c736c61736820c39f203234312e31310101140000005ac3bc6e64756e6720f09f"
     "9a97203234312e31320002000000150000005072c3bc667374616e6420e282ac203234312e313315000000e6"
     "97a5e69cace8aa9e20f09d849e203234312e3134130000004bc3bc686c657209f09f94a7203234312e3135ff"
     "ffff7f0f0000007361792022c3a922203234312e313602000000140000006261636b5c736c61736820c39f20"
     "3234312e3137140000005ac3bc6e64756e6720f09f9a97203234312e3138150000005072c3bc667374616e64"
     "20e282ac203234312e3139dd5e3b5b8fd87279010001000115000000e697a5e69cace8aa9e20f09d849e2032"
     "34312e3230130000004bc3bc686c657209f09f94a7203234312e32310f0000007361792022c3a92220323431"
     "2e3232140000006261636b5c736c61736820c39f203234312e3233000000000000ffff000000000000000002"
     "000000140000005ac3bc6e64756e6720f09f9a97203234312e3234150000005072c3bc667374616e6420e282"
     "ac203234312e323515000000e697a5e69cace8aa9e20f09d849e203234312e32364352aa17130000004bc3bc"
     "686c657209f09f94a7203234312e3237020000000f0000007361792022c3a922203234312e32381400000062"
     "61636b5c736c61736820c39f203234312e3239140000005ac3bc6e64756e6720f09f9a97203234312e3330f5"
     "cbe135a745195401000100",
     0},
    {"sparse", "[]", "[]",
     "[{\"itemText1\":\"\",\"itemText2\":\"\",\"itemText3\":\"\",\"itemText4\":\"\",\"filters1"
     "\":[{\"pattern\":\"\",\"flag\":true,\"value\":4294967295}],\"value0\":-2147483648,\"targ"
     "ets\":[{\"value\":2147483647,\"text1\":\"\",\"text2\":\"\"}],\"filters2\":[{\"pattern\":"
     "\"\",\"flag\":false}],\"strings1\":[],\"text1\":\"\",\"value1\":2147483648,\"text2\":\""
     "\",\"strings2\":[],\"text3\":\"\",\"value2\":2147483647,\"value3\":1530617565,\"flags\":"
     "[true,false,true,false]},null]",
     "[{\"itemText1\":\"\",\"itemText2\":\"\",\"itemText3\":\"\",\"itemText4\":\"\",\"filters1"
     "\":[{\"pattern\":\"\",\"flag\":1,\"value\":4294967295}],\"filterCount1\":1,\"value0\":-2"
     "147483648,\"targets\":[{\"value\":2147483647,\"text1\":\"\",\"text2\":\"\"}],\"targetCou"
     "nt\":1,\"filters2\":[{\"pattern\":\"\",\"flag\":0,\"value\":0}],\"filterCount2\":1,\"str"
     "ings1\":[],\"stringCount1\":0,\"text1\":\"\",\"value1\":2147483648,\"text2\":\"\",\"stri"
     "ngs2\":[],\"stringCount2\":0,\"text3\":\"\",\"value2\":2147483647,\"value3\":1530617565,"
     "\"flags\":[true,false,true,false]},null]",
     "", "", "[]", "[]",
     "0102000000010000000000000000000000000000000001000000010000000001ffffffff0000008001000000"
     "01ffffff7f000000000000000001000000010000000000000000000000000000000080000000000000000000"
     "000000ffffff7fdd5e3b5b0100010000",
     "02000000010000000000000000000000000000000001000000010000000001ffffffff000000800100000001"
     "ffffff7f00000000000000000100000001000000000000000000000000000000008000000000000000000000"
     "0000ffffff7fdd5e3b5b0100010000",
     0},
    {"empty", "[]", "[]", "[]", "null", "", "", "[]", "[]", "0100000000", "00000000", 0},
};

const kc::Number kNumber48{48, "getProjectConfigurations", kGetProjectConfigurationsCases};

TEST_F(ProjectsByNumber, n48_getProjectConfigurations_KelCall) { kc::kelCall(api, kNumber48); }
TEST_F(ProjectsByNumber, n48_getProjectConfigurations_PyCall) { kc::pyCall(api, kNumber48); }
TEST_F(ProjectsByNumber, n48_getProjectConfigurations_Failure) {
    kc::numberFailure(api, kNumber48);
}

// ---- getVersion (position 243, number 50) ----

const kc::Case kGetVersionCases[] = {
    {"full", "[]", "[]", "\"Pr\303\274fstand \342\202\254 243.1\"",
     "\"Pr\303\274fstand \342\202\254 243.1\"", "", "", "[]", "[]",
     "01140000005072c3bc667374616e6420e282ac203234332e31",
     "140000005072c3bc667374616e6420e282ac203234332e31", 0},
    {"sparse", "[]", "[]", "\"\"", "\"\"", "", "", "[]", "[]", "0100000000", "00000000", 0},
};

struct GetVersionExport {
    static constexpr const char* operation = "getVersion";
    using Result = kc::TextResult;
    static void call(TarnApi* api, const kc::Json& in, KelError** error, Result& out) {
        static_cast<void>(in);
        kel_getVersion(api, error, &out.data);
    }
};

TEST_F(Projects, getVersion_Exchange) { kc::exchange<GetVersionExport>(api, kGetVersionCases); }
TEST_F(Projects, getVersion_Failure) { kc::failure<GetVersionExport>(api, kGetVersionCases); }

const kc::Number kNumber50{50, "getVersion", kGetVersionCases};

TEST_F(ProjectsByNumber, n50_getVersion_KelCall) { kc::kelCall(api, kNumber50); }
TEST_F(ProjectsByNumber, n50_getVersion_PyCall) { kc::pyCall(api, kNumber50); }
TEST_F(ProjectsByNumber, n50_getVersion_Failure) { kc::numberFailure(api, kNumber50); }

// ---- getSelectedProject (position 244, number 51) ----

const kc::Case kGetSelectedProjectCases[] = {
    {"full", "[]", "[]", "\"Pr\303\274fstand \342\202\254 244.1\"",
     "\"Pr\303\274fstand \342\202\254 244.1\"", "", "", "[]", "[]",
     "01140000005072c3bc667374616e6420e282ac203234342e31",
     "140000005072c3bc667374616e6420e282ac203234342e31", 0},
    {"sparse", "[]", "[]", "\"\"", "\"\"", "", "", "[]", "[]", "0100000000", "00000000", 0},
};

struct GetSelectedProjectExport {
    static constexpr const char* operation = "getSelectedProject";
    using Result = kc::TextResult;
    static void call(TarnApi* api, const kc::Json& in, KelError** error, Result& out) {
        static_cast<void>(in);
        kel_getSelectedProject(api, error, &out.data);
    }
};

TEST_F(Projects, getSelectedProject_Exchange) {
    kc::exchange<GetSelectedProjectExport>(api, kGetSelectedProjectCases);
}
TEST_F(Projects, getSelectedProject_Failure) {
    kc::failure<GetSelectedProjectExport>(api, kGetSelectedProjectCases);
}

const kc::Number kNumber51{51, "getSelectedProject", kGetSelectedProjectCases};

TEST_F(ProjectsByNumber, n51_getSelectedProject_KelCall) { kc::kelCall(api, kNumber51); }
TEST_F(ProjectsByNumber, n51_getSelectedProject_PyCall) { kc::pyCall(api, kNumber51); }
TEST_F(ProjectsByNumber, n51_getSelectedProject_Failure) { kc::numberFailure(api, kNumber51); }

// ---- setSelectedProject (position 245, number 52) ----

const kc::Case kSetSelectedProjectCases[] = {
    {"full", "[\"Pr\303\274fstand \342\202\254 245.1\"]",
     "[\"Pr\303\274fstand \342\202\254 245.1\"]", "null", nullptr,
     "140000005072c3bc667374616e6420e282ac203234352e31",
     "5072c3bc667374616e6420e282ac203234352e3100", "[\"Pr\303\274fstand \342\202\254 245.1\"]",
     "[\"Pr\303\274fstand \342\202\254 245.1\"]", "01", "", 0},
    {"sparse", "[\"\"]", "[\"\"]", "null", nullptr, "00000000", "00", "[\"\"]", "[\"\"]", "01", "",
     0},
};

struct SetSelectedProjectExport {
    static constexpr const char* operation = "setSelectedProject";
    using Result = kc::NoResult;
    static void call(TarnApi* api, const kc::Json& in, KelError** error, Result& out) {
        const kc::Text a0(in[0]);
        static_cast<void>(out);
        kel_setSelectedProject(api, error, a0.get());
    }
};

TEST_F(Projects, setSelectedProject_Exchange) {
    kc::exchange<SetSelectedProjectExport>(api, kSetSelectedProjectCases);
}
TEST_F(Projects, setSelectedProject_Failure) {
    kc::failure<SetSelectedProjectExport>(api, kSetSelectedProjectCases);
}

const kc::Number kNumber52{52, "setSelectedProject", kSetSelectedProjectCases};

TEST_F(ProjectsByNumber, n52_setSelectedProject_KelCall) { kc::kelCall(api, kNumber52); }
TEST_F(ProjectsByNumber, n52_setSelectedProject_PyCall) { kc::pyCall(api, kNumber52); }
TEST_F(ProjectsByNumber, n52_setSelectedProject_Failure) { kc::numberFailure(api, kNumber52); }
TEST_F(ProjectsByNumber, n52_setSelectedProject_ShortInput) { kc::shortInput(api, kNumber52); }

TEST_F(ProjectsByNumber, n53_getConfiguration_NotAvailable) {
    kc::notAvailable(api, 53, "getConfiguration");
}

TEST_F(ProjectsByNumber, n54_setConfiguration_NotAvailable) {
    kc::notAvailable(api, 54, "setConfiguration");
}

TEST_F(ProjectsByNumber, n59_getProcessInfo_NotAvailable) {
    kc::notAvailable(api, 59, "getProcessInfo");
}

// ---- getTransmissionInfo (position 253, number 60) ----

const kc::Case kGetTransmissionInfoCases[] = {
    {"full", "[]", "[]",
     "{\"value1\":9223372036854775809,\"value2\":18446744073709551615,\"value3\":4294967296,\""
     "value4\":1531103601}",
     "{\"value1\":9223372036854775809,\"value2\":18446744073709551615,\"value3\":4294967296,\""
     "value4\":1531103601}",
     "", "", "[]", "[]", "01010100000000000080ffffffffffffffff000000000100000071c9425b00000000",
     "010100000000000080ffffffffffffffff000000000100000071c9425b00000000", 0},
    {"empty", "[]", "[]", "null", "null", "", "", "[]", "[]", "0100", "00", 0},
};

const kc::Number kNumber60{60, "getTransmissionInfo", kGetTransmissionInfoCases};

TEST_F(ProjectsByNumber, n60_getTransmissionInfo_KelCall) { kc::kelCall(api, kNumber60); }
TEST_F(ProjectsByNumber, n60_getTransmissionInfo_PyCall) { kc::pyCall(api, kNumber60); }
TEST_F(ProjectsByNumber, n60_getTransmissionInfo_Failure) { kc::numberFailure(api, kNumber60); }

// ---- getMoxConfiguration (position 255, number 62) ----

const kc::Case kGetMoxConfigurationCases[] = {
    {"full", "[]", "[]",
     "{\"text1\":\"Pr\303\274fstand \342\202\254 255.1\",\"text2\":\"\346\227\245\346\234\254"
     "\350\252\236 \360\235\204\236 255.2\",\"text3\":\"K\303\274hler\\u0009\360\237\224\247 2"
     "55.3\",\"text4\":\"say \\\"\303\251\\\" 255.4\",\"text5\":\"back\\\\slash \303\237 255.5"
     "\",\"flag1\":true,\"flag2\":false,\"flag3\":true,\"value\":4294967295,\"flag4\":false,\""
     "flag5\":true,\"flag6\":false,\"text6\":\"Z\303\274ndung \360\237\232\227 255.6\",\"text7"
     "\":\"Pr\303\274fstand \342\202\254 255.7\",\"tcp\":{\"value1\":255,\"value2\":128,\"valu"
     "e3\":127,\"value4\":2147483648,\"value5\":2147483647,\"value6\":1531184607}}",
     "{\"text1\":\"Pr\303\274fstand \342\202\254 255.1\",\"text2\":\"\346\227\245\346\234\254"
     "\350\252\236 \360\235\204\236 255.2\",\"text3\":\"K\303\274hler\\u0009\360\237\224\247 2"
     "55.3\",\"text4\":\"say \\\"\303\251\\\" 255.4\",\"text5\":\"back\\\\slash \303\237 255.5"
     "\",\"flag1\":1,\"flag2\":0,\"flag3\":1,\"value\":4294967295,\"flag4\":0,\"flag5\":1,\"fl"
     "ag6\":0,\"text6\":\"Z\303\274ndung \360\237\232\227 255.6\",\"text7\":\"Pr\303\274fstand"
     " \342\202\254 255.7\",\"tcp\":{\"value1\":255,\"value2\":128,\"value3\":127,\"value4\":2"
     "147483648,\"value5\":2147483647,\"value6\":1531184607}}",
     "", "", "[]", "[]",
     "0101140000005072c3bc667374616e6420e282ac203235352e3114000000e697a5e69cace8aa9e20f09d849e"
     "203235352e32120000004bc3bc686c657209f09f94a7203235352e330e0000007361792022c3a92220323535"
     "2e34130000006261636b5c736c61736820c39f203235352e35010001ffffffff000100130000005ac3bc6e64"
     "756e6720f09f9a97203235352e36140000005072c3bc667374616e6420e282ac203235352e3701ff807f0000"
     "0080ffffff7fdf05445b",
     "01140000005072c3bc667374616e6420e282ac203235352e3114000000e697a5e69cace8aa9e20f09d849e20"
     "3235352e32120000004bc3bc686c657209f09f94a7203235352e330e0000007361792022c3a922203235352e"
     "34130000006261636b5c736c61736820c39f203235352e35010001ffffffff000100130000005ac3bc6e6475"
     "6e6720f09f9a97203235352e36140000005072c3bc667374616e6420e282ac203235352e3701ff807f000000"
     "80ffffff7fdf05445b",
     0},
    {"sparse", "[]", "[]",
     "{\"text1\":\"\",\"text2\":\"\",\"text3\":\"\",\"text4\":\"\",\"text5\":\"\",\"flag1\":tr"
     "ue,\"flag2\":false,\"flag3\":true,\"value\":4294967295,\"flag4\":false,\"flag5\":true,\""
     "flag6\":false,\"text6\":\"\",\"text7\":\"\",\"tcp\":{\"value1\":255,\"value2\":128,\"val"
     "ue3\":127,\"value4\":2147483648,\"value5\":2147483647,\"value6\":1531184607}}",
     "{\"text1\":\"\",\"text2\":\"\",\"text3\":\"\",\"text4\":\"\",\"text5\":\"\",\"flag1\":1,"
     "\"flag2\":0,\"flag3\":1,\"value\":4294967295,\"flag4\":0,\"flag5\":1,\"flag6\":0,\"text6"
     "\":\"\",\"text7\":\"\",\"tcp\":{\"value1\":255,\"value2\":128,\"value3\":127,\"value4\":"
     "2147483648,\"value5\":2147483647,\"value6\":1531184607}}",
     "", "", "[]", "[]",
     "01010000000000000000000000000000000000000000010001ffffffff000100000000000000000001ff807f"
     "00000080ffffff7fdf05445b",
     "010000000000000000000000000000000000000000010001ffffffff000100000000000000000001ff807f00"
     "000080ffffff7fdf05445b",
     0},
    {"empty", "[]", "[]", "null", "null", "", "", "[]", "[]", "0100", "00", 0},
};

const kc::Number kNumber62{62, "getMoxConfiguration", kGetMoxConfigurationCases};

TEST_F(ProjectsByNumber, n62_getMoxConfiguration_KelCall) { kc::kelCall(api, kNumber62); }
TEST_F(ProjectsByNumber, n62_getMoxConfiguration_PyCall) { kc::pyCall(api, kNumber62); }
TEST_F(ProjectsByNumber, n62_getMoxConfiguration_Failure) { kc::numberFailure(api, kNumber62); }

// ---- setMoxConfiguration (position 256, number 101) ----

const kc::Case kSetMoxConfigurationCases[] = {
    {"full",
     "[{\"text1\":\"Pr\303\274fstand \342\202\254 256.1\",\"text2\":\"\346\227\245\346\234\254"
     "\350\252\236 \360\235\204\236 256.2\",\"text3\":\"K\303\274hler\\u0009\360\237\224\247 2"
     "56.3\",\"text4\":\"say \\\"\303\251\\\" 256.4\",\"text5\":\"back\\\\slash \303\237 256.5"
     "\",\"flag1\":128,\"flag2\":0,\"flag3\":255,\"value\":4294967295,\"flag4\":0,\"flag5\":2,"
     "\"flag6\":0,\"text6\":\"Z\303\274ndung \360\237\232\227 256.6\",\"text7\":\"Pr\303\274fs"
     "tand \342\202\254 256.7\",\"tcp\":{\"value1\":255,\"value2\":128,\"value3\":127,\"value4"
     "\":2147483648,\"value5\":2147483647,\"value6\":1531225111}}]",
     "[{\"text1\":\"Pr\303\274fstand \342\202\254 256.1\",\"text2\":\"\346\227\245\346\234\254"
     "\350\252\236 \360\235\204\236 256.2\",\"text3\":\"K\303\274hler\\u0009\360\237\224\247 2"
     "56.3\",\"text4\":\"say \\\"\303\251\\\" 256.4\",\"text5\":\"back\\\\slash \303\237 256.5"
     "\",\"flag1\":true,\"flag2\":false,\"flag3\":true,\"value\":4294967295,\"flag4\":false,\""
     "flag5\":true,\"flag6\":false,\"text6\":\"Z\303\274ndung \360\237\232\227 256.6\",\"text7"
     "\":\"Pr\303\274fstand \342\202\254 256.7\",\"tcp\":{\"value1\":255,\"value2\":128,\"valu"
     "e3\":127,\"value4\":2147483648,\"value5\":2147483647,\"value6\":1531225111}}]",
     "null", nullptr,
     "140000005072c3bc667374616e6420e282ac203235362e3114000000e697a5e69cace8aa9e20f09d849e2032"
     "35362e32120000004bc3bc686c657209f09f94a7203235362e330e0000007361792022c3a922203235362e34"
     "130000006261636b5c736c61736820c39f203235362e35010001ffffffff000100130000005ac3bc6e64756e"
     "6720f09f9a97203235362e36140000005072c3bc667374616e6420e282ac203235362e37ff807f00000080ff"
     "ffff7f17a4445b",
     "015072c3bc667374616e6420e282ac203235362e3100e697a5e69cace8aa9e20f09d849e203235362e32004b"
     "c3bc686c657209f09f94a7203235362e33007361792022c3a922203235362e34006261636b5c736c61736820"
     "c39f203235362e3500010001ffffffff0001005ac3bc6e64756e6720f09f9a97203235362e36005072c3bc66"
     "7374616e6420e282ac203235362e370001ff807f00000080ffffff7f17a4445b",
     "[{\"text1\":\"Pr\303\274fstand \342\202\254 256.1\",\"text2\":\"\346\227\245\346\234\254"
     "\350\252\236 \360\235\204\236 256.2\",\"text3\":\"K\303\274hler\\u0009\360\237\224\247 2"
     "56.3\",\"text4\":\"say \\\"\303\251\\\" 256.4\",\"text5\":\"back\\\\slash \303\237 256.5"
     "\",\"flag1\":true,\"flag2\":false,\"flag3\":true,\"value\":4294967295,\"flag4\":false,\""
     "flag5\":true,\"flag6\":false,\"text6\":\"Z\303\274ndung \360\237\232\227 256.6\",\"text7"
     "\":\"Pr\303\274fstand \342\202\254 256.7\",\"tcp\":{\"value1\":255,\"value2\":128,\"valu"
     "e3\":127,\"value4\":2147483648,\"value5\":2147483647,\"value6\":1531225111}}]",
     "[{\"text1\":\"Pr\303\274fstand \342\202\254 256.1\",\"text2\":\"\346\227\245\346\234\254"
     "\350\252\236 \360\235\204\236 256.2\",\"text3\":\"K\303\274hler\\u0009\360\237\224\247 2"
     "56.3\",\"text4\":\"say \\\"\303\251\\\" 256.4\",\"text5\":\"back\\\\slash \303\237 256.5"
     "\",\"flag1\":true,\"flag2\":false,\"flag3\":true,\"value\":4294967295,\"flag4\":false,\""
     "flag5\":true,\"flag6\":false,\"text6\":\"Z\303\274ndung \360\237\232\227 256.6\",\"text7"
     "\":\"Pr\303\274fstand \342\202\254 256.7\",\"tcp\":{\"value1\":255,\"value2\":128,\"valu"
     "e3\":127,\"value4\":2147483648,\"value5\":2147483647,\"value6\":1531225111}}]",
     "01", "", 0},
    {"sparse", "[null]", "[null]", "null", nullptr,
     "0000000000000000000000000000000000000000000000000000000000000000000000000000000000000000"
     "000000000000000000",
     "00",
     "[{\"text1\":\"\",\"text2\":\"\",\"text3\":\"\",\"text4\":\"\",\"text5\":\"\",\"flag1\":f"
     "alse,\"flag2\":false,\"flag3\":false,\"value\":0,\"flag4\":false,\"flag5\":false,\"flag6"
     "\":false,\"text6\":\"\",\"text7\":\"\",\"tcp\":{\"value1\":0,\"value2\":0,\"value3\":0,"
     "\"value4\":0,\"value5\":0,\"value6\":0}}]",
     "[null]", "01", "", 0},
};

const kc::Number kNumber101{101, "setMoxConfiguration", kSetMoxConfigurationCases};

TEST_F(ProjectsByNumber, n101_setMoxConfiguration_KelCall) { kc::kelCall(api, kNumber101); }
TEST_F(ProjectsByNumber, n101_setMoxConfiguration_PyCall) { kc::pyCall(api, kNumber101); }
TEST_F(ProjectsByNumber, n101_setMoxConfiguration_Failure) { kc::numberFailure(api, kNumber101); }
TEST_F(ProjectsByNumber, n101_setMoxConfiguration_ShortInput) { kc::shortInput(api, kNumber101); }

TEST_F(ProjectsByNumber, n78_getGlobalProtocolParameterSets_NotAvailable) {
    kc::notAvailable(api, 78, "getGlobalProtocolParameterSets");
}

TEST_F(ProjectsByNumber, n79_setGlobalProtocolParameterSets_NotAvailable) {
    kc::notAvailable(api, 79, "setGlobalProtocolParameterSets");
}

// ---- getStatusInfo (position 262, number 88) ----

const kc::Case kGetStatusInfoCases[] = {
    {"full", "[]", "[]",
     "{\"value1\":9223372036854775809,\"value2\":18446744073709551615,\"value3\":4294967296,\""
     "value4\":1531468129,\"value5\":2038420243,\"value6\":4294967295,\"value7\":397888709,\"v"
     "alue8\":904840823}",
     "{\"value1\":9223372036854775809,\"value2\":18446744073709551615,\"value3\":4294967296,\""
     "value4\":1531468129,\"value5\":2038420243,\"value6\":4294967295,\"value7\":397888709,\"v"
     "alue8\":904840823}",
     "", "", "[]", "[]",
     "01010100000000000080ffffffffffffffff00000000010000006159485b0000000013d37f7900000000ffff"
     "ffffc54cb7170000000077c6ee3500000000",
     "010100000000000080ffffffffffffffff00000000010000006159485b0000000013d37f7900000000ffffff"
     "ffc54cb7170000000077c6ee3500000000",
     0},
    {"empty", "[]", "[]", "null", "null", "", "", "[]", "[]", "0100", "00", 0},
};

const kc::Number kNumber88{88, "getStatusInfo", kGetStatusInfoCases};

TEST_F(ProjectsByNumber, n88_getStatusInfo_KelCall) { kc::kelCall(api, kNumber88); }
TEST_F(ProjectsByNumber, n88_getStatusInfo_PyCall) { kc::pyCall(api, kNumber88); }
TEST_F(ProjectsByNumber, n88_getStatusInfo_Failure) { kc::numberFailure(api, kNumber88); }

// ---- getCurrentDebugTraceDirectory (position 268, number 142) ----

const kc::Case kGetCurrentDebugTraceDirectoryCases[] = {
    {"full", "[]", "[]", "\"Pr\303\274fstand \342\202\254 268.1\"",
     "\"Pr\303\274fstand \342\202\254 268.1\"", "", "", "[]", "[]",
     "01140000005072c3bc667374616e6420e282ac203236382e31",
     "140000005072c3bc667374616e6420e282ac203236382e31", 0},
    {"sparse", "[]", "[]", "\"\"", "\"\"", "", "", "[]", "[]", "0100000000", "00000000", 0},
};

struct GetCurrentDebugTraceDirectoryExport {
    static constexpr const char* operation = "getCurrentDebugTraceDirectory";
    using Result = kc::TextResult;
    static void call(TarnApi* api, const kc::Json& in, KelError** error, Result& out) {
        static_cast<void>(in);
        kel_getCurrentDebugTraceDirectory(api, error, &out.data);
    }
};

TEST_F(Projects, getCurrentDebugTraceDirectory_Exchange) {
    kc::exchange<GetCurrentDebugTraceDirectoryExport>(api, kGetCurrentDebugTraceDirectoryCases);
}
TEST_F(Projects, getCurrentDebugTraceDirectory_Failure) {
    kc::failure<GetCurrentDebugTraceDirectoryExport>(api, kGetCurrentDebugTraceDirectoryCases);
}

const kc::Number kNumber142{142, "getCurrentDebugTraceDirectory",
                            kGetCurrentDebugTraceDirectoryCases};

TEST_F(ProjectsByNumber, n142_getCurrentDebugTraceDirectory_KelCall) {
    kc::kelCall(api, kNumber142);
}
TEST_F(ProjectsByNumber, n142_getCurrentDebugTraceDirectory_PyCall) { kc::pyCall(api, kNumber142); }
TEST_F(ProjectsByNumber, n142_getCurrentDebugTraceDirectory_Failure) {
    kc::numberFailure(api, kNumber142);
}

// ---- setStatusText (position 271, number 196) ----

const kc::Case kSetStatusTextCases[] = {
    {"full", "[\"Pr\303\274fstand \342\202\254 271.1\"]",
     "[\"Pr\303\274fstand \342\202\254 271.1\"]", "null", nullptr,
     "140000005072c3bc667374616e6420e282ac203237312e31",
     "5072c3bc667374616e6420e282ac203237312e3100", "[\"Pr\303\274fstand \342\202\254 271.1\"]",
     "[\"Pr\303\274fstand \342\202\254 271.1\"]", "01", "", 0},
    {"sparse", "[\"\"]", "[\"\"]", "null", nullptr, "00000000", "00", "[\"\"]", "[\"\"]", "01", "",
     0},
};

struct SetStatusTextExport {
    static constexpr const char* operation = "setStatusText";
    using Result = kc::NoResult;
    static void call(TarnApi* api, const kc::Json& in, KelError** error, Result& out) {
        const kc::Text a0(in[0]);
        static_cast<void>(out);
        kel_setStatusText(api, error, a0.get());
    }
};

TEST_F(Projects, setStatusText_Exchange) {
    kc::exchange<SetStatusTextExport>(api, kSetStatusTextCases);
}
TEST_F(Projects, setStatusText_Failure) {
    kc::failure<SetStatusTextExport>(api, kSetStatusTextCases);
}

const kc::Number kNumber196{196, "setStatusText", kSetStatusTextCases};

TEST_F(ProjectsByNumber, n196_setStatusText_KelCall) { kc::kelCall(api, kNumber196); }
TEST_F(ProjectsByNumber, n196_setStatusText_PyCall) { kc::pyCall(api, kNumber196); }
TEST_F(ProjectsByNumber, n196_setStatusText_Failure) { kc::numberFailure(api, kNumber196); }
TEST_F(ProjectsByNumber, n196_setStatusText_ShortInput) { kc::shortInput(api, kNumber196); }

} // namespace
