/* Watch the bus: open a PDU monitor, read the DTCs of every control unit and read the
 * ECM's VIN by service, then print the protocol data units the units really exchanged
 * as a hex trace, one line per request and per response:
 *
 *     #  time ms  unit  dir  bytes
 *
 * Exits non-zero when a step fails or the monitor saw nothing of the calls made. */
#include <kel_c.h>

#include <stdio.h>
#include <stdlib.h>
#include <string.h>

static int failed(KelError* error, const char* what) {
    if (error == NULL) {
        return 0;
    }
    printf("%s failed: %d %ls (%ls)\n", what, error->code, error->message, error->details);
    release_KelError(error);
    return 1;
}

static int readAllDtcs(TarnApi* api) {
    KelError* error = NULL;
    ReadDtcResult** results = NULL;
    uint32_t count = 0;
    kel_readDtcs(api, NULL, 0, NULL, &error, &results, &count);
    if (failed(error, "readDtcs")) {
        return 0;
    }
    for (uint32_t i = 0; i < count; ++i) {
        printf("%-4ls %u DTCs%s\n", results[i]->target, results[i]->dtcCount,
               results[i]->error != NULL ? " (no answer)" : "");
    }
    release_ReadDtcResult_array(results, count);
    return 1;
}

static int readVinByService(TarnApi* api) {
    KelError* error = NULL;
    ServiceInput* service = (ServiceInput*)allocate_Memory(sizeof(ServiceInput));
    ServiceResult** results = NULL;
    uint32_t count = 0;
    memset(service, 0, sizeof *service);
    service->service = duplicate_WString(L"ReadDataByIdentifier_F190");
    kel_executeService(api, L"ECM", &service, 1, &error, &results, &count);
    release_ServiceInput(service);
    if (failed(error, "executeService")) {
        return 0;
    }
    const int positive = count == 1 && results[0]->status == 0;
    if (count == 1) {
        printf("ECM  %ls: %s\n", results[0]->itemText1, positive ? "positive" : "refused");
    }
    release_ServiceResult_array(results, count);
    return positive;
}

/* Prints every item the monitor holds (and so takes them); returns how many there were. */
static uint32_t printTrace(TarnApi* api, uint64_t monitor) {
    KelError* error = NULL;
    PduMonitoringItem** items = NULL;
    uint32_t count = 0;
    kel_getPduMonitoringItems(api, monitor, 0, 0, &error, &items, &count);
    if (failed(error, "getPduMonitoringItems")) {
        return 0;
    }
    printf("\n%4s %9s  %-4s %-3s %s\n", "#", "time ms", "unit", "dir", "bytes");
    for (uint32_t i = 0; i < count; ++i) {
        const PduMonitoringItem* p = items[i];
        printf("%4llu %9llu  %-4ls %-3s", (unsigned long long)p->detail->sequence,
               (unsigned long long)p->value2, p->text1, p->value1 == 1 ? "->" : "<-");
        for (uint32_t k = 0; k < p->dataLength; ++k) {
            printf(" %02X", p->data[k]);
        }
        printf("\n");
    }
    release_PduMonitoringItem_array(items, count);
    return count;
}

int main(void) {
    KelError* error = NULL;
    uint64_t monitor = 0;
    int ok = 1;
    TarnApi* api = kel_getTarnApi();
    if (api == NULL) {
        fprintf(stderr, "no engine\n");
        return EXIT_FAILURE;
    }
    kel_initialize(api, &error);
    if (failed(error, "initialize")) {
        releaseTarnApi(api);
        return EXIT_FAILURE;
    }
    kel_createPduMonitor(api, &error, &monitor);
    if (failed(error, "createPduMonitor")) {
        releaseTarnApi(api);
        return EXIT_FAILURE;
    }

    ok = readAllDtcs(api) && ok;
    ok = readVinByService(api) && ok;
    if (printTrace(api, monitor) == 0) {
        printf("UNEXPECTED: the monitor saw no traffic\n");
        ok = 0;
    }

    kel_releasePduMonitor(api, monitor, &error);
    ok = !failed(error, "releasePduMonitor") && ok;
    kel_end(api, &error);
    ok = !failed(error, "end") && ok;
    releaseTarnApi(api);
    return ok ? EXIT_SUCCESS : EXIT_FAILURE;
}
