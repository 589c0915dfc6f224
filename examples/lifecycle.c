/* The engine's lifecycle and lock, and how an engine failure arrives, against the
 * simulated vehicle: obtain the engine, initialise it, read its state, take and give
 * back its lock, see a scripted failure arrive as a KelError, end and release.
 *
 * Rules shown here: set the KelError* to NULL before each call and test it after;
 * free every record the library hands out with its release_* function. */
#include <kel_c.h>

#include <kel_sim.h>
#include <stdio.h>
#include <stdlib.h>

static const char* const stateNames[] = {"created", "initialized", "ended"};

static void printError(const char* what, const KelError* error) {
    printf("%s failed: code %d, subCode %d\n", what, error->code, error->subCode);
    printf("  message: %ls\n", error->message);
    printf("  details: %ls\n", error->details);
    if (error->mvciError != NULL) {
        printf("  MVCI error %d (%ls), vendor code %d (%ls)\n", error->mvciError->code,
               error->mvciError->codeText, error->mvciError->vendorCode,
               error->mvciError->vendorCodeText);
    }
}

/* Reports a failed call and frees its error record; returns 1 when the call failed. */
static int failed(const char* what, KelError** error) {
    if (*error == NULL) {
        return 0;
    }
    printError(what, *error);
    release_KelError(*error);
    *error = NULL;
    return 1;
}

static void printState(TarnApi* api) {
    KelError* error = NULL;
    int32_t state = -1;
    kel_getState(api, &error, &state);
    if (!failed("getState", &error)) {
        printf("engine state: %d (%s)\n", state,
               state >= 0 && state <= 2 ? stateNames[state] : "?");
    }
}

int main(void) {
    KelError* error = NULL;
    TarnApi* api = kel_getTarnApi();
    if (api == NULL) {
        fprintf(stderr, "no engine\n");
        return EXIT_FAILURE;
    }
    printState(api);

    kel_initialize(api, &error);
    if (failed("initialize", &error)) {
        releaseTarnApi(api);
        return EXIT_FAILURE;
    }
    printState(api);

    uint64_t handle = 0;
    kel_getHandle(api, &error, &handle);
    failed("getHandle", &error);
    printf("engine handle: 0x%016llx\n", (unsigned long long)handle);

    uint64_t lockId = 0;
    kel_lock(api, &error, &lockId);
    if (!failed("lock", &error)) {
        printf("locked, lock id %llu\n", (unsigned long long)lockId);
    }

    /* A second lock is refused by the engine: the error arrives as a KelError and the
     * output keeps the value it had. */
    uint64_t secondId = 0;
    kel_lock(api, &error, &secondId);
    failed("second lock", &error);
    printf("second lock id still %llu\n", (unsigned long long)secondId);

    kel_unlock(api, lockId, &error);
    if (!failed("unlock", &error)) {
        bool locked = true;
        kel_isLocked(api, &error, &locked);
        failed("isLocked", &error);
        printf("unlocked, isLocked = %s\n", locked ? "true" : "false");
    }

    /* The simulated vehicle can be told to fail: here the next getState reports an
     * MVCI communication error beneath the engine error. */
    kelsim_failNextWithMvci("getState", 1, 42, 7,
                            L"Communication with the vehicle interface failed",
                            L"VCI did not answer within 2000 ms", 0x0101,
                            L"PDU_ERR_COMM_PC_TO_VCI_FAILED", -3, L"VCI timeout", L"", 0);
    int32_t state = 12345;
    kel_getState(api, &error, &state);
    failed("getState (scripted)", &error);
    printf("state output untouched: %d\n", state);

    uint64_t micros = 0;
    kel_getCallDuration(api, &error, &micros);
    failed("getCallDuration", &error);
    printf("previous call took %llu us\n", (unsigned long long)micros);

    kel_end(api, &error);
    failed("end", &error);
    printState(api);
    releaseTarnApi(api);
    return EXIT_SUCCESS;
}
