/* The public header is plain C99: this file is compiled with -std=c99 -pedantic -Werror. */
#include <kel_c.h>

/* Every declaration must be usable from C: take the address of a few of each kind. */
void (*const initialize_export)(TarnApi*, KelError**) = kel_initialize;
void (*const lock_export)(TarnApi*, KelError**, uint64_t*) = kel_lock;
void (*const state_export)(TarnApi*, KelError**, int32_t*) = kel_getState;
void (*const release_error)(KelError*) = release_KelError;
void (*const release_errors)(KelError**, uint64_t) = release_KelError_array;

int header_c99_records_are_complete(void) {
    KelError error = {0, 0, 0, 0, 0, 0};
    NegativeResponse response = {0, 0, 0, 0, 0, 0};
    MvciServerError mvci = {0, 0, 0, 0, 0, 0};
    NamedItem item = {0, 0, 0, 0};
    error.negativeResponse = &response;
    error.mvciError = &mvci;
    return (int)sizeof error + (int)sizeof item;
}
