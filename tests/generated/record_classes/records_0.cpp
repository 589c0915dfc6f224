// Generated from the interface description by tools/generate.py. Do not edit.

#include "record_classes.h"

namespace kel_test::record_classes {

using Records0 = ::testing::Types<
    Varno::Kel_cpp::MvciServerError, Varno::Kel_cpp::NegativeResponse, Varno::Kel_cpp::KelError,
    Varno::Kel_cpp::NamedItem, Varno::Kel_cpp::ParameterResult, Varno::Kel_cpp::ClearDtcResult,
    Varno::Kel_cpp::DtcReadConfig, Varno::Kel_cpp::ReadDtcResult,
    Varno::Kel_cpp::SupportedDtcResult, Varno::Kel_cpp::DtcResult, Varno::Kel_cpp::SpecialDataGroup,
    Varno::Kel_cpp::SpecialData, Varno::Kel_cpp::VariantIdentResult, Varno::Kel_cpp::ReadDataResult,
    Varno::Kel_cpp::Target, Varno::Kel_cpp::TargetStatus, Varno::Kel_cpp::TargetFilter,
    Varno::Kel_cpp::ParameterInput, Varno::Kel_cpp::ServiceInput, Varno::Kel_cpp::ServiceResult,
    Varno::Kel_cpp::ResponseResult, Varno::Kel_cpp::RequestResult, Varno::Kel_cpp::UnlockResult,
    Varno::Kel_cpp::ServiceInfo>;
INSTANTIATE_TYPED_TEST_SUITE_P(Records0, EveryRecordClass, Records0);

} // namespace kel_test::record_classes
