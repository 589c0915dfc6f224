// Generated from the interface description by tools/generate.py. Do not edit.
// The dispatcher numbers of kel_call and py_call, in order: each names one engine
// operation. Numbers not listed name no operation.
#pragma once

#include "dispatch.h"

#include <array>

namespace kel::dispatch {

// Instantiated in the parts (dispatch_<k>.cpp), by family.

extern template void call<&TarnApi::initialize, false>(TarnApi&, OTXStream&, OTXStream&, int32_t*);
extern template void call<&TarnApi::end, false>(TarnApi&, OTXStream&, OTXStream&, int32_t*);
extern template void call<&TarnApi::startServer, false>(TarnApi&, OTXStream&, OTXStream&, int32_t*);
extern template void call<&TarnApi::stopServer, false>(TarnApi&, OTXStream&, OTXStream&, int32_t*);
extern template void call<&TarnApi::restartServer, false>(TarnApi&, OTXStream&, OTXStream&,
                                                          int32_t*);
extern template void call<&TarnApi::getProjectConfiguration, false>(TarnApi&, OTXStream&,
                                                                    OTXStream&, int32_t*);
extern template void call<&TarnApi::setProjectConfiguration, false>(TarnApi&, OTXStream&,
                                                                    OTXStream&, int32_t*);
extern template void call<&TarnApi::saveProjectConfiguration, false>(TarnApi&, OTXStream&,
                                                                     OTXStream&, int32_t*);
extern template void call<&TarnApi::createMonitoringLink, false>(TarnApi&, OTXStream&, OTXStream&,
                                                                 int32_t*);
extern template void call<&TarnApi::getMonitoringItems, false>(TarnApi&, OTXStream&, OTXStream&,
                                                               int32_t*);
extern template void call<&TarnApi::releaseMonitoringLink, false>(TarnApi&, OTXStream&, OTXStream&,
                                                                  int32_t*);
extern template void call<&TarnApi::getPduMonitoringItems, false>(TarnApi&, OTXStream&, OTXStream&,
                                                                  int32_t*);
extern template void call<&TarnApi::createPduMonitor, false>(TarnApi&, OTXStream&, OTXStream&,
                                                             int32_t*);
extern template void call<&TarnApi::saveConfiguration, false>(TarnApi&, OTXStream&, OTXStream&,
                                                              int32_t*);
extern template void call<&TarnApi::releasePduMonitor, false>(TarnApi&, OTXStream&, OTXStream&,
                                                              int32_t*);
extern template void call<&TarnApi::identifyAllTargets, false>(TarnApi&, OTXStream&, OTXStream&,
                                                               int32_t*);
extern template void call<&TarnApi::readIdentificationValues, false>(TarnApi&, OTXStream&,
                                                                     OTXStream&, int32_t*);
extern template void call<&TarnApi::readDataByIdentifiers, false>(TarnApi&, OTXStream&, OTXStream&,
                                                                  int32_t*);
extern template void call<&TarnApi::identifyTarget, false>(TarnApi&, OTXStream&, OTXStream&,
                                                           int32_t*);
extern template void call<&TarnApi::readDtcs, false>(TarnApi&, OTXStream&, OTXStream&, int32_t*);
extern template void call<&TarnApi::readSupportedDtcs, false>(TarnApi&, OTXStream&, OTXStream&,
                                                              int32_t*);
extern template void call<&TarnApi::clearAllDtcs, false>(TarnApi&, OTXStream&, OTXStream&,
                                                         int32_t*);
extern template void call<&TarnApi::getServiceInfos, false>(TarnApi&, OTXStream&, OTXStream&,
                                                            int32_t*);
extern template void call<&TarnApi::executeService, false>(TarnApi&, OTXStream&, OTXStream&,
                                                           int32_t*);
extern template void call<&TarnApi::readCodingStrings, false>(TarnApi&, OTXStream&, OTXStream&,
                                                              int32_t*);
extern template void call<&TarnApi::performQuickTest, false>(TarnApi&, OTXStream&, OTXStream&,
                                                             int32_t*);
extern template void call<&TarnApi::connectRemoteServer, false>(TarnApi&, OTXStream&, OTXStream&,
                                                                int32_t*);
extern template void call<&TarnApi::getMeasurementValueInfos, false>(TarnApi&, OTXStream&,
                                                                     OTXStream&, int32_t*);
extern template void call<&TarnApi::registerMeasurementValues, false>(TarnApi&, OTXStream&,
                                                                      OTXStream&, int32_t*);
extern template void call<&TarnApi::getMeasurementValues, false>(TarnApi&, OTXStream&, OTXStream&,
                                                                 int32_t*);
extern template void call<&TarnApi::unregisterMeasurementValues, false>(TarnApi&, OTXStream&,
                                                                        OTXStream&, int32_t*);
extern template void call<&TarnApi::getIdentificationValueInfos, false>(TarnApi&, OTXStream&,
                                                                        OTXStream&, int32_t*);
extern template void call<&TarnApi::cancelAsyncCalls, false>(TarnApi&, OTXStream&, OTXStream&,
                                                             int32_t*);
extern template void call<&TarnApi::createSeed, false>(TarnApi&, OTXStream&, OTXStream&, int32_t*);
extern template void call<&TarnApi::sendKey, false>(TarnApi&, OTXStream&, OTXStream&, int32_t*);
extern template void call<&TarnApi::openEventChannel, false>(TarnApi&, OTXStream&, OTXStream&,
                                                             int32_t*);
extern template void call<&TarnApi::closeEventChannel, false>(TarnApi&, OTXStream&, OTXStream&,
                                                              int32_t*);
extern template void call<&TarnApi::getCurrentEvents, false>(TarnApi&, OTXStream&, OTXStream&,
                                                             int32_t*);
extern template void call<&TarnApi::getProjectConfigurations, false>(TarnApi&, OTXStream&,
                                                                     OTXStream&, int32_t*);
extern template void call<&TarnApi::getState, false>(TarnApi&, OTXStream&, OTXStream&, int32_t*);
extern template void call<&TarnApi::getVersion, false>(TarnApi&, OTXStream&, OTXStream&, int32_t*);
extern template void call<&TarnApi::getSelectedProject, false>(TarnApi&, OTXStream&, OTXStream&,
                                                               int32_t*);
extern template void call<&TarnApi::setSelectedProject, false>(TarnApi&, OTXStream&, OTXStream&,
                                                               int32_t*);
extern template void call<&TarnApi::getConfiguration, false>(TarnApi&, OTXStream&, OTXStream&,
                                                             int32_t*);
extern template void call<&TarnApi::setConfiguration, false>(TarnApi&, OTXStream&, OTXStream&,
                                                             int32_t*);
extern template void call<&TarnApi::getServerSettings, false>(TarnApi&, OTXStream&, OTXStream&,
                                                              int32_t*);
extern template void call<&TarnApi::getSelectedVehicleInformation, false>(TarnApi&, OTXStream&,
                                                                          OTXStream&, int32_t*);
extern template void call<&TarnApi::setSelectedVehicleInformation, false>(TarnApi&, OTXStream&,
                                                                          OTXStream&, int32_t*);
extern template void call<&TarnApi::getTargets, false>(TarnApi&, OTXStream&, OTXStream&, int32_t*);
extern template void call<&TarnApi::getProcessInfo, false>(TarnApi&, OTXStream&, OTXStream&,
                                                           int32_t*);
extern template void call<&TarnApi::getTransmissionInfo, false>(TarnApi&, OTXStream&, OTXStream&,
                                                                int32_t*);
extern template void call<&TarnApi::getHandle, false>(TarnApi&, OTXStream&, OTXStream&, int32_t*);
extern template void call<&TarnApi::getMoxConfiguration, false>(TarnApi&, OTXStream&, OTXStream&,
                                                                int32_t*);
extern template void call<&TarnApi::getInterfaceConfiguration, false>(TarnApi&, OTXStream&,
                                                                      OTXStream&, int32_t*);
extern template void call<&TarnApi::setInterfaceConfiguration, false>(TarnApi&, OTXStream&,
                                                                      OTXStream&, int32_t*);
extern template void call<&TarnApi::getMonitoringLinks, false>(TarnApi&, OTXStream&, OTXStream&,
                                                               int32_t*);
extern template void call<&TarnApi::closeTraceFileMonitoringLink, false>(TarnApi&, OTXStream&,
                                                                         OTXStream&, int32_t*);
extern template void call<&TarnApi::openTraceFileMonitoringLink, false>(TarnApi&, OTXStream&,
                                                                        OTXStream&, int32_t*);
extern template void call<&TarnApi::startTraceFileMonitoringLink, false>(TarnApi&, OTXStream&,
                                                                         OTXStream&, int32_t*);
extern template void call<&TarnApi::stopTraceFileMonitoringLink, false>(TarnApi&, OTXStream&,
                                                                        OTXStream&, int32_t*);
extern template void call<&TarnApi::saveInterfaceConfiguration, false>(TarnApi&, OTXStream&,
                                                                       OTXStream&, int32_t*);
extern template void call<&TarnApi::scanInterfaceConnection, false>(TarnApi&, OTXStream&,
                                                                    OTXStream&, int32_t*);
extern template void call<&TarnApi::getInterfaceLongName, false>(TarnApi&, OTXStream&, OTXStream&,
                                                                 int32_t*);
extern template void call<&TarnApi::disconnect, false>(TarnApi&, OTXStream&, OTXStream&, int32_t*);
extern template void call<&TarnApi::readMeasurementValues, false>(TarnApi&, OTXStream&, OTXStream&,
                                                                  int32_t*);
extern template void call<&TarnApi::readFile, false>(TarnApi&, OTXStream&, OTXStream&, int32_t*);
extern template void call<&TarnApi::getGlobalProtocolParameterSets, false>(TarnApi&, OTXStream&,
                                                                           OTXStream&, int32_t*);
extern template void call<&TarnApi::setGlobalProtocolParameterSets, false>(TarnApi&, OTXStream&,
                                                                           OTXStream&, int32_t*);
extern template void call<&TarnApi::connectInterfaces, false>(TarnApi&, OTXStream&, OTXStream&,
                                                              int32_t*);
extern template void call<&TarnApi::disconnectInterfaces, false>(TarnApi&, OTXStream&, OTXStream&,
                                                                 int32_t*);
extern template void call<&TarnApi::executeDoIPBroadcast, false>(TarnApi&, OTXStream&, OTXStream&,
                                                                 int32_t*);
extern template void call<&TarnApi::detectDynInterfacesEx, false>(TarnApi&, OTXStream&, OTXStream&,
                                                                  int32_t*);
extern template void call<&TarnApi::refreshProjectList, false>(TarnApi&, OTXStream&, OTXStream&,
                                                               int32_t*);
extern template void call<&TarnApi::identifyTargets, false>(TarnApi&, OTXStream&, OTXStream&,
                                                            int32_t*);
extern template void call<&TarnApi::getStatusInfo, false>(TarnApi&, OTXStream&, OTXStream&,
                                                          int32_t*);
extern template void call<&TarnApi::getActuatorServiceInfos, false>(TarnApi&, OTXStream&,
                                                                    OTXStream&, int32_t*);
extern template void call<&TarnApi::getSessionTargetFilters, false>(TarnApi&, OTXStream&,
                                                                    OTXStream&, int32_t*);
extern template void call<&TarnApi::setSessionTargetFilters, false>(TarnApi&, OTXStream&,
                                                                    OTXStream&, int32_t*);
extern template void call<&TarnApi::createSocketBridge, false>(TarnApi&, OTXStream&, OTXStream&,
                                                               int32_t*);
extern template void call<&TarnApi::releaseSocketBridge, false>(TarnApi&, OTXStream&, OTXStream&,
                                                                int32_t*);
extern template void call<&TarnApi::getSingleMeasurementValueInfos, false>(TarnApi&, OTXStream&,
                                                                           OTXStream&, int32_t*);
extern template void call<&TarnApi::getFilteredTargets, false>(TarnApi&, OTXStream&, OTXStream&,
                                                               int32_t*);
extern template void call<&TarnApi::isProjectConversionRequired, false>(TarnApi&, OTXStream&,
                                                                        OTXStream&, int32_t*);
extern template void call<&TarnApi::convertProject, false>(TarnApi&, OTXStream&, OTXStream&,
                                                           int32_t*);
extern template void call<&TarnApi::setMoxConfiguration, false>(TarnApi&, OTXStream&, OTXStream&,
                                                                int32_t*);
extern template void call<&TarnApi::saveMoxConfiguration, false>(TarnApi&, OTXStream&, OTXStream&,
                                                                 int32_t*);
extern template void call<&TarnApi::startCyclicServices, false>(TarnApi&, OTXStream&, OTXStream&,
                                                                int32_t*);
extern template void call<&TarnApi::stopCyclicServices, false>(TarnApi&, OTXStream&, OTXStream&,
                                                               int32_t*);
extern template void call<&TarnApi::getCyclicResults, false>(TarnApi&, OTXStream&, OTXStream&,
                                                             int32_t*);
extern template void call<&TarnApi::getProjectDetails, false>(TarnApi&, OTXStream&, OTXStream&,
                                                              int32_t*);
extern template void call<&TarnApi::clearLinkCache, false>(TarnApi&, OTXStream&, OTXStream&,
                                                           int32_t*);
extern template void call<&TarnApi::addInterface, false>(TarnApi&, OTXStream&, OTXStream&,
                                                         int32_t*);
extern template void call<&TarnApi::addResource, false>(TarnApi&, OTXStream&, OTXStream&, int32_t*);
extern template void call<&TarnApi::removeInterface, false>(TarnApi&, OTXStream&, OTXStream&,
                                                            int32_t*);
extern template void call<&TarnApi::getSupportedInterfaces, false>(TarnApi&, OTXStream&, OTXStream&,
                                                                   int32_t*);
extern template void call<&TarnApi::removeResource, false>(TarnApi&, OTXStream&, OTXStream&,
                                                           int32_t*);
extern template void call<&TarnApi::getFlashSessionInfos, false>(TarnApi&, OTXStream&, OTXStream&,
                                                                 int32_t*);
extern template void call<&TarnApi::getSystemProperty, false>(TarnApi&, OTXStream&, OTXStream&,
                                                              int32_t*);
extern template void call<&TarnApi::resetSystemProperty, false>(TarnApi&, OTXStream&, OTXStream&,
                                                                int32_t*);
extern template void call<&TarnApi::setSystemProperty, false>(TarnApi&, OTXStream&, OTXStream&,
                                                              int32_t*);
extern template void call<&TarnApi::executeFlashSessions, false>(TarnApi&, OTXStream&, OTXStream&,
                                                                 int32_t*);
extern template void call<&TarnApi::getInterfaceProviders, false>(TarnApi&, OTXStream&, OTXStream&,
                                                                  int32_t*);
extern template void call<&TarnApi::setInterfaceProviders, false>(TarnApi&, OTXStream&, OTXStream&,
                                                                  int32_t*);
extern template void call<&TarnApi::getVendorModuleNames, false>(TarnApi&, OTXStream&, OTXStream&,
                                                                 int32_t*);
extern template void call<&TarnApi::getVendorModuleNamesEx, false>(TarnApi&, OTXStream&, OTXStream&,
                                                                   int32_t*);
extern template void call<&TarnApi::detectDynInterfaces, false>(TarnApi&, OTXStream&, OTXStream&,
                                                                int32_t*);
extern template void call<&TarnApi::connectDynInterface, false>(TarnApi&, OTXStream&, OTXStream&,
                                                                int32_t*);
extern template void call<&TarnApi::disconnectDynInterfaces, false>(TarnApi&, OTXStream&,
                                                                    OTXStream&, int32_t*);
extern template void call<&TarnApi::updateCyclicServices, false>(TarnApi&, OTXStream&, OTXStream&,
                                                                 int32_t*);
extern template void call<&TarnApi::cancelAllAsyncCalls, false>(TarnApi&, OTXStream&, OTXStream&,
                                                                int32_t*);
extern template void call<&TarnApi::getProjectDirectory, false>(TarnApi&, OTXStream&, OTXStream&,
                                                                int32_t*);
extern template void call<&TarnApi::getSelectedProjectDirectory, false>(TarnApi&, OTXStream&,
                                                                        OTXStream&, int32_t*);
extern template void call<&TarnApi::getConfigDirectory, false>(TarnApi&, OTXStream&, OTXStream&,
                                                               int32_t*);
extern template void call<&TarnApi::createFile, false>(TarnApi&, OTXStream&, OTXStream&, int32_t*);
extern template void call<&TarnApi::createDirectory, false>(TarnApi&, OTXStream&, OTXStream&,
                                                            int32_t*);
extern template void call<&TarnApi::deleteDirectory, false>(TarnApi&, OTXStream&, OTXStream&,
                                                            int32_t*);
extern template void call<&TarnApi::writeFile, false>(TarnApi&, OTXStream&, OTXStream&, int32_t*);
extern template void call<&TarnApi::getTraceDirectory, false>(TarnApi&, OTXStream&, OTXStream&,
                                                              int32_t*);
extern template void call<&TarnApi::deleteFiles, false>(TarnApi&, OTXStream&, OTXStream&, int32_t*);
extern template void call<&TarnApi::getServerUserManagement, false>(TarnApi&, OTXStream&,
                                                                    OTXStream&, int32_t*);
extern template void call<&TarnApi::findDirectories, false>(TarnApi&, OTXStream&, OTXStream&,
                                                            int32_t*);
extern template void call<&TarnApi::findFiles, false>(TarnApi&, OTXStream&, OTXStream&, int32_t*);
extern template void call<&TarnApi::initializeDirectoryElements, false>(TarnApi&, OTXStream&,
                                                                        OTXStream&, int32_t*);
extern template void call<&TarnApi::getCurrentDebugTraceDirectory, false>(TarnApi&, OTXStream&,
                                                                          OTXStream&, int32_t*);
extern template void call<&TarnApi::readEcuOrder, false>(TarnApi&, OTXStream&, OTXStream&,
                                                         int32_t*);
extern template void call<&TarnApi::filterEcuOrder, false>(TarnApi&, OTXStream&, OTXStream&,
                                                           int32_t*);
extern template void call<&TarnApi::addMissingTargetsToEcuOrder, false>(TarnApi&, OTXStream&,
                                                                        OTXStream&, int32_t*);
extern template void call<&TarnApi::createVehicleReport, false>(TarnApi&, OTXStream&, OTXStream&,
                                                                int32_t*);
extern template void call<&TarnApi::lock, false>(TarnApi&, OTXStream&, OTXStream&, int32_t*);
extern template void call<&TarnApi::unlock, false>(TarnApi&, OTXStream&, OTXStream&, int32_t*);
extern template void call<&TarnApi::isLocked, false>(TarnApi&, OTXStream&, OTXStream&, int32_t*);
extern template void call<&TarnApi::breakLock, false>(TarnApi&, OTXStream&, OTXStream&, int32_t*);
extern template void call<&TarnApi::setEthernetPinState, false>(TarnApi&, OTXStream&, OTXStream&,
                                                                int32_t*);
extern template void call<&TarnApi::getEthernetPinState, false>(TarnApi&, OTXStream&, OTXStream&,
                                                                int32_t*);
extern template void call<&TarnApi::connectDynInterfaceEx, false>(TarnApi&, OTXStream&, OTXStream&,
                                                                  int32_t*);
extern template void call<&TarnApi::createVehicleUpdateConfig, false>(TarnApi&, OTXStream&,
                                                                      OTXStream&, int32_t*);
extern template void call<&TarnApi::addUser, false>(TarnApi&, OTXStream&, OTXStream&, int32_t*);
extern template void call<&TarnApi::setServerUserManagement, false>(TarnApi&, OTXStream&,
                                                                    OTXStream&, int32_t*);
extern template void call<&TarnApi::testSocketBridge, false>(TarnApi&, OTXStream&, OTXStream&,
                                                             int32_t*);
extern template void call<&TarnApi::removeUser, false>(TarnApi&, OTXStream&, OTXStream&, int32_t*);
extern template void call<&TarnApi::logOut, false>(TarnApi&, OTXStream&, OTXStream&, int32_t*);
extern template void call<&TarnApi::getUsers, false>(TarnApi&, OTXStream&, OTXStream&, int32_t*);
extern template void call<&TarnApi::updateUser, false>(TarnApi&, OTXStream&, OTXStream&, int32_t*);
extern template void call<&TarnApi::disconnectAllClients, false>(TarnApi&, OTXStream&, OTXStream&,
                                                                 int32_t*);
extern template void call<&TarnApi::getPackagesFromBroker, false>(TarnApi&, OTXStream&, OTXStream&,
                                                                  int32_t*);
extern template void call<&TarnApi::copyFiles, false>(TarnApi&, OTXStream&, OTXStream&, int32_t*);
extern template void call<&TarnApi::copyDirectories, false>(TarnApi&, OTXStream&, OTXStream&,
                                                            int32_t*);
extern template void call<&TarnApi::calculateChecksum, false>(TarnApi&, OTXStream&, OTXStream&,
                                                              int32_t*);
extern template void call<&TarnApi::checkUpdatesOnBroker, false>(TarnApi&, OTXStream&, OTXStream&,
                                                                 int32_t*);
extern template void call<&TarnApi::autoUpdate, false>(TarnApi&, OTXStream&, OTXStream&, int32_t*);
extern template void call<&TarnApi::runSequence, false>(TarnApi&, OTXStream&, OTXStream&, int32_t*);
extern template void call<&TarnApi::unlockVehicle, false>(TarnApi&, OTXStream&, OTXStream&,
                                                          int32_t*);
extern template void call<&TarnApi::releaseVehicleUnlock, true>(TarnApi&, OTXStream&, OTXStream&,
                                                                int32_t*);
extern template void call<&TarnApi::cancelSequence, false>(TarnApi&, OTXStream&, OTXStream&,
                                                           int32_t*);
extern template void call<&TarnApi::getServerConfiguration, false>(TarnApi&, OTXStream&, OTXStream&,
                                                                   int32_t*);
extern template void call<&TarnApi::getRegisteredDevices, false>(TarnApi&, OTXStream&, OTXStream&,
                                                                 int32_t*);
extern template void call<&TarnApi::getSystemInfo, false>(TarnApi&, OTXStream&, OTXStream&,
                                                          int32_t*);
extern template void call<&TarnApi::getUpdatePackages, false>(TarnApi&, OTXStream&, OTXStream&,
                                                              int32_t*);
extern template void call<&TarnApi::applyUpdatePackage, false>(TarnApi&, OTXStream&, OTXStream&,
                                                               int32_t*);
extern template void call<&TarnApi::renameFile, false>(TarnApi&, OTXStream&, OTXStream&, int32_t*);
extern template void call<&TarnApi::getCallDuration, false>(TarnApi&, OTXStream&, OTXStream&,
                                                            int32_t*);
extern template void call<&TarnApi::onConnectionBroken, false>(TarnApi&, OTXStream&, OTXStream&,
                                                               int32_t*);
extern template void call<&TarnApi::createApiTraceMonitor, false>(TarnApi&, OTXStream&, OTXStream&,
                                                                  int32_t*);
extern template void call<&TarnApi::getApiTraceContent, false>(TarnApi&, OTXStream&, OTXStream&,
                                                               int32_t*);
extern template void call<&TarnApi::getCurrentVersions, false>(TarnApi&, OTXStream&, OTXStream&,
                                                               int32_t*);
extern template void call<&TarnApi::releaseApiTraceMonitor, false>(TarnApi&, OTXStream&, OTXStream&,
                                                                   int32_t*);
extern template void call<&TarnApi::checkUpdateSuccess, false>(TarnApi&, OTXStream&, OTXStream&,
                                                               int32_t*);
extern template void call<&TarnApi::cleanUpdateTmp, false>(TarnApi&, OTXStream&, OTXStream&,
                                                           int32_t*);
extern template void call<&TarnApi::executeFlashSessionsConfig, false>(TarnApi&, OTXStream&,
                                                                       OTXStream&, int32_t*);
extern template void call<&TarnApi::setStatusText, false>(TarnApi&, OTXStream&, OTXStream&,
                                                          int32_t*);
extern template void call<&TarnApi::loadDatabaseFile, false>(TarnApi&, OTXStream&, OTXStream&,
                                                             int32_t*);
extern template void call<&TarnApi::reconnectRemoteServer, false>(TarnApi&, OTXStream&, OTXStream&,
                                                                  int32_t*);
extern template void call<&TarnApi::copyProjectWithFilters, false>(TarnApi&, OTXStream&, OTXStream&,
                                                                   int32_t*);
extern template void call<&TarnApi::getVehicleData, false>(TarnApi&, OTXStream&, OTXStream&,
                                                           int32_t*);
extern template void call<&TarnApi::getProjectsDetails, false>(TarnApi&, OTXStream&, OTXStream&,
                                                               int32_t*);
extern template void call<&TarnApi::filterFiles, false>(TarnApi&, OTXStream&, OTXStream&, int32_t*);
extern template void call<&TarnApi::unloadDatabaseFile, false>(TarnApi&, OTXStream&, OTXStream&,
                                                               int32_t*);
extern template void call<&TarnApi::getDefaultDoIPParameter, false>(TarnApi&, OTXStream&,
                                                                    OTXStream&, int32_t*);
extern template void call<&TarnApi::moveFile, false>(TarnApi&, OTXStream&, OTXStream&, int32_t*);
extern template void call<&TarnApi::getPublicDirectories, false>(TarnApi&, OTXStream&, OTXStream&,
                                                                 int32_t*);
extern template void call<&TarnApi::updateVehicle, false>(TarnApi&, OTXStream&, OTXStream&,
                                                          int32_t*);
extern template void call<&TarnApi::executeServiceInDefaultSession, false>(TarnApi&, OTXStream&,
                                                                           OTXStream&, int32_t*);
extern template void call<&TarnApi::getTargetStatus, false>(TarnApi&, OTXStream&, OTXStream&,
                                                            int32_t*);
extern template void call<&TarnApi::logIn, false>(TarnApi&, OTXStream&, OTXStream&, int32_t*);
extern template void call<&TarnApi::getPhysicalLinks, false>(TarnApi&, OTXStream&, OTXStream&,
                                                             int32_t*);
extern template void call<&TarnApi::setPhysicalLinks, false>(TarnApi&, OTXStream&, OTXStream&,
                                                             int32_t*);
extern template void call<&TarnApi::moveDirectory, false>(TarnApi&, OTXStream&, OTXStream&,
                                                          int32_t*);
extern template void call<&TarnApi::pathExists, false>(TarnApi&, OTXStream&, OTXStream&, int32_t*);
extern template void call<&TarnApi::uploadReport, false>(TarnApi&, OTXStream&, OTXStream&,
                                                         int32_t*);
extern template void call<&TarnApi::getFileReferences, false>(TarnApi&, OTXStream&, OTXStream&,
                                                              int32_t*);
extern template void call<&TarnApi::resolvePath, false>(TarnApi&, OTXStream&, OTXStream&, int32_t*);
extern template void call<&TarnApi::onConnectionClosed, false>(TarnApi&, OTXStream&, OTXStream&,
                                                               int32_t*);
extern template void call<&TarnApi::openTerminal, false>(TarnApi&, OTXStream&, OTXStream&,
                                                         int32_t*);
extern template void call<&TarnApi::closeTerminal, false>(TarnApi&, OTXStream&, OTXStream&,
                                                          int32_t*);
extern template void call<&TarnApi::isDirectory, false>(TarnApi&, OTXStream&, OTXStream&, int32_t*);
extern template void call<&TarnApi::getDirectoryInfo, false>(TarnApi&, OTXStream&, OTXStream&,
                                                             int32_t*);
extern template void call<&TarnApi::getFileInfo, false>(TarnApi&, OTXStream&, OTXStream&, int32_t*);
extern template void call<&TarnApi::isFile, false>(TarnApi&, OTXStream&, OTXStream&, int32_t*);
extern template void call<&TarnApi::getWLanSignalData, false>(TarnApi&, OTXStream&, OTXStream&,
                                                              int32_t*);
extern template void call<&TarnApi::clearDoIPEcuCollection, false>(TarnApi&, OTXStream&, OTXStream&,
                                                                   int32_t*);
extern template void call<&TarnApi::setBrokerUrl, false>(TarnApi&, OTXStream&, OTXStream&,
                                                         int32_t*);
extern template void call<&TarnApi::copyPath, false>(TarnApi&, OTXStream&, OTXStream&, int32_t*);
extern template void call<&TarnApi::thirdPartyLogin, false>(TarnApi&, OTXStream&, OTXStream&,
                                                            int32_t*);
extern template void call<&TarnApi::clearUpdatePackages, false>(TarnApi&, OTXStream&, OTXStream&,
                                                                int32_t*);
extern template void call<&TarnApi::selectDynamicProject, false>(TarnApi&, OTXStream&, OTXStream&,
                                                                 int32_t*);
extern template void call<&TarnApi::getCertificateByPublicKey, false>(TarnApi&, OTXStream&,
                                                                      OTXStream&, int32_t*);
extern template void call<&TarnApi::createCertificateFromCSR, false>(TarnApi&, OTXStream&,
                                                                     OTXStream&, int32_t*);
extern template void call<&TarnApi::getCertificateChainById, false>(TarnApi&, OTXStream&,
                                                                    OTXStream&, int32_t*);
extern template void call<&TarnApi::createDefaultECUOrder, false>(TarnApi&, OTXStream&, OTXStream&,
                                                                  int32_t*);
extern template void call<&TarnApi::writeCodingFile, false>(TarnApi&, OTXStream&, OTXStream&,
                                                            int32_t*);
extern template void call<&TarnApi::getThirdPartyLoginUrl, false>(TarnApi&, OTXStream&, OTXStream&,
                                                                  int32_t*);
extern template void call<&TarnApi::registerServerHandler, false>(TarnApi&, OTXStream&, OTXStream&,
                                                                  int32_t*);
extern template void call<&TarnApi::writeEcuOrder, false>(TarnApi&, OTXStream&, OTXStream&,
                                                          int32_t*);
extern template void call<&TarnApi::getEcuOrderFilePath, false>(TarnApi&, OTXStream&, OTXStream&,
                                                                int32_t*);
extern template void call<&TarnApi::performVehicleUpdate, false>(TarnApi&, OTXStream&, OTXStream&,
                                                                 int32_t*);
extern template void call<&TarnApi::startSOVDServer, false>(TarnApi&, OTXStream&, OTXStream&,
                                                            int32_t*);
extern template void call<&TarnApi::triggerAsyncCancels, false>(TarnApi&, OTXStream&, OTXStream&,
                                                                int32_t*);
extern template void call<&TarnApi::addPublicDirectory, false>(TarnApi&, OTXStream&, OTXStream&,
                                                               int32_t*);
extern template void call<&TarnApi::executeSequence, false>(TarnApi&, OTXStream&, OTXStream&,
                                                            int32_t*);
extern template void call<&TarnApi::createVehicleUpdateReport, false>(TarnApi&, OTXStream&,
                                                                      OTXStream&, int32_t*);
extern template void call<&TarnApi::getParameterInfo, false>(TarnApi&, OTXStream&, OTXStream&,
                                                             int32_t*);
extern template void call<&TarnApi::performEcuConfiguration, false>(TarnApi&, OTXStream&,
                                                                    OTXStream&, int32_t*);
extern template void call<&TarnApi::clearSpecificDtcs, false>(TarnApi&, OTXStream&, OTXStream&,
                                                              int32_t*);
extern template void call<&TarnApi::stopSOVDServer, false>(TarnApi&, OTXStream&, OTXStream&,
                                                           int32_t*);

inline constexpr std::array<Operation, 224> operations{
    Operation{2, "initialize", &call<&TarnApi::initialize>, false, false},
    Operation{3, "end", &call<&TarnApi::end>, false, false},
    Operation{4, "startServer", &call<&TarnApi::startServer>, false, false},
    Operation{5, "stopServer", &call<&TarnApi::stopServer>, false, false},
    Operation{6, "restartServer", &call<&TarnApi::restartServer>, false, false},
    Operation{7, "getProjectConfiguration", &call<&TarnApi::getProjectConfiguration>, false, false},
    Operation{8, "setProjectConfiguration", &call<&TarnApi::setProjectConfiguration>, false, false},
    Operation{9, "saveProjectConfiguration", &call<&TarnApi::saveProjectConfiguration>, false,
              false},
    Operation{10, "createMonitoringLink", &call<&TarnApi::createMonitoringLink>, false, false},
    Operation{11, "getMonitoringItems", &call<&TarnApi::getMonitoringItems>, false, false},
    Operation{12, "releaseMonitoringLink", &call<&TarnApi::releaseMonitoringLink>, false, false},
    Operation{13, "getPduMonitoringItems", &call<&TarnApi::getPduMonitoringItems>, false, false},
    Operation{14, "createPduMonitor", &call<&TarnApi::createPduMonitor>, false, false},
    Operation{15, "saveConfiguration", &call<&TarnApi::saveConfiguration>, false, false},
    Operation{16, "releasePduMonitor", &call<&TarnApi::releasePduMonitor>, false, false},
    Operation{17, "identifyAllTargets", &call<&TarnApi::identifyAllTargets>, false, false},
    Operation{19, "readIdentificationValues", &call<&TarnApi::readIdentificationValues>, false,
              false},
    Operation{21, "readDataByIdentifiers", &call<&TarnApi::readDataByIdentifiers>, false, false},
    Operation{22, "identifyTarget", &call<&TarnApi::identifyTarget>, false, false},
    Operation{23, "readDtcs", &call<&TarnApi::readDtcs>, false, false},
    Operation{25, "readSupportedDtcs", &call<&TarnApi::readSupportedDtcs>, false, false},
    Operation{27, "clearAllDtcs", &call<&TarnApi::clearAllDtcs>, false, false},
    Operation{29, "getServiceInfos", &call<&TarnApi::getServiceInfos>, false, false},
    Operation{30, "executeService", &call<&TarnApi::executeService>, false, false},
    Operation{32, "readCodingStrings", &call<&TarnApi::readCodingStrings>, false, false},
    Operation{34, "performQuickTest", &call<&TarnApi::performQuickTest>, false, false},
    Operation{36, "connectRemoteServer", &call<&TarnApi::connectRemoteServer>, false, false},
    Operation{37, "getMeasurementValueInfos", &call<&TarnApi::getMeasurementValueInfos>, false,
              false},
    Operation{38, "registerMeasurementValues", &call<&TarnApi::registerMeasurementValues>, false,
              false},
    Operation{39, "getMeasurementValues", &call<&TarnApi::getMeasurementValues>, false, false},
    Operation{40, "unregisterMeasurementValues", &call<&TarnApi::unregisterMeasurementValues>,
              false, false},
    Operation{41, "getIdentificationValueInfos", &call<&TarnApi::getIdentificationValueInfos>,
              false, false},
    Operation{42, "cancelAsyncCalls", &call<&TarnApi::cancelAsyncCalls>, false, false},
    Operation{43, "createSeed", &call<&TarnApi::createSeed>, false, false},
    Operation{44, "sendKey", &call<&TarnApi::sendKey>, false, false},
    Operation{45, "openEventChannel", &call<&TarnApi::openEventChannel>, false, false},
    Operation{46, "closeEventChannel", &call<&TarnApi::closeEventChannel>, false, false},
    Operation{47, "getCurrentEvents", &call<&TarnApi::getCurrentEvents>, false, false},
    Operation{48, "getProjectConfigurations", &call<&TarnApi::getProjectConfigurations>, true,
              false},
    Operation{49, "getState", &call<&TarnApi::getState>, true, true},
    Operation{50, "getVersion", &call<&TarnApi::getVersion>, true, false},
    Operation{51, "getSelectedProject", &call<&TarnApi::getSelectedProject>, true, false},
    Operation{52, "setSelectedProject", &call<&TarnApi::setSelectedProject>, true, false},
    Operation{53, "getConfiguration", &call<&TarnApi::getConfiguration>, true, false},
    Operation{54, "setConfiguration", &call<&TarnApi::setConfiguration>, true, false},
    Operation{55, "getServerSettings", &call<&TarnApi::getServerSettings>, true, false},
    Operation{56, "getSelectedVehicleInformation", &call<&TarnApi::getSelectedVehicleInformation>,
              true, false},
    Operation{57, "setSelectedVehicleInformation", &call<&TarnApi::setSelectedVehicleInformation>,
              true, false},
    Operation{58, "getTargets", &call<&TarnApi::getTargets>, true, false},
    Operation{59, "getProcessInfo", &call<&TarnApi::getProcessInfo>, true, false},
    Operation{60, "getTransmissionInfo", &call<&TarnApi::getTransmissionInfo>, true, false},
    Operation{61, "getHandle", &call<&TarnApi::getHandle>, true, false},
    Operation{62, "getMoxConfiguration", &call<&TarnApi::getMoxConfiguration>, true, false},
    Operation{63, "getInterfaceConfiguration", &call<&TarnApi::getInterfaceConfiguration>, true,
              false},
    Operation{64, "setInterfaceConfiguration", &call<&TarnApi::setInterfaceConfiguration>, true,
              false},
    Operation{65, "getMonitoringLinks", &call<&TarnApi::getMonitoringLinks>, true, false},
    Operation{66, "closeTraceFileMonitoringLink", &call<&TarnApi::closeTraceFileMonitoringLink>,
              false, false},
    Operation{67, "openTraceFileMonitoringLink", &call<&TarnApi::openTraceFileMonitoringLink>,
              false, false},
    Operation{68, "startTraceFileMonitoringLink", &call<&TarnApi::startTraceFileMonitoringLink>,
              false, false},
    Operation{69, "stopTraceFileMonitoringLink", &call<&TarnApi::stopTraceFileMonitoringLink>,
              false, false},
    Operation{70, "saveInterfaceConfiguration", &call<&TarnApi::saveInterfaceConfiguration>, false,
              false},
    Operation{71, "scanInterfaceConnection", &call<&TarnApi::scanInterfaceConnection>, false,
              false},
    Operation{73, "getInterfaceLongName", &call<&TarnApi::getInterfaceLongName>, false, false},
    Operation{74, "disconnect", &call<&TarnApi::disconnect>, false, false},
    Operation{75, "readMeasurementValues", &call<&TarnApi::readMeasurementValues>, false, false},
    Operation{77, "readFile", &call<&TarnApi::readFile>, false, false},
    Operation{78, "getGlobalProtocolParameterSets", &call<&TarnApi::getGlobalProtocolParameterSets>,
              true, false},
    Operation{79, "setGlobalProtocolParameterSets", &call<&TarnApi::setGlobalProtocolParameterSets>,
              true, false},
    Operation{80, "connectInterfaces", &call<&TarnApi::connectInterfaces>, false, false},
    Operation{81, "disconnectInterfaces", &call<&TarnApi::disconnectInterfaces>, false, false},
    Operation{82, "executeDoIPBroadcast", &call<&TarnApi::executeDoIPBroadcast>, false, false},
    Operation{83, "detectDynInterfacesEx", &call<&TarnApi::detectDynInterfacesEx>, false, false},
    Operation{85, "refreshProjectList", &call<&TarnApi::refreshProjectList>, false, false},
    Operation{86, "identifyTargets", &call<&TarnApi::identifyTargets>, false, false},
    Operation{88, "getStatusInfo", &call<&TarnApi::getStatusInfo>, true, false},
    Operation{89, "getActuatorServiceInfos", &call<&TarnApi::getActuatorServiceInfos>, false,
              false},
    Operation{90, "getSessionTargetFilters", &call<&TarnApi::getSessionTargetFilters>, true, false},
    Operation{91, "setSessionTargetFilters", &call<&TarnApi::setSessionTargetFilters>, true, false},
    Operation{92, "createSocketBridge", &call<&TarnApi::createSocketBridge>, false, false},
    Operation{93, "releaseSocketBridge", &call<&TarnApi::releaseSocketBridge>, false, false},
    Operation{96, "getSingleMeasurementValueInfos", &call<&TarnApi::getSingleMeasurementValueInfos>,
              false, false},
    Operation{97, "getFilteredTargets", &call<&TarnApi::getFilteredTargets>, false, false},
    Operation{99, "isProjectConversionRequired", &call<&TarnApi::isProjectConversionRequired>,
              false, false},
    Operation{100, "convertProject", &call<&TarnApi::convertProject>, false, false},
    Operation{101, "setMoxConfiguration", &call<&TarnApi::setMoxConfiguration>, true, false},
    Operation{102, "saveMoxConfiguration", &call<&TarnApi::saveMoxConfiguration>, false, false},
    Operation{103, "startCyclicServices", &call<&TarnApi::startCyclicServices>, false, false},
    Operation{104, "stopCyclicServices", &call<&TarnApi::stopCyclicServices>, false, false},
    Operation{105, "getCyclicResults", &call<&TarnApi::getCyclicResults>, false, false},
    Operation{106, "getProjectDetails", &call<&TarnApi::getProjectDetails>, false, false},
    Operation{107, "clearLinkCache", &call<&TarnApi::clearLinkCache>, false, false},
    Operation{108, "addInterface", &call<&TarnApi::addInterface>, false, false},
    Operation{109, "addResource", &call<&TarnApi::addResource>, false, false},
    Operation{110, "removeInterface", &call<&TarnApi::removeInterface>, false, false},
    Operation{111, "getSupportedInterfaces", &call<&TarnApi::getSupportedInterfaces>, true, false},
    Operation{112, "removeResource", &call<&TarnApi::removeResource>, false, false},
    Operation{113, "getFlashSessionInfos", &call<&TarnApi::getFlashSessionInfos>, false, false},
    Operation{114, "getSystemProperty", &call<&TarnApi::getSystemProperty>, false, false},
    Operation{115, "resetSystemProperty", &call<&TarnApi::resetSystemProperty>, false, false},
    Operation{116, "setSystemProperty", &call<&TarnApi::setSystemProperty>, false, false},
    Operation{117, "executeFlashSessions", &call<&TarnApi::executeFlashSessions>, false, false},
    Operation{118, "getInterfaceProviders", &call<&TarnApi::getInterfaceProviders>, true, false},
    Operation{119, "setInterfaceProviders", &call<&TarnApi::setInterfaceProviders>, true, false},
    Operation{120, "getVendorModuleNames", &call<&TarnApi::getVendorModuleNames>, false, false},
    Operation{121, "getVendorModuleNamesEx", &call<&TarnApi::getVendorModuleNamesEx>, false, false},
    Operation{123, "detectDynInterfaces", &call<&TarnApi::detectDynInterfaces>, false, false},
    Operation{125, "connectDynInterface", &call<&TarnApi::connectDynInterface>, false, false},
    Operation{126, "disconnectDynInterfaces", &call<&TarnApi::disconnectDynInterfaces>, false,
              false},
    Operation{127, "updateCyclicServices", &call<&TarnApi::updateCyclicServices>, false, false},
    Operation{128, "cancelAllAsyncCalls", &call<&TarnApi::cancelAllAsyncCalls>, false, false},
    Operation{129, "getProjectDirectory", &call<&TarnApi::getProjectDirectory>, false, false},
    Operation{130, "getSelectedProjectDirectory", &call<&TarnApi::getSelectedProjectDirectory>,
              false, false},
    Operation{131, "getConfigDirectory", &call<&TarnApi::getConfigDirectory>, false, false},
    Operation{132, "createFile", &call<&TarnApi::createFile>, false, false},
    Operation{133, "createDirectory", &call<&TarnApi::createDirectory>, false, false},
    Operation{134, "deleteDirectory", &call<&TarnApi::deleteDirectory>, false, false},
    Operation{135, "writeFile", &call<&TarnApi::writeFile>, false, true},
    Operation{136, "getTraceDirectory", &call<&TarnApi::getTraceDirectory>, false, false},
    Operation{137, "deleteFiles", &call<&TarnApi::deleteFiles>, false, false},
    Operation{138, "getServerUserManagement", &call<&TarnApi::getServerUserManagement>, false,
              false},
    Operation{139, "findDirectories", &call<&TarnApi::findDirectories>, false, false},
    Operation{140, "findFiles", &call<&TarnApi::findFiles>, false, false},
    Operation{141, "initializeDirectoryElements", &call<&TarnApi::initializeDirectoryElements>,
              false, false},
    Operation{142, "getCurrentDebugTraceDirectory", &call<&TarnApi::getCurrentDebugTraceDirectory>,
              true, false},
    Operation{143, "readEcuOrder", &call<&TarnApi::readEcuOrder>, false, false},
    Operation{144, "filterEcuOrder", &call<&TarnApi::filterEcuOrder>, false, false},
    Operation{145, "addMissingTargetsToEcuOrder", &call<&TarnApi::addMissingTargetsToEcuOrder>,
              false, false},
    Operation{146, "createVehicleReport", &call<&TarnApi::createVehicleReport>, false, false},
    Operation{147, "lock", &call<&TarnApi::lock>, false, false},
    Operation{148, "unlock", &call<&TarnApi::unlock>, false, false},
    Operation{149, "isLocked", &call<&TarnApi::isLocked>, false, false},
    Operation{150, "breakLock", &call<&TarnApi::breakLock>, false, false},
    Operation{151, "setEthernetPinState", &call<&TarnApi::setEthernetPinState>, false, false},
    Operation{152, "getEthernetPinState", &call<&TarnApi::getEthernetPinState>, false, true},
    Operation{153, "connectDynInterfaceEx", &call<&TarnApi::connectDynInterfaceEx>, false, false},
    Operation{154, "createVehicleUpdateConfig", &call<&TarnApi::createVehicleUpdateConfig>, false,
              false},
    Operation{155, "addUser", &call<&TarnApi::addUser>, false, false},
    Operation{156, "setServerUserManagement", &call<&TarnApi::setServerUserManagement>, false,
              false},
    Operation{157, "testSocketBridge", &call<&TarnApi::testSocketBridge>, false, false},
    Operation{158, "removeUser", &call<&TarnApi::removeUser>, false, false},
    Operation{159, "logOut", &call<&TarnApi::logOut>, false, false},
    Operation{160, "getUsers", &call<&TarnApi::getUsers>, false, false},
    Operation{161, "updateUser", &call<&TarnApi::updateUser>, false, false},
    Operation{162, "disconnectAllClients", &call<&TarnApi::disconnectAllClients>, false, false},
    Operation{164, "getPackagesFromBroker", &call<&TarnApi::getPackagesFromBroker>, false, false},
    Operation{165, "copyFiles", &call<&TarnApi::copyFiles>, false, false},
    Operation{166, "copyDirectories", &call<&TarnApi::copyDirectories>, false, false},
    Operation{169, "calculateChecksum", &call<&TarnApi::calculateChecksum>, false, false},
    Operation{174, "checkUpdatesOnBroker", &call<&TarnApi::checkUpdatesOnBroker>, false, false},
    Operation{175, "autoUpdate", &call<&TarnApi::autoUpdate>, false, false},
    Operation{177, "runSequence", &call<&TarnApi::runSequence>, false, false},
    Operation{178, "unlockVehicle", &call<&TarnApi::unlockVehicle>, false, false},
    Operation{179, "releaseVehicleUnlock", &call<&TarnApi::releaseVehicleUnlock, true>, false,
              false},
    Operation{180, "cancelSequence", &call<&TarnApi::cancelSequence>, false, false},
    Operation{181, "getServerConfiguration", &call<&TarnApi::getServerConfiguration>, true, false},
    Operation{182, "getRegisteredDevices", &call<&TarnApi::getRegisteredDevices>, false, false},
    Operation{183, "getSystemInfo", &call<&TarnApi::getSystemInfo>, false, false},
    Operation{184, "getUpdatePackages", &call<&TarnApi::getUpdatePackages>, false, false},
    Operation{185, "applyUpdatePackage", &call<&TarnApi::applyUpdatePackage>, false, false},
    Operation{186, "renameFile", &call<&TarnApi::renameFile>, false, false},
    Operation{187, "getCallDuration", &call<&TarnApi::getCallDuration>, true, false},
    Operation{188, "onConnectionBroken", &call<&TarnApi::onConnectionBroken>, false, false},
    Operation{189, "createApiTraceMonitor", &call<&TarnApi::createApiTraceMonitor>, false, false},
    Operation{190, "getApiTraceContent", &call<&TarnApi::getApiTraceContent>, false, false},
    Operation{191, "getCurrentVersions", &call<&TarnApi::getCurrentVersions>, false, false},
    Operation{192, "releaseApiTraceMonitor", &call<&TarnApi::releaseApiTraceMonitor>, false, false},
    Operation{193, "checkUpdateSuccess", &call<&TarnApi::checkUpdateSuccess>, false, false},
    Operation{194, "cleanUpdateTmp", &call<&TarnApi::cleanUpdateTmp>, false, false},
    Operation{195, "executeFlashSessionsConfig", &call<&TarnApi::executeFlashSessionsConfig>, false,
              false},
    Operation{196, "setStatusText", &call<&TarnApi::setStatusText>, true, false},
    Operation{198, "loadDatabaseFile", &call<&TarnApi::loadDatabaseFile>, false, false},
    Operation{199, "reconnectRemoteServer", &call<&TarnApi::reconnectRemoteServer>, false, false},
    Operation{201, "copyProjectWithFilters", &call<&TarnApi::copyProjectWithFilters>, false, false},
    Operation{202, "getVehicleData", &call<&TarnApi::getVehicleData>, false, false},
    Operation{203, "getProjectsDetails", &call<&TarnApi::getProjectsDetails>, false, false},
    Operation{204, "filterFiles", &call<&TarnApi::filterFiles>, false, false},
    Operation{206, "unloadDatabaseFile", &call<&TarnApi::unloadDatabaseFile>, false, false},
    Operation{208, "getDefaultDoIPParameter", &call<&TarnApi::getDefaultDoIPParameter>, true,
              false},
    Operation{209, "moveFile", &call<&TarnApi::moveFile>, false, false},
    Operation{210, "getPublicDirectories", &call<&TarnApi::getPublicDirectories>, false, false},
    Operation{211, "updateVehicle", &call<&TarnApi::updateVehicle>, false, false},
    Operation{213, "executeServiceInDefaultSession",
              &call<&TarnApi::executeServiceInDefaultSession>, false, false},
    Operation{215, "getTargetStatus", &call<&TarnApi::getTargetStatus>, false, false},
    Operation{216, "logIn", &call<&TarnApi::logIn>, false, false},
    Operation{217, "getPhysicalLinks", &call<&TarnApi::getPhysicalLinks>, false, false},
    Operation{218, "setPhysicalLinks", &call<&TarnApi::setPhysicalLinks>, false, false},
    Operation{219, "moveDirectory", &call<&TarnApi::moveDirectory>, false, false},
    Operation{220, "pathExists", &call<&TarnApi::pathExists>, false, false},
    Operation{223, "uploadReport", &call<&TarnApi::uploadReport>, false, false},
    Operation{224, "getFileReferences", &call<&TarnApi::getFileReferences>, false, false},
    Operation{225, "resolvePath", &call<&TarnApi::resolvePath>, false, false},
    Operation{226, "onConnectionClosed", &call<&TarnApi::onConnectionClosed>, false, false},
    Operation{227, "openTerminal", &call<&TarnApi::openTerminal>, false, false},
    Operation{228, "closeTerminal", &call<&TarnApi::closeTerminal>, false, false},
    Operation{231, "isDirectory", &call<&TarnApi::isDirectory>, false, false},
    Operation{232, "getDirectoryInfo", &call<&TarnApi::getDirectoryInfo>, false, false},
    Operation{233, "getFileInfo", &call<&TarnApi::getFileInfo>, false, false},
    Operation{234, "isFile", &call<&TarnApi::isFile>, false, false},
    Operation{235, "getWLanSignalData", &call<&TarnApi::getWLanSignalData>, false, false},
    Operation{236, "clearDoIPEcuCollection", &call<&TarnApi::clearDoIPEcuCollection>, false, false},
    Operation{237, "setBrokerUrl", &call<&TarnApi::setBrokerUrl>, false, false},
    Operation{238, "copyPath", &call<&TarnApi::copyPath>, false, false},
    Operation{244, "thirdPartyLogin", &call<&TarnApi::thirdPartyLogin>, false, false},
    Operation{245, "clearUpdatePackages", &call<&TarnApi::clearUpdatePackages>, false, false},
    Operation{246, "selectDynamicProject", &call<&TarnApi::selectDynamicProject>, false, false},
    Operation{247, "getCertificateByPublicKey", &call<&TarnApi::getCertificateByPublicKey>, false,
              false},
    Operation{248, "createCertificateFromCSR", &call<&TarnApi::createCertificateFromCSR>, false,
              false},
    Operation{249, "getCertificateChainById", &call<&TarnApi::getCertificateChainById>, false,
              false},
    Operation{250, "createDefaultECUOrder", &call<&TarnApi::createDefaultECUOrder>, false, false},
    Operation{251, "writeCodingFile", &call<&TarnApi::writeCodingFile>, false, false},
    Operation{253, "getThirdPartyLoginUrl", &call<&TarnApi::getThirdPartyLoginUrl>, false, false},
    Operation{254, "registerServerHandler", &call<&TarnApi::registerServerHandler>, false, false},
    Operation{255, "writeEcuOrder", &call<&TarnApi::writeEcuOrder>, false, false},
    Operation{256, "getEcuOrderFilePath", &call<&TarnApi::getEcuOrderFilePath>, false, false},
    Operation{257, "performVehicleUpdate", &call<&TarnApi::performVehicleUpdate>, false, false},
    Operation{259, "startSOVDServer", &call<&TarnApi::startSOVDServer>, false, false},
    Operation{260, "triggerAsyncCancels", &call<&TarnApi::triggerAsyncCancels>, false, false},
    Operation{261, "addPublicDirectory", &call<&TarnApi::addPublicDirectory>, false, false},
    Operation{262, "executeSequence", &call<&TarnApi::executeSequence>, false, false},
    Operation{264, "createVehicleUpdateReport", &call<&TarnApi::createVehicleUpdateReport>, false,
              false},
    Operation{265, "getParameterInfo", &call<&TarnApi::getParameterInfo>, false, false},
    Operation{267, "performEcuConfiguration", &call<&TarnApi::performEcuConfiguration>, false,
              false},
    Operation{268, "clearSpecificDtcs", &call<&TarnApi::clearSpecificDtcs>, false, false},
    Operation{280, "stopSOVDServer", &call<&TarnApi::stopSOVDServer>, false, false},
};

} // namespace kel::dispatch
