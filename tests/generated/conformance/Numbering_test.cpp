// Generated from the interface description by tools/generate.py. Do not edit.
// The dispatchers recognise exactly the numbers the description names.

#include "conformance_support.h"
#include "generated/conformance/records.h"

namespace {

namespace kc = kel_conformance;

using Numbering = kc::ConformanceTest;

TEST_F(Numbering, NumbersThatNameNothingLeaveTheOutputsAlone) { kc::unnamedNumbers(api); }

} // namespace
