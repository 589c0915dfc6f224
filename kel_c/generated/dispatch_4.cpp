// Generated from the interface description by tools/generate.py. Do not edit.
// The dispatcher's calls of the families Flash, Coding, Measurement, Sequences, EcuOrder,
// VehicleReports, VehicleUpdate.

#include "dispatch.h"

namespace kel::dispatch {

template void call<&TarnApi::readCodingStrings, false>(TarnApi&, OTXStream&, OTXStream&, int32_t*);
template void call<&TarnApi::getMeasurementValueInfos, false>(TarnApi&, OTXStream&, OTXStream&,
                                                              int32_t*);
template void call<&TarnApi::registerMeasurementValues, false>(TarnApi&, OTXStream&, OTXStream&,
                                                               int32_t*);
template void call<&TarnApi::getMeasurementValues, false>(TarnApi&, OTXStream&, OTXStream&,
                                                          int32_t*);
template void call<&TarnApi::unregisterMeasurementValues, false>(TarnApi&, OTXStream&, OTXStream&,
                                                                 int32_t*);
template void call<&TarnApi::getSelectedVehicleInformation, false>(TarnApi&, OTXStream&, OTXStream&,
                                                                   int32_t*);
template void call<&TarnApi::setSelectedVehicleInformation, false>(TarnApi&, OTXStream&, OTXStream&,
                                                                   int32_t*);
template void call<&TarnApi::readMeasurementValues, false>(TarnApi&, OTXStream&, OTXStream&,
                                                           int32_t*);
template void call<&TarnApi::getSingleMeasurementValueInfos, false>(TarnApi&, OTXStream&,
                                                                    OTXStream&, int32_t*);
template void call<&TarnApi::getFlashSessionInfos, false>(TarnApi&, OTXStream&, OTXStream&,
                                                          int32_t*);
template void call<&TarnApi::executeFlashSessions, false>(TarnApi&, OTXStream&, OTXStream&,
                                                          int32_t*);
template void call<&TarnApi::readEcuOrder, false>(TarnApi&, OTXStream&, OTXStream&, int32_t*);
template void call<&TarnApi::filterEcuOrder, false>(TarnApi&, OTXStream&, OTXStream&, int32_t*);
template void call<&TarnApi::addMissingTargetsToEcuOrder, false>(TarnApi&, OTXStream&, OTXStream&,
                                                                 int32_t*);
template void call<&TarnApi::createVehicleReport, false>(TarnApi&, OTXStream&, OTXStream&,
                                                         int32_t*);
template void call<&TarnApi::createVehicleUpdateConfig, false>(TarnApi&, OTXStream&, OTXStream&,
                                                               int32_t*);
template void call<&TarnApi::getPackagesFromBroker, false>(TarnApi&, OTXStream&, OTXStream&,
                                                           int32_t*);
template void call<&TarnApi::calculateChecksum, false>(TarnApi&, OTXStream&, OTXStream&, int32_t*);
template void call<&TarnApi::checkUpdatesOnBroker, false>(TarnApi&, OTXStream&, OTXStream&,
                                                          int32_t*);
template void call<&TarnApi::autoUpdate, false>(TarnApi&, OTXStream&, OTXStream&, int32_t*);
template void call<&TarnApi::runSequence, false>(TarnApi&, OTXStream&, OTXStream&, int32_t*);
template void call<&TarnApi::cancelSequence, false>(TarnApi&, OTXStream&, OTXStream&, int32_t*);
template void call<&TarnApi::getUpdatePackages, false>(TarnApi&, OTXStream&, OTXStream&, int32_t*);
template void call<&TarnApi::applyUpdatePackage, false>(TarnApi&, OTXStream&, OTXStream&, int32_t*);
template void call<&TarnApi::getCurrentVersions, false>(TarnApi&, OTXStream&, OTXStream&, int32_t*);
template void call<&TarnApi::checkUpdateSuccess, false>(TarnApi&, OTXStream&, OTXStream&, int32_t*);
template void call<&TarnApi::cleanUpdateTmp, false>(TarnApi&, OTXStream&, OTXStream&, int32_t*);
template void call<&TarnApi::executeFlashSessionsConfig, false>(TarnApi&, OTXStream&, OTXStream&,
                                                                int32_t*);
template void call<&TarnApi::getVehicleData, false>(TarnApi&, OTXStream&, OTXStream&, int32_t*);
template void call<&TarnApi::updateVehicle, false>(TarnApi&, OTXStream&, OTXStream&, int32_t*);
template void call<&TarnApi::uploadReport, false>(TarnApi&, OTXStream&, OTXStream&, int32_t*);
template void call<&TarnApi::setBrokerUrl, false>(TarnApi&, OTXStream&, OTXStream&, int32_t*);
template void call<&TarnApi::clearUpdatePackages, false>(TarnApi&, OTXStream&, OTXStream&,
                                                         int32_t*);
template void call<&TarnApi::createDefaultECUOrder, false>(TarnApi&, OTXStream&, OTXStream&,
                                                           int32_t*);
template void call<&TarnApi::writeCodingFile, false>(TarnApi&, OTXStream&, OTXStream&, int32_t*);
template void call<&TarnApi::writeEcuOrder, false>(TarnApi&, OTXStream&, OTXStream&, int32_t*);
template void call<&TarnApi::getEcuOrderFilePath, false>(TarnApi&, OTXStream&, OTXStream&,
                                                         int32_t*);
template void call<&TarnApi::performVehicleUpdate, false>(TarnApi&, OTXStream&, OTXStream&,
                                                          int32_t*);
template void call<&TarnApi::executeSequence, false>(TarnApi&, OTXStream&, OTXStream&, int32_t*);
template void call<&TarnApi::createVehicleUpdateReport, false>(TarnApi&, OTXStream&, OTXStream&,
                                                               int32_t*);
template void call<&TarnApi::performEcuConfiguration, false>(TarnApi&, OTXStream&, OTXStream&,
                                                             int32_t*);

} // namespace kel::dispatch
