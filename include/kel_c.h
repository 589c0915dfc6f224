/* Generated from the interface description by tools/generate.py. Do not edit. */
/* kel_c: the C interface of the Kel_cpp diagnostics engine.
 *
 * Calling rules: the engine object comes first; then the inputs, KelError** error
 * and the outputs (at engine positions 241 and above the error parameter comes
 * right after the engine object). Set *error to NULL before each call: the library
 * writes it only on failure, and then leaves every output untouched. Lists travel
 * as a pointer and a uint32_t count; an empty list is NULL with count 0. */
#ifndef KEL_C_H
#define KEL_C_H

#include <stdbool.h>
#include <stddef.h>
#include <stdint.h>
#include <wchar.h>

#if defined(_WIN32)
#if defined(KEL_C_BUILDING)
#define KEL_C_API __declspec(dllexport)
#else
#define KEL_C_API __declspec(dllimport)
#endif
#else
#define KEL_C_API __attribute__((visibility("default")))
#endif

#ifdef __cplusplus
namespace Varno {
namespace Kel_cpp {
class TarnApi;
}
} // namespace Varno
typedef Varno::Kel_cpp::TarnApi TarnApi;
extern "C" {
#else
/* An engine object: obtained from kel_getTarnApi, given back with releaseTarnApi. */
typedef struct TarnApi TarnApi;
#endif

/* ---- records ---- */
typedef struct MvciServerError MvciServerError;
typedef struct NegativeResponse NegativeResponse;
typedef struct KelError_struct KelError;
typedef struct NamedItem NamedItem;
typedef struct ParameterResult ParameterResult;
typedef struct ClearDtcResult ClearDtcResult;
typedef struct DtcReadConfig DtcReadConfig;
typedef struct ReadDtcResult ReadDtcResult;
typedef struct DtcResult DtcResult;
typedef struct SpecialDataGroup SpecialDataGroup;
typedef struct VariantIdentResult VariantIdentResult;
typedef struct ReadDataResult ReadDataResult;
typedef struct Target Target;
typedef struct TargetStatus TargetStatus;
typedef struct TargetFilter TargetFilter;
typedef struct KelEvent KelEvent;
typedef struct EventReport EventReport;

struct MvciServerError {
    int32_t code;
    wchar_t* codeText;
    int32_t vendorCode;
    wchar_t* vendorCodeText;
    wchar_t* extraText;
    int32_t extraCode;
};

struct NegativeResponse {
    int32_t code;
    wchar_t* text;
    uint64_t value1;
    uint64_t value2;
    uint8_t* bytes;
    uint32_t byteCount;
};

struct KelError_struct {
    int32_t code;
    wchar_t* message;
    wchar_t* details;
    int32_t subCode;
    MvciServerError* mvciError;
    NegativeResponse* negativeResponse;
};

struct NamedItem {
    wchar_t* itemText1;
    wchar_t* itemText2;
    wchar_t* itemText3;
    wchar_t* itemText4;
};

struct ParameterResult {
    wchar_t* itemText1;
    wchar_t* itemText2;
    wchar_t* itemText3;
    wchar_t* itemText4;
    wchar_t* text1;
    wchar_t* text2;
    int32_t value1;
    ParameterResult** children;
    uint32_t childCount;
    wchar_t* text3;
    KelError* error;
    wchar_t* text4;
    int32_t value2;
    uint8_t* data;
    uint32_t dataLength;
    uint32_t value3;
    uint8_t flag;
    int32_t value4;
};

struct ClearDtcResult {
    int32_t status;
    wchar_t* target;
    KelError* error;
};

struct DtcReadConfig {
    int32_t value;
    uint8_t flag1;
    uint8_t flag2;
    uint8_t flag3;
};

struct ReadDtcResult {
    int32_t status;
    wchar_t* target;
    KelError* error;
    DtcResult** dtcs;
    uint32_t dtcCount;
    int32_t value;
};

struct DtcResult {
    int32_t code;
    wchar_t* text1;
    wchar_t* text2;
    int32_t value1;
    ParameterResult** parameters1;
    uint32_t parameterCount1;
    ParameterResult** parameters2;
    uint32_t parameterCount2;
    wchar_t* text3;
    wchar_t* text4;
    SpecialDataGroup** specialDataGroups;
    uint32_t specialDataGroupCount;
    int32_t value2;
};

struct SpecialDataGroup {
    NamedItem** items;
    uint32_t itemCount;
};

struct VariantIdentResult {
    wchar_t* target;
    int32_t status;
    KelError* error;
    wchar_t* variant;
};

struct ReadDataResult {
    wchar_t* target;
    int32_t status;
    wchar_t* text;
    KelError* error;
    ParameterResult** parameters;
    uint32_t parameterCount;
};

struct Target {
    wchar_t* itemText1;
    wchar_t* itemText2;
    wchar_t* itemText3;
    wchar_t* itemText4;
    int32_t value1;
    wchar_t* text1;
    wchar_t* text2;
    NamedItem** items;
    uint32_t itemCount;
    wchar_t** names;
    uint32_t nameCount;
    wchar_t* text3;
    wchar_t* text4;
    int32_t value2;
    wchar_t* text5;
};

struct TargetStatus {
    wchar_t* target;
    wchar_t* text;
    KelError* error;
    uint32_t values[5];
    wchar_t* text2;
};

struct TargetFilter {
    wchar_t* pattern;
    uint8_t flag;
    int32_t value;
};

struct KelEvent {
    wchar_t* name;
    int32_t kind;
    int32_t code;
    wchar_t* text;
    KelError* error;
    wchar_t* detail;
};

struct EventReport {
    KelEvent** events;
    uint32_t eventCount;
};

/* ---- engine objects ----
 * Every kel_getTarnApi / kel_getRemoteConnectionByHandle is matched by one releaseTarnApi.
 * Getting the same engine object twice returns the same address and counts two uses. */
KEL_C_API TarnApi* kel_getTarnApi(void);
KEL_C_API TarnApi* kel_getRemoteConnectionByHandle(uint64_t handle, KelError** error);
KEL_C_API void releaseTarnApi(TarnApi* api);

/* ---- memory ----
 * Everything the library hands out comes from its C heap and goes back through a
 * release_* function or release_Memory. Input records that an export consumes must be
 * built with allocate_Memory / duplicate_WString. */
KEL_C_API void* allocate_Memory(size_t size);
KEL_C_API char* duplicate_String(const char* s);
KEL_C_API wchar_t* duplicate_WString(const wchar_t* s);
KEL_C_API void release_Memory(void* p);
KEL_C_API void release_StringArray(wchar_t** ptr, uint64_t count);

/* ---- calls by number over a byte stream (OTX runtimes, Python) ----
 * kel_call reads the arguments of operation `operation` from `input` and hands out a
 * result stream: a status byte (1 success, 0 engine error), then the results or the
 * error record. Fetch it with kel_call_result, which copies it into `destination`
 * (at least *outSize bytes) and frees it; a second call on the same stream copies
 * nothing. `handle` 0 is the local engine, any other value the engine object with
 * that handle (see kel_getHandle); when the engine rejects the handle, every operation
 * answers status 0 with the engine's error. Unknown numbers leave the outputs alone. */
KEL_C_API void kel_call(uint64_t handle, int32_t operation, const void* input, void** outStream,
                        uint64_t* outSize);
KEL_C_API void* kel_call_result(void* stream, void* destination);

/* py_call: the same operations for a Python extension: no status byte, the error
 * record as the whole result with return value -1; 0 on success, or the 32-bit result
 * of the operations that return one. `api` NULL is the local engine. The result buffer
 * goes back through py_result, which copies `size` bytes to `destination` and frees it. */
KEL_C_API int32_t py_call(TarnApi* api, int32_t operation, uint64_t reserved, const void* input,
                          uint32_t* outSize, void** outBuffer);
KEL_C_API void py_result(void* destination, int32_t size, void* buffer);

/* Bounds-checked forms, additions of this library: they take the input's size and
 * answer input that is short or malformed (a count running past the end, a string
 * without NUL, records nested more than 256 levels deep) with an error record of code
 * KEL_ERROR_MALFORMED_INPUT instead of reading past the buffer or exhausting the stack.
 * The engine is not called then. */
KEL_C_API void kel_call_checked(uint64_t handle, int32_t operation, const void* input,
                                uint64_t inputSize, void** outStream, uint64_t* outSize);
KEL_C_API int32_t py_call_checked(TarnApi* api, int32_t operation, uint64_t reserved,
                                  const void* input, uint64_t inputSize, uint32_t* outSize,
                                  void** outBuffer);

/* Error codes of the library itself, in the error record of the call stream. */
#define KEL_ERROR_MALFORMED_INPUT (-1001) /* checked calls: input short or malformed */
#define KEL_ERROR_NOT_AVAILABLE (-1002)   /* the operation's records are not built yet */

/* ---- release functions: NULL-safe; _array takes the count the export gave ---- */
KEL_C_API void release_MvciServerError(MvciServerError* ptr);
KEL_C_API void release_MvciServerError_array(MvciServerError** ptr, uint64_t count);
KEL_C_API void release_NegativeResponse(NegativeResponse* ptr);
KEL_C_API void release_NegativeResponse_array(NegativeResponse** ptr, uint64_t count);
KEL_C_API void release_KelError(KelError* ptr);
KEL_C_API void release_KelError_array(KelError** ptr, uint64_t count);
KEL_C_API void release_NamedItem(NamedItem* ptr);
KEL_C_API void release_NamedItem_array(NamedItem** ptr, uint64_t count);
KEL_C_API void release_ParameterResult(ParameterResult* ptr);
KEL_C_API void release_ParameterResult_array(ParameterResult** ptr, uint64_t count);
KEL_C_API void release_ClearDtcResult(ClearDtcResult* ptr);
KEL_C_API void release_ClearDtcResult_array(ClearDtcResult** ptr, uint64_t count);
KEL_C_API void release_DtcReadConfig(DtcReadConfig* ptr);
KEL_C_API void release_DtcReadConfig_array(DtcReadConfig** ptr, uint64_t count);
KEL_C_API void release_ReadDtcResult(ReadDtcResult* ptr);
KEL_C_API void release_ReadDtcResult_array(ReadDtcResult** ptr, uint64_t count);
KEL_C_API void release_DtcResult(DtcResult* ptr);
KEL_C_API void release_DtcResult_array(DtcResult** ptr, uint64_t count);
KEL_C_API void release_SpecialDataGroup(SpecialDataGroup* ptr);
KEL_C_API void release_SpecialDataGroup_array(SpecialDataGroup** ptr, uint64_t count);
KEL_C_API void release_VariantIdentResult(VariantIdentResult* ptr);
KEL_C_API void release_VariantIdentResult_array(VariantIdentResult** ptr, uint64_t count);
KEL_C_API void release_ReadDataResult(ReadDataResult* ptr);
KEL_C_API void release_ReadDataResult_array(ReadDataResult** ptr, uint64_t count);
KEL_C_API void release_Target(Target* ptr);
KEL_C_API void release_Target_array(Target** ptr, uint64_t count);
KEL_C_API void release_TargetStatus(TargetStatus* ptr);
KEL_C_API void release_TargetStatus_array(TargetStatus** ptr, uint64_t count);
KEL_C_API void release_TargetFilter(TargetFilter* ptr);
KEL_C_API void release_TargetFilter_array(TargetFilter** ptr, uint64_t count);
KEL_C_API void release_KelEvent(KelEvent* ptr);
KEL_C_API void release_KelEvent_array(KelEvent** ptr, uint64_t count);
KEL_C_API void release_EventReport(EventReport* ptr);
KEL_C_API void release_EventReport_array(EventReport** ptr, uint64_t count);

/* ---- callbacks of the asynchronous operations ----
 * Called once or several times per call, on a thread of the engine; isFinal marks
 * the last report. The results and the error (NULL when none) belong to the callee,
 * which frees them with release_X_array and release_KelError. */
typedef void (*IdentifyAllTargetsCallbackFunction)(VariantIdentResult** results,
                                                   uint32_t resultCount, bool isFinal,
                                                   uint64_t callId, KelError* error, void* context);
typedef void (*ReadIdentificationValuesCallbackFunction)(ReadDataResult** results,
                                                         uint32_t resultCount, bool isFinal,
                                                         uint64_t callId, KelError* error,
                                                         void* context);
typedef void (*ReadDtcsCallbackFunction)(ReadDtcResult** results, uint32_t resultCount,
                                         bool isFinal, uint64_t callId, KelError* error,
                                         void* context);
typedef void (*ReadSupportedDtcsCallbackFunction)(ReadDtcResult** results, uint32_t resultCount,
                                                  bool isFinal, uint64_t callId, KelError* error,
                                                  void* context);
typedef void (*ClearAllDtcsCallbackFunction)(ClearDtcResult** results, uint32_t resultCount,
                                             bool isFinal, uint64_t callId, KelError* error,
                                             void* context);
typedef void (*ReadMeasurementValuesCallbackFunction)(ReadDataResult** results,
                                                      uint32_t resultCount, bool isFinal,
                                                      uint64_t callId, KelError* error,
                                                      void* context);
typedef void (*IdentifyTargetsCallbackFunction)(VariantIdentResult** results, uint32_t resultCount,
                                                bool isFinal, uint64_t callId, KelError* error,
                                                void* context);
typedef void (*ClearSpecificDtcsCallbackFunction)(ClearDtcResult** results, uint32_t resultCount,
                                                  bool isFinal, uint64_t callId, KelError* error,
                                                  void* context);

/* ---- operations, in engine order (the number is the engine position) ---- */
KEL_C_API void kel_initialize(TarnApi* api, KelError** error); /* 2 */
KEL_C_API void kel_end(TarnApi* api, KelError** error);        /* 3 */
KEL_C_API void kel_startServer(TarnApi* api, const wchar_t* text, KelError** error,
                               wchar_t** result);                                   /* 4 */
KEL_C_API void kel_stopServer(TarnApi* api, const wchar_t* text, KelError** error); /* 5 */
KEL_C_API void kel_restartServer(TarnApi* api, int32_t value, KelError** error);    /* 6 */
KEL_C_API void kel_saveProjectConfiguration(TarnApi* api, const wchar_t* projectName,
                                            KelError** error); /* 9 */
KEL_C_API void kel_createMonitoringLink(TarnApi* api, const wchar_t* name, KelError** error,
                                        uint64_t* handle);                                 /* 10 */
KEL_C_API void kel_releaseMonitoringLink(TarnApi* api, uint64_t handle, KelError** error); /* 12 */
KEL_C_API void kel_createPduMonitor(TarnApi* api, KelError** error, uint64_t* handle);     /* 14 */
KEL_C_API void kel_saveConfiguration(TarnApi* api, KelError** error);                      /* 15 */
KEL_C_API void kel_releasePduMonitor(TarnApi* api, uint64_t handle, KelError** error);     /* 16 */
KEL_C_API void kel_identifyAllTargets(TarnApi* api, KelError** error, VariantIdentResult*** results,
                                      uint32_t* resultCount); /* 17 */
KEL_C_API uint64_t kel_identifyAllTargetsAsync(TarnApi* api, KelError** error,
                                               IdentifyAllTargetsCallbackFunction callback,
                                               void* context); /* 18 */
KEL_C_API void kel_readIdentificationValues(TarnApi* api, wchar_t** targets, uint32_t targetCount,
                                            KelError** error, ReadDataResult*** results,
                                            uint32_t* resultCount); /* 19 */
KEL_C_API uint64_t kel_readIdentificationValuesAsync(
    TarnApi* api, wchar_t** targets, uint32_t targetCount, KelError** error,
    ReadIdentificationValuesCallbackFunction callback, void* context); /* 20 */
KEL_C_API void kel_readDataByIdentifiers(TarnApi* api, const wchar_t* target, wchar_t** identifiers,
                                         uint32_t identifierCount, KelError** error,
                                         ReadDataResult*** results, uint32_t* resultCount); /* 21 */
KEL_C_API void kel_identifyTarget(TarnApi* api, const wchar_t* target, KelError** error,
                                  VariantIdentResult** result); /* 22 */
KEL_C_API void kel_readDtcs(TarnApi* api, wchar_t** targets, uint32_t targetCount,
                            DtcReadConfig* config, KelError** error, ReadDtcResult*** results,
                            uint32_t* resultCount); /* 23 */
KEL_C_API uint64_t kel_readDtcsAsync(TarnApi* api, wchar_t** targets, uint32_t targetCount,
                                     DtcReadConfig* config, KelError** error,
                                     ReadDtcsCallbackFunction callback, void* context); /* 24 */
KEL_C_API void kel_readSupportedDtcs(TarnApi* api, wchar_t** targets, uint32_t targetCount,
                                     DtcReadConfig* config, KelError** error,
                                     ReadDtcResult*** results, uint32_t* resultCount); /* 25 */
KEL_C_API uint64_t kel_readSupportedDtcsAsync(TarnApi* api, wchar_t** targets, uint32_t targetCount,
                                              DtcReadConfig* config, KelError** error,
                                              ReadSupportedDtcsCallbackFunction callback,
                                              void* context); /* 26 */
KEL_C_API void kel_clearAllDtcs(TarnApi* api, wchar_t** targets, uint32_t targetCount,
                                KelError** error, ClearDtcResult*** results,
                                uint32_t* resultCount); /* 27 */
KEL_C_API uint64_t kel_clearAllDtcsAsync(TarnApi* api, wchar_t** targets, uint32_t targetCount,
                                         KelError** error, ClearAllDtcsCallbackFunction callback,
                                         void* context); /* 28 */
KEL_C_API void kel_connectRemoteServer(TarnApi* api, const wchar_t* text, KelError** error,
                                       uint64_t* handle); /* 37 */
KEL_C_API void kel_registerMeasurementValues(TarnApi* api, const wchar_t* target, wchar_t** names,
                                             uint32_t nameCount, KelError** error,
                                             uint64_t* registration); /* 39 */
KEL_C_API void kel_getMeasurementValues(TarnApi* api, uint64_t registration, KelError** error,
                                        ReadDataResult*** results, uint32_t* resultCount); /* 40 */
KEL_C_API void kel_unregisterMeasurementValues(TarnApi* api, uint64_t registration,
                                               KelError** error);       /* 41 */
KEL_C_API void kel_cancelAllAsyncCalls(TarnApi* api, KelError** error); /* 43 */
KEL_C_API void kel_createSeed(TarnApi* api, uint32_t value1, uint32_t value2, KelError** error,
                              uint8_t** seed, uint32_t* seedLength); /* 44 */
KEL_C_API void kel_sendKey(TarnApi* api, const uint8_t* key, uint32_t keyLength,
                           KelError** error);                                           /* 45 */
KEL_C_API void kel_openEventChannel(TarnApi* api, KelError** error, uint64_t* channel); /* 46 */
KEL_C_API void kel_closeEventChannel(TarnApi* api, uint64_t channel, KelError** error); /* 47 */
KEL_C_API void kel_getCurrentEvents(TarnApi* api, uint64_t channel, uint32_t limit,
                                    KelError** error, EventReport** report); /* 48 */
KEL_C_API void kel_openTraceFileMonitoringLink(TarnApi* api, uint64_t handle,
                                               const wchar_t* traceFile, KelError** error); /* 49 */
KEL_C_API void kel_startTraceFileMonitoringLink(TarnApi* api, uint64_t handle,
                                                KelError** error); /* 50 */
KEL_C_API void kel_stopTraceFileMonitoringLink(TarnApi* api, uint64_t handle,
                                               KelError** error); /* 51 */
KEL_C_API void kel_closeTraceFileMonitoringLink(TarnApi* api, uint64_t handle,
                                                KelError** error);             /* 52 */
KEL_C_API void kel_saveInterfaceConfiguration(TarnApi* api, KelError** error); /* 53 */
KEL_C_API void kel_disconnect(TarnApi* api, KelError** error);                 /* 56 */
KEL_C_API void kel_getInterfaceLongName(TarnApi* api, const wchar_t* name, KelError** error,
                                        wchar_t** longName); /* 57 */
KEL_C_API void kel_readMeasurementValues(TarnApi* api, const wchar_t* target, wchar_t** names,
                                         uint32_t nameCount, KelError** error,
                                         ReadDataResult*** results, uint32_t* resultCount); /* 58 */
KEL_C_API uint64_t kel_readMeasurementValuesAsync(TarnApi* api, const wchar_t* target,
                                                  wchar_t** names, uint32_t nameCount,
                                                  KelError** error,
                                                  ReadMeasurementValuesCallbackFunction callback,
                                                  void* context); /* 59 */
KEL_C_API void kel_readFile(TarnApi* api, const wchar_t* path, uint64_t value1, uint32_t value2,
                            bool flag, KelError** error, void** data,
                            uint32_t* dataLength);                       /* 60 */
KEL_C_API void kel_connectInterfaces(TarnApi* api, KelError** error);    /* 61 */
KEL_C_API void kel_disconnectInterfaces(TarnApi* api, KelError** error); /* 62 */
KEL_C_API void kel_executeDoIPBroadcast(TarnApi* api, KelError** error); /* 63 */
KEL_C_API void kel_refreshProjectList(TarnApi* api, KelError** error);   /* 64 */
KEL_C_API void kel_identifyTargets(TarnApi* api, wchar_t** targets, uint32_t targetCount,
                                   KelError** error, VariantIdentResult*** results,
                                   uint32_t* resultCount); /* 65 */
KEL_C_API uint64_t kel_identifyTargetsAsync(TarnApi* api, wchar_t** targets, uint32_t targetCount,
                                            KelError** error,
                                            IdentifyTargetsCallbackFunction callback,
                                            void* context);                              /* 66 */
KEL_C_API void kel_releaseSocketBridge(TarnApi* api, uint64_t bridge, KelError** error); /* 68 */
KEL_C_API void kel_createSocketBridge(TarnApi* api, uint32_t value1, uint32_t value2,
                                      KelError** error, uint64_t* bridge); /* 69 */
KEL_C_API void kel_getFilteredTargets(TarnApi* api, TargetFilter** filters, uint32_t filterCount,
                                      KelError** error, Target*** targets,
                                      uint32_t* targetCount); /* 74 */
KEL_C_API void kel_isProjectConversionRequired(TarnApi* api, const wchar_t* projectPath,
                                               KelError** error, bool* required); /* 75 */
KEL_C_API void kel_convertProject(TarnApi* api, const wchar_t* projectPath,
                                  KelError** error);                                     /* 76 */
KEL_C_API void kel_saveMoxConfiguration(TarnApi* api, KelError** error);                 /* 77 */
KEL_C_API void kel_stopCyclicServices(TarnApi* api, uint64_t cyclic, KelError** error);  /* 80 */
KEL_C_API void kel_clearLinkCache(TarnApi* api, KelError** error);                       /* 82 */
KEL_C_API void kel_removeInterface(TarnApi* api, const wchar_t* name, KelError** error); /* 84 */
KEL_C_API void kel_removeResource(TarnApi* api, const wchar_t* name1, const wchar_t* name2,
                                  KelError** error); /* 86 */
KEL_C_API void kel_resetSystemProperty(TarnApi* api, const wchar_t* name,
                                       KelError** error); /* 88 */
KEL_C_API void kel_getVendorModuleNamesEx(TarnApi* api, const wchar_t* text, KelError** error,
                                          wchar_t*** names, uint32_t* nameCount); /* 91 */
KEL_C_API void kel_disconnectDynInterfaces(TarnApi* api, wchar_t** names, uint32_t nameCount,
                                           KelError** error); /* 97 */
KEL_C_API void kel_cancelAsyncCalls(TarnApi* api, const uint64_t* callIds, uint32_t callIdCount,
                                    KelError** error); /* 99 */
KEL_C_API void kel_writeFile(TarnApi* api, const wchar_t* path, const uint8_t* data,
                             uint32_t dataLength, uint32_t value, bool flag, KelError** error,
                             uint32_t* result); /* 102 */
KEL_C_API void kel_deleteDirectory(TarnApi* api, const wchar_t* path, KelError** error,
                                   KelError** result);                      /* 109 */
KEL_C_API void kel_lock(TarnApi* api, KelError** error, uint64_t* lockId);  /* 115 */
KEL_C_API void kel_unlock(TarnApi* api, uint64_t lockId, KelError** error); /* 116 */
KEL_C_API void kel_isLocked(TarnApi* api, KelError** error, bool* locked);  /* 117 */
KEL_C_API void kel_breakLock(TarnApi* api, KelError** error);               /* 118 */
KEL_C_API void kel_setEthernetPinState(TarnApi* api, uint8_t state, wchar_t** interfaces,
                                       uint32_t interfaceCount, KelError** error); /* 119 */
KEL_C_API void kel_getEthernetPinState(TarnApi* api, const wchar_t* interfaceName, KelError** error,
                                       uint32_t* state); /* 120 */
KEL_C_API void kel_connectDynInterfaceEx(TarnApi* api, const wchar_t* name, bool flag,
                                         KelError** error); /* 123 */
KEL_C_API void kel_addUser(TarnApi* api, const wchar_t* text1, const wchar_t* text2, uint32_t value,
                           KelError** error);                                       /* 124 */
KEL_C_API void kel_removeUser(TarnApi* api, const wchar_t* text, KelError** error); /* 125 */
KEL_C_API void kel_updateUser(TarnApi* api, const wchar_t* text1, const wchar_t* text2,
                              const wchar_t* text3, uint32_t value, KelError** error);     /* 128 */
KEL_C_API void kel_getServerUserManagement(TarnApi* api, KelError** error, bool* enabled); /* 129 */
KEL_C_API void kel_setServerUserManagement(TarnApi* api, bool enabled, KelError** error);  /* 130 */
KEL_C_API void kel_registerServerHandler(uint64_t api, void* handler, KelError** error);   /* 131 */
KEL_C_API void kel_disconnectAllClients(TarnApi* api, KelError** error);                   /* 133 */
KEL_C_API void kel_testSocketBridge(TarnApi* api, uint64_t bridge, KelError** error,
                                    bool* result); /* 134 */
KEL_C_API void kel_calculateChecksum(TarnApi* api, const wchar_t* path, int32_t algorithm,
                                     KelError** error, wchar_t** checksum); /* 140 */
KEL_C_API void kel_runSequence(TarnApi* api, const wchar_t* sequence, wchar_t** arguments,
                               uint32_t argumentCount, KelError** error, uint64_t* run); /* 145 */
KEL_C_API void kel_releaseVehicleUnlock(TarnApi* api, uint64_t value, KelError** error); /* 147 */
KEL_C_API void kel_cancelSequence(TarnApi* api, uint64_t run, KelError** error);         /* 148 */
KEL_C_API void kel_applyUpdatePackage(TarnApi* api, const wchar_t* package,
                                      KelError** error); /* 151 */
KEL_C_API void kel_renameFile(TarnApi* api, const wchar_t* path, const wchar_t* newName,
                              KelError** error);                                          /* 152 */
KEL_C_API void kel_onConnectionBroken(TarnApi* api, KelError** error);                    /* 153 */
KEL_C_API void kel_checkUpdatesOnBroker(TarnApi* api, KelError** error, bool* available); /* 156 */
KEL_C_API void kel_autoUpdate(TarnApi* api, KelError** error, bool* updated);             /* 157 */
KEL_C_API void kel_createApiTraceMonitor(TarnApi* api, KelError** error,
                                         uint64_t* handle); /* 160 */
KEL_C_API void kel_getApiTraceContent(TarnApi* api, uint64_t handle, uint32_t value1,
                                      int32_t value2, KelError** error, void** data,
                                      uint32_t* dataLength); /* 161 */
KEL_C_API void kel_releaseApiTraceMonitor(TarnApi* api, uint64_t handle,
                                          KelError** error); /* 162 */
KEL_C_API void kel_getCurrentVersions(TarnApi* api, KelError** error, NamedItem*** versions,
                                      uint32_t* versionCount);                          /* 163 */
KEL_C_API void kel_checkUpdateSuccess(TarnApi* api, KelError** error, bool* succeeded); /* 164 */
KEL_C_API void kel_cleanUpdateTmp(TarnApi* api, KelError** error);                      /* 165 */
KEL_C_API void kel_reconnectRemoteServer(TarnApi* api, uint64_t handle, KelError** error,
                                         bool* reconnected); /* 172 */
KEL_C_API void kel_getTargetStatus(TarnApi* api, wchar_t** targets, uint32_t targetCount,
                                   KelError** error, TargetStatus*** statuses,
                                   uint32_t* statusCount); /* 181 */
KEL_C_API void kel_moveFile(TarnApi* api, const wchar_t* source, const wchar_t* target,
                            KelError** error, bool* moved); /* 184 */
KEL_C_API void kel_moveDirectory(TarnApi* api, const wchar_t* source, const wchar_t* target,
                                 KelError** error, bool* moved); /* 185 */
KEL_C_API void kel_pathExists(TarnApi* api, const wchar_t* path, KelError** error,
                              bool* exists); /* 186 */
KEL_C_API void kel_resolvePath(TarnApi* api, const wchar_t* path, KelError** error,
                               wchar_t** resolved);                            /* 188 */
KEL_C_API void kel_onConnectionClosed(TarnApi* api, KelError** error);         /* 195 */
KEL_C_API void kel_openTerminal(TarnApi* api, KelError** error, bool* opened); /* 196 */
KEL_C_API void kel_closeTerminal(TarnApi* api, KelError** error);              /* 197 */
KEL_C_API void kel_isDirectory(TarnApi* api, const wchar_t* path, KelError** error,
                               bool* result); /* 200 */
KEL_C_API void kel_isFile(TarnApi* api, const wchar_t* path, KelError** error,
                          bool* result); /* 203 */
KEL_C_API void kel_clearDoIPEcuCollection(TarnApi* api, KelError** error, KelError*** errors,
                                          uint32_t* errorCount);                     /* 205 */
KEL_C_API void kel_setBrokerUrl(TarnApi* api, const wchar_t* url, KelError** error); /* 206 */
KEL_C_API void kel_thirdPartyLogin(TarnApi* api, const wchar_t* text, KelError** error,
                                   bool* result);                       /* 213 */
KEL_C_API void kel_clearUpdatePackages(TarnApi* api, KelError** error); /* 214 */
KEL_C_API void kel_getThirdPartyLoginUrl(TarnApi* api, const wchar_t* text, KelError** error,
                                         wchar_t** url); /* 215 */
KEL_C_API void kel_selectDynamicProject(TarnApi* api, const wchar_t* projectName, wchar_t** items,
                                        uint32_t itemCount, KelError** error); /* 216 */
KEL_C_API void kel_getCertificateByPublicKey(TarnApi* api, const wchar_t* text1,
                                             const wchar_t* text2, const wchar_t* text3,
                                             const wchar_t* text4, KelError** error,
                                             wchar_t** certificate); /* 217 */
KEL_C_API void kel_createCertificateFromCSR(TarnApi* api, const wchar_t* text1,
                                            const wchar_t* text2, const wchar_t* text3,
                                            const wchar_t* text4, const wchar_t* text5,
                                            const wchar_t* text6, KelError** error,
                                            wchar_t** certificate); /* 218 */
KEL_C_API void kel_getCertificateChainById(TarnApi* api, const wchar_t* text1, const wchar_t* text2,
                                           const wchar_t* text3, KelError** error, wchar_t*** chain,
                                           uint32_t* chainCount);                       /* 219 */
KEL_C_API void kel_getEcuOrderFilePath(TarnApi* api, KelError** error, wchar_t** path); /* 224 */
KEL_C_API void kel_triggerAsyncCancels(TarnApi* api, const uint64_t* callIds, uint32_t callIdCount,
                                       KelError** error); /* 227 */
KEL_C_API void kel_addPublicDirectory(TarnApi* api, const wchar_t* name, const wchar_t* path,
                                      KelError** error); /* 230 */
KEL_C_API void kel_clearSpecificDtcs(TarnApi* api, const wchar_t* target, const uint32_t* dtcCodes,
                                     uint32_t dtcCodeCount, KelError** error,
                                     ClearDtcResult*** results, uint32_t* resultCount); /* 235 */
KEL_C_API uint64_t kel_clearSpecificDtcsAsync(TarnApi* api, const wchar_t* target,
                                              const uint32_t* dtcCodes, uint32_t dtcCodeCount,
                                              KelError** error,
                                              ClearSpecificDtcsCallbackFunction callback,
                                              void* context);                     /* 236 */
KEL_C_API void kel_startSOVDServer(TarnApi* api, KelError** error);               /* 237 */
KEL_C_API void kel_stopSOVDServer(TarnApi* api, KelError** error);                /* 238 */
KEL_C_API void kel_getState(TarnApi* api, KelError** error, int32_t* state);      /* 242 */
KEL_C_API void kel_getVersion(TarnApi* api, KelError** error, wchar_t** version); /* 243 */
KEL_C_API void kel_getSelectedProject(TarnApi* api, KelError** error,
                                      wchar_t** projectName); /* 244 */
KEL_C_API void kel_setSelectedProject(TarnApi* api, KelError** error,
                                      const wchar_t* projectName); /* 245 */
KEL_C_API void kel_getTargets(TarnApi* api, KelError** error, Target*** targets,
                              uint32_t* targetCount);                           /* 251 */
KEL_C_API void kel_getHandle(TarnApi* api, KelError** error, uint64_t* handle); /* 254 */
KEL_C_API void kel_getMonitoringLinks(TarnApi* api, KelError** error, wchar_t*** links,
                                      uint32_t* linkCount); /* 259 */
KEL_C_API void kel_getSessionTargetFilters(TarnApi* api, KelError** error, TargetFilter*** filters,
                                           uint32_t* filterCount); /* 263 */
KEL_C_API void kel_setSessionTargetFilters(TarnApi* api, KelError** error, TargetFilter** filters,
                                           uint32_t filterCount); /* 264 */
KEL_C_API void kel_getCurrentDebugTraceDirectory(TarnApi* api, KelError** error,
                                                 wchar_t** directory);                  /* 268 */
KEL_C_API void kel_getCallDuration(TarnApi* api, KelError** error, uint64_t* duration); /* 270 */
KEL_C_API void kel_setStatusText(TarnApi* api, KelError** error, const wchar_t* text);  /* 271 */

#ifdef __cplusplus
}
#endif

#endif /* KEL_C_H */
