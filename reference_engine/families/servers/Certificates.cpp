#include "Certificates.h"

#include "DataRoot.h"
#include "Describe.h"
#include "SafeFiles.h"

#include <algorithm>
#include <fstream>
#include <sstream>
#include <stdexcept>

namespace Varno::Kel_cpp::Reference {
namespace {

const std::string base64Digits = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";

std::vector<uint8_t> fromBase64(const std::string& text) {
    std::vector<uint8_t> bytes;
    uint32_t bits = 0;
    int count = 0;
    std::size_t padding = 0;
    for (const char c : text) {
        if (c == ' ' || c == '\r' || c == '\n' || c == '\t') {
            continue;
        }
        if (c == '=') {
            ++padding;
            continue;
        }
        const auto digit = base64Digits.find(c);
        if (digit == std::string::npos || padding > 0) {
            throw std::invalid_argument("not Base64 text");
        }
        bits = (bits << 6) | static_cast<uint32_t>(digit);
        count += 6;
        if (count >= 8) {
            count -= 8;
            bytes.push_back(static_cast<uint8_t>(bits >> count));
        }
    }
    if (bytes.empty() || padding > 2) {
        throw std::invalid_argument("not Base64 text");
    }
    return bytes;
}

std::string toBase64(const std::vector<uint8_t>& bytes) {
    std::string text;
    for (std::size_t i = 0; i < bytes.size(); i += 3) {
        const uint32_t chunk = (uint32_t{bytes[i]} << 16) |
                               (i + 1 < bytes.size() ? uint32_t{bytes[i + 1]} << 8 : 0) |
                               (i + 2 < bytes.size() ? uint32_t{bytes[i + 2]} : 0);
        text += base64Digits[(chunk >> 18) & 63];
        text += base64Digits[(chunk >> 12) & 63];
        text += i + 1 < bytes.size() ? base64Digits[(chunk >> 6) & 63] : '=';
        text += i + 2 < bytes.size() ? base64Digits[chunk & 63] : '=';
    }
    return text;
}

// One DER element: where its contents start and end, and where it ends as a whole.
struct Element {
    uint8_t tag = 0;
    std::size_t start = 0; // of the whole element
    std::size_t contents = 0;
    std::size_t end = 0;
};

Element readElement(const std::vector<uint8_t>& der, std::size_t at, std::size_t limit) {
    const auto fail = [] { throw std::invalid_argument("not a DER certificate"); };
    if (at + 2 > limit) {
        fail();
    }
    Element e;
    e.start = at;
    e.tag = der[at];
    std::size_t length = der[at + 1];
    std::size_t pos = at + 2;
    if (length & 0x80) {
        const std::size_t octets = length & 0x7F;
        if (octets == 0 || octets > 4 || pos + octets > limit) {
            fail();
        }
        length = 0;
        for (std::size_t i = 0; i < octets; ++i) {
            length = (length << 8) | der[pos++];
        }
    }
    if (length > limit - pos) {
        fail();
    }
    e.contents = pos;
    e.end = pos + length;
    return e;
}

std::vector<uint8_t> bytesOf(const std::vector<uint8_t>& der, const Element& e) {
    return {der.begin() + static_cast<std::ptrdiff_t>(e.start),
            der.begin() + static_cast<std::ptrdiff_t>(e.end)};
}

std::string readFile(const std::filesystem::path& path) {
    std::ifstream in(path, std::ios::binary);
    std::ostringstream text;
    text << in.rdbuf();
    return text.str();
}

} // namespace

std::vector<uint8_t> pemBody(const std::string& text, const std::string& label) {
    const std::string begin = "-----BEGIN " + label + "-----";
    const std::string end = "-----END " + label + "-----";
    const auto from = text.find(begin);
    if (from == std::string::npos) {
        if (text.find("-----") != std::string::npos) {
            throw std::invalid_argument("not a PEM " + label + " block");
        }
        return fromBase64(text);
    }
    const auto to = text.find(end, from);
    if (to == std::string::npos) {
        throw std::invalid_argument("a PEM block without its end line");
    }
    return fromBase64(text.substr(from + begin.size(), to - from - begin.size()));
}

// Certificate ::= SEQUENCE { tbsCertificate SEQUENCE { [0] version OPTIONAL, serial,
// signature, issuer, validity, subject, subjectPublicKeyInfo, ... }, ... }
Certificate parseCertificate(const std::wstring& id, const std::string& pem) {
    const auto der = pemBody(pem, "CERTIFICATE");
    const auto certificate = readElement(der, 0, der.size());
    const auto tbs = readElement(der, certificate.contents, certificate.end);
    if (certificate.tag != 0x30 || certificate.end != der.size() || tbs.tag != 0x30) {
        throw std::invalid_argument("not a DER certificate");
    }
    std::vector<Element> parts;
    for (std::size_t at = tbs.contents; at < tbs.end && parts.size() < 7;) {
        parts.push_back(readElement(der, at, tbs.end));
        at = parts.back().end;
    }
    const std::size_t first = !parts.empty() && parts[0].tag == 0xA0 ? 1 : 0; // version
    if (parts.size() < first + 6) {
        throw std::invalid_argument("not a DER certificate");
    }
    const auto& issuer = parts[first + 2];
    const auto& subject = parts[first + 4];
    const auto& key = parts[first + 5];
    if (issuer.tag != 0x30 || subject.tag != 0x30 || key.tag != 0x30) {
        throw std::invalid_argument("not a DER certificate");
    }
    Certificate result;
    result.id = id;
    result.issuer = bytesOf(der, issuer);
    result.subject = bytesOf(der, subject);
    result.publicKey = bytesOf(der, key);
    const std::string body = toBase64(der);
    std::string text = "-----BEGIN CERTIFICATE-----\n";
    for (std::size_t i = 0; i < body.size(); i += 64) {
        text += body.substr(i, 64) + "\n";
    }
    text += "-----END CERTIFICATE-----\n";
    result.pem = fromUtf8(text);
    return result;
}

std::vector<Certificate> readCertificateStore(const std::filesystem::path& folder) {
    const auto isPem = [](const std::filesystem::directory_entry& entry) {
        return entry.is_regular_file() && entry.path().extension() == ".pem";
    };
    const std::filesystem::directory_iterator none;
    if (std::none_of(std::filesystem::directory_iterator(folder), none, isPem)) {
        for (const auto& bundled : bundledCertificates()) {
            // A store that cannot be written is read as it is: without them.
            static_cast<void>(writeWhole(folder / (std::string(bundled.id) + ".pem"),
                                         std::string(bundled.pem) + "\n"));
        }
    }
    std::vector<Certificate> store;
    for (const auto& entry : std::filesystem::directory_iterator(folder)) {
        if (!isPem(entry)) {
            continue;
        }
        try {
            store.push_back(
                parseCertificate(wideFromPath(entry.path().stem()), readFile(entry.path())));
        } catch (const std::invalid_argument&) { // NOLINT(bugprone-empty-catch)
            // not a certificate: never handed out as one
        }
    }
    std::sort(store.begin(), store.end(), [](const auto& a, const auto& b) { return a.id < b.id; });
    return store;
}

std::vector<std::wstring> certificateChain(const std::vector<Certificate>& store,
                                           const std::wstring& id) {
    std::vector<std::wstring> chain;
    auto current =
        std::find_if(store.begin(), store.end(), [&](const auto& c) { return c.id == id; });
    // The length bound ends a loop of certificates that name each other as issuers.
    while (current != store.end() && chain.size() < store.size()) {
        chain.push_back(current->pem);
        if (current->issuer == current->subject) {
            break;
        }
        const auto& issuer = current->issuer;
        current = std::find_if(store.begin(), store.end(),
                               [&](const auto& c) { return c.subject == issuer; });
    }
    return chain;
}

} // namespace Varno::Kel_cpp::Reference
