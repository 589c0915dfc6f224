// Generated from the interface description by tools/generate.py. Do not edit.
// The dispatcher's calls of the families Interfaces, Monitoring, Files.

#include "dispatch.h"

namespace kel::dispatch {

template void call<&TarnApi::createMonitoringLink, false>(TarnApi&, OTXStream&, OTXStream&,
                                                          int32_t*);
template void call<&TarnApi::getMonitoringItems, false>(TarnApi&, OTXStream&, OTXStream&, int32_t*);
template void call<&TarnApi::releaseMonitoringLink, false>(TarnApi&, OTXStream&, OTXStream&,
                                                           int32_t*);
template void call<&TarnApi::getPduMonitoringItems, false>(TarnApi&, OTXStream&, OTXStream&,
                                                           int32_t*);
template void call<&TarnApi::createPduMonitor, false>(TarnApi&, OTXStream&, OTXStream&, int32_t*);
template void call<&TarnApi::releasePduMonitor, false>(TarnApi&, OTXStream&, OTXStream&, int32_t*);
template void call<&TarnApi::getInterfaceConfiguration, false>(TarnApi&, OTXStream&, OTXStream&,
                                                               int32_t*);
template void call<&TarnApi::setInterfaceConfiguration, false>(TarnApi&, OTXStream&, OTXStream&,
                                                               int32_t*);
template void call<&TarnApi::getMonitoringLinks, false>(TarnApi&, OTXStream&, OTXStream&, int32_t*);
template void call<&TarnApi::closeTraceFileMonitoringLink, false>(TarnApi&, OTXStream&, OTXStream&,
                                                                  int32_t*);
template void call<&TarnApi::openTraceFileMonitoringLink, false>(TarnApi&, OTXStream&, OTXStream&,
                                                                 int32_t*);
template void call<&TarnApi::startTraceFileMonitoringLink, false>(TarnApi&, OTXStream&, OTXStream&,
                                                                  int32_t*);
template void call<&TarnApi::stopTraceFileMonitoringLink, false>(TarnApi&, OTXStream&, OTXStream&,
                                                                 int32_t*);
template void call<&TarnApi::saveInterfaceConfiguration, false>(TarnApi&, OTXStream&, OTXStream&,
                                                                int32_t*);
template void call<&TarnApi::scanInterfaceConnection, false>(TarnApi&, OTXStream&, OTXStream&,
                                                             int32_t*);
template void call<&TarnApi::getInterfaceLongName, false>(TarnApi&, OTXStream&, OTXStream&,
                                                          int32_t*);
template void call<&TarnApi::readFile, false>(TarnApi&, OTXStream&, OTXStream&, int32_t*);
template void call<&TarnApi::connectInterfaces, false>(TarnApi&, OTXStream&, OTXStream&, int32_t*);
template void call<&TarnApi::disconnectInterfaces, false>(TarnApi&, OTXStream&, OTXStream&,
                                                          int32_t*);
template void call<&TarnApi::executeDoIPBroadcast, false>(TarnApi&, OTXStream&, OTXStream&,
                                                          int32_t*);
template void call<&TarnApi::detectDynInterfacesEx, false>(TarnApi&, OTXStream&, OTXStream&,
                                                           int32_t*);
template void call<&TarnApi::createSocketBridge, false>(TarnApi&, OTXStream&, OTXStream&, int32_t*);
template void call<&TarnApi::releaseSocketBridge, false>(TarnApi&, OTXStream&, OTXStream&,
                                                         int32_t*);
template void call<&TarnApi::clearLinkCache, false>(TarnApi&, OTXStream&, OTXStream&, int32_t*);
template void call<&TarnApi::addInterface, false>(TarnApi&, OTXStream&, OTXStream&, int32_t*);
template void call<&TarnApi::addResource, false>(TarnApi&, OTXStream&, OTXStream&, int32_t*);
template void call<&TarnApi::removeInterface, false>(TarnApi&, OTXStream&, OTXStream&, int32_t*);
template void call<&TarnApi::getSupportedInterfaces, false>(TarnApi&, OTXStream&, OTXStream&,
                                                            int32_t*);
template void call<&TarnApi::removeResource, false>(TarnApi&, OTXStream&, OTXStream&, int32_t*);
template void call<&TarnApi::getInterfaceProviders, false>(TarnApi&, OTXStream&, OTXStream&,
                                                           int32_t*);
template void call<&TarnApi::setInterfaceProviders, false>(TarnApi&, OTXStream&, OTXStream&,
                                                           int32_t*);
template void call<&TarnApi::getVendorModuleNames, false>(TarnApi&, OTXStream&, OTXStream&,
                                                          int32_t*);
template void call<&TarnApi::getVendorModuleNamesEx, false>(TarnApi&, OTXStream&, OTXStream&,
                                                            int32_t*);
template void call<&TarnApi::detectDynInterfaces, false>(TarnApi&, OTXStream&, OTXStream&,
                                                         int32_t*);
template void call<&TarnApi::connectDynInterface, false>(TarnApi&, OTXStream&, OTXStream&,
                                                         int32_t*);
template void call<&TarnApi::disconnectDynInterfaces, false>(TarnApi&, OTXStream&, OTXStream&,
                                                             int32_t*);
template void call<&TarnApi::getProjectDirectory, false>(TarnApi&, OTXStream&, OTXStream&,
                                                         int32_t*);
template void call<&TarnApi::getSelectedProjectDirectory, false>(TarnApi&, OTXStream&, OTXStream&,
                                                                 int32_t*);
template void call<&TarnApi::getConfigDirectory, false>(TarnApi&, OTXStream&, OTXStream&, int32_t*);
template void call<&TarnApi::createFile, false>(TarnApi&, OTXStream&, OTXStream&, int32_t*);
template void call<&TarnApi::createDirectory, false>(TarnApi&, OTXStream&, OTXStream&, int32_t*);
template void call<&TarnApi::deleteDirectory, false>(TarnApi&, OTXStream&, OTXStream&, int32_t*);
template void call<&TarnApi::writeFile, false>(TarnApi&, OTXStream&, OTXStream&, int32_t*);
template void call<&TarnApi::getTraceDirectory, false>(TarnApi&, OTXStream&, OTXStream&, int32_t*);
template void call<&TarnApi::deleteFiles, false>(TarnApi&, OTXStream&, OTXStream&, int32_t*);
template void call<&TarnApi::findDirectories, false>(TarnApi&, OTXStream&, OTXStream&, int32_t*);
template void call<&TarnApi::findFiles, false>(TarnApi&, OTXStream&, OTXStream&, int32_t*);
template void call<&TarnApi::initializeDirectoryElements, false>(TarnApi&, OTXStream&, OTXStream&,
                                                                 int32_t*);
template void call<&TarnApi::setEthernetPinState, false>(TarnApi&, OTXStream&, OTXStream&,
                                                         int32_t*);
template void call<&TarnApi::getEthernetPinState, false>(TarnApi&, OTXStream&, OTXStream&,
                                                         int32_t*);
template void call<&TarnApi::connectDynInterfaceEx, false>(TarnApi&, OTXStream&, OTXStream&,
                                                           int32_t*);
template void call<&TarnApi::testSocketBridge, false>(TarnApi&, OTXStream&, OTXStream&, int32_t*);
template void call<&TarnApi::copyFiles, false>(TarnApi&, OTXStream&, OTXStream&, int32_t*);
template void call<&TarnApi::copyDirectories, false>(TarnApi&, OTXStream&, OTXStream&, int32_t*);
template void call<&TarnApi::getRegisteredDevices, false>(TarnApi&, OTXStream&, OTXStream&,
                                                          int32_t*);
template void call<&TarnApi::renameFile, false>(TarnApi&, OTXStream&, OTXStream&, int32_t*);
template void call<&TarnApi::createApiTraceMonitor, false>(TarnApi&, OTXStream&, OTXStream&,
                                                           int32_t*);
template void call<&TarnApi::getApiTraceContent, false>(TarnApi&, OTXStream&, OTXStream&, int32_t*);
template void call<&TarnApi::releaseApiTraceMonitor, false>(TarnApi&, OTXStream&, OTXStream&,
                                                            int32_t*);
template void call<&TarnApi::copyProjectWithFilters, false>(TarnApi&, OTXStream&, OTXStream&,
                                                            int32_t*);
template void call<&TarnApi::filterFiles, false>(TarnApi&, OTXStream&, OTXStream&, int32_t*);
template void call<&TarnApi::getDefaultDoIPParameter, false>(TarnApi&, OTXStream&, OTXStream&,
                                                             int32_t*);
template void call<&TarnApi::moveFile, false>(TarnApi&, OTXStream&, OTXStream&, int32_t*);
template void call<&TarnApi::getPublicDirectories, false>(TarnApi&, OTXStream&, OTXStream&,
                                                          int32_t*);
template void call<&TarnApi::getPhysicalLinks, false>(TarnApi&, OTXStream&, OTXStream&, int32_t*);
template void call<&TarnApi::setPhysicalLinks, false>(TarnApi&, OTXStream&, OTXStream&, int32_t*);
template void call<&TarnApi::moveDirectory, false>(TarnApi&, OTXStream&, OTXStream&, int32_t*);
template void call<&TarnApi::pathExists, false>(TarnApi&, OTXStream&, OTXStream&, int32_t*);
template void call<&TarnApi::getFileReferences, false>(TarnApi&, OTXStream&, OTXStream&, int32_t*);
template void call<&TarnApi::resolvePath, false>(TarnApi&, OTXStream&, OTXStream&, int32_t*);
template void call<&TarnApi::openTerminal, false>(TarnApi&, OTXStream&, OTXStream&, int32_t*);
template void call<&TarnApi::closeTerminal, false>(TarnApi&, OTXStream&, OTXStream&, int32_t*);
template void call<&TarnApi::isDirectory, false>(TarnApi&, OTXStream&, OTXStream&, int32_t*);
template void call<&TarnApi::getDirectoryInfo, false>(TarnApi&, OTXStream&, OTXStream&, int32_t*);
template void call<&TarnApi::getFileInfo, false>(TarnApi&, OTXStream&, OTXStream&, int32_t*);
template void call<&TarnApi::isFile, false>(TarnApi&, OTXStream&, OTXStream&, int32_t*);
template void call<&TarnApi::getWLanSignalData, false>(TarnApi&, OTXStream&, OTXStream&, int32_t*);
template void call<&TarnApi::clearDoIPEcuCollection, false>(TarnApi&, OTXStream&, OTXStream&,
                                                            int32_t*);
template void call<&TarnApi::copyPath, false>(TarnApi&, OTXStream&, OTXStream&, int32_t*);
template void call<&TarnApi::addPublicDirectory, false>(TarnApi&, OTXStream&, OTXStream&, int32_t*);

} // namespace kel::dispatch
