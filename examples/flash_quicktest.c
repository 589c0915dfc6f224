/* Reprogramming the simulated engine control module (ECM) and checking the vehicle
 * afterwards: enter the programming session, pass security access at the ECM's
 * programming level (2), flash the session ECM_SW_5430 asynchronously while printing its
 * progress, print the software version before and after, then run a quick test of every
 * control unit. Exits non-zero when any step fails.
 *
 * Security access of the simulated units (reference_engine/README.md): the seed is 4
 * bytes, key = rotate_left_32(seed XOR keyMask, 3), big-endian; the ECM's level 2 has the
 * key mask 0xC3A5179E and is unlocked in the programming session. */
#if !defined(_WIN32)
#define _POSIX_C_SOURCE 200112L /* nanosleep in strict C99 */
#endif
#include <kel_c.h>

#include <stdio.h>
#include <stdlib.h>
#include <string.h>
#include <time.h>
#include <wchar.h>

/* The flash callback runs on an engine thread: what it shares with main() is guarded. */
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

#define ECM_ADDRESS 2016u
#define ECM_PROGRAMMING_LEVEL 2u
#define ECM_PROGRAMMING_MASK 0xC3A5179Eu

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

/* Sends raw request bytes to the ECM; returns the first response byte (0 for none). */
static int sendRaw(TarnApi* api, const uint8_t* request, uint32_t length, uint8_t* response,
                   uint32_t* responseLength) {
    ServiceInput* s = (ServiceInput*)allocate_Memory(sizeof(ServiceInput));
    memset(s, 0, sizeof *s);
    s->service = duplicate_WString(L"");
    s->data = (uint8_t*)allocate_Memory(length);
    memcpy(s->data, request, length);
    s->dataLength = length;
    KelError* error = NULL;
    ServiceResult** results = NULL;
    uint32_t count = 0;
    kel_executeService(api, L"ECM", &s, 1, &error, &results, &count);
    release_ServiceInput(s);
    if (reportError("executeService", error)) {
        return 0;
    }
    int first = 0;
    if (count == 1 && results[0]->responseCount > 0) {
        const ResponseResult* r = results[0]->responses[0];
        first = r->dataLength > 0 ? r->data[0] : 0;
        if (response != NULL) {
            *responseLength = r->dataLength < 8 ? r->dataLength : 8;
            memcpy(response, r->data, *responseLength);
        }
    }
    release_ServiceResult_array(results, count);
    return first;
}

static int securityAccess(TarnApi* api) {
    const uint8_t programming[] = {0x10, 0x02};
    if (sendRaw(api, programming, 2, NULL, NULL) != 0x50) {
        printf("the ECM refused the programming session\n");
        return 0;
    }
    printf("programming session entered\n");
    KelError* error = NULL;
    uint8_t* seed = NULL;
    uint32_t seedLength = 0;
    kel_createSeed(api, ECM_ADDRESS, ECM_PROGRAMMING_LEVEL, &error, &seed, &seedLength);
    if (reportError("createSeed", error)) {
        return 0;
    }
    uint32_t s = 0;
    for (uint32_t i = 0; i < seedLength && i < 4; ++i) {
        s = (s << 8) | seed[i];
    }
    release_Memory(seed);
    const uint32_t x = s ^ ECM_PROGRAMMING_MASK;
    const uint32_t k = (x << 3) | (x >> 29);
    const uint8_t key[4] = {(uint8_t)(k >> 24), (uint8_t)(k >> 16), (uint8_t)(k >> 8), (uint8_t)k};
    kel_sendKey(api, key, 4, &error);
    if (reportError("sendKey", error)) {
        return 0;
    }
    printf("security level %u unlocked (seed %08X, key %08X)\n", ECM_PROGRAMMING_LEVEL, s, k);
    return 1;
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

/* What the flash callback saw. */
struct Flashing {
    Guard guard;
    int finished;
    int succeeded;
    int lastProgress;
};

static int flashFinished(struct Flashing* f) {
    guardEnter(&f->guard);
    const int finished = f->finished;
    guardLeave(&f->guard);
    return finished;
}

static void onFlash(FlashSessionResult** results, uint32_t count, bool isFinal, uint64_t callId,
                    KelError* error, void* context) {
    struct Flashing* f = (struct Flashing*)context;
    (void)callId;
    guardEnter(&f->guard);
    for (uint32_t i = 0; i < count; ++i) {
        const FlashSessionResult* r = results[i];
        if (r->status == 1) {
            printf("  %ls: %3u %% (%llu of %llu bytes, %u ms)\n", r->name, r->progress,
                   (unsigned long long)r->transferred, (unsigned long long)r->size, r->duration);
            f->lastProgress = (int)r->progress;
        } else if (r->status == 0) {
            printf("  %ls: done, version %ls -> %ls in %u ms of vehicle time\n", r->name,
                   r->versionBefore, r->versionAfter, r->duration);
            f->succeeded = 1;
        } else {
            printf("  %ls: failed: %d %ls (%ls)\n", r->name, r->error ? r->error->code : 0,
                   r->error ? r->error->message : L"", r->error ? r->error->details : L"");
        }
    }
    if (error != NULL) {
        printf("  the flash ended with error %d %ls\n", error->code, error->message);
    }
    release_FlashSessionResult_array(results, count);
    release_KelError(error);
    if (isFinal) {
        f->finished = 1;
    }
    guardLeave(&f->guard);
}

static void quickTest(TarnApi* api) {
    KelError* error = NULL;
    QuickTestResult** results = NULL;
    uint32_t count = 0;
    kel_performQuickTest(api, NULL, 0, NULL, &error, &results, &count);
    if (reportError("performQuickTest", error)) {
        return;
    }
    printf("\nQuick test of %u control units:\n", count);
    for (uint32_t i = 0; i < count; ++i) {
        const QuickTestResult* r = results[i];
        if (r->identified) {
            printf("  %-4ls %-24ls %u DTC(s)\n", r->target, r->variant, r->dtcCount);
        } else {
            printf("  %-4ls not identified: %ls\n", r->target, r->error ? r->error->message : L"");
        }
        for (uint32_t d = 0; d < r->dtcCount; ++d) {
            printf("         %ls %ls\n", r->dtcs[d]->text1, r->dtcs[d]->text2);
        }
    }
    check(count > 0 && results[0]->identified, "the ECM is identified after its flash");
    release_QuickTestResult_array(results, count);
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

    if (securityAccess(api)) {
        struct Flashing flashing;
        guardInit(&flashing.guard);
        flashing.finished = 0;
        flashing.succeeded = 0;
        flashing.lastProgress = -1;
        const wchar_t* sessions[] = {L"ECM_SW_5430"};
        const uint64_t id = kel_executeFlashSessionsAsync(api, L"ECM", (wchar_t**)sessions, 1,
                                                          &error, onFlash, &flashing);
        if (!reportError("executeFlashSessionsAsync", error)) {
            printf("flashing ECM_SW_5430 (call %llu):\n", (unsigned long long)id);
            for (int waited = 0; !flashFinished(&flashing) && waited < 3000; ++waited) {
                pause10ms();
            }
            guardEnter(&flashing.guard);
            check(flashing.finished, "the flash finished");
            check(flashing.succeeded, "the flash succeeded");
            check(flashing.lastProgress == 100, "the progress reached 100 %");
            guardLeave(&flashing.guard);
        }
        if (flashFinished(&flashing)) {
            guardDone(&flashing.guard);
        }
    } else {
        check(0, "security access");
    }

    softwareVersion(api, after, 64);
    printf("ECM software version after:  %ls\n", after);
    check(wcscmp(after, L"5430") == 0, "the ECM reports the new version");

    quickTest(api);

    kel_end(api, &error);
    reportError("end", error);
    releaseTarnApi(api);
    printf("\n%s\n", failures == 0 ? "all steps succeeded" : "some steps failed");
    return failures == 0 ? EXIT_SUCCESS : EXIT_FAILURE;
}
