// Generated from the interface description by tools/generate.py. Do not edit.
// The exports: each one line over the generic frame.

#include "frame.h"
#include "generated/handlers.h"

extern "C" {

void release_MvciServerError(MvciServerError* ptr) { kel::release(ptr); }
void release_MvciServerError_array(MvciServerError** ptr, uint64_t count) {
    kel::releaseArray(ptr, count);
}
void release_NegativeResponse(NegativeResponse* ptr) { kel::release(ptr); }
void release_NegativeResponse_array(NegativeResponse** ptr, uint64_t count) {
    kel::releaseArray(ptr, count);
}
void release_KelError(KelError* ptr) { kel::release(ptr); }
void release_KelError_array(KelError** ptr, uint64_t count) { kel::releaseArray(ptr, count); }
void release_NamedItem(NamedItem* ptr) { kel::release(ptr); }
void release_NamedItem_array(NamedItem** ptr, uint64_t count) { kel::releaseArray(ptr, count); }
void release_ParameterResult(ParameterResult* ptr) { kel::release(ptr); }
void release_ParameterResult_array(ParameterResult** ptr, uint64_t count) {
    kel::releaseArray(ptr, count);
}
void release_ClearDtcResult(ClearDtcResult* ptr) { kel::release(ptr); }
void release_ClearDtcResult_array(ClearDtcResult** ptr, uint64_t count) {
    kel::releaseArray(ptr, count);
}
void release_DtcReadConfig(DtcReadConfig* ptr) { kel::release(ptr); }
void release_DtcReadConfig_array(DtcReadConfig** ptr, uint64_t count) {
    kel::releaseArray(ptr, count);
}
void release_ReadDtcResult(ReadDtcResult* ptr) { kel::release(ptr); }
void release_ReadDtcResult_array(ReadDtcResult** ptr, uint64_t count) {
    kel::releaseArray(ptr, count);
}
void release_DtcResult(DtcResult* ptr) { kel::release(ptr); }
void release_DtcResult_array(DtcResult** ptr, uint64_t count) { kel::releaseArray(ptr, count); }
void release_SpecialDataGroup(SpecialDataGroup* ptr) { kel::release(ptr); }
void release_SpecialDataGroup_array(SpecialDataGroup** ptr, uint64_t count) {
    kel::releaseArray(ptr, count);
}
void release_VariantIdentResult(VariantIdentResult* ptr) { kel::release(ptr); }
void release_VariantIdentResult_array(VariantIdentResult** ptr, uint64_t count) {
    kel::releaseArray(ptr, count);
}
void release_ReadDataResult(ReadDataResult* ptr) { kel::release(ptr); }
void release_ReadDataResult_array(ReadDataResult** ptr, uint64_t count) {
    kel::releaseArray(ptr, count);
}
void release_Target(Target* ptr) { kel::release(ptr); }
void release_Target_array(Target** ptr, uint64_t count) { kel::releaseArray(ptr, count); }
void release_TargetStatus(TargetStatus* ptr) { kel::release(ptr); }
void release_TargetStatus_array(TargetStatus** ptr, uint64_t count) {
    kel::releaseArray(ptr, count);
}
void release_TargetFilter(TargetFilter* ptr) { kel::release(ptr); }
void release_TargetFilter_array(TargetFilter** ptr, uint64_t count) {
    kel::releaseArray(ptr, count);
}
void release_KelEvent(KelEvent* ptr) { kel::release(ptr); }
void release_KelEvent_array(KelEvent** ptr, uint64_t count) { kel::releaseArray(ptr, count); }
void release_EventReport(EventReport* ptr) { kel::release(ptr); }
void release_EventReport_array(EventReport** ptr, uint64_t count) { kel::releaseArray(ptr, count); }
void release_FileFilter(FileFilter* ptr) { kel::release(ptr); }
void release_FileFilter_array(FileFilter** ptr, uint64_t count) { kel::releaseArray(ptr, count); }
void release_UserInfo(UserInfo* ptr) { kel::release(ptr); }
void release_UserInfo_array(UserInfo** ptr, uint64_t count) { kel::releaseArray(ptr, count); }
void release_LogInOutConfig(LogInOutConfig* ptr) { kel::release(ptr); }
void release_LogInOutConfig_array(LogInOutConfig** ptr, uint64_t count) {
    kel::releaseArray(ptr, count);
}
void release_TarnApiServerConfig(TarnApiServerConfig* ptr) { kel::release(ptr); }
void release_TarnApiServerConfig_array(TarnApiServerConfig** ptr, uint64_t count) {
    kel::releaseArray(ptr, count);
}
void release_ServerSettings(ServerSettings* ptr) { kel::release(ptr); }
void release_ServerSettings_array(ServerSettings** ptr, uint64_t count) {
    kel::releaseArray(ptr, count);
}

void kel_initialize(TarnApi* api, KelError** error) {
    kel::invoke(error, [&] { api->initialize(); });
}
void kel_end(TarnApi* api, KelError** error) {
    kel::invoke(error, [&] { api->end(); });
}
void kel_startServer(TarnApi* api, const wchar_t* name, KelError** error, wchar_t** address) {
    kel::invoke(
        error, [&] { return api->startServer(kel::in::text(name)); }, kel::out::text(address));
}
void kel_stopServer(TarnApi* api, const wchar_t* reason, KelError** error) {
    kel::invoke(error, [&] { api->stopServer(kel::in::text(reason)); });
}
void kel_restartServer(TarnApi* api, int32_t endClients, KelError** error) {
    kel::invoke(error, [&] { api->restartServer(endClients); });
}
void kel_saveProjectConfiguration(TarnApi* api, const wchar_t* projectName, KelError** error) {
    kel::invoke(error, [&] { api->saveProjectConfiguration(kel::in::text(projectName)); });
}
void kel_createMonitoringLink(TarnApi* api, const wchar_t* name, KelError** error,
                              uint64_t* handle) {
    kel::invoke(
        error, [&] { return api->createMonitoringLink(kel::in::text(name)); },
        kel::out::value(handle));
}
void kel_releaseMonitoringLink(TarnApi* api, uint64_t handle, KelError** error) {
    kel::invoke(error, [&] { api->releaseMonitoringLink(handle); });
}
void kel_createPduMonitor(TarnApi* api, KelError** error, uint64_t* handle) {
    kel::invoke(
        error, [&] { return api->createPduMonitor(); }, kel::out::value(handle));
}
void kel_saveConfiguration(TarnApi* api, KelError** error) {
    kel::invoke(error, [&] { api->saveConfiguration(); });
}
void kel_releasePduMonitor(TarnApi* api, uint64_t handle, KelError** error) {
    kel::invoke(error, [&] { api->releasePduMonitor(handle); });
}
void kel_identifyAllTargets(TarnApi* api, KelError** error, VariantIdentResult*** results,
                            uint32_t* resultCount) {
    kel::invoke(
        error, [&] { return api->identifyAllTargets(); }, kel::out::records(results, resultCount));
}
uint64_t kel_identifyAllTargetsAsync(TarnApi* api, KelError** error,
                                     IdentifyAllTargetsCallbackFunction callback, void* context) {
    return kel::start<IdentifyAllTargetsCallbackHandler>(
        error, callback, context,
        [&](auto* handler) { return api->identifyAllTargetsAsync(handler); });
}
void kel_readIdentificationValues(TarnApi* api, wchar_t** targets, uint32_t targetCount,
                                  KelError** error, ReadDataResult*** results,
                                  uint32_t* resultCount) {
    kel::invoke(
        error, [&] { return api->readIdentificationValues(kel::in::texts(targets, targetCount)); },
        kel::out::records(results, resultCount));
}
uint64_t kel_readIdentificationValuesAsync(TarnApi* api, wchar_t** targets, uint32_t targetCount,
                                           KelError** error,
                                           ReadIdentificationValuesCallbackFunction callback,
                                           void* context) {
    return kel::start<ReadIdentificationValuesCallbackHandler>(
        error, callback, context, [&](auto* handler) {
            return api->readIdentificationValuesAsync(kel::in::texts(targets, targetCount),
                                                      handler);
        });
}
void kel_readDataByIdentifiers(TarnApi* api, const wchar_t* target, wchar_t** identifiers,
                               uint32_t identifierCount, KelError** error,
                               ReadDataResult*** results, uint32_t* resultCount) {
    kel::invoke(
        error,
        [&] {
            return api->readDataByIdentifiers(kel::in::text(target),
                                              kel::in::texts(identifiers, identifierCount));
        },
        kel::out::records(results, resultCount));
}
void kel_identifyTarget(TarnApi* api, const wchar_t* target, KelError** error,
                        VariantIdentResult** result) {
    kel::invoke(
        error, [&] { return api->identifyTarget(kel::in::text(target)); },
        kel::out::record(result));
}
void kel_readDtcs(TarnApi* api, wchar_t** targets, uint32_t targetCount, DtcReadConfig* config,
                  KelError** error, ReadDtcResult*** results, uint32_t* resultCount) {
    kel::invoke(
        error,
        [&] {
            return api->readDtcs(kel::in::texts(targets, targetCount), kel::in::record(config));
        },
        kel::out::records(results, resultCount));
}
uint64_t kel_readDtcsAsync(TarnApi* api, wchar_t** targets, uint32_t targetCount,
                           DtcReadConfig* config, KelError** error,
                           ReadDtcsCallbackFunction callback, void* context) {
    return kel::start<ReadDtcsCallbackHandler>(error, callback, context, [&](auto* handler) {
        return api->readDtcsAsync(kel::in::texts(targets, targetCount), kel::in::record(config),
                                  handler);
    });
}
void kel_readSupportedDtcs(TarnApi* api, wchar_t** targets, uint32_t targetCount,
                           DtcReadConfig* config, KelError** error, ReadDtcResult*** results,
                           uint32_t* resultCount) {
    kel::invoke(
        error,
        [&] {
            return api->readSupportedDtcs(kel::in::texts(targets, targetCount),
                                          kel::in::record(config));
        },
        kel::out::records(results, resultCount));
}
uint64_t kel_readSupportedDtcsAsync(TarnApi* api, wchar_t** targets, uint32_t targetCount,
                                    DtcReadConfig* config, KelError** error,
                                    ReadSupportedDtcsCallbackFunction callback, void* context) {
    return kel::start<ReadSupportedDtcsCallbackHandler>(
        error, callback, context, [&](auto* handler) {
            return api->readSupportedDtcsAsync(kel::in::texts(targets, targetCount),
                                               kel::in::record(config), handler);
        });
}
void kel_clearAllDtcs(TarnApi* api, wchar_t** targets, uint32_t targetCount, KelError** error,
                      ClearDtcResult*** results, uint32_t* resultCount) {
    kel::invoke(
        error, [&] { return api->clearAllDtcs(kel::in::texts(targets, targetCount)); },
        kel::out::records(results, resultCount));
}
uint64_t kel_clearAllDtcsAsync(TarnApi* api, wchar_t** targets, uint32_t targetCount,
                               KelError** error, ClearAllDtcsCallbackFunction callback,
                               void* context) {
    return kel::start<ClearAllDtcsCallbackHandler>(error, callback, context, [&](auto* handler) {
        return api->clearAllDtcsAsync(kel::in::texts(targets, targetCount), handler);
    });
}
void kel_connectRemoteServer(TarnApi* api, const wchar_t* address, KelError** error,
                             uint64_t* handle) {
    kel::invoke(
        error, [&] { return api->connectRemoteServer(kel::in::text(address)); },
        kel::out::engine(handle));
}
void kel_registerMeasurementValues(TarnApi* api, const wchar_t* target, wchar_t** names,
                                   uint32_t nameCount, KelError** error, uint64_t* registration) {
    kel::invoke(
        error,
        [&] {
            return api->registerMeasurementValues(kel::in::text(target),
                                                  kel::in::texts(names, nameCount));
        },
        kel::out::value(registration));
}
void kel_getMeasurementValues(TarnApi* api, uint64_t registration, KelError** error,
                              ReadDataResult*** results, uint32_t* resultCount) {
    kel::invoke(
        error, [&] { return api->getMeasurementValues(registration); },
        kel::out::records(results, resultCount));
}
void kel_unregisterMeasurementValues(TarnApi* api, uint64_t registration, KelError** error) {
    kel::invoke(error, [&] { api->unregisterMeasurementValues(registration); });
}
void kel_cancelAllAsyncCalls(TarnApi* api, KelError** error) {
    kel::invoke(error, [&] { api->cancelAllAsyncCalls(); });
}
void kel_createSeed(TarnApi* api, uint32_t value1, uint32_t value2, KelError** error,
                    uint8_t** seed, uint32_t* seedLength) {
    kel::invoke(
        error, [&] { return api->createSeed(value1, value2); }, kel::out::buffer(seed, seedLength));
}
void kel_sendKey(TarnApi* api, const uint8_t* key, uint32_t keyLength, KelError** error) {
    kel::invoke(error, [&] { api->sendKey(kel::in::values(key, keyLength)); });
}
void kel_openEventChannel(TarnApi* api, KelError** error, uint64_t* channel) {
    kel::invoke(
        error, [&] { return api->openEventChannel(); }, kel::out::value(channel));
}
void kel_closeEventChannel(TarnApi* api, uint64_t channel, KelError** error) {
    kel::invoke(error, [&] { api->closeEventChannel(channel); });
}
void kel_getCurrentEvents(TarnApi* api, uint64_t channel, uint32_t limit, KelError** error,
                          EventReport** report) {
    kel::invoke(
        error, [&] { return api->getCurrentEvents(channel, limit); }, kel::out::record(report));
}
void kel_openTraceFileMonitoringLink(TarnApi* api, uint64_t handle, const wchar_t* traceFile,
                                     KelError** error) {
    kel::invoke(error, [&] { api->openTraceFileMonitoringLink(handle, kel::in::text(traceFile)); });
}
void kel_startTraceFileMonitoringLink(TarnApi* api, uint64_t handle, KelError** error) {
    kel::invoke(error, [&] { api->startTraceFileMonitoringLink(handle); });
}
void kel_stopTraceFileMonitoringLink(TarnApi* api, uint64_t handle, KelError** error) {
    kel::invoke(error, [&] { api->stopTraceFileMonitoringLink(handle); });
}
void kel_closeTraceFileMonitoringLink(TarnApi* api, uint64_t handle, KelError** error) {
    kel::invoke(error, [&] { api->closeTraceFileMonitoringLink(handle); });
}
void kel_saveInterfaceConfiguration(TarnApi* api, KelError** error) {
    kel::invoke(error, [&] { api->saveInterfaceConfiguration(); });
}
void kel_disconnect(TarnApi* api, KelError** error) {
    kel::invoke(error, [&] { api->disconnect(); });
}
void kel_getInterfaceLongName(TarnApi* api, const wchar_t* name, KelError** error,
                              wchar_t** longName) {
    kel::invoke(
        error, [&] { return api->getInterfaceLongName(kel::in::text(name)); },
        kel::out::text(longName));
}
void kel_readMeasurementValues(TarnApi* api, const wchar_t* target, wchar_t** names,
                               uint32_t nameCount, KelError** error, ReadDataResult*** results,
                               uint32_t* resultCount) {
    kel::invoke(
        error,
        [&] {
            return api->readMeasurementValues(kel::in::text(target),
                                              kel::in::texts(names, nameCount));
        },
        kel::out::records(results, resultCount));
}
uint64_t kel_readMeasurementValuesAsync(TarnApi* api, const wchar_t* target, wchar_t** names,
                                        uint32_t nameCount, KelError** error,
                                        ReadMeasurementValuesCallbackFunction callback,
                                        void* context) {
    return kel::start<ReadMeasurementValuesCallbackHandler>(
        error, callback, context, [&](auto* handler) {
            return api->readMeasurementValuesAsync(kel::in::text(target),
                                                   kel::in::texts(names, nameCount), handler);
        });
}
void kel_readFile(TarnApi* api, const wchar_t* path, uint64_t value1, uint32_t value2, uint8_t flag,
                  KelError** error, void** data, uint32_t* dataLength) {
    kel::invoke(
        error, [&] { return api->readFile(kel::in::text(path), value1, value2, flag != 0); },
        kel::out::buffer(data, dataLength));
}
void kel_connectInterfaces(TarnApi* api, KelError** error) {
    kel::invoke(error, [&] { api->connectInterfaces(); });
}
void kel_disconnectInterfaces(TarnApi* api, KelError** error) {
    kel::invoke(error, [&] { api->disconnectInterfaces(); });
}
void kel_executeDoIPBroadcast(TarnApi* api, KelError** error) {
    kel::invoke(error, [&] { api->executeDoIPBroadcast(); });
}
void kel_refreshProjectList(TarnApi* api, KelError** error) {
    kel::invoke(error, [&] { api->refreshProjectList(); });
}
void kel_identifyTargets(TarnApi* api, wchar_t** targets, uint32_t targetCount, KelError** error,
                         VariantIdentResult*** results, uint32_t* resultCount) {
    kel::invoke(
        error, [&] { return api->identifyTargets(kel::in::texts(targets, targetCount)); },
        kel::out::records(results, resultCount));
}
uint64_t kel_identifyTargetsAsync(TarnApi* api, wchar_t** targets, uint32_t targetCount,
                                  KelError** error, IdentifyTargetsCallbackFunction callback,
                                  void* context) {
    return kel::start<IdentifyTargetsCallbackHandler>(error, callback, context, [&](auto* handler) {
        return api->identifyTargetsAsync(kel::in::texts(targets, targetCount), handler);
    });
}
void kel_releaseSocketBridge(TarnApi* api, uint64_t bridge, KelError** error) {
    kel::invoke(error, [&] { api->releaseSocketBridge(bridge); });
}
void kel_createSocketBridge(TarnApi* api, uint32_t value1, uint32_t value2, KelError** error,
                            uint64_t* bridge) {
    kel::invoke(
        error, [&] { return api->createSocketBridge(value1, value2); }, kel::out::value(bridge));
}
void kel_getFilteredTargets(TarnApi* api, TargetFilter** filters, uint32_t filterCount,
                            KelError** error, Target*** targets, uint32_t* targetCount) {
    kel::invoke(
        error, [&] { return api->getFilteredTargets(kel::in::records(filters, filterCount)); },
        kel::out::records(targets, targetCount));
}
void kel_isProjectConversionRequired(TarnApi* api, const wchar_t* projectPath, KelError** error,
                                     uint8_t* required) {
    kel::invoke(
        error, [&] { return api->isProjectConversionRequired(kel::in::text(projectPath)); },
        kel::out::value(required));
}
void kel_convertProject(TarnApi* api, const wchar_t* projectPath, KelError** error) {
    kel::invoke(error, [&] { api->convertProject(kel::in::text(projectPath)); });
}
void kel_saveMoxConfiguration(TarnApi* api, KelError** error) {
    kel::invoke(error, [&] { api->saveMoxConfiguration(); });
}
void kel_stopCyclicServices(TarnApi* api, uint64_t cyclic, KelError** error) {
    kel::invoke(error, [&] { api->stopCyclicServices(cyclic); });
}
void kel_clearLinkCache(TarnApi* api, KelError** error) {
    kel::invoke(error, [&] { api->clearLinkCache(); });
}
void kel_removeInterface(TarnApi* api, const wchar_t* name, KelError** error) {
    kel::invoke(error, [&] { api->removeInterface(kel::in::text(name)); });
}
void kel_removeResource(TarnApi* api, const wchar_t* name1, const wchar_t* name2,
                        KelError** error) {
    kel::invoke(error, [&] { api->removeResource(kel::in::text(name1), kel::in::text(name2)); });
}
void kel_resetSystemProperty(TarnApi* api, const wchar_t* name, KelError** error) {
    kel::invoke(error, [&] { api->resetSystemProperty(kel::in::text(name)); });
}
void kel_getVendorModuleNamesEx(TarnApi* api, const wchar_t* text, KelError** error,
                                wchar_t*** names, uint32_t* nameCount) {
    kel::invoke(
        error, [&] { return api->getVendorModuleNamesEx(kel::in::text(text)); },
        kel::out::texts(names, nameCount));
}
void kel_disconnectDynInterfaces(TarnApi* api, wchar_t** names, uint32_t nameCount,
                                 KelError** error) {
    kel::invoke(error, [&] { api->disconnectDynInterfaces(kel::in::texts(names, nameCount)); });
}
void kel_cancelAsyncCalls(TarnApi* api, const uint64_t* callIds, uint32_t callIdCount,
                          KelError** error) {
    kel::invoke(error, [&] { api->cancelAsyncCalls(kel::in::values(callIds, callIdCount)); });
}
void kel_writeFile(TarnApi* api, const wchar_t* path, const uint8_t* data, uint32_t dataLength,
                   uint32_t value, uint8_t flag, KelError** error, uint32_t* result) {
    kel::invoke(
        error,
        [&] {
            return api->writeFile(kel::in::text(path), kel::in::values(data, dataLength), value,
                                  flag != 0);
        },
        kel::out::value(result));
}
void kel_deleteDirectory(TarnApi* api, const wchar_t* path, KelError** error, KelError** result) {
    kel::invoke(
        error, [&] { return api->deleteDirectory(kel::in::text(path)); }, kel::out::record(result));
}
void kel_lock(TarnApi* api, KelError** error, uint64_t* lockId) {
    kel::invoke(
        error, [&] { return api->lock(); }, kel::out::value(lockId));
}
void kel_unlock(TarnApi* api, uint64_t lockId, KelError** error) {
    kel::invoke(error, [&] { api->unlock(lockId); });
}
void kel_isLocked(TarnApi* api, KelError** error, bool* locked) {
    kel::invoke(
        error, [&] { return api->isLocked(); }, kel::out::value(locked));
}
void kel_breakLock(TarnApi* api, KelError** error) {
    kel::invoke(error, [&] { api->breakLock(); });
}
void kel_setEthernetPinState(TarnApi* api, uint8_t state, wchar_t** interfaces,
                             uint32_t interfaceCount, KelError** error) {
    kel::invoke(error, [&] {
        api->setEthernetPinState(state, kel::in::texts(interfaces, interfaceCount));
    });
}
void kel_getEthernetPinState(TarnApi* api, const wchar_t* interfaceName, KelError** error,
                             uint32_t* state) {
    kel::invoke(
        error, [&] { return api->getEthernetPinState(kel::in::text(interfaceName)); },
        kel::out::value(state));
}
void kel_connectDynInterfaceEx(TarnApi* api, const wchar_t* name, uint8_t flag, KelError** error) {
    kel::invoke(error, [&] { api->connectDynInterfaceEx(kel::in::text(name), flag != 0); });
}
void kel_addUser(TarnApi* api, const wchar_t* name, const wchar_t* password, uint32_t role,
                 KelError** error) {
    kel::invoke(error, [&] { api->addUser(kel::in::text(name), kel::in::text(password), role); });
}
void kel_removeUser(TarnApi* api, const wchar_t* name, KelError** error) {
    kel::invoke(error, [&] { api->removeUser(kel::in::text(name)); });
}
void kel_getUsers(TarnApi* api, KelError** error, UserInfo*** users, uint32_t* userCount) {
    kel::invoke(
        error, [&] { return api->getUsers(); }, kel::out::records(users, userCount));
}
void kel_logOut(TarnApi* api, LogInOutConfig* config, KelError** error) {
    kel::invoke(error, [&] { api->logOut(kel::in::record(config)); });
}
void kel_updateUser(TarnApi* api, const wchar_t* name, const wchar_t* newName,
                    const wchar_t* newPassword, uint32_t role, KelError** error) {
    kel::invoke(error, [&] {
        api->updateUser(kel::in::text(name), kel::in::text(newName), kel::in::text(newPassword),
                        role);
    });
}
void kel_getServerUserManagement(TarnApi* api, KelError** error, uint8_t* enabled) {
    kel::invoke(
        error, [&] { return api->getServerUserManagement(); }, kel::out::value(enabled));
}
void kel_setServerUserManagement(TarnApi* api, uint8_t enabled, KelError** error) {
    kel::invoke(error, [&] { api->setServerUserManagement(enabled != 0); });
}
void kel_registerServerHandler(uint64_t api, void* handler, KelError** error) {
    kel::invoke(error, [&] { kel::engine(api)->registerServerHandler(kel::in::handler(handler)); });
}
void kel_disconnectAllClients(TarnApi* api, KelError** error) {
    kel::invoke(error, [&] { api->disconnectAllClients(); });
}
void kel_testSocketBridge(TarnApi* api, uint64_t bridge, KelError** error, uint8_t* result) {
    kel::invoke(
        error, [&] { return api->testSocketBridge(bridge); }, kel::out::value(result));
}
void kel_calculateChecksum(TarnApi* api, const wchar_t* path, int32_t algorithm, KelError** error,
                           wchar_t** checksum) {
    kel::invoke(
        error, [&] { return api->calculateChecksum(kel::in::text(path), algorithm); },
        kel::out::text(checksum));
}
void kel_runSequence(TarnApi* api, const wchar_t* sequence, wchar_t** arguments,
                     uint32_t argumentCount, KelError** error, uint64_t* run) {
    kel::invoke(
        error,
        [&] {
            return api->runSequence(kel::in::text(sequence),
                                    kel::in::texts(arguments, argumentCount));
        },
        kel::out::value(run));
}
void kel_releaseVehicleUnlock(TarnApi* api, uint64_t value, KelError** error) {
    kel::invoke(error, [&] { api->releaseVehicleUnlock(value); });
}
void kel_cancelSequence(TarnApi* api, uint64_t run, KelError** error) {
    kel::invoke(error, [&] { api->cancelSequence(run); });
}
void kel_applyUpdatePackage(TarnApi* api, const wchar_t* package, KelError** error) {
    kel::invoke(error, [&] { api->applyUpdatePackage(kel::in::text(package)); });
}
void kel_renameFile(TarnApi* api, const wchar_t* path, const wchar_t* newName, KelError** error) {
    kel::invoke(error, [&] { api->renameFile(kel::in::text(path), kel::in::text(newName)); });
}
void kel_onConnectionBroken(TarnApi* api, KelError** error) {
    kel::invoke(error, [&] { api->onConnectionBroken(); });
}
void kel_checkUpdatesOnBroker(TarnApi* api, KelError** error, bool* available) {
    kel::invoke(
        error, [&] { return api->checkUpdatesOnBroker(); }, kel::out::value(available));
}
void kel_autoUpdate(TarnApi* api, KelError** error, bool* updated) {
    kel::invoke(
        error, [&] { return api->autoUpdate(); }, kel::out::value(updated));
}
void kel_createApiTraceMonitor(TarnApi* api, KelError** error, uint64_t* handle) {
    kel::invoke(
        error, [&] { return api->createApiTraceMonitor(); }, kel::out::value(handle));
}
void kel_getApiTraceContent(TarnApi* api, uint64_t handle, uint32_t value1, int32_t value2,
                            KelError** error, void** data, uint32_t* dataLength) {
    kel::invoke(
        error, [&] { return api->getApiTraceContent(handle, value1, value2); },
        kel::out::buffer(data, dataLength));
}
void kel_releaseApiTraceMonitor(TarnApi* api, uint64_t handle, KelError** error) {
    kel::invoke(error, [&] { api->releaseApiTraceMonitor(handle); });
}
void kel_getCurrentVersions(TarnApi* api, KelError** error, NamedItem*** versions,
                            uint32_t* versionCount) {
    kel::invoke(
        error, [&] { return api->getCurrentVersions(); },
        kel::out::records(versions, versionCount));
}
void kel_checkUpdateSuccess(TarnApi* api, KelError** error, bool* succeeded) {
    kel::invoke(
        error, [&] { return api->checkUpdateSuccess(); }, kel::out::value(succeeded));
}
void kel_cleanUpdateTmp(TarnApi* api, KelError** error) {
    kel::invoke(error, [&] { api->cleanUpdateTmp(); });
}
void kel_reconnectRemoteServer(TarnApi* api, uint64_t handle, KelError** error,
                               uint8_t* reconnected) {
    kel::invoke(
        error, [&] { return api->reconnectRemoteServer(handle); }, kel::out::value(reconnected));
}
void kel_filterFiles(TarnApi* api, FileFilter** filters, uint32_t filterCount, const wchar_t* text,
                     KelError** error, wchar_t*** files, uint32_t* fileCount) {
    kel::invoke(
        error,
        [&] {
            return api->filterFiles(kel::in::records(filters, filterCount), kel::in::text(text));
        },
        kel::out::texts(files, fileCount));
}
void kel_getTargetStatus(TarnApi* api, wchar_t** targets, uint32_t targetCount, KelError** error,
                         TargetStatus*** statuses, uint32_t* statusCount) {
    kel::invoke(
        error, [&] { return api->getTargetStatus(kel::in::texts(targets, targetCount)); },
        kel::out::records(statuses, statusCount));
}
void kel_moveFile(TarnApi* api, const wchar_t* source, const wchar_t* target, KelError** error,
                  uint8_t* moved) {
    kel::invoke(
        error, [&] { return api->moveFile(kel::in::text(source), kel::in::text(target)); },
        kel::out::value(moved));
}
void kel_moveDirectory(TarnApi* api, const wchar_t* source, const wchar_t* target, KelError** error,
                       uint8_t* moved) {
    kel::invoke(
        error, [&] { return api->moveDirectory(kel::in::text(source), kel::in::text(target)); },
        kel::out::value(moved));
}
void kel_pathExists(TarnApi* api, const wchar_t* path, KelError** error, uint8_t* exists) {
    kel::invoke(
        error, [&] { return api->pathExists(kel::in::text(path)); }, kel::out::value(exists));
}
void kel_resolvePath(TarnApi* api, const wchar_t* path, KelError** error, wchar_t** resolved) {
    kel::invoke(
        error, [&] { return api->resolvePath(kel::in::text(path)); }, kel::out::text(resolved));
}
void kel_onConnectionClosed(TarnApi* api, KelError** error) {
    kel::invoke(error, [&] { api->onConnectionClosed(); });
}
void kel_openTerminal(TarnApi* api, KelError** error, uint8_t* opened) {
    kel::invoke(
        error, [&] { return api->openTerminal(); }, kel::out::value(opened));
}
void kel_closeTerminal(TarnApi* api, KelError** error) {
    kel::invoke(error, [&] { api->closeTerminal(); });
}
void kel_isDirectory(TarnApi* api, const wchar_t* path, KelError** error, uint8_t* result) {
    kel::invoke(
        error, [&] { return api->isDirectory(kel::in::text(path)); }, kel::out::value(result));
}
void kel_isFile(TarnApi* api, const wchar_t* path, KelError** error, uint8_t* result) {
    kel::invoke(
        error, [&] { return api->isFile(kel::in::text(path)); }, kel::out::value(result));
}
void kel_clearDoIPEcuCollection(TarnApi* api, KelError** error, KelError*** errors,
                                uint32_t* errorCount) {
    kel::invoke(
        error, [&] { return api->clearDoIPEcuCollection(); },
        kel::out::records(errors, errorCount));
}
void kel_setBrokerUrl(TarnApi* api, const wchar_t* url, KelError** error) {
    kel::invoke(error, [&] { api->setBrokerUrl(kel::in::text(url)); });
}
void kel_thirdPartyLogin(TarnApi* api, const wchar_t* code, KelError** error, uint8_t* result) {
    kel::invoke(
        error, [&] { return api->thirdPartyLogin(kel::in::text(code)); }, kel::out::value(result));
}
void kel_clearUpdatePackages(TarnApi* api, KelError** error) {
    kel::invoke(error, [&] { api->clearUpdatePackages(); });
}
void kel_getThirdPartyLoginUrl(TarnApi* api, const wchar_t* provider, KelError** error,
                               wchar_t** url) {
    kel::invoke(
        error, [&] { return api->getThirdPartyLoginUrl(kel::in::text(provider)); },
        kel::out::text(url));
}
void kel_selectDynamicProject(TarnApi* api, const wchar_t* projectName, wchar_t** items,
                              uint32_t itemCount, KelError** error) {
    kel::invoke(error, [&] {
        api->selectDynamicProject(kel::in::text(projectName), kel::in::texts(items, itemCount));
    });
}
void kel_getCertificateByPublicKey(TarnApi* api, const wchar_t* publicKey, const wchar_t* text2,
                                   const wchar_t* text3, const wchar_t* text4, KelError** error,
                                   wchar_t** certificate) {
    kel::invoke(
        error,
        [&] {
            return api->getCertificateByPublicKey(kel::in::text(publicKey), kel::in::text(text2),
                                                  kel::in::text(text3), kel::in::text(text4));
        },
        kel::out::text(certificate));
}
void kel_createCertificateFromCSR(TarnApi* api, const wchar_t* text1, const wchar_t* text2,
                                  const wchar_t* text3, const wchar_t* text4, const wchar_t* text5,
                                  const wchar_t* text6, KelError** error, wchar_t** certificate) {
    kel::invoke(
        error,
        [&] {
            return api->createCertificateFromCSR(kel::in::text(text1), kel::in::text(text2),
                                                 kel::in::text(text3), kel::in::text(text4),
                                                 kel::in::text(text5), kel::in::text(text6));
        },
        kel::out::text(certificate));
}
void kel_getCertificateChainById(TarnApi* api, const wchar_t* id, const wchar_t* text2,
                                 const wchar_t* text3, KelError** error, wchar_t*** chain,
                                 uint32_t* chainCount) {
    kel::invoke(
        error,
        [&] {
            return api->getCertificateChainById(kel::in::text(id), kel::in::text(text2),
                                                kel::in::text(text3));
        },
        kel::out::texts(chain, chainCount));
}
void kel_getEcuOrderFilePath(TarnApi* api, KelError** error, wchar_t** path) {
    kel::invoke(
        error, [&] { return api->getEcuOrderFilePath(); }, kel::out::text(path));
}
void kel_triggerAsyncCancels(TarnApi* api, const uint64_t* callIds, uint32_t callIdCount,
                             KelError** error) {
    kel::invoke(error, [&] { api->triggerAsyncCancels(kel::in::values(callIds, callIdCount)); });
}
void kel_addPublicDirectory(TarnApi* api, const wchar_t* name, const wchar_t* path,
                            KelError** error) {
    kel::invoke(error, [&] { api->addPublicDirectory(kel::in::text(name), kel::in::text(path)); });
}
void kel_clearSpecificDtcs(TarnApi* api, const wchar_t* target, const uint32_t* dtcCodes,
                           uint32_t dtcCodeCount, KelError** error, ClearDtcResult*** results,
                           uint32_t* resultCount) {
    kel::invoke(
        error,
        [&] {
            return api->clearSpecificDtcs(kel::in::text(target),
                                          kel::in::values(dtcCodes, dtcCodeCount));
        },
        kel::out::records(results, resultCount));
}
uint64_t kel_clearSpecificDtcsAsync(TarnApi* api, const wchar_t* target, const uint32_t* dtcCodes,
                                    uint32_t dtcCodeCount, KelError** error,
                                    ClearSpecificDtcsCallbackFunction callback, void* context) {
    return kel::start<ClearSpecificDtcsCallbackHandler>(
        error, callback, context, [&](auto* handler) {
            return api->clearSpecificDtcsAsync(kel::in::text(target),
                                               kel::in::values(dtcCodes, dtcCodeCount), handler);
        });
}
void kel_startSOVDServer(TarnApi* api, KelError** error) {
    kel::invoke(error, [&] { api->startSOVDServer(); });
}
void kel_stopSOVDServer(TarnApi* api, KelError** error) {
    kel::invoke(error, [&] { api->stopSOVDServer(); });
}
void kel_logIn(TarnApi* api, LogInOutConfig* config, KelError** error) {
    kel::invoke(error, [&] { api->logIn(kel::in::record(config)); });
}
void kel_getState(TarnApi* api, KelError** error, int32_t* state) {
    kel::invoke(
        error, [&] { return api->getState(); }, kel::out::value(state));
}
void kel_getVersion(TarnApi* api, KelError** error, wchar_t** version) {
    kel::invoke(
        error, [&] { return api->getVersion(); }, kel::out::text(version));
}
void kel_getSelectedProject(TarnApi* api, KelError** error, wchar_t** projectName) {
    kel::invoke(
        error, [&] { return api->getSelectedProject(); }, kel::out::text(projectName));
}
void kel_setSelectedProject(TarnApi* api, KelError** error, const wchar_t* projectName) {
    kel::invoke(error, [&] { api->setSelectedProject(kel::in::text(projectName)); });
}
void kel_getServerSettings(TarnApi* api, KelError** error, ServerSettings** settings) {
    kel::invoke(
        error, [&] { return api->getServerSettings(); }, kel::out::record(settings));
}
void kel_getTargets(TarnApi* api, KelError** error, Target*** targets, uint32_t* targetCount) {
    kel::invoke(
        error, [&] { return api->getTargets(); }, kel::out::records(targets, targetCount));
}
void kel_getHandle(TarnApi* api, KelError** error, uint64_t* handle) {
    kel::invoke(
        error, [&] { return api->getHandle(); }, kel::out::value(handle));
}
void kel_getMonitoringLinks(TarnApi* api, KelError** error, wchar_t*** links, uint32_t* linkCount) {
    kel::invoke(
        error, [&] { return api->getMonitoringLinks(); }, kel::out::texts(links, linkCount));
}
void kel_getSessionTargetFilters(TarnApi* api, KelError** error, TargetFilter*** filters,
                                 uint32_t* filterCount) {
    kel::invoke(
        error, [&] { return api->getSessionTargetFilters(); },
        kel::out::records(filters, filterCount));
}
void kel_setSessionTargetFilters(TarnApi* api, KelError** error, TargetFilter** filters,
                                 uint32_t filterCount) {
    kel::invoke(error,
                [&] { api->setSessionTargetFilters(kel::in::records(filters, filterCount)); });
}
void kel_getCurrentDebugTraceDirectory(TarnApi* api, KelError** error, wchar_t** directory) {
    kel::invoke(
        error, [&] { return api->getCurrentDebugTraceDirectory(); }, kel::out::text(directory));
}
void kel_getServerConfiguration(TarnApi* api, KelError** error, TarnApiServerConfig** config) {
    kel::invoke(
        error, [&] { return api->getServerConfiguration(); }, kel::out::record(config));
}
void kel_getCallDuration(TarnApi* api, KelError** error, uint64_t* duration) {
    kel::invoke(
        error, [&] { return api->getCallDuration(); }, kel::out::value(duration));
}
void kel_setStatusText(TarnApi* api, KelError** error, const wchar_t* text) {
    kel::invoke(error, [&] { api->setStatusText(kel::in::text(text)); });
}

} // extern "C"
