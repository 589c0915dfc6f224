/* The public header is plain C99: this file is compiled with -std=c99 -pedantic -Werror. */
#include <kel_c.h>

/* Every declaration must be usable from C: take the address of a few of each kind. */
void (*const initialize_export)(TarnApi*, KelError**) = kel_initialize;
void (*const lock_export)(TarnApi*, KelError**, uint64_t*) = kel_lock;
void (*const state_export)(TarnApi*, KelError**, int32_t*) = kel_getState;
void (*const release_error)(KelError*) = release_KelError;
void (*const release_errors)(KelError**, uint64_t) = release_KelError_array;

/* The ownership marks are for the reader only: they expand to nothing, so a marked
 * declaration keeps exactly the type of the unmarked one (a mismatch fails to compile). */
#define KEL_TEST_TEXT(x) #x
#define KEL_TEST_EXPANDED(x) KEL_TEST_TEXT(x)
typedef char consumed_is_empty[sizeof KEL_TEST_EXPANDED(KEL_CONSUMED) == 1 ? 1 : -1];
typedef char kept_is_empty[sizeof KEL_TEST_EXPANDED(KEL_KEPT) == 1 ? 1 : -1];
typedef char out_is_empty[sizeof KEL_TEST_EXPANDED(KEL_OUT) == 1 ? 1 : -1];

void (*const read_dtcs)(TarnApi*, wchar_t**, uint32_t, DtcReadConfig*, KelError**, ReadDtcResult***,
                        uint32_t*) = kel_readDtcs;
uint64_t (*const read_dtcs_async)(TarnApi*, wchar_t**, uint32_t, DtcReadConfig*, KelError**,
                                  ReadDtcsCallbackFunction, void*) = kel_readDtcsAsync;
void (*const filtered_targets)(TarnApi*, TargetFilter**, uint32_t, KelError**, Target***,
                               uint32_t*) = kel_getFilteredTargets;
void (*const server_handler)(uint64_t, void*, KelError**) = kel_registerServerHandler;
void (*const release_strings)(wchar_t**, uint64_t) = release_StringArray;

int header_c99_records_are_complete(void) {
    KelError error = {0, 0, 0, 0, 0, 0};
    NegativeResponse response = {0, 0, 0, 0, 0, 0};
    MvciServerError mvci = {0, 0, 0, 0, 0, 0};
    NamedItem item = {0, 0, 0, 0};
    error.negativeResponse = &response;
    error.mvciError = &mvci;
    return (int)sizeof error + (int)sizeof item;
}
