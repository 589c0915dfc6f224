/* A diagnostic sequence against the simulated engine control module (ECM): list its
 * services, read the VIN by service, try a protected write and print the negative
 * response, pass security access with the documented seed/key algorithm, write the VIN
 * and read it back, by service and as an identification value.
 *
 * Security access of the simulated units (reference_engine/README.md): the seed is 4
 * bytes, and key = rotate_left_32(seed XOR keyMask, 3), big-endian, with the ECM's key
 * mask 0x5A3C96E1. The level is unlocked in the extended session. */
#include <kel_c.h>

#include <stdio.h>
#include <stdlib.h>
#include <string.h>
#include <wchar.h>

#define ECM_ADDRESS 2016u
#define ECM_KEY_MASK 0x5A3C96E1u

static int failures = 0;

static void check(int ok, const char* what) {
    if (!ok) {
        printf("UNEXPECTED: %s\n", what);
        ++failures;
    }
}

static void printBytes(const char* label, const uint8_t* bytes, uint32_t count) {
    printf("%s", label);
    for (uint32_t i = 0; i < count; ++i) {
        printf(" %02X", bytes[i]);
    }
    printf("\n");
}

static ParameterInput* parameter(const wchar_t* name, const wchar_t* value) {
    ParameterInput* p = (ParameterInput*)allocate_Memory(sizeof(ParameterInput));
    memset(p, 0, sizeof *p);
    p->name = duplicate_WString(name);
    p->value = duplicate_WString(value);
    return p;
}

/* One service with at most one parameter; free it with release_ServiceInput. */
static ServiceInput* service(const wchar_t* name, ParameterInput* onlyParameter) {
    ServiceInput* s = (ServiceInput*)allocate_Memory(sizeof(ServiceInput));
    memset(s, 0, sizeof *s);
    s->service = duplicate_WString(name);
    if (onlyParameter != NULL) {
        s->parameters = (ParameterInput**)allocate_Memory(sizeof(ParameterInput*));
        s->parameters[0] = onlyParameter;
        s->parameterCount = 1;
    }
    return s;
}

/* Runs one service on the ECM, prints what came back and returns its status (0 positive,
 * 1 negative response, 2 no response, 3 not sent; -1 when the call failed). When
 * `value` is not NULL it receives the last response parameter's value. */
static int run(TarnApi* api, ServiceInput* s, wchar_t* value, size_t valueSize) {
    KelError* error = NULL;
    ServiceResult** results = NULL;
    uint32_t count = 0;
    kel_executeService(api, L"ECM", &s, 1, &error, &results, &count);
    release_ServiceInput(s);
    if (error != NULL) {
        printf("  executeService failed: %d %ls\n", error->code, error->message);
        release_KelError(error);
        return -1;
    }
    const ServiceResult* r = results[0];
    const int status = r->status;
    printf("  %ls (session %ls): %ls\n", r->itemText1, r->itemText4, r->text1);
    if (r->request != NULL) {
        printBytes("    request: ", r->request->data, r->request->dataLength);
    }
    if (r->responseCount > 0) {
        const ResponseResult* response = r->responses[0];
        printBytes("    response:", response->data, response->dataLength);
        for (uint32_t i = 0; i < response->parameterCount; ++i) {
            printf("    %ls = %ls %ls\n", response->parameters[i]->itemText1,
                   response->parameters[i]->text1, response->parameters[i]->text2);
        }
        if (value != NULL && response->parameterCount > 0) {
            wcsncpy(value, response->parameters[response->parameterCount - 1]->text1,
                    valueSize - 1);
            value[valueSize - 1] = L'\0';
        }
    }
    if (r->error != NULL && r->error->negativeResponse != NULL) {
        const NegativeResponse* nr = r->error->negativeResponse;
        printf("    negative response 0x%02X %ls,", (unsigned)nr->code, nr->text);
        printBytes(" bytes", nr->bytes, nr->byteCount);
    } else if (r->error != NULL) {
        printf("    error %d: %ls (%ls)\n", r->error->code, r->error->message, r->error->details);
    }
    release_ServiceResult_array(results, count);
    return status;
}

static void listServices(TarnApi* api) {
    KelError* error = NULL;
    ServiceInfo** infos = NULL;
    uint32_t count = 0;
    kel_getServiceInfos(api, L"ECM", L"", NULL, 0, 0, &error, &infos, &count);
    if (error != NULL) {
        printf("getServiceInfos failed: %ls\n", error->message);
        release_KelError(error);
        ++failures;
        return;
    }
    printf("The ECM offers %u services:\n", count);
    for (uint32_t i = 0; i < count; ++i) {
        const ServiceInfo* s = infos[i];
        printf("  %-42ls SID %ls", s->itemText1, s->itemText3);
        if (s->values[1] != 0) {
            printf(", security level %u", s->values[1]);
        }
        printf("\n");
        for (uint32_t k = 0; k < s->parameterCount; ++k) {
            const ParameterInfo* p = s->parameters[k];
            printf("      %ls (%ls%s%ls)", p->itemText1, p->itemText3, p->text2[0] ? ", " : "",
                   p->text2);
            if (p->nameCount > 0) {
                printf(":");
                for (uint32_t n = 0; n < p->nameCount; ++n) {
                    printf(" %ls", p->names[n]);
                }
            }
            if (p->text6[0] || p->text7[0]) {
                printf(" from %ls to %ls", p->text6, p->text7);
            }
            printf("\n");
        }
    }
    release_ServiceInfo_array(infos, count);
}

static uint32_t rotateLeft(uint32_t x, unsigned n) { return (x << n) | (x >> (32u - n)); }

static int securityAccess(TarnApi* api) {
    KelError* error = NULL;
    uint8_t* seed = NULL;
    uint32_t seedLength = 0;
    kel_createSeed(api, ECM_ADDRESS, 1, &error, &seed, &seedLength);
    if (error != NULL) {
        printf("  createSeed failed: %d %ls (%ls)\n", error->code, error->message, error->details);
        release_KelError(error);
        return 0;
    }
    printBytes("  seed:", seed, seedLength);
    uint32_t s = 0;
    for (uint32_t i = 0; i < seedLength && i < 4; ++i) {
        s = (s << 8) | seed[i];
    }
    release_Memory(seed);
    const uint32_t k = rotateLeft(s ^ ECM_KEY_MASK, 3);
    const uint8_t key[4] = {(uint8_t)(k >> 24), (uint8_t)(k >> 16), (uint8_t)(k >> 8), (uint8_t)k};
    printBytes("  key: ", key, 4);
    kel_sendKey(api, key, 4, &error);
    if (error != NULL) {
        printf("  sendKey failed: %d %ls (%ls)\n", error->code, error->message, error->details);
        release_KelError(error);
        return 0;
    }
    printf("  security level 1 unlocked\n");
    return 1;
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

    listServices(api);

    wchar_t vin[64] = L"";
    printf("\nRead the VIN by service:\n");
    check(run(api, service(L"ReadDataByIdentifier_F190", NULL), vin, 64) == 0, "VIN read");

    printf("\nEnter the extended session and try to write the VIN:\n");
    check(run(api, service(L"DiagnosticSessionControl", parameter(L"Session", L"Extended")), NULL,
              0) == 0,
          "extended session");
    const wchar_t* newVin = L"WVWZZZ1KZ8W123456";
    check(run(api, service(L"WriteDataByIdentifier_F190", parameter(L"VIN", newVin)), NULL, 0) == 1,
          "the protected write is refused");

    printf("\nSecurity access:\n");
    check(securityAccess(api), "security access");

    printf("\nWrite the VIN again, and read it back:\n");
    check(run(api, service(L"WriteDataByIdentifier_F190", parameter(L"VIN", newVin)), NULL, 0) == 0,
          "the write after security access");
    check(run(api, service(L"ReadDataByIdentifier_F190", NULL), vin, 64) == 0, "VIN read back");
    check(wcscmp(vin, newVin) == 0, "the service reads the written VIN");

    const wchar_t* ecm[] = {L"ECM"};
    ReadDataResult** values = NULL;
    uint32_t valueCount = 0;
    kel_readIdentificationValues(api, (wchar_t**)ecm, 1, &error, &values, &valueCount);
    if (error == NULL && valueCount == 1 && values[0]->parameterCount > 0) {
        printf("  identification: %ls = %ls\n", values[0]->parameters[0]->itemText1,
               values[0]->parameters[0]->text1);
        check(wcscmp(values[0]->parameters[0]->text1, newVin) == 0,
              "identification reads the written VIN");
    } else {
        check(0, "identification values");
    }
    release_ReadDataResult_array(values, valueCount);
    release_KelError(error);
    error = NULL;

    kel_end(api, &error);
    release_KelError(error);
    releaseTarnApi(api);
    printf("\n%s\n", failures == 0 ? "done" : "something went wrong");
    return failures == 0 ? EXIT_SUCCESS : EXIT_FAILURE;
}
