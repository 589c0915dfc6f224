#include "Packages.h"

#include "Checksums.h"
#include "Describe.h"
#include "ErrorCodes.h"
#include "families/files/FileWork.h"

#include <Kel_cpp/TarnApiException.h>

#include <algorithm>
#include <atomic>
#include <chrono>
#include <cstdio>
#include <cwctype>
#include <fstream>
#include <system_error>
#include <utility>

namespace Varno::Kel_cpp::Reference {
namespace fs = std::filesystem;
using json = nlohmann::json;
namespace {

constexpr uint64_t maxManifestSize = 64 * 1024;
constexpr std::size_t chunk = 64 * 1024;

[[noreturn]] void badManifest(const std::wstring& why) {
    throw TarnApiException(BadManifest, L"The package's manifest cannot be used", why);
}

[[noreturn]] void storeUnusable(const fs::path& file, const std::wstring& why) {
    throw TarnApiException(UpdateStoreUnusable, L"The update store cannot be used",
                           wideFromPath(file.filename()) + L": " + why);
}

bool present(const fs::path& path) {
    std::error_code e;
    return fs::exists(fs::symlink_status(path, e));
}

std::vector<uint8_t> readSmallFile(const fs::path& file, uint64_t most) {
    std::error_code e;
    const auto size = fs::file_size(file, e);
    if (e || size > most) {
        throw TarnApiException(FileIoFailed, L"The file cannot be read",
                               wideFromPath(file.filename()) +
                                   (e ? L": " + fromUtf8(e.message()) : L": too large"));
    }
    return readRange(file, 0, static_cast<uint32_t>(size), true);
}

void writeJson(const fs::path& file, const json& value) {
    const auto text = value.dump(2) + "\n";
    writeData(file, std::vector<uint8_t>(text.begin(), text.end()), ReplaceFile);
}

void makeDirectories(const fs::path& path) {
    std::error_code e;
    fs::create_directories(path, e);
    if (!fs::is_directory(path, e)) {
        throw TarnApiException(FileIoFailed, L"The directory cannot be made",
                               wideFromPath(path.filename()));
    }
}

void removeAll(const fs::path& path) {
    std::error_code e;
    fs::remove_all(path, e);
    if (e) {
        throw TarnApiException(FileIoFailed, L"The update store cannot be cleaned",
                               wideFromPath(path.filename()) + L": " + fromUtf8(e.message()));
    }
}

std::string text(const json& j, const char* key, bool required) {
    const auto found = j.find(key);
    if (found == j.end()) {
        if (required) {
            badManifest(L"it has no \"" + fromUtf8(key) + L"\"");
        }
        return {};
    }
    if (!found->is_string()) {
        badManifest(L"\"" + fromUtf8(key) + L"\" is not a text");
    }
    return found->get<std::string>();
}

// A name that becomes a file or folder name: one plain name, as the sandbox takes it.
std::wstring plainName(const json& j, const char* key) {
    auto value = fromUtf8(text(j, key, true));
    try {
        checkName(value);
    } catch (const TarnApiException& e) {
        badManifest(L"\"" + fromUtf8(key) + L"\" is not a plain name: " + e.message);
    }
    return value;
}

struct InstalledPackage {
    std::wstring name;
    std::wstring version;
};

// The "packages" of installed.json: {"name", "version"} objects. A store written before
// names were kept apart lists "<name>-<version>" texts, which cannot be split where a name
// holds a dash; such an entry is read from the manifest of its folder in `packages`, and is
// left out when that folder cannot be listed (then it marks nothing either).
std::vector<InstalledPackage> installedPackages(const json& installed, const fs::path& packages) {
    std::vector<InstalledPackage> out;
    const auto list = installed.find("packages");
    if (list == installed.end() || !list->is_array()) {
        return out;
    }
    for (const auto& entry : *list) {
        if (entry.is_object() && entry.contains("name") && entry["name"].is_string() &&
            entry.contains("version") && entry["version"].is_string()) {
            out.push_back({fromUtf8(entry["name"].get<std::string>()),
                           fromUtf8(entry["version"].get<std::string>())});
        } else if (entry.is_string()) {
            try {
                const auto folder = fromUtf8(entry.get<std::string>());
                checkName(folder);
                const auto p = readManifest(packages / pathFromWide(folder), folder);
                out.push_back({p.name, p.version});
            } catch (const TarnApiException&) { // not a folder, or none that can be listed
            }
        } else {
            storeUnusable(L"installed.json", L"a package entry is not {\"name\", \"version\"}");
        }
    }
    return out;
}

std::wstring crcText(uint32_t crc) {
    wchar_t buffer[16];
    std::swprintf(buffer, 16, L"crc32:%08X", crc);
    return buffer;
}

uint32_t fileCrc(const fs::path& file, uint64_t& size) {
    std::ifstream in(file, std::ios::binary);
    if (!in) {
        throw TarnApiException(PackageCorrupt, L"The package's payload is missing",
                               wideFromPath(file.filename()));
    }
    Crc32 crc;
    std::vector<char> buffer(chunk);
    size = 0;
    while (in) {
        in.read(buffer.data(), static_cast<std::streamsize>(buffer.size()));
        const auto n = static_cast<std::size_t>(in.gcount());
        crc.update(std::span<const uint8_t>(reinterpret_cast<const uint8_t*>(buffer.data()), n));
        size += n;
    }
    return crc.value();
}

std::wstring uniqueSuffix() {
    static std::atomic<uint64_t> next{1};
    const auto now = std::chrono::steady_clock::now().time_since_epoch().count();
    return std::to_wstring(static_cast<uint64_t>(now) % 1000000007ULL) + L"-" +
           std::to_wstring(next++);
}

} // namespace

// ---- packages ------------------------------------------------------------------------------

bool Package::isFor(const std::wstring& target) const {
    return std::find(targets.begin(), targets.end(), target) != targets.end();
}

std::shared_ptr<UpdatePackageInfo> Package::info() const {
    auto i = std::make_shared<UpdatePackageInfo>();
    i->name = name;
    i->version = version;
    i->description = description;
    i->kind = static_cast<uint32_t>(kind);
    i->targets = targets;
    i->size = size;
    i->checksum = crcText(crc);
    i->location = location;
    i->state = installed ? 2 : downloaded ? 1 : 0;
    return i;
}

int compareVersions(const std::wstring& a, const std::wstring& b) {
    std::size_t i = 0;
    std::size_t j = 0;
    while (i < a.size() && j < b.size()) {
        if (std::iswdigit(a[i]) != 0 && std::iswdigit(b[j]) != 0) {
            const auto runEnd = [](const std::wstring& s, std::size_t k) {
                while (k < s.size() && std::iswdigit(s[k]) != 0) {
                    ++k;
                }
                return k;
            };
            // Leading zeros do not count; then the longer run is the larger number.
            while (i < a.size() && a[i] == L'0' && i + 1 < a.size() && std::iswdigit(a[i + 1])) {
                ++i;
            }
            while (j < b.size() && b[j] == L'0' && j + 1 < b.size() && std::iswdigit(b[j + 1])) {
                ++j;
            }
            const std::size_t ai = runEnd(a, i);
            const std::size_t bj = runEnd(b, j);
            if (ai - i != bj - j) {
                return ai - i < bj - j ? -1 : 1;
            }
            const int c = a.compare(i, ai - i, b, j, bj - j);
            if (c != 0) {
                return c < 0 ? -1 : 1;
            }
            i = ai;
            j = bj;
            continue;
        }
        if (a[i] != b[j]) {
            return a[i] < b[j] ? -1 : 1;
        }
        ++i;
        ++j;
    }
    if (i == a.size() && j == b.size()) {
        return 0;
    }
    return i == a.size() ? -1 : 1;
}

// {"format": "kel-package", "version": 1, "name": "ECM_SW", "packageVersion": "5432",
//  "kind": "ecu" | "engine", "targets": ["ECM"], "description": "...",
//  "payload": "ECM_SW_5432.bin", "size": 65536, "checksum": "crc32:1A2B3C4D"}
Package readManifest(const fs::path& folder, const std::wstring& location) {
    const fs::path file = folder / "manifest.json";
    if (!present(file)) {
        badManifest(L"the folder has no manifest.json");
    }
    json j;
    try {
        const auto bytes = readSmallFile(file, maxManifestSize);
        j = json::parse(bytes.begin(), bytes.end());
    } catch (const TarnApiException& e) {
        badManifest(e.message + L": " + e.details);
    } catch (const std::exception& e) {
        badManifest(L"not JSON: " + fromUtf8(e.what()));
    }
    if (!j.is_object() || j.value("format", json()) != "kel-package") {
        badManifest(L"\"format\" is not \"kel-package\"");
    }
    if (j.value("version", json()) != 1) {
        badManifest(L"\"version\" is not 1, the one manifest version this engine reads");
    }
    Package p;
    p.folder = folder;
    p.location = location;
    p.name = plainName(j, "name");
    p.version = plainName(j, "packageVersion");
    p.description = fromUtf8(text(j, "description", false));
    const auto kind = text(j, "kind", true);
    if (kind != "ecu" && kind != "engine") {
        badManifest(L"\"kind\" is neither \"ecu\" nor \"engine\"");
    }
    p.kind = kind == "ecu" ? PackageKind::Ecu : PackageKind::Engine;
    const auto targets = j.find("targets");
    if (targets == j.end() || !targets->is_array() || targets->empty()) {
        badManifest(L"\"targets\" is not a list of names");
    }
    for (const auto& t : *targets) {
        if (!t.is_string() || t.get<std::string>().empty()) {
            badManifest(L"\"targets\" is not a list of names");
        }
        p.targets.push_back(fromUtf8(t.get<std::string>()));
    }
    if (p.kind == PackageKind::Engine) {
        if (p.targets.size() != 1) {
            badManifest(L"an engine package replaces exactly one component");
        }
        if (p.targets[0] == engineComponent || p.targets[0] == vehicleComponent) {
            badManifest(L"the simulated engine cannot replace " + p.targets[0]);
        }
        try {
            checkName(p.targets[0]);
        } catch (const TarnApiException& e) {
            badManifest(L"the component's name is not a plain name: " + e.message);
        }
    }
    p.payload = plainName(j, "payload");
    if (p.payload == L"manifest.json") {
        badManifest(L"the payload cannot be the manifest");
    }
    const auto size = j.find("size");
    if (size == j.end() || !size->is_number_unsigned() || size->get<uint64_t>() == 0 ||
        size->get<uint64_t>() > maxPayloadSize) {
        badManifest(L"\"size\" is not a number of bytes from 1 to 64 MiB");
    }
    p.size = size->get<uint64_t>();
    const auto checksum = text(j, "checksum", true);
    std::size_t used = 0;
    unsigned long crc = 0;
    try {
        if (checksum.size() == 14 && checksum.rfind("crc32:", 0) == 0 &&
            checksum.find_first_not_of("0123456789abcdefABCDEF", 6) == std::string::npos) {
            crc = std::stoul(checksum.substr(6), &used, 16);
        }
    } catch (const std::exception&) {
        used = 0;
    }
    if (used != 8) {
        badManifest(L"\"checksum\" is not \"crc32:\" and eight hex digits");
    }
    p.crc = static_cast<uint32_t>(crc);
    return p;
}

void verifyPayload(const Package& p) {
    const fs::path file = p.folder / pathFromWide(p.payload);
    std::error_code e;
    if (!fs::is_regular_file(file, e)) {
        throw TarnApiException(PackageCorrupt, L"The package's payload is missing",
                               p.location + L"/" + p.payload);
    }
    uint64_t size = 0;
    const uint32_t crc = fileCrc(file, size);
    if (size != p.size) {
        throw TarnApiException(PackageCorrupt,
                               L"The package is corrupt: its payload has another size",
                               p.location + L"/" + p.payload + L": " + std::to_wstring(size) +
                                   L" bytes, the manifest says " + std::to_wstring(p.size));
    }
    if (crc != p.crc) {
        throw TarnApiException(PackageCorrupt,
                               L"The package is corrupt: its payload's checksum differs",
                               p.location + L"/" + p.payload + L": " + crcText(crc) +
                                   L", the manifest says " + crcText(p.crc));
    }
}

// Checked on the bytes read, so what is handed on is what was verified.
std::vector<uint8_t> readPayload(const Package& p) {
    const fs::path file = p.folder / pathFromWide(p.payload);
    std::error_code e;
    const auto size = fs::file_size(file, e);
    if (e || size != p.size) {
        verifyPayload(p); // says what is wrong
    }
    auto bytes = readSmallFile(file, maxPayloadSize);
    Crc32 crc;
    crc.update(bytes);
    if (bytes.size() != p.size || crc.value() != p.crc) {
        throw TarnApiException(PackageCorrupt, L"The package is corrupt: its payload changed",
                               p.location + L"/" + p.payload);
    }
    return bytes;
}

std::wstring fileChecksum(const fs::path& file, uint64_t& size) {
    return crcText(fileCrc(file, size));
}

std::vector<Package> listPackages(const Sandbox& box, const Resolved& packages,
                                  const fs::path& inside, const Skipped& skipped) {
    std::vector<Package> out;
    if (!present(packages.real)) {
        return out;
    }
    const auto entries = list(box, packages);
    for (const auto& refused : entries.refused) {
        if (refused->error) {
            skipped(refused->name, TarnApiException(refused->error->code, refused->error->message,
                                                    refused->error->details));
        }
    }
    for (const auto& d : entries.directories) {
        const auto name = d.enginePath.substr(d.enginePath.rfind(L'/') + 1);
        try {
            if (!within(d.real, inside)) {
                throw TarnApiException(OutsideSandbox, L"The package folder leads outside",
                                       d.enginePath);
            }
            // The manifest's and the payload's real places, links followed, stay in the
            // folder too.
            const Resolved manifest = box.child(d, L"manifest.json");
            if (present(manifest.real) && !within(manifest.real, d.real)) {
                throw TarnApiException(OutsideSandbox, L"The manifest leads outside its folder",
                                       manifest.enginePath);
            }
            auto p = readManifest(d.real, d.enginePath);
            const Resolved payload = box.child(d, p.payload);
            if (present(payload.real) && !within(payload.real, d.real)) {
                throw TarnApiException(OutsideSandbox, L"The payload leads outside its folder",
                                       payload.enginePath);
            }
            out.push_back(std::move(p));
        } catch (const TarnApiException& e) {
            skipped(name, e);
        }
    }
    return out;
}

// ---- the broker ------------------------------------------------------------------------------

std::wstring Broker::enginePath(const std::wstring& url) {
    if (url.empty()) {
        return L"broker";
    }
    const auto colon = url.find(L':');
    std::wstring scheme = colon == std::wstring::npos ? L"" : url.substr(0, colon);
    std::transform(scheme.begin(), scheme.end(), scheme.begin(),
                   [](wchar_t c) { return static_cast<wchar_t>(std::towlower(c)); });
    if (scheme != L"file") {
        if (colon != std::wstring::npos && colon > 1) {
            throw TarnApiException(BrokerSchemeNotSimulated,
                                   L"Only file: brokers are simulated: the broker is a folder",
                                   url);
        }
        throw TarnApiException(BrokerUrlRefused, L"The broker is given as a file: URL",
                               L"file:exchange/broker or file:///exchange/broker, not " + url);
    }
    std::wstring rest = url.substr(colon + 1);
    if (rest.find_first_of(L"?#") != std::wstring::npos) {
        throw TarnApiException(BrokerUrlRefused, L"A broker URL has no query or fragment", url);
    }
    if (rest.rfind(L"//", 0) == 0) {
        // file://host/path: only the local host, written as nothing or "localhost".
        const auto slash = rest.find(L'/', 2);
        const auto host =
            rest.substr(2, slash == std::wstring::npos ? std::wstring::npos : slash - 2);
        if (!host.empty() && host != L"localhost") {
            throw TarnApiException(BrokerUrlRefused, L"The broker must be a folder of this engine",
                                   L"host " + host + L" in " + url);
        }
        rest = slash == std::wstring::npos ? L"" : rest.substr(slash + 1);
    } else if (rest.rfind(L"/", 0) == 0 && rest.rfind(L"//", 0) != 0) {
        rest = rest.substr(1); // file:/exchange/broker
    }
    // Percent escapes are undone before the sandbox sees the path, so "%2e%2e" is "..".
    std::string bytes;
    for (std::size_t i = 0; i < rest.size();) {
        if (rest[i] != L'%') {
            // A whole run at once, so that a surrogate pair stays one character.
            const auto next = std::min(rest.find(L'%', i), rest.size());
            bytes += toUtf8(rest.substr(i, next - i));
            i = next;
            continue;
        }
        const auto hex = i + 2 < rest.size() ? rest.substr(i + 1, 2) : std::wstring();
        if (hex.size() != 2 || std::iswxdigit(hex[0]) == 0 || std::iswxdigit(hex[1]) == 0) {
            throw TarnApiException(BrokerUrlRefused, L"A broken percent escape", url);
        }
        bytes.push_back(static_cast<char>(std::stoi(hex, nullptr, 16)));
        i += 3;
    }
    auto path = fromUtf8(bytes);
    if (path.empty()) {
        throw TarnApiException(BrokerUrlRefused, L"The broker URL names no folder", url);
    }
    splitEnginePath(path); // the checks that need no file system, before anything is made
    return path;
}

Broker Broker::open(const Sandbox& box, const std::wstring& enginePath) {
    Resolved folder = box.resolve(enginePath);
    if (!present(folder.real)) {
        makeDirectories(folder.real);
        folder = box.resolve(enginePath);
    }
    requireDirectory(folder);
    return Broker{std::move(folder)};
}

std::vector<Package> Broker::packages(const Sandbox& box, const Skipped& skipped) const {
    return listPackages(box, box.child(folder, L"packages"), folder.real, skipped);
}

Resolved Broker::directory(const Sandbox& box, const std::wstring& relative) const {
    const auto itself = [&] {
        throw TarnApiException(BadUpdateArgument,
                               L"The broker's own folder is not a report folder (its upload log "
                               L"is there)",
                               relative);
    };
    // "." (or "./") names the broker itself; anything else is split as given, so that a
    // refusal shows the folder the caller wrote.
    if (!relative.empty() && relative.find(L"..") == std::wstring::npos &&
        std::all_of(relative.begin(), relative.end(),
                    [](wchar_t c) { return c == L'.' || c == L'/' || c == L'\\'; })) {
        itself();
    }
    const auto names = splitEnginePath(relative);
    Resolved at = folder;
    for (const auto& name : names) {
        const Resolved parent = at;
        at = box.child(parent, name);
        if (!present(at.real)) {
            makeDirectories(at.real);
            at = box.child(parent, name);
        }
        requireDirectory(at);
        if (!within(at.real, folder.real)) {
            throw TarnApiException(OutsideSandbox, L"The folder leads outside the broker",
                                   at.enginePath);
        }
    }
    std::error_code e;
    if (std::filesystem::equivalent(at.real, folder.real, e)) {
        itself(); // through a link
    }
    return at;
}

// ---- the store -------------------------------------------------------------------------------

std::vector<Package> UpdateStore::packages(const Sandbox& box, const Skipped& skipped) const {
    const json installed = readInstalled();
    auto out = listPackages(box, box.child(root_, L"packages"), root_.real, skipped);
    const auto installedOnes = installedPackages(installed, path("packages"));
    for (auto& p : out) {
        p.downloaded = true;
        for (const auto& entry : installedOnes) {
            p.installed = p.installed || (entry.name == p.name && entry.version == p.version);
        }
    }
    return out;
}

Package UpdateStore::download(const Package& offered) const {
    const fs::path tmp = path("tmp");
    makeDirectories(tmp);
    const fs::path staging = tmp / pathFromWide(offered.storeName() + L"-" + uniqueSuffix());
    makeDirectories(staging);
    // Copied, not moved: the broker keeps its package. A copy that fails its check stays
    // in tmp/ for a look, until cleanUpdateTmp.
    std::error_code e;
    fs::copy_file(offered.folder / "manifest.json", staging / "manifest.json", e);
    if (!e) {
        fs::copy_file(offered.folder / pathFromWide(offered.payload),
                      staging / pathFromWide(offered.payload), e);
    }
    if (e) {
        throw TarnApiException(PackageCorrupt, L"The package cannot be downloaded",
                               offered.location + L": " + fromUtf8(e.message()));
    }
    Package staged = readManifest(staging, offered.location);
    verifyPayload(staged);
    const fs::path packages = path("packages");
    makeDirectories(packages);
    const fs::path place = packages / pathFromWide(offered.storeName());
    removeAll(place);
    fs::rename(staging, place, e);
    if (e) {
        throw TarnApiException(FileIoFailed, L"The package cannot be put in place",
                               offered.storeName() + L": " + fromUtf8(e.message()));
    }
    Package stored = readManifest(place, root_.enginePath + L"/packages/" + offered.storeName());
    stored.downloaded = true;
    return stored;
}

void UpdateStore::installComponent(const Package& p) const {
    const std::wstring& component = p.targets.front();
    const std::vector<uint8_t> payload = readPayload(p);
    const fs::path components = path("components");
    makeDirectories(components);
    const fs::path staging = path("tmp") / pathFromWide(component + L"-" + uniqueSuffix());
    makeDirectories(staging);
    writeData(staging / pathFromWide(p.payload), payload, ReplaceFile);
    const fs::path place = components / pathFromWide(component);
    removeAll(place);
    std::error_code e;
    fs::rename(staging, place, e);
    if (e) {
        throw TarnApiException(FileIoFailed, L"The component cannot be put in place",
                               component + L": " + fromUtf8(e.message()));
    }
    json installed = readInstalled();
    json& list = installed["components"];
    if (!list.is_object()) {
        list = json::object();
    }
    list[toUtf8(component)] = {{"version", toUtf8(p.version)}, {"package", toUtf8(p.name)}};
    writeInstalled(installed);
    markInstalled(p);
}

void UpdateStore::markInstalled(const Package& p) const {
    json installed = readInstalled();
    json kept = json::array();
    // One installed version per package name: the others are merely downloaded again.
    // Whole names: "tool" and "tool-extra" are two packages, however "<name>-<version>"
    // reads.
    for (const auto& entry : installedPackages(installed, path("packages"))) {
        if (entry.name != p.name) {
            kept.push_back({{"name", toUtf8(entry.name)}, {"version", toUtf8(entry.version)}});
        }
    }
    kept.push_back({{"name", toUtf8(p.name)}, {"version", toUtf8(p.version)}});
    installed["packages"] = kept;
    writeInstalled(installed);
}

void UpdateStore::clearPackages() const {
    removeAll(path("packages"));
    json installed = readInstalled();
    installed["packages"] = json::array();
    writeInstalled(installed);
}

void UpdateStore::cleanTmp() const { removeAll(path("tmp")); }

std::size_t UpdateStore::tmpEntries() const {
    std::error_code e;
    std::size_t n = 0;
    for (fs::directory_iterator i(path("tmp"), e), end; !e && i != end; i.increment(e)) {
        ++n;
    }
    return n;
}

std::vector<UpdateStore::Component> UpdateStore::components() const {
    std::vector<Component> out;
    const json installed = readInstalled();
    const json list = installed.value("components", json::object());
    for (const auto& [name, c] : list.items()) {
        if (c.is_object()) {
            out.push_back({fromUtf8(name), fromUtf8(c.value("version", std::string())),
                           fromUtf8(c.value("package", std::string()))});
        }
    }
    return out;
}

void UpdateStore::recordOutcome(const std::wstring& operation, bool succeeded) const {
    writeJson(path("last-update.json"),
              {{"operation", toUtf8(operation)}, {"succeeded", succeeded}});
}

std::optional<bool> UpdateStore::lastOutcome() const {
    const fs::path file = path("last-update.json");
    if (!present(file)) {
        return std::nullopt;
    }
    try {
        const auto bytes = readSmallFile(file, maxManifestSize);
        const json j = json::parse(bytes.begin(), bytes.end());
        return j.at("succeeded").get<bool>();
    } catch (const std::exception& e) {
        storeUnusable(file, fromUtf8(e.what()));
    }
}

json UpdateStore::readInstalled() const {
    const fs::path file = path("installed.json");
    if (!present(file)) {
        return json::object();
    }
    try {
        const auto bytes = readSmallFile(file, 1024 * 1024);
        json j = json::parse(bytes.begin(), bytes.end());
        if (!j.is_object()) {
            storeUnusable(file, L"not a JSON object");
        }
        return j;
    } catch (const TarnApiException&) {
        throw;
    } catch (const std::exception& e) {
        storeUnusable(file, fromUtf8(e.what()));
    }
}

void UpdateStore::writeInstalled(const json& installed) const {
    json out = installed;
    out["format"] = "kel-update-store";
    out["version"] = 2;
    writeJson(path("installed.json"), out);
}

} // namespace Varno::Kel_cpp::Reference
