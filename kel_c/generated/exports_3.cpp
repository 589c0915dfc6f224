// Generated from the interface description by tools/generate.py. Do not edit.
// The exports of the families Interfaces, Monitoring, Files: each one line
// over the generic frame.

#include "async.h"

class ScanInterfaceConnectionCallbackHandler final
    : public kel::Handler<ScanInterfaceConnectionCallbackHandler,
                          Varno::Kel_cpp::TarnApi::ScanInterfaceConnectionCallback,
                          ::ScanInterfaceResult, Varno::Kel_cpp::ScanInterfaceResult,
                          ScanInterfaceConnectionCallbackFunction> {
    using Handler::Handler;
};

class DetectDynInterfacesCallbackHandler final
    : public kel::Handler<DetectDynInterfacesCallbackHandler,
                          Varno::Kel_cpp::TarnApi::DetectDynInterfacesCallback, ::ModuleDyn,
                          Varno::Kel_cpp::ModuleDyn, DetectDynInterfacesCallbackFunction> {
    using Handler::Handler;
};

class DetectDynInterfacesExCallbackHandler final
    : public kel::Handler<DetectDynInterfacesExCallbackHandler,
                          Varno::Kel_cpp::TarnApi::DetectDynInterfacesExCallback, ::ModuleDyn,
                          Varno::Kel_cpp::ModuleDyn, DetectDynInterfacesExCallbackFunction> {
    using Handler::Handler;
};

class CopyFilesCallbackHandler final
    : public kel::Handler<CopyFilesCallbackHandler, Varno::Kel_cpp::TarnApi::CopyFilesCallback,
                          ::FileCopyResult, Varno::Kel_cpp::FileCopyResult,
                          CopyFilesCallbackFunction> {
    using Handler::Handler;
};

class CopyDirectoriesCallbackHandler final
    : public kel::Handler<CopyDirectoriesCallbackHandler,
                          Varno::Kel_cpp::TarnApi::CopyDirectoriesCallback, ::DirectoryCopyResult,
                          Varno::Kel_cpp::DirectoryCopyResult, CopyDirectoriesCallbackFunction> {
    using Handler::Handler;
};

class CopyPathCallbackHandler final
    : public kel::Handler<CopyPathCallbackHandler, Varno::Kel_cpp::TarnApi::CopyPathCallback,
                          ::PathCopyResult, Varno::Kel_cpp::PathCopyResult,
                          CopyPathCallbackFunction> {
    using Handler::Handler;
};

extern "C" {

void kel_createMonitoringLink(TarnApi* api, const wchar_t* name, KelError** error,
                              uint64_t* handle) {
    kel::invoke(
        error, [&] { return api->createMonitoringLink(kel::in::text(name)); },
        kel::out::value(handle));
}
void kel_getMonitoringItems(TarnApi* api, uint64_t handle, uint32_t value1, int32_t value2,
                            KelError** error, MonitoringItem*** items, uint32_t* itemCount) {
    kel::invoke(
        error, [&] { return api->getMonitoringItems(handle, value1, value2); },
        kel::out::records(items, itemCount));
}
void kel_releaseMonitoringLink(TarnApi* api, uint64_t handle, KelError** error) {
    kel::invoke(error, [&] { api->releaseMonitoringLink(handle); });
}
void kel_getPduMonitoringItems(TarnApi* api, uint64_t handle, uint32_t value1, int32_t value2,
                               KelError** error, PduMonitoringItem*** items, uint32_t* itemCount) {
    kel::invoke(
        error, [&] { return api->getPduMonitoringItems(handle, value1, value2); },
        kel::out::records(items, itemCount));
}
void kel_createPduMonitor(TarnApi* api, KelError** error, uint64_t* handle) {
    kel::invoke(
        error, [&] { return api->createPduMonitor(); }, kel::out::value(handle));
}
void kel_releasePduMonitor(TarnApi* api, uint64_t handle, KelError** error) {
    kel::invoke(error, [&] { api->releasePduMonitor(handle); });
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
void kel_scanInterfaceConnection(TarnApi* api, wchar_t** interfaces, uint32_t interfaceCount,
                                 KelError** error, ScanInterfaceResult*** results,
                                 uint32_t* resultCount) {
    kel::invoke(
        error,
        [&] { return api->scanInterfaceConnection(kel::in::texts(interfaces, interfaceCount)); },
        kel::out::records(results, resultCount));
}
uint64_t kel_scanInterfaceConnectionAsync(TarnApi* api, wchar_t** interfaces,
                                          uint32_t interfaceCount, KelError** error,
                                          ScanInterfaceConnectionCallbackFunction callback,
                                          void* context) {
    return kel::start<ScanInterfaceConnectionCallbackHandler>(
        error, callback, context, [&](auto* handler) {
            return api->scanInterfaceConnectionAsync(kel::in::texts(interfaces, interfaceCount),
                                                     handler);
        });
}
void kel_getInterfaceLongName(TarnApi* api, const wchar_t* name, KelError** error,
                              wchar_t** longName) {
    kel::invoke(
        error, [&] { return api->getInterfaceLongName(kel::in::text(name)); },
        kel::out::text(longName));
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
void kel_releaseSocketBridge(TarnApi* api, uint64_t bridge, KelError** error) {
    kel::invoke(error, [&] { api->releaseSocketBridge(bridge); });
}
void kel_createSocketBridge(TarnApi* api, uint32_t value1, uint32_t value2, KelError** error,
                            uint64_t* bridge) {
    kel::invoke(
        error, [&] { return api->createSocketBridge(value1, value2); }, kel::out::value(bridge));
}
void kel_clearLinkCache(TarnApi* api, KelError** error) {
    kel::invoke(error, [&] { api->clearLinkCache(); });
}
void kel_addResource(TarnApi* api, const wchar_t* name, ResourceInformation* resource,
                     uint16_t value, KelError** error) {
    kel::invoke(error,
                [&] { api->addResource(kel::in::text(name), kel::in::record(resource), value); });
}
void kel_removeInterface(TarnApi* api, const wchar_t* name, KelError** error) {
    kel::invoke(error, [&] { api->removeInterface(kel::in::text(name)); });
}
void kel_addInterface(TarnApi* api, InterfaceInformation* interfaceInfo, const wchar_t* text1,
                      const wchar_t* text2, const wchar_t* text3, KelError** error,
                      InterfaceInformation** result) {
    kel::invoke(
        error,
        [&] {
            return api->addInterface(kel::in::record(interfaceInfo), kel::in::text(text1),
                                     kel::in::text(text2), kel::in::text(text3));
        },
        kel::out::record(result));
}
void kel_removeResource(TarnApi* api, const wchar_t* name1, const wchar_t* name2,
                        KelError** error) {
    kel::invoke(error, [&] { api->removeResource(kel::in::text(name1), kel::in::text(name2)); });
}
void kel_getVendorModuleNames(TarnApi* api, InterfaceInformation* interfaceInfo, KelError** error,
                              wchar_t*** names, uint32_t* nameCount) {
    kel::invoke(
        error, [&] { return api->getVendorModuleNames(kel::in::record(interfaceInfo)); },
        kel::out::texts(names, nameCount));
}
void kel_getVendorModuleNamesEx(TarnApi* api, const wchar_t* text, KelError** error,
                                wchar_t*** names, uint32_t* nameCount) {
    kel::invoke(
        error, [&] { return api->getVendorModuleNamesEx(kel::in::text(text)); },
        kel::out::texts(names, nameCount));
}
void kel_detectDynInterfaces(TarnApi* api, uint32_t value, DynInterfaceDetection* detection,
                             KelError** error, ModuleDyn*** modules, uint32_t* moduleCount) {
    kel::invoke(
        error, [&] { return api->detectDynInterfaces(value, kel::in::record(detection)); },
        kel::out::records(modules, moduleCount));
}
uint64_t kel_detectDynInterfacesAsync(TarnApi* api, uint32_t value,
                                      DynInterfaceDetection* detection, KelError** error,
                                      DetectDynInterfacesCallbackFunction callback, void* context) {
    return kel::start<DetectDynInterfacesCallbackHandler>(
        error, callback, context, [&](auto* handler) {
            return api->detectDynInterfacesAsync(value, kel::in::record(detection), handler);
        });
}
void kel_connectDynInterface(TarnApi* api, const wchar_t* name, uint8_t flag,
                             DynInterfaceDetection* detection, KelError** error) {
    kel::invoke(error, [&] {
        api->connectDynInterface(kel::in::text(name), flag != 0, kel::in::record(detection));
    });
}
void kel_disconnectDynInterfaces(TarnApi* api, wchar_t** names, uint32_t nameCount,
                                 KelError** error) {
    kel::invoke(error, [&] { api->disconnectDynInterfaces(kel::in::texts(names, nameCount)); });
}
void kel_getProjectDirectory(TarnApi* api, uint8_t flag, KelError** error,
                             DirectoryInfo** directory) {
    kel::invoke(
        error, [&] { return api->getProjectDirectory(flag != 0); }, kel::out::record(directory));
}
void kel_getSelectedProjectDirectory(TarnApi* api, uint8_t flag, KelError** error,
                                     DirectoryInfo** directory) {
    kel::invoke(
        error, [&] { return api->getSelectedProjectDirectory(flag != 0); },
        kel::out::record(directory));
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
void kel_deleteFiles(TarnApi* api, FileInfo** files, uint32_t fileCount, KelError** error,
                     KelError** result) {
    kel::invoke(
        error, [&] { return api->deleteFiles(kel::in::records(files, fileCount)); },
        kel::out::record(result));
}
void kel_findDirectories(TarnApi* api, DirectoryInfo* directory, const wchar_t* pattern,
                         uint8_t flag, KelError** error, DirectoryInfo*** directories,
                         uint32_t* directoryCount) {
    kel::invoke(
        error,
        [&] {
            return api->findDirectories(kel::in::record(directory), kel::in::text(pattern),
                                        flag != 0);
        },
        kel::out::records(directories, directoryCount));
}
void kel_findFiles(TarnApi* api, const wchar_t* directory, const wchar_t* pattern, uint8_t flag,
                   KelError** error, FileInfo*** files, uint32_t* fileCount) {
    kel::invoke(
        error,
        [&] { return api->findFiles(kel::in::text(directory), kel::in::text(pattern), flag != 0); },
        kel::out::records(files, fileCount));
}
void kel_initializeDirectoryElements(TarnApi* api, DirectoryInfo* directory, uint8_t flag,
                                     KelError** error, DirectoryInfo** result) {
    kel::invoke(
        error,
        [&] { return api->initializeDirectoryElements(kel::in::record(directory), flag != 0); },
        kel::out::record(result));
}
void kel_createFile(TarnApi* api, DirectoryInfo* parent, const wchar_t* name, KelError** error,
                    FileInfo** file) {
    kel::invoke(
        error, [&] { return api->createFile(kel::in::record(parent), kel::in::text(name)); },
        kel::out::record(file));
}
void kel_createDirectory(TarnApi* api, DirectoryInfo* parent, const wchar_t* name, KelError** error,
                         DirectoryInfo** directory) {
    kel::invoke(
        error, [&] { return api->createDirectory(kel::in::record(parent), kel::in::text(name)); },
        kel::out::record(directory));
}
void kel_deleteDirectory(TarnApi* api, const wchar_t* path, KelError** error, KelError** result) {
    kel::invoke(
        error, [&] { return api->deleteDirectory(kel::in::text(path)); }, kel::out::record(result));
}
void kel_getTraceDirectory(TarnApi* api, uint8_t flag, KelError** error,
                           DirectoryInfo** directory) {
    kel::invoke(
        error, [&] { return api->getTraceDirectory(flag != 0); }, kel::out::record(directory));
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
void kel_detectDynInterfacesEx(TarnApi* api, uint32_t value, KelError** error, ModuleDyn*** modules,
                               uint32_t* moduleCount) {
    kel::invoke(
        error, [&] { return api->detectDynInterfacesEx(value); },
        kel::out::records(modules, moduleCount));
}
uint64_t kel_detectDynInterfacesExAsync(TarnApi* api, uint32_t value, KelError** error,
                                        DetectDynInterfacesExCallbackFunction callback,
                                        void* context) {
    return kel::start<DetectDynInterfacesExCallbackHandler>(
        error, callback, context,
        [&](auto* handler) { return api->detectDynInterfacesExAsync(value, handler); });
}
void kel_connectDynInterfaceEx(TarnApi* api, const wchar_t* name, uint8_t flag, KelError** error) {
    kel::invoke(error, [&] { api->connectDynInterfaceEx(kel::in::text(name), flag != 0); });
}
void kel_testSocketBridge(TarnApi* api, uint64_t bridge, KelError** error, uint8_t* result) {
    kel::invoke(
        error, [&] { return api->testSocketBridge(bridge); }, kel::out::value(result));
}
void kel_copyFiles(TarnApi* api, FileCopyConfig* config, KelError** error,
                   FileCopyResult*** results, uint32_t* resultCount) {
    kel::invoke(
        error, [&] { return api->copyFiles(kel::in::record(config)); },
        kel::out::records(results, resultCount));
}
uint64_t kel_copyFilesAsync(TarnApi* api, FileCopyConfig* config, KelError** error,
                            CopyFilesCallbackFunction callback, void* context) {
    return kel::start<CopyFilesCallbackHandler>(error, callback, context, [&](auto* handler) {
        return api->copyFilesAsync(kel::in::record(config), handler);
    });
}
void kel_copyDirectories(TarnApi* api, DirectoryCopyConfig* config, KelError** error,
                         DirectoryCopyResult*** results, uint32_t* resultCount) {
    kel::invoke(
        error, [&] { return api->copyDirectories(kel::in::record(config)); },
        kel::out::records(results, resultCount));
}
uint64_t kel_copyDirectoriesAsync(TarnApi* api, DirectoryCopyConfig* config, KelError** error,
                                  CopyDirectoriesCallbackFunction callback, void* context) {
    return kel::start<CopyDirectoriesCallbackHandler>(error, callback, context, [&](auto* handler) {
        return api->copyDirectoriesAsync(kel::in::record(config), handler);
    });
}
void kel_getRegisteredDevices(TarnApi* api, KelError** error, DeviceInfo*** devices,
                              uint32_t* deviceCount) {
    kel::invoke(
        error, [&] { return api->getRegisteredDevices(); },
        kel::out::records(devices, deviceCount));
}
void kel_renameFile(TarnApi* api, const wchar_t* path, const wchar_t* newName, KelError** error) {
    kel::invoke(error, [&] { api->renameFile(kel::in::text(path), kel::in::text(newName)); });
}
void kel_getConfigDirectory(TarnApi* api, uint8_t flag, KelError** error,
                            DirectoryInfo** directory) {
    kel::invoke(
        error, [&] { return api->getConfigDirectory(flag != 0); }, kel::out::record(directory));
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
void kel_copyProjectWithFilters(TarnApi* api, FileFilter** filters, uint32_t filterCount,
                                uint8_t flag, FileCopyConfig* config, const wchar_t* text,
                                KelError** error, FileInfo*** files, uint32_t* fileCount) {
    kel::invoke(
        error,
        [&] {
            return api->copyProjectWithFilters(kel::in::records(filters, filterCount), flag != 0,
                                               kel::in::record(config), kel::in::text(text));
        },
        kel::out::records(files, fileCount));
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
void kel_getPublicDirectories(TarnApi* api, KelError** error, DirectoryInfo*** directories,
                              uint32_t* directoryCount) {
    kel::invoke(
        error, [&] { return api->getPublicDirectories(); },
        kel::out::records(directories, directoryCount));
}
void kel_getPhysicalLinks(TarnApi* api, wchar_t** modules, uint32_t moduleCount, KelError** error,
                          PhysicalLinksOnModule*** links, uint32_t* linkCount) {
    kel::invoke(
        error, [&] { return api->getPhysicalLinks(kel::in::texts(modules, moduleCount)); },
        kel::out::records(links, linkCount));
}
void kel_setPhysicalLinks(TarnApi* api, PhysicalLinksOnModule** links, uint32_t linkCount,
                          KelError** error, PhysicalLinksOnModule*** updated,
                          uint32_t* updatedCount) {
    kel::invoke(
        error, [&] { return api->setPhysicalLinks(kel::in::records(links, linkCount)); },
        kel::out::records(updated, updatedCount));
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
void kel_getFileReferences(TarnApi* api, wchar_t** files, uint32_t fileCount, KelError** error,
                           FileReferenceResult*** results, uint32_t* resultCount) {
    kel::invoke(
        error, [&] { return api->getFileReferences(kel::in::texts(files, fileCount)); },
        kel::out::records(results, resultCount));
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
void kel_getDirectoryInfo(TarnApi* api, const wchar_t* path, uint8_t flag, KelError** error,
                          DirectoryInfo** directory) {
    kel::invoke(
        error, [&] { return api->getDirectoryInfo(kel::in::text(path), flag != 0); },
        kel::out::record(directory));
}
void kel_getFileInfo(TarnApi* api, const wchar_t* path, KelError** error, FileInfo** file) {
    kel::invoke(
        error, [&] { return api->getFileInfo(kel::in::text(path)); }, kel::out::record(file));
}
void kel_isFile(TarnApi* api, const wchar_t* path, KelError** error, uint8_t* result) {
    kel::invoke(
        error, [&] { return api->isFile(kel::in::text(path)); }, kel::out::value(result));
}
void kel_getWLanSignalData(TarnApi* api, const wchar_t* interfaceName, KelError** error,
                           WLanSignalData** data) {
    kel::invoke(
        error, [&] { return api->getWLanSignalData(kel::in::text(interfaceName)); },
        kel::out::record(data));
}
void kel_clearDoIPEcuCollection(TarnApi* api, KelError** error, KelError*** errors,
                                uint32_t* errorCount) {
    kel::invoke(
        error, [&] { return api->clearDoIPEcuCollection(); },
        kel::out::records(errors, errorCount));
}
void kel_copyPath(TarnApi* api, PathCopyConfig* config, KelError** error, PathCopyResult*** results,
                  uint32_t* resultCount) {
    kel::invoke(
        error, [&] { return api->copyPath(kel::in::record(config)); },
        kel::out::records(results, resultCount));
}
uint64_t kel_copyPathAsync(TarnApi* api, PathCopyConfig* config, KelError** error,
                           CopyPathCallbackFunction callback, void* context) {
    return kel::start<CopyPathCallbackHandler>(error, callback, context, [&](auto* handler) {
        return api->copyPathAsync(kel::in::record(config), handler);
    });
}
void kel_addPublicDirectory(TarnApi* api, const wchar_t* name, const wchar_t* path,
                            KelError** error) {
    kel::invoke(error, [&] { api->addPublicDirectory(kel::in::text(name), kel::in::text(path)); });
}
void kel_getInterfaceConfiguration(TarnApi* api, KelError** error,
                                   InterfaceConfiguration** config) {
    kel::invoke(
        error, [&] { return api->getInterfaceConfiguration(); }, kel::out::record(config));
}
void kel_setInterfaceConfiguration(TarnApi* api, KelError** error, InterfaceConfiguration* config) {
    kel::invoke(error, [&] { api->setInterfaceConfiguration(kel::in::record(config)); });
}
void kel_getMonitoringLinks(TarnApi* api, KelError** error, wchar_t*** links, uint32_t* linkCount) {
    kel::invoke(
        error, [&] { return api->getMonitoringLinks(); }, kel::out::texts(links, linkCount));
}
void kel_getSupportedInterfaces(TarnApi* api, KelError** error, SupportedInterface*** interfaces,
                                uint32_t* interfaceCount) {
    kel::invoke(
        error, [&] { return api->getSupportedInterfaces(); },
        kel::out::records(interfaces, interfaceCount));
}
void kel_getInterfaceProviders(TarnApi* api, KelError** error, InterfaceProvider*** providers,
                               uint32_t* providerCount) {
    kel::invoke(
        error, [&] { return api->getInterfaceProviders(); },
        kel::out::records(providers, providerCount));
}
void kel_setInterfaceProviders(TarnApi* api, KelError** error, InterfaceProvider** providers,
                               uint32_t providerCount) {
    kel::invoke(error, [&] {
        api->setInterfaceProviders(
            kel::in::records<::InterfaceProvider, Varno::Kel_cpp::InterfaceProviderDyn>(
                providers, providerCount));
    });
}
void kel_getDefaultDoIPParameter(TarnApi* api, KelError** error, DoIPParameter** parameter) {
    kel::invoke(
        error, [&] { return api->getDefaultDoIPParameter(); }, kel::out::record(parameter));
}

} // extern "C"
