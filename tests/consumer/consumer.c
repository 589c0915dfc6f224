/* The typical path of a kel_c user, built against an installed kel_c: initialise, read
 * every DTC, print one line per DTC, release and end. Exits 1 when anything fails. */
#include <kel_c.h>

#include <stdio.h>

int main(void) {
    KelError* error = NULL;
    TarnApi* api = kel_getTarnApi();
    kel_initialize(api, &error);
    if (error != NULL) {
        printf("initialize: error %d: %ls\n", error->code, error->message);
        release_KelError(error);
        releaseTarnApi(api);
        return 1;
    }
    ReadDtcResult** results = NULL;
    uint32_t count = 0;
    kel_readDtcs(api, NULL, 0, NULL, &error, &results, &count);
    int failed = error != NULL;
    if (failed) {
        printf("readDtcs: error %d: %ls\n", error->code, error->message);
        release_KelError(error);
        error = NULL;
    }
    for (uint32_t i = 0; i < count; ++i) {
        for (uint32_t k = 0; k < results[i]->dtcCount; ++k) {
            printf("%ls %ls\n", results[i]->target, results[i]->dtcs[k]->text1);
        }
    }
    release_ReadDtcResult_array(results, count);
    kel_end(api, &error);
    if (error != NULL) {
        release_KelError(error);
        failed = 1;
    }
    releaseTarnApi(api);
    return failed;
}
