// What the stream benchmarks encode: small records with strings, as a result stream
// of many per-item errors looks.
#pragma once

#include <OTXStream.h>
#include <cstddef>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace kel_bench {

inline std::shared_ptr<Varno::Kel_cpp::KelError> sampleRecord(int i) {
    auto error = std::make_shared<Varno::Kel_cpp::KelError>();
    error->code = i;
    error->message = L"ECU did not answer";
    error->details = L"target ECM_" + std::to_wstring(i % 100);
    error->subCode = 7;
    return error;
}

// Records enough for about `bytes` bytes of stream.
inline std::vector<std::shared_ptr<Varno::Kel_cpp::KelError>> recordsFor(std::size_t bytes) {
    kel::OTXStream probe(true, false, true);
    probe.write(sampleRecord(0));
    const std::size_t each = probe.position;
    std::vector<std::shared_ptr<Varno::Kel_cpp::KelError>> records;
    for (std::size_t i = 0; i * each < bytes; ++i) {
        records.push_back(sampleRecord(static_cast<int>(i)));
    }
    return records;
}

// Writes the records one by one into a fresh stream; returns the bytes written.
inline std::size_t encode(const std::vector<std::shared_ptr<Varno::Kel_cpp::KelError>>& records) {
    kel::OTXStream out(true, false, true);
    for (const auto& record : records) {
        out.write(record);
    }
    return out.position;
}

// The texts of the string benchmarks: a short name with two umlauts (34 characters), and
// 1 Mi characters of ASCII and of text that mixes ASCII with two-, three- and four-byte
// characters.
inline const std::vector<std::pair<const char*, std::wstring>>& sampleTexts() {
    static const std::vector<std::pair<const char*, std::wstring>> texts = [] {
        std::wstring mixed;
        while (mixed.size() < (1U << 20)) {
            mixed += L"Grüße aus Köln – \U0001F697 ";
        }
        return std::vector<std::pair<const char*, std::wstring>>{
            {"short_string", L"Motorsteuergerät ECM 0x7E0 Zündung"},
            {"long_ascii", std::wstring(1U << 20, L'x')},
            {"long_non_ascii", mixed}};
    }();
    return texts;
}

} // namespace kel_bench
