// Generated from the interface description by tools/generate.py. Do not edit.

#include "record_classes.h"

namespace kel_test::record_classes {

using Records1 = ::testing::Types<
    Varno::Kel_cpp::ResponseInfo, Varno::Kel_cpp::ParameterInfo, Varno::Kel_cpp::ConstraintInfo,
    Varno::Kel_cpp::ScaleConstraintInfo, Varno::Kel_cpp::UnitInfo,
    Varno::Kel_cpp::ParameterInfoConfig, Varno::Kel_cpp::KelEvent, Varno::Kel_cpp::EventReport,
    Varno::Kel_cpp::FileFilter, Varno::Kel_cpp::FilterPattern, Varno::Kel_cpp::TargetConfig,
    Varno::Kel_cpp::ProjectConfig, Varno::Kel_cpp::ProjectDetails, Varno::Kel_cpp::DbFileInfo,
    Varno::Kel_cpp::SystemInfo, Varno::Kel_cpp::SystemProperty, Varno::Kel_cpp::TarnApiConfig,
    Varno::Kel_cpp::ServerConfig, Varno::Kel_cpp::Oauth2Config, Varno::Kel_cpp::MoxConfig,
    Varno::Kel_cpp::TcpInfo, Varno::Kel_cpp::StatusInfo, Varno::Kel_cpp::TransmissionInfo,
    Varno::Kel_cpp::ProcessInfo>;
INSTANTIATE_TYPED_TEST_SUITE_P(Records1, EveryRecordClass, Records1);

} // namespace kel_test::record_classes
