// The engine's certificate store: X.509 certificates as PEM files in the data root's
// "certificates" folder, one per file, the file name (without ".pem") being the
// certificate's id. An empty store is filled with the bundled test certificates.
//
// Reading certificates needs only DER (a tag-length-value format), not cryptography:
// the store finds a certificate by its public key and builds a chain by issuer and
// subject names. It checks no signature and issues no certificate, which would need a
// cryptographic library.
#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <vector>

namespace Varno::Kel_cpp::Reference {

struct BundledCertificate {
    const char* id;
    const char* pem;
};
const std::vector<BundledCertificate>& bundledCertificates();

struct Certificate {
    std::wstring id;
    std::wstring pem;               // normalised: Base64 in lines of 64, "\n" line ends
    std::vector<uint8_t> issuer;    // the DER of the issuer's Name
    std::vector<uint8_t> subject;   // the DER of the subject's Name
    std::vector<uint8_t> publicKey; // the DER of the SubjectPublicKeyInfo
};

// Reads one PEM certificate; throws std::invalid_argument when the text is not one.
Certificate parseCertificate(const std::wstring& id, const std::string& pem);

// The DER bytes inside a PEM block of the given label ("PUBLIC KEY"), or of plain
// Base64 text; throws std::invalid_argument when there are none.
std::vector<uint8_t> pemBody(const std::string& text, const std::string& label);

// Every certificate of the store in `folder`, by id; fills an empty folder with the
// bundled ones first. Files that do not hold a certificate are left out.
std::vector<Certificate> readCertificateStore(const std::filesystem::path& folder);

// The certificate with `id`, then its issuer, and so on up to a self-signed one or one
// whose issuer is not in the store. Empty when no certificate has the id.
std::vector<std::wstring> certificateChain(const std::vector<Certificate>& store,
                                           const std::wstring& id);

} // namespace Varno::Kel_cpp::Reference
