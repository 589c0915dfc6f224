// The test certificates the engine's certificate store starts with: a root CA, an
// intermediate CA it signed and a server certificate (127.0.0.1) the intermediate
// signed, all on P-256. Only the certificates are kept: their private keys were thrown
// away when they were made.
#include "Certificates.h"

namespace Varno::Kel_cpp::Reference {

const std::vector<BundledCertificate>& bundledCertificates() {
    static const std::vector<BundledCertificate> certificates{
        {"kel-sim-root", R"(-----BEGIN CERTIFICATE-----
MIIBlTCCATugAwIBAgIUcJNXe8i2lAsSbiDY3xXGFNHIFE8wCgYIKoZIzj0EAwIw
HzEdMBsGA1UEAwwUa2VsX3NpbSB0ZXN0IHJvb3QgQ0EwIBcNMjYxMTIyMDc0NjI5
WhgPMjEyNjEwMjkwNzQ2MjlaMB8xHTAbBgNVBAMMFGtlbF9zaW0gdGVzdCByb290
IENBMFkwEwYHKoZIzj0CAQYIKoZIzj0DAQcDQgAEsjSXP+ITf14ejj400h+Y5ltw
drjAxSlw7Me+J2I26OXfoCT6gV7evGptovrDC2tqN/+ItO41siFjPlswTKmSNaNT
MFEwHQYDVR0OBBYEFGfOMYKiTi/ppmPnt59IAo1FlRxkMB8GA1UdIwQYMBaAFGfO
MYKiTi/ppmPnt59IAo1FlRxkMA8GA1UdEwEB/wQFMAMBAf8wCgYIKoZIzj0EAwID
SAAwRQIgSo66/EmwB9CASXMFfyPkgkom/v9lk3RXtUmJyANEpDICIQDgJFH5nN+u
SY8CsPHspPTK25A2UseFknOfbO1A9QRxhA==
-----END CERTIFICATE-----)"},
        {"kel-sim-intermediate", R"(-----BEGIN CERTIFICATE-----
MIIBnDCCAUOgAwIBAgIUVok5Cczx+RwT7PILHDfKantf4UswCgYIKoZIzj0EAwIw
HzEdMBsGA1UEAwwUa2VsX3NpbSB0ZXN0IHJvb3QgQ0EwIBcNMjYxMTIyMDc0NjI5
WhgPMjEyNjEwMjkwNzQ2MjlaMCcxJTAjBgNVBAMMHGtlbF9zaW0gdGVzdCBpbnRl
cm1lZGlhdGUgQ0EwWTATBgcqhkjOPQIBBggqhkjOPQMBBwNCAATLlvvmyiHNLTaX
edUtcpak24GJoNtHIpReN8PNw23kPMvdG+RZPJHvCAL5tsW2qUgR52TKFcsCa9P8
yUbnyGyPo1MwUTAPBgNVHRMBAf8EBTADAQH/MB0GA1UdDgQWBBSzjh65mWHQ761X
6R5akq/mUOCfSjAfBgNVHSMEGDAWgBRnzjGCok4v6aZj57efSAKNRZUcZDAKBggq
hkjOPQQDAgNHADBEAiBzS3QU6TmOwtl6EpvtPGrpKcGoRo0LVzZWGhc26yGjoQIg
aHNV8GidQnm7ODy9rqeHYZ8gxuCrhvVynBzZE7hmjz4=
-----END CERTIFICATE-----)"},
        {"kel-sim-server", R"(-----BEGIN CERTIFICATE-----
MIIBpjCCAU2gAwIBAgIUKoOfxM7abv02+4W7wP29wGjssfwwCgYIKoZIzj0EAwIw
JzElMCMGA1UEAwwca2VsX3NpbSB0ZXN0IGludGVybWVkaWF0ZSBDQTAgFw0yNjEx
MjIwNzQ2MjlaGA8yMTI2MTAyOTA3NDYyOVowHjEcMBoGA1UEAwwTa2VsX3NpbSB0
ZXN0IHNlcnZlcjBZMBMGByqGSM49AgEGCCqGSM49AwEHA0IABAB4rGU0i82WlYeE
gjm47+297z/J6SX+t0+Yj/WBpRQ4LYXUtXHd0ki7DxeeowKGxv6qmPxqzAwQKDNd
QoYs0M+jXjBcMAkGA1UdEwQCMAAwDwYDVR0RBAgwBocEfwAAATAdBgNVHQ4EFgQU
kzACtwHKWRLmBQ+6zPDFyglxUyowHwYDVR0jBBgwFoAUs44euZlh0O+tV+keWpKv
5lDgn0owCgYIKoZIzj0EAwIDRwAwRAIgVhl7jDS4HNi5Uev9GeZ1/a1Jev1zJA3S
aRS0kGpXKRYCIBk3UtCN4BcJQhLC4Vokx2gZRtY9njB+URVy3Hsn4mXr
-----END CERTIFICATE-----)"},
    };
    return certificates;
}

} // namespace Varno::Kel_cpp::Reference
