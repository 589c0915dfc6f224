// Generated from the interface description by tools/generate.py. Do not edit.
// Every engine record class, for tests that run over all of them.
#pragma once

#include <Kel_cpp/Records.h>

#include <tuple>

namespace kel_test {

using EngineRecords = std::tuple<
    Varno::Kel_cpp::MvciServerError, Varno::Kel_cpp::NegativeResponse, Varno::Kel_cpp::KelError,
    Varno::Kel_cpp::NamedItem, Varno::Kel_cpp::ParameterResult, Varno::Kel_cpp::ClearDtcResult,
    Varno::Kel_cpp::DtcReadConfig, Varno::Kel_cpp::ReadDtcResult,
    Varno::Kel_cpp::SupportedDtcResult, Varno::Kel_cpp::DtcResult, Varno::Kel_cpp::SpecialDataGroup,
    Varno::Kel_cpp::SpecialData, Varno::Kel_cpp::VariantIdentResult, Varno::Kel_cpp::ReadDataResult,
    Varno::Kel_cpp::Target, Varno::Kel_cpp::TargetStatus, Varno::Kel_cpp::TargetFilter,
    Varno::Kel_cpp::ParameterInput, Varno::Kel_cpp::ServiceInput, Varno::Kel_cpp::ServiceResult,
    Varno::Kel_cpp::ResponseResult, Varno::Kel_cpp::RequestResult, Varno::Kel_cpp::UnlockResult,
    Varno::Kel_cpp::ServiceInfo, Varno::Kel_cpp::ResponseInfo, Varno::Kel_cpp::ParameterInfo,
    Varno::Kel_cpp::ConstraintInfo, Varno::Kel_cpp::ScaleConstraintInfo, Varno::Kel_cpp::UnitInfo,
    Varno::Kel_cpp::ParameterInfoConfig, Varno::Kel_cpp::KelEvent, Varno::Kel_cpp::EventReport,
    Varno::Kel_cpp::FileFilter, Varno::Kel_cpp::FilterPattern, Varno::Kel_cpp::TargetConfig,
    Varno::Kel_cpp::ProjectConfig, Varno::Kel_cpp::ProjectDetails, Varno::Kel_cpp::DbFileInfo,
    Varno::Kel_cpp::SystemInfo, Varno::Kel_cpp::SystemProperty, Varno::Kel_cpp::TarnApiConfig,
    Varno::Kel_cpp::ServerConfig, Varno::Kel_cpp::Oauth2Config, Varno::Kel_cpp::MoxConfig,
    Varno::Kel_cpp::TcpInfo, Varno::Kel_cpp::StatusInfo, Varno::Kel_cpp::TransmissionInfo,
    Varno::Kel_cpp::ProcessInfo, Varno::Kel_cpp::ProcessEntry, Varno::Kel_cpp::ProcessEntryItem1,
    Varno::Kel_cpp::ProcessEntryItem2, Varno::Kel_cpp::GlobalProtocolParameterSet,
    Varno::Kel_cpp::GlobalProtocolParameter, Varno::Kel_cpp::LoadDatabaseResult,
    Varno::Kel_cpp::InterfaceInformation, Varno::Kel_cpp::ResourceInformation,
    Varno::Kel_cpp::InterfaceInformationItem, Varno::Kel_cpp::ScanInterfaceResult,
    Varno::Kel_cpp::DynInterfaceDetection, Varno::Kel_cpp::ModuleDyn, Varno::Kel_cpp::DeviceInfo,
    Varno::Kel_cpp::PhysicalLinksOnModule, Varno::Kel_cpp::PhysicalLink,
    Varno::Kel_cpp::InterfaceConfiguration, Varno::Kel_cpp::InterfaceConfigurationEntry,
    Varno::Kel_cpp::InterfaceConfigurationItem, Varno::Kel_cpp::InterfaceProvider,
    Varno::Kel_cpp::InterfaceProviderDyn, Varno::Kel_cpp::DoIPParameter,
    Varno::Kel_cpp::WLanSignalData, Varno::Kel_cpp::SupportedInterface,
    Varno::Kel_cpp::MonitoringItem, Varno::Kel_cpp::MonitoringItemDetail,
    Varno::Kel_cpp::PduMonitoringItem, Varno::Kel_cpp::PduMonitoringItemDetail,
    Varno::Kel_cpp::FileSystemEntry, Varno::Kel_cpp::FileInfo, Varno::Kel_cpp::DirectoryInfo,
    Varno::Kel_cpp::FileCopyResult, Varno::Kel_cpp::DirectoryCopyResult,
    Varno::Kel_cpp::DirectoryCopyItem, Varno::Kel_cpp::PathCopyResult, Varno::Kel_cpp::PathCopyItem,
    Varno::Kel_cpp::FileReferenceResult, Varno::Kel_cpp::FileCopyConfig,
    Varno::Kel_cpp::DirectoryCopyConfig, Varno::Kel_cpp::PathCopyConfig, Varno::Kel_cpp::UserInfo,
    Varno::Kel_cpp::LogInOutConfig, Varno::Kel_cpp::TarnApiServerConfig,
    Varno::Kel_cpp::ServerSettings, Varno::Kel_cpp::FlashSessionInfo,
    Varno::Kel_cpp::FlashSessionResult, Varno::Kel_cpp::FlashSessionsConfig,
    Varno::Kel_cpp::CodingStringResult, Varno::Kel_cpp::CodingFileResult,
    Varno::Kel_cpp::QuickTestResult, Varno::Kel_cpp::EcuConfigurationResult,
    Varno::Kel_cpp::EcuOrderEntry, Varno::Kel_cpp::VehicleUpdateConfig,
    Varno::Kel_cpp::VehicleUpdateResult, Varno::Kel_cpp::UpdatePackageInfo,
    Varno::Kel_cpp::VehicleReportConfig, Varno::Kel_cpp::VehicleData,
    Varno::Kel_cpp::UploadReportConfiguration, Varno::Kel_cpp::VehicleInformation>;

} // namespace kel_test
