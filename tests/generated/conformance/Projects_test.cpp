// Generated from the interface description by tools/generate.py. Do not edit.
// Conformance checks of the family Projects: every export and every dispatcher number.

#include "conformance_support.h"
#include "generated/conformance/records.h"

namespace {

namespace kc = kel_conformance;

using Projects = kc::ConformanceTest;
using ProjectsByNumber = kc::ConformanceTest;
using ProjectsAdmission = kc::AdmissionTest;

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

struct GetProjectConfigurationExport {
    static constexpr const char* operation = "getProjectConfiguration";
    using Result = kc::RecordResult<ProjectConfig, release_ProjectConfig>;
    static void call(TarnApi* api, const kc::Json& in, KelError** error, Result& out) {
        const kc::Text a0(in[0]);
        kel_getProjectConfiguration(api, a0.get(), error, &out.data);
    }
};

TEST_F(Projects, getProjectConfiguration_Exchange) {
    kc::exchange<GetProjectConfigurationExport>(api, kGetProjectConfigurationCases);
}
TEST_F(Projects, getProjectConfiguration_Failure) {
    kc::failure<GetProjectConfigurationExport>(api, kGetProjectConfigurationCases);
}
TEST_F(ProjectsAdmission, getProjectConfiguration) {
    kc::admission<GetProjectConfigurationExport>(callers(), kGetProjectConfigurationCases,
                                                 kc::Needs::Operator);
}

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

struct SetProjectConfigurationExport {
    static constexpr const char* operation = "setProjectConfiguration";
    using Result = kc::NoResult;
    static void call(TarnApi* api, const kc::Json& in, KelError** error, Result& out) {
        const kc::Text a0(in[0]);
        static_cast<void>(out);
        kel_setProjectConfiguration(api, a0.get(), kc::record<ProjectConfig>(in[1]), error);
    }
};

TEST_F(Projects, setProjectConfiguration_Exchange) {
    kc::exchange<SetProjectConfigurationExport>(api, kSetProjectConfigurationCases);
}
TEST_F(Projects, setProjectConfiguration_Failure) {
    kc::failure<SetProjectConfigurationExport>(api, kSetProjectConfigurationCases);
}
TEST_F(ProjectsAdmission, setProjectConfiguration) {
    kc::admission<SetProjectConfigurationExport>(callers(), kSetProjectConfigurationCases,
                                                 kc::Needs::Operator);
}

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
TEST_F(ProjectsAdmission, saveProjectConfiguration) {
    kc::admission<SaveProjectConfigurationExport>(callers(), kSaveProjectConfigurationCases,
                                                  kc::Needs::Operator);
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
TEST_F(ProjectsAdmission, saveConfiguration) {
    kc::admission<SaveConfigurationExport>(callers(), kSaveConfigurationCases,
                                           kc::Needs::Administrator);
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
TEST_F(ProjectsAdmission, refreshProjectList) {
    kc::admission<RefreshProjectListExport>(callers(), kRefreshProjectListCases,
                                            kc::Needs::Operator);
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
TEST_F(ProjectsAdmission, isProjectConversionRequired) {
    kc::admission<IsProjectConversionRequiredExport>(callers(), kIsProjectConversionRequiredCases,
                                                     kc::Needs::Operator);
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
TEST_F(ProjectsAdmission, convertProject) {
    kc::admission<ConvertProjectExport>(callers(), kConvertProjectCases, kc::Needs::Operator);
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
TEST_F(ProjectsAdmission, saveMoxConfiguration) {
    kc::admission<SaveMoxConfigurationExport>(callers(), kSaveMoxConfigurationCases,
                                              kc::Needs::Administrator);
}

const kc::Number kNumber102{102, "saveMoxConfiguration", kSaveMoxConfigurationCases};

TEST_F(ProjectsByNumber, n102_saveMoxConfiguration_KelCall) { kc::kelCall(api, kNumber102); }
TEST_F(ProjectsByNumber, n102_saveMoxConfiguration_PyCall) { kc::pyCall(api, kNumber102); }
TEST_F(ProjectsByNumber, n102_saveMoxConfiguration_Failure) { kc::numberFailure(api, kNumber102); }

// ---- getProjectDetails (position 81, number 106) ----

const kc::Case kGetProjectDetailsCases[] = {
    {"full", "[]", "[]",
     "{\"dbFiles1\":[{\"name\":\"Pr\303\274fstand \342\202\254 81.1\",\"path\":\"\346\227\245"
     "\346\234\254\350\252\236 \360\235\204\236 81.2\",\"size\":9223372036854775809,\"loaded\""
     ":true,\"error\":{\"code\":-2147483648,\"message\":\"K\303\274hler\\u0009\360\237\224\247"
     " 81.3\",\"details\":\"say \\\"\303\251\\\" 81.4\",\"subCode\":2147483647,\"mvciError\":{"
     "\"code\":-1,\"codeText\":\"back\\\\slash \303\237 81.5\",\"vendorCode\":-65536,\"vendorC"
     "odeText\":\"Z\303\274ndung \360\237\232\227 81.6\",\"extraText\":\"Pr\303\274fstand \342"
     "\202\254 81.7\",\"extraCode\":2031089199},\"negativeResponse\":{\"code\":-390557667,\"te"
     "xt\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 81.8\",\"value1\":184467440"
     "73709551615,\"value2\":4294967296,\"bytes\":[0,255,255,128]}}},{\"name\":\"K\303\274hler"
     "\\u0009\360\237\224\247 81.9\",\"path\":\"say \\\"\303\251\\\" 81.10\",\"size\":15241370"
     "85,\"loaded\":false,\"error\":null}],\"dbFiles2\":[{\"name\":\"back\\\\slash \303\237 81"
     ".11\",\"path\":\"Z\303\274ndung \360\237\232\227 81.12\",\"size\":2031089199,\"loaded\":"
     "true,\"error\":{\"code\":897509781,\"message\":\"Pr\303\274fstand \342\202\254 81.13\","
     "\"details\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 81.14\",\"subCode\":"
     "-1404461895,\"mvciError\":{\"code\":1911414009,\"codeText\":\"K\303\274hler\\u0009\360"
     "\237\224\247 81.15\",\"vendorCode\":-270882475,\"vendorCodeText\":\"say \\\"\303\251\\\""
     " 81.16\",\"extraText\":\"back\\\\slash \303\237 81.17\",\"extraCode\":777834589},\"negat"
     "iveResponse\":{\"code\":-1284786703,\"text\":\"Z\303\274ndung \360\237\232\227 81.18\","
     "\"value1\":390557667,\"value2\":897509781,\"bytes\":[0,255,127,1]}}},{\"name\":\"Pr\303"
     "\274fstand \342\202\254 81.19\",\"path\":\"\346\227\245\346\234\254\350\252\236 \360\235"
     "\204\236 81.20\",\"size\":1404461895,\"loaded\":false,\"error\":null}],\"text1\":\"K\303"
     "\274hler\\u0009\360\237\224\247 81.21\",\"value1\":4294967295,\"text2\":\"say \\\"\303"
     "\251\\\" 81.22\",\"value2\":2147483648,\"users\":[{\"name\":\"back\\\\slash \303\237 81."
     "23\",\"text\":\"Z\303\274ndung \360\237\232\227 81.24\",\"value\":2147483647},{\"name\":"
     "\"Pr\303\274fstand \342\202\254 81.25\",\"text\":\"\346\227\245\346\234\254\350\252\236 "
     "\360\235\204\236 81.26\",\"value\":1524137085}]}",
     "{\"dbFiles1\":[{\"name\":\"Pr\303\274fstand \342\202\254 81.1\",\"path\":\"\346\227\245"
     "\346\234\254\350\252\236 \360\235\204\236 81.2\",\"size\":9223372036854775809,\"loaded\""
     ":1,\"error\":{\"code\":-2147483648,\"message\":\"K\303\274hler\\u0009\360\237\224\247 81"
     ".3\",\"details\":\"say \\\"\303\251\\\" 81.4\",\"subCode\":2147483647,\"mvciError\":{\"c"
     "ode\":-1,\"codeText\":\"back\\\\slash \303\237 81.5\",\"vendorCode\":-65536,\"vendorCode"
     "Text\":\"Z\303\274ndung \360\237\232\227 81.6\",\"extraText\":\"Pr\303\274fstand \342"
     "\202\254 81.7\",\"extraCode\":2031089199},\"negativeResponse\":{\"code\":-390557667,\"te"
     "xt\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 81.8\",\"value1\":184467440"
     "73709551615,\"value2\":4294967296,\"bytes\":[0,255,255,128],\"byteCount\":4}}},{\"name\""
     ":\"K\303\274hler\\u0009\360\237\224\247 81.9\",\"path\":\"say \\\"\303\251\\\" 81.10\","
     "\"size\":1524137085,\"loaded\":0,\"error\":null}],\"dbFileCount1\":2,\"dbFiles2\":[{\"na"
     "me\":\"back\\\\slash \303\237 81.11\",\"path\":\"Z\303\274ndung \360\237\232\227 81.12\""
     ",\"size\":2031089199,\"loaded\":1,\"error\":{\"code\":897509781,\"message\":\"Pr\303\274"
     "fstand \342\202\254 81.13\",\"details\":\"\346\227\245\346\234\254\350\252\236 \360\235"
     "\204\236 81.14\",\"subCode\":-1404461895,\"mvciError\":{\"code\":1911414009,\"codeText\""
     ":\"K\303\274hler\\u0009\360\237\224\247 81.15\",\"vendorCode\":-270882475,\"vendorCodeTe"
     "xt\":\"say \\\"\303\251\\\" 81.16\",\"extraText\":\"back\\\\slash \303\237 81.17\",\"ext"
     "raCode\":777834589},\"negativeResponse\":{\"code\":-1284786703,\"text\":\"Z\303\274ndung"
     " \360\237\232\227 81.18\",\"value1\":390557667,\"value2\":897509781,\"bytes\":[0,255,127"
     ",1],\"byteCount\":4}}},{\"name\":\"Pr\303\274fstand \342\202\254 81.19\",\"path\":\"\346"
     "\227\245\346\234\254\350\252\236 \360\235\204\236 81.20\",\"size\":1404461895,\"loaded\""
     ":0,\"error\":null}],\"dbFileCount2\":2,\"text1\":\"K\303\274hler\\u0009\360\237\224\247 "
     "81.21\",\"value1\":4294967295,\"text2\":\"say \\\"\303\251\\\" 81.22\",\"value2\":214748"
     "3648,\"users\":[{\"name\":\"back\\\\slash \303\237 81.23\",\"text\":\"Z\303\274ndung "
     "\360\237\232\227 81.24\",\"value\":2147483647},{\"name\":\"Pr\303\274fstand \342\202\254"
     " 81.25\",\"text\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 81.26\",\"valu"
     "e\":1524137085}],\"userCount\":2}",
     "", "", "[]", "[]",
     "01010200000001130000005072c3bc667374616e6420e282ac2038312e3113000000e697a5e69cace8aa9e20"
     "f09d849e2038312e320100000000000080010100000080110000004bc3bc686c657209f09f94a72038312e33"
     "0d0000007361792022c3a9222038312e34ffffff7f01ffffffff120000006261636b5c736c61736820c39f20"
     "38312e350000ffff120000005ac3bc6e64756e6720f09f9a972038312e36130000005072c3bc667374616e64"
     "20e282ac2038312e372ff60f79011d90b8e813000000e697a5e69cace8aa9e20f09d849e2038312e38ffffff"
     "ffffffffff00000000010000000400000000ffff8001110000004bc3bc686c657209f09f94a72038312e390e"
     "0000007361792022c3a9222038312e31307d7cd85a0000000000000200000001130000006261636b5c736c61"
     "736820c39f2038312e3131130000005ac3bc6e64756e6720f09f9a972038312e31322ff60f79000000000101"
     "95e97e35140000005072c3bc667374616e6420e282ac2038312e313314000000e697a5e69cace8aa9e20f09d"
     "849e2038312e3134b99c49ac01f9dced71120000004bc3bc686c657209f09f94a72038312e313555a9daef0e"
     "0000007361792022c3a9222038312e3136130000006261636b5c736c61736820c39f2038312e31375dd05c2e"
     "01f1b56bb3130000005ac3bc6e64756e6720f09f9a972038312e3138e36f47170000000095e97e3500000000"
     "0400000000ff7f0101140000005072c3bc667374616e6420e282ac2038312e313914000000e697a5e69cace8"
     "aa9e20f09d849e2038312e32304763b653000000000000120000004bc3bc686c657209f09f94a72038312e32"
     "31ffffffff0e0000007361792022c3a9222038312e3232000000800200000001130000006261636b5c736c61"
     "736820c39f2038312e3233130000005ac3bc6e64756e6720f09f9a972038312e3234ffffff7f011400000050"
     "72c3bc667374616e6420e282ac2038312e323514000000e697a5e69cace8aa9e20f09d849e2038312e32367d"
     "7cd85a",
     "010200000001130000005072c3bc667374616e6420e282ac2038312e3113000000e697a5e69cace8aa9e20f0"
     "9d849e2038312e320100000000000080010100000080110000004bc3bc686c657209f09f94a72038312e330d"
     "0000007361792022c3a9222038312e34ffffff7f01ffffffff120000006261636b5c736c61736820c39f2038"
     "312e350000ffff120000005ac3bc6e64756e6720f09f9a972038312e36130000005072c3bc667374616e6420"
     "e282ac2038312e372ff60f79011d90b8e813000000e697a5e69cace8aa9e20f09d849e2038312e38ffffffff"
     "ffffffff00000000010000000400000000ffff8001110000004bc3bc686c657209f09f94a72038312e390e00"
     "00007361792022c3a9222038312e31307d7cd85a0000000000000200000001130000006261636b5c736c6173"
     "6820c39f2038312e3131130000005ac3bc6e64756e6720f09f9a972038312e31322ff60f7900000000010195"
     "e97e35140000005072c3bc667374616e6420e282ac2038312e313314000000e697a5e69cace8aa9e20f09d84"
     "9e2038312e3134b99c49ac01f9dced71120000004bc3bc686c657209f09f94a72038312e313555a9daef0e00"
     "00007361792022c3a9222038312e3136130000006261636b5c736c61736820c39f2038312e31375dd05c2e01"
     "f1b56bb3130000005ac3bc6e64756e6720f09f9a972038312e3138e36f47170000000095e97e350000000004"
     "00000000ff7f0101140000005072c3bc667374616e6420e282ac2038312e313914000000e697a5e69cace8aa"
     "9e20f09d849e2038312e32304763b653000000000000120000004bc3bc686c657209f09f94a72038312e3231"
     "ffffffff0e0000007361792022c3a9222038312e3232000000800200000001130000006261636b5c736c6173"
     "6820c39f2038312e3233130000005ac3bc6e64756e6720f09f9a972038312e3234ffffff7f01140000005072"
     "c3bc667374616e6420e282ac2038312e323514000000e697a5e69cace8aa9e20f09d849e2038312e32367d7c"
     "d85a",
     0},
    {"sparse", "[]", "[]",
     "{\"dbFiles1\":[{\"name\":\"\",\"path\":\"\",\"size\":9223372036854775809,\"loaded\":true"
     ",\"error\":null}],\"dbFiles2\":[{\"name\":\"\",\"path\":\"\",\"size\":184467440737095516"
     "15,\"loaded\":false,\"error\":null}],\"text1\":\"\",\"value1\":4294967295,\"text2\":\"\""
     ",\"value2\":2147483648,\"users\":[{\"name\":\"\",\"text\":\"\",\"value\":2147483647}]}",
     "{\"dbFiles1\":[{\"name\":\"\",\"path\":\"\",\"size\":9223372036854775809,\"loaded\":1,\""
     "error\":null}],\"dbFileCount1\":1,\"dbFiles2\":[{\"name\":\"\",\"path\":\"\",\"size\":18"
     "446744073709551615,\"loaded\":0,\"error\":null}],\"dbFileCount2\":1,\"text1\":\"\",\"val"
     "ue1\":4294967295,\"text2\":\"\",\"value2\":2147483648,\"users\":[{\"name\":\"\",\"text\""
     ":\"\",\"value\":2147483647}],\"userCount\":1}",
     "", "", "[]", "[]",
     "0101010000000100000000000000000100000000000080010001000000010000000000000000ffffffffffff"
     "ffff000000000000ffffffff000000000000008001000000010000000000000000ffffff7f",
     "01010000000100000000000000000100000000000080010001000000010000000000000000ffffffffffffff"
     "ff000000000000ffffffff000000000000008001000000010000000000000000ffffff7f",
     0},
    {"empty", "[]", "[]", "null", "null", "", "", "[]", "[]", "0100", "00", 0},
};

struct GetProjectDetailsExport {
    static constexpr const char* operation = "getProjectDetails";
    using Result = kc::RecordResult<ProjectDetails, release_ProjectDetails>;
    static void call(TarnApi* api, const kc::Json& in, KelError** error, Result& out) {
        static_cast<void>(in);
        kel_getProjectDetails(api, error, &out.data);
    }
};

TEST_F(Projects, getProjectDetails_Exchange) {
    kc::exchange<GetProjectDetailsExport>(api, kGetProjectDetailsCases);
}
TEST_F(Projects, getProjectDetails_Failure) {
    kc::failure<GetProjectDetailsExport>(api, kGetProjectDetailsCases);
}
TEST_F(ProjectsAdmission, getProjectDetails) {
    kc::admission<GetProjectDetailsExport>(callers(), kGetProjectDetailsCases, kc::Needs::Operator);
}

const kc::Number kNumber106{106, "getProjectDetails", kGetProjectDetailsCases};

TEST_F(ProjectsByNumber, n106_getProjectDetails_KelCall) { kc::kelCall(api, kNumber106); }
TEST_F(ProjectsByNumber, n106_getProjectDetails_PyCall) { kc::pyCall(api, kNumber106); }
TEST_F(ProjectsByNumber, n106_getProjectDetails_Failure) { kc::numberFailure(api, kNumber106); }

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

struct GetSystemPropertyExport {
    static constexpr const char* operation = "getSystemProperty";
    using Result = kc::RecordResult<SystemProperty, release_SystemProperty>;
    static void call(TarnApi* api, const kc::Json& in, KelError** error, Result& out) {
        const kc::Text a0(in[0]);
        kel_getSystemProperty(api, a0.get(), error, &out.data);
    }
};

TEST_F(Projects, getSystemProperty_Exchange) {
    kc::exchange<GetSystemPropertyExport>(api, kGetSystemPropertyCases);
}
TEST_F(Projects, getSystemProperty_Failure) {
    kc::failure<GetSystemPropertyExport>(api, kGetSystemPropertyCases);
}
TEST_F(ProjectsAdmission, getSystemProperty) {
    kc::admission<GetSystemPropertyExport>(callers(), kGetSystemPropertyCases, kc::Needs::Operator);
}

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
TEST_F(ProjectsAdmission, resetSystemProperty) {
    kc::admission<ResetSystemPropertyExport>(callers(), kResetSystemPropertyCases,
                                             kc::Needs::Administrator);
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

struct SetSystemPropertyExport {
    static constexpr const char* operation = "setSystemProperty";
    using Result = kc::NoResult;
    static void call(TarnApi* api, const kc::Json& in, KelError** error, Result& out) {
        static_cast<void>(out);
        kel_setSystemProperty(api, kc::record<SystemProperty>(in[0]), error);
    }
};

TEST_F(Projects, setSystemProperty_Exchange) {
    kc::exchange<SetSystemPropertyExport>(api, kSetSystemPropertyCases);
}
TEST_F(Projects, setSystemProperty_Failure) {
    kc::failure<SetSystemPropertyExport>(api, kSetSystemPropertyCases);
}
TEST_F(ProjectsAdmission, setSystemProperty) {
    kc::admission<SetSystemPropertyExport>(callers(), kSetSystemPropertyCases,
                                           kc::Needs::Administrator);
}

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

struct GetSystemInfoExport {
    static constexpr const char* operation = "getSystemInfo";
    using Result = kc::RecordResult<SystemInfo, release_SystemInfo>;
    static void call(TarnApi* api, const kc::Json& in, KelError** error, Result& out) {
        static_cast<void>(in);
        kel_getSystemInfo(api, error, &out.data);
    }
};

TEST_F(Projects, getSystemInfo_Exchange) {
    kc::exchange<GetSystemInfoExport>(api, kGetSystemInfoCases);
}
TEST_F(Projects, getSystemInfo_Failure) {
    kc::failure<GetSystemInfoExport>(api, kGetSystemInfoCases);
}
TEST_F(ProjectsAdmission, getSystemInfo) {
    kc::admission<GetSystemInfoExport>(callers(), kGetSystemInfoCases, kc::Needs::Operator);
}

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

struct LoadDatabaseFileExport {
    static constexpr const char* operation = "loadDatabaseFile";
    using Result = kc::ListResult<LoadDatabaseResult, release_LoadDatabaseResult_array>;
    static void call(TarnApi* api, const kc::Json& in, KelError** error, Result& out) {
        kc::Texts a0(in[0]);
        kel_loadDatabaseFile(api, a0.data(), a0.count(), error, &out.data, &out.count);
    }
};

TEST_F(Projects, loadDatabaseFile_Exchange) {
    kc::exchange<LoadDatabaseFileExport>(api, kLoadDatabaseFileCases);
}
TEST_F(Projects, loadDatabaseFile_Failure) {
    kc::failure<LoadDatabaseFileExport>(api, kLoadDatabaseFileCases);
}
TEST_F(ProjectsAdmission, loadDatabaseFile) {
    kc::admission<LoadDatabaseFileExport>(callers(), kLoadDatabaseFileCases, kc::Needs::Operator);
}

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

struct UnloadDatabaseFileExport {
    static constexpr const char* operation = "unloadDatabaseFile";
    using Result = kc::ListResult<LoadDatabaseResult, release_LoadDatabaseResult_array>;
    static void call(TarnApi* api, const kc::Json& in, KelError** error, Result& out) {
        kc::Texts a0(in[0]);
        kel_unloadDatabaseFile(api, a0.data(), a0.count(), error, &out.data, &out.count);
    }
};

TEST_F(Projects, unloadDatabaseFile_Exchange) {
    kc::exchange<UnloadDatabaseFileExport>(api, kUnloadDatabaseFileCases);
}
TEST_F(Projects, unloadDatabaseFile_Failure) {
    kc::failure<UnloadDatabaseFileExport>(api, kUnloadDatabaseFileCases);
}
TEST_F(ProjectsAdmission, unloadDatabaseFile) {
    kc::admission<UnloadDatabaseFileExport>(callers(), kUnloadDatabaseFileCases,
                                            kc::Needs::Operator);
}

const kc::Number kNumber206{206, "unloadDatabaseFile", kUnloadDatabaseFileCases};

TEST_F(ProjectsByNumber, n206_unloadDatabaseFile_KelCall) { kc::kelCall(api, kNumber206); }
TEST_F(ProjectsByNumber, n206_unloadDatabaseFile_PyCall) { kc::pyCall(api, kNumber206); }
TEST_F(ProjectsByNumber, n206_unloadDatabaseFile_Failure) { kc::numberFailure(api, kNumber206); }
TEST_F(ProjectsByNumber, n206_unloadDatabaseFile_ShortInput) { kc::shortInput(api, kNumber206); }

// ---- getProjectsDetails (position 192, number 203) ----

const kc::Case kGetProjectsDetailsCases[] = {
    {"full",
     "[[\"Pr\303\274fstand \342\202\254 192.1\",\"\",\"\346\227\245\346\234\254\350\252\236 "
     "\360\235\204\236 192.2\"]]",
     "[[\"Pr\303\274fstand \342\202\254 192.1\",\"\",\"\346\227\245\346\234\254\350\252\236 "
     "\360\235\204\236 192.2\"]]",
     "[{\"dbFiles1\":[{\"name\":\"K\303\274hler\\u0009\360\237\224\247 192.3\",\"path\":\"say "
     "\\\"\303\251\\\" 192.4\",\"size\":9223372036854775809,\"loaded\":true,\"error\":{\"code"
     "\":-2147483648,\"message\":\"back\\\\slash \303\237 192.5\",\"details\":\"Z\303\274ndung"
     " \360\237\232\227 192.6\",\"subCode\":2147483647,\"mvciError\":{\"code\":-1,\"codeText\""
     ":\"Pr\303\274fstand \342\202\254 192.7\",\"vendorCode\":-65536,\"vendorCodeText\":\"\346"
     "\227\245\346\234\254\350\252\236 \360\235\204\236 192.8\",\"extraText\":\"K\303\274hler"
     "\\u0009\360\237\224\247 192.9\",\"extraCode\":2035585033},\"negativeResponse\":{\"code\""
     ":-395053499,\"text\":\"say \\\"\303\251\\\" 192.10\",\"value1\":18446744073709551615,\"v"
     "alue2\":4294967296,\"bytes\":[0,255,255,128]}}},{\"name\":\"back\\\\slash \303\237 192.1"
     "1\",\"path\":\"Z\303\274ndung \360\237\232\227 192.12\",\"size\":1528632919,\"loaded\":f"
     "alse,\"error\":null}],\"dbFiles2\":[{\"name\":\"Pr\303\274fstand \342\202\254 192.13\","
     "\"path\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 192.14\",\"size\":20355"
     "85033,\"loaded\":true,\"error\":{\"code\":902005613,\"message\":\"K\303\274hler\\u0009"
     "\360\237\224\247 192.15\",\"details\":\"say \\\"\303\251\\\" 192.16\",\"subCode\":-14089"
     "57727,\"mvciError\":{\"code\":1915909841,\"codeText\":\"back\\\\slash \303\237 192.17\","
     "\"vendorCode\":-275378309,\"vendorCodeText\":\"Z\303\274ndung \360\237\232\227 192.18\","
     "\"extraText\":\"Pr\303\274fstand \342\202\254 192.19\",\"extraCode\":782330423},\"negati"
     "veResponse\":{\"code\":-1289282537,\"text\":\"\346\227\245\346\234\254\350\252\236 \360"
     "\235\204\236 192.20\",\"value1\":395053499,\"value2\":902005613,\"bytes\":[0,255,127,1]}"
     "}},{\"name\":\"K\303\274hler\\u0009\360\237\224\247 192.21\",\"path\":\"say \\\"\303\251"
     "\\\" 192.22\",\"size\":1408957727,\"loaded\":false,\"error\":null}],\"text1\":\"back\\\\"
     "slash \303\237 192.23\",\"value1\":4294967295,\"text2\":\"Z\303\274ndung \360\237\232"
     "\227 192.24\",\"value2\":2147483648,\"users\":[{\"name\":\"Pr\303\274fstand \342\202\254"
     " 192.25\",\"text\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 192.26\",\"va"
     "lue\":2147483647},{\"name\":\"K\303\274hler\\u0009\360\237\224\247 192.27\",\"text\":\"s"
     "ay \\\"\303\251\\\" 192.28\",\"value\":1528632919}]},{\"dbFiles1\":[],\"dbFiles2\":[],\""
     "text1\":\"back\\\\slash \303\237 192.29\",\"value1\":2035585033,\"text2\":\"Z\303\274ndu"
     "ng \360\237\232\227 192.30\",\"value2\":395053499,\"users\":[]}]",
     "[{\"dbFiles1\":[{\"name\":\"K\303\274hler\\u0009\360\237\224\247 192.3\",\"path\":\"say "
     "\\\"\303\251\\\" 192.4\",\"size\":9223372036854775809,\"loaded\":1,\"error\":{\"code\":-"
     "2147483648,\"message\":\"back\\\\slash \303\237 192.5\",\"details\":\"Z\303\274ndung "
     "\360\237\232\227 192.6\",\"subCode\":2147483647,\"mvciError\":{\"code\":-1,\"codeText\":"
     "\"Pr\303\274fstand \342\202\254 192.7\",\"vendorCode\":-65536,\"vendorCodeText\":\"\346"
     "\227\245\346\234\254\350\252\236 \360\235\204\236 192.8\",\"extraText\":\"K\303\274hler"
     "\\u0009\360\237\224\247 192.9\",\"extraCode\":2035585033},\"negativeResponse\":{\"code\""
     ":-395053499,\"text\":\"say \\\"\303\251\\\" 192.10\",\"value1\":18446744073709551615,\"v"
     "alue2\":4294967296,\"bytes\":[0,255,255,128],\"byteCount\":4}}},{\"name\":\"back\\\\slas"
     "h \303\237 192.11\",\"path\":\"Z\303\274ndung \360\237\232\227 192.12\",\"size\":1528632"
     "919,\"loaded\":0,\"error\":null}],\"dbFileCount1\":2,\"dbFiles2\":[{\"name\":\"Pr\303"
     "\274fstand \342\202\254 192.13\",\"path\":\"\346\227\245\346\234\254\350\252\236 \360"
     "\235\204\236 192.14\",\"size\":2035585033,\"loaded\":1,\"error\":{\"code\":902005613,\"m"
     "essage\":\"K\303\274hler\\u0009\360\237\224\247 192.15\",\"details\":\"say \\\"\303\251"
     "\\\" 192.16\",\"subCode\":-1408957727,\"mvciError\":{\"code\":1915909841,\"codeText\":\""
     "back\\\\slash \303\237 192.17\",\"vendorCode\":-275378309,\"vendorCodeText\":\"Z\303\274"
     "ndung \360\237\232\227 192.18\",\"extraText\":\"Pr\303\274fstand \342\202\254 192.19\","
     "\"extraCode\":782330423},\"negativeResponse\":{\"code\":-1289282537,\"text\":\"\346\227"
     "\245\346\234\254\350\252\236 \360\235\204\236 192.20\",\"value1\":395053499,\"value2\":9"
     "02005613,\"bytes\":[0,255,127,1],\"byteCount\":4}}},{\"name\":\"K\303\274hler\\u0009\360"
     "\237\224\247 192.21\",\"path\":\"say \\\"\303\251\\\" 192.22\",\"size\":1408957727,\"loa"
     "ded\":0,\"error\":null}],\"dbFileCount2\":2,\"text1\":\"back\\\\slash \303\237 192.23\","
     "\"value1\":4294967295,\"text2\":\"Z\303\274ndung \360\237\232\227 192.24\",\"value2\":21"
     "47483648,\"users\":[{\"name\":\"Pr\303\274fstand \342\202\254 192.25\",\"text\":\"\346"
     "\227\245\346\234\254\350\252\236 \360\235\204\236 192.26\",\"value\":2147483647},{\"name"
     "\":\"K\303\274hler\\u0009\360\237\224\247 192.27\",\"text\":\"say \\\"\303\251\\\" 192.2"
     "8\",\"value\":1528632919}],\"userCount\":2},{\"dbFiles1\":null,\"dbFileCount1\":0,\"dbFi"
     "les2\":null,\"dbFileCount2\":0,\"text1\":\"back\\\\slash \303\237 192.29\",\"value1\":20"
     "35585033,\"text2\":\"Z\303\274ndung \360\237\232\227 192.30\",\"value2\":395053499,\"use"
     "rs\":null,\"userCount\":0}]",
     "03000000140000005072c3bc667374616e6420e282ac203139322e310000000014000000e697a5e69cace8aa"
     "9e20f09d849e203139322e32",
     "030000005072c3bc667374616e6420e282ac203139322e310000e697a5e69cace8aa9e20f09d849e20313932"
     "2e3200",
     "[[\"Pr\303\274fstand \342\202\254 192.1\",\"\",\"\346\227\245\346\234\254\350\252\236 "
     "\360\235\204\236 192.2\"]]",
     "[[\"Pr\303\274fstand \342\202\254 192.1\",\"\",\"\346\227\245\346\234\254\350\252\236 "
     "\360\235\204\236 192.2\"]]",
     "0102000000010200000001120000004bc3bc686c657209f09f94a7203139322e330e0000007361792022c3a9"
     "22203139322e340100000000000080010100000080130000006261636b5c736c61736820c39f203139322e35"
     "130000005ac3bc6e64756e6720f09f9a97203139322e36ffffff7f01ffffffff140000005072c3bc66737461"
     "6e6420e282ac203139322e370000ffff14000000e697a5e69cace8aa9e20f09d849e203139322e3812000000"
     "4bc3bc686c657209f09f94a7203139322e39099054790145f673e80f0000007361792022c3a922203139322e"
     "3130ffffffffffffffff00000000010000000400000000ffff8001140000006261636b5c736c61736820c39f"
     "203139322e3131140000005ac3bc6e64756e6720f09f9a97203139322e313257161d5b000000000000020000"
     "0001150000005072c3bc667374616e6420e282ac203139322e313315000000e697a5e69cace8aa9e20f09d84"
     "9e203139322e3134099054790000000001016d83c335130000004bc3bc686c657209f09f94a7203139322e31"
     "350f0000007361792022c3a922203139322e3136e10205ac01d1763272140000006261636b5c736c61736820"
     "c39f203139322e31377b0f96ef140000005ac3bc6e64756e6720f09f9a97203139322e3138150000005072c3"
     "bc667374616e6420e282ac203139322e3139376aa12e01171c27b315000000e697a5e69cace8aa9e20f09d84"
     "9e203139322e3230bb098c17000000006d83c335000000000400000000ff7f0101130000004bc3bc686c6572"
     "09f09f94a7203139322e32310f0000007361792022c3a922203139322e32321ffdfa53000000000000140000"
     "006261636b5c736c61736820c39f203139322e3233ffffffff140000005ac3bc6e64756e6720f09f9a972031"
     "39322e3234000000800200000001150000005072c3bc667374616e6420e282ac203139322e323515000000e6"
     "97a5e69cace8aa9e20f09d849e203139322e3236ffffff7f01130000004bc3bc686c657209f09f94a7203139"
     "322e32370f0000007361792022c3a922203139322e323857161d5b010000000000000000140000006261636b"
     "5c736c61736820c39f203139322e323909905479140000005ac3bc6e64756e6720f09f9a97203139322e3330"
     "bb098c1700000000",
     "02000000010200000001120000004bc3bc686c657209f09f94a7203139322e330e0000007361792022c3a922"
     "203139322e340100000000000080010100000080130000006261636b5c736c61736820c39f203139322e3513"
     "0000005ac3bc6e64756e6720f09f9a97203139322e36ffffff7f01ffffffff140000005072c3bc667374616e"
     "6420e282ac203139322e370000ffff14000000e697a5e69cace8aa9e20f09d849e203139322e38120000004b"
     "c3bc686c657209f09f94a7203139322e39099054790145f673e80f0000007361792022c3a922203139322e31"
     "30ffffffffffffffff00000000010000000400000000ffff8001140000006261636b5c736c61736820c39f20"
     "3139322e3131140000005ac3bc6e64756e6720f09f9a97203139322e313257161d5b00000000000002000000"
     "01150000005072c3bc667374616e6420e282ac203139322e313315000000e697a5e69cace8aa9e20f09d849e"
     "203139322e3134099054790000000001016d83c335130000004bc3bc686c657209f09f94a7203139322e3135"
     "0f0000007361792022c3a922203139322e3136e10205ac01d1763272140000006261636b5c736c61736820c3"
     "9f203139322e31377b0f96ef140000005ac3bc6e64756e6720f09f9a97203139322e3138150000005072c3bc"
     "667374616e6420e282ac203139322e3139376aa12e01171c27b315000000e697a5e69cace8aa9e20f09d849e"
     "203139322e3230bb098c17000000006d83c335000000000400000000ff7f0101130000004bc3bc686c657209"
     "f09f94a7203139322e32310f0000007361792022c3a922203139322e32321ffdfa5300000000000014000000"
     "6261636b5c736c61736820c39f203139322e3233ffffffff140000005ac3bc6e64756e6720f09f9a97203139"
     "322e3234000000800200000001150000005072c3bc667374616e6420e282ac203139322e323515000000e697"
     "a5e69cace8aa9e20f09d849e203139322e3236ffffff7f01130000004bc3bc686c657209f09f94a720313932"
     "2e32370f0000007361792022c3a922203139322e323857161d5b010000000000000000140000006261636b5c"
     "736c61736820c39f203139322e323909905479140000005ac3bc6e64756e6720f09f9a97203139322e3330bb"
     "098c1700000000",
     0},
    {"sparse", "[[]]", "[[]]",
     "[{\"dbFiles1\":[{\"name\":\"\",\"path\":\"\",\"size\":9223372036854775809,\"loaded\":tru"
     "e,\"error\":null}],\"dbFiles2\":[{\"name\":\"\",\"path\":\"\",\"size\":18446744073709551"
     "615,\"loaded\":false,\"error\":null}],\"text1\":\"\",\"value1\":4294967295,\"text2\":\""
     "\",\"value2\":2147483648,\"users\":[{\"name\":\"\",\"text\":\"\",\"value\":2147483647}]}"
     ",null]",
     "[{\"dbFiles1\":[{\"name\":\"\",\"path\":\"\",\"size\":9223372036854775809,\"loaded\":1,"
     "\"error\":null}],\"dbFileCount1\":1,\"dbFiles2\":[{\"name\":\"\",\"path\":\"\",\"size\":"
     "18446744073709551615,\"loaded\":0,\"error\":null}],\"dbFileCount2\":1,\"text1\":\"\",\"v"
     "alue1\":4294967295,\"text2\":\"\",\"value2\":2147483648,\"users\":[{\"name\":\"\",\"text"
     "\":\"\",\"value\":2147483647}],\"userCount\":1},null]",
     "00000000", "00000000", "[[]]", "[[]]",
     "010200000001010000000100000000000000000100000000000080010001000000010000000000000000ffff"
     "ffffffffffff000000000000ffffffff000000000000008001000000010000000000000000ffffff7f00",
     "0200000001010000000100000000000000000100000000000080010001000000010000000000000000ffffff"
     "ffffffffff000000000000ffffffff000000000000008001000000010000000000000000ffffff7f00",
     0},
    {"empty", "[[]]", "[[]]", "[]", "null", "00000000", "00000000", "[[]]", "[[]]", "0100000000",
     "00000000", 0},
};

struct GetProjectsDetailsExport {
    static constexpr const char* operation = "getProjectsDetails";
    using Result = kc::ListResult<ProjectDetails, release_ProjectDetails_array>;
    static void call(TarnApi* api, const kc::Json& in, KelError** error, Result& out) {
        kc::Texts a0(in[0]);
        kel_getProjectsDetails(api, a0.data(), a0.count(), error, &out.data, &out.count);
    }
};

TEST_F(Projects, getProjectsDetails_Exchange) {
    kc::exchange<GetProjectsDetailsExport>(api, kGetProjectsDetailsCases);
}
TEST_F(Projects, getProjectsDetails_Failure) {
    kc::failure<GetProjectsDetailsExport>(api, kGetProjectsDetailsCases);
}
TEST_F(ProjectsAdmission, getProjectsDetails) {
    kc::admission<GetProjectsDetailsExport>(callers(), kGetProjectsDetailsCases,
                                            kc::Needs::Operator);
}

const kc::Number kNumber203{203, "getProjectsDetails", kGetProjectsDetailsCases};

TEST_F(ProjectsByNumber, n203_getProjectsDetails_KelCall) { kc::kelCall(api, kNumber203); }
TEST_F(ProjectsByNumber, n203_getProjectsDetails_PyCall) { kc::pyCall(api, kNumber203); }
TEST_F(ProjectsByNumber, n203_getProjectsDetails_Failure) { kc::numberFailure(api, kNumber203); }
TEST_F(ProjectsByNumber, n203_getProjectsDetails_ShortInput) { kc::shortInput(api, kNumber203); }

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
TEST_F(ProjectsAdmission, selectDynamicProject) {
    kc::admission<SelectDynamicProjectExport>(callers(), kSelectDynamicProjectCases,
                                              kc::Needs::Operator);
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

struct GetProjectConfigurationsExport {
    static constexpr const char* operation = "getProjectConfigurations";
    using Result = kc::ListResult<ProjectConfig, release_ProjectConfig_array>;
    static void call(TarnApi* api, const kc::Json& in, KelError** error, Result& out) {
        static_cast<void>(in);
        kel_getProjectConfigurations(api, error, &out.data, &out.count);
    }
};

TEST_F(Projects, getProjectConfigurations_Exchange) {
    kc::exchange<GetProjectConfigurationsExport>(api, kGetProjectConfigurationsCases);
}
TEST_F(Projects, getProjectConfigurations_Failure) {
    kc::failure<GetProjectConfigurationsExport>(api, kGetProjectConfigurationsCases);
}
TEST_F(ProjectsAdmission, getProjectConfigurations) {
    kc::admission<GetProjectConfigurationsExport>(callers(), kGetProjectConfigurationsCases,
                                                  kc::Needs::Operator);
}

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
TEST_F(ProjectsAdmission, getVersion) {
    kc::admission<GetVersionExport>(callers(), kGetVersionCases, kc::Needs::Operator);
}

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
TEST_F(ProjectsAdmission, getSelectedProject) {
    kc::admission<GetSelectedProjectExport>(callers(), kGetSelectedProjectCases,
                                            kc::Needs::Operator);
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
TEST_F(ProjectsAdmission, setSelectedProject) {
    kc::admission<SetSelectedProjectExport>(callers(), kSetSelectedProjectCases,
                                            kc::Needs::Operator);
}

const kc::Number kNumber52{52, "setSelectedProject", kSetSelectedProjectCases};

TEST_F(ProjectsByNumber, n52_setSelectedProject_KelCall) { kc::kelCall(api, kNumber52); }
TEST_F(ProjectsByNumber, n52_setSelectedProject_PyCall) { kc::pyCall(api, kNumber52); }
TEST_F(ProjectsByNumber, n52_setSelectedProject_Failure) { kc::numberFailure(api, kNumber52); }
TEST_F(ProjectsByNumber, n52_setSelectedProject_ShortInput) { kc::shortInput(api, kNumber52); }

// ---- getConfiguration (position 246, number 53) ----

const kc::Case kGetConfigurationCases[] = {
    {"full", "[]", "[]",
     "{\"value1\":-2147483648,\"flag1\":true,\"flag2\":false,\"value2\":2147483647,\"server\":"
     "{\"address\":\"Pr\303\274fstand \342\202\254 246.1\",\"port\":4294967295,\"enabled\":tru"
     "e,\"name\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 246.2\"},\"value3\":2"
     "147483648,\"value4\":2147483647,\"value5\":1530820081,\"flag3\":false,\"value6\":2037772"
     "195,\"value7\":65535,\"oauth2Configs\":[{\"issuer\":\"K\303\274hler\\u0009\360\237\224"
     "\247 246.3\",\"clientId\":\"say \\\"\303\251\\\" 246.4\",\"scopes\":[\"back\\\\slash "
     "\303\237 246.5\",\"Z\303\274ndung \360\237\232\227 246.6\"],\"redirectUrl\":\"Pr\303\274"
     "fstand \342\202\254 246.7\"},{\"issuer\":\"\346\227\245\346\234\254\350\252\236 \360\235"
     "\204\236 246.8\",\"clientId\":\"K\303\274hler\\u0009\360\237\224\247 246.9\",\"scopes\":"
     "[\"say \\\"\303\251\\\" 246.10\",\"back\\\\slash \303\237 246.11\"],\"redirectUrl\":\"Z"
     "\303\274ndung \360\237\232\227 246.12\"}],\"text\":\"Pr\303\274fstand \342\202\254 246.1"
     "3\"}",
     "{\"value1\":-2147483648,\"flag1\":1,\"flag2\":0,\"value2\":2147483647,\"server\":{\"addr"
     "ess\":\"Pr\303\274fstand \342\202\254 246.1\",\"port\":4294967295,\"enabled\":1,\"name\""
     ":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 246.2\"},\"value3\":2147483648,"
     "\"value4\":2147483647,\"value5\":1530820081,\"flag3\":0,\"value6\":2037772195,\"value7\""
     ":65535,\"oauth2Configs\":[{\"issuer\":\"K\303\274hler\\u0009\360\237\224\247 246.3\",\"c"
     "lientId\":\"say \\\"\303\251\\\" 246.4\",\"scopes\":[\"back\\\\slash \303\237 246.5\",\""
     "Z\303\274ndung \360\237\232\227 246.6\"],\"scopeCount\":2,\"redirectUrl\":\"Pr\303\274fs"
     "tand \342\202\254 246.7\"},{\"issuer\":\"\346\227\245\346\234\254\350\252\236 \360\235"
     "\204\236 246.8\",\"clientId\":\"K\303\274hler\\u0009\360\237\224\247 246.9\",\"scopes\":"
     "[\"say \\\"\303\251\\\" 246.10\",\"back\\\\slash \303\237 246.11\"],\"scopeCount\":2,\"r"
     "edirectUrl\":\"Z\303\274ndung \360\237\232\227 246.12\"}],\"oauth2ConfigCount\":2,\"text"
     "\":\"Pr\303\274fstand \342\202\254 246.13\"}",
     "", "", "[]", "[]",
     "0101000000800100ffffff7f01140000005072c3bc667374616e6420e282ac203234362e31ffffffff011400"
     "0000e697a5e69cace8aa9e20f09d849e203234362e3200000080ffffff7ff1753e5b00a3ef7579ffff020000"
     "0001120000004bc3bc686c657209f09f94a7203234362e330e0000007361792022c3a922203234362e340200"
     "0000130000006261636b5c736c61736820c39f203234362e35130000005ac3bc6e64756e6720f09f9a972032"
     "34362e36140000005072c3bc667374616e6420e282ac203234362e370114000000e697a5e69cace8aa9e20f0"
     "9d849e203234362e38120000004bc3bc686c657209f09f94a7203234362e39020000000f0000007361792022"
     "c3a922203234362e3130140000006261636b5c736c61736820c39f203234362e3131140000005ac3bc6e6475"
     "6e6720f09f9a97203234362e3132150000005072c3bc667374616e6420e282ac203234362e3133",
     "01000000800100ffffff7f01140000005072c3bc667374616e6420e282ac203234362e31ffffffff01140000"
     "00e697a5e69cace8aa9e20f09d849e203234362e3200000080ffffff7ff1753e5b00a3ef7579ffff02000000"
     "01120000004bc3bc686c657209f09f94a7203234362e330e0000007361792022c3a922203234362e34020000"
     "00130000006261636b5c736c61736820c39f203234362e35130000005ac3bc6e64756e6720f09f9a97203234"
     "362e36140000005072c3bc667374616e6420e282ac203234362e370114000000e697a5e69cace8aa9e20f09d"
     "849e203234362e38120000004bc3bc686c657209f09f94a7203234362e39020000000f0000007361792022c3"
     "a922203234362e3130140000006261636b5c736c61736820c39f203234362e3131140000005ac3bc6e64756e"
     "6720f09f9a97203234362e3132150000005072c3bc667374616e6420e282ac203234362e3133",
     0},
    {"sparse", "[]", "[]",
     "{\"value1\":-2147483648,\"flag1\":true,\"flag2\":false,\"value2\":2147483647,\"server\":"
     "{\"address\":\"\",\"port\":4294967295,\"enabled\":true,\"name\":\"\"},\"value3\":2147483"
     "648,\"value4\":2147483647,\"value5\":1530820081,\"flag3\":false,\"value6\":2037772195,\""
     "value7\":65535,\"oauth2Configs\":[{\"issuer\":\"\",\"clientId\":\"\",\"scopes\":[],\"red"
     "irectUrl\":\"\"}],\"text\":\"\"}",
     "{\"value1\":-2147483648,\"flag1\":1,\"flag2\":0,\"value2\":2147483647,\"server\":{\"addr"
     "ess\":\"\",\"port\":4294967295,\"enabled\":1,\"name\":\"\"},\"value3\":2147483648,\"valu"
     "e4\":2147483647,\"value5\":1530820081,\"flag3\":0,\"value6\":2037772195,\"value7\":65535"
     ",\"oauth2Configs\":[{\"issuer\":\"\",\"clientId\":\"\",\"scopes\":null,\"scopeCount\":0,"
     "\"redirectUrl\":\"\"}],\"oauth2ConfigCount\":1,\"text\":\"\"}",
     "", "", "[]", "[]",
     "0101000000800100ffffff7f0100000000ffffffff010000000000000080ffffff7ff1753e5b00a3ef7579ff"
     "ff01000000010000000000000000000000000000000000000000",
     "01000000800100ffffff7f0100000000ffffffff010000000000000080ffffff7ff1753e5b00a3ef7579ffff"
     "01000000010000000000000000000000000000000000000000",
     0},
    {"empty", "[]", "[]", "null", "null", "", "", "[]", "[]", "0100", "00", 0},
};

struct GetConfigurationExport {
    static constexpr const char* operation = "getConfiguration";
    using Result = kc::RecordResult<TarnApiConfig, release_TarnApiConfig>;
    static void call(TarnApi* api, const kc::Json& in, KelError** error, Result& out) {
        static_cast<void>(in);
        kel_getConfiguration(api, error, &out.data);
    }
};

TEST_F(Projects, getConfiguration_Exchange) {
    kc::exchange<GetConfigurationExport>(api, kGetConfigurationCases);
}
TEST_F(Projects, getConfiguration_Failure) {
    kc::failure<GetConfigurationExport>(api, kGetConfigurationCases);
}
TEST_F(ProjectsAdmission, getConfiguration) {
    kc::admission<GetConfigurationExport>(callers(), kGetConfigurationCases, kc::Needs::Operator);
}

const kc::Number kNumber53{53, "getConfiguration", kGetConfigurationCases};

TEST_F(ProjectsByNumber, n53_getConfiguration_KelCall) { kc::kelCall(api, kNumber53); }
TEST_F(ProjectsByNumber, n53_getConfiguration_PyCall) { kc::pyCall(api, kNumber53); }
TEST_F(ProjectsByNumber, n53_getConfiguration_Failure) { kc::numberFailure(api, kNumber53); }

// ---- setConfiguration (position 247, number 54) ----

const kc::Case kSetConfigurationCases[] = {
    {"full",
     "[{\"value1\":-2147483648,\"flag1\":128,\"flag2\":0,\"value2\":2147483647,\"server\":{\"a"
     "ddress\":\"Pr\303\274fstand \342\202\254 247.1\",\"port\":4294967295,\"enabled\":255,\"n"
     "ame\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 247.2\"},\"value3\":214748"
     "3648,\"value4\":2147483647,\"value5\":1530860583,\"flag3\":0,\"value6\":2037812697,\"val"
     "ue7\":65535,\"oauth2Configs\":[{\"issuer\":\"K\303\274hler\\u0009\360\237\224\247 247.3"
     "\",\"clientId\":\"say \\\"\303\251\\\" 247.4\",\"scopes\":[\"back\\\\slash \303\237 247."
     "5\",\"Z\303\274ndung \360\237\232\227 247.6\"],\"redirectUrl\":\"Pr\303\274fstand \342"
     "\202\254 247.7\"},{\"issuer\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 24"
     "7.8\",\"clientId\":\"K\303\274hler\\u0009\360\237\224\247 247.9\",\"scopes\":[\"say \\\""
     "\303\251\\\" 247.10\",\"back\\\\slash \303\237 247.11\"],\"redirectUrl\":\"Z\303\274ndun"
     "g \360\237\232\227 247.12\"}],\"text\":\"Pr\303\274fstand \342\202\254 247.13\"}]",
     "[{\"value1\":-2147483648,\"flag1\":true,\"flag2\":false,\"value2\":2147483647,\"server\""
     ":{\"address\":\"Pr\303\274fstand \342\202\254 247.1\",\"port\":4294967295,\"enabled\":tr"
     "ue,\"name\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 247.2\"},\"value3\":"
     "2147483648,\"value4\":2147483647,\"value5\":1530860583,\"flag3\":false,\"value6\":203781"
     "2697,\"value7\":65535,\"oauth2Configs\":[{\"issuer\":\"K\303\274hler\\u0009\360\237\224"
     "\247 247.3\",\"clientId\":\"say \\\"\303\251\\\" 247.4\",\"scopes\":[\"back\\\\slash "
     "\303\237 247.5\",\"Z\303\274ndung \360\237\232\227 247.6\"],\"redirectUrl\":\"Pr\303\274"
     "fstand \342\202\254 247.7\"},{\"issuer\":\"\346\227\245\346\234\254\350\252\236 \360\235"
     "\204\236 247.8\",\"clientId\":\"K\303\274hler\\u0009\360\237\224\247 247.9\",\"scopes\":"
     "[\"say \\\"\303\251\\\" 247.10\",\"back\\\\slash \303\237 247.11\"],\"redirectUrl\":\"Z"
     "\303\274ndung \360\237\232\227 247.12\"}],\"text\":\"Pr\303\274fstand \342\202\254 247.1"
     "3\"}]",
     "null", nullptr,
     "000000800100ffffff7f140000005072c3bc667374616e6420e282ac203234372e31ffffffff0114000000e6"
     "97a5e69cace8aa9e20f09d849e203234372e3200000080ffffff7f27143f5b00d98d7679ffff020000001200"
     "00004bc3bc686c657209f09f94a7203234372e330e0000007361792022c3a922203234372e34020000001300"
     "00006261636b5c736c61736820c39f203234372e35130000005ac3bc6e64756e6720f09f9a97203234372e36"
     "140000005072c3bc667374616e6420e282ac203234372e3714000000e697a5e69cace8aa9e20f09d849e2032"
     "34372e38120000004bc3bc686c657209f09f94a7203234372e39020000000f0000007361792022c3a9222032"
     "34372e3130140000006261636b5c736c61736820c39f203234372e3131140000005ac3bc6e64756e6720f09f"
     "9a97203234372e3132150000005072c3bc667374616e6420e282ac203234372e3133",
     "01000000800100ffffff7f015072c3bc667374616e6420e282ac203234372e3100ffffffff01e697a5e69cac"
     "e8aa9e20f09d849e203234372e320000000080ffffff7f27143f5b00d98d7679ffff02000000014bc3bc686c"
     "657209f09f94a7203234372e33007361792022c3a922203234372e3400020000006261636b5c736c61736820"
     "c39f203234372e35005ac3bc6e64756e6720f09f9a97203234372e36005072c3bc667374616e6420e282ac20"
     "3234372e370001e697a5e69cace8aa9e20f09d849e203234372e38004bc3bc686c657209f09f94a720323437"
     "2e3900020000007361792022c3a922203234372e3130006261636b5c736c61736820c39f203234372e313100"
     "5ac3bc6e64756e6720f09f9a97203234372e3132005072c3bc667374616e6420e282ac203234372e313300",
     "[{\"value1\":-2147483648,\"flag1\":true,\"flag2\":false,\"value2\":2147483647,\"server\""
     ":{\"address\":\"Pr\303\274fstand \342\202\254 247.1\",\"port\":4294967295,\"enabled\":tr"
     "ue,\"name\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 247.2\"},\"value3\":"
     "2147483648,\"value4\":2147483647,\"value5\":1530860583,\"flag3\":false,\"value6\":203781"
     "2697,\"value7\":65535,\"oauth2Configs\":[{\"issuer\":\"K\303\274hler\\u0009\360\237\224"
     "\247 247.3\",\"clientId\":\"say \\\"\303\251\\\" 247.4\",\"scopes\":[\"back\\\\slash "
     "\303\237 247.5\",\"Z\303\274ndung \360\237\232\227 247.6\"],\"redirectUrl\":\"Pr\303\274"
     "fstand \342\202\254 247.7\"},{\"issuer\":\"\346\227\245\346\234\254\350\252\236 \360\235"
     "\204\236 247.8\",\"clientId\":\"K\303\274hler\\u0009\360\237\224\247 247.9\",\"scopes\":"
     "[\"say \\\"\303\251\\\" 247.10\",\"back\\\\slash \303\237 247.11\"],\"redirectUrl\":\"Z"
     "\303\274ndung \360\237\232\227 247.12\"}],\"text\":\"Pr\303\274fstand \342\202\254 247.1"
     "3\"}]",
     "[{\"value1\":-2147483648,\"flag1\":true,\"flag2\":false,\"value2\":2147483647,\"server\""
     ":{\"address\":\"Pr\303\274fstand \342\202\254 247.1\",\"port\":4294967295,\"enabled\":tr"
     "ue,\"name\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 247.2\"},\"value3\":"
     "2147483648,\"value4\":2147483647,\"value5\":1530860583,\"flag3\":false,\"value6\":203781"
     "2697,\"value7\":65535,\"oauth2Configs\":[{\"issuer\":\"K\303\274hler\\u0009\360\237\224"
     "\247 247.3\",\"clientId\":\"say \\\"\303\251\\\" 247.4\",\"scopes\":[\"back\\\\slash "
     "\303\237 247.5\",\"Z\303\274ndung \360\237\232\227 247.6\"],\"redirectUrl\":\"Pr\303\274"
     "fstand \342\202\254 247.7\"},{\"issuer\":\"\346\227\245\346\234\254\350\252\236 \360\235"
     "\204\236 247.8\",\"clientId\":\"K\303\274hler\\u0009\360\237\224\247 247.9\",\"scopes\":"
     "[\"say \\\"\303\251\\\" 247.10\",\"back\\\\slash \303\237 247.11\"],\"redirectUrl\":\"Z"
     "\303\274ndung \360\237\232\227 247.12\"}],\"text\":\"Pr\303\274fstand \342\202\254 247.1"
     "3\"}]",
     "01", "", 0},
    {"sparse", "[null]", "[null]", "null", nullptr,
     "0000000000000000000000000000000000000000000000000000000000000000000000000000000000000000"
     "000000000000",
     "00",
     "[{\"value1\":0,\"flag1\":false,\"flag2\":false,\"value2\":0,\"server\":{\"address\":\"\""
     ",\"port\":0,\"enabled\":false,\"name\":\"\"},\"value3\":0,\"value4\":0,\"value5\":0,\"fl"
     "ag3\":false,\"value6\":0,\"value7\":0,\"oauth2Configs\":[],\"text\":\"\"}]",
     "[null]", "01", "", 0},
};

struct SetConfigurationExport {
    static constexpr const char* operation = "setConfiguration";
    using Result = kc::NoResult;
    static void call(TarnApi* api, const kc::Json& in, KelError** error, Result& out) {
        static_cast<void>(out);
        kel_setConfiguration(api, error, kc::record<TarnApiConfig>(in[0]));
    }
};

TEST_F(Projects, setConfiguration_Exchange) {
    kc::exchange<SetConfigurationExport>(api, kSetConfigurationCases);
}
TEST_F(Projects, setConfiguration_Failure) {
    kc::failure<SetConfigurationExport>(api, kSetConfigurationCases);
}
TEST_F(ProjectsAdmission, setConfiguration) {
    kc::admission<SetConfigurationExport>(callers(), kSetConfigurationCases,
                                          kc::Needs::Administrator);
}

const kc::Number kNumber54{54, "setConfiguration", kSetConfigurationCases};

TEST_F(ProjectsByNumber, n54_setConfiguration_KelCall) { kc::kelCall(api, kNumber54); }
TEST_F(ProjectsByNumber, n54_setConfiguration_PyCall) { kc::pyCall(api, kNumber54); }
TEST_F(ProjectsByNumber, n54_setConfiguration_Failure) { kc::numberFailure(api, kNumber54); }
TEST_F(ProjectsByNumber, n54_setConfiguration_ShortInput) { kc::shortInput(api, kNumber54); }

// ---- getProcessInfo (position 252, number 59) ----

const kc::Case kGetProcessInfoCases[] = {
    {"full", "[]", "[]",
     "{\"processes\":[{\"value\":4294967295,\"items1\":[{\"id\":2147483648,\"name\":\"Pr\303"
     "\274fstand \342\202\254 252.1\"},{\"id\":2147483647,\"name\":\"\346\227\245\346\234\254"
     "\350\252\236 \360\235\204\236 252.2\"}],\"text\":\"K\303\274hler\\u0009\360\237\224\247 "
     "252.3\",\"items2\":[{\"name\":\"say \\\"\303\251\\\" 252.4\",\"bytes\":92233720368547758"
     "09},{\"name\":\"back\\\\slash \303\237 252.5\",\"bytes\":18446744073709551615}]},{\"valu"
     "e\":1531063099,\"items1\":[],\"text\":\"Z\303\274ndung \360\237\232\227 252.6\",\"items2"
     "\":[]}],\"flag1\":true,\"flag2\":false,\"text\":\"Pr\303\274fstand \342\202\254 252.7\"}",
     "{\"processes\":[{\"value\":4294967295,\"items1\":[{\"id\":2147483648,\"name\":\"Pr\303"
     "\274fstand \342\202\254 252.1\"},{\"id\":2147483647,\"name\":\"\346\227\245\346\234\254"
     "\350\252\236 \360\235\204\236 252.2\"}],\"itemCount1\":2,\"text\":\"K\303\274hler\\u0009"
     "\360\237\224\247 252.3\",\"items2\":[{\"name\":\"say \\\"\303\251\\\" 252.4\",\"bytes\":"
     "9223372036854775809},{\"name\":\"back\\\\slash \303\237 252.5\",\"bytes\":18446744073709"
     "551615}],\"itemCount2\":2},{\"value\":1531063099,\"items1\":null,\"itemCount1\":0,\"text"
     "\":\"Z\303\274ndung \360\237\232\227 252.6\",\"items2\":null,\"itemCount2\":0}],\"proces"
     "sCount\":2,\"flag1\":1,\"flag2\":0,\"text\":\"Pr\303\274fstand \342\202\254 252.7\"}",
     "", "", "[]", "[]",
     "01010200000001ffffffff020000000100000080140000005072c3bc667374616e6420e282ac203235322e31"
     "01ffffff7f14000000e697a5e69cace8aa9e20f09d849e203235322e32120000004bc3bc686c657209f09f94"
     "a7203235322e3302000000010e0000007361792022c3a922203235322e340100000000000080011300000062"
     "61636b5c736c61736820c39f203235322e35ffffffffffffffff013b2b425b00000000130000005ac3bc6e64"
     "756e6720f09f9a97203235322e36000000000100140000005072c3bc667374616e6420e282ac203235322e37",
     "010200000001ffffffff020000000100000080140000005072c3bc667374616e6420e282ac203235322e3101"
     "ffffff7f14000000e697a5e69cace8aa9e20f09d849e203235322e32120000004bc3bc686c657209f09f94a7"
     "203235322e3302000000010e0000007361792022c3a922203235322e34010000000000008001130000006261"
     "636b5c736c61736820c39f203235322e35ffffffffffffffff013b2b425b00000000130000005ac3bc6e6475"
     "6e6720f09f9a97203235322e36000000000100140000005072c3bc667374616e6420e282ac203235322e37",
     0},
    {"sparse", "[]", "[]",
     "{\"processes\":[{\"value\":4294967295,\"items1\":[],\"text\":\"\",\"items2\":[]}],\"flag"
     "1\":true,\"flag2\":false,\"text\":\"\"}",
     "{\"processes\":[{\"value\":4294967295,\"items1\":null,\"itemCount1\":0,\"text\":\"\",\"i"
     "tems2\":null,\"itemCount2\":0}],\"processCount\":1,\"flag1\":1,\"flag2\":0,\"text\":\"\""
     "}",
     "", "", "[]", "[]", "01010100000001ffffffff000000000000000000000000010000000000",
     "010100000001ffffffff000000000000000000000000010000000000", 0},
    {"empty", "[]", "[]", "null", "null", "", "", "[]", "[]", "0100", "00", 0},
};

struct GetProcessInfoExport {
    static constexpr const char* operation = "getProcessInfo";
    using Result = kc::RecordResult<ProcessInfo, release_ProcessInfo>;
    static void call(TarnApi* api, const kc::Json& in, KelError** error, Result& out) {
        static_cast<void>(in);
        kel_getProcessInfo(api, error, &out.data);
    }
};

TEST_F(Projects, getProcessInfo_Exchange) {
    kc::exchange<GetProcessInfoExport>(api, kGetProcessInfoCases);
}
TEST_F(Projects, getProcessInfo_Failure) {
    kc::failure<GetProcessInfoExport>(api, kGetProcessInfoCases);
}
TEST_F(ProjectsAdmission, getProcessInfo) {
    kc::admission<GetProcessInfoExport>(callers(), kGetProcessInfoCases, kc::Needs::Operator);
}

const kc::Number kNumber59{59, "getProcessInfo", kGetProcessInfoCases};

TEST_F(ProjectsByNumber, n59_getProcessInfo_KelCall) { kc::kelCall(api, kNumber59); }
TEST_F(ProjectsByNumber, n59_getProcessInfo_PyCall) { kc::pyCall(api, kNumber59); }
TEST_F(ProjectsByNumber, n59_getProcessInfo_Failure) { kc::numberFailure(api, kNumber59); }

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

struct GetTransmissionInfoExport {
    static constexpr const char* operation = "getTransmissionInfo";
    using Result = kc::RecordResult<TransmissionInfo, release_TransmissionInfo>;
    static void call(TarnApi* api, const kc::Json& in, KelError** error, Result& out) {
        static_cast<void>(in);
        kel_getTransmissionInfo(api, error, &out.data);
    }
};

TEST_F(Projects, getTransmissionInfo_Exchange) {
    kc::exchange<GetTransmissionInfoExport>(api, kGetTransmissionInfoCases);
}
TEST_F(Projects, getTransmissionInfo_Failure) {
    kc::failure<GetTransmissionInfoExport>(api, kGetTransmissionInfoCases);
}
TEST_F(ProjectsAdmission, getTransmissionInfo) {
    kc::admission<GetTransmissionInfoExport>(callers(), kGetTransmissionInfoCases,
                                             kc::Needs::Operator);
}

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

struct GetMoxConfigurationExport {
    static constexpr const char* operation = "getMoxConfiguration";
    using Result = kc::RecordResult<MoxConfig, release_MoxConfig>;
    static void call(TarnApi* api, const kc::Json& in, KelError** error, Result& out) {
        static_cast<void>(in);
        kel_getMoxConfiguration(api, error, &out.data);
    }
};

TEST_F(Projects, getMoxConfiguration_Exchange) {
    kc::exchange<GetMoxConfigurationExport>(api, kGetMoxConfigurationCases);
}
TEST_F(Projects, getMoxConfiguration_Failure) {
    kc::failure<GetMoxConfigurationExport>(api, kGetMoxConfigurationCases);
}
TEST_F(ProjectsAdmission, getMoxConfiguration) {
    kc::admission<GetMoxConfigurationExport>(callers(), kGetMoxConfigurationCases,
                                             kc::Needs::Operator);
}

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

struct SetMoxConfigurationExport {
    static constexpr const char* operation = "setMoxConfiguration";
    using Result = kc::NoResult;
    static void call(TarnApi* api, const kc::Json& in, KelError** error, Result& out) {
        static_cast<void>(out);
        kel_setMoxConfiguration(api, error, kc::record<MoxConfig>(in[0]));
    }
};

TEST_F(Projects, setMoxConfiguration_Exchange) {
    kc::exchange<SetMoxConfigurationExport>(api, kSetMoxConfigurationCases);
}
TEST_F(Projects, setMoxConfiguration_Failure) {
    kc::failure<SetMoxConfigurationExport>(api, kSetMoxConfigurationCases);
}
TEST_F(ProjectsAdmission, setMoxConfiguration) {
    kc::admission<SetMoxConfigurationExport>(callers(), kSetMoxConfigurationCases,
                                             kc::Needs::Administrator);
}

const kc::Number kNumber101{101, "setMoxConfiguration", kSetMoxConfigurationCases};

TEST_F(ProjectsByNumber, n101_setMoxConfiguration_KelCall) { kc::kelCall(api, kNumber101); }
TEST_F(ProjectsByNumber, n101_setMoxConfiguration_PyCall) { kc::pyCall(api, kNumber101); }
TEST_F(ProjectsByNumber, n101_setMoxConfiguration_Failure) { kc::numberFailure(api, kNumber101); }
TEST_F(ProjectsByNumber, n101_setMoxConfiguration_ShortInput) { kc::shortInput(api, kNumber101); }

// ---- getGlobalProtocolParameterSets (position 260, number 78) ----

const kc::Case kGetGlobalProtocolParameterSetsCases[] = {
    {"full", "[]", "[]",
     "[{\"text1\":\"Pr\303\274fstand \342\202\254 260.1\",\"text2\":\"\346\227\245\346\234\254"
     "\350\252\236 \360\235\204\236 260.2\",\"text3\":\"K\303\274hler\\u0009\360\237\224\247 2"
     "60.3\",\"text4\":\"say \\\"\303\251\\\" 260.4\",\"parameters\":[{\"itemText1\":\"back\\"
     "\\slash \303\237 260.5\",\"itemText2\":\"Z\303\274ndung \360\237\232\227 260.6\",\"itemT"
     "ext3\":\"Pr\303\274fstand \342\202\254 260.7\",\"itemText4\":\"\346\227\245\346\234\254"
     "\350\252\236 \360\235\204\236 260.8\",\"value\":\"K\303\274hler\\u0009\360\237\224\247 2"
     "60.9\",\"defaultValue\":\"say \\\"\303\251\\\" 260.10\",\"infos\":[{\"itemText1\":\"back"
     "\\\\slash \303\237 260.11\",\"itemText2\":\"Z\303\274ndung \360\237\232\227 260.12\",\"i"
     "temText3\":\"Pr\303\274fstand \342\202\254 260.13\",\"itemText4\":\"\346\227\245\346\234"
     "\254\350\252\236 \360\235\204\236 260.14\",\"text1\":\"K\303\274hler\\u0009\360\237\224"
     "\247 260.15\",\"text2\":\"say \\\"\303\251\\\" 260.16\",\"text3\":\"back\\\\slash \303"
     "\237 260.17\",\"value1\":-2147483648,\"text4\":\"Z\303\274ndung \360\237\232\227 260.18"
     "\",\"children\":[{\"itemText1\":\"Pr\303\274fstand \342\202\254 260.19\",\"itemText2\":"
     "\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 260.20\",\"itemText3\":\"K\303"
     "\274hler\\u0009\360\237\224\247 260.21\",\"itemText4\":\"say \\\"\303\251\\\" 260.22\","
     "\"text1\":\"back\\\\slash \303\237 260.23\",\"text2\":\"Z\303\274ndung \360\237\232\227 "
     "260.24\",\"text3\":\"Pr\303\274fstand \342\202\254 260.25\",\"value1\":2147483647,\"text"
     "4\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 260.26\",\"children\":[{\"it"
     "emText1\":\"K\303\274hler\\u0009\360\237\224\247 260.27\",\"itemText2\":\"say \\\"\303"
     "\251\\\" 260.28\",\"itemText3\":\"back\\\\slash \303\237 260.29\",\"itemText4\":\"Z\303"
     "\274ndung \360\237\232\227 260.30\",\"text1\":\"Pr\303\274fstand \342\202\254 260.31\","
     "\"text2\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 260.32\",\"text3\":\"K"
     "\303\274hler\\u0009\360\237\224\247 260.33\",\"value1\":-1,\"text4\":\"say \\\"\303\251"
     "\\\" 260.34\",\"children\":[],\"text5\":\"back\\\\slash \303\237 260.35\",\"names\":[\"Z"
     "\303\274ndung \360\237\232\227 260.36\",\"Pr\303\274fstand \342\202\254 260.37\"],\"flag"
     "1\":true,\"value2\":-65536,\"error\":null,\"flag2\":false,\"values\":[4294967295,2147483"
     "648,2147483647,1531387123,2038339237,397807703,904759817,1411711931],\"flag3\":true,\"co"
     "nstraint1\":null,\"constraint2\":null,\"text6\":\"\346\227\245\346\234\254\350\252\236 "
     "\360\235\204\236 260.38\",\"text7\":\"K\303\274hler\\u0009\360\237\224\247 260.39\",\"fl"
     "ag4\":false,\"unit\":null},{\"itemText1\":\"say \\\"\303\251\\\" 260.40\",\"itemText2\":"
     "\"back\\\\slash \303\237 260.41\",\"itemText3\":\"Z\303\274ndung \360\237\232\227 260.42"
     "\",\"itemText4\":\"Pr\303\274fstand \342\202\254 260.43\",\"text1\":\"\346\227\245\346"
     "\234\254\350\252\236 \360\235\204\236 260.44\",\"text2\":\"K\303\274hler\\u0009\360\237"
     "\224\247 260.45\",\"text3\":\"say \\\"\303\251\\\" 260.46\",\"value1\":2038339237,\"text"
     "4\":\"back\\\\slash \303\237 260.47\",\"children\":[],\"text5\":\"Z\303\274ndung \360"
     "\237\232\227 260.48\",\"names\":[\"Pr\303\274fstand \342\202\254 260.49\",\"\346\227\245"
     "\346\234\254\350\252\236 \360\235\204\236 260.50\"],\"flag1\":true,\"value2\":-397807703"
     ",\"error\":null,\"flag2\":false,\"values\":[1918664045,278132513,785084627,1292036741,17"
     "98988855,158457321,665409435,1172361549],\"flag3\":true,\"constraint1\":null,\"constrain"
     "t2\":null,\"text6\":\"K\303\274hler\\u0009\360\237\224\247 260.51\",\"text7\":\"say \\\""
     "\303\251\\\" 260.52\",\"flag4\":false,\"unit\":null}],\"text5\":\"back\\\\slash \303\237"
     " 260.53\",\"names\":[\"Z\303\274ndung \360\237\232\227 260.54\",\"Pr\303\274fstand \342"
     "\202\254 260.55\"],\"flag1\":true,\"value2\":904759817,\"error\":{\"code\":-1411711931,"
     "\"message\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 260.56\",\"details\""
     ":\"K\303\274hler\\u0009\360\237\224\247 260.57\",\"subCode\":1918664045,\"mvciError\":nu"
     "ll,\"negativeResponse\":null},\"flag2\":false,\"values\":[1679313663,38782131,545734245,"
     "1052686359,1559638473,2066590587,426059053,933011167],\"flag3\":true,\"constraint1\":{\""
     "text1\":\"say \\\"\303\251\\\" 260.58\",\"text2\":\"back\\\\slash \303\237 260.59\",\"fl"
     "ag\":false,\"scales\":[]},\"constraint2\":{\"text1\":\"Z\303\274ndung \360\237\232\227 2"
     "60.60\",\"text2\":\"Pr\303\274fstand \342\202\254 260.61\",\"flag\":true,\"scales\":[]},"
     "\"text6\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 260.62\",\"text7\":\"K"
     "\303\274hler\\u0009\360\237\224\247 260.63\",\"flag4\":false,\"unit\":{\"values\":[14399"
     "63281,1946915395,306383863,813335977,1320288091,1827240205,186708671],\"value1\":9223372"
     "036854775809,\"flag1\":true,\"value2\":18446744073709551615,\"flag2\":false}},{\"itemTex"
     "t1\":\"say \\\"\303\251\\\" 260.64\",\"itemText2\":\"back\\\\slash \303\237 260.65\",\"i"
     "temText3\":\"Z\303\274ndung \360\237\232\227 260.66\",\"itemText4\":\"Pr\303\274fstand "
     "\342\202\254 260.67\",\"text1\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 "
     "260.68\",\"text2\":\"K\303\274hler\\u0009\360\237\224\247 260.69\",\"text3\":\"say \\\""
     "\303\251\\\" 260.70\",\"value1\":-278132513,\"text4\":\"back\\\\slash \303\237 260.71\","
     "\"children\":[],\"text5\":\"Z\303\274ndung \360\237\232\227 260.72\",\"names\":[\"Pr\303"
     "\274fstand \342\202\254 260.73\",\"\346\227\245\346\234\254\350\252\236 \360\235\204\236"
     " 260.74\"],\"flag1\":true,\"value2\":785084627,\"error\":null,\"flag2\":false,\"values\""
     ":[693660785,1200612899,1707565013,67033481,573985595,1080937709,1587889823,2094841937],"
     "\"flag3\":true,\"constraint1\":null,\"constraint2\":null,\"text6\":\"K\303\274hler\\u000"
     "9\360\237\224\247 260.75\",\"text7\":\"say \\\"\303\251\\\" 260.76\",\"flag4\":false,\"u"
     "nit\":null}],\"text5\":\"back\\\\slash \303\237 260.77\",\"names\":[\"Z\303\274ndung "
     "\360\237\232\227 260.78\",\"Pr\303\274fstand \342\202\254 260.79\"],\"flag1\":true,\"val"
     "ue2\":-1292036741,\"error\":{\"code\":1798988855,\"message\":\"\346\227\245\346\234\254"
     "\350\252\236 \360\235\204\236 260.80\",\"details\":\"K\303\274hler\\u0009\360\237\224"
     "\247 260.81\",\"subCode\":-158457321,\"mvciError\":{\"code\":665409435,\"codeText\":\"sa"
     "y \\\"\303\251\\\" 260.82\",\"vendorCode\":-1172361549,\"vendorCodeText\":\"back\\\\slas"
     "h \303\237 260.83\",\"extraText\":\"Z\303\274ndung \360\237\232\227 260.84\",\"extraCode"
     "\":1679313663},\"negativeResponse\":{\"code\":-38782131,\"text\":\"Pr\303\274fstand \342"
     "\202\254 260.85\",\"value1\":4294967296,\"value2\":1531387123,\"bytes\":[0,255,255,128]}"
     "},\"flag2\":false,\"values\":[454310403,961262517,1468214631,1975166745,334635213,841587"
     "327,1348539441,1855491555],\"flag3\":true,\"constraint1\":{\"text1\":\"\346\227\245\346"
     "\234\254\350\252\236 \360\235\204\236 260.86\",\"text2\":\"K\303\274hler\\u0009\360\237"
     "\224\247 260.87\",\"flag\":false,\"scales\":[{\"itemText1\":\"say \\\"\303\251\\\" 260.8"
     "8\",\"itemText2\":\"back\\\\slash \303\237 260.89\",\"itemText3\":\"Z\303\274ndung \360"
     "\237\232\227 260.90\",\"itemText4\":\"Pr\303\274fstand \342\202\254 260.91\",\"text1\":"
     "\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 260.92\",\"text2\":\"K\303\274hl"
     "er\\u0009\360\237\224\247 260.93\",\"flag\":true,\"value\":545734245},{\"itemText1\":\"s"
     "ay \\\"\303\251\\\" 260.94\",\"itemText2\":\"back\\\\slash \303\237 260.95\",\"itemText3"
     "\":\"Z\303\274ndung \360\237\232\227 260.96\",\"itemText4\":\"Pr\303\274fstand \342\202"
     "\254 260.97\",\"text1\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 260.98\""
     ",\"text2\":\"K\303\274hler\\u0009\360\237\224\247 260.99\",\"flag\":false,\"value\":-105"
     "2686359}]},\"constraint2\":{\"text1\":\"say \\\"\303\251\\\" 260.100\",\"text2\":\"back"
     "\\\\slash \303\237 260.101\",\"flag\":true,\"scales\":[{\"itemText1\":\"Z\303\274ndung "
     "\360\237\232\227 260.102\",\"itemText2\":\"Pr\303\274fstand \342\202\254 260.103\",\"ite"
     "mText3\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 260.104\",\"itemText4\""
     ":\"K\303\274hler\\u0009\360\237\224\247 260.105\",\"text1\":\"say \\\"\303\251\\\" 260.1"
     "06\",\"text2\":\"back\\\\slash \303\237 260.107\",\"flag\":false,\"value\":1559638473},{"
     "\"itemText1\":\"Z\303\274ndung \360\237\232\227 260.108\",\"itemText2\":\"Pr\303\274fsta"
     "nd \342\202\254 260.109\",\"itemText3\":\"\346\227\245\346\234\254\350\252\236 \360\235"
     "\204\236 260.110\",\"itemText4\":\"K\303\274hler\\u0009\360\237\224\247 260.111\",\"text"
     "1\":\"say \\\"\303\251\\\" 260.112\",\"text2\":\"back\\\\slash \303\237 260.113\",\"flag"
     "\":true,\"value\":-2066590587}]},\"text6\":\"Z\303\274ndung \360\237\232\227 260.114\","
     "\"text7\":\"Pr\303\274fstand \342\202\254 260.115\",\"flag4\":false,\"unit\":{\"values\""
     ":[214960021,721912135,1228864249,1735816363,95284831,602236945,1109189059],\"value1\":20"
     "38339237,\"flag1\":true,\"value2\":397807703,\"flag2\":false}},{\"itemText1\":\"\346\227"
     "\245\346\234\254\350\252\236 \360\235\204\236 260.116\",\"itemText2\":\"K\303\274hler\\u"
     "0009\360\237\224\247 260.117\",\"itemText3\":\"say \\\"\303\251\\\" 260.118\",\"itemText"
     "4\":\"back\\\\slash \303\237 260.119\",\"text1\":\"Z\303\274ndung \360\237\232\227 260.1"
     "20\",\"text2\":\"Pr\303\274fstand \342\202\254 260.121\",\"text3\":\"\346\227\245\346"
     "\234\254\350\252\236 \360\235\204\236 260.122\",\"value1\":426059053,\"text4\":\"K\303"
     "\274hler\\u0009\360\237\224\247 260.123\",\"children\":[],\"text5\":\"say \\\"\303\251\\"
     "\" 260.124\",\"names\":[\"back\\\\slash \303\237 260.125\",\"Z\303\274ndung \360\237\232"
     "\227 260.126\"],\"flag1\":true,\"value2\":-933011167,\"error\":null,\"flag2\":false,\"va"
     "lues\":[1616141173,2123093287,482561753,989513867,1496465981,2003418095,362886563,869838"
     "677],\"flag3\":true,\"constraint1\":null,\"constraint2\":null,\"text6\":\"Pr\303\274fsta"
     "nd \342\202\254 260.127\",\"text7\":\"\346\227\245\346\234\254\350\252\236 \360\235\204"
     "\236 260.128\",\"flag4\":false,\"unit\":null}],\"choices\":[\"K\303\274hler\\u0009\360"
     "\237\224\247 260.129\",\"say \\\"\303\251\\\" 260.130\"],\"error\":{\"code\":1439963281,"
     "\"message\":\"back\\\\slash \303\237 260.131\",\"details\":\"Z\303\274ndung \360\237\232"
     "\227 260.132\",\"subCode\":-1946915395,\"mvciError\":{\"code\":306383863,\"codeText\":\""
     "Pr\303\274fstand \342\202\254 260.133\",\"vendorCode\":-813335977,\"vendorCodeText\":\""
     "\346\227\245\346\234\254\350\252\236 \360\235\204\236 260.134\",\"extraText\":\"K\303"
     "\274hler\\u0009\360\237\224\247 260.135\",\"extraCode\":1320288091},\"negativeResponse\""
     ":{\"code\":-1827240205,\"text\":\"say \\\"\303\251\\\" 260.136\",\"value1\":904759817,\""
     "value2\":1411711931,\"bytes\":[0,255,127,1]}},\"constraints\":[{\"text1\":\"back\\\\slas"
     "h \303\237 260.137\",\"text2\":\"Z\303\274ndung \360\237\232\227 260.138\",\"flag\":true"
     ",\"scales\":[{\"itemText1\":\"Pr\303\274fstand \342\202\254 260.139\",\"itemText2\":\""
     "\346\227\245\346\234\254\350\252\236 \360\235\204\236 260.140\",\"itemText3\":\"K\303"
     "\274hler\\u0009\360\237\224\247 260.141\",\"itemText4\":\"say \\\"\303\251\\\" 260.142\""
     ",\"text1\":\"back\\\\slash \303\237 260.143\",\"text2\":\"Z\303\274ndung \360\237\232"
     "\227 260.144\",\"flag\":false,\"value\":186708671},{\"itemText1\":\"Pr\303\274fstand "
     "\342\202\254 260.145\",\"itemText2\":\"\346\227\245\346\234\254\350\252\236 \360\235\204"
     "\236 260.146\",\"itemText3\":\"K\303\274hler\\u0009\360\237\224\247 260.147\",\"itemText"
     "4\":\"say \\\"\303\251\\\" 260.148\",\"text1\":\"back\\\\slash \303\237 260.149\",\"text"
     "2\":\"Z\303\274ndung \360\237\232\227 260.150\",\"flag\":true,\"value\":-693660785}]},{"
     "\"text1\":\"Pr\303\274fstand \342\202\254 260.151\",\"text2\":\"\346\227\245\346\234\254"
     "\350\252\236 \360\235\204\236 260.152\",\"flag\":false,\"scales\":[]}],\"tcp\":{\"value1"
     "\":49,\"value2\":51,\"value3\":34,\"value4\":1376790791,\"value5\":1883742905,\"value6\""
     ":243211371},\"value1\":750163485,\"flag\":true},{\"itemText1\":\"K\303\274hler\\u0009"
     "\360\237\224\247 260.153\",\"itemText2\":\"say \\\"\303\251\\\" 260.154\",\"itemText3\":"
     "\"back\\\\slash \303\237 260.155\",\"itemText4\":\"Z\303\274ndung \360\237\232\227 260.1"
     "56\",\"value\":\"Pr\303\274fstand \342\202\254 260.157\",\"defaultValue\":\"\346\227\245"
     "\346\234\254\350\252\236 \360\235\204\236 260.158\",\"infos\":[],\"choices\":[\"K\303"
     "\274hler\\u0009\360\237\224\247 260.159\",\"say \\\"\303\251\\\" 260.160\"],\"error\":nu"
     "ll,\"constraints\":[],\"tcp\":null,\"value1\":1257115599,\"flag\":false}]},{\"text1\":\""
     "back\\\\slash \303\237 260.161\",\"text2\":\"Z\303\274ndung \360\237\232\227 260.162\","
     "\"text3\":\"Pr\303\274fstand \342\202\254 260.163\",\"text4\":\"\346\227\245\346\234\254"
     "\350\252\236 \360\235\204\236 260.164\",\"parameters\":[]}]",
     "[{\"text1\":\"Pr\303\274fstand \342\202\254 260.1\",\"text2\":\"\346\227\245\346\234\254"
     "\350\252\236 \360\235\204\236 260.2\",\"text3\":\"K\303\274hler\\u0009\360\237\224\247 2"
     "60.3\",\"text4\":\"say \\\"\303\251\\\" 260.4\",\"parameters\":[{\"itemText1\":\"back\\"
     "\\slash \303\237 260.5\",\"itemText2\":\"Z\303\274ndung \360\237\232\227 260.6\",\"itemT"
     "ext3\":\"Pr\303\274fstand \342\202\254 260.7\",\"itemText4\":\"\346\227\245\346\234\254"
     "\350\252\236 \360\235\204\236 260.8\",\"value\":\"K\303\274hler\\u0009\360\237\224\247 2"
     "60.9\",\"defaultValue\":\"say \\\"\303\251\\\" 260.10\",\"infos\":[{\"itemText1\":\"back"
     "\\\\slash \303\237 260.11\",\"itemText2\":\"Z\303\274ndung \360\237\232\227 260.12\",\"i"
     "temText3\":\"Pr\303\274fstand \342\202\254 260.13\",\"itemText4\":\"\346\227\245\346\234"
     "\254\350\252\236 \360\235\204\236 260.14\",\"text1\":\"K\303\274hler\\u0009\360\237\224"
     "\247 260.15\",\"text2\":\"say \\\"\303\251\\\" 260.16\",\"text3\":\"back\\\\slash \303"
     "\237 260.17\",\"value1\":-2147483648,\"text4\":\"Z\303\274ndung \360\237\232\227 260.18"
     "\",\"children\":[{\"itemText1\":\"Pr\303\274fstand \342\202\254 260.19\",\"itemText2\":"
     "\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 260.20\",\"itemText3\":\"K\303"
     "\274hler\\u0009\360\237\224\247 260.21\",\"itemText4\":\"say \\\"\303\251\\\" 260.22\","
     "\"text1\":\"back\\\\slash \303\237 260.23\",\"text2\":\"Z\303\274ndung \360\237\232\227 "
     "260.24\",\"text3\":\"Pr\303\274fstand \342\202\254 260.25\",\"value1\":2147483647,\"text"
     "4\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 260.26\",\"children\":[{\"it"
     "emText1\":\"K\303\274hler\\u0009\360\237\224\247 260.27\",\"itemText2\":\"say \\\"\303"
     "\251\\\" 260.28\",\"itemText3\":\"back\\\\slash \303\237 260.29\",\"itemText4\":\"Z\303"
     "\274ndung \360\237\232\227 260.30\",\"text1\":\"Pr\303\274fstand \342\202\254 260.31\","
     "\"text2\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 260.32\",\"text3\":\"K"
     "\303\274hler\\u0009\360\237\224\247 260.33\",\"value1\":-1,\"text4\":\"say \\\"\303\251"
     "\\\" 260.34\",\"children\":null,\"childCount\":0,\"text5\":\"back\\\\slash \303\237 260."
     "35\",\"names\":[\"Z\303\274ndung \360\237\232\227 260.36\",\"Pr\303\274fstand \342\202"
     "\254 260.37\"],\"nameCount\":2,\"flag1\":1,\"value2\":-65536,\"error\":null,\"flag2\":0,"
     "\"values\":[4294967295,2147483648,2147483647,1531387123,2038339237,397807703,904759817,1"
     "411711931],\"flag3\":1,\"constraint1\":null,\"constraint2\":null,\"text6\":\"\346\227"
     "\245\346\234\254\350\252\236 \360\235\204\236 260.38\",\"text7\":\"K\303\274hler\\u0009"
     "\360\237\224\247 260.39\",\"flag4\":0,\"unit\":null},{\"itemText1\":\"say \\\"\303\251\\"
     "\" 260.40\",\"itemText2\":\"back\\\\slash \303\237 260.41\",\"itemText3\":\"Z\303\274ndu"
     "ng \360\237\232\227 260.42\",\"itemText4\":\"Pr\303\274fstand \342\202\254 260.43\",\"te"
     "xt1\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 260.44\",\"text2\":\"K\303"
     "\274hler\\u0009\360\237\224\247 260.45\",\"text3\":\"say \\\"\303\251\\\" 260.46\",\"val"
     "ue1\":2038339237,\"text4\":\"back\\\\slash \303\237 260.47\",\"children\":null,\"childCo"
     "unt\":0,\"text5\":\"Z\303\274ndung \360\237\232\227 260.48\",\"names\":[\"Pr\303\274fsta"
     "nd \342\202\254 260.49\",\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 260.50"
     "\"],\"nameCount\":2,\"flag1\":1,\"value2\":-397807703,\"error\":null,\"flag2\":0,\"value"
     "s\":[1918664045,278132513,785084627,1292036741,1798988855,158457321,665409435,1172361549"
     "],\"flag3\":1,\"constraint1\":null,\"constraint2\":null,\"text6\":\"K\303\274hler\\u0009"
     "\360\237\224\247 260.51\",\"text7\":\"say \\\"\303\251\\\" 260.52\",\"flag4\":0,\"unit\""
     ":null}],\"childCount\":2,\"text5\":\"back\\\\slash \303\237 260.53\",\"names\":[\"Z\303"
     "\274ndung \360\237\232\227 260.54\",\"Pr\303\274fstand \342\202\254 260.55\"],\"nameCoun"
     "t\":2,\"flag1\":1,\"value2\":904759817,\"error\":{\"code\":-1411711931,\"message\":\""
     "\346\227\245\346\234\254\350\252\236 \360\235\204\236 260.56\",\"details\":\"K\303\274hl"
     "er\\u0009\360\237\224\247 260.57\",\"subCode\":1918664045,\"mvciError\":null,\"negativeR"
     "esponse\":null},\"flag2\":0,\"values\":[1679313663,38782131,545734245,1052686359,1559638"
     "473,2066590587,426059053,933011167],\"flag3\":1,\"constraint1\":{\"text1\":\"say \\\""
     "\303\251\\\" 260.58\",\"text2\":\"back\\\\slash \303\237 260.59\",\"flag\":0,\"scales\":"
     "null,\"scaleCount\":0},\"constraint2\":{\"text1\":\"Z\303\274ndung \360\237\232\227 260."
     "60\",\"text2\":\"Pr\303\274fstand \342\202\254 260.61\",\"flag\":1,\"scales\":null,\"sca"
     "leCount\":0},\"text6\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 260.62\","
     "\"text7\":\"K\303\274hler\\u0009\360\237\224\247 260.63\",\"flag4\":0,\"unit\":{\"values"
     "\":[1439963281,1946915395,306383863,813335977,1320288091,1827240205,186708671],\"value1"
     "\":9223372036854775809,\"flag1\":1,\"value2\":18446744073709551615,\"flag2\":0}},{\"item"
     "Text1\":\"say \\\"\303\251\\\" 260.64\",\"itemText2\":\"back\\\\slash \303\237 260.65\","
     "\"itemText3\":\"Z\303\274ndung \360\237\232\227 260.66\",\"itemText4\":\"Pr\303\274fstan"
     "d \342\202\254 260.67\",\"text1\":\"\346\227\245\346\234\254\350\252\236 \360\235\204"
     "\236 260.68\",\"text2\":\"K\303\274hler\\u0009\360\237\224\247 260.69\",\"text3\":\"say "
     "\\\"\303\251\\\" 260.70\",\"value1\":-278132513,\"text4\":\"back\\\\slash \303\237 260.7"
     "1\",\"children\":null,\"childCount\":0,\"text5\":\"Z\303\274ndung \360\237\232\227 260.7"
     "2\",\"names\":[\"Pr\303\274fstand \342\202\254 260.73\",\"\346\227\245\346\234\254\350"
     "\252\236 \360\235\204\236 260.74\"],\"nameCount\":2,\"flag1\":1,\"value2\":785084627,\"e"
     "rror\":null,\"flag2\":0,\"values\":[693660785,1200612899,1707565013,67033481,573985595,1"
     "080937709,1587889823,2094841937],\"flag3\":1,\"constraint1\":null,\"constraint2\":null,"
     "\"text6\":\"K\303\274hler\\u0009\360\237\224\247 260.75\",\"text7\":\"say \\\"\303\251\\"
     "\" 260.76\",\"flag4\":0,\"unit\":null}],\"childCount\":2,\"text5\":\"back\\\\slash \303"
     "\237 260.77\",\"names\":[\"Z\303\274ndung \360\237\232\227 260.78\",\"Pr\303\274fstand "
     "\342\202\254 260.79\"],\"nameCount\":2,\"flag1\":1,\"value2\":-1292036741,\"error\":{\"c"
     "ode\":1798988855,\"message\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 260"
     ".80\",\"details\":\"K\303\274hler\\u0009\360\237\224\247 260.81\",\"subCode\":-158457321"
     ",\"mvciError\":{\"code\":665409435,\"codeText\":\"say \\\"\303\251\\\" 260.82\",\"vendor"
     "Code\":-1172361549,\"vendorCodeText\":\"back\\\\slash \303\237 260.83\",\"extraText\":\""
     "Z\303\274ndung \360\237\232\227 260.84\",\"extraCode\":1679313663},\"negativeResponse\":"
     "{\"code\":-38782131,\"text\":\"Pr\303\274fstand \342\202\254 260.85\",\"value1\":4294967"
     "296,\"value2\":1531387123,\"bytes\":[0,255,255,128],\"byteCount\":4}},\"flag2\":0,\"valu"
     "es\":[454310403,961262517,1468214631,1975166745,334635213,841587327,1348539441,185549155"
     "5],\"flag3\":1,\"constraint1\":{\"text1\":\"\346\227\245\346\234\254\350\252\236 \360"
     "\235\204\236 260.86\",\"text2\":\"K\303\274hler\\u0009\360\237\224\247 260.87\",\"flag\""
     ":0,\"scales\":[{\"itemText1\":\"say \\\"\303\251\\\" 260.88\",\"itemText2\":\"back\\\\sl"
     "ash \303\237 260.89\",\"itemText3\":\"Z\303\274ndung \360\237\232\227 260.90\",\"itemTex"
     "t4\":\"Pr\303\274fstand \342\202\254 260.91\",\"text1\":\"\346\227\245\346\234\254\350"
     "\252\236 \360\235\204\236 260.92\",\"text2\":\"K\303\274hler\\u0009\360\237\224\247 260."
     "93\",\"flag\":1,\"value\":545734245},{\"itemText1\":\"say \\\"\303\251\\\" 260.94\",\"it"
     "emText2\":\"back\\\\slash \303\237 260.95\",\"itemText3\":\"Z\303\274ndung \360\237\232"
     "\227 260.96\",\"itemText4\":\"Pr\303\274fstand \342\202\254 260.97\",\"text1\":\"\346"
     "\227\245\346\234\254\350\252\236 \360\235\204\236 260.98\",\"text2\":\"K\303\274hler\\u0"
     "009\360\237\224\247 260.99\",\"flag\":0,\"value\":-1052686359}],\"scaleCount\":2},\"cons"
     "traint2\":{\"text1\":\"say \\\"\303\251\\\" 260.100\",\"text2\":\"back\\\\slash \303\237"
     " 260.101\",\"flag\":1,\"scales\":[{\"itemText1\":\"Z\303\274ndung \360\237\232\227 260.1"
     "02\",\"itemText2\":\"Pr\303\274fstand \342\202\254 260.103\",\"itemText3\":\"\346\227"
     "\245\346\234\254\350\252\236 \360\235\204\236 260.104\",\"itemText4\":\"K\303\274hler\\u"
     "0009\360\237\224\247 260.105\",\"text1\":\"say \\\"\303\251\\\" 260.106\",\"text2\":\"ba"
     "ck\\\\slash \303\237 260.107\",\"flag\":0,\"value\":1559638473},{\"itemText1\":\"Z\303"
     "\274ndung \360\237\232\227 260.108\",\"itemText2\":\"Pr\303\274fstand \342\202\254 260.1"
     "09\",\"itemText3\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 260.110\",\"i"
     "temText4\":\"K\303\274hler\\u0009\360\237\224\247 260.111\",\"text1\":\"say \\\"\303\251"
     "\\\" 260.112\",\"text2\":\"back\\\\slash \303\237 260.113\",\"flag\":1,\"value\":-206659"
     "0587}],\"scaleCount\":2},\"text6\":\"Z\303\274ndung \360\237\232\227 260.114\",\"text7\""
     ":\"Pr\303\274fstand \342\202\254 260.115\",\"flag4\":0,\"unit\":{\"values\":[214960021,7"
     "21912135,1228864249,1735816363,95284831,602236945,1109189059],\"value1\":2038339237,\"fl"
     "ag1\":1,\"value2\":397807703,\"flag2\":0}},{\"itemText1\":\"\346\227\245\346\234\254\350"
     "\252\236 \360\235\204\236 260.116\",\"itemText2\":\"K\303\274hler\\u0009\360\237\224\247"
     " 260.117\",\"itemText3\":\"say \\\"\303\251\\\" 260.118\",\"itemText4\":\"back\\\\slash "
     "\303\237 260.119\",\"text1\":\"Z\303\274ndung \360\237\232\227 260.120\",\"text2\":\"Pr"
     "\303\274fstand \342\202\254 260.121\",\"text3\":\"\346\227\245\346\234\254\350\252\236 "
     "\360\235\204\236 260.122\",\"value1\":426059053,\"text4\":\"K\303\274hler\\u0009\360\237"
     "\224\247 260.123\",\"children\":null,\"childCount\":0,\"text5\":\"say \\\"\303\251\\\" 2"
     "60.124\",\"names\":[\"back\\\\slash \303\237 260.125\",\"Z\303\274ndung \360\237\232\227"
     " 260.126\"],\"nameCount\":2,\"flag1\":1,\"value2\":-933011167,\"error\":null,\"flag2\":0"
     ",\"values\":[1616141173,2123093287,482561753,989513867,1496465981,2003418095,362886563,8"
     "69838677],\"flag3\":1,\"constraint1\":null,\"constraint2\":null,\"text6\":\"Pr\303\274fs"
     "tand \342\202\254 260.127\",\"text7\":\"\346\227\245\346\234\254\350\252\236 \360\235"
     "\204\236 260.128\",\"flag4\":0,\"unit\":null}],\"infoCount\":2,\"choices\":[\"K\303\274h"
     "ler\\u0009\360\237\224\247 260.129\",\"say \\\"\303\251\\\" 260.130\"],\"choiceCount\":2"
     ",\"error\":{\"code\":1439963281,\"message\":\"back\\\\slash \303\237 260.131\",\"details"
     "\":\"Z\303\274ndung \360\237\232\227 260.132\",\"subCode\":-1946915395,\"mvciError\":{\""
     "code\":306383863,\"codeText\":\"Pr\303\274fstand \342\202\254 260.133\",\"vendorCode\":-"
     "813335977,\"vendorCodeText\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 260"
     ".134\",\"extraText\":\"K\303\274hler\\u0009\360\237\224\247 260.135\",\"extraCode\":1320"
     "288091},\"negativeResponse\":{\"code\":-1827240205,\"text\":\"say \\\"\303\251\\\" 260.1"
     "36\",\"value1\":904759817,\"value2\":1411711931,\"bytes\":[0,255,127,1],\"byteCount\":4}"
     "},\"constraints\":[{\"text1\":\"back\\\\slash \303\237 260.137\",\"text2\":\"Z\303\274nd"
     "ung \360\237\232\227 260.138\",\"flag\":1,\"scales\":[{\"itemText1\":\"Pr\303\274fstand "
     "\342\202\254 260.139\",\"itemText2\":\"\346\227\245\346\234\254\350\252\236 \360\235\204"
     "\236 260.140\",\"itemText3\":\"K\303\274hler\\u0009\360\237\224\247 260.141\",\"itemText"
     "4\":\"say \\\"\303\251\\\" 260.142\",\"text1\":\"back\\\\slash \303\237 260.143\",\"text"
     "2\":\"Z\303\274ndung \360\237\232\227 260.144\",\"flag\":0,\"value\":186708671},{\"itemT"
     "ext1\":\"Pr\303\274fstand \342\202\254 260.145\",\"itemText2\":\"\346\227\245\346\234"
     "\254\350\252\236 \360\235\204\236 260.146\",\"itemText3\":\"K\303\274hler\\u0009\360\237"
     "\224\247 260.147\",\"itemText4\":\"say \\\"\303\251\\\" 260.148\",\"text1\":\"back\\\\sl"
     "ash \303\237 260.149\",\"text2\":\"Z\303\274ndung \360\237\232\227 260.150\",\"flag\":1,"
     "\"value\":-693660785}],\"scaleCount\":2},{\"text1\":\"Pr\303\274fstand \342\202\254 260."
     "151\",\"text2\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 260.152\",\"flag"
     "\":0,\"scales\":null,\"scaleCount\":0}],\"constraintCount\":2,\"tcp\":{\"value1\":49,\"v"
     "alue2\":51,\"value3\":34,\"value4\":1376790791,\"value5\":1883742905,\"value6\":24321137"
     "1},\"value1\":750163485,\"flag\":1},{\"itemText1\":\"K\303\274hler\\u0009\360\237\224"
     "\247 260.153\",\"itemText2\":\"say \\\"\303\251\\\" 260.154\",\"itemText3\":\"back\\\\sl"
     "ash \303\237 260.155\",\"itemText4\":\"Z\303\274ndung \360\237\232\227 260.156\",\"value"
     "\":\"Pr\303\274fstand \342\202\254 260.157\",\"defaultValue\":\"\346\227\245\346\234\254"
     "\350\252\236 \360\235\204\236 260.158\",\"infos\":null,\"infoCount\":0,\"choices\":[\"K"
     "\303\274hler\\u0009\360\237\224\247 260.159\",\"say \\\"\303\251\\\" 260.160\"],\"choice"
     "Count\":2,\"error\":null,\"constraints\":null,\"constraintCount\":0,\"tcp\":null,\"value"
     "1\":1257115599,\"flag\":0}],\"parameterCount\":2},{\"text1\":\"back\\\\slash \303\237 26"
     "0.161\",\"text2\":\"Z\303\274ndung \360\237\232\227 260.162\",\"text3\":\"Pr\303\274fsta"
     "nd \342\202\254 260.163\",\"text4\":\"\346\227\245\346\234\254\350\252\236 \360\235\204"
     "\236 260.164\",\"parameters\":null,\"parameterCount\":0}]",
     "", "", "[]", "[]",
     "010200000001140000005072c3bc667374616e6420e282ac203236302e3114000000e697a5e69cace8aa9e20"
     "f09d849e203236302e32120000004bc3bc686c657209f09f94a7203236302e330e0000007361792022c3a922"
     "203236302e340200000001130000006261636b5c736c61736820c39f203236302e35130000005ac3bc6e6475"
     "6e6720f09f9a97203236302e36140000005072c3bc667374616e6420e282ac203236302e3714000000e697a5"
     "e69cace8aa9e20f09d849e203236302e38120000004bc3bc686c657209f09f94a7203236302e390f00000073"
     "61792022c3a922203236302e31300200000001140000006261636b5c736c61736820c39f203236302e313114"
     "0000005ac3bc6e64756e6720f09f9a97203236302e3132150000005072c3bc667374616e6420e282ac203236"
     "302e313315000000e697a5e69cace8aa9e20f09d849e203236302e3134130000004bc3bc686c657209f09f94"
     "a7203236302e31350f0000007361792022c3a922203236302e3136140000006261636b5c736c61736820c39f"
     "203236302e313700000080140000005ac3bc6e64756e6720f09f9a97203236302e3138020000000115000000"
     "5072c3bc667374616e6420e282ac203236302e313915000000e697a5e69cace8aa9e20f09d849e203236302e"
     "3230130000004bc3bc686c657209f09f94a7203236302e32310f0000007361792022c3a922203236302e3232"
     "140000006261636b5c736c61736820c39f203236302e3233140000005ac3bc6e64756e6720f09f9a97203236"
     "302e3234150000005072c3bc667374616e6420e282ac203236302e3235ffffff7f15000000e697a5e69cace8"
     "aa9e20f09d849e203236302e32360200000001130000004bc3bc686c657209f09f94a7203236302e32370f00"
     "00007361792022c3a922203236302e3238140000006261636b5c736c61736820c39f203236302e3239140000"
     "005ac3bc6e64756e6720f09f9a97203236302e3330150000005072c3bc667374616e6420e282ac203236302e"
     "333115000000e697a5e69cace8aa9e20f09d849e203236302e3332130000004bc3bc686c657209f09f94a720"
     "3236302e3333ffffffff0f0000007361792022c3a922203236302e333400000000140000006261636b5c736c"
     "61736820c39f203236302e333502000000140000005ac3bc6e64756e6720f09f9a97203236302e3336150000"
     "005072c3bc667374616e6420e282ac203236302e3337010000ffff0000ffffffff00000080ffffff7ff31c47"
     "5ba5967e795710b617098aed35bb03255401000015000000e697a5e69cace8aa9e20f09d849e203236302e33"
     "38130000004bc3bc686c657209f09f94a7203236302e33390000010f0000007361792022c3a922203236302e"
     "3430140000006261636b5c736c61736820c39f203236302e3431140000005ac3bc6e64756e6720f09f9a9720"
     "3236302e3432150000005072c3bc667374616e6420e282ac203236302e343315000000e697a5e69cace8aa9e"
     "20f09d849e203236302e3434130000004bc3bc686c657209f09f94a7203236302e34350f0000007361792022"
     "c3a922203236302e3436a5967e79140000006261636b5c736c61736820c39f203236302e3437000000001400"
     "00005ac3bc6e64756e6720f09f9a97203236302e343802000000150000005072c3bc667374616e6420e282ac"
     "203236302e343915000000e697a5e69cace8aa9e20f09d849e203236302e353001a9ef49e800006d7d5c7221"
     "f79310d370cb2e85ea024d37643a6be9dd71099b57a9274dd1e045010000130000004bc3bc686c657209f09f"
     "94a7203236302e35310f0000007361792022c3a922203236302e35320000140000006261636b5c736c617368"
     "20c39f203236302e353302000000140000005ac3bc6e64756e6720f09f9a97203236302e3534150000005072"
     "c3bc667374616e6420e282ac203236302e353501098aed350145fcdaab15000000e697a5e69cace8aa9e20f0"
     "9d849e203236302e3536130000004bc3bc686c657209f09f94a7203236302e35376d7d5c72000000ff4a1864"
     "b3c44f02653e872017b8be3ec931f65c7bab2d7b2d256519df9e9c3701010f0000007361792022c3a9222032"
     "36302e3538140000006261636b5c736c61736820c39f203236302e3539000000000001140000005ac3bc6e64"
     "756e6720f09f9a97203236302e3630150000005072c3bc667374616e6420e282ac203236302e363101000000"
     "0015000000e697a5e69cace8aa9e20f09d849e203236302e3632130000004bc3bc686c657209f09f94a72032"
     "36302e363300019118d45543920b74f70b4312a9857a305bffb14e0d79e96cbff2200b010000000000008001"
     "ffffffffffffffff00010f0000007361792022c3a922203236302e3634140000006261636b5c736c61736820"
     "c39f203236302e3635140000005ac3bc6e64756e6720f09f9a97203236302e3636150000005072c3bc667374"
     "616e6420e282ac203236302e363715000000e697a5e69cace8aa9e20f09d849e203236302e3638130000004b"
     "c3bc686c657209f09f94a7203236302e36390f0000007361792022c3a922203236302e3730df086cef140000"
     "006261636b5c736c61736820c39f203236302e373100000000140000005ac3bc6e64756e6720f09f9a972032"
     "36302e373202000000150000005072c3bc667374616e6420e282ac203236302e373315000000e697a5e69cac"
     "e8aa9e20f09d849e203236302e373401d370cb2e0000716c582923e68f47d55fc76589d9fe033b533622edcc"
     "6d409f46a55e51c0dc7c010000130000004bc3bc686c657209f09f94a7203236302e37350f00000073617920"
     "22c3a922203236302e37360000140000006261636b5c736c61736820c39f203236302e373702000000140000"
     "005ac3bc6e64756e6720f09f9a97203236302e3738150000005072c3bc667374616e6420e282ac203236302e"
     "3739017b15fdb20137643a6b15000000e697a5e69cace8aa9e20f09d849e203236302e3830130000004bc3bc"
     "686c657209f09f94a7203236302e383117228ef6019b57a9270f0000007361792022c3a922203236302e3832"
     "b32e1fba140000006261636b5c736c61736820c39f203236302e3833140000005ac3bc6e64756e6720f09f9a"
     "97203236302e3834ff4a1864014d3bb0fd150000005072c3bc667374616e6420e282ac203236302e38350000"
     "000001000000f31c475b000000000400000000ffff8000033a141bb5b34b39672d835719a7ba75cd20f2137f"
     "9a293231146150e38d986e010115000000e697a5e69cace8aa9e20f09d849e203236302e3836130000004bc3"
     "bc686c657209f09f94a7203236302e38370002000000010f0000007361792022c3a922203236302e38381400"
     "00006261636b5c736c61736820c39f203236302e3839140000005ac3bc6e64756e6720f09f9a97203236302e"
     "3930150000005072c3bc667374616e6420e282ac203236302e393115000000e697a5e69cace8aa9e20f09d84"
     "9e203236302e3932130000004bc3bc686c657209f09f94a7203236302e393301653e8720010f000000736179"
     "2022c3a922203236302e3934140000006261636b5c736c61736820c39f203236302e3935140000005ac3bc6e"
     "64756e6720f09f9a97203236302e3936150000005072c3bc667374616e6420e282ac203236302e3937150000"
     "00e697a5e69cace8aa9e20f09d849e203236302e3938130000004bc3bc686c657209f09f94a7203236302e39"
     "3900e94741c101100000007361792022c3a922203236302e313030150000006261636b5c736c61736820c39f"
     "203236302e313031010200000001150000005ac3bc6e64756e6720f09f9a97203236302e3130321600000050"
     "72c3bc667374616e6420e282ac203236302e31303316000000e697a5e69cace8aa9e20f09d849e203236302e"
     "313034140000004bc3bc686c657209f09f94a7203236302e313035100000007361792022c3a922203236302e"
     "313036150000006261636b5c736c61736820c39f203236302e31303700c931f65c01150000005ac3bc6e6475"
     "6e6720f09f9a97203236302e313038160000005072c3bc667374616e6420e282ac203236302e313039160000"
     "00e697a5e69cace8aa9e20f09d849e203236302e313130140000004bc3bc686c657209f09f94a7203236302e"
     "313131100000007361792022c3a922203236302e313132150000006261636b5c736c61736820c39f20323630"
     "2e313133018554d284150000005ac3bc6e64756e6720f09f9a97203236302e313134160000005072c3bc6673"
     "74616e6420e282ac203236302e31313500019507d00c4781072bf9fa3e49ab7476675feead051168e523c3e1"
     "1c42a5967e7900000000015710b61700000000000116000000e697a5e69cace8aa9e20f09d849e203236302e"
     "313136140000004bc3bc686c657209f09f94a7203236302e313137100000007361792022c3a922203236302e"
     "313138150000006261636b5c736c61736820c39f203236302e313139150000005ac3bc6e64756e6720f09f9a"
     "97203236302e313230160000005072c3bc667374616e6420e282ac203236302e31323116000000e697a5e69c"
     "ace8aa9e20f09d849e203236302e3132322d256519140000004bc3bc686c657209f09f94a7203236302e3132"
     "3300000000100000007361792022c3a922203236302e31323402000000150000006261636b5c736c61736820"
     "c39f203236302e313235150000005ac3bc6e64756e6720f09f9a97203236302e31323601216163c80000755b"
     "546027d58b7ed94ec31c8bc8fa3a3d423259efbb6977a335a11555afd833010000160000005072c3bc667374"
     "616e6420e282ac203236302e31323716000000e697a5e69cace8aa9e20f09d849e203236302e313238000002"
     "000000140000004bc3bc686c657209f09f94a7203236302e313239100000007361792022c3a922203236302e"
     "313330019118d455150000006261636b5c736c61736820c39f203236302e313331150000005ac3bc6e64756e"
     "6720f09f9a97203236302e313332bd6df48b01f70b4312160000005072c3bc667374616e6420e282ac203236"
     "302e313333577a85cf16000000e697a5e69cace8aa9e20f09d849e203236302e313334140000004bc3bc686c"
     "657209f09f94a7203236302e3133355bffb14e01f3861693100000007361792022c3a922203236302e313336"
     "098aed3500000000bb032554000000000400000000ff7f010200000001150000006261636b5c736c61736820"
     "c39f203236302e313337150000005ac3bc6e64756e6720f09f9a97203236302e313338010200000001160000"
     "005072c3bc667374616e6420e282ac203236302e31333916000000e697a5e69cace8aa9e20f09d849e203236"
     "302e313430140000004bc3bc686c657209f09f94a7203236302e313431100000007361792022c3a922203236"
     "302e313432150000006261636b5c736c61736820c39f203236302e313433150000005ac3bc6e64756e6720f0"
     "9f9a97203236302e31343400bff2200b01160000005072c3bc667374616e6420e282ac203236302e31343516"
     "000000e697a5e69cace8aa9e20f09d849e203236302e313436140000004bc3bc686c657209f09f94a7203236"
     "302e313437100000007361792022c3a922203236302e313438150000006261636b5c736c61736820c39f2032"
     "36302e313439150000005ac3bc6e64756e6720f09f9a97203236302e313530018f93a7d601160000005072c3"
     "bc667374616e6420e282ac203236302e31353116000000e697a5e69cace8aa9e20f09d849e203236302e3135"
     "3200000000000131332207291052b9a247706b1c7f0e1d96b62c0101140000004bc3bc686c657209f09f94a7"
     "203236302e313533100000007361792022c3a922203236302e313534150000006261636b5c736c61736820c3"
     "9f203236302e313535150000005ac3bc6e64756e6720f09f9a97203236302e313536160000005072c3bc6673"
     "74616e6420e282ac203236302e31353716000000e697a5e69cace8aa9e20f09d849e203236302e3135380000"
     "000002000000140000004bc3bc686c657209f09f94a7203236302e313539100000007361792022c3a9222032"
     "36302e313630000000000000cf0fee4a0001150000006261636b5c736c61736820c39f203236302e31363115"
     "0000005ac3bc6e64756e6720f09f9a97203236302e313632160000005072c3bc667374616e6420e282ac2032"
     "36302e31363316000000e697a5e69cace8aa9e20f09d849e203236302e31363400000000",
     "0200000001140000005072c3bc667374616e6420e282ac203236302e3114000000e697a5e69cace8aa9e20f0"
     "9d849e203236302e32120000004bc3bc686c657209f09f94a7203236302e330e0000007361792022c3a92220"
     "3236302e340200000001130000006261636b5c736c61736820c39f203236302e35130000005ac3bc6e64756e"
     "6720f09f9a97203236302e36140000005072c3bc667374616e6420e282ac203236302e3714000000e697a5e6"
     "9cace8aa9e20f09d849e203236302e38120000004bc3bc686c657209f09f94a7203236302e390f0000007361"
     "792022c3a922203236302e31300200000001140000006261636b5c736c61736820c39f203236302e31311400"
     "00005ac3bc6e64756e6720f09f9a97203236302e3132150000005072c3bc667374616e6420e282ac20323630"
     "2e313315000000e697a5e69cace8aa9e20f09d849e203236302e3134130000004bc3bc686c657209f09f94a7"
     "203236302e31350f0000007361792022c3a922203236302e3136140000006261636b5c736c61736820c39f20"
     "3236302e313700000080140000005ac3bc6e64756e6720f09f9a97203236302e313802000000011500000050"
     "72c3bc667374616e6420e282ac203236302e313915000000e697a5e69cace8aa9e20f09d849e203236302e32"
     "30130000004bc3bc686c657209f09f94a7203236302e32310f0000007361792022c3a922203236302e323214"
     "0000006261636b5c736c61736820c39f203236302e3233140000005ac3bc6e64756e6720f09f9a9720323630"
     "2e3234150000005072c3bc667374616e6420e282ac203236302e3235ffffff7f15000000e697a5e69cace8aa"
     "9e20f09d849e203236302e32360200000001130000004bc3bc686c657209f09f94a7203236302e32370f0000"
     "007361792022c3a922203236302e3238140000006261636b5c736c61736820c39f203236302e323914000000"
     "5ac3bc6e64756e6720f09f9a97203236302e3330150000005072c3bc667374616e6420e282ac203236302e33"
     "3115000000e697a5e69cace8aa9e20f09d849e203236302e3332130000004bc3bc686c657209f09f94a72032"
     "36302e3333ffffffff0f0000007361792022c3a922203236302e333400000000140000006261636b5c736c61"
     "736820c39f203236302e333502000000140000005ac3bc6e64756e6720f09f9a97203236302e333615000000"
     "5072c3bc667374616e6420e282ac203236302e3337010000ffff0000ffffffff00000080ffffff7ff31c475b"
     "a5967e795710b617098aed35bb03255401000015000000e697a5e69cace8aa9e20f09d849e203236302e3338"
     "130000004bc3bc686c657209f09f94a7203236302e33390000010f0000007361792022c3a922203236302e34"
     "30140000006261636b5c736c61736820c39f203236302e3431140000005ac3bc6e64756e6720f09f9a972032"
     "36302e3432150000005072c3bc667374616e6420e282ac203236302e343315000000e697a5e69cace8aa9e20"
     "f09d849e203236302e3434130000004bc3bc686c657209f09f94a7203236302e34350f0000007361792022c3"
     "a922203236302e3436a5967e79140000006261636b5c736c61736820c39f203236302e343700000000140000"
     "005ac3bc6e64756e6720f09f9a97203236302e343802000000150000005072c3bc667374616e6420e282ac20"
     "3236302e343915000000e697a5e69cace8aa9e20f09d849e203236302e353001a9ef49e800006d7d5c7221f7"
     "9310d370cb2e85ea024d37643a6be9dd71099b57a9274dd1e045010000130000004bc3bc686c657209f09f94"
     "a7203236302e35310f0000007361792022c3a922203236302e35320000140000006261636b5c736c61736820"
     "c39f203236302e353302000000140000005ac3bc6e64756e6720f09f9a97203236302e3534150000005072c3"
     "bc667374616e6420e282ac203236302e353501098aed350145fcdaab15000000e697a5e69cace8aa9e20f09d"
     "849e203236302e3536130000004bc3bc686c657209f09f94a7203236302e35376d7d5c72000000ff4a1864b3"
     "c44f02653e872017b8be3ec931f65c7bab2d7b2d256519df9e9c3701010f0000007361792022c3a922203236"
     "302e3538140000006261636b5c736c61736820c39f203236302e3539000000000001140000005ac3bc6e6475"
     "6e6720f09f9a97203236302e3630150000005072c3bc667374616e6420e282ac203236302e36310100000000"
     "15000000e697a5e69cace8aa9e20f09d849e203236302e3632130000004bc3bc686c657209f09f94a7203236"
     "302e363300019118d45543920b74f70b4312a9857a305bffb14e0d79e96cbff2200b010000000000008001ff"
     "ffffffffffffff00010f0000007361792022c3a922203236302e3634140000006261636b5c736c61736820c3"
     "9f203236302e3635140000005ac3bc6e64756e6720f09f9a97203236302e3636150000005072c3bc66737461"
     "6e6420e282ac203236302e363715000000e697a5e69cace8aa9e20f09d849e203236302e3638130000004bc3"
     "bc686c657209f09f94a7203236302e36390f0000007361792022c3a922203236302e3730df086cef14000000"
     "6261636b5c736c61736820c39f203236302e373100000000140000005ac3bc6e64756e6720f09f9a97203236"
     "302e373202000000150000005072c3bc667374616e6420e282ac203236302e373315000000e697a5e69cace8"
     "aa9e20f09d849e203236302e373401d370cb2e0000716c582923e68f47d55fc76589d9fe033b533622edcc6d"
     "409f46a55e51c0dc7c010000130000004bc3bc686c657209f09f94a7203236302e37350f0000007361792022"
     "c3a922203236302e37360000140000006261636b5c736c61736820c39f203236302e37370200000014000000"
     "5ac3bc6e64756e6720f09f9a97203236302e3738150000005072c3bc667374616e6420e282ac203236302e37"
     "39017b15fdb20137643a6b15000000e697a5e69cace8aa9e20f09d849e203236302e3830130000004bc3bc68"
     "6c657209f09f94a7203236302e383117228ef6019b57a9270f0000007361792022c3a922203236302e3832b3"
     "2e1fba140000006261636b5c736c61736820c39f203236302e3833140000005ac3bc6e64756e6720f09f9a97"
     "203236302e3834ff4a1864014d3bb0fd150000005072c3bc667374616e6420e282ac203236302e3835000000"
     "0001000000f31c475b000000000400000000ffff8000033a141bb5b34b39672d835719a7ba75cd20f2137f9a"
     "293231146150e38d986e010115000000e697a5e69cace8aa9e20f09d849e203236302e3836130000004bc3bc"
     "686c657209f09f94a7203236302e38370002000000010f0000007361792022c3a922203236302e3838140000"
     "006261636b5c736c61736820c39f203236302e3839140000005ac3bc6e64756e6720f09f9a97203236302e39"
     "30150000005072c3bc667374616e6420e282ac203236302e393115000000e697a5e69cace8aa9e20f09d849e"
     "203236302e3932130000004bc3bc686c657209f09f94a7203236302e393301653e8720010f00000073617920"
     "22c3a922203236302e3934140000006261636b5c736c61736820c39f203236302e3935140000005ac3bc6e64"
     "756e6720f09f9a97203236302e3936150000005072c3bc667374616e6420e282ac203236302e393715000000"
     "e697a5e69cace8aa9e20f09d849e203236302e3938130000004bc3bc686c657209f09f94a7203236302e3939"
     "00e94741c101100000007361792022c3a922203236302e313030150000006261636b5c736c61736820c39f20"
     "3236302e313031010200000001150000005ac3bc6e64756e6720f09f9a97203236302e313032160000005072"
     "c3bc667374616e6420e282ac203236302e31303316000000e697a5e69cace8aa9e20f09d849e203236302e31"
     "3034140000004bc3bc686c657209f09f94a7203236302e313035100000007361792022c3a922203236302e31"
     "3036150000006261636b5c736c61736820c39f203236302e31303700c931f65c01150000005ac3bc6e64756e"
     "6720f09f9a97203236302e313038160000005072c3bc667374616e6420e282ac203236302e31303916000000"
     "e697a5e69cace8aa9e20f09d849e203236302e313130140000004bc3bc686c657209f09f94a7203236302e31"
     "3131100000007361792022c3a922203236302e313132150000006261636b5c736c61736820c39f203236302e"
     "313133018554d284150000005ac3bc6e64756e6720f09f9a97203236302e313134160000005072c3bc667374"
     "616e6420e282ac203236302e31313500019507d00c4781072bf9fa3e49ab7476675feead051168e523c3e11c"
     "42a5967e7900000000015710b61700000000000116000000e697a5e69cace8aa9e20f09d849e203236302e31"
     "3136140000004bc3bc686c657209f09f94a7203236302e313137100000007361792022c3a922203236302e31"
     "3138150000006261636b5c736c61736820c39f203236302e313139150000005ac3bc6e64756e6720f09f9a97"
     "203236302e313230160000005072c3bc667374616e6420e282ac203236302e31323116000000e697a5e69cac"
     "e8aa9e20f09d849e203236302e3132322d256519140000004bc3bc686c657209f09f94a7203236302e313233"
     "00000000100000007361792022c3a922203236302e31323402000000150000006261636b5c736c61736820c3"
     "9f203236302e313235150000005ac3bc6e64756e6720f09f9a97203236302e31323601216163c80000755b54"
     "6027d58b7ed94ec31c8bc8fa3a3d423259efbb6977a335a11555afd833010000160000005072c3bc66737461"
     "6e6420e282ac203236302e31323716000000e697a5e69cace8aa9e20f09d849e203236302e31323800000200"
     "0000140000004bc3bc686c657209f09f94a7203236302e313239100000007361792022c3a922203236302e31"
     "3330019118d455150000006261636b5c736c61736820c39f203236302e313331150000005ac3bc6e64756e67"
     "20f09f9a97203236302e313332bd6df48b01f70b4312160000005072c3bc667374616e6420e282ac20323630"
     "2e313333577a85cf16000000e697a5e69cace8aa9e20f09d849e203236302e313334140000004bc3bc686c65"
     "7209f09f94a7203236302e3133355bffb14e01f3861693100000007361792022c3a922203236302e31333609"
     "8aed3500000000bb032554000000000400000000ff7f010200000001150000006261636b5c736c61736820c3"
     "9f203236302e313337150000005ac3bc6e64756e6720f09f9a97203236302e31333801020000000116000000"
     "5072c3bc667374616e6420e282ac203236302e31333916000000e697a5e69cace8aa9e20f09d849e20323630"
     "2e313430140000004bc3bc686c657209f09f94a7203236302e313431100000007361792022c3a92220323630"
     "2e313432150000006261636b5c736c61736820c39f203236302e313433150000005ac3bc6e64756e6720f09f"
     "9a97203236302e31343400bff2200b01160000005072c3bc667374616e6420e282ac203236302e3134351600"
     "0000e697a5e69cace8aa9e20f09d849e203236302e313436140000004bc3bc686c657209f09f94a720323630"
     "2e313437100000007361792022c3a922203236302e313438150000006261636b5c736c61736820c39f203236"
     "302e313439150000005ac3bc6e64756e6720f09f9a97203236302e313530018f93a7d601160000005072c3bc"
     "667374616e6420e282ac203236302e31353116000000e697a5e69cace8aa9e20f09d849e203236302e313532"
     "00000000000131332207291052b9a247706b1c7f0e1d96b62c0101140000004bc3bc686c657209f09f94a720"
     "3236302e313533100000007361792022c3a922203236302e313534150000006261636b5c736c61736820c39f"
     "203236302e313535150000005ac3bc6e64756e6720f09f9a97203236302e313536160000005072c3bc667374"
     "616e6420e282ac203236302e31353716000000e697a5e69cace8aa9e20f09d849e203236302e313538000000"
     "0002000000140000004bc3bc686c657209f09f94a7203236302e313539100000007361792022c3a922203236"
     "302e313630000000000000cf0fee4a0001150000006261636b5c736c61736820c39f203236302e3136311500"
     "00005ac3bc6e64756e6720f09f9a97203236302e313632160000005072c3bc667374616e6420e282ac203236"
     "302e31363316000000e697a5e69cace8aa9e20f09d849e203236302e31363400000000",
     0},
    {"sparse", "[]", "[]",
     "[{\"text1\":\"\",\"text2\":\"\",\"text3\":\"\",\"text4\":\"\",\"parameters\":[{\"itemTex"
     "t1\":\"\",\"itemText2\":\"\",\"itemText3\":\"\",\"itemText4\":\"\",\"value\":\"\",\"defa"
     "ultValue\":\"\",\"infos\":[],\"choices\":[],\"error\":null,\"constraints\":[],\"tcp\":nu"
     "ll,\"value1\":4294967295,\"flag\":true}]},null]",
     "[{\"text1\":\"\",\"text2\":\"\",\"text3\":\"\",\"text4\":\"\",\"parameters\":[{\"itemTex"
     "t1\":\"\",\"itemText2\":\"\",\"itemText3\":\"\",\"itemText4\":\"\",\"value\":\"\",\"defa"
     "ultValue\":\"\",\"infos\":null,\"infoCount\":0,\"choices\":[],\"choiceCount\":0,\"error"
     "\":null,\"constraints\":null,\"constraintCount\":0,\"tcp\":null,\"value1\":4294967295,\""
     "flag\":1}],\"parameterCount\":1},null]",
     "", "", "[]", "[]",
     "0102000000010000000000000000000000000000000001000000010000000000000000000000000000000000"
     "000000000000000000000000000000000000000000ffffffff0100",
     "0200000001000000000000000000000000000000000100000001000000000000000000000000000000000000"
     "0000000000000000000000000000000000000000ffffffff0100",
     0},
    {"empty", "[]", "[]", "[]", "null", "", "", "[]", "[]", "0100000000", "00000000", 0},
};

struct GetGlobalProtocolParameterSetsExport {
    static constexpr const char* operation = "getGlobalProtocolParameterSets";
    using Result =
        kc::ListResult<GlobalProtocolParameterSet, release_GlobalProtocolParameterSet_array>;
    static void call(TarnApi* api, const kc::Json& in, KelError** error, Result& out) {
        static_cast<void>(in);
        kel_getGlobalProtocolParameterSets(api, error, &out.data, &out.count);
    }
};

TEST_F(Projects, getGlobalProtocolParameterSets_Exchange) {
    kc::exchange<GetGlobalProtocolParameterSetsExport>(api, kGetGlobalProtocolParameterSetsCases);
}
TEST_F(Projects, getGlobalProtocolParameterSets_Failure) {
    kc::failure<GetGlobalProtocolParameterSetsExport>(api, kGetGlobalProtocolParameterSetsCases);
}
TEST_F(ProjectsAdmission, getGlobalProtocolParameterSets) {
    kc::admission<GetGlobalProtocolParameterSetsExport>(
        callers(), kGetGlobalProtocolParameterSetsCases, kc::Needs::Operator);
}

const kc::Number kNumber78{78, "getGlobalProtocolParameterSets",
                           kGetGlobalProtocolParameterSetsCases};

TEST_F(ProjectsByNumber, n78_getGlobalProtocolParameterSets_KelCall) {
    kc::kelCall(api, kNumber78);
}
TEST_F(ProjectsByNumber, n78_getGlobalProtocolParameterSets_PyCall) { kc::pyCall(api, kNumber78); }
TEST_F(ProjectsByNumber, n78_getGlobalProtocolParameterSets_Failure) {
    kc::numberFailure(api, kNumber78);
}

// ---- setGlobalProtocolParameterSets (position 261, number 79) ----

const kc::Case kSetGlobalProtocolParameterSetsCases[] = {
    {"full",
     "[[{\"text1\":\"Pr\303\274fstand \342\202\254 261.1\",\"text2\":\"\346\227\245\346\234"
     "\254\350\252\236 \360\235\204\236 261.2\",\"text3\":\"K\303\274hler\\u0009\360\237\224"
     "\247 261.3\",\"text4\":\"say \\\"\303\251\\\" 261.4\",\"parameters\":[{\"itemText1\":\"b"
     "ack\\\\slash \303\237 261.5\",\"itemText2\":\"Z\303\274ndung \360\237\232\227 261.6\",\""
     "itemText3\":\"Pr\303\274fstand \342\202\254 261.7\",\"itemText4\":\"\346\227\245\346\234"
     "\254\350\252\236 \360\235\204\236 261.8\",\"value\":\"K\303\274hler\\u0009\360\237\224"
     "\247 261.9\",\"defaultValue\":\"say \\\"\303\251\\\" 261.10\",\"infos\":[{\"itemText1\":"
     "\"back\\\\slash \303\237 261.11\",\"itemText2\":\"Z\303\274ndung \360\237\232\227 261.12"
     "\",\"itemText3\":\"Pr\303\274fstand \342\202\254 261.13\",\"itemText4\":\"\346\227\245"
     "\346\234\254\350\252\236 \360\235\204\236 261.14\",\"text1\":\"K\303\274hler\\u0009\360"
     "\237\224\247 261.15\",\"text2\":\"say \\\"\303\251\\\" 261.16\",\"text3\":\"back\\\\slas"
     "h \303\237 261.17\",\"value1\":-2147483648,\"text4\":\"Z\303\274ndung \360\237\232\227 2"
     "61.18\",\"children\":[{\"itemText1\":\"Pr\303\274fstand \342\202\254 261.19\",\"itemText"
     "2\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 261.20\",\"itemText3\":\"K"
     "\303\274hler\\u0009\360\237\224\247 261.21\",\"itemText4\":\"say \\\"\303\251\\\" 261.22"
     "\",\"text1\":\"back\\\\slash \303\237 261.23\",\"text2\":\"Z\303\274ndung \360\237\232"
     "\227 261.24\",\"text3\":\"Pr\303\274fstand \342\202\254 261.25\",\"value1\":2147483647,"
     "\"text4\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 261.26\",\"children\":"
     "[{\"itemText1\":\"K\303\274hler\\u0009\360\237\224\247 261.27\",\"itemText2\":\"say \\\""
     "\303\251\\\" 261.28\",\"itemText3\":\"back\\\\slash \303\237 261.29\",\"itemText4\":\"Z"
     "\303\274ndung \360\237\232\227 261.30\",\"text1\":\"Pr\303\274fstand \342\202\254 261.31"
     "\",\"text2\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 261.32\",\"text3\":"
     "\"K\303\274hler\\u0009\360\237\224\247 261.33\",\"value1\":-1,\"text4\":\"say \\\"\303"
     "\251\\\" 261.34\",\"children\":[],\"text5\":\"back\\\\slash \303\237 261.35\",\"names\":"
     "[\"Z\303\274ndung \360\237\232\227 261.36\",\"Pr\303\274fstand \342\202\254 261.37\"],\""
     "flag1\":128,\"value2\":-65536,\"error\":null,\"flag2\":0,\"values\":[4294967295,21474836"
     "48,2147483647,1531427625,2038379739,397848207,904800321,1411752435],\"flag3\":255,\"cons"
     "traint1\":null,\"constraint2\":null,\"text6\":\"\346\227\245\346\234\254\350\252\236 "
     "\360\235\204\236 261.38\",\"text7\":\"K\303\274hler\\u0009\360\237\224\247 261.39\",\"fl"
     "ag4\":0,\"unit\":null},{\"itemText1\":\"say \\\"\303\251\\\" 261.40\",\"itemText2\":\"ba"
     "ck\\\\slash \303\237 261.41\",\"itemText3\":\"Z\303\274ndung \360\237\232\227 261.42\","
     "\"itemText4\":\"Pr\303\274fstand \342\202\254 261.43\",\"text1\":\"\346\227\245\346\234"
     "\254\350\252\236 \360\235\204\236 261.44\",\"text2\":\"K\303\274hler\\u0009\360\237\224"
     "\247 261.45\",\"text3\":\"say \\\"\303\251\\\" 261.46\",\"value1\":2038379739,\"text4\":"
     "\"back\\\\slash \303\237 261.47\",\"children\":[],\"text5\":\"Z\303\274ndung \360\237"
     "\232\227 261.48\",\"names\":[\"Pr\303\274fstand \342\202\254 261.49\",\"\346\227\245\346"
     "\234\254\350\252\236 \360\235\204\236 261.50\"],\"flag1\":2,\"value2\":-397848207,\"erro"
     "r\":null,\"flag2\":0,\"values\":[1918704549,278173015,785125129,1292077243,1799029357,15"
     "8497825,665449939,1172402053],\"flag3\":1,\"constraint1\":null,\"constraint2\":null,\"te"
     "xt6\":\"K\303\274hler\\u0009\360\237\224\247 261.51\",\"text7\":\"say \\\"\303\251\\\" 2"
     "61.52\",\"flag4\":0,\"unit\":null}],\"text5\":\"back\\\\slash \303\237 261.53\",\"names"
     "\":[\"Z\303\274ndung \360\237\232\227 261.54\",\"Pr\303\274fstand \342\202\254 261.55\"]"
     ",\"flag1\":128,\"value2\":904800321,\"error\":{\"code\":-1411752435,\"message\":\"\346"
     "\227\245\346\234\254\350\252\236 \360\235\204\236 261.56\",\"details\":\"K\303\274hler\\"
     "u0009\360\237\224\247 261.57\",\"subCode\":1918704549,\"mvciError\":null,\"negativeRespo"
     "nse\":null},\"flag2\":0,\"values\":[1679354167,38822633,545774747,1052726861,1559678975,"
     "2066631089,426099557,933051671],\"flag3\":255,\"constraint1\":{\"text1\":\"say \\\"\303"
     "\251\\\" 261.58\",\"text2\":\"back\\\\slash \303\237 261.59\",\"flag\":0,\"scales\":[]},"
     "\"constraint2\":{\"text1\":\"Z\303\274ndung \360\237\232\227 261.60\",\"text2\":\"Pr\303"
     "\274fstand \342\202\254 261.61\",\"flag\":2,\"scales\":[]},\"text6\":\"\346\227\245\346"
     "\234\254\350\252\236 \360\235\204\236 261.62\",\"text7\":\"K\303\274hler\\u0009\360\237"
     "\224\247 261.63\",\"flag4\":0,\"unit\":{\"values\":[1440003785,1946955899,306424365,8133"
     "76479,1320328593,1827280707,186749175],\"value1\":9223372036854775809,\"flag1\":1,\"valu"
     "e2\":18446744073709551615,\"flag2\":0}},{\"itemText1\":\"say \\\"\303\251\\\" 261.64\","
     "\"itemText2\":\"back\\\\slash \303\237 261.65\",\"itemText3\":\"Z\303\274ndung \360\237"
     "\232\227 261.66\",\"itemText4\":\"Pr\303\274fstand \342\202\254 261.67\",\"text1\":\""
     "\346\227\245\346\234\254\350\252\236 \360\235\204\236 261.68\",\"text2\":\"K\303\274hler"
     "\\u0009\360\237\224\247 261.69\",\"text3\":\"say \\\"\303\251\\\" 261.70\",\"value1\":-2"
     "78173015,\"text4\":\"back\\\\slash \303\237 261.71\",\"children\":[],\"text5\":\"Z\303"
     "\274ndung \360\237\232\227 261.72\",\"names\":[\"Pr\303\274fstand \342\202\254 261.73\","
     "\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 261.74\"],\"flag1\":128,\"value2"
     "\":785125129,\"error\":null,\"flag2\":0,\"values\":[693701289,1200653403,1707605517,6707"
     "3983,574026097,1080978211,1587930325,2094882439],\"flag3\":255,\"constraint1\":null,\"co"
     "nstraint2\":null,\"text6\":\"K\303\274hler\\u0009\360\237\224\247 261.75\",\"text7\":\"s"
     "ay \\\"\303\251\\\" 261.76\",\"flag4\":0,\"unit\":null}],\"text5\":\"back\\\\slash \303"
     "\237 261.77\",\"names\":[\"Z\303\274ndung \360\237\232\227 261.78\",\"Pr\303\274fstand "
     "\342\202\254 261.79\"],\"flag1\":2,\"value2\":-1292077243,\"error\":{\"code\":1799029357"
     ",\"message\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 261.80\",\"details"
     "\":\"K\303\274hler\\u0009\360\237\224\247 261.81\",\"subCode\":-158497825,\"mvciError\":"
     "{\"code\":665449939,\"codeText\":\"say \\\"\303\251\\\" 261.82\",\"vendorCode\":-1172402"
     "053,\"vendorCodeText\":\"back\\\\slash \303\237 261.83\",\"extraText\":\"Z\303\274ndung "
     "\360\237\232\227 261.84\",\"extraCode\":1679354167},\"negativeResponse\":{\"code\":-3882"
     "2633,\"text\":\"Pr\303\274fstand \342\202\254 261.85\",\"value1\":4294967296,\"value2\":"
     "1531427625,\"bytes\":[0,255,255,128]}},\"flag2\":0,\"values\":[454350907,961303021,14682"
     "55135,1975207249,334675715,841627829,1348579943,1855532057],\"flag3\":1,\"constraint1\":"
     "{\"text1\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 261.86\",\"text2\":\""
     "K\303\274hler\\u0009\360\237\224\247 261.87\",\"flag\":0,\"scales\":[{\"itemText1\":\"sa"
     "y \\\"\303\251\\\" 261.88\",\"itemText2\":\"back\\\\slash \303\237 261.89\",\"itemText3"
     "\":\"Z\303\274ndung \360\237\232\227 261.90\",\"itemText4\":\"Pr\303\274fstand \342\202"
     "\254 261.91\",\"text1\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 261.92\""
     ",\"text2\":\"K\303\274hler\\u0009\360\237\224\247 261.93\",\"flag\":128,\"value\":545774"
     "747},{\"itemText1\":\"say \\\"\303\251\\\" 261.94\",\"itemText2\":\"back\\\\slash \303"
     "\237 261.95\",\"itemText3\":\"Z\303\274ndung \360\237\232\227 261.96\",\"itemText4\":\"P"
     "r\303\274fstand \342\202\254 261.97\",\"text1\":\"\346\227\245\346\234\254\350\252\236 "
     "\360\235\204\236 261.98\",\"text2\":\"K\303\274hler\\u0009\360\237\224\247 261.99\",\"fl"
     "ag\":0,\"value\":-1052726861}]},\"constraint2\":{\"text1\":\"say \\\"\303\251\\\" 261.10"
     "0\",\"text2\":\"back\\\\slash \303\237 261.101\",\"flag\":255,\"scales\":[{\"itemText1\""
     ":\"Z\303\274ndung \360\237\232\227 261.102\",\"itemText2\":\"Pr\303\274fstand \342\202"
     "\254 261.103\",\"itemText3\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 261"
     ".104\",\"itemText4\":\"K\303\274hler\\u0009\360\237\224\247 261.105\",\"text1\":\"say \\"
     "\"\303\251\\\" 261.106\",\"text2\":\"back\\\\slash \303\237 261.107\",\"flag\":0,\"value"
     "\":1559678975},{\"itemText1\":\"Z\303\274ndung \360\237\232\227 261.108\",\"itemText2\":"
     "\"Pr\303\274fstand \342\202\254 261.109\",\"itemText3\":\"\346\227\245\346\234\254\350"
     "\252\236 \360\235\204\236 261.110\",\"itemText4\":\"K\303\274hler\\u0009\360\237\224\247"
     " 261.111\",\"text1\":\"say \\\"\303\251\\\" 261.112\",\"text2\":\"back\\\\slash \303\237"
     " 261.113\",\"flag\":2,\"value\":-2066631089}]},\"text6\":\"Z\303\274ndung \360\237\232"
     "\227 261.114\",\"text7\":\"Pr\303\274fstand \342\202\254 261.115\",\"flag4\":0,\"unit\":"
     "{\"values\":[215000525,721952639,1228904753,1735856867,95325333,602277447,1109229561],\""
     "value1\":2038379739,\"flag1\":1,\"value2\":397848207,\"flag2\":0}},{\"itemText1\":\"\346"
     "\227\245\346\234\254\350\252\236 \360\235\204\236 261.116\",\"itemText2\":\"K\303\274hle"
     "r\\u0009\360\237\224\247 261.117\",\"itemText3\":\"say \\\"\303\251\\\" 261.118\",\"item"
     "Text4\":\"back\\\\slash \303\237 261.119\",\"text1\":\"Z\303\274ndung \360\237\232\227 2"
     "61.120\",\"text2\":\"Pr\303\274fstand \342\202\254 261.121\",\"text3\":\"\346\227\245"
     "\346\234\254\350\252\236 \360\235\204\236 261.122\",\"value1\":426099557,\"text4\":\"K"
     "\303\274hler\\u0009\360\237\224\247 261.123\",\"children\":[],\"text5\":\"say \\\"\303"
     "\251\\\" 261.124\",\"names\":[\"back\\\\slash \303\237 261.125\",\"Z\303\274ndung \360"
     "\237\232\227 261.126\"],\"flag1\":128,\"value2\":-933051671,\"error\":null,\"flag2\":0,"
     "\"values\":[1616181675,2123133789,482602257,989554371,1496506485,2003458599,362927065,86"
     "9879179],\"flag3\":255,\"constraint1\":null,\"constraint2\":null,\"text6\":\"Pr\303\274f"
     "stand \342\202\254 261.127\",\"text7\":\"\346\227\245\346\234\254\350\252\236 \360\235"
     "\204\236 261.128\",\"flag4\":0,\"unit\":null}],\"choices\":[\"K\303\274hler\\u0009\360"
     "\237\224\247 261.129\",\"say \\\"\303\251\\\" 261.130\"],\"error\":{\"code\":1440003785,"
     "\"message\":\"back\\\\slash \303\237 261.131\",\"details\":\"Z\303\274ndung \360\237\232"
     "\227 261.132\",\"subCode\":-1946955899,\"mvciError\":{\"code\":306424365,\"codeText\":\""
     "Pr\303\274fstand \342\202\254 261.133\",\"vendorCode\":-813376479,\"vendorCodeText\":\""
     "\346\227\245\346\234\254\350\252\236 \360\235\204\236 261.134\",\"extraText\":\"K\303"
     "\274hler\\u0009\360\237\224\247 261.135\",\"extraCode\":1320328593},\"negativeResponse\""
     ":{\"code\":-1827280707,\"text\":\"say \\\"\303\251\\\" 261.136\",\"value1\":904800321,\""
     "value2\":1411752435,\"bytes\":[0,255,127,1]}},\"constraints\":[{\"text1\":\"back\\\\slas"
     "h \303\237 261.137\",\"text2\":\"Z\303\274ndung \360\237\232\227 261.138\",\"flag\":2,\""
     "scales\":[{\"itemText1\":\"Pr\303\274fstand \342\202\254 261.139\",\"itemText2\":\"\346"
     "\227\245\346\234\254\350\252\236 \360\235\204\236 261.140\",\"itemText3\":\"K\303\274hle"
     "r\\u0009\360\237\224\247 261.141\",\"itemText4\":\"say \\\"\303\251\\\" 261.142\",\"text"
     "1\":\"back\\\\slash \303\237 261.143\",\"text2\":\"Z\303\274ndung \360\237\232\227 261.1"
     "44\",\"flag\":0,\"value\":186749175},{\"itemText1\":\"Pr\303\274fstand \342\202\254 261."
     "145\",\"itemText2\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 261.146\",\""
     "itemText3\":\"K\303\274hler\\u0009\360\237\224\247 261.147\",\"itemText4\":\"say \\\""
     "\303\251\\\" 261.148\",\"text1\":\"back\\\\slash \303\237 261.149\",\"text2\":\"Z\303"
     "\274ndung \360\237\232\227 261.150\",\"flag\":1,\"value\":-693701289}]},{\"text1\":\"Pr"
     "\303\274fstand \342\202\254 261.151\",\"text2\":\"\346\227\245\346\234\254\350\252\236 "
     "\360\235\204\236 261.152\",\"flag\":0,\"scales\":[]}],\"tcp\":{\"value1\":7,\"value2\":9"
     ",\"value3\":248,\"value4\":1376831293,\"value5\":1883783407,\"value6\":243251875},\"valu"
     "e1\":750203989,\"flag\":128},{\"itemText1\":\"K\303\274hler\\u0009\360\237\224\247 261.1"
     "53\",\"itemText2\":\"say \\\"\303\251\\\" 261.154\",\"itemText3\":\"back\\\\slash \303"
     "\237 261.155\",\"itemText4\":\"Z\303\274ndung \360\237\232\227 261.156\",\"value\":\"Pr"
     "\303\274fstand \342\202\254 261.157\",\"defaultValue\":\"\346\227\245\346\234\254\350"
     "\252\236 \360\235\204\236 261.158\",\"infos\":[],\"choices\":[\"K\303\274hler\\u0009\360"
     "\237\224\247 261.159\",\"say \\\"\303\251\\\" 261.160\"],\"error\":null,\"constraints\":"
     "[],\"tcp\":null,\"value1\":1257156103,\"flag\":0}]},{\"text1\":\"back\\\\slash \303\237 "
     "261.161\",\"text2\":\"Z\303\274ndung \360\237\232\227 261.162\",\"text3\":\"Pr\303\274fs"
     "tand \342\202\254 261.163\",\"text4\":\"\346\227\245\346\234\254\350\252\236 \360\235"
     "\204\236 261.164\",\"parameters\":[]}]]",
     "[[{\"text1\":\"Pr\303\274fstand \342\202\254 261.1\",\"text2\":\"\346\227\245\346\234"
     "\254\350\252\236 \360\235\204\236 261.2\",\"text3\":\"K\303\274hler\\u0009\360\237\224"
     "\247 261.3\",\"text4\":\"say \\\"\303\251\\\" 261.4\",\"parameters\":[{\"itemText1\":\"b"
     "ack\\\\slash \303\237 261.5\",\"itemText2\":\"Z\303\274ndung \360\237\232\227 261.6\",\""
     "itemText3\":\"Pr\303\274fstand \342\202\254 261.7\",\"itemText4\":\"\346\227\245\346\234"
     "\254\350\252\236 \360\235\204\236 261.8\",\"value\":\"K\303\274hler\\u0009\360\237\224"
     "\247 261.9\",\"defaultValue\":\"say \\\"\303\251\\\" 261.10\",\"infos\":[{\"itemText1\":"
     "\"back\\\\slash \303\237 261.11\",\"itemText2\":\"Z\303\274ndung \360\237\232\227 261.12"
     "\",\"itemText3\":\"Pr\303\274fstand \342\202\254 261.13\",\"itemText4\":\"\346\227\245"
     "\346\234\254\350\252\236 \360\235\204\236 261.14\",\"text1\":\"K\303\274hler\\u0009\360"
     "\237\224\247 261.15\",\"text2\":\"say \\\"\303\251\\\" 261.16\",\"text3\":\"back\\\\slas"
     "h \303\237 261.17\",\"value1\":-2147483648,\"text4\":\"Z\303\274ndung \360\237\232\227 2"
     "61.18\",\"children\":[{\"itemText1\":\"Pr\303\274fstand \342\202\254 261.19\",\"itemText"
     "2\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 261.20\",\"itemText3\":\"K"
     "\303\274hler\\u0009\360\237\224\247 261.21\",\"itemText4\":\"say \\\"\303\251\\\" 261.22"
     "\",\"text1\":\"back\\\\slash \303\237 261.23\",\"text2\":\"Z\303\274ndung \360\237\232"
     "\227 261.24\",\"text3\":\"Pr\303\274fstand \342\202\254 261.25\",\"value1\":2147483647,"
     "\"text4\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 261.26\",\"children\":"
     "[{\"itemText1\":\"K\303\274hler\\u0009\360\237\224\247 261.27\",\"itemText2\":\"say \\\""
     "\303\251\\\" 261.28\",\"itemText3\":\"back\\\\slash \303\237 261.29\",\"itemText4\":\"Z"
     "\303\274ndung \360\237\232\227 261.30\",\"text1\":\"Pr\303\274fstand \342\202\254 261.31"
     "\",\"text2\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 261.32\",\"text3\":"
     "\"K\303\274hler\\u0009\360\237\224\247 261.33\",\"value1\":-1,\"text4\":\"say \\\"\303"
     "\251\\\" 261.34\",\"children\":[],\"text5\":\"back\\\\slash \303\237 261.35\",\"names\":"
     "[\"Z\303\274ndung \360\237\232\227 261.36\",\"Pr\303\274fstand \342\202\254 261.37\"],\""
     "flag1\":true,\"value2\":-65536,\"error\":null,\"flag2\":false,\"values\":[4294967295,214"
     "7483648,2147483647,1531427625,2038379739,397848207,904800321,1411752435],\"flag3\":true,"
     "\"constraint1\":null,\"constraint2\":null,\"text6\":\"\346\227\245\346\234\254\350\252"
     "\236 \360\235\204\236 261.38\",\"text7\":\"K\303\274hler\\u0009\360\237\224\247 261.39\""
     ",\"flag4\":false,\"unit\":null},{\"itemText1\":\"say \\\"\303\251\\\" 261.40\",\"itemTex"
     "t2\":\"back\\\\slash \303\237 261.41\",\"itemText3\":\"Z\303\274ndung \360\237\232\227 2"
     "61.42\",\"itemText4\":\"Pr\303\274fstand \342\202\254 261.43\",\"text1\":\"\346\227\245"
     "\346\234\254\350\252\236 \360\235\204\236 261.44\",\"text2\":\"K\303\274hler\\u0009\360"
     "\237\224\247 261.45\",\"text3\":\"say \\\"\303\251\\\" 261.46\",\"value1\":2038379739,\""
     "text4\":\"back\\\\slash \303\237 261.47\",\"children\":[],\"text5\":\"Z\303\274ndung "
     "\360\237\232\227 261.48\",\"names\":[\"Pr\303\274fstand \342\202\254 261.49\",\"\346\227"
     "\245\346\234\254\350\252\236 \360\235\204\236 261.50\"],\"flag1\":true,\"value2\":-39784"
     "8207,\"error\":null,\"flag2\":false,\"values\":[1918704549,278173015,785125129,129207724"
     "3,1799029357,158497825,665449939,1172402053],\"flag3\":true,\"constraint1\":null,\"const"
     "raint2\":null,\"text6\":\"K\303\274hler\\u0009\360\237\224\247 261.51\",\"text7\":\"say "
     "\\\"\303\251\\\" 261.52\",\"flag4\":false,\"unit\":null}],\"text5\":\"back\\\\slash \303"
     "\237 261.53\",\"names\":[\"Z\303\274ndung \360\237\232\227 261.54\",\"Pr\303\274fstand "
     "\342\202\254 261.55\"],\"flag1\":true,\"value2\":904800321,\"error\":{\"code\":-14117524"
     "35,\"message\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 261.56\",\"detail"
     "s\":\"K\303\274hler\\u0009\360\237\224\247 261.57\",\"subCode\":1918704549,\"mvciError\""
     ":null,\"negativeResponse\":null},\"flag2\":false,\"values\":[1679354167,38822633,5457747"
     "47,1052726861,1559678975,2066631089,426099557,933051671],\"flag3\":true,\"constraint1\":"
     "{\"text1\":\"say \\\"\303\251\\\" 261.58\",\"text2\":\"back\\\\slash \303\237 261.59\","
     "\"flag\":false,\"scales\":[]},\"constraint2\":{\"text1\":\"Z\303\274ndung \360\237\232"
     "\227 261.60\",\"text2\":\"Pr\303\274fstand \342\202\254 261.61\",\"flag\":true,\"scales"
     "\":[]},\"text6\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 261.62\",\"text"
     "7\":\"K\303\274hler\\u0009\360\237\224\247 261.63\",\"flag4\":false,\"unit\":{\"values\""
     ":[1440003785,1946955899,306424365,813376479,1320328593,1827280707,186749175],\"value1\":"
     "9223372036854775809,\"flag1\":true,\"value2\":18446744073709551615,\"flag2\":false}},{\""
     "itemText1\":\"say \\\"\303\251\\\" 261.64\",\"itemText2\":\"back\\\\slash \303\237 261.6"
     "5\",\"itemText3\":\"Z\303\274ndung \360\237\232\227 261.66\",\"itemText4\":\"Pr\303\274f"
     "stand \342\202\254 261.67\",\"text1\":\"\346\227\245\346\234\254\350\252\236 \360\235"
     "\204\236 261.68\",\"text2\":\"K\303\274hler\\u0009\360\237\224\247 261.69\",\"text3\":\""
     "say \\\"\303\251\\\" 261.70\",\"value1\":-278173015,\"text4\":\"back\\\\slash \303\237 2"
     "61.71\",\"children\":[],\"text5\":\"Z\303\274ndung \360\237\232\227 261.72\",\"names\":["
     "\"Pr\303\274fstand \342\202\254 261.73\",\"\346\227\245\346\234\254\350\252\236 \360\235"
     "\204\236 261.74\"],\"flag1\":true,\"value2\":785125129,\"error\":null,\"flag2\":false,\""
     "values\":[693701289,1200653403,1707605517,67073983,574026097,1080978211,1587930325,20948"
     "82439],\"flag3\":true,\"constraint1\":null,\"constraint2\":null,\"text6\":\"K\303\274hle"
     "r\\u0009\360\237\224\247 261.75\",\"text7\":\"say \\\"\303\251\\\" 261.76\",\"flag4\":fa"
     "lse,\"unit\":null}],\"text5\":\"back\\\\slash \303\237 261.77\",\"names\":[\"Z\303\274nd"
     "ung \360\237\232\227 261.78\",\"Pr\303\274fstand \342\202\254 261.79\"],\"flag1\":true,"
     "\"value2\":-1292077243,\"error\":{\"code\":1799029357,\"message\":\"\346\227\245\346\234"
     "\254\350\252\236 \360\235\204\236 261.80\",\"details\":\"K\303\274hler\\u0009\360\237"
     "\224\247 261.81\",\"subCode\":-158497825,\"mvciError\":{\"code\":665449939,\"codeText\":"
     "\"say \\\"\303\251\\\" 261.82\",\"vendorCode\":-1172402053,\"vendorCodeText\":\"back\\\\"
     "slash \303\237 261.83\",\"extraText\":\"Z\303\274ndung \360\237\232\227 261.84\",\"extra"
     "Code\":1679354167},\"negativeResponse\":{\"code\":-38822633,\"text\":\"Pr\303\274fstand "
     "\342\202\254 261.85\",\"value1\":4294967296,\"value2\":1531427625,\"bytes\":[0,255,255,1"
     "28]}},\"flag2\":false,\"values\":[454350907,961303021,1468255135,1975207249,334675715,84"
     "1627829,1348579943,1855532057],\"flag3\":true,\"constraint1\":{\"text1\":\"\346\227\245"
     "\346\234\254\350\252\236 \360\235\204\236 261.86\",\"text2\":\"K\303\274hler\\u0009\360"
     "\237\224\247 261.87\",\"flag\":false,\"scales\":[{\"itemText1\":\"say \\\"\303\251\\\" 2"
     "61.88\",\"itemText2\":\"back\\\\slash \303\237 261.89\",\"itemText3\":\"Z\303\274ndung "
     "\360\237\232\227 261.90\",\"itemText4\":\"Pr\303\274fstand \342\202\254 261.91\",\"text1"
     "\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 261.92\",\"text2\":\"K\303"
     "\274hler\\u0009\360\237\224\247 261.93\",\"flag\":true,\"value\":545774747},{\"itemText1"
     "\":\"say \\\"\303\251\\\" 261.94\",\"itemText2\":\"back\\\\slash \303\237 261.95\",\"ite"
     "mText3\":\"Z\303\274ndung \360\237\232\227 261.96\",\"itemText4\":\"Pr\303\274fstand "
     "\342\202\254 261.97\",\"text1\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 "
     "261.98\",\"text2\":\"K\303\274hler\\u0009\360\237\224\247 261.99\",\"flag\":false,\"valu"
     "e\":-1052726861}]},\"constraint2\":{\"text1\":\"say \\\"\303\251\\\" 261.100\",\"text2\""
     ":\"back\\\\slash \303\237 261.101\",\"flag\":true,\"scales\":[{\"itemText1\":\"Z\303\274"
     "ndung \360\237\232\227 261.102\",\"itemText2\":\"Pr\303\274fstand \342\202\254 261.103\""
     ",\"itemText3\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 261.104\",\"itemT"
     "ext4\":\"K\303\274hler\\u0009\360\237\224\247 261.105\",\"text1\":\"say \\\"\303\251\\\""
     " 261.106\",\"text2\":\"back\\\\slash \303\237 261.107\",\"flag\":false,\"value\":1559678"
     "975},{\"itemText1\":\"Z\303\274ndung \360\237\232\227 261.108\",\"itemText2\":\"Pr\303"
     "\274fstand \342\202\254 261.109\",\"itemText3\":\"\346\227\245\346\234\254\350\252\236 "
     "\360\235\204\236 261.110\",\"itemText4\":\"K\303\274hler\\u0009\360\237\224\247 261.111"
     "\",\"text1\":\"say \\\"\303\251\\\" 261.112\",\"text2\":\"back\\\\slash \303\237 261.113"
     "\",\"flag\":true,\"value\":-2066631089}]},\"text6\":\"Z\303\274ndung \360\237\232\227 26"
     "1.114\",\"text7\":\"Pr\303\274fstand \342\202\254 261.115\",\"flag4\":false,\"unit\":{\""
     "values\":[215000525,721952639,1228904753,1735856867,95325333,602277447,1109229561],\"val"
     "ue1\":2038379739,\"flag1\":true,\"value2\":397848207,\"flag2\":false}},{\"itemText1\":\""
     "\346\227\245\346\234\254\350\252\236 \360\235\204\236 261.116\",\"itemText2\":\"K\303"
     "\274hler\\u0009\360\237\224\247 261.117\",\"itemText3\":\"say \\\"\303\251\\\" 261.118\""
     ",\"itemText4\":\"back\\\\slash \303\237 261.119\",\"text1\":\"Z\303\274ndung \360\237"
     "\232\227 261.120\",\"text2\":\"Pr\303\274fstand \342\202\254 261.121\",\"text3\":\"\346"
     "\227\245\346\234\254\350\252\236 \360\235\204\236 261.122\",\"value1\":426099557,\"text4"
     "\":\"K\303\274hler\\u0009\360\237\224\247 261.123\",\"children\":[],\"text5\":\"say \\\""
     "\303\251\\\" 261.124\",\"names\":[\"back\\\\slash \303\237 261.125\",\"Z\303\274ndung "
     "\360\237\232\227 261.126\"],\"flag1\":true,\"value2\":-933051671,\"error\":null,\"flag2"
     "\":false,\"values\":[1616181675,2123133789,482602257,989554371,1496506485,2003458599,362"
     "927065,869879179],\"flag3\":true,\"constraint1\":null,\"constraint2\":null,\"text6\":\"P"
     "r\303\274fstand \342\202\254 261.127\",\"text7\":\"\346\227\245\346\234\254\350\252\236 "
     "\360\235\204\236 261.128\",\"flag4\":false,\"unit\":null}],\"choices\":[\"K\303\274hler"
     "\\u0009\360\237\224\247 261.129\",\"say \\\"\303\251\\\" 261.130\"],\"error\":{\"code\":"
     "1440003785,\"message\":\"back\\\\slash \303\237 261.131\",\"details\":\"Z\303\274ndung "
     "\360\237\232\227 261.132\",\"subCode\":-1946955899,\"mvciError\":{\"code\":306424365,\"c"
     "odeText\":\"Pr\303\274fstand \342\202\254 261.133\",\"vendorCode\":-813376479,\"vendorCo"
     "deText\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 261.134\",\"extraText\""
     ":\"K\303\274hler\\u0009\360\237\224\247 261.135\",\"extraCode\":1320328593},\"negativeRe"
     "sponse\":{\"code\":-1827280707,\"text\":\"say \\\"\303\251\\\" 261.136\",\"value1\":9048"
     "00321,\"value2\":1411752435,\"bytes\":[0,255,127,1]}},\"constraints\":[{\"text1\":\"back"
     "\\\\slash \303\237 261.137\",\"text2\":\"Z\303\274ndung \360\237\232\227 261.138\",\"fla"
     "g\":true,\"scales\":[{\"itemText1\":\"Pr\303\274fstand \342\202\254 261.139\",\"itemText"
     "2\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 261.140\",\"itemText3\":\"K"
     "\303\274hler\\u0009\360\237\224\247 261.141\",\"itemText4\":\"say \\\"\303\251\\\" 261.1"
     "42\",\"text1\":\"back\\\\slash \303\237 261.143\",\"text2\":\"Z\303\274ndung \360\237"
     "\232\227 261.144\",\"flag\":false,\"value\":186749175},{\"itemText1\":\"Pr\303\274fstand"
     " \342\202\254 261.145\",\"itemText2\":\"\346\227\245\346\234\254\350\252\236 \360\235"
     "\204\236 261.146\",\"itemText3\":\"K\303\274hler\\u0009\360\237\224\247 261.147\",\"item"
     "Text4\":\"say \\\"\303\251\\\" 261.148\",\"text1\":\"back\\\\slash \303\237 261.149\",\""
     "text2\":\"Z\303\274ndung \360\237\232\227 261.150\",\"flag\":true,\"value\":-693701289}]"
     "},{\"text1\":\"Pr\303\274fstand \342\202\254 261.151\",\"text2\":\"\346\227\245\346\234"
     "\254\350\252\236 \360\235\204\236 261.152\",\"flag\":false,\"scales\":[]}],\"tcp\":{\"va"
     "lue1\":7,\"value2\":9,\"value3\":248,\"value4\":1376831293,\"value5\":1883783407,\"value"
     "6\":243251875},\"value1\":750203989,\"flag\":true},{\"itemText1\":\"K\303\274hler\\u0009"
     "\360\237\224\247 261.153\",\"itemText2\":\"say \\\"\303\251\\\" 261.154\",\"itemText3\":"
     "\"back\\\\slash \303\237 261.155\",\"itemText4\":\"Z\303\274ndung \360\237\232\227 261.1"
     "56\",\"value\":\"Pr\303\274fstand \342\202\254 261.157\",\"defaultValue\":\"\346\227\245"
     "\346\234\254\350\252\236 \360\235\204\236 261.158\",\"infos\":[],\"choices\":[\"K\303"
     "\274hler\\u0009\360\237\224\247 261.159\",\"say \\\"\303\251\\\" 261.160\"],\"error\":nu"
     "ll,\"constraints\":[],\"tcp\":null,\"value1\":1257156103,\"flag\":false}]},{\"text1\":\""
     "back\\\\slash \303\237 261.161\",\"text2\":\"Z\303\274ndung \360\237\232\227 261.162\","
     "\"text3\":\"Pr\303\274fstand \342\202\254 261.163\",\"text4\":\"\346\227\245\346\234\254"
     "\350\252\236 \360\235\204\236 261.164\",\"parameters\":[]}]]",
     "null", nullptr,
     "02000000140000005072c3bc667374616e6420e282ac203236312e3114000000e697a5e69cace8aa9e20f09d"
     "849e203236312e32120000004bc3bc686c657209f09f94a7203236312e330e0000007361792022c3a9222032"
     "36312e3402000000130000006261636b5c736c61736820c39f203236312e35130000005ac3bc6e64756e6720"
     "f09f9a97203236312e36140000005072c3bc667374616e6420e282ac203236312e3714000000e697a5e69cac"
     "e8aa9e20f09d849e203236312e38120000004bc3bc686c657209f09f94a7203236312e390f00000073617920"
     "22c3a922203236312e313002000000140000006261636b5c736c61736820c39f203236312e3131140000005a"
     "c3bc6e64756e6720f09f9a97203236312e3132150000005072c3bc667374616e6420e282ac203236312e3133"
     "15000000e697a5e69cace8aa9e20f09d849e203236312e3134130000004bc3bc686c657209f09f94a7203236"
     "312e31350f0000007361792022c3a922203236312e3136140000006261636b5c736c61736820c39f20323631"
     "2e313700000080140000005ac3bc6e64756e6720f09f9a97203236312e313802000000150000005072c3bc66"
     "7374616e6420e282ac203236312e313915000000e697a5e69cace8aa9e20f09d849e203236312e3230130000"
     "004bc3bc686c657209f09f94a7203236312e32310f0000007361792022c3a922203236312e32321400000062"
     "61636b5c736c61736820c39f203236312e3233140000005ac3bc6e64756e6720f09f9a97203236312e323415"
     "0000005072c3bc667374616e6420e282ac203236312e3235ffffff7f15000000e697a5e69cace8aa9e20f09d"
     "849e203236312e323602000000130000004bc3bc686c657209f09f94a7203236312e32370f00000073617920"
     "22c3a922203236312e3238140000006261636b5c736c61736820c39f203236312e3239140000005ac3bc6e64"
     "756e6720f09f9a97203236312e3330150000005072c3bc667374616e6420e282ac203236312e333115000000"
     "e697a5e69cace8aa9e20f09d849e203236312e3332130000004bc3bc686c657209f09f94a7203236312e3333"
     "ffffffff0f0000007361792022c3a922203236312e333400000000140000006261636b5c736c61736820c39f"
     "203236312e333502000000140000005ac3bc6e64756e6720f09f9a97203236312e3336150000005072c3bc66"
     "7374616e6420e282ac203236312e3337010000ffff0000000000000000000000000000000000000000000000"
     "0000000000000000000000000000000000000000000000000000000000000000000000000000000000000000"
     "0000ffffffff00000080ffffff7f29bb475bdb347f798faeb6174128ee35f3a1255401000000000000000000"
     "000000000000000000000000000000000015000000e697a5e69cace8aa9e20f09d849e203236312e33381300"
     "00004bc3bc686c657209f09f94a7203236312e33390000000000000000000000000000000000000000000000"
     "0000000000000000000000000000000000000000000000000f0000007361792022c3a922203236312e343014"
     "0000006261636b5c736c61736820c39f203236312e3431140000005ac3bc6e64756e6720f09f9a9720323631"
     "2e3432150000005072c3bc667374616e6420e282ac203236312e343315000000e697a5e69cace8aa9e20f09d"
     "849e203236312e3434130000004bc3bc686c657209f09f94a7203236312e34350f0000007361792022c3a922"
     "203236312e3436db347f79140000006261636b5c736c61736820c39f203236312e343700000000140000005a"
     "c3bc6e64756e6720f09f9a97203236312e343802000000150000005072c3bc667374616e6420e282ac203236"
     "312e343915000000e697a5e69cace8aa9e20f09d849e203236312e353001715149e800000000000000000000"
     "0000000000000000000000000000000000000000000000000000000000000000000000000000000000000000"
     "000000000000000000000000000000a51b5d7257959410090fcc2ebb88034d6d023b6b217c7209d3f5a92785"
     "6fe145010000000000000000000000000000000000000000000000000000130000004bc3bc686c657209f09f"
     "94a7203236312e35310f0000007361792022c3a922203236312e353200000000000000000000000000000000"
     "00000000000000000000000000000000000000000000000000000000000000140000006261636b5c736c6173"
     "6820c39f203236312e353302000000140000005ac3bc6e64756e6720f09f9a97203236312e35341500000050"
     "72c3bc667374616e6420e282ac203236312e3535014128ee350d5edaab15000000e697a5e69cace8aa9e20f0"
     "9d849e203236312e3536130000004bc3bc686c657209f09f94a7203236312e3537a51b5d7200000000000000"
     "0000000000000000000000000000000000000000000000000000000000000000000000000000000000000000"
     "000037e91864e96250029bdc87204d56bf3effcff65cb1492e7b65c36519173d9d37010f0000007361792022"
     "c3a922203236312e3538140000006261636b5c736c61736820c39f203236312e35390000000000140000005a"
     "c3bc6e64756e6720f09f9a97203236312e3630150000005072c3bc667374616e6420e282ac203236312e3631"
     "010000000015000000e697a5e69cace8aa9e20f09d849e203236312e3632130000004bc3bc686c657209f09f"
     "94a7203236312e363300c9b6d4557b300c742daa4312df237b30919db24e4317ea6cf790210b010000000000"
     "008001ffffffffffffffff000f0000007361792022c3a922203236312e3634140000006261636b5c736c6173"
     "6820c39f203236312e3635140000005ac3bc6e64756e6720f09f9a97203236312e3636150000005072c3bc66"
     "7374616e6420e282ac203236312e363715000000e697a5e69cace8aa9e20f09d849e203236312e3638130000"
     "004bc3bc686c657209f09f94a7203236312e36390f0000007361792022c3a922203236312e3730a96a6bef14"
     "0000006261636b5c736c61736820c39f203236312e373100000000140000005ac3bc6e64756e6720f09f9a97"
     "203236312e373202000000150000005072c3bc667374616e6420e282ac203236312e373315000000e697a5e6"
     "9cace8aa9e20f09d849e203236312e373401090fcc2e00000000000000000000000000000000000000000000"
     "0000000000000000000000000000000000000000000000000000000000000000000000000000000000000000"
     "000000a90a59295b8490470dfec765bf77ff0371f13622236b6e40d5e4a55e875edd7c010000000000000000"
     "000000000000000000000000000000000000130000004bc3bc686c657209f09f94a7203236312e37350f0000"
     "007361792022c3a922203236312e373600000000000000000000000000000000000000000000000000000000"
     "00000000000000000000000000000000000000140000006261636b5c736c61736820c39f203236312e373702"
     "000000140000005ac3bc6e64756e6720f09f9a97203236312e3738150000005072c3bc667374616e6420e282"
     "ac203236312e3739014577fcb26d023b6b15000000e697a5e69cace8aa9e20f09d849e203236312e38301300"
     "00004bc3bc686c657209f09f94a7203236312e3831df838df6d3f5a9270f0000007361792022c3a922203236"
     "312e38327b901eba140000006261636b5c736c61736820c39f203236312e3833140000005ac3bc6e64756e67"
     "20f09f9a97203236312e383437e91864179daffd150000005072c3bc667374616e6420e282ac203236312e38"
     "35000000000100000029bb475b000000000400000000ffff80003bd8141bed514c399fcb83575145bb7503bf"
     "f213b5382a3267b26150192c996e0115000000e697a5e69cace8aa9e20f09d849e203236312e383613000000"
     "4bc3bc686c657209f09f94a7203236312e383700020000000f0000007361792022c3a922203236312e383814"
     "0000006261636b5c736c61736820c39f203236312e3839140000005ac3bc6e64756e6720f09f9a9720323631"
     "2e3930150000005072c3bc667374616e6420e282ac203236312e393115000000e697a5e69cace8aa9e20f09d"
     "849e203236312e3932130000004bc3bc686c657209f09f94a7203236312e3933019bdc87200f000000736179"
     "2022c3a922203236312e3934140000006261636b5c736c61736820c39f203236312e3935140000005ac3bc6e"
     "64756e6720f09f9a97203236312e3936150000005072c3bc667374616e6420e282ac203236312e3937150000"
     "00e697a5e69cace8aa9e20f09d849e203236312e3938130000004bc3bc686c657209f09f94a7203236312e39"
     "3900b3a940c1100000007361792022c3a922203236312e313030150000006261636b5c736c61736820c39f20"
     "3236312e3130310102000000150000005ac3bc6e64756e6720f09f9a97203236312e313032160000005072c3"
     "bc667374616e6420e282ac203236312e31303316000000e697a5e69cace8aa9e20f09d849e203236312e3130"
     "34140000004bc3bc686c657209f09f94a7203236312e313035100000007361792022c3a922203236312e3130"
     "36150000006261636b5c736c61736820c39f203236312e31303700ffcff65c150000005ac3bc6e64756e6720"
     "f09f9a97203236312e313038160000005072c3bc667374616e6420e282ac203236312e31303916000000e697"
     "a5e69cace8aa9e20f09d849e203236312e313130140000004bc3bc686c657209f09f94a7203236312e313131"
     "100000007361792022c3a922203236312e313132150000006261636b5c736c61736820c39f203236312e3131"
     "33014fb6d184150000005ac3bc6e64756e6720f09f9a97203236312e313134160000005072c3bc667374616e"
     "6420e282ac203236312e31313500cda5d00c7f1f082b31993f49e3127767958cae054706e623f97f1d42db34"
     "7f7900000000018faeb617000000000016000000e697a5e69cace8aa9e20f09d849e203236312e3131361400"
     "00004bc3bc686c657209f09f94a7203236312e313137100000007361792022c3a922203236312e3131381500"
     "00006261636b5c736c61736820c39f203236312e313139150000005ac3bc6e64756e6720f09f9a9720323631"
     "2e313230160000005072c3bc667374616e6420e282ac203236312e31323116000000e697a5e69cace8aa9e20"
     "f09d849e203236312e31323265c36519140000004bc3bc686c657209f09f94a7203236312e31323300000000"
     "100000007361792022c3a922203236312e31323402000000150000006261636b5c736c61736820c39f203236"
     "312e313235150000005ac3bc6e64756e6720f09f9a97203236312e31323601e9c262c8000000000000000000"
     "0000000000000000000000000000000000000000000000000000000000000000000000000000000000000000"
     "00000000000000000000000000000000abf954605d738c7e11edc31cc366fb3a75e03259275a6a77d9d3a115"
     "8b4dd933010000000000000000000000000000000000000000000000000000160000005072c3bc667374616e"
     "6420e282ac203236312e31323716000000e697a5e69cace8aa9e20f09d849e203236312e3132380000000000"
     "0000000000000000000000000000000000000000000000000000000000000000000000000000000000000200"
     "0000140000004bc3bc686c657209f09f94a7203236312e313239100000007361792022c3a922203236312e31"
     "3330c9b6d455150000006261636b5c736c61736820c39f203236312e313331150000005ac3bc6e64756e6720"
     "f09f9a97203236312e31333285cff38b2daa4312160000005072c3bc667374616e6420e282ac203236312e31"
     "333321dc84cf16000000e697a5e69cace8aa9e20f09d849e203236312e313334140000004bc3bc686c657209"
     "f09f94a7203236312e313335919db24ebde81593100000007361792022c3a922203236312e3133364128ee35"
     "00000000f3a12554000000000400000000ff7f0102000000150000006261636b5c736c61736820c39f203236"
     "312e313337150000005ac3bc6e64756e6720f09f9a97203236312e3133380102000000160000005072c3bc66"
     "7374616e6420e282ac203236312e31333916000000e697a5e69cace8aa9e20f09d849e203236312e31343014"
     "0000004bc3bc686c657209f09f94a7203236312e313431100000007361792022c3a922203236312e31343215"
     "0000006261636b5c736c61736820c39f203236312e313433150000005ac3bc6e64756e6720f09f9a97203236"
     "312e31343400f790210b160000005072c3bc667374616e6420e282ac203236312e31343516000000e697a5e6"
     "9cace8aa9e20f09d849e203236312e313436140000004bc3bc686c657209f09f94a7203236312e3134371000"
     "00007361792022c3a922203236312e313438150000006261636b5c736c61736820c39f203236312e31343915"
     "0000005ac3bc6e64756e6720f09f9a97203236312e3135300157f5a6d6160000005072c3bc667374616e6420"
     "e282ac203236312e31353116000000e697a5e69cace8aa9e20f09d849e203236312e31353200000000000709"
     "f83dc71052ef404870a3ba7f0e5534b72c01140000004bc3bc686c657209f09f94a7203236312e3135331000"
     "00007361792022c3a922203236312e313534150000006261636b5c736c61736820c39f203236312e31353515"
     "0000005ac3bc6e64756e6720f09f9a97203236312e313536160000005072c3bc667374616e6420e282ac2032"
     "36312e31353716000000e697a5e69cace8aa9e20f09d849e203236312e313538000000000200000014000000"
     "4bc3bc686c657209f09f94a7203236312e313539100000007361792022c3a922203236312e31363000000000"
     "0000000000000000000000000000000000000000000000000000000000000000000000000000000000000000"
     "00000000000000000000000000000000000000000000000000000000000000000000000000000007aeee4a00"
     "150000006261636b5c736c61736820c39f203236312e313631150000005ac3bc6e64756e6720f09f9a972032"
     "36312e313632160000005072c3bc667374616e6420e282ac203236312e31363316000000e697a5e69cace8aa"
     "9e20f09d849e203236312e31363400000000",
     "02000000015072c3bc667374616e6420e282ac203236312e3100e697a5e69cace8aa9e20f09d849e20323631"
     "2e32004bc3bc686c657209f09f94a7203236312e33007361792022c3a922203236312e340002000000016261"
     "636b5c736c61736820c39f203236312e35005ac3bc6e64756e6720f09f9a97203236312e36005072c3bc6673"
     "74616e6420e282ac203236312e3700e697a5e69cace8aa9e20f09d849e203236312e38004bc3bc686c657209"
     "f09f94a7203236312e39007361792022c3a922203236312e31300002000000016261636b5c736c61736820c3"
     "9f203236312e3131005ac3bc6e64756e6720f09f9a97203236312e3132005072c3bc667374616e6420e282ac"
     "203236312e313300e697a5e69cace8aa9e20f09d849e203236312e3134004bc3bc686c657209f09f94a72032"
     "36312e3135007361792022c3a922203236312e3136006261636b5c736c61736820c39f203236312e31370000"
     "0000805ac3bc6e64756e6720f09f9a97203236312e31380002000000015072c3bc667374616e6420e282ac20"
     "3236312e313900e697a5e69cace8aa9e20f09d849e203236312e3230004bc3bc686c657209f09f94a7203236"
     "312e3231007361792022c3a922203236312e3232006261636b5c736c61736820c39f203236312e3233005ac3"
     "bc6e64756e6720f09f9a97203236312e3234005072c3bc667374616e6420e282ac203236312e323500ffffff"
     "7fe697a5e69cace8aa9e20f09d849e203236312e32360002000000014bc3bc686c657209f09f94a720323631"
     "2e3237007361792022c3a922203236312e3238006261636b5c736c61736820c39f203236312e3239005ac3bc"
     "6e64756e6720f09f9a97203236312e3330005072c3bc667374616e6420e282ac203236312e333100e697a5e6"
     "9cace8aa9e20f09d849e203236312e3332004bc3bc686c657209f09f94a7203236312e333300ffffffff7361"
     "792022c3a922203236312e333400000000006261636b5c736c61736820c39f203236312e333500020000005a"
     "c3bc6e64756e6720f09f9a97203236312e3336005072c3bc667374616e6420e282ac203236312e3337000100"
     "00ffff0000ffffffff00000080ffffff7f29bb475bdb347f798faeb6174128ee35f3a12554010000e697a5e6"
     "9cace8aa9e20f09d849e203236312e3338004bc3bc686c657209f09f94a7203236312e333900000001736179"
     "2022c3a922203236312e3430006261636b5c736c61736820c39f203236312e3431005ac3bc6e64756e6720f0"
     "9f9a97203236312e3432005072c3bc667374616e6420e282ac203236312e343300e697a5e69cace8aa9e20f0"
     "9d849e203236312e3434004bc3bc686c657209f09f94a7203236312e3435007361792022c3a922203236312e"
     "343600db347f796261636b5c736c61736820c39f203236312e343700000000005ac3bc6e64756e6720f09f9a"
     "97203236312e343800020000005072c3bc667374616e6420e282ac203236312e343900e697a5e69cace8aa9e"
     "20f09d849e203236312e35300001715149e80000a51b5d7257959410090fcc2ebb88034d6d023b6b217c7209"
     "d3f5a927856fe1450100004bc3bc686c657209f09f94a7203236312e3531007361792022c3a922203236312e"
     "35320000006261636b5c736c61736820c39f203236312e353300020000005ac3bc6e64756e6720f09f9a9720"
     "3236312e3534005072c3bc667374616e6420e282ac203236312e353500014128ee35010d5edaabe697a5e69c"
     "ace8aa9e20f09d849e203236312e3536004bc3bc686c657209f09f94a7203236312e353700a51b5d72000000"
     "37e91864e96250029bdc87204d56bf3effcff65cb1492e7b65c36519173d9d3701017361792022c3a9222032"
     "36312e3538006261636b5c736c61736820c39f203236312e3539000000000000015ac3bc6e64756e6720f09f"
     "9a97203236312e3630005072c3bc667374616e6420e282ac203236312e3631000100000000e697a5e69cace8"
     "aa9e20f09d849e203236312e3632004bc3bc686c657209f09f94a7203236312e3633000001c9b6d4557b300c"
     "742daa4312df237b30919db24e4317ea6cf790210b010000000000008001ffffffffffffffff000173617920"
     "22c3a922203236312e3634006261636b5c736c61736820c39f203236312e3635005ac3bc6e64756e6720f09f"
     "9a97203236312e3636005072c3bc667374616e6420e282ac203236312e363700e697a5e69cace8aa9e20f09d"
     "849e203236312e3638004bc3bc686c657209f09f94a7203236312e3639007361792022c3a922203236312e37"
     "3000a96a6bef6261636b5c736c61736820c39f203236312e373100000000005ac3bc6e64756e6720f09f9a97"
     "203236312e373200020000005072c3bc667374616e6420e282ac203236312e373300e697a5e69cace8aa9e20"
     "f09d849e203236312e37340001090fcc2e0000a90a59295b8490470dfec765bf77ff0371f13622236b6e40d5"
     "e4a55e875edd7c0100004bc3bc686c657209f09f94a7203236312e3735007361792022c3a922203236312e37"
     "360000006261636b5c736c61736820c39f203236312e373700020000005ac3bc6e64756e6720f09f9a972032"
     "36312e3738005072c3bc667374616e6420e282ac203236312e373900014577fcb2016d023b6be697a5e69cac"
     "e8aa9e20f09d849e203236312e3830004bc3bc686c657209f09f94a7203236312e383100df838df601d3f5a9"
     "277361792022c3a922203236312e3832007b901eba6261636b5c736c61736820c39f203236312e3833005ac3"
     "bc6e64756e6720f09f9a97203236312e38340037e9186401179daffd5072c3bc667374616e6420e282ac2032"
     "36312e383500000000000100000029bb475b000000000400000000ffff80003bd8141bed514c399fcb835751"
     "45bb7503bff213b5382a3267b26150192c996e0101e697a5e69cace8aa9e20f09d849e203236312e3836004b"
     "c3bc686c657209f09f94a7203236312e3837000002000000017361792022c3a922203236312e383800626163"
     "6b5c736c61736820c39f203236312e3839005ac3bc6e64756e6720f09f9a97203236312e3930005072c3bc66"
     "7374616e6420e282ac203236312e393100e697a5e69cace8aa9e20f09d849e203236312e3932004bc3bc686c"
     "657209f09f94a7203236312e393300019bdc8720017361792022c3a922203236312e3934006261636b5c736c"
     "61736820c39f203236312e3935005ac3bc6e64756e6720f09f9a97203236312e3936005072c3bc667374616e"
     "6420e282ac203236312e393700e697a5e69cace8aa9e20f09d849e203236312e3938004bc3bc686c657209f0"
     "9f94a7203236312e39390000b3a940c1017361792022c3a922203236312e313030006261636b5c736c617368"
     "20c39f203236312e313031000102000000015ac3bc6e64756e6720f09f9a97203236312e313032005072c3bc"
     "667374616e6420e282ac203236312e31303300e697a5e69cace8aa9e20f09d849e203236312e313034004bc3"
     "bc686c657209f09f94a7203236312e313035007361792022c3a922203236312e313036006261636b5c736c61"
     "736820c39f203236312e3130370000ffcff65c015ac3bc6e64756e6720f09f9a97203236312e313038005072"
     "c3bc667374616e6420e282ac203236312e31303900e697a5e69cace8aa9e20f09d849e203236312e31313000"
     "4bc3bc686c657209f09f94a7203236312e313131007361792022c3a922203236312e313132006261636b5c73"
     "6c61736820c39f203236312e31313300014fb6d1845ac3bc6e64756e6720f09f9a97203236312e3131340050"
     "72c3bc667374616e6420e282ac203236312e313135000001cda5d00c7f1f082b31993f49e3127767958cae05"
     "4706e623f97f1d42db347f7900000000018faeb617000000000001e697a5e69cace8aa9e20f09d849e203236"
     "312e313136004bc3bc686c657209f09f94a7203236312e313137007361792022c3a922203236312e31313800"
     "6261636b5c736c61736820c39f203236312e313139005ac3bc6e64756e6720f09f9a97203236312e31323000"
     "5072c3bc667374616e6420e282ac203236312e31323100e697a5e69cace8aa9e20f09d849e203236312e3132"
     "320065c365194bc3bc686c657209f09f94a7203236312e31323300000000007361792022c3a922203236312e"
     "31323400020000006261636b5c736c61736820c39f203236312e313235005ac3bc6e64756e6720f09f9a9720"
     "3236312e3132360001e9c262c80000abf954605d738c7e11edc31cc366fb3a75e03259275a6a77d9d3a1158b"
     "4dd9330100005072c3bc667374616e6420e282ac203236312e31323700e697a5e69cace8aa9e20f09d849e20"
     "3236312e313238000000020000004bc3bc686c657209f09f94a7203236312e313239007361792022c3a92220"
     "3236312e3133300001c9b6d4556261636b5c736c61736820c39f203236312e313331005ac3bc6e64756e6720"
     "f09f9a97203236312e3133320085cff38b012daa43125072c3bc667374616e6420e282ac203236312e313333"
     "0021dc84cfe697a5e69cace8aa9e20f09d849e203236312e313334004bc3bc686c657209f09f94a720323631"
     "2e31333500919db24e01bde815937361792022c3a922203236312e313336004128ee3500000000f3a1255400"
     "0000000400000000ff7f0102000000016261636b5c736c61736820c39f203236312e313337005ac3bc6e6475"
     "6e6720f09f9a97203236312e313338000102000000015072c3bc667374616e6420e282ac203236312e313339"
     "00e697a5e69cace8aa9e20f09d849e203236312e313430004bc3bc686c657209f09f94a7203236312e313431"
     "007361792022c3a922203236312e313432006261636b5c736c61736820c39f203236312e313433005ac3bc6e"
     "64756e6720f09f9a97203236312e3134340000f790210b015072c3bc667374616e6420e282ac203236312e31"
     "343500e697a5e69cace8aa9e20f09d849e203236312e313436004bc3bc686c657209f09f94a7203236312e31"
     "3437007361792022c3a922203236312e313438006261636b5c736c61736820c39f203236312e313439005ac3"
     "bc6e64756e6720f09f9a97203236312e313530000157f5a6d6015072c3bc667374616e6420e282ac20323631"
     "2e31353100e697a5e69cace8aa9e20f09d849e203236312e313532000000000000010709f83dc71052ef4048"
     "70a3ba7f0e5534b72c01014bc3bc686c657209f09f94a7203236312e313533007361792022c3a92220323631"
     "2e313534006261636b5c736c61736820c39f203236312e313535005ac3bc6e64756e6720f09f9a9720323631"
     "2e313536005072c3bc667374616e6420e282ac203236312e31353700e697a5e69cace8aa9e20f09d849e2032"
     "36312e3135380000000000020000004bc3bc686c657209f09f94a7203236312e313539007361792022c3a922"
     "203236312e3136300000000000000007aeee4a00016261636b5c736c61736820c39f203236312e313631005a"
     "c3bc6e64756e6720f09f9a97203236312e313632005072c3bc667374616e6420e282ac203236312e31363300"
     "e697a5e69cace8aa9e20f09d849e203236312e3136340000000000",
     "[[{\"text1\":\"Pr\303\274fstand \342\202\254 261.1\",\"text2\":\"\346\227\245\346\234"
     "\254\350\252\236 \360\235\204\236 261.2\",\"text3\":\"K\303\274hler\\u0009\360\237\224"
     "\247 261.3\",\"text4\":\"say \\\"\303\251\\\" 261.4\",\"parameters\":[{\"itemText1\":\"b"
     "ack\\\\slash \303\237 261.5\",\"itemText2\":\"Z\303\274ndung \360\237\232\227 261.6\",\""
     "itemText3\":\"Pr\303\274fstand \342\202\254 261.7\",\"itemText4\":\"\346\227\245\346\234"
     "\254\350\252\236 \360\235\204\236 261.8\",\"value\":\"K\303\274hler\\u0009\360\237\224"
     "\247 261.9\",\"defaultValue\":\"say \\\"\303\251\\\" 261.10\",\"infos\":[{\"itemText1\":"
     "\"back\\\\slash \303\237 261.11\",\"itemText2\":\"Z\303\274ndung \360\237\232\227 261.12"
     "\",\"itemText3\":\"Pr\303\274fstand \342\202\254 261.13\",\"itemText4\":\"\346\227\245"
     "\346\234\254\350\252\236 \360\235\204\236 261.14\",\"text1\":\"K\303\274hler\\u0009\360"
     "\237\224\247 261.15\",\"text2\":\"say \\\"\303\251\\\" 261.16\",\"text3\":\"back\\\\slas"
     "h \303\237 261.17\",\"value1\":-2147483648,\"text4\":\"Z\303\274ndung \360\237\232\227 2"
     "61.18\",\"children\":[{\"itemText1\":\"Pr\303\274fstand \342\202\254 261.19\",\"itemText"
     "2\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 261.20\",\"itemText3\":\"K"
     "\303\274hler\\u0009\360\237\224\247 261.21\",\"itemText4\":\"say \\\"\303\251\\\" 261.22"
     "\",\"text1\":\"back\\\\slash \303\237 261.23\",\"text2\":\"Z\303\274ndung \360\237\232"
     "\227 261.24\",\"text3\":\"Pr\303\274fstand \342\202\254 261.25\",\"value1\":2147483647,"
     "\"text4\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 261.26\",\"children\":"
     "[{\"itemText1\":\"K\303\274hler\\u0009\360\237\224\247 261.27\",\"itemText2\":\"say \\\""
     "\303\251\\\" 261.28\",\"itemText3\":\"back\\\\slash \303\237 261.29\",\"itemText4\":\"Z"
     "\303\274ndung \360\237\232\227 261.30\",\"text1\":\"Pr\303\274fstand \342\202\254 261.31"
     "\",\"text2\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 261.32\",\"text3\":"
     "\"K\303\274hler\\u0009\360\237\224\247 261.33\",\"value1\":-1,\"text4\":\"say \\\"\303"
     "\251\\\" 261.34\",\"children\":[],\"text5\":\"back\\\\slash \303\237 261.35\",\"names\":"
     "[\"Z\303\274ndung \360\237\232\227 261.36\",\"Pr\303\274fstand \342\202\254 261.37\"],\""
     "flag1\":true,\"value2\":-65536,\"error\":{\"code\":0,\"message\":\"\",\"details\":\"\","
     "\"subCode\":0,\"mvciError\":{\"code\":0,\"codeText\":\"\",\"vendorCode\":0,\"vendorCodeT"
     "ext\":\"\",\"extraText\":\"\",\"extraCode\":0},\"negativeResponse\":{\"code\":0,\"text\""
     ":\"\",\"value1\":0,\"value2\":0,\"bytes\":[]}},\"flag2\":false,\"values\":[4294967295,21"
     "47483648,2147483647,1531427625,2038379739,397848207,904800321,1411752435],\"flag3\":true"
     ",\"constraint1\":{\"text1\":\"\",\"text2\":\"\",\"flag\":false,\"scales\":[]},\"constrai"
     "nt2\":{\"text1\":\"\",\"text2\":\"\",\"flag\":false,\"scales\":[]},\"text6\":\"\346\227"
     "\245\346\234\254\350\252\236 \360\235\204\236 261.38\",\"text7\":\"K\303\274hler\\u0009"
     "\360\237\224\247 261.39\",\"flag4\":false,\"unit\":{\"values\":[0,0,0,0,0,0,0],\"value1"
     "\":0,\"flag1\":false,\"value2\":0,\"flag2\":false}},{\"itemText1\":\"say \\\"\303\251\\"
     "\" 261.40\",\"itemText2\":\"back\\\\slash \303\237 261.41\",\"itemText3\":\"Z\303\274ndu"
     "ng \360\237\232\227 261.42\",\"itemText4\":\"Pr\303\274fstand \342\202\254 261.43\",\"te"
     "xt1\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 261.44\",\"text2\":\"K\303"
     "\274hler\\u0009\360\237\224\247 261.45\",\"text3\":\"say \\\"\303\251\\\" 261.46\",\"val"
     "ue1\":2038379739,\"text4\":\"back\\\\slash \303\237 261.47\",\"children\":[],\"text5\":"
     "\"Z\303\274ndung \360\237\232\227 261.48\",\"names\":[\"Pr\303\274fstand \342\202\254 26"
     "1.49\",\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 261.50\"],\"flag1\":true,"
     "\"value2\":-397848207,\"error\":{\"code\":0,\"message\":\"\",\"details\":\"\",\"subCode"
     "\":0,\"mvciError\":{\"code\":0,\"codeText\":\"\",\"vendorCode\":0,\"vendorCodeText\":\""
     "\",\"extraText\":\"\",\"extraCode\":0},\"negativeResponse\":{\"code\":0,\"text\":\"\",\""
     "value1\":0,\"value2\":0,\"bytes\":[]}},\"flag2\":false,\"values\":[1918704549,278173015,"
     "785125129,1292077243,1799029357,158497825,665449939,1172402053],\"flag3\":true,\"constra"
     "int1\":{\"text1\":\"\",\"text2\":\"\",\"flag\":false,\"scales\":[]},\"constraint2\":{\"t"
     "ext1\":\"\",\"text2\":\"\",\"flag\":false,\"scales\":[]},\"text6\":\"K\303\274hler\\u000"
     "9\360\237\224\247 261.51\",\"text7\":\"say \\\"\303\251\\\" 261.52\",\"flag4\":false,\"u"
     "nit\":{\"values\":[0,0,0,0,0,0,0],\"value1\":0,\"flag1\":false,\"value2\":0,\"flag2\":fa"
     "lse}}],\"text5\":\"back\\\\slash \303\237 261.53\",\"names\":[\"Z\303\274ndung \360\237"
     "\232\227 261.54\",\"Pr\303\274fstand \342\202\254 261.55\"],\"flag1\":true,\"value2\":90"
     "4800321,\"error\":{\"code\":-1411752435,\"message\":\"\346\227\245\346\234\254\350\252"
     "\236 \360\235\204\236 261.56\",\"details\":\"K\303\274hler\\u0009\360\237\224\247 261.57"
     "\",\"subCode\":1918704549,\"mvciError\":{\"code\":0,\"codeText\":\"\",\"vendorCode\":0,"
     "\"vendorCodeText\":\"\",\"extraText\":\"\",\"extraCode\":0},\"negativeResponse\":{\"code"
     "\":0,\"text\":\"\",\"value1\":0,\"value2\":0,\"bytes\":[]}},\"flag2\":false,\"values\":["
     "1679354167,38822633,545774747,1052726861,1559678975,2066631089,426099557,933051671],\"fl"
     "ag3\":true,\"constraint1\":{\"text1\":\"say \\\"\303\251\\\" 261.58\",\"text2\":\"back\\"
     "\\slash \303\237 261.59\",\"flag\":false,\"scales\":[]},\"constraint2\":{\"text1\":\"Z"
     "\303\274ndung \360\237\232\227 261.60\",\"text2\":\"Pr\303\274fstand \342\202\254 261.61"
     "\",\"flag\":true,\"scales\":[]},\"text6\":\"\346\227\245\346\234\254\350\252\236 \360"
     "\235\204\236 261.62\",\"text7\":\"K\303\274hler\\u0009\360\237\224\247 261.63\",\"flag4"
     "\":false,\"unit\":{\"values\":[1440003785,1946955899,306424365,813376479,1320328593,1827"
     "280707,186749175],\"value1\":9223372036854775809,\"flag1\":true,\"value2\":1844674407370"
     "9551615,\"flag2\":false}},{\"itemText1\":\"say \\\"\303\251\\\" 261.64\",\"itemText2\":"
     "\"back\\\\slash \303\237 261.65\",\"itemText3\":\"Z\303\274ndung \360\237\232\227 261.66"
     "\",\"itemText4\":\"Pr\303\274fstand \342\202\254 261.67\",\"text1\":\"\346\227\245\346"
     "\234\254\350\252\236 \360\235\204\236 261.68\",\"text2\":\"K\303\274hler\\u0009\360\237"
     "\224\247 261.69\",\"text3\":\"say \\\"\303\251\\\" 261.70\",\"value1\":-278173015,\"text"
     "4\":\"back\\\\slash \303\237 261.71\",\"children\":[],\"text5\":\"Z\303\274ndung \360"
     "\237\232\227 261.72\",\"names\":[\"Pr\303\274fstand \342\202\254 261.73\",\"\346\227\245"
     "\346\234\254\350\252\236 \360\235\204\236 261.74\"],\"flag1\":true,\"value2\":785125129,"
     "\"error\":{\"code\":0,\"message\":\"\",\"details\":\"\",\"subCode\":0,\"mvciError\":{\"c"
     "ode\":0,\"codeText\":\"\",\"vendorCode\":0,\"vendorCodeText\":\"\",\"extraText\":\"\",\""
     "extraCode\":0},\"negativeResponse\":{\"code\":0,\"text\":\"\",\"value1\":0,\"value2\":0,"
     "\"bytes\":[]}},\"flag2\":false,\"values\":[693701289,1200653403,1707605517,67073983,5740"
     "26097,1080978211,1587930325,2094882439],\"flag3\":true,\"constraint1\":{\"text1\":\"\","
     "\"text2\":\"\",\"flag\":false,\"scales\":[]},\"constraint2\":{\"text1\":\"\",\"text2\":"
     "\"\",\"flag\":false,\"scales\":[]},\"text6\":\"K\303\274hler\\u0009\360\237\224\247 261."
     "75\",\"text7\":\"say \\\"\303\251\\\" 261.76\",\"flag4\":false,\"unit\":{\"values\":[0,0"
     ",0,0,0,0,0],\"value1\":0,\"flag1\":false,\"value2\":0,\"flag2\":false}}],\"text5\":\"bac"
     "k\\\\slash \303\237 261.77\",\"names\":[\"Z\303\274ndung \360\237\232\227 261.78\",\"Pr"
     "\303\274fstand \342\202\254 261.79\"],\"flag1\":true,\"value2\":-1292077243,\"error\":{"
     "\"code\":1799029357,\"message\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 "
     "261.80\",\"details\":\"K\303\274hler\\u0009\360\237\224\247 261.81\",\"subCode\":-158497"
     "825,\"mvciError\":{\"code\":665449939,\"codeText\":\"say \\\"\303\251\\\" 261.82\",\"ven"
     "dorCode\":-1172402053,\"vendorCodeText\":\"back\\\\slash \303\237 261.83\",\"extraText\""
     ":\"Z\303\274ndung \360\237\232\227 261.84\",\"extraCode\":1679354167},\"negativeResponse"
     "\":{\"code\":-38822633,\"text\":\"Pr\303\274fstand \342\202\254 261.85\",\"value1\":4294"
     "967296,\"value2\":1531427625,\"bytes\":[0,255,255,128]}},\"flag2\":false,\"values\":[454"
     "350907,961303021,1468255135,1975207249,334675715,841627829,1348579943,1855532057],\"flag"
     "3\":true,\"constraint1\":{\"text1\":\"\346\227\245\346\234\254\350\252\236 \360\235\204"
     "\236 261.86\",\"text2\":\"K\303\274hler\\u0009\360\237\224\247 261.87\",\"flag\":false,"
     "\"scales\":[{\"itemText1\":\"say \\\"\303\251\\\" 261.88\",\"itemText2\":\"back\\\\slash"
     " \303\237 261.89\",\"itemText3\":\"Z\303\274ndung \360\237\232\227 261.90\",\"itemText4"
     "\":\"Pr\303\274fstand \342\202\254 261.91\",\"text1\":\"\346\227\245\346\234\254\350\252"
     "\236 \360\235\204\236 261.92\",\"text2\":\"K\303\274hler\\u0009\360\237\224\247 261.93\""
     ",\"flag\":true,\"value\":545774747},{\"itemText1\":\"say \\\"\303\251\\\" 261.94\",\"ite"
     "mText2\":\"back\\\\slash \303\237 261.95\",\"itemText3\":\"Z\303\274ndung \360\237\232"
     "\227 261.96\",\"itemText4\":\"Pr\303\274fstand \342\202\254 261.97\",\"text1\":\"\346"
     "\227\245\346\234\254\350\252\236 \360\235\204\236 261.98\",\"text2\":\"K\303\274hler\\u0"
     "009\360\237\224\247 261.99\",\"flag\":false,\"value\":-1052726861}]},\"constraint2\":{\""
     "text1\":\"say \\\"\303\251\\\" 261.100\",\"text2\":\"back\\\\slash \303\237 261.101\",\""
     "flag\":true,\"scales\":[{\"itemText1\":\"Z\303\274ndung \360\237\232\227 261.102\",\"ite"
     "mText2\":\"Pr\303\274fstand \342\202\254 261.103\",\"itemText3\":\"\346\227\245\346\234"
     "\254\350\252\236 \360\235\204\236 261.104\",\"itemText4\":\"K\303\274hler\\u0009\360\237"
     "\224\247 261.105\",\"text1\":\"say \\\"\303\251\\\" 261.106\",\"text2\":\"back\\\\slash "
     "\303\237 261.107\",\"flag\":false,\"value\":1559678975},{\"itemText1\":\"Z\303\274ndung "
     "\360\237\232\227 261.108\",\"itemText2\":\"Pr\303\274fstand \342\202\254 261.109\",\"ite"
     "mText3\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 261.110\",\"itemText4\""
     ":\"K\303\274hler\\u0009\360\237\224\247 261.111\",\"text1\":\"say \\\"\303\251\\\" 261.1"
     "12\",\"text2\":\"back\\\\slash \303\237 261.113\",\"flag\":true,\"value\":-2066631089}]}"
     ",\"text6\":\"Z\303\274ndung \360\237\232\227 261.114\",\"text7\":\"Pr\303\274fstand \342"
     "\202\254 261.115\",\"flag4\":false,\"unit\":{\"values\":[215000525,721952639,1228904753,"
     "1735856867,95325333,602277447,1109229561],\"value1\":2038379739,\"flag1\":true,\"value2"
     "\":397848207,\"flag2\":false}},{\"itemText1\":\"\346\227\245\346\234\254\350\252\236 "
     "\360\235\204\236 261.116\",\"itemText2\":\"K\303\274hler\\u0009\360\237\224\247 261.117"
     "\",\"itemText3\":\"say \\\"\303\251\\\" 261.118\",\"itemText4\":\"back\\\\slash \303\237"
     " 261.119\",\"text1\":\"Z\303\274ndung \360\237\232\227 261.120\",\"text2\":\"Pr\303\274f"
     "stand \342\202\254 261.121\",\"text3\":\"\346\227\245\346\234\254\350\252\236 \360\235"
     "\204\236 261.122\",\"value1\":426099557,\"text4\":\"K\303\274hler\\u0009\360\237\224\247"
     " 261.123\",\"children\":[],\"text5\":\"say \\\"\303\251\\\" 261.124\",\"names\":[\"back"
     "\\\\slash \303\237 261.125\",\"Z\303\274ndung \360\237\232\227 261.126\"],\"flag1\":true"
     ",\"value2\":-933051671,\"error\":{\"code\":0,\"message\":\"\",\"details\":\"\",\"subCode"
     "\":0,\"mvciError\":{\"code\":0,\"codeText\":\"\",\"vendorCode\":0,\"vendorCodeText\":\""
     "\",\"extraText\":\"\",\"extraCode\":0},\"negativeResponse\":{\"code\":0,\"text\":\"\",\""
     "value1\":0,\"value2\":0,\"bytes\":[]}},\"flag2\":false,\"values\":[1616181675,2123133789"
     ",482602257,989554371,1496506485,2003458599,362927065,869879179],\"flag3\":true,\"constra"
     "int1\":{\"text1\":\"\",\"text2\":\"\",\"flag\":false,\"scales\":[]},\"constraint2\":{\"t"
     "ext1\":\"\",\"text2\":\"\",\"flag\":false,\"scales\":[]},\"text6\":\"Pr\303\274fstand "
     "\342\202\254 261.127\",\"text7\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236"
     " 261.128\",\"flag4\":false,\"unit\":{\"values\":[0,0,0,0,0,0,0],\"value1\":0,\"flag1\":f"
     "alse,\"value2\":0,\"flag2\":false}}],\"choices\":[\"K\303\274hler\\u0009\360\237\224\247"
     " 261.129\",\"say \\\"\303\251\\\" 261.130\"],\"error\":{\"code\":1440003785,\"message\":"
     "\"back\\\\slash \303\237 261.131\",\"details\":\"Z\303\274ndung \360\237\232\227 261.132"
     "\",\"subCode\":-1946955899,\"mvciError\":{\"code\":306424365,\"codeText\":\"Pr\303\274fs"
     "tand \342\202\254 261.133\",\"vendorCode\":-813376479,\"vendorCodeText\":\"\346\227\245"
     "\346\234\254\350\252\236 \360\235\204\236 261.134\",\"extraText\":\"K\303\274hler\\u0009"
     "\360\237\224\247 261.135\",\"extraCode\":1320328593},\"negativeResponse\":{\"code\":-182"
     "7280707,\"text\":\"say \\\"\303\251\\\" 261.136\",\"value1\":904800321,\"value2\":141175"
     "2435,\"bytes\":[0,255,127,1]}},\"constraints\":[{\"text1\":\"back\\\\slash \303\237 261."
     "137\",\"text2\":\"Z\303\274ndung \360\237\232\227 261.138\",\"flag\":true,\"scales\":[{"
     "\"itemText1\":\"Pr\303\274fstand \342\202\254 261.139\",\"itemText2\":\"\346\227\245\346"
     "\234\254\350\252\236 \360\235\204\236 261.140\",\"itemText3\":\"K\303\274hler\\u0009\360"
     "\237\224\247 261.141\",\"itemText4\":\"say \\\"\303\251\\\" 261.142\",\"text1\":\"back\\"
     "\\slash \303\237 261.143\",\"text2\":\"Z\303\274ndung \360\237\232\227 261.144\",\"flag"
     "\":false,\"value\":186749175},{\"itemText1\":\"Pr\303\274fstand \342\202\254 261.145\","
     "\"itemText2\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 261.146\",\"itemTe"
     "xt3\":\"K\303\274hler\\u0009\360\237\224\247 261.147\",\"itemText4\":\"say \\\"\303\251"
     "\\\" 261.148\",\"text1\":\"back\\\\slash \303\237 261.149\",\"text2\":\"Z\303\274ndung "
     "\360\237\232\227 261.150\",\"flag\":true,\"value\":-693701289}]},{\"text1\":\"Pr\303\274"
     "fstand \342\202\254 261.151\",\"text2\":\"\346\227\245\346\234\254\350\252\236 \360\235"
     "\204\236 261.152\",\"flag\":false,\"scales\":[]}],\"tcp\":{\"value1\":7,\"value2\":9,\"v"
     "alue3\":248,\"value4\":1376831293,\"value5\":1883783407,\"value6\":243251875},\"value1\""
     ":750203989,\"flag\":true},{\"itemText1\":\"K\303\274hler\\u0009\360\237\224\247 261.153"
     "\",\"itemText2\":\"say \\\"\303\251\\\" 261.154\",\"itemText3\":\"back\\\\slash \303\237"
     " 261.155\",\"itemText4\":\"Z\303\274ndung \360\237\232\227 261.156\",\"value\":\"Pr\303"
     "\274fstand \342\202\254 261.157\",\"defaultValue\":\"\346\227\245\346\234\254\350\252"
     "\236 \360\235\204\236 261.158\",\"infos\":[],\"choices\":[\"K\303\274hler\\u0009\360\237"
     "\224\247 261.159\",\"say \\\"\303\251\\\" 261.160\"],\"error\":{\"code\":0,\"message\":"
     "\"\",\"details\":\"\",\"subCode\":0,\"mvciError\":{\"code\":0,\"codeText\":\"\",\"vendor"
     "Code\":0,\"vendorCodeText\":\"\",\"extraText\":\"\",\"extraCode\":0},\"negativeResponse"
     "\":{\"code\":0,\"text\":\"\",\"value1\":0,\"value2\":0,\"bytes\":[]}},\"constraints\":[]"
     ",\"tcp\":{\"value1\":0,\"value2\":0,\"value3\":0,\"value4\":0,\"value5\":0,\"value6\":0}"
     ",\"value1\":1257156103,\"flag\":false}]},{\"text1\":\"back\\\\slash \303\237 261.161\","
     "\"text2\":\"Z\303\274ndung \360\237\232\227 261.162\",\"text3\":\"Pr\303\274fstand \342"
     "\202\254 261.163\",\"text4\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 261"
     ".164\",\"parameters\":[]}]]",
     "[[{\"text1\":\"Pr\303\274fstand \342\202\254 261.1\",\"text2\":\"\346\227\245\346\234"
     "\254\350\252\236 \360\235\204\236 261.2\",\"text3\":\"K\303\274hler\\u0009\360\237\224"
     "\247 261.3\",\"text4\":\"say \\\"\303\251\\\" 261.4\",\"parameters\":[{\"itemText1\":\"b"
     "ack\\\\slash \303\237 261.5\",\"itemText2\":\"Z\303\274ndung \360\237\232\227 261.6\",\""
     "itemText3\":\"Pr\303\274fstand \342\202\254 261.7\",\"itemText4\":\"\346\227\245\346\234"
     "\254\350\252\236 \360\235\204\236 261.8\",\"value\":\"K\303\274hler\\u0009\360\237\224"
     "\247 261.9\",\"defaultValue\":\"say \\\"\303\251\\\" 261.10\",\"infos\":[{\"itemText1\":"
     "\"back\\\\slash \303\237 261.11\",\"itemText2\":\"Z\303\274ndung \360\237\232\227 261.12"
     "\",\"itemText3\":\"Pr\303\274fstand \342\202\254 261.13\",\"itemText4\":\"\346\227\245"
     "\346\234\254\350\252\236 \360\235\204\236 261.14\",\"text1\":\"K\303\274hler\\u0009\360"
     "\237\224\247 261.15\",\"text2\":\"say \\\"\303\251\\\" 261.16\",\"text3\":\"back\\\\slas"
     "h \303\237 261.17\",\"value1\":-2147483648,\"text4\":\"Z\303\274ndung \360\237\232\227 2"
     "61.18\",\"children\":[{\"itemText1\":\"Pr\303\274fstand \342\202\254 261.19\",\"itemText"
     "2\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 261.20\",\"itemText3\":\"K"
     "\303\274hler\\u0009\360\237\224\247 261.21\",\"itemText4\":\"say \\\"\303\251\\\" 261.22"
     "\",\"text1\":\"back\\\\slash \303\237 261.23\",\"text2\":\"Z\303\274ndung \360\237\232"
     "\227 261.24\",\"text3\":\"Pr\303\274fstand \342\202\254 261.25\",\"value1\":2147483647,"
     "\"text4\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 261.26\",\"children\":"
     "[{\"itemText1\":\"K\303\274hler\\u0009\360\237\224\247 261.27\",\"itemText2\":\"say \\\""
     "\303\251\\\" 261.28\",\"itemText3\":\"back\\\\slash \303\237 261.29\",\"itemText4\":\"Z"
     "\303\274ndung \360\237\232\227 261.30\",\"text1\":\"Pr\303\274fstand \342\202\254 261.31"
     "\",\"text2\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 261.32\",\"text3\":"
     "\"K\303\274hler\\u0009\360\237\224\247 261.33\",\"value1\":-1,\"text4\":\"say \\\"\303"
     "\251\\\" 261.34\",\"children\":[],\"text5\":\"back\\\\slash \303\237 261.35\",\"names\":"
     "[\"Z\303\274ndung \360\237\232\227 261.36\",\"Pr\303\274fstand \342\202\254 261.37\"],\""
     "flag1\":true,\"value2\":-65536,\"error\":null,\"flag2\":false,\"values\":[4294967295,214"
     "7483648,2147483647,1531427625,2038379739,397848207,904800321,1411752435],\"flag3\":true,"
     "\"constraint1\":null,\"constraint2\":null,\"text6\":\"\346\227\245\346\234\254\350\252"
     "\236 \360\235\204\236 261.38\",\"text7\":\"K\303\274hler\\u0009\360\237\224\247 261.39\""
     ",\"flag4\":false,\"unit\":null},{\"itemText1\":\"say \\\"\303\251\\\" 261.40\",\"itemTex"
     "t2\":\"back\\\\slash \303\237 261.41\",\"itemText3\":\"Z\303\274ndung \360\237\232\227 2"
     "61.42\",\"itemText4\":\"Pr\303\274fstand \342\202\254 261.43\",\"text1\":\"\346\227\245"
     "\346\234\254\350\252\236 \360\235\204\236 261.44\",\"text2\":\"K\303\274hler\\u0009\360"
     "\237\224\247 261.45\",\"text3\":\"say \\\"\303\251\\\" 261.46\",\"value1\":2038379739,\""
     "text4\":\"back\\\\slash \303\237 261.47\",\"children\":[],\"text5\":\"Z\303\274ndung "
     "\360\237\232\227 261.48\",\"names\":[\"Pr\303\274fstand \342\202\254 261.49\",\"\346\227"
     "\245\346\234\254\350\252\236 \360\235\204\236 261.50\"],\"flag1\":true,\"value2\":-39784"
     "8207,\"error\":null,\"flag2\":false,\"values\":[1918704549,278173015,785125129,129207724"
     "3,1799029357,158497825,665449939,1172402053],\"flag3\":true,\"constraint1\":null,\"const"
     "raint2\":null,\"text6\":\"K\303\274hler\\u0009\360\237\224\247 261.51\",\"text7\":\"say "
     "\\\"\303\251\\\" 261.52\",\"flag4\":false,\"unit\":null}],\"text5\":\"back\\\\slash \303"
     "\237 261.53\",\"names\":[\"Z\303\274ndung \360\237\232\227 261.54\",\"Pr\303\274fstand "
     "\342\202\254 261.55\"],\"flag1\":true,\"value2\":904800321,\"error\":{\"code\":-14117524"
     "35,\"message\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 261.56\",\"detail"
     "s\":\"K\303\274hler\\u0009\360\237\224\247 261.57\",\"subCode\":1918704549,\"mvciError\""
     ":null,\"negativeResponse\":null},\"flag2\":false,\"values\":[1679354167,38822633,5457747"
     "47,1052726861,1559678975,2066631089,426099557,933051671],\"flag3\":true,\"constraint1\":"
     "{\"text1\":\"say \\\"\303\251\\\" 261.58\",\"text2\":\"back\\\\slash \303\237 261.59\","
     "\"flag\":false,\"scales\":[]},\"constraint2\":{\"text1\":\"Z\303\274ndung \360\237\232"
     "\227 261.60\",\"text2\":\"Pr\303\274fstand \342\202\254 261.61\",\"flag\":true,\"scales"
     "\":[]},\"text6\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 261.62\",\"text"
     "7\":\"K\303\274hler\\u0009\360\237\224\247 261.63\",\"flag4\":false,\"unit\":{\"values\""
     ":[1440003785,1946955899,306424365,813376479,1320328593,1827280707,186749175],\"value1\":"
     "9223372036854775809,\"flag1\":true,\"value2\":18446744073709551615,\"flag2\":false}},{\""
     "itemText1\":\"say \\\"\303\251\\\" 261.64\",\"itemText2\":\"back\\\\slash \303\237 261.6"
     "5\",\"itemText3\":\"Z\303\274ndung \360\237\232\227 261.66\",\"itemText4\":\"Pr\303\274f"
     "stand \342\202\254 261.67\",\"text1\":\"\346\227\245\346\234\254\350\252\236 \360\235"
     "\204\236 261.68\",\"text2\":\"K\303\274hler\\u0009\360\237\224\247 261.69\",\"text3\":\""
     "say \\\"\303\251\\\" 261.70\",\"value1\":-278173015,\"text4\":\"back\\\\slash \303\237 2"
     "61.71\",\"children\":[],\"text5\":\"Z\303\274ndung \360\237\232\227 261.72\",\"names\":["
     "\"Pr\303\274fstand \342\202\254 261.73\",\"\346\227\245\346\234\254\350\252\236 \360\235"
     "\204\236 261.74\"],\"flag1\":true,\"value2\":785125129,\"error\":null,\"flag2\":false,\""
     "values\":[693701289,1200653403,1707605517,67073983,574026097,1080978211,1587930325,20948"
     "82439],\"flag3\":true,\"constraint1\":null,\"constraint2\":null,\"text6\":\"K\303\274hle"
     "r\\u0009\360\237\224\247 261.75\",\"text7\":\"say \\\"\303\251\\\" 261.76\",\"flag4\":fa"
     "lse,\"unit\":null}],\"text5\":\"back\\\\slash \303\237 261.77\",\"names\":[\"Z\303\274nd"
     "ung \360\237\232\227 261.78\",\"Pr\303\274fstand \342\202\254 261.79\"],\"flag1\":true,"
     "\"value2\":-1292077243,\"error\":{\"code\":1799029357,\"message\":\"\346\227\245\346\234"
     "\254\350\252\236 \360\235\204\236 261.80\",\"details\":\"K\303\274hler\\u0009\360\237"
     "\224\247 261.81\",\"subCode\":-158497825,\"mvciError\":{\"code\":665449939,\"codeText\":"
     "\"say \\\"\303\251\\\" 261.82\",\"vendorCode\":-1172402053,\"vendorCodeText\":\"back\\\\"
     "slash \303\237 261.83\",\"extraText\":\"Z\303\274ndung \360\237\232\227 261.84\",\"extra"
     "Code\":1679354167},\"negativeResponse\":{\"code\":-38822633,\"text\":\"Pr\303\274fstand "
     "\342\202\254 261.85\",\"value1\":4294967296,\"value2\":1531427625,\"bytes\":[0,255,255,1"
     "28]}},\"flag2\":false,\"values\":[454350907,961303021,1468255135,1975207249,334675715,84"
     "1627829,1348579943,1855532057],\"flag3\":true,\"constraint1\":{\"text1\":\"\346\227\245"
     "\346\234\254\350\252\236 \360\235\204\236 261.86\",\"text2\":\"K\303\274hler\\u0009\360"
     "\237\224\247 261.87\",\"flag\":false,\"scales\":[{\"itemText1\":\"say \\\"\303\251\\\" 2"
     "61.88\",\"itemText2\":\"back\\\\slash \303\237 261.89\",\"itemText3\":\"Z\303\274ndung "
     "\360\237\232\227 261.90\",\"itemText4\":\"Pr\303\274fstand \342\202\254 261.91\",\"text1"
     "\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 261.92\",\"text2\":\"K\303"
     "\274hler\\u0009\360\237\224\247 261.93\",\"flag\":true,\"value\":545774747},{\"itemText1"
     "\":\"say \\\"\303\251\\\" 261.94\",\"itemText2\":\"back\\\\slash \303\237 261.95\",\"ite"
     "mText3\":\"Z\303\274ndung \360\237\232\227 261.96\",\"itemText4\":\"Pr\303\274fstand "
     "\342\202\254 261.97\",\"text1\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 "
     "261.98\",\"text2\":\"K\303\274hler\\u0009\360\237\224\247 261.99\",\"flag\":false,\"valu"
     "e\":-1052726861}]},\"constraint2\":{\"text1\":\"say \\\"\303\251\\\" 261.100\",\"text2\""
     ":\"back\\\\slash \303\237 261.101\",\"flag\":true,\"scales\":[{\"itemText1\":\"Z\303\274"
     "ndung \360\237\232\227 261.102\",\"itemText2\":\"Pr\303\274fstand \342\202\254 261.103\""
     ",\"itemText3\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 261.104\",\"itemT"
     "ext4\":\"K\303\274hler\\u0009\360\237\224\247 261.105\",\"text1\":\"say \\\"\303\251\\\""
     " 261.106\",\"text2\":\"back\\\\slash \303\237 261.107\",\"flag\":false,\"value\":1559678"
     "975},{\"itemText1\":\"Z\303\274ndung \360\237\232\227 261.108\",\"itemText2\":\"Pr\303"
     "\274fstand \342\202\254 261.109\",\"itemText3\":\"\346\227\245\346\234\254\350\252\236 "
     "\360\235\204\236 261.110\",\"itemText4\":\"K\303\274hler\\u0009\360\237\224\247 261.111"
     "\",\"text1\":\"say \\\"\303\251\\\" 261.112\",\"text2\":\"back\\\\slash \303\237 261.113"
     "\",\"flag\":true,\"value\":-2066631089}]},\"text6\":\"Z\303\274ndung \360\237\232\227 26"
     "1.114\",\"text7\":\"Pr\303\274fstand \342\202\254 261.115\",\"flag4\":false,\"unit\":{\""
     "values\":[215000525,721952639,1228904753,1735856867,95325333,602277447,1109229561],\"val"
     "ue1\":2038379739,\"flag1\":true,\"value2\":397848207,\"flag2\":false}},{\"itemText1\":\""
     "\346\227\245\346\234\254\350\252\236 \360\235\204\236 261.116\",\"itemText2\":\"K\303"
     "\274hler\\u0009\360\237\224\247 261.117\",\"itemText3\":\"say \\\"\303\251\\\" 261.118\""
     ",\"itemText4\":\"back\\\\slash \303\237 261.119\",\"text1\":\"Z\303\274ndung \360\237"
     "\232\227 261.120\",\"text2\":\"Pr\303\274fstand \342\202\254 261.121\",\"text3\":\"\346"
     "\227\245\346\234\254\350\252\236 \360\235\204\236 261.122\",\"value1\":426099557,\"text4"
     "\":\"K\303\274hler\\u0009\360\237\224\247 261.123\",\"children\":[],\"text5\":\"say \\\""
     "\303\251\\\" 261.124\",\"names\":[\"back\\\\slash \303\237 261.125\",\"Z\303\274ndung "
     "\360\237\232\227 261.126\"],\"flag1\":true,\"value2\":-933051671,\"error\":null,\"flag2"
     "\":false,\"values\":[1616181675,2123133789,482602257,989554371,1496506485,2003458599,362"
     "927065,869879179],\"flag3\":true,\"constraint1\":null,\"constraint2\":null,\"text6\":\"P"
     "r\303\274fstand \342\202\254 261.127\",\"text7\":\"\346\227\245\346\234\254\350\252\236 "
     "\360\235\204\236 261.128\",\"flag4\":false,\"unit\":null}],\"choices\":[\"K\303\274hler"
     "\\u0009\360\237\224\247 261.129\",\"say \\\"\303\251\\\" 261.130\"],\"error\":{\"code\":"
     "1440003785,\"message\":\"back\\\\slash \303\237 261.131\",\"details\":\"Z\303\274ndung "
     "\360\237\232\227 261.132\",\"subCode\":-1946955899,\"mvciError\":{\"code\":306424365,\"c"
     "odeText\":\"Pr\303\274fstand \342\202\254 261.133\",\"vendorCode\":-813376479,\"vendorCo"
     "deText\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 261.134\",\"extraText\""
     ":\"K\303\274hler\\u0009\360\237\224\247 261.135\",\"extraCode\":1320328593},\"negativeRe"
     "sponse\":{\"code\":-1827280707,\"text\":\"say \\\"\303\251\\\" 261.136\",\"value1\":9048"
     "00321,\"value2\":1411752435,\"bytes\":[0,255,127,1]}},\"constraints\":[{\"text1\":\"back"
     "\\\\slash \303\237 261.137\",\"text2\":\"Z\303\274ndung \360\237\232\227 261.138\",\"fla"
     "g\":true,\"scales\":[{\"itemText1\":\"Pr\303\274fstand \342\202\254 261.139\",\"itemText"
     "2\":\"\346\227\245\346\234\254\350\252\236 \360\235\204\236 261.140\",\"itemText3\":\"K"
     "\303\274hler\\u0009\360\237\224\247 261.141\",\"itemText4\":\"say \\\"\303\251\\\" 261.1"
     "42\",\"text1\":\"back\\\\slash \303\237 261.143\",\"text2\":\"Z\303\274ndung \360\237"
     "\232\227 261.144\",\"flag\":false,\"value\":186749175},{\"itemText1\":\"Pr\303\274fstand"
     " \342\202\254 261.145\",\"itemText2\":\"\346\227\245\346\234\254\350\252\236 \360\235"
     "\204\236 261.146\",\"itemText3\":\"K\303\274hler\\u0009\360\237\224\247 261.147\",\"item"
     "Text4\":\"say \\\"\303\251\\\" 261.148\",\"text1\":\"back\\\\slash \303\237 261.149\",\""
     "text2\":\"Z\303\274ndung \360\237\232\227 261.150\",\"flag\":true,\"value\":-693701289}]"
     "},{\"text1\":\"Pr\303\274fstand \342\202\254 261.151\",\"text2\":\"\346\227\245\346\234"
     "\254\350\252\236 \360\235\204\236 261.152\",\"flag\":false,\"scales\":[]}],\"tcp\":{\"va"
     "lue1\":7,\"value2\":9,\"value3\":248,\"value4\":1376831293,\"value5\":1883783407,\"value"
     "6\":243251875},\"value1\":750203989,\"flag\":true},{\"itemText1\":\"K\303\274hler\\u0009"
     "\360\237\224\247 261.153\",\"itemText2\":\"say \\\"\303\251\\\" 261.154\",\"itemText3\":"
     "\"back\\\\slash \303\237 261.155\",\"itemText4\":\"Z\303\274ndung \360\237\232\227 261.1"
     "56\",\"value\":\"Pr\303\274fstand \342\202\254 261.157\",\"defaultValue\":\"\346\227\245"
     "\346\234\254\350\252\236 \360\235\204\236 261.158\",\"infos\":[],\"choices\":[\"K\303"
     "\274hler\\u0009\360\237\224\247 261.159\",\"say \\\"\303\251\\\" 261.160\"],\"error\":nu"
     "ll,\"constraints\":[],\"tcp\":null,\"value1\":1257156103,\"flag\":false}]},{\"text1\":\""
     "back\\\\slash \303\237 261.161\",\"text2\":\"Z\303\274ndung \360\237\232\227 261.162\","
     "\"text3\":\"Pr\303\274fstand \342\202\254 261.163\",\"text4\":\"\346\227\245\346\234\254"
     "\350\252\236 \360\235\204\236 261.164\",\"parameters\":[]}]]",
     "01", "", 0},
    {"sparse", "[[]]", "[[]]", "null", nullptr, "00000000", "00000000", "[[]]", "[[]]", "01", "",
     0},
};

struct SetGlobalProtocolParameterSetsExport {
    static constexpr const char* operation = "setGlobalProtocolParameterSets";
    using Result = kc::NoResult;
    static void call(TarnApi* api, const kc::Json& in, KelError** error, Result& out) {
        kc::RecordList<GlobalProtocolParameterSet, release_GlobalProtocolParameterSet_array> a0(
            in[0]);
        static_cast<void>(out);
        kel_setGlobalProtocolParameterSets(api, error, a0.data(), a0.count());
    }
};

TEST_F(Projects, setGlobalProtocolParameterSets_Exchange) {
    kc::exchange<SetGlobalProtocolParameterSetsExport>(api, kSetGlobalProtocolParameterSetsCases);
}
TEST_F(Projects, setGlobalProtocolParameterSets_Failure) {
    kc::failure<SetGlobalProtocolParameterSetsExport>(api, kSetGlobalProtocolParameterSetsCases);
}
TEST_F(ProjectsAdmission, setGlobalProtocolParameterSets) {
    kc::admission<SetGlobalProtocolParameterSetsExport>(
        callers(), kSetGlobalProtocolParameterSetsCases, kc::Needs::Administrator);
}

const kc::Number kNumber79{79, "setGlobalProtocolParameterSets",
                           kSetGlobalProtocolParameterSetsCases};

TEST_F(ProjectsByNumber, n79_setGlobalProtocolParameterSets_KelCall) {
    kc::kelCall(api, kNumber79);
}
TEST_F(ProjectsByNumber, n79_setGlobalProtocolParameterSets_PyCall) { kc::pyCall(api, kNumber79); }
TEST_F(ProjectsByNumber, n79_setGlobalProtocolParameterSets_Failure) {
    kc::numberFailure(api, kNumber79);
}
TEST_F(ProjectsByNumber, n79_setGlobalProtocolParameterSets_ShortInput) {
    kc::shortInput(api, kNumber79);
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

struct GetStatusInfoExport {
    static constexpr const char* operation = "getStatusInfo";
    using Result = kc::RecordResult<StatusInfo, release_StatusInfo>;
    static void call(TarnApi* api, const kc::Json& in, KelError** error, Result& out) {
        static_cast<void>(in);
        kel_getStatusInfo(api, error, &out.data);
    }
};

TEST_F(Projects, getStatusInfo_Exchange) {
    kc::exchange<GetStatusInfoExport>(api, kGetStatusInfoCases);
}
TEST_F(Projects, getStatusInfo_Failure) {
    kc::failure<GetStatusInfoExport>(api, kGetStatusInfoCases);
}
TEST_F(ProjectsAdmission, getStatusInfo) {
    kc::admission<GetStatusInfoExport>(callers(), kGetStatusInfoCases, kc::Needs::Operator);
}

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
TEST_F(ProjectsAdmission, getCurrentDebugTraceDirectory) {
    kc::admission<GetCurrentDebugTraceDirectoryExport>(
        callers(), kGetCurrentDebugTraceDirectoryCases, kc::Needs::Operator);
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
TEST_F(ProjectsAdmission, setStatusText) {
    kc::admission<SetStatusTextExport>(callers(), kSetStatusTextCases, kc::Needs::Operator);
}

const kc::Number kNumber196{196, "setStatusText", kSetStatusTextCases};

TEST_F(ProjectsByNumber, n196_setStatusText_KelCall) { kc::kelCall(api, kNumber196); }
TEST_F(ProjectsByNumber, n196_setStatusText_PyCall) { kc::pyCall(api, kNumber196); }
TEST_F(ProjectsByNumber, n196_setStatusText_Failure) { kc::numberFailure(api, kNumber196); }
TEST_F(ProjectsByNumber, n196_setStatusText_ShortInput) { kc::shortInput(api, kNumber196); }

} // namespace
