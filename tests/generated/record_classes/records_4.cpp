// Generated from the interface description by tools/generate.py. Do not edit.

#include "record_classes.h"

namespace kel_test::record_classes {

using Records4 =
    ::testing::Types<Varno::Kel_cpp::EcuConfigurationResult, Varno::Kel_cpp::EcuOrderEntry,
                     Varno::Kel_cpp::VehicleUpdateConfig, Varno::Kel_cpp::VehicleUpdateResult,
                     Varno::Kel_cpp::UpdatePackageInfo, Varno::Kel_cpp::VehicleReportConfig,
                     Varno::Kel_cpp::VehicleData, Varno::Kel_cpp::UploadReportConfiguration,
                     Varno::Kel_cpp::VehicleInformation>;
INSTANTIATE_TYPED_TEST_SUITE_P(Records4, EveryRecordClass, Records4);

} // namespace kel_test::record_classes
