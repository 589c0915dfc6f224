/* The typical path of a C caller: identify the control units of the (simulated)
 * vehicle, read the diagnostic trouble codes of all of them, print them as a table,
 * release everything and end.
 *
 * Errors come in two kinds: a KelError for the call as a whole (set the KelError* to
 * NULL before each call and test it after), and a per-target `error` member inside the
 * results, for a control unit that failed while the call as a whole succeeded. */
#include <kel_c.h>

#include <stdio.h>
#include <stdlib.h>

/* Reports a failed call and frees its error record; returns 1 when the call failed. */
static int failed(const char* what, KelError** error) {
    if (*error == NULL) {
        return 0;
    }
    printf("%s failed: code %d: %ls (%ls)\n", what, (*error)->code, (*error)->message,
           (*error)->details);
    release_KelError(*error);
    *error = NULL;
    return 1;
}

/* The ISO 14229 status bits a reader looks at first. */
static const char* statusWords(int32_t status) {
    if (status & 0x01) {
        return (status & 0x08) ? "active, confirmed" : "active";
    }
    if (status & 0x08) {
        return "confirmed";
    }
    return (status & 0x04) ? "pending" : "stored";
}

static void printDtcs(ReadDtcResult* const* results, uint32_t count) {
    printf("%-5s %-7s %-6s %-18s %s\n", "ECU", "code", "status", "", "text");
    for (uint32_t i = 0; i < count; ++i) {
        const ReadDtcResult* r = results[i];
        if (r->error != NULL) {
            printf("%-5ls error %d: %ls (%ls)\n", r->target, r->error->code, r->error->message,
                   r->error->details);
            continue;
        }
        if (r->dtcCount == 0) {
            printf("%-5ls no DTCs stored\n", r->target);
        }
        for (uint32_t k = 0; k < r->dtcCount; ++k) {
            const DtcResult* d = r->dtcs[k];
            printf("%-5ls %-7ls 0x%02X   %-18s %ls\n", r->target, d->text1, (unsigned)d->value1,
                   statusWords(d->value1), d->text2);
        }
    }
}

int main(void) {
    KelError* error = NULL;
    TarnApi* api = kel_getTarnApi();
    if (api == NULL) {
        fprintf(stderr, "no engine\n");
        return EXIT_FAILURE;
    }
    kel_initialize(api, &error);
    if (failed("initialize", &error)) {
        releaseTarnApi(api);
        return EXIT_FAILURE;
    }

    /* Which control units are there, and which variant does each run? */
    VariantIdentResult** targets = NULL;
    uint32_t targetCount = 0;
    kel_identifyAllTargets(api, &error, &targets, &targetCount);
    if (failed("identifyAllTargets", &error)) {
        kel_end(api, &error);
        failed("end", &error);
        releaseTarnApi(api);
        return EXIT_FAILURE;
    }
    printf("%u control units:\n", targetCount);
    for (uint32_t i = 0; i < targetCount; ++i) {
        if (targets[i]->error != NULL) {
            printf("  %-5ls not identified: %ls\n", targets[i]->target, targets[i]->error->message);
        } else {
            printf("  %-5ls %ls\n", targets[i]->target, targets[i]->variant);
        }
    }

    /* Read the DTCs of every one of them. The name list stays ours (it points into the
     * identification results); the config is consumed by the call, so it is built with
     * the library's allocator. */
    wchar_t** names = (wchar_t**)allocate_Memory(targetCount * sizeof(wchar_t*) + 1);
    for (uint32_t i = 0; i < targetCount; ++i) {
        names[i] = targets[i]->target;
    }
    DtcReadConfig* config = (DtcReadConfig*)allocate_Memory(sizeof *config);
    config->value = 0; /* status mask: 0 reads every stored DTC */
    config->flag1 = 1; /* with snapshot data */
    config->flag2 = 1; /* with extended data */
    config->flag3 = 0; /* without special data groups */

    ReadDtcResult** dtcs = NULL;
    uint32_t dtcTargetCount = 0;
    kel_readDtcs(api, names, targetCount, config, &error, &dtcs, &dtcTargetCount);
    if (!failed("readDtcs", &error)) {
        printf("\n");
        printDtcs(dtcs, dtcTargetCount);
    }

    release_ReadDtcResult_array(dtcs, dtcTargetCount);
    release_Memory(names);
    release_VariantIdentResult_array(targets, targetCount);
    kel_end(api, &error);
    failed("end", &error);
    releaseTarnApi(api);
    return EXIT_SUCCESS;
}
