/* A C caller that follows the header's ownership marks and nothing else. Each check
 * holds only if the library keeps the promise its declaration makes:
 * - KEL_CONSUMED: the record is never freed here, so LeakSanitizer reports it unless the
 *   library frees it, on success and on failure alike;
 * - KEL_KEPT: the inputs live on the stack, so AddressSanitizer (or the C heap) stops the
 *   run if the library frees them, and they must still read back unchanged;
 * - KEL_OUT: a successful call hands out what the release function named in the comment
 *   frees (LeakSanitizer checks that it does); the conformance suite proves for every
 *   export that a failed one leaves the outputs alone.
 * The run ends with a failure count; the sanitizer builds run it like any other test. */
#include <kel_c.h>

#include <kel_sim.h>
#include <stdio.h>
#include <string.h>
#include <wchar.h>

static int failures = 0;

static void expect(int holds, const char* what) {
    if (!holds) {
        fprintf(stderr, "FAILED: %s\n", what);
        ++failures;
    }
}

/* The error of a call that must fail; releases it. */
static void expectFailed(KelError** error, int32_t code, const char* what) {
    expect(*error != NULL && (*error)->code == code, what);
    release_KelError(*error);
    *error = NULL;
}

/* The callback of a start that fails: it must never run. */
static void neverCalled(ReadDtcResult** results, uint32_t count, bool isFinal, uint64_t callId,
                        KelError* error, void* context) {
    (void)isFinal;
    (void)callId;
    (void)context;
    release_ReadDtcResult_array(results, count);
    release_KelError(error);
    fprintf(stderr, "FAILED: the callback of a refused start ran\n");
}

static DtcReadConfig* newConfig(void) {
    DtcReadConfig* config = (DtcReadConfig*)allocate_Memory(sizeof *config);
    memset(config, 0, sizeof *config);
    config->flag1 = 1;
    return config;
}

static void consumedRecordIsFreedOnSuccessAndFailure(TarnApi* api) {
    wchar_t* targets[] = {L"ECM"};
    KelError* error = NULL;
    ReadDtcResult** results = NULL;
    uint32_t count = 0;
    kel_readDtcs(api, targets, 1, newConfig(), &error, &results, &count);
    expect(error == NULL && count == 1 && results[0]->target != NULL &&
               wcscmp(results[0]->target, L"ECM") == 0,
           "readDtcs answers for the one target");
    release_ReadDtcResult_array(results, count);

    kelsim_failNext("readDtcs", 1, 4711, 0, L"refused", NULL);
    kel_readDtcs(api, targets, 1, newConfig(), &error, &results, &count);
    expectFailed(&error, 4711, "a refused readDtcs reports the engine's error");

    kelsim_failNext("readDtcsAsync", 1, 4712, 0, L"refused", NULL);
    const uint64_t callId =
        kel_readDtcsAsync(api, targets, 1, newConfig(), &error, neverCalled, NULL);
    expect(callId == 0, "a refused asynchronous start returns 0");
    expectFailed(&error, 4712, "a refused readDtcsAsync reports the engine's error");
}

static void keptInputsStayTheCallers(TarnApi* api) {
    wchar_t pattern1[] = L"E*";
    wchar_t pattern2[] = L"T\u00dcV?";
    TargetFilter first = {pattern1, 1, -7};
    TargetFilter second = {pattern2, 0, 42};
    TargetFilter* filters[] = {&first, &second};
    KelError* error = NULL;
    kel_setSessionTargetFilters(api, &error, filters, 2);
    expect(error == NULL, "setSessionTargetFilters succeeds");
    expect(filters[0] == &first && first.pattern == pattern1 && wcscmp(pattern2, L"T\u00dcV?") == 0,
           "the kept filters are untouched");

    TargetFilter** read = NULL;
    uint32_t count = 0;
    kel_getSessionTargetFilters(api, &error, &read, &count);
    expect(error == NULL && count == 2, "the session keeps both filters");
    expect(count == 2 && read[0] != &first && read[0]->pattern != pattern1,
           "the filters handed out are the library's own copies");
    release_TargetFilter_array(read, count);
    kel_setSessionTargetFilters(api, &error, NULL, 0);
    expect(error == NULL, "an empty filter list is NULL with count 0");
}

int main(void) {
    KelError* error = NULL;
    TarnApi* api = kel_getTarnApi();
    kel_initialize(api, &error);
    expect(error == NULL, "initialize succeeds");

    consumedRecordIsFreedOnSuccessAndFailure(api);
    keptInputsStayTheCallers(api);

    kel_end(api, &error);
    releaseTarnApi(api);
    kelsim_reset();
    printf("%d failed\n", failures);
    return failures == 0 ? 0 : 1;
}
