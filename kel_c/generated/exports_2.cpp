// Generated from the interface description by tools/generate.py. Do not edit.
// The exports of the families Projects, Servers: each one line
// over the generic frame.

#include "frame.h"

extern "C" {

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
void kel_getProjectConfiguration(TarnApi* api, const wchar_t* projectName, KelError** error,
                                 ProjectConfig** config) {
    kel::invoke(
        error, [&] { return api->getProjectConfiguration(kel::in::text(projectName)); },
        kel::out::record(config));
}
void kel_setProjectConfiguration(TarnApi* api, const wchar_t* projectName, ProjectConfig* config,
                                 KelError** error) {
    kel::invoke(error, [&] {
        api->setProjectConfiguration(kel::in::text(projectName), kel::in::record(config));
    });
}
void kel_saveProjectConfiguration(TarnApi* api, const wchar_t* projectName, KelError** error) {
    kel::invoke(error, [&] { api->saveProjectConfiguration(kel::in::text(projectName)); });
}
void kel_saveConfiguration(TarnApi* api, KelError** error) {
    kel::invoke(error, [&] { api->saveConfiguration(); });
}
void kel_connectRemoteServer(TarnApi* api, const wchar_t* address, KelError** error,
                             uint64_t* handle) {
    kel::invoke(
        error, [&] { return api->connectRemoteServer(kel::in::text(address)); },
        kel::out::engine(handle));
}
void kel_disconnect(TarnApi* api, KelError** error) {
    kel::invoke(error, [&] { api->disconnect(); });
}
void kel_refreshProjectList(TarnApi* api, KelError** error) {
    kel::invoke(error, [&] { api->refreshProjectList(); });
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
void kel_getProjectDetails(TarnApi* api, KelError** error, ProjectDetails** details) {
    kel::invoke(
        error, [&] { return api->getProjectDetails(); }, kel::out::record(details));
}
void kel_getSystemProperty(TarnApi* api, const wchar_t* name, KelError** error,
                           SystemProperty** property) {
    kel::invoke(
        error, [&] { return api->getSystemProperty(kel::in::text(name)); },
        kel::out::record(property));
}
void kel_resetSystemProperty(TarnApi* api, const wchar_t* name, KelError** error) {
    kel::invoke(error, [&] { api->resetSystemProperty(kel::in::text(name)); });
}
void kel_setSystemProperty(TarnApi* api, SystemProperty* property, KelError** error) {
    kel::invoke(error, [&] { api->setSystemProperty(kel::in::record(property)); });
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
void kel_disconnectAllClients(TarnApi* api, KelError** error) {
    kel::invoke(error, [&] { api->disconnectAllClients(); });
}
void kel_getSystemInfo(TarnApi* api, KelError** error, SystemInfo** info) {
    kel::invoke(
        error, [&] { return api->getSystemInfo(); }, kel::out::record(info));
}
void kel_loadDatabaseFile(TarnApi* api, wchar_t** files, uint32_t fileCount, KelError** error,
                          LoadDatabaseResult*** results, uint32_t* resultCount) {
    kel::invoke(
        error, [&] { return api->loadDatabaseFile(kel::in::texts(files, fileCount)); },
        kel::out::records(results, resultCount));
}
void kel_reconnectRemoteServer(TarnApi* api, uint64_t handle, KelError** error,
                               uint8_t* reconnected) {
    kel::invoke(
        error, [&] { return api->reconnectRemoteServer(handle); }, kel::out::value(reconnected));
}
void kel_unloadDatabaseFile(TarnApi* api, wchar_t** files, uint32_t fileCount, KelError** error,
                            LoadDatabaseResult*** results, uint32_t* resultCount) {
    kel::invoke(
        error, [&] { return api->unloadDatabaseFile(kel::in::texts(files, fileCount)); },
        kel::out::records(results, resultCount));
}
void kel_getProjectsDetails(TarnApi* api, wchar_t** projectNames, uint32_t projectNameCount,
                            KelError** error, ProjectDetails*** details, uint32_t* detailCount) {
    kel::invoke(
        error,
        [&] { return api->getProjectsDetails(kel::in::texts(projectNames, projectNameCount)); },
        kel::out::records(details, detailCount));
}
void kel_thirdPartyLogin(TarnApi* api, const wchar_t* code, KelError** error, uint8_t* result) {
    kel::invoke(
        error, [&] { return api->thirdPartyLogin(kel::in::text(code)); }, kel::out::value(result));
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
void kel_startSOVDServer(TarnApi* api, KelError** error) {
    kel::invoke(error, [&] { api->startSOVDServer(); });
}
void kel_stopSOVDServer(TarnApi* api, KelError** error) {
    kel::invoke(error, [&] { api->stopSOVDServer(); });
}
void kel_logIn(TarnApi* api, LogInOutConfig* config, KelError** error) {
    kel::invoke(error, [&] { api->logIn(kel::in::record(config)); });
}
void kel_getProjectConfigurations(TarnApi* api, KelError** error, ProjectConfig*** configs,
                                  uint32_t* configCount) {
    kel::invoke(
        error, [&] { return api->getProjectConfigurations(); },
        kel::out::records(configs, configCount));
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
void kel_getConfiguration(TarnApi* api, KelError** error, TarnApiConfig** config) {
    kel::invoke(
        error, [&] { return api->getConfiguration(); }, kel::out::record(config));
}
void kel_setConfiguration(TarnApi* api, KelError** error, TarnApiConfig* config) {
    kel::invoke(error, [&] { api->setConfiguration(kel::in::record(config)); });
}
void kel_getServerSettings(TarnApi* api, KelError** error, ServerSettings** settings) {
    kel::invoke(
        error, [&] { return api->getServerSettings(); }, kel::out::record(settings));
}
void kel_getProcessInfo(TarnApi* api, KelError** error, ProcessInfo** info) {
    kel::invoke(
        error, [&] { return api->getProcessInfo(); }, kel::out::record(info));
}
void kel_getTransmissionInfo(TarnApi* api, KelError** error, TransmissionInfo** info) {
    kel::invoke(
        error, [&] { return api->getTransmissionInfo(); }, kel::out::record(info));
}
void kel_getMoxConfiguration(TarnApi* api, KelError** error, MoxConfig** config) {
    kel::invoke(
        error, [&] { return api->getMoxConfiguration(); }, kel::out::record(config));
}
void kel_setMoxConfiguration(TarnApi* api, KelError** error, MoxConfig* config) {
    kel::invoke(error, [&] { api->setMoxConfiguration(kel::in::record(config)); });
}
void kel_getGlobalProtocolParameterSets(TarnApi* api, KelError** error,
                                        GlobalProtocolParameterSet*** sets, uint32_t* setCount) {
    kel::invoke(
        error, [&] { return api->getGlobalProtocolParameterSets(); },
        kel::out::records(sets, setCount));
}
void kel_setGlobalProtocolParameterSets(TarnApi* api, KelError** error,
                                        GlobalProtocolParameterSet** sets, uint32_t setCount) {
    kel::invoke(error,
                [&] { api->setGlobalProtocolParameterSets(kel::in::records(sets, setCount)); });
}
void kel_getStatusInfo(TarnApi* api, KelError** error, StatusInfo** info) {
    kel::invoke(
        error, [&] { return api->getStatusInfo(); }, kel::out::record(info));
}
void kel_getCurrentDebugTraceDirectory(TarnApi* api, KelError** error, wchar_t** directory) {
    kel::invoke(
        error, [&] { return api->getCurrentDebugTraceDirectory(); }, kel::out::text(directory));
}
void kel_getServerConfiguration(TarnApi* api, KelError** error, TarnApiServerConfig** config) {
    kel::invoke(
        error, [&] { return api->getServerConfiguration(); }, kel::out::record(config));
}
void kel_setStatusText(TarnApi* api, KelError** error, const wchar_t* text) {
    kel::invoke(error, [&] { api->setStatusText(kel::in::text(text)); });
}

} // extern "C"
