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

/* ---- release functions: NULL-safe; _array takes the count the export gave ---- */
KEL_C_API void release_MvciServerError(MvciServerError* ptr);
KEL_C_API void release_MvciServerError_array(MvciServerError** ptr, uint64_t count);
KEL_C_API void release_NegativeResponse(NegativeResponse* ptr);
KEL_C_API void release_NegativeResponse_array(NegativeResponse** ptr, uint64_t count);
KEL_C_API void release_KelError(KelError* ptr);
KEL_C_API void release_KelError_array(KelError** ptr, uint64_t count);
KEL_C_API void release_NamedItem(NamedItem* ptr);
KEL_C_API void release_NamedItem_array(NamedItem** ptr, uint64_t count);

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
KEL_C_API void kel_connectRemoteServer(TarnApi* api, const wchar_t* text, KelError** error,
                                       uint64_t* handle); /* 37 */
KEL_C_API void kel_registerMeasurementValues(TarnApi* api, const wchar_t* target, wchar_t** names,
                                             uint32_t nameCount, KelError** error,
                                             uint64_t* registration); /* 39 */
KEL_C_API void kel_unregisterMeasurementValues(TarnApi* api, uint64_t registration,
                                               KelError** error);       /* 41 */
KEL_C_API void kel_cancelAllAsyncCalls(TarnApi* api, KelError** error); /* 43 */
KEL_C_API void kel_createSeed(TarnApi* api, uint32_t value1, uint32_t value2, KelError** error,
                              uint8_t** seed, uint32_t* seedLength); /* 44 */
KEL_C_API void kel_sendKey(TarnApi* api, const uint8_t* key, uint32_t keyLength,
                           KelError** error);                                           /* 45 */
KEL_C_API void kel_openEventChannel(TarnApi* api, KelError** error, uint64_t* channel); /* 46 */
KEL_C_API void kel_closeEventChannel(TarnApi* api, uint64_t channel, KelError** error); /* 47 */
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
KEL_C_API void kel_readFile(TarnApi* api, const wchar_t* path, uint64_t value1, uint32_t value2,
                            bool flag, KelError** error, void** data,
                            uint32_t* dataLength);                                       /* 60 */
KEL_C_API void kel_connectInterfaces(TarnApi* api, KelError** error);                    /* 61 */
KEL_C_API void kel_disconnectInterfaces(TarnApi* api, KelError** error);                 /* 62 */
KEL_C_API void kel_executeDoIPBroadcast(TarnApi* api, KelError** error);                 /* 63 */
KEL_C_API void kel_refreshProjectList(TarnApi* api, KelError** error);                   /* 64 */
KEL_C_API void kel_releaseSocketBridge(TarnApi* api, uint64_t bridge, KelError** error); /* 68 */
KEL_C_API void kel_createSocketBridge(TarnApi* api, uint32_t value1, uint32_t value2,
                                      KelError** error, uint64_t* bridge); /* 69 */
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
                                      KelError** error);                          /* 230 */
KEL_C_API void kel_startSOVDServer(TarnApi* api, KelError** error);               /* 237 */
KEL_C_API void kel_stopSOVDServer(TarnApi* api, KelError** error);                /* 238 */
KEL_C_API void kel_getState(TarnApi* api, KelError** error, int32_t* state);      /* 242 */
KEL_C_API void kel_getVersion(TarnApi* api, KelError** error, wchar_t** version); /* 243 */
KEL_C_API void kel_getSelectedProject(TarnApi* api, KelError** error,
                                      wchar_t** projectName); /* 244 */
KEL_C_API void kel_setSelectedProject(TarnApi* api, KelError** error,
                                      const wchar_t* projectName);              /* 245 */
KEL_C_API void kel_getHandle(TarnApi* api, KelError** error, uint64_t* handle); /* 254 */
KEL_C_API void kel_getMonitoringLinks(TarnApi* api, KelError** error, wchar_t*** links,
                                      uint32_t* linkCount); /* 259 */
KEL_C_API void kel_getCurrentDebugTraceDirectory(TarnApi* api, KelError** error,
                                                 wchar_t** directory);                  /* 268 */
KEL_C_API void kel_getCallDuration(TarnApi* api, KelError** error, uint64_t* duration); /* 270 */
KEL_C_API void kel_setStatusText(TarnApi* api, KelError** error, const wchar_t* text);  /* 271 */

#ifdef __cplusplus
}
#endif

#endif /* KEL_C_H */
