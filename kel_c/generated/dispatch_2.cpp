// Generated from the interface description by tools/generate.py. Do not edit.
// The dispatcher's calls of the families Projects, Servers.

#include "dispatch.h"

namespace kel::dispatch {

template void call<&TarnApi::startServer, false>(TarnApi&, OTXStream&, OTXStream&, int32_t*);
template void call<&TarnApi::stopServer, false>(TarnApi&, OTXStream&, OTXStream&, int32_t*);
template void call<&TarnApi::restartServer, false>(TarnApi&, OTXStream&, OTXStream&, int32_t*);
template void call<&TarnApi::getProjectConfiguration, false>(TarnApi&, OTXStream&, OTXStream&,
                                                             int32_t*);
template void call<&TarnApi::setProjectConfiguration, false>(TarnApi&, OTXStream&, OTXStream&,
                                                             int32_t*);
template void call<&TarnApi::saveProjectConfiguration, false>(TarnApi&, OTXStream&, OTXStream&,
                                                              int32_t*);
template void call<&TarnApi::saveConfiguration, false>(TarnApi&, OTXStream&, OTXStream&, int32_t*);
template void call<&TarnApi::connectRemoteServer, false>(TarnApi&, OTXStream&, OTXStream&,
                                                         int32_t*);
template void call<&TarnApi::getProjectConfigurations, false>(TarnApi&, OTXStream&, OTXStream&,
                                                              int32_t*);
template void call<&TarnApi::getVersion, false>(TarnApi&, OTXStream&, OTXStream&, int32_t*);
template void call<&TarnApi::getSelectedProject, false>(TarnApi&, OTXStream&, OTXStream&, int32_t*);
template void call<&TarnApi::setSelectedProject, false>(TarnApi&, OTXStream&, OTXStream&, int32_t*);
template void call<&TarnApi::getConfiguration, false>(TarnApi&, OTXStream&, OTXStream&, int32_t*);
template void call<&TarnApi::setConfiguration, false>(TarnApi&, OTXStream&, OTXStream&, int32_t*);
template void call<&TarnApi::getServerSettings, false>(TarnApi&, OTXStream&, OTXStream&, int32_t*);
template void call<&TarnApi::getProcessInfo, false>(TarnApi&, OTXStream&, OTXStream&, int32_t*);
template void call<&TarnApi::getTransmissionInfo, false>(TarnApi&, OTXStream&, OTXStream&,
                                                         int32_t*);
template void call<&TarnApi::getMoxConfiguration, false>(TarnApi&, OTXStream&, OTXStream&,
                                                         int32_t*);
template void call<&TarnApi::disconnect, false>(TarnApi&, OTXStream&, OTXStream&, int32_t*);
template void call<&TarnApi::getGlobalProtocolParameterSets, false>(TarnApi&, OTXStream&,
                                                                    OTXStream&, int32_t*);
template void call<&TarnApi::setGlobalProtocolParameterSets, false>(TarnApi&, OTXStream&,
                                                                    OTXStream&, int32_t*);
template void call<&TarnApi::refreshProjectList, false>(TarnApi&, OTXStream&, OTXStream&, int32_t*);
template void call<&TarnApi::getStatusInfo, false>(TarnApi&, OTXStream&, OTXStream&, int32_t*);
template void call<&TarnApi::isProjectConversionRequired, false>(TarnApi&, OTXStream&, OTXStream&,
                                                                 int32_t*);
template void call<&TarnApi::convertProject, false>(TarnApi&, OTXStream&, OTXStream&, int32_t*);
template void call<&TarnApi::setMoxConfiguration, false>(TarnApi&, OTXStream&, OTXStream&,
                                                         int32_t*);
template void call<&TarnApi::saveMoxConfiguration, false>(TarnApi&, OTXStream&, OTXStream&,
                                                          int32_t*);
template void call<&TarnApi::getProjectDetails, false>(TarnApi&, OTXStream&, OTXStream&, int32_t*);
template void call<&TarnApi::getSystemProperty, false>(TarnApi&, OTXStream&, OTXStream&, int32_t*);
template void call<&TarnApi::resetSystemProperty, false>(TarnApi&, OTXStream&, OTXStream&,
                                                         int32_t*);
template void call<&TarnApi::setSystemProperty, false>(TarnApi&, OTXStream&, OTXStream&, int32_t*);
template void call<&TarnApi::getServerUserManagement, false>(TarnApi&, OTXStream&, OTXStream&,
                                                             int32_t*);
template void call<&TarnApi::getCurrentDebugTraceDirectory, false>(TarnApi&, OTXStream&, OTXStream&,
                                                                   int32_t*);
template void call<&TarnApi::addUser, false>(TarnApi&, OTXStream&, OTXStream&, int32_t*);
template void call<&TarnApi::setServerUserManagement, false>(TarnApi&, OTXStream&, OTXStream&,
                                                             int32_t*);
template void call<&TarnApi::removeUser, false>(TarnApi&, OTXStream&, OTXStream&, int32_t*);
template void call<&TarnApi::logOut, false>(TarnApi&, OTXStream&, OTXStream&, int32_t*);
template void call<&TarnApi::getUsers, false>(TarnApi&, OTXStream&, OTXStream&, int32_t*);
template void call<&TarnApi::updateUser, false>(TarnApi&, OTXStream&, OTXStream&, int32_t*);
template void call<&TarnApi::disconnectAllClients, false>(TarnApi&, OTXStream&, OTXStream&,
                                                          int32_t*);
template void call<&TarnApi::getServerConfiguration, false>(TarnApi&, OTXStream&, OTXStream&,
                                                            int32_t*);
template void call<&TarnApi::getSystemInfo, false>(TarnApi&, OTXStream&, OTXStream&, int32_t*);
template void call<&TarnApi::setStatusText, false>(TarnApi&, OTXStream&, OTXStream&, int32_t*);
template void call<&TarnApi::loadDatabaseFile, false>(TarnApi&, OTXStream&, OTXStream&, int32_t*);
template void call<&TarnApi::reconnectRemoteServer, false>(TarnApi&, OTXStream&, OTXStream&,
                                                           int32_t*);
template void call<&TarnApi::getProjectsDetails, false>(TarnApi&, OTXStream&, OTXStream&, int32_t*);
template void call<&TarnApi::unloadDatabaseFile, false>(TarnApi&, OTXStream&, OTXStream&, int32_t*);
template void call<&TarnApi::logIn, false>(TarnApi&, OTXStream&, OTXStream&, int32_t*);
template void call<&TarnApi::thirdPartyLogin, false>(TarnApi&, OTXStream&, OTXStream&, int32_t*);
template void call<&TarnApi::selectDynamicProject, false>(TarnApi&, OTXStream&, OTXStream&,
                                                          int32_t*);
template void call<&TarnApi::getCertificateByPublicKey, false>(TarnApi&, OTXStream&, OTXStream&,
                                                               int32_t*);
template void call<&TarnApi::createCertificateFromCSR, false>(TarnApi&, OTXStream&, OTXStream&,
                                                              int32_t*);
template void call<&TarnApi::getCertificateChainById, false>(TarnApi&, OTXStream&, OTXStream&,
                                                             int32_t*);
template void call<&TarnApi::getThirdPartyLoginUrl, false>(TarnApi&, OTXStream&, OTXStream&,
                                                           int32_t*);
template void call<&TarnApi::startSOVDServer, false>(TarnApi&, OTXStream&, OTXStream&, int32_t*);
template void call<&TarnApi::stopSOVDServer, false>(TarnApi&, OTXStream&, OTXStream&, int32_t*);

} // namespace kel::dispatch
