// Generated from the interface description by tools/generate.py. Do not edit.
// The exports of the families Flash, Coding, Measurement, Sequences, EcuOrder, VehicleReports,
// VehicleUpdate: each one line over the generic frame.

#include "async.h"

class ExecuteFlashSessionsCallbackHandler final
    : public kel::Handler<ExecuteFlashSessionsCallbackHandler,
                          Varno::Kel_cpp::TarnApi::ExecuteFlashSessionsCallback,
                          ::FlashSessionResult, Varno::Kel_cpp::FlashSessionResult,
                          ExecuteFlashSessionsCallbackFunction> {
    using Handler::Handler;
};

class ReadCodingStringsCallbackHandler final
    : public kel::Handler<ReadCodingStringsCallbackHandler,
                          Varno::Kel_cpp::TarnApi::ReadCodingStringsCallback, ::CodingStringResult,
                          Varno::Kel_cpp::CodingStringResult, ReadCodingStringsCallbackFunction> {
    using Handler::Handler;
};

class ReadMeasurementValuesCallbackHandler final
    : public kel::Handler<ReadMeasurementValuesCallbackHandler,
                          Varno::Kel_cpp::TarnApi::ReadMeasurementValuesCallback, ::ReadDataResult,
                          Varno::Kel_cpp::ReadDataResult, ReadMeasurementValuesCallbackFunction> {
    using Handler::Handler;
};

class ExecuteFlashSessionsConfigCallbackHandler final
    : public kel::Handler<ExecuteFlashSessionsConfigCallbackHandler,
                          Varno::Kel_cpp::TarnApi::ExecuteFlashSessionsConfigCallback,
                          ::FlashSessionResult, Varno::Kel_cpp::FlashSessionResult,
                          ExecuteFlashSessionsConfigCallbackFunction> {
    using Handler::Handler;
};

class UpdateVehicleCallbackHandler final
    : public kel::Handler<UpdateVehicleCallbackHandler,
                          Varno::Kel_cpp::TarnApi::UpdateVehicleCallback, ::VehicleUpdateResult,
                          Varno::Kel_cpp::VehicleUpdateResult, UpdateVehicleCallbackFunction> {
    using Handler::Handler;
};

class WriteCodingFileCallbackHandler final
    : public kel::Handler<WriteCodingFileCallbackHandler,
                          Varno::Kel_cpp::TarnApi::WriteCodingFileCallback, ::CodingFileResult,
                          Varno::Kel_cpp::CodingFileResult, WriteCodingFileCallbackFunction> {
    using Handler::Handler;
};

class PerformVehicleUpdateCallbackHandler final
    : public kel::Handler<PerformVehicleUpdateCallbackHandler,
                          Varno::Kel_cpp::TarnApi::PerformVehicleUpdateCallback,
                          ::VehicleUpdateResult, Varno::Kel_cpp::VehicleUpdateResult,
                          PerformVehicleUpdateCallbackFunction> {
    using Handler::Handler;
};

class ExecuteSequenceCallbackHandler final
    : public kel::Handler<ExecuteSequenceCallbackHandler,
                          Varno::Kel_cpp::TarnApi::ExecuteSequenceCallback, ::ServiceResult,
                          Varno::Kel_cpp::ServiceResult, ExecuteSequenceCallbackFunction> {
    using Handler::Handler;
};

class PerformEcuConfigurationCallbackHandler final
    : public kel::Handler<PerformEcuConfigurationCallbackHandler,
                          Varno::Kel_cpp::TarnApi::PerformEcuConfigurationCallback,
                          ::EcuConfigurationResult, Varno::Kel_cpp::EcuConfigurationResult,
                          PerformEcuConfigurationCallbackFunction> {
    using Handler::Handler;
};

extern "C" {

void kel_getFlashSessionInfos(TarnApi* api, const wchar_t* target, KelError** error,
                              FlashSessionInfo*** sessions, uint32_t* sessionCount) {
    kel::invoke(
        error, [&] { return api->getFlashSessionInfos(kel::in::text(target)); },
        kel::out::records(sessions, sessionCount));
}
void kel_executeFlashSessions(TarnApi* api, const wchar_t* target, wchar_t** sessions,
                              uint32_t sessionCount, KelError** error,
                              FlashSessionResult*** results, uint32_t* resultCount) {
    kel::invoke(
        error,
        [&] {
            return api->executeFlashSessions(kel::in::text(target),
                                             kel::in::texts(sessions, sessionCount));
        },
        kel::out::records(results, resultCount));
}
uint64_t kel_executeFlashSessionsAsync(TarnApi* api, const wchar_t* target, wchar_t** sessions,
                                       uint32_t sessionCount, KelError** error,
                                       ExecuteFlashSessionsCallbackFunction callback,
                                       void* context) {
    return kel::start<ExecuteFlashSessionsCallbackHandler>(
        error, callback, context, [&](auto* handler) {
            return api->executeFlashSessionsAsync(kel::in::text(target),
                                                  kel::in::texts(sessions, sessionCount), handler);
        });
}
void kel_readCodingStrings(TarnApi* api, wchar_t** targets, uint32_t targetCount, KelError** error,
                           CodingStringResult*** results, uint32_t* resultCount) {
    kel::invoke(
        error, [&] { return api->readCodingStrings(kel::in::texts(targets, targetCount)); },
        kel::out::records(results, resultCount));
}
uint64_t kel_readCodingStringsAsync(TarnApi* api, wchar_t** targets, uint32_t targetCount,
                                    KelError** error, ReadCodingStringsCallbackFunction callback,
                                    void* context) {
    return kel::start<ReadCodingStringsCallbackHandler>(
        error, callback, context, [&](auto* handler) {
            return api->readCodingStringsAsync(kel::in::texts(targets, targetCount), handler);
        });
}
void kel_getMeasurementValueInfos(TarnApi* api, const wchar_t* target, KelError** error,
                                  ParameterInfo*** infos, uint32_t* infoCount) {
    kel::invoke(
        error, [&] { return api->getMeasurementValueInfos(kel::in::text(target)); },
        kel::out::records(infos, infoCount));
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
void kel_getSingleMeasurementValueInfos(TarnApi* api, const wchar_t* target, wchar_t** names,
                                        uint32_t nameCount, KelError** error,
                                        ParameterInfo*** infos, uint32_t* infoCount) {
    kel::invoke(
        error,
        [&] {
            return api->getSingleMeasurementValueInfos(kel::in::text(target),
                                                       kel::in::texts(names, nameCount));
        },
        kel::out::records(infos, infoCount));
}
void kel_createVehicleReport(TarnApi* api, VehicleReportConfig* config, KelError** error,
                             wchar_t** reportFile) {
    kel::invoke(
        error, [&] { return api->createVehicleReport(kel::in::record(config)); },
        kel::out::text(reportFile));
}
void kel_readEcuOrder(TarnApi* api, const wchar_t* path, KelError** error, EcuOrderEntry*** entries,
                      uint32_t* entryCount) {
    kel::invoke(
        error, [&] { return api->readEcuOrder(kel::in::text(path)); },
        kel::out::records(entries, entryCount));
}
void kel_filterEcuOrder(TarnApi* api, EcuOrderEntry** entries, uint32_t entryCount,
                        wchar_t** targets, uint32_t targetCount, KelError** error,
                        EcuOrderEntry*** filtered, uint32_t* filteredCount) {
    kel::invoke(
        error,
        [&] {
            return api->filterEcuOrder(kel::in::records(entries, entryCount),
                                       kel::in::texts(targets, targetCount));
        },
        kel::out::records(filtered, filteredCount));
}
void kel_addMissingTargetsToEcuOrder(TarnApi* api, EcuOrderEntry** entries, uint32_t entryCount,
                                     KelError** error, EcuOrderEntry*** completed,
                                     uint32_t* completedCount) {
    kel::invoke(
        error,
        [&] { return api->addMissingTargetsToEcuOrder(kel::in::records(entries, entryCount)); },
        kel::out::records(completed, completedCount));
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
void kel_cancelSequence(TarnApi* api, uint64_t run, KelError** error) {
    kel::invoke(error, [&] { api->cancelSequence(run); });
}
void kel_applyUpdatePackage(TarnApi* api, const wchar_t* package, KelError** error) {
    kel::invoke(error, [&] { api->applyUpdatePackage(kel::in::text(package)); });
}
void kel_getUpdatePackages(TarnApi* api, KelError** error, UpdatePackageInfo*** packages,
                           uint32_t* packageCount) {
    kel::invoke(
        error, [&] { return api->getUpdatePackages(); }, kel::out::records(packages, packageCount));
}
void kel_getPackagesFromBroker(TarnApi* api, KelError** error, UpdatePackageInfo*** packages,
                               uint32_t* packageCount) {
    kel::invoke(
        error, [&] { return api->getPackagesFromBroker(); },
        kel::out::records(packages, packageCount));
}
void kel_checkUpdatesOnBroker(TarnApi* api, KelError** error, bool* available) {
    kel::invoke(
        error, [&] { return api->checkUpdatesOnBroker(); }, kel::out::value(available));
}
void kel_autoUpdate(TarnApi* api, KelError** error, bool* updated) {
    kel::invoke(
        error, [&] { return api->autoUpdate(); }, kel::out::value(updated));
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
void kel_executeFlashSessionsConfig(TarnApi* api, FlashSessionsConfig* config, KelError** error,
                                    FlashSessionResult*** results, uint32_t* resultCount) {
    kel::invoke(
        error, [&] { return api->executeFlashSessionsConfig(kel::in::record(config)); },
        kel::out::records(results, resultCount));
}
uint64_t kel_executeFlashSessionsConfigAsync(TarnApi* api, FlashSessionsConfig* config,
                                             KelError** error,
                                             ExecuteFlashSessionsConfigCallbackFunction callback,
                                             void* context) {
    return kel::start<ExecuteFlashSessionsConfigCallbackHandler>(
        error, callback, context, [&](auto* handler) {
            return api->executeFlashSessionsConfigAsync(kel::in::record(config), handler);
        });
}
void kel_updateVehicle(TarnApi* api, VehicleUpdateConfig* config, KelError** error,
                       VehicleUpdateResult*** results, uint32_t* resultCount) {
    kel::invoke(
        error, [&] { return api->updateVehicle(kel::in::record(config)); },
        kel::out::records(results, resultCount));
}
uint64_t kel_updateVehicleAsync(TarnApi* api, VehicleUpdateConfig* config, KelError** error,
                                UpdateVehicleCallbackFunction callback, void* context) {
    return kel::start<UpdateVehicleCallbackHandler>(error, callback, context, [&](auto* handler) {
        return api->updateVehicleAsync(kel::in::record(config), handler);
    });
}
void kel_getVehicleData(TarnApi* api, KelError** error, VehicleData*** data, uint32_t* dataCount) {
    kel::invoke(
        error, [&] { return api->getVehicleData(); }, kel::out::records(data, dataCount));
}
void kel_uploadReport(TarnApi* api, UploadReportConfiguration* config, KelError** error) {
    kel::invoke(error, [&] { api->uploadReport(kel::in::record(config)); });
}
void kel_setBrokerUrl(TarnApi* api, const wchar_t* url, KelError** error) {
    kel::invoke(error, [&] { api->setBrokerUrl(kel::in::text(url)); });
}
void kel_clearUpdatePackages(TarnApi* api, KelError** error) {
    kel::invoke(error, [&] { api->clearUpdatePackages(); });
}
void kel_createDefaultECUOrder(TarnApi* api, KelError** error, EcuOrderEntry*** entries,
                               uint32_t* entryCount) {
    kel::invoke(
        error, [&] { return api->createDefaultECUOrder(); },
        kel::out::records(entries, entryCount));
}
void kel_writeCodingFile(TarnApi* api, const wchar_t* codingFile, wchar_t** targets,
                         uint32_t targetCount, KelError** error, CodingFileResult*** results,
                         uint32_t* resultCount) {
    kel::invoke(
        error,
        [&] {
            return api->writeCodingFile(kel::in::text(codingFile),
                                        kel::in::texts(targets, targetCount));
        },
        kel::out::records(results, resultCount));
}
uint64_t kel_writeCodingFileAsync(TarnApi* api, const wchar_t* codingFile, wchar_t** targets,
                                  uint32_t targetCount, KelError** error,
                                  WriteCodingFileCallbackFunction callback, void* context) {
    return kel::start<WriteCodingFileCallbackHandler>(error, callback, context, [&](auto* handler) {
        return api->writeCodingFileAsync(kel::in::text(codingFile),
                                         kel::in::texts(targets, targetCount), handler);
    });
}
void kel_writeEcuOrder(TarnApi* api, const wchar_t* path, EcuOrderEntry** entries,
                       uint32_t entryCount, KelError** error) {
    kel::invoke(error, [&] {
        api->writeEcuOrder(kel::in::text(path), kel::in::records(entries, entryCount));
    });
}
void kel_getEcuOrderFilePath(TarnApi* api, KelError** error, wchar_t** path) {
    kel::invoke(
        error, [&] { return api->getEcuOrderFilePath(); }, kel::out::text(path));
}
void kel_performVehicleUpdate(TarnApi* api, EcuOrderEntry** entries, uint32_t entryCount,
                              VehicleUpdateConfig* config, KelError** error,
                              VehicleUpdateResult*** results, uint32_t* resultCount) {
    kel::invoke(
        error,
        [&] {
            return api->performVehicleUpdate(kel::in::records(entries, entryCount),
                                             kel::in::record(config));
        },
        kel::out::records(results, resultCount));
}
uint64_t kel_performVehicleUpdateAsync(TarnApi* api, EcuOrderEntry** entries, uint32_t entryCount,
                                       VehicleUpdateConfig* config, KelError** error,
                                       PerformVehicleUpdateCallbackFunction callback,
                                       void* context) {
    return kel::start<PerformVehicleUpdateCallbackHandler>(
        error, callback, context, [&](auto* handler) {
            return api->performVehicleUpdateAsync(kel::in::records(entries, entryCount),
                                                  kel::in::record(config), handler);
        });
}
void kel_executeSequence(TarnApi* api, const wchar_t* target, const wchar_t* sequence,
                         ParameterInput** parameters, uint32_t parameterCount, KelError** error,
                         ServiceResult*** results, uint32_t* resultCount) {
    kel::invoke(
        error,
        [&] {
            return api->executeSequence(kel::in::text(target), kel::in::text(sequence),
                                        kel::in::records(parameters, parameterCount));
        },
        kel::out::records(results, resultCount));
}
uint64_t kel_executeSequenceAsync(TarnApi* api, const wchar_t* target, const wchar_t* sequence,
                                  ParameterInput** parameters, uint32_t parameterCount,
                                  KelError** error, ExecuteSequenceCallbackFunction callback,
                                  void* context) {
    return kel::start<ExecuteSequenceCallbackHandler>(error, callback, context, [&](auto* handler) {
        return api->executeSequenceAsync(kel::in::text(target), kel::in::text(sequence),
                                         kel::in::records(parameters, parameterCount), handler);
    });
}
void kel_createVehicleUpdateReport(TarnApi* api, VehicleUpdateResult** results,
                                   uint32_t resultCount, KelError** error, wchar_t** reportFile) {
    kel::invoke(
        error,
        [&] { return api->createVehicleUpdateReport(kel::in::records(results, resultCount)); },
        kel::out::text(reportFile));
}
void kel_performEcuConfiguration(TarnApi* api, wchar_t** targets, uint32_t targetCount,
                                 const wchar_t* configuration, KelError** error,
                                 EcuConfigurationResult*** results, uint32_t* resultCount) {
    kel::invoke(
        error,
        [&] {
            return api->performEcuConfiguration(kel::in::texts(targets, targetCount),
                                                kel::in::text(configuration));
        },
        kel::out::records(results, resultCount));
}
uint64_t kel_performEcuConfigurationAsync(TarnApi* api, wchar_t** targets, uint32_t targetCount,
                                          const wchar_t* configuration, KelError** error,
                                          PerformEcuConfigurationCallbackFunction callback,
                                          void* context) {
    return kel::start<PerformEcuConfigurationCallbackHandler>(
        error, callback, context, [&](auto* handler) {
            return api->performEcuConfigurationAsync(kel::in::texts(targets, targetCount),
                                                     kel::in::text(configuration), handler);
        });
}
void kel_createVehicleUpdateConfig(TarnApi* api, wchar_t** targets, uint32_t targetCount,
                                   KelError** error, VehicleUpdateConfig** config) {
    kel::invoke(
        error, [&] { return api->createVehicleUpdateConfig(kel::in::texts(targets, targetCount)); },
        kel::out::record(config));
}
void kel_getSelectedVehicleInformation(TarnApi* api, KelError** error,
                                       VehicleInformation** information) {
    kel::invoke(
        error, [&] { return api->getSelectedVehicleInformation(); }, kel::out::record(information));
}
void kel_setSelectedVehicleInformation(TarnApi* api, KelError** error,
                                       VehicleInformation* information) {
    kel::invoke(error, [&] { api->setSelectedVehicleInformation(kel::in::record(information)); });
}

} // extern "C"
