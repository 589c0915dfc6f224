// Generated from the interface description by tools/generate.py. Do not edit.
// The dispatcher's calls of the families Lifecycle, Events, Diagnostics, Services.

#include "dispatch.h"

namespace kel::dispatch {

template void call<&TarnApi::initialize, false>(TarnApi&, OTXStream&, OTXStream&, int32_t*);
template void call<&TarnApi::end, false>(TarnApi&, OTXStream&, OTXStream&, int32_t*);
template void call<&TarnApi::identifyAllTargets, false>(TarnApi&, OTXStream&, OTXStream&, int32_t*);
template void call<&TarnApi::readIdentificationValues, false>(TarnApi&, OTXStream&, OTXStream&,
                                                              int32_t*);
template void call<&TarnApi::readDataByIdentifiers, false>(TarnApi&, OTXStream&, OTXStream&,
                                                           int32_t*);
template void call<&TarnApi::identifyTarget, false>(TarnApi&, OTXStream&, OTXStream&, int32_t*);
template void call<&TarnApi::readDtcs, false>(TarnApi&, OTXStream&, OTXStream&, int32_t*);
template void call<&TarnApi::readSupportedDtcs, false>(TarnApi&, OTXStream&, OTXStream&, int32_t*);
template void call<&TarnApi::clearAllDtcs, false>(TarnApi&, OTXStream&, OTXStream&, int32_t*);
template void call<&TarnApi::getServiceInfos, false>(TarnApi&, OTXStream&, OTXStream&, int32_t*);
template void call<&TarnApi::executeService, false>(TarnApi&, OTXStream&, OTXStream&, int32_t*);
template void call<&TarnApi::performQuickTest, false>(TarnApi&, OTXStream&, OTXStream&, int32_t*);
template void call<&TarnApi::getIdentificationValueInfos, false>(TarnApi&, OTXStream&, OTXStream&,
                                                                 int32_t*);
template void call<&TarnApi::cancelAsyncCalls, false>(TarnApi&, OTXStream&, OTXStream&, int32_t*);
template void call<&TarnApi::createSeed, false>(TarnApi&, OTXStream&, OTXStream&, int32_t*);
template void call<&TarnApi::sendKey, false>(TarnApi&, OTXStream&, OTXStream&, int32_t*);
template void call<&TarnApi::openEventChannel, false>(TarnApi&, OTXStream&, OTXStream&, int32_t*);
template void call<&TarnApi::closeEventChannel, false>(TarnApi&, OTXStream&, OTXStream&, int32_t*);
template void call<&TarnApi::getCurrentEvents, false>(TarnApi&, OTXStream&, OTXStream&, int32_t*);
template void call<&TarnApi::getState, false>(TarnApi&, OTXStream&, OTXStream&, int32_t*);
template void call<&TarnApi::getTargets, false>(TarnApi&, OTXStream&, OTXStream&, int32_t*);
template void call<&TarnApi::getHandle, false>(TarnApi&, OTXStream&, OTXStream&, int32_t*);
template void call<&TarnApi::identifyTargets, false>(TarnApi&, OTXStream&, OTXStream&, int32_t*);
template void call<&TarnApi::getActuatorServiceInfos, false>(TarnApi&, OTXStream&, OTXStream&,
                                                             int32_t*);
template void call<&TarnApi::getSessionTargetFilters, false>(TarnApi&, OTXStream&, OTXStream&,
                                                             int32_t*);
template void call<&TarnApi::setSessionTargetFilters, false>(TarnApi&, OTXStream&, OTXStream&,
                                                             int32_t*);
template void call<&TarnApi::getFilteredTargets, false>(TarnApi&, OTXStream&, OTXStream&, int32_t*);
template void call<&TarnApi::startCyclicServices, false>(TarnApi&, OTXStream&, OTXStream&,
                                                         int32_t*);
template void call<&TarnApi::stopCyclicServices, false>(TarnApi&, OTXStream&, OTXStream&, int32_t*);
template void call<&TarnApi::getCyclicResults, false>(TarnApi&, OTXStream&, OTXStream&, int32_t*);
template void call<&TarnApi::updateCyclicServices, false>(TarnApi&, OTXStream&, OTXStream&,
                                                          int32_t*);
template void call<&TarnApi::cancelAllAsyncCalls, false>(TarnApi&, OTXStream&, OTXStream&,
                                                         int32_t*);
template void call<&TarnApi::lock, false>(TarnApi&, OTXStream&, OTXStream&, int32_t*);
template void call<&TarnApi::unlock, false>(TarnApi&, OTXStream&, OTXStream&, int32_t*);
template void call<&TarnApi::isLocked, false>(TarnApi&, OTXStream&, OTXStream&, int32_t*);
template void call<&TarnApi::breakLock, false>(TarnApi&, OTXStream&, OTXStream&, int32_t*);
template void call<&TarnApi::unlockVehicle, false>(TarnApi&, OTXStream&, OTXStream&, int32_t*);
template void call<&TarnApi::releaseVehicleUnlock, true>(TarnApi&, OTXStream&, OTXStream&,
                                                         int32_t*);
template void call<&TarnApi::getCallDuration, false>(TarnApi&, OTXStream&, OTXStream&, int32_t*);
template void call<&TarnApi::onConnectionBroken, false>(TarnApi&, OTXStream&, OTXStream&, int32_t*);
template void call<&TarnApi::executeServiceInDefaultSession, false>(TarnApi&, OTXStream&,
                                                                    OTXStream&, int32_t*);
template void call<&TarnApi::getTargetStatus, false>(TarnApi&, OTXStream&, OTXStream&, int32_t*);
template void call<&TarnApi::onConnectionClosed, false>(TarnApi&, OTXStream&, OTXStream&, int32_t*);
template void call<&TarnApi::registerServerHandler, false>(TarnApi&, OTXStream&, OTXStream&,
                                                           int32_t*);
template void call<&TarnApi::triggerAsyncCancels, false>(TarnApi&, OTXStream&, OTXStream&,
                                                         int32_t*);
template void call<&TarnApi::getParameterInfo, false>(TarnApi&, OTXStream&, OTXStream&, int32_t*);
template void call<&TarnApi::clearSpecificDtcs, false>(TarnApi&, OTXStream&, OTXStream&, int32_t*);

} // namespace kel::dispatch
