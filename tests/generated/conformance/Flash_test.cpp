// Generated from the interface description by tools/generate.py. Do not edit.
// Conformance checks of the family Flash: every export and every dispatcher number.

#include "conformance_support.h"
#include "generated/conformance/records.h"

namespace {

namespace kc = kel_conformance;

using Flash = kc::ConformanceTest;
using FlashByNumber = kc::ConformanceTest;

TEST_F(FlashByNumber, n113_getFlashSessionInfos_NotAvailable) {
    kc::notAvailable(api, 113, "getFlashSessionInfos");
}

TEST_F(FlashByNumber, n117_executeFlashSessions_NotAvailable) {
    kc::notAvailable(api, 117, "executeFlashSessions");
}

TEST_F(FlashByNumber, n195_executeFlashSessionsConfig_NotAvailable) {
    kc::notAvailable(api, 195, "executeFlashSessionsConfig");
}

} // namespace
