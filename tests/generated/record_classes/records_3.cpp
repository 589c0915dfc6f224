// Generated from the interface description by tools/generate.py. Do not edit.

#include "record_classes.h"

namespace kel_test::record_classes {

using Records3 =
    ::testing::Types<Varno::Kel_cpp::PduMonitoringItem, Varno::Kel_cpp::PduMonitoringItemDetail,
                     Varno::Kel_cpp::FileSystemEntry, Varno::Kel_cpp::FileInfo,
                     Varno::Kel_cpp::DirectoryInfo, Varno::Kel_cpp::FileCopyResult,
                     Varno::Kel_cpp::DirectoryCopyResult, Varno::Kel_cpp::DirectoryCopyItem,
                     Varno::Kel_cpp::PathCopyResult, Varno::Kel_cpp::PathCopyItem,
                     Varno::Kel_cpp::FileReferenceResult, Varno::Kel_cpp::FileCopyConfig,
                     Varno::Kel_cpp::DirectoryCopyConfig, Varno::Kel_cpp::PathCopyConfig,
                     Varno::Kel_cpp::UserInfo, Varno::Kel_cpp::LogInOutConfig,
                     Varno::Kel_cpp::TarnApiServerConfig, Varno::Kel_cpp::ServerSettings,
                     Varno::Kel_cpp::FlashSessionInfo, Varno::Kel_cpp::FlashSessionResult,
                     Varno::Kel_cpp::FlashSessionsConfig, Varno::Kel_cpp::CodingStringResult,
                     Varno::Kel_cpp::CodingFileResult, Varno::Kel_cpp::QuickTestResult>;
INSTANTIATE_TYPED_TEST_SUITE_P(Records3, EveryRecordClass, Records3);

} // namespace kel_test::record_classes
