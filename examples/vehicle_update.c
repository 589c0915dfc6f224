/* A whole-vehicle update from a broker: put a software package for the engine control
 * module (ECM) on the broker (a manifest and a payload whose CRC-32 this program
 * computes), check the broker for updates, let the engine choose the packages newer than
 * what each unit runs, update the vehicle asynchronously while printing each unit's and
 * the overall progress, then write the update report and upload it to the broker.
 * Exits non-zero when any step fails.
 *
 * The broker is a folder of the engine's file system (the public directory "broker",
 * or a file: URL set with kel_setBrokerUrl). A package is a folder below its "packages"
 * folder: manifest.json and the payload. The payload of control-unit software is the
 * image the unit is flashed with: its version in ASCII, a NUL byte, then the software. */
#if !defined(_WIN32)
#define _POSIX_C_SOURCE 200112L /* nanosleep in strict C99 */
#endif
#include <kel_c.h>

#include <stdio.h>
#include <stdlib.h>
#include <string.h>
#include <time.h>
#include <wchar.h>

/* The update callback runs on an engine thread: what it shares with main() is guarded. */
#if defined(_WIN32)
#include <windows.h>
static void pause10ms(void) { Sleep(10); }
typedef CRITICAL_SECTION Guard;
static void guardInit(Guard* g) { InitializeCriticalSection(g); }
static void guardEnter(Guard* g) { EnterCriticalSection(g); }
static void guardLeave(Guard* g) { LeaveCriticalSection(g); }
static void guardDone(Guard* g) { DeleteCriticalSection(g); }
#else
#include <pthread.h>
static void pause10ms(void) {
    struct timespec t = {0, 10000000L};
    nanosleep(&t, NULL);
}
typedef pthread_mutex_t Guard;
static void guardInit(Guard* g) { pthread_mutex_init(g, NULL); }
static void guardEnter(Guard* g) { pthread_mutex_lock(g); }
static void guardLeave(Guard* g) { pthread_mutex_unlock(g); }
static void guardDone(Guard* g) { pthread_mutex_destroy(g); }
#endif

#define PAYLOAD_SIZE 16384u

static int failures = 0;

static void check(int ok, const char* what) {
    if (!ok) {
        printf("FAILED: %s\n", what);
        ++failures;
    }
}

static int reportError(const char* call, KelError* error) {
    if (error == NULL) {
        return 0;
    }
    printf("%s failed: %d %ls (%ls)\n", call, error->code, error->message, error->details);
    release_KelError(error);
    ++failures;
    return 1;
}

/* CRC-32 as zip computes it: what the manifest's "checksum" carries. */
static uint32_t crc32(const uint8_t* data, uint32_t length) {
    uint32_t crc = 0xFFFFFFFFu;
    for (uint32_t i = 0; i < length; ++i) {
        crc ^= data[i];
        for (int k = 0; k < 8; ++k) {
            crc = (crc >> 1) ^ (0xEDB88320u & (0u - (crc & 1u)));
        }
    }
    return ~crc;
}

static int writeFile(TarnApi* api, const wchar_t* path, const uint8_t* data, uint32_t length) {
    KelError* error = NULL;
    uint32_t written = 0;
    kel_writeFile(api, path, data, length, 0 /* replace */, 1 /* make folders */, &error, &written);
    return !reportError("writeFile", error);
}

static int publishPackage(TarnApi* api) {
    static uint8_t payload[PAYLOAD_SIZE];
    memset(payload, 0, sizeof payload);
    memcpy(payload, "5432", 4); /* the version, then a NUL byte */
    for (uint32_t i = 5; i < PAYLOAD_SIZE; ++i) {
        payload[i] = (uint8_t)(i * 31u + 7u);
    }
    char manifest[512];
    const int length = snprintf(
        manifest, sizeof manifest,
        "{\"format\": \"kel-package\", \"version\": 1, \"name\": \"ECM_SW\", "
        "\"packageVersion\": \"5432\", \"kind\": \"ecu\", \"targets\": [\"ECM\"], "
        "\"description\": \"Engine software 5432: idle speed\", \"payload\": \"ECM_SW_5432.bin\", "
        "\"size\": %u, \"checksum\": \"crc32:%08X\"}",
        PAYLOAD_SIZE, (unsigned)crc32(payload, PAYLOAD_SIZE));
    return writeFile(api, L"broker/packages/ECM_SW-5432/ECM_SW_5432.bin", payload, PAYLOAD_SIZE) &&
           writeFile(api, L"broker/packages/ECM_SW-5432/manifest.json", (const uint8_t*)manifest,
                     (uint32_t)length);
}

static void softwareVersion(TarnApi* api, wchar_t* out, size_t size) {
    const wchar_t* ids[] = {L"F189"};
    KelError* error = NULL;
    ReadDataResult** results = NULL;
    uint32_t count = 0;
    wcscpy(out, L"?");
    kel_readDataByIdentifiers(api, L"ECM", (wchar_t**)ids, 1, &error, &results, &count);
    if (reportError("readDataByIdentifiers", error)) {
        return;
    }
    if (count == 1 && results[0]->parameterCount == 1) {
        wcsncpy(out, results[0]->parameters[0]->text1, size - 1);
        out[size - 1] = L'\0';
    }
    release_ReadDataResult_array(results, count);
}

/* What the update callback saw; the final list is kept for the report. */
struct Updating {
    Guard guard;
    int finished;
    VehicleUpdateResult** results;
    uint32_t resultCount;
};

static int updateFinished(struct Updating* u) {
    guardEnter(&u->guard);
    const int finished = u->finished;
    guardLeave(&u->guard);
    return finished;
}

static const char* statusText(int32_t status) {
    static const char* texts[] = {"updated", "running",    "failed",
                                  "not run", "up to date", "absent"};
    return status >= 0 && status <= 5 ? texts[status] : "?";
}

static void onUpdate(VehicleUpdateResult** results, uint32_t count, bool isFinal, uint64_t callId,
                     KelError* error, void* context) {
    struct Updating* u = (struct Updating*)context;
    (void)callId;
    guardEnter(&u->guard);
    if (error != NULL) {
        printf("  the update ended with error %d %ls\n", error->code, error->message);
        ++failures;
    }
    release_KelError(error);
    if (isFinal) {
        u->results = results; /* kept for the report, released by main() */
        u->resultCount = count;
        u->finished = 1;
        guardLeave(&u->guard);
        return;
    }
    for (uint32_t i = 0; i < count; ++i) {
        const VehicleUpdateResult* r = results[i];
        if (r->status == 1) {
            printf("  %-4ls %3u %%   overall %3u %%\n", r->target, r->progress, r->overallProgress);
        } else {
            printf("  %-4ls %-10s %ls %ls%ls%ls   overall %3u %%\n", r->target,
                   statusText(r->status), r->package, r->versionBefore,
                   r->status == 0 ? L" -> " : L"", r->status == 0 ? r->versionAfter : L"",
                   r->overallProgress);
        }
    }
    release_VehicleUpdateResult_array(results, count);
    guardLeave(&u->guard);
}

/* The update report; the engine may not offer it yet, which is not this example's fault. */
static void reportAndUpload(TarnApi* api, VehicleUpdateResult** results, uint32_t count) {
    KelError* error = NULL;
    wchar_t* reportFile = NULL;
    kel_createVehicleUpdateReport(api, results, count, &error, &reportFile);
    if (reportError("createVehicleUpdateReport", error)) {
        return;
    }
    printf("\nReport written: %ls\n", reportFile);
    UploadReportConfiguration* upload =
        (UploadReportConfiguration*)allocate_Memory(sizeof(UploadReportConfiguration));
    memset(upload, 0, sizeof *upload);
    upload->reportFile = duplicate_WString(reportFile);
    upload->folder = duplicate_WString(L"");
    upload->name = duplicate_WString(L"");
    upload->vin = duplicate_WString(L"");
    upload->user = duplicate_WString(L"workshop");
    upload->comment = duplicate_WString(L"ECM software update");
    upload->overwrite = 1;
    upload->withTwin = 1;
    kel_uploadReport(api, upload, &error); /* consumes upload */
    if (!reportError("uploadReport", error)) {
        printf("Report uploaded to the broker's reports folder\n");
    }
    release_Memory(reportFile);
}

int main(void) {
    KelError* error = NULL;
    TarnApi* api = kel_getTarnApi();
    if (api == NULL) {
        fprintf(stderr, "no engine\n");
        return EXIT_FAILURE;
    }
    kel_initialize(api, &error);
    if (reportError("initialize", error)) {
        releaseTarnApi(api);
        return EXIT_FAILURE;
    }

    wchar_t before[64];
    wchar_t after[64];
    softwareVersion(api, before, 64);
    printf("ECM software version before: %ls\n", before);
    check(publishPackage(api), "the package is on the broker");

    UpdatePackageInfo** offered = NULL;
    uint32_t offeredCount = 0;
    kel_getPackagesFromBroker(api, &error, &offered, &offeredCount);
    if (!reportError("getPackagesFromBroker", error)) {
        printf("The broker offers %u package(s):\n", offeredCount);
        for (uint32_t i = 0; i < offeredCount; ++i) {
            printf("  %ls %ls for %ls, %llu bytes, %ls\n", offered[i]->name, offered[i]->version,
                   offered[i]->targetCount > 0 ? offered[i]->targets[0] : L"-",
                   (unsigned long long)offered[i]->size, offered[i]->checksum);
        }
        release_UpdatePackageInfo_array(offered, offeredCount);
    }
    bool available = false;
    kel_checkUpdatesOnBroker(api, &error, &available);
    if (!reportError("checkUpdatesOnBroker", error)) {
        printf("Updates available: %s\n", available ? "yes" : "no");
        check(available, "the broker has an update");
    }

    VehicleUpdateConfig* config = NULL;
    kel_createVehicleUpdateConfig(api, NULL, 0, &error, &config);
    if (reportError("createVehicleUpdateConfig", error)) {
        kel_end(api, &error);
        releaseTarnApi(api);
        return EXIT_FAILURE;
    }
    printf("The update covers %u units and installs:\n", config->targetCount);
    for (uint32_t i = 0; i < config->packageCount; ++i) {
        printf("  %ls %ls\n", config->packages[i]->name, config->packages[i]->version);
    }
    check(config->packageCount == 1, "one package is chosen");

    struct Updating updating;
    guardInit(&updating.guard);
    updating.finished = 0;
    updating.results = NULL;
    updating.resultCount = 0;
    printf("Updating the vehicle in ECU order:\n");
    kel_updateVehicleAsync(api, config, &error, onUpdate, &updating); /* consumes config */
    if (!reportError("updateVehicleAsync", error)) {
        for (int waited = 0; !updateFinished(&updating) && waited < 3000; ++waited) {
            pause10ms();
        }
        check(updateFinished(&updating), "the update finished");
    }
    if (updateFinished(&updating)) {
        printf("Results:\n");
        for (uint32_t i = 0; i < updating.resultCount; ++i) {
            const VehicleUpdateResult* r = updating.results[i];
            printf("  %u. %-4ls %s\n", r->position, r->target, statusText(r->status));
            check(r->status != 2, "no unit failed");
        }
        reportAndUpload(api, updating.results, updating.resultCount);
        release_VehicleUpdateResult_array(updating.results, updating.resultCount);
        guardDone(&updating.guard);
    }

    softwareVersion(api, after, 64);
    printf("ECM software version after:  %ls\n", after);
    check(wcscmp(after, L"5432") == 0, "the ECM reports the new version");
    bool succeeded = false;
    kel_checkUpdateSuccess(api, &error, &succeeded);
    if (!reportError("checkUpdateSuccess", error)) {
        check(succeeded, "the engine reports the update succeeded");
    }

    kel_end(api, &error);
    reportError("end", error);
    releaseTarnApi(api);
    printf("\n%s\n", failures == 0 ? "all steps succeeded" : "some steps failed");
    return failures == 0 ? EXIT_SUCCESS : EXIT_FAILURE;
}
