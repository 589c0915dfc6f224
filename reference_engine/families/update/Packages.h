// Update packages as files: the manifest that describes one, the broker folder that
// offers them, and the engine's store under the data root that keeps what was
// downloaded and installed (README.md, "Vehicle update"). Nothing here takes an engine
// lock; the family serialises the store's changes.
#pragma once

#include "families/files/Sandbox.h"

#include <Kel_cpp/Records.h>
#include <Kel_cpp/TarnApiException.h>

#include <nlohmann/json.hpp>

#include <cstdint>
#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace Varno::Kel_cpp::Reference {

enum class PackageKind : uint32_t { Ecu = 1, Engine = 2 };

// The largest payload a package may have: it is held whole while it is flashed.
inline constexpr uint64_t maxPayloadSize = 64ULL * 1024 * 1024;

// The simulated engine's own version (getVersion, getCurrentVersions).
inline constexpr const wchar_t* engineVersion = L"0.1.0";

// Component names that no package may take: the simulated engine cannot replace its own
// program or the vehicle description it runs.
inline constexpr const wchar_t* engineComponent = L"kel_cpp";
inline constexpr const wchar_t* vehicleComponent = L"vehicle";

struct Package {
    std::wstring name;
    std::wstring version;
    std::wstring description;
    PackageKind kind = PackageKind::Ecu;
    std::vector<std::wstring> targets;
    uint64_t size = 0;
    uint32_t crc = 0;
    std::wstring payload;         // the payload's file name beside the manifest
    std::filesystem::path folder; // real path of the package's folder
    std::wstring location;        // engine path of that folder
    bool downloaded = false;      // in the store rather than on the broker
    bool installed = false;       // in the store and installed

    // "<name>-<version>", the folder a downloaded package gets in the store.
    std::wstring storeName() const { return name + L"-" + version; }
    bool isFor(const std::wstring& target) const;
    std::shared_ptr<UpdatePackageInfo> info() const;
};

// Numeric-aware: runs of digits compare as numbers ("5432" < "5440", "1.10" > "1.9"),
// everything else character by character. Negative, 0 or positive.
int compareVersions(const std::wstring& a, const std::wstring& b);

// The manifest of the package in `folder` (real path), checked; throws BadManifest with
// the reason. `location` is the folder's engine path.
Package readManifest(const std::filesystem::path& folder, const std::wstring& location);

// The payload has its manifest's size and CRC-32; else throws PackageCorrupt.
void verifyPayload(const Package& package);
std::vector<uint8_t> readPayload(const Package& package);

// "crc32:" and the eight hex digits of the file's CRC-32; `size` gets its bytes.
std::wstring fileChecksum(const std::filesystem::path& file, uint64_t& size);

// Package folders of a "packages" directory, in name order. A folder whose manifest
// cannot be used, or that leads outside `within` (a link), goes to `skipped` with its
// error instead.
using Skipped = std::function<void(const std::wstring& folder, const TarnApiException& why)>;
std::vector<Package> listPackages(const Sandbox& box, const Resolved& packages,
                                  const std::filesystem::path& within, const Skipped& skipped);

// The broker: a folder in the sandbox, given as a file: URL.
struct Broker {
    Resolved folder; // an existing directory

    // The engine path of a file: URL ("file:exchange/b", "file:///exchange/b"); an empty
    // URL is the default broker. Throws BrokerUrlRefused, BrokerSchemeNotSimulated or,
    // through the sandbox, its refusals.
    static std::wstring enginePath(const std::wstring& url);
    // The broker folder at `enginePath`, made when missing.
    static Broker open(const Sandbox& box, const std::wstring& enginePath);

    std::vector<Package> packages(const Sandbox& box, const Skipped& skipped) const;
    // `relative` ("reports/2026") below the broker, plain names only, made when missing.
    Resolved directory(const Sandbox& box, const std::wstring& relative) const;
};

// The engine's own store: "updates" under the data root, out of every public
// directory's reach (FilesState::updateStore).
//   packages/<name>-<version>/  manifest.json and payload of each downloaded package
//   tmp/                        downloads in progress; a failed one stays until cleaned
//   components/<component>/     the payload of each installed engine component
//   installed.json              installed components and packages
//   last-update.json            the outcome of the last update
class UpdateStore {
public:
    explicit UpdateStore(Resolved root) : root_(std::move(root)) {}

    std::vector<Package> packages(const Sandbox& box, const Skipped& skipped) const;
    // Copies a broker package in through tmp/, verifying size and CRC-32; a copy that
    // fails its check stays in tmp/ and PackageCorrupt is thrown. Returns the stored one.
    Package download(const Package& offered) const;
    // Installs a verified engine component (kind 2).
    void installComponent(const Package& package) const;
    // Marks a stored package installed (a vehicle update flashed it).
    void markInstalled(const Package& package) const;
    void clearPackages() const;
    void cleanTmp() const;
    // Entries left in tmp/.
    std::size_t tmpEntries() const;

    struct Component {
        std::wstring name;
        std::wstring version;
        std::wstring package;
    };
    std::vector<Component> components() const;

    void recordOutcome(const std::wstring& operation, bool succeeded) const;
    // The last update's outcome, if any update ran on this data root.
    std::optional<bool> lastOutcome() const;

private:
    nlohmann::json readInstalled() const;
    void writeInstalled(const nlohmann::json& installed) const;
    std::filesystem::path path(const char* name) const { return root_.real / name; }

    Resolved root_;
};

} // namespace Varno::Kel_cpp::Reference
