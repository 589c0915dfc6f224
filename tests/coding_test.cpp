// Coding the default vehicle's body control module (BCM): reading its coding, writing a
// coding file from the public directories, applying the description's ECU
// configurations, each under the unit's own access rules; and checksums of files.
#include "support.h"
#include "uds.h"

#include <cstring>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

namespace {

using namespace kel_test;

using Codings = List<CodingStringResult, release_CodingStringResult_array>;
using FileResults = List<CodingFileResult, release_CodingFileResult_array>;
using Configured = List<EcuConfigurationResult, release_EcuConfigurationResult_array>;
using Bytes = std::vector<uint8_t>;
using Texts = std::vector<std::string>;

// Each per-target result as "<status> <error code>".
template <class L>
Texts outcomes(const L& list) {
    Texts out;
    for (uint32_t i = 0; i < list.count; ++i) {
        out.push_back(std::to_string(list.items[i]->status) + " " +
                      std::to_string(codeIn(list.items[i]->error)));
    }
    return out;
}

class CodingTest : public EngineTest {
protected:
    void write(const wchar_t* path, const std::string& text) {
        ErrorSlot error;
        uint32_t written = 0;
        kel_writeFile(api, path, reinterpret_cast<const uint8_t*>(text.data()),
                      static_cast<uint32_t>(text.size()), 0, 1, &error, &written);
        ASSERT_FALSE(error) << (error ? error->code : 0);
    }
    // The vehicle unlock of the BCM: extended session, level 1, which its coding needs.
    void unlockBcm() {
        const auto result = kel_test::fetchRecord(release_UnlockResult, [&](auto... out) {
            kel_unlockVehicle(api, L"BCM", nullptr, 0, out...);
        });
        ASSERT_NE(result, nullptr);
        EXPECT_NE(result->value, 0U);
    }
    // The codings of `targets` (none: every coded unit).
    std::unique_ptr<Codings> codings(std::vector<const wchar_t*> targets) {
        return fetch<Codings>([&](auto... out) {
            kel_readCodingStrings(api, const_cast<wchar_t**>(targets.data()),
                                  static_cast<uint32_t>(targets.size()), out...);
        });
    }
    std::wstring readCoding() {
        const auto out = codings({L"BCM"});
        return out->count == 1 && out->items[0]->coding != nullptr ? out->items[0]->coding
                                                                   : L"<none>";
    }
    // A data identifier's value as readDataByIdentifiers decodes it.
    std::wstring readValue(const wchar_t* identifier) {
        const wchar_t* ids[] = {identifier};
        const auto out = fetch<List<ReadDataResult, release_ReadDataResult_array>>([&](auto... o) {
            kel_readDataByIdentifiers(api, L"BCM", const_cast<wchar_t**>(ids), 1, o...);
        });
        const bool one = out->count == 1 && out->items[0]->parameterCount == 1;
        return one ? out->items[0]->parameters[0]->text1 : L"<none>";
    }
    std::unique_ptr<FileResults> writeFile(const wchar_t* path,
                                           std::vector<const wchar_t*> targets = {}) {
        return fetch<FileResults>([&](auto... out) {
            kel_writeCodingFile(api, path, const_cast<wchar_t**>(targets.data()),
                                static_cast<uint32_t>(targets.size()), out...);
        });
    }
    std::unique_ptr<Configured> configure(const wchar_t* configuration,
                                          std::vector<const wchar_t*> targets = {}) {
        return fetch<Configured>([&](auto... out) {
            kel_performEcuConfiguration(api, const_cast<wchar_t**>(targets.data()),
                                        static_cast<uint32_t>(targets.size()), configuration,
                                        out...);
        });
    }
    std::wstring checksum(const wchar_t* path, int32_t algorithm, int32_t* code = nullptr) {
        ErrorSlot error;
        wchar_t* text = nullptr;
        kel_calculateChecksum(api, path, algorithm, &error, &text);
        if (code != nullptr) {
            *code = error ? error->code : 0;
        } else {
            EXPECT_FALSE(error) << (error ? error->code : 0);
        }
        std::wstring out = text != nullptr ? text : L"<error>";
        release_Memory(text);
        return out;
    }
};

TEST_F(CodingTest, CodingsAreReadPerTargetWithTextBytesAndErrors) {
    const auto all = codings({});
    ASSERT_EQ(outcomes(*all), Texts{"0 0"}) << "every coded unit: the BCM";
    const CodingStringResult& bcm = *all->items[0];
    EXPECT_STREQ(bcm.target, L"BCM");
    EXPECT_STREQ(bcm.identifier, L"0600");
    EXPECT_STREQ(bcm.coding, L"01A2003C");
    ASSERT_EQ(bcm.dataLength, 4U);
    EXPECT_EQ(Bytes(bcm.data, bcm.data + 4), (Bytes{0x01, 0xA2, 0x00, 0x3C}));

    EXPECT_EQ(outcomes(*codings({L"ECM", L"Nope", L"ACC", L"BCM"})),
              (Texts{"3 1800", "2 1011", "3 1800", "0 0"}))
        << "the ECM and the ACC keep no coding";
}

TEST_F(CodingTest, ACodingFileIsWrittenByServiceAndReadBack) {
    write(L"exchange/coding/bcm.txt", "# new coding after a repair\n"
                                      "\n"
                                      "  BCM = 02 B3 00 7F  \r\n");
    // The default session does not allow the write: the unit's negative response.
    auto refused = writeFile(L"exchange/coding/bcm.txt");
    ASSERT_EQ(outcomes(*refused), Texts{"3 1806"});
    ASSERT_NE(refused->items[0]->error->negativeResponse, nullptr);
    EXPECT_EQ(refused->items[0]->error->negativeResponse->code, 0x7F);
    EXPECT_EQ(readCoding(), L"01A2003C");

    unlockBcm();
    auto out = writeFile(L"exchange\\coding\\bcm.txt", {L"BCM"});
    ASSERT_EQ(outcomes(*out), Texts{"0 0"});
    const CodingFileResult& r = *out->items[0];
    EXPECT_STREQ(r.written, L"02 B3 00 7F");
    EXPECT_STREQ(r.coding, L"02B3007F");
    EXPECT_EQ(r.verified, 1);
    EXPECT_EQ(Bytes(r.data, r.data + r.dataLength), (Bytes{0x02, 0xB3, 0x00, 0x7F}));
    EXPECT_EQ(readCoding(), L"02B3007F");
}

TEST_F(CodingTest, EachTargetOfACodingFileGetsItsOwnError) {
    unlockBcm();
    write(L"exchange/mixed.txt", "BCM = 0102\nECM = 00\nGhost = 01\n");
    // The file's targets, in its order; the BCM's two bytes where the unit keeps four.
    EXPECT_EQ(outcomes(*writeFile(L"exchange/mixed.txt")), (Texts{"3 1807", "3 1800", "2 1011"}));
    write(L"exchange/nothex.txt", "BCM = not hex\n");
    EXPECT_EQ(outcomes(*writeFile(L"exchange/nothex.txt", {L"BCM", L"TCM"})),
              (Texts{"3 1807", "3 1801"}))
        << "the file does not code the TCM";
    EXPECT_EQ(readCoding(), L"01A2003C");
}

TEST_F(CodingTest, AFileThatIsNoCodingFileOrLiesOutsideIsRefusedWhole) {
    const auto code = [&](const wchar_t* path) {
        ErrorSlot error;
        FileResults out;
        kel_writeCodingFile(api, path, nullptr, 0, &error, &out.items, &out.count);
        return error ? error->code : 0;
    };
    write(L"exchange/noequals.txt", "BCM 01A2003C\n");
    write(L"exchange/twice.txt", "BCM = 01A2003C\nBCM = 01A2003D\n");
    EXPECT_EQ(code(L"exchange/noequals.txt"), 1802);
    EXPECT_EQ(code(L"exchange/twice.txt"), 1802);
    EXPECT_EQ(code(L"exchange/missing.txt"), 1609);
    EXPECT_EQ(code(L"exchange"), 1611);
    EXPECT_EQ(code(L"exchange/../../outside.txt"), 1606);
    EXPECT_EQ(code(L"/etc/passwd"), 1604);
}

TEST_F(CodingTest, EcuConfigurationsWriteTheirValuesWithPerTargetErrors) {
    // Locked: refused by the unit, nothing written.
    auto locked = configure(L"TrailerHitch");
    EXPECT_EQ(outcomes(*locked), Texts{"3 1806"});
    EXPECT_EQ(locked->items[0]->written, 0U);
    EXPECT_EQ(readValue(L"0610"), L"Absent");

    unlockBcm();
    auto out = configure(L"TrailerHitch", {L"ECM", L"BCM", L"Nope"});
    EXPECT_EQ(outcomes(*out), (Texts{"3 1805", "0 0", "2 1011"}));
    EXPECT_STREQ(out->items[0]->target, L"ECM");
    EXPECT_STREQ(out->items[0]->configuration, L"TrailerHitch");
    EXPECT_EQ(out->items[1]->written, 1U);
    EXPECT_EQ(readValue(L"0610"), L"Present");

    // Two values, one of them the coding itself.
    auto nordic = configure(L"NordicLights");
    ASSERT_EQ(nordic->count, 1U);
    EXPECT_EQ(nordic->items[0]->written, 2U);
    EXPECT_EQ(readCoding(), L"01A2003D");

    Configured none;
    EXPECT_ENGINE_ERROR(error, 1804,
                        kel_performEcuConfiguration(api, nullptr, 0, L"NoSuchConfiguration", &error,
                                                    &none.items, &none.count));
}

// Algorithms 1 to 4: CRC-32/ISO-HDLC, CRC-16/CCITT-FALSE, CRC-16/XMODEM and Adler-32. The
// published check values of "123456789", the empty file's, and those of 200000 bytes of
// i % 251 (more than three reads; Adler-32's sums wrap many times) from zlib's
// crc32/adler32 and binascii.crc_hqx.
TEST_F(CodingTest, ChecksumsMatchThePublishedCheckValuesAndRefuseWhatTheyCannot) {
    std::string large(200000, '\0');
    for (std::size_t i = 0; i < large.size(); ++i) {
        large[i] = static_cast<char>(i % 251);
    }
    write(L"exchange/check.txt", "123456789");
    write(L"exchange/empty.txt", "");
    write(L"exchange/large.bin", large);
    const std::vector<std::pair<const wchar_t*, std::vector<std::wstring>>> cases = {
        {L"exchange/check.txt", {L"CBF43926", L"29B1", L"31C3", L"091E01DE"}},
        {L"exchange/empty.txt", {L"00000000", L"FFFF", L"0000", L"00000001"}},
        {L"exchange/large.bin", {L"A745C145", L"4346", L"2255", L"49A07BDA"}},
    };
    for (const auto& [file, expected] : cases) {
        for (int32_t algorithm = 1; algorithm <= 4; ++algorithm) {
            EXPECT_EQ(checksum(file, algorithm), expected[algorithm - 1U])
                << "algorithm " << algorithm;
        }
    }
    const std::vector<std::tuple<const wchar_t*, int32_t, int32_t>> refused = {
        {L"exchange/check.txt", 0, 1803},
        {L"exchange/check.txt", 5, 1803},
        {L"exchange/none.txt", 1, 1609},
        {L"../check.txt", 1, 1606}};
    for (const auto& [file, algorithm, expected] : refused) {
        int32_t code = 0;
        checksum(file, algorithm, &code);
        EXPECT_EQ(code, expected) << "algorithm " << algorithm;
    }
}

} // namespace
