// Generated from the interface description by tools/generate.py. Do not edit.
// One handler class per asynchronous operation, deriving (through kel::Handler)
// from the engine's callback class. Handlers that convert the same results share
// their kel::Completion base.
#pragma once

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

class PerformQuickTestCallbackHandler final
    : public kel::Handler<PerformQuickTestCallbackHandler,
                          Varno::Kel_cpp::TarnApi::PerformQuickTestCallback, ::QuickTestResult,
                          Varno::Kel_cpp::QuickTestResult, PerformQuickTestCallbackFunction> {
    using Handler::Handler;
};

class ScanInterfaceConnectionCallbackHandler final
    : public kel::Handler<ScanInterfaceConnectionCallbackHandler,
                          Varno::Kel_cpp::TarnApi::ScanInterfaceConnectionCallback,
                          ::ScanInterfaceResult, Varno::Kel_cpp::ScanInterfaceResult,
                          ScanInterfaceConnectionCallbackFunction> {
    using Handler::Handler;
};

class ReadMeasurementValuesCallbackHandler final
    : public kel::Handler<ReadMeasurementValuesCallbackHandler,
                          Varno::Kel_cpp::TarnApi::ReadMeasurementValuesCallback, ::ReadDataResult,
                          Varno::Kel_cpp::ReadDataResult, ReadMeasurementValuesCallbackFunction> {
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

class ExecuteServiceInDefaultSessionCallbackHandler final
    : public kel::Handler<ExecuteServiceInDefaultSessionCallbackHandler,
                          Varno::Kel_cpp::TarnApi::ExecuteServiceInDefaultSessionCallback,
                          ::ServiceResult, Varno::Kel_cpp::ServiceResult,
                          ExecuteServiceInDefaultSessionCallbackFunction> {
    using Handler::Handler;
};

class CopyPathCallbackHandler final
    : public kel::Handler<CopyPathCallbackHandler, Varno::Kel_cpp::TarnApi::CopyPathCallback,
                          ::PathCopyResult, Varno::Kel_cpp::PathCopyResult,
                          CopyPathCallbackFunction> {
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

class ClearSpecificDtcsCallbackHandler final
    : public kel::Handler<ClearSpecificDtcsCallbackHandler,
                          Varno::Kel_cpp::TarnApi::ClearSpecificDtcsCallback, ::ClearDtcResult,
                          Varno::Kel_cpp::ClearDtcResult, ClearSpecificDtcsCallbackFunction> {
    using Handler::Handler;
};
