// Generated from the interface description by tools/generate.py. Do not edit.

#include "record_classes.h"

namespace kel_test::record_classes {

using Records2 =
    ::testing::Types<Varno::Kel_cpp::ProcessEntry, Varno::Kel_cpp::ProcessThread,
                     Varno::Kel_cpp::ProcessMemory, Varno::Kel_cpp::GlobalProtocolParameterSet,
                     Varno::Kel_cpp::GlobalProtocolParameter, Varno::Kel_cpp::LoadDatabaseResult,
                     Varno::Kel_cpp::InterfaceInformation, Varno::Kel_cpp::ResourceInformation,
                     Varno::Kel_cpp::InterfaceInformationItem, Varno::Kel_cpp::ScanInterfaceResult,
                     Varno::Kel_cpp::DynInterfaceDetection, Varno::Kel_cpp::ModuleDyn,
                     Varno::Kel_cpp::DeviceInfo, Varno::Kel_cpp::PhysicalLinksOnModule,
                     Varno::Kel_cpp::PhysicalLink, Varno::Kel_cpp::InterfaceConfiguration,
                     Varno::Kel_cpp::InterfaceConfigurationEntry, Varno::Kel_cpp::InterfaceProvider,
                     Varno::Kel_cpp::InterfaceProviderDyn, Varno::Kel_cpp::DoIPParameter,
                     Varno::Kel_cpp::WLanSignalData, Varno::Kel_cpp::SupportedInterface,
                     Varno::Kel_cpp::MonitoringItem, Varno::Kel_cpp::MonitoringItemDetail>;
INSTANTIATE_TYPED_TEST_SUITE_P(Records2, EveryRecordClass, Records2);

} // namespace kel_test::record_classes
