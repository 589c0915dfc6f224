// Generated from the interface description by tools/generate.py. Do not edit.
// The exports of the families Lifecycle, Events, Diagnostics, Services: each one line
// over the generic frame.

#include "async.h"

class IdentifyAllTargetsCallbackHandler final
    : public kel::Handler<IdentifyAllTargetsCallbackHandler,
                          Varno::Kel_cpp::TarnApi::IdentifyAllTargetsCallback, ::VariantIdentResult,
                          Varno::Kel_cpp::VariantIdentResult, IdentifyAllTargetsCallbackFunction> {
    using Handler::Handler;
};

class ReadIdentificationValuesCallbackHandler final
    : public kel::Handler<ReadIdentificationValuesCallbackHandler,
                          Varno::Kel_cpp::TarnApi::ReadIdentificationValuesCallback,
                          ::ReadDataResult, Varno::Kel_cpp::ReadDataResult,
                          ReadIdentificationValuesCallbackFunction> {
    using Handler::Handler;
};

class ReadDtcsCallbackHandler final
    : public kel::Handler<ReadDtcsCallbackHandler, Varno::Kel_cpp::TarnApi::ReadDtcsCallback,
                          ::ReadDtcResult, Varno::Kel_cpp::ReadDtcResult,
                          ReadDtcsCallbackFunction> {
    using Handler::Handler;
};

class ReadSupportedDtcsCallbackHandler final
    : public kel::Handler<ReadSupportedDtcsCallbackHandler,
                          Varno::Kel_cpp::TarnApi::ReadSupportedDtcsCallback, ::ReadDtcResult,
                          Varno::Kel_cpp::SupportedDtcResult, ReadSupportedDtcsCallbackFunction> {
    using Handler::Handler;
};

class ClearAllDtcsCallbackHandler final
    : public kel::Handler<ClearAllDtcsCallbackHandler,
                          Varno::Kel_cpp::TarnApi::ClearAllDtcsCallback, ::ClearDtcResult,
                          Varno::Kel_cpp::ClearDtcResult, ClearAllDtcsCallbackFunction> {
    using Handler::Handler;
};

class PerformQuickTestCallbackHandler final
    : public kel::Handler<PerformQuickTestCallbackHandler,
                          Varno::Kel_cpp::TarnApi::PerformQuickTestCallback, ::QuickTestResult,
                          Varno::Kel_cpp::QuickTestResult, PerformQuickTestCallbackFunction> {
    using Handler::Handler;
};

class IdentifyTargetsCallbackHandler final
    : public kel::Handler<IdentifyTargetsCallbackHandler,
                          Varno::Kel_cpp::TarnApi::IdentifyTargetsCallback, ::VariantIdentResult,
                          Varno::Kel_cpp::VariantIdentResult, IdentifyTargetsCallbackFunction> {
    using Handler::Handler;
};

class ExecuteServiceCallbackHandler final
    : public kel::Handler<ExecuteServiceCallbackHandler,
                          Varno::Kel_cpp::TarnApi::ExecuteServiceCallback, ::ServiceResult,
                          Varno::Kel_cpp::ServiceResult, ExecuteServiceCallbackFunction> {
    using Handler::Handler;
};

class ExecuteServiceInDefaultSessionCallbackHandler final
    : public kel::Handler<ExecuteServiceInDefaultSessionCallbackHandler,
                          Varno::Kel_cpp::TarnApi::ExecuteServiceInDefaultSessionCallback,
                          ::ServiceResult, Varno::Kel_cpp::ServiceResult,
                          ExecuteServiceInDefaultSessionCallbackFunction> {
    using Handler::Handler;
};

class ClearSpecificDtcsCallbackHandler final
    : public kel::Handler<ClearSpecificDtcsCallbackHandler,
                          Varno::Kel_cpp::TarnApi::ClearSpecificDtcsCallback, ::ClearDtcResult,
                          Varno::Kel_cpp::ClearDtcResult, ClearSpecificDtcsCallbackFunction> {
    using Handler::Handler;
};

extern "C" {

void kel_initialize(TarnApi* api, KelError** error) {
    kel::invoke(error, [&] { api->initialize(); });
}
void kel_end(TarnApi* api, KelError** error) {
    kel::invoke(error, [&] { api->end(); });
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
void kel_getServiceInfos(TarnApi* api, const wchar_t* text1, const wchar_t* text2, wchar_t** names,
                         uint32_t nameCount, int32_t value, KelError** error,
                         ServiceInfo*** services, uint32_t* serviceCount) {
    kel::invoke(
        error,
        [&] {
            return api->getServiceInfos(kel::in::text(text1), kel::in::text(text2),
                                        kel::in::texts(names, nameCount), value);
        },
        kel::out::records(services, serviceCount));
}
void kel_performQuickTest(TarnApi* api, wchar_t** targets, uint32_t targetCount,
                          DtcReadConfig* config, KelError** error, QuickTestResult*** results,
                          uint32_t* resultCount) {
    kel::invoke(
        error,
        [&] {
            return api->performQuickTest(kel::in::texts(targets, targetCount),
                                         kel::in::record(config));
        },
        kel::out::records(results, resultCount));
}
uint64_t kel_performQuickTestAsync(TarnApi* api, wchar_t** targets, uint32_t targetCount,
                                   DtcReadConfig* config, KelError** error,
                                   PerformQuickTestCallbackFunction callback, void* context) {
    return kel::start<PerformQuickTestCallbackHandler>(
        error, callback, context, [&](auto* handler) {
            return api->performQuickTestAsync(kel::in::texts(targets, targetCount),
                                              kel::in::record(config), handler);
        });
}
void kel_getIdentificationValueInfos(TarnApi* api, const wchar_t* target, KelError** error,
                                     ParameterInfo*** infos, uint32_t* infoCount) {
    kel::invoke(
        error, [&] { return api->getIdentificationValueInfos(kel::in::text(target)); },
        kel::out::records(infos, infoCount));
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
void kel_getActuatorServiceInfos(TarnApi* api, const wchar_t* text1, const wchar_t* text2,
                                 KelError** error, ParameterInfo*** infos, uint32_t* infoCount) {
    kel::invoke(
        error,
        [&] { return api->getActuatorServiceInfos(kel::in::text(text1), kel::in::text(text2)); },
        kel::out::records(infos, infoCount));
}
void kel_getFilteredTargets(TarnApi* api, TargetFilter** filters, uint32_t filterCount,
                            KelError** error, Target*** targets, uint32_t* targetCount) {
    kel::invoke(
        error, [&] { return api->getFilteredTargets(kel::in::records(filters, filterCount)); },
        kel::out::records(targets, targetCount));
}
void kel_startCyclicServices(TarnApi* api, const wchar_t* target, ServiceInput** services,
                             uint32_t serviceCount, uint32_t cycleTime, KelError** error,
                             uint64_t* cyclic) {
    kel::invoke(
        error,
        [&] {
            return api->startCyclicServices(kel::in::text(target),
                                            kel::in::records(services, serviceCount), cycleTime);
        },
        kel::out::value(cyclic));
}
void kel_getCyclicResults(TarnApi* api, uint64_t cyclic, KelError** error, ServiceResult*** results,
                          uint32_t* resultCount) {
    kel::invoke(
        error, [&] { return api->getCyclicResults(cyclic); },
        kel::out::records(results, resultCount));
}
void kel_stopCyclicServices(TarnApi* api, uint64_t cyclic, KelError** error) {
    kel::invoke(error, [&] { api->stopCyclicServices(cyclic); });
}
void kel_executeService(TarnApi* api, const wchar_t* target, ServiceInput** services,
                        uint32_t serviceCount, KelError** error, ServiceResult*** results,
                        uint32_t* resultCount) {
    kel::invoke(
        error,
        [&] {
            return api->executeService(kel::in::text(target),
                                       kel::in::records(services, serviceCount));
        },
        kel::out::records(results, resultCount));
}
uint64_t kel_executeServiceAsync(TarnApi* api, const wchar_t* target, ServiceInput** services,
                                 uint32_t serviceCount, KelError** error,
                                 ExecuteServiceCallbackFunction callback, void* context) {
    return kel::start<ExecuteServiceCallbackHandler>(error, callback, context, [&](auto* handler) {
        return api->executeServiceAsync(kel::in::text(target),
                                        kel::in::records(services, serviceCount), handler);
    });
}
void kel_updateCyclicServices(TarnApi* api, uint64_t cyclic, ServiceInput** services,
                              uint32_t serviceCount, KelError** error) {
    kel::invoke(error, [&] {
        api->updateCyclicServices(cyclic, kel::in::records(services, serviceCount));
    });
}
void kel_cancelAsyncCalls(TarnApi* api, const uint64_t* callIds, uint32_t callIdCount,
                          KelError** error) {
    kel::invoke(error, [&] { api->cancelAsyncCalls(kel::in::values(callIds, callIdCount)); });
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
void kel_registerServerHandler(uint64_t api, void* handler, KelError** error) {
    kel::invoke(error, [&] { kel::engine(api)->registerServerHandler(kel::in::handler(handler)); });
}
void kel_unlockVehicle(TarnApi* api, const wchar_t* target, ServiceInput** services,
                       uint32_t serviceCount, KelError** error, UnlockResult** result) {
    kel::invoke(
        error,
        [&] {
            return api->unlockVehicle(kel::in::text(target),
                                      kel::in::records(services, serviceCount));
        },
        kel::out::record(result));
}
void kel_releaseVehicleUnlock(TarnApi* api, uint64_t value, KelError** error) {
    kel::invoke(error, [&] { api->releaseVehicleUnlock(value); });
}
void kel_onConnectionBroken(TarnApi* api, KelError** error) {
    kel::invoke(error, [&] { api->onConnectionBroken(); });
}
void kel_executeServiceInDefaultSession(TarnApi* api, const wchar_t* target,
                                        ServiceInput** services, uint32_t serviceCount,
                                        KelError** error, ServiceResult*** results,
                                        uint32_t* resultCount) {
    kel::invoke(
        error,
        [&] {
            return api->executeServiceInDefaultSession(kel::in::text(target),
                                                       kel::in::records(services, serviceCount));
        },
        kel::out::records(results, resultCount));
}
uint64_t kel_executeServiceInDefaultSessionAsync(
    TarnApi* api, const wchar_t* target, ServiceInput** services, uint32_t serviceCount,
    KelError** error, ExecuteServiceInDefaultSessionCallbackFunction callback, void* context) {
    return kel::start<ExecuteServiceInDefaultSessionCallbackHandler>(
        error, callback, context, [&](auto* handler) {
            return api->executeServiceInDefaultSessionAsync(
                kel::in::text(target), kel::in::records(services, serviceCount), handler);
        });
}
void kel_getTargetStatus(TarnApi* api, wchar_t** targets, uint32_t targetCount, KelError** error,
                         TargetStatus*** statuses, uint32_t* statusCount) {
    kel::invoke(
        error, [&] { return api->getTargetStatus(kel::in::texts(targets, targetCount)); },
        kel::out::records(statuses, statusCount));
}
void kel_onConnectionClosed(TarnApi* api, KelError** error) {
    kel::invoke(error, [&] { api->onConnectionClosed(); });
}
void kel_triggerAsyncCancels(TarnApi* api, const uint64_t* callIds, uint32_t callIdCount,
                             KelError** error) {
    kel::invoke(error, [&] { api->triggerAsyncCancels(kel::in::values(callIds, callIdCount)); });
}
void kel_getParameterInfo(TarnApi* api, ParameterInfoConfig* config, KelError** error,
                          ParameterInfo** info) {
    kel::invoke(
        error, [&] { return api->getParameterInfo(kel::in::record(config)); },
        kel::out::record(info));
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
void kel_getState(TarnApi* api, KelError** error, int32_t* state) {
    kel::invoke(
        error, [&] { return api->getState(); }, kel::out::value(state));
}
void kel_getTargets(TarnApi* api, KelError** error, Target*** targets, uint32_t* targetCount) {
    kel::invoke(
        error, [&] { return api->getTargets(); }, kel::out::records(targets, targetCount));
}
void kel_getHandle(TarnApi* api, KelError** error, uint64_t* handle) {
    kel::invoke(
        error, [&] { return api->getHandle(); }, kel::out::value(handle));
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
void kel_getCallDuration(TarnApi* api, KelError** error, uint64_t* duration) {
    kel::invoke(
        error, [&] { return api->getCallDuration(); }, kel::out::value(duration));
}

} // extern "C"
