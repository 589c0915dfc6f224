/* The typical DTC path, asynchronously: start reading the DTCs of every control unit,
 * print each report as it arrives (the engine reports as the ECUs answer, on a thread
 * of its own), and wait for the final one.
 *
 * The callback owns what it receives: it releases the result list and the error. It
 * runs on an engine thread, so what it shares with main() is guarded. */
#if !defined(_WIN32)
#define _POSIX_C_SOURCE 200112L /* nanosleep in strict C99 */
#endif
#include <kel_c.h>

#include <stdio.h>
#include <stdlib.h>
#include <time.h>

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

typedef struct Progress {
    Guard guard;
    int reports;
    bool done;
} Progress;

static void onDtcs(ReadDtcResult** results, uint32_t count, bool isFinal, uint64_t callId,
                   KelError* error, void* context) {
    Progress* progress = (Progress*)context;
    guardEnter(&progress->guard);
    ++progress->reports;
    printf("report %d of call 0x%llx%s\n", progress->reports, (unsigned long long)callId,
           isFinal ? " (final)" : "");
    for (uint32_t i = 0; i < count; ++i) {
        const ReadDtcResult* r = results[i];
        if (r->error != NULL) {
            printf("  %-5ls error %d: %ls\n", r->target, r->error->code, r->error->message);
            continue;
        }
        printf("  %-5ls %u DTC(s)\n", r->target, r->dtcCount);
        for (uint32_t k = 0; k < r->dtcCount; ++k) {
            printf("        %-7ls 0x%02X  %ls\n", r->dtcs[k]->text1, (unsigned)r->dtcs[k]->value1,
                   r->dtcs[k]->text2);
        }
    }
    if (error != NULL) {
        printf("  the call failed: code %d: %ls\n", error->code, error->message);
    }
    release_ReadDtcResult_array(results, count);
    release_KelError(error);
    if (isFinal) {
        progress->done = true;
    }
    guardLeave(&progress->guard);
}

int main(void) {
    KelError* error = NULL;
    TarnApi* api = kel_getTarnApi();
    if (api == NULL) {
        fprintf(stderr, "no engine\n");
        return EXIT_FAILURE;
    }
    kel_initialize(api, &error);
    if (error != NULL) {
        printf("initialize failed: %ls\n", error->message);
        release_KelError(error);
        releaseTarnApi(api);
        return EXIT_FAILURE;
    }

    Progress progress;
    progress.reports = 0;
    progress.done = false;
    guardInit(&progress.guard);

    /* No target names: every control unit. No config: every stored DTC with all data. */
    const uint64_t callId = kel_readDtcsAsync(api, NULL, 0, NULL, &error, onDtcs, &progress);
    if (error != NULL) {
        printf("readDtcsAsync failed: code %d: %ls\n", error->code, error->message);
        release_KelError(error);
        error = NULL;
    } else {
        printf("started call 0x%llx\n", (unsigned long long)callId);
        bool done = false;
        for (int i = 0; i < 1000 && !done; ++i) {
            pause10ms();
            guardEnter(&progress.guard);
            done = progress.done;
            guardLeave(&progress.guard);
        }
        printf("%s\n", done ? "all reports arrived" : "gave up waiting");
    }

    kel_end(api, &error);
    release_KelError(error);
    releaseTarnApi(api);
    guardDone(&progress.guard);
    return EXIT_SUCCESS;
}
